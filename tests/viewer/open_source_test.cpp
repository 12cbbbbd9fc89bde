#include "open_source.h"

#include "scratch_folder.h"
#include "sqlite/made_database.h"

#include <gtest/gtest.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

ViewerOptions Opening(const std::string& path)
{
    ViewerOptions options;
    options.file = path;
    return options;
}

std::string MessageOf(const ViewerOptions& options)
{
    try {
        OpenSource(options, {}, {});
    } catch (const LoadError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(OpenSource, KnowsADatabaseByItsContentWhateverItsName)
{
    const MadeDatabase made("CREATE TABLE first(a); INSERT INTO first VALUES(1); CREATE TABLE second(b);");
    const auto path = made.Folder() / "export.csv";
    std::filesystem::copy_file(made.Path(), path);
    const Table table = OpenSource(Opening(path.string()), {}, {});
    EXPECT_EQ(table.Name(), u"first");
    EXPECT_EQ(table.RowCount(), 1);
}

TEST(OpenSource, ReadsAnyOtherFileAsText)
{
    const ScratchFolder folder;
    const Table table = OpenSource(Opening(folder.Write("größen.data", "id,name\n1,x\n")), {}, {});
    EXPECT_EQ(table.Name(), u"größen.data");
    EXPECT_EQ(table.ColumnCount(), 2);
}

TEST(OpenSource, InsistsOnADatabaseWhereOneIsMeant)
{
    const ScratchFolder folder;
    const std::string message = "this is not a SQLite database (or an encrypted one)";
    EXPECT_EQ(MessageOf(Opening(folder.Write("x.DB", "id,name\n1,x\n"))), message);
    EXPECT_EQ(MessageOf(Opening(folder.Write("x.sqlite3", "id,name\n1,x\n"))), message);
    ViewerOptions options = Opening(folder.Write("x.csv", "id,name\n1,x\n"));
    options.table = "id";
    EXPECT_EQ(MessageOf(options), message);
    options.table.reset();
    options.query = "SELECT 1";
    EXPECT_EQ(MessageOf(options), message);
}

TEST(OpenSource, TakesTheTableOrTheQueryThatWasAskedFor)
{
    const MadeDatabase made("CREATE TABLE first(a); CREATE VIEW Second AS SELECT 5 AS five;");
    ViewerOptions options = Opening(made.Path());
    options.table = "second";
    EXPECT_EQ(OpenSource(options, {}, {}).Name(), u"Second");
    options.table = "third";
    EXPECT_EQ(MessageOf(options), "the database has no table or view named third");
    options.table.reset();
    options.query = "SELECT five FROM second";
    const Table result = OpenSource(options, {}, {});
    EXPECT_EQ(result.Name(), u"made.db");
    EXPECT_EQ(result.Text(0, 0), u"5");
}

TEST(OpenSource, SaysWhenADatabaseHasNoTables)
{
    const MadeDatabase made("CREATE TABLE t(a); DROP TABLE t;");
    EXPECT_EQ(MessageOf(Opening(made.Path())), "the database has no tables");
}

TEST(OpenSource, KeepsTheDatabaseLockedForNobodyAfterwards)
{
    MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES(1);");
    const Table table = OpenSource(Opening(made.Path()), {}, {});
    made.Execute("BEGIN EXCLUSIVE; INSERT INTO t VALUES(2); COMMIT;");
    EXPECT_EQ(table.RowCount(), 1);
}

TEST(OpenSource, ListsWhatThereIs)
{
    const MadeDatabase made("CREATE TABLE first(a); CREATE VIEW second AS SELECT 1;");
    const auto entries = ListSource(Opening(made.Path()));
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].name, "first");
    EXPECT_EQ(entries[0].kind, "table");
    EXPECT_EQ(entries[1].kind, "view");

    const ScratchFolder folder;
    const auto file = ListSource(Opening(folder.Write("a.csv", "x")));
    ASSERT_EQ(file.size(), 1u);
    EXPECT_EQ(file[0].name, "a.csv");
    EXPECT_EQ(file[0].kind, "file");
}

TEST(OpenForChanging, ReadsTheSameTable)
{
    const ScratchFolder folder;
    ViewerOptions text = Opening(folder.Write("a.csv", "id,paid\n1,yes\n2,no\n"));
    const ChangeableSource file = OpenForChanging(text, {}, {});
    EXPECT_EQ(file.table->Name(), u"a.csv");
    EXPECT_EQ(file.table->Text(1, 1), u"0");
    EXPECT_FALSE(file.saver->WhyReadOnly());
    EXPECT_TRUE(file.saver->CanChange(0, 0));

    const MadeDatabase made(
        "CREATE TABLE first(a DECIMAL(10,2), b); INSERT INTO first VALUES(1234.5, 'x'), (2, NULL);");
    const ChangeableSource table = OpenForChanging(Opening(made.Path()), {}, {});
    EXPECT_EQ(table.table->Name(), u"first");
    ASSERT_EQ(table.table->ColumnCount(), 2) << "what identifies the rows is not shown";
    EXPECT_EQ(table.table->Columns()[0].name, u"a");
    EXPECT_EQ(table.table->Columns()[0].kind, ColumnKind::Money);
    EXPECT_EQ(table.table->Text(0, 0), u"1234.5");
    EXPECT_TRUE(table.table->IsNull(1, 1));
    EXPECT_FALSE(table.saver->WhyReadOnly());
}

TEST(OpenForChanging, FindsTheFaultsThatReadingFinds)
{
    const ScratchFolder folder;
    const auto message = [](const ViewerOptions& options) {
        try {
            OpenForChanging(options, {}, {});
        } catch (const LoadError& error) {
            return std::string(error.what());
        }
        return std::string("no error");
    };
    EXPECT_EQ(message(Opening(folder.Path("none"))), "there is no such file");
    EXPECT_EQ(message(Opening(folder.Write("fake.db", "x"))), "this is not a SQLite database (or an encrypted one)");
    EXPECT_EQ(message(Opening(folder.Write("a.csv", "a,b\n1\n"))),
        "line 2: the rows are ragged: this one has 1 field, line 1 has 2");
    const MadeDatabase made("CREATE TABLE t(a);");
    ViewerOptions options = Opening(made.Path());
    options.table = "none";
    EXPECT_EQ(message(options), "the database has no table or view named none");
    options.table.reset();
    options.query = "SELECT 1";
    EXPECT_EQ(message(options), "the rows of a query cannot be changed");
    MadeDatabase locked("CREATE TABLE t(a);");
    locked.Execute("BEGIN EXCLUSIVE");
    EXPECT_EQ(message(Opening(locked.Path())), "the database is in use: another program has locked it");
}

TEST(OpenForChanging, LeavesRowsOutAsReadingDoes)
{
    LoadLimits limits;
    limits.maxRows = 10;
    const MadeDatabase made(ManyRows(50));
    const ChangeableSource source = OpenForChanging(Opening(made.Path()), limits, {});
    EXPECT_EQ(source.table->RowCount(), 10);
    EXPECT_EQ(source.table->TotalRows(), 50u);
}
