#include "control/editor_relay.h"

#include "control/control.h"

namespace vornix {

namespace {

// Whether the step was taken: not in a control that is closed or disabled.
template <typename Step> bool EnterIfHeard(Control& control, const Step& step)
{
    if (control.IsClosed())
        return false;
    const ControlCall call(control);
    if (!control.HearsUser())
        return false;
    step();
    return true;
}

// A key that is not heard is for no one.
template <typename Step> void EnterKey(Control& control, i16& code, const Step& step)
{
    if (!EnterIfHeard(control, step))
        code = 0;
}

EditBoxListener& TextOf(Control& control)
{
    return control.editor.Text().Box().Listener();
}

} // namespace

void TextEditorRelay::KeyDown(i16& KeyCode, i16& Shift)
{
    EnterKey(control_, KeyCode, [&] { TextOf(control_).KeyDown(KeyCode, Shift); });
}

void TextEditorRelay::KeyPress(i16& KeyAscii, i16 Shift)
{
    EnterKey(control_, KeyAscii, [&] { TextOf(control_).KeyPress(KeyAscii, Shift); });
}

void TextEditorRelay::KeyUp(i16& KeyCode, i16& Shift)
{
    EnterKey(control_, KeyCode, [&] { TextOf(control_).KeyUp(KeyCode, Shift); });
}

void TextEditorRelay::TextChanged(ChangeOrigin origin)
{
    EnterIfHeard(control_, [&] { TextOf(control_).TextChanged(origin); });
}

void TextEditorRelay::MouseDown(i16 Button, i16 Shift, float x, float y)
{
    EnterIfHeard(control_, [&] { TextOf(control_).MouseDown(Button, Shift, x, y); });
}

void TextEditorRelay::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    EnterIfHeard(control_, [&] { TextOf(control_).MouseMove(Button, Shift, x, y); });
}

void TextEditorRelay::MouseUp(i16 Button, i16 Shift, float x, float y)
{
    EnterIfHeard(control_, [&] { TextOf(control_).MouseUp(Button, Shift, x, y); });
}

void TextEditorRelay::Click()
{
    EnterIfHeard(control_, [&] { TextOf(control_).Click(); });
}

void TextEditorRelay::DblClick()
{
    EnterIfHeard(control_, [&] { TextOf(control_).DblClick(); });
}

void ComboEditorRelay::KeyDown(i16& KeyCode, i16& Shift)
{
    EnterKey(control_, KeyCode, [&] { control_.editor.Combo().KeyDown(KeyCode, Shift); });
}

void ComboEditorRelay::KeyPress(i16& KeyAscii, i16 Shift)
{
    EnterKey(control_, KeyAscii, [&] { control_.editor.Combo().KeyPress(KeyAscii, Shift); });
}

void ComboEditorRelay::KeyUp(i16& KeyCode, i16& Shift)
{
    EnterKey(control_, KeyCode, [&] { control_.editor.Combo().KeyUp(KeyCode, Shift); });
}

void ComboEditorRelay::TextChanged()
{
    EnterIfHeard(control_, [&] { control_.editor.Combo().TextChanged(); });
}

void ComboEditorRelay::Click()
{
    EnterIfHeard(control_, [&] { control_.editor.Combo().Click(); });
}

void ComboEditorRelay::MouseMove(i16 Button, i16 Shift, float x, float y)
{
    EnterIfHeard(control_, [&] { control_.editor.Combo().MouseMove(Button, Shift, x, y); });
}

} // namespace vornix
