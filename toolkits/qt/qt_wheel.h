// The wheel and the touchpad. Small turns are kept until they make a whole notch, small ways until they make a whole
// line; in smooth mode columns follow the fingers pixel by pixel.
#pragma once

#include "qt_setting.h"
#include "vornix/platform/container.h"

class QWheelEvent;

namespace vornix {

class QtWheel {
public:
    QtWheel(QtSetting& setting, Container& container)
        : setting_(setting)
        , container_(container)
    {
    }

    // Ignored where there is nothing to scroll.
    void Turn(QWheelEvent& event);

private:
    // What has not been used yet, in notches or pixels along one bar; positive toward the start of the table.
    class Rest {
    public:
        // Turning back forgets what was kept.
        void Add(i32 amount);
        void Use(i32 amount) { kept_ -= amount; }
        void Forget() { kept_ = 0; }
        i32 Kept() const { return kept_; }

    private:
        i32 kept_ = 0;
    };
    struct Axis {
        Rest angle;
        Rest pixels;
    };

    bool IsShown(ChildName bar) const { return container_.Child(bar).IsVisible(); }
    Axis& AxisOf(ChildName bar) { return bar == ChildName::scrH ? across_ : down_; }
    void TurnByAngle(ChildName bar, i32 angle);
    void MoveByPixels(ChildName bar, i32 pixels);
    i32 LinesIn(Rest& pixels, i32 first, i32 count, i16 (*sizeOf)(const Vornix& grid, i16 line), const Vornix& grid);

    QtSetting& setting_;
    Container& container_;
    Axis across_;
    Axis down_;
};

} // namespace vornix
