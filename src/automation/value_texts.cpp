// Texts out of values.
#include "automation/checked.h"
#include "automation/date_fields.h"
#include "automation/date_picture.h"
#include "automation/text_conversions.h"

#include <charconv>
#include <cmath>
#include <iterator>

namespace vornix {

namespace {

std::u16string FloatText(double value, int significantDigits, const Locale& locale)
{
    if (std::isnan(value))
        return u"-1.#IND";
    if (std::isinf(value))
        return value < 0 ? u"-1.#INF" : u"1.#INF";
    if (value == 0)
        return u"0";

    char buffer[40];
    const auto [end, error]
        = std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::general, significantDigits);
    const NumberSymbols& symbols = locale.Numbers();
    std::u16string text = value < 0 ? symbols.negativeSign : std::u16string();
    for (const char* unit = buffer + (value < 0); unit != end; ++unit) {
        if (*unit == '.')
            text += symbols.decimalSeparator;
        else
            text += *unit == 'e' ? u'E' : static_cast<char16_t>(*unit);
    }
    return text;
}

} // namespace

std::u16string NumberToText(double value, const Locale& locale)
{
    return FloatText(value, 15, locale);
}

std::u16string SingleToText(float value, const Locale& locale)
{
    return FloatText(static_cast<double>(value), 7, locale);
}

std::u16string DateToText(double value, const Locale& locale)
{
    if (!IsDateInRange(value))
        RaiseError(ErrorNumber::Overflow);
    return GeneralDateText(SplitDate(value), locale.Dates());
}

std::u16string BoolToText(bool value)
{
    return value ? u"True" : u"False";
}

} // namespace vornix
