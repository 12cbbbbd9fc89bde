#include "automation/checked.h"
#include "automation/date_fields.h"
#include "automation/decimal_value.h"
#include "automation/text_conversions.h"
#include "vornix/automation.h"

#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <utility>

namespace vornix {

// A table of a million values should stay small: the text is the widest of them, and 40 bytes in all where the compiler
// puts the type into the padding behind it.
static_assert(sizeof(Variant) <= sizeof(std::u16string) + 2 * sizeof(std::int64_t));

namespace {

constexpr std::int64_t CurrencyUnit = 10000;
constexpr int CurrencyPlaces = 4;

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
    char16_t buffer[20];
    char16_t* first = std::end(buffer);
    std::uint64_t magnitude = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    do {
        *--first = static_cast<char16_t>(u'0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    std::u16string text(first, std::end(buffer));
    return value < 0 ? locale.Numbers().negativeSign + text : text;
}

// Significant digits that a float is sure of.
constexpr int SingleDigits = 7;
constexpr int DoubleDigits = 15;

DecimalValue FloatToDecimal(double value, int significantDigits)
{
    if (!std::isfinite(value))
        RaiseError(ErrorNumber::Overflow);
    return ToDecimalValue(ToDecimalDigits(value, significantDigits));
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
    : value_(std::move(value))
    , type_(type)
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

Variant Variant::FromDecimal(const DecimalValue& value)
{
    CheckArgument(value.scale <= MaxDecimalScale);
    return Variant(VariantType::Decimal, Storage(value));
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
    if (type_ == VariantType::Decimal)
        return ToScaledInteger(DigitsOf(std::get<DecimalValue>(value_)), 0);
    if (type_ == VariantType::Text)
        return TextToI8(std::get<std::u16string>(value_), locale);
    return RoundToI64(ToDouble(locale));
}

float Variant::ToSingle(const Locale& locale) const
{
    if (type_ == VariantType::Decimal)
        return ToFloat32(DigitsOf(std::get<DecimalValue>(value_)));
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
    if (type_ == VariantType::Decimal)
        return ToFloat64(DigitsOf(std::get<DecimalValue>(value_)));
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
        return DigitsToText(DigitsOf(std::get<std::int64_t>(value_), CurrencyPlaces), locale);
    case VariantType::Decimal:
        return DigitsToText(DigitsOf(std::get<DecimalValue>(value_)), locale);
    default:
        RaiseMismatch();
    }
}

std::u16string_view Variant::ViewText(std::u16string& scratch, const Locale& locale) const
{
    if (const std::u16string* text = std::get_if<std::u16string>(&value_))
        return *text;
    scratch = ToText(locale);
    return scratch;
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
    if (type_ == VariantType::Decimal)
        return ToScaledInteger(DigitsOf(std::get<DecimalValue>(value_)), CurrencyPlaces);
    if (type_ == VariantType::Text)
        return TextToCurrency(std::get<std::u16string>(value_), locale);
    if (!IsInteger())
        return RoundToI64(ToDouble(locale) * static_cast<double>(CurrencyUnit));
    const std::int64_t value = std::get<std::int64_t>(value_);
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / CurrencyUnit;
    if (value > limit || value < -limit)
        RaiseError(ErrorNumber::Overflow);
    return value * CurrencyUnit;
}

DecimalValue Variant::ToDecimal(const Locale& locale) const
{
    switch (type_) {
    case VariantType::Decimal:
        return std::get<DecimalValue>(value_);
    case VariantType::Currency:
        return ToDecimalValue(DigitsOf(std::get<std::int64_t>(value_), CurrencyPlaces));
    case VariantType::Text:
        return TextToDecimal(std::get<std::u16string>(value_), locale);
    case VariantType::Single:
        return FloatToDecimal(std::get<double>(value_), SingleDigits);
    case VariantType::Double:
    case VariantType::Date:
        return FloatToDecimal(std::get<double>(value_), DoubleDigits);
    default:
        return ToDecimalValue(DigitsOf(ToI64(locale), 0));
    }
}

OleColor Variant::ToColor(const Locale& locale) const
{
    const std::int64_t value = ToI64(locale);
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

ArrayPtr Variant::ToArrayPtr() const
{
    const ArrayPtr* array = std::get_if<ArrayPtr>(&value_);
    if (array == nullptr || *array == nullptr)
        RaiseError(ErrorNumber::TypeMismatch);
    return *array;
}

const VariantArray& Variant::ToArray() const
{
    return *ToArrayPtr();
}

} // namespace vornix
