#include "table.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace vornix::viewer;

namespace {

void Append(Table& table, std::initializer_list<Field> fields)
{
    const std::vector<Field> row(fields);
    table.AppendRow(row);
}

Table TwoRows()
{
    Table table;
    table.Columns() = { { u"a" }, { u"b" }, { u"c" } };
    Append(table, { { u"one" }, { u"" }, { u"", true } });
    Append(table, { { u"-1" } });
    table.SetTotalRows(2);
    return table;
}

} // namespace

TEST(Table, TellsANullFromAnEmptyText)
{
    const Table table = TwoRows();
    EXPECT_EQ(table.Text(0, 0), u"one");
    EXPECT_EQ(table.Text(0, 1), u"");
    EXPECT_FALSE(table.IsNull(0, 1));
    EXPECT_EQ(table.Text(0, 2), u"");
    EXPECT_TRUE(table.IsNull(0, 2));
}

TEST(Table, ReadsWhatAShortRowLacksAsNulls)
{
    const Table table = TwoRows();
    EXPECT_EQ(table.Text(1, 0), u"-1");
    EXPECT_TRUE(table.IsTrue(1, 0));
    EXPECT_TRUE(table.IsNull(1, 1));
    EXPECT_TRUE(table.IsNull(1, 2));
    EXPECT_FALSE(table.IsTrue(1, 2));
}

TEST(Table, RaisesOutsideItsRows)
{
    const Table table = TwoRows();
    EXPECT_THROW(table.Text(2, 0), std::out_of_range);
    EXPECT_THROW(table.Text(-1, 0), std::out_of_range);
    EXPECT_THROW(table.IsNull(0, -1), std::out_of_range);
}

TEST(Table, DropsItsFirstAndLastRow)
{
    Table table = TwoRows();
    Append(table, { { u"third" } });
    table.DropFirstRow();
    EXPECT_EQ(table.RowCount(), 2);
    EXPECT_EQ(table.Text(0, 0), u"-1");
    EXPECT_TRUE(table.IsComplete());
    table.DropLastRow();
    EXPECT_EQ(table.RowCount(), 1);
    EXPECT_EQ(table.Text(0, 0), u"-1");
    EXPECT_FALSE(table.IsComplete());
    EXPECT_EQ(table.TotalRows(), 2u);
}

TEST(Table, ReplacesATextWithoutTouchingItsNeighbours)
{
    Table table = TwoRows();
    table.ReplaceText(0, 1, u"a longer one");
    EXPECT_EQ(table.Text(0, 0), u"one");
    EXPECT_EQ(table.Text(0, 1), u"a longer one");
    EXPECT_TRUE(table.IsNull(0, 2));
    EXPECT_THROW(table.ReplaceText(1, 2, u"x"), std::out_of_range);
}

TEST(Table, HasTruthValuesInCheckBoxTextsOnly)
{
    Table table;
    table.Columns() = { { u"paid", ColumnKind::Boolean } };
    for (const char16_t* text : { u"-1", u"0", u"", u"  " })
        Append(table, { { text } });
    Append(table, { { u"", true } });
    EXPECT_TRUE(table.HasTruthValue(0, 0));
    EXPECT_TRUE(table.HasTruthValue(1, 0));
    for (const int row : { 2, 3, 4 })
        EXPECT_FALSE(table.HasTruthValue(row, 0)) << row;
}

TEST(Table, AlignsNumbersAndDatesToTheRightAndCheckBoxesInTheMiddle)
{
    EXPECT_EQ(AlignmentOf(ColumnKind::Text), Alignment::Left);
    EXPECT_EQ(AlignmentOf(ColumnKind::Boolean), Alignment::Center);
    for (const ColumnKind kind :
        { ColumnKind::Integer, ColumnKind::Real, ColumnKind::Money, ColumnKind::Date, ColumnKind::DateTime })
        EXPECT_EQ(AlignmentOf(kind), Alignment::Right);
}
