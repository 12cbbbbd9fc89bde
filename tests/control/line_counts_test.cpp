#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LineCounts : public GridTest { };

TEST_F(LineCounts, EachCountRepaintsOnceAndReportsItself)
{
    host->ClearLog();
    Grid().SetRows(5);
    Grid().SetCols(4);
    Grid().SetFixedRows(2);
    Grid().SetFixedCols(1);
    EXPECT_EQ(host->Repaints(), 4);
    EXPECT_THAT(Reported(), ElementsAre("Rows", "Cols", "FixedRows", "FixedCols"));
    EXPECT_EQ(Grid().Rows(), 5);
    EXPECT_EQ(Grid().Cols(), 4);
    EXPECT_EQ(Grid().FixedRows(), 2);
    EXPECT_EQ(Grid().FixedCols(), 1);
}

TEST_F(LineCounts, EqualAndNegativeCountsDoNothing)
{
    Table(3, 2, 1, 1);
    Grid().SetRows(3);
    Grid().SetRows(-1);
    Grid().SetCols(2);
    Grid().SetCols(-32768);
    Grid().SetFixedRows(1);
    Grid().SetFixedCols(1);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
    EXPECT_EQ(Grid().Rows(), 3);
    EXPECT_EQ(Grid().Cols(), 2);
}

TEST_F(LineCounts, GrowingRowsKeepsContentsAndAddsEmptyRows)
{
    Table(2, 2);
    Grid().SetText(1, 1, u"kept");
    Grid().SetText(2, 0, u"filler");
    Grid().SetRows(4);
    EXPECT_EQ(Grid().Text(1, 1), u"kept");
    EXPECT_EQ(Grid().Text(2, 0), u"");
    EXPECT_EQ(Grid().Text(3, 0), u"");
    EXPECT_EQ(Grid().Text(4, 0), u"filler") << "the filler stays behind the last row";
    EXPECT_EQ(ErrorOf([&] { Grid().Text(5, 0); }), 9);
}

TEST_F(LineCounts, ShrinkingRowsCutsAtTheEnd)
{
    Table(4, 2);
    for (i16 row = 0; row < 4; ++row)
        Grid().SetText(row, 0, std::u16string(1, static_cast<char16_t>(u'a' + row)));
    Grid().SetText(4, 0, u"filler");
    Grid().SetRows(2);
    EXPECT_EQ(Grid().Text(0, 0), u"a");
    EXPECT_EQ(Grid().Text(1, 0), u"b");
    EXPECT_EQ(Grid().Text(2, 0), u"filler");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(3, 0); }), 9);
    Grid().SetRows(4);
    EXPECT_EQ(Grid().Text(2, 0), u"") << "rows that come back are new";
}

TEST_F(LineCounts, GrowingAndShrinkingColumnsKeepsContents)
{
    Table(2, 2, 1, 1);
    Grid().SetText(0, 1, u"kept");
    Grid().SetText(-1, 0, u"header");
    Grid().SetText(0, 2, u"filler");
    Grid().SetCols(4);
    EXPECT_EQ(Grid().Text(0, 1), u"kept");
    EXPECT_EQ(Grid().Text(0, 2), u"");
    EXPECT_EQ(Grid().Text(0, 4), u"filler");
    EXPECT_EQ(Grid().CellStyle(-1, 3), vxCellRaised);
    Grid().SetCols(1);
    EXPECT_EQ(Grid().Text(-1, 0), u"header");
    EXPECT_EQ(Grid().Text(0, 1), u"filler");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(0, 2); }), 9);
    Grid().SetCols(2);
    EXPECT_EQ(Grid().Text(0, 1), u"");
}

TEST_F(LineCounts, NewColumnsAreNumberedInOrder)
{
    Table(1, 2, 0, 1);
    Grid().SetCols(5);
    for (i16 col = 0; col < 5; ++col)
        EXPECT_EQ(Grid().ColOrder(std::u16string(1, static_cast<char16_t>(u'0' + col))), col);
}

TEST_F(LineCounts, NewLinesTakeTheDefaultSizes)
{
    Table(1, 1, 1, 1);
    Grid().SetRows(2);
    Grid().SetCols(2);
    EXPECT_EQ(Grid().RowHeight(1), 21);
    EXPECT_EQ(Grid().ColWidth(1), 120);
    EXPECT_TRUE(Grid().RowResize(1));
    EXPECT_TRUE(Grid().ColResize(1));
}

TEST_F(LineCounts, RaisingFixedRowsAddsThemAboveTheData)
{
    Grid().SetText(0, 0, u"data");
    Grid().SetFixedRows(1);
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Grid().Text(0, 0), u"data");
    EXPECT_EQ(Grid().Text(-1, 0), u"");
    EXPECT_EQ(Grid().CellStyle(-1, 0), vxCellRaised);
    EXPECT_EQ(Grid().CellStyle(0, 0), vxCellFlat);
}

TEST_F(LineCounts, LoweringFixedRowsDiscardsTheOutermost)
{
    Table(1, 1, 2, 0);
    Grid().SetText(-2, 0, u"outer");
    Grid().SetText(-1, 0, u"inner");
    Grid().SetText(0, 0, u"data");
    Grid().SetFixedRows(1);
    EXPECT_EQ(Grid().Text(-1, 0), u"inner");
    EXPECT_EQ(Grid().Text(0, 0), u"data");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(-2, 0); }), 9);
}

TEST_F(LineCounts, FixedColumnsComeAndGoAtTheLeft)
{
    Table(1, 2);
    Grid().SetText(0, 1, u"data");
    Grid().SetFixedCols(2);
    EXPECT_EQ(Grid().Text(0, 1), u"data");
    EXPECT_EQ(Grid().CellStyle(0, -2), vxCellRaised);
    EXPECT_EQ(Grid().ColWidth(-2), 30);
    Grid().SetText(0, -1, u"inner");
    Grid().SetFixedCols(1);
    EXPECT_EQ(Grid().Text(0, -1), u"inner");
    EXPECT_EQ(Grid().Text(0, 1), u"data");
    Grid().SetFixedCols(0);
    EXPECT_EQ(Grid().Text(0, 1), u"data");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(0, -1); }), 9);
}

TEST_F(LineCounts, FixedLinesMoveTheView)
{
    Table(50, 20, 2, 1);
    Grid().SetFirstRow(10);
    Grid().SetFirstCol(3);
    Grid().SetFixedRows(4);
    Grid().SetFixedCols(0);
    EXPECT_EQ(Grid().FirstRow(), 10);
    EXPECT_EQ(Grid().FirstCol(), 3);
}

TEST_F(LineCounts, ShrinkingBringsTheViewBackToTheLastLine)
{
    Table(50, 20, 1, 1);
    Grid().SetRedraw(false);
    Grid().SetFirstRow(40);
    Grid().SetFirstCol(15);
    Grid().SetRows(5);
    Grid().SetCols(3);
    EXPECT_EQ(Grid().FirstRow(), 4);
    EXPECT_EQ(Grid().FirstCol(), 2);
    Grid().SetRedraw(true);
    EXPECT_EQ(Grid().FirstRow(), 0) << "everything fits";
    EXPECT_EQ(Grid().FirstCol(), 0);
    Grid().SetRows(0);
    Grid().SetCols(0);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
}

TEST_F(LineCounts, WithoutAFixedRowThereIsNoCaption)
{
    Table(1, 1, 1, 0);
    Grid().SetCaption(u"Title");
    Grid().SetCaptionEnabled(true);
    Grid().SetFixedRows(0);
    EXPECT_FALSE(Grid().CaptionEnabled());
    EXPECT_EQ(Grid().Caption(), u"Title");
}

TEST_F(LineCounts, ANewOutermostFixedRowCarriesTheCaption)
{
    Table(1, 1, 1, 0);
    Grid().SetCaption(u"Title");
    Grid().SetCaptionEnabled(true);
    Grid().SetFixedRows(2);
    EXPECT_EQ(Grid().Text(-2, 0), u"Title");
}

TEST_F(LineCounts, RowsEndVirtualMode)
{
    MemoryBag bag;
    bag.WriteProperty("VirtualPageSize", 4);
    bag.WriteProperty("Rows", 4);
    HeadlessOptions options;
    options.bag = &bag;
    Make(options);
    Grid().SetRows(4);
    Grid().SetCols(3);
    EXPECT_EQ(Grid().VirtualPageSize(), 4);
    Grid().SetRows(3);
    EXPECT_EQ(Grid().VirtualPageSize(), 0);
}

TEST_F(LineCounts, NegativeFixedCountsAreRefusedAndLeaveTheTableWhole)
{
    Table(3, 2, 2, 1);
    Grid().SetText(0, 0, u"data");
    EXPECT_EQ(ErrorOf([&] { Grid().SetFixedRows(-1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetFixedCols(-32768); }), 9);
    EXPECT_EQ(Grid().FixedRows(), 2);
    EXPECT_EQ(Grid().FixedCols(), 1);
    EXPECT_EQ(Grid().Text(0, 0), u"data");
    Grid().Refresh();
    Grid().SetRows(1);
    EXPECT_EQ(Grid().Text(0, 0), u"data");
}

TEST_F(LineCounts, TheLastVisibleLineNeverLiesBehindTheTable)
{
    Table(100, 40);
    ASSERT_GT(Grid().LastRow(), 10);
    Grid().SetRedraw(false);
    Grid().SetRows(5);
    Grid().SetCols(2);
    EXPECT_EQ(Grid().LastRow(), 5);
    EXPECT_EQ(Grid().LastCol(), 2);
}

TEST_F(LineCounts, LinesThatAreCutOffTakeTheSpansThatReachIntoThemAlong)
{
    Table(6, 6, 2, 2);
    Grid().SetRowSpan(2, 0, 3);
    Grid().SetColSpan(0, 2, 3);
    Grid().SetRowSpan(-2, 1, 3);
    Grid().SetColSpan(1, -2, 3);
    Grid().SetRows(4);
    EXPECT_EQ(Grid().RowSpan(2, 0), 0);
    EXPECT_EQ(Grid().ParentRow(3, 0), 3);
    Grid().SetCols(4);
    EXPECT_EQ(Grid().ColSpan(0, 2), 0);
    Grid().SetFixedRows(1);
    EXPECT_EQ(Grid().ParentRow(-1, 1), -1);
    EXPECT_EQ(Grid().ParentRow(0, 1), 0);
    Grid().SetFixedCols(0);
    EXPECT_EQ(Grid().ParentCol(1, 0), 0);
    EXPECT_FALSE(ErrorOf([&] { Grid().Refresh(); }));
}

TEST_F(LineCounts, SpansThatEndAtTheCutStay)
{
    Table(6, 3, 2, 0);
    Grid().SetRowSpan(1, 0, 3);
    Grid().SetRowSpan(-1, 1, 3);
    Grid().SetRows(4);
    Grid().SetFixedRows(1);
    EXPECT_EQ(Grid().RowSpan(1, 0), 3);
    EXPECT_EQ(Grid().RowSpan(-1, 1), 3);
}

TEST_F(LineCounts, RowsBehindHiddenOnesShowWhateverCountsChange)
{
    Table(10, 2);
    Grid().HideRow(1, 3);
    Grid().SetFixedRows(1);
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    EXPECT_EQ(host->Pixel(40, 21 + 10), 0x00FFFFu);
    Grid().SetFixedRows(0);
    Grid().ShowRow(1, 3);

    Grid().HideRow(3, 6);
    Grid().SetRows(6);
    Grid().SetRows(20);
    for (i16 Row = 6; Row < 20; ++Row)
        Grid().SetCellBackColor(Row, 0, 0x00FFFF);
    EXPECT_EQ(host->Pixel(40, 3 * 21 + 10), 0x00FFFFu);
    EXPECT_EQ(host->Pixel(40, 5 * 21 + 10), 0x00FFFFu);
}

TEST_F(LineCounts, WhileRedrawIsOffCountsChangeAndNothingIsPainted)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetRows(5);
    Grid().SetFixedCols(1);
    EXPECT_EQ(Grid().Rows(), 5);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), ElementsAre("Rows", "FixedCols"));
}

TEST_F(LineCounts, ColumnsKeepWhatNewRowsTake)
{
    Grid().SetColBackColor(0, 0x0000FF);
    Grid().SetRows(2);
    EXPECT_EQ(Grid().CellBackColor(1, 0), 0x0000FFu);
    Grid().SetRowBackColor(0, 0x00FF00);
    Grid().SetCols(2);
    EXPECT_EQ(Grid().CellBackColor(0, 1), 0x80000005u);
}

} // namespace
} // namespace vornix
