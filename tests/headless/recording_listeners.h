// Listeners of boxes that write down what they hear, and may answer.
#pragma once

#include "vornix/platform/combo_box.h"

#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace vornix {

using Lines = std::vector<std::string>;

template <typename Listener> class RecordingKeys : public Listener {
public:
    // "KeyDown 46 0" for each call since the last question.
    Lines Said() { return std::exchange(said_, {}); }

    std::function<void(i16&, i16&)> onKeyDown;
    std::function<void(i16&, i16)> onKeyPress;
    std::function<void()> onTextChanged;

    void KeyDown(i16& KeyCode, i16& Shift) override
    {
        Say("KeyDown", KeyCode, Shift);
        if (onKeyDown)
            onKeyDown(KeyCode, Shift);
    }
    void KeyPress(i16& KeyAscii, i16 Shift) override
    {
        Say("KeyPress", KeyAscii, Shift);
        if (onKeyPress)
            onKeyPress(KeyAscii, Shift);
    }
    void KeyUp(i16& KeyCode, i16& Shift) override { Say("KeyUp", KeyCode, Shift); }
    void MouseMove(i16 Button, i16 Shift, float x, float y) override { Say("MouseMove", Button, Shift, x, y); }

protected:
    template <typename... Arguments> void Say(const char* what, const Arguments&... arguments)
    {
        std::ostringstream line;
        line << what;
        ((line << ' ' << arguments), ...);
        said_.push_back(line.str());
    }

private:
    Lines said_;
};

class RecordingEditListener : public RecordingKeys<EditBoxListener> {
public:
    void TextChanged(ChangeOrigin origin) override
    {
        Say("TextChanged", origin == ChangeOrigin::Key ? "key" : "foreign");
        if (onTextChanged)
            onTextChanged();
    }
    void MouseDown(i16 Button, i16 Shift, float x, float y) override { Say("MouseDown", Button, Shift, x, y); }
    void MouseUp(i16 Button, i16 Shift, float x, float y) override { Say("MouseUp", Button, Shift, x, y); }
    void Click() override { Say("Click"); }
    void DblClick() override { Say("DblClick"); }
};

class RecordingComboListener : public RecordingKeys<ComboBoxListener> {
public:
    void TextChanged() override
    {
        Say("TextChanged");
        if (onTextChanged)
            onTextChanged();
    }
    void Click() override
    {
        Say("Click");
        if (onClick)
            onClick();
    }

    std::function<void()> onClick;
};

} // namespace vornix
