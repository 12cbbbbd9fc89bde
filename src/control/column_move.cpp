#include "control/column_move.h"

#include "automation/checked.h"

#include <algorithm>
#include <utility>

namespace vornix {

void ColumnMove::MoveLeft(int from, int to)
{
    const std::vector<MovedSpan> spans = TakeSpans(from, to);
    RotateRecords(from, to);
    for (int row = 0; row <= store_.MaxRow(); ++row)
        RotateCells(row, from, to);
    for (const MovedSpan& span : spans) {
        spans_.SetColSpan(span.parent.row, span.parent.col, span.cols);
        spans_.SetRowSpan(span.parent.row, span.parent.col, span.rows);
    }
}

std::vector<ColumnMove::MovedSpan> ColumnMove::TakeSpans(int from, int to)
{
    std::vector<MovedSpan> result;
    for (int row = 0; row <= store_.LastRowIndex(); ++row) {
        for (int col = 0; col <= from; ++col) {
            const Cell& cell = store_.CellAt(row, col);
            const int last = col + cell.ColSpan() - 1;
            // One that ends before the move, or moves as a whole, stays as it is.
            if (cell.ColSpan() < 2 || last < to || (col >= to && last < from))
                continue;
            const MovedSpan span { { row, col }, std::max<i16>(cell.RowSpan(), 1), cell.ColSpan() };
            spans_.RemoveSpan(row, col);
            AddResult(result, span, from, to);
        }
    }
    return result;
}

void ColumnMove::AddResult(std::vector<MovedSpan>& result, const MovedSpan& old, int from, int to) const
{
    const int last = old.parent.col + old.cols - 1;
    const auto narrower = static_cast<i16>(old.cols - 1);
    if (old.parent.col < to) {
        // The column enters the span, unless it was inside before.
        result.push_back({ old.parent, old.rows, last < from ? ToI16(old.cols + 1) : old.cols });
        return;
    }
    // The column leaves the span. A parent takes the size with it, what it leaves gets a parent of its own.
    result.push_back({ { old.parent.row, old.parent.col + 1 }, old.rows, narrower });
    if (old.parent.col == from)
        result.push_back({ { old.parent.row, to }, old.rows, old.cols });
}

void ColumnMove::RotateRecords(int from, int to)
{
    Column moved = std::move(store_.ColumnAt(from));
    for (int col = from; col > to; --col)
        store_.ColumnAt(col) = std::move(store_.ColumnAt(col - 1));
    store_.ColumnAt(to) = std::move(moved);
}

void ColumnMove::RotateCells(int row, int from, int to)
{
    Cell moved = std::move(store_.EditCell(row, from));
    for (int col = from; col > to; --col)
        store_.EditCell(row, col) = std::move(store_.EditCell(row, col - 1));
    store_.EditCell(row, to) = std::move(moved);
}

} // namespace vornix
