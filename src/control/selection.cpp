// Which cells, columns or rows are selected, as hosts read and write it.
#include "automation/checked.h"
#include "control/control.h"

#include <utility>

namespace vornix {

bool Vornix::CellSelected(i16 Row, i16 Col) const
{
    const auto control = Enter();
    if (Row < 0 || Col < 0)
        return false;
    const auto [row, col] = control->Internal(Row, Col);
    return control->selection.Ranges().IsCellSelected(row, col);
}

bool Vornix::ColSelected(i16 Col) const
{
    const auto control = Enter();
    return control->selection.Ranges().IsColSelected(control->InternalCol(Col));
}

void Vornix::SetColSelected(i16 Col, bool Value)
{
    const auto control = Enter();
    if (Value && Col < 0)
        return;
    SelectCollection& ranges = control->selection.Ranges();
    const int col = control->InternalCol(Col);
    if (Value)
        ranges.AddCols(false, col, col);
    else if (ranges.IsColSelected(col))
        ranges.UnSelectRange(col);
    control->funnel.RepaintUnderGate();
}

bool Vornix::RowSelected(i16 Row) const
{
    const auto control = Enter();
    return control->selection.Ranges().IsRowSelected(control->InternalRow(Row));
}

void Vornix::SetRowSelected(i16 Row, bool Value)
{
    const auto control = Enter();
    if (Value && Row < 0)
        return;
    SelectCollection& ranges = control->selection.Ranges();
    const int row = control->InternalRow(Row);
    if (Value)
        ranges.AddRows(false, row, row);
    else if (ranges.IsRowSelected(row))
        ranges.UnSelectRange(row);
    control->funnel.RepaintUnderGate();
}

void Vornix::SetRowsSelected(i16 Row1, i16 Row2, bool Value)
{
    const auto control = Enter();
    if (Row1 < 0 || Row2 < 0)
        return;
    if (Row1 > Row2)
        std::swap(Row1, Row2);
    SelectCollection& ranges = control->selection.Ranges();
    const int first = control->InternalRow(Row1);
    const int last = control->InternalRow(Row2);
    if (Value)
        ranges.AddRows(false, first, last);
    else
        ranges.UnselectItems(first, last);
    control->funnel.RepaintUnderGate();
}

i32 Vornix::SelectCountCell() const
{
    return Enter()->selection.Ranges().CountCells();
}

i32 Vornix::SelectCountCol() const
{
    return Enter()->selection.Ranges().CountCols();
}

i32 Vornix::SelectCountRow() const
{
    return Enter()->selection.Ranges().CountRows();
}

bool Vornix::GetSelectedCells(i16& Row1, i16& Col1, i16& Row2, i16& Col2)
{
    const auto control = Enter();
    const auto cells = control->selection.FirstCells();
    if (!cells)
        return false;
    const auto& [first, second] = *cells;
    const auto [firstRow, firstCol] = std::pair(control->PublicRow(first.row), control->PublicCol(first.col));
    const auto [secondRow, secondCol] = std::pair(control->PublicRow(second.row), control->PublicCol(second.col));
    Row1 = firstRow;
    Col1 = firstCol;
    Row2 = secondRow;
    Col2 = secondCol;
    return true;
}

void Vornix::SetSelectedCells(i16 Row1, i16 Col1, i16 Row2, i16 Col2)
{
    const auto control = Enter();
    if (Row1 < 0 || Col1 < 0 || Row2 < 0 || Col2 < 0)
        return;
    const CellIndex first = control->Internal(Row1, Col1);
    const CellIndex second = control->Internal(Row2, Col2);
    control->selection.Ranges().AddCells(true, first.row, first.col, second.row, second.col);
    control->funnel.RepaintGrid();
}

void Vornix::StartSelectedItems()
{
    Enter()->selection.BeginWalk();
}

bool Vornix::NextSelectedCols(i16& Col1, i16& Col2)
{
    const auto control = Enter();
    const auto cols = control->selection.NextCols();
    if (!cols)
        return false;
    const i16 first = control->PublicCol(cols->first);
    const i16 last = control->PublicCol(cols->last);
    control->selection.AdvanceWalk();
    Col1 = first;
    Col2 = last;
    return true;
}

bool Vornix::NextSelectedRows(i16& Row1, i16& Row2)
{
    const auto control = Enter();
    const auto rows = control->selection.NextRows();
    if (!rows)
        return false;
    const i16 first = control->PublicRow(rows->first);
    const i16 last = control->PublicRow(rows->last);
    control->selection.AdvanceWalk();
    Row1 = first;
    Row2 = last;
    return true;
}

i32 Vornix::SelectItem(i32 index) const
{
    const auto control = Enter();
    const std::optional<i32> line = control->selection.LineAt(index);
    if (!line)
        return 0;
    const bool isRow = control->selection.Ranges().Mode() == SelectionKind::Rows;
    return SubtractI32(*line, isRow ? control->store.FixedRows() : control->store.FixedCols());
}

bool Vornix::InvertSelect()
{
    const auto control = Enter();
    if (!control->selection.Invert())
        return false;
    control->funnel.RepaintUnderGate();
    return true;
}

void Vornix::DeselectAll()
{
    const auto control = Enter();
    control->selection.Collapse();
    if (control->gate.IsOpen())
        control->funnel.RecalcLayout(false);
}

i32 Vornix::SelectMode() const
{
    return Enter()->selection.Settings.SelectMode;
}

void Vornix::SetSelectMode(i32 Value)
{
    const auto control = Enter();
    control->SetSetting(control->selection.Settings.SelectMode, Value, "SelectMode");
}

bool Vornix::SelectByRowCol() const
{
    return Enter()->selection.Settings.SelectByRowCol;
}

void Vornix::SetSelectByRowCol(bool Value)
{
    const auto control = Enter();
    control->SetSetting(control->selection.Settings.SelectByRowCol, Value, "SelectByRowCol");
}

bool Vornix::CellSelection() const
{
    return Enter()->selection.Settings.CellSelection;
}

void Vornix::SetCellSelection(bool Value)
{
    const auto control = Enter();
    control->SetSetting(control->selection.Settings.CellSelection, Value, "CellSelection");
}

} // namespace vornix
