// A table of system colours as a dark desktop has it.
#pragma once

#include "vornix/platform/system_colors.h"

#include <cmath>

namespace vornix::viewer {

inline SystemColors DarkColors()
{
    SystemColors colors;
    const auto set = [&](int index, ColorRef color) { colors.values[static_cast<std::size_t>(index)] = color; };
    set(SystemColor::Window, 0x1E1E1E);
    set(SystemColor::WindowText, 0xE6E6E6);
    set(SystemColor::ButtonFace, 0x353535);
    set(SystemColor::ButtonText, 0xE6E6E6);
    set(SystemColor::ButtonShadow, 0x202020);
    set(SystemColor::ButtonHighlight, 0x505050);
    set(SystemColor::GrayText, 0x808080);
    set(SystemColor::Highlight, 0xDA822A);
    set(SystemColor::HighlightText, 0xFFFFFF);
    return colors;
}

// As WCAG has it, 1 to 21.
inline double Contrast(ColorRef first, ColorRef second)
{
    const auto luminance = [](ColorRef color) {
        const auto part = [&](int shift) {
            const double value = (color >> shift & 0xFF) / 255.0;
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
    };
    const double a = luminance(first) + 0.05;
    const double b = luminance(second) + 0.05;
    return a > b ? a / b : b / a;
}

} // namespace vornix::viewer
