// What the positions of the bars stand for: lines, or in smooth mode pixels of the scrolling columns; and where a step
// from one of them leads. Internal indices.
#pragma once

#include "layout/layout_engine.h"
#include "model/hidden_lines.h"

namespace vornix {

struct BarRange {
    i32 min = 0;
    i32 max = 0;
    // With a range that is upside down its lower end wins: the first line that scrolls.
    i32 Limit(i32 value) const;
};

// A column at the left edge, and how far it is pushed out there (0 or negative).
struct ColPlace {
    int col = 0;
    i16 offset = 0;
};

class ScrollPositions {
public:
    ScrollPositions(
        const GridStore& store, const LayoutEngine& layout, const ScrollModel& scroll, const HiddenLines& hidden);

    bool IsSmooth() const { return layout_.Settings.ScrollHBar == vxScrollSmooth; }
    // The first line that scrolls and has a size; the first that scrolls when none has.
    int FirstVisibleScrollCol() const { return layout_.NextVisibleCol(layout_.FirstScrollCol()); }
    int FirstVisibleScrollRow() const { return layout_.NextVisibleRow(store_.FixedRows()); }
    BarRange HRange() const;
    BarRange VRange() const;

    // Pixels of the scrolling columns before this one; 0 for one behind the last.
    i32 ColPixelOffset(int col) const;
    // The pixel that stands at the left when the last one stands at the right.
    i32 SmoothScrollMax() const;
    // The column that holds the pixel; where none does, the first that scrolls with the offset as it is.
    ColPlace ColAtPixel(i32 pixel) const;
    // The pixel that stands at the left edge now.
    i32 PixelAtLeft() const { return ColPixelOffset(scroll_.FirstCol()) - layout_.SmoothOffset(); }

    // Where a change leads, from the value and the direction that the bar gave. Hidden lines are stepped over.
    int NextScrollCol(i32 value, i32 direction, const BarRange& bar) const;
    int NextScrollRow(i32 value, i32 direction, const BarRange& bar) const;
    i32 NextSmoothValue(i32 value, i32 direction, const BarRange& bar) const;

    // The line that must come first for `last` to be the last whole one, as far as those that stand still allow.
    int ScrollingColForLast(int last) const;
    int ScrollingRowForLast(int last) const;

    // A position of the bar as a line of the store.
    int ScrollingCol(i32 value) const;
    int ScrollingRow(i32 value) const;

private:
    int ShownColBeside(int target, const BarRange& bar) const;
    int ShownRowBeside(int target) const;

    const GridStore& store_;
    const LayoutEngine& layout_;
    const ScrollModel& scroll_;
    const HiddenLines& hidden_;
    LineSums sums_;
};

} // namespace vornix
