#include "fill.h"

#include "pixel_block.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <vector>

namespace vornix {

namespace {

u32 Interpolate(u16 first, u16 last, std::int64_t index, std::int64_t count)
{
    return static_cast<u32>(((first * (count - index) + last * index) / count) >> 8);
}

u32 GradientPixel(const GradientVertex& first, const GradientVertex& last, int index, int count)
{
    return 0xFF000000u | Interpolate(first.red, last.red, index, count) << 16
        | Interpolate(first.green, last.green, index, count) << 8 | Interpolate(first.blue, last.blue, index, count);
}

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
        u32* const row = view.Row(area.top);
        for (int x = area.left; x < area.right; ++x)
            row[x] = GradientPixel(first, last, x - deviceRect.left, deviceRect.Width());
        CopyFirstRowDown(view, area);
        return;
    }
    for (int y = area.top; y < area.bottom; ++y) {
        const u32 pixel = GradientPixel(first, last, y - deviceRect.top, deviceRect.Height());
        std::fill_n(view.Row(y) + area.left, area.Width(), pixel);
    }
}

} // namespace vornix
