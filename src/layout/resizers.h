// Which line's boundary lies at a place: the hit test of cells, and with it the row and the column that a press there
// would size. Internal indices; pixels of the client area. Whether a line may be sized is asked of the lines before the
// one under the pointer only: the caller tests what it gets.
#pragma once

#include "layout/layout_engine.h"
#include "layout/scroll_model.h"

namespace vornix {

struct ResizerHit {
    // What LayoutEngine::HitTestCell gives.
    HitResult cell;
    // The lines to size, NoIndex for none.
    int row = NoIndex;
    int col = NoIndex;
};

class Resizers {
public:
    Resizers(const GridStore& store, const LayoutEngine& layout, const ScrollModel& scroll)
        : store_(store)
        , layout_(layout)
        , scroll_(scroll)
    {
    }

    ResizerHit HitTest(int x, int y) const;

private:
    const GridStore& store_;
    const LayoutEngine& layout_;
    const ScrollModel& scroll_;
};

} // namespace vornix
