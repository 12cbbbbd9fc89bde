// Where the parts of a scroll bar lie: an arrow at each end and the thumb on the trough between them. Distances in
// pixels along the bar, from its upper or left end.
#pragma once

#include "vornix/platform/container.h"

namespace vornix {

enum class BarPart { None, LineUp, PageUp, Thumb, PageDown, LineDown };

class BarGeometry {
public:
    // An arrow is as long as the bar is thick, as far as there is room for two. The thumb has the share of the trough
    // that the page has of the range, but is not shorter than this.
    static constexpr double ShortestThumb = 8;

    BarGeometry(double length, double thickness, const ScrollBarInfo& info);

    // Where nothing can be scrolled there is no thumb, and the trough is no part.
    BarPart PartAt(double along) const;
    double ThumbStart() const;
    // The position at which the thumb would start there, the nearest one of the range.
    i32 PositionAt(double thumbStart) const;

private:
    // Pixels that the thumb can move, and positions that it then has.
    double Way() const { return trough_ - thumb_; }
    double Positions() const;

    ScrollBarInfo info_;
    double length_;
    double arrow_;
    double trough_;
    double thumb_ = 0;
};

} // namespace vornix
