#include "render/background_picture.h"

#include <algorithm>

namespace vornix {

namespace {
constexpr int FullBrightness = 100;
}

void BackgroundPicture::SetPicture(const PicturePtr& picture)
{
    brush_.reset();
    if (!picture || picture->Handle() == 0)
        return;
    brush_ = std::make_unique<cPatternBrush>();
    brush_->SetPicture(picture);
}

void BackgroundPicture::ForgetSize()
{
    if (brush_)
        brush_->SetSize(0, 0);
}

void BackgroundPicture::Render(Device& window, Size needed, int brightness)
{
    if (!brush_)
        return;
    const bool largeEnough = brush_->Width() >= needed.width && brush_->Height() >= needed.height;
    if (largeEnough && brush_->IsBuiltFor(window))
        return;
    brush_->SetSize(std::max(brush_->Width(), needed.width), std::max(brush_->Height(), needed.height));
    if (brightness == FullBrightness) {
        brush_->FillWhite(window);
        return;
    }
    brush_->SetPictureBrightness(brightness);
    brush_->FillBackGround(window);
}

} // namespace vornix
