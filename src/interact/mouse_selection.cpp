#include "interact/mouse_selection.h"

#include "automation/key_codes.h"

#include <algorithm>

namespace vornix {

namespace {

// So many pixels outside give one row more at every move.
constexpr int PixelsPerRow = 5;

LineRange Within(int last, LineRange range)
{
    return { std::clamp(range.first, 0, last), std::clamp(range.last, 0, last) };
}

} // namespace

// -- The press --

SelectionKind MouseSelection::KindOfPress(PressZone zone) const
{
    const SelectionSettings& settings = context_.selection.Settings;
    switch (zone) {
    case PressZone::Body:
        if (settings.SelectByRowCol)
            return SelectionKind::Rows;
        return settings.CellSelection ? SelectionKind::Cells : SelectionKind::None;
    case PressZone::RowHeader:
        return settings.SelectMode == vxRow || settings.SelectMode == vxBoth ? SelectionKind::Rows
                                                                             : SelectionKind::None;
    case PressZone::ColHeader:
        return settings.SelectMode == vxColumn || settings.SelectMode == vxBoth ? SelectionKind::Cols
                                                                                : SelectionKind::None;
    case PressZone::None:
        break;
    }
    return SelectionKind::None;
}

void MouseSelection::Press(PressZone zone, CellIndex cell, int shift)
{
    GridSelection& selection = context_.selection;
    selection.PressKind = SelectionKind::None;
    if (zone == PressZone::ColHeader && context_.layout.Settings.CaptionEnabled && cell.row == 0)
        return selection.Ranges().RemoveAll();
    selection.PressKind = KindOfPress(zone);
    if (selection.PressKind == SelectionKind::None)
        return;
    if (shift == Shifts::None)
        BeginDrag(cell);
    else if (shift == Shifts::Shift)
        ExtendTo(cell);
    else if (shift == Shifts::Ctrl && selection.PressKind == SelectionKind::Cells)
        ReplaceBy(cell);
    else if (shift == Shifts::Ctrl)
        ToggleLine(cell);
}

bool MouseSelection::IsSelected(CellIndex cell) const
{
    const SelectCollection& ranges = context_.selection.Ranges();
    switch (context_.selection.PressKind) {
    case SelectionKind::Cells:
        return ranges.IsCellSelected(cell.row, cell.col);
    case SelectionKind::Cols:
        return ranges.IsColSelected(cell.col);
    case SelectionKind::Rows:
        return ranges.IsRowSelected(cell.row);
    case SelectionKind::None:
        break;
    }
    return false;
}

// Both corners to the cell; of lines, the other axis stays where there is one, so that keys can go on from there.
void MouseSelection::SetCorners(CellIndex cell)
{
    GridSelection& selection = context_.selection;
    const bool hasCorners = context_.mover.IsReal(selection.Anchor) && context_.mover.IsReal(selection.End);
    if (selection.PressKind != SelectionKind::Rows || !hasCorners)
        selection.Anchor.col = selection.End.col = cell.col;
    if (selection.PressKind != SelectionKind::Cols || !hasCorners)
        selection.Anchor.row = selection.End.row = cell.row;
    selection.DragBetweenCorners();
}

// On what is selected a drag of its contents may begin: nothing changes before the release.
void MouseSelection::BeginDrag(CellIndex cell)
{
    GridSelection& selection = context_.selection;
    const bool wasSelected = IsSelected(cell);
    if (!wasSelected && selection.Ranges().Mode() != SelectionKind::None) {
        selection.Ranges().RemoveAll();
        context_.repainter.RepaintUnderGate();
    }
    if (!wasSelected || selection.PressKind != SelectionKind::Cells)
        SetCorners(cell);
    if (!wasSelected)
        selection.BeginDrag();
}

void MouseSelection::ExtendTo(CellIndex cell)
{
    PlaceAnchor(cell);
    context_.selection.End = cell;
    context_.selection.DragBetweenCorners();
    AddDragged(true);
}

// The anchor of a selection of the same kind stays.
void MouseSelection::PlaceAnchor(CellIndex cell)
{
    GridSelection& selection = context_.selection;
    const bool isSameKind = selection.Ranges().Mode() == selection.PressKind;
    switch (selection.PressKind) {
    case SelectionKind::Cells:
        if (isSameKind && context_.mover.IsReal(selection.Anchor))
            return;
        selection.Anchor = cell;
        if (context_.mover.HasCurrent() && context_.mover.IsBody(context_.mover.Current()))
            selection.Anchor = context_.mover.Current();
        return;
    case SelectionKind::Rows:
        if (!isSameKind || selection.Anchor.row < 0 || selection.Anchor.row >= context_.store.MaxRow())
            selection.Anchor.row = cell.row;
        return;
    case SelectionKind::Cols:
        if (!isSameKind || selection.Anchor.col < 0 || selection.Anchor.col >= context_.store.MaxCol())
            selection.Anchor.col = cell.col;
        return;
    case SelectionKind::None:
        return;
    }
}

void MouseSelection::ReplaceBy(CellIndex cell)
{
    deselectAtRelease_ = false;
    SetCorners(cell);
    AddDragged(true);
}

void MouseSelection::ToggleLine(CellIndex cell)
{
    SetCorners(cell);
    deselectAtRelease_ = IsSelected(cell);
    if (!deselectAtRelease_)
        AddDragged(false);
}

// Without lines that there are not: those that a handler has taken away meanwhile, and the one before the first that a
// drag beyond the left edge ends in. The filler may be among them, as the paint has it.
void MouseSelection::AddDragged(bool reset)
{
    GridSelection& selection = context_.selection;
    const LineRange rows = Within(context_.store.MaxRow(), selection.DragRows());
    const LineRange cols = Within(context_.store.MaxCol(), selection.DragCols());
    switch (selection.PressKind) {
    case SelectionKind::Cells:
        return selection.Ranges().AddCells(reset, rows.first, cols.first, rows.last, cols.last);
    case SelectionKind::Cols:
        return selection.Ranges().AddCols(reset, cols.first, cols.last);
    case SelectionKind::Rows:
        return selection.Ranges().AddRows(reset, rows.first, rows.last);
    case SelectionKind::None:
        return;
    }
}

// -- The drag --

void MouseSelection::Drag(const HitResult& hit, int x, int y)
{
    GridSelection& selection = context_.selection;
    if (!selection.IsDragging())
        return;
    const GridStore& store = context_.store;
    if (context_.layout.Settings.CaptionEnabled && hit.row == 0 && store.FixedRows() > 0)
        return;
    const ScrollModel& scroll = context_.scroll;
    selection.End = { hit.row, hit.col };
    if (hit.row == NoIndex)
        selection.End.row = y < 0 ? scroll.FirstRow() : scroll.LastRow() + 1;
    if (hit.col == NoIndex)
        selection.End.col = x < 0 ? scroll.FirstCol() : scroll.LastCol() + 1;

    // Both directions before the first picture: a view that moves is painted on the way.
    const int firstCol = DragAcross(x);
    const int firstRow = DragDown(y);
    const bool movedAcross = firstCol >= store.FixedCols() && context_.scrolling.SetFirstCol(firstCol);
    // A handler of the paint in between may have taken rows away.
    const bool movedDown = firstRow >= store.FixedRows()
        && context_.scrolling.SetFirstRow(std::min<int>(firstRow, store.LastRowIndex()));
    if (!movedAcross && !movedDown)
        context_.repainter.RepaintUnderGate();
}

// What the drag covers across, and the column that comes first then; one that does not scroll when the view stays. With
// a bar that goes below 0 all there is shows. Beyond the left edge the end is tested by its row, which is never below 0
// by now, so that it may lie before the first column.
int MouseSelection::DragAcross(int x)
{
    GridSelection& selection = context_.selection;
    const int firstCol = context_.scroll.FirstCol();
    const int lastCol = context_.store.FixedCols() + context_.store.Cols() - 1;
    if (x < 0) {
        selection.End.col = selection.End.row < 0 ? context_.store.FixedCols() : firstCol - 1;
        selection.SetDragCols(LineRange::Between(selection.End.col, selection.Anchor.col));
        return selection.End.col;
    }
    if (x > context_.layout.ScaleSize().width) {
        selection.DragColsToPaintedEnd(selection.Anchor.col);
        return context_.scrolling.HorizontalBar().Max() < 0 ? NoIndex : std::min(firstCol + 1, lastCol);
    }
    selection.End.col = std::min(selection.End.col, lastCol);
    if (selection.End.col < context_.store.FixedCols())
        selection.End.col = firstCol;
    selection.SetDragCols(LineRange::Between(selection.Anchor.col, selection.End.col));
    return NoIndex;
}

// The same for the rows: the further outside, the more of them at a time.
int MouseSelection::DragDown(int y)
{
    GridSelection& selection = context_.selection;
    const int firstRow = context_.scroll.FirstRow();
    const int lastRow = context_.store.FixedRows() + context_.store.Rows() - 1;
    const int height = context_.layout.ScaleSize().height;
    if (y < 0) {
        selection.End.row = firstRow - 1 + y / PixelsPerRow;
        if (selection.End.row < 0)
            selection.End.row = context_.store.FixedRows();
        selection.SetDragRows(LineRange::Between(selection.End.row, selection.Anchor.row));
        return selection.End.row;
    }
    if (y > height) {
        selection.DragRowsToPaintedEnd(selection.Anchor.row);
        const int next = firstRow + 1 + (y - height) / PixelsPerRow;
        return context_.scrolling.VerticalBar().Max() < 0 ? NoIndex : std::min(next, lastRow);
    }
    selection.End.row = std::min(selection.End.row, lastRow);
    if (selection.End.row < context_.store.FixedRows())
        selection.End.row = firstRow;
    selection.SetDragRows(LineRange::Between(selection.Anchor.row, selection.End.row));
    return NoIndex;
}

// -- The release --

void MouseSelection::Commit(CellIndex cell, int shift, bool hasMoved)
{
    GridSelection& selection = context_.selection;
    if (selection.PressKind == SelectionKind::None) {
        if (!hasMoved)
            selection.Ranges().RemoveAll();
    } else if (shift == Shifts::None) {
        TakeDragged(cell, hasMoved);
    } else if (shift == Shifts::Ctrl && selection.PressKind != SelectionKind::Cells) {
        EndToggle(cell, hasMoved);
    }
    selection.PressKind = SelectionKind::None;
    selection.EndDrag();
    context_.repainter.RepaintUnderGate();
}

// A press on what is selected leaves the pressed one alone of it; it stays whole when the pointer has moved.
void MouseSelection::TakeDragged(CellIndex cell, bool hasMoved)
{
    if (context_.selection.IsDragging())
        return AddDragged(true);
    if (hasMoved || !context_.mover.IsReal(cell))
        return;
    SetCorners(cell);
    AddDragged(true);
}

void MouseSelection::EndToggle(CellIndex cell, bool hasMoved)
{
    GridSelection& selection = context_.selection;
    if (!context_.mover.IsReal(cell))
        return;
    SetCorners(cell);
    if (!hasMoved && deselectAtRelease_)
        selection.Ranges().UnSelectRange(selection.PressKind == SelectionKind::Rows ? cell.row : cell.col);
}

void MouseSelection::GiveUp()
{
    if (!context_.selection.IsDragging())
        return;
    context_.selection.EndDrag();
    context_.repainter.RepaintUnderGate();
}

} // namespace vornix
