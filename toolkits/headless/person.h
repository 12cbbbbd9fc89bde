// What a person does with pointer and keyboard, as the notifications that the platform makes of it.
//
// A press goes to the window on top at the place, and until the release all notifications of the pointer go to that
// window. The order of a click is MouseMove, MouseDown, MouseUp, Click, and the second press of a double click arrives
// as DblClick, with a MouseUp and no Click behind it. A click follows a release inside the window of the press, whatever
// lies above it by then. A key is KeyDown, KeyPress and KeyUp, each to the window that has the focus at that moment.
//
// When the control is closed or hidden on the way, the rest is not delivered, nor is anything to a hidden one, which
// does not get the focus either. A line break of two characters is typed with one Return. All begin with error 5 on a
// closed control.
#pragma once

#include "virtual_keys.h"
#include "window_stack.h"

#include <bitset>
#include <string_view>

namespace vornix {

class Person {
public:
    Person(HeadlessContainer& host, WindowStack& windows)
        : host_(host)
        , windows_(windows)
    {
    }

    void ClickAt(PointerPlace place, i16 button, i16 shift);
    void DblClickAt(PointerPlace place, i16 button, i16 shift);
    void Drag(PointerPlace from, PointerPlace to, i16 button, i16 shift, i32 steps);
    void Type(std::u16string_view text);
    void Press(std::string_view key, i16 shift);
    void Press(i16 code, i16 shift);

    // Whether a key or button is held down now.
    bool Holds(int code) const;

private:
    // Inside a handler a person may do something else: what was held goes on being held afterwards.
    struct Hands {
        std::bitset<256> held;
        bool isCaptured = false;
        InputWindow* capture = nullptr;
    };
    class Action;

    InputWindow* Under(PointerPlace place);
    void Move(PointerPlace place, i16 shift);
    InputWindow* BeginPress(PointerPlace place, i16 button);
    void Press(PointerPlace place, i16 button, i16 shift);
    bool Release(PointerPlace place, i16 button, i16 shift);
    void ReleaseAndClick(PointerPlace place, i16 button, i16 shift);
    void Strike(const KeyStroke& stroke);
    void RequireFocus();
    template <typename Notification> void Tell(InputWindow* window, const Notification& notification);

    HeadlessContainer& host_;
    WindowStack& windows_;
    Hands hands_;
};

} // namespace vornix
