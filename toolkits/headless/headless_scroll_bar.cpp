#include "vornix/headless_scroll_bar.h"

#include "vornix/automation.h"

#include <algorithm>

namespace vornix {

namespace {

constexpr i32 LastCode = 8;

} // namespace

void HeadlessScrollBar::Notify(i32 code, std::optional<i32> trackPosition)
{
    if (code < 0 || code > LastCode)
        throw AutomationError(ErrorNumber::InvalidArgument, "Notifications of a scroll bar are numbered 0 to 8");
    if (!IsEnabled())
        return;
    if (trackPosition)
        trackPosition_ = Limited(*trackPosition);
    if (receiver_)
        receiver_(code);
}

void HeadlessScrollBar::SetInfo(const ScrollBarInfo& info)
{
    info_ = info;
    info_.position = Limited(info.position);
}

void HeadlessScrollBar::SetRange(i32 min, i32 max)
{
    info_.min = min;
    info_.max = max;
    info_.position = Limited(info_.position);
}

// Of a range that is upside down the upper end is the only position.
i32 HeadlessScrollBar::Limited(i32 position) const
{
    return std::min(std::max(position, info_.min), info_.max);
}

} // namespace vornix
