// Rows of a database that refer to one another, and to those of other tables.
#include "document.h"
#include "saved_document.h"
#include "sqlite/made_database.h"

#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;

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
    countries.RemoveRow(1);
    Add(countries, { u"ch" });
    EXPECT_EQ(MessageOfSave(countries), "saved") << "the new one takes its place";
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

TEST(SqliteRows, ReferAsTheyShouldOnlyWhenAllIsDone)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t,"
                            " friend INTEGER REFERENCES t ON DELETE RESTRICT);"
                            "INSERT INTO t VALUES(1, NULL, NULL), (2, 1, 1), (3, 2, NULL), (4, NULL, NULL);");
    Document document = Opened(made.Path());
    document.RemoveRow(0);
    document.Change(1, 1, u"40");
    document.Change(1, 2, u"11");
    document.Change(2, 1, u"40");
    document.Change(3, 0, u"40");
    document.Change(3, 1, u"2");
    Add(document, { u"10", u"11" });
    Add(document, { u"11", u"10" });
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t ORDER BY id"),
        ElementsAre("2|40|11", "3|40|NULL", "10|11|NULL", "11|10|NULL", "40|2|NULL"));
}

TEST(SqliteRows, ThatReferToNothingAreNamed)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t);"
                            "INSERT INTO t VALUES(1, NULL), (2, 1), (3, NULL);");
    Document document = Opened(made.Path());
    document.RemoveRow(0);
    document.Change(1, 1, u"11");
    document.Change(2, 1, u"2");
    Add(document, { u"10", u"11" });
    Add(document, { u"11", u"" });
    const int bad = Add(document, { u"12", u"7" });
    EXPECT_EQ(MessageOfSave(document), "row +3: FOREIGN KEY constraint failed") << "the others are right in the end";
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|NULL", "2|1", "3|NULL"));
    EXPECT_EQ(document.ChangeCount(), 6u);
    document.Change(bad, 1, u"12");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("2|11", "3|2", "10|11", "11|NULL", "12|12"));
}

TEST(SqliteRows, ThatReferAsTheyShouldAreNotNamedForOthers)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t);");
    Document document = Opened(made.Path());
    Add(document, { u"1", u"3" });
    Add(document, { u"2", u"99" });
    Add(document, { u"3", u"" });
    EXPECT_EQ(MessageOfSave(document), "row +2: FOREIGN KEY constraint failed");
}

TEST(SqliteRows, ThatAreStillReferredToAreNamed)
{
    const MadeDatabase made("CREATE TABLE t(a TEXT, b INTEGER, UNIQUE(a, b)); INSERT INTO t VALUES('x', 1), ('x', 2),"
                            " ('y', 1), ('z', 1); CREATE TABLE u(b TEXT, a, FOREIGN KEY(a, b) REFERENCES t(A, B));"
                            "INSERT INTO u VALUES('1', 'y'), (2, 'x'), (7, NULL);");
    Document document = Opened(made.Path(), "t");
    document.RemoveRow(0);
    document.RemoveRow(3);
    document.Change(2, 1, u"3");
    EXPECT_EQ(MessageOfSave(document), "row 3: FOREIGN KEY constraint failed");
    document.Change(2, 1, u"1");
    document.RemoveRow(1);
    EXPECT_EQ(MessageOfSave(document), "row 2: FOREIGN KEY constraint failed");
    document.RestoreRow(1);
    EXPECT_EQ(MessageOfSave(document), "saved");
}

TEST(SqliteRows, WithNothingToReferToHideNoOthers)
{
    MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t);"
                      "INSERT INTO t VALUES(1, NULL), (2, 1), (3, 99);");
    Document document = Opened(made.Path());
    document.RemoveRow(0);
    document.RemoveRow(2);
    EXPECT_EQ(MessageOfSave(document), "row 1: FOREIGN KEY constraint failed") << "2 refers to it";
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|NULL", "2|1", "3|99"));
    document.Change(1, 1, u"");
    EXPECT_EQ(MessageOfSave(document), "saved");

    made.Execute("DROP TABLE t; CREATE TABLE p(id TEXT PRIMARY KEY); INSERT INTO p VALUES('1'), ('2');"
                 "CREATE TABLE t(id TEXT PRIMARY KEY, p REFERENCES p) WITHOUT ROWID;"
                 "INSERT INTO t VALUES('a', 1), ('b', 99);");
    Document children = Opened(made.Path(), "t");
    for (const char16_t* text : { u"77", u"99" }) {
        children.Change(0, 1, text);
        children.Change(1, 1, u"2");
        EXPECT_EQ(MessageOfSave(children), "row 1: FOREIGN KEY constraint failed");
    }
    children.Change(0, 1, u"2");
    EXPECT_EQ(MessageOfSave(children), "saved");
}

TEST(SqliteRows, HideNoneThatOnlyTheDatabaseChanges)
{
    for (const std::string change : { "CREATE TABLE u(id INTEGER PRIMARY KEY REFERENCES t ON DELETE CASCADE);",
             "CREATE TABLE u(id INTEGER PRIMARY KEY);"
             "CREATE TRIGGER d AFTER DELETE ON t BEGIN DELETE FROM u WHERE id = old.id; END;" }) {
        const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t);" + change
            + "CREATE TABLE v(u REFERENCES u); INSERT INTO t VALUES(1, NULL), (2, 99), (3, NULL);"
              "INSERT INTO u VALUES(1); INSERT INTO v VALUES(1);");
        Document document = Opened(made.Path(), "t");
        document.RemoveRow(0);
        document.Change(1, 1, u"3");
        EXPECT_EQ(MessageOfSave(document), "FOREIGN KEY constraint failed") << "a row of v has lost that of u";
        EXPECT_THAT(Rows(made.Path(), "SELECT count(*) FROM u"), ElementsAre("1"));
        document.RestoreRow(0);
        EXPECT_EQ(MessageOfSave(document), "saved");
    }
}

TEST(SqliteRows, WithNothingToReferToCanBeChanged)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t, n);"
                            "INSERT INTO t VALUES(1, 99, 'a'), (2, 98, 'b'), (3, 97, 'c'), (4, 96, 'd');");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"11");
    document.Change(1, 2, u"x");
    document.RemoveRow(2);
    document.Change(3, 1, u"2");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("2|98|'x'", "4|2|'d'", "11|99|'a'"));
}
