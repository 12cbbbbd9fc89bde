#include "vornix/headless_picture_box.h"

#include "vornix/vornix.h"

namespace vornix {

void HeadlessPictureBox::TellTo(Vornix& grid, double scale, const SystemColors& colors)
{
    grid_ = &grid;
    scale_ = scale;
    colors_ = &colors;
}

RasterSurface* HeadlessPictureBox::Canvas()
{
    const Size size { Place().Width(), Place().Height() };
    if (canvas_ && size == canvasSize_)
        return canvas_.get();
    canvas_ = nullptr;
    if (!colors_ || size.width <= 0 || size.height <= 0)
        return nullptr;
    canvas_ = RasterSurface::Create(size, scale_, *colors_);
    canvasSize_ = size;
    if (canvas_) {
        canvas_->FillRect(
            { 0, 0, size.width, size.height }, colors_->values[static_cast<std::size_t>(SystemColor::ButtonFace)]);
    }
    return canvas_.get();
}

void HeadlessPictureBox::MouseDown(i16 button, i16 /*shift*/, float x, float y)
{
    if (grid_)
        grid_->ChildMouseDown(name_, button, x, y);
}

void HeadlessPictureBox::MouseMove(i16 button, i16 shift, float x, float y)
{
    if (grid_)
        grid_->ChildMouseMove(name_, button, shift, x, y);
}

void HeadlessPictureBox::MouseUp(i16 button, i16 /*shift*/, float x, float y)
{
    if (grid_)
        grid_->ChildMouseUp(name_, button, x, y);
}

} // namespace vornix
