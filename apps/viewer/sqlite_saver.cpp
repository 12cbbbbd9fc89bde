#include "sqlite_saver.h"

#include "cell_content.h"
#include "loading.h"
#include "unicode.h"
#include "value_text.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/transaction.h"

#include <charconv>
#include <cmath>
#include <cstring>

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

// Of rows, by this connection: those of triggers and foreign keys with them.
std::int64_t CountChanges(const sqlite::Database& database)
{
    sqlite::Statement count = database.Prepare("SELECT total_changes()");
    return count.Next() ? count.Integer(0) : 0;
}

template <typename Number> std::string BytesOf(Number number)
{
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

struct Encoder {
    std::string operator()(std::monostate) const { return "-"; }
    std::string operator()(std::int64_t number) const { return "i" + BytesOf(number); }
    std::string operator()(double number) const { return "r" + BytesOf(number); }
    std::string operator()(const std::string& text) const { return "t" + BytesOf(text.size()) + text; }
    std::string operator()(const sqlite::Blob& blob) const { return "b" + BytesOf(blob.bytes.size()) + blob.bytes; }
};

void RequireDifferent(const std::map<int, std::vector<sqlite::Value>>& keys)
{
    std::set<std::string> known;
    for (const auto& [row, key] : keys) {
        std::string all;
        for (const sqlite::Value& value : key)
            all += std::visit(Encoder(), value);
        if (!known.insert(std::move(all)).second)
            throw SaveError(NameOf(row) + ": it would have the key of another changed row");
    }
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
        && !rows_.IsLocked(row, column) && rows_.HasKey(row);
}

std::vector<CellText> SqliteSaver::Save(const Edits& edits)
{
    RequireShort(edits);
    try {
        sqlite::Database database(path_, sqlite::Access::Write);
        sqlite::Transaction transaction(database);
        const std::int64_t changesBefore = CountChanges(database);
        const Keys keys = UpdateAll(database, edits, RequireUnchanged(database, edits));
        RequireDifferent(keys);
        std::vector<ReadRow> saved;
        for (const auto& [row, key] : keys)
            saved.push_back(Read(database, row, key));
        const bool hasChangedOthers = CountChanges(database) - changesBefore > static_cast<std::int64_t>(keys.size());
        for (const int row : hasChangedOthers ? OtherChanges(database, edits) : std::vector<int>())
            saved.push_back(Read(database, row, rows_.Row(row).key));
        // Whatever can fail comes before the database has the changes.
        DatabaseRows rows = rows_;
        std::vector<CellText> others = TakeOver(rows, std::move(saved), edits);
        transaction.Commit();
        rows_ = std::move(rows);
        return others;
    } catch (const sqlite::Error& error) {
        throw SaveError(error.what());
    }
}

void SqliteSaver::RequireShort(int row, int column, std::u16string_view text) const
{
    const std::size_t longest = LoadLimits().maxFieldLength;
    if (text.size() > longest)
        throw SaveError(NameOf(row) + ", column "
            + OneLine(ToUtf8(table_.Columns()[static_cast<std::size_t>(column)].name)) + ": a text is longer than "
            + std::to_string(longest) + " characters, the most a cell takes");
}

void SqliteSaver::RequireShort(const Edits& edits) const
{
    for (const auto& [row, cells] : edits.Rows()) {
        for (const auto& [column, text] : cells)
            RequireShort(row, column, text);
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
        if (select.Next())
            throw SaveError(NameOf(row) + ": its key is that of other rows too");
    }
    return types;
}

// All rows have been looked at before the first is changed, and each is again before its own turn comes, since changing
// one may change others by itself.
SqliteSaver::Keys SqliteSaver::UpdateAll(
    const sqlite::Database& database, const Edits& edits, std::map<int, Types> types) const
{
    Keys keys;
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    for (const auto& [row, cells] : edits.Rows()) {
        RequireNotChangedHere(select, row);
        keys[row] = Update(database, row, cells, types[row]);
    }
    return keys;
}

void SqliteSaver::RequireNotChangedHere(sqlite::Statement& select, int row) const
{
    select.Reset();
    BindAll(select, 1, rows_.Row(row).key);
    const bool isSame = select.Next() && rows_.Read(select).print == rows_.Row(row).print;
    select.Reset();
    if (!isSame)
        throw SaveError(NameOf(row) + ": the database changes it when another changed row is saved");
}

std::vector<int> SqliteSaver::OtherChanges(const sqlite::Database& database, const Edits& edits) const
{
    std::vector<int> changed;
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    for (int row = 0; row < rows_.Count(); ++row) {
        if (edits.Rows().contains(row))
            continue;
        select.Reset();
        BindAll(select, 1, rows_.Row(row).key);
        if (select.Next() && rows_.Read(select).print != rows_.Row(row).print)
            changed.push_back(row);
    }
    return changed;
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
        if (update.Next())
            throw SaveError(NameOf(row) + ": its key is that of other rows too");
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
        RequireShort(row, column, read.texts.back());
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

std::vector<CellText> SqliteSaver::TakeOver(DatabaseRows& rows, std::vector<ReadRow> saved, const Edits& edits) const
{
    std::vector<CellText> others;
    for (ReadRow& read : saved) {
        rows.Replace(read.row, std::move(read.saved));
        for (int column = 0; column < table_.ColumnCount(); ++column) {
            const auto index = static_cast<std::size_t>(column);
            rows.SetLocked(read.row, column, read.isLocked[index]);
            if (read.texts[index] != edits.Text(read.row, column))
                others.push_back({ read.row, column, std::move(read.texts[index]) });
        }
    }
    return others;
}

} // namespace vornix::viewer
