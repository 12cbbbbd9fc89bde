// Merged cells. Nothing is kept beside the cells: a parent carries the size, its children the way back to it.
#pragma once

#include "model/grid_store.h"

namespace vornix {

struct CellIndex {
    int row = 0;
    int col = 0;
    friend bool operator==(const CellIndex&, const CellIndex&) = default;
};

class Spans {
public:
    explicit Spans(GridStore& store)
        : store_(store)
    {
    }

    // Stores the span in the cell, removing older spans it touches. A span that would leave the store changes nothing;
    // one whose place plus size leaves 16 bits is error 6. `force` writes the links only.
    void SetColSpan(int row, int col, i16 span, bool force = false);
    void SetRowSpan(int row, int col, i16 span, bool force = false);
    void RemoveSpan(int row, int col);

    // The parent of a cell, or the cell itself.
    CellIndex ParentOf(int row, int col) const;

private:
    GridStore& store_;
};

} // namespace vornix
