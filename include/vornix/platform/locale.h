// The port to the customs of a place: how numbers, money, dates and words are written and how texts are ordered.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vornix {

struct NumberSymbols {
    std::u16string decimalSeparator = u".";
    std::u16string groupSeparator = u",";
    // Digits of the group next to the decimal separator, and of all groups left of it.
    int firstGroup = 3;
    int furtherGroups = 3;
    std::u16string negativeSign = u"-";
    std::u16string currencySymbol = u"$";
    // U+00A4 stands for the currency symbol, 'n' for the amount without its sign.
    std::u16string positiveCurrency = u"\u00A4n";
    std::u16string negativeCurrency = u"(\u00A4n)";
    int currencyDigits = 2;
};

enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

// Pictures are made of d dd ddd dddd M MM MMM MMMM yy yyyy h hh H HH m mm s ss tt; 'quoted' and other characters stand
// for themselves, '/' and ':' for the separators.
struct DateSymbols {
    DateOrder order = DateOrder::MonthDayYear;
    std::u16string dateSeparator = u"/";
    std::u16string timeSeparator = u":";
    std::u16string shortDate = u"M/d/yyyy";
    std::u16string longDate = u"dddd, MMMM d, yyyy";
    std::u16string longTime = u"h:mm:ss tt";
    std::u16string am = u"AM";
    std::u16string pm = u"PM";
    std::array<std::u16string, 12> months;
    std::array<std::u16string, 12> monthAbbreviations;
    // Sunday first.
    std::array<std::u16string, 7> days;
    std::array<std::u16string, 7> dayAbbreviations;
    // 0 is Sunday.
    int firstDayOfWeek = 0;
    // The last year that two digits can mean; the first one is 99 years earlier.
    int twoDigitYearMax = 2049;
};

struct LocaleWords {
    std::u16string trueWord = u"True";
    std::u16string falseWord = u"False";
    std::u16string yes = u"Yes";
    std::u16string no = u"No";
    std::u16string on = u"On";
    std::u16string off = u"Off";
};

class Locale {
public:
    virtual ~Locale() = default;

    virtual const NumberSymbols& Numbers() const = 0;
    virtual const DateSymbols& Dates() const = 0;
    virtual const LocaleWords& Words() const = 0;

    // Case of one code unit; a unit without a one-to-one counterpart stays.
    virtual char16_t ToLower(char16_t unit) const = 0;
    virtual char16_t ToUpper(char16_t unit) const = 0;

    // The order of words without regard to case: negative, 0 or positive. Hyphen and apostrophe decide only between
    // texts that are equal otherwise, so that "co-op" and "coop" stay together.
    virtual int CompareNoCase(std::u16string_view a, std::u16string_view b) const = 0;
};

// English (United States), always available.
const Locale& BuiltinLocale();

} // namespace vornix
