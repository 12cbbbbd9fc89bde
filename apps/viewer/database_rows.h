// How the rows of a database table are told apart, and what they were when they were read.
#pragma once

#include "fingerprint.h"

#include "vornix/sqlite/statement.h"
#include "vornix/sqlite/table_layout.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vornix::viewer {

// A row on its own: what identifies it, and a fingerprint of all its values.
struct DatabaseRow {
    std::vector<sqlite::Value> key;
    std::uint64_t print = 0;
};

// The statements that read and change rows give the key's columns first, then those of the table.
class DatabaseRows {
public:
    explicit DatabaseRows(sqlite::TableLayout layout)
        : layout_(std::move(layout))
    {
    }

    const sqlite::TableLayout& Layout() const { return layout_; }
    int KeyLength() const { return static_cast<int>(layout_.key.size()); }
    std::string SelectAll() const;
    // The parameters are the key's values.
    std::string SelectOne() const;
    // The parameters are the columns' new values, then those of the key; gives the key as it is then. Whatever the table
    // says, no other row is removed for it.
    std::string Update(const std::vector<int>& columns) const;
    // The parameters are the columns' values; the others get what the table gives them. Gives the new row's key. No other
    // row is removed for it.
    std::string Insert(const std::vector<int>& columns) const;
    // The parameters are the key's values.
    std::string Delete() const;

    // The row that the statement stands on, before any of its values was read as UTF-16.
    DatabaseRow Read(const sqlite::Statement& statement) const;

    // The rows count as the table's do; some are not in the database.
    int Count() const { return static_cast<int>(rows_.size()); }
    // False where a part of the key is null, by which a row cannot be found again, and of rows that are not there.
    bool HasKey(int row) const;
    const DatabaseRow& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    void Append(DatabaseRow row) { rows_.push_back(std::move(row)); }
    // Makes room for it where it is a new one.
    void Replace(int row, DatabaseRow read);
    bool IsThere(int row) const { return !Row(row).key.empty(); }
    void Remove(int row) { Replace(row, {}); }

    // A cell shows something other than its value: a blob, or bytes that are no text.
    bool IsLocked(int row, int column) const { return locked_.contains({ row, column }); }
    void SetLocked(int row, int column, bool isLocked);

private:
    std::string Columns() const;
    std::string WhereKey() const;

    sqlite::TableLayout layout_;
    std::vector<DatabaseRow> rows_;
    std::set<std::pair<int, int>> locked_;
};

// True when a cell's text says all of the value, so that it may be typed anew. To be asked before the value is read as
// UTF-16.
bool IsPlainValue(const sqlite::Statement& statement, int column);

} // namespace vornix::viewer
