// A SQLite database, opened for reading only or for writing too.
#pragma once

#include "vornix/sqlite/error.h"
#include "vornix/sqlite/statement.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vornix::sqlite {

// Called every few thousand steps of the database engine; false stops the query with ErrorKind::Stopped.
using ProgressFunction = std::function<bool()>;

struct TableInfo {
    std::string name; // UTF-8
    bool isView = false;
};

// True when these first bytes of a file are those of a SQLite database.
bool IsDatabaseHeader(std::string_view firstBytes);

// A name as it stands in a statement: in double quotes, inner ones doubled.
std::string QuotedName(std::string_view name);

enum class Access { Read, Write };

// Every member raises Error.
class Database {
public:
    // For reading: nothing is ever written to the file. Waits up to `patience` for a lock of another program to go away.
    // A file that another program is not using and whose folder cannot be written opens all the same.
    explicit Database(const std::string& path, std::chrono::milliseconds patience = std::chrono::milliseconds(1000));
    // For writing, the file must be one that exists and may be written. A change that another program was ended in the
    // middle of is taken back.
    Database(
        const std::string& path, Access access, std::chrono::milliseconds patience = std::chrono::milliseconds(1000));
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void SetProgress(ProgressFunction progress);

    // Tables and views in the order of their creation, without the engine's own.
    std::vector<TableInfo> Tables() const;
    // The table or view of this name, in any case (of ASCII letters), or an Error that says there is none.
    TableInfo FindTable(std::string_view name) const;

    Statement ReadTable(std::string_view name) const;
    // A single statement that reads and gives at least one column; anything else is ErrorKind::NotAQuery.
    Statement ReadQuery(std::string_view sql) const;
    std::uint64_t CountRows(std::string_view name) const;

    // Any single statement, with ? for its parameters.
    Statement Prepare(std::string_view sql) const;
    // A statement that gives no rows worth reading.
    void Execute(std::string_view sql);
    // Some errors end a transaction and take all of it back; what is changed after that is changed at once.
    bool IsInTransaction() const;
    // In a transaction, whether more foreign keys have lost what they refer to than have found it, since it began.
    bool HasBrokenReferences() const;

private:
    struct Closer {
        void operator()(sqlite3* connection) const;
    };

    enum class OpenMode { Read, ReadImmutable, Write };

    void OpenForReading(const std::string& path, std::chrono::milliseconds patience);
    void Open(const std::string& path, OpenMode mode, std::chrono::milliseconds patience);
    void Probe(const std::string& path) const;

    std::unique_ptr<ProgressFunction> progress_; // at a fixed address: the engine keeps a pointer to it
    std::unique_ptr<sqlite3, Closer> connection_;
};

} // namespace vornix::sqlite
