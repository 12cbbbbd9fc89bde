#include "layout/resizers.h"

#include <algorithm>

namespace vornix {

namespace {

// Pixels before the end of a line that size it, and behind its end.
constexpr int ZoneBefore = 6;
constexpr int ZoneBehind = 5;
// So close to its end the pointer may mean a line of no size behind it.
constexpr int ZoneAtEnd = 2;

i16 SizeOf(const Row& row)
{
    return row.Height;
}

i16 SizeOf(const Column& column)
{
    return column.Width;
}

template <typename Line> bool IsResizable(const Line& line)
{
    return line.Resizable && !line.Hidden;
}

constexpr int GroupSize = 8;

// Without a branch for each: lines without a size are rare.
template <typename Line> bool AnyOfGroupIsEmpty(const Line* lines)
{
    return (SizeOf(lines[0]) == 0) | (SizeOf(lines[1]) == 0) | (SizeOf(lines[2]) == 0) | (SizeOf(lines[3]) == 0)
        | (SizeOf(lines[4]) == 0) | (SizeOf(lines[5]) == 0) | (SizeOf(lines[6]) == 0) | (SizeOf(lines[7]) == 0);
}

// The last of `count` lines that is closed to nothing and may be opened again; NoIndex when there is none. In groups, for
// tens of thousands may be scrolled away.
template <typename Line> int LastClosed(const Line* lines, int count)
{
    for (int end = count; end > 0; end -= GroupSize) {
        const int begin = std::max(end - GroupSize, 0);
        if (end - begin == GroupSize && !AnyOfGroupIsEmpty(lines + begin))
            continue;
        for (int line = end - 1; line >= begin; --line) {
            if (SizeOf(lines[line]) == 0 && IsResizable(lines[line]))
                return line;
        }
    }
    return NoIndex;
}

// The line under a place, and the one to size there.
struct LineHit {
    int line = NoIndex;
    int candidate = NoIndex;
};

// The lines in the order they stand on the screen: 0 to `frozen` - 1, then `first`, by `offset` pushed out, to `last`.
struct Order {
    int frozen;
    int first;
    int last;
    int offset;
};

// Lines are contiguous in the store.
template <typename LineAt> LineHit Walk(int position, const Order& order, const LineAt& lineAt)
{
    LineHit hit;
    int edge = 0;
    // What can be sized from behind its end; lines of no size that cannot be sized do not hide it.
    int before = NoIndex;
    for (int line = 0; line <= order.last; ++line) {
        if (line == order.frozen && order.first > order.frozen) {
            line = order.first;
            if (line > order.last)
                break;
            const int closed = position < edge + ZoneBehind
                ? LastClosed(&lineAt(order.frozen), order.first - order.frozen)
                : NoIndex;
            if (closed != NoIndex)
                before = order.frozen + closed;
        }
        const auto& record = lineAt(line);
        const int begin = edge;
        edge += SizeOf(record) + (line == order.first ? order.offset : 0);
        if (position < edge) {
            if (hit.line == NoIndex)
                hit.line = line;
            if (position >= edge - ZoneBefore)
                hit.candidate = line;
            else if (position < begin + ZoneBehind)
                hit.candidate = before;
            if (position < edge - ZoneAtEnd)
                return hit;
        }
        if (IsResizable(record))
            before = line;
        else if (SizeOf(record) > 0)
            before = NoIndex;
    }
    if (position < edge + ZoneBehind)
        hit.candidate = before;
    return hit;
}

} // namespace

ResizerHit Resizers::HitTest(int x, int y) const
{
    LineHit row;
    if (y >= 0 && y <= layout_.ClientHeight()) {
        const int frozen = store_.FixedRows();
        row = Walk(y, { frozen, std::max(scroll_.FirstRow(), frozen), store_.LastRowIndex(), 0 },
            [this](int line) -> const Row& { return store_.RowAt(line); });
    }
    LineHit col;
    if (x >= 0 && x <= layout_.ClientWidth()) {
        const int frozen = layout_.FirstScrollCol();
        const int first = std::max(scroll_.FirstCol(), frozen);
        col = Walk(x, { frozen, first, store_.LastColIndex(), layout_.SmoothOffset() },
            [this](int line) -> const Column& { return store_.ColumnAt(line); });
    }
    ResizerHit hit { { row.line, col.line, false }, row.candidate, col.candidate };
    if (layout_.Settings.CaptionEnabled && row.line == 0)
        hit.cell.col = store_.FixedCols(); // the caption is one cell over the whole width
    hit.cell.found = hit.cell.row >= 0 && hit.cell.col >= 0;
    return hit;
}

} // namespace vornix
