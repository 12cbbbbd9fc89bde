// The colours that a container lends to the control, by system colour index.
#pragma once

#include "vornix/types.h"

#include <array>

namespace vornix {

namespace SystemColor {
inline constexpr int ScrollBar = 0;
inline constexpr int Window = 5;
inline constexpr int WindowFrame = 6;
inline constexpr int WindowText = 8;
inline constexpr int Highlight = 13;
inline constexpr int HighlightText = 14;
inline constexpr int ButtonFace = 15;
inline constexpr int ButtonShadow = 16;
inline constexpr int GrayText = 17;
inline constexpr int ButtonText = 18;
inline constexpr int ButtonHighlight = 20;
inline constexpr int DarkShadow = 21;
inline constexpr int Light = 22;
} // namespace SystemColor

// 0x80000000 + index: what a host writes to follow the system.
constexpr OleColor SystemOleColor(int index)
{
    return 0x80000000u | static_cast<OleColor>(index);
}

// A new table holds the colours of the container without a screen.
struct SystemColors {
    std::array<ColorRef, 32> values {
        0xC8C8C8, 0x000000, 0xD1B499, 0xDBCDBF, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000, // 0: scroll bar
        0x000000, 0x000000, 0xB4B4B4, 0xFCF7F4, 0xABABAB, 0xD77800, 0xFFFFFF, 0xF0F0F0, // 8: window text
        0xA0A0A0, 0x6D6D6D, 0x000000, 0x000000, 0xFFFFFF, 0x696969, 0xE3E3E3, 0x000000, // 16: button shadow
        0xE1FFFF, 0x000000, 0xCC6600, 0xEAD1B9, 0xF2E4D7, 0xD77800, 0xF0F0F0, 0x000000, // 24: tool tip
    };

    friend bool operator==(const SystemColors&, const SystemColors&) = default;
};

} // namespace vornix
