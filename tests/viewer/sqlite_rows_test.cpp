// Rows that are added to a table of a database and removed from it.
#include "document.h"
#include "saved_database.h"
#include "sqlite/made_database.h"

#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A new last row with these texts; an empty one is not given.
int Add(Document& document, const std::vector<std::u16string>& texts)
{
    const std::vector<int> rows = document.Rows();
    const int row = document.AddRow(rows.empty() ? -1 : rows.back(), Records::Side::Behind);
    for (std::size_t column = 0; column < texts.size(); ++column) {
        if (!texts[column].empty())
            document.Change(row, static_cast<int>(column), texts[column]);
    }
    return row;
}

} // namespace

TEST(SqliteRows, AreAddedWithWhatTheTableGivesThem)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, name TEXT NOT NULL DEFAULT 'nobody', n INTEGER,"
                            " twice INTEGER AS (n * 2)); INSERT INTO t(id, name, n) VALUES(5, 'a', 1);");
    Document document = Opened(made.Path());
    const int first = Add(document, { u"", u"b", u"007" });
    const int second = Add(document, {});
    EXPECT_FALSE(document.CanChange(first, 3)) << "it is computed";
    EXPECT_THAT(document.Save(),
        ElementsAre(CellText { first, 0, u"6" }, CellText { first, 2, u"7" }, CellText { first, 3, u"14" },
            CellText { second, 0, u"7" }, CellText { second, 1, u"nobody" }));
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("5|'a'|1|2", "6|'b'|7|14", "7|'nobody'|NULL|NULL"));
    document.Change(second, 1, u"c");
    EXPECT_EQ(MessageOfSave(document), "saved") << "it is a row like others now";
    document.RemoveRow(first);
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT id, name FROM t"), ElementsAre("5|'a'", "7|'c'"));
}

TEST(SqliteRows, AreRemoved)
{
    const MadeDatabase made("CREATE TABLE t(a, b, PRIMARY KEY(a, b)) WITHOUT ROWID;"
                            "INSERT INTO t VALUES(1, 1), (1, 2), (2, 1), (2, 2);");
    Document document = Opened(made.Path());
    document.RemoveRow(1);
    document.RemoveRow(2);
    document.Change(3, 1, u"9");
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|1", "2|9"));
    EXPECT_THAT(document.Rows(), ElementsAre(0, 3));
    document.RemoveRow(0);
    document.RemoveRow(3);
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT count(*) FROM t"), ElementsAre("0"));
    Add(document, { u"7", u"8" });
    EXPECT_EQ(MessageOfSave(document), "saved") << "into the empty table";
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("7|8"));
}

TEST(SqliteRows, TakeThePlacesOfOthersInOneTurn)
{
    const MadeDatabase made("CREATE TABLE t(name TEXT UNIQUE); INSERT INTO t VALUES('a'), ('b'), ('c');");
    Document document = Opened(made.Path());
    document.RemoveRow(0);
    document.Change(1, 0, u"a");
    Add(document, { u"b" });
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT name FROM t"), ElementsAre("'a'", "'c'", "'b'"));
}

TEST(SqliteRows, TellWhatTheDatabaseDoesNotTake)
{
    MadeDatabase made(
        "CREATE TABLE t(name TEXT NOT NULL, n INTEGER UNIQUE CHECK(n > 0)); INSERT INTO t VALUES('a', 1);");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"changed");
    const int good = Add(document, { u"b", u"2" });
    const int bad = Add(document, { u"", u"3" });
    EXPECT_EQ(MessageOfSave(document), "row +2: NOT NULL constraint failed: t.name");
    document.Change(bad, 0, u"c");
    document.Change(bad, 1, u"1");
    EXPECT_EQ(MessageOfSave(document), "row +2: UNIQUE constraint failed: t.n");
    document.Change(bad, 1, u"-1");
    EXPECT_EQ(MessageOfSave(document), "row +2: CHECK constraint failed: n > 0");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("'a'|1")) << "all or nothing";
    EXPECT_EQ(document.ChangeCount(), 3u) << "nothing is lost";
    EXPECT_EQ(document.Text(good, 0), u"b");
    document.Change(bad, 1, u"3");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("'changed'|1", "'b'|2", "'c'|3"));
}

TEST(SqliteRows, RemoveNoOtherRowWhateverTheTableSays)
{
    const MadeDatabase made("CREATE TABLE t(n INTEGER UNIQUE ON CONFLICT REPLACE); INSERT INTO t VALUES(1);");
    Document document = Opened(made.Path());
    Add(document, { u"1" });
    EXPECT_EQ(MessageOfSave(document), "row +1: UNIQUE constraint failed: t.n");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1"));
}

TEST(SqliteRows, MindForeignKeys)
{
    const MadeDatabase made("CREATE TABLE countries(code TEXT PRIMARY KEY);"
                            "INSERT INTO countries VALUES('at'), ('ch');"
                            "CREATE TABLE cities(name TEXT, country TEXT REFERENCES countries);"
                            "INSERT INTO cities VALUES('Bern', 'ch');");
    Document countries = Opened(made.Path(), "countries");
    countries.RemoveRow(0);
    countries.RemoveRow(1);
    EXPECT_EQ(MessageOfSave(countries), "row 2: FOREIGN KEY constraint failed");
    EXPECT_THAT(Rows(made.Path(), "SELECT count(*) FROM countries"), ElementsAre("2"));
    countries.RestoreRow(1);
    EXPECT_EQ(MessageOfSave(countries), "saved");
    Document cities = Opened(made.Path(), "cities");
    Add(cities, { u"Wien", u"at" });
    EXPECT_EQ(MessageOfSave(cities), "row +1: FOREIGN KEY constraint failed");
}

TEST(SqliteRows, ThatReferToOneAnotherFindTheirTurn)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t);"
                            "INSERT INTO t VALUES(1, NULL), (2, 1), (3, 2), (4, NULL);");
    Document document = Opened(made.Path());
    for (const int row : { 0, 1, 2 })
        document.RemoveRow(row);
    Add(document, { u"12", u"11" });
    Add(document, { u"11", u"10" });
    Add(document, { u"10", u"" });
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t ORDER BY id"), ElementsAre("4|NULL", "10|NULL", "11|10", "12|11"));
}

TEST(SqliteRows, ThatGoWithOthersAreGone)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t ON DELETE CASCADE);"
                            "INSERT INTO t VALUES(1, NULL), (2, 1), (3, 2), (4, NULL), (5, 4);");
    Document document = Opened(made.Path());
    document.RemoveRow(0);
    document.RemoveRow(2);
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT id FROM t"), ElementsAre("4", "5"));
    EXPECT_THAT(document.Rows(), ElementsAre(3, 4));
    document.Change(4, 1, u"");
    EXPECT_EQ(MessageOfSave(document), "saved");
    document.RemoveRow(3);
    document.Change(4, 1, u"4");
    EXPECT_EQ(MessageOfSave(document), "row 2: FOREIGN KEY constraint failed");
}

TEST(SqliteRows, ShowWhatRemovingChangesInOthers)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t ON DELETE SET NULL);"
                            "INSERT INTO t VALUES(1, NULL), (2, 1);");
    Document document = Opened(made.Path());
    document.RemoveRow(0);
    EXPECT_THAT(document.Save(), ElementsAre(CellText { 1, 1, u"" }));
    document.RemoveRow(1);
    EXPECT_EQ(MessageOfSave(document), "saved") << "it was read again";
}

TEST(SqliteRows, ShowWhatTriggersMakeOfNewOnes)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, name TEXT, stamp TEXT);"
                            "CREATE TRIGGER g AFTER INSERT ON t BEGIN"
                            " UPDATE t SET stamp = 'x' || new.name WHERE id = new.id; END;");
    Document document = Opened(made.Path());
    const int row = Add(document, { u"9", u"a" });
    EXPECT_THAT(document.Save(), ElementsAre(CellText { row, 2, u"xa" }));
}

TEST(SqliteRows, AreNotRemovedWhereAnotherProgramHasChangedThem)
{
    MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES('x'), ('y');");
    Document document = Opened(made.Path());
    document.RemoveRow(1);
    made.Execute("UPDATE t SET a = 'z' WHERE a = 'y'");
    EXPECT_EQ(MessageOfSave(document), "row 2: another program has changed it since it was read");
    made.Execute("DELETE FROM t WHERE a = 'z'");
    EXPECT_EQ(MessageOfSave(document), "row 2: another program has removed it since it was read");
    EXPECT_TRUE(document.RestoreRow(1)) << "it can still be taken back";
}

TEST(SqliteRows, ThatATriggerKeepsStay)
{
    const MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES('x');"
                            "CREATE TRIGGER k BEFORE DELETE ON t BEGIN SELECT RAISE(IGNORE); END;"
                            "CREATE TABLE u(a); CREATE TRIGGER i BEFORE INSERT ON u BEGIN SELECT RAISE(IGNORE); END;"
                            "INSERT INTO u VALUES('none');");
    Document document = Opened(made.Path(), "t");
    document.RemoveRow(0);
    EXPECT_EQ(MessageOfSave(document), "row 1: the database does not remove it");
    Document other = Opened(made.Path(), "u");
    Add(other, { u"x" });
    EXPECT_EQ(MessageOfSave(other), "row +1: the database does not take it");
}

TEST(SqliteRows, WithoutAKeyStay)
{
    const MadeDatabase made("CREATE TABLE t(rowid, _rowid_, oid, k TEXT PRIMARY KEY);"
                            "INSERT INTO t VALUES(1, 2, 3, NULL), (1, 2, 3, 'a');");
    Document document = Opened(made.Path());
    EXPECT_FALSE(document.CanRemove(0));
    EXPECT_TRUE(document.CanRemove(1));
}
