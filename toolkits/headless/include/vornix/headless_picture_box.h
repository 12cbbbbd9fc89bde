// A child window that the control draws on, and that tells it what the pointer does there: the handle of the split, and
// the line that follows the handle while it is dragged.
#pragma once

#include "vornix/headless_child.h"

#include <memory>

namespace vornix {

class Vornix;

class HeadlessPictureBox final : public HeadlessChild {
public:
    explicit HeadlessPictureBox(ChildName name)
        : name_(name)
    {
    }
    // The control that is told, and how the canvas is made. The colours must outlive the box.
    void TellTo(Vornix& grid, double scale, const SystemColors& colors);

    // As large as the place, in the colour of a button's face at first and after each change of size. Null while the
    // place is empty, before TellTo, and when memory is short.
    RasterSurface* Canvas() override;

    void MouseDown(i16 button, i16 shift, float x, float y) override;
    void MouseMove(i16 button, i16 shift, float x, float y) override;
    void MouseUp(i16 button, i16 shift, float x, float y) override;

private:
    ChildName name_;
    Vornix* grid_ = nullptr;
    double scale_ = 1;
    const SystemColors* colors_ = nullptr;
    Size canvasSize_;
    std::unique_ptr<RasterSurface> canvas_;
};

} // namespace vornix
