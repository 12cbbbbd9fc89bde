// The control's background picture: when its surface is made, how large, and how bright.
#pragma once

#include "render/pattern_brush.h"

#include <memory>

namespace vornix {

class BackgroundPicture {
public:
    // No picture, or one with handle 0: there is no background.
    void SetPicture(const PicturePtr& picture);
    bool HasPicture() const { return brush_ != nullptr; }
    // Null when there is no picture or its surface could not be made.
    const Surface* BackGroundDC() const { return brush_ ? brush_->BackGroundDC() : nullptr; }

    void MarkStale() { stale_ = true; }
    bool IsStale() const { return stale_; }
    void ClearStale() { stale_ = false; }

    // The next Render makes the surface anew.
    void ForgetSize();
    // Makes the surface at least `needed` large, in logical pixels; it never shrinks. Brightness in percent.
    void Render(Device& window, Size needed, int brightness);

private:
    std::unique_ptr<cPatternBrush> brush_;
    bool stale_ = false;
};

} // namespace vornix
