// Sizes that follow from what the cells hold.
#include "control/control.h"

#include <optional>

namespace vornix {

void Vornix::CalcRectText(i16 Row, i16 Col, i32& Width, i32& Height) const
{
    const auto control = Enter();
    const auto [row, col] = control->Internal(Row, Col);
    const Size needed = control->fitting.CalcRectText(row, col);
    Width = needed.width;
    Height = needed.height;
}

void Vornix::AdjustHeight(i16 Row, i16 Col, bool AlsoWidth)
{
    const auto control = Enter();
    const auto col = Col == NoIndex ? std::nullopt : std::optional(control->InternalCol(Col));
    control->fitting.AdjustHeight(control->InternalRow(Row), col, AlsoWidth);
}

void Vornix::AdjustWidth(i16 Col, i16 Row)
{
    const auto control = Enter();
    const auto row = Row == NoIndex ? std::nullopt : std::optional(control->InternalRow(Row));
    control->fitting.AdjustWidth(control->InternalCol(Col), row);
}

void Vornix::AutoSizeRows(i16 Lines)
{
    Enter()->fitting.AutoSizeRows(Lines);
}

} // namespace vornix
