#include "sqlite_saver.h"

#include "as_ordinary_user.h"
#include "document.h"
#include "saved_document.h"
#include "sqlite/made_database.h"
#include "unicode.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SqliteSaver, ChangesRowsByTheirRowId)
{
    const MadeDatabase made("CREATE TABLE t(name TEXT, n INTEGER); INSERT INTO t VALUES('a', 1), ('a', 1), ('b', 2);");
    Document document = Opened(made.Path());
    document.Change(1, 0, u"it's Ọlá");
    document.Change(1, 1, u"17");
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("'a'|1", "'it's Ọlá'|17", "'b'|2"));
}

TEST(SqliteSaver, ChangesRowsByAnIntegerPrimaryKeyAndTheKeyItself)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, n TEXT); INSERT INTO t VALUES(5, 'a'), (7, 'b');");
    Document document = Opened(made.Path());
    document.Change(1, 1, u"B");
    document.Change(0, 0, u"6");
    EXPECT_EQ(MessageOfSave(document), "saved");
    document.Change(0, 1, u"A");
    EXPECT_EQ(MessageOfSave(document), "saved") << "the row is found under its new key";
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("6|'A'", "7|'B'"));
}

TEST(SqliteSaver, ChangesRowsByACompositeKeyWithoutARowId)
{
    const MadeDatabase made("CREATE TABLE t(n, \"b b\" TEXT, a INTEGER, PRIMARY KEY(a, \"b b\")) WITHOUT ROWID;"
                            "INSERT INTO t VALUES(1, 'x', 1), (2, 'y', 1), (3, 'x', 2);");
    Document document = Opened(made.Path());
    ASSERT_EQ(document.Saved().Text(1, 1), u"y");
    document.Change(1, 0, u"20");
    document.Change(2, 1, u"z");
    EXPECT_EQ(MessageOfSave(document), "saved");
    document.Change(2, 0, u"30");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|'x'|1", "20|'y'|1", "30|'z'|2"));
}

TEST(SqliteSaver, FindsTheRowIdUnderAnyOfItsNames)
{
    const MadeDatabase made("CREATE TABLE t(RowId TEXT, _rowid_ TEXT); INSERT INTO t VALUES('a', 'b'), ('c', 'd');"
                            "CREATE TABLE all_taken(rowid, _rowid_, oid); INSERT INTO all_taken VALUES(1, 2, 3);"
                            "CREATE TABLE keyed(rowid PRIMARY KEY, _rowid_, oid); INSERT INTO keyed VALUES(1, 2, 3);");
    Document document = Opened(made.Path(), "t");
    document.Change(1, 0, u"C");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("'a'|'b'", "'C'|'d'"));
    EXPECT_EQ(Opened(made.Path(), "all_taken").WhyReadOnly(), "its rows have nothing to tell them apart by");
    Document keyed = Opened(made.Path(), "keyed");
    keyed.Change(0, 2, u"4");
    EXPECT_EQ(MessageOfSave(keyed), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM keyed"), ElementsAre("1|2|4"));
}

TEST(SqliteSaver, SaysWhyViewsAndVirtualTablesAreReadOnly)
{
    const MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES(1); CREATE VIEW v AS SELECT a FROM t;"
                            "CREATE VIRTUAL TABLE f USING fts5(a);");
    Document view = Opened(made.Path(), "v");
    EXPECT_EQ(view.WhyReadOnly(), "it is a view, which has no rows of its own");
    EXPECT_EQ(view.Saved().Text(0, 0), u"1");
    EXPECT_FALSE(view.CanChange(0, 0));
    EXPECT_THROW(view.Change(0, 0, u"2"), std::logic_error);
    EXPECT_EQ(Opened(made.Path(), "f").WhyReadOnly(), "it is a virtual table");
}

TEST(SqliteSaver, LetsNoBlobNoBadTextAndNoComputedColumnBeChanged)
{
    const MadeDatabase made(
        "CREATE TABLE t(a TEXT, b AS (a || '!'), c AS (a) STORED);"
        "INSERT INTO t VALUES('x'), (x'00'), (CAST(x'41FF' AS TEXT)), (CAST(x'410042' AS TEXT)), ('\uFFFD');");
    const Document document = Opened(made.Path());
    EXPECT_TRUE(document.CanChange(0, 0));
    EXPECT_FALSE(document.CanChange(0, 1));
    EXPECT_FALSE(document.CanChange(0, 2));
    EXPECT_FALSE(document.CanChange(1, 0)) << "a blob";
    EXPECT_FALSE(document.CanChange(2, 0)) << "no UTF-8";
    EXPECT_FALSE(document.CanChange(3, 0)) << "a NUL in the middle";
    EXPECT_TRUE(document.CanChange(4, 0));
}

TEST(SqliteSaver, KeepsTheTypesOfColumns)
{
    const MadeDatabase made("CREATE TABLE t(i INTEGER, r REAL, d DECIMAL(10,2), s TEXT, x, b BLOB);"
                            "INSERT INTO t VALUES(1, 1.5, 1234.5, '1', 1, 2), (2, 2.5, 2, '2', 2.5, 3);");
    Document document = Opened(made.Path());
    EXPECT_EQ(document.Saved().Text(0, 2), u"1234.5") << "as it is stored, not as it is shown to readers";
    for (int column = 0; column < 6; ++column)
        document.Change(0, column, u"007");
    EXPECT_THAT(document.Save(),
        ElementsAre(CellText { 0, 0, u"7" }, CellText { 0, 1, u"7" }, CellText { 0, 2, u"7" }, CellText { 0, 4, u"7" },
            CellText { 0, 5, u"7" }));
    EXPECT_EQ(document.Text(0, 0), u"7");
    EXPECT_EQ(document.Text(0, 3), u"007");
    for (int column = 0; column < 6; ++column)
        document.Change(1, column, u"4 or so");
    EXPECT_THAT(document.Save(), IsEmpty());
    document.Change(0, 4, u"2.50");
    EXPECT_THAT(document.Save(), ElementsAre(CellText { 0, 4, u"2.5" }));
    EXPECT_THAT(Rows(made.Path(), "SELECT i, r, d, s, x, b FROM t"),
        ElementsAre("7|7.0|7|'007'|2.5|7", "'4 or so'|'4 or so'|'4 or so'|'4 or so'|'4 or so'|'4 or so'"));
    EXPECT_THAT(Rows(made.Path(), "SELECT typeof(i), typeof(r), typeof(x), typeof(b) FROM t LIMIT 1"),
        ElementsAre("'integer'|'real'|'real'|'integer'"));
}

TEST(SqliteSaver, KeepsNullsAndMakesThemOfEmptiedNumbers)
{
    const MadeDatabase made(
        "CREATE TABLE t(s TEXT, n INTEGER, d DATE, b BOOLEAN);"
        "INSERT INTO t VALUES(NULL, NULL, NULL, 1), ('a', 1, '2024-01-31', 0), ('b', 2, '2024-02-29', NULL);");
    Document document = Opened(made.Path());
    document.Change(0, 1, u"5");
    document.Change(0, 0, u"x");
    document.Change(0, 0, u"");
    for (int column = 0; column < 3; ++column)
        document.Change(1, column, u"");
    document.Change(2, 3, u"1");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(
        Rows(made.Path(), "SELECT * FROM t"), ElementsAre("NULL|5|NULL|1", "''|NULL|NULL|0", "'b'|2|'2024-02-29'|1"));
}

TEST(SqliteSaver, WritesTruthValuesAsTheColumnDoes)
{
    const MadeDatabase made("CREATE TABLE t(a BOOLEAN, b BOOLEAN); INSERT INTO t VALUES(1, 'true'), (0, 'true');");
    Document document = Opened(made.Path());
    ASSERT_EQ(document.Saved().Text(0, 0), u"-1");
    document.Change(0, 0, u"0");
    document.Change(1, 0, u"-1");
    document.Change(1, 1, u"0");
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("0|'true'", "1|'false'"));
}

TEST(SqliteSaver, ShowsWhatTheDatabaseHasMadeOfARow)
{
    const MadeDatabase made("CREATE TABLE t(a TEXT, changes INTEGER, twice AS (a || a));"
                            "INSERT INTO t VALUES('x', 0), ('y', 0);"
                            "CREATE TRIGGER u AFTER UPDATE OF a ON t BEGIN"
                            " UPDATE t SET changes = changes + 1 WHERE rowid = new.rowid; END;");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"z");
    EXPECT_THAT(document.Save(), ElementsAre(CellText { 0, 1, u"1" }, CellText { 0, 2, u"zz" }));
    document.Change(0, 0, u"w");
    EXPECT_THAT(document.Save(), ElementsAre(CellText { 0, 1, u"2" }, CellText { 0, 2, u"ww" }))
        << "what the trigger did is no change by another program";
}

TEST(SqliteSaver, RemovesNoRowForTheSakeOfAnother)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY ON CONFLICT REPLACE, u UNIQUE ON CONFLICT REPLACE);"
                            "INSERT INTO t VALUES(1, 'a'), (2, 'b');");
    for (const int column : { 0, 1 }) {
        Document document = Opened(made.Path());
        document.Change(0, column, column == 0 ? u"2" : u"b");
        EXPECT_EQ(MessageOfSave(document),
            column == 0 ? "row 1: UNIQUE constraint failed: t.id" : "row 1: UNIQUE constraint failed: t.u");
        EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|'a'", "2|'b'"));
    }
    Document document = Opened(made.Path());
    document.Change(0, 0, u"7");
    document.Change(1, 0, u"7");
    EXPECT_EQ(MessageOfSave(document), "row 2: UNIQUE constraint failed: t.id");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|'a'", "2|'b'"));
}

TEST(SqliteSaver, RefusesARowThatTheSavingOfAnotherChanges)
{
    const MadeDatabase made("CREATE TABLE t(a, b); INSERT INTO t VALUES('x', 1), ('y', 2);"
                            "CREATE TRIGGER u AFTER UPDATE OF a ON t BEGIN UPDATE t SET b = b + 1; END;");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"X");
    document.Change(1, 1, u"5");
    EXPECT_EQ(MessageOfSave(document), "row 2: the database changes it when another changed row is saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("'x'|1", "'y'|2"));
}

TEST(SqliteSaver, RefusesAKeyThatSeveralRowsHave)
{
    const std::string columns = "_rowid_, oid)";
    MadeDatabase made("CREATE TABLE t(rowid PRIMARY KEY, " + columns + "; INSERT INTO t VALUES(1, 2, 3);");
    Document document = Opened(made.Path());
    document.Change(0, 2, u"4");
    made.Execute("DROP TABLE t; CREATE TABLE t(rowid, " + columns + "; INSERT INTO t VALUES(1, 2, 3), (1, 2, 3);");
    EXPECT_EQ(MessageOfSave(document), "row 1: its key is that of other rows too");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|2|3", "1|2|3"));
}

TEST(SqliteSaver, LetsNoRowBeChangedThatHasANullForAKey)
{
    const MadeDatabase made("CREATE TABLE t(rowid PRIMARY KEY, _rowid_, oid);"
                            "INSERT INTO t VALUES(1, 2, 3), (NULL, 4, 5), (NULL, 6, 7);");
    const Document document = Opened(made.Path());
    EXPECT_TRUE(document.CanChange(0, 2));
    EXPECT_FALSE(document.CanChange(1, 2));
    EXPECT_FALSE(document.CanChange(2, 0));
    EXPECT_THAT(document.Saved().Notices(), ElementsAre("2 rows without a key cannot be changed"));
}

TEST(SqliteSaver, RefusesTextsThatCouldNotBeReadAgain)
{
    const std::u16string longest(1 << 20, u'x');
    const MadeDatabase made(
        "CREATE TABLE t(a TEXT, b TEXT, c AS (a || b)); INSERT INTO t VALUES('x', 'y'), ('z', '');");
    Document document = Opened(made.Path());
    document.Change(1, 0, longest + u"x");
    EXPECT_EQ(
        MessageOfSave(document), "row 2, column a: a text is longer than 1048576 characters, the most a cell takes");
    document.Change(1, 0, longest);
    EXPECT_EQ(MessageOfSave(document), "saved");
    document.Change(0, 0, longest);
    EXPECT_EQ(
        MessageOfSave(document), "row 1, column c: a text is longer than 1048576 characters, the most a cell takes");
    EXPECT_THAT(Rows(made.Path(), "SELECT length(a) FROM t"), ElementsAre("1", "1048576"));
}

TEST(SqliteSaver, ReadsTheOtherRowsAgainThatTheDatabaseHasChanged)
{
    MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent REFERENCES t ON UPDATE CASCADE, n);"
                      "INSERT INTO t VALUES(1, NULL, 0), (2, 1, 0), (3, 2, 0);"
                      "CREATE TRIGGER u AFTER UPDATE OF n ON t BEGIN UPDATE t SET parent = NULL WHERE id = 3; END;");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"10");
    EXPECT_THAT(document.Save(), ElementsAre(CellText { 1, 1, u"10" }));
    EXPECT_EQ(document.Text(1, 1), u"10");
    document.Change(0, 2, u"5");
    EXPECT_THAT(document.Save(), ElementsAre(CellText { 2, 1, u"" }));
    document.Change(1, 2, u"6");
    document.Change(2, 0, u"30");
    EXPECT_EQ(MessageOfSave(document), "saved") << "nobody else has changed these";
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("2|10|6", "10|NULL|5", "30|NULL|0"));
}

TEST(SqliteSaver, RefusesRowsThatAnotherProgramHasChangedOrRemoved)
{
    MadeDatabase made(
        "CREATE TABLE t(a TEXT, b, c BLOB); INSERT INTO t VALUES('x', 1, x'01'), ('y', 2, x'02'), ('z', 3, x'03');");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"X");
    document.Change(1, 0, u"Y");
    const auto untouched = [&] { return Rows(made.Path(), "SELECT a FROM t WHERE a IN ('X', 'Y')").empty(); };
    for (const char* change : { "UPDATE t SET b = 20 WHERE a = 'y'", "UPDATE t SET b = 2.0 WHERE a = 'y'",
             "UPDATE t SET b = '2' WHERE a = 'y'", "UPDATE t SET b = NULL WHERE a = 'y'",
             "UPDATE t SET c = x'04' WHERE a = 'y'" }) {
        made.Execute(change);
        EXPECT_EQ(MessageOfSave(document), "row 2: another program has changed it since it was read") << change;
        EXPECT_TRUE(untouched()) << change;
        EXPECT_EQ(document.ChangeCount(), 2u);
    }
    made.Execute("UPDATE t SET b = 2, c = x'02' WHERE a = 'y'; DELETE FROM t WHERE a = 'x'");
    EXPECT_EQ(MessageOfSave(document), "row 1: another program has removed it since it was read");
    EXPECT_TRUE(untouched());
    made.Execute("INSERT INTO t(rowid, a, b, c) VALUES(1, 'x', 1, x'01'); UPDATE t SET a = 'other' WHERE a = 'z'");
    EXPECT_EQ(MessageOfSave(document), "saved") << "a row that was not changed here does not matter";
    EXPECT_THAT(Rows(made.Path(), "SELECT a FROM t"), ElementsAre("'X'", "'Y'", "'other'"));
}

TEST(SqliteSaver, RefusesATableOfOtherColumnsOrNone)
{
    MadeDatabase made("CREATE TABLE t(a, b); INSERT INTO t VALUES(1, 2);");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"3");
    made.Execute("ALTER TABLE t RENAME COLUMN b TO c");
    EXPECT_EQ(MessageOfSave(document), "row 1: another program has changed it since it was read");
    made.Execute("DROP TABLE t");
    EXPECT_EQ(MessageOfSave(document), "SQL error: no such table: t");
    EXPECT_TRUE(document.IsChanged());
}

TEST(SqliteSaver, TakesAllBackWhenTheDatabaseRefusesOne)
{
    const MadeDatabase made(
        "CREATE TABLE p(id INTEGER PRIMARY KEY); INSERT INTO p VALUES(1);"
        "CREATE TABLE t(u UNIQUE, c CHECK (c > 0), n NOT NULL, p REFERENCES p, s);"
        "INSERT INTO t VALUES(1, 1, 1, 1, 'a'), (2, 2, 2, 1, 'b');"
        "CREATE TRIGGER no BEFORE UPDATE ON t WHEN new.s = 'ignore' BEGIN SELECT RAISE(IGNORE); END;"
        "CREATE TRIGGER gone AFTER UPDATE ON t WHEN new.s = 'gone' BEGIN DELETE FROM t; END;");
    const std::vector<std::tuple<int, std::u16string, std::string>> refused {
        { 0, u"1", "row 2: UNIQUE constraint failed: t.u" },
        { 1, u"-5", "row 2: CHECK constraint failed: c > 0" },
        { 2, u"", "row 2: NOT NULL constraint failed: t.n" },
        { 3, u"9", "row 2: FOREIGN KEY constraint failed" },
        { 4, u"ignore", "row 2: the database does not take the change" },
        { 4, u"gone", "row 1: the database removes it when it is changed" },
    };
    for (const auto& [column, text, message] : refused) {
        Document document = Opened(made.Path(), "t");
        document.Change(0, 4, u"changed");
        document.Change(1, column, text);
        EXPECT_EQ(MessageOfSave(document), message);
        EXPECT_EQ(document.ChangeCount(), 2u) << message;
        EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|1|1|1|'a'", "2|2|2|1|'b'"));
    }
}

TEST(SqliteSaver, RefusesWhatAStrictTableDoes)
{
    const MadeDatabase made("CREATE TABLE t(i INTEGER, x ANY) STRICT; INSERT INTO t VALUES(1, 2);");
    Document document = Opened(made.Path());
    document.Change(0, 1, u"3");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|3"));
    document.Change(0, 0, u"many");
    EXPECT_EQ(MessageOfSave(document), "row 1: cannot store TEXT value in INTEGER column t.i");
}

TEST(SqliteSaver, SavesRowsOfWriteAheadDatabases)
{
    const MadeDatabase made("PRAGMA journal_mode = WAL; CREATE TABLE t(a); INSERT INTO t VALUES('x');");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"y");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("'y'"));
}

TEST(SqliteSaver, KeepsTheChangesWhileAnotherProgramHoldsTheDatabase)
{
    MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES('x');");
    Document document = Opened(made.Path());
    document.Change(0, 0, u"y");
    made.Execute("BEGIN IMMEDIATE");
    EXPECT_EQ(MessageOfSave(document), "the database is in use: another program has locked it");
    EXPECT_TRUE(document.IsChanged());
    made.Execute("COMMIT");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_FALSE(document.IsChanged());
}

TEST(SqliteSaver, OpensWhatMayNotBeWrittenForReading)
{
    MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES('x');");
    made.CloseWriter();
    const auto reason = [&] {
        const Document document = Opened(made.Path());
        return ToUtf8(document.Saved().Text(0, 0)) + ": " + document.WhyReadOnly().value_or("writable");
    };
    std::filesystem::permissions(made.Folder(), std::filesystem::perms(0555));
    std::filesystem::permissions(made.Path(), std::filesystem::perms(0444));
    EXPECT_EQ(AsOrdinaryUser(reason), "x: no permission to write the file");
    std::filesystem::permissions(made.Path(), std::filesystem::perms(0666));
    EXPECT_EQ(AsOrdinaryUser(reason), "x: no permission to write into the folder, where the database keeps a journal");
    std::filesystem::permissions(made.Folder(), std::filesystem::perms(0777));
    EXPECT_EQ(AsOrdinaryUser(reason), "x: writable");
}

TEST(SqliteSaver, LeavesTheDatabaseAsItWasWhenTheDiskIsFull)
{
    MadeDatabase made(ManyRows(2000));
    made.CloseWriter();
    std::filesystem::permissions(made.Folder(), std::filesystem::perms(0777));
    std::filesystem::permissions(made.Path(), std::filesystem::perms(0666));
    const std::string message = AsOrdinaryUser([&] {
        Document document = Opened(made.Path());
        for (int row = 0; row < 2000; ++row)
            document.Change(row, 1, std::u16string(400, u'x'));
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit { 400'000, 400'000 };
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return MessageOfSave(document) + "; changes: " + std::to_string(document.ChangeCount());
    });
    EXPECT_EQ(message, "the database cannot be written (disk I/O error); changes: 2000");
    EXPECT_THAT(
        Rows(made.Path(), "SELECT count(*), min(length(text)), max(length(text)) FROM t"), ElementsAre("2000|100|100"));
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM pragma_integrity_check"), ElementsAre("'ok'"));
}
