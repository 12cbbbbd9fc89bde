// What a person has selected in the grid, as copying and pasting see it.
#pragma once

#include "table.h"
#include "text_block.h"

#include "vornix/vornix.h"

#include <vector>

namespace vornix::viewer {

// The cells where these rows and these columns cross; headers are never among them.
struct SelectedCells {
    std::vector<i16> Rows;
    std::vector<i16> Cols;

    bool IsEmpty() const { return Rows.empty() || Cols.empty(); }
};

// Whole rows, whole columns or a rectangle, as far as the table goes; without a selection, the current cell.
SelectedCells SelectedCellsOf(Vornix& grid);

// Those that are selected as whole rows or in a rectangle; without any, the current one. None where that is in the header.
std::vector<i16> SelectedRowsOf(Vornix& grid);

// Their texts, with those of the columns for truth values.
TextBlock TextsOf(const Vornix& grid, const std::vector<Column>& columns, const SelectedCells& cells);

} // namespace vornix::viewer
