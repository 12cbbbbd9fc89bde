#include "frames.h"

#include "check_mark.h"
#include "fill.h"
#include "vornix/platform/device.h"

#include <algorithm>
#include <optional>

namespace vornix {

namespace {

// The colours of one ring, by system colour number.
struct Ring {
    int leftTop;
    int rightBottom;
};

u32 SystemPixel(const SystemColors& colors, int index)
{
    return PixelFromColor(colors.values[static_cast<std::size_t>(index)]);
}

// Nothing for neither and for both at once.
std::optional<Ring> OuterRing(u32 edge)
{
    switch (edge & (BDR_RAISEDOUTER | BDR_SUNKENOUTER)) {
    case BDR_RAISEDOUTER:
        return Ring { SystemColor::Light, SystemColor::DarkShadow };
    case BDR_SUNKENOUTER:
        return Ring { SystemColor::ButtonShadow, SystemColor::ButtonHighlight };
    default:
        return std::nullopt;
    }
}

std::optional<Ring> InnerRing(u32 edge)
{
    switch (edge & (BDR_RAISEDINNER | BDR_SUNKENINNER)) {
    case BDR_RAISEDINNER:
        return Ring { SystemColor::ButtonHighlight, SystemColor::ButtonShadow };
    case BDR_SUNKENINNER:
        return Ring { SystemColor::DarkShadow, SystemColor::Light };
    default:
        return std::nullopt;
    }
}

void Fill(const Canvas& canvas, const Rect& rect, u32 pixel)
{
    FillDeviceRect(canvas.view, DeviceRectWithin(canvas.view, canvas.logical, rect), pixel);
}

Rect LeftLine(const Rect& rect)
{
    return { rect.left, rect.top, rect.left + 1, rect.bottom };
}
Rect TopLine(const Rect& rect)
{
    return { rect.left, rect.top, rect.right, rect.top + 1 };
}
Rect RightLine(const Rect& rect)
{
    return { rect.right - 1, rect.top, rect.right, rect.bottom };
}
Rect BottomLine(const Rect& rect)
{
    return { rect.left, rect.bottom - 1, rect.right, rect.bottom };
}

// Draws the sides asked for and gives what is left inside them.
Rect DrawRing(const Canvas& canvas, Rect rect, u32 sides, const Ring& ring, const SystemColors& colors)
{
    if (rect.IsEmpty())
        return rect;
    const u32 leftTop = SystemPixel(colors, ring.leftTop);
    const u32 rightBottom = SystemPixel(colors, ring.rightBottom);
    if (sides & BF_LEFT)
        Fill(canvas, LeftLine(rect), leftTop);
    if (sides & BF_TOP)
        Fill(canvas, TopLine(rect), leftTop);
    if (sides & BF_RIGHT)
        Fill(canvas, RightLine(rect), rightBottom);
    if (sides & BF_BOTTOM)
        Fill(canvas, BottomLine(rect), rightBottom);
    rect.left += sides & BF_LEFT ? 1 : 0;
    rect.top += sides & BF_TOP ? 1 : 0;
    rect.right -= sides & BF_RIGHT ? 1 : 0;
    rect.bottom -= sides & BF_BOTTOM ? 1 : 0;
    return rect;
}

Rect MiddleSquare(const Rect& rect)
{
    const int side = std::min(rect.Width(), rect.Height());
    const int left = rect.left + (rect.Width() - side) / 2;
    const int top = rect.top + (rect.Height() - side) / 2;
    return { left, top, left + side, top + side };
}

void InvertOddPixels(const Canvas& canvas, const Rect& line)
{
    const Rect inside = Intersect(line, { 0, 0, canvas.logical.width, canvas.logical.height });
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x) {
            if ((x + y) & 1)
                InvertDeviceRect(canvas.view, canvas.view.map.ToDevice({ x, y, x + 1, y + 1 }));
        }
    }
}

} // namespace

void DrawFrame(const Canvas& canvas, const Rect& rect, u32 pixel)
{
    if (rect.IsEmpty())
        return;
    FillDeviceLine(canvas.view, canvas.logical, TopLine(rect), LineEdge::Top, pixel);
    FillDeviceLine(canvas.view, canvas.logical, BottomLine(rect), LineEdge::Bottom, pixel);
    FillDeviceLine(canvas.view, canvas.logical, LeftLine(rect), LineEdge::Left, pixel);
    FillDeviceLine(canvas.view, canvas.logical, RightLine(rect), LineEdge::Right, pixel);
}

void DrawEdges(const Canvas& canvas, const Rect& rect, u32 edge, u32 sides, const SystemColors& colors)
{
    Rect inside = rect;
    if (const std::optional<Ring> ring = OuterRing(edge))
        inside = DrawRing(canvas, inside, sides, *ring, colors);
    if (const std::optional<Ring> ring = InnerRing(edge))
        inside = DrawRing(canvas, inside, sides, *ring, colors);
    if (sides & BF_MIDDLE)
        Fill(canvas, inside, SystemPixel(colors, SystemColor::ButtonFace));
}

void DrawCheckBox(const Canvas& canvas, const Rect& rect, u32 state, const SystemColors& colors)
{
    const Rect box = MiddleSquare(rect);
    if (box.IsEmpty())
        return;
    const bool inactive = (state & DFCS_INACTIVE) != 0;
    const bool dimGround = inactive || (state & DFCS_PUSHED) != 0;
    Fill(canvas, box, SystemPixel(colors, dimGround ? SystemColor::ButtonFace : SystemColor::Window));
    if (state & DFCS_FLAT)
        DrawFrame(canvas, box, SystemPixel(colors, inactive ? SystemColor::ButtonShadow : SystemColor::WindowFrame));
    else
        DrawEdges(canvas, box, BDR_SUNKENOUTER | BDR_SUNKENINNER, BF_RECT, colors);
    if (state & DFCS_CHECKED) {
        const u32 mark = SystemPixel(colors, inactive ? SystemColor::GrayText : SystemColor::WindowText);
        DrawCheckMark(canvas.view, canvas.view.map.ToDevice(box), mark);
    }
}

void InvertFocusRect(const Canvas& canvas, const Rect& rect)
{
    if (rect.IsEmpty())
        return;
    InvertOddPixels(canvas, TopLine(rect));
    if (rect.Height() > 1)
        InvertOddPixels(canvas, BottomLine(rect));
    // The corners belong to the rows above; inverted twice they would be gone.
    const Rect between { rect.left, rect.top + 1, rect.right, rect.bottom - 1 };
    InvertOddPixels(canvas, LeftLine(between));
    if (rect.Width() > 1)
        InvertOddPixels(canvas, RightLine(between));
}

} // namespace vornix
