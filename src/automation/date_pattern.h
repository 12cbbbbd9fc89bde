// Date patterns: c d w m q y h n s t in runs, AM/PM forms, separators and literals.
#pragma once

#include "automation/date_fields.h"
#include "vornix/platform/locale.h"

#include <string>
#include <string_view>

namespace vornix {

std::u16string FormatDatePattern(const DateFields& fields, std::u16string_view pattern, const Locale& locale);

// A run of units at the start of a text that a date pattern replaces by a date's part; 0 for none.
std::size_t DateTokenLength(std::u16string_view text);

} // namespace vornix
