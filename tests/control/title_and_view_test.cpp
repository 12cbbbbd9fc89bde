#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Title : public GridTest { };

TEST_F(Title, CannotBeTurnedOnWithoutAFixedRow)
{
    Grid().SetCaptionEnabled(true);
    EXPECT_FALSE(Grid().CaptionEnabled());
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Title, IsTheTextOfTheTopFixedRow)
{
    Table(2, 2, 2, 1);
    Grid().SetCaption(u"Title");
    EXPECT_EQ(Grid().Text(-2, 0), u"") << "not enabled yet";
    Grid().SetCaptionEnabled(true);
    EXPECT_EQ(Grid().Text(-2, 0), u"Title");
    Grid().SetCaption(u"Another");
    EXPECT_EQ(Grid().Text(-2, 0), u"Another");
    EXPECT_EQ(Grid().Caption(), u"Another");
    EXPECT_THAT(Reported(), ElementsAre("Caption", "CaptionEnabled", "Caption"));
}

TEST_F(Title, RefreshesItsCellAndLaysOutWhenTurnedOn)
{
    Table(2, 2, 1, 0);
    Grid().SetCaptionEnabled(true);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetCaption(u"Title");
    EXPECT_EQ(host->Refreshes(), 1);
    Grid().SetCaption(u"Title");
    EXPECT_EQ(host->Refreshes(), 1);
    Grid().SetCaptionEnabled(false);
    EXPECT_EQ(host->Repaints(), 2);
    EXPECT_FALSE(Grid().CaptionEnabled());
}

TEST_F(Title, IsOneCellOverTheWholeWidth)
{
    Table(2, 2, 1, 1);
    Grid().SetCellBackColor(-1, 0, 0x00FFFF);
    Grid().SetCaptionEnabled(true);
    EXPECT_EQ(host->Pixel(10, 10), 0x00FFFFu);
    EXPECT_EQ(host->Pixel(600, 10), 0x00FFFFu);
    i16 row = 0, col = 0;
    EXPECT_TRUE(Grid().GetCellAtPos(600, 5, row, col));
    EXPECT_EQ(row, -1);
    EXPECT_EQ(col, 0);
}

TEST_F(Title, AtDesignTimeBringsItsFixedRow)
{
    MakeDesign();
    Grid().SetCaption(u"Title");
    EXPECT_TRUE(Grid().CaptionEnabled());
    EXPECT_EQ(Grid().FixedRows(), 1);
    EXPECT_EQ(Grid().Text(-1, 0), u"Title");
    Grid().SetCaption(u"Other");
    EXPECT_EQ(Grid().FixedRows(), 1);
    Grid().SetCaption(u"");
    EXPECT_FALSE(Grid().CaptionEnabled());
    EXPECT_EQ(Grid().FixedRows(), 0);
}

TEST_F(Title, AtDesignTimeAnEnabledTitleKeepsItsRow)
{
    MakeDesign();
    Grid().SetFixedRows(1);
    Grid().SetCaptionEnabled(true);
    Grid().SetCaption(u"Title");
    EXPECT_EQ(Grid().FixedRows(), 1);
}

TEST_F(Title, AtRunTimeTakesNoRow)
{
    Grid().SetCaption(u"Title");
    EXPECT_FALSE(Grid().CaptionEnabled());
    EXPECT_EQ(Grid().FixedRows(), 0);
}

TEST_F(Title, AtDesignTimeNeverTakesARowThatIsNotThere)
{
    MakeDesign();
    Grid().SetCaption(u"Title");
    Grid().SetFixedRows(0);
    Grid().SetCaption(u"");
    EXPECT_EQ(Grid().FixedRows(), 0);
}

TEST_F(Title, AtDesignTimeItsRowGoesWithTheTextEvenWhenTurnedOff)
{
    MakeDesign();
    Grid().SetCaption(u"Title");
    Grid().SetCaptionEnabled(false);
    Grid().SetCaption(u"");
    EXPECT_EQ(Grid().FixedRows(), 0);
}

TEST_F(Title, AtDesignTimeAFullTableRefusesTheRowAndStaysWithoutTitle)
{
    MakeDesign();
    Grid().SetRows(32767);
    EXPECT_EQ(ErrorOf([&] { Grid().SetCaption(u"Title"); }), 6);
    EXPECT_FALSE(Grid().CaptionEnabled());
    EXPECT_EQ(Grid().FixedRows(), 0);
}

class Split : public GridTest {
protected:
    Split()
    {
        Table(5, 20, 1, 1);
        Grid().SetShowSplit(true);
        host->ClearLog();
    }
};

TEST_F(Split, IsIgnoredUnlessShown)
{
    Grid().SetShowSplit(false);
    Grid().SetSplitCols(2);
    EXPECT_EQ(Grid().SplitCols(), 0);
}

TEST_F(Split, KeepsColumnsStandingAtTheLeft)
{
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    Grid().SetSplitCols(1);
    EXPECT_EQ(Grid().SplitCols(), 1);
    EXPECT_EQ(Grid().FirstCol(), 1);
    EXPECT_EQ(host->PropertyChanges(), std::vector<std::string> { "SplitCols" });
    Grid().SetFirstCol(8);
    EXPECT_EQ(host->Pixel(90, 31), 0x00FFFFu);
    Grid().SetFirstCol(0);
    EXPECT_EQ(Grid().FirstCol(), 1) << "no scrolling into the split columns";
}

TEST_F(Split, RefusesWhatIsNotBelowTheLastColumn)
{
    host->ClearLog();
    Grid().SetSplitCols(-1);
    Grid().SetSplitCols(20);
    Grid().SetSplitCols(32767);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetRedraw(false);
    Grid().SetSplitCols(19);
    EXPECT_EQ(Grid().SplitCols(), 19);
    Grid().SetRedraw(true);
    EXPECT_EQ(Grid().SplitCols(), 0) << "nothing of the window would be left to scroll in";
}

TEST_F(Split, EndsWhenNoLongerShown)
{
    Grid().SetSplitCols(2);
    host->ClearLog();
    Grid().SetShowSplit(false);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_FALSE(host->FindChild("picSplitCol")->IsVisible());
    EXPECT_THAT(Reported(), ElementsAre("ShowSplit"));
    Grid().SetShowSplit(false);
    EXPECT_THAT(Reported(), ElementsAre("ShowSplit"));
}

TEST_F(Split, EndsWhenItsColumnsAreTakenAway)
{
    Grid().SetSplitCols(10);
    Grid().SetCols(2);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_FALSE(ErrorOf([&] { Grid().SetRowHeight(0, 30); }));
    EXPECT_FALSE(ErrorOf([&] { Grid().SetFixedCols(2); }));
    EXPECT_FLOAT_EQ(Grid().GetScaleHeight(), 480);
}

TEST_F(Split, ShowsTheFirstColumnsWhereNoBarCouldScrollToThem)
{
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    Grid().SetFirstCol(5);
    ASSERT_NE(host->Pixel(40, 31), 0x00FFFFu);
    Grid().SetScrollHBar(vxNoScrollBar);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(host->Pixel(40, 31), 0x00FFFFu);
}

TEST_F(Split, GivesTheBarItsWidthBackWhenTurnedOff)
{
    Grid().SetShowSplit(false);
    const Rect bar = host->FindChild("scrH")->Place();
    EXPECT_EQ(bar.left, 0);
    EXPECT_EQ(bar.top, 480 - 17 - 1);
    EXPECT_EQ(bar.Height(), 18);
    EXPECT_EQ(bar.Width(), 640);
}

class View : public GridTest {
protected:
    View() { Table(100, 30, 2, 1); }
};

TEST_F(View, FirstRowIsClampedAndRepaintsOnce)
{
    Grid().SetFirstRow(40);
    EXPECT_EQ(Grid().FirstRow(), 40);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetFirstRow(40);
    Grid().SetFirstRow(-1);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetFirstRow(32767);
    EXPECT_EQ(Grid().FirstRow(), 80) << "(480 - 2 * 21 - 17) / 21 rows are whole, to the last";
    EXPECT_EQ(Grid().LastRow(), 99);
    EXPECT_THAT(host->Log(), IsEmpty());
}

TEST_F(View, FirstColIsClampedAndRepaintsOnce)
{
    Grid().SetFirstCol(12);
    EXPECT_EQ(Grid().FirstCol(), 12);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetFirstCol(12);
    Grid().SetFirstCol(-1);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetFirstCol(500);
    EXPECT_EQ(Grid().FirstCol(), 25);
    EXPECT_EQ(Grid().LastCol(), 29);
}

TEST_F(View, WithoutLinesTheViewStaysBehindTheFixedOnes)
{
    Grid().SetRows(0);
    Grid().SetCols(0);
    Grid().SetFirstRow(3);
    Grid().SetFirstCol(3);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
}

TEST_F(View, NothingIsPaintedWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetFirstRow(40);
    EXPECT_EQ(Grid().FirstRow(), 40);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(View, HorizontalBarModesAreStoredAndLaidOut)
{
    Grid().SetScrollHBar(vxNoScrollBar);
    EXPECT_EQ(Grid().ScrollHBar(), vxNoScrollBar);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetScrollHBar(vxNoScrollBar);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), ElementsAre("ScrollHBar"));
}

TEST_F(View, TheVerticalBarRefusesSmoothScrolling)
{
    Grid().SetScrollVBar(vxScrollSmooth);
    EXPECT_EQ(Grid().ScrollVBar(), vxScrollTrack);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetScrollVBar(vxNormalScroll);
    EXPECT_EQ(Grid().ScrollVBar(), vxNormalScroll);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), ElementsAre("ScrollVBar"));
}

TEST_F(View, VirtualModeTakesTrackingAsNormal)
{
    MemoryBag bag;
    bag.WriteProperty("VirtualPageSize", 4);
    bag.WriteProperty("ScrollVBar", 0);
    HeadlessOptions options;
    options.bag = &bag;
    Make(options);
    Grid().SetScrollVBar(vxScrollTrack);
    EXPECT_EQ(Grid().ScrollVBar(), vxNormalScroll);
}

TEST_F(View, BarModesWaitForRedrawAtRunTime)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetScrollHBar(vxScrollTrack);
    Grid().SetScrollVBar(vxNoScrollBar);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(View, TheBarSizeIsOnlyRead)
{
    Grid().SetScrollBarSize(40);
    EXPECT_EQ(Grid().ScrollBarSize(), 17);
}

} // namespace
} // namespace vornix
