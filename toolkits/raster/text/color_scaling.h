// Colour pictures of glyphs, which come in one size, brought to the size of the text.
#pragma once

#include "vornix/types.h"

#include <cstddef>

namespace vornix {

// Premultiplied blue, green, red, alpha, a byte each; `pitch` in bytes.
struct ColorPixels {
    const u8* bytes = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t pitch = 0;
};

// Averages the area under each target pixel when it shrinks, goes over smoothly when it grows. The target is
// premultiplied 0xAARRGGBB, width * height.
void ScaleColors(const ColorPixels& source, u32* target, int width, int height);

} // namespace vornix
