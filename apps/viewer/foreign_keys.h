// The keys that the columns of a database table may hold.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace vornix::sqlite {
class Database;
struct TableLayout;
} // namespace vornix::sqlite

namespace vornix::viewer {

// By column; sorted as the database sorts them, behind an empty text where the column may be null.
using ForeignKeys = std::map<int, std::vector<std::u16string>>;

// Of the columns that refer to one column of a table with at most a thousand rows, all of which have texts to tell them by.
// Nothing is raised: a table that cannot be read gives no keys.
ForeignKeys ReadForeignKeys(const sqlite::Database& database, const sqlite::TableLayout& layout);

} // namespace vornix::viewer
