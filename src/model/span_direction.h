// A span grows along columns or along rows; the other direction is across. What is said of one holds for both.
#pragma once

#include "model/grid_store.h"
#include "model/spans.h"

namespace vornix {

struct SpanDirection {
    bool isColumns;

    static constexpr SpanDirection Rows() { return { .isColumns = false }; }
    static constexpr SpanDirection Cols() { return { .isColumns = true }; }

    int Place(CellIndex cell) const { return isColumns ? cell.col : cell.row; }
    int PlaceAcross(CellIndex cell) const { return isColumns ? cell.row : cell.col; }
    CellIndex At(int across, int place) const
    {
        return isColumns ? CellIndex { across, place } : CellIndex { place, across };
    }
    int Bound(const GridStore& store) const { return isColumns ? store.MaxCol() : store.MaxRow(); }
    int BoundAcross(const GridStore& store) const { return isColumns ? store.MaxRow() : store.MaxCol(); }
    i16 Stored(const Cell& cell) const { return isColumns ? cell.ColSpan() : cell.RowSpan(); }
    i16 StoredAcross(const Cell& cell) const { return isColumns ? cell.RowSpan() : cell.ColSpan(); }
    void Store(Cell& cell, i16 span) const { isColumns ? cell.SetColSpan(span) : cell.SetRowSpan(span); }
    void StoreAcross(Cell& cell, i16 span) const { isColumns ? cell.SetRowSpan(span) : cell.SetColSpan(span); }
    // Offsets to the parent: 0 or negative.
    i16 Link(const Cell& cell) const { return isColumns ? cell.ParentCol() : cell.ParentRow(); }
    i16 LinkAcross(const Cell& cell) const { return isColumns ? cell.ParentRow() : cell.ParentCol(); }
};

} // namespace vornix
