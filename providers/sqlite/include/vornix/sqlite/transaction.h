// Changes of a database that are made together or not at all.
#pragma once

namespace vornix::sqlite {

class Database;

// Nobody else writes while it lasts. What is not committed is taken back. Every member raises Error.
class Transaction {
public:
    // The database must be open for writing and outlive this. From now on it minds foreign keys.
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    Database& database_;
    bool isOpen_ = true;
};

} // namespace vornix::sqlite
