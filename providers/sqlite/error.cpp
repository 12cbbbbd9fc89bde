#include "vornix/sqlite/error.h"

#include "raise.h"

#include <algorithm>
#include <cstring>

namespace vornix::sqlite {

namespace {

std::string OneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return text;
}

std::string EngineMessage(sqlite3* connection, int resultCode)
{
    return connection ? sqlite3_errmsg(connection) : sqlite3_errstr(resultCode);
}

// The operating system's reason where it gave one.
Error SystemError(sqlite3* connection, const Error& otherwise)
{
    const int systemError = connection ? sqlite3_system_errno(connection) : 0;
    return systemError != 0 ? Error(ErrorKind::CannotOpen, std::strerror(systemError)) : otherwise;
}

bool IsOfWriting(int resultCode)
{
    switch (resultCode) {
    case SQLITE_IOERR_WRITE:
    case SQLITE_IOERR_FSYNC:
    case SQLITE_IOERR_DIR_FSYNC:
    case SQLITE_IOERR_TRUNCATE:
    case SQLITE_IOERR_DELETE:
        return true;
    default:
        return false;
    }
}

} // namespace

Error::Error(ErrorKind kind, const std::string& message)
    : std::runtime_error(OneLine(message))
    , kind_(kind)
{
}

Error ErrorOf(sqlite3* connection, int resultCode)
{
    const std::string message = EngineMessage(connection, resultCode);
    switch (resultCode & 0xFF) {
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return SystemError(connection, { ErrorKind::CannotOpen, "the database cannot be opened" });
    case SQLITE_NOTADB:
        return { ErrorKind::NotADatabase, "this is not a SQLite database (or an encrypted one)" };
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        return { ErrorKind::InUse, "the database is in use: another program has locked it" };
    case SQLITE_READONLY:
        if (resultCode == SQLITE_READONLY_DIRECTORY)
            return { ErrorKind::CannotOpen,
                "no permission to write into the database's folder, where it keeps a journal" };
        if (resultCode == SQLITE_READONLY_DBMOVED)
            return { ErrorKind::CannotOpen, "the database file was moved or replaced meanwhile" };
        return { ErrorKind::Unfinished,
            "the database was left in the middle of a change; a program that may write to it must open it first" };
    case SQLITE_CORRUPT:
        return { ErrorKind::Damaged, "the database is damaged (" + message + ")" };
    case SQLITE_IOERR:
        if (IsOfWriting(resultCode))
            return { ErrorKind::Other, "the database cannot be written (" + message + ")" };
        return SystemError(connection, { ErrorKind::Damaged, "the database is damaged (" + message + ")" });
    case SQLITE_FULL:
        return { ErrorKind::NoRoom, "there is no room on the disk" };
    case SQLITE_CONSTRAINT:
        return { ErrorKind::Constraint, message };
    case SQLITE_TOOBIG:
        return { ErrorKind::TooLong, "a value of the database is too long" };
    case SQLITE_INTERRUPT:
        return { ErrorKind::Stopped, "reading was stopped" };
    case SQLITE_ERROR:
        return { ErrorKind::Sql, "SQL error: " + message };
    default:
        return { ErrorKind::Other, message };
    }
}

} // namespace vornix::sqlite
