// The arrays of the store: their sizes, and lines moving in them.
#include "model/grid_store.h"

#include "automation/checked.h"
#include "model/rewrite_blocks.h"

#include <algorithm>
#include <utility>

namespace vornix {

namespace {

// Array bounds as the counts add up to them: error 6 above 16 bits, error 9 below 0.
i16 CheckedUpperBound(int bound)
{
    const i16 narrow = ToI16(bound);
    if (narrow < 0)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    return narrow;
}

// Copies items source..upper to destination onward. An item whose own place is overwritten later is moved: the
// result is what copying would give. `items` is anything with operator[] and size().
template <typename Items> void ShiftDown(Items& items, int destination, int source)
{
    const int count = static_cast<int>(items.size());
    if (source >= count || source == destination)
        return;
    CheckedIndex(source, count);
    CheckedIndex(destination, count);
    const int distance = source - destination;
    for (int from = source; from < count; ++from) {
        auto& item = items[static_cast<std::size_t>(from)];
        auto& place = items[static_cast<std::size_t>(CheckedIndex(from - distance, count))];
        if (distance > 0 && from + distance < count)
            place = std::move(item);
        else
            place = item;
    }
}

// Copies items position..upper - distance to position + distance onward, from the top down.
template <typename Items> void ShiftUp(Items& items, int position, int distance)
{
    const int count = static_cast<int>(items.size());
    const int top = count - 1 - distance;
    if (position > top || distance == 0)
        return;
    CheckedIndex(position, count);
    CheckedIndex(top, count);
    for (int from = top; from >= position; --from) {
        auto& item = items[static_cast<std::size_t>(from)];
        auto& place = items[static_cast<std::size_t>(CheckedIndex(from + distance, count))];
        if (from - distance >= position)
            place = std::move(item);
        else
            place = item;
    }
}

} // namespace

void GridStore::ResizeRowStore(int newMaxRow)
{
    if (newMaxRow == maxRow_)
        return;
    const i16 bound = CheckedUpperBound(newMaxRow);
    const std::size_t newTop = static_cast<std::size_t>(bound);
    const std::size_t oldTop = Subscript(maxRow_, RowArraySize());
    if (newTop < oldTop) {
        rows_[newTop] = std::move(rows_[oldTop]);
        rows_.Resize(newTop + 1);
    } else if (newTop > oldTop) {
        OrOutOfMemory([&] { rows_.Resize(newTop + 1); });
        rows_[newTop] = rows_[oldTop];
        // The rows between have cells from the start, whatever these show until the caller fills them.
        for (std::size_t row = oldTop + 1; row < newTop; ++row)
            rows_[row].Cells = rows_[oldTop].Cells;
    }
    maxRow_ = bound;
    lastRowIndex_ = ToI16(maxRow_ - 1);
}

void GridStore::ResizeColStore(int newMaxCol)
{
    const i16 bound = CheckedUpperBound(newMaxCol);
    const int count = bound + 1;
    CheckedIndex(maxCol_, ColArraySize());
    if (count > ColArraySize())
        GrowCellBlocks(count);
    else
        for (Row& row : rows_)
            row.Cells.Resize(count);
    columns_.resize(static_cast<std::size_t>(count));
    maxCol_ = bound;
    lastColIndex_ = ToI16(maxCol_ - 1);
}

void GridStore::GrowCellBlocks(int count)
{
    OrOutOfMemory([&] { columns_.reserve(static_cast<std::size_t>(count)); });
    std::size_t done = 0;
    SharedRewrites shared;
    try {
        for (Row& row : rows_) {
            shared.Apply(row.Cells, [&](CellBlock& block) { block.Resize(count); });
            ++done;
        }
    } catch (...) {
        for (std::size_t row = 0; row < done; ++row)
            rows_[row].Cells.ForgetTail(ColArraySize());
        throw;
    }
}

void GridStore::ShiftRowsDown(int destination, int source)
{
    ShiftDown(rows_, destination, source);
}

void GridStore::ShiftRowsUp(int position, int count)
{
    ShiftUp(rows_, position, count);
}

void GridStore::InsertRows(int position, int count)
{
    const i16 rows = ToI16(rowCount_ + count);
    const i16 maxRow = ToI16(fixedRowCount_ + rows);
    const CellBlock cells = NewRowCells();
    OrOutOfMemory([&] { rows_.Insert(Subscript(position, RowArraySize()), static_cast<std::size_t>(count)); });
    for (int row = position; row < position + count; ++row) {
        MakeNew(RowAt(row), cells);
        if (row > maxRow_)
            continue;
        const Row& here = RowAt(row + count);
        RowAt(row).Hidden = here.Hidden;
        RowAt(row).SavedHeight = here.SavedHeight;
    }
    rowCount_ = rows;
    maxRow_ = maxRow;
    RefreshLastIndices();
}

void GridStore::DeleteRows(int position, int count)
{
    CheckedIndex(position + count - 1, maxRow_);
    rows_.Remove(Subscript(position, RowArraySize()), static_cast<std::size_t>(count));
    rowCount_ = ToI16(rowCount_ - count);
    maxRow_ = ToI16(fixedRowCount_ + rowCount_);
    RefreshLastIndices();
}

void GridStore::ShiftColsDown(int destination, int source)
{
    OrOutOfMemory([&] {
        ShiftDown(columns_, destination, source);
        RewriteBlocks(rows_, 0, RowArraySize() - 1, NoPrefetch, [&](CellBlock& block) {
            const std::span<Cell> cells = block.EditAll();
            ShiftDown(cells, destination, source);
        });
    });
}

void GridStore::ShiftColsUp(int position, int count)
{
    OrOutOfMemory([&] {
        ShiftUp(columns_, position, count);
        RewriteBlocks(rows_, 0, RowArraySize() - 1, NoPrefetch, [&](CellBlock& block) {
            const std::span<Cell> cells = block.EditAll();
            ShiftUp(cells, position, count);
        });
    });
}

} // namespace vornix
