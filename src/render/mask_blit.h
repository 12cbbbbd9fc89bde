// Bitmaps with one transparent colour.
#pragma once

#include "vornix/platform/device.h"

namespace vornix {

// Draws the bitmap's first `size` pixels at `place`, leaving out what has the transparent colour. A device without
// transparent copies gets the same by masks; a selected bitmap then shows through a dither.
void MaskBlit(Device& device, Point place, Size size, Surface& bitmap, ColorRef transparent, bool selected);

} // namespace vornix
