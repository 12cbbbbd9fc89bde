// Places, sizes, hits and visibility.
#include "layout/table.h"

namespace vornix {
namespace {

// 2 fixed rows of 10 and 12, rows of 20, 30, 40, 50; 1 fixed column of 15, columns of 100, 200, 300, 400.
class LayoutGeometry : public testing::Test {
protected:
    Table table { 2, 4, 1, 4 };

    void SetUp() override
    {
        table.Heights({ 10, 12, 20, 30, 40, 50 });
        table.Widths({ 15, 100, 200, 300, 400 });
        table.LayoutWithoutBars(2000, 1000);
        table.scroll.SetLastRow(5);
        table.scroll.SetLastCol(4);
    }
    Point Origin(int row, int col) const { return table.layout.CellOriginAt(row, col); }
    HitResult Hit(int x, int y) const { return table.layout.HitTestCell(x, y); }
    void ExpectHit(int x, int y, int row, int col) const
    {
        const HitResult hit = Hit(x, y);
        EXPECT_EQ(hit.row, row) << "at y " << y;
        EXPECT_EQ(hit.col, col) << "at x " << x;
        EXPECT_EQ(hit.found, row >= 0 && col >= 0);
    }
};

TEST_F(LayoutGeometry, OriginIsTheSumOfWhatLiesBefore)
{
    EXPECT_EQ(Origin(0, 0), (Point { 0, 0 }));
    EXPECT_EQ(Origin(1, 1), (Point { 15, 10 }));
    EXPECT_EQ(Origin(2, 2), (Point { 115, 22 }));
    EXPECT_EQ(Origin(5, 4), (Point { 615, 112 }));
}

TEST_F(LayoutGeometry, OriginOfAScrolledViewSkipsWhatIsScrolledOut)
{
    table.scroll.SetFirstRow(4);
    table.scroll.SetFirstCol(3);
    EXPECT_EQ(Origin(1, 0), (Point { 0, 10 }));
    EXPECT_EQ(Origin(4, 3), (Point { 15, 22 }));
    EXPECT_EQ(Origin(5, 4), (Point { 315, 62 }));
}

TEST_F(LayoutGeometry, ACellScrolledOutHasTheOriginOfTheFirstThatScrolls)
{
    table.scroll.SetFirstRow(4);
    table.scroll.SetFirstCol(3);
    EXPECT_EQ(Origin(2, 1), (Point { 15, 22 }));
    EXPECT_EQ(Origin(3, 2), (Point { 15, 22 }));
}

TEST_F(LayoutGeometry, OriginJumpsBehindSplitColumns)
{
    table.layout.Settings.ShowSplit = true;
    table.layout.SetSplitCols(1);
    table.scroll.SetFirstCol(3);
    EXPECT_EQ(Origin(0, 1).x, 15);
    EXPECT_EQ(Origin(0, 2).x, 115);
    EXPECT_EQ(Origin(0, 3).x, 115);
    EXPECT_EQ(Origin(0, 4).x, 415);
}

TEST_F(LayoutGeometry, SmoothOffsetMovesOnlyColumnsBehindTheFirst)
{
    table.scroll.SetFirstCol(2);
    table.layout.SetSmoothOffset(-30);
    EXPECT_EQ(Origin(0, 0).x, 0);
    EXPECT_EQ(Origin(0, 1).x, 15);
    EXPECT_EQ(Origin(0, 2).x, 15);
    EXPECT_EQ(Origin(0, 3).x, 185);
    EXPECT_EQ(Origin(0, 4).x, 485);
}

TEST_F(LayoutGeometry, OriginOfTheFillersAndBeyondIsTheEndOfTheTable)
{
    EXPECT_EQ(Origin(6, 5), (Point { 1015, 162 }));
    EXPECT_EQ(Origin(600, 500), (Point { 1015, 162 }));
    EXPECT_EQ(Origin(-1, NoIndex), (Point { 0, 0 }));
}

TEST_F(LayoutGeometry, OriginCountsHiddenLinesAsNothing)
{
    HiddenLines hidden(table.store);
    hidden.HideRow(3);
    hidden.HideCol(2);
    EXPECT_EQ(Origin(4, 3), (Point { 115, 42 }));
}

TEST(LayoutGeometryFar, OriginAddsOnlyTheRowsInView)
{
    Table table(1, 32766, 0, 1); // 15 pixels a row
    for (int row = 0; row < 32767; ++row)
        table.store.RowAt(row).Height = 15;
    table.layout.MarkMetricsDirty();
    table.LayoutWithoutBars(200, 200);
    EXPECT_EQ(table.layout.CellOriginAt(2184, 0).y, 32760);
    EXPECT_EQ(ErrorOf([&] { table.layout.CellOriginAt(2185, 0); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { table.layout.CellOriginAt(32766, 0); }), ErrorNumber::Overflow);
    table.scroll.SetFirstRow(32760);
    EXPECT_EQ(table.layout.CellOriginAt(32766, 0).y, 15 + 6 * 15);
    EXPECT_EQ(table.layout.HitTestCell(0, 16).row, 32760);
}

TEST_F(LayoutGeometry, TwipsAreComputedIn32BitsAndTheBorderIsNotScaled)
{
    table.layout.Settings.ScrollHBar = vxNoScrollBar;
    const Size twips { 15, 12 };
    EXPECT_EQ(table.layout.CellOriginInTwips(5, 4, twips, vxNoBorder), (Point { 9225, 1344 }));
    EXPECT_EQ(table.layout.CellOriginInTwips(5, 4, twips, vxInset), (Point { 9255, 1374 }));
    EXPECT_EQ(table.layout.CellOriginInTwips(5, 4, twips, vxInsetThin), (Point { 9240, 1359 }));
    table.Widths({ 15, 30000 });
    EXPECT_EQ(table.layout.CellOriginInTwips(0, 2, twips, vxInset).x, 30015 * 15 + 30);
}

TEST_F(LayoutGeometry, SpanSizeOfAPlainCellIsItsOwn)
{
    EXPECT_EQ(table.layout.CellSpanSize(3, 2), (Size { 200, 30 }));
    EXPECT_EQ(table.layout.CellSpanSize(0, 0), (Size { 15, 10 }));
}

TEST_F(LayoutGeometry, SpanSizeIsTheSameFromEveryCellOfTheSpan)
{
    Spans spans(table.store);
    spans.SetColSpan(3, 1, 3);
    spans.SetRowSpan(3, 1, 2);
    for (int row = 3; row <= 4; ++row)
        for (int col = 1; col <= 3; ++col)
            EXPECT_EQ(table.layout.CellSpanSize(row, col), (Size { 600, 70 })) << row << ", " << col;
    EXPECT_EQ(table.layout.CellSpanSize(5, 1), (Size { 100, 50 }));
}

TEST_F(LayoutGeometry, SpanOfOneAxisTakesOneLineOfTheOther)
{
    Spans spans(table.store);
    spans.SetColSpan(2, 2, 2);
    EXPECT_EQ(table.layout.CellSpanSize(2, 3), (Size { 500, 20 }));
    spans.SetRowSpan(3, 4, 3);
    EXPECT_EQ(table.layout.CellSpanSize(5, 4), (Size { 400, 120 }));
}

TEST_F(LayoutGeometry, SpanSizeLeavesOutHiddenLines)
{
    Spans spans(table.store);
    spans.SetColSpan(3, 1, 3);
    spans.SetRowSpan(3, 1, 2);
    HiddenLines hidden(table.store);
    hidden.HideCol(2);
    hidden.HideRow(3);
    EXPECT_EQ(table.layout.CellSpanSize(4, 3), (Size { 400, 40 }));
}

TEST_F(LayoutGeometry, SpanSizeOfAFillerCellIsReadABadSubscriptIsNot)
{
    table.store.RowAt(6).Height = 5;
    table.store.ColumnAt(5).Width = 6;
    EXPECT_EQ(table.layout.CellSpanSize(6, 5), (Size { 6, 5 }));
    EXPECT_EQ(ErrorOf([&] { table.layout.CellSpanSize(7, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { table.layout.CellSpanSize(0, 6); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { table.layout.CellSpanSize(-1, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { table.layout.CellSpanSize(NoIndex, 0); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(LayoutGeometry, SpanSizeBeyond16BitsIsOverflow)
{
    Spans(table.store).SetColSpan(2, 1, 2);
    table.Widths({ 15, 32767, 1 });
    EXPECT_EQ(ErrorOf([&] { table.layout.CellSpanSize(2, 2); }), ErrorNumber::Overflow);
}

TEST_F(LayoutGeometry, BlockOfOneCellIsItsSpan)
{
    Spans(table.store).SetColSpan(3, 1, 3);
    EXPECT_EQ(table.layout.BlockSize(3, 2, 3, 2), (Size { 600, 30 }));
}

TEST_F(LayoutGeometry, BlockSumsItsLinesInAnyOrderWithoutSpans)
{
    Spans(table.store).SetColSpan(3, 1, 3);
    EXPECT_EQ(table.layout.BlockSize(3, 1, 4, 2), (Size { 300, 70 }));
    EXPECT_EQ(table.layout.BlockSize(4, 1, 3, 2), (Size { 300, 70 }));
    EXPECT_EQ(table.layout.BlockSize(3, 2, 4, 1), (Size { 300, 70 }));
    EXPECT_EQ(table.layout.BlockSize(4, 2, 3, 1), (Size { 300, 70 }));
    EXPECT_EQ(table.layout.BlockSize(3, 1, 3, 2), (Size { 300, 30 }));
    HiddenLines(table.store).HideCol(2);
    EXPECT_EQ(table.layout.BlockSize(3, 1, 4, 3), (Size { 400, 70 }));
}

TEST_F(LayoutGeometry, BlockErrors)
{
    EXPECT_EQ(ErrorOf([&] { table.layout.BlockSize(0, 0, 7, 0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { table.layout.BlockSize(0, -1, 0, 1); }), ErrorNumber::SubscriptOutOfRange);
    Table rows(0, 3000, 0, 1);
    EXPECT_EQ(rows.layout.BlockSize(0, 0, 1559, 0).height, 32760);
    EXPECT_EQ(ErrorOf([&] { rows.layout.BlockSize(0, 0, 1560, 0); }), ErrorNumber::Overflow);
}

TEST_F(LayoutGeometry, HitFindsTheCellOfAPixel)
{
    ExpectHit(0, 0, 0, 0);
    ExpectHit(14, 9, 0, 0);
    ExpectHit(15, 10, 1, 1);
    ExpectHit(114, 21, 1, 1);
    ExpectHit(115, 22, 2, 2);
    ExpectHit(1014, 161, 5, 4);
}

TEST_F(LayoutGeometry, HitBehindTheLastLinesFindsNothingThere)
{
    ExpectHit(1015, 161, 5, NoIndex);
    ExpectHit(1014, 162, NoIndex, 4);
    ExpectHit(1015, 162, NoIndex, NoIndex);
}

TEST_F(LayoutGeometry, HitOutsideTheClientAreaFindsNothing)
{
    table.LayoutWithoutBars(110, 60);
    ExpectHit(-1, 0, 0, NoIndex);
    ExpectHit(0, -1, NoIndex, 0);
    ExpectHit(110, 60, 3, 1); // the far edges belong to it
    ExpectHit(111, 60, 3, NoIndex);
    ExpectHit(110, 61, NoIndex, 1);
    ExpectHit(100000, -100000, NoIndex, NoIndex);
}

TEST_F(LayoutGeometry, HitFollowsTheScrolledView)
{
    table.scroll.SetFirstRow(4);
    table.scroll.SetFirstCol(3);
    ExpectHit(14, 21, 1, 0);
    ExpectHit(15, 22, 4, 3);
    ExpectHit(315, 62, 5, 4);
}

TEST_F(LayoutGeometry, HitFollowsSplitAndSmoothOffset)
{
    table.layout.Settings.ShowSplit = true;
    table.layout.SetSplitCols(1);
    table.scroll.SetFirstCol(3);
    table.layout.SetSmoothOffset(-250);
    ExpectHit(114, 0, 0, 1);
    ExpectHit(115, 0, 0, 3);
    ExpectHit(164, 0, 0, 3);
    ExpectHit(165, 0, 0, 4);
}

TEST_F(LayoutGeometry, HitNeverFindsHiddenLines)
{
    HiddenLines hidden(table.store);
    hidden.HideRow(3);
    hidden.HideCol(0);
    hidden.HideCol(2);
    ExpectHit(0, 41, 2, 1);
    ExpectHit(100, 42, 4, 3);
}

TEST_F(LayoutGeometry, TheCaptionIsOneCell)
{
    table.layout.Settings.CaptionEnabled = true;
    ExpectHit(0, 5, 0, 1);
    ExpectHit(500, 5, 0, 1);
    ExpectHit(1500, 5, 0, 1); // behind the last column
    ExpectHit(5000, 5, 0, 1); // outside the window
    ExpectHit(-3, 5, 0, 1);
    ExpectHit(0, 10, 1, 0);
    ExpectHit(0, -1, NoIndex, 0);
}

TEST_F(LayoutGeometry, HitReachesARowThatEndsFarBeyond16Bits)
{
    table.Heights({ 10, 12, 20, 32767, 32767, 32767 });
    ExpectHit(0, 900, 3, 0);
}

TEST(LayoutGeometryEmpty, TablesWithoutLinesHitNothing)
{
    Table none(0, 0, 0, 0);
    none.LayoutWithoutBars(100, 100);
    EXPECT_FALSE(none.layout.HitTestCell(5, 5).found);
    EXPECT_EQ(none.layout.CellOriginAt(0, 0), (Point { 0, 0 }));

    Table fixedOnly(1, 0, 1, 0);
    fixedOnly.LayoutWithoutBars(100, 100);
    EXPECT_TRUE(fixedOnly.layout.HitTestCell(5, 5).found);
    EXPECT_FALSE(fixedOnly.layout.HitTestCell(40, 5).found);
    EXPECT_FALSE(fixedOnly.layout.HitTestCell(5, 25).found);
    EXPECT_EQ(fixedOnly.layout.CellOriginAt(1, 1), (Point { 30, 21 }));
}

TEST(LayoutGeometryEmpty, AFirstLineBeforeTheScrollingOnesDoesNotSendTheWalkBack)
{
    Table table(2, 3, 2, 3);
    table.LayoutWithoutBars(1000, 1000);
    table.scroll.SetFirstRow(0);
    table.scroll.SetFirstCol(0);
    EXPECT_EQ(table.layout.HitTestCell(65, 45).row, 2);
    EXPECT_EQ(table.layout.HitTestCell(65, 45).col, 2);
    EXPECT_EQ(table.layout.CellOriginAt(3, 3), (Point { 180, 63 }));
}

TEST(LayoutGeometryEmpty, ASplitBehindAllColumnsLeavesNoneToScroll)
{
    Table table(0, 1, 2, 2);
    table.layout.Settings.ShowSplit = true;
    EXPECT_TRUE(table.layout.SetSplitCols(2));
    EXPECT_EQ(table.layout.FirstScrollCol(), 4);
    table.LayoutWithoutBars(1000, 100);
    EXPECT_EQ(table.layout.HitTestCell(299, 0).col, 3);
    EXPECT_EQ(table.layout.HitTestCell(300, 0).col, NoIndex);
    EXPECT_EQ(table.layout.CellOriginAt(0, 4).x, 300);
    EXPECT_EQ(table.layout.FirstColForLast(3), 3);
    EXPECT_EQ(table.layout.HBarHeight(), 0);
}

TEST_F(LayoutGeometry, NextVisibleIsTheLineItselfWhenItShows)
{
    EXPECT_EQ(table.layout.NextVisibleCol(2), 2);
    EXPECT_EQ(table.layout.NextVisibleRow(0), 0);
}

TEST_F(LayoutGeometry, NextVisibleGoesForwardOverEmptyLines)
{
    table.Widths({ 15, 0, 0, 300 });
    table.Heights({ 10, 0, 0, 0, 40 });
    EXPECT_EQ(table.layout.NextVisibleCol(1), 3);
    EXPECT_EQ(table.layout.NextVisibleRow(1), 4);
}

TEST_F(LayoutGeometry, NextVisibleWithNoneLeftIsTheLineGiven)
{
    table.Widths({ 15, 100, 200, 0, 0, 70 }); // the filler does not count
    table.Heights({ 10, 12, 20, 30, 0, 0, 70 });
    EXPECT_EQ(table.layout.NextVisibleCol(3), 3);
    EXPECT_EQ(table.layout.NextVisibleRow(4), 4);
    EXPECT_EQ(table.layout.NextVisibleRow(100), 100);
    EXPECT_EQ(ErrorOf([&] { table.layout.NextVisibleCol(-1); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(LayoutGeometry, FirstForLastFillsTheAreaWithWholeLines)
{
    table.LayoutWithoutBars(15 + 700, 22 + 90);
    EXPECT_EQ(table.layout.FirstColForLast(4), 3);
    EXPECT_EQ(table.layout.FirstRowForLast(5), 4);
    table.LayoutWithoutBars(15 + 699, 22 + 89);
    EXPECT_EQ(table.layout.FirstColForLast(4), 4);
    EXPECT_EQ(table.layout.FirstRowForLast(5), 5);
    table.LayoutWithoutBars(5000, 5000);
    EXPECT_EQ(table.layout.FirstColForLast(4), 1);
    EXPECT_EQ(table.layout.FirstRowForLast(5), 2);
}

TEST_F(LayoutGeometry, FirstForLastOfAFrozenLineIsThatLine)
{
    EXPECT_EQ(table.layout.FirstColForLast(0), 0);
    EXPECT_EQ(table.layout.FirstColForLast(-1), -1);
    EXPECT_EQ(table.layout.FirstRowForLast(1), 1);
    table.layout.Settings.ShowSplit = true;
    table.layout.SetSplitCols(2);
    EXPECT_EQ(table.layout.FirstColForLast(2), 2);
}

TEST_F(LayoutGeometry, AnOverwideLineStandsAlone)
{
    table.LayoutWithoutBars(15 + 399, 22 + 49);
    EXPECT_EQ(table.layout.FirstColForLast(4), 4);
    EXPECT_EQ(table.layout.FirstRowForLast(5), 5);
    // Met on the way back, it is the answer itself although it cannot show whole.
    table.Widths({ 15, 100, 200, 900, 40 });
    EXPECT_EQ(table.layout.FirstColForLast(4), 3);
}

TEST_F(LayoutGeometry, FirstForLastPassesOverHiddenLines)
{
    HiddenLines hidden(table.store);
    hidden.HideCol(3);
    table.LayoutWithoutBars(15 + 600, 1000);
    EXPECT_EQ(table.layout.FirstColForLast(4), 2);
    table.LayoutWithoutBars(15 + 599, 1000);
    EXPECT_EQ(table.layout.FirstColForLast(4), 4);
}

TEST_F(LayoutGeometry, FirstForLastWithAllLinesHiddenIsTheLastLine)
{
    table.Heights({ 10, 12, 0, 0, 0, 0 });
    table.Widths({ 15, 0, 0, 0, 0 });
    table.LayoutWithoutBars(100, 100);
    EXPECT_EQ(table.layout.FirstRowForLast(5), 5);
    EXPECT_EQ(table.layout.FirstColForLast(4), 4);
}

TEST_F(LayoutGeometry, FirstForLastNeedsNoSumBeyondTheClientArea)
{
    EXPECT_EQ(ErrorOf([&] { table.layout.FirstColForLast(6); }), ErrorNumber::SubscriptOutOfRange);
    table.Heights({ 10, 12, 20, 30, 40, 32767 });
    table.LayoutWithoutBars(100, 100);
    EXPECT_EQ(table.layout.FirstRowForLast(5), 5);
    EXPECT_EQ(ErrorOf([&] { table.layout.FirstRowForLast(7); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(LayoutGeometry, FixedLinesAreAlwaysVisible)
{
    table.scroll.SetFirstRow(4);
    table.scroll.SetFirstCol(3);
    EXPECT_TRUE(table.layout.IsVisibleRow(1));
    EXPECT_TRUE(table.layout.IsVisibleRow(-1));
    EXPECT_TRUE(table.layout.IsVisibleCol(0));
    EXPECT_TRUE(table.layout.IsVisibleCell(0, 0));
}

TEST_F(LayoutGeometry, OtherLinesAreVisibleWithinTheLatestPaint)
{
    table.scroll.SetFirstRow(3);
    table.scroll.SetLastRow(4);
    table.scroll.SetFirstCol(2);
    table.scroll.SetLastCol(3);
    EXPECT_FALSE(table.layout.IsVisibleRow(2));
    EXPECT_TRUE(table.layout.IsVisibleRow(3));
    EXPECT_TRUE(table.layout.IsVisibleRow(4));
    EXPECT_FALSE(table.layout.IsVisibleRow(5));
    EXPECT_FALSE(table.layout.IsVisibleCol(1));
    EXPECT_TRUE(table.layout.IsVisibleCol(2));
    EXPECT_TRUE(table.layout.IsVisibleCol(3));
    EXPECT_FALSE(table.layout.IsVisibleCol(4));
    EXPECT_TRUE(table.layout.IsVisibleCell(3, 2));
    EXPECT_FALSE(table.layout.IsVisibleCell(3, 4));
    EXPECT_FALSE(table.layout.IsVisibleCell(5, 2));
    EXPECT_TRUE(table.layout.IsVisibleCell(0, 2));
}

TEST_F(LayoutGeometry, HiddenLinesWithinTheRangeReportVisible)
{
    HiddenLines(table.store).HideRow(3);
    EXPECT_TRUE(table.layout.IsVisibleRow(3));
}

TEST_F(LayoutGeometry, AHalfShownColumnIsNotVisible)
{
    table.scroll.SetFirstCol(2);
    table.layout.SetSmoothOffset(-1);
    EXPECT_FALSE(table.layout.IsVisibleCol(2));
    EXPECT_TRUE(table.layout.IsVisibleCol(3));
}

TEST_F(LayoutGeometry, ASplitColumnReportsNotVisibleAlthoughItShows)
{
    table.layout.Settings.ShowSplit = true;
    table.layout.SetSplitCols(1);
    EXPECT_TRUE(table.layout.IsVisibleCol(0));
    EXPECT_FALSE(table.layout.IsVisibleCol(1));
    EXPECT_TRUE(table.layout.IsVisibleCol(2));
}

} // namespace
} // namespace vornix
