// Keys, shift states and buttons, in the platform's numbering.
#pragma once

namespace vornix {

namespace Keys {
constexpr int Backspace = 8;
constexpr int Enter = 13;
constexpr int Escape = 27;
constexpr int Space = 32;
constexpr int PageUp = 33;
constexpr int PageDown = 34;
constexpr int End = 35;
constexpr int Home = 36;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
constexpr int Insert = 45;
constexpr int Delete = 46;
constexpr int F2 = 113;
} // namespace Keys

// Sums stand for keys held together.
namespace Shifts {
constexpr int None = 0;
constexpr int Shift = 1;
constexpr int Ctrl = 2;
constexpr int Alt = 4;
} // namespace Shifts

namespace Buttons {
constexpr int None = 0;
constexpr int Left = 1;
constexpr int Right = 2;
} // namespace Buttons

} // namespace vornix
