// What the grid does with the keys that the host leaves to it. Internal indices.
//
// A key may raise ValidateRow, CellChange, Scroll, TextChange and the events of painting, editing and paging. Their
// handlers may do anything: what a step goes on with is read and tested anew behind each of them.
#pragma once

#include "interact/check_toggle.h"
#include "interact/current_cell_mover.h"
#include "interact/grid_selection.h"

namespace vornix {

struct KeyboardContext {
    const GridStore& store;
    const Spans& spans;
    const HiddenLines& hidden;
    ScrollModel& scroll;
    LayoutEngine& layout;
    const RedrawGate& gate;
    CurrentCell& current;
    GridSelection& selection;
    Scrolling& scrolling;
    Repainter& repainter;
    CurrentCellMover& mover;
    CheckToggle& checks;
    CellEditor& editor;
    ListPage& page;
    PointerHover& hover;
    Container& container;
    VornixEvents& events;
};

class Keyboard {
public:
    explicit Keyboard(KeyboardContext context);

    // A key as the handlers of KeyDown left it, with the sum of the shift states.
    void KeyDown(int key, int shift);
    // The first half of it, which moves, scrolls, toggles and edits; an editor passes its arrow keys on to this one.
    void PlainKey(int key, int shift);

private:
    enum class Move { Lost, SameCell, Asked };

    void UnshiftedKey(int key);
    void KeyWithCtrl(int key);

    void MoveByArrow(int key);
    Move AskAndMove(int key);
    void EmptySelection();
    void FollowList();
    bool AskHost(CellIndex target, CellIndex chosenAs);
    void ScrollByKey(int key);
    bool TakeFirstCol(int key);
    bool TakeFirstRow(int key);
    void Arrive(int key);
    void OpenEditor(int key);

    template <typename Target> void JumpTo(const Target& targetFrom);
    void PageDown();
    void PageUp();
    void ToggleCurrent();
    void EnterEdit();
    void ExtendSelection(int key, int shift);
    void AddBetweenCorners();

    KeyboardContext context_;
    CellStep step_;
};

} // namespace vornix
