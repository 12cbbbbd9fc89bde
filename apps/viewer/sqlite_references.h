// The foreign keys that changes of one table of a database can break.
#pragma once

#include "vornix/sqlite/value.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace vornix::sqlite {
class Database;
class Statement;
} // namespace vornix::sqlite

namespace vornix::viewer {

using SqliteKey = std::vector<sqlite::Value>;

// The database counts what refers to nothing, but only from the beginning of a transaction on: a row that had nothing to
// refer to before, and has it now or is gone, hides one that has lost it. Every member raises sqlite::Error.
class SqliteReferences {
public:
    // In a transaction, before anything is changed in the table. What refers to nothing then may do so. The database must
    // outlive this.
    SqliteReferences(const sqlite::Database& database, const std::string& table);

    // A row that refers to nothing.
    struct Broken {
        int reference = 0; // by which foreign key
        SqliteKey key; // of the row, as LayoutOf tells rows apart
        SqliteKey values; // that it refers by
        auto operator<=>(const Broken&) const = default;
    };
    // In the same transaction, those that refer to nothing since. `oldKeys` are of rows of the table that have other keys
    // now, by these.
    std::vector<Broken> Find(const std::map<SqliteKey, SqliteKey>& oldKeys) const;

    // Whether it is a row of the table.
    bool IsOwn(const Broken& broken) const { return At(broken).isOwn; }
    // The columns of the table that it refers to; none where it refers to another one.
    const std::vector<std::string>& OwnColumns(const Broken& broken) const { return At(broken).ownColumns; }

private:
    struct Reference {
        std::string from;
        std::string to;
        std::vector<std::string> fromColumns = {};
        std::vector<std::string> toColumns = {};
        bool isOwn = false;
        std::vector<std::string> ownColumns = {};
    };

    const Reference& At(const Broken& broken) const { return references_[static_cast<std::size_t>(broken.reference)]; }
    void ReadReferences(const std::string& table);
    std::string Query(const Reference& reference, std::size_t& keyLength) const;
    template <typename Take> void ForEachBroken(Take take) const;

    const sqlite::Database& database_;
    std::vector<Reference> references_;
    std::set<Broken> before_;
};

} // namespace vornix::viewer
