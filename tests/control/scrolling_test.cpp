// Where the bars stand, their ranges, and the members that move the view.
#include "control/scroll_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Bars : public ScrollTest { };

TEST_F(Bars, LieAtTheEdgesWithTheCornerBetween)
{
    EXPECT_EQ(H().Place(), (Rect { 0, 462, 623, 480 }));
    EXPECT_EQ(V().Place(), (Rect { 623, 0, 640, 463 }));
    EXPECT_EQ(host->Child("cPivot").Place(), (Rect { 623, 463, 640, 480 }));
    EXPECT_TRUE(host->Child("cPivot").IsVisible());
    EXPECT_TRUE(Grid().IsVisibleScrollH());
    EXPECT_TRUE(Grid().IsVisibleScrollV());
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 623);
    EXPECT_FLOAT_EQ(Grid().GetScaleHeight(), 462) << "the bar is a pixel higher than its strip";
}

TEST_F(Bars, TheCaptionStaysFullWidthAboveTheVerticalOne)
{
    Grid().SetCaptionEnabled(true);
    EXPECT_EQ(V().Place(), (Rect { 623, 21, 640, 463 }));
}

TEST_F(Bars, RangesAreTheLinesThatCanComeFirst)
{
    Grid().SetScrollHBar(vxNormalScroll);
    EXPECT_EQ(V().Min(), 1);
    EXPECT_EQ(V().Max(), 80);
    EXPECT_EQ(V().Page(), 1);
    EXPECT_EQ(H().Min(), 1);
    EXPECT_EQ(H().Max(), 27);
    EXPECT_EQ(H().Page(), 1);
    Grid().SetFirstRow(10);
    Grid().SetFirstCol(5);
    EXPECT_EQ(V().Value(), 11);
    EXPECT_EQ(H().Value(), 6);
}

TEST_F(Bars, InSmoothModeTheHorizontalOneCountsPixels)
{
    EXPECT_EQ(H().Min(), 0);
    EXPECT_EQ(H().Max(), 30 * 120 - (623 - 30));
    Grid().SetFirstCol(5);
    EXPECT_EQ(H().Value(), 600);
}

TEST_F(Bars, HiddenLinesTakeAStepOfTheRangeAndNoRoom)
{
    Grid().SetScrollHBar(vxNormalScroll);
    Grid().HideRow(0, 2);
    Grid().HideCol(0);
    EXPECT_EQ(V().Min(), 3);
    EXPECT_EQ(H().Min(), 2);
    Grid().HideRow(95, 5);
    EXPECT_EQ(V().Max(), 75) << "the rows before the hidden ones";
}

TEST_F(Bars, GoWhereEverythingFits)
{
    Grid().SetSplitCols(0);
    Grid().SetFirstRow(5);
    Grid().SetFirstCol(2);
    Grid().SetRows(5);
    Grid().SetCols(2);
    EXPECT_FALSE(Grid().IsVisibleScrollH());
    EXPECT_FALSE(Grid().IsVisibleScrollV());
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(host->Child("cPivot").Place().left, -1);
    EXPECT_FALSE(host->Child("cPivot").IsVisible());
    Grid().SetFirstRow(2);
    Grid().SetFirstCol(1);
    EXPECT_EQ(Grid().FirstRow(), 0) << "nothing to scroll";
    EXPECT_EQ(Grid().FirstCol(), 0);
}

TEST_F(Bars, OneAloneHasNoCorner)
{
    Grid().SetScrollVBar(vxNoScrollBar);
    EXPECT_TRUE(Grid().IsVisibleScrollH());
    EXPECT_FALSE(Grid().IsVisibleScrollV());
    EXPECT_EQ(H().Place().Width(), 640);
    EXPECT_EQ(host->Child("cPivot").Place().left, -1);
}

TEST_F(Bars, WithoutAHorizontalOneASplitEnds)
{
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(2);
    ASSERT_EQ(Grid().SplitCols(), 2);
    EXPECT_EQ(H().Place().left, 0);
    Grid().SetScrollHBar(vxNoScrollBar);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_FALSE(host->Child("picSplitCol").IsVisible());
}

TEST_F(Bars, ANarrowTableEndsASplit)
{
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(2);
    Grid().SetCols(4);
    EXPECT_FALSE(Grid().IsVisibleScrollH());
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
}

TEST_F(Bars, TheHandleOfTheSplitStandsAtTheLeftOfTheBar)
{
    host->Child("picSplitCol").Move({ 0, 0, 6, 17 });
    Grid().SetShowSplit(true);
    Grid().Refresh();
    EXPECT_EQ(H().Place(), (Rect { 6, 462, 623, 480 }));
    EXPECT_EQ(host->Child("picSplitCol").Place(), (Rect { 0, 463, 6, 480 }));
    EXPECT_TRUE(host->Child("picSplitCol").IsVisible());
    Grid().SetSplitCols(1);
    EXPECT_EQ(H().Place(), (Rect { 0, 462, 623, 480 }));
    Grid().SetShowSplit(false);
    EXPECT_EQ(H().Place(), (Rect { 0, 462, 623, 480 }));
}

TEST_F(Bars, SplitColumnsAreOutsideTheRange)
{
    Grid().SetScrollHBar(vxNormalScroll);
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(2);
    EXPECT_EQ(H().Min(), 3);
    EXPECT_EQ(H().Max(), 29) << "two whole columns beside the split ones";
    Grid().SetScrollHBar(vxScrollSmooth);
    EXPECT_EQ(H().Max(), 28 * 120 - (623 - 30 - 240));
    EXPECT_EQ(H().Value(), 0);
}

TEST_F(Bars, BothHideWhenOnlyTheCaptionFits)
{
    Grid().SetCaptionEnabled(true);
    host->Resize(640, 38);
    EXPECT_FALSE(Grid().IsVisibleScrollH());
    EXPECT_FALSE(Grid().IsVisibleScrollV());
    EXPECT_FLOAT_EQ(Grid().GetScaleHeight(), 38);
    EXPECT_EQ(host->Child("cPivot").Place().left, -1);
    host->Resize(640, 39);
    EXPECT_TRUE(Grid().IsVisibleScrollH());
}

TEST_F(Bars, ALastRowTallerThanTheWindowStandsAlone)
{
    Grid().SetRowHeight(99, 1000);
    EXPECT_EQ(V().Max(), 100);
    Grid().SetFirstRow(99);
    EXPECT_EQ(Grid().FirstRow(), 99);
    EXPECT_EQ(Grid().LastRow(), 99);
}

TEST_F(Bars, AllRowsHiddenLeaveTheViewOnAHiddenRow)
{
    Grid().SetFirstRow(50);
    Grid().HideRow(0, 100);
    EXPECT_FALSE(Grid().IsVisibleScrollV());
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_TRUE(Grid().RowHide(0));
    Table(30, 3, 40, 0); // the fixed rows alone are taller than the window
    Grid().HideRow(0, 30);
    EXPECT_TRUE(Grid().IsVisibleScrollV());
    EXPECT_EQ(V().Max(), 69);
    Do(V(), LineDown);
    Do(V(), PageDown);
    Do(V(), Bottom);
    Do(V(), LineUp);
    EXPECT_GE(Grid().FirstRow(), 0);
    EXPECT_LE(Grid().FirstRow(), 29);
}

TEST_F(Bars, WithoutRowsThereIsNothingToScroll)
{
    Table(0, 3, 40, 0);
    ASSERT_TRUE(Grid().IsVisibleScrollV()) << "the fixed rows are taller than the window";
    for (const i32 code : { LineUp, LineDown, PageUp, PageDown, Top, Bottom })
        Do(V(), code);
    DragTo(V(), 1000);
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstRow(), 0);
}

TEST_F(Bars, FollowAllRowsThatThereCanBe)
{
    Table(32766, 2, 1, 0);
    EXPECT_EQ(V().Max(), 32766 - 20);
    Do(V(), Bottom);
    EXPECT_EQ(Grid().LastRow(), 32765);
    Do(V(), PageUp);
    EXPECT_EQ(Grid().FirstRow(), 32765 - 21 - 20);
    Do(V(), PageDown);
    Do(V(), PageDown);
    EXPECT_EQ(Grid().LastRow(), 32765);
    host->Wheel(240);
    EXPECT_EQ(Grid().FirstRow(), 32765 - 21 - 5);
}

TEST_F(Bars, AWindowThatGrowsTakesTheViewBack)
{
    Grid().SetFirstRow(99);
    Grid().SetFirstCol(29);
    host->Resize(1000, 800);
    EXPECT_EQ(Grid().LastRow(), 99);
    EXPECT_EQ(H().Value(), H().Max());
    EXPECT_EQ(V().Value(), V().Max());
}

TEST_F(Bars, AResizeKeepsTheLeftEdgeOnItsPixel)
{
    DragTo(H(), 1234);
    EXPECT_EQ(H().Value(), 1234);
    EXPECT_EQ(Grid().FirstCol(), 10);
    EXPECT_EQ(SmoothOffset(), -34);
    host->Resize(500, 300);
    EXPECT_EQ(H().Value(), 1234);
    EXPECT_EQ(SmoothOffset(), -34);
    Grid().SetColWidth(3, 100);
    EXPECT_EQ(H().Value(), 1214);
    EXPECT_EQ(Grid().FirstCol(), 10);
    Grid().Refresh();
    EXPECT_EQ(SmoothOffset(), 0);
    EXPECT_EQ(H().Value(), 1180);
}

TEST_F(Bars, StandStillWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    Grid().SetRows(5);
    EXPECT_TRUE(Grid().IsVisibleScrollV());
    EXPECT_EQ(V().Max(), 80);
    Grid().SetRedraw(true);
    EXPECT_FALSE(Grid().IsVisibleScrollV());
}

TEST_F(Bars, AreEnabledByTheirMembers)
{
    EXPECT_TRUE(Grid().ScrollHEnabled());
    EXPECT_TRUE(Grid().ScrollVEnabled());
    Grid().SetScrollVEnabled(false);
    EXPECT_FALSE(V().IsEnabled());
    EXPECT_TRUE(H().IsEnabled());
    Do(V(), LineDown);
    EXPECT_EQ(Grid().FirstRow(), 0) << "nobody can use it";
    Grid().SetScrollHEnabled(false);
    EXPECT_FALSE(Grid().ScrollHEnabled());
}

TEST_F(Bars, HaveOneStyleAndOneSize)
{
    Grid().SetScrollBarStyle(vxSBFlat);
    EXPECT_EQ(Grid().ScrollBarStyle(), vxSB3D);
    Grid().SetScrollBarSize(30);
    EXPECT_EQ(Grid().ScrollBarSize(), 17);
    EXPECT_THAT(Reported(), IsEmpty());
}

// -- Members that move the view --

class ScrollMembers : public ScrollTest { };

TEST_F(ScrollMembers, FirstLinesRaiseNothing)
{
    Grid().SetFirstRow(10);
    Grid().SetFirstCol(2);
    EXPECT_EQ(Grid().LastRow(), 30);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(ScrollMembers, FirstColComesBackToAWholeColumn)
{
    DragTo(H(), 250);
    ASSERT_EQ(Grid().FirstCol(), 2);
    ASSERT_EQ(SmoothOffset(), -10);
    Grid().SetFirstCol(2);
    EXPECT_EQ(SmoothOffset(), 0);
    EXPECT_EQ(H().Value(), 240);
}

TEST_F(ScrollMembers, LastRowComesLast)
{
    Grid().SetLastRow(50);
    EXPECT_EQ(Grid().FirstRow(), 30);
    EXPECT_EQ(Grid().LastRow(), 50);
    EXPECT_EQ(V().Value(), 31);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetLastRow(50);
    Grid().SetLastRow(-1);
    Grid().SetLastRow(100);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetLastRow(3);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Grid().LastRow(), 20) << "by the paint";
    Grid().SetLastRow(99);
    EXPECT_EQ(V().Value(), V().Max());
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(ScrollMembers, LastColComesLast)
{
    Grid().SetScrollHBar(vxNormalScroll);
    Grid().SetLastCol(10);
    EXPECT_EQ(Grid().FirstCol(), 7);
    EXPECT_EQ(Grid().LastCol(), 10);
    Grid().SetLastCol(30);
    Grid().SetLastCol(-1);
    EXPECT_EQ(Grid().LastCol(), 10);
    Grid().SetScrollHBar(vxScrollSmooth);
    Grid().SetLastCol(12);
    EXPECT_EQ(Grid().FirstCol(), 9);
    Grid().SetLastCol(29);
    EXPECT_EQ(Grid().FirstCol(), 25) << "no further than the last pixel";
    EXPECT_EQ(SmoothOffset(), -7);
    EXPECT_EQ(Grid().LastCol(), 29);
}

TEST_F(ScrollMembers, LastColAloneComesBackToAWholeColumn)
{
    DragTo(H(), 250);
    const i16 last = Grid().LastCol();
    Grid().SetLastCol(last);
    EXPECT_EQ(SmoothOffset(), 0);
    EXPECT_EQ(Grid().LastCol(), last);
}

TEST_F(ScrollMembers, LastLinesAreWrittenAheadOfThePaintWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    Grid().SetLastRow(60);
    Grid().SetLastCol(20);
    EXPECT_EQ(Grid().LastRow(), 60);
    EXPECT_EQ(Grid().LastCol(), 20);
    EXPECT_EQ(Grid().FirstRow(), 40);
    EXPECT_EQ(Grid().FirstCol(), 17);
    EXPECT_EQ(V().Value(), 1);
    Grid().SetRedraw(true);
    EXPECT_EQ(Grid().LastRow(), 60);
    EXPECT_EQ(V().Value(), 41);
}

TEST_F(ScrollMembers, ASplitColumnAsTheLastLeavesTheViewBehindTheSplit)
{
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(2);
    Grid().SetFirstCol(8);
    Grid().SetLastCol(0);
    EXPECT_EQ(Grid().FirstCol(), 2);
}

TEST_F(ScrollMembers, AnotherModeComesBackToAWholeColumn)
{
    DragTo(H(), 250);
    Grid().SetScrollHBar(vxScrollTrack);
    EXPECT_EQ(SmoothOffset(), 0);
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_EQ(H().Value(), 3);
    Grid().SetScrollHBar(vxScrollSmooth);
    EXPECT_EQ(H().Value(), 240);
}

TEST_F(ScrollMembers, TheVerticalBarIsNeverSmooth)
{
    EXPECT_FALSE(ErrorOf([&] { Grid().SetScrollVBar(vxScrollSmooth); }));
    EXPECT_EQ(Grid().ScrollVBar(), vxScrollTrack);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetScrollVBar(vxNormalScroll);
    EXPECT_THAT(Reported(), ElementsAre("ScrollVBar"));
}

} // namespace
} // namespace vornix
