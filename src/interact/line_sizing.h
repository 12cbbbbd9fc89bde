// The user's sizing of rows and columns by the boundaries in the fixed lines. Sizing is live: every move of the pointer
// is laid out and painted, and the host has the last word on each new size. Internal indices; places in pixels of the
// client area.
#pragma once

#include "interact/current_cell_ports.h"

namespace vornix {

struct LineSizingContext {
    GridStore& store;
    LayoutEngine& layout;
    ScrollModel& scroll;
    HiddenLines& hidden;
    const Spans& spans;
    RedrawGate& gate;
    Scrolling& scrolling;
    ListPage& page;
    Container& container;
    VornixEvents& events;
};

class LineSizing {
public:
    explicit LineSizing(LineSizingContext context);

    // Which cell lies at a place. Remembers which lines could be sized from there, unless a sizing runs.
    HitResult HitTest(int x, int y);

    // A column or row is being sized.
    bool IsSizing() const { return sizingCol_ || sizingRow_; }
    // The pointer shows that a press would size a line.
    bool IsCursorShown() const { return cursorShown_; }
    // The shape that the pointer has.
    PointerShape Cursor() const { return cursor_; }
    void RestoreCursor();

    // The pointer has moved without a button, behind HitTest at that place.
    void UpdateCursor(int x, int y, const HitResult& hit);
    // A press while the cursor shows. False when there is no line to size, and the cursor goes.
    bool Begin(int x, int y);
    // The pointer has moved with the button. Raises ResizeCol or ResizeRow, and the events of painting.
    void SizeTo(int x, int y);
    void End();
    // A double click on the boundary: the line takes the size of what it holds.
    void FitLine();

private:
    LineSizingContext context_;
    PointerShape cursor_ = PointerShape::Default;
    bool cursorShown_ = false;
    bool sizingCol_ = false;
    bool sizingRow_ = false;
};

} // namespace vornix
