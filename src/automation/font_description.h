// Fonts of hosts, in points, as devices take them, in pixels.
#pragma once

#include "vornix/platform/device.h"
#include "vornix/types.h"

namespace vornix {

// Twips in a logical pixel.
inline constexpr int TwipsPerLogicalPixel = 15;

// A font's height for Device::SelectFont: points as negative pixels, halves away from zero; -1 without twips. At most a
// million.
int FontHeight(double points, int twipsPerPixelY);

FontDescription Described(const FontObject& font, int twipsPerPixelY = TwipsPerLogicalPixel);

} // namespace vornix
