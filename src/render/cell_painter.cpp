#include "render/cell_painter.h"

#include "render/screen_cell.h"

namespace vornix {

CellPainter::CellPainter(
    const PaintContext& context, const PaintSettings& settings, const BackgroundPicture& background)
    : context_(context)
    , settings_(settings)
    , background_(background)
{
}

void CellPainter::BeginPaint()
{
    twipsPerPixel_ = context_.container.TwipsPerPixel();
    palette_ = MakePaintPalette(context_, settings_);
    formats_.Begin(context_.container.Colors(), twipsPerPixel_.height);
}

void CellPainter::EndPaint()
{
    pictures_.Clear();
}

void CellPainter::PaintCellScreen(const PaintJob& job, const CellPlacement& place)
{
    if (!job.target || place.size.width <= 0 || place.size.height <= 0)
        return;
    ScreenCell(*this, job, place).Paint();
}

void CellPainter::Release()
{
    pictures_.Clear();
    selectionSurface_.ClearMemDC();
}

namespace {

void DrawFocusRectOnAll(const PaintJob& job, const Rect& rect)
{
    job.target->DrawFocusRect(rect);
    if (job.mirror)
        job.mirror->DrawFocusRect(rect);
}

} // namespace

void DrawFocusMark(const PaintJob& job, const Rect& visible, i32 kind)
{
    if (kind == vxFocusNone)
        return;
    const Rect mark { visible.left, visible.top, visible.right - 1, visible.bottom - 1 };
    DrawFocusRectOnAll(job, mark);
    if (kind == vxFocusHeavy)
        DrawFocusRectOnAll(job, mark.Inflated(-1, -1));
}

} // namespace vornix
