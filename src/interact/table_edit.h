// Structure edits with all that follows them beside the table: the selection, the current cell, the first visible lines,
// the title. Internal indices; nothing is raised, laid out or painted.
#pragma once

#include "interact/grid_selection.h"
#include "layout/layout_engine.h"
#include "model/structure_edit.h"

namespace vornix {

struct TableEditContext {
    GridStore& store;
    Spans& spans;
    HiddenLines& hidden;
    ScrollModel& scroll;
    LayoutEngine& layout;
    CurrentCell& current;
    GridSelection& selection;
};

class TableEdit {
public:
    explicit TableEdit(TableEditContext context)
        : context_(context)
        , edit_(context.store, context.spans, context.hidden)
    {
    }

    void InsertRows(int position, int count);
    void InsertCols(int position, int count);
    // Error 9 for lines that are not real, before anything has changed.
    void DeleteRows(int position, int count);
    void DeleteCols(int position, int count);
    // A new line, the old one's contents, and the old one gone: at the end the line has the index `to`. The mark of a
    // selected one goes with it. Error 9 as above.
    void MoveRow(int from, int to);
    void MoveCol(int from, int to);
    // The mark goes with the line where one of the two is selected. Error 9 as above.
    // True when fixed rows have another height then.
    bool SwapRows(int row1, int row2);
    void SwapCols(int col1, int col2);
    void CopyCell(CellIndex from, CellIndex to) { edit_.CopyCell(from, to); }
    void CopyRow(int from, int to) { edit_.CopyRow(from, to); }
    void CopyCol(int from, int to);
    void ResetRectangle(CellIndex first, CellIndex last);

private:
    bool HasTitle() const;
    bool IsTitleCol(int col) const { return HasTitle() && col == context_.store.FixedCols(); }
    void DropSelectedCells();
    void FollowColsBefore(int col);

    TableEditContext context_;
    StructureEdit edit_;
};

} // namespace vornix
