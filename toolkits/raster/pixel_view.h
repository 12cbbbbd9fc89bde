// Pixels in memory as the raster operations see them: where they lie, how logical coordinates map to them, what is
// clipped.
#pragma once

#include "vornix/types.h"

#include <cmath>
#include <cstddef>

namespace vornix {

// Logical edges to device edges: floor(x * scale + 0.5), measured from an origin so that a surface composed for a place
// on another one rounds its edges as that one does.
class ScaleMap {
public:
    ScaleMap() = default;
    ScaleMap(double scale, Point origin)
        : scale_(scale)
        , origin_(origin)
        , deviceOrigin_ { Round(origin.x), Round(origin.y) }
    {
    }

    double Scale() const { return scale_; }
    Point Origin() const { return origin_; }
    bool IsIdentity() const { return scale_ == 1.0; }
    int X(int x) const { return IsIdentity() ? x : Round(x + origin_.x) - deviceOrigin_.x; }
    int Y(int y) const { return IsIdentity() ? y : Round(y + origin_.y) - deviceOrigin_.y; }
    Rect ToDevice(const Rect& rect) const { return { X(rect.left), Y(rect.top), X(rect.right), Y(rect.bottom) }; }

private:
    int Round(int value) const { return static_cast<int>(std::floor(value * scale_ + 0.5)); }

    double scale_ = 1.0;
    Point origin_;
    Point deviceOrigin_;
};

// 0xFFRRGGBB pixels; `stride` in pixels. The clip is in device pixels and lies within the size.
struct PixelView {
    u32* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;
    ScaleMap map;
    Rect clip;

    u32* Row(int y) const { return pixels + y * stride; }
};

inline u32 PixelFromColor(ColorRef color)
{
    return 0xFF000000u | (color & 0xFFu) << 16 | (color & 0xFF00u) | (color >> 16 & 0xFFu);
}

inline ColorRef ColorFromPixel(u32 pixel)
{
    return (pixel & 0xFFu) << 16 | (pixel & 0xFF00u) | (pixel >> 16 & 0xFFu);
}

} // namespace vornix
