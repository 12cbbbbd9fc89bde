// A scroll bar of a container without a screen: a child window with a range and a position, whose user is the program.
#pragma once

#include "vornix/headless_child.h"

#include <optional>

namespace vornix {

class Vornix;

class HeadlessScrollBar final : public HeadlessChild, public NativeScrollBar {
public:
    explicit HeadlessScrollBar(ChildName name)
        : name_(name)
    {
    }
    // The control that is told what the user does.
    void TellTo(Vornix& grid) { grid_ = &grid; }

    i32 Min() const { return info_.min; }
    i32 Max() const { return info_.max; }
    i32 Page() const { return info_.page; }
    i32 Value() const { return info_.position; }

    // One notification, as the user's doing gives it: 0 and 1 a line up and down, 2 and 3 a page, 4 the thumb let go, 5
    // the thumb dragged, 6 to the top, 7 to the bottom, 8 the end of any of them. `trackPosition` is where the thumb is
    // held, limited to the range. Nothing is implied: a drag is a 5 for each step, a 4 and an 8. A disabled bar has no
    // user; a hidden one, and one of a control whose Redraw is off, goes unheard. Error 5 for another code.
    void Notify(i32 code, std::optional<i32> trackPosition = std::nullopt);

    void SetInfo(const ScrollBarInfo& info) override;
    void SetRange(i32 min, i32 max) override;
    i32 Position() const override { return info_.position; }
    void SetPosition(i32 position) override { info_.position = Limited(position); }
    i32 TrackPosition() const override { return trackPosition_; }

private:
    i32 Limited(i32 position) const;

    ChildName name_;
    Vornix* grid_ = nullptr;
    ScrollBarInfo info_;
    i32 trackPosition_ = 0;
};

} // namespace vornix
