// Writes changed cells into a table of a database.
#pragma once

#include "database_rows.h"
#include "saver.h"

#include <set>
#include <string>
#include <vector>

namespace vornix::sqlite {
class Database;
}

namespace vornix::viewer {

// All changes are one transaction. A row that is gone, or of which anything was changed since it was read, is an error
// that names it; so is one that the change of another one changes. What the database changes by itself is read again. A
// text that could not be read again is an error. A column makes of a text what its type says, as for any program that writes a text; where it takes
// anything, a cell that held a number, or stands in a column of numbers, gets a number where the text is one. Without a
// text a cell of a text column holds an empty one, and any other a null, as does one that refers to another table.
class SqliteSaver final : public Saver {
public:
    // The table is what ReadChangeableTable has made of `rows`; it must outlive this. A reason not to change anything
    // that was found when opening comes with it, and the columns that hold keys of other tables.
    SqliteSaver(std::string path, const Table& table, DatabaseRows rows, std::optional<std::string> whyReadOnly,
        std::set<int> references = {});

    std::optional<std::string> WhyReadOnly() const override { return whyReadOnly_; }
    bool CanChange(int row, int column) const override;
    std::vector<CellText> Save(const Edits& edits) override;

private:
    // A changed row as the database has it then.
    struct ReadRow {
        int row = 0;
        DatabaseRow saved;
        std::vector<std::u16string> texts;
        std::vector<bool> isLocked;
    };
    using Types = std::map<int, sqlite::ValueType>; // by column
    using Keys = std::map<int, std::vector<sqlite::Value>>; // by row

    void RequireShort(int row, int column, std::u16string_view text) const;
    void RequireShort(const Edits& edits) const;
    std::map<int, Types> RequireUnchanged(const sqlite::Database& database, const Edits& edits) const;
    Keys UpdateAll(const sqlite::Database& database, const Edits& edits, std::map<int, Types> types) const;
    void RequireNotChangedHere(sqlite::Statement& select, int row) const;
    std::vector<sqlite::Value> Update(
        const sqlite::Database& database, int row, const Edits::RowEdits& cells, const Types& types) const;
    ReadRow Read(const sqlite::Database& database, int row, const std::vector<sqlite::Value>& key) const;
    sqlite::Value ValueFor(int column, std::u16string_view text, sqlite::ValueType oldType) const;
    std::u16string ShownText(const sqlite::Statement& statement, int column) const;
    // Of the rows that are not among the edits, those that are not as they were.
    std::vector<int> OtherChanges(const sqlite::Database& database, const Edits& edits) const;
    std::vector<CellText> TakeOver(DatabaseRows& rows, std::vector<ReadRow> saved, const Edits& edits) const;

    std::string path_;
    const Table& table_;
    DatabaseRows rows_;
    std::optional<std::string> whyReadOnly_;
    std::set<int> references_;
};

} // namespace vornix::viewer
