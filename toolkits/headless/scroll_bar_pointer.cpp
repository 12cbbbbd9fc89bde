// What a person does to a scroll bar with the pointer.
#include "bar_geometry.h"
#include "vornix/headless_scroll_bar.h"

#include <utility>

namespace vornix {

namespace {

constexpr i16 LeftButton = 1;
constexpr i32 ThumbPosition = 4;
constexpr i32 ThumbTrack = 5;
constexpr i32 EndScroll = 8;

// The notification of a press on a part.
std::optional<i32> CodeOf(BarPart part)
{
    switch (part) {
    case BarPart::LineUp:
        return 0;
    case BarPart::LineDown:
        return 1;
    case BarPart::PageUp:
        return 2;
    case BarPart::PageDown:
        return 3;
    case BarPart::Thumb:
    case BarPart::None:
        break;
    }
    return std::nullopt;
}

BarGeometry GeometryOf(const Rect& place, bool isVertical, const ScrollBarInfo& info)
{
    if (isVertical)
        return { static_cast<double>(place.Height()), static_cast<double>(place.Width()), info };
    return { static_cast<double>(place.Width()), static_cast<double>(place.Height()), info };
}

} // namespace

double HeadlessScrollBar::Along(float x, float y) const
{
    return IsVertical() ? y : x;
}

void HeadlessScrollBar::MouseDown(i16 button, i16 /*shift*/, float x, float y)
{
    latestPress_ = { button, x, y };
    if (button != LeftButton)
        return;
    const BarGeometry geometry = GeometryOf(Place(), IsVertical(), info_);
    const BarPart part = geometry.PartAt(Along(x, y));
    action_ = part == BarPart::None ? Action::None : part == BarPart::Thumb ? Action::Drag : Action::Step;
    grip_ = Along(x, y) - geometry.ThumbStart();
    if (const auto code = CodeOf(part))
        Notify(*code);
}

void HeadlessScrollBar::MouseMove(i16 button, i16 /*shift*/, float x, float y)
{
    if ((button & LeftButton) == 0)
        action_ = Action::None; // the release did not come here
    if (action_ == Action::Drag)
        Notify(ThumbTrack, GeometryOf(Place(), IsVertical(), info_).PositionAt(Along(x, y) - grip_));
}

void HeadlessScrollBar::MouseUp(i16 button, i16 /*shift*/, float /*x*/, float /*y*/)
{
    if (button != LeftButton || action_ == Action::None)
        return;
    const bool wasDrag = std::exchange(action_, Action::None) == Action::Drag;
    if (wasDrag)
        Notify(ThumbPosition);
    Notify(EndScroll);
}

// The second press of a double click is a press like any other here.
void HeadlessScrollBar::DblClick()
{
    MouseDown(latestPress_.button, 0, latestPress_.x, latestPress_.y);
}

} // namespace vornix
