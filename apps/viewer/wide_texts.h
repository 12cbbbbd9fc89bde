// Which texts of a column are worth measuring for its width.
#pragma once

#include "table.h"

#include <string_view>
#include <vector>

namespace vornix::viewer {

// About how wide the text is on one line, in fourteenths of the font's height: wide characters (ideographs, syllables,
// emoji) count more than letters, capitals more than small ones, combining marks nothing.
int EstimatedWidth(std::u16string_view text);

// The rows with the widest texts by that estimate, the widest first; at most `count`, each text once. Without texts
// there are none.
std::vector<int> WidestRows(const Table& table, int column, std::size_t count);

} // namespace vornix::viewer
