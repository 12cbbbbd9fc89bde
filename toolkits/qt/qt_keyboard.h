// What Qt tells of the keyboard, as the platform's notifications: KeyDown, KeyPress for each character, KeyUp.
#pragma once

#include "qt_key_codes.h"
#include "qt_setting.h"

class QKeyEvent;

namespace vornix {

class QtKeyboard {
public:
    explicit QtKeyboard(QtSetting& setting);

    // Accepted when the grid uses the key, or a handler has set its code to 0; the form gets all others. A key that is
    // held repeats its press alone.
    void Press(QKeyEvent& event);
    void Release(QKeyEvent& event);

private:
    bool TellCharacters(const QKeyEvent& event, i16 key);

    QtSetting& setting_;
    NativeKeys native_;
};

} // namespace vornix
