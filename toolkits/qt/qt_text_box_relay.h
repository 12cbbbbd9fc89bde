// The events of a text box on their way to its host, with signals after two of them.
#pragma once

#include "vornix/text_box.h"

#include <functional>
#include <utility>

namespace vornix {

class QtTextBoxRelay final : public TextBoxEvents {
public:
    QtTextBoxRelay(TextBoxEvents& host, std::function<void()> changed, std::function<void()> sized)
        : host_(host)
        , changed_(std::move(changed))
        , sized_(std::move(sized))
    {
    }

    void Change() override
    {
        host_.Change();
        changed_();
    }
    void Resize() override
    {
        host_.Resize();
        sized_();
    }
    void Click() override { host_.Click(); }
    void MouseUp(i16 Button, i16 Shift, float x, float y) override { host_.MouseUp(Button, Shift, x, y); }
    void MouseMove(i16 Button, i16 Shift, float x, float y) override { host_.MouseMove(Button, Shift, x, y); }
    void MouseDown(i16 Button, i16 Shift, float x, float y) override { host_.MouseDown(Button, Shift, x, y); }
    void KeyUp(i16& KeyCode, i16& Shift) override { host_.KeyUp(KeyCode, Shift); }
    void KeyPress(i16& KeyAscii) override { host_.KeyPress(KeyAscii); }
    void KeyDown(i16& KeyCode, i16& Shift) override { host_.KeyDown(KeyCode, Shift); }
    void DblClick() override { host_.DblClick(); }
    void KeyArrowMove(i16& KeyCode) override { host_.KeyArrowMove(KeyCode); }

private:
    TextBoxEvents& host_;
    std::function<void()> changed_;
    std::function<void()> sized_;
};

} // namespace vornix
