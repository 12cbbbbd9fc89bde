#include "bar_geometry.h"

#include <algorithm>
#include <cmath>

namespace vornix {

BarGeometry::BarGeometry(double length, double thickness, const ScrollBarInfo& info)
    : info_(info)
    , length_(length)
    , arrow_(std::min(thickness, length / 2))
    , trough_(length - 2 * arrow_)
{
    if (Positions() <= 0)
        return;
    const double page = std::max(info.page, 1);
    thumb_ = std::min(std::max(trough_ * page / (Positions() + page), ShortestThumb), trough_);
}

double BarGeometry::Positions() const
{
    return static_cast<double>(info_.max) - info_.min;
}

BarPart BarGeometry::PartAt(double along) const
{
    if (along < 0 || along >= length_)
        return BarPart::None;
    if (along < arrow_)
        return BarPart::LineUp;
    if (along >= length_ - arrow_)
        return BarPart::LineDown;
    if (thumb_ <= 0)
        return BarPart::None;
    if (along < ThumbStart())
        return BarPart::PageUp;
    return along < ThumbStart() + thumb_ ? BarPart::Thumb : BarPart::PageDown;
}

double BarGeometry::ThumbStart() const
{
    if (Positions() <= 0)
        return arrow_;
    return arrow_ + Way() * (static_cast<double>(info_.position) - info_.min) / Positions();
}

i32 BarGeometry::PositionAt(double thumbStart) const
{
    if (Way() <= 0 || Positions() <= 0)
        return info_.position;
    const double part = std::clamp((thumbStart - arrow_) / Way(), 0.0, 1.0);
    return static_cast<i32>(info_.min + std::round(part * Positions()));
}

} // namespace vornix
