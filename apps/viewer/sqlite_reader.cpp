#include "sqlite_reader.h"

#include "database_rows.h"
#include "notices.h"
#include "stored_column.h"
#include "unicode.h"
#include "value_text.h"

#include "vornix/sqlite/database.h"

namespace vornix::viewer {

namespace {

// Reads the rows of one statement into a table, and notes what they are where they may be changed: they have their key
// first then.
class RowReader {
public:
    RowReader(sqlite::Database& database, sqlite::Statement& statement, const LoadLimits& limits,
        const ProgressFunction& progress, DatabaseRows* rows = nullptr)
        : statement_(statement)
        , limits_(limits)
        , progress_(progress)
        , rows_(rows)
        , keyLength_(rows ? rows->KeyLength() : 0)
    {
        database.SetProgress([this] {
            Report();
            return true;
        });
    }

    // False when a limit was reached before the last row; that row has been counted.
    bool ReadUpToLimit()
    {
        AddColumns();
        while (statement_.Next()) {
            Count();
            if (!HasRoom())
                return false;
            AppendRow();
        }
        return true;
    }

    void CountTheRest()
    {
        while (statement_.Next())
            Count();
    }

    Table Finish(std::uint64_t totalRows)
    {
        table_.SetTotalRows(totalRows);
        AddMissingRowsNotice(table_);
        for (int column = 0; column < table_.ColumnCount(); ++column)
            columns_[static_cast<std::size_t>(column)].Settle(table_, column, rows_ != nullptr);
        return std::move(table_);
    }

    std::uint64_t RowsRead() const { return rowsRead_; }

private:
    void AddColumns()
    {
        const int count = statement_.ColumnCount() - keyLength_;
        if (count > limits_.maxColumns)
            throw LoadError(std::to_string(count) + " columns are more than the grid can hold (at most "
                + std::to_string(limits_.maxColumns) + ")");
        for (int column = 0; column < count; ++column) {
            table_.Columns().push_back({ statement_.ColumnName(keyLength_ + column) });
            columns_.emplace_back(statement_.Kind(keyLength_ + column));
        }
        texts_.resize(columns_.size());
        fields_.resize(columns_.size());
    }

    bool HasRoom() const
    {
        return table_.RowCount() < limits_.maxRows && table_.CellCount() + columns_.size() <= limits_.maxCells
            && table_.TextLength() <= limits_.maxTextLength;
    }

    void AppendRow()
    {
        if (rows_)
            rows_->Append(rows_->Read(statement_));
        for (int column = 0; column < table_.ColumnCount(); ++column) {
            const auto index = static_cast<std::size_t>(column);
            const sqlite::ValueType type = statement_.Type(keyLength_ + column);
            RequireShort(column, type);
            if (rows_ && !IsPlainValue(statement_, keyLength_ + column))
                rows_->SetLocked(table_.RowCount(), column, true);
            texts_[index] = TextOfValue(statement_, keyLength_ + column);
            if (texts_[index].size() > limits_.maxFieldLength)
                RaiseTooLong(column);
            columns_[index].Add(type, texts_[index]);
            fields_[index] = { texts_[index], type == sqlite::ValueType::Null };
        }
        table_.AppendRow(fields_);
    }

    // Before a copy is made: a text has at least a third as many units as bytes.
    void RequireShort(int column, sqlite::ValueType type) const
    {
        if (type == sqlite::ValueType::Text && statement_.ByteCount(keyLength_ + column) / 3 > limits_.maxFieldLength)
            RaiseTooLong(column);
    }

    [[noreturn]] void RaiseTooLong(int column) const
    {
        throw LoadError("row " + std::to_string(rowsRead_) + ", column "
            + OneLine(ToUtf8(statement_.ColumnName(keyLength_ + column))) + ": a text is longer than "
            + std::to_string(limits_.maxFieldLength) + " characters, the most a cell takes");
    }

    void Count()
    {
        constexpr std::uint64_t rowsBetweenReports = 1000;
        if (++rowsRead_ % rowsBetweenReports == 0)
            Report();
    }

    void Report() const
    {
        if (progress_)
            progress_({ rowsRead_, 0, 0 });
    }

    sqlite::Statement& statement_;
    const LoadLimits& limits_;
    const ProgressFunction& progress_;
    DatabaseRows* const rows_;
    const int keyLength_;
    Table table_;
    std::vector<StoredColumn> columns_;
    std::vector<std::u16string> texts_; // of the row being read
    std::vector<Field> fields_;
    std::uint64_t rowsRead_ = 0;
};

// Keeps the database from calling a reader that is gone.
class ProgressScope {
public:
    explicit ProgressScope(sqlite::Database& database)
        : database_(database)
    {
    }
    ~ProgressScope() { database_.SetProgress({}); }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;

private:
    sqlite::Database& database_;
};

Table ReadRows(sqlite::Database& database, const std::string& name, sqlite::Statement& statement, DatabaseRows* rows,
    const LoadLimits& limits, const ProgressFunction& progress)
{
    const ProgressScope scope(database);
    RowReader reader(database, statement, limits, progress, rows);
    const bool isWhole = reader.ReadUpToLimit();
    Table table = reader.Finish(isWhole ? reader.RowsRead() : database.CountRows(name));
    table.SetName(ToUtf16(name));
    return table;
}

void AddMissingKeysNotice(const DatabaseRows& rows, Table& table)
{
    std::uint64_t count = 0;
    for (int row = 0; row < rows.Count(); ++row)
        count += rows.HasKey(row) ? 0 : 1;
    if (count > 0)
        table.AddNotice(Counted(count, "row") + " without a key cannot be changed");
}

} // namespace

Table ReadDatabaseTable(
    sqlite::Database& database, const std::string& name, const LoadLimits& limits, const ProgressFunction& progress)
{
    try {
        const std::string exactName = database.FindTable(name).name;
        sqlite::Statement statement = database.ReadTable(exactName);
        return ReadRows(database, exactName, statement, nullptr, limits, progress);
    } catch (const sqlite::Error& error) {
        throw LoadError(error.what());
    }
}

Table ReadChangeableTable(
    sqlite::Database& database, DatabaseRows& rows, const LoadLimits& limits, const ProgressFunction& progress)
{
    try {
        sqlite::Statement statement = database.ReadQuery(rows.SelectAll());
        Table table = ReadRows(database, rows.Layout().name, statement, &rows, limits, progress);
        AddMissingKeysNotice(rows, table);
        return table;
    } catch (const sqlite::Error& error) {
        throw LoadError(error.what());
    }
}

Table ReadDatabaseQuery(
    sqlite::Database& database, const std::string& sql, const LoadLimits& limits, const ProgressFunction& progress)
{
    try {
        sqlite::Statement statement = database.ReadQuery(sql);
        const ProgressScope scope(database);
        RowReader reader(database, statement, limits, progress);
        if (!reader.ReadUpToLimit())
            reader.CountTheRest();
        return reader.Finish(reader.RowsRead());
    } catch (const sqlite::Error& error) {
        throw LoadError(error.what());
    }
}

} // namespace vornix::viewer
