#include "automation/date_pattern.h"

#include "automation/date_picture.h"
#include "automation/pattern_text.h"

#include <algorithm>
#include <iterator>

namespace vornix {

namespace {

char16_t AsciiLower(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

enum class Field {
    General,
    Day,
    DayWide,
    DayAbbreviation,
    DayName,
    ShortDate,
    LongDate,
    Weekday,
    Week,
    Month,
    MonthWide,
    MonthAbbreviation,
    MonthName,
    Quarter,
    DayOfYear,
    YearOfCentury,
    Year,
    Hour,
    HourWide,
    Minute,
    MinuteWide,
    Second,
    SecondWide,
    LongTime,
    HalfDayUpper,
    HalfDayLower,
    HalfDayInitialUpper,
    HalfDayInitialLower,
    HalfDayLocal
};

struct Token {
    std::u16string_view spelling;
    Field field;
    bool matchesCase = false;
};

// The longest spelling of each letter first.
constexpr Token Tokens[] = {
    { u"c", Field::General },
    { u"dddddd", Field::LongDate },
    { u"ddddd", Field::ShortDate },
    { u"dddd", Field::DayName },
    { u"ddd", Field::DayAbbreviation },
    { u"dd", Field::DayWide },
    { u"d", Field::Day },
    { u"ww", Field::Week },
    { u"w", Field::Weekday },
    { u"mmmm", Field::MonthName },
    { u"mmm", Field::MonthAbbreviation },
    { u"mm", Field::MonthWide },
    { u"m", Field::Month },
    { u"q", Field::Quarter },
    { u"yyyy", Field::Year },
    { u"yy", Field::YearOfCentury },
    { u"y", Field::DayOfYear },
    { u"hh", Field::HourWide },
    { u"h", Field::Hour },
    { u"nn", Field::MinuteWide },
    { u"n", Field::Minute },
    { u"ss", Field::SecondWide },
    { u"s", Field::Second },
    { u"ttttt", Field::LongTime },
    { u"AM/PM", Field::HalfDayUpper, true },
    { u"am/pm", Field::HalfDayLower, true },
    { u"AM/PM", Field::HalfDayUpper },
    { u"A/P", Field::HalfDayInitialUpper, true },
    { u"a/p", Field::HalfDayInitialLower, true },
    { u"A/P", Field::HalfDayInitialUpper },
    { u"AMPM", Field::HalfDayLocal },
};

bool StartsWith(std::u16string_view text, const Token& token)
{
    if (token.matchesCase)
        return text.starts_with(token.spelling);
    return text.size() >= token.spelling.size()
        && std::equal(token.spelling.begin(), token.spelling.end(), text.begin(),
            [](char16_t a, char16_t b) { return AsciiLower(a) == AsciiLower(b); });
}

const Token* FindToken(std::u16string_view text)
{
    const auto* found = std::find_if(
        std::begin(Tokens), std::end(Tokens), [&](const Token& token) { return StartsWith(text, token); });
    return found != std::end(Tokens) ? found : nullptr;
}

bool IsHalfDay(Field field)
{
    return field >= Field::HalfDayUpper;
}

// With a mark of the half day anywhere in the pattern, hours count to 12.
bool HasHalfDay(std::u16string_view pattern)
{
    std::u16string skipped;
    TextCursor cursor(pattern);
    while (!cursor.AtEnd()) {
        if (TakeLiteral(cursor, skipped))
            continue;
        const Token* token = FindToken(cursor.Rest());
        if (token != nullptr && IsHalfDay(token->field))
            return true;
        cursor.Advance(token != nullptr ? token->spelling.size() : 1);
    }
    return false;
}

// A month right behind an hour means the minute.
Field AsMinute(Field field)
{
    if (field == Field::Month)
        return Field::Minute;
    return field == Field::MonthWide ? Field::MinuteWide : field;
}

std::u16string_view HalfDayText(const DateFields& fields, Field field, const DateSymbols& symbols)
{
    const bool isMorning = fields.hour < 12;
    switch (field) {
    case Field::HalfDayUpper:
        return isMorning ? u"AM" : u"PM";
    case Field::HalfDayLower:
        return isMorning ? u"am" : u"pm";
    case Field::HalfDayInitialUpper:
        return isMorning ? u"A" : u"P";
    case Field::HalfDayInitialLower:
        return isMorning ? u"a" : u"p";
    default:
        return isMorning ? symbols.am : symbols.pm;
    }
}

// The picture of a field, where the locale has one for it.
std::u16string_view PictureOf(Field field, bool hasHalfDay, const DateSymbols& symbols)
{
    switch (field) {
    case Field::Day:
        return u"d";
    case Field::DayWide:
        return u"dd";
    case Field::DayAbbreviation:
        return u"ddd";
    case Field::DayName:
        return u"dddd";
    case Field::ShortDate:
        return symbols.shortDate;
    case Field::LongDate:
        return symbols.longDate;
    case Field::Month:
        return u"M";
    case Field::MonthWide:
        return u"MM";
    case Field::MonthAbbreviation:
        return u"MMM";
    case Field::MonthName:
        return u"MMMM";
    case Field::YearOfCentury:
        return u"yy";
    case Field::Year:
        return u"yyyy";
    case Field::Hour:
        return hasHalfDay ? u"h" : u"H";
    case Field::HourWide:
        return hasHalfDay ? u"hh" : u"HH";
    case Field::Minute:
        return u"m";
    case Field::MinuteWide:
        return u"mm";
    case Field::Second:
        return u"s";
    case Field::SecondWide:
        return u"ss";
    case Field::LongTime:
        return symbols.longTime;
    default:
        return {};
    }
}

std::u16string FieldText(const DateFields& fields, Field field, bool hasHalfDay, const DateSymbols& symbols)
{
    switch (field) {
    case Field::General:
        return GeneralDateText(fields, symbols);
    case Field::Weekday:
        return DigitText((fields.weekday - symbols.firstDayOfWeek + 7) % 7 + 1, 1);
    case Field::Week:
        return DigitText(WeekOfYear(fields, symbols.firstDayOfWeek), 1);
    case Field::Quarter:
        return DigitText((fields.month + 2) / 3, 1);
    case Field::DayOfYear:
        return DigitText(fields.dayOfYear, 1);
    default:
        if (IsHalfDay(field))
            return std::u16string(HalfDayText(fields, field, symbols));
        return FormatDatePicture(fields, PictureOf(field, hasHalfDay, symbols), symbols);
    }
}

} // namespace

std::size_t DateTokenLength(std::u16string_view text)
{
    const Token* token = FindToken(text);
    return token != nullptr ? token->spelling.size() : 0;
}

std::u16string FormatDatePattern(const DateFields& fields, std::u16string_view pattern, const Locale& locale)
{
    const DateSymbols& symbols = locale.Dates();
    const bool hasHalfDay = HasHalfDay(pattern);
    bool isBehindHour = false;
    std::u16string text;
    TextCursor cursor(pattern);
    while (!cursor.AtEnd()) {
        if (TakeLiteral(cursor, text))
            continue;
        if (const Token* token = FindToken(cursor.Rest())) {
            const Field field = isBehindHour ? AsMinute(token->field) : token->field;
            text += FieldText(fields, field, hasHalfDay, symbols);
            isBehindHour = field == Field::Hour || field == Field::HourWide;
            cursor.Advance(token->spelling.size());
        } else if (cursor.Take(u'/')) {
            text += symbols.dateSeparator;
        } else if (cursor.Take(u':')) {
            text += symbols.timeSeparator;
        } else {
            text += cursor.Peek();
            cursor.Advance();
        }
    }
    return text;
}

} // namespace vornix
