#include "sort_key.h"

#include "blanks.h"
#include "cell_content.h"

#include <algorithm>
#include <array>

namespace vornix::viewer {

namespace {

// The first digit of each key.
enum class Class : char16_t { Negative = u'1', Zero = u'2', Positive = u'3', Text = u'4' };

std::u16string Beginning(Class of)
{
    return std::u16string(1, static_cast<char16_t>(of));
}

// With zeros in front.
std::u16string Digits(std::int64_t number, std::size_t count)
{
    std::u16string digits(count, u'0');
    for (std::size_t place = count; place > 0 && number > 0; number /= 10)
        digits[--place] = static_cast<char16_t>(u'0' + number % 10);
    return digits;
}

std::u16string KeyOfNumber(const DecimalNumber& number)
{
    constexpr int middle = 50'000; // of exponents
    constexpr std::size_t exponentDigits = 5;
    constexpr std::size_t mostDigits = 24;
    if (number.digits.empty())
        return Beginning(Class::Zero);
    std::u16string key = Digits(std::clamp(number.exponent + middle, 0, 2 * middle - 1), exponentDigits);
    key += number.digits.substr(0, mostDigits);
    key.resize(exponentDigits + mostDigits, u'0');
    if (!number.isNegative)
        return Beginning(Class::Positive) + key;
    for (char16_t& digit : key)
        digit = static_cast<char16_t>(u'9' - digit + u'0');
    return Beginning(Class::Negative) + key;
}

std::u16string KeyOfMoment(const Moment& moment)
{
    constexpr std::int64_t zones = 100'000; // seconds, so that none is negative
    return Beginning(Class::Positive) + Digits(moment.seconds + zones, 14) + Digits(moment.nanoseconds, 9);
}

} // namespace

bool SortKeyMaker::HasNumbers() const
{
    return kind_ == ColumnKind::Integer || kind_ == ColumnKind::Real || kind_ == ColumnKind::Money;
}

void SortKeyMaker::Add(std::u16string_view text)
{
    if (HasNumbers()) {
        const bool isInteger = kind_ == ColumnKind::Integer;
        const Content content = ContentOf(text);
        const bool fitsPoint = content & (isInteger ? IntegerWithPoint : MoneyWithPoint);
        const bool fitsComma = content & (isInteger ? IntegerWithComma : MoneyWithComma);
        points_ += fitsPoint && !fitsComma ? 1 : 0;
        commas_ += fitsComma && !fitsPoint ? 1 : 0;
    } else if (HasDates()) {
        const auto moment = MomentIn(NormalizedValue(text), DayOrder::DayFirst);
        if (moment && moment->order)
            ++(*moment->order == DayOrder::DayFirst ? daysFirst_ : monthsFirst_);
    }
}

DayOrder SortKeyMaker::Order() const
{
    return monthsFirst_ > daysFirst_ ? DayOrder::MonthFirst : DayOrder::DayFirst;
}

std::u16string SortKeyMaker::KeyOf(std::u16string_view text) const
{
    if (IsBlank(text))
        return {};
    if (HasNumbers()) {
        if (const auto number = NumberIn(text, Mark()))
            return KeyOfNumber(*number);
    } else if (HasDates()) {
        if (const auto moment = MomentIn(NormalizedValue(text), Order()))
            return KeyOfMoment(*moment);
    } else if (kind_ == ColumnKind::Boolean) {
        if (const auto value = text == u"-1" ? std::optional(true) : TruthValueOf(text)) // typed it may be a word
            return Beginning(*value ? Class::Positive : Class::Zero);
    }
    return Beginning(Class::Text) + std::u16string(text);
}

} // namespace vornix::viewer
