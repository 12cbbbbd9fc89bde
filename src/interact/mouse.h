// What the grid does with the pointer: which of the cell events are raised by a press, a move and a release, and in what
// order; when the current cell moves, how a selection grows, when a line is sized, and what makes a click a click.
// Internal indices; places in pixels of the client area.
//
// Handlers of the events may do anything, moving the current cell and closing the control included: what a step goes on
// with is read and tested anew behind each of them.
#pragma once

#include "interact/check_toggle.h"
#include "interact/line_sizing.h"
#include "interact/mouse_selection.h"
#include "interact/pressed_cell.h"

namespace vornix {

struct MouseContext {
    GridStore& store;
    const LayoutEngine& layout;
    const Spans& spans;
    RedrawGate& gate;
    CurrentCell& current;
    CurrentCellMover& mover;
    GridSelection& selection;
    MouseSelection& selecting;
    LineSizing& sizing;
    PressedCell& pressed;
    CheckToggle& checks;
    CellEditor& editor;
    Repainter& repainter;
    Container& container;
    VornixEvents& events;
};

class Mouse final : public PointerHover {
public:
    // Milliseconds between two looks for the pointer.
    static constexpr int WatchInterval = 100;

    explicit Mouse(MouseContext context)
        : context_(context)
    {
    }

    // The platform's notifications, each with the events that it raises. A click follows its release.
    void Down(i16 button, i16 shift, float x, float y);
    void Move(i16 button, i16 shift, float x, float y);
    void Up(i16 button, i16 shift, float x, float y);
    void Click();
    void DblClick();
    // Watches whether the pointer has left the control without a move.
    void Tick();

    void ExitHover() override;
    // Of the latest press, 0 behind a Click that a cell has answered; of the latest press or move.
    i16 Button() const { return button_; }
    i16 ShiftState() const { return shift_; }
    // The left button went down on a cell and is held.
    bool IsArmed() const { return isArmed_; }
    // A press that ended while nobody looked is over.
    void ForgetPressUnlessHeld();

    // Press, drag and sizing end without events: no release will come.
    void Abandon();
    // Nothing is remembered of a table that is no more.
    void Reset();

private:
    static constexpr CellIndex Nowhere { NoIndex, NoIndex };

    // -- Where the pointer is --
    void TakeHit(const HitResult& hit);
    HitResult LatestHit() const { return { hit_.row, hit_.col, !isOffCells_ }; }
    bool IsHovering() const { return hover_.row >= 0 && hover_.col >= 0; }
    void Watch(bool on);

    // -- The press --
    void PressOnBoundary(i16 button, Point at);
    void PressOnCell(i16 shift, Point at, float x, float y);
    void ShowPress();
    PressZone ZoneOfPress() const;
    bool MoveCurrentToPress(i16 shift, CellIndex chosenAs);
    bool LeavesRow() const;

    // -- The move --
    void HoverAlong(i16 button, CellIndex before, Point at);
    void LeaveCell(CellIndex cell);
    void EnterCell();

    // -- The release and the clicks --
    void RaiseUp(i16 button, i16 shift, float x, float y);
    void ReleaseOnCell();
    void TurnPressedCell();
    bool ActOnCurrent();
    void FitLine();

    // -- What they have in common --
    // The cell of the latest left press, as painted when it is held down.
    CellIndex Pressed() const { return context_.pressed.cell; }
    i32 ModeOf(CellIndex cell) const;
    void Raise(void (VornixEvents::*event)(i16 Row, i16 Col), CellIndex cell);
    void RepaintCell(CellIndex cell);
    void RepaintButton();

    MouseContext context_;

    i16 button_ = 0;
    i16 shift_ = 0;

    // The raw cell of the latest hit test, and the cell under the pointer by spans, which a test that finds none leaves.
    CellIndex hit_ = Nowhere;
    CellIndex hover_ = Nowhere;
    bool isOffCells_ = true;
    // CellOver was raised, and CellOut is still owed.
    bool hoverRaised_ = false;

    // Where the latest left press was.
    Point downAt_;
    CellIndex downHit_ = Nowhere;
    bool isArmed_ = false;
    // A handler has disabled the control in the middle of a press or a release, which then goes no further.
    bool isAbandoned_ = false;
    // The pointer has left the pixels around the press.
    bool hasMoved_ = false;
    // The cell of the press looks pressed while it is held down.
    bool isButtonCell_ = false;
    // Press and release were on one cell: the next click may act on it.
    bool isClickArmed_ = false;
    // From a double click to its release.
    bool inDblClick_ = false;
};

} // namespace vornix
