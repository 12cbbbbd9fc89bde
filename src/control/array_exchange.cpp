// Tables that come in as arrays.
#include "automation/checked.h"
#include "control/control.h"
#include "data/array_import.h"

namespace vornix {

void Vornix::LoadFromArray(const VariantArray& Arr, bool IsNullTest)
{
    const auto control = Enter();
    const ArrayShape shape = ShapeOf(Arr);
    if (shape.IsEmpty())
        return;
    GridStore& store = control->store;
    const int oldRows = store.Rows();
    const CellIndex first { store.FixedRows() + oldRows, store.FixedCols() };
    {
        const RedrawGate::Closed closed(control->gate);
        SetCols(ToI16(shape.columns));
        if (control->IsClosed())
            return;
        SetRows(ToI16(std::int64_t { oldRows } + shape.records));
        if (control->IsClosed())
            return;
    }
    const NullElements nulls = IsNullTest ? NullElements::Skip : NullElements::Convert;
    WriteArray(store, Arr, shape, first, nulls, control->container.GetLocale());
    // A repaint alone: the counts were laid out behind the closed gate, so the bars follow at the next layout.
    control->funnel.RepaintUnderGate();
}

} // namespace vornix
