#include "render/paint_walk.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

PaintWalk::PaintWalk(const PaintContext& context, CellPainter& painter)
    : context_(context)
    , painter_(painter)
{
}

void PaintWalk::ResetCache()
{
    cachedRow_ = NoIndex;
    cachedCol_ = NoIndex;
}

void PaintWalk::PaintGrid(PaintJob& job)
{
    const int room = FindLastCol();
    const int lastColOfDrag = paintLastCol_;
    EndColumns(job, room);
    FindLastRow();
    context_.interaction.PaintRangeChanged(paintLastRow_, lastColOfDrag);
    const int y = PaintRows(job);
    if (!job.stopped)
        EndRows(job, y);
}

// LastCol counts whole columns only. Gives the pixels by which the columns pass the right edge, negative when they end
// before it.
int PaintWalk::FindLastCol()
{
    ScrollModel& scroll = context_.scroll;
    const int lastIndex = context_.store.LastColIndex();
    int lastCol = lastIndex;
    int room = context_.layout.SmoothOffset() - context_.layout.ClientWidth() + context_.layout.FrozenColsWidth();
    if (context_.store.LastRowIndex() >= 0) {
        for (int col = scroll.FirstCol(); col <= lastIndex; ++col) {
            room += WidthOf(col);
            if (room > 0) {
                lastCol = col - 1;
                break;
            }
        }
        lastCol = std::max(lastCol, scroll.FirstCol());
    }
    scroll.SetLastCol(lastCol);
    paintLastCol_ = lastCol >= lastIndex ? lastIndex : lastCol + 1;
    return room;
}

void PaintWalk::EndColumns(PaintJob& job, int room)
{
    if (room >= 0)
        return;
    const LayoutEngine& layout = context_.layout;
    if (!context_.store.Defaults.AdjustLastCol) {
        // With a smooth offset the strip right behind the last column keeps what it showed.
        const int left = layout.ClientWidth() - layout.SmoothOffset() + room;
        FillGap(job, { left, 0, layout.ClientWidth(), layout.ClientHeight() });
        return;
    }
    const int filler = context_.store.MaxCol();
    context_.store.ColumnAt(filler).Width = ToI16(-room);
    paintLastCol_ = filler;
}

void PaintWalk::FindLastRow()
{
    ScrollModel& scroll = context_.scroll;
    const int lastIndex = context_.store.LastRowIndex();
    int lastRow = lastIndex;
    int y = 0;
    for (int row = 0; row <= lastIndex; row = NextRow(row)) {
        row = ScrollJump(row, context_.store.FixedRows(), scroll.FirstRow());
        if (row > lastIndex)
            break;
        y += HeightOf(row);
        if (y > context_.layout.ClientHeight()) {
            lastRow = row - 1;
            break;
        }
    }
    lastRow = std::max(lastRow, scroll.FirstRow());
    scroll.SetLastRow(lastRow);
    paintLastRow_ = lastRow >= lastIndex ? lastIndex : lastRow + 1;
}

// Gives the y behind the last row. A handler may take rows and columns away meanwhile.
int PaintWalk::PaintRows(PaintJob& job)
{
    int y = 0;
    for (int row = 0; row <= paintLastRow_; row = NextRow(row)) {
        row = ScrollJump(row, context_.store.FixedRows(), context_.scroll.FirstRow());
        if (row > paintLastRow_ || !context_.store.ContainsRow(row))
            break;
        PaintRow(job, row, y);
        if (job.stopped)
            break;
        y += HeightOf(row);
    }
    return y;
}

void PaintWalk::PaintRow(PaintJob& job, int row, int y)
{
    cachedTop_ = y;
    cachedRow_ = row;
    int x = 0;
    for (int col = 0; col <= paintLastCol_; ++col) {
        col = ScrollJump(col, context_.layout.FirstScrollCol(), context_.scroll.FirstCol());
        if (col > paintLastCol_ || !context_.store.ContainsCol(col) || !context_.store.ContainsRow(row))
            break;
        cachedLeft_ = x;
        cachedCol_ = col;
        PaintCellAt(job, row, col);
        if (job.stopped)
            break;
        x += WidthOf(col);
        if (col == context_.scroll.FirstCol())
            x += context_.layout.SmoothOffset();
    }
}

void PaintWalk::EndRows(PaintJob& job, int y)
{
    const LayoutEngine& layout = context_.layout;
    if (y >= layout.ClientHeight())
        return;
    if (!context_.store.Defaults.AdjustLastRow) {
        FillGap(job, { 0, y, layout.ClientWidth(), layout.ClientHeight() });
        return;
    }
    const int filler = context_.store.MaxRow();
    context_.store.RowAt(filler).Height = ToI16(layout.ClientHeight() - y);
    paintLastRow_ = filler;
    PaintRow(job, filler, y);
}

void PaintWalk::FillGap(PaintJob& job, const Rect& gap) const
{
    if (job.target)
        job.target->FillRect(gap, context_.container.WindowDevice().GetBkColor());
}

bool PaintWalk::PaintCellAt(PaintJob& job, int row, int col)
{
    const int firstRow = row < context_.store.FixedRows() ? 0 : context_.scroll.FirstRow();
    const int firstCol = col < context_.layout.FirstScrollCol() ? 0 : context_.scroll.FirstCol();
    if (!ResolveSpan(row, col, firstRow, firstCol))
        return false;
    LocateCol(col);
    LocateRow(row);
    CellPlacement place = PlacementOf(row, col, firstRow, firstCol);
    if (row == 0 && context_.layout.Settings.CaptionEnabled) {
        if (job.captionPainted)
            return true;
        PlaceCaption(place, job);
    }
    cellRect_ = place.Visible();
    painter_.PaintCellScreen(job, place);
    return true;
}

// Which cell is painted in the place of this one: itself, its parent, or none because another cell stands for the span.
bool PaintWalk::ResolveSpan(int& row, int& col, int firstRow, int firstCol) const
{
    const Cell& cell = context_.store.CellAt(row, col);
    if (!cell.IsChild())
        return true;
    const auto [parentRow, parentCol] = ParentCell(context_.store, row, col);
    if (parentRow == row && parentCol == col)
        return true;
    const bool scrolledOut = parentRow < firstRow || parentCol < firstCol;
    if (scrolledOut) {
        // The clipped span is drawn from the first visible row or column of it.
        if (row != firstRow && col != firstCol)
            return false;
    } else if (HeightOf(parentRow) != 0 || IsPaintedByEarlierRow(row, parentRow)) {
        return false;
    }
    row = parentRow;
    col = parentCol;
    return true;
}

// Of a span whose parent row is hidden: whether a showing row of it lies above this one.
bool PaintWalk::IsPaintedByEarlierRow(int row, int parentRow) const
{
    const int previous = row - context_.store.RowAt(row).PrevSkip - 1;
    // The first row that is not fixed stays in the chain even when it is hidden.
    return previous >= parentRow && previous != context_.store.FixedRows();
}

void PaintWalk::LocateCol(int col)
{
    if (col == cachedCol_)
        return;
    int x = 0;
    for (int i = 0; i < col; ++i) {
        if (i == context_.layout.FirstScrollCol()) {
            i = std::max(i, context_.scroll.FirstCol());
            if (col <= i)
                break;
            x += context_.layout.SmoothOffset();
        }
        x += WidthOf(i);
    }
    cachedCol_ = col;
    cachedLeft_ = x;
}

void PaintWalk::LocateRow(int row)
{
    if (row == cachedRow_)
        return;
    int y = 0;
    for (int i = 0; i < row; ++i) {
        i = ScrollJump(i, context_.store.FixedRows(), context_.scroll.FirstRow());
        if (row <= i)
            break;
        y += HeightOf(i);
    }
    cachedRow_ = row;
    cachedTop_ = y;
}

CellPlacement PaintWalk::PlacementOf(int row, int col, int firstRow, int firstCol) const
{
    CellPlacement place { .row = row, .col = col, .position = { cachedLeft_, cachedTop_ }, .size = {}, .source = {} };
    if (row < firstRow)
        place.source.y = SumHeights(row, firstRow - 1);
    if (col <= context_.scroll.FirstCol()) {
        if (col >= context_.layout.FirstScrollCol())
            place.source.x = -context_.layout.SmoothOffset();
        if (col != firstCol)
            place.source.x += SumWidths(col, firstCol - 1);
    }
    const auto [lastRow, lastCol] = LastCoveredCell(context_.store, row, col);
    place.size = { SumWidths(col, lastCol), SumHeights(row, lastRow) };
    return place;
}

// Every column of row 0 stands for the one caption, as wide as the control.
void PaintWalk::PlaceCaption(CellPlacement& place, PaintJob& job)
{
    place.col = context_.store.FixedCols();
    place.position = {};
    place.source = {};
    place.size.width = job.printing ? job.printedWidth : context_.container.ClientSize().width;
    cachedCol_ = NoIndex;
    job.captionPainted = (context_.store.Format(place.row, place.col).Style & vxCustomDraw) == 0;
}

int PaintWalk::ScrollJump(int index, int firstScrolling, int firstVisible)
{
    return index == firstScrolling ? std::max(index, firstVisible) : index;
}

int PaintWalk::HeightOf(int row) const
{
    return context_.store.ContainsRow(row) ? context_.store.HeightOf(row) : 0;
}

int PaintWalk::WidthOf(int col) const
{
    return context_.store.ContainsCol(col) ? context_.store.WidthOf(col) : 0;
}

int PaintWalk::SumHeights(int first, int last) const
{
    int sum = 0;
    for (int row = first; row <= last; ++row)
        sum += HeightOf(row);
    return sum;
}

int PaintWalk::SumWidths(int first, int last) const
{
    int sum = 0;
    for (int col = first; col <= last; ++col)
        sum += WidthOf(col);
    return sum;
}

int PaintWalk::NextRow(int row) const
{
    const int skip = context_.store.ContainsRow(row) ? context_.store.RowAt(row).NextSkip : 0;
    return row + std::max(skip, 0) + 1;
}

} // namespace vornix
