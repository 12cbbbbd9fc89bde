// What the user does with the bars and the wheel.
#include "automation/checked.h"
#include "interact/scrolling.h"

namespace vornix {

namespace {

constexpr i32 WheelNotch = 120;
constexpr i32 StepsOfNotch = 3;

} // namespace

void Scrolling::SetHooked(bool hooked)
{
    hooked_ = hooked;
    for (ScrollBar* const bar : { &hBar_.control, &vBar_.control }) {
        if (hooked)
            bar->Subclass();
        else
            bar->UnSubclass();
    }
}

void Scrolling::Notify(ChildName bar, i32 code)
{
    if (bar == ChildName::scrH)
        hBar_.control.Notify(code);
    else if (bar == ChildName::scrV)
        vBar_.control.Notify(code);
}

void Scrolling::Wheel(i32 delta)
{
    if (!hooked_)
        return;
    const i32 step = -(delta / WheelNotch) * StepsOfNotch;
    if (vBar_.control.IsShown())
        WheelOver(vBar_.control, step, &Scrolling::VerticalChange);
    else if (hBar_.control.IsShown())
        WheelOver(hBar_.control, step, &Scrolling::HorizontalChange);
}

void Scrolling::WheelOver(ScrollBar& bar, i32 step, Relay::OnChange change)
{
    const i32 before = bar.Value();
    bar.SetValue(before + step);
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
    switch (context_.layout.Settings.ScrollHBar) {
    case vxNormalScroll:
        return context_.events.ScrollTrackCol(ToI16(value - context_.store.FixedCols()));
    case vxScrollTrack:
        CloseEditor();
        context_.scroll.SetFirstCol(positions_.ScrollingCol(value));
        context_.repainter.RepaintUnderGate();
        context_.events.Scroll();
        value = HPosition();
        return;
    case vxScrollSmooth:
        CloseEditor();
        MoveToPixel(value);
        context_.repainter.RepaintUnderGate();
        return;
    default:
        return;
    }
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
    switch (context_.layout.Settings.ScrollVBar) {
    case vxNormalScroll:
        return context_.events.ScrollTrackRow(ToI16(value - context_.store.FixedRows()));
    case vxScrollTrack:
        CloseEditor();
        context_.scroll.SetFirstRow(positions_.ScrollingRow(value));
        context_.repainter.RepaintUnderGate();
        context_.events.Scroll();
        value = context_.scroll.FirstRow();
        return;
    default:
        return;
    }
}

} // namespace vornix
