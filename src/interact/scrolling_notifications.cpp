// What the user does with the bars and the wheel.
#include "automation/checked.h"
#include "interact/scrolling.h"

#include <algorithm>
#include <cstdint>

namespace vornix {

namespace {

constexpr i32 WheelNotch = 120;
constexpr i32 StepsOfNotch = 3;

} // namespace

void Scrolling::SetHooked(bool hooked)
{
    hooked_ = hooked;
    HookBar(hBar_.control);
    HookBar(vBar_.control);
}

void Scrolling::HookBar(ScrollBar& bar)
{
    if (hooked_)
        bar.Subclass();
    else
        bar.UnSubclass();
}

// A handler that runs inside a paint changes the mode without a layout.
void Scrolling::FollowUnitOfHBar()
{
    if (hooked_ && hBar_.control.IsShown() && IsHBarOfOtherUnit())
        UpdateHScrollRange();
}

void Scrolling::EndUserActions()
{
    if (!hooked_)
        return;
    SetHooked(false);
    SetHooked(true);
    hBar_.control.SetValue(HPosition());
    vBar_.control.SetValue(context_.scroll.FirstRow());
}

void Scrolling::Notify(ChildName bar, i32 code)
{
    FollowUnitOfHBar();
    if (bar == ChildName::scrH)
        hBar_.control.Notify(code);
    else if (bar == ChildName::scrV)
        vBar_.control.Notify(code);
}

void Scrolling::Wheel(i32 delta)
{
    Wheel(vBar_.control.IsShown() ? ChildName::scrV : ChildName::scrH, delta);
}

void Scrolling::Wheel(ChildName bar, i32 delta)
{
    MoveBar(bar, -(delta / WheelNotch) * StepsOfNotch);
}

void Scrolling::MoveBar(ChildName bar, i32 steps)
{
    if (!hooked_)
        return;
    FollowUnitOfHBar();
    if (bar == ChildName::scrV && vBar_.control.IsShown())
        WheelOver(vBar_.control, steps, &Scrolling::VerticalChange);
    else if (bar == ChildName::scrH && hBar_.control.IsShown())
        WheelOver(hBar_.control, steps, &Scrolling::HorizontalChange);
}

void Scrolling::WheelOver(ScrollBar& bar, i32 step, Relay::OnChange change)
{
    const i32 before = bar.Value();
    const std::int64_t target = std::max<std::int64_t>(std::int64_t { before } + step, bar.Min());
    bar.SetValue(static_cast<i32>(std::min<std::int64_t>(target, bar.Max())));
    i32 value = bar.Value();
    if (value == before)
        return;
    (this->*change)(value, 0);
    bar.SetValue(value); // the line really taken
}

// The horizontal bar's value for where the view stands.
i32 Scrolling::HPosition() const
{
    return positions_.IsSmooth() ? positions_.PixelAtLeft() : context_.scroll.FirstCol();
}

void Scrolling::MoveToPixel(i32 pixel)
{
    const ColPlace place = positions_.ColAtPixel(pixel);
    context_.layout.SetSmoothOffset(place.offset);
    context_.scroll.SetFirstCol(place.col);
}

void Scrolling::HorizontalChange(i32& value, i32 direction)
{
    const BarRange range = RangeOf(hBar_.control);
    const bool wasSmooth = positions_.IsSmooth();
    if (wasSmooth) {
        value = positions_.NextSmoothValue(value, direction, range);
        MoveToPixel(value);
    } else {
        context_.scroll.SetFirstCol(positions_.NextScrollCol(value, direction, range));
    }
    const i32 taken = HPosition();
    CloseEditor();
    context_.repainter.RepaintUnderGate();
    if (context_.layout.Settings.ScrollHBar != vxScrollTrack)
        context_.events.Scroll();
    // In smooth mode the bar keeps the value, unless a handler has moved the view.
    if (!wasSmooth || !positions_.IsSmooth() || HPosition() != taken)
        value = HPosition();
}

void Scrolling::HorizontalTrack(i32& value)
{
    const i32 mode = context_.layout.Settings.ScrollHBar;
    if (mode == vxNormalScroll)
        return context_.events.ScrollTrackCol(ToI16(positions_.ScrollingCol(value) - context_.store.FixedCols()));
    if (mode != vxScrollTrack && mode != vxScrollSmooth)
        return;
    CloseEditor();
    if (context_.layout.Settings.ScrollHBar != mode) {
        value = HPosition();
        return;
    }
    value = RangeOf(hBar_.control).Limit(value);
    if (mode == vxScrollSmooth) {
        MoveToPixel(value);
        return context_.repainter.RepaintUnderGate();
    }
    context_.scroll.SetFirstCol(positions_.ScrollingCol(value));
    context_.repainter.RepaintUnderGate();
    context_.events.Scroll();
    value = HPosition();
}

void Scrolling::VerticalChange(i32& value, i32 direction)
{
    context_.scroll.SetFirstRow(positions_.NextScrollRow(value, direction, RangeOf(vBar_.control)));
    context_.pages.RollPage();
    CloseEditor();
    context_.repainter.RepaintUnderGate();
    if (context_.layout.Settings.ScrollVBar != vxScrollTrack)
        context_.events.Scroll();
    value = context_.scroll.FirstRow();
}

void Scrolling::VerticalTrack(i32& value)
{
    const i32 mode = context_.layout.Settings.ScrollVBar;
    if (mode == vxNormalScroll)
        return context_.events.ScrollTrackRow(ToI16(positions_.ScrollingRow(value) - context_.store.FixedRows()));
    if (mode != vxScrollTrack)
        return;
    CloseEditor();
    if (context_.layout.Settings.ScrollVBar == mode) {
        context_.scroll.SetFirstRow(positions_.ScrollingRow(RangeOf(vBar_.control).Limit(value)));
        context_.repainter.RepaintUnderGate();
        context_.events.Scroll();
    }
    value = context_.scroll.FirstRow();
}

} // namespace vornix
