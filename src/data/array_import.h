// The records of an array as rows of the table.
#pragma once

#include "model/grid_store.h"
#include "model/spans.h"
#include "vornix/automation.h"

namespace vornix {

struct ArrayShape {
    int columns = 0;
    int records = 0;
    bool IsEmpty() const { return columns == 0 || records == 0; }
};

// Error 9 when the columns have records of different number, 6 for a number beyond 32 bits.
ArrayShape ShapeOf(const VariantArray& array);

enum class NullElements { Skip, Convert };

// Record r of column c becomes the text of cell (firstRow + r, firstCol + c), record by record; nothing else of the
// cells changes. Null elements leave their cell alone, or raise error 94. An error leaves what is written by then; 9 when
// the table or the array has less than `shape`.
void WriteArray(GridStore& store, const VariantArray& array, ArrayShape shape, CellIndex first, NullElements nulls,
    const Locale& locale);

} // namespace vornix
