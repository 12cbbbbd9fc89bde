// What cells and columns hold: texts, keys, truth values, names, formats and masks.
#include "automation/checked.h"
#include "automation/text_conversions.h"
#include "control/control.h"

namespace vornix {

namespace {

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
    std::u16string& name = control->store.ColumnAt(control->InternalCol(Col)).Name;
    OrOutOfMemory([&] { name = Value; });
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
    std::u16string& format = control->store.ColumnAt(col).Format;
    OrOutOfMemory([&] { format = Value; });
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
    std::u16string& mask = control->store.ColumnAt(col).Mask;
    OrOutOfMemory([&] { mask = Value; });
    control->funnel.RefreshColUnderGate(col);
}

} // namespace vornix
