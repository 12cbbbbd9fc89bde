// Exact numbers: between digits, the 96 bits and the scale of a decimal, scaled integers, floats and texts.
#pragma once

#include "automation/decimal_digits.h"
#include "vornix/automation.h"

#include <cstdint>
#include <string>

namespace vornix {

inline constexpr int MaxDecimalScale = 28;

DecimalDigits DigitsOf(const DecimalValue& value);
// Of value / 10^scale.
DecimalDigits DigitsOf(std::int64_t value, int scale);

// With as many places as 96 bits and 28 places allow, ties to the even digit. Error 6 when the integer part is too wide.
DecimalValue ToDecimalValue(const DecimalDigits& number);
// number * 10^scale as an integer, ties to the even one; error 6 when it does not fit.
std::int64_t ToScaledInteger(DecimalDigits number, int scale);
// The nearest float.
double ToFloat64(const DecimalDigits& number);
float ToFloat32(const DecimalDigits& number);

// Every digit, no exponent, no grouping, no zeros at the end of the fraction.
std::u16string DigitsToText(const DecimalDigits& number, const Locale& locale);

} // namespace vornix
