// The table itself: rows, columns and cells, by internal index, fixed ones first.
//
// Both arrays hold one element more than there are real lines: the filler row at MaxRow and the filler column at MaxCol.
// A subscript outside raises error 9, a count that leaves 16 bits error 6, memory that runs out error 7.
#pragma once

#include "model/cell.h"
#include "model/format_table.h"
#include "model/grid_defaults.h"
#include "vornix/types.h"

#include <string>
#include <string_view>
#include <vector>

namespace vornix {

struct Row {
    bool Resizable = false;
    OleColor LineColor = 0;
    i16 Height = 0; // 0 while hidden
    i16 SavedHeight = 0;
    i32 RecordPos = 0;
    bool Hidden = false;
    i16 NextSkip = 0; // the next row of the chain is r + NextSkip + 1
    i16 PrevSkip = 0; // the one before is r - PrevSkip - 1
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

class GridStore {
public:
    GridStore();

    GridDefaults Defaults;

    // Counts. Rows and Cols are the lines that are not fixed.
    i16 Rows() const;
    i16 Cols() const;
    i16 FixedRows() const;
    i16 FixedCols() const;
    i16 MaxRow() const;
    i16 MaxCol() const;
    i16 LastRowIndex() const;
    i16 LastColIndex() const;
    void StoreRows(i16 rows); // the counts alone; the arrays are resized by the operations below
    void StoreCols(i16 cols);
    void StoreFixedRows(i16 rows);
    void StoreFixedCols(i16 cols);
    void RefreshLastIndices(); // LastRowIndex and LastColIndex from MaxRow and MaxCol

    // Lines.
    const Row& RowAt(int row) const;
    Row& RowAt(int row);
    const Column& ColumnAt(int col) const;
    Column& ColumnAt(int col);

    // Cells. Cell() reads; the others write and give the row a block of its own first.
    const Cell& CellAt(int row, int col) const;
    Cell& EditCell(int row, int col);
    const CellFormat& Format(int row, int col) const;
    void SetFormat(int row, int col, const CellFormat& format);
    void EditFormat(int row, int col, const FormatEdit& edit);
    // Cells first..last of a line, both included; the edit runs once for each distinct format.
    void EditColFormats(int col, int firstRow, int lastRow, const FormatEdit& edit);
    void EditRowFormats(int row, int firstCol, int lastCol, const FormatEdit& edit);
    void EditRectFormats(int firstRow, int firstCol, int lastRow, int lastCol, const FormatEdit& edit);
    const CellFormat& ColDefaults(int col) const;
    void EditColDefaults(int col, const FormatEdit& edit);
    FormatTable& Formats();

    // Operations on the arrays, named in the order they build on one another.
    void InitGridStore();
    void ResizeRowStore(int newMaxRow);
    void ResizeColStore(int newMaxCol);
    void ShiftRowsDown(int destination, int source);
    void ShiftRowsUp(int position, int count);
    void ShiftColsDown(int destination, int source);
    void ShiftColsUp(int position, int count);
    void InitRows(int first, int last);
    void InitFixedRows(int first, int last);
    void InitCols(int first, int last);
    void InitFixedCols(int first, int last);
    void InitFillerCol();
    void InitFillerRow();
    // Contents stay; attributes, sizes and spans go back to the defaults.
    void ResetAttributes();

    // Bytes held by rows, cells and their texts.
    std::size_t MemoryInUse() const;

private:
    // ... rows_, columns_, formats_, counts
};

} // namespace vornix
