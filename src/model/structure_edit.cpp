#include "model/structure_edit.h"

#include "automation/checked.h"

#include <algorithm>
#include <utility>

namespace vornix {

// -- Coming and going --

void StructureEdit::InsertRows(int position, int count)
{
    store_.InsertRows(position, count);
    spanEdits_.GrowOverRows(position, count);
    hidden_.RelinkRows(position, position + count - 1);
}

void StructureEdit::InsertCols(int position, int count)
{
    const i16 cols = ToI16(store_.Cols() + count);
    store_.ResizeColStore(ToI16(store_.FixedCols() + cols));
    store_.StoreCols(cols);
    store_.ShiftColsUp(position, count);
    store_.InitCols(position, position + count - 1);
    store_.EditRowBlocks(0, store_.MaxRow(), [=](std::span<Cell> cells) {
        for (Cell& cell : cells.subspan(static_cast<std::size_t>(position), static_cast<std::size_t>(count)))
            cell.ClearSpan();
    });
    spanEdits_.GrowOverCols(position, count);
}

void StructureEdit::DeleteRows(int position, int count)
{
    CheckedIndex(position + count - 1, store_.MaxRow());
    const std::vector<CellIndex> crossing = spanEdits_.CutRows(position, count);
    store_.DeleteRows(position, count);
    spanEdits_.CloseOverRows(crossing, count);
    hidden_.RelinkRows(position, position - 1);
}

void StructureEdit::DeleteCols(int position, int count)
{
    CheckedIndex(position + count - 1, store_.MaxCol());
    const std::vector<CellIndex> crossing = spanEdits_.CutCols(position, count);
    store_.ShiftColsDown(position, position + count);
    store_.StoreCols(ToI16(store_.Cols() - count));
    store_.ResizeColStore(store_.FixedCols() + store_.Cols());
    spanEdits_.CloseOverCols(crossing, count);
}

// -- Changing places --

void StructureEdit::SwapRows(int row1, int row2)
{
    CheckedIndex(row1, store_.MaxRow());
    CheckedIndex(row2, store_.MaxRow());
    Row& first = store_.RowAt(row1);
    Row& second = store_.RowAt(row2);
    std::swap(first, second);
    // The chain knows places, not rows.
    std::swap(first.NextSkip, second.NextSkip);
    std::swap(first.PrevSkip, second.PrevSkip);
    for (const int row : { row1, row2 })
        if (row >= store_.FixedRows())
            hidden_.RelinkRows(row, row);
}

void StructureEdit::SwapCols(int col1, int col2, bool withTitle)
{
    CheckedIndex(col1, store_.MaxCol());
    CheckedIndex(col2, store_.MaxCol());
    std::swap(store_.ColumnAt(col1), store_.ColumnAt(col2));
    store_.EditRowBlocks(withTitle ? 0 : 1, store_.MaxRow(), [=](std::span<Cell> cells) {
        std::swap(cells[static_cast<std::size_t>(col1)], cells[static_cast<std::size_t>(col2)]);
    });
}

// -- Taking over --

void StructureEdit::CopyCell(CellIndex from, CellIndex to)
{
    store_.CellAt(from.row, from.col);
    Cell& target = store_.EditCell(to.row, to.col);
    const Cell& source = store_.CellAt(from.row, from.col);
    const i16 colSpan = source.ColSpan();
    const i16 rowSpan = source.RowSpan();
    target.CopyContents(source);
    spans_.SetColSpan(to.row, to.col, colSpan);
    spans_.SetRowSpan(to.row, to.col, rowSpan);
}

void StructureEdit::CopySpan(CellIndex from, CellIndex to)
{
    const Cell& source = store_.CellAt(from.row, from.col);
    const i16 colSpan = source.ColSpan();
    const i16 rowSpan = source.RowSpan();
    if (colSpan != 0)
        spans_.SetColSpan(to.row, to.col, colSpan);
    if (rowSpan != 0)
        spans_.SetRowSpan(to.row, to.col, rowSpan);
}

void StructureEdit::CopyRow(int from, int to)
{
    store_.RowAt(from);
    for (int col = 0; col <= store_.MaxCol(); ++col)
        store_.EditCell(to, col).CopyContents(store_.CellAt(from, col));
    for (int col = 0; col <= store_.LastColIndex(); ++col)
        CopySpan({ from, col }, { to, col });
}

void StructureEdit::CopyCol(int from, int to, bool withTitle)
{
    store_.ColumnAt(from);
    store_.ColumnAt(to);
    const int firstRow = withTitle ? 0 : 1;
    store_.EditRowBlocks(firstRow, store_.MaxRow(), [=](std::span<Cell> cells) {
        cells[static_cast<std::size_t>(to)].CopyContents(cells[static_cast<std::size_t>(from)]);
    });
    for (int row = firstRow; row <= store_.LastRowIndex(); ++row)
        CopySpan({ row, from }, { row, to });
}

void StructureEdit::CopyRowRecord(int from, int to)
{
    const Row& source = store_.RowAt(from);
    Row& target = store_.RowAt(to);
    const i16 heightBefore = std::exchange(target.Height, source.Height);
    target.Resizable = source.Resizable;
    target.LineColor = source.LineColor;
    target.RecordPos = source.RecordPos;
    hidden_.UpdateChain(to, heightBefore, target.Height);
}

// -- The defaults --

void StructureEdit::ResetRectangle(CellIndex first, CellIndex last)
{
    for (int col = first.col; col <= last.col; ++col)
        ResetColRecord(col);
    for (int row = first.row; row <= last.row; ++row)
        ResetRowRecord(row);
    const GridDefaults& defaults = store_.Defaults;
    const FormatEdit toFixed = [&](CellFormat& format) { format = defaults.DefaultCellFormatFixed; };
    const FormatEdit toPlain = [&](CellFormat& format) { format = defaults.DefaultCellFormat; };
    const int firstRow = std::max<int>(first.row, store_.FixedRows());
    const int firstCol = std::max<int>(first.col, store_.FixedCols());
    store_.EditRectFormats(first.row, first.col, std::min(last.row, firstRow - 1), last.col, toFixed);
    store_.EditRectFormats(firstRow, first.col, last.row, std::min(last.col, firstCol - 1), toFixed);
    store_.EditRectFormats(firstRow, firstCol, last.row, last.col, toPlain);
}

void StructureEdit::ResetColRecord(int col)
{
    const GridDefaults& defaults = store_.Defaults;
    const bool isFixed = col < store_.FixedCols();
    Column blank;
    blank.Resizable = defaults.ColsResizable;
    blank.LineColor = defaults.DefaultLineColor;
    blank.Width = isFixed ? defaults.DefaultWidthFixed : defaults.DefaultWidth;
    store_.ColumnAt(col) = std::move(blank);
    store_.SetColDefaults(col, isFixed ? defaults.DefaultCellFormatFixed : defaults.DefaultCellFormat);
}

void StructureEdit::ResetRowRecord(int row)
{
    const GridDefaults& defaults = store_.Defaults;
    Row& record = store_.RowAt(row);
    record.LineColor = defaults.DefaultLineColor;
    record.Resizable = defaults.RowsResizable;
    const i16 heightBefore
        = std::exchange(record.Height, row < store_.FixedRows() ? defaults.DefaultHeightFixed : defaults.DefaultHeight);
    hidden_.UpdateChain(row, heightBefore, record.Height);
}

} // namespace vornix
