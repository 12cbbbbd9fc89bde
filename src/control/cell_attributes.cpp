// Attributes of one cell.
#include "control/control.h"
#include "control/format_edits.h"

namespace vornix {

OleColor Vornix::CellBackColor(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).BackColor;
}

void Vornix::SetCellBackColor(i16 Row, i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->EditFormat(Row, Col, BackColorEdit(Value, control->container.Colors()));
}

OleColor Vornix::CellForeColor(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).ForeColor;
}

void Vornix::SetCellForeColor(i16 Row, i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::ForeColor, Value);
}

OleColor Vornix::CellBorderColor(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).BorderColor;
}

void Vornix::SetCellBorderColor(i16 Row, i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::BorderColor, Value);
}

OleColor Vornix::BoxBorder(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).BorderColor;
}

void Vornix::SetBoxBorder(i16 Row, i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::BorderColor, Value);
}

bool Vornix::CellEnabled(i16 Row, i16 Col) const
{
    return !Enter()->Format(Row, Col).Disabled;
}

void Vornix::SetCellEnabled(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    control->store.EditFormat(row, col, [&](CellFormat& format) { format.Disabled = !Value; });
}

bool Vornix::CheckEnable(i16 Row, i16 Col) const
{
    return CellEnabled(Row, Col);
}

void Vornix::SetCheckEnable(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::Disabled, !Value);
}

std::u16string Vornix::CellFontName(i16 Row, i16 Col) const
{
    return std::u16string(Enter()->Format(Row, Col).FontName.View());
}

void Vornix::SetCellFontName(i16 Row, i16 Col, std::u16string_view Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::FontName, FontName(Value));
}

bool Vornix::CellFontBold(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).FontBold;
}

void Vornix::SetCellFontBold(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::FontBold, Value);
}

bool Vornix::CellFontItalic(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).FontItalic;
}

void Vornix::SetCellFontItalic(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::FontItalic, Value);
}

bool Vornix::CellFontUnderline(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).FontUnderline;
}

void Vornix::SetCellFontUnderline(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::FontUnderline, Value);
}

bool Vornix::CellFontStrikeThrough(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).FontStrikeThrough;
}

void Vornix::SetCellFontStrikeThrough(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::FontStrikeThrough, Value);
}

i16 Vornix::CellFontSize(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).FontSize;
}

void Vornix::SetCellFontSize(i16 Row, i16 Col, i16 Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::FontSize, Value);
}

i32 Vornix::CellGradientMode(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).GradientMode;
}

void Vornix::SetCellGradientMode(i16 Row, i16 Col, i32 Value)
{
    Enter()->EditFormat(Row, Col, [&](CellFormat& format) { format.GradientMode = Value; });
}

OleColor Vornix::CellGradientEnd(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).GradientEnd;
}

void Vornix::SetCellGradientEnd(i16 Row, i16 Col, OleColor Value)
{
    const auto control = Enter();
    control->EditFormat(Row, Col, GradientEndEdit(Value, control->container.Colors()));
}

i32 Vornix::CellMode(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).Mode;
}

void Vornix::SetCellMode(i16 Row, i16 Col, i32 Value)
{
    const auto control = Enter();
    if (control->Format(Row, Col).Mode == Value)
        return;
    control->EditFormat(Row, Col, ModeEdit(Value));
}

PicturePtr Vornix::CellPicture(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return control->store.CellAt(row, col).Picture();
}

void Vornix::SetCellPicture(i16 Row, i16 Col, const PicturePtr& Value)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    control->store.EditCell(row, col).SetPicture(Value);
    control->funnel.RefreshCellUnderGate(row, col);
}

i32 Vornix::CellPictureAlignment(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).PictureAlignment;
}

void Vornix::SetCellPictureAlignment(i16 Row, i16 Col, i32 Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::PictureAlignment, Value);
}

i32 Vornix::CellStyle(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).Style;
}

void Vornix::SetCellStyle(i16 Row, i16 Col, i32 Value)
{
    const auto control = Enter();
    control->SetFormatField(Row, Col, &CellFormat::Style, Value);
}

bool Vornix::ButtonPressed(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return control->store.CellAt(row, col).ButtonPressed();
}

void Vornix::SetButtonPressed(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    if (control->store.CellAt(row, col).ButtonPressed() == Value)
        return;
    control->store.EditCell(row, col).SetButtonPressed(Value);
    control->funnel.RefreshCellUnderGate(row, col);
}

i32 Vornix::TextAlignment(i16 Row, i16 Col) const
{
    const auto control = Enter();
    return control->Format(Row, Col).TextAlignment ^ control->store.Defaults.CommonTextAlign;
}

void Vornix::SetTextAlignment(i16 Row, i16 Col, i32 Value)
{
    const auto control = Enter();
    // Against the argument as it is, the common flags not taken out.
    if (control->Format(Row, Col).TextAlignment == Value)
        return;
    control->EditFormat(Row, Col, TextAlignmentEdit(Value, control->store.Defaults.CommonTextAlign));
}

i16 Vornix::TextMarginLeft(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).TextMarginLeft;
}

void Vornix::SetTextMarginLeft(i16 Row, i16 Col, i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    control->SetFormatField(Row, Col, &CellFormat::TextMarginLeft, Value);
}

i16 Vornix::TextMarginRight(i16 Row, i16 Col) const
{
    return Enter()->Format(Row, Col).TextMarginRight;
}

void Vornix::SetTextMarginRight(i16 Row, i16 Col, i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    control->SetFormatField(Row, Col, &CellFormat::TextMarginRight, Value);
}

} // namespace vornix
