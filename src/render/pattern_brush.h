// The control's background picture, tiled into a surface that any cell can copy its part from.
#pragma once

#include "vornix/picture.h"
#include "vornix/platform/device.h"

#include <memory>

namespace vornix {

class cPatternBrush {
public:
    Surface* BackGroundDC() const { return surface_.get(); }
    const PicturePtr& Picture() const { return picture_; }
    void SetPicture(PicturePtr picture);
    // 0 is the picture at full strength, larger values wash it toward white.
    void SetPictureBrightness(int brightness);
    int Width() const { return width_; }
    int Height() const { return height_; }
    void SetSize(int width, int height);
    // False when there is no picture or no surface; a surface as it was is gone then.
    bool FillBackGround(Device& window);
    // The surface at full brightness: white, without a look at the picture.
    bool FillWhite(Device& window);
    // Whether a surface as large as Width and Height exists at this device's scale.
    bool IsBuiltFor(const Device& window) const;

private:
    std::unique_ptr<Surface> LightenedPicture(Device& window) const;
    bool BuildSurface(Device& window);

    PicturePtr picture_;
    u32 blend_ = 0;
    std::unique_ptr<Surface> surface_;
    int width_ = 0;
    int height_ = 0;
};

// The blend value of a percent: constant alpha percent * 255 / 100, truncated.
u32 MakeBlendFunction(int percent);

} // namespace vornix
