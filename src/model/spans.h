// Merged cells. Nothing is kept beside the cells: a parent carries the size, its children the way back to it.
//
// Spans do not overlap, a cell is a child of at most one parent, and a rectangle lies below MaxRow and MaxCol: the
// operations keep that by removing older spans that are in the way.
#pragma once

#include "model/grid_store.h"

#include <functional>
#include <string_view>

namespace vornix {

struct CellIndex {
    int row = 0;
    int col = 0;
    friend bool operator==(const CellIndex&, const CellIndex&) = default;
};

// Whether two texts count as equal.
using TextsEqual = std::function<bool(std::u16string_view, std::u16string_view)>;

// The parent of a cell, or the cell itself; so also for one whose link leads nowhere, as rows that were exchanged leave
// them behind.
CellIndex ParentCell(const GridStore& store, int row, int col);
// The last cell that a parent covers, as far as the store goes.
CellIndex LastCoveredCell(const GridStore& store, int row, int col);
// A cell is a child of the parent of its rectangle, and of no other.
void LinkToParent(GridStore& store, CellIndex child, CellIndex parent);

struct SpanDirection;

class Spans {
public:
    explicit Spans(GridStore& store)
        : store_(store)
    {
    }

    // Stores the span in the cell, removing older spans it touches, and gives back what the cell has then. A span that
    // would leave the store changes nothing; one whose place plus size leaves 16 bits is error 6. `force` writes the
    // links only.
    i16 SetColSpan(int row, int col, i16 span, bool force = false);
    i16 SetRowSpan(int row, int col, i16 span, bool force = false);
    // Clears the whole span of a parent.
    void RemoveSpan(int row, int col);

    // Before lines are cut off: removes the spans that cover both this line and the one before it.
    void RemoveSpansAcrossRow(int row);
    void RemoveSpansAcrossCol(int col);

    CellIndex ParentOf(int row, int col) const { return ParentCell(store_, row, col); }
    // The cells a parent covers in each direction, 1 and more.
    int RowsCovered(int row, int col) const;
    int ColsCovered(int row, int col) const;

    // Merges runs of neighbouring equal cells of one column, by text or by key, and marks the column. False, and
    // nothing done, when there are no rows.
    bool MergeEqualRows(int col, bool useKey, const TextsEqual& equal);
    // Removes the spans over several rows that begin in the column, and its mark.
    void RemoveMergedRows(int col);

private:
    i16 SetSpan(const SpanDirection& along, CellIndex cell, i16 span, bool force);
    void RemoveSpanAt(CellIndex cell);
    // Makes way at a cell that a growing span takes.
    void Free(CellIndex cell);
    void ClearLinks(CellIndex cell);

    GridStore& store_;
};

} // namespace vornix
