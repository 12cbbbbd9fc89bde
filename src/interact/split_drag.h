// The handle of the split, dragged by the user: a line follows the pointer, and the split goes where it is let go.
// Places in pixels of the handle.
#pragma once

#include "interact/scrolling.h"

namespace vornix {

struct SplitDragContext {
    const GridStore& store;
    LayoutEngine& layout;
    ScrollModel& scroll;
    Scrolling& scrolling;
    PaintPipeline& paint;
    Container& container;
    VornixEvents& events;
};

class SplitDrag {
public:
    explicit SplitDrag(SplitDragContext context)
        : context_(context)
    {
    }

    // Any button but the right one drags.
    void Press(i16 button, int x);
    void Move(int x);
    // Raises SplitCols where there is a column to split at, and the events of painting. A split that would cut a span
    // is refused. Error 6 when the columns before it are too wide for a sum.
    void Release(i16 button, int x);
    // The drag is over without a split.
    void Cancel() { Line().Show(false); }

private:
    ChildWindow& Line() const { return context_.container.Child(ChildName::picSplitMove); }
    int InClientArea(int x) const;
    void PlaceLine(int left);
    void DrawLine(int left);
    bool CutsSpan(int col) const;

    SplitDragContext context_;
};

} // namespace vornix
