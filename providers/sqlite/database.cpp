#include "vornix/sqlite/database.h"

#include "names.h"
#include "raise.h"

#include <filesystem>

namespace vornix::sqlite {

namespace {

constexpr std::string_view FileSignature("SQLite format 3\0", 16);
constexpr int StepsBetweenProgress = 10000;

// A name in a URI: everything that could end it or mean something else as %XX.
std::string EscapedForUri(const std::string& path)
{
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string escaped;
    for (const char c : path) {
        if (c != '%' && c != '?' && c != '#') {
            escaped += c;
            continue;
        }
        escaped += '%';
        escaped += hexDigits[static_cast<unsigned char>(c) >> 4];
        escaped += hexDigits[static_cast<unsigned char>(c) & 15];
    }
    return escaped;
}

// A writer has left something beside the file; only a connection that takes part in the locking can use it.
bool HasPendingChanges(const std::string& path)
{
    for (const char* suffix : { "-wal", "-journal" }) {
        std::error_code ignored;
        const auto size = std::filesystem::file_size(path + suffix, ignored);
        if (!ignored && size > 0)
            return true;
    }
    return false;
}

char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

int ReportProgress(void* context)
{
    const auto& progress = *static_cast<const ProgressFunction*>(context);
    return progress && !progress() ? 1 : 0;
}

sqlite3_stmt* Compile(sqlite3* connection, std::string_view sql, std::string_view* rest = nullptr)
{
    sqlite3_stmt* statement = nullptr;
    const char* tail = nullptr;
    const int result = sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &statement, &tail);
    if (result != SQLITE_OK)
        throw ErrorOf(connection, result);
    if (rest)
        *rest = sql.substr(static_cast<std::size_t>(tail - sql.data()));
    return statement;
}

} // namespace

bool SameName(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerCase(a[i]) != LowerCase(b[i]))
            return false;
    }
    return true;
}

bool IsDatabaseHeader(std::string_view firstBytes)
{
    return firstBytes.starts_with(FileSignature);
}

std::string QuotedName(std::string_view name)
{
    std::string quoted = "\"";
    for (const char c : name) {
        quoted += c;
        if (c == '"')
            quoted += c;
    }
    return quoted + '"';
}

void Database::Closer::operator()(sqlite3* connection) const
{
    sqlite3_close_v2(connection);
}

Database::Database(const std::string& path, std::chrono::milliseconds patience)
    : Database(path, Access::Read, patience)
{
}

Database::Database(const std::string& path, Access access, std::chrono::milliseconds patience)
    : progress_(std::make_unique<ProgressFunction>())
{
    if (access == Access::Write)
        Open(path, OpenMode::Write, patience);
    else
        OpenForReading(path, patience);
}

Database::~Database() = default;

void Database::OpenForReading(const std::string& path, std::chrono::milliseconds patience)
{
    try {
        Open(path, OpenMode::Read, patience);
    } catch (const Error& error) {
        // A write-ahead database in a folder that cannot be written has no place for its lock file.
        std::error_code ignored;
        const bool isFile = std::filesystem::is_regular_file(path, ignored);
        const bool hasNoPlace = error.Kind() == ErrorKind::CannotOpen || error.Kind() == ErrorKind::Unfinished;
        if (!hasNoPlace || !isFile || HasPendingChanges(path))
            throw;
        Open(path, OpenMode::ReadImmutable, patience);
    }
}

void Database::Open(const std::string& path, OpenMode mode, std::chrono::milliseconds patience)
{
    // As a URI with an absolute path, so that no name can be taken for an option or for a database in memory.
    const std::string absolute = std::filesystem::absolute(path).string();
    const std::string uri
        = "file://" + EscapedForUri(absolute) + (mode == OpenMode::ReadImmutable ? "?immutable=1" : "");
    const int flags = mode == OpenMode::Write ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(uri.c_str(), &connection, flags | SQLITE_OPEN_URI, nullptr);
    connection_.reset(connection);
    if (result != SQLITE_OK)
        throw ErrorOf(connection, result);
    // A file that may not be written opens for reading instead.
    if (mode == OpenMode::Write && sqlite3_db_readonly(connection, "main") != 0)
        throw Error(ErrorKind::CannotOpen, "no permission to write the file");
    sqlite3_extended_result_codes(connection, 1);
    sqlite3_busy_timeout(connection, static_cast<int>(patience.count()));
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_progress_handler(connection, StepsBetweenProgress, ReportProgress, progress_.get());
    Probe(path);
}

// Opening reads nothing yet; the first read finds out what the file is.
void Database::Probe(const std::string& path) const
{
    Statement firstRead(connection_.get(), Compile(connection_.get(), "SELECT count(*) FROM sqlite_schema"));
    firstRead.Next();
    // While that statement has not ended its read lock stands, so no writer can be halfway through a page. The engine
    // itself reads what is missing of a last page as zeros.
    Statement pageSize(connection_.get(), Compile(connection_.get(), "PRAGMA page_size"));
    std::error_code ignored;
    const auto size = std::filesystem::file_size(path, ignored);
    if (!ignored && !HasPendingChanges(path) && pageSize.Next()
        && size % static_cast<std::uintmax_t>(pageSize.Integer(0)) != 0)
        throw Error(ErrorKind::Damaged, "the database is damaged (its last page is cut short)");
}

void Database::SetProgress(ProgressFunction progress)
{
    *progress_ = std::move(progress);
}

std::vector<TableInfo> Database::Tables() const
{
    Statement statement(connection_.get(),
        Compile(connection_.get(),
            "SELECT name, type FROM sqlite_schema WHERE type IN ('table', 'view')"
            " AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid"));
    std::vector<TableInfo> tables;
    while (statement.Next()) {
        sqlite3_stmt* row = statement.statement_.get();
        const auto text = [&](int column) { return reinterpret_cast<const char*>(sqlite3_column_text(row, column)); };
        if (const char* name = text(0))
            tables.push_back({ name, std::string_view(text(1)) == "view" });
    }
    return tables;
}

TableInfo Database::FindTable(std::string_view name) const
{
    for (const TableInfo& table : Tables()) {
        if (SameName(table.name, name))
            return table;
    }
    throw Error(ErrorKind::Sql, "the database has no table or view named " + std::string(name));
}

Statement Database::ReadTable(std::string_view name) const
{
    return ReadQuery("SELECT * FROM " + QuotedName(name));
}

Statement Database::ReadQuery(std::string_view sql) const
{
    std::string_view rest;
    Statement statement(connection_.get(), Compile(connection_.get(), sql, &rest));
    if (!statement.statement_)
        throw Error(ErrorKind::NotAQuery, "the query is empty");
    const Statement second(connection_.get(), Compile(connection_.get(), rest));
    if (second.statement_)
        throw Error(ErrorKind::NotAQuery, "the query is more than one statement");
    if (statement.ColumnCount() == 0)
        throw Error(ErrorKind::NotAQuery, "the query returns no columns");
    if (!sqlite3_stmt_readonly(statement.statement_.get()))
        throw Error(ErrorKind::NotAQuery, "the query would change the database, which is opened for reading only");
    return statement;
}

std::uint64_t Database::CountRows(std::string_view name) const
{
    Statement statement = ReadQuery("SELECT count(*) FROM " + QuotedName(name));
    statement.Next();
    return static_cast<std::uint64_t>(statement.Integer(0));
}

Statement Database::Prepare(std::string_view sql) const
{
    return { connection_.get(), Compile(connection_.get(), sql) };
}

void Database::Execute(std::string_view sql)
{
    Statement statement = Prepare(sql);
    while (statement.Next())
        continue;
}

bool Database::IsInTransaction() const
{
    return sqlite3_get_autocommit(connection_.get()) == 0;
}

bool Database::HasBrokenReferences() const
{
    int hasAny = 0;
    int unused = 0;
    sqlite3_db_status(connection_.get(), SQLITE_DBSTATUS_DEFERRED_FKS, &hasAny, &unused, 0);
    return hasAny != 0;
}

} // namespace vornix::sqlite
