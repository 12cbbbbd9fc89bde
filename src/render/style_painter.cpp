#include "render/style_painter.h"

namespace vornix {

namespace {

GradientVertex Vertex(int x, int y, const GradientColor& color)
{
    return { x, y, static_cast<u16>(color.Red), static_cast<u16>(color.Green), static_cast<u16>(color.Blue) };
}

// Left and top edge, then right and bottom edge, one pixel each. Lines leave out their end point.
void PaintTopLeft(Device& device, Size cell, ColorRef color)
{
    device.Polyline({ color, 1 }, { { 0, cell.height - 1 }, { 0, 0 }, { cell.width, 0 } });
}

void PaintBottomRight(Device& device, Size cell, ColorRef color)
{
    const int right = cell.width - 1;
    const int bottom = cell.height - 1;
    device.Polyline({ color, 1 }, { { 0, bottom }, { right, bottom }, { right, -1 } });
}

void PaintRaisedEdges(Device& device, Size cell, const FrameColors& colors)
{
    PaintTopLeft(device, cell, colors.light);
    PaintBottomRight(device, cell, colors.shadow);
}

void PaintButtonEdges(Device& device, Size cell, const FrameColors& colors)
{
    const int right = cell.width - 2;
    const int bottom = cell.height - 2;
    device.Polyline({ colors.shadow, 1 }, { { 0, bottom }, { right, bottom }, { right, 0 } });
    PaintTopLeft(device, cell, colors.light);
    PaintBottomRight(device, cell, colors.dark);
}

Rect BoxRect(Size cell)
{
    return { 0, 0, cell.width - 1, cell.height - 1 };
}

} // namespace

void PaintGradient(Device& device, Size cell, i32 mode, const GradientColor& start, const GradientColor& stop)
{
    const bool fromEnd = mode == vxGradientRL || mode == vxGradientBT;
    const bool vertical = mode == vxGradientTB || mode == vxGradientBT;
    device.GradientFill(Vertex(0, 0, fromEnd ? stop : start), Vertex(cell.width, cell.height, fromEnd ? start : stop),
        vertical ? GradientDirection::Vertical : GradientDirection::Horizontal);
}

void PrepareRoundBox(Device& device, Size cell, ColorRef outside)
{
    device.FillRect({ 0, 0, cell.width, cell.height }, outside);
    const Rect inside = BoxRect(cell);
    device.SetClip(&inside);
}

void PaintRoundFrame(Device& device, Size cell, const FrameColors& colors)
{
    device.FrameRect(BoxRect(cell), colors.shadow);
    const int right = cell.width - 2;
    const int bottom = cell.height - 2;
    device.SetPixel(0, 0, colors.outside);
    device.SetPixel(right, 0, colors.outside);
    device.SetPixel(0, bottom, colors.outside);
    device.SetPixel(right, bottom, colors.outside);
}

void PaintRoundBoxSide(Device& device, Size cell, ColorRef color)
{
    device.Polyline({ color, 1 }, { { 2, 2 }, { 2, cell.height - 3 } });
}

bool PaintStyleEdges(Device& device, Size cell, i32 style, const FrameColors& colors)
{
    switch (style) {
    case vxCellRaised:
        PaintRaisedEdges(device, cell, colors);
        return true;
    case vxCellButton:
        PaintButtonEdges(device, cell, colors);
        return true;
    case vxCellInset:
        device.DrawEdge({ 0, 0, cell.width, cell.height }, BDR_SUNKENOUTER, BF_RECT);
        return true;
    case vxCellBox:
        device.FrameRect(BoxRect(cell), colors.shadow);
        return false;
    case vxCellRoundBox:
        PaintRoundFrame(device, cell, colors);
        return false;
    default:
        return false;
    }
}

void PaintSunkenEdges(Device& device, Size cell, const FrameColors& colors)
{
    PaintTopLeft(device, cell, colors.shadow);
    PaintBottomRight(device, cell, colors.light);
}

void PaintGridLines(Device& device, Size cell, const GridLineLook& look)
{
    const int right = cell.width - 1;
    const int bottom = cell.height - 1;
    const Pen rowPen { look.rowColor, look.width };
    const Pen colPen { look.colColor, look.width };
    switch (look.kind) {
    case vxRow:
        device.Polyline(rowPen, { { 0, bottom }, { cell.width, bottom } });
        break;
    case vxColumn:
        device.Polyline(colPen, { { right, 0 }, { right, cell.height } });
        break;
    case vxBoth:
        device.Polyline(rowPen, { { 0, bottom }, { right, bottom } });
        device.Polyline(colPen, { { right, bottom }, { right, -1 } });
        break;
    default:
        break;
    }
}

} // namespace vornix
