#include "vornix/sqlite/transaction.h"

#include "vornix/sqlite/database.h"

namespace vornix::sqlite {

Transaction::Transaction(Database& database)
    : database_(database)
{
    database_.Execute("PRAGMA foreign_keys = ON"); // without effect inside a transaction
    database_.Execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction()
{
    if (!isOpen_)
        return;
    try {
        database_.Execute("ROLLBACK");
    } catch (const Error&) {
        // Some errors have taken it back already; otherwise closing the connection does.
    }
}

void Transaction::Commit()
{
    database_.Execute("COMMIT");
    isOpen_ = false;
}

} // namespace vornix::sqlite
