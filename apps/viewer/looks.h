// The colours of the viewer's grid, made from those of the system so that they fit light and dark ones alike.
#pragma once

#include "vornix/platform/system_colors.h"

namespace vornix::viewer {

struct Looks {
    ColorRef ground; // of odd rows, the caption, and the window beyond the cells
    ColorRef alternateGround; // of even rows
    ColorRef ink;
    ColorRef headerGround; // of the row numbers too
    ColorRef headerInk;
    ColorRef faintInk; // of the row numbers
    ColorRef line;
};

Looks LooksFrom(const SystemColors& colors);

} // namespace vornix::viewer
