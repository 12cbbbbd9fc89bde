#include "fill.h"

#include "pixel_block.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <vector>

namespace vornix {

namespace {

// One channel of a gradient, pixel by pixel: floor((first * (n - i) + last * i) / n) without a division in each step.
class Ramp {
public:
    Ramp(u16 first, u16 last, int index, int count)
        : count_(count)
    {
        const std::int64_t rise = std::int64_t { last } - first;
        step_ = static_cast<int>(rise >= 0 ? rise / count : -((-rise + count - 1) / count));
        stepRest_ = rise - std::int64_t { step_ } * count;
        const std::int64_t sum = std::int64_t { first } * count + rise * index;
        value_ = static_cast<int>(sum / count);
        rest_ = sum % count;
    }

    // The high byte of the present pixel's channel; goes on to the next pixel.
    u32 Next()
    {
        const u32 channel = static_cast<u32>(value_) >> 8;
        rest_ += stepRest_;
        const bool carries = rest_ >= count_;
        rest_ -= carries ? count_ : 0;
        value_ += step_ + (carries ? 1 : 0);
        return channel;
    }

private:
    std::int64_t count_;
    std::int64_t stepRest_ = 0;
    std::int64_t rest_ = 0;
    int step_ = 0;
    int value_ = 0;
};

struct ColorRamp {
    ColorRamp(const GradientVertex& first, const GradientVertex& last, int index, int count)
        : red(first.red, last.red, index, count)
        , green(first.green, last.green, index, count)
        , blue(first.blue, last.blue, index, count)
    {
    }

    u32 Next() { return 0xFF000000u | red.Next() << 16 | green.Next() << 8 | blue.Next(); }

    Ramp red;
    Ramp green;
    Ramp blue;
};

void CopyFirstRowDown(const PixelView& view, const Rect& area)
{
    const u32* const first = view.Row(area.top) + area.left;
    for (int y = area.top + 1; y < area.bottom; ++y)
        std::memcpy(view.Row(y) + area.left, first, static_cast<std::size_t>(area.Width()) * sizeof(u32));
}

// For device pixels begin to end along one axis: which pixel of a tile lies there. `edge(n)` is where tile n begins.
template <class Edge> std::vector<int> TileIndices(int begin, int end, int tileLogical, int tilePixels, Edge edge)
{
    std::vector<int> indices;
    indices.reserve(static_cast<std::size_t>(end - begin));
    for (int tile = 0, tileBegin = 0; tileBegin < end; ++tile) {
        const int tileEnd = edge((tile + 1) * tileLogical);
        const int size = tileEnd - tileBegin;
        for (int i = std::max(tileBegin, begin); i < std::min(tileEnd, end); ++i)
            indices.push_back(static_cast<int>((2LL * (i - tileBegin) + 1) * tilePixels / (2LL * size)));
        tileBegin = tileEnd;
    }
    return indices;
}

bool SharesMemory(const PixelView& a, const PixelView& b)
{
    const std::less<const u32*> before;
    return before(a.pixels, b.Row(b.height)) && before(b.pixels, a.Row(a.height));
}

// The view on pixels of its own; without pixels when memory is short.
PixelView CopyOf(const PixelView& view, PixelBlock& block)
{
    PixelView copy = view;
    block = PixelBlock::Allocate(static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height));
    copy.pixels = block.Data();
    copy.stride = view.width;
    for (int y = 0; block && y < view.height; ++y)
        std::copy_n(view.Row(y), view.width, copy.Row(y));
    return copy;
}

} // namespace

void FillDeviceLine(const PixelView& view, Size logical, const Rect& line, LineEdge edge, u32 pixel)
{
    const Rect inside = Intersect(line, { 0, 0, logical.width, logical.height });
    if (inside.IsEmpty())
        return;
    const bool horizontal = edge == LineEdge::Top || edge == LineEdge::Bottom;
    const int thickness
        = std::max(1, static_cast<int>((horizontal ? inside.Height() : inside.Width()) * view.map.Scale()));
    Rect device = view.map.ToDevice(inside);
    switch (edge) {
    case LineEdge::Top:
        device.bottom = device.top + thickness;
        break;
    case LineEdge::Bottom:
        device.top = device.bottom - thickness;
        break;
    case LineEdge::Left:
        device.right = device.left + thickness;
        break;
    case LineEdge::Right:
        device.left = device.right - thickness;
        break;
    }
    FillDeviceRect(view, device, pixel);
}

void FillDeviceRect(const PixelView& view, const Rect& deviceRect, u32 pixel)
{
    const Rect area = Intersect(deviceRect, view.clip);
    if (area.IsEmpty())
        return;
    const int width = area.Width();
    u32* row = view.Row(area.top) + area.left;
    if (width == 1) {
        for (int y = area.top; y < area.bottom; ++y, row += view.stride)
            *row = pixel;
        return;
    }
    if (width == view.stride) {
        std::fill_n(row, static_cast<std::size_t>(width) * static_cast<std::size_t>(area.Height()), pixel);
        return;
    }
    for (int y = area.top; y < area.bottom; ++y, row += view.stride)
        std::fill_n(row, width, pixel);
}

void InvertDeviceRect(const PixelView& view, const Rect& deviceRect)
{
    const Rect area = Intersect(deviceRect, view.clip);
    for (int y = area.top; y < area.bottom; ++y) {
        u32* const row = view.Row(y);
        for (int x = area.left; x < area.right; ++x)
            row[x] ^= 0x00FFFFFFu;
    }
}

void FillDevicePattern(const PixelView& view, const Rect& deviceRect, const PixelView& pattern, Size patternSize)
{
    const Rect area = Intersect(deviceRect, view.clip);
    if (area.IsEmpty() || patternSize.width <= 0 || patternSize.height <= 0)
        return;
    PixelBlock copied;
    const PixelView tile = SharesMemory(view, pattern) ? CopyOf(pattern, copied) : pattern;
    if (!tile.pixels)
        return;
    const ScaleMap& map = view.map;
    const std::vector<int> columns
        = TileIndices(area.left, area.right, patternSize.width, tile.width, [&](int x) { return map.X(x); });
    const std::vector<int> rows
        = TileIndices(area.top, area.bottom, patternSize.height, tile.height, [&](int y) { return map.Y(y); });
    for (int y = area.top; y < area.bottom; ++y) {
        const u32* const from = tile.Row(rows[static_cast<std::size_t>(y - area.top)]);
        u32* const to = view.Row(y) + area.left;
        for (std::size_t i = 0; i < columns.size(); ++i)
            to[i] = from[columns[i]];
    }
}

void FillDeviceGradient(const PixelView& view, const Rect& deviceRect, const GradientVertex& first,
    const GradientVertex& last, GradientDirection direction)
{
    const Rect area = Intersect(deviceRect, view.clip);
    if (area.IsEmpty())
        return;
    if (direction == GradientDirection::Horizontal) {
        ColorRamp ramp(first, last, area.left - deviceRect.left, deviceRect.Width());
        u32* const row = view.Row(area.top);
        for (int x = area.left; x < area.right; ++x)
            row[x] = ramp.Next();
        CopyFirstRowDown(view, area);
        return;
    }
    ColorRamp ramp(first, last, area.top - deviceRect.top, deviceRect.Height());
    for (int y = area.top; y < area.bottom; ++y)
        std::fill_n(view.Row(y) + area.left, area.Width(), ramp.Next());
}

} // namespace vornix
