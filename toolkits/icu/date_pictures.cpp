#include "date_pictures.h"

#include <algorithm>

namespace vornix {

namespace {

bool IsPatternLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

std::size_t RunLength(std::u16string_view text)
{
    return std::min(text.find_first_not_of(text.front()), text.size());
}

// A field of the locale data as one of a picture; empty for one that pictures do not have.
std::u16string ToPictureField(char16_t letter, std::size_t length)
{
    const std::size_t shortOrWide = std::min<std::size_t>(length, 2);
    switch (letter) {
    case u'd':
        return std::u16string(shortOrWide, u'd');
    case u'E':
    case u'c':
    case u'e':
        return length <= 3 ? u"ddd" : u"dddd";
    case u'M':
    case u'L':
        return std::u16string(length > 4 ? 3 : length, u'M');
    case u'y':
    case u'u':
        return length == 2 ? u"yy" : u"yyyy";
    case u'h':
    case u'K':
        return std::u16string(shortOrWide, u'h');
    case u'H':
    case u'k':
        return std::u16string(shortOrWide, u'H');
    case u'm':
    case u's':
        return std::u16string(shortOrWide, letter);
    case u'a':
    case u'b':
    case u'B':
        return u"tt";
    default:
        return {};
    }
}

// The length of a quoted text with its quotes.
std::size_t QuotedLength(std::u16string_view text)
{
    const std::size_t end = text.find(u'\'', 1);
    return end == std::u16string_view::npos ? text.size() : end + 1;
}

} // namespace

std::u16string ToDatePicture(std::u16string_view pattern)
{
    std::u16string picture;
    while (!pattern.empty()) {
        const char16_t unit = pattern.front();
        std::size_t length = 1;
        if (unit == u'\'') {
            length = QuotedLength(pattern);
            picture += pattern.substr(0, length);
        } else if (IsPatternLetter(unit)) {
            length = RunLength(pattern);
            picture += ToPictureField(unit, length);
        } else {
            picture += unit;
        }
        pattern.remove_prefix(length);
    }
    const std::size_t first = picture.find_first_not_of(u' ');
    return first == std::u16string::npos ? std::u16string() : picture.substr(first);
}

std::u16string WithFullYears(std::u16string_view picture)
{
    std::u16string result;
    while (!picture.empty()) {
        const char16_t unit = picture.front();
        const std::size_t length = unit == u'\'' ? QuotedLength(picture) : RunLength(picture);
        result += unit == u'y' ? std::u16string_view(u"yyyy") : picture.substr(0, length);
        picture.remove_prefix(length);
    }
    return result;
}

DateOrder OrderOf(std::u16string_view picture)
{
    const std::size_t day = picture.find(u'd');
    const std::size_t month = picture.find(u'M');
    const std::size_t year = picture.find(u'y');
    if (year < month && year < day)
        return DateOrder::YearMonthDay;
    return day < month ? DateOrder::DayMonthYear : DateOrder::MonthDayYear;
}

std::u16string SeparatorOf(std::u16string_view picture, std::u16string_view fallback)
{
    const std::size_t field = std::min(
        static_cast<std::size_t>(std::find_if(picture.begin(), picture.end(), IsPatternLetter) - picture.begin()),
        picture.size());
    picture.remove_prefix(field);
    if (picture.empty())
        return std::u16string(fallback);
    picture.remove_prefix(RunLength(picture));
    picture.remove_prefix(std::min(picture.find_first_not_of(u' '), picture.size()));
    const bool isSign
        = !picture.empty() && picture.front() < 0x80 && picture.front() != u'\'' && !IsPatternLetter(picture.front());
    return isSign ? std::u16string(1, picture.front()) : std::u16string(fallback);
}

std::u16string WithoutDirectionMarks(std::u16string_view text)
{
    std::u16string result;
    for (const char16_t unit : text)
        if (unit != 0x200E && unit != 0x200F && unit != 0x061C)
            result += unit == 0x202F ? u' ' : unit;
    return result;
}

} // namespace vornix
