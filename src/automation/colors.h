// Colour arithmetic: host colours to drawing colours, and the shades derived from them.
#pragma once

#include "vornix/platform/system_colors.h"
#include "vornix/types.h"

namespace vornix {

// A system colour by its entry in the table, any other by its three channels; black for an index out of the table.
ColorRef OleTranslateColor(OleColor color, const SystemColors& table);

// Luminance moved toward white (n > 0) or black (n < 0) by n thousandths; 0 leaves the colour as it is.
ColorRef ColorAdjustLuma(ColorRef color, int n);

// Each channel moved toward white (percent > 0) or black (percent < 0); -100 to 100.
ColorRef ColorBrightness(ColorRef color, int percent);

// Hue, luminance and saturation, each 0 to 240.
struct HueLumaSaturation {
    int hue = 0;
    int luma = 0;
    int saturation = 0;
    friend bool operator==(const HueLumaSaturation&, const HueLumaSaturation&) = default;
};

HueLumaSaturation ToHueLumaSaturation(ColorRef color);
ColorRef FromHueLumaSaturation(const HueLumaSaturation& color);

} // namespace vornix
