#include "sqlite_saver.h"

#include "cell_content.h"
#include "unicode.h"
#include "value_text.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/transaction.h"

#include <charconv>
#include <cmath>

namespace vornix::viewer {

namespace {

// As the row itself shows it.
std::string NameOf(int row)
{
    return "row " + std::to_string(row + 1);
}

// An integer where it is one that fits, any other finite number, or else the text.
sqlite::Value NumberOrText(const std::string& text)
{
    const char* const end = text.data() + text.size();
    std::int64_t integer = 0;
    if (const auto result = std::from_chars(text.data(), end, integer); result.ec == std::errc() && result.ptr == end)
        return integer;
    double real = 0;
    const auto result = std::from_chars(text.data(), end, real);
    if (result.ec == std::errc() && result.ptr == end && std::isfinite(real))
        return real;
    return text;
}

bool IsNumber(sqlite::ValueType type)
{
    return type == sqlite::ValueType::Integer || type == sqlite::ValueType::Real;
}

void BindAll(sqlite::Statement& statement, int parameter, const std::vector<sqlite::Value>& values)
{
    for (const sqlite::Value& value : values)
        statement.Bind(parameter++, value);
}

} // namespace

SqliteSaver::SqliteSaver(std::string path, const Table& table, DatabaseRows rows,
    std::optional<std::string> whyReadOnly, std::set<int> references)
    : path_(std::move(path))
    , table_(table)
    , rows_(std::move(rows))
    , whyReadOnly_(std::move(whyReadOnly))
    , references_(std::move(references))
{
}

bool SqliteSaver::CanChange(int row, int column) const
{
    return !whyReadOnly_ && !rows_.Layout().columns[static_cast<std::size_t>(column)].isComputed
        && !rows_.IsLocked(row, column);
}

std::vector<CellText> SqliteSaver::Save(const Edits& edits)
{
    try {
        sqlite::Database database(path_, sqlite::Access::Write);
        sqlite::Transaction transaction(database);
        // All rows are looked at before the first is changed, since that may change others by itself.
        std::map<int, Types> types = RequireUnchanged(database, edits);
        std::map<int, std::vector<sqlite::Value>> keys;
        for (const auto& [row, cells] : edits.Rows())
            keys[row] = Update(database, row, cells, types[row]);
        std::vector<ReadRow> saved;
        for (const auto& [row, key] : keys)
            saved.push_back(Read(database, row, key));
        transaction.Commit();
        return TakeOver(std::move(saved), edits);
    } catch (const sqlite::Error& error) {
        throw SaveError(error.what());
    }
}

std::map<int, SqliteSaver::Types> SqliteSaver::RequireUnchanged(
    const sqlite::Database& database, const Edits& edits) const
{
    std::map<int, Types> types;
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    for (const auto& [row, cells] : edits.Rows()) {
        select.Reset();
        BindAll(select, 1, rows_.Row(row).key);
        if (!select.Next())
            throw SaveError(NameOf(row) + ": another program has removed it since it was read");
        if (rows_.Read(select).print != rows_.Row(row).print)
            throw SaveError(NameOf(row) + ": another program has changed it since it was read");
        for (const auto& [column, text] : cells)
            types[row][column] = select.Type(rows_.KeyLength() + column);
    }
    return types;
}

// Gives the row's key, which may be what was changed.
std::vector<sqlite::Value> SqliteSaver::Update(
    const sqlite::Database& database, int row, const Edits::RowEdits& cells, const Types& types) const
{
    std::vector<int> columns;
    std::vector<sqlite::Value> values;
    for (const auto& [column, text] : cells) {
        columns.push_back(column);
        values.push_back(ValueFor(column, text, types.at(column)));
    }
    try {
        sqlite::Statement update = database.Prepare(rows_.Update(columns));
        BindAll(update, 1, values);
        BindAll(update, static_cast<int>(values.size()) + 1, rows_.Row(row).key);
        if (!update.Next())
            throw SaveError(NameOf(row) + ": the database does not take the change");
        std::vector<sqlite::Value> key;
        for (int column = 0; column < update.ColumnCount(); ++column)
            key.push_back(update.ValueOf(column));
        while (update.Next())
            continue;
        return key;
    } catch (const sqlite::Error& error) {
        throw SaveError(NameOf(row) + ": " + error.what());
    }
}

SqliteSaver::ReadRow SqliteSaver::Read(
    const sqlite::Database& database, int row, const std::vector<sqlite::Value>& key) const
{
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    BindAll(select, 1, key);
    if (!select.Next())
        throw SaveError(NameOf(row) + ": the database removes it when it is changed");
    ReadRow read { row, rows_.Read(select), {}, {} };
    for (int column = 0; column < table_.ColumnCount(); ++column) {
        read.isLocked.push_back(!IsPlainValue(select, rows_.KeyLength() + column));
        read.texts.push_back(ShownText(select, column));
    }
    return read;
}

sqlite::Value SqliteSaver::ValueFor(int column, std::u16string_view text, sqlite::ValueType oldType) const
{
    const Column& described = table_.Columns()[static_cast<std::size_t>(column)];
    const bool isText = described.kind == ColumnKind::Text && !IsNumber(oldType) && !references_.contains(column);
    if (text.empty())
        return isText ? sqlite::Value(std::string()) : sqlite::Value();
    if (described.kind == ColumnKind::Boolean && (text == u"-1" || text == u"0"))
        text = text == u"0" ? described.falseText : described.trueText;
    const bool isOfNumbers = described.kind == ColumnKind::Integer || described.kind == ColumnKind::Real
        || described.kind == ColumnKind::Money || IsNumber(oldType);
    const bool takesAnyType = rows_.Layout().columns[static_cast<std::size_t>(column)].takesAnyType;
    return takesAnyType && isOfNumbers ? NumberOrText(ToUtf8(text)) : sqlite::Value(ToUtf8(text));
}

// As the table has it.
std::u16string SqliteSaver::ShownText(const sqlite::Statement& statement, int column) const
{
    std::u16string text = TextOfValue(statement, rows_.KeyLength() + column);
    if (table_.Columns()[static_cast<std::size_t>(column)].kind != ColumnKind::Boolean)
        return text;
    const auto value = TruthValueOf(text);
    return value ? (*value ? u"-1" : u"0") : text;
}

std::vector<CellText> SqliteSaver::TakeOver(std::vector<ReadRow> rows, const Edits& edits)
{
    std::vector<CellText> others;
    for (ReadRow& read : rows) {
        rows_.Replace(read.row, std::move(read.saved));
        for (int column = 0; column < table_.ColumnCount(); ++column) {
            const auto index = static_cast<std::size_t>(column);
            rows_.SetLocked(read.row, column, read.isLocked[index]);
            if (read.texts[index] != edits.Text(read.row, column))
                others.push_back({ read.row, column, std::move(read.texts[index]) });
        }
    }
    return others;
}

} // namespace vornix::viewer
