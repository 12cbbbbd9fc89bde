// Lines in and out, moved, exchanged, copied, emptied; looks given back to the defaults.
#include "automation/checked.h"
#include "control/line_count.h"
#include "control/paint_on_error.h"

#include <algorithm>

namespace vornix {

namespace {

CellIndex UpperLeft(CellIndex a, CellIndex b)
{
    return { std::min(a.row, b.row), std::min(a.col, b.col) };
}

CellIndex LowerRight(CellIndex a, CellIndex b)
{
    return { std::max(a.row, b.row), std::max(a.col, b.col) };
}

void RemoveTexts(Cell& cell)
{
    cell.SetText({});
    cell.SetKey({});
}

} // namespace

void Vornix::InsertRows(i16 Row, i16 Rows)
{
    const auto control = Enter();
    if (Row < 0 || Row > control->store.Rows() || Rows == 0)
        return;
    control->RequireTable();
    RequireCount(Rows);
    control->tableEdit.InsertRows(control->InternalRow(Row), Rows);
    control->funnel.RecalcLayout(false);
}

void Vornix::InsertCols(i16 Col, i16 Cols)
{
    const auto control = Enter();
    if (Col < 0 || Col > control->store.Cols() || Cols == 0)
        return;
    control->RequireTable();
    RequireCount(Cols);
    control->tableEdit.InsertCols(control->InternalCol(Col), Cols);
    control->funnel.RecalcLayout(false);
}

void Vornix::DeleteRows(i16 Row, i16 Rows)
{
    const auto control = Enter();
    if (Row < 0 || Row >= control->store.Rows() || Rows == 0)
        return;
    control->RequireTable();
    RequireCount(Rows);
    control->tableEdit.DeleteRows(control->InternalRow(Row), Rows);
    control->funnel.RecalcLayout();
}

void Vornix::DeleteCols(i16 Col, i16 Cols)
{
    const auto control = Enter();
    if (Col < 0 || Col >= control->store.Cols() || Cols == 0)
        return;
    control->RequireTable();
    RequireCount(Cols);
    control->tableEdit.DeleteCols(control->InternalCol(Col), Cols);
    control->CopyCaption();
    control->DropSplitBehindLastCol();
    control->funnel.RecalcLayout();
}

void Vornix::MoveRow(i16 Row, i16 ToRow)
{
    const auto control = Enter();
    if (Row < 0 || ToRow < 0 || Row == ToRow)
        return;
    control->RequireTable();
    control->tableEdit.MoveRow(control->InternalRow(Row), control->InternalRow(ToRow));
    control->funnel.RecalcLayout();
}

void Vornix::MoveCol(i16 Col, i16 ToCol)
{
    const auto control = Enter();
    if (Col < 0 || ToCol < 0 || Col == ToCol)
        return;
    control->RequireTable();
    control->tableEdit.MoveCol(control->InternalCol(Col), control->InternalCol(ToCol));
    control->CopyCaption();
    control->funnel.RecalcLayout();
}

void Vornix::SwapRows(i16 Row1, i16 Row2)
{
    const auto control = Enter();
    const int first = -control->store.FixedRows();
    if (Row1 < first || Row2 < first || Row1 == Row2)
        return;
    CheckedIndex(control->InternalRow(std::max(Row1, Row2)), control->store.MaxRow());
    bool resizes = false;
    PaintOnError(*control, [&] {
        // What is typed must not go into the other row.
        control->editor.CloseEveryEditor();
        if (!control->IsClosed())
            resizes = control->tableEdit.SwapRows(control->InternalRow(Row1), control->InternalRow(Row2));
    });
    if (control->IsClosed())
        return;
    if (resizes)
        control->funnel.RecalcLayout(false);
    else
        control->funnel.RepaintUnderGate();
}

void Vornix::SwapCols(i16 Col1, i16 Col2)
{
    const auto control = Enter();
    const int first = -control->store.FixedCols();
    if (Col1 < first || Col2 < first || Col1 == Col2)
        return;
    control->tableEdit.SwapCols(control->InternalCol(Col1), control->InternalCol(Col2));
    control->funnel.RecalcLayout(false);
}

void Vornix::CopyCell(i16 Row, i16 Col, i16 ToRow, i16 ToCol)
{
    const auto control = Enter();
    control->tableEdit.CopyCell(control->Internal(Row, Col), control->Internal(ToRow, ToCol));
    control->funnel.RepaintUnderGate();
}

void Vornix::CopyRow(i16 Row, i16 ToRow)
{
    const auto control = Enter();
    control->tableEdit.CopyRow(control->InternalRow(Row), control->InternalRow(ToRow));
    control->layout.MarkMetricsDirty();
    control->funnel.RecalcLayout();
}

void Vornix::CopyCol(i16 Col, i16 ToCol)
{
    const auto control = Enter();
    control->tableEdit.CopyCol(control->InternalCol(Col), control->InternalCol(ToCol));
    control->layout.MarkMetricsDirty();
    control->funnel.RecalcLayout();
}

void Vornix::ClearRow(i16 Row, bool AlsoFixedCells)
{
    const auto control = Enter();
    const int row = control->InternalRow(Row);
    GridStore& store = control->store;
    store.RowAt(row);
    // First, for the editor tells of a text that goes; its handler may change the table.
    control->editor.EmptyContent();
    if (!store.ContainsRow(row))
        return;
    for (int col = AlsoFixedCells ? 0 : store.FixedCols(); col <= store.LastColIndex(); ++col)
        RemoveTexts(store.EditCell(row, col));
    control->funnel.RefreshRowUnderGate(row);
}

void Vornix::ClearCol(i16 Col, bool AlsoFixedCells)
{
    const auto control = Enter();
    const int col = control->InternalCol(Col);
    GridStore& store = control->store;
    store.ColumnAt(col);
    control->editor.EmptyContent();
    if (!store.ContainsCol(col))
        return;
    store.EditColCells(col, AlsoFixedCells ? 0 : store.FixedRows(), store.LastRowIndex(), RemoveTexts);
    control->funnel.RefreshColUnderGate(col);
}

void Vornix::ResetCells(i16 Row1, i16 Col1, i16 Row2, i16 Col2)
{
    const auto control = Enter();
    const CellIndex corner = control->Internal(Row1, Col1);
    const CellIndex opposite = control->Internal(Row2, Col2);
    const CellIndex first = UpperLeft(corner, opposite);
    const CellIndex last = LowerRight(corner, opposite);
    control->store.CellAt(first.row, first.col);
    control->store.CellAt(last.row, last.col);
    control->tableEdit.ResetRectangle(first, last);
    control->funnel.RecalcLayout();
}

} // namespace vornix
