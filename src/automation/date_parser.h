// Reads a text as a date, a time of day, or both.
#pragma once

#include "vornix/platform/locale.h"

#include <optional>
#include <string_view>

namespace vornix {

// Nothing when the text is no date. A date without a year is one of `currentYear`, by default that of the clock.
std::optional<double> ParseDate(
    std::u16string_view text, const Locale& locale, std::optional<int> currentYear = std::nullopt);

// Of the local clock.
int CurrentYear();

} // namespace vornix
