// The case-insensitive order of texts.
#pragma once

#include "vornix/platform/locale.h"

#include <string_view>

namespace vornix {

// -1, 0 or 1 in the word order of the locale.
int CompareTextNoCase(std::u16string_view a, std::u16string_view b, const Locale& locale = BuiltinLocale());

} // namespace vornix
