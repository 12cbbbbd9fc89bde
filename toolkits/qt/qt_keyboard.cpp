#include "qt_keyboard.h"

#include "qt_pointer.h"

#include <QKeyEvent>

namespace vornix {

namespace {

enum Codes { Space = 32, End = 35, Home, Left, Up, Right, Down, F2 = 113 };
enum ShiftStates { None = 0, Shift = 1, Ctrl = 2 };

bool IsArrow(i16 code)
{
    return code >= Left && code <= Down;
}

// Keys that the grid does something with, or would if it were elsewhere in the table.
bool IsOfGrid(i16 code, i16 shift)
{
    switch (shift) {
    case None:
        return (code >= Space && code <= Down) || code == F2;
    case Shift:
        return IsArrow(code);
    case Ctrl:
        return code == Home || code == End || code == Up || code == Down;
    default:
        return false;
    }
}

} // namespace

QtKeyboard::QtKeyboard(QtSetting& setting)
    : setting_(setting)
    , native_(NativeKeysOfPlatform())
{
}

void QtKeyboard::Press(QKeyEvent& event)
{
    const i16 key = KeyCodeOf(event, native_);
    if (key == 0)
        return event.ignore();
    const bool hadFocus = setting_.widget.hasFocus();
    i16 code = key;
    i16 shift = ShiftSum(event.modifiers());
    setting_.grid.Tell([&](Vornix& grid) { grid.KeyDown(code, shift); });
    bool isTaken = code == 0;
    // The characters go to whom a handler has given the focus, and that is Qt's business.
    const bool keptFocus = !hadFocus || setting_.widget.hasFocus();
    if (!isTaken && keptFocus)
        isTaken = TellCharacters(event, key);
    event.setAccepted(isTaken || IsOfGrid(code, shift));
}

// Whether a handler has taken one.
bool QtKeyboard::TellCharacters(const QKeyEvent& event, i16 key)
{
    bool isTaken = false;
    for (const char16_t unit : CharactersOf(event, key)) {
        i16 character = static_cast<i16>(unit);
        setting_.grid.Tell([&](Vornix& grid) { grid.KeyPress(character); });
        isTaken = isTaken || character == 0;
    }
    return isTaken;
}

void QtKeyboard::Release(QKeyEvent& event)
{
    const i16 key = event.isAutoRepeat() ? i16 { 0 } : KeyCodeOf(event, native_);
    if (key == 0)
        return event.ignore();
    i16 code = key;
    i16 shift = ShiftSum(event.modifiers());
    setting_.grid.Tell([&](Vornix& grid) { grid.KeyUp(code, shift); });
    event.setAccepted(code == 0 || IsOfGrid(code, shift));
}

} // namespace vornix
