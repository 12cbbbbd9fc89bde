#include "layout/scroll_positions.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

i32 BarRange::Limit(i32 value) const
{
    return std::max(std::min(value, max), min);
}

ScrollPositions::ScrollPositions(
    const GridStore& store, const LayoutEngine& layout, const ScrollModel& scroll, const HiddenLines& hidden)
    : store_(store)
    , layout_(layout)
    , scroll_(scroll)
    , hidden_(hidden)
    , sums_(store)
{
}

BarRange ScrollPositions::HRange() const
{
    if (IsSmooth())
        return { 0, SmoothScrollMax() };
    return { FirstVisibleScrollCol(), layout_.FirstColForLast(store_.LastColIndex()) };
}

BarRange ScrollPositions::VRange() const
{
    return { FirstVisibleScrollRow(), layout_.FirstRowForLast(store_.LastRowIndex()) };
}

i32 ScrollPositions::ColPixelOffset(int col) const
{
    return col >= store_.MaxCol() ? 0 : sums_.TotalWidth(layout_.FirstScrollCol(), col - 1);
}

i32 ScrollPositions::SmoothScrollMax() const
{
    return sums_.TotalWidth(layout_.FirstScrollCol(), store_.LastColIndex())
        - (layout_.ClientWidth() - layout_.FrozenColsWidth());
}

ColPlace ScrollPositions::ColAtPixel(i32 pixel) const
{
    const auto found = sums_.ColBeyond(pixel, 0, layout_.FirstScrollCol(), store_.LastColIndex());
    if (found.line == NoIndex)
        return { layout_.FirstScrollCol(), layout_.SmoothOffset() };
    const int left = found.edge - store_.WidthOf(found.line);
    return { found.line, ToI16(left - pixel) };
}

int ScrollPositions::ScrollingCol(i32 value) const
{
    return BarRange { layout_.FirstScrollCol(), store_.LastColIndex() }.Limit(value);
}

int ScrollPositions::ScrollingRow(i32 value) const
{
    return BarRange { store_.FixedRows(), store_.LastRowIndex() }.Limit(value);
}

// A page keeps the column at the edge.
int ScrollPositions::NextScrollCol(i32 value, i32 direction, const BarRange& bar) const
{
    int target = value;
    if (direction > 0)
        target = std::min(scroll_.LastCol() + 1, bar.max);
    else if (direction < 0)
        target = std::max(layout_.FirstColForLast(scroll_.FirstCol() - 1), bar.min);
    target = ScrollingCol(target);
    if (!store_.ContainsCol(target) || store_.WidthOf(target) != 0)
        return target;
    return ShownColBeside(target, bar);
}

// Columns are searched one by one, in the direction of the step.
int ScrollPositions::ShownColBeside(int target, const BarRange& bar) const
{
    const int first = std::max(bar.min, layout_.FirstScrollCol());
    const int last = std::min<int>(bar.max, store_.LastColIndex());
    const int step = target <= scroll_.FirstCol() ? -1 : 1;
    for (int col = target + step; col >= first && col <= last; col += step) {
        if (store_.WidthOf(col) != 0)
            return col;
    }
    return target;
}

int ScrollPositions::NextScrollRow(i32 value, i32 direction, const BarRange& bar) const
{
    int target = value;
    if (direction > 0)
        target = std::min(scroll_.LastRow() + 1, bar.max);
    else if (direction < 0)
        target = std::max(layout_.FirstRowForLast(scroll_.FirstRow() - 1), bar.min);
    target = ScrollingRow(target);
    if (!store_.ContainsRow(target) || store_.HeightOf(target) != 0)
        return target;
    return ShownRowBeside(target);
}

// Hidden rows are crossed in whole runs, from where the view stands.
int ScrollPositions::ShownRowBeside(int target) const
{
    int candidate = ScrollingRow(scroll_.FirstRow());
    if (target <= candidate) {
        do {
            candidate = hidden_.PrevInChain(candidate);
        } while (candidate > target);
    } else {
        do {
            candidate = hidden_.NextInChain(candidate);
        } while (candidate < target);
    }
    return ScrollingRow(candidate);
}

i32 ScrollPositions::NextSmoothValue(i32 value, i32 direction, const BarRange& bar) const
{
    const i32 page = std::max(layout_.ClientWidth() - layout_.FrozenColsWidth(), 0);
    if (direction < 0)
        return bar.Limit(value - page);
    if (direction > 0)
        return bar.Limit(value + page);
    return bar.Limit(value);
}

int ScrollPositions::ScrollingColForLast(int last) const
{
    return std::max(layout_.FirstColForLast(last), layout_.FirstScrollCol());
}

int ScrollPositions::ScrollingRowForLast(int last) const
{
    return std::max<int>(layout_.FirstRowForLast(last), store_.FixedRows());
}

} // namespace vornix
