// What the painter sees of the user's doings.
#pragma once

#include "interact/current_cell.h"
#include "interact/grid_selection.h"
#include "interact/pressed_cell.h"
#include "model/repainter.h"
#include "render/interaction_view.h"

namespace vornix {

class GridInteraction : public InteractionView {
public:
    GridInteraction(
        const CurrentCell& current, const EditorControl& editor, GridSelection& selection, const PressedCell& pressed)
        : current_(current)
        , editor_(editor)
        , selection_(selection)
        , pressed_(pressed)
    {
    }

    bool IsPressed(int row, int col) const override { return pressed_.ShowsAt(row, col); }
    bool IsCurrentCell(int row, int col) const override { return current_.IsDisplayedAt(row, col); }
    bool IsEditing() const override { return editor_.IsEditorOpen(); }
    bool IsSelected(const Cell& cell, int row, int col, bool printing) const override
    {
        return selection_.IsShownSelected(cell, row, col, printing);
    }
    void PaintRangeChanged(int paintLastRow, int paintLastCol) override
    {
        selection_.PaintRangeChanged(paintLastRow, paintLastCol);
    }

private:
    const CurrentCell& current_;
    const EditorControl& editor_;
    GridSelection& selection_;
    const PressedCell& pressed_;
};

} // namespace vornix
