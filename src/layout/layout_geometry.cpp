// Places, sizes, hits and visibility: what the layout engine answers without changing anything.
#include "layout/layout_engine.h"

#include "automation/checked.h"

#include <algorithm>
#include <limits>

namespace vornix {

namespace {

// The border's share of a place in twips; never scaled.
int BorderTwips(i32 borderStyle)
{
    switch (borderStyle) {
    case vxInset:
        return 30;
    case vxInsetThin:
        return 15;
    default:
        return 0;
    }
}

// No narrowing: the walk ends as soon as the lines pass the client area.
template <class SizeOf> int FirstForLast(int last, int firstScrolling, int frozen, int client, SizeOf sizeOf)
{
    if (last < firstScrolling)
        return last;
    int acc = frozen;
    int best = last;
    for (int line = last; line >= firstScrolling; --line) {
        const int size = sizeOf(line);
        acc += size;
        if (acc > client) // a line too large for the area stands alone
            return size + frozen <= client ? best : line;
        if (size > 0)
            best = line;
    }
    return best;
}

} // namespace

// The walks jump forward only, so that a first line left behind by a change of counts cannot send them back.
int LayoutEngine::FirstRowBehindFixed() const
{
    return std::max<int>(scroll_.FirstRow(), store_.FixedRows());
}

int LayoutEngine::FirstColBehindFrozen() const
{
    return std::max(scroll_.FirstCol(), firstScrollCol_);
}

Point LayoutEngine::CellOriginAt(int row, int col) const
{
    const int endCol = std::min<int>(col, store_.MaxCol());
    i16 x = col > scroll_.FirstCol() ? smoothOffset_ : i16 { 0 };
    x = sums_.AddWidths(x, 0, std::min(endCol, firstScrollCol_) - 1);
    x = sums_.AddWidths(x, FirstColBehindFrozen(), endCol - 1);

    const int endRow = std::min<int>(row, store_.MaxRow());
    i16 y = sums_.AddHeights(0, 0, std::min<int>(endRow, store_.FixedRows()) - 1);
    y = sums_.AddHeights(y, FirstRowBehindFixed(), endRow - 1);
    return { x, y };
}

Point LayoutEngine::CellOriginInTwips(int row, int col, Size twipsPerPixel, i32 borderStyle) const
{
    const Point origin = CellOriginAt(row, col);
    const int border = BorderTwips(borderStyle);
    return { ToI32(std::int64_t { origin.x } * twipsPerPixel.width + border),
        ToI32(std::int64_t { origin.y } * twipsPerPixel.height + border) };
}

Size LayoutEngine::CellSpanSize(int row, int col) const
{
    const auto [parentRow, parentCol] = ParentCell(store_, row, col);
    const auto [lastRow, lastCol] = LastCoveredCell(store_, parentRow, parentCol);
    return { sums_.AddWidths(0, parentCol, lastCol), sums_.AddHeights(0, parentRow, lastRow) };
}

Size LayoutEngine::BlockSize(int row1, int col1, int row2, int col2) const
{
    if (row1 == row2 && col1 == col2)
        return CellSpanSize(row1, col1);
    const auto [firstRow, lastRow] = std::minmax(row1, row2);
    const auto [firstCol, lastCol] = std::minmax(col1, col2);
    const i16 height = sums_.AddHeights(0, firstRow, lastRow);
    return { sums_.AddWidths(0, firstCol, lastCol), height };
}

int LayoutEngine::HitRow(int y) const
{
    if (y < 0 || y > clientHeight_)
        return NoIndex;
    const int last = store_.LastRowIndex();
    const auto fixed = sums_.RowBeyond(y, 0, 0, std::min(last, store_.FixedRows() - 1));
    if (fixed.line != NoIndex)
        return fixed.line;
    return sums_.RowBeyond(y, fixed.edge, FirstRowBehindFixed(), last).line;
}

int LayoutEngine::HitCol(int x) const
{
    if (x < 0 || x > clientWidth_)
        return NoIndex;
    const int last = store_.LastColIndex();
    const auto frozen = sums_.ColBeyond(x, 0, 0, std::min(last, firstScrollCol_ - 1));
    if (frozen.line != NoIndex)
        return frozen.line;
    return sums_.ColBeyond(x, frozen.edge + smoothOffset_, FirstColBehindFrozen(), last).line;
}

HitResult LayoutEngine::HitTestCell(int x, int y) const
{
    HitResult hit;
    hit.row = HitRow(y);
    hit.col = HitCol(x);
    if (Settings.CaptionEnabled && hit.row == 0)
        hit.col = store_.FixedCols(); // the caption is one cell over the whole width
    hit.found = hit.row >= 0 && hit.col >= 0;
    return hit;
}

int LayoutEngine::NextVisibleCol(int col) const
{
    for (int next = col; next <= store_.LastColIndex(); ++next)
        if (store_.WidthOf(next) != 0)
            return next;
    return col;
}

int LayoutEngine::NextVisibleRow(int row) const
{
    for (int next = row; next <= store_.LastRowIndex(); ++next)
        if (store_.HeightOf(next) != 0)
            return next;
    return row;
}

int LayoutEngine::FirstColForLast(int last) const
{
    return FirstForLast(
        last, firstScrollCol_, frozenColsWidth_, clientWidth_, [this](int col) { return store_.WidthOf(col); });
}

int LayoutEngine::FirstRowForLast(int last) const
{
    return FirstForLast(
        last, store_.FixedRows(), fixedRowsHeight_, clientHeight_, [this](int row) { return store_.HeightOf(row); });
}

int LayoutEngine::HeightLimit(int row) const
{
    const int scrollingArea = scaleSize_.height - hBarHeight_ - fixedRowsHeight_;
    return row < store_.FixedRows() ? scrollingArea + store_.HeightOf(row) : scrollingArea;
}

int LayoutEngine::WidthLimit(int col) const
{
    const int scrollingArea = scaleSize_.width - vBarWidth_ - frozenColsWidth_;
    if (col < firstScrollCol_)
        return scrollingArea + store_.WidthOf(col);
    return Settings.ScrollHBar == vxScrollSmooth ? std::numeric_limits<int>::max() : scrollingArea;
}

bool LayoutEngine::IsVisibleRow(int row) const
{
    return row < store_.FixedRows() || (row >= scroll_.FirstRow() && row <= scroll_.LastRow());
}

bool LayoutEngine::IsBeforeView(CellIndex cell) const
{
    const bool isAbove = cell.row >= store_.FixedRows() && cell.row < scroll_.FirstRow();
    const bool isLeft = cell.col >= firstScrollCol_ && cell.col < scroll_.FirstCol();
    return isAbove || isLeft;
}

bool LayoutEngine::IsVisibleCol(int col) const
{
    if (col < store_.FixedCols())
        return true;
    if (col == scroll_.FirstCol() && smoothOffset_ != 0) // a half-shown column does not count
        return false;
    return col >= scroll_.FirstCol() && col <= scroll_.LastCol();
}

} // namespace vornix
