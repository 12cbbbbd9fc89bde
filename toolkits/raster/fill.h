// Filling of device rectangles: one colour, a tiled pattern, a gradient. Everything is cut at the view's clip.
#pragma once

#include "pixel_view.h"
#include "vornix/platform/device.h"

namespace vornix {

inline Rect Intersect(const Rect& a, const Rect& b)
{
    return { a.left > b.left ? a.left : b.left, a.top > b.top ? a.top : b.top, a.right < b.right ? a.right : b.right,
        a.bottom < b.bottom ? a.bottom : b.bottom };
}

// The size in logical pixels goes with a view where a rectangle of any integers has to be mapped.
inline Rect DeviceRectWithin(const PixelView& view, Size logical, const Rect& rect)
{
    const Rect inside = Intersect(rect, { 0, 0, logical.width, logical.height });
    return inside.IsEmpty() ? Rect {} : view.map.ToDevice(inside);
}

// Which way a line runs, and the edge of its rectangle that it keeps to where it is thinner than that.
enum class LineEdge { Top, Bottom, Left, Right };

// A line of a rectangle's logical thickness. At fractional scales every line is equally thick, or the lines of a grid
// would look uneven.
void FillDeviceLine(const PixelView& view, Size logical, const Rect& line, LineEdge edge, u32 pixel);
void FillDeviceRect(const PixelView& view, const Rect& deviceRect, u32 pixel);
// Exclusive or with the white of every pixel.
void InvertDeviceRect(const PixelView& view, const Rect& deviceRect);

// Tiles `pattern`, whose logical size is `patternSize`, from (0, 0) of the view. A pattern of another scale, or one
// whose tile has another device size at its place, is sampled to the nearest pixel.
void FillDevicePattern(const PixelView& view, const Rect& deviceRect, const PixelView& pattern, Size patternSize);

// Pixel i of n along the axis takes, channel by channel, (first * (n - i) + last * i) / n of the 16-bit channels,
// truncated, and of that the high byte: the first pixel has the first colour, the last colour would lie one pixel
// beyond the rectangle. `first` is the colour of the left or top edge of `deviceRect`.
void FillDeviceGradient(const PixelView& view, const Rect& deviceRect, const GradientVertex& first,
    const GradientVertex& last, GradientDirection direction);

} // namespace vornix
