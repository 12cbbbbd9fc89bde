// The step that puts a table before somebody's eyes.
#pragma once

#include "document.h"
#include "options.h"
#include "table.h"

namespace vornix::viewer {

// A window, or the picture that the options ask for. The result is the program's exit status; what went wrong
// has been said on standard error.
int ShowTable(const Table& table, const ViewerOptions& options);

// A window in which the document can be changed and saved; without a display there is none, which is a failure.
int EditDocument(Document& document, const ViewerOptions& options);

} // namespace vornix::viewer
