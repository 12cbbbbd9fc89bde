// The release, and the click that comes of it.
#include "interact/mouse.h"

#include "automation/key_codes.h"
#include "interact/pixel_at.h"

namespace vornix {

// -- The release --

void Mouse::Up(i16 button, i16 shift, float x, float y)
{
    isArmed_ = false;
    isAbandoned_ = false;
    Watch(true);
    inDblClick_ = false;
    isClickArmed_ = false;
    context_.pressed.isShown = false;
    context_.current.HostMovedCurrent = false;
    if (button == Buttons::Right)
        return RaiseUp(button, shift, x, y);
    if (context_.sizing.IsSizing()) {
        context_.sizing.End();
        hover_ = Nowhere;
        return RaiseUp(button, shift, x, y);
    }
    if (!context_.sizing.IsCursorShown())
        context_.selecting.Commit(Pressed(), shift_, hasMoved_);
    context_.selection.EndDrag();
    hasMoved_ = false;
    RaiseUp(button, shift, x, y);
    if (isAbandoned_)
        return;

    const Point at = PixelAt(x, y);
    TakeHit(context_.layout.HitTestCell(at.x, at.y));
    if (!isOffCells_)
        ReleaseOnCell();
    else if (context_.editor.IsEditorOpen())
        context_.editor.CloseEditorAndRepaint();
}

void Mouse::RaiseUp(i16 button, i16 shift, float x, float y)
{
    const CurrentCell::EventGuard guard(context_.current);
    context_.events.MouseUp(button, shift, x, y);
}

// On another cell than the press it is no click, and CellUp came with the move.
void Mouse::ReleaseOnCell()
{
    if (hover_ != Pressed())
        return;
    if (!context_.mover.HasCurrent())
        context_.mover.Take(Pressed());
    Raise(&VornixEvents::CellUp, Pressed());
    if (ModeOf(Pressed()) == vxCommandButton)
        RepaintCell(Pressed());
    isClickArmed_ = context_.mover.IsReal(Pressed());
}

// -- The clicks --

void Mouse::Click()
{
    if (!isClickArmed_)
        return context_.events.Click();
    TurnPressedCell();
    if (hit_ == downHit_ && context_.mover.IsReal(Pressed()))
        Raise(&VornixEvents::CellClick, Pressed());
    if (shift_ == Shifts::None)
        context_.mover.BringIntoView();
    if (!context_.mover.HasCurrent() || !ActOnCurrent())
        return;
    context_.events.Click();
    shift_ = 0;
    button_ = 0;
}

void Mouse::TurnPressedCell()
{
    const auto [row, col] = Pressed();
    const i32 mode = ModeOf(Pressed());
    if (mode == vxPressButton) {
        Cell& cell = context_.store.EditCell(row, col);
        cell.SetButtonPressed(!cell.ButtonPressed());
    } else if (mode == vxCheckBox) {
        context_.checks.Toggle(row, col);
    }
}

// By the mode of the current cell. False when that ends the click.
bool Mouse::ActOnCurrent()
{
    const CellIndex cell = context_.mover.Current();
    const CellFormat& format = context_.store.Format(cell.row, cell.col);
    switch (format.Mode) {
    case vxCommandButton:
        return false;
    case vxTextBox:
    case vxComboDropDownBox:
    case vxComboListBox:
    case vxCustom:
        if (format.Disabled) {
            RepaintCell(cell);
            return false;
        }
        if (!context_.current.HostMovedCurrent && shift_ == Shifts::None)
            context_.editor.OpenEditor(cell.row, cell.col);
        return true;
    default:
        RepaintCell(cell);
        return true;
    }
}

void Mouse::DblClick()
{
    isAbandoned_ = false;
    inDblClick_ = true;
    if (isClickArmed_)
        context_.mover.BringIntoView();
    if (!isAbandoned_ && context_.sizing.IsCursorShown())
        FitLine();
    if (isAbandoned_)
        return;
    if (!isOffCells_ && downHit_ != Nowhere)
        Raise(&VornixEvents::CellDblClick, downHit_);
    context_.events.DblClick();
    shift_ = 0;
    button_ = 0;
}

void Mouse::FitLine()
{
    if (button_ == Buttons::Left) {
        {
            const RedrawGate::Closed closed(context_.gate);
            context_.sizing.FitLine();
        }
        if (isAbandoned_)
            return;
        context_.mover.BringIntoView();
    }
    context_.sizing.End();
}

} // namespace vornix
