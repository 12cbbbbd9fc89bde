// The scroll bar that comes with the grid.
#include "bag.h"
#include "companion.h"

#include "vornix/headless_bar_host.h"
#include "vornix/vornix_c.h"

#include <array>
#include <memory>
#include <optional>

// Hands the events to the callback of its host.
struct vornix_scroll_bar final : vornix::c::Companion, private vornix::ScrollBarEvents {
    explicit vornix_scroll_bar(vornix::HeadlessBarOptions options)
        : host(Receiving(options, *this))
    {
    }

    vornix_scroll_bar_callback callback = nullptr;
    vornix::HeadlessBarHost host;
    // What the entries that were given out last refer to.
    vornix::MemoryBag saved;

private:
    static vornix::HeadlessBarOptions Receiving(vornix::HeadlessBarOptions options, vornix::ScrollBarEvents& events)
    {
        options.events = &events;
        return options;
    }

    void Change(vornix::i32& Value, vornix::i32 Direction) override
    {
        Raise(VORNIX_SCROLL_BAR_CHANGE, Value, { Value, Direction }, 2);
    }
    void Scroll(vornix::i32& Value) override { Raise(VORNIX_SCROLL_BAR_SCROLL, Value, { Value, 0 }, 1); }

    void Raise(std::int32_t number, vornix::i32& value, std::array<vornix::i32, 2> given, std::size_t count)
    {
        if (callback == nullptr)
            return;
        std::array<vornix_value, 2> arguments {};
        for (std::size_t place = 0; place < count; ++place) {
            arguments[place].type = VORNIX_I32;
            arguments[place].as.integer = given[place];
        }
        callback(user, this, number, arguments.data(), count);
        try {
            value = vornix::c::ToVariant(arguments[0]).ToI32();
        } catch (const vornix::AutomationError& error) {
            if (!failure)
                failure = error;
        }
        for (vornix_value& argument : arguments)
            vornix_value_clear(&argument);
    }
};

namespace vornix::c {

namespace {

// The body of a function that calls a bar.
template <typename Body> std::int32_t BarCall(vornix_scroll_bar* bar, const Body& body)
{
    return Guarded([&] {
        CompanionCall call(bar, "scroll bar");
        body();
        call.Finish();
    });
}

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_scroll_bar_create(const vornix_scroll_bar_options* options, vornix_scroll_bar** bar)
{
    return Guarded([&] {
        Require(bar);
        HeadlessBarOptions given;
        MemoryBag bag;
        if (options != nullptr) {
            if (options->size != sizeof(vornix_scroll_bar_options))
                Raise(ErrorNumber::InvalidArgument, "The options have another size than this library knows");
            given.orientation = options->orientation;
            given.length = options->length == 0 ? given.length : options->length;
            bag = options->has_bag ? ToBag(options->bag, options->bag_count) : bag;
            given.bag = options->has_bag ? &bag : nullptr;
        }
        *bar = std::make_unique<vornix_scroll_bar>(given).release();
    });
}

std::int32_t vornix_scroll_bar_destroy(vornix_scroll_bar* bar)
{
    return DestroyCompanion(bar, "scroll bar");
}

std::int32_t vornix_scroll_bar_set_callback(vornix_scroll_bar* bar, vornix_scroll_bar_callback callback, void* user)
{
    return BarCall(bar, [&] {
        bar->callback = callback;
        bar->user = user;
    });
}

std::int32_t vornix_scroll_bar_invoke(vornix_scroll_bar* bar, const char* name, std::int32_t kind,
    const vornix_value* arguments, std::size_t count, vornix_value* result)
{
    return BarCall(bar, [&] {
        const Variant given = Invoked(bar->host, name, kind, arguments, count);
        if (result != nullptr)
            *result = ToValue(given);
    });
}

std::int32_t vornix_scroll_bar_notify(vornix_scroll_bar* bar, std::int32_t code, const std::int32_t* track_position)
{
    return BarCall(bar, [&] {
        bar->host.Window().Notify(code, track_position == nullptr ? std::nullopt : std::optional(*track_position));
    });
}

std::int32_t vornix_scroll_bar_resize(vornix_scroll_bar* bar, std::int32_t width, std::int32_t height)
{
    return BarCall(bar, [&] { bar->host.Resize(width, height); });
}

std::int32_t vornix_scroll_bar_save(
    vornix_scroll_bar* bar, vornix_bag_entry* entries, std::size_t capacity, std::size_t* count)
{
    return BarCall(bar, [&] {
        Require(count);
        if (capacity > 0)
            Require(entries);
        bar->saved = bar->host.Save();
        GiveBag(bar->saved, entries, capacity);
        *count = bar->saved.values.size();
    });
}
