#include "interact/split_drag.h"

#include "automation/checked.h"
#include "automation/key_codes.h"

namespace vornix {

namespace {

constexpr int LineWidth = 2;
constexpr ColorRef White = 0xFFFFFF;

} // namespace

int SplitDrag::InClientArea(int x) const
{
    return context_.container.Child(ChildName::picSplitCol).Place().left + x;
}

void SplitDrag::Press(i16 button, int x)
{
    if (button == Buttons::Right)
        return;
    PlaceLine(InClientArea(x));
    Line().Show(true);
    Line().Raise();
}

void SplitDrag::Move(int x)
{
    if (Line().IsVisible())
        PlaceLine(InClientArea(x));
}

void SplitDrag::PlaceLine(int left)
{
    Line().Move({ left, 0, left + LineWidth, context_.layout.ClientHeight() });
    DrawLine(left);
}

// The picture of the grid below, inverted.
void SplitDrag::DrawLine(int left)
{
    ChildWindow& line = Line();
    Device* const canvas = line.Canvas();
    if (!canvas)
        return;
    const Rect whole { 0, 0, LineWidth, line.Place().Height() };
    canvas->FillRect(whole, White);
    if (const Surface* const picture = context_.paint.BackStore())
        canvas->BitBlt(whole, *picture, { left, 0 }, RasterOp::SrcInvert);
    line.CanvasChanged();
}

void SplitDrag::Release(i16 button, int x)
{
    if (button == Buttons::Right || !Line().IsVisible())
        return;
    Line().Show(false);
    LayoutEngine& layout = context_.layout;
    if (!layout.Settings.ShowSplit) // switched off during the drag
        return;
    const int col = layout.HitTestCell(InClientArea(x), layout.CaptionHeight() + 1).col;
    if (col < 0 || col >= context_.store.MaxCol() - 2 || CutsSpan(col))
        return;
    layout.SplitBefore(col);
    context_.events.SplitCols(layout.Settings.SplitCols);
    layout.SetSmoothOffset(0);
    context_.scroll.SetFirstCol(layout.FirstScrollCol());
    context_.scrolling.ApplyScrollAndRepaint();
}

// A cell of the column belongs to a span that begins further left. Fixed columns are never split, only left behind.
bool SplitDrag::CutsSpan(int col) const
{
    const GridStore& store = context_.store;
    if (col < store.FixedCols())
        return false;
    for (int row = 0; row <= store.LastRowIndex(); ++row) {
        if (store.CellAt(row, col).ParentCol() < 0)
            return true;
    }
    return false;
}

} // namespace vornix
