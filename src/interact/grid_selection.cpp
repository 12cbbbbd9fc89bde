#include "interact/grid_selection.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

namespace {

bool Holds(const LineRange& range, int index)
{
    return range.first <= index && index <= range.last;
}

} // namespace

void GridSelection::Reset()
{
    ranges_.RemoveAll();
    Anchor = End = { NoIndex, NoIndex };
    PressKind = SelectionKind::None;
    EndDrag();
    dragCols_ = dragRows_ = {};
    walkSlot_ = placeSlot_ = placeSum_ = 0;
}

void GridSelection::Collapse()
{
    ranges_.RemoveAll();
    const bool isFixed = current_.Row() < store_.FixedRows() || current_.Col() < store_.FixedCols();
    if (!current_.IsValid() || isFixed)
        return;
    Anchor = { current_.Row(), current_.Col() };
    End = Anchor;
}

bool GridSelection::Invert()
{
    switch (ranges_.Mode()) {
    case SelectionKind::Cols:
        ranges_.InvertSelection(store_.FixedCols(), store_.LastColIndex());
        return true;
    case SelectionKind::Rows:
        ranges_.InvertSelection(store_.FixedRows(), store_.LastRowIndex());
        return true;
    default:
        return false;
    }
}

std::optional<LineRange> GridSelection::NextLines(SelectionKind kind)
{
    LineRange lines;
    if (ranges_.Mode() != kind || !ranges_.SelectItem(walkSlot_, lines.first, lines.last))
        return std::nullopt;
    return lines;
}

void GridSelection::AdvanceWalk()
{
    walkSlot_ = AddI16(walkSlot_, 1);
}

std::optional<std::pair<CellIndex, CellIndex>> GridSelection::FirstCells()
{
    BeginWalk();
    std::pair<CellIndex, CellIndex> corners;
    auto& [first, second] = corners;
    if (!ranges_.SelectCell(walkSlot_, first.row, first.col, second.row, second.col))
        return std::nullopt;
    return corners;
}

std::optional<i32> GridSelection::LineAt(i32 place)
{
    if (place == 0)
        placeSlot_ = placeSum_ = 0;
    const SelectionKind kind = ranges_.Mode();
    if (kind != SelectionKind::Rows && kind != SelectionKind::Cols)
        return std::nullopt;
    LineRange lines;
    while (ranges_.SelectItem(placeSlot_, lines.first, lines.last)) {
        const int length = lines.last - lines.first + 1;
        if (place < placeSum_ + length)
            return ToI32(std::int64_t { lines.first } + place - placeSum_);
        placeSum_ = ToI16(placeSum_ + length);
        placeSlot_ = AddI16(placeSlot_, 1);
    }
    return std::nullopt;
}

void GridSelection::EndDrag()
{
    dragging_ = false;
    colOfFollowing_.reset();
    rowOfFollowing_.reset();
}

void GridSelection::SetDragCols(LineRange cols)
{
    dragCols_ = cols;
    colOfFollowing_.reset();
}

void GridSelection::SetDragRows(LineRange rows)
{
    dragRows_ = rows;
    rowOfFollowing_.reset();
}

void GridSelection::DragBetweenCorners()
{
    SetDragCols(LineRange::Between(Anchor.col, End.col));
    SetDragRows(LineRange::Between(Anchor.row, End.row));
}

void GridSelection::DragColsToPaintedEnd(int col)
{
    colOfFollowing_ = col;
    dragCols_ = LineRange::Between(col, dragCols_.last);
}

void GridSelection::DragRowsToPaintedEnd(int row)
{
    rowOfFollowing_ = row;
    dragRows_ = LineRange::Between(row, dragRows_.last);
}

// A span over several columns is no cell of a column, and one over several rows none of a row. Rectangles are asked for
// its parent.
bool GridSelection::IsShownSelected(const Cell& cell, int row, int col, bool printing) const
{
    if (dragging_)
        return IsInDrag(cell, row, col);
    if (printing)
        return false;
    switch (ranges_.Mode()) {
    case SelectionKind::Cells:
        return ranges_.IsCellSelected(row, col);
    case SelectionKind::Cols:
        return cell.ColSpan() < 2 && ranges_.IsColSelected(col);
    case SelectionKind::Rows:
        return cell.RowSpan() < 2 && ranges_.IsRowSelected(row);
    default:
        return false;
    }
}

bool GridSelection::IsInDrag(const Cell& cell, int row, int col) const
{
    switch (PressKind) {
    case SelectionKind::Cells:
        return Holds(dragRows_, row) && Holds(dragCols_, col);
    case SelectionKind::Cols:
        return cell.ColSpan() < 2 && Holds(dragCols_, col);
    case SelectionKind::Rows:
        return cell.RowSpan() < 2 && Holds(dragRows_, row);
    default:
        return false;
    }
}

void GridSelection::PaintRangeChanged(int paintLastRow, int paintLastCol)
{
    if (colOfFollowing_)
        dragCols_ = LineRange::Between(*colOfFollowing_, paintLastCol);
    if (rowOfFollowing_)
        dragRows_ = LineRange::Between(*rowOfFollowing_, paintLastRow);
}

} // namespace vornix
