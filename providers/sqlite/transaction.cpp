#include "vornix/sqlite/transaction.h"

#include "vornix/sqlite/database.h"

namespace vornix::sqlite {

Transaction::Transaction(Database& database)
    : database_(database)
{
    database_.Execute("PRAGMA foreign_keys = ON"); // without effect inside a transaction
    database_.Execute("BEGIN IMMEDIATE");
    database_.Execute("PRAGMA defer_foreign_keys = ON"); // until its end
}

Transaction::~Transaction()
{
    if (isCommitted_)
        return;
    try {
        if (IsOpen()) {
            database_.Execute("ROLLBACK");
            return;
        }
    } catch (const Error&) {
        // As where an error has taken it back:
    }
    try {
        // Where writing has failed, the file is set right when it is read again.
        database_.Execute("SELECT count(*) FROM sqlite_schema");
    } catch (const Error&) {
        // The next one who opens it for writing does so.
    }
}

void Transaction::Do(const std::function<void()>& step)
{
    if (!IsOpen())
        throw Error(ErrorKind::Other, "the changes were taken back");
    database_.Execute("SAVEPOINT step");
    try {
        step();
    } catch (...) {
        if (IsOpen()) {
            database_.Execute("ROLLBACK TO step");
            database_.Execute("RELEASE step");
        }
        throw;
    }
    database_.Execute("RELEASE step");
}

bool Transaction::IsOpen() const
{
    return database_.IsInTransaction();
}

void Transaction::Commit()
{
    database_.Execute("COMMIT");
    isCommitted_ = true;
}

} // namespace vornix::sqlite
