// Attributes of a row, broadcast into its cells.
#include "control/control.h"
#include "control/format_edits.h"

namespace vornix {

namespace {

// Where the text margins of a row begin: a row that is not fixed leaves out as many columns as there are fixed rows.
int FirstMarginCol(const Control& control, i16 Row)
{
    return Row < 0 ? 0 : control.store.FixedRows();
}

} // namespace

void Vornix::SetRowBackColor(i16 Row, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), BackColorEdit(Value, control->container.Colors()));
}

void Vornix::SetRowForeColor(i16 Row, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), [&](CellFormat& format) { format.ForeColor = Value; });
}

void Vornix::SetRowBorderColor(i16 Row, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), [&](CellFormat& format) { format.BorderColor = Value; });
}

void Vornix::SetRowEnabled(i16 Row, bool Value)
{
    const auto control = Enter();
    control->broadcast.ToRowSilently(control->InternalRow(Row), [&](CellFormat& format) { format.Disabled = !Value; });
}

void Vornix::SetRowFont(i16 Row, const FontPtr& Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), FontEdit(Value));
}

void Vornix::SetRowGradientMode(i16 Row, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), [&](CellFormat& format) { format.GradientMode = Value; });
}

void Vornix::SetRowGradientEnd(i16 Row, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), GradientEndEdit(Value, control->container.Colors()));
}

void Vornix::SetRowMode(i16 Row, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), ModeEdit(Value), LineReach::RealNotFixed);
}

void Vornix::SetRowStyle(i16 Row, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(control->InternalRow(Row), [&](CellFormat& format) { format.Style = Value; });
}

void Vornix::SetRowTextAlign(i16 Row, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToRow(
        control->InternalRow(Row), TextAlignmentEdit(Value, control->store.Defaults.CommonTextAlign));
}

void Vornix::SetRowTextMarginLeft(i16 Row, i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    control->broadcast.ToRowFrom(FirstMarginCol(*control, Row), control->InternalRow(Row),
        [&](CellFormat& format) { format.TextMarginLeft = Value; });
}

void Vornix::SetRowTextMarginRight(i16 Row, i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    control->broadcast.ToRowFrom(FirstMarginCol(*control, Row), control->InternalRow(Row),
        [&](CellFormat& format) { format.TextMarginRight = Value; });
}

void Vornix::SetRowLineColor(i16 Row, OleColor Value)
{
    const auto control = Enter();
    const int row = control->InternalRow(Row);
    control->store.RowAt(row).LineColor = Value;
    control->funnel.RefreshRowUnderGate(row);
}

bool Vornix::RowResize(i16 Row) const
{
    const auto control = Enter();
    return control->store.RowAt(control->InternalRow(Row)).Resizable;
}

void Vornix::SetRowResize(i16 Row, bool Value)
{
    const auto control = Enter();
    control->SetSetting(control->store.RowAt(control->InternalRow(Row)).Resizable, Value, "RowResize");
}

} // namespace vornix
