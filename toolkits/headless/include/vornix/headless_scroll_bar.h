// A scroll bar of a container without a screen: a child window with a range and a position, whose user is the program.
#pragma once

#include "vornix/headless_child.h"

#include <functional>
#include <optional>
#include <utility>

namespace vornix {

class HeadlessScrollBar final : public HeadlessChild, public NativeScrollBar {
public:
    explicit HeadlessScrollBar(ChildName name)
        : name_(name)
    {
    }
    // Who is told what the user does, as the numbers of Notify.
    void TellTo(std::function<void(i32 code)> receiver) { receiver_ = std::move(receiver); }

    i32 Min() const { return info_.min; }
    i32 Max() const { return info_.max; }
    i32 Page() const { return info_.page; }
    i32 Value() const { return info_.position; }

    // One notification, as the user's doing gives it: 0 and 1 a line up and down, 2 and 3 a page, 4 the thumb let go, 5
    // the thumb dragged, 6 to the top, 7 to the bottom, 8 the end of any of them. `trackPosition` is where the thumb is
    // held, limited to the range. Nothing is implied: a drag is a 5 for each step, a 4 and an 8. A disabled bar has no
    // user; a hidden one, and one of a control whose Redraw is off, goes unheard. Error 5 for another code.
    void Notify(i32 code, std::optional<i32> trackPosition = std::nullopt);

    // What a person does with the left button. At each end is an arrow, as long as the bar is thick, for a step; between
    // them lies the thumb, whose share of the trough is that of the page in the range, 8 pixels at least; a press beside
    // it is a page. All give their number and, at the release, 8; holding repeats nothing. A drag of the thumb gives a 5
    // for each move, then 4 and 8.
    void MouseDown(i16 button, i16 shift, float x, float y) override;
    void MouseMove(i16 button, i16 shift, float x, float y) override;
    void MouseUp(i16 button, i16 shift, float x, float y) override;
    void DblClick() override;

    void SetInfo(const ScrollBarInfo& info) override;
    void SetRange(i32 min, i32 max) override;
    i32 Position() const override { return info_.position; }
    void SetPosition(i32 position) override { info_.position = Limited(position); }
    i32 TrackPosition() const override { return Limited(trackPosition_); }

private:
    // What goes on between press and release.
    enum class Action { None, Step, Drag };
    struct Press {
        i16 button = 0;
        float x = 0;
        float y = 0;
    };

    i32 Limited(i32 position) const;
    bool IsVertical() const { return name_ == ChildName::scrV; }
    double Along(float x, float y) const;

    ChildName name_;
    std::function<void(i32 code)> receiver_;
    ScrollBarInfo info_;
    i32 trackPosition_ = 0;
    Press latestPress_;
    Action action_ = Action::None;
    // Pixels from the start of the thumb to where it is held.
    double grip_ = 0;
};

} // namespace vornix
