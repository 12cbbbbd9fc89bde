// Values out of texts, and texts out of values, as the automation interface converts them.
// A text that has no such value is error 13, a value out of range error 6.
#pragma once

#include "vornix/automation.h"
#include "vornix/platform/locale.h"
#include "vornix/types.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vornix {

bool IsNumeric(std::u16string_view text, const Locale& locale = BuiltinLocale());
// The value of a text that is numeric; nothing for another one.
std::optional<double> NumberIn(std::u16string_view text, const Locale& locale = BuiltinLocale());
bool IsDate(std::u16string_view text, const Locale& locale = BuiltinLocale());

// Fractions go to the nearest integer, ties to the even one. Hexadecimal and octal texts fill the bits of the type:
// "&HFFFF" is -1 in 16 bits and 65535 in 32.
i16 TextToI2(std::u16string_view text, const Locale& locale = BuiltinLocale());
i32 TextToI4(std::u16string_view text, const Locale& locale = BuiltinLocale());
std::int64_t TextToI8(std::u16string_view text, const Locale& locale = BuiltinLocale());
// By the digits as they stand, not by the nearest float. Ten-thousandths, and up to 28 places, ties to the even digit.
std::int64_t TextToCurrency(std::u16string_view text, const Locale& locale = BuiltinLocale());
DecimalValue TextToDecimal(std::u16string_view text, const Locale& locale = BuiltinLocale());
double TextToR8(std::u16string_view text, const Locale& locale = BuiltinLocale());

// The words for true and false, "#TRUE#", "#FALSE#", and every number.
bool TextToBool(std::u16string_view text, const Locale& locale = BuiltinLocale());
// The same where a text that is no truth value counts as false.
bool IsTrueText(std::u16string_view text, const Locale& locale = BuiltinLocale());

// Days since 30 December 1899, the time of day as the fraction (which counts away from zero).
double TextToDate(std::u16string_view text, const Locale& locale = BuiltinLocale());

// Up to 15 significant digits; an exponent below 1E-04 and from 1E+15 on.
std::u16string NumberToText(double value, const Locale& locale = BuiltinLocale());
// Up to 7 significant digits.
std::u16string SingleToText(float value, const Locale& locale = BuiltinLocale());
// The short date, the time of day when there is one, or the time alone on day 0. Error 6 outside the years 100 to 9999.
std::u16string DateToText(double value, const Locale& locale = BuiltinLocale());
// "True" or "False", in every locale.
std::u16string BoolToText(bool value);

} // namespace vornix
