// Writes one attribute into all the cells of a row, a column or a rectangle, and repaints what was written under the
// gate. Attributes do not inherit: what is written here is all that the painter sees. Internal indices; a line outside
// the store is error 9.
#pragma once

#include "control/repaint_funnel.h"
#include "model/grid_store.h"

namespace vornix {

// Which cells of a line a write reaches. Lines that are not fixed leave out their cells in fixed lines.
enum class LineReach {
    // Up to and with the filler.
    All,
    // Up to the last real cell.
    Real,
    // Up to the last real cell, without cells in fixed lines even in a line that is fixed itself.
    RealNotFixed
};

class Broadcast {
public:
    Broadcast(GridStore& store, RepaintFunnel& funnel)
        : store_(store)
        , funnel_(funnel)
    {
    }

    // Into what new cells of the column take, and into its cells.
    void ToColumn(int col, const FormatEdit& edit, LineReach reach = LineReach::All);
    // Into the cells alone.
    void ToColumnCells(int col, const FormatEdit& edit);
    void ToColumnContents(int col, const CellEdit& edit, LineReach reach);
    void ToRow(int row, const FormatEdit& edit, LineReach reach = LineReach::All);
    // Beginning at a column of the caller's.
    void ToRowFrom(int firstCol, int row, const FormatEdit& edit);
    // Corners in any order.
    void ToRectangle(int row1, int col1, int row2, int col2, const FormatEdit& edit);

    // Writes without a repaint.
    void ToColumnSilently(int col, const FormatEdit& edit, LineReach reach = LineReach::All);
    void ToRowSilently(int row, const FormatEdit& edit, LineReach reach = LineReach::All);

private:
    struct Range {
        int first;
        int last;
    };
    Range RowsOfColumn(int col, LineReach reach) const;
    Range ColsOfRow(int row, LineReach reach) const;

    GridStore& store_;
    RepaintFunnel& funnel_;
};

} // namespace vornix
