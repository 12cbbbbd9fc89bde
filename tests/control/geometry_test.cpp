#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Geometry : public GridTest {
protected:
    Geometry() { Table(4, 3, 1, 1); }

    CellPlace Hit(i32 x, i32 y)
    {
        CellPlace place { 99, 99 };
        found = Grid().GetCellAtPos(x, y, place.Row, place.Col);
        return place;
    }
    CellPlace HitParent(i32 x, i32 y)
    {
        CellPlace place { 99, 99 };
        found = Grid().GetCellParentAtPos(x, y, place.Row, place.Col);
        return place;
    }
    Point Position(i16 Row, i16 Col)
    {
        Point place;
        Grid().GetPositionCell(Row, Col, place.x, place.y);
        return place;
    }

    bool found = false;
};

TEST_F(Geometry, SizesLayOutOnceAndReportNothing)
{
    Grid().SetColWidth(0, 50);
    Grid().SetRowHeight(0, 40);
    EXPECT_EQ(Grid().ColWidth(0), 50);
    EXPECT_EQ(Grid().RowHeight(0), 40);
    EXPECT_EQ(host->Repaints(), 2);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetColWidth(0, 50);
    Grid().SetRowHeight(0, 40);
    EXPECT_EQ(host->Repaints(), 2);
}

TEST_F(Geometry, NegativeSizesAreZero)
{
    Grid().SetColWidth(0, -5);
    Grid().SetRowHeight(0, -32768);
    EXPECT_EQ(Grid().ColWidth(0), 0);
    EXPECT_EQ(Grid().RowHeight(0), 0);
    EXPECT_FALSE(Grid().RowHide(0));
}

TEST_F(Geometry, SizesOutsideTheStoreAreError9)
{
    EXPECT_EQ(ErrorOf([&] { Grid().ColWidth(4); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColWidth(4, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().RowHeight(-2); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRowHeight(5, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColWidthPercent(4, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().ColWidthPercent(-2); }), 9);
}

TEST_F(Geometry, AFirstLineThatVanishesMovesTheViewOn)
{
    Grid().SetRedraw(false); // with everything in sight, the next layout goes back to the first line
    Grid().SetColWidth(0, 0);
    Grid().SetRowHeight(0, 0);
    EXPECT_EQ(Grid().FirstCol(), 1);
    EXPECT_EQ(Grid().FirstRow(), 1);
    Grid().SetColWidth(1, 0);
    Grid().SetColWidth(2, 0);
    EXPECT_EQ(Grid().FirstCol(), 2) << "the last column stays";
}

TEST_F(Geometry, PercentWidthsShareTheRoom)
{
    Make({ .width = 101, .height = 100 });
    Table(1, 2);
    Grid().SetColWidthPercent(0, 50);
    Grid().SetColWidthPercent(1, 50);
    EXPECT_EQ(Grid().ColWidth(0), 50);
    EXPECT_EQ(Grid().ColWidth(1), 51);
    EXPECT_EQ(Grid().ColWidthPercent(0), 50);
    host->Resize(201, 100);
    EXPECT_EQ(Grid().ColWidth(0), 100);
    EXPECT_EQ(Grid().ColWidth(1), 101);
}

TEST_F(Geometry, PercentWidthsAreRedoneEvenWhileRedrawIsOff)
{
    Make({ .width = 100, .height = 100 });
    Table(1, 2);
    Grid().SetRedraw(false);
    Grid().SetColWidthPercent(0, 30);
    Grid().SetColWidthPercent(1, 70);
    EXPECT_EQ(Grid().ColWidth(0), 30);
    EXPECT_EQ(Grid().ColWidth(1), 70);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Geometry, PercentWidthsStandStillWithoutResizingWidth)
{
    Make({ .width = 100, .height = 100 });
    Table(1, 2);
    Grid().SetResizingWidth(false);
    Grid().SetColWidthPercent(0, 100);
    EXPECT_EQ(Grid().ColWidth(0), 120);
    EXPECT_FALSE(Grid().ResizingWidth());
}

TEST_F(Geometry, PercentZeroEndsIt)
{
    Make({ .width = 100, .height = 100 });
    Table(1, 1);
    Grid().SetColWidthPercent(0, 100);
    Grid().SetColWidthPercent(0, 0);
    host->Resize(60, 100);
    EXPECT_EQ(Grid().ColWidth(0), 100);
}

TEST_F(Geometry, ResizeModeRewritesTheFlagsOfAllLines)
{
    Grid().SetColResize(1, false);
    host->ClearLog();
    Grid().SetResizeMode(vxColumn);
    EXPECT_TRUE(Grid().ColResize(1));
    EXPECT_FALSE(Grid().RowResize(0));
    EXPECT_FALSE(Grid().RowResize(-1));
    EXPECT_THAT(Reported(), ElementsAre("ResizeMode"));
    Grid().SetRows(5);
    EXPECT_FALSE(Grid().RowResize(4));
    Grid().SetColResize(1, false);
    Grid().SetResizeMode(vxColumn);
    EXPECT_FALSE(Grid().ColResize(1)) << "an equal value does nothing";
    Grid().SetResizeMode(vxNone);
    EXPECT_FALSE(Grid().ColResize(0));
    Grid().SetResizeMode(vxRow);
    EXPECT_TRUE(Grid().RowResize(-1));
}

TEST_F(Geometry, PlainSettingsAreStoredAndReported)
{
    Grid().SetSelectMode(vxRow);
    Grid().SetResizingRows(true);
    Grid().SetSelectMode(vxRow);
    EXPECT_EQ(Grid().SelectMode(), vxRow);
    EXPECT_TRUE(Grid().ResizingRows());
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), ElementsAre("SelectMode", "ResizingRows"));
}

TEST_F(Geometry, AdjustLastFillsTheGapOrLeavesIt)
{
    Grid().SetDefaultBkColor(0xFFFFFF);
    Grid().SetCellBackColor(4, 3, 0x00FFFF);
    Grid().SetAdjustLast(vxNone);
    EXPECT_THAT(Reported(), ElementsAre("DefaultBkColor", "AdjustLast"));
    EXPECT_NE(host->Pixel(600, 400), 0x00FFFFu);
    Grid().SetAdjustLast(vxBoth);
    EXPECT_EQ(host->Pixel(600, 400), 0x00FFFFu);
    EXPECT_EQ(Grid().ColWidth(3), 640 - 30 - 3 * 120);
    EXPECT_EQ(Grid().RowHeight(4), 480 - 5 * 21);
}

TEST_F(Geometry, AdjustLastMeasuresEvenWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetAdjustLast(vxRow);
    EXPECT_EQ(Grid().AdjustLast(), vxRow);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Geometry, BordersNarrowTheClientArea)
{
    Grid().SetBorderStyle(vxInset);
    EXPECT_EQ(host->ExtendedStyle(), 512u);
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 636);
    EXPECT_FLOAT_EQ(Grid().GetScaleHeight(), 476);
    EXPECT_THAT(Reported(), ElementsAre("BorderStyle"));
    EXPECT_GE(host->Repaints(), 1);
    Grid().SetBorderStyle(vxInsetThin);
    EXPECT_EQ(host->ExtendedStyle(), 131072u);
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 638);
    Grid().SetBorderStyle(vxNoBorder);
    EXPECT_EQ(host->ExtendedStyle(), 0u);
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 640);
}

TEST_F(Geometry, AnUnknownBorderIsStoredAndChangesNothing)
{
    Grid().SetBorderStyle(vxInset);
    Grid().SetBorderStyle(9);
    EXPECT_EQ(Grid().BorderStyle(), 9);
    EXPECT_EQ(host->ExtendedStyle(), 512u);
}

TEST_F(Geometry, HitsAreFoundInFixedAndScrollingCells)
{
    EXPECT_EQ(Hit(0, 0), (CellPlace { -1, -1 }));
    EXPECT_EQ(Hit(29, 20), (CellPlace { -1, -1 }));
    EXPECT_EQ(Hit(30, 21), (CellPlace { 0, 0 }));
    EXPECT_EQ(Hit(150, 42), (CellPlace { 1, 1 }));
    EXPECT_TRUE(found);
}

TEST_F(Geometry, HitsOutsideGiveNoIndex)
{
    EXPECT_EQ(Hit(600, 400), (CellPlace { -32767, -32767 }));
    EXPECT_FALSE(found);
    EXPECT_EQ(Hit(-1, -1), (CellPlace { -32767, -32767 }));
    EXPECT_EQ(Hit(100000, 5), (CellPlace { 0, -32767 })) << "a hit in one direction is an internal index";
    EXPECT_FALSE(found);
    EXPECT_EQ(Hit(35, 5000), (CellPlace { -32767, 1 }));
}

TEST_F(Geometry, HitsFollowTheView)
{
    Table(100, 30, 1, 1);
    Grid().SetFirstRow(10);
    Grid().SetFirstCol(5);
    EXPECT_EQ(Hit(30, 21), (CellPlace { 10, 5 }));
    EXPECT_EQ(Hit(0, 0), (CellPlace { -1, -1 }));
}

TEST_F(Geometry, ParentHitsResolveSpans)
{
    Grid().SetColSpan(1, 0, 2);
    Grid().SetRowSpan(1, 0, 2);
    EXPECT_EQ(Hit(160, 70), (CellPlace { 2, 1 }));
    EXPECT_EQ(HitParent(160, 70), (CellPlace { 1, 0 }));
    EXPECT_TRUE(found);
    EXPECT_EQ(HitParent(160, 30), (CellPlace { 0, 1 }));
    EXPECT_EQ(HitParent(600, 400), (CellPlace { -32767, -32767 }));
    EXPECT_FALSE(found);
}

TEST_F(Geometry, PlacesAreTwipsWithTheBorder)
{
    EXPECT_EQ(Position(0, 0), (Point { 30 * 15, 21 * 15 }));
    EXPECT_EQ(Position(1, 2), (Point { 270 * 15, 42 * 15 }));
    Grid().SetBorderStyle(vxInset);
    EXPECT_EQ(Position(0, 0), (Point { 30 * 15 + 30, 21 * 15 + 30 }));
    Grid().SetBorderStyle(vxInsetThin);
    EXPECT_EQ(Position(0, 0), (Point { 30 * 15 + 15, 21 * 15 + 15 }));
}

TEST_F(Geometry, ACellScrolledOutHasThePlaceOfTheFirst)
{
    Table(100, 30, 1, 1);
    Grid().SetFirstCol(5);
    EXPECT_EQ(Position(0, 2), (Point { 30 * 15, 21 * 15 }));
    EXPECT_EQ(Position(0, 6), (Point { 150 * 15, 21 * 15 }));
}

TEST_F(Geometry, TwipsAreComputedInThirtyTwoBits)
{
    Grid().SetCols(20);
    EXPECT_EQ(Position(0, 20), (Point { (30 + 20 * 120) * 15, 21 * 15 }));
    EXPECT_GT(Position(0, 20).x, 32767);
}

TEST_F(Geometry, SizesOfCellsAndBlocks)
{
    i16 width = 0, height = 0;
    Grid().GetSizeCell(0, 0, width, height);
    EXPECT_EQ(width, 120);
    EXPECT_EQ(height, 21);
    Grid().SetColSpan(0, 0, 2);
    Grid().GetSizeCells(0, 1, 0, 1, width, height);
    EXPECT_EQ(width, 240) << "one cell counts its span";
    Grid().GetSizeCells(2, 2, -1, -1, width, height);
    EXPECT_EQ(width, 30 + 3 * 120);
    EXPECT_EQ(height, 4 * 21);
    Grid().HideRow(0);
    Grid().GetSizeCells(0, 0, 1, 1, width, height);
    EXPECT_EQ(height, 21);
    EXPECT_EQ(ErrorOf([&] { Grid().GetSizeCell(5, 0, width, height); }), 9);
}

TEST_F(Geometry, SizesBeyondSixteenBitsAreOverflow)
{
    i16 width = 0, height = 0;
    Grid().SetColWidth(0, 32767);
    Grid().SetColWidth(1, 32767);
    EXPECT_EQ(ErrorOf([&] { Grid().GetSizeCells(0, 0, 0, 1, width, height); }), 6);
}

TEST_F(Geometry, TheOldSizeMemberLeavesItsArguments)
{
    i16 width = 7, height = 8;
    Grid().getWidthHeightCell(1, 1, width, height);
    EXPECT_EQ(width, 7);
    EXPECT_EQ(height, 8);
}

TEST_F(Geometry, VisibilityFollowsTheLatestPaint)
{
    Table(100, 30, 1, 1);
    EXPECT_TRUE(Grid().IsVisibleRow(-1));
    EXPECT_TRUE(Grid().IsVisibleRow(-100)) << "negative rows always";
    EXPECT_TRUE(Grid().IsVisibleRow(Grid().LastRow()));
    EXPECT_FALSE(Grid().IsVisibleRow(static_cast<i16>(Grid().LastRow() + 1)));
    EXPECT_TRUE(Grid().IsVisibleCell(0, 0));
    EXPECT_FALSE(Grid().IsVisibleCell(0, 29));
    EXPECT_FALSE(Grid().IsVisibleCell(99, 0));
    Grid().HideRow(2);
    EXPECT_TRUE(Grid().IsVisibleRow(2)) << "hidden rows in the range count";
    Grid().SetFirstRow(5);
    EXPECT_FALSE(Grid().IsVisibleRow(4));
    EXPECT_TRUE(Grid().IsVisibleCol(-5));
}

TEST_F(Geometry, TheScaleLeavesOutBarsThatShow)
{
    host->FindChild("scrV")->Move({ 623, 0, 640, 480 });
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 640);
    host->FindChild("scrV")->Show(true);
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 623);
    host->FindChild("scrH")->Move({ 0, 463, 640, 480 });
    host->FindChild("scrH")->Show(true);
    EXPECT_FLOAT_EQ(Grid().GetScaleHeight(), 463);
}

TEST_F(Geometry, WithoutColumnsTheLayoutStillRuns)
{
    Grid().SetAdjustLast(vxNone);
    Grid().SetCols(0);
    EXPECT_EQ(Hit(100, 100).Col, -32767);
    EXPECT_FALSE(found);
}

} // namespace
} // namespace vornix
