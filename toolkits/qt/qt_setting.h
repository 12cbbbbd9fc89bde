// What the window of a control and the windows on it have in common.
#pragma once

#include "qt_host_call.h"
#include "vornix/platform/system_colors.h"
#include "vornix/vornix.h"

#include <QFrame>

namespace vornix {

// News from Qt on their way to the control. One that is closed, or not yet made, hears nothing.
class GridLink {
public:
    void Attach(Vornix* grid) { grid_ = grid; }

    template <typename Step> void Tell(const Step& step) const
    {
        if (grid_ && !grid_->IsTerminated())
            CallFromQt([&] { step(*grid_); });
    }

private:
    Vornix* grid_ = nullptr;
};

struct QtSetting {
    QFrame& widget;
    GridLink grid;
    SystemColors colors;
    // Device pixels a logical pixel.
    double scale = 1.0;
};

} // namespace vornix
