// A while in which the grid does not paint.
#pragma once

#include "vornix/vornix.h"

namespace vornix::viewer {

// Many changes are painted once, at its end.
class RedrawPause {
public:
    explicit RedrawPause(Vornix& grid)
        : grid_(grid)
        , redraw_(grid.Redraw())
    {
        grid_.SetRedraw(false);
    }
    ~RedrawPause() { grid_.SetRedraw(redraw_); }
    RedrawPause(const RedrawPause&) = delete;
    RedrawPause& operator=(const RedrawPause&) = delete;

private:
    Vornix& grid_;
    const bool redraw_;
};

} // namespace vornix::viewer
