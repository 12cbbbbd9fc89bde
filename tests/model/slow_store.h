// The store as plain records in plain arrays, everything copied: slow and obvious, to compare the real one with.
#pragma once

#include "model/grid_store.h"

#include <functional>
#include <string>
#include <vector>

namespace vornix {

struct SlowCell {
    std::u16string text;
    std::u16string key;
    PicturePtr picture;
    int rowSpan = 0;
    int colSpan = 0;
    int parentRow = 0;
    int parentCol = 0;
    bool pressed = false;
    CellFormat format;
    friend bool operator==(const SlowCell&, const SlowCell&) = default;
};

struct SlowRow {
    bool resizable = false;
    OleColor lineColor = 0;
    int height = 0;
    int savedHeight = 0;
    int recordPos = 0;
    bool hidden = false;
    int nextSkip = 0;
    int prevSkip = 0;
    std::vector<SlowCell> cells;
    friend bool operator==(const SlowRow&, const SlowRow&) = default;
};

struct SlowColumn {
    bool resizable = false;
    OleColor lineColor = 0;
    int width = 0;
    int widthPercent = 0;
    int order = 0;
    int useAsField = 0;
    std::u16string name;
    std::u16string title;
    std::u16string mask;
    CellFormat cellDefaults;
    friend bool operator==(const SlowColumn&, const SlowColumn&) = default;
};

class SlowStore {
public:
    SlowStore(const GridDefaults& defaults, int rows, int cols, int fixedRows, int fixedCols);

    GridDefaults defaults;
    int rowCount;
    int colCount;
    int fixedRows;
    int fixedCols;
    std::vector<SlowRow> rows;
    std::vector<SlowColumn> columns;

    int UpperRow() const { return static_cast<int>(rows.size()) - 1; }
    int UpperCol() const { return static_cast<int>(columns.size()) - 1; }
    SlowRow& RowAt(int row) { return rows.at(static_cast<std::size_t>(row)); }
    SlowColumn& ColumnAt(int col) { return columns.at(static_cast<std::size_t>(col)); }
    SlowCell& CellAt(int row, int col) { return RowAt(row).cells.at(static_cast<std::size_t>(col)); }

    void ChangeRows(int n);
    void InsertRows(int position, int n);
    void DeleteRows(int position, int n);
    void ChangeCols(int n);
    void ChangeFixedRows(int n);
    void ChangeFixedCols(int n);
    void ResizeRowStore(int n);
    void ResizeColStore(int n);
    void ShiftRowsDown(int destination, int source);
    void ShiftRowsUp(int position, int n);
    void ShiftColsDown(int destination, int source);
    void ShiftColsUp(int position, int n);
    void InitRows(int first, int last);
    void InitFixedRows(int first, int last);
    void InitCols(int first, int last);
    void InitFixedCols(int first, int last);
    void InitFillerCol();
    void InitFillerRow();
    void ResetAttributes();
    void EditFormats(
        int firstRow, int firstCol, int lastRow, int lastCol, const std::function<void(CellFormat&)>& edit);

private:
    const CellFormat& FormatFor(int row, int col) const;
};

// The first difference in words, empty when there is none.
std::string Difference(const GridStore& store, const SlowStore& slow);

} // namespace vornix
