#include "layout/auto_size.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

namespace {

// Around a text: at both sides together, and in a height that is measured by.
constexpr int SidePadding = 8;
constexpr int VerticalPadding = 4;
// What a measured height or width starts from, and what is added to a height.
constexpr int SmallestExtent = 5;
constexpr int MostWideningRounds = 100;

// The last line of a walk that steps over what a span covers.
int LastCovered(int line, i16 span)
{
    return span > 0 ? line + span - 1 : line;
}

} // namespace

int AutoSize::SidesOf(const Cell& cell) const
{
    const CellFormat& format = context_.store.FormatOf(cell);
    return SidePadding + format.TextMarginLeft + format.TextMarginRight;
}

Size AutoSize::CalcRectText(int row, int col) const
{
    const GridStore& store = context_.store;
    const Cell& cell = store.CellAt(row, col);
    const Column& column = store.ColumnAt(col);
    Rect rect { 0, 0, column.Width - SidesOf(cell), store.HeightOf(row) - VerticalPadding };
    TextMeasure(store, context_.container).MeasureCellText(row, col, column.Format, rect);
    return { rect.right + SidesOf(cell), rect.bottom + VerticalPadding };
}

// -- Rows --

void AutoSize::AdjustHeight(int row, std::optional<int> col, bool alsoWidth)
{
    LayoutEngine& layout = context_.layout;
    bool widened = false;
    const int needed = NeededHeight(row, col, alsoWidth, widened);
    layout.MeasureIfDirty();
    const int best = std::min(needed, layout.HeightLimit(row));
    if (widened || row < context_.store.FixedRows())
        layout.MarkMetricsDirty();
    if (best != 0)
        OfferHeight(row, best);
    else if (widened)
        context_.repainter.RecalcLayout(false);
}

int AutoSize::NeededHeight(int row, std::optional<int> col, bool alsoWidth, bool& widened)
{
    const GridStore& store = context_.store;
    TextMeasure measure(store, context_.container);
    const int last = col.value_or(store.LastColIndex());
    int best = 0;
    for (int at = col.value_or(0); at <= last; ++at) {
        const CellIndex parent = context_.spans.ParentOf(row, at);
        best = std::max(best, HeightFor(measure, row, parent, alsoWidth, widened));
        at = LastCovered(at, CellAt(parent).ColSpan());
    }
    return best;
}

int AutoSize::HeightFor(TextMeasure& measure, int row, CellIndex parent, bool alsoWidth, bool& widened)
{
    const GridStore& store = context_.store;
    const Cell& cell = CellAt(parent);
    const int room = RoomForText(parent);
    Rect rect { 0, 0, room, SmallestExtent };
    measure.MeasureCellText(parent.row, parent.col, store.ColumnAt(parent.col).Format, rect);
    // The span's other rows carry part of the text.
    int height = rect.bottom;
    const int lastRow = LastCoveredCell(store, parent.row, parent.col).row;
    for (int other = parent.row; other <= lastRow; ++other) {
        if (other != row)
            height -= store.HeightOf(other);
    }
    if (alsoWidth && rect.right > room) {
        StoreWidth(parent.col, ToI16(rect.right + SidesOf(cell)));
        widened = true;
    }
    return height + SmallestExtent;
}

// Of the columns of a span the second one is left out, and the one behind it counts in its place.
int AutoSize::RoomForText(CellIndex parent) const
{
    const GridStore& store = context_.store;
    const Cell& cell = CellAt(parent);
    int room = store.WidthOf(parent.col) - SidesOf(cell);
    for (int place = 2; place <= cell.ColSpan() && store.ContainsCol(parent.col + place); ++place)
        room += store.WidthOf(parent.col + place);
    return room < 0 ? 1 : room;
}

void AutoSize::OfferHeight(int row, int height)
{
    i16 newHeight = ToI16(height);
    const bool wasFiller = row == context_.store.MaxRow();
    {
        const RedrawGate::Closed closed(context_.gate);
        context_.events.ResizeRow(ToI16(row - context_.store.FixedRows()), newHeight);
    }
    // What a handler has left of the table: a filler that came in the line's place is not it.
    if (context_.store.ContainsRow(row) && (row == context_.store.MaxRow()) == wasFiller)
        StoreHeight(row, std::max<i16>(newHeight, 0));
    context_.layout.MarkMetricsDirty();
    context_.repainter.RecalcLayout(false);
}

void AutoSize::StoreHeight(int row, i16 height)
{
    Row& line = context_.store.RowAt(row);
    if (line.Hidden)
        line.SavedHeight = height;
    else
        context_.layout.SetRowHeight(row, height);
}

// -- Columns --

void AutoSize::AdjustWidth(int col, std::optional<int> row)
{
    LayoutEngine& layout = context_.layout;
    if (layout.Settings.CaptionEnabled && row == 0)
        return;
    const int needed = NeededWidth(col, row);
    if (needed == 0)
        return;
    layout.MeasureIfDirty();
    if (col < layout.FirstScrollCol())
        layout.MarkMetricsDirty();
    OfferWidth(col, std::min(needed, layout.WidthLimit(col)));
}

// Without a row of all of them, but for the title's.
int AutoSize::NeededWidth(int col, std::optional<int> row) const
{
    const GridStore& store = context_.store;
    TextMeasure measure(store, context_.container);
    const int first = context_.layout.Settings.CaptionEnabled ? 1 : 0;
    const int last = row.value_or(store.LastRowIndex());
    int best = 0;
    for (int at = row.value_or(first); at <= last; ++at) {
        const CellIndex parent = context_.spans.ParentOf(at, col);
        best = std::max(best, WidthFor(measure, col, parent));
        at = LastCovered(at, CellAt(parent).RowSpan());
    }
    return best;
}

int AutoSize::WidthFor(TextMeasure& measure, int col, CellIndex parent) const
{
    const GridStore& store = context_.store;
    const Cell& cell = CellAt(parent);
    const int height = store.HeightOf(parent.row);
    const int lines = height - VerticalPadding;
    Rect rect { 0, 0, SmallestExtent, lines < 0 ? 1 : lines };
    measure.MeasureCellText(parent.row, parent.col, store.ColumnAt(parent.col).Format, rect);
    // A text too tall for the row gets its excess as width; the second measuring takes no measure, so one round does.
    int width = rect.right;
    for (int round = 0; rect.bottom + VerticalPadding > height && round < MostWideningRounds; ++round) {
        width += rect.bottom + VerticalPadding - height;
        rect.right = width;
        rect.bottom = lines;
        measure.DrawAgain(rect);
    }
    width = rect.right + SidesOf(cell);
    // The span's other columns carry part of the text.
    const int lastCol = LastCoveredCell(store, parent.row, parent.col).col;
    for (int other = parent.col; other <= lastCol; ++other) {
        if (other != col)
            width -= store.WidthOf(other);
    }
    return width;
}

void AutoSize::OfferWidth(int col, int width)
{
    i16 newWidth = ToI16(width);
    const bool wasFiller = col == context_.store.MaxCol();
    {
        const RedrawGate::Closed closed(context_.gate);
        context_.events.ResizeCol(ToI16(col - context_.store.FixedCols()), newWidth);
    }
    if (context_.store.ContainsCol(col) && (col == context_.store.MaxCol()) == wasFiller)
        StoreWidth(col, std::max<i16>(newWidth, 0));
    context_.repainter.RecalcLayout(false);
}

void AutoSize::StoreWidth(int col, i16 width)
{
    Column& column = context_.store.ColumnAt(col);
    if (column.Hidden)
        column.SavedWidth = width;
    else
        context_.layout.SetColWidth(col, width);
}

// -- All rows --

void AutoSize::AutoSizeRows(int lines)
{
    if (lines < 1)
        return;
    GridStore& store = context_.store;
    const int needed
        = TextMeasure(store, context_.container).HeightOfLines(store.Defaults.Font, lines) + SmallestExtent;
    if (needed > 0)
        store.Defaults.DefaultHeight = ToI16(needed);
    const i16 height = store.Defaults.DefaultHeight;
    bool reappears = false;
    for (int row = store.FixedRows(); row <= store.LastRowIndex(); ++row) {
        Row& line = store.RowAt(row);
        reappears = reappears || (!line.Hidden && line.Height == 0);
        (line.Hidden ? line.SavedHeight : line.Height) = height;
    }
    if (reappears)
        context_.hidden.RebuildChain();
    context_.repainter.RecalcLayout(context_.layout.PercentActive());
}

} // namespace vornix
