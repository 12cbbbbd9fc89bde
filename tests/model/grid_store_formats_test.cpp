// Formats of cells and of lines of cells.
#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

FormatEdit PaintWith(OleColor color)
{
    return [color](CellFormat& format) { format.BackColor = color; };
}

TEST(GridStoreFormatsTest, OneCellChangesAlone)
{
    const auto store = BuildStore(3, 3);
    const CellFormat before = store->Format(1, 1);
    store->EditFormat(1, 1, PaintWith(7));
    EXPECT_EQ(store->Format(1, 1).BackColor, 7u);
    EXPECT_EQ(store->Format(0, 1), before);
    EXPECT_EQ(store->Format(1, 0), before);
    CellFormat whole;
    whole.FontSize = 33;
    store->SetFormat(2, 2, whole);
    EXPECT_EQ(store->Format(2, 2), whole);
}

TEST(GridStoreFormatsTest, AColumnKeepsWhatTellsItsCellsApart)
{
    const auto store = BuildStore(5, 2, 1);
    store->EditFormat(3, 1, [](CellFormat& format) { format.FontBold = true; });
    store->EditColFormats(1, 1, store->MaxRow(), PaintWith(9));
    for (int row = 1; row <= store->MaxRow(); ++row) {
        EXPECT_EQ(store->Format(row, 1).BackColor, 9u);
        EXPECT_EQ(store->Format(row, 1).FontBold, row == 3);
        EXPECT_NE(store->Format(row, 0).BackColor, 9u);
    }
    EXPECT_NE(store->Format(0, 1).BackColor, 9u);
}

TEST(GridStoreFormatsTest, ARectangleAndARow)
{
    const auto store = BuildStore(4, 4);
    store->EditRectFormats(1, 1, 2, 3, PaintWith(5));
    store->EditRowFormats(3, 0, 1, PaintWith(6));
    for (int row = 0; row <= 4; ++row)
        for (int col = 0; col <= 4; ++col) {
            const bool inRect = row >= 1 && row <= 2 && col >= 1 && col <= 3;
            const bool inRow = row == 3 && col <= 1;
            EXPECT_EQ(store->Format(row, col).BackColor == 5, inRect);
            EXPECT_EQ(store->Format(row, col).BackColor == 6, inRow);
        }
}

TEST(GridStoreFormatsTest, EmptyRangesWriteNothing)
{
    const auto store = BuildStore(2, 2);
    store->EditColFormats(0, 2, 1, PaintWith(5));
    store->EditRowFormats(0, 3, 2, PaintWith(5));
    store->EditRectFormats(5, 0, 2, 2, PaintWith(5));
    for (int row = 0; row <= 2; ++row)
        for (int col = 0; col <= 2; ++col)
            EXPECT_NE(store->Format(row, col).BackColor, 5u);
}

TEST(GridStoreFormatsTest, ARangeThatLeavesTheStoreIsWrittenUpToItsEnd)
{
    const auto store = BuildStore(2, 2);
    EXPECT_EQ(ErrorOf([&] { store->EditColFormats(0, 1, 5, PaintWith(5)); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(store->Format(2, 0).BackColor, 5u);
    EXPECT_EQ(ErrorOf([&] { store->EditRowFormats(0, 1, 5, PaintWith(6)); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(store->Format(0, 2).BackColor, 6u);
    EXPECT_EQ(ErrorOf([&] { store->EditColFormats(0, -1, 1, PaintWith(7)); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->EditRowFormats(0, -1, 1, PaintWith(7)); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->EditColFormats(3, 0, 1, PaintWith(7)); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store->EditRowFormats(3, 0, 1, PaintWith(7)); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(GridStoreFormatsTest, RowsSharingCellsWithRowsOutsideTheRangeAreNotTouched)
{
    const auto store = BuildStore(6, 1);
    store->EditCell(2, 0).SetText(u"own");
    store->EditColFormats(0, 1, 3, PaintWith(4));
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(store->Format(row, 0).BackColor == 4, row >= 1 && row <= 3);
    EXPECT_EQ(store->CellAt(2, 0).Text(), u"own");
    EXPECT_EQ(store->RowAt(1).Cells.Identity(), store->RowAt(3).Cells.Identity());
    EXPECT_EQ(store->RowAt(0).Cells.Identity(), store->RowAt(5).Cells.Identity());
}

TEST(GridStoreFormatsTest, EditingCellsOfAColumnKeepsSharingToo)
{
    const auto store = BuildStore(6, 1);
    int runs = 0;
    store->EditColCells(0, 0, 5, [&](Cell& cell) {
        ++runs;
        cell.SetText(u"all");
    });
    EXPECT_EQ(runs, 1);
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(store->CellAt(row, 0).Text(), u"all");
    EXPECT_FALSE(store->CellAt(6, 0).HasText());
}

TEST(GridStoreFormatsTest, ColumnDefaultsReachNewRowsOnly)
{
    const auto store = BuildStore(2, 2);
    store->EditColDefaults(1, PaintWith(8));
    EXPECT_EQ(store->ColDefaults(1).BackColor, 8u);
    EXPECT_NE(store->Format(0, 1).BackColor, 8u);
    ChangeRows(*store, 3);
    EXPECT_EQ(store->Format(2, 1).BackColor, 8u);
    CellFormat whole;
    whole.Mode = vxCheckBox;
    store->SetColDefaults(1, whole);
    EXPECT_EQ(store->ColDefaults(1), whole);
}

TEST(GridStoreFormatsTest, EndlessNewColoursDoNotGrowTheTable)
{
    const auto store = BuildStore(50, 4, 1);
    store->EditFormat(10, 2, [](CellFormat& format) { format.FontSize = 77; });
    const CellFormat marked = store->Format(10, 2);
    store->EditColDefaults(3, PaintWith(0x00ABCDEF));
    std::size_t largest = 0;
    std::size_t memory = 0;
    for (OleColor color = 0; color < 60000; ++color) {
        store->EditFormat(5, 1, PaintWith(color));
        if (color % 100 == 0)
            store->EditColFormats(0, 1, store->MaxRow(), PaintWith(color));
        largest = std::max(largest, store->Formats().Count());
        ASSERT_EQ(store->Format(5, 1).BackColor, color);
        if (color == 5000)
            memory = store->MemoryInUse();
    }
    EXPECT_LT(largest, 3000u);
    EXPECT_LE(store->MemoryInUse(), memory + 100'000);
    EXPECT_EQ(store->Format(10, 2), marked) << "what is in use survives";
    EXPECT_EQ(store->ColDefaults(3).BackColor, 0x00ABCDEFu);
    EXPECT_EQ(store->Format(0, 0), store->Defaults.DefaultCellFormatFixed);
}

TEST(GridStoreFormatsTest, ManyFormatsInUseAllSurvive)
{
    const auto store = BuildStore(3000, 1);
    for (int row = 0; row < 3000; ++row)
        store->EditFormat(row, 0, PaintWith(static_cast<OleColor>(row + 1)));
    for (int round = 0; round < 3; ++round)
        for (OleColor color = 0; color < 3000; ++color)
            store->EditFormat(3000, 0, PaintWith(0x10000 + color));
    for (int row = 0; row < 3000; ++row)
        ASSERT_EQ(store->Format(row, 0).BackColor, static_cast<OleColor>(row + 1));
}

} // namespace
} // namespace vornix
