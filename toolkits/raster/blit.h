// Copies with an operation: raster operations, one transparent colour, blending.
#pragma once

#include "pixel_view.h"
#include "transfer.h"
#include "vornix/platform/device.h"

namespace vornix {

// Whether the result depends on the source.
bool NeedsSource(RasterOp operation);
bool IsKnown(RasterOp operation);

// An operation without a source, on device pixels. The pattern is white, as on every new device.
void FillWithOperation(const PixelView& target, const Rect& deviceRect, RasterOp operation);

// All of these behave as if the source were copied first where it lies in the same memory. False when memory is short.
// Bitwise on the three channels, the pattern being white.
bool CopyWithOperation(const PixelView& target, TransferMap map, const PixelView& source,
    const PixelConversion& conversion, RasterOp operation);
// Leaves out pixels of the colour `transparent`.
bool CopyTransparent(const PixelView& target, TransferMap map, const PixelView& source,
    const PixelConversion& conversion, u32 transparent);
// Each channel is (source * alpha + target * (255 - alpha)) / 255, rounded to the nearest.
bool CopyBlended(
    const PixelView& target, TransferMap map, const PixelView& source, const PixelConversion& conversion, int alpha);
// The same with the alpha of each source pixel, which is straight (not premultiplied).
bool CopyWithOwnAlpha(const PixelView& target, TransferMap map, const PixelView& source);

} // namespace vornix
