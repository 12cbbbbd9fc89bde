// A place as toolkits tell it, in whole pixels. Pixels are 16 bits; what lies beyond them is only far away. Error 6 for a
// place that is no number.
#pragma once

#include "automation/checked.h"

#include <algorithm>
#include <limits>

namespace vornix {

inline i16 PixelAt(float place)
{
    constexpr float lowest = std::numeric_limits<i16>::min();
    constexpr float highest = std::numeric_limits<i16>::max();
    return RoundToI16(std::clamp(place, lowest, highest));
}

inline Point PixelAt(float x, float y)
{
    return { PixelAt(x), PixelAt(y) };
}

} // namespace vornix
