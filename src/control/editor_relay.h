// What the user does in the editors over a cell, on its way in: each a call into the control, which may be closed inside.
#pragma once

#include "vornix/platform/combo_box.h"

namespace vornix {

class Control;

class TextEditorRelay final : public EditBoxListener {
public:
    explicit TextEditorRelay(Control& control)
        : control_(control)
    {
    }

    void KeyDown(i16& KeyCode, i16& Shift) override;
    void KeyPress(i16& KeyAscii, i16 Shift) override;
    void KeyUp(i16& KeyCode, i16& Shift) override;
    void TextChanged(ChangeOrigin origin) override;
    void MouseDown(i16 Button, i16 Shift, float x, float y) override;
    void MouseMove(i16 Button, i16 Shift, float x, float y) override;
    void MouseUp(i16 Button, i16 Shift, float x, float y) override;
    void Click() override;
    void DblClick() override;

private:
    Control& control_;
};

class ComboEditorRelay final : public ComboBoxListener {
public:
    explicit ComboEditorRelay(Control& control)
        : control_(control)
    {
    }

    void KeyDown(i16& KeyCode, i16& Shift) override;
    void KeyPress(i16& KeyAscii, i16 Shift) override;
    void KeyUp(i16& KeyCode, i16& Shift) override;
    void TextChanged() override;
    void Click() override;
    void MouseMove(i16 Button, i16 Shift, float x, float y) override;

private:
    Control& control_;
};

} // namespace vornix
