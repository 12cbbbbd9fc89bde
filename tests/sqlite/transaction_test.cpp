#include "made_database.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/transaction.h"

#include <stdexcept>

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

TEST(Transaction, HasTimeForItsReferencesUpToItsEnd)
{
    const MadeDatabase made("CREATE TABLE t(a INTEGER PRIMARY KEY); CREATE TABLE u(b REFERENCES t ON DELETE RESTRICT);"
                            "INSERT INTO t VALUES(1); INSERT INTO u VALUES(1);");
    Database database(made.Path(), Access::Write);
    {
        Transaction transaction(database);
        EXPECT_FALSE(database.HasBrokenReferences());
        database.Execute("DELETE FROM t");
        EXPECT_TRUE(database.HasBrokenReferences());
        EXPECT_EQ(MessageOf([&] { transaction.Commit(); }), "FOREIGN KEY constraint failed");
        database.Execute("INSERT INTO u VALUES(7)");
        database.Execute("UPDATE u SET b = 7");
        database.Execute("INSERT INTO t VALUES(7)");
        EXPECT_FALSE(database.HasBrokenReferences());
        transaction.Commit();
    }
    Transaction another(database);
    database.Execute("DELETE FROM t");
    EXPECT_THROW(another.Commit(), Error) << "in each one anew";
}

TEST(Transaction, KeepsNothingOfAStepThatFails)
{
    const MadeDatabase made("CREATE TABLE t(a UNIQUE); INSERT INTO t VALUES(1);"
                            "CREATE TRIGGER f AFTER INSERT ON t WHEN new.a = 2 BEGIN SELECT RAISE(FAIL, 'no'); END;");
    Database database(made.Path(), Access::Write);
    Transaction transaction(database);
    EXPECT_EQ(MessageOf([&] { transaction.Do([&] { database.Execute("INSERT INTO t VALUES(2)"); }); }), "no");
    EXPECT_TRUE(transaction.IsOpen());
    EXPECT_THROW(transaction.Do([&] {
        database.Execute("INSERT INTO t VALUES(3)");
        throw std::runtime_error("anything");
    }),
        std::runtime_error);
    transaction.Do([&] { database.Execute("INSERT INTO t VALUES(4)"); });
    transaction.Commit();
    EXPECT_EQ(CountOf(made.Path()), 2);
}

TEST(Transaction, EndsWhereAnErrorTakesItBack)
{
    const MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES(1);"
                            "CREATE TRIGGER r BEFORE DELETE ON t BEGIN SELECT RAISE(ROLLBACK, 'no'); END;");
    Database database(made.Path(), Access::Write);
    {
        Transaction transaction(database);
        transaction.Do([&] { database.Execute("INSERT INTO t VALUES(2)"); });
        EXPECT_EQ(MessageOf([&] { transaction.Do([&] { database.Execute("DELETE FROM t"); }); }), "no");
        EXPECT_FALSE(transaction.IsOpen());
        EXPECT_THROW(transaction.Do([&] { database.Execute("INSERT INTO t VALUES(3)"); }), Error);
        EXPECT_THROW(transaction.Commit(), Error);
    }
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
