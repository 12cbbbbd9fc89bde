#include "made_database.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/transaction.h"

using namespace vornix;
using namespace vornix::sqlite;

namespace {

std::int64_t CountOf(const std::string& path)
{
    return static_cast<std::int64_t>(Database(path).CountRows("t"));
}

std::string MessageOf(const std::function<void()>& step)
{
    try {
        step();
    } catch (const Error& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(Transaction, MakesAllOfItsChangesOrNone)
{
    const MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES(1);");
    Database database(made.Path(), Access::Write);
    {
        Transaction transaction(database);
        database.Execute("INSERT INTO t VALUES(2)");
        EXPECT_EQ(CountOf(made.Path()), 1);
    }
    EXPECT_EQ(CountOf(made.Path()), 1);
    Transaction transaction(database);
    database.Execute("INSERT INTO t VALUES(2)");
    transaction.Commit();
    EXPECT_EQ(CountOf(made.Path()), 2);
}

TEST(Transaction, MindsForeignKeysUpToItsEnd)
{
    const MadeDatabase made(
        "CREATE TABLE t(a INTEGER PRIMARY KEY); CREATE TABLE u(b REFERENCES t DEFERRABLE INITIALLY DEFERRED);");
    Database database(made.Path(), Access::Write);
    Transaction transaction(database);
    database.Execute("INSERT INTO u VALUES(7)");
    EXPECT_EQ(MessageOf([&] { transaction.Commit(); }), "FOREIGN KEY constraint failed");
    database.Execute("INSERT INTO t VALUES(7)");
    transaction.Commit();
    EXPECT_EQ(CountOf(made.Path()), 1);
}

TEST(Transaction, KeepsOtherWritersOut)
{
    MadeDatabase made("CREATE TABLE t(a);");
    made.Execute("BEGIN IMMEDIATE");
    Database database(made.Path(), Access::Write, std::chrono::milliseconds(1));
    EXPECT_EQ(
        MessageOf([&] { Transaction transaction(database); }), "the database is in use: another program has locked it");
}

TEST(Transaction, NeedsADatabaseThatIsOpenForWriting)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    Database database(made.Path());
    EXPECT_THROW(
        {
            Transaction transaction(database);
            database.Execute("INSERT INTO t VALUES(1)");
        },
        Error);
    EXPECT_EQ(CountOf(made.Path()), 0);
}

TEST(Transaction, IsNotForFilesThatAreNotThere)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    EXPECT_THROW(Database((made.Folder() / "none.db").string(), Access::Write), Error);
    EXPECT_FALSE(std::filesystem::exists(made.Folder() / "none.db"));
}
