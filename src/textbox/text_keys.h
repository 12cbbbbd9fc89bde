// Keys, characters and shift states that the mask engine knows, in the platform's numbering.
#pragma once

#include "vornix/types.h"

namespace vornix::TextKeys {

constexpr i16 Backspace = 8;
constexpr i16 Enter = 13;
constexpr i16 Escape = 27;
constexpr i16 Left = 37;
constexpr i16 Up = 38;
constexpr i16 Right = 39;
constexpr i16 Down = 40;
constexpr i16 Delete = 46;

// Sums stand for keys held together.
constexpr int NoShift = 0;
constexpr int Shift = 1;
constexpr int Ctrl = 2;
constexpr int Alt = 4;

} // namespace vornix::TextKeys
