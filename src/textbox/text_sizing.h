// The size of a box that follows its text, between a normal size and a greatest one. Pixels.
#pragma once

#include "vornix/platform/device.h"
#include "vornix/types.h"

#include <string_view>

namespace vornix {

struct SizeLimits {
    i16 NormalWidth = 0;
    i16 NormalHeight = 0;
    i16 MaxWidth = 0;
    i16 MaxHeight = 0;
    friend bool operator==(const SizeLimits&, const SizeLimits&) = default;
};

// What a box has around its text, both sides together.
inline constexpr int BoxMargin = 5;

struct TextExtent {
    int width = 0;
    int height = 0;
    // The text is higher than the greatest box.
    bool isCut = false;
    friend bool operator==(const TextExtent&, const TextExtent&) = default;
};

// The room that a text takes in a box, its margin not counted. Below 0 where a limit is narrower than the margin.
TextExtent MeasureBoxText(
    Device& device, const FontDescription& font, std::u16string_view text, const SizeLimits& limits);

} // namespace vornix
