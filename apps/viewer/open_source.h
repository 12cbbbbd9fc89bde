// From a file's name to a table.
#pragma once

#include "loading.h"
#include "options.h"
#include "table.h"

#include <string>
#include <vector>

namespace vornix::viewer {

struct SourceEntry {
    std::string name; // UTF-8
    std::string kind; // "table", "view" or "file"
};

// The name of the file to show, without its folder.
std::string FileName(const ViewerOptions& options);

// What the file holds decides whether it is read as a database or as text; a name that ends like a database's must be
// one. Without a table or query the first table or view is taken. Raises LoadError without the file's name.
Table OpenSource(const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress);

// The tables and views of a database, or the one entry that a text file is.
std::vector<SourceEntry> ListSource(const ViewerOptions& options);

} // namespace vornix::viewer
