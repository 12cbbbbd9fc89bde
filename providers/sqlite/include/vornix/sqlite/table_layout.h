// What a table's columns are, and how its rows are told apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vornix::sqlite {

class Database;

struct ColumnLayout {
    std::string name;
    bool isComputed = false; // from the other columns; cannot be written
    bool takesAnyType
        = false; // stores what it is given as it is; other columns make numbers of texts, or texts of numbers
};

struct TableLayout {
    std::string name;
    std::string kind; // "table", "view", "virtual" or "shadow"
    std::vector<ColumnLayout> columns;
    // What identifies a row: the row id under a name that no column takes, else the columns of the primary key. Empty
    // where there is neither, as in a view.
    std::vector<std::string> key;
};

// The name is that of a table or view, as Database::FindTable gives it. Raises Error.
TableLayout LayoutOf(const Database& database, std::string_view name);

} // namespace vornix::sqlite
