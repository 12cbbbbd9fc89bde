// What cells and columns hold: texts, keys, truth values, names, formats and masks.
#include "automation/text_conversions.h"
#include "control/control.h"

namespace vornix {

namespace {

// A text that is no truth value reads as false.
bool IsTrueText(std::u16string_view text, const Locale& locale)
{
    try {
        return TextToBool(text, locale);
    } catch (const AutomationError&) {
        return false;
    }
}

void WriteText(Control& control, i16 Row, i16 Col, std::u16string_view text)
{
    const auto [row, col] = control.Internal(Row, Col);
    control.store.EditCell(row, col).SetText(text);
    control.funnel.RefreshCellUnderGate(row, col);
}

} // namespace

std::u16string Vornix::Text(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return control->store.CellAt(row, col).Text();
}

void Vornix::SetText(i16 Row, i16 Col, std::u16string_view Value)
{
    const auto control = Enter();
    WriteText(*control, Row, Col, Value);
}

std::u16string Vornix::TextValue(i16 Row, i16 Col) const
{
    return Text(Row, Col);
}

void Vornix::SetTextValue(i16 Row, i16 Col, std::u16string_view Value)
{
    SetText(Row, Col, Value);
}

std::u16string Vornix::Key(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return std::u16string(control->store.CellAt(row, col).Key());
}

void Vornix::SetKey(i16 Row, i16 Col, std::u16string_view Value)
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    if (control->store.CellAt(row, col).Key() == Value)
        return;
    control->store.EditCell(row, col).SetKey(Value);
}

bool Vornix::CellChecked(i16 Row, i16 Col) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    return IsTrueText(control->store.CellAt(row, col).Text(), control->container.GetLocale());
}

void Vornix::SetCellChecked(i16 Row, i16 Col, bool Value)
{
    const auto control = Enter();
    WriteText(*control, Row, Col, Value ? u"-1" : u"0");
}

std::u16string Vornix::ColName(i16 Col) const
{
    const auto control = Enter();
    return control->store.ColumnAt(control->InternalCol(Col)).Name;
}

void Vornix::SetColName(i16 Col, std::u16string_view Value)
{
    const auto control = Enter();
    control->store.ColumnAt(control->InternalCol(Col)).Name = Value;
}

std::u16string Vornix::ColFormat(i16 Col) const
{
    const auto control = Enter();
    return control->store.ColumnAt(control->InternalCol(Col)).Format;
}

void Vornix::SetColFormat(i16 Col, std::u16string_view Value)
{
    const auto control = Enter();
    const int col = control->InternalCol(Col);
    control->store.ColumnAt(col).Format = Value;
    control->funnel.RefreshColUnderGate(col);
}

std::u16string Vornix::ColMask(i16 Col) const
{
    const auto control = Enter();
    return control->store.ColumnAt(control->InternalCol(Col)).Mask;
}

void Vornix::SetColMask(i16 Col, std::u16string_view Value)
{
    const auto control = Enter();
    const int col = control->InternalCol(Col);
    control->store.ColumnAt(col).Mask = Value;
    control->funnel.RefreshColUnderGate(col);
}

} // namespace vornix
