#include "model/slow_store.h"

#include <sstream>

namespace vornix {

SlowStore::SlowStore(
    const GridDefaults& builtDefaults, int rowTotal, int colTotal, int fixedRowTotal, int fixedColTotal)
    : defaults(builtDefaults)
    , rowCount(rowTotal)
    , colCount(colTotal)
    , fixedRows(fixedRowTotal)
    , fixedCols(fixedColTotal)
    , rows(static_cast<std::size_t>(rowTotal + fixedRowTotal + 1))
    , columns(static_cast<std::size_t>(colTotal + fixedColTotal + 1))
{
    for (int col = 0; col <= UpperCol(); ++col) {
        SlowColumn& column = ColumnAt(col);
        column.resizable = defaults.ColsResizable;
        column.lineColor = defaults.DefaultLineColor;
        column.order = col - fixedCols;
        column.width = col < fixedCols ? defaults.DefaultWidthFixed : defaults.DefaultWidth;
        column.cellDefaults = col < fixedCols ? defaults.DefaultCellFormatFixed : defaults.DefaultCellFormat;
    }
    for (int row = 0; row <= UpperRow(); ++row) {
        RowAt(row).cells.resize(columns.size());
        RowAt(row).resizable = defaults.RowsResizable;
        RowAt(row).lineColor = defaults.DefaultLineColor;
        RowAt(row).height = row < fixedRows ? defaults.DefaultHeightFixed : defaults.DefaultHeight;
        for (int col = 0; col <= UpperCol(); ++col)
            CellAt(row, col).format = FormatFor(row, col);
    }
    InitFillerCol();
    InitFillerRow();
}

const CellFormat& SlowStore::FormatFor(int row, int col) const
{
    return row < fixedRows || col < fixedCols ? defaults.DefaultCellFormatFixed : defaults.DefaultCellFormat;
}

void SlowStore::ChangeRows(int n)
{
    const int old = rowCount;
    if (n < 0 || n == old)
        return;
    if (n < old)
        ShiftRowsDown(fixedRows + n, UpperRow());
    ResizeRowStore(fixedRows + n);
    if (n > old) {
        ShiftRowsUp(fixedRows + old, n - old);
        InitRows(fixedRows + old, UpperRow() - 1);
    }
    rowCount = n;
}

void SlowStore::InsertRows(int position, int n)
{
    rowCount += n;
    ResizeRowStore(fixedRows + rowCount);
    ShiftRowsUp(position, n);
    InitRows(position, position + n - 1);
}

void SlowStore::DeleteRows(int position, int n)
{
    ShiftRowsDown(position, position + n);
    rowCount -= n;
    ResizeRowStore(fixedRows + rowCount);
}

void SlowStore::ChangeCols(int n)
{
    const int old = colCount;
    if (n < 0 || n == old)
        return;
    if (n < old)
        ShiftColsDown(fixedCols + n, UpperCol());
    ResizeColStore(fixedCols + n);
    if (n > old) {
        ShiftColsUp(fixedCols + old, n - old);
        InitCols(fixedCols + old, UpperCol() - 1);
        for (int col = fixedCols + old; col < UpperCol(); ++col)
            ColumnAt(col).order = col - fixedCols;
    }
    colCount = n;
}

void SlowStore::ChangeFixedRows(int n)
{
    const int delta = n - fixedRows;
    if (delta < 0)
        ShiftRowsDown(0, -delta);
    ResizeRowStore(rowCount + n);
    if (delta > 0) {
        ShiftRowsUp(0, delta);
        InitFixedRows(0, delta - 1);
    }
    fixedRows = n;
}

void SlowStore::ChangeFixedCols(int n)
{
    const int delta = n - fixedCols;
    if (delta < 0)
        ShiftColsDown(0, -delta);
    if (delta != 0)
        ResizeColStore(colCount + n);
    if (delta > 0) {
        ShiftColsUp(0, delta);
        InitFixedCols(0, delta - 1);
    }
    fixedCols = n;
}

void SlowStore::ResizeRowStore(int n)
{
    const std::vector<SlowRow> old = rows;
    rows.resize(static_cast<std::size_t>(n + 1));
    RowAt(n) = old.back();
}

void SlowStore::ResizeColStore(int n)
{
    columns.resize(static_cast<std::size_t>(n + 1));
    for (SlowRow& row : rows)
        row.cells.resize(static_cast<std::size_t>(n + 1));
}

void SlowStore::ShiftRowsDown(int destination, int source)
{
    for (int row = source; row <= UpperRow(); ++row)
        RowAt(destination + row - source) = SlowRow(RowAt(row));
}

void SlowStore::ShiftRowsUp(int position, int n)
{
    for (int row = UpperRow() - n; row >= position; --row)
        RowAt(row + n) = SlowRow(RowAt(row));
}

void SlowStore::ShiftColsDown(int destination, int source)
{
    for (int col = source; col <= UpperCol(); ++col) {
        ColumnAt(destination + col - source) = SlowColumn(ColumnAt(col));
        for (int row = 0; row <= UpperRow(); ++row)
            CellAt(row, destination + col - source) = SlowCell(CellAt(row, col));
    }
}

void SlowStore::ShiftColsUp(int position, int n)
{
    for (int col = UpperCol() - n; col >= position; --col) {
        ColumnAt(col + n) = SlowColumn(ColumnAt(col));
        for (int row = 0; row <= UpperRow(); ++row)
            CellAt(row, col + n) = SlowCell(CellAt(row, col));
    }
}

void SlowStore::InitRows(int first, int last)
{
    if (first > last || first < fixedRows)
        return;
    for (int index = first; index <= last; ++index) {
        SlowRow& row = RowAt(index);
        row.height = defaults.DefaultHeight;
        row.lineColor = defaults.DefaultLineColor;
        row.resizable = defaults.RowsResizable;
        row.recordPos = row.nextSkip = row.prevSkip = 0;
        row.cells.assign(columns.size(), SlowCell());
        for (int col = 0; col <= UpperCol(); ++col)
            CellAt(index, col).format = ColumnAt(col).cellDefaults;
    }
}

void SlowStore::InitFixedRows(int first, int last)
{
    for (int index = first; index <= last; ++index) {
        SlowRow& row = RowAt(index);
        row.height = defaults.DefaultHeightFixed;
        row.lineColor = defaults.DefaultLineColor;
        row.resizable = defaults.RowsResizable;
        row.recordPos = 0;
        row.cells.assign(columns.size(), SlowCell());
        for (SlowCell& cell : row.cells)
            cell.format = defaults.DefaultCellFormatFixed;
    }
}

void SlowStore::InitCols(int first, int last)
{
    if (first > last || first < fixedCols)
        return;
    for (int col = first; col <= last; ++col) {
        SlowColumn& column = ColumnAt(col);
        column.width = defaults.DefaultWidth;
        column.lineColor = defaults.DefaultLineColor;
        column.resizable = defaults.ColsResizable;
        column.cellDefaults = defaults.DefaultCellFormat;
        for (int row = 0; row <= UpperRow(); ++row) {
            SlowCell& cell = CellAt(row, col);
            cell.format = row < fixedRows ? defaults.DefaultCellFormatFixed : column.cellDefaults;
            cell.text.clear();
            cell.picture = nullptr;
        }
        CellAt(UpperRow(), col).format.Mode = 0;
    }
}

void SlowStore::InitFixedCols(int first, int last)
{
    for (int col = first; col <= last; ++col) {
        SlowColumn& column = ColumnAt(col);
        column.width = defaults.DefaultWidthFixed;
        column.lineColor = defaults.DefaultLineColor;
        column.resizable = defaults.ColsResizable;
        column.cellDefaults = defaults.DefaultCellFormatFixed;
        for (int row = 0; row <= UpperRow(); ++row) {
            CellAt(row, col).format = column.cellDefaults;
            CellAt(row, col).text.clear();
            CellAt(row, col).picture = nullptr;
        }
    }
}

void SlowStore::InitFillerCol()
{
    if (!defaults.AdjustLastCol)
        return;
    SlowColumn& column = ColumnAt(UpperCol());
    column.width = 0;
    column.useAsField = 0;
    column.resizable = false;
    column.lineColor = defaults.DefaultLineColor;
    for (int row = 0; row <= UpperRow(); ++row) {
        SlowCell& cell = CellAt(row, UpperCol());
        cell.rowSpan = cell.colSpan = cell.parentRow = cell.parentCol = 0;
        cell.text.clear();
        cell.picture = nullptr;
        if (row < fixedRows) {
            cell.format = colCount != 0 ? CellAt(row, UpperCol() - 1).format : defaults.DefaultCellFormatFixed;
            continue;
        }
        cell.format = defaults.DefaultCellFormat;
        if (colCount > 0)
            cell.format.BackColor = CellAt(row, UpperCol() - 1).format.BackColor;
    }
}

void SlowStore::InitFillerRow()
{
    if (!defaults.AdjustLastRow)
        return;
    SlowRow& row = RowAt(UpperRow());
    row.height = 0;
    row.resizable = false;
    row.lineColor = defaults.DefaultLineColor;
    for (int col = 0; col <= UpperCol(); ++col) {
        SlowCell& cell = CellAt(UpperRow(), col);
        cell.rowSpan = cell.colSpan = cell.parentRow = cell.parentCol = 0;
        cell.text.clear();
        cell.picture = nullptr;
        if (col >= fixedCols)
            cell.format = defaults.DefaultCellFormat;
        else
            cell.format = rowCount != 0 ? CellAt(rowCount - 1, col).format : defaults.DefaultCellFormatFixed;
    }
}

void SlowStore::ResetAttributes()
{
    for (int col = 0; col <= UpperCol(); ++col) {
        SlowColumn& column = ColumnAt(col);
        column.lineColor = defaults.DefaultLineColor;
        column.title.clear();
        column.mask.clear();
        column.widthPercent = 0;
        column.cellDefaults = col < fixedCols ? defaults.DefaultCellFormatFixed : defaults.DefaultCellFormat;
        column.width = col < fixedCols ? defaults.DefaultWidthFixed : defaults.DefaultWidth;
        column.order = col - fixedCols;
    }
    for (int index = 0; index <= UpperRow(); ++index) {
        SlowRow& row = RowAt(index);
        row.hidden = false;
        row.lineColor = defaults.DefaultLineColor;
        row.resizable = defaults.RowsResizable;
        row.savedHeight = 0;
        row.height = index < fixedRows ? defaults.DefaultHeightFixed : defaults.DefaultHeight;
        for (int col = 0; col <= UpperCol(); ++col) {
            SlowCell& cell = CellAt(index, col);
            cell.rowSpan = cell.colSpan = cell.parentRow = cell.parentCol = 0;
            cell.pressed = false;
            cell.format = FormatFor(index, col);
        }
    }
}

void SlowStore::EditFormats(
    int firstRow, int firstCol, int lastRow, int lastCol, const std::function<void(CellFormat&)>& edit)
{
    for (int row = firstRow; row <= lastRow; ++row)
        for (int col = firstCol; col <= lastCol; ++col)
            edit(CellAt(row, col).format);
}

namespace {

SlowCell CopyOf(const GridStore& store, int row, int col)
{
    const Cell& cell = store.CellAt(row, col);
    return { cell.Text(), std::u16string(cell.Key()), cell.Picture(), cell.RowSpan(), cell.ColSpan(), cell.ParentRow(),
        cell.ParentCol(), cell.ButtonPressed(), store.Format(row, col) };
}

SlowRow CopyOf(const GridStore& store, int index)
{
    const Row& row = store.RowAt(index);
    SlowRow copy { row.Resizable, row.LineColor, row.Height, row.SavedHeight, row.RecordPos, row.Hidden, row.NextSkip,
        row.PrevSkip, {} };
    for (int col = 0; col <= store.MaxCol(); ++col)
        copy.cells.push_back(CopyOf(store, index, col));
    return copy;
}

SlowColumn CopyOf(const GridStore& store, const Column& column)
{
    return { column.Resizable, column.LineColor, column.Width, column.WidthPercent, column.Order, column.UseAsField[0],
        column.Name, column.Title, column.Mask, store.Formats()[column.CellDefaults] };
}

bool CountsAreEqual(const GridStore& store, const SlowStore& slow)
{
    return store.MaxRow() == slow.UpperRow() && store.MaxCol() == slow.UpperCol() && store.Rows() == slow.rowCount
        && store.Cols() == slow.colCount && store.FixedRows() == slow.fixedRows && store.FixedCols() == slow.fixedCols
        && store.LastRowIndex() == slow.UpperRow() - 1 && store.LastColIndex() == slow.UpperCol() - 1
        && !store.ContainsRow(slow.UpperRow() + 1) && !store.ContainsCol(slow.UpperCol() + 1);
}

} // namespace

std::string Difference(const GridStore& store, const SlowStore& slow)
{
    if (!CountsAreEqual(store, slow))
        return "counts";
    std::ostringstream text;
    for (int col = 0; col <= slow.UpperCol(); ++col) {
        if (CopyOf(store, store.ColumnAt(col)) == slow.columns[static_cast<std::size_t>(col)])
            continue;
        text << "column " << col;
        return text.str();
    }
    for (int row = 0; row <= slow.UpperRow(); ++row) {
        const SlowRow copy = CopyOf(store, row);
        const SlowRow& expected = slow.rows[static_cast<std::size_t>(row)];
        if (copy == expected)
            continue;
        text << "row " << row;
        if (store.RowAt(row).Cells.Count() != static_cast<int>(expected.cells.size()))
            text << ", count of cells";
        for (std::size_t col = 0; col < expected.cells.size(); ++col)
            if (!(copy.cells[col] == expected.cells[col]))
                text << ", column " << col;
        return text.str();
    }
    return {};
}

} // namespace vornix
