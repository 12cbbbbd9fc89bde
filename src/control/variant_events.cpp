#include "vornix/variant_events.h"

#include "automation/checked.h"

namespace vornix {

template <typename Conversion> void VariantEvents::KeepingFailure(const Conversion& conversion)
{
    try {
        OrOutOfMemory(conversion);
    } catch (const AutomationError& error) {
        if (!failure_)
            failure_ = error;
    }
}

void VariantEvents::Convert(const Variant& value, i16& argument)
{
    KeepingFailure([&] { argument = value.ToI16(locale_); });
}

void VariantEvents::Convert(const Variant& value, i32& argument)
{
    KeepingFailure([&] { argument = value.ToI32(locale_); });
}

void VariantEvents::Convert(const Variant& value, float& argument)
{
    KeepingFailure([&] { argument = value.ToSingle(locale_); });
}

void VariantEvents::Convert(const Variant& value, bool& argument)
{
    KeepingFailure([&] { argument = value.ToBool(locale_); });
}

void VariantEvents::Convert(const Variant& value, Hdc& argument)
{
    KeepingFailure([&] { argument = static_cast<Hdc>(value.ToI64(locale_)); });
}

} // namespace vornix
