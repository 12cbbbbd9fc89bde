// Where the view stands, and the bars.
#include "automation/checked.h"
#include "control/control.h"

#include <algorithm>

namespace vornix {

i16 Vornix::FirstRow() const
{
    const auto control = Enter();
    return control->PublicRow(control->scroll.FirstRow());
}

void Vornix::SetFirstRow(i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    const i16 lastRow = static_cast<i16>(control->store.Rows() - 1);
    control->scrolling.SetFirstRow(control->InternalRow(std::min(Value, lastRow)));
}

i16 Vornix::FirstCol() const
{
    const auto control = Enter();
    return control->PublicCol(control->scroll.FirstCol());
}

void Vornix::SetFirstCol(i16 Value)
{
    const auto control = Enter();
    if (Value < 0)
        return;
    const i16 lastCol = static_cast<i16>(control->store.Cols() - 1);
    control->scrolling.SetFirstCol(control->InternalCol(std::min(Value, lastCol)));
}

i16 Vornix::LastRow() const
{
    const auto control = Enter();
    return control->PublicRow(control->scroll.LastRow());
}

void Vornix::SetLastRow(i16 Value)
{
    const auto control = Enter();
    if (Value >= 0 && Value < control->store.Rows())
        control->scrolling.SetLastRow(control->InternalRow(Value));
}

i16 Vornix::LastCol() const
{
    const auto control = Enter();
    return control->PublicCol(control->scroll.LastCol());
}

void Vornix::SetLastCol(i16 Value)
{
    const auto control = Enter();
    if (Value >= 0 && Value < control->store.Cols())
        control->scrolling.SetLastCol(control->InternalCol(Value));
}

i32 Vornix::ScrollHBar() const
{
    return Enter()->layout.Settings.ScrollHBar;
}

void Vornix::SetScrollHBar(i32 Value)
{
    const auto control = Enter();
    if (Value == control->layout.Settings.ScrollHBar)
        return;
    control->layout.Settings.ScrollHBar = Value;
    control->layout.SetSmoothOffset(0);
    control->RelayoutForBars();
    control->Report("ScrollHBar");
}

i32 Vornix::ScrollVBar() const
{
    return Enter()->layout.Settings.ScrollVBar;
}

void Vornix::SetScrollVBar(i32 Value)
{
    const auto control = Enter();
    if (Value == control->layout.Settings.ScrollVBar || Value == vxScrollSmooth)
        return;
    // Dragging must not fetch a page at every step.
    const bool isVirtual = control->settings.VirtualPageSize >= 1;
    control->layout.Settings.ScrollVBar = isVirtual && Value == vxScrollTrack ? i32(vxNormalScroll) : Value;
    control->RelayoutForBars();
    control->Report("ScrollVBar");
}

void Control::RelayoutForBars()
{
    if (gate.IsOpen() || !IsRunMode())
        funnel.RecalcLayout(false);
}

i16 Vornix::ScrollBarSize() const
{
    return Enter()->layout.Settings.ScrollBarSize;
}

void Vornix::SetScrollBarSize(i16 /*Value*/)
{
    const auto control = Enter();
}

bool Vornix::ScrollHEnabled() const
{
    return Enter()->scrolling.HorizontalBar().Enabled();
}

void Vornix::SetScrollHEnabled(bool Value)
{
    const auto control = Enter();
    control->scrolling.HorizontalBar().SetEnabled(Value);
    if (!Value)
        control->scrolling.EndUserActions();
}

bool Vornix::ScrollVEnabled() const
{
    return Enter()->scrolling.VerticalBar().Enabled();
}

void Vornix::SetScrollVEnabled(bool Value)
{
    const auto control = Enter();
    control->scrolling.VerticalBar().SetEnabled(Value);
    if (!Value)
        control->scrolling.EndUserActions();
}

i32 Vornix::ScrollBarStyle() const
{
    const auto control = Enter();
    return vxSB3D;
}

void Vornix::SetScrollBarStyle(i32 /*Value*/)
{
    const auto control = Enter();
}

bool Vornix::IsVisibleScrollH() const
{
    return Enter()->scrolling.HorizontalBar().IsShown();
}

bool Vornix::IsVisibleScrollV() const
{
    return Enter()->scrolling.VerticalBar().IsShown();
}

} // namespace vornix
