#include "control/broadcast.h"

#include <algorithm>

namespace vornix {

Broadcast::Range Broadcast::RowsOfColumn(int col, LineReach reach) const
{
    const bool isFixed = col < store_.FixedCols();
    const int first = isFixed && reach != LineReach::RealNotFixed ? 0 : store_.FixedRows();
    return { first, reach == LineReach::All ? store_.MaxRow() : store_.LastRowIndex() };
}

Broadcast::Range Broadcast::ColsOfRow(int row, LineReach reach) const
{
    const bool isFixed = row < store_.FixedRows();
    const int first = isFixed && reach != LineReach::RealNotFixed ? 0 : store_.FixedCols();
    return { first, reach == LineReach::All ? store_.MaxCol() : store_.LastColIndex() };
}

void Broadcast::ToColumnSilently(int col, const FormatEdit& edit, LineReach reach)
{
    store_.EditColDefaults(col, edit);
    const Range rows = RowsOfColumn(col, reach);
    store_.EditColFormats(col, rows.first, rows.last, edit);
}

void Broadcast::ToColumn(int col, const FormatEdit& edit, LineReach reach)
{
    ToColumnSilently(col, edit, reach);
    funnel_.RefreshColUnderGate(col);
}

void Broadcast::ToColumnCells(int col, const FormatEdit& edit)
{
    store_.ColumnAt(col); // error 9 before the first cell
    const Range rows = RowsOfColumn(col, LineReach::All);
    store_.EditColFormats(col, rows.first, rows.last, edit);
    funnel_.RefreshColUnderGate(col);
}

void Broadcast::ToColumnContents(int col, const CellEdit& edit, LineReach reach)
{
    const Range rows = RowsOfColumn(col, reach);
    store_.ColumnAt(col);
    store_.EditColCells(col, rows.first, rows.last, edit);
    funnel_.RefreshColUnderGate(col);
}

void Broadcast::ToRowSilently(int row, const FormatEdit& edit, LineReach reach)
{
    const Range cols = ColsOfRow(row, reach);
    store_.RowAt(row);
    store_.EditRowFormats(row, cols.first, cols.last, edit);
}

void Broadcast::ToRow(int row, const FormatEdit& edit, LineReach reach)
{
    ToRowSilently(row, edit, reach);
    funnel_.RefreshRowUnderGate(row);
}

void Broadcast::ToRowFrom(int firstCol, int row, const FormatEdit& edit)
{
    store_.RowAt(row);
    store_.EditRowFormats(row, firstCol, store_.MaxCol(), edit);
    funnel_.RefreshRowUnderGate(row);
}

void Broadcast::ToRectangle(int row1, int col1, int row2, int col2, const FormatEdit& edit)
{
    const auto [top, bottom] = std::minmax(row1, row2);
    const auto [left, right] = std::minmax(col1, col2);
    store_.EditRectFormats(top, left, bottom, right, edit);
    for (int col = left; col <= right; ++col)
        funnel_.RefreshColUnderGate(col);
}

} // namespace vornix
