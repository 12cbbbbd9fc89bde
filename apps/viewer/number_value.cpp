#include "number_value.h"

#include "blanks.h"

#include <algorithm>
#include <array>

namespace vornix::viewer {

namespace {

constexpr std::u16string_view CurrencySigns = u"$€£¥₹₽₩₪₺฿";
constexpr std::size_t CodeLength = 3; // EUR, USD
constexpr int LargestExponent = 9999;

bool IsDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

bool IsLetter(char16_t unit)
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

std::u16string_view Trimmed(std::u16string_view text)
{
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == std::u16string_view::npos ? std::u16string_view()
                                              : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

bool IsCurrencyCode(std::u16string_view text)
{
    return text.size() == CodeLength && std::all_of(text.begin(), text.end(), IsLetter);
}

std::u16string_view WithoutCurrency(std::u16string_view text)
{
    if (!text.empty() && CurrencySigns.find(text.front()) != std::u16string_view::npos)
        return Trimmed(text.substr(1));
    if (!text.empty() && CurrencySigns.find(text.back()) != std::u16string_view::npos)
        return Trimmed(text.substr(0, text.size() - 1));
    if (text.size() > CodeLength && IsCurrencyCode(text.substr(0, CodeLength)))
        return Trimmed(text.substr(CodeLength));
    if (text.size() > CodeLength && IsCurrencyCode(text.substr(text.size() - CodeLength)))
        return Trimmed(text.substr(0, text.size() - CodeLength));
    return text;
}

bool TakeSign(std::u16string_view& text)
{
    const bool isNegative = text.starts_with(u'-') || text.starts_with(u'\u2212');
    if (isNegative || text.starts_with(u'+'))
        text = Trimmed(text.substr(1));
    return isNegative;
}

// What stands behind the E; nothing when that is no number.
std::optional<int> ExponentIn(std::u16string_view text)
{
    const bool isNegative = TakeSign(text);
    if (text.empty() || !std::all_of(text.begin(), text.end(), IsDigit))
        return {};
    int value = 0;
    for (const char16_t unit : text)
        value = std::min(value * 10 + (unit - u'0'), LargestExponent);
    return isNegative ? -value : value;
}

// Digits with at most one decimal mark, and others between them that only group.
std::optional<DecimalNumber> PlainNumberIn(std::u16string_view text, DecimalMark mark)
{
    const char16_t decimal = mark == DecimalMark::Point ? u'.' : u',';
    constexpr std::u16string_view groups = u".,'\u2019";
    DecimalNumber number;
    bool hasMark = false;
    bool hasDigits = false;
    for (const char16_t unit : text) {
        if (IsDigit(unit)) {
            hasDigits = true;
            number.exponent += hasMark ? 0 : 1;
            number.digits += unit;
        } else if (unit == decimal && !hasMark) {
            hasMark = true;
        } else if (hasMark || (!IsSpace(unit) && groups.find(unit) == std::u16string_view::npos)) {
            return {};
        }
    }
    return hasDigits ? std::optional(number) : std::nullopt;
}

void Normalize(DecimalNumber& number)
{
    const std::size_t zeros = std::min(number.digits.find_first_not_of(u'0'), number.digits.size());
    number.digits.erase(0, zeros);
    number.exponent -= static_cast<int>(zeros);
    number.digits.erase(number.digits.find_last_not_of(u'0') + 1);
    if (number.digits.empty())
        number = {};
}

} // namespace

std::optional<DecimalNumber> NumberIn(std::u16string_view text, DecimalMark mark)
{
    text = Trimmed(text);
    const bool isBracketed = text.size() > 2 && text.front() == u'(' && text.back() == u')';
    if (isBracketed)
        text = Trimmed(text.substr(1, text.size() - 2));
    bool isNegative = TakeSign(text) || isBracketed;
    text = WithoutCurrency(text);
    isNegative = TakeSign(text) || isNegative;

    int exponent = 0;
    if (text.ends_with(u'%')) {
        text = Trimmed(text.substr(0, text.size() - 1));
        exponent = -2;
    } else if (const std::size_t place = text.find_first_of(u"eE"); place != std::u16string_view::npos) {
        const auto written = ExponentIn(text.substr(place + 1));
        if (!written)
            return {};
        exponent = *written;
        text = text.substr(0, place);
    }
    auto number = PlainNumberIn(text, mark);
    if (!number)
        return {};
    number->isNegative = isNegative;
    number->exponent += exponent;
    Normalize(*number);
    return number;
}

} // namespace vornix::viewer
