#include "number_content.h"

#include <algorithm>
#include <array>

namespace vornix::viewer {

namespace {

constexpr std::size_t MaxDigits = 18;
constexpr std::u16string_view CurrencySigns = u"$€£¥₹₽₩₪₺฿";
constexpr std::array<std::u16string_view, 12> CurrencyCodes {
    u"USD",
    u"EUR",
    u"GBP",
    u"JPY",
    u"CHF",
    u"CNY",
    u"INR",
    u"CAD",
    u"AUD",
    u"SEK",
    u"NOK",
    u"DKK",
};

bool IsDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

void TrimBlanks(std::u16string_view& text)
{
    while (!text.empty() && text.front() == u' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == u' ')
        text.remove_suffix(1);
}

bool TakeSign(std::u16string_view& text)
{
    if (text.empty() || (text.front() != u'-' && text.front() != u'+'))
        return false;
    text.remove_prefix(1);
    return true;
}

bool TakeCurrencySign(std::u16string_view& text)
{
    if (!text.empty() && CurrencySigns.find(text.front()) != std::u16string_view::npos) {
        text.remove_prefix(1);
        return true;
    }
    if (!text.empty() && CurrencySigns.find(text.back()) != std::u16string_view::npos) {
        text.remove_suffix(1);
        return true;
    }
    return false;
}

bool TakeCurrencyCode(std::u16string_view& text)
{
    for (const std::u16string_view code : CurrencyCodes) {
        if (text.starts_with(code)) {
            text.remove_prefix(code.size());
            return true;
        }
        if (text.ends_with(code)) {
            text.remove_suffix(code.size());
            return true;
        }
    }
    return false;
}

// Digits, in groups of three behind the first when a grouping character is used. -1 when it is no such number.
int CountGroupedDigits(std::u16string_view text, std::u16string_view groupingMarks)
{
    const auto isMark = [&](char16_t unit) { return groupingMarks.find(unit) != std::u16string_view::npos; };
    const auto firstMark = std::find_if(text.begin(), text.end(), isMark);
    const bool isGrouped = firstMark != text.end();
    const char16_t mark = isGrouped ? *firstMark : u'\0';
    int digits = 0;
    int groupLength = 0;
    bool isFirstGroup = true;
    for (const char16_t unit : text) {
        if (IsDigit(unit)) {
            ++digits;
            ++groupLength;
            continue;
        }
        const bool isWholeGroup = isFirstGroup ? groupLength >= 1 && groupLength <= 3 : groupLength == 3;
        if (unit != mark || !isWholeGroup)
            return -1;
        groupLength = 0;
        isFirstGroup = false;
    }
    return digits > 0 && (!isGrouped || groupLength == 3) ? digits : -1;
}

bool IsExponent(std::u16string_view text)
{
    TakeSign(text);
    return !text.empty() && text.size() <= 3 && std::all_of(text.begin(), text.end(), IsDigit);
}

enum class Writing { None, Integer, Real };

// `text` has no sign and no currency any more.
Writing WritingOf(std::u16string_view text, char16_t decimalMark, std::u16string_view groupingMarks)
{
    bool isReal = false;
    if (const auto exponent = text.find(u'E'); exponent != std::u16string_view::npos) {
        if (!IsExponent(text.substr(exponent + 1)))
            return Writing::None;
        text = text.substr(0, exponent);
        isReal = true;
    } else if (text.ends_with(u'%')) {
        text.remove_suffix(1);
        TrimBlanks(text);
        isReal = true;
    }

    const auto mark = text.find(decimalMark);
    const std::u16string_view whole = text.substr(0, mark);
    const bool hasDecimals = mark != std::u16string_view::npos;
    const std::u16string_view decimals = hasDecimals ? text.substr(mark + 1) : std::u16string_view();
    if (!std::all_of(decimals.begin(), decimals.end(), IsDigit) || (hasDecimals && decimals.empty()))
        return Writing::None;
    const bool isCode = whole.size() > 1 && whole.front() == u'0';
    const bool startsWithMark = whole.empty() && hasDecimals;
    const int wholeDigits = startsWithMark ? 0 : CountGroupedDigits(whole, groupingMarks);
    if (isCode || wholeDigits < 0 || static_cast<std::size_t>(wholeDigits) + decimals.size() > MaxDigits)
        return Writing::None;
    return isReal || hasDecimals ? Writing::Real : Writing::Integer;
}

Content BitsOf(Writing writing, bool hasCurrency, Content integerBit, Content realBit, Content moneyBit)
{
    if (writing == Writing::None)
        return 0;
    if (hasCurrency)
        return moneyBit;
    return moneyBit | realBit | (writing == Writing::Integer ? integerBit : 0);
}

} // namespace

Content NumberContentOf(std::u16string_view text)
{
    // Bookkeepers put a negative amount in brackets.
    const bool isBracketed = text.size() > 2 && text.front() == u'(' && text.back() == u')';
    if (isBracketed)
        text = text.substr(1, text.size() - 2);
    const bool signFirst = TakeSign(text);
    const bool hasCurrency = TakeCurrencySign(text) || TakeCurrencyCode(text);
    TrimBlanks(text);
    const bool signSecond = TakeSign(text);
    if (text.empty() || (signFirst && signSecond) || (isBracketed && (signFirst || signSecond)))
        return 0;

    return BitsOf(WritingOf(text, u'.', u",' "), hasCurrency, IntegerWithPoint, RealWithPoint, MoneyWithPoint)
        | BitsOf(WritingOf(text, u',', u".' "), hasCurrency, IntegerWithComma, RealWithComma, MoneyWithComma);
}

} // namespace vornix::viewer
