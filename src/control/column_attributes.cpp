// Attributes of a column: broadcasts into its cells and into what new cells of it take.
#include "control/control.h"
#include "control/format_edits.h"

namespace vornix {

namespace {

const CellFormat& Defaults(const Control& control, i16 Col)
{
    return control.store.ColDefaults(control.InternalCol(Col));
}

} // namespace

void Vornix::SetColBackColor(i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(control->InternalCol(Col), BackColorEdit(Value, control->container.Colors()));
}

void Vornix::SetColForeColor(i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(control->InternalCol(Col), [&](CellFormat& format) { format.ForeColor = Value; });
}

void Vornix::SetColBorderColor(i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(control->InternalCol(Col), [&](CellFormat& format) { format.BorderColor = Value; });
}

bool Vornix::ColEnabled(i16 Col) const
{
    const auto control = Enter();
    return !Defaults(*control, Col).Disabled;
}

void Vornix::SetColEnabled(i16 Col, bool Value)
{
    const auto control = Enter();
    control->broadcast.ToColumnSilently(
        control->InternalCol(Col), [&](CellFormat& format) { format.Disabled = !Value; });
}

void Vornix::SetColFont(i16 Col, const FontPtr& Value)
{
    const auto control = Enter();
    control->broadcast.ToColumnCells(control->InternalCol(Col), FontEdit(Value));
}

void Vornix::SetColGradientMode(i16 Col, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(control->InternalCol(Col), [&](CellFormat& format) { format.GradientMode = Value; });
}

void Vornix::SetColGradientEnd(i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(control->InternalCol(Col), GradientEndEdit(Value, control->container.Colors()));
}

i32 Vornix::ColMode(i16 Col) const
{
    const auto control = Enter();
    return Defaults(*control, Col).Mode;
}

void Vornix::SetColMode(i16 Col, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(control->InternalCol(Col), ModeEdit(Value), LineReach::RealNotFixed);
}

void Vornix::SetColPicture(i16 Col, const PicturePtr& Value)
{
    const auto control = Enter();
    control->broadcast.ToColumnContents(
        control->InternalCol(Col), [&](Cell& cell) { cell.SetPicture(Value); }, LineReach::Real);
}

i32 Vornix::ColPictureAlignment(i16 Col) const
{
    const auto control = Enter();
    return Defaults(*control, Col).PictureAlignment;
}

void Vornix::SetColPictureAlignment(i16 Col, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(
        control->InternalCol(Col), [&](CellFormat& format) { format.PictureAlignment = Value; });
}

i32 Vornix::ColStyle(i16 Col) const
{
    const auto control = Enter();
    return Defaults(*control, Col).Style;
}

void Vornix::SetColStyle(i16 Col, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(control->InternalCol(Col), [&](CellFormat& format) { format.Style = Value; });
}

i32 Vornix::ColTextAlign(i16 Col) const
{
    const auto control = Enter();
    return Defaults(*control, Col).TextAlignment ^ control->store.Defaults.CommonTextAlign;
}

void Vornix::SetColTextAlign(i16 Col, i32 Value)
{
    const auto control = Enter();
    control->broadcast.ToColumn(
        control->InternalCol(Col), TextAlignmentEdit(Value, control->store.Defaults.CommonTextAlign));
}

i16 Vornix::ColTextMarginLeft(i16 Col) const
{
    const auto control = Enter();
    return Defaults(*control, Col).TextMarginLeft;
}

void Vornix::SetColTextMarginLeft(i16 Col, i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    control->broadcast.ToColumn(control->InternalCol(Col), [&](CellFormat& format) { format.TextMarginLeft = Value; });
}

i16 Vornix::ColTextMarginRight(i16 Col) const
{
    const auto control = Enter();
    return Defaults(*control, Col).TextMarginRight;
}

void Vornix::SetColTextMarginRight(i16 Col, i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    control->broadcast.ToColumn(control->InternalCol(Col), [&](CellFormat& format) { format.TextMarginRight = Value; });
}

void Vornix::SetColLineColor(i16 Col, OleColor Value)
{
    const auto control = Enter();
    const int col = control->InternalCol(Col);
    control->store.ColumnAt(col).LineColor = Value;
    control->funnel.RefreshColUnderGate(col);
}

bool Vornix::ColResize(i16 Col) const
{
    const auto control = Enter();
    return control->store.ColumnAt(control->InternalCol(Col)).Resizable;
}

void Vornix::SetColResize(i16 Col, bool Value)
{
    const auto control = Enter();
    control->SetSetting(control->store.ColumnAt(control->InternalCol(Col)).Resizable, Value, "ColResize");
}

} // namespace vornix
