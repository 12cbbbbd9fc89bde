// Writes changed cells and rows into a table of a database.
#pragma once

#include "database_rows.h"
#include "saver.h"
#include "sqlite_references.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace vornix::sqlite {
class Database;
}

namespace vornix::viewer {

class SqliteSteps;

// All changes are one transaction. A row that is gone, or of which anything was changed since it was read, is an error
// that names it; so is one that the change of another one changes. What the database changes by itself is read again. A
// text that could not be read again is an error. A column makes of a text what its type says, as for any program that
// writes a text; where it takes anything, a cell that held a number, or stands in a column of numbers, gets a number where
// the text is one. Without a text a cell of a text column holds an empty one, and any other a null, as does one that refers
// to another table.
//
// Rows are removed first and added last; of each kind, those that the database takes only behind others find their turn.
// Foreign keys count when all is done; what they refer to may be missing then where it was before. A new row's cells without
// a text get what the table gives them. A row that goes with a removed one is told as removed.
class SqliteSaver final : public Saver {
public:
    // The table is what ReadChangeableTable has made of `rows`; it must outlive this. A reason not to change anything
    // that was found when opening comes with it, and the columns that hold keys of other tables and have a list of them.
    SqliteSaver(std::string path, const Table& table, DatabaseRows rows, std::optional<std::string> whyReadOnly,
        std::set<int> keyColumns = {});

    std::optional<std::string> WhyReadOnly() const override { return whyReadOnly_; }
    bool CanChange(int row, int column) const override;
    bool CanRemove(int row) const override { return rows_.HasKey(row); }
    bool CanFill(int column) const override;
    SaveOutcome Save(const Changes& changes) override;

private:
    // A changed row as the database has it then.
    struct ReadRow {
        int row = 0;
        DatabaseRow saved;
        std::vector<std::u16string> texts;
        std::vector<bool> isLocked;
    };
    using Types = std::map<int, sqlite::ValueType>; // by column
    using Key = SqliteKey;
    using Keys = std::map<int, Key>; // by row

    void RequireShort(const Changes& changes, int row, int column, std::u16string_view text) const;
    void RequireShort(const Changes& changes, int row, const Edits::RowEdits& cells) const;
    Types RequireUnchanged(const Changes& changes, sqlite::Statement& select, int row) const;
    std::map<int, Types> RequireUnchanged(const sqlite::Database& database, const Changes& changes) const;
    void RemoveAll(const sqlite::Database& database, const Changes& changes, SqliteSteps& steps) const;
    Keys UpdateAll(const sqlite::Database& database, const Changes& changes, const std::map<int, Types>& types,
        SqliteSteps& steps) const;
    void AddAll(const sqlite::Database& database, const Changes& changes, Keys& keys, SqliteSteps& steps) const;
    // Of the foreign keys. `keys` are those of the changed and added rows.
    void RequireReferences(const SqliteReferences& references, const Keys& keys, const Changes& changes) const;
    int BreakingRow(const SqliteReferences& references, const SqliteReferences::Broken& broken, const Keys& keys,
        const Changes& changes) const;
    // Whether the row had these values when it was read.
    bool HasHad(int row, const std::vector<std::string>& columns, const std::vector<sqlite::Value>& values) const;
    void RequireNotChangedHere(const sqlite::Database& database, const Changes& changes, int row) const;
    Key Update(const sqlite::Database& database, const Changes& changes, int row, const Types& types) const;
    Key Add(const sqlite::Database& database, const Edits::RowEdits& cells) const;
    ReadRow Read(const sqlite::Database& database, const Changes& changes, int row, const Key& key) const;
    sqlite::Value ValueFor(int column, std::u16string_view text, sqlite::ValueType oldType) const;
    std::u16string ShownText(const sqlite::Statement& statement, int column) const;
    // Of the rows that were neither changed nor removed here, those that are not as they were, and those that are gone.
    struct OtherRows {
        std::vector<int> changed;
        std::vector<int> gone;
    };
    // One whose key is `taken` by a row that was changed or added is gone.
    OtherRows FindOtherRows(const sqlite::Database& database, const Changes& changes, const std::set<Key>& taken) const;
    SaveOutcome TakeOver(
        DatabaseRows& rows, std::vector<ReadRow> saved, std::vector<int> gone, const Changes& changes) const;

    std::string path_;
    const Table& table_;
    DatabaseRows rows_;
    std::optional<std::string> whyReadOnly_;
    std::set<int> keyColumns_; // with those that have had a list since
};

} // namespace vornix::viewer
