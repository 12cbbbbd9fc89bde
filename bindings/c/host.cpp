// The container without a screen: its lifecycle and what it has at hand for the control.
#include "grid.h"
#include "values.h"

#include <iterator>
#include <string_view>

namespace vornix::c {

namespace {

constexpr std::int32_t LargestSide = 32767;

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_host_get_user_mode(vornix_grid* grid, std::int32_t* user_mode)
{
    return GridCall(grid, [&](Call& call) {
        Require(user_mode);
        *user_mode = call->Container().UserMode() ? 1 : 0;
    });
}

std::int32_t vornix_host_set_user_mode(vornix_grid* grid, std::int32_t user_mode)
{
    return GridCall(grid, [&](Call& call) { call->Container().SetUserMode(user_mode != 0); });
}

std::int32_t vornix_host_resize(vornix_grid* grid, std::int32_t width, std::int32_t height)
{
    return GridCall(grid, [&](Call& call) {
        if (width < 0 || height < 0 || width > LargestSide || height > LargestSide)
            Raise(ErrorNumber::InvalidArgument, "A window has 0 to 32767 pixels in each direction");
        call->Container().Resize(width, height);
    });
}

std::int32_t vornix_host_show(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().Show(); });
}

std::int32_t vornix_host_hide(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().Hide(); });
}

std::int32_t vornix_host_paint(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().Paint(); });
}

std::int32_t vornix_host_enter_focus(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().EnterFocus(); });
}

std::int32_t vornix_host_exit_focus(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().ExitFocus(); });
}

std::int32_t vornix_host_close(vornix_grid* grid)
{
    return GridCall(grid, [](Call& call) { call->Container().Close(); });
}

std::int32_t vornix_host_is_closed(vornix_grid* grid, std::int32_t* closed)
{
    return GridCall(grid, [&](Call& call) {
        Require(closed);
        *closed = call->Control().IsTerminated() ? 1 : 0;
    });
}

std::int32_t vornix_host_get_clipboard(vornix_grid* grid, vornix_text* text)
{
    return GridCall(grid, [&](Call& call) {
        Require(text);
        *text = ViewOf(call->Keep(call->Container().ClipboardText()));
    });
}

std::int32_t vornix_host_set_clipboard(vornix_grid* grid, vornix_text text)
{
    return GridCall(grid, [&](Call& call) { call->Container().SetClipboardText(ToText(text)); });
}

std::int32_t vornix_host_pointer_shape(vornix_grid* grid, const char** shape)
{
    return GridCall(grid, [&](Call& call) {
        Require(shape);
        *shape = NameOf(call->Container().Pointer()).data();
    });
}

std::int32_t vornix_host_setting_count(vornix_grid* grid, std::size_t* count)
{
    return GridCall(grid, [&](Call& call) {
        Require(count);
        *count = call->Container().StoredSettings().values.size();
    });
}

std::int32_t vornix_host_setting_at(vornix_grid* grid, std::size_t index, vornix_setting* setting)
{
    return GridCall(grid, [&](Call& call) {
        Require(setting);
        const auto& values = call->Container().StoredSettings().values;
        if (index >= values.size())
            Raise(ErrorNumber::SubscriptOutOfRange);
        const auto& [key, value] = *std::next(values.begin(), static_cast<std::ptrdiff_t>(index));
        const auto& [application, section, name] = key;
        *setting = { ViewOf(application), ViewOf(section), ViewOf(name), ViewOf(value) };
    });
}

std::int32_t vornix_host_save_setting(vornix_grid* grid, const vornix_setting* setting)
{
    return GridCall(grid, [&](Call& call) {
        Require(setting);
        call->Container().StoredSettings().SaveSetting(
            ToText(setting->application), ToText(setting->section), ToText(setting->key), ToText(setting->value));
    });
}

std::int32_t vornix_host_get_setting(vornix_grid* grid, vornix_setting* setting)
{
    return GridCall(grid, [&](Call& call) {
        Require(setting);
        setting->value = ViewOf(call->Keep(call->Container().StoredSettings().GetSetting(
            ToText(setting->application), ToText(setting->section), ToText(setting->key), ToText(setting->value))));
    });
}
