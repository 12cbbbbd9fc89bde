// Events as values, for hosts that are told of them by name: bindings to other languages, scripts.
#pragma once

#include "vornix/automation.h"
#include "vornix/event_funnel.h"
#include "vornix/members.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <type_traits>
#include <utility>

namespace vornix {

class VariantEvents : public EventFunnel<VariantEvents> {
public:
    // Texts that come back are read in the locale, which must outlive the events.
    explicit VariantEvents(const Locale& locale = BuiltinLocale())
        : locale_(locale)
    {
    }

    // The first failure since this was last asked: of a value that did not fit its argument, which was left as it was.
    std::optional<AutomationError> TakeFailure() { return std::exchange(failure_, std::nullopt); }

protected:
    // Arguments by reference may be written; each is converted to its declared type when this returns. An object is
    // valid until then. What this throws goes to the member that raised the event.
    virtual void Raise(const EventInfo& event, std::span<Variant> arguments) = 0;

private:
    friend EventFunnel<VariantEvents>;

    template <typename... Parameters, typename... Arguments>
    void On(int number, void (VornixEvents::*)(Parameters...), Arguments&... arguments)
    {
        std::array<Variant, sizeof...(Arguments)> values { ToValue(arguments)... };
        Raise(Events()[static_cast<std::size_t>(number) - 1], values);
        [[maybe_unused]] auto value = values.begin();
        (TakeBack<Parameters>(*value++, arguments), ...);
    }

    static Variant ToValue(DataObject& data) { return Variant::FromObject(ObjectPtr(ObjectPtr(), &data)); }
    template <typename Argument> static Variant ToValue(Argument argument)
    {
        if constexpr (std::is_same_v<Argument, Hdc>)
            return Variant(static_cast<std::int64_t>(argument));
        else
            return Variant(argument);
    }

    template <typename Parameter, typename Argument> void TakeBack(const Variant& value, Argument& argument)
    {
        if constexpr (std::is_lvalue_reference_v<Parameter> && !std::is_same_v<Parameter, DataObject&>)
            Convert(value, argument);
    }

    // Each leaves the argument as it was when the value does not fit, and keeps the failure.
    void Convert(const Variant& value, i16& argument);
    void Convert(const Variant& value, i32& argument);
    void Convert(const Variant& value, float& argument);
    void Convert(const Variant& value, bool& argument);
    void Convert(const Variant& value, Hdc& argument);
    template <typename Conversion> void KeepingFailure(const Conversion& conversion);

    const Locale& locale_;
    std::optional<AutomationError> failure_;
};

} // namespace vornix
