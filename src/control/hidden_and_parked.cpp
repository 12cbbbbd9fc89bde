// Hidden lines, the order of columns, and looks that a host parks.
#include "automation/checked.h"
#include "automation/text_conversions.h"
#include "control/control.h"

namespace vornix {

namespace {

// The last line of a run; error 6 when it leaves 16 bits.
int LastOfRun(int first, i16 count)
{
    return count < 1 ? first - 1 : ToI16(first + count - 1);
}

void HideRows(Control& control, i16 Row, i16 count, bool hide)
{
    const int first = control.InternalRow(Row);
    const int last = LastOfRun(first, count);
    for (int row = first; row <= last; ++row) {
        const bool changed = hide ? control.hidden.HideRow(row) : control.hidden.ShowRow(row);
        if (changed && row < control.store.FixedRows())
            control.layout.MarkMetricsDirty();
    }
    control.funnel.RecalcLayout(false);
}

void HideCols(Control& control, i16 Col, i16 count, bool hide)
{
    const int first = control.InternalCol(Col);
    const int last = LastOfRun(first, count);
    for (int col = first; col <= last; ++col) {
        const bool changed = hide ? control.hidden.HideCol(col) : control.hidden.ShowCol(col);
        if (changed && col < control.layout.FirstScrollCol())
            control.layout.MarkMetricsDirty();
    }
    control.funnel.RecalcLayout();
}

void RestoreTo(Control& control, const VisualCell& cell, int row, int col)
{
    control.store.SetFormat(row, col, cell.Format);
    control.funnel.RefreshCellUnderGate(row, col);
}

} // namespace

void Vornix::HideRow(i16 Row, i16 Rows)
{
    const auto control = Enter();
    HideRows(*control, Row, Rows, true);
}

void Vornix::ShowRow(i16 Row, i16 Rows)
{
    const auto control = Enter();
    HideRows(*control, Row, Rows, false);
}

void Vornix::HideCol(i16 Col, i16 Cols)
{
    const auto control = Enter();
    HideCols(*control, Col, Cols, true);
}

void Vornix::ShowCol(i16 Col, i16 Cols)
{
    const auto control = Enter();
    HideCols(*control, Col, Cols, false);
}

bool Vornix::RowHide(i16 Row) const
{
    const auto control = Enter();
    return control->store.RowAt(control->InternalRow(Row)).Hidden;
}

void Vornix::SetRowHide(i16 Row, bool Value)
{
    const auto control = Enter();
    HideRows(*control, Row, 1, Value);
    control->Report("RowHide");
}

bool Vornix::ColHide(i16 Col) const
{
    const auto control = Enter();
    return control->store.ColumnAt(control->InternalCol(Col)).Hidden;
}

void Vornix::SetColHide(i16 Col, bool Value)
{
    const auto control = Enter();
    HideCols(*control, Col, 1, Value);
    control->Report("ColHide");
}

i16 Vornix::ColOrder(std::u16string_view index) const
{
    const auto control = Enter();
    const GridStore& store = control->store;
    const Locale& locale = control->container.GetLocale();
    if (IsNumeric(index, locale))
        return store.ColumnAt(control->InternalCol(TextToI2(index, locale))).Order;
    for (int col = 0; col <= store.LastColIndex(); ++col) {
        if (store.ColumnAt(col).Name == index)
            return control->PublicCol(col);
    }
    return NoIndex;
}

void Vornix::ReOrderCols()
{
    const auto control = Enter();
    control->RequireTable();
    if (control->RestoreColumnOrder())
        control->funnel.RecalcLayout();
    else
        control->funnel.RepaintUnderGate();
}

bool Control::RestoreColumnOrder()
{
    bool hasMoved = false;
    // Fixed columns stay: a move concerns the others only.
    for (int col = store.FixedCols(); col <= store.LastColIndex(); ++col) {
        const int order = col - store.FixedCols();
        if (store.ColumnAt(col).Order == order)
            continue;
        int found = col + 1;
        while (found <= store.LastColIndex() && store.ColumnAt(found).Order != order)
            ++found;
        if (found > store.LastColIndex())
            continue;
        tableEdit.MoveCol(found, col);
        hasMoved = true;
    }
    if (hasMoved)
        CopyCaption();
    return hasMoved;
}

void Vornix::StoreVisualCell(i16 index, i16 Row, i16 Col)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    control->visualCells.Store(index, { control->store.Format(row, col), ToI16(row), ToI16(col) });
}

void Vornix::RestoreVisualCell(i16 index)
{
    const auto control = Enter();
    if (const VisualCell* cell = control->visualCells.Find(index))
        RestoreTo(*control, *cell, cell->Row, cell->Col);
}

void Vornix::RestoreVisualToCell(i16 index, i16 Row, i16 Col)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    if (const VisualCell* cell = control->visualCells.Find(index))
        RestoreTo(*control, *cell, row, col);
}

void Vornix::ClearVisualCell()
{
    Enter()->visualCells.Clear();
}

} // namespace vornix
