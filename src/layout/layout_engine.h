// Geometry: from the sizes of rows and columns to sums, the client area, the bars needed, places and hits.
// Pixels in 16 bits; a sum beyond them is error 6. Internal indices.
#pragma once

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
    void MarkMetricsDirty() { metricsDirty_ = true; }
    // Sums of a new store: fixed sizes measured anew, no split.
    void ResetFor(const GridStore& store);

    // Steps of the one funnel of layout changes, in its order.
    void UpdateCaptionHeight();
    void MeasureIfDirty();
    void CalcScrollBarNeed(bool forcePercent);
    void UpdateClientArea();

    void SumFixedRows();
    void SumFixedCols();
    void CalcPercentWidths();
    // Whether any column has a percent width.
    void RescanPercentActive();
    void SetPercentActive() { percentActive_ = true; }

    Point CellOriginAt(int row, int col) const;
    Size CellSpanSize(int row, int col) const;
    HitResult HitTestCell(int x, int y) const;
    int NextVisibleCol(int col) const;
    int NextVisibleRow(int row) const;
    int FirstColForLast(int last) const;
    int FirstRowForLast(int last) const;
    bool IsVisibleRow(int row) const;
    bool IsVisibleCol(int col) const;

private:
    GridStore& store_;
    ScrollModel& scroll_;
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
};

} // namespace vornix
