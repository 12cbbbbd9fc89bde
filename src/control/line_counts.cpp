// How many rows and columns there are. Lines come and go at the end; fixed ones at the outside.
#include "automation/checked.h"
#include "control/control.h"
#include "control/line_count.h"

namespace vornix {

i16 Vornix::Rows() const
{
    return Enter()->store.Rows();
}

void Vornix::SetRows(i16 Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    const i16 oldRows = store.Rows();
    if (Value < 0 || Value == oldRows)
        return;
    control->RequireTable();
    control->selection.Collapse();
    if (Value < oldRows) {
        control->spans.RemoveSpansAcrossRow(store.FixedRows() + Value);
        store.ShiftRowsDown(store.FixedRows() + Value, store.MaxRow());
    }
    control->settings.VirtualPageSize = 0;
    store.ResizeRowStore(ToI16(store.FixedRows() + Value));
    if (Value > oldRows) {
        store.ShiftRowsUp(store.FixedRows() + oldRows, Value - oldRows);
        store.InitRows(store.FixedRows() + oldRows, store.MaxRow() - 1);
    }
    control->scroll.ClampVisible();
    if (Value < oldRows)
        control->current.AdjustForRows(store, store.FixedRows() + oldRows, Value - oldRows);
    store.StoreRows(Value);
    if (Value < oldRows)
        control->hidden.EndChain();
    control->layout.MarkMetricsDirty();
    control->funnel.RecalcLayout();
    control->Report("Rows");
}

i16 Vornix::Cols() const
{
    return Enter()->store.Cols();
}

void Vornix::SetCols(i16 Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    const i16 oldCols = store.Cols();
    if (Value < 0 || Value == oldCols)
        return;
    control->RequireTable();
    control->selection.Collapse();
    if (Value < oldCols) {
        control->spans.RemoveSpansAcrossCol(store.FixedCols() + Value);
        store.ShiftColsDown(store.FixedCols() + Value, store.MaxCol());
    }
    store.ResizeColStore(ToI16(store.FixedCols() + Value));
    if (Value > oldCols) {
        const int firstNew = store.FixedCols() + oldCols;
        store.ShiftColsUp(firstNew, Value - oldCols);
        store.InitCols(firstNew, store.MaxCol() - 1);
        for (int col = firstNew; col < store.MaxCol(); ++col)
            store.ColumnAt(col).Order = ToI16(col - store.FixedCols());
    }
    control->scroll.ClampVisible();
    if (Value < oldCols)
        control->current.AdjustForCols(store, store.FixedCols() + oldCols, Value - oldCols);
    store.StoreCols(Value);
    control->DropSplitBehindLastCol();
    control->layout.MarkMetricsDirty();
    control->funnel.RecalcLayout();
    control->Report("Cols");
}

// A split needs a column that scrolls behind it.
void Control::DropSplitBehindLastCol()
{
    if (layout.Settings.SplitCols > 0 && layout.FirstScrollCol() > store.MaxCol() - 1)
        layout.DropSplit();
}

i16 Vornix::FixedRows() const
{
    return Enter()->store.FixedRows();
}

void Vornix::SetFixedRows(i16 Value)
{
    const auto control = Enter();
    control->SetFixedRowCount(Value);
}

void Control::SetFixedRowCount(i16 count)
{
    if (count == store.FixedRows())
        return;
    RequireTable();
    RequireCount(count);
    ToI16(store.Rows() + count);
    selection.Collapse();
    editor.CloseEditor();
    // A handler of AfterEdit may have written counts.
    const int delta = count - store.FixedRows();
    if (delta == 0 || IsClosed())
        return;
    const i16 newMaxRow = ToI16(store.Rows() + count);
    if (delta < 0) {
        spans.RemoveSpansAcrossRow(-delta);
        store.ShiftRowsDown(0, -delta);
    }
    scroll.SetFirstRow(scroll.FirstRow() + delta);
    store.ResizeRowStore(newMaxRow);
    if (delta > 0) {
        store.ShiftRowsUp(0, delta);
        store.InitFixedRows(0, delta - 1);
        // Their slots may hold the links of rows that moved down; fixed rows are not in the chain.
        for (int row = 0; row < delta; ++row)
            store.RowAt(row).NextSkip = store.RowAt(row).PrevSkip = 0;
    }
    store.StoreFixedRows(count);
    scroll.ClampVisible();
    current.AdjustForRows(store, 0, delta);
    if (count == 0)
        layout.Settings.CaptionEnabled = false;
    CopyCaption();
    layout.MarkMetricsDirty();
    funnel.RecalcLayout();
    Report("FixedRows");
}

i16 Vornix::FixedCols() const
{
    return Enter()->store.FixedCols();
}

void Vornix::SetFixedCols(i16 Value)
{
    const auto control = Enter();
    GridStore& store = control->store;
    const int delta = Value - store.FixedCols();
    if (delta == 0)
        return;
    control->RequireTable();
    RequireCount(Value);
    const i16 newMaxCol = ToI16(store.Cols() + Value);
    control->selection.Collapse();
    if (delta < 0) {
        control->spans.RemoveSpansAcrossCol(-delta);
        store.ShiftColsDown(0, -delta);
    }
    control->scroll.SetFirstCol(control->scroll.FirstCol() + delta);
    control->layout.SetFirstScrollCol(ToI16(control->layout.Settings.SplitCols + Value));
    store.ResizeColStore(newMaxCol);
    if (delta > 0) {
        store.ShiftColsUp(0, delta);
        store.InitFixedCols(0, delta - 1);
    }
    store.StoreFixedCols(Value);
    control->scroll.ClampVisible();
    control->current.AdjustForCols(store, 0, delta);
    control->editor.AdjustForCols(delta);
    control->layout.MarkMetricsDirty();
    control->funnel.RecalcLayout();
    control->Report("FixedCols");
}

} // namespace vornix
