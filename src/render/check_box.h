// The check box of a cell: place and state.
#pragma once

#include "vornix/types.h"

namespace vornix {

// The box's rectangle in the cell. A bottom-aligned box sits cut off at the left edge.
Rect CheckBoxRect(i32 textAlignment, Size cell, int gridLineWidth);

// The state for DrawFrameControl.
u32 CheckBoxState(bool checked, bool disabled, i32 textAlignment);

} // namespace vornix
