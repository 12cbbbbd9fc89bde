#include "interact/line_sizing.h"

#include "automation/checked.h"

#include <algorithm>
#include <limits>

namespace vornix {

namespace {

// In whole pixels, never back.
int WayFrom(int origin, float place)
{
    const float way = std::max(place - static_cast<float>(origin), 0.0F);
    return static_cast<int>(std::min(way, static_cast<float>(std::numeric_limits<i16>::max())));
}

} // namespace

LineSizing::LineSizing(LineSizingContext context)
    : context_(context)
    , resizers_(context.store, context.layout, context.scroll)
{
}

HitResult LineSizing::HitTest(int x, int y)
{
    if (IsSizing())
        return context_.layout.HitTestCell(x, y);
    const ResizerHit hit = resizers_.HitTest(x, y);
    candidateRow_ = hit.row;
    candidateCol_ = hit.col;
    return hit.cell;
}

// -- The cursor --

void LineSizing::ShowCursor(PointerShape shape)
{
    cursorShown_ = shape != PointerShape::Default;
    cursor_ = shape;
    context_.container.SetPointerShape(shape);
}

void LineSizing::RestoreCursor()
{
    ShowCursor(PointerShape::Default);
}

void LineSizing::UpdateCursor(int x, int y, const HitResult& hit)
{
    const PointerShape shape = ShapeAt(x, y, hit);
    if (shape != cursor_)
        ShowCursor(shape);
}

// Columns are sized from the fixed rows, rows from the fixed columns, and nothing from the caption.
PointerShape LineSizing::ShapeAt(int x, int y, const HitResult& hit) const
{
    const LayoutEngine& layout = context_.layout;
    const bool isOnCaption = layout.Settings.CaptionEnabled && hit.row == 0;
    if (y <= layout.FixedRowsHeight() && IsRealCol(candidateCol_) && !sizingCol_) {
        if (isOnCaption)
            return PointerShape::Default;
        if (OffersCol(hit.row, candidateCol_))
            return PointerShape::SizeWE;
    }
    if (x <= layout.FixedColsWidth() && IsRealRow(candidateRow_) && !sizingRow_) {
        if (!isOnCaption && OffersRow(candidateRow_, hit.col))
            return PointerShape::SizeNS;
    }
    return PointerShape::Default;
}

// Only the last column of a span may be sized from within it.
bool LineSizing::OffersCol(int row, int col) const
{
    if (!IsRealRow(row))
        return false;
    const CellIndex parent = context_.spans.ParentOf(row, col);
    const int lastOfSpan = parent.col + context_.spans.ColsCovered(parent.row, parent.col) - 1;
    const Column& column = context_.store.ColumnAt(col);
    return col == lastOfSpan && column.Resizable && !column.Hidden;
}

bool LineSizing::OffersRow(int row, int col) const
{
    if (!IsRealCol(col))
        return false;
    const CellIndex parent = context_.spans.ParentOf(row, col);
    const int lastOfSpan = parent.row + context_.spans.RowsCovered(parent.row, parent.col) - 1;
    const Row& line = context_.store.RowAt(row);
    return row == lastOfSpan && line.Resizable && !line.Hidden;
}

// -- The drag --

bool LineSizing::Begin(int x, int y)
{
    End();
    // A double click fits the line of this press, and none that an earlier one has caught.
    col_ = row_ = NoIndex;
    const HitResult hit = HitTest(x, y);
    const bool acrossCols = cursor_ == PointerShape::SizeWE;
    const int candidate = acrossCols ? candidateCol_ : candidateRow_;
    // The line may have been locked, hidden or taken away since the cursor showed.
    if (candidate < 0 || ShapeAt(x, y, hit) != cursor_) {
        RestoreCursor();
        return false;
    }
    const LayoutEngine& layout = context_.layout;
    if (acrossCols) {
        col_ = candidate;
        originX_ = layout.CellOriginAt(0, col_).x;
        sizingCol_ = true;
    } else {
        row_ = candidate;
        originY_ = layout.CellOriginAt(row_, 0).y;
        sizingRow_ = true;
    }
    return true;
}

void LineSizing::SizeTo(float x, float y)
{
    if (sizingCol_)
        SizeColTo(x);
    else if (sizingRow_)
        SizeRowTo(y);
}

void LineSizing::End()
{
    sizingCol_ = false;
    sizingRow_ = false;
}

void LineSizing::SizeColTo(float x)
{
    const int col = col_;
    if (!IsRealCol(col))
        return;
    originX_ = context_.layout.CellOriginAt(0, col).x; // the view may have scrolled
    i16 width = WidthAt(x, col);
    {
        const RedrawGate::Closed closed(context_.gate);
        context_.events.ResizeCol(ToI16(col - context_.store.FixedCols()), width);
    }
    if (IsRealCol(col))
        StoreWidth(col, std::max<int>(width, 0));
    PaintAtOnce();
}

void LineSizing::SizeRowTo(float y)
{
    const int row = row_;
    if (!IsRealRow(row))
        return;
    if (!context_.layout.Settings.ResizingRows) // otherwise the rows before it move as well
        originY_ = context_.layout.CellOriginAt(row, 0).y;
    i16 height = HeightAt(y, row);
    {
        const RedrawGate::Closed closed(context_.gate);
        context_.events.ResizeRow(ToI16(row - context_.store.FixedRows()), height);
    }
    if (IsRealRow(row))
        StoreHeight(row, std::max<int>(height, 0));
    PaintAtOnce();
}

i16 LineSizing::WidthAt(float x, int col) const
{
    int width = WayFrom(originX_, x);
    if (col == context_.scroll.FirstCol())
        width -= context_.layout.SmoothOffset();
    return ToI16(std::max(std::min(width, context_.layout.WidthLimit(col)), 0));
}

i16 LineSizing::HeightAt(float y, int row) const
{
    return ToI16(std::max(std::min(WayFrom(originY_, y), context_.layout.HeightLimit(row)), 0));
}

void LineSizing::StoreWidth(int col, int width)
{
    context_.layout.SetColWidth(col, width);
    if (col >= context_.layout.FirstScrollCol() && col < context_.scroll.FirstCol())
        TakeFirstCol(col);
    if (width == 0)
        TakeFirstCol(context_.scrolling.Positions().FirstVisibleScrollCol());
}

// The pixels by which another column was pushed out are not its own.
void LineSizing::TakeFirstCol(int col)
{
    if (col == context_.scroll.FirstCol())
        return;
    context_.scroll.SetFirstCol(col);
    context_.layout.SetSmoothOffset(0);
}

void LineSizing::StoreHeight(int row, int height)
{
    ScrollModel& scroll = context_.scroll;
    const bool isFixed = row < context_.store.FixedRows();
    if (context_.layout.Settings.ResizingRows && !isFixed)
        StoreHeightOfAllRows(height);
    else
        context_.layout.SetRowHeight(row, height);
    if (row >= context_.store.FixedRows() && row < scroll.FirstRow() && IsRealRow(row))
        scroll.SetFirstRow(row);
    if (height == 0)
        scroll.SetFirstRow(context_.scrolling.Positions().FirstVisibleScrollRow());
}

void LineSizing::StoreHeightOfAllRows(int height)
{
    GridStore& store = context_.store;
    const i16 stored = ToI16(height);
    for (int row = store.FixedRows(); row <= store.LastRowIndex(); ++row) {
        Row& line = store.RowAt(row);
        (line.Hidden ? line.SavedHeight : line.Height) = stored;
    }
    context_.hidden.RebuildChain();
    if (height == 0 && context_.page.PageSize() > 0)
        RefillPage();
}

void LineSizing::RefillPage()
{
    const RedrawGate::Closed closed(context_.gate);
    context_.events.PopulateGrid(context_.page.Offset(), 0, ToI16(context_.store.Rows() - 1));
}

// Whatever the host has said about drawing.
void LineSizing::PaintAtOnce()
{
    const RedrawGate::Opened opened(context_.gate);
    context_.repainter.RecalcLayout(false);
}

void LineSizing::FitLine()
{
    if (cursor_ == PointerShape::SizeWE && IsRealCol(col_))
        context_.fitting.AdjustWidth(col_);
    else if (cursor_ == PointerShape::SizeNS && IsRealRow(row_))
        context_.fitting.AdjustHeight(row_);
}

} // namespace vornix
