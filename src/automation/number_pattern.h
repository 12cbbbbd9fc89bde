// Number patterns: up to three sections (positive, negative, zero) of digit places and literals.
#pragma once

#include "vornix/platform/locale.h"

#include <string>
#include <string_view>

namespace vornix {

// The value is finite.
std::u16string FormatNumberPattern(double value, std::u16string_view pattern, const Locale& locale);

// In the currency customs of the locale.
std::u16string FormatCurrency(double value, const Locale& locale);

} // namespace vornix
