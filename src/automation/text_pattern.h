// Text patterns: places @ and &, case < and >, fill direction !.
#pragma once

#include "vornix/platform/locale.h"

#include <string>
#include <string_view>

namespace vornix {

// A second section, when there is one, is for the empty text.
std::u16string FormatTextPattern(std::u16string_view text, std::u16string_view pattern, const Locale& locale);

} // namespace vornix
