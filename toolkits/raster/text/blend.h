// The innermost loops: a colour through coverage, premultiplied pictures, sums of coverage. Targets are opaque.
#pragma once

#include "vornix/types.h"

#include <cstddef>

namespace vornix {

// A block of coverage, one byte a pixel; `stride` in bytes. Up to 8 bytes behind each row may be read, not used.
struct CoverageBlock {
    const u8* bytes = nullptr;
    std::ptrdiff_t stride = 0;
    int width = 0;
    int height = 0;
};

// Each pixel goes towards the colour (0xFFRRGGBB) by its coverage: 0 leaves it, 255 is the colour. `stride` in pixels.
void BlendCoverage(u32* target, std::ptrdiff_t stride, const CoverageBlock& coverage, u32 color);

// Premultiplied 0xAARRGGBB over the target.
void BlendColors(u32* target, const u32* source, int count);

// Sums that stay within a byte; the count is a multiple of 8.
void AddCoverage(u8* target, const u8* source, int count);

} // namespace vornix
