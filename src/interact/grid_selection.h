// What is selected, what a drag is about to select, and where the reading of the selection stands. Internal indices.
#pragma once

#include "interact/current_cell.h"
#include "model/select_collection.h"
#include "model/spans.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vornix {

// What a press selects.
struct SelectionSettings {
    // vxCellsEnum: which headers select their lines.
    i32 SelectMode = vxBoth;
    // A press on a cell that is not fixed selects its row, or else, with CellSelection, cells.
    bool SelectByRowCol = false;
    bool CellSelection = false;
};

struct LineRange {
    int first = 0;
    int last = 0;

    // From the lower one to the higher one.
    static LineRange Between(int a, int b) { return { std::min(a, b), std::max(a, b) }; }
};

class GridSelection {
public:
    GridSelection(const GridStore& store, const CurrentCell& current)
        : store_(store)
        , current_(current)
    {
    }

    SelectionSettings Settings;

    // Nothing is remembered of a table that is no more.
    void Reset();

    SelectCollection& Ranges() { return ranges_; }
    const SelectCollection& Ranges() const { return ranges_; }

    // Nothing is selected any more, and selecting goes on from the current cell if that is not fixed.
    void Collapse();
    // The lines that are not selected, in place of those that are. False when no lines are.
    bool Invert();

    // -- Reading --

    // The next ranges since the walk began, whatever has become of the selection meanwhile. A range is read again until
    // the walk advances.
    void BeginWalk() { walkSlot_ = 0; }
    void AdvanceWalk();
    std::optional<LineRange> NextCols() { return NextLines(SelectionKind::Cols); }
    std::optional<LineRange> NextRows() { return NextLines(SelectionKind::Rows); }
    // The first rectangle, its corners as they were given. Begins the walk anew.
    std::optional<std::pair<CellIndex, CellIndex>> FirstCells();
    // The line at a place among the selected ones. 0 begins anew; a place before that of the latest call gives a line
    // in front of its range.
    std::optional<i32> LineAt(i32 place);

    // -- The drag --

    // The corner that stands and the one that moves. NoIndex: none yet.
    CellIndex Anchor { NoIndex, NoIndex };
    CellIndex End { NoIndex, NoIndex };

    // What the press selects, be it by a drag or at once.
    SelectionKind PressKind = SelectionKind::None;
    // While it goes on, what it covers is shown in place of what is selected.
    bool IsDragging() const { return dragging_; }
    void BeginDrag() { dragging_ = true; }
    void EndDrag();
    // What it covers, first to last.
    const LineRange& DragCols() const { return dragCols_; }
    const LineRange& DragRows() const { return dragRows_; }
    void SetDragCols(LineRange cols);
    void SetDragRows(LineRange rows);
    // Covers what lies between the corners.
    void DragBetweenCorners();
    // Covers all between this line and the last one of every paint to come.
    void DragColsToPaintedEnd(int col);
    void DragRowsToPaintedEnd(int row);

    // -- For the painter --

    // By the drag that is going on, or else by the selection. Asked for cells that are not fixed.
    bool IsShownSelected(const Cell& cell, int row, int col, bool printing) const;
    void PaintRangeChanged(int paintLastRow, int paintLastCol);

private:
    std::optional<LineRange> NextLines(SelectionKind kind);
    bool IsInDrag(const Cell& cell, int row, int col) const;

    const GridStore& store_;
    const CurrentCell& current_;
    SelectCollection ranges_;

    i16 walkSlot_ = 0;
    // The range that LineAt found last, and the lines in the ranges before it.
    i16 placeSlot_ = 0;
    i16 placeSum_ = 0;

    bool dragging_ = false;
    LineRange dragCols_;
    LineRange dragRows_;
    // The end that stands while the other one follows the paint.
    std::optional<int> colOfFollowing_;
    std::optional<int> rowOfFollowing_;
};

} // namespace vornix
