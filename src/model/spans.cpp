#include "model/spans.h"

#include "automation/checked.h"
#include "model/span_direction.h"

#include <algorithm>
#include <string>

namespace vornix {

namespace {

// 0 and 1 are treated alike, and so is whatever a host made negative.
int SizeOf(i16 stored)
{
    return std::max<int>(stored, 1);
}

} // namespace

CellIndex ParentCell(const GridStore& store, int row, int col)
{
    const Cell& cell = store.CellAt(row, col);
    const CellIndex parent { row + cell.ParentRow(), col + cell.ParentCol() };
    if (!cell.IsChild() || parent.row < 0 || parent.col < 0)
        return { row, col };
    const CellIndex last = LastCoveredCell(store, parent.row, parent.col);
    return row <= last.row && col <= last.col ? parent : CellIndex { row, col };
}

CellIndex LastCoveredCell(const GridStore& store, int row, int col)
{
    const Cell& cell = store.CellAt(row, col);
    return { std::min(row + SizeOf(cell.RowSpan()) - 1, std::max<int>(store.LastRowIndex(), row)),
        std::min(col + SizeOf(cell.ColSpan()) - 1, std::max<int>(store.LastColIndex(), col)) };
}

void LinkToParent(GridStore& store, CellIndex child, CellIndex parent)
{
    // A cell that stands as it is keeps its row's cells shared.
    const Cell& before = store.CellAt(child.row, child.col);
    const i16 parentRow = ToI16(parent.row - child.row);
    const i16 parentCol = ToI16(parent.col - child.col);
    if (before.ParentRow() == parentRow && before.ParentCol() == parentCol)
        return;
    Cell& cell = store.EditCell(child.row, child.col);
    cell.SetParentCol(parentCol);
    cell.SetParentRow(parentRow);
}

i16 Spans::SetColSpan(int row, int col, i16 span, bool force)
{
    return SetSpan(SpanDirection::Cols(), { row, col }, span, force);
}

i16 Spans::SetRowSpan(int row, int col, i16 span, bool force)
{
    return SetSpan(SpanDirection::Rows(), { row, col }, span, force);
}

i16 Spans::SetSpan(const SpanDirection& along, CellIndex cell, i16 span, bool force)
{
    const Cell& parent = store_.CellAt(cell.row, cell.col);
    if (span == 0)
        span = 1;
    const int place = along.Place(cell);
    const int placeAcross = along.PlaceAcross(cell);
    const int end = ToI16(place + span);
    if (end > along.Bound(store_) || placeAcross >= along.BoundAcross(store_))
        return along.Stored(parent);
    if (!force && parent.IsChild()) {
        RemoveSpanAt(ParentOf(cell.row, cell.col));
        ClearLinks(cell);
    }

    const Cell& alone = store_.CellAt(cell.row, cell.col);
    const int endAcross = std::min(placeAcross + SizeOf(along.StoredAcross(alone)), along.BoundAcross(store_));
    const int oldEnd = std::min(place + SizeOf(along.Stored(alone)), along.Bound(store_));
    for (int across = placeAcross; across < endAcross; ++across) {
        // A grown part takes its cells from older spans; a forced one takes them all, as they are.
        for (int target = force ? place : oldEnd; target < end; ++target) {
            const CellIndex child = along.At(across, target);
            if (!force)
                Free(child);
            LinkToParent(store_, child, cell);
        }
        if (force)
            continue;
        // A shrunk part lets its cells go, the parent's own row or column never.
        for (int target = std::max(end, place + 1); target < oldEnd; ++target)
            ClearLinks(along.At(across, target));
    }
    along.Store(store_.EditCell(cell.row, cell.col), span);
    return span;
}

void Spans::Free(CellIndex cell)
{
    const Cell& target = store_.CellAt(cell.row, cell.col);
    if (target.RowSpan() > 0 || target.ColSpan() >= 1)
        RemoveSpanAt(cell);
    if (store_.CellAt(cell.row, cell.col).IsChild())
        RemoveSpanAt(ParentOf(cell.row, cell.col));
}

void Spans::ClearLinks(CellIndex cell)
{
    LinkToParent(store_, cell, cell);
}

void Spans::RemoveSpan(int row, int col)
{
    RemoveSpanAt({ row, col });
}

void Spans::RemoveSpanAt(CellIndex cell)
{
    const int endRow = std::min(cell.row + RowsCovered(cell.row, cell.col), store_.MaxRow() + 1);
    const int endCol = std::min(cell.col + ColsCovered(cell.row, cell.col), store_.MaxCol() + 1);
    for (int row = cell.row; row < endRow; ++row)
        for (int col = cell.col; col < endCol; ++col)
            ClearLinks({ row, col });
    Cell& parent = store_.EditCell(cell.row, cell.col);
    parent.SetRowSpan(0);
    parent.SetColSpan(0);
}

void Spans::RemoveSpansAcrossRow(int row)
{
    for (int col = 0; col <= store_.LastColIndex(); ++col)
        if (store_.CellAt(row, col).ParentRow() < 0)
            RemoveSpanAt(ParentOf(row, col));
}

void Spans::RemoveSpansAcrossCol(int col)
{
    for (int row = 0; row <= store_.LastRowIndex(); ++row)
        if (store_.CellAt(row, col).ParentCol() < 0)
            RemoveSpanAt(ParentOf(row, col));
}

int Spans::RowsCovered(int row, int col) const
{
    return LastCoveredCell(store_, row, col).row - row + 1;
}

int Spans::ColsCovered(int row, int col) const
{
    return LastCoveredCell(store_, row, col).col - col + 1;
}

bool Spans::MergeEqualRows(int col, bool useKey, const TextsEqual& equal)
{
    if (store_.Rows() == 0)
        return false;
    const auto valueAt = [&](int row) {
        const Cell& cell = store_.CellAt(row, col);
        return useKey ? OrOutOfMemory([&] { return std::u16string(cell.Key()); }) : cell.Text();
    };
    const auto closeRun = [&](int firstRow, int endRow) {
        if (endRow - firstRow > 1)
            SetRowSpan(firstRow, col, ToI16(endRow - firstRow));
    };
    int firstRow = store_.FixedRows();
    std::u16string value = valueAt(firstRow);
    for (int row = firstRow; row <= store_.LastRowIndex(); ++row) {
        std::u16string next = valueAt(row);
        if (equal(next, value))
            continue;
        closeRun(firstRow, row);
        firstRow = row;
        value = std::move(next);
    }
    closeRun(firstRow, store_.MaxRow());
    store_.ColumnAt(col).SpanRows = true;
    return true;
}

void Spans::RemoveMergedRows(int col)
{
    for (int row = store_.FixedRows(); row <= store_.LastRowIndex(); ++row)
        if (RowsCovered(row, col) > 1)
            RemoveSpan(row, col);
    store_.ColumnAt(col).SpanRows = false;
}

} // namespace vornix
