#include "automation/format_patterns.h"

#include "automation/date_fields.h"
#include "automation/date_parser.h"
#include "automation/date_pattern.h"
#include "automation/date_picture.h"
#include "automation/number_pattern.h"
#include "automation/pattern_text.h"
#include "automation/text_conversions.h"
#include "automation/text_pattern.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace vornix {

namespace {

enum class PatternKind { Number, Date, Text };

// The first unit that means something decides; a pattern of literals alone is one for numbers.
PatternKind KindOf(std::u16string_view pattern)
{
    std::u16string skipped;
    TextCursor cursor(pattern);
    while (!cursor.AtEnd()) {
        if (TakeLiteral(cursor, skipped))
            continue;
        const char16_t unit = cursor.Peek();
        if (unit == u'0' || unit == u'#' || unit == u'%')
            return PatternKind::Number;
        if (std::u16string_view(u"@&<>!").find(unit) != std::u16string_view::npos)
            return PatternKind::Text;
        if (DateTokenLength(cursor.Rest()) > 0)
            return PatternKind::Date;
        cursor.Advance();
    }
    return PatternKind::Number;
}

std::optional<double> NumberOf(std::u16string_view text, const Locale& locale)
{
    if (!IsNumeric(text, locale))
        return std::nullopt;
    return TextToR8(text, locale);
}

// A text that reads as a date is that one, also where its separators could group digits; any other number is a day
// number.
std::optional<DateFields> DateOf(std::u16string_view text, const Locale& locale)
{
    std::optional<double> date = ParseDate(text, locale);
    if (!date)
        date = NumberOf(text, locale);
    if (!date || !IsDateInRange(*date))
        return std::nullopt;
    return SplitDate(*date);
}

// Texts without groups are general numbers already.
std::u16string GeneralNumber(std::u16string_view text, double value, const Locale& locale)
{
    const bool isGrouped = text.find(locale.Numbers().groupSeparator) != std::u16string_view::npos;
    return isGrouped ? NumberToText(value, locale) : std::u16string(text);
}

std::u16string MediumTime(const DateFields& fields, const Locale& locale)
{
    const DateSymbols& symbols = locale.Dates();
    const bool hasHalfDay = symbols.longTime.find(u't') != std::u16string::npos;
    return FormatDatePicture(fields, hasHalfDay ? u"hh:mm tt" : u"HH:mm", symbols);
}

struct NamedNumberFormat {
    std::u16string_view name;
    std::u16string (*format)(std::u16string_view text, double value, const Locale& locale);
};

struct NamedDateFormat {
    std::u16string_view name;
    std::u16string (*format)(const DateFields& fields, const Locale& locale);
};

constexpr NamedNumberFormat NamedNumberFormats[] = {
    { u"General Number", GeneralNumber },
    { u"Currency",
        [](std::u16string_view, double value, const Locale& locale) { return FormatCurrency(value, locale); } },
    { u"Fixed",
        [](std::u16string_view, double value, const Locale& locale) {
            return FormatNumberPattern(value, u"0.00", locale);
        } },
    { u"Standard",
        [](std::u16string_view, double value, const Locale& locale) {
            return FormatNumberPattern(value, u"#,##0.00", locale);
        } },
    { u"Percent",
        [](std::u16string_view, double value, const Locale& locale) {
            return FormatNumberPattern(value, u"0.00%", locale);
        } },
    { u"Scientific",
        [](std::u16string_view, double value, const Locale& locale) {
            return FormatNumberPattern(value, u"0.00E+00", locale);
        } },
    { u"Yes/No",
        [](std::u16string_view, double value, const Locale& locale) {
            return value != 0 ? locale.Words().yes : locale.Words().no;
        } },
    { u"True/False",
        [](std::u16string_view, double value, const Locale& locale) {
            return value != 0 ? locale.Words().trueWord : locale.Words().falseWord;
        } },
    { u"On/Off",
        [](std::u16string_view, double value, const Locale& locale) {
            return value != 0 ? locale.Words().on : locale.Words().off;
        } },
};

constexpr NamedDateFormat NamedDateFormats[] = {
    { u"General Date",
        [](const DateFields& fields, const Locale& locale) { return GeneralDateText(fields, locale.Dates()); } },
    { u"Long Date",
        [](const DateFields& fields, const Locale& locale) {
            return FormatDatePicture(fields, locale.Dates().longDate, locale.Dates());
        } },
    { u"Medium Date",
        [](const DateFields& fields, const Locale& locale) {
            return FormatDatePicture(fields, u"dd-MMM-yy", locale.Dates());
        } },
    { u"Short Date",
        [](const DateFields& fields, const Locale& locale) {
            return FormatDatePicture(fields, locale.Dates().shortDate, locale.Dates());
        } },
    { u"Long Time",
        [](const DateFields& fields, const Locale& locale) {
            return FormatDatePicture(fields, locale.Dates().longTime, locale.Dates());
        } },
    { u"Medium Time", MediumTime },
    { u"Short Time",
        [](const DateFields& fields, const Locale& locale) {
            return FormatDatePicture(fields, u"HH:mm", locale.Dates());
        } },
};

template <typename Format, std::size_t Count>
const Format* FindNamed(const Format (&formats)[Count], std::u16string_view name)
{
    const auto* found = std::find_if(std::begin(formats), std::end(formats),
        [&](const Format& format) { return EqualsNoCase(format.name, name, BuiltinLocale()); });
    return found != std::end(formats) ? found : nullptr;
}

} // namespace

std::u16string FormatText(std::u16string_view text, std::u16string_view pattern, const Locale& locale)
{
    if (const NamedNumberFormat* named = FindNamed(NamedNumberFormats, pattern)) {
        const std::optional<double> value = NumberOf(text, locale);
        return value ? named->format(text, *value, locale) : std::u16string(text);
    }
    if (const NamedDateFormat* named = FindNamed(NamedDateFormats, pattern)) {
        const std::optional<DateFields> date = DateOf(text, locale);
        return date ? named->format(*date, locale) : std::u16string(text);
    }
    if (pattern.empty())
        return std::u16string(text);

    switch (KindOf(pattern)) {
    case PatternKind::Text:
        return FormatTextPattern(text, pattern, locale);
    case PatternKind::Date: {
        const std::optional<DateFields> date = DateOf(text, locale);
        return date ? FormatDatePattern(*date, pattern, locale) : std::u16string(text);
    }
    default: {
        const std::optional<double> value = NumberOf(text, locale);
        return value ? FormatNumberPattern(*value, pattern, locale) : std::u16string(text);
    }
    }
}

} // namespace vornix
