// Keys of any layout by the platform's codes.
#pragma once

#include "vornix/types.h"

#include <string>

class QKeyEvent;

namespace vornix {

// What the native numbers in Qt's key events mean.
enum class NativeKeys {
    Unknown,
    // nativeScanCode is the place of the key on the keyboard, as X and Wayland count them.
    Places,
    // nativeVirtualKey is the platform's own code.
    Codes,
};
NativeKeys NativeKeysOfPlatform();

// Letters by the letter where it is Latin, other keys by what they are on a US keyboard at their place. What is text but
// no key that is known has the code 231; 0 for what is neither.
i16 KeyCodeOf(const QKeyEvent& event, NativeKeys native);

// The characters that come of a key with this code, as the platform sends them: none with Alt; with Ctrl, letters give 1
// to 26, Return 10, Back 127, Escape and Space themselves, and other keys nothing.
std::u16string CharactersOf(const QKeyEvent& event, i16 code);

} // namespace vornix
