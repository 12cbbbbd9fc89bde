// Text on pixels: fonts with fallback, shaping, both directions, and the layout rules of DrawText.
#pragma once

#include "pixel_view.h"
#include "vornix/platform/device.h"

#include <string_view>

namespace vornix {

struct TextColors {
    ColorRef text = 0;
    ColorRef background = 0xFFFFFF;
    BackgroundMode mode = BackgroundMode::Opaque;
};

// Lays the text out in the rectangle (logical pixels) by the DT_ flags and draws it, clipped to the rectangle unless
// DT_NOCLIP, at the resolution of the view. With DT_CALCRECT nothing is drawn and the rectangle's right and bottom
// edges take the text's extent. Gives the height of the text in logical pixels. Fonts, shaped lines and glyphs are
// cached, bounded in size; the caches belong to the calling thread.
int DrawTextOnPixels(const PixelView& view, std::u16string_view text, Rect& rect, u32 format, const FontDescription& font,
    const TextColors& colors);

} // namespace vornix
