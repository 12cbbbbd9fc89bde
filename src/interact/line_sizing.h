// The user's sizing of rows and columns by the boundaries in the fixed lines. Sizing is live: every move of the pointer
// is laid out and painted, and the host has the last word on each new size. Internal indices; places in pixels of the
// client area.
//
// Handlers of ResizeCol, ResizeRow and PopulateGrid may do anything, closing the control included: the line that is
// sized is tested anew behind each of them.
#pragma once

#include "interact/current_cell_ports.h"
#include "layout/auto_size.h"
#include "layout/resizers.h"

namespace vornix {

struct LineSizingContext {
    GridStore& store;
    LayoutEngine& layout;
    ScrollModel& scroll;
    HiddenLines& hidden;
    const Spans& spans;
    AutoSize& fitting;
    RedrawGate& gate;
    const Scrolling& scrolling;
    Repainter& repainter;
    ListPage& page;
    Container& container;
    VornixEvents& events;
};

class LineSizing {
public:
    explicit LineSizing(LineSizingContext context);

    // Which cell lies at a place. Remembers which lines could be sized from there, unless a sizing runs.
    HitResult HitTest(int x, int y);

    // A column or row is being sized.
    bool IsSizing() const { return sizingCol_ || sizingRow_; }
    // The pointer shows that a press would size a line.
    bool IsCursorShown() const { return cursorShown_; }
    // The shape that the pointer has.
    PointerShape Cursor() const { return cursor_; }
    void RestoreCursor();

    // The pointer has moved without a button, behind HitTest at that place.
    void UpdateCursor(int x, int y, const HitResult& hit);
    // A press while the cursor shows. False when there is no line to size, and the cursor goes.
    bool Begin(int x, int y);
    // The pointer has moved with the button. Raises ResizeCol or ResizeRow, and the events of painting; PopulateGrid
    // when all rows of a page are closed. Error 6 for a size beyond 16 bits.
    void SizeTo(float x, float y);
    // The size is in force since the latest move: there is nothing to commit.
    void End();
    // A double click on the boundary: the line that the press caught takes the size of what it holds. Raises ResizeCol
    // or ResizeRow, and the events of painting.
    void FitLine();

private:
    bool IsRealCol(int col) const { return col >= 0 && col <= context_.store.LastColIndex(); }
    bool IsRealRow(int row) const { return row >= 0 && row <= context_.store.LastRowIndex(); }

    PointerShape ShapeAt(int x, int y, const HitResult& hit) const;
    bool OffersCol(int row, int col) const;
    bool OffersRow(int row, int col) const;
    void ShowCursor(PointerShape shape);

    void SizeColTo(float x);
    void SizeRowTo(float y);
    i16 WidthAt(float x, int col) const;
    i16 HeightAt(float y, int row) const;
    void StoreWidth(int col, int width);
    void TakeFirstCol(int col);
    void StoreHeight(int row, int height);
    void StoreHeightOfAllRows(int height);
    void RefillPage();
    void PaintAtOnce();

    LineSizingContext context_;
    Resizers resizers_;
    // What the latest hit test offers.
    int candidateRow_ = NoIndex;
    int candidateCol_ = NoIndex;
    PointerShape cursor_ = PointerShape::Default;
    bool cursorShown_ = false;

    bool sizingCol_ = false;
    bool sizingRow_ = false;
    int row_ = NoIndex;
    int col_ = NoIndex;
    // Where the line begins.
    int originX_ = 0;
    int originY_ = 0;
};

} // namespace vornix
