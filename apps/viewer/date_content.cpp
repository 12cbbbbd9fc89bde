#include "date_content.h"

#include <array>
#include <optional>

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

// 2024-03-05, 2024/3/5, 2024.3.5
bool TakeYearFirst(Scanner& scanner, bool& isIso)
{
    const auto year = scanner.Number(4, 4);
    if (!year)
        return false;
    isIso = scanner.Take(u'-');
    const char16_t mark = isIso ? u'-' : scanner.Take(u'/') ? u'/' : u'.';
    if (!isIso && mark == u'.' && !scanner.Take(u'.'))
        return false;
    const auto month = scanner.Number(1, 2);
    if (!month || !scanner.Take(mark))
        return false;
    const auto day = scanner.Number(1, 2);
    return day && IsDate(*year, *month, *day);
}

// 5.3.2024, 3/5/2024, 5-3-2024, 5/3/24
bool TakeYearLast(Scanner& scanner)
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
    if (!year && mark != u'-')
        year = scanner.Number(2, 2);
    if (!year)
        return false;
    const bool monthCanBeFirst = mark != u'.' && IsDate(*year, *first, *second);
    return IsDate(*year, *second, *first) || monthCanBeFirst;
}

bool TakeGap(Scanner& scanner)
{
    const bool hasComma = scanner.Take(u',');
    return scanner.Take(u' ') || scanner.Take(u'-') || hasComma;
}

// 5 Mar 2024, 5-MAR-2024
bool TakeDayThenName(Scanner& scanner)
{
    const auto day = scanner.Number(1, 2);
    scanner.Take(u'.');
    if (!day || !TakeGap(scanner))
        return false;
    const auto month = scanner.MonthName();
    if (!month || !TakeGap(scanner))
        return false;
    const auto year = scanner.Number(4, 4);
    return year && IsDate(*year, *month, *day);
}

// Mar 5, 2024
bool TakeNameThenDay(Scanner& scanner)
{
    const auto month = scanner.MonthName();
    if (!month || !TakeGap(scanner))
        return false;
    const auto day = scanner.Number(1, 2);
    if (!day || !TakeGap(scanner))
        return false;
    const auto year = scanner.Number(4, 4);
    return year && IsDate(*year, *month, *day);
}

bool TakeDate(Scanner& scanner, bool& isIso)
{
    const Scanner start = scanner;
    if (TakeYearFirst(scanner, isIso))
        return true;
    isIso = false;
    for (const auto take : { TakeYearLast, TakeDayThenName, TakeNameThenDay }) {
        scanner = start;
        if (take(scanner))
            return true;
    }
    return false;
}

// Z, +01:00, -0330
bool TakeZone(Scanner& scanner)
{
    if (scanner.Take(u'Z'))
        return true;
    if (!scanner.Take(u'+') && !scanner.Take(u'-'))
        return true;
    const auto joined = scanner.Number(4, 4);
    if (joined)
        return *joined / 100 <= 14 && *joined % 100 < 60;
    const auto hours = scanner.Number(2, 2);
    if (!hours || *hours > 14)
        return false;
    if (!scanner.Take(u':'))
        return true;
    const auto minutes = scanner.Number(2, 2);
    return minutes && *minutes < 60;
}

bool TakeTime(Scanner& scanner)
{
    const auto hour = scanner.Number(1, 2);
    if (!hour || *hour > 24 || !scanner.Take(u':'))
        return false;
    const auto minute = scanner.Number(2, 2);
    if (!minute || *minute > 59)
        return false;
    if (scanner.Take(u':')) {
        const auto second = scanner.Number(2, 2);
        if (!second || *second > 60)
            return false;
        if (scanner.Take(u'.') && !scanner.Number(1, 9))
            return false;
    }
    scanner.Take(u' ');
    if (scanner.TakeWord(u"AM") || scanner.TakeWord(u"PM"))
        return *hour >= 1 && *hour <= 12;
    return TakeZone(scanner);
}

} // namespace

Content DateContentOf(std::u16string_view text)
{
    Scanner scanner(text);
    bool isIso = false;
    if (!TakeDate(scanner, isIso))
        return 0;
    const Content iso = isIso ? Content(IsoDate) : 0;
    if (scanner.IsAtEnd())
        return DateOnly | DateAndTime | iso;
    if (!scanner.Take(u'T')) {
        scanner.Take(u',');
        if (!scanner.Take(u' '))
            return 0;
    }
    return TakeTime(scanner) && scanner.IsAtEnd() ? DateAndTime | iso : 0;
}

} // namespace vornix::viewer
