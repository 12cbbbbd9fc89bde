#include "interact/current_cell_mover.h"

#include "automation/checked.h"
#include "automation/key_codes.h"

namespace vornix {

CurrentCellMover::CurrentCellMover(MoverContext context)
    : context_(context)
    , step_(context.store, context.spans, context.hidden)
{
}

i32 CurrentCellMover::PublicRow() const
{
    const CurrentCell& current = context_.current;
    if (!current.IsValid())
        return NoIndex;
    if (context_.page.PageSize() <= 0)
        return current.Row() - context_.store.FixedRows();
    const i32 place = SubtractI32(current.CursorPosition, context_.store.FixedRows());
    return place < 0 ? NoIndex : place;
}

int CurrentCellMover::PublicCol() const
{
    const CurrentCell& current = context_.current;
    return current.IsValid() ? current.Col() - context_.store.FixedCols() : NoIndex;
}

bool CurrentCellMover::IsReal(CellIndex cell) const
{
    const GridStore& store = context_.store;
    return cell.row >= 0 && cell.row < store.MaxRow() && cell.col >= 0 && cell.col < store.MaxCol();
}

bool CurrentCellMover::IsBody(CellIndex cell) const
{
    const GridStore& store = context_.store;
    return IsReal(cell) && cell.row >= store.FixedRows() && cell.col >= store.FixedCols();
}

void CurrentCellMover::Take(CellIndex cell)
{
    context_.current.Set(cell.row, cell.col);
    context_.current.CursorPosition = AddI32(context_.page.Offset(), cell.row);
}

void CurrentCellMover::TakeCol(int col)
{
    context_.current.Set(context_.current.Row(), col);
}

CellIndex CurrentCellMover::PublicPlaceOf(CellIndex cell) const
{
    return { cell.row - context_.store.FixedRows(), cell.col - context_.store.FixedCols() };
}

bool CurrentCellMover::IsStill(CellIndex cell, CellIndex chosenAs) const
{
    return IsReal(cell) && PublicPlaceOf(cell) == chosenAs;
}

CurrentCellMover::Answer CurrentCellMover::AskHost(CellIndex target, CellIndex chosenAs)
{
    if (!IsStill(target, chosenAs))
        return Answer::Gone;
    bool isCanceled = false;
    context_.events.CellChange(ToI16(chosenAs.row), ToI16(chosenAs.col), isCanceled);
    if (isCanceled)
        return Answer::Refused;
    if (context_.current.HostMovedCurrent)
        return Answer::MovedByHost;
    return IsStill(target, chosenAs) ? Answer::Take : Answer::Gone;
}

void CurrentCellMover::RepaintUnmarked()
{
    if (!context_.gate.IsOpen() || !HasCurrent())
        return;
    const CurrentCell::Undisplayed withoutMark(context_.current);
    context_.repainter.RefreshIfInRange(context_.current.Row(), context_.current.Col());
}

bool CurrentCellMover::BringIntoView()
{
    return HasCurrent() && context_.scrolling.EnsureCellVisible(context_.current.Row(), context_.current.Col());
}

void CurrentCellMover::Show()
{
    if (!BringIntoView())
        Repaint();
}

void CurrentCellMover::Repaint()
{
    if (HasCurrent())
        context_.repainter.RefreshCellUnderGate(context_.current.Row(), context_.current.Col());
}

// The editor goes without a word, and the mark goes even when the value is refused later.
void CurrentCellMover::BeginWrite()
{
    context_.editor.HideEditor();
    RepaintUnmarked();
}

void CurrentCellMover::EndWrite()
{
    BringIntoView();
    Repaint();
    context_.current.HostMovedCurrent = true;
    context_.editor.ForgetEditCell();
}

bool CurrentCellMover::IsInList(i32 Row) const
{
    return Row < (context_.page.PageSize() > 0 ? context_.page.Length() : context_.store.Rows());
}

void CurrentCellMover::WriteCol(int Col)
{
    BeginWrite();
    const GridStore& store = context_.store;
    const CurrentCell& current = context_.current;
    if (Col < 0 || Col >= store.Cols())
        return;
    if (!HasCurrent() && store.Rows() < 1)
        return;
    CellIndex target { HasCurrent() ? current.Row() : store.FixedRows(), Col + store.FixedCols() };
    if (store.WidthOf(target.col) == 0 || store.ColumnAt(target.col).Hidden) {
        const int key = current.Col() <= target.col ? Keys::Right : Keys::Left;
        const CellIndex beside = step_.From(target, key).cell;
        if (beside.col == target.col)
            return;
        target = beside;
    }
    const CellIndex cell = context_.spans.ParentOf(target.row, target.col);
    if (HasCurrent() && cell.row == current.Row())
        TakeCol(cell.col);
    else
        Take(cell);
    EndWrite();
}

bool CurrentCellMover::GotoListPosition(i32 position)
{
    // The page is found by a current cell that is not fixed.
    if (!HasCurrent())
        Take({ context_.store.FixedRows(), context_.store.FixedCols() });
    context_.page.GotoListPosition(position);
    return HasCurrent();
}

void CurrentCellMover::WriteRow(i32 Row)
{
    BeginWrite();
    const GridStore& store = context_.store;
    const CurrentCell& current = context_.current;
    if (Row < 0 || !IsInList(Row))
        return;
    if (!HasCurrent() && store.Cols() < 1)
        return;
    const i32 before = PublicRow(); // in the list the same row of the page is another place at another time
    CellIndex target { NoIndex, HasCurrent() ? current.Col() : store.FixedCols() };
    if (context_.page.PageSize() > 0) {
        if (!GotoListPosition(Row))
            return;
        target = Current();
    } else {
        target.row = Row + store.FixedRows();
    }
    if (store.HeightOf(target.row) == 0 || store.RowAt(target.row).Hidden) {
        const int key = before <= Row ? Keys::Down : Keys::Up;
        const CellIndex beside = step_.From(target, key).cell;
        if (beside.row == target.row)
            return;
        target = beside;
    }
    Take(context_.spans.ParentOf(target.row, target.col));
    EndWrite();
}

void CurrentCellMover::WritePos(i32 Row, int Col)
{
    BeginWrite();
    const GridStore& store = context_.store;
    if (Col < -store.FixedCols() || Col >= store.Cols() || Row < -store.FixedRows() || !IsInList(Row))
        return;
    CellIndex target { 0, Col + store.FixedCols() };
    if (context_.page.PageSize() > 0 && Row >= 0) {
        Take({ store.FixedRows(), target.col });
        context_.page.GotoListPosition(Row);
        target.row = SubtractI32(AddI32(Row, store.FixedRows()), context_.page.Offset());
    } else {
        target.row = Row + store.FixedRows();
    }
    if (!IsReal(target))
        return;
    Take(context_.spans.ParentOf(target.row, target.col));
    EndWrite();
}

} // namespace vornix
