// The table as a picture, without a screen.
#pragma once

#include "options.h"
#include "table.h"

#include <string>

namespace vornix::viewer {

// Writes a PNG of the size and scale that the options name. Throws std::runtime_error with a line for the reader.
void SavePicture(const Table& table, const ViewerOptions& options, const std::string& path);

} // namespace vornix::viewer
