// What writing sizes, percents and the split stores.
#include "layout/table.h"

namespace vornix {
namespace {

class LayoutSetters : public testing::Test {
protected:
    Table table { 1, 5, 1, 5 };

    void SetUp() override { table.layout.MeasureIfDirty(); }
    Row& RowAt(int row) { return table.store.RowAt(row); }
    Column& ColumnAt(int col) { return table.store.ColumnAt(col); }
};

TEST_F(LayoutSetters, AnEqualSizeHasNoEffect)
{
    EXPECT_FALSE(table.layout.SetColWidth(2, 120));
    EXPECT_FALSE(table.layout.SetRowHeight(2, 21));
    EXPECT_FALSE(table.layout.MetricsDirty());
}

TEST_F(LayoutSetters, ANewSizeIsStoredAndMarksTheMetrics)
{
    EXPECT_TRUE(table.layout.SetColWidth(2, 80));
    EXPECT_EQ(ColumnAt(2).Width, 80);
    EXPECT_TRUE(table.layout.MetricsDirty());
    table.layout.MeasureIfDirty();
    EXPECT_TRUE(table.layout.SetRowHeight(2, 40));
    EXPECT_EQ(RowAt(2).Height, 40);
    EXPECT_TRUE(table.layout.MetricsDirty());
}

TEST_F(LayoutSetters, ANegativeSizeBecomesZero)
{
    EXPECT_TRUE(table.layout.SetColWidth(2, -1));
    EXPECT_EQ(ColumnAt(2).Width, 0);
    EXPECT_TRUE(table.layout.SetRowHeight(2, -32768));
    EXPECT_EQ(RowAt(2).Height, 0);
}

TEST_F(LayoutSetters, AHiddenLineTakesTheSizeForTheTimeItIsShown)
{
    HiddenLines hidden(table.store);
    hidden.HideCol(2);
    hidden.HideRow(2);
    EXPECT_TRUE(table.layout.SetColWidth(2, 40));
    EXPECT_TRUE(table.layout.SetRowHeight(2, 50));
    EXPECT_EQ(ColumnAt(2).Width, 0);
    EXPECT_EQ(RowAt(2).Height, 0);
    hidden.ShowCol(2);
    hidden.ShowRow(2);
    EXPECT_EQ(ColumnAt(2).Width, 40);
    EXPECT_EQ(RowAt(2).Height, 50);
}

TEST_F(LayoutSetters, ZeroEqualsTheSizeOfAHiddenLine)
{
    HiddenLines hidden(table.store);
    hidden.HideCol(2);
    hidden.HideRow(2);
    EXPECT_FALSE(table.layout.SetColWidth(2, 0));
    EXPECT_FALSE(table.layout.SetRowHeight(2, 0));
    EXPECT_EQ(ColumnAt(2).SavedWidth, 120);
    EXPECT_EQ(RowAt(2).SavedHeight, 21);
}

TEST_F(LayoutSetters, AHiddenRowLeavesTheChainAsItIs)
{
    HiddenLines hidden(table.store);
    hidden.HideRow(3);
    table.layout.SetRowHeight(3, 50);
    EXPECT_EQ(RowAt(2).NextSkip, 1);
    EXPECT_EQ(RowAt(4).PrevSkip, 1);
}

TEST_F(LayoutSetters, HeightZeroTakesTheRowOutOfTheChainAndBack)
{
    table.layout.SetRowHeight(3, 0);
    EXPECT_FALSE(RowAt(3).Hidden);
    EXPECT_EQ(RowAt(2).NextSkip, 1);
    EXPECT_EQ(RowAt(4).PrevSkip, 1);
    table.layout.SetRowHeight(3, 15);
    EXPECT_EQ(RowAt(2).NextSkip, 0);
    EXPECT_EQ(RowAt(4).PrevSkip, 0);
}

TEST_F(LayoutSetters, OtherHeightsLeaveTheChainAlone)
{
    table.layout.SetRowHeight(3, 0);
    table.layout.SetRowHeight(2, 99);
    EXPECT_EQ(RowAt(2).NextSkip, 1);
    EXPECT_EQ(RowAt(4).PrevSkip, 1);
}

TEST_F(LayoutSetters, AFirstLineThatVanishesMovesOnToTheNextVisible)
{
    table.layout.SetColWidth(2, 0);
    table.scroll.SetFirstCol(1);
    EXPECT_TRUE(table.layout.SetColWidth(1, 0));
    EXPECT_EQ(table.scroll.FirstCol(), 3);
    table.layout.SetRowHeight(2, 0);
    table.scroll.SetFirstRow(1);
    EXPECT_TRUE(table.layout.SetRowHeight(1, 0));
    EXPECT_EQ(table.scroll.FirstRow(), 3);
}

TEST_F(LayoutSetters, AFirstLineThatVanishesStaysWhenItIsTheLast)
{
    table.scroll.SetFirstCol(5);
    table.layout.SetColWidth(5, 0);
    EXPECT_EQ(table.scroll.FirstCol(), 5);
    table.scroll.SetFirstRow(5);
    table.layout.SetRowHeight(5, 0);
    EXPECT_EQ(table.scroll.FirstRow(), 5);
}

TEST_F(LayoutSetters, OtherLinesDoNotMoveTheView)
{
    table.scroll.SetFirstCol(1);
    table.scroll.SetFirstRow(1);
    table.layout.SetColWidth(2, 0);
    table.layout.SetRowHeight(2, 0);
    table.layout.SetColWidth(1, 5);
    table.layout.SetRowHeight(1, 5);
    EXPECT_EQ(table.scroll.FirstCol(), 1);
    EXPECT_EQ(table.scroll.FirstRow(), 1);
}

TEST_F(LayoutSetters, TheFillerTakesASizeAndWhatLiesBeyondIsABadSubscript)
{
    EXPECT_TRUE(table.layout.SetColWidth(6, 7));
    EXPECT_TRUE(table.layout.SetRowHeight(6, 7));
    EXPECT_EQ(ErrorOf([&] { table.layout.SetColWidth(7, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { table.layout.SetRowHeight(7, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { table.layout.SetColWidth(-1, 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { table.layout.SetColWidthPercent(7, 1); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(LayoutSetters, PercentIsActiveWhileAnyColumnHasOne)
{
    table.layout.SetColWidthPercent(0, 10);
    table.layout.SetColWidthPercent(5, 20);
    EXPECT_TRUE(table.layout.PercentActive());
    EXPECT_TRUE(table.layout.MetricsDirty());
    table.layout.SetColWidthPercent(0, 0);
    EXPECT_TRUE(table.layout.PercentActive());
    table.layout.SetColWidthPercent(5, 0);
    EXPECT_FALSE(table.layout.PercentActive());
    EXPECT_EQ(ColumnAt(5).WidthPercent, 0);
}

TEST_F(LayoutSetters, SplitNeedsShowSplit)
{
    EXPECT_FALSE(table.layout.SetSplitCols(2));
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
}

TEST_F(LayoutSetters, SplitFreezesColumnsAndStartsTheViewBehindThem)
{
    table.layout.Settings.ShowSplit = true;
    table.layout.SetSmoothOffset(-9);
    table.scroll.SetFirstCol(4);
    EXPECT_TRUE(table.layout.SetSplitCols(2));
    EXPECT_EQ(table.layout.Settings.SplitCols, 2);
    EXPECT_EQ(table.layout.FirstScrollCol(), 3);
    EXPECT_EQ(table.scroll.FirstCol(), 3);
    EXPECT_EQ(table.layout.SmoothOffset(), 0);
    EXPECT_EQ(table.layout.FixedColsWidth(), 30);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 30 + 240);
}

TEST_F(LayoutSetters, SplitIsRefusedOutsideItsBounds)
{
    table.layout.Settings.ShowSplit = true;
    EXPECT_FALSE(table.layout.SetSplitCols(0)); // the present one
    EXPECT_FALSE(table.layout.SetSplitCols(-1));
    EXPECT_FALSE(table.layout.SetSplitCols(5)); // the last column index
    EXPECT_TRUE(table.layout.SetSplitCols(4));
    EXPECT_FALSE(table.layout.SetSplitCols(4));
    EXPECT_TRUE(table.layout.SetSplitCols(0));
    EXPECT_EQ(table.layout.FirstScrollCol(), 1);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 30);
}

// The bound counts fixed columns too, so with many of them a split can ask for columns that are not there.
TEST_F(LayoutSetters, SplitBeyondTheColumnsIsABadSubscriptAndChangesNothing)
{
    Table fixed(0, 1, 8, 2);
    fixed.layout.Settings.ShowSplit = true;
    EXPECT_EQ(ErrorOf([&] { fixed.layout.SetSplitCols(8); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(fixed.layout.Settings.SplitCols, 0);
    EXPECT_EQ(fixed.layout.FirstScrollCol(), 8);
    EXPECT_TRUE(fixed.layout.SetSplitCols(1));
}

TEST_F(LayoutSetters, FrozenColumnsBeyond16BitsAreOverflowAndChangeNothing)
{
    table.layout.Settings.ShowSplit = true;
    table.Widths({ 0, 32767, 1 });
    EXPECT_EQ(ErrorOf([&] { table.layout.SetSplitCols(2); }), ErrorNumber::Overflow);
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
    EXPECT_EQ(table.layout.FirstScrollCol(), 1);
}

TEST_F(LayoutSetters, TheUsersSplitFreezesWhatLiesBeforeItsColumn)
{
    table.Window(640, 480);
    table.Layout();
    table.scroll.SetFirstCol(4);
    table.layout.SplitBefore(3);
    EXPECT_EQ(table.layout.Settings.SplitCols, 2);
    EXPECT_EQ(table.layout.FirstScrollCol(), 3);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 30 + 240);
    EXPECT_EQ(table.scroll.FirstCol(), 4) << "the view is the caller's";
    table.layout.SplitBefore(0);
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
    EXPECT_EQ(table.layout.FirstScrollCol(), 1);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 30);
}

TEST_F(LayoutSetters, TheUsersSplitMustLeaveRoomInTheClientArea)
{
    table.NoBars();
    table.Window(270, 480);
    table.Layout();
    table.layout.SplitBefore(3);
    EXPECT_EQ(table.layout.Settings.SplitCols, 2) << "just as wide";
    table.Window(269, 480);
    table.Layout();
    table.layout.SplitBefore(3);
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
    EXPECT_EQ(table.layout.FirstScrollCol(), 1);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 30);
    table.layout.SplitBefore(2);
    table.Widths({ 0, 32767, 1 });
    EXPECT_EQ(ErrorOf([&] { table.layout.SplitBefore(3); }), ErrorNumber::Overflow);
    EXPECT_EQ(table.layout.Settings.SplitCols, 1) << "as before";
}

TEST_F(LayoutSetters, ShowSplitWithoutColumnsOnlyPlacesTheBar)
{
    EXPECT_EQ(table.layout.SetShowSplit(true), SplitChange::PlaceBar);
    EXPECT_TRUE(table.layout.Settings.ShowSplit);
    EXPECT_EQ(table.layout.SetShowSplit(true), SplitChange::None);
    EXPECT_EQ(table.layout.SetShowSplit(false), SplitChange::PlaceBar);
    EXPECT_FALSE(table.layout.Settings.ShowSplit);
}

TEST_F(LayoutSetters, AnyChangeOfShowSplitDropsTheSplit)
{
    table.layout.SetShowSplit(true);
    table.layout.SetSplitCols(3);
    table.layout.SetSmoothOffset(-4);
    EXPECT_EQ(table.layout.SetShowSplit(false), SplitChange::Dropped);
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
    EXPECT_EQ(table.layout.FirstScrollCol(), 1);
    EXPECT_EQ(table.scroll.FirstCol(), 1);
    EXPECT_EQ(table.layout.SmoothOffset(), 0);
    EXPECT_EQ(table.layout.FrozenColsWidth(), table.layout.FixedColsWidth());
}

} // namespace
} // namespace vornix
