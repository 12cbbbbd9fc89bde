#include "layout/line_sums.h"

#include "automation/checked.h"

namespace vornix {

namespace {

auto HeightsOf(const GridStore& store)
{
    return [&store](int row) { return store.HeightOf(row); };
}

auto WidthsOf(const GridStore& store)
{
    return [&store](int col) { return store.WidthOf(col); };
}

template <class SizeOf> i16 Add(int start, int first, int last, SizeOf sizeOf)
{
    i16 sum = ToI16(start);
    for (int line = first; line <= last; ++line)
        sum = ToI16(sum + sizeOf(line));
    return sum;
}

template <class SizeOf> i16 RoomAfter(int room, int first, int last, SizeOf sizeOf)
{
    i16 rest = ToI16(room);
    for (int line = first; line <= last; ++line) {
        rest = ToI16(rest - sizeOf(line));
        if (rest < 0)
            break;
    }
    return rest;
}

// No narrowing: the walk ends as soon as it is past a position that is in 16 bits itself.
template <class SizeOf> LineSums::Found Beyond(int position, int edge, int first, int last, SizeOf sizeOf)
{
    for (int line = first; line <= last; ++line) {
        edge += sizeOf(line);
        if (position < edge)
            return { line, edge };
    }
    return { NoIndex, edge };
}

} // namespace

i16 LineSums::AddHeights(int start, int first, int last) const
{
    return Add(start, first, last, HeightsOf(store_));
}

i16 LineSums::AddWidths(int start, int first, int last) const
{
    return Add(start, first, last, WidthsOf(store_));
}

// No overflow: there are less than 2^15 lines of less than 2^15 pixels.
i32 LineSums::TotalWidth(int first, int last) const
{
    i32 sum = 0;
    for (int line = first; line <= last; ++line)
        sum += store_.WidthOf(line);
    return sum;
}

i16 LineSums::RoomAfterRows(int room, int first, int last) const
{
    return RoomAfter(room, first, last, HeightsOf(store_));
}

i16 LineSums::RoomAfterCols(int room, int first, int last) const
{
    return RoomAfter(room, first, last, WidthsOf(store_));
}

LineSums::Found LineSums::RowBeyond(int position, int edge, int first, int last) const
{
    return Beyond(position, edge, first, last, HeightsOf(store_));
}

LineSums::Found LineSums::ColBeyond(int position, int edge, int first, int last) const
{
    return Beyond(position, edge, first, last, WidthsOf(store_));
}

} // namespace vornix
