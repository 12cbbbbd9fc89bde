#include "open_source.h"

#include "csv_reader.h"
#include "input_file.h"
#include "sqlite_reader.h"
#include "unicode.h"

#include "vornix/sqlite/database.h"

#include <algorithm>
#include <array>
#include <filesystem>

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

Table OpenDatabase(const ViewerOptions& options, const LoadLimits& limits, const ProgressFunction& progress)
{
    try {
        sqlite::Database database(options.file);
        if (options.query) {
            Table result = ReadDatabaseQuery(database, *options.query, limits, progress);
            result.SetName(ToUtf16(FileName(options)));
            return result;
        }
        const std::string name = options.table ? *options.table : TablesOf(database).front().name;
        return ReadDatabaseTable(database, name, limits, progress);
    } catch (const sqlite::Error& error) {
        throw LoadError(error.what());
    }
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
