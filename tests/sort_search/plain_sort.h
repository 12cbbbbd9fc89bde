// The sort as it is described, word for word on lists of texts: nothing is parsed ahead, nothing is remembered.
#pragma once

#include "model/grid_store.h"

#include <span>
#include <vector>

namespace vornix {

// Puts the rows that are not fixed in order; cells, heights and all move. Columns are internal, the most significant
// first. Gives where each row was before, fixed ones too.
std::vector<int> PlainSort(GridStore& store, std::span<const i16> cols, const Locale& locale = BuiltinLocale());

} // namespace vornix
