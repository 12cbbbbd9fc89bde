// Geometry: from the sizes of rows and columns to sums, the client area, the bars needed, places and hits.
// Pixels in 16 bits; a sum beyond them is error 6, a line outside the store error 9, and what had been written stays.
// Internal indices.
#pragma once

#include "layout/line_sums.h"
#include "layout/scroll_model.h"
#include "model/grid_store.h"
#include "model/spans.h"
#include "vornix/types.h"

namespace vornix {

// The layout's share of the control's properties.
struct LayoutSettings {
    i32 ScrollHBar = vxScrollSmooth;
    i32 ScrollVBar = vxScrollTrack;
    i16 ScrollBarSize = 17;
    bool ResizingWidth = true;
    bool ResizingRows = false;
    bool CaptionEnabled = false;
    bool ShowSplit = false;
    i16 SplitCols = 0;
};

struct HitResult {
    int row = NoIndex;
    int col = NoIndex;
    bool found = false;
};

// What a write of ShowSplit leaves to do: nothing, lay out anew because a split was dropped, or place the split bar.
enum class SplitChange { None, Dropped, PlaceBar };

class LayoutEngine {
public:
    LayoutEngine(GridStore& store, ScrollModel& scroll);

    LayoutSettings Settings;

    // Outputs, valid after the first layout with the gate open.
    i16 ClientWidth() const { return clientWidth_; }
    i16 ClientHeight() const { return clientHeight_; }
    i16 FixedRowsHeight() const { return fixedRowsHeight_; }
    i16 FrozenColsWidth() const { return frozenColsWidth_; }
    i16 FixedColsWidth() const { return fixedColsWidth_; }
    i16 VBarWidth() const { return vBarWidth_; }
    i16 HBarHeight() const { return hBarHeight_; }
    i16 CaptionHeight() const { return captionHeight_; }
    int FirstScrollCol() const { return firstScrollCol_; }
    i16 SmoothOffset() const { return smoothOffset_; }
    bool PercentActive() const { return percentActive_; }
    bool MetricsDirty() const { return metricsDirty_; }
    // The window's size in logical pixels, as the control last read it.
    Size ScaleSize() const { return scaleSize_; }

    void SetScaleSize(Size size) { scaleSize_ = size; }
    void SetFirstScrollCol(int col) { firstScrollCol_ = col; }
    void SetSmoothOffset(i16 offset) { smoothOffset_ = offset; }
    void SetFrozenColsWidth(i16 width) { frozenColsWidth_ = width; }
    // The bars' share when the scroll step overrules what was needed.
    void SetHBarHeight(i16 height) { hBarHeight_ = height; }
    void SetClientHeight(i16 height) { clientHeight_ = height; }
    void MarkMetricsDirty() { metricsDirty_ = true; }
    // Starts over for a new store: the view at the first scrolling cell, fixed sizes measured and marked for another
    // time.
    void ResetFor(const GridStore& store);

    // Steps of the one funnel of layout changes, in its order.
    void UpdateCaptionHeight();
    void MeasureIfDirty();
    // Percent widths are redone on the way if forced and ResizingWidth is on.
    void CalcScrollBarNeed(bool forcePercent);
    void UpdateClientArea();

    void SumFixedRows();
    void SumFixedCols();
    void CalcPercentWidths();
    // Whether any column has a percent width.
    void RescanPercentActive();
    void SetPercentActive() { percentActive_ = true; }

    // What writing a size stores: a hidden line takes it for the time it is shown, a first line that vanishes moves on.
    // False when the line has that size already; otherwise the layout is due.
    bool SetColWidth(int col, int value);
    bool SetRowHeight(int row, int value);
    void SetColWidthPercent(int col, int percent);
    // False when refused: ShowSplit is off, or the value is the present one, negative, or not below the last column.
    bool SetSplitCols(int value);
    SplitChange SetShowSplit(bool value);
    // The split that the user has chosen: the columns before `col` stand still, none of them behind the fixed ones when
    // that would leave no room. The view stays for the caller to place. Error 6 when they are too wide for a sum.
    void SplitBefore(int col);
    // No column is split off any more; the view starts behind the fixed columns.
    void DropSplit();

    // Top left pixel. A cell scrolled out at the left or top has the place of the first that scrolls.
    Point CellOriginAt(int row, int col) const;
    // The origin in twips of the container, with the border's share.
    Point CellOriginInTwips(int row, int col, Size twipsPerPixel, i32 borderStyle) const;
    // Of the whole span when the cell belongs to one.
    Size CellSpanSize(int row, int col) const;
    // Lines between two cells in any order, spans ignored; of one cell its CellSpanSize.
    Size BlockSize(int row1, int col1, int row2, int col2) const;
    HitResult HitTestCell(int x, int y) const;
    // The first line from the given one on that has a size, or the given one.
    int NextVisibleCol(int col) const;
    int NextVisibleRow(int row) const;
    // The line that must come first for `last` to be the last whole one in the client area.
    int FirstColForLast(int last) const;
    int FirstRowForLast(int last) const;
    // The largest size that a line takes when it is sized or fitted: what the frozen lines leave of the area, and for a
    // frozen one its present size as well. Columns that scroll by pixels know no limit.
    int HeightLimit(int row) const;
    int WidthLimit(int col) const;
    // Within the whole lines of the latest paint; fixed lines always. Hidden ones in between count.
    bool IsVisibleRow(int row) const;
    bool IsVisibleCol(int col) const;
    // Scrolled out at the left or at the top.
    bool IsBeforeView(CellIndex cell) const;
    bool IsVisibleCell(int row, int col) const { return IsVisibleRow(row) && IsVisibleCol(col); }

private:
    GridStore& store_;
    ScrollModel& scroll_;
    LineSums sums_;
    Size scaleSize_;
    i16 clientWidth_ = 0;
    i16 clientHeight_ = 0;
    i16 fixedRowsHeight_ = 0;
    i16 frozenColsWidth_ = 0;
    i16 fixedColsWidth_ = 0;
    i16 vBarWidth_ = 0;
    i16 hBarHeight_ = 0;
    i16 captionHeight_ = 0;
    i16 smoothOffset_ = 0;
    int firstScrollCol_ = 0;
    bool metricsDirty_ = false;
    bool percentActive_ = false;

    int FirstRowBehindFixed() const;
    int FirstColBehindFrozen() const;
    int ColumnsWithoutPercent() const;
    int HitRow(int y) const;
    int HitCol(int x) const;
};

} // namespace vornix
