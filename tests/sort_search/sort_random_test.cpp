// Random tables, sorted beside the plain sort: every row ends in the same place, and what is kept by place is whole.
#include "data/sort.h"
#include "model/store_support.h"
#include "sort_search/plain_sort.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

// Few different ones, so that rows are equal often.
constexpr const char16_t* Values[] = { u"", u"a", u"A", u"b", u"B", u"aca", u"a-cb", u"a-c", u"co-op", u"coop", u"ab",
    u"abc", u"abcd", u"ABCE", u"\u00C4rger", u"arger", u"zebra", u"1", u"10", u"9", u"-9", u"0", u"-0", u"1.5", u"1e3",
    u"1,000", u"(5)", u"$5", u"&HFF", u"1e999", u"1/2/2020", u"2020-01-02", u"12/31/1999", u"March 5, 1999", u"6:30",
    u"6:30 PM", u"1/2/2020 6:30", u"0000-01-01", u"13/13/13", u"word", u"wo rd", u"it's", u"its" };

class SortRandomTest : public testing::Test {
protected:
    const char16_t* RandomValue()
    {
        const int last = static_cast<int>(std::size(Values)) - 1;
        return Values[random.Between(firstValue, std::min(firstValue + spread, last))];
    }

    std::unique_ptr<GridStore> RandomTable(int mostRows)
    {
        const int rows = random.Between(0, mostRows);
        auto table = BuildStore(rows, random.Between(1, 4), random.Between(0, 2), random.Between(0, 2));
        firstValue = random.Between(0, 30);
        spread = random.Between(1, 40);
        for (int col = 0; col < table->MaxCol(); ++col) {
            Column& column = table->ColumnAt(col);
            column.SortType = random.Between(0, 3);
            column.SortCriteria = random.Between(0, 3);
            column.SortUseKey = random.OneIn(4);
        }
        for (int row = 0; row < table->MaxRow(); ++row) {
            table->RowAt(row).RecordPos = row;
            table->RowAt(row).Height = random.OneIn(4) ? i16(0) : i16(20);
            for (int col = 0; col < table->MaxCol(); ++col) {
                table->EditCell(row, col).SetText(RandomValue());
                table->EditCell(row, col).SetKey(RandomValue());
            }
        }
        HiddenLines(*table).RebuildChain();
        return table;
    }

    std::vector<i16> RandomCols(const GridStore& table)
    {
        std::vector<i16> cols(static_cast<std::size_t>(random.Between(1, 4)));
        for (i16& col : cols)
            col = static_cast<i16>(random.Between(0, table.MaxCol() - 1));
        return cols;
    }

    static std::vector<int> SourcesOf(const GridStore& table)
    {
        std::vector<int> sources;
        for (int row = 0; row < table.MaxRow(); ++row)
            sources.push_back(table.RowAt(row).RecordPos);
        return sources;
    }

    static void CheckChain(GridStore& table)
    {
        const HiddenLines hidden(table);
        std::vector<int> expected;
        const int last = table.LastRowIndex();
        for (int row = table.FixedRows(); row <= last; ++row)
            if (table.HeightOf(row) > 0 || row == table.FixedRows() || row == last)
                expected.push_back(row);
        std::vector<int> down;
        for (int row = table.FixedRows(); row <= last; row = hidden.NextInChain(row))
            down.push_back(row);
        EXPECT_EQ(down, expected);
        std::vector<int> up;
        for (int row = last; row >= table.FixedRows(); row = hidden.PrevInChain(row))
            up.insert(up.begin(), row);
        EXPECT_EQ(up, expected);
    }

    // Sorts the table; the plain sort gives what is to come out.
    void SortBoth(GridStore& table, const std::vector<i16>& cols)
    {
        const std::vector<int> before = SourcesOf(table);
        const auto copy = BuildStore(table.Rows(), table.Cols(), table.FixedRows(), table.FixedCols());
        for (int col = 0; col < table.MaxCol(); ++col) {
            copy->ColumnAt(col).SortType = table.ColumnAt(col).SortType;
            copy->ColumnAt(col).SortCriteria = table.ColumnAt(col).SortCriteria;
            copy->ColumnAt(col).SortUseKey = table.ColumnAt(col).SortUseKey;
        }
        for (int row = 0; row < table.MaxRow(); ++row) {
            copy->RowAt(row).RecordPos = table.RowAt(row).RecordPos;
            for (int col = 0; col < table.MaxCol(); ++col) {
                copy->EditCell(row, col).SetText(table.CellAt(row, col).Text());
                copy->EditCell(row, col).SetKey(table.CellAt(row, col).Key());
            }
        }
        PlainSort(*copy, cols);
        Spans spans(table);
        HiddenLines hidden(table);
        SortRows(table, spans, hidden, cols, BuiltinLocale());
        ASSERT_EQ(SourcesOf(table), SourcesOf(*copy));
        CheckChain(table);
    }

    RandomNumbers random { 20 };
    int firstValue = 0;
    int spread = 1;
};

TEST_F(SortRandomTest, SmallTablesEndAsThePlainSortLeavesThem)
{
    for (int round = 0; round < 1500 && !HasFatalFailure(); ++round) {
        SCOPED_TRACE(round);
        const auto table = RandomTable(60);
        for (int sort = 0; sort < 3 && !HasFatalFailure(); ++sort)
            SortBoth(*table, RandomCols(*table));
    }
}

TEST_F(SortRandomTest, LargeTablesEndAsThePlainSortLeavesThem)
{
    for (int round = 0; round < 6 && !HasFatalFailure(); ++round) {
        SCOPED_TRACE(round);
        const auto table = RandomTable(4000);
        SortBoth(*table, RandomCols(*table));
    }
}

// Rows that are alike in nearly all of very many columns, repeated ones and ones without a type among them.
TEST_F(SortRandomTest, ManyColumnsEndAsThePlainSortLeavesThem)
{
    constexpr int Cols = 40;
    for (int round = 0; round < 20 && !HasFatalFailure(); ++round) {
        SCOPED_TRACE(round);
        const auto table = BuildStore(200, Cols, 1, 0);
        std::vector<i16> cols;
        for (int col = 0; col < Cols; ++col) {
            Column& column = table->ColumnAt(col);
            column.SortType = random.OneIn(8) ? 7 : i32(vxNumeric);
            column.SortCriteria = random.Between(0, 3);
            cols.push_back(static_cast<i16>(random.OneIn(8) ? random.Between(0, Cols - 1) : col));
        }
        const auto write = [&](int row, int col, int value) {
            const std::string digits = std::to_string(value);
            table->EditCell(row, col).SetText(std::u16string(digits.begin(), digits.end()));
        };
        for (int row = 0; row < table->MaxRow(); ++row) {
            table->RowAt(row).RecordPos = row;
            for (int col = 0; col < Cols; ++col)
                write(row, col, row % 3);
            if (!random.OneIn(3))
                write(row, random.Between(0, Cols - 1), random.Between(0, 1000));
        }
        SortBoth(*table, cols);
    }
}

TEST_F(SortRandomTest, AnyTextsEndAsThePlainSortLeavesThem)
{
    for (int round = 0; round < 300 && !HasFatalFailure(); ++round) {
        SCOPED_TRACE(round);
        const auto table = RandomTable(40);
        for (int row = 0; row < table->MaxRow(); ++row)
            for (int col = 0; col < table->MaxCol(); ++col)
                table->EditCell(row, col).SetText(RandomText(random));
        SortBoth(*table, RandomCols(*table));
    }
}

// Each span that is left is whole, and every cell is in one at most.
TEST_F(SortRandomTest, SpansStayWhole)
{
    for (int round = 0; round < 1000; ++round) {
        SCOPED_TRACE(round);
        const auto table = RandomTable(12);
        Spans spans(*table);
        for (int span = 0; span < 6 && table->MaxRow() > 0; ++span) {
            const int row = random.Between(0, table->MaxRow() - 1);
            const int col = random.Between(0, table->MaxCol() - 1);
            spans.SetRowSpan(row, col, static_cast<i16>(random.Between(1, 4)));
            spans.SetColSpan(row, col, static_cast<i16>(random.Between(1, 3)));
        }
        HiddenLines hidden(*table);
        SortRows(*table, spans, hidden, RandomCols(*table), BuiltinLocale());
        int covered = 0;
        for (int row = 0; row < table->MaxRow(); ++row) {
            for (int col = 0; col < table->MaxCol(); ++col) {
                const CellIndex parent = spans.ParentOf(row, col);
                ASSERT_TRUE(parent.row >= 0 && parent.row <= row && parent.col >= 0 && parent.col <= col);
                ASSERT_FALSE(table->CellAt(parent.row, parent.col).IsChild());
                ASSERT_LT(row, parent.row + spans.RowsCovered(parent.row, parent.col));
                ASSERT_LT(col, parent.col + spans.ColsCovered(parent.row, parent.col));
                if (!table->CellAt(row, col).IsChild()) {
                    covered += spans.RowsCovered(row, col) * spans.ColsCovered(row, col);
                    ASSERT_LE(row + spans.RowsCovered(row, col), table->MaxRow());
                }
            }
        }
        EXPECT_EQ(covered, table->MaxRow() * table->MaxCol());
    }
}

} // namespace
} // namespace vornix
