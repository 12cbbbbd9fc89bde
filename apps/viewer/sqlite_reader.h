// Reads a table, a view or a query of a database.
#pragma once

#include "loading.h"
#include "table.h"

#include <string>
#include <vector>

namespace vornix::sqlite {
class Database;
}

namespace vornix::viewer {

class DatabaseRows;

// All raise LoadError, with the database's own trouble in its words, and stop reading rows at the limits; the total is
// counted all the same. Blobs read as <blob, N bytes>. Money has two decimals and groups, other decimals of a column
// are equally long as long as four are enough.
Table ReadDatabaseTable(
    sqlite::Database& database, const std::string& name, const LoadLimits& limits, const ProgressFunction& progress);
Table ReadDatabaseQuery(
    sqlite::Database& database, const std::string& sql, const LoadLimits& limits, const ProgressFunction& progress);

// The table of `rows`, which has a key and notes each row. Numbers read as a person would type them: without groups, with
// the decimals that they have.
Table ReadChangeableTable(
    sqlite::Database& database, DatabaseRows& rows, const LoadLimits& limits, const ProgressFunction& progress);

} // namespace vornix::viewer
