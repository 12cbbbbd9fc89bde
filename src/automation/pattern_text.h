// What all format patterns have in common: sections, quoted and escaped literals.
#pragma once

#include "automation/text_cursor.h"

#include <string>
#include <string_view>
#include <vector>

namespace vornix {

// Appends a quoted text or an escaped unit and says so; leaves anything else.
bool TakeLiteral(TextCursor& cursor, std::u16string& text);

// The parts between semicolons that are neither quoted nor escaped; always at least one.
std::vector<std::u16string_view> SplitSections(std::u16string_view pattern);

} // namespace vornix
