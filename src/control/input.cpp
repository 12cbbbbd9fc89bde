// What happens to the control's window, on its way to the host.
#include "control/control.h"

namespace vornix {

void Vornix::MouseDown(i16 Button, i16 Shift, float x, float y)
{
    Enter()->events.MouseDown(Button, Shift, x, y);
}

void Vornix::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    Enter()->events.MouseMove(Button, Shift, x, y);
}

void Vornix::MouseUp(i16 Button, i16 Shift, float x, float y)
{
    Enter()->events.MouseUp(Button, Shift, x, y);
}

void Vornix::Click()
{
    Enter()->events.Click();
}

void Vornix::DblClick()
{
    Enter()->events.DblClick();
}

void Vornix::KeyDown(i16& KeyCode, i16& Shift)
{
    const auto control = Enter();
    control->events.KeyDown(KeyCode, Shift);
    if (KeyCode != 0 && !control->IsClosed())
        control->keyboard.KeyDown(KeyCode, Shift);
}

void Vornix::KeyPress(i16& KeyAscii)
{
    Enter()->events.KeyPress(KeyAscii);
}

void Vornix::KeyUp(i16& KeyCode, i16& Shift)
{
    Enter()->events.KeyUp(KeyCode, Shift);
}

void Vornix::ScrollBarNotify(ChildName Bar, i32 Code)
{
    Enter()->scrolling.Notify(Bar, Code);
}

void Vornix::MouseWheel(i32 Delta)
{
    Enter()->scrolling.Wheel(Delta);
}

} // namespace vornix
