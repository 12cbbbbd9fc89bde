// The text box that comes with the grid.
#include "bag.h"
#include "companion.h"
#include "event_values.h"

#include "vornix/headless_text_box_host.h"
#include "vornix/vornix_c.h"

#include <array>
#include <memory>
#include <type_traits>
#include <variant>

namespace {

// Each leaves the argument as it was when the value does not fit.
void Convert(const vornix::Variant& value, vornix::i16& argument)
{
    argument = value.ToI16();
}
void Convert(const vornix::Variant& value, vornix::i32& argument)
{
    argument = value.ToI32();
}
void Convert(const vornix::Variant& value, float& argument)
{
    argument = value.ToSingle();
}
void Convert(const vornix::Variant& value, bool& argument)
{
    argument = value.ToBool();
}

} // namespace

// Hands the events to the callback of its host.
struct vornix_text_box final : vornix::c::Companion, private vornix::TextBoxEventFunnel<vornix_text_box> {
    explicit vornix_text_box(vornix::HeadlessTextBoxOptions options)
        : host(Receiving(options, *this))
    {
    }

    vornix_text_box_callback callback = nullptr;
    vornix::HeadlessTextBoxHost host;
    // What the entries that were given out last refer to.
    vornix::MemoryBag saved;

private:
    friend vornix::TextBoxEventFunnel<vornix_text_box>;

    static vornix::HeadlessTextBoxOptions Receiving(
        vornix::HeadlessTextBoxOptions options, vornix::TextBoxEvents& events)
    {
        options.events = &events;
        return options;
    }

    template <typename... Parameters, typename... Arguments>
    void On(int number, void (vornix::TextBoxEvents::*)(Parameters...), Arguments&... arguments)
    {
        if (callback == nullptr)
            return;
        std::array<vornix::Variant, sizeof...(Arguments)> values { ToValue(arguments)... };
        const auto call = [&](vornix_value* given, std::size_t count) { callback(user, this, number, given, count); };
        vornix::c::CallWithArguments(
            vornix::TextBoxEventInfos()[static_cast<std::size_t>(number) - 1], values, call, failure);
        [[maybe_unused]] auto value = values.begin();
        (TakeBack<Parameters>(*value++, arguments), ...);
    }

    static vornix::Variant ToValue(vornix::DataObject& data)
    {
        return vornix::Variant::FromObject(vornix::ObjectPtr(vornix::ObjectPtr(), &data));
    }
    template <typename Argument> static vornix::Variant ToValue(Argument argument) { return vornix::Variant(argument); }

    template <typename Parameter, typename Argument> void TakeBack(const vornix::Variant& value, Argument& argument)
    {
        if constexpr (std::is_lvalue_reference_v<Parameter> && !std::is_same_v<Parameter, vornix::DataObject&>) {
            try {
                Convert(value, argument);
            } catch (const vornix::AutomationError& error) {
                if (!failure)
                    failure = error;
            }
        }
    }
};

namespace vornix::c {

namespace {

template <typename Body> std::int32_t BoxCall(vornix_text_box* box, const Body& body)
{
    return Guarded([&] {
        CompanionCall call(box, "text box");
        body(call);
        call.Finish();
    });
}

// A notification of a key, whose code comes back.
template <typename Notification>
std::int32_t KeyCall(vornix_text_box* box, std::int16_t* code, const Notification& notification)
{
    return BoxCall(box, [&](CompanionCall& call) {
        Require(code);
        const i16 left = notification(box->host);
        call.Finish();
        *code = left;
    });
}

HeadlessTextBoxOptions OptionsOf(const vornix_text_box_options& options)
{
    if (options.size != sizeof(vornix_text_box_options))
        Raise(ErrorNumber::InvalidArgument, "The options have another size than this library knows");
    HeadlessTextBoxOptions given;
    given.width = options.width == 0 ? given.width : options.width;
    given.height = options.height == 0 ? given.height : options.height;
    return given;
}

} // namespace

} // namespace vornix::c

using namespace vornix;
using namespace vornix::c;

std::int32_t vornix_text_box_create(const vornix_text_box_options* options, vornix_text_box** box)
{
    return Guarded([&] {
        Require(box);
        HeadlessTextBoxOptions given;
        MemoryBag bag;
        if (options != nullptr) {
            given = OptionsOf(*options);
            bag = options->has_bag ? ToBag(options->bag, options->bag_count) : bag;
            given.bag = options->has_bag ? &bag : nullptr;
        }
        *box = std::make_unique<vornix_text_box>(given).release();
    });
}

std::int32_t vornix_text_box_destroy(vornix_text_box* box)
{
    return DestroyCompanion(box, "text box");
}

std::int32_t vornix_text_box_set_callback(vornix_text_box* box, vornix_text_box_callback callback, void* user)
{
    return BoxCall(box, [&](CompanionCall&) {
        box->callback = callback;
        box->user = user;
    });
}

std::int32_t vornix_text_box_invoke(vornix_text_box* box, const char* name, std::int32_t kind,
    const vornix_value* arguments, std::size_t count, vornix_value* result)
{
    return BoxCall(box, [&](CompanionCall& call) {
        const Variant given = Invoked(box->host, name, kind, arguments, count);
        call.Finish();
        if (result != nullptr)
            *result = ToValue(given);
    });
}

std::int32_t vornix_text_box_key_down(vornix_text_box* box, std::int16_t* code, std::int16_t shift)
{
    return KeyCall(box, code, [&](HeadlessTextBoxHost& host) { return host.KeyDown(*code, shift); });
}

std::int32_t vornix_text_box_key_press(vornix_text_box* box, std::int16_t* character, std::int16_t shift)
{
    return KeyCall(box, character, [&](HeadlessTextBoxHost& host) { return host.KeyPress(*character, shift); });
}

std::int32_t vornix_text_box_key_up(vornix_text_box* box, std::int16_t* code, std::int16_t shift)
{
    return KeyCall(box, code, [&](HeadlessTextBoxHost& host) { return host.KeyUp(*code, shift); });
}

std::int32_t vornix_text_box_type(vornix_text_box* box, vornix_text text)
{
    return BoxCall(box, [&](CompanionCall&) { box->host.Type(ToText(text)); });
}

std::int32_t vornix_text_box_press(vornix_text_box* box, const char* key, std::int16_t shift)
{
    return BoxCall(box, [&](CompanionCall&) {
        Require(key);
        box->host.Press(key, shift);
    });
}

std::int32_t vornix_text_box_press_code(vornix_text_box* box, std::int16_t code, std::int16_t shift)
{
    return BoxCall(box, [&](CompanionCall&) { box->host.Press(code, shift); });
}

std::int32_t vornix_text_box_paste(vornix_text_box* box, vornix_text text)
{
    return BoxCall(box, [&](CompanionCall&) { box->host.Paste(ToText(text)); });
}

std::int32_t vornix_text_box_resize(vornix_text_box* box, std::int32_t width, std::int32_t height)
{
    return BoxCall(box, [&](CompanionCall&) { box->host.Resize(width, height); });
}

std::int32_t vornix_text_box_size(vornix_text_box* box, std::int32_t* width, std::int32_t* height)
{
    return BoxCall(box, [&](CompanionCall&) {
        Require(width);
        Require(height);
        const Rect place = box->host.Window().Place();
        *width = place.Width();
        *height = place.Height();
    });
}

std::int32_t vornix_text_box_save(
    vornix_text_box* box, vornix_bag_entry* entries, std::size_t capacity, std::size_t* count)
{
    return BoxCall(box, [&](CompanionCall&) {
        Require(count);
        if (capacity > 0)
            Require(entries);
        box->saved = box->host.Save();
        GiveBag(box->saved, entries, capacity);
        *count = box->saved.values.size();
    });
}
