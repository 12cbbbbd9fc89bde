// Where an arrow key leads from a cell, over hidden lines and spans. Internal indices; a cell outside the store is
// error 9.
#pragma once

#include "model/hidden_lines.h"
#include "model/spans.h"

namespace vornix {

class CellStep {
public:
    CellStep(const GridStore& store, const Spans& spans, const HiddenLines& hidden)
        : store_(store)
        , spans_(spans)
        , hidden_(hidden)
    {
    }

    struct Result {
        CellIndex cell;
        // An arrow moves, even where the edge of the table leaves the cell as it is; other keys do not.
        bool moved = false;
    };
    // From a cell, in the body or fixed; what comes out is no child of a span, unless it is the cell itself.
    Result From(CellIndex cell, int key) const;

private:
    CellIndex Above(CellIndex cell) const;
    CellIndex Below(CellIndex cell) const;
    CellIndex LeftOf(CellIndex cell) const;
    CellIndex RightOf(CellIndex cell) const;
    CellIndex InRow(int row, CellIndex cell, CellIndex parent) const;

    const GridStore& store_;
    const Spans& spans_;
    const HiddenLines& hidden_;
};

} // namespace vornix
