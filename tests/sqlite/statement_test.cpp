#include "made_database.h"

#include "vornix/sqlite/database.h"

using namespace vornix;
using namespace vornix::sqlite;

TEST(Statement, GivesValuesOfEveryType)
{
    const MadeDatabase made(
        "CREATE TABLE t(a, b, c, d, e); INSERT INTO t VALUES(NULL, -9007199254740993, 2.5, 'zwölf', x'00FF01');");
    const Database database(made.Path());
    Statement row = database.ReadTable("t");
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Type(0), ValueType::Null);
    EXPECT_EQ(row.Type(1), ValueType::Integer);
    EXPECT_EQ(row.Integer(1), -9007199254740993);
    EXPECT_EQ(row.Type(2), ValueType::Real);
    EXPECT_EQ(row.Real(2), 2.5);
    EXPECT_EQ(row.Type(3), ValueType::Text);
    EXPECT_EQ(row.ByteCount(3), 6u);
    EXPECT_EQ(row.Text(3), u"zwölf");
    EXPECT_EQ(row.Type(4), ValueType::Blob);
    EXPECT_EQ(row.ByteCount(4), 3u);
    EXPECT_FALSE(row.Next());
}

TEST(Statement, NamesColumnsAndTracesDeclaredTypesThroughViews)
{
    const MadeDatabase made("CREATE TABLE t(paid BOOLEAN, total DECIMAL(10,2));"
                            "CREATE VIEW v AS SELECT paid AS \"Bezahlt?\", total, total * 2 AS twice FROM t;");
    const Database database(made.Path());
    const Statement statement = database.ReadTable("v");
    ASSERT_EQ(statement.ColumnCount(), 3);
    EXPECT_EQ(statement.ColumnName(0), u"Bezahlt?");
    EXPECT_EQ(statement.DeclaredType(1), "DECIMAL(10,2)");
    EXPECT_EQ(statement.Kind(0), DeclaredKind::Boolean);
    EXPECT_EQ(statement.Kind(1), DeclaredKind::Money);
    EXPECT_EQ(statement.Kind(2), DeclaredKind::None);
}

TEST(Statement, ReadsBytesThatAreNoTextAsReplacementCharacters)
{
    const MadeDatabase made("CREATE TABLE t(a TEXT); INSERT INTO t VALUES(CAST(x'41FF42' AS TEXT)), ('');");
    const Database database(made.Path());
    Statement row = database.ReadTable("t");
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Text(0), u"A\uFFFDB");
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Text(0), u"");
    EXPECT_EQ(row.Type(0), ValueType::Text);
}

TEST(Statement, RaisesAnErrorThatComesUpWhileStepping)
{
    const MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES(1), (-9223372036854775808);");
    const Database database(made.Path());
    Statement row = database.ReadQuery("SELECT abs(a) FROM t");
    ASSERT_TRUE(row.Next());
    try {
        row.Next();
        FAIL() << "the overflow went unnoticed";
    } catch (const Error& error) {
        EXPECT_EQ(error.Kind(), ErrorKind::Sql);
        EXPECT_STREQ(error.what(), "SQL error: integer overflow");
    }
}

TEST(Statement, TakesValuesForItsParametersAndGivesThemBack)
{
    const MadeDatabase made("CREATE TABLE t(a);");
    const Database database(made.Path());
    Statement echo = database.Prepare("SELECT ?");
    const std::vector<Value> values { std::monostate(), std::int64_t(-9007199254740993), 0.1,
        std::string("\xE1\xBB\x8C\0!", 5), std::string(), Blob { std::string("\0\xFF", 2) }, Blob {} };
    for (const Value& value : values) {
        echo.Bind(1, value);
        ASSERT_TRUE(echo.Next());
        EXPECT_EQ(echo.ValueOf(0), value) << value.index();
        EXPECT_FALSE(echo.Next());
        echo.Reset();
    }
    EXPECT_THROW(echo.Bind(2, std::int64_t(1)), Error);
}

TEST(Statement, GivesTheBytesOfTextsAndBlobs)
{
    const MadeDatabase made("CREATE TABLE t(a); INSERT INTO t VALUES(CAST(x'41FF' AS TEXT)), (x'00'), (5), (NULL);");
    const Database database(made.Path());
    Statement row = database.ReadTable("t");
    for (const std::string_view bytes : { std::string_view("A\xFF"), std::string_view("\0", 1), {}, {} }) {
        ASSERT_TRUE(row.Next());
        EXPECT_EQ(row.Bytes(0), bytes);
    }
}
