// What becomes of merged cells when lines come in between them or are taken away. Internal indices.
#pragma once

#include "model/spans.h"

#include <vector>

namespace vornix {

class SpanEdits {
public:
    explicit SpanEdits(GridStore& store)
        : store_(store)
    {
    }

    // `count` plain lines have been inserted at `position`: a span around them grows over them.
    void GrowOverRows(int position, int count);
    void GrowOverCols(int position, int count);

    // Lines position..position + count - 1, real ones, are about to go. A span that begins in them and goes on behind
    // them has the rest under a parent of its own then; one that reaches in from before is cut, or, if it goes on
    // behind them, is given back, to be closed once they are gone.
    std::vector<CellIndex> CutRows(int position, int count);
    std::vector<CellIndex> CutCols(int position, int count);
    void CloseOverRows(const std::vector<CellIndex>& parents, int count);
    void CloseOverCols(const std::vector<CellIndex>& parents, int count);

private:
    void GrowOver(const SpanDirection& along, int position, int count);
    std::vector<CellIndex> Cut(const SpanDirection& along, int position, int count);
    std::vector<CellIndex> CutThoseFromBefore(const SpanDirection& along, int position, int count);
    void GiveTailsParents(const SpanDirection& along, int position, int count);
    void CloseOver(const SpanDirection& along, const std::vector<CellIndex>& parents, int count);

    // Of a parent: the cells it covers, and the place behind the last of them.
    int Length(const SpanDirection& along, CellIndex parent) const;
    int LengthAcross(const SpanDirection& along, CellIndex parent) const;
    int End(const SpanDirection& along, CellIndex parent) const;
    // Stores another length, as far as the store goes, and the way to the parent in all cells of the rectangle.
    void Rebuild(const SpanDirection& along, CellIndex parent, int length);

    GridStore& store_;
};

} // namespace vornix
