// Sums over the sizes of lines, the one place that adds them up; an index over the sizes would go behind this class.
// Internal indices. A line outside the store is error 9; the filler line counts as inside.
#pragma once

#include "model/grid_store.h"

namespace vornix {

class LineSums {
public:
    explicit LineSums(const GridStore& store)
        : store_(store)
    {
    }

    // `start` plus the sizes of lines first..last, nothing when last < first. Error 6 once the sum leaves 16 bits.
    i16 AddHeights(int start, int first, int last) const;
    i16 AddWidths(int start, int first, int last) const;

    // The widths of lines first..last together, which may be more than 16 bits hold.
    i32 TotalWidth(int first, int last) const;

    // `room` less the sizes of lines first..last, stopping behind the line that makes it negative. Error 6 as above.
    i16 RoomAfterRows(int room, int first, int last) const;
    i16 RoomAfterCols(int room, int first, int last) const;

    // The first of the lines first..last that ends beyond `position`, when line `first` begins at `edge`.
    // Without one `line` is NoIndex and `edge` the end of line `last`.
    struct Found {
        int line = NoIndex;
        int edge = 0;
    };
    Found RowBeyond(int position, int edge, int first, int last) const;
    Found ColBeyond(int position, int edge, int first, int last) const;

private:
    const GridStore& store_;
};

} // namespace vornix
