// What the line below the table says: where the current cell is, and how much is selected.
#pragma once

#include "vornix/vornix.h"

#include <string>

namespace vornix::viewer {

// "price, row 12", by the title of the column and the number that the row shows; of a cell in the header "price,
// header", of a row number "Row 12". Empty without a current cell.
std::string CurrentCellText(const Vornix& grid);

// "3 rows selected", "2 columns selected", or "4 × 2 cells selected" with the rows first. Empty when nothing is selected
// but the current cell.
std::string SelectionText(Vornix& grid);

} // namespace vornix::viewer
