#include "render/mem_dc.h"

#include <algorithm>

namespace vornix {

void cMemDC::ClearMemDC()
{
    surface_.reset();
}

Surface* cMemDC::BuildMemDC(Device& reference, int width, int height, bool& rebuilt)
{
    const bool fits = width <= width_ && height <= height_;
    const bool sameScale = !surface_ || surface_->Scale() == reference.Scale();
    rebuilt = !fits || !sameScale;
    if (!rebuilt)
        return surface_.get();
    ClearMemDC();
    width_ = std::max(width_, width);
    height_ = std::max(height_, height);
    surface_ = reference.CreateCompatible({ width_, height_ });
    return surface_.get();
}

void cMemDC::FillBkGround(ColorRef color)
{
    if (color == lastColor_)
        return;
    lastColor_ = color;
    if (surface_)
        surface_->FillRect({ 0, 0, width_, height_ }, color);
}

Surface* cMemDC::FillBkGroundRect(Device& reference, ColorRef color, int width, int height)
{
    bool rebuilt = false;
    Surface* const surface = BuildMemDC(reference, width, height, rebuilt);
    if (rebuilt)
        lastColor_ = color - 1; // another colour, so that the fill is not left out
    FillBkGround(color);
    return surface;
}

} // namespace vornix
