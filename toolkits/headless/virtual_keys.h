// The keys of a US keyboard by the platform's codes.
#pragma once

#include "vornix/types.h"

#include <optional>
#include <string_view>

namespace vornix {

inline constexpr i16 ShiftDown = 1;
inline constexpr i16 CtrlDown = 2;
inline constexpr i16 AltDown = 4;

inline constexpr i16 ShiftKey = 16;
inline constexpr i16 CtrlKey = 17;
inline constexpr i16 AltKey = 18;

// A key that is struck, what is held with it, and the character that comes of it.
struct KeyStroke {
    i16 code = 0;
    i16 shift = 0;
    std::optional<i16> character;
};

// How a character is typed. Capitals and upper signs are typed with Shift; a line feed is the Return key; the other
// control characters up to 26 are letters with Ctrl. What no key gives arrives with the code 231, which stands for a
// character that was sent in place of a key.
KeyStroke StrokeFor(char16_t character);

// What comes of a key with these held: no character with Alt. With Ctrl, letters give 1 to 26, Return 10, Back 127,
// Escape and Space themselves, and other keys nothing.
KeyStroke StrokeOf(i16 code, i16 shift);

// The code of a key by its name, in any case: a letter or digit, "Left", "F2", "Numpad5", ... Error 5, with the names
// that there are, for any other.
i16 CodeOfKey(std::string_view name);

// The flag in shift that the key itself sets while it is down; 0 for keys that set none.
i16 ShiftFlagOf(i16 code);

} // namespace vornix
