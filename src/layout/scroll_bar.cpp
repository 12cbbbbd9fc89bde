#include "layout/scroll_bar.h"

#include <algorithm>

namespace vornix {

namespace {

enum Message { LineUp, LineDown, PageUp, PageDown, ThumbPosition, ThumbTrackMessage, Top, Bottom, EndScroll };

// From this line step on it does not double any more.
constexpr i32 LongStep = 20;

} // namespace

void cScrollBar::Initialize()
{
    lineStep_ = baseStep_ = 1;
    min_ = 1;
    max_ = 100;
    info_.min = 1;
    info_.max = 100;
    info_.page = 1;
    Refresh();
}

void cScrollBar::SetMin(i32 min)
{
    min_ = info_.min = min;
    bar_.SetRange(info_.min, info_.max);
}

void cScrollBar::SetMax(i32 max)
{
    max_ = info_.max = max;
    bar_.SetRange(info_.min, info_.max);
}

void cScrollBar::SetSmallChange(i32 step)
{
    baseStep_ = step;
    lineStep_ = step;
}

void cScrollBar::SetInfo(i32 value, i32 min, i32 max, i32 page)
{
    min_ = min;
    max_ = max;
    info_ = { .min = min, .max = max, .page = page, .position = Limited(value) };
    Refresh();
}

void cScrollBar::DispatchMessage(i32 code)
{
    switch (code) {
    case LineUp:
        return LineMove(-1);
    case LineDown:
        return LineMove(1);
    case PageUp:
        return PageMove(-1);
    case PageDown:
        return PageMove(1);
    case ThumbTrackMessage:
        return ThumbTrack();
    case Top:
        return RaiseChange(min_, 0);
    case Bottom:
        return RaiseChange(max_, 0);
    case EndScroll:
        lineStep_ = baseStep_;
        return ThumbEnd();
    case ThumbPosition: // the end of the action serves it
    default:
        return;
    }
}

void cScrollBar::EndAction()
{
    tracking_ = false;
    lineStep_ = baseStep_;
}

void cScrollBar::LineMove(i32 sign)
{
    if (smoothScroll_ && lineStep_ < LongStep && lineStep_ > -LongStep)
        lineStep_ *= 2;
    RaiseChange(Limited(bar_.Position() + std::int64_t { sign } * lineStep_), 0);
}

// How far a page goes is the receiver's business.
void cScrollBar::PageMove(i32 direction)
{
    RaiseChange(bar_.Position(), direction);
}

void cScrollBar::ThumbTrack()
{
    tracking_ = true;
    i32 value = Limited(bar_.TrackPosition());
    events_.Scroll(value);
    SetPosition(value);
}

void cScrollBar::ThumbEnd()
{
    if (!tracking_)
        return;
    tracking_ = false;
    RaiseChange(Limited(bar_.TrackPosition()), 0);
}

void cScrollBar::RaiseChange(i32 value, i32 direction)
{
    events_.Change(value, direction);
    SetPosition(value);
}

void cScrollBar::SetPosition(i32 value)
{
    bar_.SetPosition(Limited(value));
}

i32 cScrollBar::Limited(std::int64_t value) const
{
    return static_cast<i32>(std::min<std::int64_t>(std::max<std::int64_t>(value, min_), max_));
}

} // namespace vornix
