#include "open_source.h"

#include "csv_reader.h"
#include "csv_saver.h"
#include "input_file.h"
#include "sqlite_reader.h"
#include "sqlite_saver.h"
#include "unicode.h"

#include "vornix/sqlite/database.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <set>
#include <unistd.h>

namespace vornix::viewer {

namespace {

bool HasDatabaseName(const std::filesystem::path& path)
{
    constexpr std::array<std::string_view, 5> extensions { ".db", ".db3", ".sqlite", ".sqlite3", ".sqlitedb" };
    std::string extension = path.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

bool HoldsDatabase(InputFile& file)
{
    std::array<char, 16> firstBytes {};
    const std::size_t count = file.Read(firstBytes);
    file.Rewind();
    return sqlite::IsDatabaseHeader({ firstBytes.data(), count });
}

// True for a database; raises where the file is none but has to be.
bool IsDatabase(InputFile& file, const ViewerOptions& options)
{
    if (HoldsDatabase(file))
        return true;
    if (HasDatabaseName(options.file) || options.table || options.query)
        throw LoadError("this is not a SQLite database (or an encrypted one)");
    return false;
}

std::vector<sqlite::TableInfo> TablesOf(const sqlite::Database& database)
{
    std::vector<sqlite::TableInfo> tables = database.Tables();
    if (tables.empty())
        throw LoadError("the database has no tables");
    return tables;
}

std::string TableName(const sqlite::Database& database, const ViewerOptions& options)
{
    return options.table ? *options.table : TablesOf(database).front().name;
}

Table OpenDatabase(const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress)
{
    try {
        sqlite::Database database(options.file);
        if (options.query) {
            Table result = ReadDatabaseQuery(database, *options.query, limits, progress);
            result.SetName(ToUtf16(FileName(options)));
            return result;
        }
        return ReadDatabaseTable(database, TableName(database, options), limits, progress);
    } catch (const sqlite::Error& error) {
        throw LoadError(error.what());
    }
}

struct OpenedDatabase {
    std::unique_ptr<sqlite::Database> database;
    std::optional<std::string> whyReadOnly;
};

// For writing first, since only a writer can take back what another one has left unfinished.
OpenedDatabase OpenForWriting(const std::string& path)
{
    try {
        auto database = std::make_unique<sqlite::Database>(path, sqlite::Access::Write);
        const std::filesystem::path folder = std::filesystem::canonical(path).parent_path();
        if (::faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) != 0)
            return { std::move(database),
                "no permission to write into the folder, where the database keeps a journal" };
        return { std::move(database), std::nullopt };
    } catch (const sqlite::Error& error) {
        return { std::make_unique<sqlite::Database>(path), error.what() };
    }
}

// A source that nothing can be written to.
class NoSaver final : public Saver {
public:
    explicit NoSaver(std::string reason)
        : reason_(std::move(reason))
    {
    }

    std::optional<std::string> WhyReadOnly() const override { return reason_; }
    bool CanChange(int, int) const override { return false; }
    SaveOutcome Save(const Changes&) override { throw SaveError(reason_); }

private:
    std::string reason_;
};

std::string WhyWithoutKey(const sqlite::TableLayout& layout)
{
    if (layout.kind == "view")
        return "it is a view, which has no rows of its own";
    if (layout.kind != "table")
        return "it is a " + layout.kind + " table";
    return "its rows have nothing to tell them apart by";
}

std::set<int> ColumnsOf(const ForeignKeys& keys)
{
    std::set<int> columns;
    for (const auto& [column, list] : keys)
        columns.insert(column);
    return columns;
}

ChangeableSource OpenDatabaseForChanging(
    const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress)
{
    try {
        const OpenedDatabase opened = OpenForWriting(options.file);
        sqlite::Database& database = *opened.database;
        const std::string name = database.FindTable(TableName(database, options)).name;
        DatabaseRows rows(sqlite::LayoutOf(database, name));
        auto table = std::make_unique<Table>();
        if (rows.KeyLength() == 0) {
            *table = ReadDatabaseTable(database, name, limits, progress);
            return { std::move(table), std::make_unique<NoSaver>(WhyWithoutKey(rows.Layout())) };
        }
        *table = ReadChangeableTable(database, rows, limits, progress);
        ForeignKeys keys = ReadForeignKeys(database, rows.Layout());
        auto saver
            = std::make_unique<SqliteSaver>(options.file, *table, std::move(rows), opened.whyReadOnly, ColumnsOf(keys));
        return { std::move(table), std::move(saver), std::move(keys) };
    } catch (const sqlite::Error& error) {
        throw LoadError(error.what());
    }
}

ChangeableSource OpenTextForChanging(
    InputFile& file, const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress)
{
    CsvLayout layout;
    auto table = std::make_unique<Table>(ReadCsv(file, limits, progress, &layout));
    table->SetName(ToUtf16(FileName(options)));
    auto saver = std::make_unique<CsvSaver>(options.file, *table, layout, limits);
    return { std::move(table), std::move(saver) };
}

} // namespace

std::string FileName(const ViewerOptions& options)
{
    return std::filesystem::path(options.file).filename().string();
}

Table OpenSource(const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress)
{
    InputFile file(options.file);
    if (IsDatabase(file, options))
        return OpenDatabase(options, limits, progress);
    Table table = ReadCsv(file, limits, progress);
    table.SetName(ToUtf16(FileName(options)));
    return table;
}

ChangeableSource OpenForChanging(
    const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress)
{
    InputFile file(options.file);
    if (!IsDatabase(file, options))
        return OpenTextForChanging(file, options, limits, progress);
    if (options.query)
        throw LoadError("the rows of a query cannot be changed");
    return OpenDatabaseForChanging(options, limits, progress);
}

std::vector<SourceEntry> ListSource(const ViewerOptions& options)
{
    InputFile file(options.file);
    if (!IsDatabase(file, options))
        return { { FileName(options), "file" } };
    try {
        const sqlite::Database database(options.file);
        std::vector<SourceEntry> entries;
        for (const sqlite::TableInfo& table : TablesOf(database))
            entries.push_back({ table.name, table.isView ? "view" : "table" });
        return entries;
    } catch (const sqlite::Error& error) {
        throw LoadError(error.what());
    }
}

} // namespace vornix::viewer
