#include "interact/keyboard.h"

#include "automation/checked.h"
#include "automation/key_codes.h"

#include <algorithm>

namespace vornix {

Keyboard::Keyboard(KeyboardContext context)
    : context_(context)
    , step_(context.store, context.spans, context.hidden)
{
}

void Keyboard::KeyDown(int key, int shift)
{
    PlainKey(key, shift);
    ExtendSelection(key, shift);
}

void Keyboard::PlainKey(int key, int shift)
{
    if (shift == Shifts::None)
        UnshiftedKey(key);
    else if (shift == Shifts::Ctrl)
        KeyWithCtrl(key);
}

void Keyboard::UnshiftedKey(int key)
{
    const GridStore& store = context_.store;
    switch (key) {
    case Keys::Left:
    case Keys::Right:
    case Keys::Up:
    case Keys::Down:
        return MoveByArrow(key);
    case Keys::PageDown:
        return PageDown();
    case Keys::PageUp:
        return PageUp();
    case Keys::Home:
        return JumpTo([&](CellIndex from) { return CellIndex { from.row, store.FixedCols() }; });
    case Keys::End:
        return JumpTo([&](CellIndex from) { return CellIndex { from.row, store.FixedCols() + store.Cols() - 1 }; });
    case Keys::Space:
        return ToggleCurrent();
    case Keys::F2:
        return EnterEdit();
    default:
        return;
    }
}

void Keyboard::KeyWithCtrl(int key)
{
    const GridStore& store = context_.store;
    const CellIndex first { store.FixedRows(), store.FixedCols() };
    const CellIndex last { store.FixedRows() + store.Rows() - 1, store.FixedCols() + store.Cols() - 1 };
    switch (key) {
    case Keys::Up:
        return JumpTo([&](CellIndex from) { return CellIndex { first.row, from.col }; });
    case Keys::Down:
        return JumpTo([&](CellIndex from) { return CellIndex { last.row, from.col }; });
    case Keys::Home:
        return JumpTo([&](CellIndex) { return first; });
    case Keys::End:
        return JumpTo([&](CellIndex) { return last; });
    default:
        return;
    }
}

// -- The arrows --

void Keyboard::MoveByArrow(int key)
{
    if (!context_.mover.HasCurrent())
        return;
    EmptySelection();
    switch (AskAndMove(key)) {
    case Move::Lost:
        return;
    case Move::SameCell:
        context_.mover.BringIntoView();
        return;
    case Move::Asked:
        // A move that was refused comes here, too: the editor that it closed opens again.
        return Arrive(key);
    }
}

void Keyboard::EmptySelection()
{
    GridSelection& selection = context_.selection;
    if (selection.Ranges().Mode() != SelectionKind::None)
        selection.Ranges().RemoveAll();
    else if (selection.IsDragging())
        selection.EndDrag();
    else
        return;
    context_.repainter.RepaintUnderGate();
}

Keyboard::Move Keyboard::AskAndMove(int key)
{
    const CurrentCell::EventGuard guard(context_.current);
    context_.current.HostMovedCurrent = false;
    FollowList();
    if (!context_.mover.HasCurrent())
        return Move::Lost;
    const CellIndex target = step_.From(context_.mover.Current(), key).cell;
    if (target == context_.mover.Current())
        return Move::SameCell;
    const CellIndex chosenAs = context_.mover.PublicPlaceOf(target);

    context_.selection.Anchor = target;
    context_.selection.End = target;
    if (context_.editor.IsEditorOpen()) {
        context_.editor.CloseEditor();
        if (!context_.mover.HasCurrent())
            return Move::Lost;
    }
    context_.mover.RepaintUnmarked();
    if (AskHost(target, chosenAs)) {
        context_.mover.Take(context_.spans.ParentOf(target.row, target.col));
        ScrollByKey(key);
    }
    return Move::Asked;
}

// The row of the current cell may have left the page since.
void Keyboard::FollowList()
{
    const int pageSize = context_.page.PageSize();
    if (pageSize <= 0)
        return;
    CurrentCell& current = context_.current;
    const int firstRow = context_.store.FixedRows();
    const i32 row = SubtractI32(current.CursorPosition, context_.page.Offset());
    if (row >= firstRow && row < firstRow + pageSize) {
        current.Set(row, current.Col());
        return;
    }
    if (context_.editor.IsEditorOpen())
        context_.editor.CloseEditor();
    context_.page.GotoListPosition(SubtractI32(current.CursorPosition, context_.store.FixedRows()));
}

bool Keyboard::AskHost(CellIndex target, CellIndex chosenAs)
{
    if (context_.current.IsValid() && context_.current.Row() != target.row)
        context_.events.ValidateRow();
    return context_.mover.AskHost(target, chosenAs) == CurrentCellMover::Answer::Take;
}

void Keyboard::ScrollByKey(int key)
{
    const bool isAcross = key == Keys::Left || key == Keys::Right;
    if (!(isAcross ? TakeFirstCol(key) : TakeFirstRow(key)))
        return;
    if (!isAcross && context_.page.PageSize() > 0)
        context_.page.RollPageWithCurrent();
    context_.scrolling.UpdateScrollBars();
    context_.repainter.RepaintUnderGate();
    context_.events.Scroll();
    context_.hover.ExitHover();
}

bool Keyboard::TakeFirstCol(int key)
{
    LayoutEngine& layout = context_.layout;
    const auto [row, col] = context_.mover.Current();
    const int firstCol = context_.scroll.FirstCol();
    const bool isBeforeView = col < firstCol && col >= layout.FirstScrollCol();
    const bool isCutOff = col == firstCol && layout.SmoothOffset() != 0;
    const int lastOfSpan = col + context_.spans.ColsCovered(row, col) - 1;
    const bool isBehindView = key == Keys::Right && lastOfSpan > context_.scroll.LastCol();
    if (!isBeforeView && !isCutOff && !isBehindView)
        return false;
    layout.SetSmoothOffset(0);
    context_.scroll.SetFirstCol(
        key == Keys::Left ? col : context_.scrolling.Positions().ScrollingColForLast(lastOfSpan));
    return true;
}

bool Keyboard::TakeFirstRow(int key)
{
    ScrollModel& scroll = context_.scroll;
    const auto [row, col] = context_.mover.Current();
    if (row < context_.store.FixedRows())
        return false;
    if (key == Keys::Up) {
        if (row >= scroll.FirstRow())
            return false;
        scroll.SetFirstRow(row);
        return true;
    }
    const int lastOfSpan = row + context_.spans.RowsCovered(row, col) - 1;
    if (lastOfSpan <= scroll.LastRow())
        return false;
    scroll.SetFirstRow(context_.scrolling.Positions().ScrollingRowForLast(lastOfSpan));
    return true;
}

void Keyboard::Arrive(int key)
{
    CurrentCell& current = context_.current;
    if (!context_.mover.HasCurrent())
        return;
    current.CursorPosition = AddI32(context_.page.Offset(), current.Row());
    const CellFormat& format = context_.store.Format(current.Row(), current.Col());
    switch (format.Mode) {
    case vxTextBox:
    case vxComboDropDownBox:
    case vxComboListBox:
    case vxCustom:
        if (format.Disabled)
            return;
        OpenEditor(key);
        break;
    default:
        context_.mover.Show();
    }
    current.HostMovedCurrent = true;
}

void Keyboard::OpenEditor(int key)
{
    const CellIndex cell = context_.mover.Current();
    context_.editor.OpenEditor(cell.row, cell.col);
    if (!context_.editor.IsEditorOpenOn(cell) || !context_.mover.IsReal(cell))
        return;
    // The caret goes on in the direction of the key, and so stands at the far end.
    if (key == Keys::Left)
        context_.editor.SetSelStart(0);
    else if (key == Keys::Right)
        context_.editor.SetSelStart(static_cast<int>(context_.store.CellAt(cell.row, cell.col).Text().size()));
}

// -- The other keys --

// Unlike an arrow this asks no one, and looks neither at spans nor at hidden lines.
template <typename Target> void Keyboard::JumpTo(const Target& targetFrom)
{
    CurrentCellMover& mover = context_.mover;
    context_.selection.EndDrag();
    const CellIndex first { context_.store.FixedRows(), context_.store.FixedCols() };
    if (!mover.HasCurrent() && mover.IsReal(first))
        mover.Take(first);
    if (!mover.HasCurrent())
        return;
    const CellIndex target = targetFrom(mover.Current());
    if (!mover.IsReal(target))
        return;
    if (target.row == mover.Current().row)
        mover.TakeCol(target.col);
    else
        mover.Take(target);
    context_.selection.Anchor = target;
    context_.selection.End = target;
    if (!mover.BringIntoView())
        context_.repainter.RepaintUnderGate();
}

void Keyboard::PageDown()
{
    const GridStore& store = context_.store;
    context_.selection.EndDrag();
    const int row = context_.scroll.LastRow();
    if (row >= store.FixedRows())
        context_.scrolling.SetFirstRow(std::min(row, store.FixedRows() + store.Rows() - 1));
}

void Keyboard::PageUp()
{
    const GridStore& store = context_.store;
    context_.selection.EndDrag();
    const int row = context_.scroll.FirstRow();
    if (row >= store.FixedRows() && row < store.FixedRows() + store.Rows())
        context_.scrolling.SetLastRow(row);
}

void Keyboard::ToggleCurrent()
{
    if (!context_.mover.HasCurrent())
        return;
    const auto [row, col] = context_.mover.Current();
    if (context_.store.Format(row, col).Mode == vxCheckBox)
        context_.checks.Toggle(row, col);
}

void Keyboard::EnterEdit()
{
    if (!context_.container.Child(ChildName::fraEdit).IsVisible())
        context_.editor.EnterEdit();
}

// -- Shift and arrows --

// The current cell stays where selecting began.
void Keyboard::ExtendSelection(int key, int shift)
{
    GridSelection& selection = context_.selection;
    CurrentCellMover& mover = context_.mover;
    if (mover.HasCurrent() && mover.IsBody(mover.Current())) {
        selection.PressKind = selection.Settings.SelectByRowCol ? SelectionKind::Rows
            : selection.Settings.CellSelection                  ? SelectionKind::Cells
                                                                : SelectionKind::None;
    }
    if (shift != Shifts::Shift || !mover.IsReal(selection.Anchor) || !mover.IsReal(selection.End))
        return;
    const CellStep::Result step = step_.From(selection.End, key);
    if (!step.moved)
        return;
    selection.End = step.cell;
    if (!context_.layout.IsVisibleCell(step.cell.row, step.cell.col))
        context_.scrolling.EnsureCellVisible(step.cell.row, step.cell.col);
    AddBetweenCorners();
}

void Keyboard::AddBetweenCorners()
{
    GridSelection& selection = context_.selection;
    if (!context_.mover.IsReal(selection.Anchor) || !context_.mover.IsReal(selection.End))
        return;
    selection.DragBetweenCorners();
    const LineRange rows = selection.DragRows();
    const LineRange cols = selection.DragCols();
    if (selection.PressKind == SelectionKind::Cells)
        selection.Ranges().AddCells(true, rows.first, cols.first, rows.last, cols.last);
    else if (selection.PressKind == SelectionKind::Rows)
        selection.Ranges().AddRows(true, rows.first, rows.last);
    context_.repainter.RepaintUnderGate();
}

} // namespace vornix
