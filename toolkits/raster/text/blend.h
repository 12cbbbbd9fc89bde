// The innermost loops: a colour through coverage, premultiplied pictures, sums of coverage. Targets are opaque.
#pragma once

#include "vornix/types.h"

namespace vornix {

// Each pixel goes towards the colour (0xFFRRGGBB) by its coverage: 0 leaves it, 255 is the colour.
void BlendCoverage(u32* target, const u8* coverage, int count, u32 color);

// Premultiplied 0xAARRGGBB over the target.
void BlendColors(u32* target, const u32* source, int count);

// Sums that stay within a byte; the count is a multiple of 8.
void AddCoverage(u8* target, const u8* source, int count);

} // namespace vornix
