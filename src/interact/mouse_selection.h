// How the mouse selects: at the press, by a drag that scrolls beyond the edges, and for good at the release. What a drag
// covers is shown, but selected at the release only. Internal indices.
#pragma once

#include "interact/current_cell_mover.h"
#include "interact/grid_selection.h"

namespace vornix {

// Where the press came down.
enum class PressZone { None, Body, RowHeader, ColHeader };

struct MouseSelectionContext {
    const GridStore& store;
    const LayoutEngine& layout;
    const ScrollModel& scroll;
    const CurrentCellMover& mover;
    GridSelection& selection;
    Scrolling& scrolling;
    Repainter& repainter;
};

class MouseSelection {
public:
    explicit MouseSelection(MouseSelectionContext context)
        : context_(context)
    {
    }

    // Decides by the zone and the settings what the press selects, and begins.
    void Press(PressZone zone, CellIndex cell, int shift);
    // The pointer is at this cell, or outside of all, with the button down. The view scrolls when it is outside.
    void Drag(const HitResult& hit, int x, int y);
    // Without a move of the pointer since the press, `cell` alone is meant.
    void Commit(CellIndex cell, int shift, bool hasMoved);
    // The drag is given up, and with it what it showed.
    void GiveUp();

private:
    SelectionKind KindOfPress(PressZone zone) const;
    bool IsSelected(CellIndex cell) const;
    void BeginDrag(CellIndex cell);
    void ExtendTo(CellIndex cell);
    void PlaceAnchor(CellIndex cell);
    void ReplaceBy(CellIndex cell);
    void ToggleLine(CellIndex cell);
    void SetCorners(CellIndex cell);
    void AddDragged(bool reset);

    int DragAcross(int x);
    int DragDown(int y);

    void TakeDragged(CellIndex cell, bool hasMoved);
    void EndToggle(CellIndex cell, bool hasMoved);

    MouseSelectionContext context_;
    // The press was on a line that is selected, with Ctrl.
    bool deselectAtRelease_ = false;
};

} // namespace vornix
