// The press, and what presses, moves and clicks have in common.
#include "interact/mouse.h"

#include "automation/checked.h"
#include "automation/key_codes.h"
#include "interact/pixel_at.h"

namespace vornix {

// -- Where the pointer is --

void Mouse::TakeHit(const HitResult& hit)
{
    hit_ = { hit.row, hit.col };
    isOffCells_ = !hit.found;
    if (hit.found)
        hover_ = context_.spans.ParentOf(hit.row, hit.col);
}

void Mouse::Watch(bool on)
{
    context_.container.SetTimer(WatchInterval, on);
}

void Mouse::ForgetPressUnlessHeld()
{
    if (!context_.container.IsKeyDown(Buttons::Left))
        isArmed_ = false;
}

void Mouse::Abandon()
{
    isAbandoned_ = true;
    context_.sizing.End();
    context_.sizing.RestoreCursor();
    isArmed_ = hasMoved_ = isClickArmed_ = inDblClick_ = false;
    context_.pressed.isShown = false;
    RepaintButton();
    context_.selecting.GiveUp();
    context_.selection.PressKind = SelectionKind::None;
}

void Mouse::Reset()
{
    context_.sizing.End();
    hit_ = hover_ = downHit_ = Nowhere;
    context_.pressed = {};
    isOffCells_ = true;
    hoverRaised_ = isArmed_ = hasMoved_ = isButtonCell_ = isClickArmed_ = inDblClick_ = false;
}

// -- What presses, moves and clicks have in common --

i32 Mouse::ModeOf(CellIndex cell) const
{
    return context_.mover.IsReal(cell) ? context_.store.Format(cell.row, cell.col).Mode : i32 { vxCellFixed };
}

void Mouse::Raise(void (VornixEvents::*event)(i16 Row, i16 Col), CellIndex cell)
{
    const i16 Row = ToI16(cell.row - context_.store.FixedRows());
    const i16 Col = ToI16(cell.col - context_.store.FixedCols());
    (context_.events.*event)(Row, Col);
}

void Mouse::RepaintCell(CellIndex cell)
{
    if (context_.mover.IsReal(cell))
        context_.repainter.RefreshCellUnderGate(cell.row, cell.col);
}

void Mouse::RepaintButton()
{
    if (isButtonCell_)
        RepaintCell(Pressed());
}

// -- The press --

void Mouse::Down(i16 button, i16 shift, float x, float y)
{
    const Point at = PixelAt(x, y);
    TakeHit(context_.sizing.HitTest(at.x, at.y));
    context_.container.SetTimer(0, false);
    button_ = button;
    shift_ = shift;
    isArmed_ = inDblClick_ = false;
    isAbandoned_ = false;
    isButtonCell_ = false;
    context_.current.HostMovedCurrent = false;

    PressOnBoundary(button, at);
    if (context_.sizing.IsSizing())
        return;
    const bool isOnCell = !isOffCells_ && IsHovering();
    if (isOnCell && button == Buttons::Left)
        return PressOnCell(shift, at, x, y);
    if (button != Buttons::Right) // whatever keys were about to select
        context_.selection.PressKind = SelectionKind::None;
    context_.events.MouseDown(button, shift, x, y);
    if (isOnCell)
        context_.repainter.RepaintUnderGate();
}

// The left button sizes the line that the cursor offers, the right one ends all sizing.
void Mouse::PressOnBoundary(i16 button, Point at)
{
    LineSizing& sizing = context_.sizing;
    const bool isCursorShown = sizing.IsCursorShown();
    if (button == Buttons::Right)
        sizing.End();
    if (isCursorShown && button == Buttons::Right) {
        sizing.RestoreCursor();
    } else if (isCursorShown && button == Buttons::Left) {
        if (!sizing.Begin(at.x, at.y))
            return;
        ExitHover();
        Watch(false);
    } else if (button == Buttons::Right && hoverRaised_) {
        ExitHover();
        Watch(false);
    }
}

void Mouse::PressOnCell(i16 shift, Point at, float x, float y)
{
    context_.pressed.cell = hover_;
    downAt_ = at;
    downHit_ = hit_;
    if (context_.editor.IsEditorOpenOn(Pressed())) { // the press belongs to the editor
        context_.selection.PressKind = SelectionKind::None;
        return;
    }
    const PressZone zone = ZoneOfPress();
    const CellIndex chosenAs = context_.mover.PublicPlaceOf(Pressed());
    isArmed_ = true;
    {
        const CurrentCell::EventGuard guard(context_.current);
        context_.events.MouseDown(Buttons::Left, shift, x, y);
        if (!isAbandoned_ && IsHovering())
            ShowPress();
        if (!isAbandoned_ && context_.mover.IsStill(Pressed(), chosenAs)) {
            context_.selecting.Press(zone, Pressed(), shift);
            if (!MoveCurrentToPress(shift, chosenAs))
                context_.selection.EndDrag();
        }
    }
    context_.repainter.RepaintUnderGate();
}

PressZone Mouse::ZoneOfPress() const
{
    const bool isHeaderRow = Pressed().row < context_.store.FixedRows();
    const bool isHeaderCol = Pressed().col < context_.store.FixedCols();
    if (isHeaderRow && isHeaderCol)
        return PressZone::None;
    if (isHeaderRow)
        return PressZone::ColHeader;
    return isHeaderCol ? PressZone::RowHeader : PressZone::Body;
}

void Mouse::ShowPress()
{
    context_.pressed.isShown = true;
    {
        const RedrawGate::Closed closed(context_.gate);
        Raise(&VornixEvents::CellDown, Pressed());
    }
    if (isAbandoned_)
        return;
    const i32 mode = ModeOf(Pressed());
    isButtonCell_ = mode == vxCommandButton || mode == vxPressButton;
    RepaintButton();
}

// False when the host refused.
bool Mouse::MoveCurrentToPress(i16 shift, CellIndex chosenAs)
{
    CurrentCellMover& mover = context_.mover;
    const CellIndex target = Pressed();
    if (mover.HasCurrent() && mover.Current() == target && shift != Shifts::Shift)
        return true;
    const bool leavesRow = LeavesRow();
    if (context_.editor.IsEditorOpen())
        context_.editor.CloseEditor();
    if (leavesRow)
        context_.events.ValidateRow();
    if (isAbandoned_)
        return false;
    const CurrentCellMover::Answer answer = mover.AskHost(target, chosenAs);
    if (isAbandoned_)
        return false;
    if (answer == CurrentCellMover::Answer::Take)
        mover.Take(target);
    return answer != CurrentCellMover::Answer::Refused;
}

// A move to the right within the row does not count.
bool Mouse::LeavesRow() const
{
    const CurrentCellMover& mover = context_.mover;
    if (!mover.HasCurrent() || !mover.IsBody(mover.Current()))
        return false;
    return Pressed().row != mover.Current().row || Pressed().col < mover.Current().col;
}

} // namespace vornix
