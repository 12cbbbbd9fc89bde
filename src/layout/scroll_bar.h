// What the messages of a scroll bar mean: the steps of lines and pages, the drag of the thumb, and the position that the
// receiver of the events leaves behind.
#pragma once

#include "vornix/scroll_bar.h"

namespace vornix {

class cScrollBar {
public:
    cScrollBar(NativeScrollBar& bar, ScrollBarEvents& events)
        : bar_(bar)
        , events_(events)
    {
    }

    // Starts over: 1 .. 100, page and steps of 1.
    void Initialize();

    i32 Min() const { return min_; }
    i32 Max() const { return max_; }
    void SetMin(i32 min);
    void SetMax(i32 max);
    // The step of a line, now and after each release.
    void SetSmallChange(i32 step);
    void SetSmoothScroll(bool smooth) { smoothScroll_ = smooth; }
    i32 Value() const { return bar_.Position(); }
    void SetValue(i32 value) { SetPosition(value); }
    void SetInfo(i32 value, i32 min, i32 max, i32 page);
    // Gives the bar the stored range, page and position once more; the position is that of the latest SetInfo.
    void Refresh() { bar_.SetInfo(info_); }

    // One message by its number; unknown ones do nothing.
    void DispatchMessage(i32 code);
    // No drag is going on any more, and the next line starts with the first step.
    void EndAction();

private:
    void LineMove(i32 sign);
    void PageMove(i32 direction);
    void ThumbTrack();
    void ThumbEnd();
    void RaiseChange(i32 value, i32 direction);
    void SetPosition(i32 value);
    // With a range that is upside down its upper end wins.
    i32 Limited(std::int64_t value) const;

    NativeScrollBar& bar_;
    ScrollBarEvents& events_;
    ScrollBarInfo info_;
    i32 min_ = 1;
    i32 max_ = 100;
    i32 lineStep_ = 1;
    i32 baseStep_ = 1;
    bool smoothScroll_ = false;
    bool tracking_ = false;
};

} // namespace vornix
