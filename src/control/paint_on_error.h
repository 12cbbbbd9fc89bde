// A step that can fail after part of it has been done.
#pragma once

#include "control/control.h"

namespace vornix {

// The error comes out with that part on the screen, be it no more than a selection that has ended.
template <typename Step> void PaintOnError(Control& control, const Step& step)
{
    try {
        step();
    } catch (...) {
        control.funnel.RepaintUnderGate();
        throw;
    }
}

} // namespace vornix
