#include "foreign_keys.h"

#include "database_rows.h"
#include "value_text.h"

#include "vornix/sqlite/database.h"

#include <optional>

namespace vornix::viewer {

namespace {

constexpr std::size_t MostKeys = 1000;

// A key of one column.
struct Reference {
    std::string column;
    std::string otherTable;
    std::string otherColumn; // empty for the primary key
};

std::string TextAt(const sqlite::Statement& row, int column)
{
    return std::string(row.Bytes(column));
}

std::vector<Reference> ReferencesOf(const sqlite::Database& database, const std::string& table)
{
    sqlite::Statement list = database.Prepare("SELECT \"from\", \"table\", \"to\" FROM pragma_foreign_key_list(?) "
                                              "GROUP BY id HAVING count(*) = 1 ORDER BY id");
    list.Bind(1, table);
    std::vector<Reference> references;
    while (list.Next())
        references.push_back({ TextAt(list, 0), TextAt(list, 1), TextAt(list, 2) });
    return references;
}

// Empty unless it is one column.
std::string PrimaryKeyOf(const sqlite::Database& database, const std::string& table)
{
    sqlite::Statement columns = database.Prepare("SELECT name FROM pragma_table_info(?) WHERE pk > 0");
    columns.Bind(1, table);
    const std::string name = columns.Next() ? TextAt(columns, 0) : std::string();
    return columns.Next() ? std::string() : name;
}

bool MayBeNull(const sqlite::Database& database, const std::string& table, const std::string& column)
{
    sqlite::Statement columns = database.Prepare(
        "SELECT 1 FROM pragma_table_xinfo(?) WHERE name = ? COLLATE NOCASE AND \"notnull\" = 0 AND pk = 0");
    columns.Bind(1, table);
    columns.Bind(2, column);
    return columns.Next();
}

// Nothing where there are too many, or one that no text says all of.
std::optional<std::vector<std::u16string>> KeysIn(
    const sqlite::Database& database, const std::string& table, const std::string& column)
{
    const std::string name = sqlite::QuotedName(column);
    sqlite::Statement rows = database.Prepare("SELECT " + name + " FROM " + sqlite::QuotedName(table) + " WHERE " + name
        + " IS NOT NULL ORDER BY 1 LIMIT " + std::to_string(MostKeys + 1));
    std::vector<std::u16string> keys;
    while (rows.Next()) {
        if (!IsPlainValue(rows, 0) || keys.size() == MostKeys)
            return {};
        keys.push_back(TextOfValue(rows, 0));
        if (keys.back().empty())
            return {};
    }
    return keys;
}

std::optional<std::vector<std::u16string>> ListFor(
    const sqlite::Database& database, const std::string& table, const Reference& reference)
{
    const std::string column
        = reference.otherColumn.empty() ? PrimaryKeyOf(database, reference.otherTable) : reference.otherColumn;
    if (column.empty())
        return {};
    auto keys = KeysIn(database, reference.otherTable, column);
    if (!keys || keys->empty())
        return {};
    if (MayBeNull(database, table, reference.column))
        keys->insert(keys->begin(), std::u16string());
    return keys;
}

} // namespace

ForeignKeys ReadForeignKeys(const sqlite::Database& database, const sqlite::TableLayout& layout)
{
    ForeignKeys keys;
    try {
        for (const Reference& reference : ReferencesOf(database, layout.name)) {
            for (std::size_t column = 0; column < layout.columns.size(); ++column) {
                if (layout.columns[column].name != reference.column)
                    continue;
                if (auto list = ListFor(database, layout.name, reference))
                    keys.emplace(static_cast<int>(column), std::move(*list));
            }
        }
    } catch (const sqlite::Error&) {
        // A list is a help; without one the values are typed.
    }
    return keys;
}

} // namespace vornix::viewer
