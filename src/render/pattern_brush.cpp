#include "render/pattern_brush.h"

namespace vornix {

namespace {
constexpr ColorRef White = 0xFFFFFF;
}

u32 MakeBlendFunction(int percent)
{
    return BlendFunction(percent * 255 / 100);
}

void cPatternBrush::SetPicture(PicturePtr picture)
{
    if (picture && picture->Handle() == 0)
        picture.reset();
    picture_ = std::move(picture);
}

void cPatternBrush::SetPictureBrightness(int brightness)
{
    blend_ = MakeBlendFunction(100 - brightness);
}

void cPatternBrush::SetSize(int width, int height)
{
    width_ = width;
    height_ = height;
}

bool cPatternBrush::IsBuiltFor(const Device& window) const
{
    return surface_ && surface_->Scale() == window.Scale();
}

bool cPatternBrush::FillBackGround(Device& window)
{
    if (!picture_)
        return false;
    const std::unique_ptr<Surface> tile = blend_ != 0 ? LightenedPicture(window) : window.CreateFromPicture(*picture_);
    if (!tile || !BuildSurface(window))
        return false;
    surface_->FillPattern({ 0, 0, width_, height_ }, *tile);
    return true;
}

bool cPatternBrush::FillWhite(Device& window)
{
    if (!picture_ || !BuildSurface(window))
        return false;
    surface_->FillRect({ 0, 0, width_, height_ }, White);
    return true;
}

// The picture blended over white, at the picture's own size.
std::unique_ptr<Surface> cPatternBrush::LightenedPicture(Device& window) const
{
    const std::unique_ptr<Surface> picture = window.CreateFromPicture(*picture_);
    if (!picture)
        return nullptr;
    const Size size = picture->GetSize();
    const Rect whole { 0, 0, size.width, size.height };
    std::unique_ptr<Surface> lightened = picture->CreateCompatible(size);
    if (!lightened)
        return nullptr;
    lightened->FillRect(whole, White);
    lightened->AlphaBlend(whole, *picture, whole, blend_);
    return lightened;
}

bool cPatternBrush::BuildSurface(Device& window)
{
    surface_ = window.CreateCompatible({ width_, height_ });
    return surface_ != nullptr;
}

} // namespace vornix
