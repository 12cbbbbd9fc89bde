// Where the view stands in the table: the first scrolling row and column, and the last whole ones of the latest paint.
// Internal indices. The bars that move it come on top of this.
#pragma once

#include "model/grid_store.h"

namespace vornix {

class ScrollModel {
public:
    explicit ScrollModel(const GridStore& store)
        : store_(store)
    {
    }

    int FirstRow() const { return firstRow_; }
    int FirstCol() const { return firstCol_; }
    int LastRow() const { return lastRow_; }
    int LastCol() const { return lastCol_; }
    void SetFirstRow(int row) { firstRow_ = row; }
    void SetFirstCol(int col) { firstCol_ = col; }
    // Outputs of the paint walk.
    void SetLastRow(int row) { lastRow_ = row; }
    void SetLastCol(int col) { lastCol_ = col; }

    // Brings a first row or column that the store no longer has back to the last real one, or to the first that scrolls,
    // and a last visible one back to the filler.
    void ClampVisible();

private:
    const GridStore& store_;
    int firstRow_ = 0;
    int firstCol_ = 0;
    int lastRow_ = 0;
    int lastCol_ = 0;
};

} // namespace vornix
