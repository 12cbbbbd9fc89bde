#include "automation/decimal_value.h"

#include "automation/checked.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>

namespace vornix {

namespace {

// The integer of a decimal in 32-bit digits, the lowest first.
class WideInteger {
public:
    WideInteger() = default;
    explicit WideInteger(const DecimalValue& value)
        : parts_ { static_cast<u32>(value.low), static_cast<u32>(value.low >> 32), value.high }
    {
    }

    bool IsZero() const { return parts_ == std::array<u32, 3> {}; }
    std::uint64_t Low() const { return std::uint64_t { parts_[1] } << 32 | parts_[0]; }
    u32 High() const { return parts_[2]; }

    // False when the result leaves 96 bits.
    bool AppendDigit(int digit)
    {
        std::uint64_t carry = static_cast<std::uint64_t>(digit);
        for (u32& part : parts_) {
            carry += std::uint64_t { part } * 10;
            part = static_cast<u32>(carry);
            carry >>= 32;
        }
        return carry == 0;
    }

    // Takes the last digit off.
    int TakeDigit()
    {
        std::uint64_t rest = 0;
        for (auto part = parts_.rbegin(); part != parts_.rend(); ++part) {
            rest = rest << 32 | *part;
            *part = static_cast<u32>(rest / 10);
            rest %= 10;
        }
        return static_cast<int>(rest);
    }

private:
    std::array<u32, 3> parts_ {};
};

// Of the fraction, zeros at its end left out.
int PlacesOf(const DecimalDigits& number)
{
    return std::max(static_cast<int>(number.digits.size()) - number.point, 0);
}

// Zeros stand behind the last digit.
int DigitAt(const DecimalDigits& number, int index)
{
    return index < static_cast<int>(number.digits.size()) ? number.digits[static_cast<std::size_t>(index)] - '0' : 0;
}

// Nothing when that many places leave no room for the integer part.
std::optional<DecimalValue> RoundedDecimal(DecimalDigits number, int places)
{
    number.RoundToEvenPlaces(places);
    const int scale = PlacesOf(number);
    WideInteger integer;
    for (int index = 0; index < number.point + scale; ++index)
        if (!integer.AppendDigit(DigitAt(number, index)))
            return std::nullopt;
    return DecimalValue { integer.Low(), integer.High(), static_cast<u8>(scale),
        number.isNegative && !integer.IsZero() };
}

template <typename Float> Float NearestFloat(const DecimalDigits& number)
{
    if (number.IsZero())
        return 0;
    const std::string text = (number.isNegative ? "-0." : "0.") + number.digits + "e" + std::to_string(number.point);
    Float value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

void AppendDigits(std::u16string& text, std::string_view digits)
{
    text.append(digits.begin(), digits.end());
}

} // namespace

DecimalDigits DigitsOf(const DecimalValue& value)
{
    DecimalDigits number;
    number.isNegative = value.negative;
    for (WideInteger rest(value); !rest.IsZero();)
        number.digits += static_cast<char>('0' + rest.TakeDigit());
    std::reverse(number.digits.begin(), number.digits.end());
    number.point = static_cast<int>(number.digits.size()) - value.scale;
    number.TrimZeros();
    return number;
}

DecimalDigits DigitsOf(std::int64_t value, int scale)
{
    const auto bits = static_cast<std::uint64_t>(value);
    DecimalDigits number;
    number.isNegative = value < 0;
    number.digits = std::to_string(value < 0 ? 0 - bits : bits);
    number.point = static_cast<int>(number.digits.size()) - scale;
    number.TrimZeros();
    return number;
}

DecimalValue ToDecimalValue(const DecimalDigits& number)
{
    // 96 bits hold at most 29 digits.
    constexpr int mostDigits = 29;
    if (number.point > mostDigits)
        RaiseError(ErrorNumber::Overflow);
    const int mostPlaces = std::min(MaxDecimalScale, mostDigits - std::max(number.point, 0));
    for (int places = std::min(PlacesOf(number), mostPlaces); places >= 0; --places)
        if (const std::optional<DecimalValue> value = RoundedDecimal(number, places))
            return *value;
    RaiseError(ErrorNumber::Overflow);
}

std::int64_t ToScaledInteger(DecimalDigits number, int scale)
{
    number.RoundToEvenPlaces(scale);
    if (number.IsZero())
        return 0;
    // 19 digits always fit 64 bits without a sign.
    const int count = number.point + scale;
    if (count > std::numeric_limits<std::uint64_t>::digits10)
        RaiseError(ErrorNumber::Overflow);
    std::uint64_t magnitude = 0;
    for (int index = 0; index < count; ++index)
        magnitude = magnitude * 10 + static_cast<std::uint64_t>(DigitAt(number, index));
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    if (magnitude > largest + number.isNegative)
        RaiseError(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(number.isNegative ? 0 - magnitude : magnitude);
}

double ToFloat64(const DecimalDigits& number)
{
    return NearestFloat<double>(number);
}

float ToFloat32(const DecimalDigits& number)
{
    return NearestFloat<float>(number);
}

std::u16string DigitsToText(const DecimalDigits& number, const Locale& locale)
{
    const NumberSymbols& symbols = locale.Numbers();
    std::u16string text = number.isNegative && !number.IsZero() ? symbols.negativeSign : std::u16string();
    const std::string integer = number.IntegerPart();
    AppendDigits(text, integer.empty() ? "0" : integer);
    const int places = PlacesOf(number);
    if (places == 0)
        return text;
    text += symbols.decimalSeparator;
    AppendDigits(text, number.FractionPart(places));
    return text;
}

} // namespace vornix
