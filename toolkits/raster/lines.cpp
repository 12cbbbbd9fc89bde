#include "lines.h"

#include "fill.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace vornix {

namespace {

// Beyond this no surface has pixels; lines are drawn as if they came from there.
constexpr int FarAway = 1 << 24;

Point Near(Point point)
{
    return { std::clamp(point.x, -FarAway, FarAway), std::clamp(point.y, -FarAway, FarAway) };
}

std::int64_t FloorDivide(std::int64_t dividend, std::int64_t divisor)
{
    const std::int64_t quotient = dividend / divisor;
    return dividend % divisor < 0 ? quotient - 1 : quotient;
}

struct Pencil {
    const PixelView& view;
    Size logical;
    int width;
    u32 pixel;

    // All squares of the pen from one logical pixel to another, both included, on one row or column.
    void Cover(int left, int top, int right, int bottom) const
    {
        FillDeviceRect(view, DeviceRectWithin(view, logical, Covered(left, top, right, bottom)), pixel);
    }

    // Grid lines lie at the bottom and right of their cells, so lines keep to those edges.
    void CoverLine(int left, int top, int right, int bottom, LineEdge edge) const
    {
        FillDeviceLine(view, logical, Covered(left, top, right, bottom), edge, pixel);
    }

    Rect Covered(int left, int top, int right, int bottom) const
    {
        const int offset = width / 2;
        return { left - offset, top - offset, right - offset + width, bottom - offset + width };
    }
};

void DrawSlanted(const Pencil& pencil, Point from, Point to)
{
    const std::int64_t dx = std::int64_t { to.x } - from.x;
    const std::int64_t dy = std::int64_t { to.y } - from.y;
    const bool steep = std::abs(dy) > std::abs(dx);
    const std::int64_t length = std::max(std::abs(dx), std::abs(dy));
    const std::int64_t rise = steep ? dx : dy;
    const int step = (steep ? dy : dx) < 0 ? -1 : 1;
    for (std::int64_t i = 0; i < length; ++i) {
        // rise * i / length to the nearest, a half downward.
        const int aside = static_cast<int>(FloorDivide(2 * rise * i + length - 1, 2 * length));
        const int along = static_cast<int>(i) * step;
        const int x = from.x + (steep ? aside : along);
        const int y = from.y + (steep ? along : aside);
        pencil.Cover(x, y, x, y);
    }
}

} // namespace

void DrawDeviceLine(const PixelView& view, Size logical, Point from, Point to, int width, u32 pixel)
{
    const Pencil pencil { view, logical, std::clamp(width, 1, FarAway), pixel };
    from = Near(from);
    to = Near(to);
    if (from == to)
        return;
    if (from.y == to.y) {
        const bool rightward = to.x > from.x;
        pencil.CoverLine(
            rightward ? from.x : to.x + 1, from.y, rightward ? to.x - 1 : from.x, from.y, LineEdge::Bottom);
        return;
    }
    if (from.x == to.x) {
        const bool downward = to.y > from.y;
        pencil.CoverLine(from.x, downward ? from.y : to.y + 1, from.x, downward ? to.y - 1 : from.y, LineEdge::Right);
        return;
    }
    DrawSlanted(pencil, from, to);
}

} // namespace vornix
