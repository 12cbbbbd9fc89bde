// Edits of a format that every width of write shares: one cell, a line, a rectangle, a template. Colours and fonts are
// worked out once, when the edit is made.
#pragma once

#include "model/format_table.h"
#include "vornix/platform/system_colors.h"

namespace vornix {

// The back colour with the gradient colours and shades that follow from it.
FormatEdit BackColorEdit(OleColor color, const SystemColors& colors);
FormatEdit GradientEndEdit(OleColor color, const SystemColors& colors);
// A check box is centred too.
FormatEdit ModeEdit(i32 mode);
// Error 5 without a font.
FormatEdit FontEdit(const FontPtr& font);
FormatEdit TextAlignmentEdit(i32 value, i32 commonFlags);

} // namespace vornix
