#include "sqlite_reader.h"

#include "notices.h"
#include "stored_column.h"
#include "unicode.h"

#include "vornix/sqlite/database.h"

#include <array>
#include <cstdio>

namespace vornix::viewer {

namespace {

// Reads the rows of one statement into a table.
class RowReader {
public:
    RowReader(sqlite::Database& database, sqlite::Statement& statement, const LoadLimits& limits,
        const ProgressFunction& progress)
        : statement_(statement)
        , limits_(limits)
        , progress_(progress)
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
            columns_[static_cast<std::size_t>(column)].Settle(table_, column);
        return std::move(table_);
    }

    std::uint64_t RowsRead() const { return rowsRead_; }

private:
    void AddColumns()
    {
        if (statement_.ColumnCount() > limits_.maxColumns)
            throw LoadError(std::to_string(statement_.ColumnCount())
                + " columns are more than the grid can hold (at most " + std::to_string(limits_.maxColumns) + ")");
        for (int column = 0; column < statement_.ColumnCount(); ++column) {
            table_.Columns().push_back({ statement_.ColumnName(column) });
            columns_.emplace_back(statement_.Kind(column));
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
        for (int column = 0; column < statement_.ColumnCount(); ++column) {
            const auto index = static_cast<std::size_t>(column);
            const sqlite::ValueType type = statement_.Type(column);
            texts_[index] = TextOf(column, type);
            columns_[index].Add(type, texts_[index]);
            fields_[index] = { texts_[index], type == sqlite::ValueType::Null };
        }
        table_.AppendRow(fields_);
    }

    std::u16string TextOf(int column, sqlite::ValueType type) const
    {
        switch (type) {
        case sqlite::ValueType::Integer:
            return ToUtf16(std::to_string(statement_.Integer(column)));
        case sqlite::ValueType::Real:
            return RealText(statement_.Real(column));
        case sqlite::ValueType::Text:
            return CheckedText(column);
        case sqlite::ValueType::Blob:
            return ToUtf16("<blob, " + std::to_string(statement_.ByteCount(column)) + " bytes>");
        default:
            return {};
        }
    }

    static std::u16string RealText(double value)
    {
        // Fifteen digits are what a double holds of any decimal number.
        std::array<char, 32> text {};
        std::snprintf(text.data(), text.size(), "%.15g", value);
        return ToUtf16(text.data());
    }

    std::u16string CheckedText(int column) const
    {
        // A text has at least a third as many units as bytes.
        if (statement_.ByteCount(column) / 3 > limits_.maxFieldLength)
            RaiseTooLong(column);
        std::u16string text(statement_.Text(column));
        if (text.size() > limits_.maxFieldLength)
            RaiseTooLong(column);
        for (char16_t& unit : text)
            unit = unit == 0 ? u'\u2400' : unit; // the picture of a NUL; a cell's text ends at a real one
        return text;
    }

    [[noreturn]] void RaiseTooLong(int column) const
    {
        throw LoadError("row " + std::to_string(rowsRead_) + ", column "
            + OneLine(ToUtf8(statement_.ColumnName(column))) + ": a text is longer than "
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

} // namespace

Table ReadDatabaseTable(
    sqlite::Database& database, const std::string& name, const LoadLimits& limits, const ProgressFunction& progress)
{
    try {
        const std::string exactName = database.FindTable(name).name;
        sqlite::Statement statement = database.ReadTable(exactName);
        const ProgressScope scope(database);
        RowReader reader(database, statement, limits, progress);
        const bool isWhole = reader.ReadUpToLimit();
        Table table = reader.Finish(isWhole ? reader.RowsRead() : database.CountRows(exactName));
        table.SetName(ToUtf16(exactName));
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
