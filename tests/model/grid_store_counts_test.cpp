// Sizes and bounds of the store.
#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

TEST(GridStoreCountsTest, ANewGridHasArraysOfTwoElements)
{
    const auto store = BuildStore(1, 1);
    EXPECT_EQ(store->MaxRow(), 1);
    EXPECT_EQ(store->MaxCol(), 1);
    EXPECT_EQ(store->LastRowIndex(), 0);
    EXPECT_EQ(store->LastColIndex(), 0);
    EXPECT_TRUE(store->ContainsRow(1));
    EXPECT_FALSE(store->ContainsRow(2));
    EXPECT_TRUE(store->ContainsCol(1));
    EXPECT_FALSE(store->ContainsCol(2));
    EXPECT_EQ(store->RowAt(0).Cells.Count(), 2);
}

TEST(GridStoreCountsTest, AStoreThatWasNotBuiltRefusesEveryAccess)
{
    GridStore store;
    EXPECT_EQ(ErrorOf([&] { store.CellAt(0, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store.ColumnAt(0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store.ResizeRowStore(3); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store.ResizeColStore(3); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(GridStoreCountsTest, TheFillerIsReachableAndWhatLiesBehindItIsNot)
{
    const auto store = BuildStore(3, 2, 1, 1);
    EXPECT_EQ(ErrorOf([&] { store->CellAt(4, 3); }), 0);
    store->EditCell(4, 3).SetText(u"filler");
    EXPECT_EQ(store->CellAt(4, 3).Text(), u"filler");
    for (const auto& [row, col] : { std::pair(5, 0), std::pair(0, 4), std::pair(-1, 0), std::pair(0, -1) }) {
        EXPECT_EQ(ErrorOf([&] { store->CellAt(row, col); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(ErrorOf([&] { store->EditCell(row, col); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(ErrorOf([&] { store->Format(row, col); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(ErrorOf([&] { store->EditFormat(row, col, [](CellFormat&) {}); }), ErrorNumber::SubscriptOutOfRange);
    }
    EXPECT_EQ(ErrorOf([&] { store->HeightOf(5); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->WidthOf(-1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->ColDefaults(4); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(GridStoreCountsTest, GrowingRowsKeepsTheFillerOnTop)
{
    const auto store = BuildStore(2, 1);
    store->EditCell(0, 0).SetText(u"first");
    store->EditCell(2, 0).SetText(u"filler");
    ChangeRows(*store, 5);
    EXPECT_EQ(store->MaxRow(), 5);
    EXPECT_EQ(store->CellAt(0, 0).Text(), u"first");
    EXPECT_EQ(store->CellAt(5, 0).Text(), u"filler");
    for (int row = 2; row < 5; ++row)
        EXPECT_FALSE(store->CellAt(row, 0).HasText());
    EXPECT_EQ(store->HeightOf(5), 0);
    EXPECT_EQ(store->HeightOf(4), 21);
}

TEST(GridStoreCountsTest, ShrinkingRowsKeepsTheFillerOnTop)
{
    const auto store = BuildStore(5, 1, 1);
    store->EditCell(2, 0).SetText(u"kept");
    store->EditCell(6, 0).SetText(u"filler");
    ChangeRows(*store, 2);
    EXPECT_EQ(store->MaxRow(), 3);
    EXPECT_EQ(store->CellAt(2, 0).Text(), u"kept");
    EXPECT_EQ(store->CellAt(3, 0).Text(), u"filler");
    EXPECT_EQ(ErrorOf([&] { store->CellAt(4, 0); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(GridStoreCountsTest, ResizingToTheSameRowCountDoesNothing)
{
    const auto store = BuildStore(2, 1);
    store->EditCell(2, 0).SetText(u"filler");
    store->ResizeRowStore(2);
    EXPECT_EQ(store->CellAt(2, 0).Text(), u"filler");
    EXPECT_EQ(store->MaxRow(), 2);
}

TEST(GridStoreCountsTest, ColumnsGrowAndShrinkInEveryRow)
{
    const auto store = BuildStore(2, 2, 1, 1);
    store->EditCell(1, 1).SetText(u"kept");
    store->EditCell(1, 3).SetText(u"filler");
    ChangeCols(*store, 4);
    for (int row = 0; row <= store->MaxRow(); ++row)
        EXPECT_EQ(store->RowAt(row).Cells.Count(), 6);
    EXPECT_EQ(store->CellAt(1, 1).Text(), u"kept");
    EXPECT_EQ(store->CellAt(1, 5).Text(), u"filler");
    EXPECT_EQ(store->ColumnAt(4).Order, 3);
    ChangeCols(*store, 1);
    EXPECT_EQ(store->MaxCol(), 2);
    EXPECT_EQ(store->CellAt(1, 2).Text(), u"filler");
}

TEST(GridStoreCountsTest, AFirstFixedRowComesAboveAndKeepsTheRowsBelow)
{
    const auto store = BuildStore(2, 1);
    store->EditCell(0, 0).SetText(u"first");
    ChangeFixedRows(*store, 1);
    EXPECT_EQ(store->Rows(), 2);
    EXPECT_EQ(store->MaxRow(), 3);
    EXPECT_EQ(store->CellAt(1, 0).Text(), u"first");
    EXPECT_FALSE(store->CellAt(0, 0).HasText());
    EXPECT_EQ(store->Format(0, 0), store->Defaults.DefaultCellFormatFixed);
}

TEST(GridStoreCountsTest, FewerFixedRowsDropTheOutermost)
{
    const auto store = BuildStore(1, 1, 2);
    store->EditCell(0, 0).SetText(u"outer");
    store->EditCell(1, 0).SetText(u"inner");
    ChangeFixedRows(*store, 1);
    EXPECT_EQ(store->CellAt(0, 0).Text(), u"inner");
    EXPECT_EQ(store->MaxRow(), 2);
}

TEST(GridStoreCountsTest, NegativeFixedCountsEndInAnErrorOrInAWholeStore)
{
    const auto checkWhole = [](GridStore& store) {
        for (int row = 0; row <= store.MaxRow(); ++row)
            ASSERT_EQ(store.RowAt(row).Cells.Count(), store.MaxCol() + 1);
        ASSERT_FALSE(store.ContainsRow(store.MaxRow() + 1));
        ASSERT_FALSE(store.ContainsCol(store.MaxCol() + 1));
    };
    for (int count = 0; count <= 3; ++count) {
        for (const int negative : { -1, -2, -3, -4, -5, -32768 }) {
            const auto store = BuildStore(count, count, 1, 1);
            const int rowError = ErrorOf([&] { ChangeFixedRows(*store, negative); });
            EXPECT_EQ(rowError, count + negative < 0 ? ErrorNumber::SubscriptOutOfRange : 0);
            checkWhole(*store);
            const int colError = ErrorOf([&] { ChangeFixedCols(*store, negative); });
            EXPECT_EQ(colError, count + negative < 0 ? ErrorNumber::SubscriptOutOfRange : 0);
            checkWhole(*store);
            // Whatever is done with it then, it stays whole.
            ErrorOf([&] { ChangeRows(*store, 4); });
            checkWhole(*store);
            ErrorOf([&] { ChangeCols(*store, 4); });
            checkWhole(*store);
            ErrorOf([&] { ChangeFixedRows(*store, 2); });
            checkWhole(*store);
            ErrorOf([&] { store->InitFillerCol(); });
            ErrorOf([&] { store->InitFillerRow(); });
            ErrorOf([&] { store->InitRows(-1, 2); });
            ErrorOf([&] { store->InitCols(-1, 2); });
            ErrorOf([&] { store->ResetAttributes(); });
            checkWhole(*store);
        }
    }
}

TEST(GridStoreCountsTest, SumsBeyondSixteenBitsOverflow)
{
    const auto store = BuildStore(1, 1);
    EXPECT_EQ(ErrorOf([&] { store->ResizeRowStore(32768); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { store->ResizeColStore(32768); }), ErrorNumber::Overflow);
    EXPECT_EQ(store->MaxRow(), 1);
    EXPECT_EQ(store->MaxCol(), 1);
    EXPECT_EQ(ErrorOf([] { BuildStore(32767, 1, 1); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { BuildStore(1, 32767, 0, 1); }), ErrorNumber::Overflow);
}

TEST(GridStoreCountsTest, TheLargestCountsWork)
{
    const auto store = BuildStore(32767, 1);
    EXPECT_EQ(store->MaxRow(), 32767);
    store->EditCell(32767, 1).SetText(u"filler");
    EXPECT_EQ(store->CellAt(32767, 1).Text(), u"filler");
    const auto wide = BuildStore(1, 32767);
    EXPECT_EQ(wide->MaxCol(), 32767);
    wide->EditCell(1, 32767).SetText(u"filler");
    EXPECT_EQ(wide->CellAt(1, 32767).Text(), u"filler");
    EXPECT_EQ(ErrorOf([&] { wide->CellAt(0, 32768); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(GridStoreCountsTest, ShiftsOutsideTheArraysAreErrors)
{
    const auto store = BuildStore(3, 3);
    EXPECT_EQ(ErrorOf([&] { store->ShiftRowsDown(-1, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->ShiftRowsDown(2, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->ShiftRowsUp(-1, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->ShiftRowsUp(0, -1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->ShiftColsDown(-1, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->ShiftColsUp(-1, 1); }), ErrorNumber::SubscriptOutOfRange);
    // A source behind the last line copies nothing.
    EXPECT_EQ(ErrorOf([&] { store->ShiftRowsDown(0, 4); }), 0);
    EXPECT_EQ(ErrorOf([&] { store->ShiftRowsUp(4, 1); }), 0);
}

TEST(GridStoreCountsTest, ShiftingUpLeavesTheOldContentInTheGap)
{
    const auto store = BuildStore(4, 1);
    for (int row = 0; row < 4; ++row)
        store->EditCell(row, 0).SetText(std::u16string(1, static_cast<char16_t>(u'a' + row)));
    store->RowAt(1).Hidden = true;
    store->ShiftRowsUp(1, 2);
    EXPECT_EQ(store->CellAt(1, 0).Text(), u"b");
    EXPECT_EQ(store->CellAt(2, 0).Text(), u"c");
    EXPECT_EQ(store->CellAt(3, 0).Text(), u"b");
    EXPECT_EQ(store->CellAt(4, 0).Text(), u"c");
    EXPECT_TRUE(store->RowAt(3).Hidden);
    store->EditCell(1, 0).SetText(u"new");
    EXPECT_EQ(store->CellAt(3, 0).Text(), u"b") << "the copy is a value of its own";
}

TEST(GridStoreCountsTest, ManyUnwrittenRowsShareTheirCells)
{
    const auto store = BuildStore(32000, 33, 1, 1);
    EXPECT_EQ(store->RowAt(1).Cells.Identity(), store->RowAt(31000).Cells.Identity());
    EXPECT_LT(store->MemoryInUse(), 2'500'000u);
    ChangeCols(*store, 40);
    EXPECT_EQ(store->RowAt(1).Cells.Identity(), store->RowAt(31000).Cells.Identity());
    store->EditColFormats(3, 1, 32001, [](CellFormat& format) { format.BackColor = 1; });
    EXPECT_EQ(store->RowAt(1).Cells.Identity(), store->RowAt(31000).Cells.Identity());
    EXPECT_LT(store->MemoryInUse(), 2'500'000u);
}

TEST(GridStoreCountsTest, MemoryFollowsTheTexts)
{
    const auto store = BuildStore(10, 10);
    const std::size_t before = store->MemoryInUse();
    store->EditCell(0, 0).SetText(std::u16string(1000, u'\x20AC'));
    EXPECT_GE(store->MemoryInUse(), before + 2000);
    store->EditCell(0, 0).SetText(u"");
    EXPECT_LT(store->MemoryInUse(), before + 2000);
}

} // namespace
} // namespace vornix
