// The keys of a US keyboard by the platform's codes.
#pragma once

#include "vornix/types.h"

#include <optional>
#include <string_view>
#include <vector>

namespace vornix {

inline constexpr i16 ShiftDown = 1;
inline constexpr i16 CtrlDown = 2;
inline constexpr i16 AltDown = 4;

inline constexpr i16 BackKey = 8;
inline constexpr i16 TabKey = 9;
inline constexpr i16 ReturnKey = 13;
inline constexpr i16 ShiftKey = 16;
inline constexpr i16 CtrlKey = 17;
inline constexpr i16 AltKey = 18;
inline constexpr i16 EscapeKey = 27;
inline constexpr i16 SpaceKey = 32;
inline constexpr i16 PageUpKey = 33;
inline constexpr i16 PageDownKey = 34;
inline constexpr i16 EndKey = 35;
inline constexpr i16 HomeKey = 36;
inline constexpr i16 LeftKey = 37;
inline constexpr i16 UpKey = 38;
inline constexpr i16 RightKey = 39;
inline constexpr i16 DownKey = 40;
inline constexpr i16 InsertKey = 45;
inline constexpr i16 DeleteKey = 46;
inline constexpr i16 F1Key = 112;
inline constexpr i16 F4Key = 115;
inline constexpr i16 LastKeyCode = 254;

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

// How a text is typed: as above, and a line break of two characters with one Return.
std::vector<KeyStroke> StrokesFor(std::u16string_view text);

// What comes of a key with these held: no character with Alt. With Ctrl, letters give 1 to 26, Return 10, Back 127,
// Escape and Space themselves, and other keys nothing.
KeyStroke StrokeOf(i16 code, i16 shift);

// A key, and what is held with it.
struct KeyChord {
    i16 code = 0;
    i16 shift = 0;
};

// A key by its name, in any case: "Left", "F2", "Numpad5", ... A letter, a digit or another sign of the keyboard names the
// key that it is on, with Shift for an upper sign; letters in any case go without. Error 5, with the names that there
// are, for any other.
KeyChord ChordOfKey(std::string_view name);

// As a person strikes a key while others are held. Error 5 for a key and for a sum of keys held that there is not.
KeyStroke CheckedStroke(i16 code, i16 shift);
KeyStroke CheckedStroke(std::string_view key, i16 shift);

// The code alone.
i16 CodeOfKey(std::string_view name);

// Error 5 for a code that is not 1 to 254, and for a sum of keys held that there is not.
void CheckKey(i16 code);
void CheckShift(i16 shift);

// The flag in shift that the key itself sets while it is down; 0 for keys that set none.
i16 ShiftFlagOf(i16 code);

} // namespace vornix
