// How a table looks in the grid: header, row numbers, alignment, check boxes, column widths.
#pragma once

#include "loading.h"
#include "table.h"
#include "vornix/platform/device.h"
#include "vornix/platform/system_colors.h"
#include "vornix/vornix.h"

namespace vornix::viewer {

// Rows of the grid that are not data: the caption and the header.
inline constexpr int HeaderLines = HeaderRows;

// Fills the grid and gives it its looks, which are made from the container's colours. Texts are measured on `device`,
// which has the grid's scale.
void PresentTable(Vornix& grid, Device& device, const SystemColors& colors, const Table& table);

// One line for the person who looks: what is shown, and how many of how many rows when some are left out.
std::string StatusLine(const Table& table);
std::string StatusLine(int shownRows, std::uint64_t totalRows, int columns);

} // namespace vornix::viewer
