// The frame that the editors lie in: a child window of one colour that tells the control what the pointer does on it.
// The colour is kept and not drawn.
#pragma once

#include "vornix/headless_child.h"

namespace vornix {

class Vornix;

class HeadlessFrame final : public HeadlessChild {
public:
    void TellTo(Vornix& grid) { grid_ = &grid; }
    void MouseMove(i16 button, i16 shift, float x, float y) override;
    void SetBackColor(ColorRef color) override { backColor_ = color; }
    ColorRef BackColor() const { return backColor_; }

private:
    Vornix* grid_ = nullptr;
    ColorRef backColor_ = 0xFFFFFF;
};

} // namespace vornix
