#include "data/sort.h"

#include "model/store_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace vornix {
namespace {

using testing::ElementsAre;

// One fixed row and column; the texts and keys of the column behind it.
class SortTest : public testing::Test {
protected:
    using Texts = std::vector<std::u16string>;

    void Fill(std::initializer_list<const char16_t*> texts)
    {
        store = BuildStore(static_cast<int>(texts.size()), 2, 1, 1);
        int row = 1;
        for (const char16_t* const text : texts) {
            store->EditCell(row, 1).SetText(text);
            store->EditCell(row, 2).SetText(std::to_string(row) == "1" ? u"first" : u"later");
            ++row;
        }
    }
    void Sort(std::vector<i16> cols = { 1 })
    {
        Spans spans(*store);
        HiddenLines hidden(*store);
        SortRows(*store, spans, hidden, cols, BuiltinLocale());
    }
    Texts Column(int col = 1)
    {
        Texts texts;
        for (int row = 1; row < store->MaxRow(); ++row)
            texts.push_back(store->CellAt(row, col).Text());
        return texts;
    }
    // Where each row of a table was before it was sorted by a column of equal values.
    static std::vector<int> OrderOfEqualRows(int rows)
    {
        const auto table = BuildStore(rows, 1);
        for (int row = 0; row < rows; ++row)
            table->RowAt(row).RecordPos = row;
        Spans spans(*table);
        HiddenLines hidden(*table);
        const i16 cols[] = { 0 };
        SortRows(*table, spans, hidden, cols, BuiltinLocale());
        std::vector<int> order;
        for (int row = 0; row < rows; ++row)
            order.push_back(table->RowAt(row).RecordPos);
        return order;
    }

    std::unique_ptr<GridStore> store = BuildStore(2, 2, 1, 1);
};

TEST_F(SortTest, NumbersOfANumericColumn)
{
    Fill({ u"10", u"9", u"", u"word", u"-3" });
    store->ColumnAt(1).SortType = vxNumeric;
    Sort();
    const Texts sorted = Column();
    EXPECT_EQ(sorted[0], u"-3");
    EXPECT_THAT((Texts { sorted[1], sorted[2] }), testing::UnorderedElementsAre(u"", u"word"));
    EXPECT_EQ(sorted[3], u"9");
    EXPECT_EQ(sorted[4], u"10");
}

TEST_F(SortTest, TextsWithoutRegardToCase)
{
    Fill({ u"beta", u"Alpha", u"BETA", u"alpha", u"Beta" });
    Sort();
    const Texts sorted = Column();
    EXPECT_THAT((Texts { sorted[0], sorted[1] }), testing::UnorderedElementsAre(u"Alpha", u"alpha"));
    EXPECT_THAT((Texts { sorted[2], sorted[3], sorted[4] }), testing::UnorderedElementsAre(u"beta", u"BETA", u"Beta"));
}

TEST_F(SortTest, WhatIsNoDateLiesAheadOfAllDates)
{
    Fill({ u"1/1/2020", u"none", u"5/5/1850", u"", u"0000-01-01" });
    store->ColumnAt(1).SortType = vxDate;
    Sort();
    Texts sorted = Column();
    EXPECT_EQ(sorted[3], u"5/5/1850");
    EXPECT_EQ(sorted[4], u"1/1/2020");
    store->ColumnAt(1).SortCriteria = vxDesc;
    Sort();
    sorted = Column();
    EXPECT_EQ(sorted[0], u"1/1/2020");
    EXPECT_EQ(sorted[1], u"5/5/1850");
}

TEST_F(SortTest, FixedRowsStay)
{
    Fill({ u"b", u"a" });
    store->EditCell(0, 1).SetText(u"z");
    Sort();
    EXPECT_EQ(store->CellAt(0, 1).Text(), u"z");
    EXPECT_THAT(Column(), ElementsAre(u"a", u"b"));
    EXPECT_FALSE(store->CellAt(3, 1).HasText()) << "the filler row";
}

TEST_F(SortTest, ARowMovesWhole)
{
    Fill({ u"b", u"a" });
    Row& row = store->RowAt(2);
    row.LineColor = 77;
    row.RecordPos = 4711;
    row.Height = 33;
    row.SavedHeight = 34;
    row.Resizable = true;
    store->EditCell(2, 2).SetKey(u"key");
    store->EditFormat(2, 0, [](CellFormat& format) { format.ForeColor = 12; });
    Sort();
    const Row& moved = store->RowAt(1);
    EXPECT_EQ(moved.LineColor, 77u);
    EXPECT_EQ(moved.RecordPos, 4711);
    EXPECT_EQ(moved.Height, 33);
    EXPECT_EQ(moved.SavedHeight, 34);
    EXPECT_TRUE(moved.Resizable);
    EXPECT_EQ(store->CellAt(1, 2).Key(), u"key");
    EXPECT_EQ(store->Format(1, 0).ForeColor, 12u);
    EXPECT_EQ(store->CellAt(2, 2).Text(), u"first");
}

TEST_F(SortTest, NoneAndOneRowPass)
{
    Fill({});
    Sort();
    EXPECT_EQ(store->Rows(), 0);
    Fill({ u"a" });
    Sort();
    EXPECT_THAT(Column(), ElementsAre(u"a"));
}

// With the gaps 4 and 1: what walks over a gap passes equal rows between.
TEST_F(SortTest, EqualRowsEndInTheOrderOfTheMethod)
{
    EXPECT_THAT(OrderOfEqualRows(3), ElementsAre(0, 1, 2));
    store = BuildStore(6, 2, 1, 1);
    const char16_t* const texts[] = { u"b", u"b", u"b", u"b", u"a", u"a" };
    for (int row = 0; row < 6; ++row) {
        store->EditCell(row + 1, 1).SetText(texts[row]);
        store->EditCell(row + 1, 2).SetText(std::u16string(1, static_cast<char16_t>(u'1' + row)));
    }
    Sort();
    EXPECT_THAT(Column(), ElementsAre(u"a", u"a", u"b", u"b", u"b", u"b"));
    EXPECT_THAT(Column(2), ElementsAre(u"5", u"6", u"3", u"4", u"1", u"2"));
}

TEST_F(SortTest, SortedAgainNothingMoves)
{
    Fill({ u"d", u"b", u"b", u"a", u"b", u"c", u"b" });
    Sort();
    const Texts once = Column();
    for (int row = 1; row < store->MaxRow(); ++row)
        store->RowAt(row).RecordPos = row;
    Sort();
    EXPECT_EQ(Column(), once);
    for (int row = 1; row < store->MaxRow(); ++row)
        EXPECT_EQ(store->RowAt(row).RecordPos, row);
}

TEST_F(SortTest, ARemovedColumnIsAnErrorAndNothingMoves)
{
    Fill({ u"b", u"a" });
    EXPECT_EQ(ErrorOf([&] { Sort({ 1, 9 }); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_THAT(Column(), ElementsAre(u"b", u"a"));
}

TEST_F(SortTest, TheGapsEndAt29524Rows)
{
    for (const int rows : { 29523, 29524, 32766 }) {
        const auto table = BuildStore(rows, 1);
        table->EditCell(0, 0).SetText(u"z");
        Spans spans(*table);
        HiddenLines hidden(*table);
        const i16 cols[] = { 0 };
        const int error = ErrorOf([&] { SortRows(*table, spans, hidden, cols, BuiltinLocale()); });
        EXPECT_EQ(error, rows == 29523 ? 0 : ErrorNumber::Overflow) << rows;
        EXPECT_EQ(table->CellAt(rows == 29523 ? rows - 1 : 0, 0).Text(), u"z") << rows;
    }
}

// The gap counts from the first row that is not fixed, in 16 bits as well.
TEST_F(SortTest, AGapBehindTheLastIndexIsAnError)
{
    const auto table = BuildStore(0, 1, 32767, 0);
    Spans spans(*table);
    HiddenLines hidden(*table);
    const i16 cols[] = { 0 };
    EXPECT_EQ(ErrorOf([&] { SortRows(*table, spans, hidden, cols, BuiltinLocale()); }), ErrorNumber::Overflow);
}

TEST_F(SortTest, TheChainOfVisibleRowsFollows)
{
    Fill({ u"e", u"d", u"c", u"b", u"a" });
    HiddenLines hidden(*store);
    hidden.HideRow(2); // "d", to be the fourth
    store->RowAt(3).Height = 0; // "c", which stays the third, without having been hidden
    hidden.RebuildChain();
    Sort();
    EXPECT_TRUE(store->RowAt(4).Hidden);
    EXPECT_EQ(store->HeightOf(4), 0);
    EXPECT_EQ(hidden.NextInChain(1), 2);
    EXPECT_EQ(hidden.NextInChain(2), 5);
    EXPECT_EQ(hidden.PrevInChain(5), 2);
    hidden.ShowRow(4);
    EXPECT_EQ(hidden.NextInChain(2), 4);
}

TEST_F(SortTest, ASpanAcrossColumnsMovesWithItsRow)
{
    Fill({ u"b", u"a" });
    Spans(*store).SetColSpan(1, 1, 2);
    Sort();
    EXPECT_EQ(store->CellAt(2, 1).ColSpan(), 2);
    EXPECT_EQ(Spans(*store).ParentOf(2, 2), (CellIndex { 2, 1 }));
    EXPECT_EQ(store->CellAt(1, 1).ColSpan(), 0);
}

TEST_F(SortTest, ASpanAcrossRowsThatStayTogetherMovesWithThem)
{
    Fill({ u"c", u"a", u"b" });
    Spans spans(*store);
    spans.SetRowSpan(2, 2, 2);
    Sort();
    EXPECT_THAT(Column(), ElementsAre(u"a", u"b", u"c"));
    EXPECT_EQ(store->CellAt(1, 2).RowSpan(), 2);
    EXPECT_EQ(spans.ParentOf(2, 2), (CellIndex { 1, 2 }));
}

TEST_F(SortTest, ASpanAcrossRowsThatPartIsTakenBack)
{
    Fill({ u"c", u"a", u"b" });
    Spans spans(*store);
    spans.SetRowSpan(1, 2, 2);
    spans.SetRowSpan(0, 1, 2); // from the fixed row into those that move
    Sort();
    for (int row = 0; row <= 3; ++row) {
        for (int col = 1; col <= 2; ++col) {
            EXPECT_EQ(store->CellAt(row, col).RowSpan(), 0);
            EXPECT_FALSE(store->CellAt(row, col).IsChild());
        }
    }
}

// As rows that were exchanged leave them behind: they stay as they are.
TEST_F(SortTest, LinksThatLeadNowhereAreNoError)
{
    Fill({ u"c", u"a", u"b" });
    store->EditCell(1, 2).SetParentRow(-5);
    store->EditCell(2, 2).SetParentRow(-1);
    store->EditCell(3, 2).SetRowSpan(9);
    EXPECT_EQ(ErrorOf([&] { Sort(); }), 0);
    EXPECT_THAT(Column(), ElementsAre(u"a", u"b", u"c"));
    EXPECT_EQ(store->CellAt(3, 2).ParentRow(), -5);
    EXPECT_EQ(store->CellAt(1, 2).ParentRow(), -1);
    EXPECT_EQ(store->CellAt(2, 2).RowSpan(), 9);
}

} // namespace
} // namespace vornix
