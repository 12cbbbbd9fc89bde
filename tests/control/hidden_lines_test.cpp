#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HiddenLinesOfGrid : public GridTest {
protected:
    HiddenLinesOfGrid() { Table(6, 4, 1, 1); }
};

TEST_F(HiddenLinesOfGrid, AHiddenRowHasNoHeightAndKeepsItsPlace)
{
    Grid().SetRowHeight(2, 33);
    Grid().SetText(2, 0, u"hidden");
    Grid().HideRow(2);
    EXPECT_EQ(Grid().RowHeight(2), 0);
    EXPECT_TRUE(Grid().RowHide(2));
    EXPECT_EQ(Grid().Rows(), 6);
    EXPECT_EQ(Grid().Text(2, 0), u"hidden");
    Grid().ShowRow(2);
    EXPECT_EQ(Grid().RowHeight(2), 33);
    EXPECT_FALSE(Grid().RowHide(2));
}

TEST_F(HiddenLinesOfGrid, HidingTwiceNeedsOneShow)
{
    Grid().SetRowHeight(2, 33);
    Grid().HideRow(2);
    Grid().HideRow(2);
    Grid().ShowRow(2);
    EXPECT_EQ(Grid().RowHeight(2), 33);
    Grid().SetColWidth(2, 44);
    Grid().HideCol(2);
    Grid().HideCol(2);
    Grid().ShowCol(2);
    EXPECT_EQ(Grid().ColWidth(2), 44);
}

TEST_F(HiddenLinesOfGrid, SizesWrittenWhileHiddenTakeEffectWhenShown)
{
    Grid().HideRow(2);
    Grid().SetRowHeight(2, 40);
    EXPECT_EQ(Grid().RowHeight(2), 0);
    Grid().ShowRow(2);
    EXPECT_EQ(Grid().RowHeight(2), 40);
    Grid().HideCol(1);
    Grid().SetColWidth(1, 50);
    EXPECT_EQ(Grid().ColWidth(1), 0);
    Grid().ShowCol(1);
    EXPECT_EQ(Grid().ColWidth(1), 50);
}

TEST_F(HiddenLinesOfGrid, RunsOfLinesHideAndShow)
{
    Grid().HideRow(1, 3);
    EXPECT_FALSE(Grid().RowHide(0));
    EXPECT_TRUE(Grid().RowHide(1));
    EXPECT_TRUE(Grid().RowHide(3));
    EXPECT_FALSE(Grid().RowHide(4));
    Grid().ShowRow(0, 6);
    EXPECT_FALSE(Grid().RowHide(2));
    Grid().HideCol(0, 2);
    EXPECT_TRUE(Grid().ColHide(1));
    EXPECT_FALSE(Grid().ColHide(2));
    Grid().ShowCol(0, 4);
    EXPECT_FALSE(Grid().ColHide(0));
}

TEST_F(HiddenLinesOfGrid, EachCallLaysOutOnceAndReportsNothing)
{
    Grid().HideRow(1, 3);
    Grid().ShowRow(1, 3);
    Grid().HideCol(1, 2);
    Grid().ShowCol(1, 2);
    EXPECT_EQ(host->Repaints(), 4);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(HiddenLinesOfGrid, PropertiesReportEvenEqualValues)
{
    Grid().SetRowHide(1, true);
    Grid().SetRowHide(1, true);
    Grid().SetColHide(1, false);
    EXPECT_TRUE(Grid().RowHide(1));
    EXPECT_THAT(Reported(), ElementsAre("RowHide", "RowHide", "ColHide"));
}

TEST_F(HiddenLinesOfGrid, HiddenFixedLinesLeaveTheFixedArea)
{
    Grid().HideRow(-1);
    Grid().HideCol(-1);
    i32 x = -1, y = -1;
    Grid().GetPositionCell(0, 0, x, y);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    Grid().ShowRow(-1);
    Grid().ShowCol(-1);
    Grid().GetPositionCell(0, 0, x, y);
    EXPECT_EQ(x, 30 * 15);
    EXPECT_EQ(y, 21 * 15);
}

TEST_F(HiddenLinesOfGrid, TheFirstRowCanBeHidden)
{
    Grid().SetCellBackColor(1, 0, 0x00FFFF);
    Grid().HideRow(0);
    EXPECT_EQ(host->Pixel(90, 21 + 10), 0x00FFFFu);
}

TEST_F(HiddenLinesOfGrid, AllLinesMayBeHidden)
{
    Grid().HideRow(0, 6);
    Grid().HideCol(0, 4);
    Grid().SetBackColor(1);
    EXPECT_EQ(Grid().RowHeight(5), 0);
    Grid().ShowRow(0, 6);
    EXPECT_EQ(Grid().RowHeight(5), 21);
}

TEST_F(HiddenLinesOfGrid, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { Grid().HideRow(5, 3); }), 9);
    EXPECT_TRUE(Grid().RowHide(5)) << "what was hidden before the error stays";
    EXPECT_EQ(ErrorOf([&] { Grid().ShowCol(-2); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().RowHide(7); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColHide(5, true); }), 9);
}

TEST_F(HiddenLinesOfGrid, CountsBelowOneHideNothing)
{
    Grid().HideRow(0, 0);
    Grid().HideCol(0, -3);
    EXPECT_FALSE(Grid().RowHide(0));
    EXPECT_FALSE(Grid().ColHide(0));
}

} // namespace
} // namespace vornix
