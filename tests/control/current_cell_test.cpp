#include "interact/current_cell.h"

#include "control/grid_fixture.h"

namespace vornix {
namespace {

class CurrentCellTest : public testing::Test {
protected:
    CurrentCellTest()
    {
        store.StoreRows(5);
        store.StoreCols(4);
        store.StoreFixedRows(1);
        store.StoreFixedCols(1);
        store.InitGridStore(SystemColors());
    }

    GridStore store;
    CurrentCell current;
};

TEST_F(CurrentCellTest, StartsWithoutACell)
{
    EXPECT_FALSE(current.IsValid());
    EXPECT_EQ(current.Row(), -1);
    EXPECT_EQ(current.Col(), -1);
    EXPECT_FALSE(current.IsDisplayedAt(-1, -1));
}

TEST_F(CurrentCellTest, IsDisplayedWhereItIs)
{
    current.Set(2, 3);
    EXPECT_TRUE(current.IsDisplayedAt(2, 3));
    EXPECT_FALSE(current.IsDisplayedAt(2, 2));
    {
        const CurrentCell::Undisplayed withoutMark(current);
        EXPECT_FALSE(current.IsDisplayedAt(2, 3));
        EXPECT_TRUE(current.IsValid());
    }
    EXPECT_TRUE(current.IsDisplayedAt(2, 3));
}

TEST_F(CurrentCellTest, FollowsLinesAddedOrTakenAwayAtOrBeforeIt)
{
    current.Set(3, 2);
    current.AdjustForRows(store, 3, 1);
    EXPECT_EQ(current.Row(), 4);
    current.AdjustForRows(store, 5, -3);
    EXPECT_EQ(current.Row(), 4);
    current.AdjustForRows(store, 0, -2);
    EXPECT_EQ(current.Row(), 2);
    current.AdjustForCols(store, 1, 2);
    EXPECT_EQ(current.Col(), 4);
}

TEST_F(CurrentCellTest, IsForgottenOutsideTheRealLines)
{
    current.Set(5, 2);
    current.AdjustForRows(store, 2, 1);
    EXPECT_FALSE(current.IsValid()) << "the filler row is no place for it";
    current.Set(2, 1);
    current.AdjustForCols(store, 0, -2);
    EXPECT_FALSE(current.IsValid());
    current.AdjustForRows(store, 0, 5);
    EXPECT_FALSE(current.IsValid());
}

// Where there was none it is the first one; that is no current cell yet.
TEST_F(CurrentCellTest, KeepsItsRowWhenRowsAreSorted)
{
    current.AdjustForSort(store);
    EXPECT_EQ(current.Row(), 1);
    EXPECT_FALSE(current.IsValid());
    current.Set(3, 2);
    current.AdjustForSort(store);
    EXPECT_TRUE(current.IsAt(3, 2));
    current.Clear();
    store.StoreRows(0);
    current.AdjustForSort(store);
    EXPECT_EQ(current.Row(), -1) << "there is none";
}

} // namespace
} // namespace vornix
