#include "control/grid_fixture.h"

namespace vornix {
namespace {

// Tables at the ends of what the indices can say.
class Extremes : public GridTest {
protected:
    // Every member that works on lines or cells, with one index pair.
    void UseCell(i16 Row, i16 Col)
    {
        Grid().SetText(Row, Col, u"text");
        Grid().SetKey(Row, Col, u"key");
        Grid().SetCellBackColor(Row, Col, 0x00FFFF);
        Grid().SetCellMode(Row, Col, vxCheckBox);
        Grid().SetCellChecked(Row, Col, true);
        Grid().SetCellPicture(Row, Col, MakePicture(1));
        Grid().SetRowForeColor(Row, 0x0000FF);
        Grid().SetColForeColor(Col, 0x0000FF);
        Grid().SetRowTextMarginLeft(Row, 3);
        Grid().SetCellsBackColor(Row, Col, 0, 0, 0x00FF00);
        Grid().SetRowLineColor(Row, 1);
        Grid().SetColLineColor(Col, 1);
        Grid().SetColSpan(Row, Col, 1);
        Grid().RefreshCell(Row, Col);
        EXPECT_EQ(Grid().Text(Row, Col), u"-1");
        EXPECT_EQ(Grid().ParentRow(Row, Col), Row);
        i16 width = 0, height = 0;
        Grid().GetSizeCell(Row, Col, width, height);
        i32 x = 0, y = 0;
        Grid().GetPositionCell(Row, Col, x, y);
    }
    // What ends in a paint or a layout.
    void UseGrid()
    {
        Grid().Refresh();
        Grid().SetAdjustLast(vxNone);
        Grid().SetAdjustLast(vxBoth);
        Grid().SetScrollHBar(vxNormalScroll);
        Grid().SetFirstRow(32767);
        Grid().SetFirstCol(32767);
        Grid().SetFirstRow(0);
        Grid().SetFirstCol(0);
        Grid().SetCaption(u"Title");
        Grid().ResetGrid();
        Grid().ReOrderCols();
        host->Resize(300, 200);
        host->Resize(640, 480);
        host->Paint();
        i16 row = 0, col = 0;
        Grid().GetCellAtPos(5, 5, row, col);
        Grid().GetCellParentAtPos(5, 5, row, col);
    }
};

TEST_F(Extremes, NoRows)
{
    Table(0, 3, 1, 1);
    UseGrid();
    UseCell(0, 0);
    UseCell(-1, 0);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(1, 0); }), 9);
    Grid().SpanRows(0);
    Grid().HideCol(0);
    UseGrid();
    Grid().SetRows(2);
    EXPECT_EQ(Grid().Text(1, 0), u"");
}

TEST_F(Extremes, NoColumns)
{
    Table(3, 0, 1, 1);
    UseGrid();
    UseCell(0, 0);
    UseCell(0, -1);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(0, 1); }), 9);
    Grid().HideRow(0);
    Grid().SetColWidthPercent(0, 50);
    UseGrid();
    Grid().SetCols(2);
    EXPECT_EQ(Grid().Text(0, 1), u"");
}

TEST_F(Extremes, NoLinesAtAll)
{
    Table(0, 0);
    UseGrid();
    UseCell(0, 0);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(0, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(-1, 0); }), 9);
    Grid().SetRowMode(0, vxTextBox);
    Grid().SetColMode(0, vxTextBox);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRowMode(1, vxTextBox); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColMode(1, vxTextBox); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColPicture(1, nullptr); }), 9);
}

TEST_F(Extremes, FixedLinesAlone)
{
    Table(0, 0, 3, 2);
    UseGrid();
    UseCell(-3, -2);
    UseCell(0, 0);
}

TEST_F(Extremes, FixedRowsTallerThanTheControl)
{
    Table(5, 3, 40, 1);
    UseGrid();
    UseCell(4, 2);
    EXPECT_GE(Grid().LastRow(), Grid().FirstRow());
}

TEST_F(Extremes, AllRowsThatIndicesCanName)
{
    Table(32767, 2);
    EXPECT_EQ(Grid().Rows(), 32767);
    UseGrid();
    i32 x = 0, y = 0;
    EXPECT_EQ(ErrorOf([&] { Grid().GetPositionCell(32766, 1, x, y); }), 6) << "so many pixels leave sixteen bits";
    Grid().SetFirstRow(32766);
    UseCell(32766, 1);
    Grid().SetFirstRow(0);
    Grid().SetText(32767, 2, u"filler");
    EXPECT_EQ(Grid().Text(32767, 2), u"filler");
    EXPECT_EQ(Grid().RowHeight(32766), 21);
    Grid().SetFirstRow(32766);
    EXPECT_EQ(Grid().FirstRow(), 32745);
    EXPECT_EQ(Grid().LastRow(), 32766);
}

TEST_F(Extremes, OneLineMoreIsOverflowAndChangesNothing)
{
    Table(32767, 1);
    Grid().SetText(32766, 0, u"last");
    EXPECT_EQ(ErrorOf([&] { Grid().SetFixedRows(1); }), 6);
    EXPECT_EQ(Grid().FixedRows(), 0);
    EXPECT_EQ(Grid().Text(32766, 0), u"last");
    Grid().SetRows(32766);
    Grid().SetFixedRows(1);
    EXPECT_EQ(Grid().Rows(), 32766);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRows(32767); }), 6);
    EXPECT_EQ(Grid().Rows(), 32766);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(32767, 0); }), 6);
    EXPECT_EQ(Grid().Text(32766, 0), Grid().Text(32766, 1)) << "the filler row can be read";
    UseGrid();
}

TEST_F(Extremes, AllColumnsThatIndicesCanName)
{
    // Together they must not be wider than sixteen bits say.
    Grid().SetColWidth(0, 1);
    Grid().SetDefaultWidth(1);
    Table(2, 32767);
    EXPECT_EQ(Grid().Cols(), 32767);
    UseGrid();
    Grid().SetFirstCol(32766);
    UseCell(1, 32766);
    Grid().SetFirstCol(0);
    EXPECT_EQ(Grid().ColOrder(u"32766"), 32766);
    EXPECT_EQ(ErrorOf([&] { Grid().SetFixedCols(1); }), 6);
    EXPECT_EQ(Grid().FixedCols(), 0);
    Grid().SetFirstCol(32766);
    EXPECT_EQ(Grid().FirstCol(), 32127);
    EXPECT_EQ(Grid().LastCol(), 32766);
}

TEST_F(Extremes, ColumnsWiderThanSixteenBitsTogetherAreOverflowOnceTheyAreSummed)
{
    Table(2, 300);
    EXPECT_FALSE(ErrorOf([&] { Grid().Refresh(); }));
    EXPECT_EQ(ErrorOf([&] { Grid().SetAdjustLast(vxNone); }), 6);
    EXPECT_EQ(Grid().AdjustLast(), vxNone) << "what was written before the error stays";
    EXPECT_FALSE(ErrorOf([&] { Grid().Refresh(); }));
}

TEST_F(Extremes, OneSpanOverAllRows)
{
    Table(32767, 1);
    // A span is composed at its full size, so it is not looked at here.
    Grid().SetRedraw(false);
    Grid().SpanRows(0);
    EXPECT_EQ(Grid().RowSpan(0, 0), 32767);
    EXPECT_EQ(Grid().ParentRow(32766, 0), 0);
    i16 width = 0, height = 0;
    EXPECT_EQ(ErrorOf([&] { Grid().GetSizeCell(0, 0, width, height); }), 6);
    Grid().RemoveSpanRows(0);
    Grid().SetRedraw(true);
    EXPECT_EQ(Grid().RowSpan(0, 0), 0);
    EXPECT_EQ(Grid().ParentRow(32766, 0), 32766);
}

TEST_F(Extremes, HidingAllOfALargeTable)
{
    Table(32767, 1);
    Grid().HideRow(0, 32767);
    EXPECT_TRUE(Grid().RowHide(32766));
    UseGrid();
    Grid().ShowRow(0, 32767);
    EXPECT_EQ(Grid().RowHeight(16000), 21);
}

TEST_F(Extremes, TheLargestSizesOfLines)
{
    Table(3, 3, 1, 1);
    Grid().SetRowHeight(0, 32767);
    Grid().SetColWidth(0, 32767);
    EXPECT_EQ(Grid().RowHeight(0), 32767);
    EXPECT_EQ(Grid().ColWidth(0), 32767);
    Grid().SetScrollHBar(vxNormalScroll);
    Grid().SetFirstRow(1);
    Grid().SetFirstCol(1);
    EXPECT_EQ(Grid().FirstRow(), 0) << "a line that is larger than the window stands alone";
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_TRUE(Grid().IsVisibleCell(0, 0));
    EXPECT_EQ(ErrorOf([&] {
        Grid().SetRowHeight(-1, 32767);
        Grid().SetFixedRows(2);
    }),
        6)
        << "the fixed rows together leave sixteen bits";
    Grid().SetRowHeight(-1, 21);
    Grid().Refresh();
    EXPECT_EQ(Grid().RowHeight(-1), 21);
}

TEST_F(Extremes, IndicesAtBothEnds)
{
    Table(3, 3, 1, 1);
    const std::pair<i16, int> rows[] = { { -32768, 9 }, { -2, 9 }, { 4, 9 }, { 32766, 9 }, { 32767, 6 } };
    for (const auto& [row, error] : rows) {
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().SetText(line, 0, u""); }), error) << row;
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().SetText(0, line, u""); }), error) << row;
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().SetRowHeight(line, 1); }), error) << row;
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().SetColWidth(line, 1); }), error) << row;
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().HideRow(line); }), error) << row;
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().SetColBackColor(line, 1); }), error) << row;
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().SetRowBackColor(line, 1); }), error) << row;
        EXPECT_EQ(ErrorOf([&, line = row] { Grid().SetColSpan(line, 0, 2); }), error) << row;
    }
}

} // namespace
} // namespace vornix
