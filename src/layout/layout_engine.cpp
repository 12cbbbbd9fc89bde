#include "layout/layout_engine.h"

#include "automation/checked.h"
#include "model/hidden_lines.h"

#include <algorithm>

namespace vornix {

namespace {

// What a bar leaves of the window; 16 bits like every other extent.
i16 Remaining(int extent, int bar)
{
    return ToI16(std::max(extent - bar, 0));
}

} // namespace

LayoutEngine::LayoutEngine(GridStore& store, ScrollModel& scroll)
    : store_(store)
    , scroll_(scroll)
    , sums_(store)
{
}

void LayoutEngine::ResetFor(const GridStore& store)
{
    scroll_.SetFirstRow(store.FixedRows());
    scroll_.SetFirstCol(store.FixedCols());
    firstScrollCol_ = store.FixedCols() + Settings.SplitCols;
    smoothOffset_ = 0;
    fixedRowsHeight_ = sums_.AddHeights(0, 0, store.FixedRows() - 1);
    fixedColsWidth_ = sums_.AddWidths(0, 0, store.FixedCols() - 1);
    frozenColsWidth_ = fixedColsWidth_;
    RescanPercentActive();
    metricsDirty_ = true;
}

void LayoutEngine::UpdateCaptionHeight()
{
    captionHeight_ = 0;
    if (Settings.CaptionEnabled && store_.FixedRows() >= 1)
        captionHeight_ = store_.RowAt(0).Height;
}

void LayoutEngine::MeasureIfDirty()
{
    if (!metricsDirty_)
        return;
    SumFixedRows();
    SumFixedCols();
}

void LayoutEngine::SumFixedRows()
{
    fixedRowsHeight_ = sums_.AddHeights(0, 0, store_.FixedRows() - 1);
    metricsDirty_ = false;
}

void LayoutEngine::SumFixedCols()
{
    // The frozen columns start with the fixed ones, so one running sum gives both.
    const int fixedCols = std::min<int>(store_.FixedCols(), firstScrollCol_);
    fixedColsWidth_ = sums_.AddWidths(0, 0, fixedCols - 1);
    frozenColsWidth_ = sums_.AddWidths(fixedColsWidth_, std::max(fixedCols, 0), firstScrollCol_ - 1);
    metricsDirty_ = false;
}

void LayoutEngine::CalcScrollBarNeed(bool forcePercent)
{
    vBarWidth_ = 0;
    hBarHeight_ = 0;

    // Fixed lines alone need no bar of their own: a bar comes from lines that scroll, or from the cross check.
    i16 availHeight = ToI16(scaleSize_.height - fixedRowsHeight_);
    if (Settings.ScrollVBar > vxNoScrollBar) {
        availHeight = sums_.RoomAfterRows(availHeight, store_.FixedRows(), store_.LastRowIndex());
        if (availHeight < 0 && store_.FixedRows() <= store_.LastRowIndex())
            vBarWidth_ = Settings.ScrollBarSize;
    }

    if (forcePercent && Settings.ResizingWidth)
        CalcPercentWidths();

    i16 availWidth = ToI16(scaleSize_.width - frozenColsWidth_);
    if (Settings.ScrollHBar > vxNoScrollBar) {
        availWidth = sums_.RoomAfterCols(availWidth, firstScrollCol_, store_.LastColIndex());
        if (availWidth < 0 && firstScrollCol_ <= store_.LastColIndex())
            hBarHeight_ = Settings.ScrollBarSize;
    }

    // Each bar narrows the room of the other; the second test looks at the bar as it was before the first.
    const i16 hBarHeightBefore = hBarHeight_;
    if (ToI16(availWidth - vBarWidth_) < 0 && Settings.ScrollHBar > vxNoScrollBar)
        hBarHeight_ = Settings.ScrollBarSize;
    if (ToI16(availHeight - hBarHeightBefore) < 0 && Settings.ScrollVBar > vxNoScrollBar)
        vBarWidth_ = Settings.ScrollBarSize;
}

void LayoutEngine::UpdateClientArea()
{
    clientWidth_ = Remaining(scaleSize_.width, vBarWidth_);
    clientHeight_ = Remaining(scaleSize_.height, hBarHeight_);
}

int LayoutEngine::ColumnsWithoutPercent() const
{
    i16 sum = 0;
    for (int col = 0; col <= store_.LastColIndex(); ++col) {
        const Column& column = store_.ColumnAt(col);
        if (column.WidthPercent == 0 && !column.Hidden)
            sum = ToI16(sum + column.Width);
    }
    return sum;
}

void LayoutEngine::CalcPercentWidths()
{
    if (Settings.SplitCols > 0 || store_.Cols() == 0)
        return;
    clientWidth_ = Remaining(scaleSize_.width, vBarWidth_);
    const int avail = Remaining(clientWidth_, ColumnsWithoutPercent());

    i16 sumPercent = 0;
    i16 used = 0;
    for (int col = 0; col <= store_.LastColIndex(); ++col) {
        Column& column = store_.ColumnAt(col);
        sumPercent = ToI16(sumPercent + column.WidthPercent);
        if (column.WidthPercent == 0)
            continue;
        if (column.Hidden) {
            // It may complete a hundred, but has no width to take the rounding errors with.
            sumPercent = sumPercent == 100 ? i16 { 0 } : sumPercent;
            continue;
        }
        column.Width = RoundToI16(column.WidthPercent / 100.0 * avail);
        if (sumPercent == 100) {
            // The column that completes a hundred takes the rounding errors. `used` runs on into the next group.
            sumPercent = 0;
            column.Width = ToI16(avail - used);
        } else {
            used = ToI16(used + column.Width);
        }
    }
    SumFixedCols();
}

void LayoutEngine::RescanPercentActive()
{
    percentActive_ = false;
    for (int col = 0; col <= store_.LastColIndex() && !percentActive_; ++col)
        percentActive_ = store_.ColumnAt(col).WidthPercent != 0;
}

bool LayoutEngine::SetColWidth(int col, int value)
{
    Column& column = store_.ColumnAt(col);
    if (value == column.Width)
        return false;
    const i16 width = ToI16(std::max(value, 0));
    (column.Hidden ? column.SavedWidth : column.Width) = width;
    if (col == scroll_.FirstCol() && width == 0)
        scroll_.SetFirstCol(NextVisibleCol(col));
    metricsDirty_ = true;
    return true;
}

bool LayoutEngine::SetRowHeight(int row, int value)
{
    Row& line = store_.RowAt(row);
    if (value == line.Height)
        return false;
    const i16 height = ToI16(std::max(value, 0));
    if (line.Hidden) {
        line.SavedHeight = height;
    } else {
        const i16 heightBefore = line.Height;
        line.Height = height;
        HiddenLines(store_).UpdateChain(row, heightBefore, height);
    }
    if (row == scroll_.FirstRow() && height == 0)
        scroll_.SetFirstRow(NextVisibleRow(row));
    metricsDirty_ = true;
    return true;
}

void LayoutEngine::SetColWidthPercent(int col, int percent)
{
    store_.ColumnAt(col).WidthPercent = ToI16(percent);
    if (percent == 0)
        RescanPercentActive();
    else
        percentActive_ = true;
    metricsDirty_ = true;
}

bool LayoutEngine::SetSplitCols(int value)
{
    if (!Settings.ShowSplit || value == Settings.SplitCols)
        return false;
    if (value < 0 || value >= store_.LastColIndex())
        return false;
    const int firstScrollCol = ToI16(store_.FixedCols() + value);
    sums_.AddWidths(0, 0, firstScrollCol - 1); // columns that are not there, or too wide, raise before anything changes
    Settings.SplitCols = ToI16(value);
    firstScrollCol_ = firstScrollCol;
    SumFixedCols();
    scroll_.SetFirstCol(firstScrollCol_);
    smoothOffset_ = 0;
    return true;
}

SplitChange LayoutEngine::SetShowSplit(bool value)
{
    if (value == Settings.ShowSplit)
        return SplitChange::None;
    Settings.ShowSplit = value;
    if (Settings.SplitCols == 0)
        return SplitChange::PlaceBar;
    DropSplit();
    return SplitChange::Dropped;
}

void LayoutEngine::SplitBefore(int col)
{
    const int firstScrollCol = std::max<int>(col, store_.FixedCols());
    sums_.AddWidths(0, 0, firstScrollCol - 1); // raises before anything changes
    firstScrollCol_ = firstScrollCol;
    SumFixedCols();
    if (clientWidth_ < frozenColsWidth_) {
        firstScrollCol_ = store_.FixedCols();
        SumFixedCols();
    }
    Settings.SplitCols = ToI16(firstScrollCol_ - store_.FixedCols());
}

void LayoutEngine::DropSplit()
{
    frozenColsWidth_ = fixedColsWidth_;
    Settings.SplitCols = 0;
    firstScrollCol_ = store_.FixedCols();
    scroll_.SetFirstCol(firstScrollCol_);
    smoothOffset_ = 0;
}

} // namespace vornix
