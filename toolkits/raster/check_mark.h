// The tick of a check box.
#pragma once

#include "pixel_view.h"
#include "vornix/types.h"

namespace vornix {

// Draws the tick of a check box that fills `box` (device pixels). In a box of 13 pixels it is a fixed bitmap, in any
// other size the same shape with smoothed edges.
void DrawCheckMark(const PixelView& view, const Rect& box, u32 pixel);

} // namespace vornix
