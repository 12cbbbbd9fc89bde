// From a file's name to a table.
#pragma once

#include "foreign_keys.h"
#include "loading.h"
#include "options.h"
#include "saver.h"
#include "table.h"

#include <memory>
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

// A table and the way back to where it came from.
struct ChangeableSource {
    std::unique_ptr<Table> table; // at one address, which the saver refers to
    std::unique_ptr<Saver> saver;
    ForeignKeys keys = {};
};

// The same for changing cells. What cannot be changed opens all the same, and the saver says why. A query is an error.
ChangeableSource OpenForChanging(
    const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress);

// The tables and views of a database, or the one entry that a text file is.
std::vector<SourceEntry> ListSource(const ViewerOptions& options);

} // namespace vornix::viewer
