// Merged cells.
#include "automation/checked.h"
#include "automation/text_compare.h"
#include "control/control.h"

namespace vornix {

i16 Vornix::ColSpan(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return control->store.CellAt(row, col).ColSpan();
}

void Vornix::SetColSpan(i16 Row, i16 Col, i16 Value)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    control->spans.SetColSpan(row, col, Value);
    control->funnel.RepaintUnderGate();
}

i16 Vornix::RowSpan(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return control->store.CellAt(row, col).RowSpan();
}

void Vornix::SetRowSpan(i16 Row, i16 Col, i16 Value)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    control->spans.SetRowSpan(row, col, Value);
    control->funnel.RepaintUnderGate();
}

i16 Vornix::ParentRow(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return ToI16(Row + control->store.CellAt(row, col).ParentRow());
}

i16 Vornix::ParentCol(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return ToI16(Col + control->store.CellAt(row, col).ParentCol());
}

bool Vornix::IsParent(i16 Row, i16 Col, i16 ParentRow, i16 ParentCol) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    const GridStore& store = control->store;
    if (row < 0 || row > store.LastRowIndex() || col < 0 || col > store.LastColIndex())
        return false;
    return control->spans.ParentOf(row, col) == control->Internal(ParentRow, ParentCol);
}

void Vornix::SpanRows(i16 Col, bool bUseKey)
{
    const auto control = Enter();
    if (control->store.Rows() == 0)
        return;
    {
        RedrawGate::Closed closed(control->gate);
        control->SpanEqualRows(control->InternalCol(Col), bUseKey);
    }
    control->funnel.RepaintUnderGate();
}

void Control::SpanEqualRows(int col, bool byKey)
{
    const auto value = [&](int row) {
        const Cell& cell = store.CellAt(row, col);
        return byKey ? std::u16string(cell.Key()) : cell.Text();
    };
    const auto closeRun = [&](int first, int end) {
        if (end - first > 1)
            spans.SetRowSpan(first, col, ToI16(end - first));
    };
    int first = store.FixedRows();
    std::u16string runValue = value(first);
    for (int row = first + 1; row <= store.LastRowIndex(); ++row) {
        std::u16string rowValue = value(row);
        if (CompareTextNoCase(rowValue, runValue, container.GetLocale()) == 0)
            continue;
        closeRun(first, row);
        first = row;
        runValue = std::move(rowValue);
    }
    closeRun(first, store.MaxRow());
    store.ColumnAt(col).SpanRows = true;
}

void Vornix::RemoveSpanRows(i16 Col, i16 Cols)
{
    const auto control = Enter();
    if (Cols < 1)
        return;
    {
        RedrawGate::Closed closed(control->gate);
        const int firstCol = control->InternalCol(Col);
        for (int col = firstCol; col < firstCol + Cols; ++col)
            control->RemoveRowSpans(col);
    }
    control->funnel.RepaintUnderGate();
}

void Control::RemoveRowSpans(int col)
{
    store.ColumnAt(col).SpanRows = false;
    for (int row = store.FixedRows(); row <= store.LastRowIndex(); ++row) {
        if (store.CellAt(row, col).RowSpan() > 1)
            spans.RemoveSpan(row, col);
    }
}

} // namespace vornix
