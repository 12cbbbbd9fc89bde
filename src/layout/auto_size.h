// Rows and columns that take the size of what their cells hold, as the host has the last word on. Pixels; internal
// indices, those outside the store are error 9.
//
// Handlers of ResizeRow and ResizeCol may do anything, closing the control included: the line is tested anew behind
// them.
#pragma once

#include "layout/layout_engine.h"
#include "layout/text_measure.h"
#include "model/hidden_lines.h"
#include "model/redraw_gate.h"
#include "model/repainter.h"
#include "vornix/events.h"

#include <optional>

namespace vornix {

struct AutoSizeContext {
    GridStore& store;
    LayoutEngine& layout;
    const Spans& spans;
    HiddenLines& hidden;
    RedrawGate& gate;
    Repainter& repainter;
    Container& container;
    VornixEvents& events;
};

class AutoSize {
public:
    explicit AutoSize(AutoSizeContext context)
        : context_(context)
    {
    }

    // What a cell's text needs, with its padding, at the present width of the column and height of the row.
    Size CalcRectText(int row, int col) const;
    // The height for one cell of a row, or for all. May widen the columns of words that do not fit.
    void AdjustHeight(int row, std::optional<int> col = {}, bool alsoWidth = false);
    // The width for one cell of a column, or for all but the title.
    void AdjustWidth(int col, std::optional<int> row = {});
    // The height of so many lines in the control's font, to all rows that are not fixed and as the default.
    void AutoSizeRows(int lines);

private:
    // The most that the cells ask for; the surface that they are measured on is gone behind it, as the host may change
    // the table then.
    int NeededHeight(int row, std::optional<int> col, bool alsoWidth, bool& widened);
    int NeededWidth(int col, std::optional<int> row) const;
    // What one cell of a row or column asks of it, measured at its span's parent.
    int HeightFor(TextMeasure& measure, int row, CellIndex parent, bool alsoWidth, bool& widened);
    int WidthFor(TextMeasure& measure, int col, CellIndex parent) const;
    int RoomForText(CellIndex parent) const;
    const Cell& CellAt(CellIndex cell) const { return context_.store.CellAt(cell.row, cell.col); }
    // Both margins and the padding at both sides.
    int SidesOf(const Cell& cell) const;

    void OfferHeight(int row, int height);
    void OfferWidth(int col, int width);
    void StoreHeight(int row, i16 height);
    void StoreWidth(int col, i16 width);

    AutoSizeContext context_;
};

} // namespace vornix
