#include "automation/date_parser.h"

#include "automation/date_fields.h"
#include "automation/text_cursor.h"

#include <array>
#include <ctime>
#include <span>
#include <vector>

namespace vornix {

namespace {

constexpr int LongestNumber = 4;
constexpr char16_t NoSeparator = 0;

struct CalendarDate {
    int year = 0;
    int month = 0;
    int day = 1;
};

// What the numbers of a date may mean, each list in the order in which the readings are tried.
using Reading = std::string_view; // of 'y', 'm', 'd'

std::span<const Reading> ReadingsOfTwo(DateOrder order)
{
    static constexpr Reading monthFirst[] = { "md", "dm", "my", "ym" };
    static constexpr Reading dayFirst[] = { "dm", "md", "my", "ym" };
    static constexpr Reading yearFirst[] = { "md", "dm", "ym", "my" };
    switch (order) {
    case DateOrder::DayMonthYear:
        return dayFirst;
    case DateOrder::YearMonthDay:
        return yearFirst;
    default:
        return monthFirst;
    }
}

std::span<const Reading> ReadingsOfThree(DateOrder order)
{
    static constexpr Reading monthFirst[] = { "mdy", "dmy", "ymd" };
    static constexpr Reading dayFirst[] = { "dmy", "mdy", "ymd" };
    static constexpr Reading yearFirst[] = { "ymd", "mdy", "dmy" };
    switch (order) {
    case DateOrder::DayMonthYear:
        return dayFirst;
    case DateOrder::YearMonthDay:
        return yearFirst;
    default:
        return monthFirst;
    }
}

// For the numbers beside a month that is written as a word.
std::span<const Reading> ReadingsBesideMonth(std::size_t count)
{
    static constexpr Reading one[] = { "d", "y" };
    static constexpr Reading two[] = { "dy", "yd" };
    if (count == 1)
        return one;
    if (count == 2)
        return two;
    return {};
}

std::u16string_view WithoutTrailingBlanks(std::u16string_view text)
{
    while (!text.empty() && TextCursor::IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

class DateParser {
public:
    DateParser(std::u16string_view text, const Locale& locale, std::optional<int> currentYear)
        : cursor_(WithoutTrailingBlanks(text))
        , locale_(locale)
        , symbols_(locale.Dates())
        , currentYear_(currentYear)
    {
    }

    std::optional<double> Parse()
    {
        cursor_.SkipBlanks();
        if (cursor_.AtEnd() || !ReadItem())
            return std::nullopt;
        while (!cursor_.AtEnd()) {
            if (!ReadSeparator())
                return std::nullopt;
            if (!cursor_.AtEnd() && !ReadItem())
                return std::nullopt;
        }
        return Result();
    }

private:
    enum class Item { None, Number, Month, Time };

    // One number, month or time; false for anything else.
    bool ReadItem()
    {
        const bool isNumber = TextCursor::IsDigit(cursor_.Peek()) && !StartsNumberedMonth();
        if (isNumber ? !ReadNumberOrTime() : !ReadTimeBehindHalfOfDay() && !ReadMonth())
            return false;
        const bool besideTime = item_ == Item::Time || previousItem_ == Item::Time;
        const bool isDateSeparator = separator_ != NoSeparator && separator_ != u',';
        return !(besideTime && isDateSeparator);
    }

    void SetItem(Item item)
    {
        previousItem_ = item_;
        item_ = item;
    }

    // Blanks, or one separator between optional blanks. Numbers and month names may also touch.
    bool ReadSeparator()
    {
        separator_ = NoSeparator;
        const bool hasBlank = cursor_.SkipBlanks();
        const char16_t unit = cursor_.Peek();
        if (symbols_.dateSeparator == u"." && TakeOrdinalDot())
            return true;
        if (cursor_.TakeWord(symbols_.dateSeparator) || cursor_.Take(u'/') || cursor_.Take(u'-')
            || cursor_.Take(u',')) {
            separator_ = unit;
            cursor_.SkipBlanks();
            return !cursor_.AtEnd();
        }
        const bool atDigit = TextCursor::IsDigit(unit);
        return hasBlank || (item_ == Item::Number && !atDigit) || (item_ == Item::Month && atDigit);
    }

    // "3. April 2020", "2020. 4. 3.": a dot in front of a blank or the end parts like a blank.
    bool TakeOrdinalDot()
    {
        const std::u16string_view rest = cursor_.Rest();
        const bool isOrdinal
            = item_ == Item::Number && rest.starts_with(u'.') && (rest.size() == 1 || TextCursor::IsBlank(rest[1]));
        if (!isOrdinal)
            return false;
        cursor_.Advance();
        cursor_.SkipBlanks();
        return true;
    }

    // -1 for one that is too long.
    int ReadNumber()
    {
        int value = 0;
        int length = 0;
        for (; TextCursor::IsDigit(cursor_.Peek()); cursor_.Advance()) {
            if (++length > LongestNumber)
                return -1;
            value = value * 10 + (cursor_.Peek() - u'0');
        }
        return value;
    }

    bool ReadNumberOrTime()
    {
        const int number = ReadNumber();
        if (number < 0)
            return false;
        if (TakeTimeSeparator())
            return ReadTime(number);
        if (ReadHalfOfDay())
            return SetTime(number, 0, 0);
        numbers_.push_back(number);
        SetItem(Item::Number);
        return numbers_.size() <= 3;
    }

    // In some places the half of the day is said ahead of the time.
    bool ReadTimeBehindHalfOfDay()
    {
        const std::size_t half = symbols_.longTime.find(u't');
        if (half >= symbols_.longTime.find_first_of(u"hH") || !ReadHalfOfDay())
            return false;
        cursor_.SkipBlanks();
        const int hour = TextCursor::IsDigit(cursor_.Peek()) ? ReadNumber() : -1;
        return hour >= 0 && TakeTimeSeparator() && ReadTime(hour);
    }

    bool TakeTimeSeparator()
    {
        if (cursor_.Take(u':'))
            return true;
        return symbols_.timeSeparator != symbols_.dateSeparator && cursor_.TakeWord(symbols_.timeSeparator);
    }

    bool ReadTime(int hour)
    {
        if (!TextCursor::IsDigit(cursor_.Peek()))
            return false;
        const int minute = ReadNumber();
        int second = 0;
        if (TakeTimeSeparator()) {
            if (!TextCursor::IsDigit(cursor_.Peek()))
                return false;
            second = ReadNumber();
        }
        ReadHalfOfDay();
        return SetTime(hour, minute, second);
    }

    // The words for morning and afternoon, perhaps behind blanks, once.
    bool ReadHalfOfDay()
    {
        if (isMorning_ || isAfternoon_)
            return false;
        TextCursor ahead = cursor_;
        ahead.SkipBlanks();
        const auto takes = [&](std::u16string_view word) {
            TextCursor behind = ahead;
            if (!behind.TakeWordNoCase(word, locale_) || IsWordUnit(behind.Peek()))
                return false;
            cursor_ = behind;
            return true;
        };
        isMorning_ = takes(symbols_.am) || takes(u"AM") || takes(u"A");
        isAfternoon_ = !isMorning_ && (takes(symbols_.pm) || takes(u"PM") || takes(u"P"));
        return isMorning_ || isAfternoon_;
    }

    bool SetTime(int hour, int minute, int second)
    {
        if (secondOfDay_ || minute < 0 || minute > 59 || second < 0 || second > 59)
            return false;
        if (isMorning_ || isAfternoon_) {
            if (hour > 12)
                return false;
            hour = hour % 12 + (isAfternoon_ ? 12 : 0);
        }
        if (hour > 23)
            return false;
        secondOfDay_ = (hour * 60 + minute) * 60 + second;
        SetItem(Item::Time);
        return true;
    }

    static bool IsWordUnit(char16_t unit)
    {
        const bool isAsciiLetter = (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
        return isAsciiLetter || (unit >= 0x00C0 && unit != 0x202F);
    }

    // Some languages number their months and put a word behind.
    bool StartsNumberedMonth()
    {
        if (symbols_.months[0].empty() || !TextCursor::IsDigit(symbols_.months[0].front()) || month_ != 0)
            return false;
        DateParser ahead(*this);
        return ahead.ReadMonth();
    }

    // The longest name that stands here as a whole word.
    bool ReadMonth()
    {
        if (month_ != 0)
            return false;
        TextCursor behind = cursor_;
        for (int month = 0; month < 12; ++month) {
            for (const std::u16string_view name : { std::u16string_view(symbols_.months[month]),
                     std::u16string_view(symbols_.monthAbbreviations[month]) }) {
                TextCursor end = cursor_;
                const std::u16string_view stem = name.ends_with(u'.') ? name.substr(0, name.size() - 1) : name;
                if (!end.TakeWordNoCase(stem, locale_) || IsWordUnit(end.Peek()))
                    continue;
                if (stem.size() != name.size())
                    end.Take(u'.');
                if (end.Rest().size() < behind.Rest().size()) {
                    behind = end;
                    month_ = month + 1;
                }
            }
        }
        cursor_ = behind;
        SetItem(Item::Month);
        return month_ != 0;
    }

    int FullYear(int year) const
    {
        if (year > 99)
            return year;
        const int lastCentury = symbols_.twoDigitYearMax / 100 * 100;
        const int full = lastCentury + year;
        return full > symbols_.twoDigitYearMax ? full - 100 : full;
    }

    std::optional<double> Result() const
    {
        if (numbers_.empty())
            return secondOfDay_ && month_ == 0 ? std::optional(JoinDate(0, *secondOfDay_)) : std::nullopt;
        for (const Reading reading : Readings()) {
            const CalendarDate date = Read(reading);
            if (IsValidDate(date.year, date.month, date.day))
                return JoinDate(DayNumber(date.year, date.month, date.day), secondOfDay_.value_or(0));
        }
        return std::nullopt;
    }

    std::span<const Reading> Readings() const
    {
        if (month_ != 0)
            return ReadingsBesideMonth(numbers_.size());
        if (numbers_.size() == 2)
            return ReadingsOfTwo(symbols_.order);
        if (numbers_.size() == 3)
            return ReadingsOfThree(symbols_.order);
        return {};
    }

    // A date without a day is the first of its month.
    CalendarDate Read(Reading reading) const
    {
        CalendarDate date { 0, month_, 1 };
        // The clock is asked only where its answer counts.
        if (reading.find('y') == Reading::npos)
            date.year = currentYear_ ? *currentYear_ : CurrentYear();
        for (std::size_t i = 0; i < reading.size(); ++i) {
            if (reading[i] == 'y')
                date.year = FullYear(numbers_[i]);
            else if (reading[i] == 'm')
                date.month = numbers_[i];
            else
                date.day = numbers_[i];
        }
        return date;
    }

    TextCursor cursor_;
    const Locale& locale_;
    const DateSymbols& symbols_;
    std::optional<int> currentYear_;
    Item item_ = Item::None;
    Item previousItem_ = Item::None;
    char16_t separator_ = NoSeparator;
    std::vector<int> numbers_;
    int month_ = 0;
    bool isMorning_ = false;
    bool isAfternoon_ = false;
    std::optional<int> secondOfDay_;
};

// Not std::localtime, whose result all threads share.
std::tm LocalTime(std::time_t time)
{
    std::tm local {};
#ifdef _WIN32
    localtime_s(&local, &time);
#else
    localtime_r(&time, &local);
#endif
    return local;
}

} // namespace

std::optional<double> ParseDate(std::u16string_view text, const Locale& locale, std::optional<int> currentYear)
{
    return DateParser(text, locale, currentYear).Parse();
}

int CurrentYear()
{
    return LocalTime(std::time(nullptr)).tm_year + 1900;
}

} // namespace vornix
