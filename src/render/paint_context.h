// What the floors of painting share: the objects they read, the paint that is going on, and the place of one cell.
#pragma once

#include "layout/layout_engine.h"
#include "model/grid_store.h"
#include "model/redraw_gate.h"
#include "render/interaction_view.h"
#include "vornix/events.h"
#include "vornix/platform/container.h"

namespace vornix {

// What the pipeline reads and reports to. All outlive it.
struct PaintContext {
    GridStore& store;
    LayoutEngine& layout;
    ScrollModel& scroll;
    RedrawGate& gate;
    InteractionView& interaction;
    Container& container;
    VornixEvents& events;
};

// One paint, from its first cell to its last.
struct PaintJob {
    // Where cells are copied to. Null when there is no surface: the walk runs, nothing is drawn.
    Device* target = nullptr;
    // A second picture that takes every cell too; null when there is none, or when the target is the same picture.
    Device* mirror = nullptr;
    // Selection is not painted as selection, and the caption is as wide as `printedWidth`.
    bool printing = false;
    int printedWidth = 0;
    bool withoutBackground = false;
    bool withoutFocus = false;
    // The caption stands behind every column of row 0, but need be painted only once.
    bool captionPainted = false;
    // A handler closed the control: nothing more is drawn.
    bool stopped = false;
};

// Where a cell lies and how much of it shows. Internal indices, logical pixels.
struct CellPlacement {
    int row = 0;
    int col = 0;
    // Place of the visible part on the target.
    Point position;
    // The whole cell, its span included.
    Size size;
    // What is clipped away at the left and at the top.
    Point source;

    // Where the corner of the whole cell would lie on the target.
    Point Origin() const { return { position.x - source.x, position.y - source.y }; }
    Rect Visible() const
    {
        return { position.x, position.y, position.x + size.width - source.x, position.y + size.height - source.y };
    }
};

} // namespace vornix
