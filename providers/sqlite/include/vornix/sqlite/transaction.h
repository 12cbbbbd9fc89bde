// Changes of a database that are made together or not at all.
#pragma once

#include <functional>

namespace vornix::sqlite {

class Database;

// Nobody else writes while it lasts. What is not committed is taken back. Every member raises Error.
class Transaction {
public:
    // The database must be open for writing and outlive this. From now on it minds foreign keys: when this ends, whatever
    // they refer to meanwhile.
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Nothing stays of a step that raises anything. Where all of the transaction has gone with it, there is no other step.
    void Do(const std::function<void()>& step);
    // False when an error has taken it all back.
    bool IsOpen() const;
    void Commit();

private:
    Database& database_;
    bool isCommitted_ = false;
};

} // namespace vornix::sqlite
