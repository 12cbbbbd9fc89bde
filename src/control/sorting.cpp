// Rows in order of several columns.
#include "automation/checked.h"
#include "control/paint_on_error.h"
#include "data/sort.h"

namespace vornix {

namespace {

constexpr std::u16string_view NoKeysTitle = u"Vornix - Sort Property";
constexpr std::u16string_view NoKeysText = u"You have not set the SortOrder property (or incorrectly set). \n"
                                           u"For example : SortOrder(3)=1 to sort by column 3.";

Column& ColumnOf(Control& control, i16 Col)
{
    return control.store.ColumnAt(control.InternalCol(Col));
}

} // namespace

void Vornix::Sort()
{
    const auto control = Enter();
    if (control->sortKeys.IsEmpty())
        return control->container.ShowMessage(NoKeysTitle, NoKeysText, MessageIcon::Exclamation);
    control->RequireTable();
    PaintOnError(*control, [&] {
        const SelectCollection& ranges = control->selection.Ranges();
        if (ranges.CountRows() >= 1 || ranges.CountCells() >= 1)
            control->selection.Collapse();
        // Each of them repaints, and a handler may change the columns.
        for (int col = 0; !control->IsClosed() && col < control->store.MaxCol(); ++col)
            if (control->store.ColumnAt(col).SpanRows)
                RemoveSpanRows(ToI16(col - control->store.FixedCols()), 1);
        if (!control->IsClosed())
            control->editor.CloseEveryEditor();
        if (!control->IsClosed())
            SortRows(control->store, control->spans, control->hidden, control->sortKeys.Cols(),
                control->container.GetLocale());
    });
    if (control->IsClosed())
        return;
    control->current.AdjustForSort(control->store);
    control->funnel.RepaintUnderGate();
}

i16 Vornix::SortOrder(i16 Col) const
{
    const auto control = Enter();
    if (control->sortKeys.IsEmpty())
        return 0;
    return control->sortKeys.PositionOf(control->InternalCol(Col));
}

void Vornix::SetSortOrder(i16 Col, i16 Value)
{
    const auto control = Enter();
    const GridStore& store = control->store;
    // Fixed columns count twice here.
    if (Value < 1 || Value > ToI16(store.FixedCols() + store.MaxCol()))
        return;
    const int col = control->InternalCol(Col);
    if (col < 0 || col >= store.MaxCol())
        return;
    control->sortKeys.Put(col, Value);
    i32& direction = control->store.ColumnAt(col).SortCriteria;
    direction = direction == vxAsc ? vxDesc : vxAsc;
}

i32 Vornix::SortCriteria(i16 Col) const
{
    const auto control = Enter();
    return ColumnOf(*control, Col).SortCriteria;
}

void Vornix::SetSortCriteria(i16 Col, i32 Value)
{
    const auto control = Enter();
    ColumnOf(*control, Col).SortCriteria = Value;
}

i32 Vornix::SortType(i16 Col) const
{
    const auto control = Enter();
    return ColumnOf(*control, Col).SortType;
}

void Vornix::SetSortType(i16 Col, i32 Value)
{
    const auto control = Enter();
    ColumnOf(*control, Col).SortType = Value;
}

bool Vornix::SortUseKey(i16 Col) const
{
    const auto control = Enter();
    return ColumnOf(*control, Col).SortUseKey;
}

void Vornix::SetSortUseKey(i16 Col, bool Value)
{
    const auto control = Enter();
    ColumnOf(*control, Col).SortUseKey = Value;
}

} // namespace vornix
