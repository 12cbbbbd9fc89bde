#include "automation/date_picture.h"

#include <algorithm>

namespace vornix {

namespace {

std::size_t RunLength(std::u16string_view text)
{
    const std::size_t end = text.find_first_not_of(text.front());
    return end == std::u16string_view::npos ? text.size() : end;
}

std::u16string DayText(const DateFields& fields, std::size_t length, const DateSymbols& symbols)
{
    if (length <= 2)
        return DigitText(fields.day, static_cast<int>(length));
    return length == 3 ? symbols.dayAbbreviations[fields.weekday] : symbols.days[fields.weekday];
}

std::u16string MonthText(const DateFields& fields, std::size_t length, const DateSymbols& symbols)
{
    if (length <= 2)
        return DigitText(fields.month, static_cast<int>(length));
    return length == 3 ? symbols.monthAbbreviations[fields.month - 1] : symbols.months[fields.month - 1];
}

int HourOfHalfDay(int hour)
{
    return hour % 12 == 0 ? 12 : hour % 12;
}

// A letter that is no field of a picture stands for itself.
std::u16string FieldText(const DateFields& fields, char16_t letter, std::size_t length, const DateSymbols& symbols)
{
    const int width = static_cast<int>(std::min<std::size_t>(length, 2));
    switch (letter) {
    case u'd':
        return DayText(fields, length, symbols);
    case u'M':
        return MonthText(fields, length, symbols);
    case u'y':
        return length <= 2 ? DigitText(fields.year % 100, width) : DigitText(fields.year, 4);
    case u'h':
        return DigitText(HourOfHalfDay(fields.hour), width);
    case u'H':
        return DigitText(fields.hour, width);
    case u'm':
        return DigitText(fields.minute, width);
    case u's':
        return DigitText(fields.second, width);
    case u't': {
        const std::u16string& half = fields.hour < 12 ? symbols.am : symbols.pm;
        return length == 1 ? half.substr(0, 1) : half;
    }
    default:
        return std::u16string(length, letter);
    }
}

} // namespace

std::u16string DigitText(int value, int width)
{
    std::u16string text;
    for (; value > 0 || width > 0; value /= 10, --width)
        text += static_cast<char16_t>(u'0' + value % 10);
    std::reverse(text.begin(), text.end());
    return text;
}

std::u16string FormatDatePicture(const DateFields& fields, std::u16string_view picture, const DateSymbols& symbols)
{
    std::u16string text;
    while (!picture.empty()) {
        const char16_t unit = picture.front();
        std::size_t length = 1;
        if (unit == u'\'') {
            const std::size_t end = std::min(picture.find(u'\'', 1), picture.size());
            text += picture.substr(1, end - 1);
            length = std::min(end + 1, picture.size());
        } else if (unit == u'/') {
            text += symbols.dateSeparator;
        } else if (unit == u':') {
            text += symbols.timeSeparator;
        } else {
            length = RunLength(picture);
            text += FieldText(fields, unit, length, symbols);
        }
        picture.remove_prefix(length);
    }
    return text;
}

std::u16string GeneralDateText(const DateFields& fields, const DateSymbols& symbols)
{
    if (!fields.HasDate())
        return FormatDatePicture(fields, symbols.longTime, symbols);
    std::u16string text = FormatDatePicture(fields, symbols.shortDate, symbols);
    if (fields.HasTime())
        text += u' ' + FormatDatePicture(fields, symbols.longTime, symbols);
    return text;
}

std::u16string WithoutSeconds(std::u16string_view timePicture)
{
    const std::size_t first = timePicture.find(u's');
    if (first == std::u16string_view::npos)
        return std::u16string(timePicture);
    const std::size_t end = std::min(timePicture.find_first_not_of(u's', first), timePicture.size());
    const std::size_t start = first > 0 ? first - 1 : first;
    return std::u16string(timePicture.substr(0, start)) + std::u16string(timePicture.substr(end));
}

} // namespace vornix
