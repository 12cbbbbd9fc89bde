#include "interact/cell_step.h"

#include "automation/key_codes.h"

#include <algorithm>

namespace vornix {

CellStep::Result CellStep::From(CellIndex cell, int key) const
{
    switch (key) {
    case Keys::Up:
        return { Above(cell), true };
    case Keys::Down:
        return { Below(cell), true };
    case Keys::Left:
        return { LeftOf(cell), true };
    case Keys::Right:
        return { RightOf(cell), true };
    default:
        return { cell, false };
    }
}

CellIndex CellStep::Above(CellIndex cell) const
{
    const CellIndex parent = spans_.ParentOf(cell.row, cell.col);
    return InRow(std::max<int>(hidden_.PrevInChain(parent.row), store_.FixedRows()), cell, parent);
}

CellIndex CellStep::Below(CellIndex cell) const
{
    const CellIndex parent = spans_.ParentOf(cell.row, cell.col);
    const int lastOfSpan
        = std::min(parent.row + spans_.RowsCovered(parent.row, parent.col) - 1, int { store_.LastRowIndex() });
    return InRow(std::min<int>(hidden_.NextInChain(lastOfSpan), store_.LastRowIndex()), cell, parent);
}

// The column is that of the cell and not of its parent: on the way down through a wide span it stays.
CellIndex CellStep::InRow(int row, CellIndex cell, CellIndex parent) const
{
    // Without rows that scroll, the way up from a fixed row leads behind the last one.
    const bool canStand = row <= store_.LastRowIndex() && store_.HeightOf(row) != 0;
    return spans_.ParentOf(canStand ? row : parent.row, cell.col);
}

// At the edge the way goes on in the next row by index, hidden or not.
CellIndex CellStep::LeftOf(CellIndex cell) const
{
    int row = cell.row;
    int col = spans_.ParentOf(cell.row, cell.col).col - 1;
    if (row > store_.FixedRows() && col < store_.FixedCols()) {
        --row;
        col = store_.FixedCols() + store_.Cols() - 1;
    }
    while (col >= store_.FixedCols() && store_.WidthOf(col) == 0)
        --col;
    return col >= store_.FixedCols() ? spans_.ParentOf(row, col) : cell;
}

CellIndex CellStep::RightOf(CellIndex cell) const
{
    const CellIndex parent = spans_.ParentOf(cell.row, cell.col);
    int row = cell.row;
    int col = parent.col + spans_.ColsCovered(parent.row, parent.col);
    if (col > store_.LastColIndex() && row < store_.FixedRows() + store_.Rows() - 1) {
        ++row;
        col = store_.FixedCols();
    }
    while (col <= store_.LastColIndex() && store_.WidthOf(col) == 0)
        ++col;
    return col <= store_.LastColIndex() ? spans_.ParentOf(row, col) : cell;
}

} // namespace vornix
