// Changes of the rows of a database table, one by one.
#pragma once

#include "changes.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/transaction.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vornix::viewer {

// All of them are one transaction, begun here; foreign keys may refer to nothing up to its end. Once a member has raised
// anything, nothing can be done but to let this go.
class SqliteSteps {
public:
    // Both must outlive this. The constructor raises sqlite::Error.
    SqliteSteps(sqlite::Database& database, const Changes& changes)
        : changes_(changes)
        , transaction_(database)
    {
    }

    // Does the step for each of the rows. What the database refuses in one order it may take in another: a row that it
    // refuses has its turn again once others have had theirs. Raises SaveError, which names the row that the database does
    // not take.
    using Step = std::function<void(int row)>;
    void ForEach(std::vector<int> rows, const Step& step);
    // Raises sqlite::Error.
    void Commit() { transaction_.Commit(); }

private:
    // Why the database does not take the row now; nothing when it was done.
    std::optional<std::string> WhyNot(int row, const Step& step);

    const Changes& changes_;
    sqlite::Transaction transaction_;
};

} // namespace vornix::viewer
