// Moves one column to a place further left: its record, its cells, and the spans it enters or leaves. Internal indices.
#pragma once

#include "model/grid_store.h"
#include "model/spans.h"

#include <vector>

namespace vornix {

class ColumnMove {
public:
    ColumnMove(GridStore& store, Spans& spans)
        : store_(store)
        , spans_(spans)
    {
    }

    // `to` is below `from`. Columns in between go one place to the right.
    void MoveLeft(int from, int to);

private:
    // A merged rectangle as it will be after the move.
    struct MovedSpan {
        CellIndex parent;
        i16 rows;
        i16 cols;
    };
    // Takes apart the spans that the move cuts or enters, and gives back what becomes of them.
    std::vector<MovedSpan> TakeSpans(int from, int to);
    void AddResult(std::vector<MovedSpan>& result, const MovedSpan& old, int from, int to) const;
    void RotateRecords(int from, int to);
    void RotateCells(int row, int from, int to);

    GridStore& store_;
    Spans& spans_;
};

} // namespace vornix
