// Where the bars stand, and the steps of the program that move the view. What the user does with the bars is in
// scrolling_notifications.cpp.
#include "interact/scrolling.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

namespace {

Rect Placed(int left, int top, int width, int height)
{
    return { left, top, left + width, top + height };
}

} // namespace

Scrolling::Bar::Bar(Container& container, ChildName name, i32 orientation, Relay relayOfBar)
    : native(container.ScrollBar(name))
    , window(native ? container.Child(name) : unseen)
    , relay(relayOfBar)
    , control(window, native ? *native : unseen, relay)
{
    control.InitProperties();
    control.SetOrientation(orientation);
}

Scrolling::Scrolling(ScrollContext context)
    : context_(context)
    , positions_(context.store, context.layout, context.scroll, context.hidden)
    , hBar_(context.container, ChildName::scrH, 0,
          Relay(*this, &Scrolling::HorizontalChange, &Scrolling::HorizontalTrack))
    , vBar_(context.container, ChildName::scrV, 1, Relay(*this, &Scrolling::VerticalChange, &Scrolling::VerticalTrack))
{
}

void Scrolling::UpdateScrollBars()
{
    if (!context_.gate.IsOpen())
        return;
    const LayoutEngine& layout = context_.layout;
    if (layout.Settings.CaptionEnabled && layout.ClientHeight() <= context_.store.HeightOf(0))
        return HideAllBars();
    UpdateHorizontalBar();
    UpdateVerticalBar();
    PlaceCorner();
}

// Only the caption fits.
void Scrolling::HideAllBars()
{
    LayoutEngine& layout = context_.layout;
    hBar_.control.Hide();
    vBar_.control.Hide();
    HideSplitHandle();
    layout.SetHBarHeight(0);
    layout.SetClientHeight(ToI16(layout.ScaleSize().height));
    PlaceCorner();
}

// And the line of a drag, which gets no release without it.
void Scrolling::HideSplitHandle()
{
    context_.container.Child(ChildName::picSplitCol).Show(false);
    context_.container.Child(ChildName::picSplitMove).Show(false);
}

void Scrolling::UpdateHorizontalBar()
{
    LayoutEngine& layout = context_.layout;
    const ChildWindow& handle = context_.container.Child(ChildName::picSplitCol);
    if (layout.HBarHeight() == 0 || layout.Settings.ScrollHBar == vxNoScrollBar) {
        hBar_.control.Hide();
        HideSplitHandle();
        layout.SetSmoothOffset(0);
        layout.DropSplit(); // a split lives only as long as the bar
        return;
    }
    const bool handleAtBar = layout.Settings.ShowSplit && layout.Settings.SplitCols == 0;
    const int left = handleAtBar ? handle.Place().Width() : 0;
    const int width = std::max(0, layout.ClientWidth() - left);
    hBar_.window.Move(Placed(left, layout.ClientHeight() - 1, width, layout.HBarHeight() + 1));
    context_.container.Child(ChildName::cPivot).Raise();
    UpdateHScrollRange();
    PlaceSplitHandle();
    hBar_.control.Show();
}

void Scrolling::PlaceSplitHandle()
{
    if (!context_.layout.Settings.ShowSplit)
        return;
    if (context_.paint.PaintSplitBar())
        UpdateHScrollRange();
    context_.container.Child(ChildName::picSplitCol).Show(hBar_.native != nullptr);
}

void Scrolling::UpdateVerticalBar()
{
    const LayoutEngine& layout = context_.layout;
    if (layout.VBarWidth() == 0 || layout.Settings.ScrollVBar == vxNoScrollBar) {
        vBar_.control.Hide();
        context_.scroll.SetFirstRow(context_.store.FixedRows());
        return;
    }
    // The caption stays as wide as the control, above the bar.
    vBar_.window.Move(Placed(layout.ClientWidth(), layout.CaptionHeight(), layout.VBarWidth(),
        layout.ClientHeight() - layout.CaptionHeight()));
    context_.container.Child(ChildName::cPivot).Raise();
    UpdateVScrollRange();
    vBar_.control.Show();
}

// The square between the bars.
void Scrolling::PlaceCorner()
{
    const LayoutEngine& layout = context_.layout;
    ChildWindow& corner = context_.container.Child(ChildName::cPivot);
    const bool bothBars = hBar_.control.IsShown() && vBar_.control.IsShown();
    if (bothBars) {
        const int side = layout.Settings.ScrollBarSize;
        corner.Move(Placed(layout.ClientWidth(), layout.ClientHeight(), side, side));
    } else {
        const Rect place = corner.Place();
        corner.Move(Placed(-1, place.top, place.Width(), place.Height()));
    }
    corner.Show(bothBars);
}

void Scrolling::UpdateHScrollRange()
{
    if (IsHBarOfOtherUnit()) {
        // A drag that is going on is over: its places mean something else now.
        hBarCountsPixels_ = positions_.IsSmooth();
        hBar_.control.UnSubclass();
        HookBar(hBar_.control);
    }
    const BarRange range = positions_.HRange();
    hBar_.control.SetInfo(range.min, range.max, 1);
    if (positions_.IsSmooth())
        MoveToPixel(range.Limit(positions_.PixelAtLeft())); // the left edge stays on the same pixel of the table
    else
        context_.scroll.SetFirstCol(range.Limit(context_.scroll.FirstCol()));
    hBar_.control.SetValue(HPosition());
}

void Scrolling::UpdateVScrollRange()
{
    const BarRange range = positions_.VRange();
    vBar_.control.SetInfo(range.min, range.max, 1);
    context_.scroll.SetFirstRow(range.Limit(context_.scroll.FirstRow()));
    vBar_.control.SetValue(context_.scroll.FirstRow());
}

void Scrolling::ApplyScrollAndRepaint()
{
    CloseEditor();
    if (!context_.gate.IsOpen())
        return;
    UpdateScrollBars();
    context_.repainter.RepaintGrid();
}

void Scrolling::CloseEditor()
{
    if (context_.editor.IsEditorOpen())
        context_.editor.CloseEditor();
}

bool Scrolling::SetFirstRow(int row)
{
    const int first = std::max<int>(row, context_.store.FixedRows());
    if (first == context_.scroll.FirstRow())
        return false;
    context_.scroll.SetFirstRow(first);
    context_.pages.RollPage();
    ApplyScrollAndRepaint();
    return true;
}

bool Scrolling::SetFirstCol(int col)
{
    if (col == context_.scroll.FirstCol() && context_.layout.SmoothOffset() == 0)
        return false;
    context_.scroll.SetFirstCol(std::max(col, context_.layout.FirstScrollCol()));
    context_.layout.SetSmoothOffset(0);
    ApplyScrollAndRepaint();
    return true;
}

void Scrolling::SetLastRow(int row)
{
    const GridStore& store = context_.store;
    if (row == context_.scroll.LastRow())
        return;
    context_.scroll.SetLastRow(row);
    context_.scroll.SetFirstRow(positions_.ScrollingRowForLast(row));
    context_.paint.SetPaintLastRow(row == store.LastRowIndex() ? store.MaxRow() : row + 1);
    context_.pages.RollPage();
    ApplyScrollAndRepaint();
}

void Scrolling::SetLastCol(int col)
{
    const GridStore& store = context_.store;
    LayoutEngine& layout = context_.layout;
    if (col == context_.scroll.LastCol() && layout.SmoothOffset() == 0)
        return;
    context_.scroll.SetLastCol(col);
    context_.scroll.SetFirstCol(positions_.ScrollingColForLast(col));
    context_.paint.SetPaintLastCol(col == store.LastColIndex() ? store.MaxCol() : col + 1);
    layout.SetSmoothOffset(0);
    ApplyScrollAndRepaint();
}

bool Scrolling::EnsureCellVisible(int row, int col)
{
    if (context_.layout.Settings.CaptionEnabled && row == 0)
        return false;
    const CellIndex parent = context_.spans.ParentOf(row, col);
    const bool movedAcross = BringColIntoView(col, parent);
    const bool movedDown = BringRowIntoView(row, parent);
    if (!movedAcross && !movedDown)
        return false;
    context_.repainter.RecalcLayout(false);
    return true;
}

bool Scrolling::BringColIntoView(int col, CellIndex parent)
{
    LayoutEngine& layout = context_.layout;
    ScrollModel& scroll = context_.scroll;
    if (col < context_.store.FixedCols())
        return false;
    if (col >= layout.FirstScrollCol() && col <= scroll.FirstCol()) {
        if (col == scroll.FirstCol() && layout.SmoothOffset() == 0)
            return false;
        scroll.SetFirstCol(col);
    } else if (col <= scroll.LastCol()) {
        return false; // split columns too
    } else {
        // The whole span comes into view where it fits.
        const int lastOfSpan = parent.col + context_.spans.ColsCovered(parent.row, parent.col) - 1;
        scroll.SetFirstCol(positions_.ScrollingColForLast(lastOfSpan));
    }
    layout.SetSmoothOffset(0);
    return true;
}

bool Scrolling::BringRowIntoView(int row, CellIndex parent)
{
    ScrollModel& scroll = context_.scroll;
    if (row < context_.store.FixedRows())
        return false;
    if (row < scroll.FirstRow()) {
        scroll.SetFirstRow(row);
        return true;
    }
    if (row <= scroll.LastRow())
        return false;
    const int lastOfSpan = parent.row + context_.spans.RowsCovered(parent.row, parent.col) - 1;
    scroll.SetFirstRow(positions_.ScrollingRowForLast(lastOfSpan));
    return true;
}

} // namespace vornix
