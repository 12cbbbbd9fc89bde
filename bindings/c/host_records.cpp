// What the container without a screen wrote down, and the picture of the control.
#include "grid.h"
#include "png_file.h"
#include "values.h"

#include <algorithm>
#include <limits>

namespace vornix::c {

namespace {

constexpr std::size_t MostArguments = 8;

template <typename List> const auto& At(const List& list, std::size_t index)
{
    if (index >= list.size())
        Raise(ErrorNumber::SubscriptOutOfRange);
    return list[index];
}

int NumberOf(const LoggedEvent& logged)
{
    const auto events = Events();
    const auto found
        = std::find_if(events.begin(), events.end(), [&](const EventInfo& event) { return event.name == logged.name; });
    return found == events.end() ? 0 : found->number;
}

const char* IconName(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Exclamation:
        return "exclamation";
    case MessageIcon::Information:
        return "information";
    default:
        return "";
    }
}

void CopyRgba(const DevicePixels& pixels, std::uint8_t* rgba)
{
    for (int y = 0; y < pixels.height; ++y) {
        const u32* const row = pixels.data + y * pixels.stride;
        for (int x = 0; x < pixels.width; ++x) {
            const u32 pixel = row[x];
            *rgba++ = static_cast<std::uint8_t>(pixel >> 16);
            *rgba++ = static_cast<std::uint8_t>(pixel >> 8);
            *rgba++ = static_cast<std::uint8_t>(pixel);
            *rgba++ = 0xFF;
        }
    }
}

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_host_clear_log(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().ClearLog(); });
}

std::int32_t vornix_host_log_count(vornix_grid* grid, std::size_t* count)
{
    return GridCall(grid, [&](Call& call) {
        Require(count);
        *count = call->Container().Log().size();
    });
}

std::int32_t vornix_host_log_at(vornix_grid* grid, std::size_t index, std::int32_t* number, vornix_value* arguments,
    std::size_t capacity, std::size_t* count)
{
    return GridCall(grid, [&](Call& call) {
        Require(number);
        Require(count);
        if (capacity > 0)
            Require(arguments);
        const LoggedEvent& logged = At(call->Container().Log(), index);
        ValueList<MostArguments> values;
        for (const auto& argument : logged.arguments) {
            if (values.Count() < std::min(capacity, MostArguments))
                values.Add(argument.second);
        }
        for (std::size_t i = 0; i < values.Count(); ++i)
            arguments[i] = values.Take(i);
        *number = NumberOf(logged);
        *count = logged.arguments.size();
    });
}

std::int32_t vornix_host_property_change_count(vornix_grid* grid, std::size_t* count)
{
    return GridCall(grid, [&](Call& call) {
        Require(count);
        *count = call->Container().PropertyChanges().size();
    });
}

std::int32_t vornix_host_property_change_at(vornix_grid* grid, std::size_t index, const char** name)
{
    return GridCall(grid, [&](Call& call) {
        Require(name);
        *name = At(call->Container().PropertyChanges(), index).c_str();
    });
}

std::int32_t vornix_host_paint_counts(vornix_grid* grid, std::int32_t* repaints, std::int32_t* refreshes)
{
    return GridCall(grid, [&](Call& call) {
        Require(repaints);
        Require(refreshes);
        *repaints = call->Container().Repaints();
        *refreshes = call->Container().Refreshes();
    });
}

std::int32_t vornix_host_message_box_count(vornix_grid* grid, std::size_t* count)
{
    return GridCall(grid, [&](Call& call) {
        Require(count);
        *count = call->Container().MessageBoxes().size();
    });
}

std::int32_t vornix_host_message_box_at(
    vornix_grid* grid, std::size_t index, vornix_text* title, vornix_text* text, const char** icon)
{
    return GridCall(grid, [&](Call& call) {
        Require(title);
        Require(text);
        Require(icon);
        const MessageBoxRecord& box = At(call->Container().MessageBoxes(), index);
        *title = ViewOf(box.title);
        *text = ViewOf(box.text);
        *icon = IconName(box.icon);
    });
}

std::int32_t vornix_host_pixel(vornix_grid* grid, std::int32_t x, std::int32_t y, std::uint32_t* color)
{
    return GridCall(grid, [&](Call& call) {
        Require(color);
        *color = call->Container().Pixel(x, y);
    });
}

std::int32_t vornix_host_image_size(vornix_grid* grid, std::int32_t* width, std::int32_t* height)
{
    return GridCall(grid, [&](Call& call) {
        Require(width);
        Require(height);
        const DevicePixels pixels = call->Container().Window().Pixels();
        *width = pixels.width;
        *height = pixels.height;
    });
}

std::int32_t vornix_host_image(vornix_grid* grid, std::uint8_t* rgba, std::size_t length)
{
    return GridCall(grid, [&](Call& call) {
        Require(rgba);
        const DevicePixels pixels = call->Container().Window().Pixels();
        if (length != static_cast<std::size_t>(pixels.width) * static_cast<std::size_t>(pixels.height) * 4)
            Raise(ErrorNumber::InvalidArgument, "The length is not that of the picture");
        CopyRgba(pixels, rgba);
    });
}

std::int32_t vornix_host_save_png(vornix_grid* grid, const char* path)
{
    return GridCall(grid, [&](Call& call) {
        Require(path);
        SavePng(call->Container().Window(), path);
    });
}
