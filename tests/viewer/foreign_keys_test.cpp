#include "foreign_keys.h"

#include "document.h"
#include "sqlite/made_database.h"

#include "vornix/sqlite/database.h"
#include "vornix/sqlite/table_layout.h"

#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

ForeignKeys KeysOf(const std::string& sql, const std::string& table)
{
    const MadeDatabase made(sql);
    const sqlite::Database database(made.Path());
    return ReadForeignKeys(database, sqlite::LayoutOf(database, table));
}

// A table with so many keys, and one that refers to them.
std::string Countries(int count)
{
    return "CREATE TABLE countries(id INTEGER PRIMARY KEY); CREATE TABLE cities(country NOT NULL REFERENCES countries);"
           "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < "
        + std::to_string(count) + ") INSERT INTO countries SELECT i FROM n;";
}

} // namespace

TEST(ForeignKeys, AreThoseOfTheOtherTable)
{
    const ForeignKeys keys = KeysOf(
        "CREATE TABLE countries(id INTEGER PRIMARY KEY, code TEXT UNIQUE); INSERT INTO countries VALUES(10, 'no'), "
        "(9, 'ch');"
        "CREATE TABLE cities(name TEXT, country INTEGER NOT NULL REFERENCES Countries(id), code TEXT, Other INT,"
        "FOREIGN KEY(code) REFERENCES countries(code), FOREIGN KEY(other) REFERENCES countries);",
        "cities");
    EXPECT_THAT(keys,
        ElementsAre(Pair(1, ElementsAre(u"9", u"10")), Pair(2, ElementsAre(u"", u"ch", u"no")),
            Pair(3, ElementsAre(u"", u"9", u"10"))));
}

TEST(ForeignKeys, AreAThousandAtMost)
{
    EXPECT_EQ(KeysOf(Countries(1000), "cities").at(0).size(), 1000u);
    EXPECT_THAT(KeysOf(Countries(1001), "cities"), IsEmpty());
    EXPECT_THAT(KeysOf(Countries(3) + "DELETE FROM countries;", "cities"), IsEmpty()) << "nothing to choose from";
}

TEST(ForeignKeys, AreThoseThatAListCanTellApart)
{
    const std::string tables = "CREATE TABLE a(k PRIMARY KEY, x, y, UNIQUE(x, y)); CREATE TABLE b(k REFERENCES a, x, y,"
                               "z REFERENCES nowhere, FOREIGN KEY(x, y) REFERENCES a(x, y));";
    EXPECT_THAT(
        KeysOf(tables + "INSERT INTO a(k) VALUES('one'), (NULL);", "b"), ElementsAre(Pair(0, ElementsAre(u"", u"one"))))
        << "and no key of two columns, nor one of a table that there is not";
    EXPECT_THAT(KeysOf(tables + "INSERT INTO a(k) VALUES('one'), (x'00');", "b"), IsEmpty());
    EXPECT_THAT(KeysOf(tables + "INSERT INTO a(k) VALUES('one'), ('');", "b"), IsEmpty());
}

TEST(ForeignKeys, GiveWayToNull)
{
    const MadeDatabase made(
        "CREATE TABLE countries(code TEXT PRIMARY KEY); INSERT INTO countries VALUES('no');"
        "CREATE TABLE cities(name TEXT, country TEXT REFERENCES countries); INSERT INTO cities VALUES('Oslo', 'no');");
    ViewerOptions options;
    options.file = made.Path();
    options.table = "cities";
    Document document(OpenForChanging(options, LoadLimits(), {}));
    ASSERT_TRUE(document.KeysFor(1));
    EXPECT_FALSE(document.KeysFor(0));
    document.Change(0, 1, u"");
    EXPECT_THAT(document.Save(), IsEmpty());
    const sqlite::Database database(made.Path());
    sqlite::Statement rows = database.ReadQuery("SELECT country FROM cities");
    ASSERT_TRUE(rows.Next());
    EXPECT_EQ(rows.Type(0), sqlite::ValueType::Null);
}
