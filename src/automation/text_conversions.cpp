#include "automation/text_conversions.h"

#include "automation/checked.h"
#include "automation/date_parser.h"
#include "automation/decimal_value.h"
#include "automation/numeric_parser.h"
#include "automation/text_cursor.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace vornix {

namespace {

ParsedNumber ParseNumberOrRaise(std::u16string_view text, const Locale& locale)
{
    std::optional<ParsedNumber> number = ParseNumber(text, locale);
    if (!number)
        RaiseError(ErrorNumber::TypeMismatch);
    return std::move(*number);
}

// Saturates far outside the range of a double.
int ExponentOf(const std::string& digits)
{
    constexpr int farOut = 1'000'000'000;
    const std::size_t mark = digits.find('e');
    if (mark == std::string::npos)
        return 0;
    int exponent = 0;
    const auto [rest, error] = std::from_chars(digits.data() + mark + 1, digits.data() + digits.size(), exponent);
    if (error == std::errc::result_out_of_range)
        return digits[mark + 1] == '-' ? -farOut : farOut;
    return std::clamp(exponent, -farOut, farOut);
}

// Of a number out of the range of a double: does it lie near zero? Otherwise it is too large.
bool IsTiny(const std::string& digits)
{
    const std::size_t firstDigit = digits.find_first_of("123456789");
    const std::size_t mark = std::min(digits.find('e'), digits.size());
    if (firstDigit >= mark)
        return true;
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), mark));
    return point - static_cast<std::int64_t>(firstDigit) + ExponentOf(digits) <= 0;
}

// Nothing for a number that is too large.
std::optional<double> MagnitudeOf(const ParsedNumber& number)
{
    if (number.kind == ParsedNumber::Kind::Bits)
        return static_cast<double>(number.bits);
    double value = 0;
    const char* end = number.digits.data() + number.digits.size();
    const auto [rest, error] = std::from_chars(number.digits.data(), end, value);
    if (error != std::errc::result_out_of_range)
        return value;
    return IsTiny(number.digits) ? std::optional(0.0) : std::nullopt;
}

std::optional<double> ValueOf(const ParsedNumber& number)
{
    const std::optional<double> magnitude = MagnitudeOf(number);
    return magnitude && number.isNegative ? -*magnitude : magnitude;
}

DecimalDigits DigitsOf(const ParsedNumber& number)
{
    DecimalDigits result;
    result.isNegative = number.isNegative;
    if (number.kind == ParsedNumber::Kind::Bits) {
        result.digits = std::to_string(number.bits);
        result.point = static_cast<int>(result.digits.size());
    } else {
        result.digits = number.digits.substr(0, number.digits.find('e'));
        const std::size_t point = std::min(result.digits.find('.'), result.digits.size());
        result.digits.erase(point, 1);
        result.point = static_cast<int>(point) + ExponentOf(number.digits);
    }
    result.TrimZeros();
    return result;
}

// Hexadecimal and octal texts are bit patterns: they fill the type up to its sign.
template <typename Signed, typename Unsigned> Signed PatternOf(const ParsedNumber& number)
{
    if (number.bits > std::numeric_limits<Unsigned>::max())
        RaiseError(ErrorNumber::Overflow);
    const auto value = static_cast<Signed>(static_cast<Unsigned>(number.bits));
    if (!number.isNegative)
        return value;
    if (value == std::numeric_limits<Signed>::min())
        RaiseError(ErrorNumber::Overflow);
    return static_cast<Signed>(-value);
}

} // namespace

bool IsNumeric(std::u16string_view text, const Locale& locale)
{
    return NumberIn(text, locale).has_value();
}

std::optional<double> NumberIn(std::u16string_view text, const Locale& locale)
{
    const std::optional<ParsedNumber> number = ParseNumber(text, locale);
    return number ? ValueOf(*number) : std::nullopt;
}

bool IsDate(std::u16string_view text, const Locale& locale)
{
    return ParseDate(text, locale).has_value();
}

i16 TextToI2(std::u16string_view text, const Locale& locale)
{
    const ParsedNumber number = ParseNumberOrRaise(text, locale);
    if (number.kind == ParsedNumber::Kind::Bits)
        return PatternOf<i16, u16>(number);
    return ToI16(ToScaledInteger(DigitsOf(number), 0));
}

i32 TextToI4(std::u16string_view text, const Locale& locale)
{
    const ParsedNumber number = ParseNumberOrRaise(text, locale);
    if (number.kind == ParsedNumber::Kind::Bits)
        return PatternOf<i32, u32>(number);
    return ToI32(ToScaledInteger(DigitsOf(number), 0));
}

std::int64_t TextToI8(std::u16string_view text, const Locale& locale)
{
    const ParsedNumber number = ParseNumberOrRaise(text, locale);
    if (number.kind == ParsedNumber::Kind::Bits)
        return PatternOf<std::int64_t, std::uint64_t>(number);
    return ToScaledInteger(DigitsOf(number), 0);
}

std::int64_t TextToCurrency(std::u16string_view text, const Locale& locale)
{
    return ToScaledInteger(DigitsOf(ParseNumberOrRaise(text, locale)), 4);
}

DecimalValue TextToDecimal(std::u16string_view text, const Locale& locale)
{
    return ToDecimalValue(DigitsOf(ParseNumberOrRaise(text, locale)));
}

double TextToR8(std::u16string_view text, const Locale& locale)
{
    const std::optional<double> value = ValueOf(ParseNumberOrRaise(text, locale));
    if (!value)
        RaiseError(ErrorNumber::Overflow);
    return *value;
}

bool TextToBool(std::u16string_view text, const Locale& locale)
{
    const LocaleWords& words = locale.Words();
    for (const std::u16string_view word : { std::u16string_view(words.trueWord), { u"True" }, { u"#TRUE#" } })
        if (EqualsNoCase(text, word, locale))
            return true;
    for (const std::u16string_view word : { std::u16string_view(words.falseWord), { u"False" }, { u"#FALSE#" } })
        if (EqualsNoCase(text, word, locale))
            return false;
    return TextToR8(text, locale) != 0;
}

bool IsTrueText(std::u16string_view text, const Locale& locale)
{
    if (text.empty())
        return false;
    try {
        return TextToBool(text, locale);
    } catch (const AutomationError&) {
        return false;
    }
}

double TextToDate(std::u16string_view text, const Locale& locale)
{
    const std::optional<double> date = ParseDate(text, locale);
    if (!date)
        RaiseError(ErrorNumber::TypeMismatch);
    return *date;
}

} // namespace vornix
