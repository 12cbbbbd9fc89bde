// The table in a window.
#pragma once

#include "document.h"
#include "options.h"
#include "table.h"

#include <functional>

namespace vornix::viewer {

// Runs until the window is closed; gives the program's exit status. When the display cannot be reached, the program
// ends with the status that `withoutDisplay` gives.
int ShowWindow(const Table& table, const ViewerOptions& options, const std::function<int()>& withoutDisplay);

// The same with cells that can be changed and saved.
int ShowWindow(Document& document, const ViewerOptions& options, const std::function<int()>& withoutDisplay);

} // namespace vornix::viewer
