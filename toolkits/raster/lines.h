// Lines with a square pen, in logical pixels.
#pragma once

#include "pixel_view.h"
#include "vornix/types.h"

namespace vornix {

// Draws from `from` to `to`, which is left out. A line covers, in each step along its longer axis, the pixel nearest to
// it; halfway between two, the upper or left one. A pen of width w covers around each of these pixels the square of w
// by w that begins w / 2 (truncated) left of and above it. Horizontal and vertical lines are equally thick everywhere. `logical` is the size of the view in logical pixels.
void DrawDeviceLine(const PixelView& view, Size logical, Point from, Point to, int width, u32 pixel);

} // namespace vornix
