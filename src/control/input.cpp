// What happens to the control's window, on its way to the host.
#include "control/control.h"
#include "interact/pixel_at.h"

namespace vornix {

namespace {

constexpr i32 DefaultPointer = 0;
constexpr i32 CustomPointer = 99;

} // namespace

void Vornix::MouseDown(i16 Button, i16 Shift, float x, float y)
{
    if (const auto control = Enter(); control->HearsUser())
        control->mouse.Down(Button, Shift, x, y);
}

void Vornix::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    if (const auto control = Enter(); control->HearsUser())
        control->mouse.Move(Button, Shift, x, y);
}

void Vornix::MouseUp(i16 Button, i16 Shift, float x, float y)
{
    if (const auto control = Enter(); control->HearsUser())
        control->mouse.Up(Button, Shift, x, y);
}

void Vornix::Click()
{
    if (const auto control = Enter(); control->HearsUser())
        control->mouse.Click();
}

void Vornix::DblClick()
{
    if (const auto control = Enter(); control->HearsUser())
        control->mouse.DblClick();
}

void Vornix::Tick()
{
    const auto control = Enter();
    control->editor.TimerTicked();
    if (control->HearsUser())
        control->mouse.Tick();
}

void Vornix::ChildMouseDown(ChildName Child, i16 Button, float x, float /*y*/)
{
    const auto control = Enter();
    if (control->HearsUser() && Child == ChildName::picSplitCol)
        control->split.Press(Button, PixelAt(x));
}

void Vornix::ChildMouseMove(ChildName Child, i16 Button, i16 Shift, float x, float y)
{
    const auto control = Enter();
    if (!control->HearsUser())
        return;
    if (Child == ChildName::picSplitCol) {
        control->split.Move(PixelAt(x));
    } else if (Child == ChildName::fraEdit) {
        const Rect frame = control->container.Child(Child).Place();
        control->editor.PointerMoved(
            Button, Shift, x + static_cast<float>(frame.left), y + static_cast<float>(frame.top));
    }
}

void Vornix::ChildMouseUp(ChildName Child, i16 Button, float x, float /*y*/)
{
    const auto control = Enter();
    if (control->HearsUser() && Child == ChildName::picSplitCol)
        control->split.Release(Button, PixelAt(x));
}

void Vornix::PaintChild(ChildName Child)
{
    const auto control = Enter();
    if (Child == ChildName::picSplitCol)
        control->funnel.PaintSplitBar();
}

// The corner between the bars and the frame of the editor hand the focus on.
void Vornix::EnterChildFocus(ChildName Child)
{
    const auto control = Enter();
    if (Child == ChildName::fraEdit)
        return control->editor.TakeFocusShown();
    if (Child != ChildName::cPivot || control->mouse.IsArmed())
        return;
    if (control->editor.IsEditorOpen())
        control->editor.TakeFocusShown();
    else if (control->mover.HasCurrent() && !control->layout.IsBeforeView(control->mover.Current()))
        control->mover.Repaint();
}

i16 Vornix::GetMouseButton() const
{
    return Enter()->mouse.Button();
}

i16 Vornix::GetMouseShift() const
{
    return Enter()->mouse.ShiftState();
}

i32 Vornix::MousePointer() const
{
    return Enter()->sizing.Cursor() == PointerShape::Default ? DefaultPointer : CustomPointer;
}

bool Vornix::IsSizingMode() const
{
    return Enter()->sizing.IsSizing();
}

bool Vornix::Enabled() const
{
    return Enter()->settings.Enabled;
}

void Vornix::SetEnabled(bool Value)
{
    const auto control = Enter();
    if (!control->SetSetting(control->settings.Enabled, Value, "Enabled") || Value || control->IsClosed())
        return;
    // The releases will not be heard.
    control->split.Cancel();
    control->scrolling.EndUserActions();
    control->mouse.Abandon();
}

void Vornix::KeyDown(i16& KeyCode, i16& Shift)
{
    const auto control = Enter();
    if (!control->HearsUser())
        return;
    control->events.KeyDown(KeyCode, Shift);
    if (KeyCode != 0 && !control->IsClosed())
        control->keyboard.KeyDown(KeyCode, Shift);
}

void Vornix::KeyPress(i16& KeyAscii)
{
    if (const auto control = Enter(); control->HearsUser())
        control->events.KeyPress(KeyAscii);
}

void Vornix::KeyUp(i16& KeyCode, i16& Shift)
{
    if (const auto control = Enter(); control->HearsUser())
        control->events.KeyUp(KeyCode, Shift);
}

void Vornix::ScrollBarNotify(ChildName Bar, i32 Code)
{
    if (const auto control = Enter(); control->HearsUser())
        control->scrolling.Notify(Bar, Code);
}

void Vornix::MouseWheel(i32 Delta)
{
    if (const auto control = Enter(); control->HearsUser())
        control->scrolling.Wheel(Delta);
}

void Vornix::MouseWheel(ChildName Bar, i32 Delta)
{
    if (const auto control = Enter(); control->HearsUser())
        control->scrolling.Wheel(Bar, Delta);
}

void Vornix::MoveScrollBar(ChildName Bar, i32 Steps)
{
    if (const auto control = Enter(); control->HearsUser())
        control->scrolling.MoveBar(Bar, Steps);
}

} // namespace vornix
