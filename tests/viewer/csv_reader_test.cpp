#include "csv_reader.h"

#include "input_file.h"
#include "scratch_folder.h"
#include "unicode.h"

#include <gmock/gmock.h>

using namespace vornix::viewer;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Table Read(std::string_view bytes, const LoadLimits& limits = {}, const ProgressFunction& progress = {})
{
    const ScratchFolder folder;
    InputFile file(folder.Write("file.csv", bytes));
    return ReadCsv(file, limits, progress);
}

std::string MessageOf(std::string_view bytes, const LoadLimits& limits = {})
{
    try {
        Read(bytes, limits);
    } catch (const LoadError& error) {
        return error.what();
    }
    return "no error";
}

std::vector<std::string> Names(const Table& table)
{
    std::vector<std::string> names;
    for (const Column& column : table.Columns())
        names.push_back(ToUtf8(column.name));
    return names;
}

std::vector<ColumnKind> Kinds(const Table& table)
{
    std::vector<ColumnKind> kinds;
    for (const Column& column : table.Columns())
        kinds.push_back(column.kind);
    return kinds;
}

std::string Cell(const Table& table, int row, int column)
{
    return ToUtf8(table.Text(row, column));
}

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

} // namespace

TEST(ReadCsv, ReadsHeaderKindsAndTexts)
{
    const Table table = Read("id,name,price,since,paid\n1,Anna,2.50,2024-01-31,yes\n2,Bob,1200,2024-02-29,no\n3,,,,\n");
    EXPECT_THAT(Names(table), ElementsAre("id", "name", "price", "since", "paid"));
    EXPECT_THAT(Kinds(table),
        ElementsAre(ColumnKind::Integer, ColumnKind::Text, ColumnKind::Real, ColumnKind::Date, ColumnKind::Boolean));
    ASSERT_EQ(table.RowCount(), 3);
    EXPECT_EQ(table.TotalRows(), 3u);
    EXPECT_EQ(Cell(table, 0, 1), "Anna");
    EXPECT_EQ(Cell(table, 1, 2), "1200");
    EXPECT_TRUE(table.IsTrue(0, 4));
    EXPECT_FALSE(table.IsTrue(1, 4));
    EXPECT_TRUE(table.IsNull(2, 4));
    EXPECT_THAT(table.Notices(), IsEmpty());
}

TEST(ReadCsv, NamesColumnsThatHaveNoName)
{
    EXPECT_THAT(Names(Read("1,2\n3,4\n")), ElementsAre("Column 1", "Column 2"));
    EXPECT_THAT(Names(Read("id,,name\n1,2,x\n3,4,y\n")), ElementsAre("id", "Column 2", "name"));
}

TEST(ReadCsv, ReadsTheSameInEveryEncoding)
{
    const std::u16string text = u"name;city;n\r\nÅsa;東京;1\r\nطارق;\"Ib\r\nàdàn 😀\";2\r\n";
    const std::string utf8 = ToUtf8(text);
    for (const std::string& bytes : { utf8, "\xEF\xBB\xBF" + utf8, Utf16Bytes(text, false),
             "\xFF\xFE" + Utf16Bytes(text, false), Utf16Bytes(text, true), "\xFE\xFF" + Utf16Bytes(text, true) }) {
        const Table table = Read(bytes);
        EXPECT_THAT(Names(table), ElementsAre("name", "city", "n"));
        ASSERT_EQ(table.RowCount(), 2);
        EXPECT_EQ(Cell(table, 0, 1), "東京");
        EXPECT_EQ(Cell(table, 1, 0), "طارق");
        EXPECT_EQ(Cell(table, 1, 1), "Ib\r\nàdàn 😀");
    }
}

TEST(ReadCsv, ReadsFilesLongerThanOnePiece)
{
    std::string bytes = "id\ttext\n";
    constexpr int rows = 20000;
    for (int row = 0; row < rows; ++row)
        bytes += std::to_string(row) + "\t“пример " + std::to_string(row) + "”, \U0001F375\n";
    ASSERT_GT(bytes.size(), 600'000u);
    std::vector<Progress> reports;
    const Table table = Read(bytes, {}, [&](const Progress& progress) { reports.push_back(progress); });
    ASSERT_EQ(table.RowCount(), rows);
    for (int row = 0; row < rows; ++row)
        ASSERT_EQ(Cell(table, row, 1), "“пример " + std::to_string(row) + "”, \U0001F375");
    ASSERT_GE(reports.size(), 3u);
    EXPECT_LT(reports[0].bytes, bytes.size());
    EXPECT_EQ(reports.back().bytes, bytes.size());
    EXPECT_EQ(reports.back().totalBytes, bytes.size());
}

TEST(ReadCsv, ObeysALineThatNamesTheSeparator)
{
    const Table table = Read("sep=|\nid|text\n1|a,b\n");
    EXPECT_THAT(Names(table), ElementsAre("id", "text"));
    EXPECT_EQ(Cell(table, 0, 1), "a,b");
}

TEST(ReadCsv, RefusesRaggedRows)
{
    EXPECT_EQ(
        MessageOf("a,b,c\n1,2,3\n1\n1,2,3,4\n"), "line 3: the rows are ragged: this one has 1 field, line 1 has 3");
    EXPECT_EQ(MessageOf("a,b\n\n1,2\n1,2,3\n"), "line 4: the rows are ragged: this one has 3 fields, line 1 has 2");
}

TEST(ReadCsv, ShowsAHeaderWithoutRows)
{
    const Table table = Read("id,name,price\r\n");
    EXPECT_THAT(Names(table), ElementsAre("id", "name", "price"));
    EXPECT_EQ(table.RowCount(), 0);
    EXPECT_EQ(table.TotalRows(), 0u);
}

TEST(ReadCsv, LeavesOutTheRowsThatDoNotFitAndSaysSo)
{
    LoadLimits limits;
    limits.maxRows = 10;
    const Table table = Read("id,x\n" + Repeated("1,2\n", 1234), limits);
    EXPECT_EQ(table.RowCount(), 10);
    EXPECT_EQ(table.TotalRows(), 1234u);
    EXPECT_THAT(table.Notices(), ElementsAre("the first 10 of 1,234 rows are shown"));

    const Table withoutHeader = Read(Repeated("1,2\n", 11), limits);
    EXPECT_EQ(withoutHeader.RowCount(), 10);
    EXPECT_EQ(withoutHeader.TotalRows(), 11u);
    EXPECT_THAT(Read("id,x\n" + Repeated("1,2\n", 10), limits).Notices(), IsEmpty());
}

TEST(ReadCsv, LeavesOutRowsBeyondTheLimitsOfCellsAndText)
{
    LoadLimits cells;
    cells.maxCells = 21;
    EXPECT_EQ(Read("id,x\n" + Repeated("1,2\n", 100), cells).RowCount(), 9);
    LoadLimits text;
    text.maxTextLength = 100;
    const Table table = Read("id,x\n" + Repeated("1,abcdefghi\n", 100), text);
    EXPECT_EQ(table.RowCount(), 10);
    EXPECT_EQ(table.TotalRows(), 100u);
}

TEST(ReadCsv, HoldsAsManyRowsAsAGridDoes)
{
    const Table table = Read("id,x\n" + Repeated("1,2\n", 40000));
    EXPECT_EQ(table.RowCount(), 32765);
    EXPECT_THAT(table.Notices(), ElementsAre("the first 32,765 of 40,000 rows are shown"));
}

TEST(ReadCsv, HoldsAsManyColumnsAsAGridDoes)
{
    EXPECT_EQ(Read(Repeated("1,", 32765) + "1\n").ColumnCount(), 32766);
    EXPECT_EQ(MessageOf("a\n" + Repeated("1,", 99'999) + "1\n"),
        "line 2: 100000 columns are more than the grid can hold (at most 32766)");
}

TEST(ReadCsv, NamesTheLineOfBytesThatAreNoText)
{
    EXPECT_EQ(MessageOf("id,name\n1,Anna\n2,Bj\xF6rn\n"), "line 3: invalid UTF-8 text");
    EXPECT_EQ(MessageOf("id,name\n1,Anna\xE4\xB8"), "line 2: invalid UTF-8 text");
    EXPECT_EQ(MessageOf("\xFF"), "line 1: invalid UTF-8 text");
    EXPECT_EQ(MessageOf("\xFF\xFE" + Utf16Bytes(u"id\n", false) + "x"), "line 2: invalid UTF-16 text");
    EXPECT_EQ(
        MessageOf("id,name\n1,Anna\n" + Repeated("2,x\n", 100'000) + "3,\xFF\n"), "line 100003: invalid UTF-8 text");
    EXPECT_EQ(MessageOf("id,name\n1,A\0nna\n"s), "line 2: there is a NUL byte, so this is not a text file");
}

TEST(ReadCsv, RefusesAFieldOfFiftyMegabytes)
{
    const std::string field(50'000'000, 'x');
    EXPECT_EQ(MessageOf("id,note\n1,short\n2," + field + "\n"),
        "line 3: a field is longer than 1048576 characters, the most a cell takes");
    EXPECT_EQ(MessageOf("id,note\n1,\"" + field + "\"\n"),
        "line 2: a field is longer than 1048576 characters, the most a cell takes");
    EXPECT_EQ(MessageOf(field), "line 1: a field is longer than 1048576 characters, the most a cell takes");
}

TEST(ReadCsv, RefusesAFileOfBlankLines)
{
    EXPECT_EQ(MessageOf("\n  \r\n\n"), "there is nothing in it but blank lines");
    EXPECT_EQ(MessageOf("\xEF\xBB\xBF"), "there is nothing in it but blank lines");
}
