#include "vornix/sqlite/table_layout.h"

#include "names.h"
#include "vornix/sqlite/database.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace vornix::sqlite {

namespace {

std::string TextAt(const Statement& row, int column)
{
    return std::string(row.Bytes(column));
}

// By the rules of the engine: no type, or one with BLOB in it and nothing of a number or text.
bool TakesAnyType(std::string type, bool isStrict)
{
    std::transform(type.begin(), type.end(), type.begin(), [](unsigned char c) { return std::toupper(c); });
    const auto has = [&](std::string_view part) { return type.find(part) != std::string::npos; };
    if (isStrict && type == "ANY")
        return true;
    if (has("INT") || has("CHAR") || has("CLOB") || has("TEXT"))
        return false;
    return type.empty() || has("BLOB");
}

std::vector<std::string> KeyOf(const TableLayout& layout, bool hasRowId, const std::map<int, std::string>& primaryKey)
{
    const auto isColumn = [&](std::string_view name) {
        return std::any_of(layout.columns.begin(), layout.columns.end(),
            [&](const ColumnLayout& column) { return SameName(column.name, name); });
    };
    if (layout.kind != "table")
        return {};
    for (const char* name : { "rowid", "_rowid_", "oid" }) {
        if (hasRowId && !isColumn(name))
            return { name };
    }
    std::vector<std::string> key;
    for (const auto& [place, name] : primaryKey)
        key.push_back(name);
    return key;
}

} // namespace

TableLayout LayoutOf(const Database& database, std::string_view name)
{
    TableLayout layout;
    layout.name = name;
    Statement list
        = database.Prepare("SELECT type, wr, strict FROM pragma_table_list WHERE schema = 'main' AND name = ?");
    list.Bind(1, std::string(name));
    if (!list.Next())
        throw Error(ErrorKind::Sql, "the database has no table or view named " + layout.name);
    layout.kind = TextAt(list, 0);
    const bool hasRowId = list.Integer(1) == 0;
    const bool isStrict = list.Integer(2) != 0;

    // Columns that SELECT * gives: hidden is 0, or 2 and 3 of computed ones.
    Statement columns = database.Prepare("SELECT name, type, pk, hidden FROM pragma_table_xinfo(?) WHERE hidden <> 1");
    columns.Bind(1, std::string(name));
    std::map<int, std::string> primaryKey;
    while (columns.Next()) {
        layout.columns.push_back(
            { TextAt(columns, 0), columns.Integer(3) != 0, TakesAnyType(TextAt(columns, 1), isStrict) });
        if (const auto place = static_cast<int>(columns.Integer(2)); place > 0)
            primaryKey.emplace(place, TextAt(columns, 0));
    }
    layout.key = KeyOf(layout, hasRowId, primaryKey);
    return layout;
}

} // namespace vornix::sqlite
