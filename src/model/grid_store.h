// The table itself: rows, columns and cells, by internal index, fixed ones first.
//
// Both arrays hold one element more than there are real lines: the filler row at MaxRow and the filler column at
// MaxCol. A subscript outside raises error 9, a count that leaves 16 bits error 6, memory that runs out error 7.
// Nothing is rolled back after a failure, but the table stays whole: every row has as many cells as there are columns.
#pragma once

#include "model/cell.h"
#include "model/cell_block.h"
#include "model/column_settings.h"
#include "model/format_table.h"
#include "model/gap_array.h"
#include "model/grid_defaults.h"
#include "vornix/types.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vornix {

struct Row {
    OleColor LineColor = 0;
    i32 RecordPos = 0;
    i16 Height = 0; // 0 while hidden
    i16 SavedHeight = 0;
    i16 NextSkip = 0; // the next row of the chain is r + NextSkip + 1
    i16 PrevSkip = 0; // the one before is r - PrevSkip - 1
    bool Resizable = false;
    bool Hidden = false;
    CellBlock Cells; // 0 to MaxCol
};

struct Column {
    bool Resizable = false;
    OleColor LineColor = 0;
    i16 Width = 0; // 0 while hidden
    i16 SavedWidth = 0;
    i16 WidthPercent = 0;
    i16 Order = 0; // the public index at creation
    i16 UseAsField[2] = { 0, 0 }; // for text and key
    std::u16string Source;
    std::u16string Format;
    i32 SortType = 0;
    i32 SortCriteria = 0;
    bool SortUseKey = false;
    std::u16string Name;
    std::u16string Title;
    bool Hidden = false;
    std::u16string Mask;
    bool SpanRows = false;
    FormatId CellDefaults = 0;
};

using CellEdit = std::function<void(Cell&)>;
using CellBlockEdit = std::function<void(std::span<Cell>)>;

// References to rows, columns and cells hold until the next operation that changes the arrays or writes cells; those to
// formats until the next write of a format. A Row or Column taken out as a copy must be back before the next write of a
// format, for the store counts only its own use of format numbers.
class GridStore {
public:
    GridStore();
    GridStore(const GridStore&) = delete;
    GridStore& operator=(const GridStore&) = delete;

    GridDefaults Defaults;

    // Counts. Rows and Cols are the lines that are not fixed. A new store has one of each and no arrays yet.
    i16 Rows() const { return rowCount_; }
    i16 Cols() const { return colCount_; }
    i16 FixedRows() const { return fixedRowCount_; }
    i16 FixedCols() const { return fixedColCount_; }
    i16 MaxRow() const { return maxRow_; }
    i16 MaxCol() const { return maxCol_; }
    i16 LastRowIndex() const { return lastRowIndex_; }
    i16 LastColIndex() const { return lastColIndex_; }
    // The counts alone; the arrays are resized by the operations below.
    void StoreRows(i16 rows) { rowCount_ = rows; }
    void StoreCols(i16 cols) { colCount_ = cols; }
    void StoreFixedRows(i16 rows) { fixedRowCount_ = rows; }
    void StoreFixedCols(i16 cols) { fixedColCount_ = cols; }
    void RefreshLastIndices(); // LastRowIndex and LastColIndex from MaxRow and MaxCol

    bool ContainsRow(int row) const { return row >= 0 && row < RowArraySize(); }
    bool ContainsCol(int col) const { return col >= 0 && col < ColArraySize(); }

    // Lines.
    const Row& RowAt(int row) const { return rows_[Subscript(row, RowArraySize())]; }
    Row& RowAt(int row) { return rows_[Subscript(row, RowArraySize())]; }
    const Column& ColumnAt(int col) const { return columns_[Subscript(col, ColArraySize())]; }
    Column& ColumnAt(int col) { return columns_[Subscript(col, ColArraySize())]; }
    i16 HeightOf(int row) const { return RowAt(row).Height; }
    i16 WidthOf(int col) const { return ColumnAt(col).Width; }

    // Cells. CellAt reads; EditCell is for writing and gives the row a block of its own first.
    const Cell& CellAt(int row, int col) const { return RowAt(row).Cells.At(col); }
    Cell& EditCell(int row, int col) { return RowAt(row).Cells.Edit(col); }
    const CellFormat& Format(int row, int col) const { return formats_[CellAt(row, col).FormatNumber()]; }
    const CellFormat& FormatOf(const Cell& cell) const { return formats_[cell.FormatNumber()]; }
    void SetFormat(int row, int col, const CellFormat& format);
    void EditFormat(int row, int col, const FormatEdit& edit);
    // Cells first..last of a line, both included and nothing when first is above last; the edit runs once for each
    // distinct format. A range that leaves the array raises error 9; cells before its end may be written then.
    void EditColFormats(int col, int firstRow, int lastRow, const FormatEdit& edit);
    void EditRowFormats(int row, int firstCol, int lastCol, const FormatEdit& edit);
    void EditRectFormats(int firstRow, int firstCol, int lastRow, int lastCol, const FormatEdit& edit);
    // The same for what is not a format. Rows that share their cells go on sharing them: the edit runs once for all.
    void EditColCells(int col, int firstRow, int lastRow, const CellEdit& edit);
    // All cells of a row together, the filler's included.
    void EditRowBlocks(int firstRow, int lastRow, const CellBlockEdit& edit);
    const CellFormat& ColDefaults(int col) const { return formats_[ColumnAt(col).CellDefaults]; }
    void EditColDefaults(int col, const FormatEdit& edit);
    void SetColDefaults(int col, const CellFormat& format);
    FormatTable& Formats() { return formats_; }
    const FormatTable& Formats() const { return formats_; }

    // Null when there are none.
    void SetColumnSettings(ColumnSettings* settings) { columnSettings_ = settings; }

    // Operations on the arrays, named in the order they build on one another.

    // Builds everything anew from the counts and Defaults. Fixed totals, first visible lines, mouse and current cell
    // memories and the caption are their owners' business.
    void InitGridStore(const SystemColors& colors);
    // Nothing when unchanged. The filler row stays on top.
    void ResizeRowStore(int newMaxRow);
    // Moves no filler: the caller shifts it.
    void ResizeColStore(int newMaxCol);
    // Copies lines source..upper bound to destination onward. What is left over above them keeps its old content.
    void ShiftRowsDown(int destination, int source);
    void ShiftColsDown(int destination, int source);
    // Copies lines position..upper bound - count to position + count onward. The lines left over keep their old
    // content.
    void ShiftRowsUp(int position, int count);
    void ShiftColsUp(int position, int count);
    // Hidden and SavedHeight of the rows stay as they were.
    void InitRows(int first, int last);
    // New rows, as InitRows makes them, in front of one that is not fixed, or of the filler; Hidden and SavedHeight
    // stay with the places, for the rows that move up take theirs along as well. `Rows` counts them. Failing changes
    // nothing.
    void InsertRows(int position, int count);
    // One and more rows from `position` on, not the filler; `Rows` counts them no more. Needs no memory.
    void DeleteRows(int position, int count);
    void InitFixedRows(int first, int last);
    // Key and span of the cells stay.
    void InitCols(int first, int last);
    void InitFixedCols(int first, int last);
    void InitFillerCol();
    void InitFillerRow();
    // Contents stay; attributes, sizes and spans go back to the defaults. The chain of visible rows stays too.
    void ResetAttributes();

    // Bytes held by rows, columns, cells, their texts and the formats; what the allocator adds is not counted.
    std::size_t MemoryInUse() const;

private:
    static std::size_t Subscript(int index, int count) { return static_cast<std::size_t>(CheckedIndex(index, count)); }
    int RowArraySize() const { return static_cast<int>(rows_.size()); }
    int ColArraySize() const { return static_cast<int>(columns_.size()); }

    // A block with the CellDefaults of every column.
    CellBlock NewRowCells();
    CellBlock NewFixedRowCells();
    void ResetLine(Row& row, i16 height) const;
    void MakeNew(Row& row, const CellBlock& cells) const;
    void ResetLine(Column& column, i16 width) const;
    void BuildColumns();
    void BuildRows();
    void CopyTitlesToHeader();
    // Columns first..last anew in rows of the range: format by column, no text, no picture.
    using FormatOfCol = std::function<FormatId(int col)>;
    void ResetCells(int firstRow, int lastRow, int firstCol, int lastCol, const FormatOfCol& formatOf);
    void GrowCellBlocks(int count);
    // Frees the numbers of formats that nothing uses any more, when many new ones have come.
    void SweepFormats();

    GapArray<Row> rows_;
    std::vector<Column> columns_;
    FormatTable formats_;
    ColumnSettings* columnSettings_ = nullptr;
    i16 rowCount_ = 1;
    i16 colCount_ = 1;
    i16 fixedRowCount_ = 0;
    i16 fixedColCount_ = 0;
    i16 maxRow_ = 0;
    i16 maxCol_ = 0;
    i16 lastRowIndex_ = -1;
    i16 lastColIndex_ = -1;
};

} // namespace vornix
