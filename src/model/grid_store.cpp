#include "model/grid_store.h"

#include "automation/checked.h"
#include "model/rewrite_blocks.h"

#include <algorithm>
#include <unordered_set>

namespace vornix {

namespace {

std::size_t HeapBytesOf(const std::u16string& text)
{
    const bool isInside = text.capacity() <= std::u16string().capacity();
    return isInside ? 0 : (text.capacity() + 1) * sizeof(char16_t);
}

std::size_t HeapBytesOf(const Column& column)
{
    return HeapBytesOf(column.Source) + HeapBytesOf(column.Format) + HeapBytesOf(column.Name)
        + HeapBytesOf(column.Title) + HeapBytesOf(column.Mask);
}

// The cells first..last of a block, up to its end and then with error 9.
template <typename Step> void ForEachCol(const CellBlock& block, int first, int last, const Step& step)
{
    if (first > last)
        return;
    CheckedIndex(first, block.Count());
    const int end = std::min(last + 1, block.Count());
    for (int col = first; col < end; ++col)
        step(col);
    CheckedIndex(last, block.Count());
}

void MapFormat(CellBlock& block, int col, FormatTable::Mapper& mapper)
{
    const FormatId before = block.At(col).FormatNumber();
    const FormatId after = mapper(before);
    if (after != before)
        block.Edit(col).SetFormatNumber(after);
}

} // namespace

GridStore::GridStore() = default;

void GridStore::RefreshLastIndices()
{
    lastRowIndex_ = ToI16(maxRow_ - 1);
    lastColIndex_ = ToI16(maxCol_ - 1);
}

void GridStore::SetFormat(int row, int col, const CellFormat& format)
{
    EditFormat(row, col, [&](CellFormat& target) { target = format; });
}

void GridStore::EditFormat(int row, int col, const FormatEdit& edit)
{
    SweepFormats();
    const FormatId before = CellAt(row, col).FormatNumber();
    const FormatId after = formats_.Edited(before, edit);
    if (after != before)
        EditCell(row, col).SetFormatNumber(after);
}

void GridStore::EditColFormats(int col, int firstRow, int lastRow, const FormatEdit& edit)
{
    SweepFormats();
    FormatTable::Mapper mapper(formats_, edit);
    RewriteBlocks(rows_, firstRow, lastRow, col, [&](CellBlock& block) { MapFormat(block, col, mapper); });
}

void GridStore::EditRowFormats(int row, int firstCol, int lastCol, const FormatEdit& edit)
{
    EditRectFormats(row, firstCol, row, lastCol, edit);
}

void GridStore::EditRectFormats(int firstRow, int firstCol, int lastRow, int lastCol, const FormatEdit& edit)
{
    SweepFormats();
    FormatTable::Mapper mapper(formats_, edit);
    RewriteBlocks(rows_, firstRow, lastRow, NoPrefetch, [&](CellBlock& block) {
        ForEachCol(block, firstCol, lastCol, [&](int col) { MapFormat(block, col, mapper); });
    });
}

void GridStore::EditColCells(int col, int firstRow, int lastRow, const CellEdit& edit)
{
    RewriteBlocks(rows_, firstRow, lastRow, col, [&](CellBlock& block) { edit(block.Edit(col)); });
}

void GridStore::EditRowBlocks(int firstRow, int lastRow, const CellBlockEdit& edit)
{
    RewriteBlocks(rows_, firstRow, lastRow, NoPrefetch, [&](CellBlock& block) { edit(block.EditAll()); });
}

void GridStore::EditColDefaults(int col, const FormatEdit& edit)
{
    SweepFormats();
    Column& column = ColumnAt(col);
    column.CellDefaults = formats_.Edited(column.CellDefaults, edit);
}

void GridStore::SetColDefaults(int col, const CellFormat& format)
{
    EditColDefaults(col, [&](CellFormat& target) { target = format; });
}

void GridStore::SweepFormats()
{
    if (!formats_.WantsSweep())
        return;
    std::vector<bool> marked = OrOutOfMemory([&] { return std::vector<bool>(formats_.NumberLimit()); });
    for (const Column& column : columns_)
        marked[column.CellDefaults] = true;
    const void* previous = nullptr;
    for (const Row& row : rows_) {
        if (row.Cells.Identity() == previous)
            continue;
        previous = row.Cells.Identity();
        for (const Cell& cell : row.Cells.All())
            marked[cell.FormatNumber()] = true;
    }
    formats_.Sweep(marked);
}

std::size_t GridStore::MemoryInUse() const
{
    std::size_t bytes = rows_.capacity() * sizeof(Row) + columns_.capacity() * sizeof(Column) + formats_.HeapBytes();
    for (const Column& column : columns_)
        bytes += HeapBytesOf(column);
    std::unordered_set<const void*> sharedBlocks;
    for (const Row& row : rows_) {
        if (row.Cells.IsShared() && !sharedBlocks.insert(row.Cells.Identity()).second)
            continue;
        bytes += row.Cells.HeapBytes();
    }
    return bytes;
}

} // namespace vornix
