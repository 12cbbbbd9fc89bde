// Format patterns: number sections, date patterns, text patterns and the named formats.
#pragma once

#include "vornix/platform/locale.h"

#include <string>
#include <string_view>

namespace vornix {

// A numeric text is a number to number patterns; to date patterns a text that reads as a date is that date, and any
// other number a day number. Every other text comes back as it is, except through a text pattern. An empty pattern
// leaves it.
std::u16string FormatText(
    std::u16string_view text, std::u16string_view pattern, const Locale& locale = BuiltinLocale());

} // namespace vornix
