// A double click on a boundary in the fixed lines: the line takes the size of what it holds.
#include "interact/sizing_fixture.h"

namespace vornix {
namespace {

using testing::Each;
using testing::ElementsAre;

class LineFittingTest : public SizingTest {
protected:
    LineFittingTest()
    {
        Grid().SetText(2, 1, u"what the column holds");
        Grid().SetText(2, 3, u"one\rtwo\rthree");
        host->ClearLog();
    }

    int NeededWidth(i16 Row, i16 Col)
    {
        i32 width = 0;
        i32 height = 0;
        Grid().CalcRectText(Row, Col, width, height);
        return width;
    }
    void DoubleClickCol(int Col, i16 button = 1) { host->DblClickAt(ColEnd(Col) - 1, Header, button); }
    void DoubleClickRow(int Row, i16 button = 1) { host->DblClickAt(Header, RowEnd(Row) - 1, button); }
    static constexpr int FittedHeight = 3 * 14 + 5;
};

TEST_F(LineFittingTest, AColumnTakesTheWidthOfItsTexts)
{
    DoubleClickCol(1);
    EXPECT_EQ(Grid().ColWidth(1), NeededWidth(2, 1));
    EXPECT_EQ(host->Count("ResizeCol"), 1);
    EXPECT_EQ(host->Count("ResizeRow"), 0);
    EXPECT_TRUE(IsPainted());
    EXPECT_EQ(Grid().ColWidth(0), 120);
    EXPECT_EQ(Grid().ColWidth(2), 120);
}

TEST_F(LineFittingTest, ARowTakesTheHeightOfItsTexts)
{
    DoubleClickRow(2);
    EXPECT_EQ(Grid().RowHeight(2), FittedHeight);
    EXPECT_EQ(host->Count("ResizeRow"), 1);
    EXPECT_EQ(host->Count("ResizeCol"), 0);
    EXPECT_TRUE(IsPainted());
}

TEST_F(LineFittingTest, TheEventComesBeforeTheDoubleClick)
{
    DoubleClickCol(1);
    const Lines names = SaidNames();
    EXPECT_EQ(names.front(), "MouseMove");
    const auto at = [&](const char* name) { return std::find(names.begin(), names.end(), name) - names.begin(); };
    EXPECT_LT(at("Click"), at("ResizeCol"));
    EXPECT_LT(at("ResizeCol"), at("DblClick"));
}

TEST_F(LineFittingTest, TheDragIsOver)
{
    host->MouseMove(ColEnd(1) - 1, Header);
    host->MouseDown(ColEnd(1) - 1, Header);
    host->MouseUp(ColEnd(1) - 1, Header);
    host->Click();
    host->DblClick();
    EXPECT_FALSE(Grid().IsSizingMode());
    Drag(600, Header);
    EXPECT_EQ(Grid().ColWidth(1), NeededWidth(2, 1));
    LetGo(600, Header);
    SizeCol(0, 200);
    EXPECT_EQ(Grid().ColWidth(0), 170) << "and the next one begins anew";
}

TEST_F(LineFittingTest, OtherButtonsFitNothing)
{
    DoubleClickCol(1, 2);
    DoubleClickRow(2, 2);
    DoubleClickCol(1, 4);
    EXPECT_THAT(Widths(), Each(120));
    EXPECT_THAT(Heights(), Each(21));
    EXPECT_FALSE(Grid().IsSizingMode());
}

TEST_F(LineFittingTest, FixedLinesAreFittedAsWell)
{
    Grid().SetText(3, -1, u"a header of its own");
    host->DblClickAt(29, Header);
    EXPECT_EQ(Grid().ColWidth(-1), NeededWidth(3, -1));
    Grid().SetText(-1, 2, u"two\rlines");
    Grid().SetColWidth(-1, 30);
    host->DblClickAt(Header, 20);
    EXPECT_EQ(Grid().RowHeight(-1), 2 * 14 + 5);
}

TEST_F(LineFittingTest, AColumnOfNoWidthOpens)
{
    Grid().SetColWidth(1, 0);
    host->DblClickAt(ColEnd(0) + 2, Header);
    EXPECT_EQ(Grid().ColWidth(1), NeededWidth(2, 1));
    EXPECT_EQ(Grid().ColWidth(0), 120);
}

TEST_F(LineFittingTest, LockedLinesStay)
{
    Grid().SetColResize(1, false);
    Grid().SetRowResize(2, false);
    DoubleClickCol(1);
    DoubleClickRow(2);
    EXPECT_THAT(Widths(), Each(120));
    EXPECT_THAT(Heights(), Each(21));
}

TEST_F(LineFittingTest, OneRowAloneIsFittedEvenWhereAllAreSized)
{
    Grid().SetResizingRows(true);
    DoubleClickRow(2);
    EXPECT_EQ(Grid().RowHeight(2), FittedHeight);
    EXPECT_EQ(Grid().RowHeight(1), 21);
}

TEST_F(LineFittingTest, TheTitleHasNoBoundaries)
{
    Grid().SetCaptionEnabled(true);
    Grid().SetCaption(u"title");
    DoubleClickCol(1);
    EXPECT_THAT(Widths(), Each(120));
}

TEST_F(LineFittingTest, TheCurrentCellComesIntoView)
{
    SmallWindow();
    Grid().CurrentPos(1, 1);
    Grid().SetFirstRow(50);
    DoubleClickCol(1);
    EXPECT_EQ(Grid().FirstRow(), 1);
}

TEST_F(LineFittingTest, TheHostHasTheLastWord)
{
    handlers.OnResizeCol = [](i16, i16& NewWidth) { NewWidth = 66; };
    handlers.OnResizeRow = [](i16, i16& NewHeight) { NewHeight = 0; };
    DoubleClickCol(1);
    EXPECT_EQ(Grid().ColWidth(1), 66);
    DoubleClickRow(2);
    EXPECT_EQ(Grid().RowHeight(2), 0);
    EXPECT_TRUE(IsPainted());
}

TEST_F(LineFittingTest, WithoutRedrawNothingIsPainted)
{
    host->MouseMove(ColEnd(1) - 1, Header);
    Grid().SetRedraw(false);
    host->ClearLog();
    DoubleClickCol(1);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(Grid().ColWidth(1), NeededWidth(2, 1));
    EXPECT_FALSE(Grid().Redraw());
}

TEST_F(LineFittingTest, AHandlerTakesTheLineAway)
{
    handlers.OnResizeCol = [this](i16, i16&) { Grid().SetCols(1); };
    DoubleClickCol(1);
    EXPECT_THAT(Widths(), ElementsAre(120));
    handlers.OnResizeRow = [this](i16, i16&) { Grid().SetRows(1); };
    DoubleClickRow(2);
    EXPECT_THAT(Heights(), ElementsAre(21));
    EXPECT_TRUE(IsPainted());
}

TEST_F(LineFittingTest, AClickTakesTheLineAwayBefore)
{
    handlers.OnClick = [this] { Grid().SetCols(0); };
    DoubleClickCol(1);
    EXPECT_EQ(host->Count("ResizeCol"), 0);
    EXPECT_EQ(Grid().Cols(), 0);
}

TEST_F(LineFittingTest, AHandlerClosesTheControl)
{
    handlers.OnResizeCol = [this](i16, i16&) { host->Close(); };
    DoubleClickCol(1);
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_EQ(host->Count("DblClick"), 0);
}

TEST_F(LineFittingTest, TheLastColumnOfASpanIsFitted)
{
    Grid().SetColSpan(-1, 1, 2);
    DoubleClickCol(1);
    EXPECT_EQ(Grid().ColWidth(1), 120) << "a boundary within the span is none";
    Grid().SetText(4, 2, u"text");
    DoubleClickCol(2);
    EXPECT_EQ(Grid().ColWidth(2), NeededWidth(4, 2));
}

} // namespace
} // namespace vornix
