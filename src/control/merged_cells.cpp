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
    const Cell& cell = store.CellAt(row, col);
    return CellIndex { row + cell.ParentRow(), col + cell.ParentCol() } == control->Internal(ParentRow, ParentCol);
}

void Vornix::SpanRows(i16 Col, bool&& bUseKey)
{
    SpanRows(Col, bUseKey);
}

void Vornix::SpanRows(i16 Col, bool& bUseKey)
{
    const auto control = Enter();
    if (control->store.Rows() == 0)
        return;
    {
        RedrawGate::Closed closed(control->gate);
        const Locale& locale = control->container.GetLocale();
        control->spans.MergeEqualRows(control->InternalCol(Col), bUseKey,
            [&](std::u16string_view a, std::u16string_view b) { return CompareTextNoCase(a, b, locale) == 0; });
    }
    control->funnel.RepaintUnderGate();
}

void Vornix::RemoveSpanRows(i16 Col, i16 Cols)
{
    const auto control = Enter();
    if (Cols < 1)
        return;
    {
        RedrawGate::Closed closed(control->gate);
        const int firstCol = control->InternalCol(Col);
        const int lastCol = ToI16(firstCol + Cols - 1);
        for (int col = firstCol; col <= lastCol; ++col)
            control->spans.RemoveMergedRows(col);
    }
    control->funnel.RepaintUnderGate();
}

} // namespace vornix
