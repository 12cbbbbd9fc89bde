#include "layout/scroll_positions.h"

#include "layout/table.h"

namespace vornix {
namespace {

// 10 rows of 20 and 10 columns of 50 behind a fixed line of each kind, in a window of 230 by 110 without bars: 4 whole
// columns and rows scroll.
class ScrollPositionsTest : public testing::Test {
protected:
    explicit ScrollPositionsTest(i32 mode = vxNormalScroll)
    {
        table.Heights({ 30, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20 });
        table.Widths({ 30, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50 });
        table.LayoutWithoutBars(230, 110);
        table.layout.Settings.ScrollHBar = mode;
        Stand(1, 1);
    }
    // The first scrolling cell, with what is whole behind it.
    void Stand(int row, int col)
    {
        table.scroll.SetFirstRow(row);
        table.scroll.SetLastRow(row + 3);
        table.scroll.SetFirstCol(col);
        table.scroll.SetLastCol(col + 3);
    }
    int NextCol(i32 value, i32 direction) const
    {
        return positions.NextScrollCol(value, direction, positions.HRange());
    }
    int NextRow(i32 value, i32 direction) const
    {
        return positions.NextScrollRow(value, direction, positions.VRange());
    }

    Table table { 1, 10, 1, 10 };
    HiddenLines hidden { table.store };
    ScrollPositions positions { table.store, table.layout, table.scroll, hidden };
};

class SmoothPositions : public ScrollPositionsTest {
protected:
    SmoothPositions()
        : ScrollPositionsTest(vxScrollSmooth)
    {
    }
    i32 Next(i32 value, i32 direction) const { return positions.NextSmoothValue(value, direction, positions.HRange()); }
};

TEST_F(ScrollPositionsTest, RangesGoFromTheFirstShownLineToTheFirstOfTheLastPage)
{
    EXPECT_EQ(positions.HRange().min, 1);
    EXPECT_EQ(positions.HRange().max, 7);
    EXPECT_EQ(positions.VRange().min, 1);
    EXPECT_EQ(positions.VRange().max, 7);
    hidden.HideCol(1);
    hidden.HideRow(1);
    EXPECT_EQ(positions.HRange().min, 2);
    EXPECT_EQ(positions.VRange().min, 2);
}

TEST_F(ScrollPositionsTest, ARangeUpsideDownHasItsLowerEnd)
{
    const BarRange range { 3, -2 };
    for (const i32 value : { -5, -2, 0, 3, 9 })
        EXPECT_EQ(range.Limit(value), 3);
    const BarRange other { -2, 3 };
    EXPECT_EQ(other.Limit(-3), -2);
    EXPECT_EQ(other.Limit(1), 1);
    EXPECT_EQ(other.Limit(4), 3);
}

TEST_F(ScrollPositionsTest, PagesKeepTheLineAtTheEdge)
{
    EXPECT_EQ(NextCol(1, 1), 5);
    EXPECT_EQ(NextRow(1, 1), 5);
    Stand(7, 7);
    EXPECT_EQ(NextCol(7, 1), 7);
    EXPECT_EQ(NextCol(7, -1), 3);
    EXPECT_EQ(NextRow(7, -1), 3);
    Stand(2, 2);
    EXPECT_EQ(NextCol(2, -1), 1);
    EXPECT_EQ(NextRow(2, -1), 1);
}

TEST_F(ScrollPositionsTest, StepsCrossHiddenLines)
{
    hidden.HideCol(3);
    hidden.HideRow(3);
    hidden.HideRow(4);
    EXPECT_EQ(NextCol(3, 0), 4);
    EXPECT_EQ(NextRow(3, 0), 5);
    Stand(5, 5);
    EXPECT_EQ(NextCol(3, 0), 2);
    EXPECT_EQ(NextRow(4, 0), 2);
}

TEST_F(ScrollPositionsTest, ValuesOutsideTheTableAreItsEnds)
{
    EXPECT_EQ(positions.ScrollingCol(-7), 1);
    EXPECT_EQ(positions.ScrollingCol(11), 10);
    EXPECT_EQ(positions.ScrollingRow(0), 1);
    EXPECT_EQ(positions.ScrollingRow(40000), 10);
    EXPECT_EQ(NextRow(40000, 0), 10);
}

TEST_F(ScrollPositionsTest, TheFirstLineForALastOneIsNoneThatStandsStill)
{
    EXPECT_EQ(positions.ScrollingColForLast(10), 7);
    EXPECT_EQ(positions.ScrollingColForLast(2), 1);
    EXPECT_EQ(positions.ScrollingColForLast(0), 1);
    EXPECT_EQ(positions.ScrollingRowForLast(10), 7);
    EXPECT_EQ(positions.ScrollingRowForLast(0), 1);
    table.layout.SetFirstScrollCol(3);
    EXPECT_EQ(positions.ScrollingColForLast(2), 3);
}

TEST_F(SmoothPositions, APixelIsAColumnAndWhatIsOutAtItsLeft)
{
    const std::vector<std::tuple<i32, int, i16>> places { { 0, 1, 0 }, { 1, 1, -1 }, { 49, 1, -49 }, { 50, 2, 0 },
        { 499, 10, -49 } };
    for (const auto& [pixel, col, offset] : places) {
        EXPECT_EQ(positions.ColAtPixel(pixel).col, col) << pixel;
        EXPECT_EQ(positions.ColAtPixel(pixel).offset, offset) << pixel;
    }
    table.layout.SetSmoothOffset(-7);
    EXPECT_EQ(positions.ColAtPixel(500).col, 1) << "behind the last";
    EXPECT_EQ(positions.ColAtPixel(500).offset, -7);
}

TEST_F(SmoothPositions, TheLeftEdgeIsThePixelsBeforeIt)
{
    EXPECT_EQ(positions.ColPixelOffset(4), 150);
    EXPECT_EQ(positions.ColPixelOffset(10), 450);
    EXPECT_EQ(positions.ColPixelOffset(11), 0);
    Stand(1, 4);
    table.layout.SetSmoothOffset(-20);
    EXPECT_EQ(positions.PixelAtLeft(), 170);
}

TEST_F(SmoothPositions, TheRangeEndsWithTheLastPixelAtTheRight)
{
    EXPECT_EQ(positions.SmoothScrollMax(), 300);
    EXPECT_EQ(positions.HRange().min, 0);
    EXPECT_EQ(positions.HRange().max, 300);
}

TEST_F(SmoothPositions, ColumnsThatFitToThePixelHaveNothingToScroll)
{
    table.LayoutWithoutBars(530, 110);
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    EXPECT_EQ(positions.SmoothScrollMax(), 0);
    table.LayoutWithoutBars(531, 110);
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    EXPECT_EQ(positions.SmoothScrollMax(), -1);
    for (const i32 direction : { -1, 0, 1 })
        EXPECT_EQ(Next(0, direction), 0);
}

TEST_F(SmoothPositions, BesideAVerticalBarTheyFitInWhatItLeaves)
{
    table.layout.Settings.ScrollVBar = vxNormalScroll;
    table.Window(530 + 17, 110);
    table.Layout();
    ASSERT_EQ(table.layout.VBarWidth(), 17);
    ASSERT_EQ(table.layout.HBarHeight(), 0);
    EXPECT_EQ(positions.SmoothScrollMax(), 0);
    table.Window(530 + 16, 110);
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), 17);
    EXPECT_EQ(positions.SmoothScrollMax(), 1);
}

TEST_F(SmoothPositions, PagesAreWhatTheWindowShowsBesideTheFrozenColumns)
{
    EXPECT_EQ(Next(0, 1), 200);
    EXPECT_EQ(Next(200, 1), 300);
    EXPECT_EQ(Next(300, -1), 100);
    EXPECT_EQ(Next(100, -1), 0);
    EXPECT_EQ(Next(77, 0), 77);
    EXPECT_EQ(Next(-5, 0), 0);
    EXPECT_EQ(Next(1000, 0), 300);
}

TEST_F(SmoothPositions, AFixedColumnWiderThanTheWindowLeavesNoPage)
{
    table.Widths({ 400 });
    table.LayoutWithoutBars(230, 110);
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    ASSERT_EQ(positions.SmoothScrollMax(), 500 + 170);
    for (const i32 direction : { -1, 1 }) {
        EXPECT_EQ(Next(0, direction), 0);
        EXPECT_EQ(Next(120, direction), 120);
        EXPECT_EQ(Next(670, direction), 670);
    }
}

} // namespace
} // namespace vornix
