// Hidden rows and columns, and the chain of visible rows.
#pragma once

#include "model/grid_store.h"

namespace vornix {

class HiddenLines {
public:
    explicit HiddenLines(GridStore& store)
        : store_(store)
    {
    }

    // Hide or show one line that is not in that state yet; false when it was.
    bool HideRow(int row);
    bool ShowRow(int row);
    bool HideCol(int col);
    bool ShowCol(int col);

    // To be called with the height of a row before and after a change, once the height has been stored or is about to
    // be: a change to 0 takes the row out of the chain, one from 0 puts it in.
    void UpdateChain(int row, int heightBefore, int heightAfter);

private:
    GridStore& store_;
};

} // namespace vornix
