#include "sqlite_references.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/table_layout.h"

namespace vornix::viewer {

namespace {

// The foreign keys of the tables that changes of one can reach, and those that refer to them, column by column. Triggers
// reach all of them. A key without columns refers to the primary key; one to columns that are not there cannot be broken,
// as nothing can be written by it.
constexpr const char* ReferencesQuery = R"(
    WITH RECURSIVE
    keys(child, parent, id, place, child_column, parent_column, acts) AS MATERIALIZED (
        SELECT m.name, f."table", f.id, f.seq, f."from",
            (SELECT name FROM pragma_table_xinfo(f."table")
                WHERE CASE WHEN f."to" IS NULL THEN pk = f.seq + 1 ELSE name = f."to" COLLATE NOCASE END),
            f.on_update NOT IN ('NO ACTION', 'RESTRICT') OR f.on_delete NOT IN ('NO ACTION', 'RESTRICT')
        FROM sqlite_schema AS m JOIN pragma_foreign_key_list(m.name) AS f WHERE m.type = 'table'),
    reached(name) AS (
        SELECT ?1
        UNION SELECT name FROM sqlite_schema
            WHERE type = 'table' AND EXISTS (SELECT 1 FROM sqlite_schema WHERE type = 'trigger')
        UNION SELECT child FROM keys JOIN reached ON acts AND parent = name COLLATE NOCASE)
    SELECT child, parent, place, child_column, parent_column, child = ?1, parent = ?1 COLLATE NOCASE
    FROM keys
    WHERE EXISTS (SELECT 1 FROM reached WHERE name = child OR name = parent COLLATE NOCASE)
        AND NOT EXISTS (SELECT 1 FROM keys AS other
            WHERE other.child = keys.child AND other.id = keys.id AND other.parent_column IS NULL)
    ORDER BY child, id, place)";

std::string TextAt(const sqlite::Statement& row, int column)
{
    return std::string(row.Bytes(column));
}

SqliteKey ValuesOf(const sqlite::Statement& row, std::size_t begin, std::size_t end)
{
    SqliteKey values;
    for (std::size_t column = begin; column < end; ++column)
        values.push_back(row.ValueOf(static_cast<int>(column)));
    return values;
}

} // namespace

SqliteReferences::SqliteReferences(const sqlite::Database& database, const std::string& table)
    : database_(database)
{
    ReadReferences(table);
    ForEachBroken([this](Broken broken) { before_.insert(std::move(broken)); });
}

void SqliteReferences::ReadReferences(const std::string& table)
{
    sqlite::Statement row = database_.Prepare(ReferencesQuery);
    row.Bind(1, table);
    while (row.Next()) {
        if (row.Integer(2) == 0)
            references_.push_back({ TextAt(row, 0), TextAt(row, 1) });
        Reference& reference = references_.back();
        reference.fromColumns.push_back(TextAt(row, 3));
        reference.toColumns.push_back(TextAt(row, 4));
        reference.isOwn = row.Integer(5) != 0;
        if (row.Integer(6) != 0)
            reference.ownColumns.push_back(TextAt(row, 4));
    }
}

// Gives the key of each row that refers to nothing, and what it refers by. As in the check of a foreign key, the column
// that is referred to says how the values are compared: it stands first, and the other one is of no type.
std::string SqliteReferences::Query(const Reference& reference, std::size_t& keyLength) const
{
    const std::vector<std::string> key = sqlite::LayoutOf(database_, reference.from).key;
    keyLength = key.size();
    std::string columns;
    for (const std::string& name : key)
        columns += "c." + sqlite::QuotedName(name) + ", ";
    std::string join;
    std::string where = "p." + sqlite::QuotedName(reference.toColumns.front()) + " IS NULL";
    for (std::size_t place = 0; place < reference.fromColumns.size(); ++place) {
        const std::string column = "c." + sqlite::QuotedName(reference.fromColumns[place]);
        columns += (place > 0 ? ", " : "") + column;
        join += (place > 0 ? " AND p." : "p.") + sqlite::QuotedName(reference.toColumns[place]) + " = +" + column;
        where += " AND " + column + " IS NOT NULL";
    }
    return "SELECT " + columns + " FROM " + sqlite::QuotedName(reference.from) + " AS c LEFT JOIN "
        + sqlite::QuotedName(reference.to) + " AS p ON " + join + " WHERE " + where;
}

template <typename Take> void SqliteReferences::ForEachBroken(Take take) const
{
    for (std::size_t reference = 0; reference < references_.size(); ++reference) {
        std::size_t keyLength = 0;
        sqlite::Statement row = database_.Prepare(Query(references_[reference], keyLength));
        const auto end = static_cast<std::size_t>(row.ColumnCount());
        while (row.Next())
            take(Broken { static_cast<int>(reference), ValuesOf(row, 0, keyLength), ValuesOf(row, keyLength, end) });
    }
}

std::vector<SqliteReferences::Broken> SqliteReferences::Find(const std::map<SqliteKey, SqliteKey>& oldKeys) const
{
    std::vector<Broken> found;
    // From none on the database counts right.
    if (before_.empty() && !database_.HasBrokenReferences())
        return found;
    ForEachBroken([&](Broken broken) {
        Broken old = broken;
        if (const auto moved = oldKeys.find(broken.key); IsOwn(broken) && moved != oldKeys.end())
            old.key = moved->second;
        if (!before_.contains(old))
            found.push_back(std::move(broken));
    });
    return found;
}

} // namespace vornix::viewer
