// Rows that are added to a table of a database and removed from it.
#include "as_ordinary_user.h"
#include "column_inputs.h"
#include "document.h"
#include "entered_text.h"
#include "saved_document.h"
#include "sqlite/made_database.h"
#include "unicode.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <random>
#include <set>
#include <sys/resource.h>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

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

TEST(SqliteRows, FindTheirTurnHoweverTheyFollowOneAnother)
{
    const MadeDatabase made("CREATE TABLE t(n INTEGER); WITH RECURSIVE c(n) AS"
                            " (VALUES(1) UNION ALL SELECT n + 1 FROM c WHERE n < 20) INSERT INTO t SELECT n FROM c;"
                            "CREATE TRIGGER d BEFORE DELETE ON t WHEN EXISTS(SELECT 1 FROM t WHERE n = old.n + 1)"
                            " BEGIN SELECT RAISE(ABORT, 'the next one is there'); END;"
                            "CREATE TRIGGER u BEFORE UPDATE ON t WHEN EXISTS(SELECT 1 FROM t WHERE n = new.n)"
                            " BEGIN SELECT RAISE(FAIL, 'it is taken'); END;"
                            "CREATE TRIGGER i BEFORE INSERT ON t WHEN NOT EXISTS(SELECT 1 FROM t WHERE n = new.n - 1)"
                            " BEGIN SELECT RAISE(ABORT, 'the one before is not there'); END;");
    Document document = Opened(made.Path());
    for (int row = 10; row < 20; ++row)
        document.RemoveRow(row);
    for (int row = 0; row < 10; ++row)
        document.Change(row, 0, document.Text(row + 1, 0));
    for (const char16_t* text : { u"14", u"13", u"12" })
        Add(document, { text });
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT count(*), min(n), max(n) FROM t"), ElementsAre("13|2|14"));
}

TEST(SqliteRows, OfALongChainFindTheirTurn)
{
    constexpr int count = 4000;
    const MadeDatabase made("CREATE TABLE t(n INTEGER);"
                            "CREATE TRIGGER d BEFORE DELETE ON t WHEN EXISTS(SELECT 1 FROM t WHERE rowid ="
                            " old.rowid + 1) BEGIN SELECT RAISE(ABORT, 'the next one is there'); END;"
                            "WITH RECURSIVE c(n) AS (VALUES(1) UNION ALL SELECT n + 1 FROM c WHERE n < "
        + std::to_string(count) + ") INSERT INTO t SELECT n FROM c;");
    Document document = Opened(made.Path());
    for (int row = 0; row < count; ++row)
        document.RemoveRow(row);
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_EQ(Rows(made.Path(), "SELECT * FROM t").size(), 0u);
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

TEST(SqliteRows, AreGoneWhereANewOneHasTheirKey)
{
    const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t ON DELETE CASCADE,"
                            " n TEXT); INSERT INTO t VALUES(1, NULL, 'a'), (2, 3, 'b'), (3, NULL, 'c');");
    Document document = Opened(made.Path());
    document.RemoveRow(2);
    const int added = Add(document, { u"", u"", u"new" });
    EXPECT_THAT(document.Save(), ElementsAre(CellText { added, 0, u"2" }));
    EXPECT_THAT(document.Rows(), ElementsAre(0, added));
    document.RemoveRow(0);
    document.Change(added, 2, u"newer");
    Add(document, { u"3", u"", u"d" });
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("2|NULL|'newer'", "3|NULL|'d'"));
}

TEST(SqliteRows, AreGoneWhereANewOneHasAKeyThatIsTheSame)
{
    const MadeDatabase made("CREATE TABLE t(k TEXT COLLATE NOCASE PRIMARY KEY, p TEXT REFERENCES t ON DELETE CASCADE)"
                            " WITHOUT ROWID; INSERT INTO t VALUES('a', NULL), ('abc', 'p'), ('p', NULL);");
    Document document = Opened(made.Path());
    document.RemoveRow(2);
    const int added = Add(document, { u"ABC" });
    EXPECT_THAT(document.Save(), IsEmpty());
    EXPECT_THAT(document.Rows(), ElementsAre(0, added));
    EXPECT_THAT(Rows(made.Path(), "SELECT k FROM t"), ElementsAre("'a'", "'ABC'"));
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

TEST(SqliteRows, TellTheTruthValuesOfNewOnes)
{
    const MadeDatabase made("CREATE TABLE t(done BOOLEAN, paid BOOLEAN); INSERT INTO t VALUES(1, 1), (0, NULL);");
    Document document = Opened(made.Path());
    document.Change(1, 1, u"0");
    const int word = Add(document, { u"yes", u"1" });
    const int digit = Add(document, { u"0", u"-1" });
    EXPECT_THAT(document.Save(),
        ElementsAre(CellText { 1, 1, u"0" }, CellText { word, 0, u"-1" }, CellText { word, 1, u"-1" },
            CellText { digit, 0, u"0" }, CellText { digit, 1, u"-1" }));
    document.Change(digit, 0, u"-1");
    document.Change(digit, 1, u"0");
    EXPECT_THAT(document.Save(), IsEmpty()) << "they are truth values already";
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("1|1", "0|0", "'yes'|1", "1|0"));
}

TEST(SqliteRows, CanBeReferredToOnceTheyAreSaved)
{
    MadeDatabase made("CREATE TABLE other(id INTEGER PRIMARY KEY); INSERT INTO other VALUES(7);"
                      "CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t, other REFERENCES other);"
                      "INSERT INTO t VALUES(1, NULL, 7), (2, NULL, 7);");
    Document document = Opened(made.Path(), "t");
    ASSERT_THAT(*document.KeysFor(1), ElementsAre(u"", u"1", u"2"));
    document.RemoveRow(0);
    Add(document, { u"", u"2", u"7" });
    EXPECT_THAT(*document.KeysFor(1), ElementsAre(u"", u"1", u"2"));
    made.Execute("INSERT INTO other VALUES(8)");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(*document.KeysFor(1), ElementsAre(u"", u"2", u"3"));
    EXPECT_THAT(*document.KeysFor(2), ElementsAre(u"", u"7", u"8"));
    EXPECT_EQ(document.KeysFor(0), nullptr);
}

TEST(SqliteRows, AreTypedWhereTheyAreTooManyForAList)
{
    MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t);"
                      "WITH RECURSIVE c(n) AS (VALUES(1) UNION ALL SELECT n + 1 FROM c WHERE n < 1000)"
                      " INSERT INTO t(id) SELECT n FROM c;");
    Document document = Opened(made.Path());
    const ColumnInputs inputs(document);
    ASSERT_EQ(inputs.Kind(1), InputKind::Key);
    const int added = Add(document, { u"1001" });
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_EQ(document.KeysFor(1), nullptr);
    EXPECT_EQ(inputs.Kind(1), InputKind::Text);
    EXPECT_TRUE(EnterText(document, inputs, 0, 1, u"1001").text);
    document.Change(0, 1, u"1001");
    EXPECT_EQ(MessageOfSave(document), "saved");
    document.Change(0, 1, u"");
    document.RemoveRow(added);
    EXPECT_EQ(MessageOfSave(document), "saved") << "without a text it is a null all the same";
    ASSERT_TRUE(document.KeysFor(1));
    EXPECT_EQ(document.KeysFor(1)->size(), 1001u) << "they fit again";
    EXPECT_EQ(inputs.Kind(1), InputKind::Key);
}

TEST(SqliteRows, HaveAListAsSoonAsThereIsOne)
{
    const MadeDatabase made("CREATE TABLE t(id TEXT PRIMARY KEY, parent TEXT REFERENCES t);");
    Document document = Opened(made.Path());
    const ColumnInputs inputs(document);
    EXPECT_EQ(inputs.Kind(1), InputKind::Text);
    Add(document, { u"a" });
    EXPECT_EQ(MessageOfSave(document), "saved");
    ASSERT_TRUE(document.KeysFor(1));
    EXPECT_THAT(*document.KeysFor(1), ElementsAre(u"", u"a"));
    EXPECT_EQ(inputs.Kind(1), InputKind::Key);
    const int second = Add(document, { u"b", u"a" });
    EXPECT_EQ(MessageOfSave(document), "saved");
    document.Change(second, 1, u"");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("'a'|NULL", "'b'|NULL"));
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

// What a trigger raises, and whether saving the others goes on.
class SqliteRowsRefused : public testing::TestWithParam<const char*> { };

TEST_P(SqliteRowsRefused, ByATriggerChangeNothing)
{
    const std::string raise = std::string("BEGIN SELECT RAISE(") + GetParam() + ", 'no'); END;";
    const MadeDatabase made("CREATE TABLE t(n INTEGER, price INTEGER);"
                            "INSERT INTO t VALUES(1, 10), (2, -10), (3, 30), (4, 40);"
                            "CREATE TRIGGER i BEFORE INSERT ON t WHEN new.price < 0 "
        + raise + "CREATE TRIGGER a AFTER INSERT ON t WHEN new.price = 0 " + raise
        + "CREATE TRIGGER d AFTER DELETE ON t WHEN old.price < 0 " + raise
        + "CREATE TRIGGER u AFTER UPDATE ON t WHEN new.price < 0 " + raise);
    const std::vector<std::string> before = Rows(made.Path(), "SELECT * FROM t");
    const auto expectRefused = [&](Document& document, const char* row) {
        const std::size_t changes = document.ChangeCount();
        EXPECT_EQ(MessageOfSave(document), std::string(row) + ": no");
        EXPECT_EQ(document.ChangeCount(), changes) << "they are still here";
        EXPECT_EQ(Rows(made.Path(), "SELECT * FROM t"), before);
    };
    Document document = Opened(made.Path());
    const int bad = Add(document, { u"5", u"-1" });
    Add(document, { u"6", u"60" });
    Add(document, { u"7", u"70" });
    expectRefused(document, "row +1");
    document.Change(bad, 1, u"0");
    expectRefused(document, "row +1");
    document.RemoveRow(bad);
    for (const int row : { 0, 1, 2 })
        document.RemoveRow(row);
    expectRefused(document, "row 2");
    document.RestoreRow(1);
    document.Change(1, 0, u"20");
    document.Change(3, 0, u"40");
    document.Change(3, 1, u"41");
    expectRefused(document, "row 2");
    document.Change(1, 1, u"20");
    EXPECT_EQ(MessageOfSave(document), "saved");
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM t"), ElementsAre("20|20", "40|41", "6|60", "7|70"));
}

INSTANTIATE_TEST_SUITE_P(, SqliteRowsRefused, testing::Values("ABORT", "FAIL", "ROLLBACK"),
    [](const auto& way) { return std::string(way.param); });

TEST(SqliteRows, AreAddedAllOrNoneWhenTheDiskIsFull)
{
    MadeDatabase made(ManyRows(2000));
    made.CloseWriter();
    std::filesystem::permissions(made.Folder(), std::filesystem::perms(0777));
    std::filesystem::permissions(made.Path(), std::filesystem::perms(0666));
    const std::string message = AsOrdinaryUser([&] {
        Document document = Opened(made.Path());
        for (int row = 0; row < 6000; ++row) // more than the engine keeps in memory
            Add(document, { std::u16string(1, u'1'), std::u16string(400, u'x') });
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit { 400'000, 400'000 };
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const std::string told = MessageOfSave(document);
        return (told.ends_with("(disk I/O error)") ? "failed" : told)
            + "; changes: " + std::to_string(document.ChangeCount());
    });
    EXPECT_EQ(message, "failed; changes: 6000");
    EXPECT_THAT(Rows(made.Path(), "SELECT count(*), max(length(text)) FROM t"), ElementsAre("2000|100"));
    EXPECT_THAT(Rows(made.Path(), "SELECT * FROM pragma_integrity_check"), ElementsAre("'ok'"));
}

namespace {

std::vector<std::string> TextsOf(const Document& document)
{
    std::vector<std::string> rows;
    for (const int row : document.Rows()) {
        std::string text;
        for (int column = 0; column < document.Saved().ColumnCount(); ++column)
            text += ToUtf8(document.Text(row, column)) + "|";
        rows.push_back(text);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

// Changes some rows, removes some and adds some, which refer to any others or to none.
void ChangeAtRandom(Document& document, std::mt19937& random)
{
    const auto number = [&](unsigned most) {
        const std::string digits = std::to_string(1 + random() % most);
        return std::u16string(digits.begin(), digits.end());
    };
    const auto any = [&] {
        const std::vector<int> rows = document.Rows();
        return rows.empty() ? -1 : rows[random() % rows.size()];
    };
    for (auto step = 1 + random() % 5; step > 0; --step) {
        const int row = any();
        const auto kind = random() % 8;
        if (kind == 0 || row < 0)
            Add(document, { random() % 2 ? number(12) : u"", random() % 2 ? number(12) : u"", number(30), u"new" });
        else if (kind == 1)
            document.RemoveRow(row);
        else if (kind == 2)
            document.Change(row, 0, number(12));
        else if (kind < 5)
            document.Change(row, 1, random() % 4 ? number(12) : u"");
        else
            document.Change(row, 2 + static_cast<int>(random() % 2), number(30));
    }
}

// Rows whose second column refers to none of the first, with what they refer by.
std::set<std::pair<int, std::u16string>> ReferringToNothing(const Document& document)
{
    std::set<std::u16string> keys;
    for (const int row : document.Rows())
        keys.emplace(document.Text(row, 0));
    std::set<std::pair<int, std::u16string>> found;
    for (const int row : document.Rows()) {
        const std::u16string parent(document.Text(row, 1));
        if (!parent.empty() && !keys.contains(parent))
            found.emplace(row, parent);
    }
    return found;
}

} // namespace

TEST(SqliteRows, LoseNothingThatTheyReferToWhateverElseIsBroken)
{
    std::mt19937 random(9);
    int saved = 0;
    for (const std::string action : { "", " ON DELETE CASCADE", " ON DELETE RESTRICT ON UPDATE SET NULL" }) {
        for (int round = 0; round < 60; ++round) {
            const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t" + action
                + ", u INTEGER UNIQUE, n); INSERT INTO t VALUES(1, NULL, 1, 'a'), (2, 1, 2, 'b'), (3, 90, 3, 'c'),"
                  " (4, 4, 4, 'd'), (5, 91, 5, 'e'), (6, 5, 6, 'f'), (7, 92, 7, 'g'), (8, 1, 8, 'h');");
            Document document = Opened(made.Path());
            for (int turn = 0; turn < 4; ++turn) {
                const auto before = ReferringToNothing(document);
                ChangeAtRandom(document, random);
                if (MessageOfSave(document) != "saved")
                    break;
                ++saved;
                for (const auto& broken : ReferringToNothing(document))
                    ASSERT_TRUE(before.contains(broken)) << action << ", " << round << ", row " << broken.first;
            }
        }
    }
    EXPECT_GT(saved, 100);
}

TEST(SqliteRows, AreAsTheDatabaseHasThemWhateverWasChanged)
{
    std::mt19937 random(8);
    int saved = 0;
    int refused = 0;
    for (const std::string action : { "", " ON DELETE CASCADE", " ON DELETE SET NULL ON UPDATE CASCADE",
             " ON DELETE RESTRICT ON UPDATE SET NULL" }) {
        const MadeDatabase made("CREATE TABLE t(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES t" + action
            + ", u INTEGER UNIQUE, n); INSERT INTO t VALUES(1, NULL, 1, 'a'), (2, 1, 2, 'b'), (3, 2, 3, 'c'),"
              " (4, 4, 4, 'd'), (5, NULL, 5, 'e'), (6, 5, 6, 'f'), (7, 5, 7, 'g'), (8, 1, 8, 'h');");
        for (int round = 0; round < 40; ++round) {
            Document document = Opened(made.Path());
            for (int turn = 0; turn < 3; ++turn) {
                ChangeAtRandom(document, random);
                const std::vector<std::string> before = Rows(made.Path(), "SELECT * FROM t");
                const std::string message = MessageOfSave(document);
                if (message != "saved") {
                    ++refused;
                    ASSERT_EQ(Rows(made.Path(), "SELECT * FROM t"), before) << message;
                    break;
                }
                ++saved;
                ASSERT_EQ(TextsOf(document), TextsOf(Opened(made.Path()))) << action << ", " << round;
            }
        }
        EXPECT_THAT(Rows(made.Path(), "SELECT * FROM pragma_foreign_key_check"), IsEmpty());
    }
    EXPECT_GT(saved, 100);
    EXPECT_GT(refused, 100);
}
