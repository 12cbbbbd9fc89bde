#include "sqlite_reader.h"

#include "scratch_folder.h"
#include "sqlite/made_database.h"
#include "unicode.h"

#include "vornix/sqlite/database.h"

#include <gmock/gmock.h>

#include <clocale>
#include <cstdlib>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Table ReadTable(const std::string& sql, const LoadLimits& limits = {}, const ProgressFunction& progress = {})
{
    const MadeDatabase made(sql);
    sqlite::Database database(made.Path());
    return ReadDatabaseTable(database, "t", limits, progress);
}

Table ReadQuery(const std::string& sql, const std::string& query, const LoadLimits& limits = {})
{
    const MadeDatabase made(sql);
    sqlite::Database database(made.Path());
    return ReadDatabaseQuery(database, query, limits, {});
}

std::vector<std::string> ColumnTexts(const Table& table, int column)
{
    std::vector<std::string> texts;
    for (int row = 0; row < table.RowCount(); ++row)
        texts.push_back(table.IsNull(row, column) ? "<null>" : ToUtf8(table.Text(row, column)));
    return texts;
}

ColumnKind KindOf(const Table& table, std::size_t column)
{
    return table.Columns()[column].kind;
}

// A table t with one column of this type and these values.
Table OneColumn(const std::string& type, const std::string& values)
{
    return ReadTable("CREATE TABLE t(c " + type + "); INSERT INTO t VALUES " + values + ";");
}

} // namespace

TEST(SqliteReader, ShowsMoneyWithTwoDecimalsAndGroups)
{
    const Table table = OneColumn("DECIMAL(10,2)", "(1234567.5), (0.07), (-1200), (-999.999e3), (NULL)");
    EXPECT_EQ(KindOf(table, 0), ColumnKind::Money);
    EXPECT_THAT(ColumnTexts(table, 0), ElementsAre("1,234,567.50", "0.07", "-1,200.00", "-999,999.00", "<null>"));
}

TEST(SqliteReader, DoesNotRoundWhatIsNoMoney)
{
    const Table table = OneColumn("DECIMAL(10,2)", "(1.125), (2)");
    EXPECT_EQ(KindOf(table, 0), ColumnKind::Real);
    EXPECT_THAT(ColumnTexts(table, 0), ElementsAre("1.125", "2.000"));
}

TEST(SqliteReader, MakesDecimalsEquallyLongAsLongAsTheyAreFew)
{
    EXPECT_THAT(ColumnTexts(OneColumn("REAL", "(1), (2.5), (0.125)"), 0), ElementsAre("1.000", "2.500", "0.125"));
    EXPECT_THAT(
        ColumnTexts(OneColumn("REAL", "(1), (0.1 + 0.2), (1.0/3)"), 0), ElementsAre("1", "0.3", "0.333333333333333"));
    EXPECT_THAT(ColumnTexts(OneColumn("REAL", "(1.5), (1e300), (9e999)"), 0), ElementsAre("1.5", "1e+300", "inf"));
}

TEST(SqliteReader, TakesDeclaredBooleansForCheckBoxes)
{
    const Table table = OneColumn("BOOLEAN", "(1), (0), (NULL), ('true'), ('f')");
    EXPECT_EQ(KindOf(table, 0), ColumnKind::Boolean);
    EXPECT_THAT(ColumnTexts(table, 0), ElementsAre("-1", "0", "<null>", "-1", "0"));
    EXPECT_EQ(KindOf(OneColumn("BOOLEAN", "(1), (2)"), 0), ColumnKind::Integer);
    EXPECT_EQ(KindOf(OneColumn("INTEGER", "(1), (0)"), 0), ColumnKind::Integer);
}

TEST(SqliteReader, FindsDatesByTypeOrByIsoTexts)
{
    EXPECT_EQ(KindOf(OneColumn("DATE", "('2024-01-05'), (NULL)"), 0), ColumnKind::Date);
    EXPECT_EQ(KindOf(OneColumn("DATE", "('5.1.2024')"), 0), ColumnKind::Date);
    EXPECT_EQ(KindOf(OneColumn("TEXT", "('2024-01-05')"), 0), ColumnKind::Date);
    EXPECT_EQ(KindOf(OneColumn("TEXT", "('5.1.2024')"), 0), ColumnKind::Text);
    EXPECT_EQ(KindOf(OneColumn("DATETIME", "('2024-01-05 10:00'), ('2024-01-06')"), 0), ColumnKind::DateTime);
    EXPECT_EQ(KindOf(OneColumn("DATE", "('soon')"), 0), ColumnKind::Text);
    EXPECT_EQ(KindOf(OneColumn("DATETIME", "(1704448800)"), 0), ColumnKind::Integer);
}

TEST(SqliteReader, LeavesTextsOfDigitsAsTexts)
{
    EXPECT_EQ(KindOf(OneColumn("TEXT", "('123'), ('45')"), 0), ColumnKind::Text);
    EXPECT_EQ(KindOf(OneColumn("", "(1), ('x')"), 0), ColumnKind::Text);
    EXPECT_EQ(KindOf(OneColumn("INTEGER", "(NULL)"), 0), ColumnKind::Text);
}

TEST(SqliteReader, ShowsTheSizeOfBlobs)
{
    const Table table = OneColumn("BLOB", "(x''), (x'00FF'), (zeroblob(50000000))");
    EXPECT_THAT(ColumnTexts(table, 0), ElementsAre("<blob, 0 bytes>", "<blob, 2 bytes>", "<blob, 50000000 bytes>"));
    EXPECT_EQ(KindOf(table, 0), ColumnKind::Text);
}

TEST(SqliteReader, ShowsNulCharactersAsTheirPicture)
{
    EXPECT_THAT(ColumnTexts(OneColumn("TEXT", "('a' || char(0) || 'b')"), 0), ElementsAre("a\u2400b"));
}

TEST(SqliteReader, ReadsExpressionsOfAQueryByTheirValues)
{
    const Table table = ReadQuery("CREATE TABLE t(a); INSERT INTO t VALUES(1), (2);",
        "SELECT a, a / 4.0 AS quarter, date('2024-02-28', a || ' days') AS day, 'é' || a AS word FROM t ORDER BY a "
        "DESC");
    EXPECT_EQ(KindOf(table, 0), ColumnKind::Integer);
    EXPECT_EQ(KindOf(table, 1), ColumnKind::Real);
    EXPECT_EQ(KindOf(table, 2), ColumnKind::Date);
    EXPECT_EQ(KindOf(table, 3), ColumnKind::Text);
    EXPECT_EQ(table.Columns()[1].name, u"quarter");
    EXPECT_THAT(ColumnTexts(table, 1), ElementsAre("0.50", "0.25"));
    EXPECT_THAT(ColumnTexts(table, 2), ElementsAre("2024-03-01", "2024-02-29"));
}

TEST(SqliteReader, LeavesOutRowsBeyondTheLimitAndCountsThem)
{
    LoadLimits limits;
    limits.maxRows = 100;
    const Table table = ReadTable(ManyRows(5000), limits);
    EXPECT_EQ(table.Name(), u"t");
    EXPECT_EQ(table.RowCount(), 100);
    EXPECT_EQ(table.TotalRows(), 5000u);
    EXPECT_THAT(table.Notices(), ElementsAre("the first 100 of 5,000 rows are shown"));
    const Table query = ReadQuery(ManyRows(5000), "SELECT * FROM t WHERE n <= 4321", limits);
    EXPECT_EQ(query.RowCount(), 100);
    EXPECT_EQ(query.TotalRows(), 4321u);
    EXPECT_THAT(ReadTable(ManyRows(100), limits).Notices(), IsEmpty());
}

TEST(SqliteReader, ReportsProgress)
{
    std::uint64_t most = 0;
    ReadTable(ManyRows(5000), {}, [&](const Progress& progress) { most = std::max(most, progress.rows); });
    EXPECT_EQ(most, 5000u);
}

TEST(SqliteReader, RefusesTextsThatAreTooLong)
{
    try {
        ReadTable("CREATE TABLE t(id, \"a\nb\"); INSERT INTO t VALUES(1, 'x'), (2, printf('%.*c', 50000000, 'x'));");
        FAIL() << "the text was taken";
    } catch (const LoadError& error) {
        EXPECT_STREQ(
            error.what(), "row 2, column a b: a text is longer than 1048576 characters, the most a cell takes");
    }
}

TEST(SqliteReader, RefusesMoreColumnsThanTheGridHolds)
{
    LoadLimits limits;
    limits.maxColumns = 3;
    EXPECT_THROW(ReadQuery("", "SELECT 1, 2, 3, 4", limits), LoadError);
    EXPECT_EQ(ReadQuery("", "SELECT 1, 2, 3", limits).ColumnCount(), 3);
}

TEST(ReadDatabaseTable, WritesRealsWithAPointInEveryCountry)
{
    // A locale with a decimal comma, made of the one that every system has.
    const ScratchFolder folder;
    const std::filesystem::path plain = "/usr/lib/locale/C.utf8";
    std::ifstream file(plain / "LC_NUMERIC", std::ios::binary);
    std::string numeric { std::istreambuf_iterator<char>(file), {} };
    const std::size_t point = numeric.find('.');
    if (point == std::string::npos)
        GTEST_SKIP() << "the system's locales are kept in another way";
    numeric[point] = ',';
    std::filesystem::copy(plain, folder.Path("comma"), std::filesystem::copy_options::recursive);
    folder.Write("comma/LC_NUMERIC", numeric);
    ::setenv("LOCPATH", folder.Path("").c_str(), 1);
    const bool hasComma = std::setlocale(LC_NUMERIC, "comma") && *std::localeconv()->decimal_point == ',';
    const Table table = ReadTable("CREATE TABLE t(r REAL); INSERT INTO t VALUES(0.1), (-2.5e-30), (1e300), (3);");
    std::setlocale(LC_NUMERIC, "C");
    ::unsetenv("LOCPATH");
    ASSERT_TRUE(hasComma);
    EXPECT_THAT(ColumnTexts(table, 0), ElementsAre("0.1", "-2.5e-30", "1e+300", "3"));
}
