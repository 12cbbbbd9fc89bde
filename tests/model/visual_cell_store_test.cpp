#include "model/visual_cell_store.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

VisualCell MakeEntry(OleColor color, i16 row, i16 col)
{
    VisualCell cell;
    cell.Format.BackColor = color;
    cell.Row = row;
    cell.Col = col;
    return cell;
}

TEST(VisualCellStoreTest, StartsWithOneZeroedEntry)
{
    const VisualCellStore store;
    ASSERT_NE(store.Find(0), nullptr);
    EXPECT_EQ(store.Find(0)->Format, CellFormat());
    EXPECT_EQ(store.Find(1), nullptr);
}

TEST(VisualCellStoreTest, GrowsToTheIndexAndKeepsContents)
{
    VisualCellStore store;
    store.Store(0, MakeEntry(1, 2, 3));
    store.Store(4, MakeEntry(5, 6, 7));
    EXPECT_EQ(store.Find(0)->Format.BackColor, 1u);
    EXPECT_EQ(store.Find(0)->Row, 2);
    EXPECT_EQ(store.Find(0)->Col, 3);
    EXPECT_EQ(store.Find(4)->Format.BackColor, 5u);
    ASSERT_NE(store.Find(3), nullptr);
    EXPECT_EQ(store.Find(3)->Format, CellFormat()) << "never written";
    EXPECT_EQ(store.Find(5), nullptr);
}

TEST(VisualCellStoreTest, RefusesNegativeIndices)
{
    VisualCellStore store;
    EXPECT_EQ(ErrorOf([&] { store.Store(-1, VisualCell()); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { store.Find(-1); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(VisualCellStoreTest, ClearingLeavesOneEmptyEntry)
{
    VisualCellStore store;
    store.Store(3, MakeEntry(1, 1, 1));
    store.Store(0, MakeEntry(1, 1, 1));
    store.Clear();
    EXPECT_EQ(store.Find(0)->Format, CellFormat());
    EXPECT_EQ(store.Find(0)->Row, 0);
    EXPECT_EQ(store.Find(1), nullptr);
}

} // namespace
} // namespace vornix
