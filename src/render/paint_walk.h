// The walk over what is visible: which cells are painted, in which order and where. Finds the last visible lines on its
// way and fills the gaps behind the last ones.
#pragma once

#include "render/cell_painter.h"

#include <algorithm>

namespace vornix {

class PaintWalk {
public:
    PaintWalk(const PaintContext& context, CellPainter& painter);

    // Every visible cell, row by row from the top; in each row fixed, split and then scrolling columns.
    void PaintGrid(PaintJob& job);
    // One cell, or the span it stands for; false when another cell paints that span.
    bool PaintCellAt(PaintJob& job, int row, int col);

    // Of the latest walk, as far as the store still has them.
    int PaintLastRow() const { return std::min<int>(paintLastRow_, context_.store.MaxRow()); }
    int PaintLastCol() const { return std::min<int>(paintLastCol_, context_.store.MaxCol()); }
    // Written ahead of the next walk, when the program says which lines come last.
    void SetPaintLastRow(int row) { paintLastRow_ = row; }
    void SetPaintLastCol(int col) { paintLastCol_ = col; }
    // Visible rectangle of the latest cell.
    const Rect& CellRect() const { return cellRect_; }
    // Forgets where the latest cell was.
    void ResetCache();

    // At the first line that scrolls a walk goes on with the first one in sight; never backward.
    static int ScrollJump(int index, int firstScrolling, int firstVisible);

private:
    int FindLastCol();
    void FindLastRow();
    void EndColumns(PaintJob& job, int room);
    int PaintRows(PaintJob& job);
    void PaintRow(PaintJob& job, int row, int y);
    void EndRows(PaintJob& job, int y);
    void FillGap(PaintJob& job, const Rect& gap) const;

    bool ResolveSpan(int& row, int& col, int firstRow, int firstCol) const;
    bool IsPaintedByEarlierRow(int row, int parentRow) const;
    void LocateCol(int col);
    void LocateRow(int row);
    CellPlacement PlacementOf(int row, int col, int firstRow, int firstCol) const;
    void PlaceCaption(CellPlacement& place, PaintJob& job);

    int HeightOf(int row) const;
    int WidthOf(int col) const;
    int SumHeights(int first, int last) const;
    int SumWidths(int first, int last) const;
    // The next row of the chain.
    int NextRow(int row) const;

    const PaintContext& context_;
    CellPainter& painter_;
    int paintLastRow_ = 0;
    int paintLastCol_ = 0;
    int cachedRow_ = NoIndex;
    int cachedCol_ = NoIndex;
    int cachedLeft_ = 0;
    int cachedTop_ = 0;
    Rect cellRect_;
};

} // namespace vornix
