// What the painter must know of mouse, keyboard, selection and editor. The defaults are those of a grid at rest.
#pragma once

#include "model/cell.h"

namespace vornix {

class InteractionView {
public:
    virtual ~InteractionView() = default;

    // A press is going on and this is the pressed cell. Internal indices throughout.
    virtual bool IsPressed(int /*row*/, int /*col*/) const { return false; }
    // By the drag that is going on, or else by the selection. Asked for cells that are not fixed.
    virtual bool IsSelected(const Cell& /*cell*/, int /*row*/, int /*col*/, bool /*printing*/) const { return false; }
    // The current cell, while its display is on.
    virtual bool IsCurrentCell(int /*row*/, int /*col*/) const { return false; }
    virtual bool IsEditing() const { return false; }
    virtual bool SuppressesFocusMark() const { return false; }
    // The paint walk found its last column and row; a drag over whole lines follows them.
    virtual void PaintRangeChanged(int /*paintLastRow*/, int /*paintLastCol*/) { }
};

} // namespace vornix
