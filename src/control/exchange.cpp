// Tables in and out: the clipboard, and arrays.
#include "automation/checked.h"
#include "control/control.h"
#include "data/array_import.h"
#include "data/clipboard_text.h"

namespace vornix {

void Vornix::CopyToClipboard(i16 Row1, i16 Col1, i16 Row2, i16 Col2)
{
    const auto control = Enter();
    const auto cells = CellRectangle::Between(control->Internal(Row1, Col1), control->Internal(Row2, Col2));
    const std::u16string text = CopiedText(control->store, cells);
    if (!text.empty())
        control->container.SetClipboardText(text);
}

void Vornix::PasteFromClipboard(i16 Row1, i16 Col1, i16 Row2, i16 Col2)
{
    const auto control = Enter();
    const auto cells = CellRectangle::Between(control->Internal(Row1, Col1), control->Internal(Row2, Col2));
    const std::u16string text = control->container.ClipboardText();
    if (text.empty() || control->IsClosed())
        return;
    PasteText(control->store, cells, text);
    control->funnel.RepaintUnderGate();
}

void Vornix::LoadFromArray(const VariantArray& Arr, bool IsNullTest)
{
    const auto control = Enter();
    const ArrayShape shape = ShapeOf(Arr);
    if (shape.IsEmpty())
        return;
    GridStore& store = control->store;
    const int oldRows = store.Rows();
    const int firstRow = store.FixedRows() + oldRows;
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
    WriteArray(store, Arr, shape, { firstRow, store.FixedCols() }, nulls, control->container.GetLocale());
    // A repaint alone: behind the closed gate the bars were not laid out; they follow at the next layout.
    control->funnel.RepaintUnderGate();
}

} // namespace vornix
