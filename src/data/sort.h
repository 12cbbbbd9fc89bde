// Rows brought into the order of their keys.
#pragma once

#include "data/sort_keys.h"
#include "model/hidden_lines.h"
#include "model/spans.h"

namespace vornix {

// Sorts the rows that are not fixed by the values they have in the columns; each moves as a whole, with its height. The
// order of rows with equal values is that of Shell's sort with the gaps 1, 4, 13, 40, ... and no other. A span over
// several rows stays where they stay together, and goes where they part. The chain of visible rows follows.
// Error 9 for a column that is not there, 6 for 29524 rows and more; no row has moved then.
void SortRows(GridStore& store, Spans& spans, HiddenLines& hidden, std::span<const i16> cols, const Locale& locale);

} // namespace vornix
