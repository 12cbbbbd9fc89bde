#include "vornix/sqlite/database.h"

#include "made_database.h"

#include <fstream>
#include <functional>
#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::sqlite;
using testing::HasSubstr;

namespace {

constexpr std::chrono::milliseconds NoPatience(1);

struct Caught {
    ErrorKind kind = ErrorKind::Other;
    std::string message = "no error";
};

Caught CatchError(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Error& error) {
        return { error.Kind(), error.what() };
    }
    return {};
}

void Overwrite(const std::string& path, std::streamoff position, std::size_t count, char byte)
{
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(position);
    file << std::string(count, byte);
}

std::uint64_t ReadAll(const std::string& path)
{
    const Database database(path, NoPatience);
    Statement statement = database.ReadTable("t");
    std::uint64_t rows = 0;
    while (statement.Next())
        rows += statement.Text(1).size() > 0 ? 1 : 0;
    return rows;
}

} // namespace

TEST(Database, ListsTablesAndViewsInTheOrderOfTheirCreation)
{
    const MadeDatabase made(
        "CREATE VIEW zebra AS SELECT 1; CREATE TABLE mouse(a INTEGER PRIMARY KEY AUTOINCREMENT, b UNIQUE);"
        "CREATE TABLE ant(a); CREATE INDEX i ON ant(a); CREATE TABLE sqliteish(a);");
    const Database database(made.Path());
    const auto tables = database.Tables();
    ASSERT_EQ(tables.size(), 4u);
    EXPECT_EQ(tables[0].name, "zebra");
    EXPECT_TRUE(tables[0].isView);
    EXPECT_EQ(tables[1].name, "mouse");
    EXPECT_FALSE(tables[1].isView);
    EXPECT_EQ(tables[2].name, "ant");
    EXPECT_EQ(tables[3].name, "sqliteish");
}

TEST(Database, FindsATableInAnyCaseAndSaysWhenThereIsNone)
{
    const MadeDatabase made("CREATE TABLE Orders(a);");
    const Database database(made.Path());
    EXPECT_EQ(database.FindTable("oRDERS").name, "Orders");
    const Caught caught = CatchError([&] { database.FindTable("order"); });
    EXPECT_EQ(caught.kind, ErrorKind::Sql);
    EXPECT_EQ(caught.message, "the database has no table or view named order");
}

TEST(Database, ReadsATableWhoseNameNeedsQuotes)
{
    const MadeDatabase made("CREATE TABLE \"a \"\"b\"\"; DROP\"(x); INSERT INTO \"a \"\"b\"\"; DROP\" VALUES(7), (8);");
    const Database database(made.Path());
    const std::string name = database.Tables().front().name;
    EXPECT_EQ(name, "a \"b\"; DROP");
    EXPECT_EQ(database.CountRows(name), 2u);
    Statement statement = database.ReadTable(name);
    ASSERT_TRUE(statement.Next());
    EXPECT_EQ(statement.Integer(0), 7);
}

TEST(Database, OpensNamesThatLookLikeAddressesOrOptions)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    for (const char* name : { "file:x?mode=memory", "100%41#.db", ":memory:", "-o", "sp ace ünï.db" }) {
        const auto path = made.Folder() / name;
        std::filesystem::copy_file(made.Path(), path);
        EXPECT_EQ(Database(path.string()).Tables().size(), 1u) << name;
    }
}

TEST(Database, NeverWrites)
{
    MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES(1);");
    made.CloseWriter();
    const auto before = std::filesystem::last_write_time(made.Path());
    const Database database(made.Path());
    const Caught caught = CatchError([&] { database.ReadQuery("INSERT INTO t VALUES(2) RETURNING a"); });
    EXPECT_EQ(caught.kind, ErrorKind::NotAQuery);
    EXPECT_THAT(caught.message, HasSubstr("would change the database"));
    EXPECT_EQ(database.CountRows("t"), 1u);
    EXPECT_EQ(std::filesystem::last_write_time(made.Path()), before);
}

TEST(Database, RefusesWhatIsNoSingleQueryWithColumns)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    const Database database(made.Path());
    const auto messageOf = [&](const char* sql) { return CatchError([&] { database.ReadQuery(sql); }).message; };
    EXPECT_EQ(messageOf("DELETE FROM t"), "the query returns no columns");
    EXPECT_EQ(messageOf("ATTACH 'other.db' AS other"), "the query returns no columns");
    EXPECT_EQ(messageOf(""), "the query is empty");
    EXPECT_EQ(messageOf("  -- nothing but a remark"), "the query is empty");
    EXPECT_EQ(messageOf("SELECT 1; SELECT 2"), "the query is more than one statement");
    EXPECT_EQ(messageOf("SELECT 1; -- and that is all\n"), "no error");
}

TEST(Database, ReportsSqlErrorsInOneLine)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    const Database database(made.Path());
    const Caught syntax = CatchError([&] { database.ReadQuery("SELEC 1"); });
    EXPECT_EQ(syntax.kind, ErrorKind::Sql);
    EXPECT_EQ(syntax.message, "SQL error: near \"SELEC\": syntax error");
    EXPECT_EQ(CatchError([&] { database.ReadQuery("SELECT \"b\nb\".x FROM t"); }).message,
        "SQL error: no such column: b b.x");
}

TEST(Database, SaysThatAViewOfAMissingTableDoesNotWork)
{
    const MadeDatabase made("CREATE VIEW v AS SELECT * FROM gone;");
    const Database database(made.Path());
    EXPECT_EQ(CatchError([&] { database.ReadTable("v"); }).message, "SQL error: no such table: main.gone");
}

TEST(Database, RecognisesAFileThatIsNoDatabase)
{
    const MadeDatabase made("");
    const std::string path = (made.Folder() / "text.db").string();
    std::ofstream(path) << std::string(5000, 'x');
    const Caught caught = CatchError([&] { Database database(path); });
    EXPECT_EQ(caught.kind, ErrorKind::NotADatabase);
    EXPECT_EQ(caught.message, "this is not a SQLite database (or an encrypted one)");
}

TEST(Database, SaysWhyAFileCannotBeOpened)
{
    const MadeDatabase made("");
    const Caught missing = CatchError([&] { Database database((made.Folder() / "none.db").string()); });
    EXPECT_EQ(missing.kind, ErrorKind::CannotOpen);
    EXPECT_EQ(missing.message, "No such file or directory");
    EXPECT_EQ(CatchError([&] { Database database(made.Folder().string()); }).message, "Is a directory");
}

TEST(Database, RecognisesALockOfAnotherProgram)
{
    MadeDatabase made("CREATE TABLE t(a);");
    made.Execute("BEGIN EXCLUSIVE");
    const Caught caught = CatchError([&] { Database database(made.Path(), NoPatience); });
    EXPECT_EQ(caught.kind, ErrorKind::InUse);
    EXPECT_EQ(caught.message, "the database is in use: another program has locked it");
    made.Execute("COMMIT");
    EXPECT_EQ(Database(made.Path(), NoPatience).Tables().size(), 1u);
}

TEST(Database, RecognisesATruncatedFileAtEveryLength)
{
    MadeDatabase made(ManyRows(2000));
    made.CloseWriter();
    const auto size = std::filesystem::file_size(made.Path());
    ASSERT_GT(size, 100'000u);
    for (const double share : { 0.99, 0.7, 0.31, 0.1, 0.02 }) {
        std::filesystem::resize_file(made.Path(), static_cast<std::uintmax_t>(static_cast<double>(size) * share));
        const Caught caught = CatchError([&] { ReadAll(made.Path()); });
        EXPECT_EQ(caught.kind, ErrorKind::Damaged) << share << ": " << caught.message;
        EXPECT_THAT(caught.message, HasSubstr("the database is damaged")) << share;
    }
    std::filesystem::resize_file(made.Path(), 60);
    EXPECT_EQ(CatchError([&] { ReadAll(made.Path()); }).kind, ErrorKind::Damaged);
}

TEST(Database, RecognisesOverwrittenPages)
{
    MadeDatabase made(ManyRows(2000));
    made.CloseWriter();
    EXPECT_EQ(ReadAll(made.Path()), 2000u);
    Overwrite(made.Path(), 4096 * 10, 4096, '\x7F');
    const Caught caught = CatchError([&] { ReadAll(made.Path()); });
    EXPECT_EQ(caught.kind, ErrorKind::Damaged);
}

TEST(Database, ReadsAWriteAheadDatabaseInAFolderThatCannotBeWritten)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser may write everywhere";
    MadeDatabase made("PRAGMA journal_mode=WAL; CREATE TABLE t(n, text); INSERT INTO t VALUES(1, 'x');");
    made.CloseWriter();
    std::filesystem::permissions(made.Folder(), std::filesystem::perms(0555));
    EXPECT_EQ(ReadAll(made.Path()), 1u);
    std::filesystem::permissions(made.Folder(), std::filesystem::perms(0755));
}

TEST(Database, SeesCommittedChangesThatAreStillBesideTheFile)
{
    MadeDatabase made("PRAGMA journal_mode=WAL; CREATE TABLE t(n, text); INSERT INTO t VALUES(1, 'x'), (2, 'y');");
    ASSERT_GT(std::filesystem::file_size(made.Path() + "-wal"), 0u);
    EXPECT_EQ(ReadAll(made.Path()), 2u);
}

TEST(Database, CallsTheProgressFunctionAndStopsWhenToldTo)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    Database database(made.Path());
    int calls = 0;
    database.SetProgress([&] { return ++calls < 5; });
    Statement statement
        = database.ReadQuery("WITH RECURSIVE c(n) AS (VALUES(1) UNION ALL SELECT n + 1 FROM c) SELECT count(*) FROM c");
    const Caught caught = CatchError([&] { statement.Next(); });
    EXPECT_EQ(caught.kind, ErrorKind::Stopped);
    EXPECT_EQ(calls, 5);
}

TEST(Database, KnowsItsFirstBytes)
{
    MadeDatabase made("CREATE TABLE t(a);");
    made.CloseWriter();
    std::ifstream file(made.Path(), std::ios::binary);
    std::string bytes(16, '\0');
    file.read(bytes.data(), 16);
    EXPECT_TRUE(IsDatabaseHeader(bytes));
    EXPECT_FALSE(IsDatabaseHeader(bytes.substr(0, 15)));
    EXPECT_FALSE(IsDatabaseHeader("id;name;price;paid"));
}
