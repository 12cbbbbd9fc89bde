// The table in a window.
#pragma once

#include "options.h"
#include "table.h"

namespace vornix::viewer {

// Runs until the window is closed; gives the program's exit status.
int ShowWindow(const Table& table, const ViewerOptions& options);

} // namespace vornix::viewer
