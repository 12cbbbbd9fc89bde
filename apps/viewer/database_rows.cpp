#include "database_rows.h"

#include "unicode.h"

#include "vornix/sqlite/database.h"

#include <algorithm>
#include <cstring>

namespace vornix::viewer {

namespace {

template <typename Number> void AddNumber(Fingerprint& print, Number number)
{
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    print.Add({ bytes, sizeof bytes });
}

void AddValue(Fingerprint& print, const sqlite::Statement& statement, int column)
{
    const sqlite::ValueType type = statement.Type(column);
    AddNumber(print, static_cast<std::uint64_t>(type));
    if (type == sqlite::ValueType::Integer) {
        AddNumber(print, statement.Integer(column));
    } else if (type == sqlite::ValueType::Real) {
        AddNumber(print, statement.Real(column));
    } else {
        const std::string_view bytes = statement.Bytes(column);
        AddNumber(print, static_cast<std::uint64_t>(bytes.size()));
        print.Add(bytes);
    }
}

// "a", "b" for a and b.
std::string List(const std::vector<std::string>& names)
{
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + sqlite::QuotedName(name);
    return list;
}

} // namespace

std::string DatabaseRows::Columns() const
{
    std::vector<std::string> names = layout_.key;
    for (const sqlite::ColumnLayout& column : layout_.columns)
        names.push_back(column.name);
    return List(names);
}

std::string DatabaseRows::WhereKey() const
{
    std::string condition;
    for (const std::string& name : layout_.key)
        condition += (condition.empty() ? " WHERE " : " AND ") + sqlite::QuotedName(name) + " = ?";
    return condition;
}

std::string DatabaseRows::SelectAll() const
{
    return "SELECT " + Columns() + " FROM " + sqlite::QuotedName(layout_.name);
}

std::string DatabaseRows::SelectOne() const
{
    return SelectAll() + WhereKey();
}

std::string DatabaseRows::Update(const std::vector<int>& columns) const
{
    std::string assignments;
    for (const int column : columns) {
        const std::string& name = layout_.columns[static_cast<std::size_t>(column)].name;
        assignments += (assignments.empty() ? " SET " : ", ") + sqlite::QuotedName(name) + " = ?";
    }
    return "UPDATE OR ABORT " + sqlite::QuotedName(layout_.name) + assignments + WhereKey() + " RETURNING "
        + List(layout_.key);
}

std::string DatabaseRows::Insert(const std::vector<int>& columns) const
{
    std::vector<std::string> names;
    std::string places;
    for (const int column : columns) {
        names.push_back(layout_.columns[static_cast<std::size_t>(column)].name);
        places += places.empty() ? "?" : ", ?";
    }
    const std::string values = columns.empty() ? " DEFAULT VALUES" : " (" + List(names) + ") VALUES (" + places + ")";
    return "INSERT OR ABORT INTO " + sqlite::QuotedName(layout_.name) + values + " RETURNING " + List(layout_.key);
}

std::string DatabaseRows::Delete() const
{
    return "DELETE FROM " + sqlite::QuotedName(layout_.name) + WhereKey();
}

DatabaseRow DatabaseRows::Read(const sqlite::Statement& statement) const
{
    DatabaseRow row;
    for (int column = 0; column < KeyLength(); ++column)
        row.key.push_back(statement.ValueOf(column));
    Fingerprint print;
    for (int column = KeyLength(); column < statement.ColumnCount(); ++column)
        AddValue(print, statement, column);
    row.print = print.Value();
    return row;
}

bool DatabaseRows::HasKey(int row) const
{
    const std::vector<sqlite::Value>& key = Row(row).key;
    return !key.empty() && std::none_of(key.begin(), key.end(), [](const sqlite::Value& value) {
        return std::holds_alternative<std::monostate>(value);
    });
}

void DatabaseRows::Replace(int row, DatabaseRow read)
{
    if (row >= Count())
        rows_.resize(static_cast<std::size_t>(row) + 1);
    rows_[static_cast<std::size_t>(row)] = std::move(read);
}

void DatabaseRows::SetLocked(int row, int column, bool isLocked)
{
    if (isLocked)
        locked_.emplace(row, column);
    else
        locked_.erase({ row, column });
}

bool IsPlainValue(const sqlite::Statement& statement, int column)
{
    switch (statement.Type(column)) {
    case sqlite::ValueType::Blob:
        return false;
    case sqlite::ValueType::Text: {
        const std::string_view bytes = statement.Bytes(column);
        std::u16string text;
        return bytes.find('\0') == std::string_view::npos && AppendUtf8(bytes, text) == bytes.size();
    }
    default:
        return true;
    }
}

} // namespace vornix::viewer
