// What the painter sees of the user's doings.
#pragma once

#include "interact/current_cell.h"
#include "model/repainter.h"
#include "render/interaction_view.h"

namespace vornix {

class GridInteraction : public InteractionView {
public:
    GridInteraction(const CurrentCell& current, const EditorControl& editor)
        : current_(current)
        , editor_(editor)
    {
    }

    bool IsCurrentCell(int row, int col) const override { return current_.IsDisplayedAt(row, col); }
    bool IsEditing() const override { return editor_.IsEditorOpen(); }

private:
    const CurrentCell& current_;
    const EditorControl& editor_;
};

} // namespace vornix
