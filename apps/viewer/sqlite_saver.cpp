#include "sqlite_saver.h"

#include "cell_content.h"
#include "loading.h"
#include "sqlite_steps.h"
#include "unicode.h"
#include "value_text.h"

#include "vornix/sqlite/database.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vornix::viewer {

namespace {

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

SqliteKey KeyIn(const sqlite::Statement& statement)
{
    SqliteKey key;
    key.reserve(static_cast<std::size_t>(statement.ColumnCount()));
    for (int column = 0; column < statement.ColumnCount(); ++column)
        key.push_back(statement.ValueOf(column));
    return key;
}

// Of rows, by this connection: those of triggers and foreign keys with them.
std::int64_t CountChanges(const sqlite::Database& database)
{
    sqlite::Statement count = database.Prepare("SELECT total_changes()");
    return count.Next() ? count.Integer(0) : 0;
}

// As a cell shows it, where all of it is shown.
struct PlainText {
    std::optional<std::u16string> operator()(std::int64_t number) const { return ToUtf16(std::to_string(number)); }
    std::optional<std::u16string> operator()(const std::string& text) const { return ToUtf16(text); }
    template <typename Other> std::optional<std::u16string> operator()(const Other&) const { return {}; }
};

void RequireDifferent(const std::map<int, SqliteKey>& keys, const Changes& changes)
{
    std::set<SqliteKey> known;
    for (const auto& [row, key] : keys) {
        if (!known.insert(key).second)
            throw SaveError(changes.NameOf(row) + ": it would have the key of another changed row");
    }
}

} // namespace

SqliteSaver::SqliteSaver(std::string path, const Table& table, DatabaseRows rows,
    std::optional<std::string> whyReadOnly, std::set<int> keyColumns)
    : path_(std::move(path))
    , table_(table)
    , rows_(std::move(rows))
    , whyReadOnly_(std::move(whyReadOnly))
    , keyColumns_(std::move(keyColumns))
{
}

bool SqliteSaver::CanChange(int row, int column) const
{
    return !whyReadOnly_ && !rows_.Layout().columns[static_cast<std::size_t>(column)].isComputed
        && !rows_.IsLocked(row, column) && rows_.HasKey(row);
}

bool SqliteSaver::CanFill(int column) const
{
    return !rows_.Layout().columns[static_cast<std::size_t>(column)].isComputed;
}

SaveOutcome SqliteSaver::Save(const Changes& changes)
{
    for (const auto& [row, cells] : changes.Changed())
        RequireShort(changes, row, cells);
    for (const Records::Addition& addition : changes.Added())
        RequireShort(changes, addition.record, changes.CellsOf(addition));
    try {
        sqlite::Database database(path_, sqlite::Access::Write);
        SqliteSteps steps(database, changes);
        const std::int64_t changesBefore = CountChanges(database);
        const SqliteReferences references(database, rows_.Layout().name);
        const std::map<int, Types> types = RequireUnchanged(database, changes);
        RemoveAll(database, changes, steps);
        Keys keys = UpdateAll(database, changes, types, steps);
        AddAll(database, changes, keys, steps);
        RequireReferences(references, keys, changes);
        RequireDifferent(keys, changes);
        std::vector<ReadRow> saved;
        for (const auto& [row, key] : keys)
            saved.push_back(Read(database, changes, row, key));
        std::set<Key> taken;
        for (const ReadRow& read : saved)
            taken.insert(read.saved.key);
        const auto own = static_cast<std::int64_t>(keys.size() + changes.Removed().size());
        const bool hasChangedOthers = CountChanges(database) - changesBefore != own;
        OtherRows others = hasChangedOthers ? FindOtherRows(database, changes, taken) : OtherRows();
        for (const int row : others.changed)
            saved.push_back(Read(database, changes, row, rows_.Row(row).key));
        // Whatever can fail comes before the database has the changes.
        DatabaseRows rows = rows_;
        SaveOutcome outcome = TakeOver(rows, std::move(saved), std::move(others.gone), changes);
        outcome.keys = ReadForeignKeys(database, rows_.Layout()); // the table may refer to itself
        std::set<int> keyColumns = keyColumns_;
        for (const auto& [column, list] : outcome.keys)
            keyColumns.insert(column);
        steps.Commit();
        rows_ = std::move(rows);
        keyColumns_ = std::move(keyColumns);
        return outcome;
    } catch (const sqlite::Error& error) {
        throw SaveError(error.what());
    }
}

void SqliteSaver::RequireShort(const Changes& changes, int row, int column, std::u16string_view text) const
{
    const std::size_t longest = LoadLimits().maxFieldLength;
    if (text.size() > longest)
        throw SaveError(changes.NameOf(row) + ", column "
            + OneLine(ToUtf8(table_.Columns()[static_cast<std::size_t>(column)].name)) + ": a text is longer than "
            + std::to_string(longest) + " characters, the most a cell takes");
}

void SqliteSaver::RequireShort(const Changes& changes, int row, const Edits::RowEdits& cells) const
{
    for (const auto& [column, text] : cells)
        RequireShort(changes, row, column, text);
}

// Gives the types of all its values.
SqliteSaver::Types SqliteSaver::RequireUnchanged(const Changes& changes, sqlite::Statement& select, int row) const
{
    select.Reset();
    BindAll(select, 1, rows_.Row(row).key);
    if (!select.Next())
        throw SaveError(changes.NameOf(row) + ": another program has removed it since it was read");
    if (rows_.Read(select).print != rows_.Row(row).print)
        throw SaveError(changes.NameOf(row) + ": another program has changed it since it was read");
    Types types;
    for (int column = 0; column < table_.ColumnCount(); ++column)
        types[column] = select.Type(rows_.KeyLength() + column);
    if (select.Next())
        throw SaveError(changes.NameOf(row) + ": its key is that of other rows too");
    return types;
}

std::map<int, SqliteSaver::Types> SqliteSaver::RequireUnchanged(
    const sqlite::Database& database, const Changes& changes) const
{
    std::map<int, Types> types;
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    for (const auto& [row, cells] : changes.Changed())
        types[row] = RequireUnchanged(changes, select, row);
    for (const int row : changes.Removed())
        RequireUnchanged(changes, select, row);
    return types;
}

// One that is gone went with another.
void SqliteSaver::RemoveAll(const sqlite::Database& database, const Changes& changes, SqliteSteps& steps) const
{
    steps.ForEach(changes.Removed(), [&](int row) {
        sqlite::Statement remove = database.Prepare(rows_.Delete());
        BindAll(remove, 1, rows_.Row(row).key);
        remove.Next();
    });
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    for (const int row : changes.Removed()) {
        select.Reset();
        BindAll(select, 1, rows_.Row(row).key);
        if (select.Next())
            throw SaveError(changes.NameOf(row) + ": the database does not remove it");
    }
}

// All rows have been looked at before the first is changed, and each is again before its own turn comes, since changing
// one may change others by itself.
SqliteSaver::Keys SqliteSaver::UpdateAll(const sqlite::Database& database, const Changes& changes,
    const std::map<int, Types>& types, SqliteSteps& steps) const
{
    std::vector<int> rows;
    for (const auto& [row, cells] : changes.Changed())
        rows.push_back(row);
    Keys keys;
    steps.ForEach(std::move(rows), [&](int row) {
        RequireNotChangedHere(database, changes, row);
        keys[row] = Update(database, changes, row, types.at(row));
    });
    return keys;
}

void SqliteSaver::AddAll(const sqlite::Database& database, const Changes& changes, Keys& keys, SqliteSteps& steps) const
{
    std::map<int, const Edits::RowEdits*> cells;
    std::vector<int> rows;
    for (const Records::Addition& addition : changes.Added()) {
        rows.push_back(addition.record);
        cells[addition.record] = &changes.CellsOf(addition);
    }
    steps.ForEach(std::move(rows), [&](int row) {
        keys[row] = Add(database, *cells[row]);
        if (keys[row].empty())
            throw SaveError(changes.NameOf(row) + ": the database does not take it");
    });
}

void SqliteSaver::RequireNotChangedHere(const sqlite::Database& database, const Changes& changes, int row) const
{
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    BindAll(select, 1, rows_.Row(row).key);
    if (!select.Next() || rows_.Read(select).print != rows_.Row(row).print)
        throw SaveError(changes.NameOf(row) + ": the database changes it when another changed row is saved");
}

SqliteSaver::OtherRows SqliteSaver::FindOtherRows(
    const sqlite::Database& database, const Changes& changes, const std::set<Key>& taken) const
{
    OtherRows others;
    const std::set<int> removed(changes.Removed().begin(), changes.Removed().end());
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    for (int row = 0; row < rows_.Count(); ++row) {
        if (!rows_.HasKey(row) || removed.contains(row) || changes.Changed().contains(row))
            continue;
        select.Reset();
        BindAll(select, 1, rows_.Row(row).key);
        if (!select.Next()) {
            others.gone.push_back(row);
            continue;
        }
        // The column says which keys are the same.
        const DatabaseRow read = rows_.Read(select);
        if (taken.contains(read.key))
            others.gone.push_back(row);
        else if (read.print != rows_.Row(row).print)
            others.changed.push_back(row);
    }
    return others;
}

void SqliteSaver::RequireReferences(const SqliteReferences& references, const Keys& keys, const Changes& changes) const
{
    std::map<Key, Key> oldKeys;
    for (const auto& [row, key] : keys) {
        if (row < rows_.Count() && rows_.Row(row).key != key)
            oldKeys.emplace(key, rows_.Row(row).key);
    }
    const std::vector<SqliteReferences::Broken> broken = references.Find(oldKeys);
    if (broken.empty())
        return;
    const std::string reason = "FOREIGN KEY constraint failed";
    for (const SqliteReferences::Broken& one : broken) {
        if (const int row = BreakingRow(references, one, keys, changes); row >= 0)
            throw SaveError(changes.NameOf(row) + ": " + reason);
    }
    throw SaveError(reason);
}

// The one that refers to nothing where that was changed or added here, or else the one that was referred to; -1 where it is
// neither.
int SqliteSaver::BreakingRow(const SqliteReferences& references, const SqliteReferences::Broken& broken,
    const Keys& keys, const Changes& changes) const
{
    for (const auto& [row, key] : keys) {
        if (references.IsOwn(broken) && key == broken.key)
            return row;
    }
    std::vector<int> rows = changes.Removed();
    for (const auto& [row, cells] : changes.Changed())
        rows.push_back(row);
    const std::vector<std::string>& columns = references.OwnColumns(broken);
    const auto found
        = std::find_if(rows.begin(), rows.end(), [&](int row) { return HasHad(row, columns, broken.values); });
    return found == rows.end() || columns.empty() ? -1 : *found;
}

bool SqliteSaver::HasHad(
    int row, const std::vector<std::string>& columns, const std::vector<sqlite::Value>& values) const
{
    const std::vector<sqlite::ColumnLayout>& all = rows_.Layout().columns;
    for (std::size_t place = 0; place < columns.size(); ++place) {
        const auto column = std::find_if(
            all.begin(), all.end(), [&](const sqlite::ColumnLayout& one) { return one.name == columns[place]; });
        if (column == all.end()
            || table_.Text(row, static_cast<int>(column - all.begin())) != std::visit(PlainText(), values[place]))
            return false;
    }
    return true;
}

// Gives the row's key, which may be what was changed.
SqliteSaver::Key SqliteSaver::Update(
    const sqlite::Database& database, const Changes& changes, int row, const Types& types) const
{
    std::vector<int> columns;
    std::vector<sqlite::Value> values;
    for (const auto& [column, text] : changes.Changed().at(row)) {
        columns.push_back(column);
        values.push_back(ValueFor(column, text, types.at(column)));
    }
    sqlite::Statement update = database.Prepare(rows_.Update(columns));
    BindAll(update, 1, values);
    BindAll(update, static_cast<int>(values.size()) + 1, rows_.Row(row).key);
    if (!update.Next())
        throw SaveError(changes.NameOf(row) + ": the database does not take the change");
    Key key = KeyIn(update);
    if (update.Next())
        throw SaveError(changes.NameOf(row) + ": its key is that of other rows too");
    return key;
}

// Empty when the database has not added it.
SqliteSaver::Key SqliteSaver::Add(const sqlite::Database& database, const Edits::RowEdits& cells) const
{
    std::vector<int> columns;
    std::vector<sqlite::Value> values;
    for (const auto& [column, text] : cells) {
        columns.push_back(column);
        values.push_back(ValueFor(column, text, sqlite::ValueType::Null));
    }
    sqlite::Statement insert = database.Prepare(rows_.Insert(columns));
    BindAll(insert, 1, values);
    if (!insert.Next())
        return {};
    Key key = KeyIn(insert);
    insert.Next(); // to its end
    return key;
}

SqliteSaver::ReadRow SqliteSaver::Read(
    const sqlite::Database& database, const Changes& changes, int row, const Key& key) const
{
    sqlite::Statement select = database.Prepare(rows_.SelectOne());
    BindAll(select, 1, key);
    if (!select.Next())
        throw SaveError(changes.NameOf(row) + ": the database removes it when it is changed");
    ReadRow read { row, rows_.Read(select), {}, {} };
    for (int column = 0; column < table_.ColumnCount(); ++column) {
        read.isLocked.push_back(!IsPlainValue(select, rows_.KeyLength() + column));
        read.texts.push_back(ShownText(select, column));
        RequireShort(changes, row, column, read.texts.back());
    }
    return read;
}

sqlite::Value SqliteSaver::ValueFor(int column, std::u16string_view text, sqlite::ValueType oldType) const
{
    const Column& described = table_.Columns()[static_cast<std::size_t>(column)];
    const bool isText = described.kind == ColumnKind::Text && !IsNumber(oldType) && !keyColumns_.contains(column);
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

SaveOutcome SqliteSaver::TakeOver(
    DatabaseRows& rows, std::vector<ReadRow> saved, std::vector<int> gone, const Changes& changes) const
{
    std::vector<CellText> others;
    for (ReadRow& read : saved) {
        rows.Replace(read.row, std::move(read.saved));
        for (int column = 0; column < table_.ColumnCount(); ++column) {
            const auto index = static_cast<std::size_t>(column);
            rows.SetLocked(read.row, column, read.isLocked[index]);
            const bool isNewTruth = table_.Columns()[index].kind == ColumnKind::Boolean
                && (read.texts[index] == u"-1" || read.texts[index] == u"0") && !table_.HasTruthValue(read.row, column);
            if (isNewTruth || read.texts[index] != changes.Text(read.row, column))
                others.push_back({ read.row, column, std::move(read.texts[index]) });
        }
    }
    for (const int row : changes.Removed())
        rows.Remove(row);
    for (const int row : gone)
        rows.Remove(row);
    return { std::move(others), std::move(gone) };
}

} // namespace vornix::viewer
