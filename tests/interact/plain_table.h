// A table as one would draw it: lists of cells, and a list of rectangles for those that are merged. Slow and obvious, to
// stand beside the real one. Internal indices of real lines; the last ones have no filler behind them.
#pragma once

#include "interact/table_edit.h"

#include <map>
#include <string>
#include <vector>

namespace vornix {

class PlainTable {
public:
    struct Cell {
        std::u16string text;
        std::u16string key;
    };
    struct Row {
        std::vector<Cell> cells;
        i16 height = 0;
        i16 savedHeight = 0;
        bool hidden = false;
    };
    // As the cell that carries them reads them; 0 and 1 cover one line.
    struct Stored {
        i16 rows = 0;
        i16 cols = 0;
    };
    struct Place {
        int row = 0;
        int col = 0;
        auto operator<=>(const Place&) const = default;
    };

    PlainTable(int rowCount, int colCount, int fixedRowCount, int fixedColCount, i16 heightOfNewRows);

    int fixedRows;
    int fixedCols;
    i16 defaultHeight;
    bool hasTitle = false;
    std::vector<Row> rows;
    std::vector<std::u16string> colNames;
    std::map<Place, Stored> spans;
    int currentRow = CurrentCell::None;
    int currentCol = CurrentCell::None;
    SelectCollection selection;

    int RowCount() const { return static_cast<int>(rows.size()); }
    int ColCount() const { return static_cast<int>(colNames.size()); }
    Rect RectOf(Place place) const;
    // The cell that carries the rectangle around this one, or the cell itself.
    Place ParentOf(Place place) const;
    bool HasSpanAcrossRow(int row) const;
    bool HasSpanAcrossCol(int col) const;

    void InsertRows(int position, int count);
    void InsertCols(int position, int count);
    void DeleteRows(int position, int count);
    void DeleteCols(int position, int count);
    void MoveRow(int from, int to);
    void MoveCol(int from, int to);
    void SwapRows(int row1, int row2);
    void SwapCols(int col1, int col2);
    void CopyCell(Place from, Place to);
    void CopyRow(int from, int to);
    void CopyCol(int from, int to);
    void SetRowSpan(Place place, i16 span);
    void SetColSpan(Place place, i16 span);
    void HideRow(int row);
    void ShowRow(int row);

private:
    Cell& At(Place place)
    {
        return rows[static_cast<std::size_t>(place.row)].cells[static_cast<std::size_t>(place.col)];
    }
    Row& RowAt(int row) { return rows[static_cast<std::size_t>(row)]; }
    bool IsTitleCol(int col) const { return hasTitle && fixedRows > 0 && col == fixedCols; }
    void RemoveSpansAt(Place place);
    void SetSpan(Place place, i16 span, bool isColumns);
    void CopySpan(Place from, Place to);
    void CopyCol(int from, int to, int firstRow);
    void DropSelectedCells();
    void ForgetCurrentOutside();

    // What becomes of a stretch that begins at `first` when lines go.
    struct Stretch {
        int first;
        i16 stored;
        bool remains;
    };
    static Stretch WithoutLines(int first, i16 stored, int position, int count);
    static Stretch WithNewLines(int first, i16 stored, int position, int count);
    void RewriteSpans(bool alongRows, int position, int count, bool isInsertion);
};

} // namespace vornix
