// A side table in which a host parks the look of cells.
#pragma once

#include "model/cell_format.h"

#include <vector>

namespace vornix {

struct VisualCell {
    CellFormat Format;
    i16 Row = 0; // internal indices, as they were
    i16 Col = 0;
};

class VisualCellStore {
public:
    VisualCellStore();
    // Grows to the index; error 9 for a negative one.
    void Store(int index, const VisualCell& cell);
    // Null above the last entry; error 9 for a negative index.
    const VisualCell* Find(int index) const;
    void Clear();

private:
    std::vector<VisualCell> entries_;
};

} // namespace vornix
