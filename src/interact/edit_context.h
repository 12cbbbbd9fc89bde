// What the editors of cells work with.
#pragma once

#include "interact/current_cell_ports.h"
#include "interact/edit_place.h"
#include "interact/grid_selection.h"

#include <cstdint>

namespace vornix {

class CurrentCellMover;
class Keyboard;
class LineSizing;
class Mouse;

// Fills the combo editor's list for a cell from a record source. Leaves it where the column has none.
class ComboSource {
public:
    virtual ~ComboSource() = default;
    virtual void FillCombo(CellIndex /*cell*/) { }
};

struct EditContext {
    GridStore& store;
    const LayoutEngine& layout;
    const RedrawGate& gate;
    CurrentCell& current;
    CurrentCellMover& mover;
    GridSelection& selection;
    Scrolling& scrolling;
    Repainter& repainter;
    LineSizing& sizing;
    Mouse& mouse;
    Keyboard& keyboard;
    ComboSource& lists;
    Container& container;
    VornixEvents& events;
};

// The cell of the session, as the editors of its modes see it.
class EditedCell {
public:
    virtual ~EditedCell() = default;
    // There is such a cell, and its editor shows.
    virtual bool IsOpen() const = 0;
    virtual CellIndex Cell() const = 0;
    // Another number for every session.
    virtual std::uint32_t Session() const = 0;
    virtual const EditPlace& Place() const = 0;
    virtual void RaiseForCell(void (VornixEvents::*event)(i16 Row, i16 Col)) = 0;
    // Raises TextChange. The editor lies over the cell, so nothing is painted.
    virtual void WriteText(std::u16string_view text) = 0;
    virtual void CloseByUser() = 0;
    // In pixels of the client area.
    virtual void PointerOverEditor(i16 button, i16 shift, float x, float y) = 0;
    // The editor shows from now on.
    virtual void ShowFrame(const Rect& place) = 0;
    // What a host has selected before there was an editor.
    virtual void TakePendingSelection(EditBox& box) = 0;
};

} // namespace vornix
