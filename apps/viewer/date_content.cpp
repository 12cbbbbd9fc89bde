#include "date_content.h"

#include <array>
#include <optional>
#include <utility>

namespace vornix::viewer {

namespace {

constexpr std::array<std::u16string_view, 12> MonthNames { u"JANUARY", u"FEBRUARY", u"MARCH", u"APRIL", u"MAY", u"JUNE",
    u"JULY", u"AUGUST", u"SEPTEMBER", u"OCTOBER", u"NOVEMBER", u"DECEMBER" };

// Reads a text from left to right; a step that finds nothing leaves it as it was.
class Scanner {
public:
    explicit Scanner(std::u16string_view text)
        : rest_(text)
    {
    }

    bool IsAtEnd() const { return rest_.empty(); }
    std::size_t Length() const { return rest_.size(); }
    bool Take(char16_t unit)
    {
        if (!rest_.starts_with(unit))
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    bool TakeWord(std::u16string_view word)
    {
        if (!rest_.starts_with(word))
            return false;
        rest_.remove_prefix(word.size());
        return true;
    }

    // A number of between `least` and `most` digits, and none behind it.
    std::optional<int> Number(std::size_t least, std::size_t most)
    {
        std::size_t digits = 0;
        int value = 0;
        for (; digits < rest_.size() && rest_[digits] >= u'0' && rest_[digits] <= u'9'; ++digits) {
            if (digits == most)
                return {};
            value = value * 10 + (rest_[digits] - u'0');
        }
        if (digits < least)
            return {};
        rest_.remove_prefix(digits);
        return value;
    }

    // The month, from 1, of a full English name or its first three letters.
    std::optional<int> MonthName()
    {
        for (int month = 1; month <= 12; ++month) {
            const std::u16string_view name = MonthNames[static_cast<std::size_t>(month - 1)];
            if (TakeWord(name) || TakeWord(name.substr(0, 3))) {
                Take(u'.');
                return month;
            }
        }
        return {};
    }

private:
    std::u16string_view rest_;
};

bool IsDate(int year, int month, int day)
{
    constexpr std::array<int, 12> lengths { 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
    if (year < 1 || month < 1 || month > 12 || day < 1)
        return false;
    const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return day <= lengths[static_cast<std::size_t>(month - 1)] + (month == 2 && isLeap ? 1 : 0);
}

// What was read, piece by piece.
struct Parts {
    int year = 0;
    int month = 0;
    int day = 0;
    bool isIso = false;
    bool isSwappable = false; // day and month may each be the other
    std::optional<DayOrder> order; // of those that can be in two, the only one that gives a date
    std::int64_t seconds = 0; // of the time
    int nanoseconds = 0;
};

int WholeYear(int lastDigits)
{
    return lastDigits < 70 ? 2000 + lastDigits : 1900 + lastDigits;
}

bool SetDate(Parts& parts, int year, int month, int day)
{
    parts.year = year;
    parts.month = month;
    parts.day = day;
    return IsDate(year, month, day);
}

// 2024-03-05, 2024/3/5, 2024.3.5
bool TakeYearFirst(Scanner& scanner, Parts& parts)
{
    const auto year = scanner.Number(4, 4);
    if (!year)
        return false;
    parts.isIso = scanner.Take(u'-');
    const char16_t mark = parts.isIso ? u'-' : scanner.Take(u'/') ? u'/' : u'.';
    if (!parts.isIso && mark == u'.' && !scanner.Take(u'.'))
        return false;
    const auto month = scanner.Number(1, 2);
    if (!month || !scanner.Take(mark))
        return false;
    const auto day = scanner.Number(1, 2);
    return day && SetDate(parts, *year, *month, *day);
}

// 5.3.2024, 3/5/2024, 5-3-2024, 5/3/24
bool TakeYearLast(Scanner& scanner, Parts& parts)
{
    const auto first = scanner.Number(1, 2);
    if (!first)
        return false;
    const char16_t mark = scanner.Take(u'.') ? u'.' : scanner.Take(u'/') ? u'/' : u'-';
    if (mark == u'-' && !scanner.Take(u'-'))
        return false;
    const auto second = scanner.Number(1, 2);
    if (!second || !scanner.Take(mark))
        return false;
    auto year = scanner.Number(4, 4);
    if (!year && mark != u'-') {
        year = scanner.Number(2, 2);
        year = year ? std::optional(WholeYear(*year)) : year;
    }
    if (!year)
        return false;
    const bool monthCanBeFirst = mark != u'.' && IsDate(*year, *first, *second);
    const bool dayCanBeFirst = IsDate(*year, *second, *first);
    parts.isSwappable = dayCanBeFirst && monthCanBeFirst;
    if (mark != u'.' && dayCanBeFirst != monthCanBeFirst)
        parts.order = dayCanBeFirst ? DayOrder::DayFirst : DayOrder::MonthFirst;
    SetDate(parts, *year, dayCanBeFirst ? *second : *first, dayCanBeFirst ? *first : *second);
    return dayCanBeFirst || monthCanBeFirst;
}

bool TakeGap(Scanner& scanner)
{
    const bool hasComma = scanner.Take(u',');
    return scanner.Take(u' ') || scanner.Take(u'-') || hasComma;
}

// 5 Mar 2024, 5-MAR-2024
bool TakeDayThenName(Scanner& scanner, Parts& parts)
{
    const auto day = scanner.Number(1, 2);
    scanner.Take(u'.');
    if (!day || !TakeGap(scanner))
        return false;
    const auto month = scanner.MonthName();
    if (!month || !TakeGap(scanner))
        return false;
    const auto year = scanner.Number(4, 4);
    return year && SetDate(parts, *year, *month, *day);
}

// Mar 5, 2024
bool TakeNameThenDay(Scanner& scanner, Parts& parts)
{
    const auto month = scanner.MonthName();
    if (!month || !TakeGap(scanner))
        return false;
    const auto day = scanner.Number(1, 2);
    if (!day || !TakeGap(scanner))
        return false;
    const auto year = scanner.Number(4, 4);
    return year && SetDate(parts, *year, *month, *day);
}

bool TakeDate(Scanner& scanner, Parts& parts)
{
    const Scanner start = scanner;
    for (const auto take : { TakeYearFirst, TakeYearLast, TakeDayThenName, TakeNameThenDay }) {
        scanner = start;
        parts = {};
        if (take(scanner, parts))
            return true;
    }
    return false;
}

// Z, +01:00, -0330
bool TakeZone(Scanner& scanner, Parts& parts)
{
    if (scanner.Take(u'Z'))
        return true;
    const bool isAhead = scanner.Take(u'+');
    if (!isAhead && !scanner.Take(u'-'))
        return true;
    const auto set = [&](int hours, int minutes) {
        parts.seconds -= (hours * 60 + minutes) * 60 * (isAhead ? 1 : -1);
        return hours <= 14 && minutes < 60;
    };
    const auto joined = scanner.Number(4, 4);
    if (joined)
        return set(*joined / 100, *joined % 100);
    const auto hours = scanner.Number(2, 2);
    if (!hours)
        return false;
    if (!scanner.Take(u':'))
        return set(*hours, 0);
    const auto minutes = scanner.Number(2, 2);
    return minutes && set(*hours, *minutes);
}

// Of a second, behind the point.
bool TakeFraction(Scanner& scanner, Parts& parts)
{
    constexpr int digits = 9;
    const std::size_t before = scanner.Length();
    const auto fraction = scanner.Number(1, digits);
    if (!fraction)
        return false;
    parts.nanoseconds = *fraction;
    for (std::size_t taken = before - scanner.Length(); taken < digits; ++taken)
        parts.nanoseconds *= 10;
    return true;
}

bool TakeTime(Scanner& scanner, Parts& parts)
{
    const auto hour = scanner.Number(1, 2);
    if (!hour || *hour > 24 || !scanner.Take(u':'))
        return false;
    const auto minute = scanner.Number(2, 2);
    if (!minute || *minute > 59)
        return false;
    parts.seconds = (*hour * 60 + *minute) * 60;
    if (scanner.Take(u':')) {
        const auto second = scanner.Number(2, 2);
        if (!second || *second > 60)
            return false;
        parts.seconds += *second;
        if (scanner.Take(u'.') && !TakeFraction(scanner, parts))
            return false;
    }
    scanner.Take(u' ');
    const bool isMorning = scanner.TakeWord(u"AM");
    if (!isMorning && !scanner.TakeWord(u"PM"))
        return TakeZone(scanner, parts);
    parts.seconds += (isMorning ? 0 : 12 * 3600) - (*hour == 12 ? 12 * 3600 : 0);
    return *hour >= 1 && *hour <= 12;
}

enum class Writing { None, Date, DateAndTime };

Writing Read(std::u16string_view text, Parts& parts)
{
    Scanner scanner(text);
    if (!TakeDate(scanner, parts))
        return Writing::None;
    if (scanner.IsAtEnd())
        return Writing::Date;
    if (!scanner.Take(u'T')) {
        scanner.Take(u',');
        if (!scanner.Take(u' '))
            return Writing::None;
    }
    return TakeTime(scanner, parts) && scanner.IsAtEnd() ? Writing::DateAndTime : Writing::None;
}

// From the first day of the year 1 on.
std::int64_t DaysUpTo(int year, int month, int day)
{
    constexpr std::array<int, 12> before { 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334 };
    const std::int64_t years = year - 1;
    const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return years * 365 + years / 4 - years / 100 + years / 400 + before[static_cast<std::size_t>(month - 1)]
        + (month > 2 && isLeap ? 1 : 0) + day - 1;
}

} // namespace

Content DateContentOf(std::u16string_view text)
{
    Parts parts;
    const Writing writing = Read(text, parts);
    if (writing == Writing::None)
        return 0;
    const Content iso = parts.isIso ? Content(IsoDate) : 0;
    return DateAndTime | iso | (writing == Writing::Date ? Content(DateOnly) : 0);
}

std::optional<Moment> MomentIn(std::u16string_view text, DayOrder order)
{
    Parts parts;
    if (Read(text, parts) == Writing::None)
        return {};
    if (parts.isSwappable && order == DayOrder::MonthFirst)
        std::swap(parts.month, parts.day);
    constexpr std::int64_t secondsOfDay = 24 * 3600;
    return Moment { DaysUpTo(parts.year, parts.month, parts.day) * secondsOfDay + parts.seconds, parts.nanoseconds,
        parts.order };
}

} // namespace vornix::viewer
