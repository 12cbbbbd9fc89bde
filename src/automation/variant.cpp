#include "automation/checked.h"
#include "automation/date_fields.h"
#include "automation/text_conversions.h"
#include "vornix/automation.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace vornix {

namespace {

constexpr std::int64_t CurrencyUnit = 10000;

double CheckedDate(double days)
{
    if (!IsDateInRange(days))
        RaiseError(ErrorNumber::Overflow);
    return days;
}

// To the nearest integer, ties to the even one; error 6 when it does not fit 64 bits.
std::int64_t RoundToI64(double value)
{
    constexpr double limit = 9223372036854775808.0;
    const double rounded = value - std::remainder(value, 1.0);
    if (!(rounded >= -limit && rounded < limit))
        RaiseError(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(rounded);
}

std::int64_t RoundCurrency(std::int64_t scaled)
{
    const std::int64_t whole = scaled / CurrencyUnit;
    const std::int64_t rest = std::abs(scaled % CurrencyUnit);
    const bool roundsAway = rest > CurrencyUnit / 2 || (rest == CurrencyUnit / 2 && whole % 2 != 0);
    if (!roundsAway)
        return whole;
    return scaled < 0 ? whole - 1 : whole + 1;
}

std::u16string IntegerText(std::int64_t value, const Locale& locale)
{
    std::u16string text;
    std::uint64_t magnitude = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    do {
        text.insert(text.begin(), static_cast<char16_t>(u'0' + magnitude % 10));
        magnitude /= 10;
    } while (magnitude != 0);
    return value < 0 ? locale.Numbers().negativeSign + text : text;
}

// Up to four decimals, without zeros at the end.
std::u16string CurrencyText(std::int64_t scaled, const Locale& locale)
{
    const std::int64_t whole = scaled / CurrencyUnit;
    const std::int64_t rest = std::abs(scaled % CurrencyUnit);
    std::u16string text = IntegerText(whole, locale);
    if (scaled < 0 && whole == 0)
        text = locale.Numbers().negativeSign + text;
    if (rest == 0)
        return text;
    std::u16string decimals = IntegerText(CurrencyUnit + rest, locale).substr(1);
    decimals.erase(decimals.find_last_not_of(u'0') + 1);
    return text + locale.Numbers().decimalSeparator + decimals;
}

// Null and empty have no object; a type that holds none is error 13.
template <typename Pointer, typename Storage>
Pointer PointerOf(const Storage& value, VariantType type, VariantType wanted)
{
    if (type == VariantType::Empty || type == VariantType::Null)
        return nullptr;
    if (type != wanted)
        RaiseError(ErrorNumber::TypeMismatch);
    return std::get<Pointer>(value);
}

} // namespace

Variant::Variant(VariantType type, Storage value)
    : type_(type)
    , value_(std::move(value))
{
}

Variant::Variant(i16 value)
    : Variant(VariantType::I16, Storage(std::int64_t { value }))
{
}

Variant::Variant(i32 value)
    : Variant(VariantType::I32, Storage(std::int64_t { value }))
{
}

Variant::Variant(std::int64_t value)
    : Variant(VariantType::I64, Storage(value))
{
}

Variant::Variant(float value)
    : Variant(VariantType::Single, Storage(double { value }))
{
}

Variant::Variant(double value)
    : Variant(VariantType::Double, Storage(value))
{
}

Variant::Variant(std::u16string value)
    : Variant(VariantType::Text, Storage(std::move(value)))
{
}

Variant::Variant(std::u16string_view value)
    : Variant(std::u16string(value))
{
}

Variant::Variant(const char16_t* value)
    : Variant(std::u16string(value))
{
}

Variant::Variant(FontPtr value)
    : Variant(VariantType::Font, Storage(std::move(value)))
{
}

Variant::Variant(PicturePtr value)
    : Variant(VariantType::Picture, Storage(std::move(value)))
{
}

Variant Variant::Null()
{
    return Variant(VariantType::Null, Storage());
}

Variant Variant::Missing()
{
    return Variant(VariantType::Missing, Storage());
}

Variant Variant::FromCurrency(std::int64_t scaled)
{
    return Variant(VariantType::Currency, Storage(scaled));
}

Variant Variant::FromDate(double days)
{
    return Variant(VariantType::Date, Storage(days));
}

Variant Variant::FromObject(ObjectPtr object)
{
    return Variant(VariantType::Object, Storage(std::move(object)));
}

Variant Variant::FromArray(ArrayPtr array)
{
    return Variant(VariantType::Array, Storage(std::move(array)));
}

bool Variant::IsInteger() const
{
    return type_ == VariantType::I16 || type_ == VariantType::I32 || type_ == VariantType::I64
        || type_ == VariantType::Boolean;
}

bool Variant::IsFloat() const
{
    return type_ == VariantType::Single || type_ == VariantType::Double || type_ == VariantType::Date;
}

void Variant::RaiseMismatch() const
{
    RaiseError(IsNull() ? ErrorNumber::InvalidUseOfNull : ErrorNumber::TypeMismatch);
}

i16 Variant::ToI16(const Locale& locale) const
{
    if (type_ == VariantType::Text)
        return TextToI2(std::get<std::u16string>(value_), locale);
    if (IsFloat())
        return RoundToI16(std::get<double>(value_));
    return vornix::ToI16(ToI64(locale));
}

i32 Variant::ToI32(const Locale& locale) const
{
    if (type_ == VariantType::Text)
        return TextToI4(std::get<std::u16string>(value_), locale);
    if (IsFloat())
        return RoundToI32(std::get<double>(value_));
    return vornix::ToI32(ToI64(locale));
}

std::int64_t Variant::ToI64(const Locale& locale) const
{
    if (IsEmpty())
        return 0;
    if (IsInteger())
        return std::get<std::int64_t>(value_);
    if (type_ == VariantType::Currency)
        return RoundCurrency(std::get<std::int64_t>(value_));
    return RoundToI64(ToDouble(locale));
}

float Variant::ToSingle(const Locale& locale) const
{
    const double value = ToDouble(locale);
    if (std::isfinite(value) && std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max()))
        RaiseError(ErrorNumber::Overflow);
    return static_cast<float>(value);
}

double Variant::ToDouble(const Locale& locale) const
{
    if (IsEmpty())
        return 0;
    if (IsInteger())
        return static_cast<double>(std::get<std::int64_t>(value_));
    if (IsFloat())
        return std::get<double>(value_);
    if (type_ == VariantType::Currency)
        return static_cast<double>(std::get<std::int64_t>(value_)) / static_cast<double>(CurrencyUnit);
    if (type_ == VariantType::Text)
        return TextToR8(std::get<std::u16string>(value_), locale);
    RaiseMismatch();
}

bool Variant::ToBool(const Locale& locale) const
{
    if (type_ == VariantType::Text)
        return TextToBool(std::get<std::u16string>(value_), locale);
    return ToDouble(locale) != 0;
}

std::u16string Variant::ToText(const Locale& locale) const
{
    switch (type_) {
    case VariantType::Empty:
        return {};
    case VariantType::Text:
        return std::get<std::u16string>(value_);
    case VariantType::Boolean:
        return BoolToText(std::get<std::int64_t>(value_) != 0);
    case VariantType::I16:
    case VariantType::I32:
    case VariantType::I64:
        return IntegerText(std::get<std::int64_t>(value_), locale);
    case VariantType::Single:
        return SingleToText(static_cast<float>(std::get<double>(value_)), locale);
    case VariantType::Double:
        return NumberToText(std::get<double>(value_), locale);
    case VariantType::Date:
        return DateToText(std::get<double>(value_), locale);
    case VariantType::Currency:
        return CurrencyText(std::get<std::int64_t>(value_), locale);
    default:
        RaiseMismatch();
    }
}

double Variant::ToDate(const Locale& locale) const
{
    if (type_ == VariantType::Text)
        return TextToDate(std::get<std::u16string>(value_), locale);
    return CheckedDate(ToDouble(locale));
}

std::int64_t Variant::ToCurrency(const Locale& locale) const
{
    if (type_ == VariantType::Currency)
        return std::get<std::int64_t>(value_);
    if (!IsInteger())
        return RoundToI64(ToDouble(locale) * static_cast<double>(CurrencyUnit));
    const std::int64_t value = std::get<std::int64_t>(value_);
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / CurrencyUnit;
    if (value > limit || value < -limit)
        RaiseError(ErrorNumber::Overflow);
    return value * CurrencyUnit;
}

OleColor Variant::ToColor(const Locale& locale) const
{
    const bool isWide = type_ == VariantType::I64 || type_ == VariantType::Double;
    const std::int64_t value = isWide ? ToI64(locale) : ToI32(locale);
    if (value > std::numeric_limits<u32>::max())
        RaiseError(ErrorNumber::Overflow);
    return value < 0 ? static_cast<OleColor>(vornix::ToI32(value)) : static_cast<OleColor>(value);
}

FontPtr Variant::ToFont() const
{
    return PointerOf<FontPtr>(value_, type_, VariantType::Font);
}

PicturePtr Variant::ToPicture() const
{
    return PointerOf<PicturePtr>(value_, type_, VariantType::Picture);
}

ObjectPtr Variant::ToObject() const
{
    return PointerOf<ObjectPtr>(value_, type_, VariantType::Object);
}

const VariantArray& Variant::ToArray() const
{
    const ArrayPtr* array = std::get_if<ArrayPtr>(&value_);
    if (array == nullptr || *array == nullptr)
        RaiseError(ErrorNumber::TypeMismatch);
    return **array;
}

} // namespace vornix
