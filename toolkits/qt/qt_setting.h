// What the window of a control and the windows on it have in common.
#pragma once

#include "vornix/platform/system_colors.h"
#include "vornix/vornix.h"

#include <QFrame>
#include <QtGlobal>

namespace vornix {

// News from Qt on their way to the control. One that is closed, or not yet made, hears nothing; above Qt nobody could
// take an error.
class GridLink {
public:
    void Attach(Vornix* grid) { grid_ = grid; }

    template <typename Step> void Tell(const Step& step) const
    {
        if (!grid_ || grid_->IsTerminated())
            return;
        try {
            step(*grid_);
        } catch (const AutomationError& error) {
            qWarning("QVornix: error %d, %s", error.Number(), error.what());
        }
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
