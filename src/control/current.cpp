// The current cell, as hosts read and move it.
#include "automation/checked.h"
#include "control/control.h"

namespace vornix {

i32 Vornix::CurrentRow() const
{
    return Enter()->mover.PublicRow();
}

void Vornix::SetCurrentRow(i32 Value)
{
    Enter()->mover.WriteRow(Value);
}

i16 Vornix::CurrentCol() const
{
    return ToI16(Enter()->mover.PublicCol());
}

void Vornix::SetCurrentCol(i16 Value)
{
    Enter()->mover.WriteCol(Value);
}

void Vornix::CurrentPos(i32 Row, i16 Col)
{
    Enter()->mover.WritePos(Row, Col);
}

bool Vornix::IsCurrent(i16 Row, i16 Col) const
{
    const auto control = Enter();
    return control->current.IsAt(control->InternalRow(Row), control->InternalCol(Col));
}

} // namespace vornix
