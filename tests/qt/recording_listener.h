// What an edit box or a combo box tells, one line each, and what is done about it.
#pragma once

#include "vornix/platform/combo_box.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vornix {

class RecordingListener : public EditBoxListener, public ComboBoxListener {
public:
    std::function<void(i16& code, i16& shift)> keyDown;
    std::function<void(i16& character, i16 shift)> keyPress;
    std::function<void()> textChanged;

    std::vector<std::string> Heard() { return std::exchange(lines_, {}); }

    void KeyDown(i16& KeyCode, i16& Shift) override
    {
        Add("KeyDown", KeyCode, Shift);
        if (keyDown)
            keyDown(KeyCode, Shift);
    }
    void KeyPress(i16& KeyAscii, i16 Shift) override
    {
        Add("KeyPress", KeyAscii, Shift);
        if (keyPress)
            keyPress(KeyAscii, Shift);
    }
    void KeyUp(i16& KeyCode, i16& Shift) override { Add("KeyUp", KeyCode, Shift); }
    void TextChanged(ChangeOrigin origin) override
    {
        lines_.push_back(origin == ChangeOrigin::Key ? "TextChanged by key" : "TextChanged by others");
        if (textChanged)
            textChanged();
    }
    void TextChanged() override { lines_.emplace_back("TextChanged"); }
    void MouseDown(i16 Button, i16 Shift, float x, float y) override { AddPointer("MouseDown", Button, Shift, x, y); }
    void MouseMove(i16 Button, i16 Shift, float x, float y) override { AddPointer("MouseMove", Button, Shift, x, y); }
    void MouseUp(i16 Button, i16 Shift, float x, float y) override { AddPointer("MouseUp", Button, Shift, x, y); }
    void Click() override { lines_.emplace_back("Click"); }
    void DblClick() override { lines_.emplace_back("DblClick"); }

private:
    void Add(const std::string& name, int value, int shift)
    {
        lines_.push_back(name + ' ' + std::to_string(value) + ' ' + std::to_string(shift));
    }
    void AddPointer(const std::string& name, int button, int shift, float x, float y)
    {
        lines_.push_back(name + ' ' + std::to_string(button) + ' ' + std::to_string(shift) + ' '
            + std::to_string(static_cast<int>(x)) + ',' + std::to_string(static_cast<int>(y)));
    }

    std::vector<std::string> lines_;
};

} // namespace vornix
