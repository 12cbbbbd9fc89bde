// Attributes of a rectangle of cells.
#include "control/control.h"
#include "control/format_edits.h"

namespace vornix {

namespace {

void WriteRectangle(Control& control, i16 Row1, i16 Col1, i16 Row2, i16 Col2, const FormatEdit& edit)
{
    const auto [row1, col1] = control.Internal(Row1, Col1);
    const auto [row2, col2] = control.Internal(Row2, Col2);
    control.broadcast.ToRectangle(row1, col1, row2, col2, edit);
}

} // namespace

void Vornix::SetCellsBackColor(i16 Row1, i16 Col1, i16 Row2, i16 Col2, OleColor Value)
{
    const auto control = Enter();
    WriteRectangle(*control, Row1, Col1, Row2, Col2, [&](CellFormat& format) { format.BackColor = Value; });
}

void Vornix::SetCellsForeColor(i16 Row1, i16 Col1, i16 Row2, i16 Col2, OleColor Value)
{
    const auto control = Enter();
    WriteRectangle(*control, Row1, Col1, Row2, Col2, [&](CellFormat& format) { format.ForeColor = Value; });
}

void Vornix::SetCellsFont(i16 Row1, i16 Col1, i16 Row2, i16 Col2, const FontPtr& Value)
{
    const auto control = Enter();
    WriteRectangle(*control, Row1, Col1, Row2, Col2, FontEdit(Value));
}

} // namespace vornix
