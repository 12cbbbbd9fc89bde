#include "csv_format.h"

#include "csv_parser.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

namespace {

char Separator(std::u16string_view sample, bool isWhole = true)
{
    return static_cast<char>(GuessSeparator(sample, isWhole));
}

bool HeaderOf(std::u16string_view text)
{
    Table table;
    std::size_t columns = 0;
    CsvParser parser(u',', {}, [&](const CsvParser::Record& record) {
        table.AppendRow(record.fields);
        columns = std::max(columns, record.fields.size());
    });
    parser.Feed(text);
    parser.Finish();
    table.Columns().resize(columns);
    return HasHeader(table);
}

} // namespace

TEST(GuessSeparator, TakesTheOneThatSplitsTheRowsAlike)
{
    EXPECT_EQ(Separator(u"a,b,c\n1,2,3\n"), ',');
    EXPECT_EQ(Separator(u"a;b;c\n1;2;3\n"), ';');
    EXPECT_EQ(Separator(u"a\tb\tc\n1\t2\t3\n"), '\t');
    EXPECT_EQ(Separator(u"a|b|c\n1|2|3\n"), '|');
}

TEST(GuessSeparator, IsNotMisledByDecimalCommasOrText)
{
    EXPECT_EQ(Separator(u"name;price\nA;1,50\nB;2,75\n"), ';');
    EXPECT_EQ(Separator(u"1,50;2,75\n3,25;4,00\n"), ';');
    EXPECT_EQ(Separator(u"id\ttext\n1\tyes, no, maybe\n2\tone, two\n"), '\t');
    EXPECT_EQ(Separator(u"id,text\n1,\"a;b;c\"\n2,\"d;e;f\"\n"), ',');
    EXPECT_EQ(Separator(u"id,text\n1,\"a\n;\n;\n;\"\n2,x\n"), ',');
}

TEST(GuessSeparator, FindsOneInUnevenRows)
{
    EXPECT_EQ(Separator(u"a,b,c\n1,2\n3,4,5,6\n7,8,9\n"), ',');
}

TEST(GuessSeparator, FindsNoneInOneColumn)
{
    EXPECT_EQ(Separator(u"name\nAnna\nBob\n"), '\0');
    EXPECT_EQ(
        Separator(u"Dear all,\nthis is a letter.\nIt has lines, some with commas,\nbut no table.\nYours\nA.\n"), '\0');
}

TEST(GuessSeparator, LeavesTheCutEndOfASampleOut)
{
    EXPECT_EQ(Separator(u"a;b\n1;2\n3,4,5,6", false), ';');
    EXPECT_EQ(Separator(u"a;b;c", false), ';');
}

TEST(HasHeader, SeesNamesOverNumbersDatesAndTruthValues)
{
    EXPECT_TRUE(HeaderOf(u"id,name\n1,Anna\n2,Bob\n"));
    EXPECT_TRUE(HeaderOf(u"name,since\nAnna,2024-01-01\n"));
    EXPECT_TRUE(HeaderOf(u"name,paid\nAnna,yes\nBob,no\n"));
    EXPECT_TRUE(HeaderOf(u"country,2019,2020,2021\nPeru,5,6,7\n"));
}

TEST(HasHeader, SeesDataInTheFirstRow)
{
    EXPECT_FALSE(HeaderOf(u"1,Anna\n2,Bob\n"));
    EXPECT_FALSE(HeaderOf(u"Anna,2024-01-01\nBob,2024-02-01\n"));
    EXPECT_FALSE(HeaderOf(u"1,2,3\n4,5,6\n"));
    EXPECT_FALSE(HeaderOf(u"Anna,true\nBob,false\n"));
    EXPECT_FALSE(HeaderOf(u"1.5,a\n2,b\n"));
}

TEST(HasHeader, TakesWordsThatCouldBeTruthValuesForNames)
{
    for (const char16_t* name : { u"No", u"Yes", u"N", u"Y", u"T", u"F" }) {
        EXPECT_TRUE(HeaderOf(name + std::u16string(u",city\nA-17,Kyoto\nB-02,Lima\n"))) << static_cast<char>(*name);
        EXPECT_TRUE(HeaderOf(name + std::u16string(u",city\n"))) << static_cast<char>(*name);
    }
    EXPECT_TRUE(HeaderOf(u"T,F\nwarm,north\ncold,south\n"));
    EXPECT_FALSE(HeaderOf(u"7,city\nA-17,Kyoto\n"));
}

TEST(HasHeader, TakesDifferentShortTextsForNamesWhereAllIsText)
{
    EXPECT_TRUE(HeaderOf(u"name,city\nAnna,Kyoto\n"));
    EXPECT_TRUE(HeaderOf(u"name,city\n"));
    EXPECT_FALSE(HeaderOf(u"Anna,Anna\nBob,Kyoto\n"));
    EXPECT_FALSE(HeaderOf(u"Anna,\nBob,Kyoto\n"));
    EXPECT_FALSE(HeaderOf(u"5\n"));
}
