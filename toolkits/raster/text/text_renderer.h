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
// edges take the text's extent: the widest line and the height of all lines, an empty text being one line high. Gives
// the height of the text in logical pixels, from the rectangle's top where DT_VCENTER or DT_BOTTOM place a single line.
//
// Of one line without a break at most 32,768 code units are measured and drawn. Fonts, shaped lines and glyphs are
// cached, bounded in size; the caches belong to the calling thread.
int DrawTextOnPixels(const PixelView& view, std::u16string_view text, Rect& rect, u32 format,
    const FontDescription& font, const TextColors& colors);

// What DrawTextOnPixels does with DT_CALCRECT, for texts that will not be drawn soon: their lines are not cached. Not for
// DT_TABSTOP, with which that flag is part of a number.
int MeasureTextAside(std::u16string_view text, Rect& rect, u32 format, const FontDescription& font);

// Logical pixels.
struct FontMetrics {
    int ascent = 0;
    int descent = 0;
    // Ascent and descent.
    int lineHeight = 0;
    // Added to the line height by DT_EXTERNALLEADING.
    int externalLeading = 0;
    // Of the usual characters; the unit of tabs.
    int averageWidth = 0;
};

FontMetrics MeasureFont(const FontDescription& font);

} // namespace vornix
