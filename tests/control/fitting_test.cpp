// Sizes that follow from the texts, through the members and with real fonts.
#include "headless/person_fixture.h"

namespace vornix {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Gt;
using testing::Lt;

class FittingTest : public PersonTest {
protected:
    FittingTest() { Table(20, 5, 1, 1); }

    Size NeededBy(i16 Row, i16 Col)
    {
        i32 width = 0;
        i32 height = 0;
        Grid().CalcRectText(Row, Col, width, height);
        return { width, height };
    }
    // Columns whose cells shape a text that fits into nothing but itself.
    void Widen(i16 Row, i16 Col, std::u16string_view text)
    {
        Grid().SetText(Row, Col, text);
        Grid().AdjustWidth(Col);
    }
    // The picture of a cell, by its pixels.
    std::vector<ColorRef> PixelsOf(i16 Row, i16 Col)
    {
        i32 x = 0;
        i32 y = 0;
        i16 width = 0;
        i16 height = 0;
        Grid().GetPositionCell(Row, Col, x, y);
        Grid().GetSizeCell(Row, Col, width, height);
        std::vector<ColorRef> pixels;
        for (int down = 0; down < height - 1; ++down) {
            for (int across = 0; across < width - 1; ++across)
                pixels.push_back(host->Pixel(x / 15 + across, y / 15 + down));
        }
        return pixels;
    }
};

TEST_F(FittingTest, ACellNeedsItsTextAndPadding)
{
    EXPECT_EQ(NeededBy(0, 0).width, 8) << "an empty text";
    Grid().SetText(0, 0, u"text");
    const Size plain = NeededBy(0, 0);
    EXPECT_GT(plain.width, 20);
    EXPECT_EQ(plain.height, 18) << "a line of 14 and its padding";
    Grid().SetTextMarginLeft(0, 0, 3);
    Grid().SetTextMarginRight(0, 0, 4);
    EXPECT_EQ(NeededBy(0, 0), (Size { plain.width + 7, plain.height }));
}

TEST_F(FittingTest, BoldTextsNeedMoreAndUnderlinesNothing)
{
    Grid().SetText(0, 0, u"a text of some letters");
    const Size plain = NeededBy(0, 0);
    Grid().SetCellFontUnderline(0, 0, true);
    Grid().SetCellFontStrikeThrough(0, 0, true);
    EXPECT_EQ(NeededBy(0, 0), plain);
    Grid().SetCellFontBold(0, 0, true);
    EXPECT_GT(NeededBy(0, 0).width, plain.width);
    Grid().SetCellFontSize(0, 0, 20);
    EXPECT_GT(NeededBy(0, 0).height, plain.height);
}

TEST_F(FittingTest, AFittedColumnShowsItsTextsWithoutAnEllipsis)
{
    for (const i16 alignment : { i16(0), i16(vxTxtRight), i16(vxTxtCenter) }) {
        SCOPED_TRACE(alignment);
        Grid().SetTextAlignment(3, 1, vxSingleLine | vxWordEllipsis | alignment);
        Grid().SetText(3, 1, u"Wide words AVAVAV, and fi ligatures");
        Grid().AdjustWidth(1);
        const std::vector<ColorRef> shown = PixelsOf(3, 1);
        Grid().SetTextAlignment(3, 1, vxSingleLine | alignment);
        EXPECT_EQ(PixelsOf(3, 1), shown);
        Grid().SetTextAlignment(3, 1, vxSingleLine | vxWordEllipsis | alignment);
        Grid().SetColWidth(1, static_cast<i16>(Grid().ColWidth(1) - 1));
        const std::vector<ColorRef> narrower = PixelsOf(3, 1);
        Grid().SetTextAlignment(3, 1, vxSingleLine | alignment);
        EXPECT_NE(PixelsOf(3, 1), narrower) << "a pixel less, and the text is shortened";
        Grid().SetTextAlignment(3, 1, 0);
    }
}

TEST_F(FittingTest, AFittedRowHoldsTheLinesOfItsTexts)
{
    Grid().SetTextAlignment(2, 1, vxWordBreak);
    Grid().SetText(2, 1, u"more words than one line of the column holds, so there are some of them");
    Grid().AdjustHeight(2);
    EXPECT_EQ(Grid().RowHeight(2), NeededBy(2, 1).height + 1);
    EXPECT_GT(Grid().RowHeight(2), 3 * 14);
    EXPECT_EQ(Grid().RowHeight(3), 21);
}

TEST_F(FittingTest, ARowOfEmptyCellsIsALineHigh)
{
    Grid().SetRowHeight(2, 80);
    Grid().AdjustHeight(2);
    EXPECT_EQ(Grid().RowHeight(2), 19);
}

TEST_F(FittingTest, EventsCarryPublicIndicesAndTheNewSize)
{
    Grid().SetText(2, 1, u"one\rtwo");
    host->ClearLog();
    Grid().AdjustHeight(2);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Said(), ElementsAre("ResizeRow Row=2 NewHeight=33"));
    EXPECT_EQ(Grid().RowHeight(2), 33);
    Grid().AdjustWidth(-1);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Said(), ElementsAre("ResizeCol Col=-1 NewWidth=8"));
    EXPECT_EQ(Grid().ColWidth(-1), 8);
}

TEST_F(FittingTest, AnEventOverrulesTheSize)
{
    handlers.OnResizeCol = [](i16, i16& width) { width = 77; };
    handlers.OnResizeRow = [](i16, i16& height) { height = -20; };
    Grid().AdjustWidth(1);
    Grid().AdjustHeight(2);
    EXPECT_EQ(Grid().ColWidth(1), 77);
    EXPECT_EQ(Grid().RowHeight(2), 0);
}

TEST_F(FittingTest, TheGateIsClosedInTheEvent)
{
    int repaints = -1;
    handlers.OnResizeCol = [&](i16, i16&) {
        host->ClearLog();
        Grid().SetCellBackColor(1, 1, 0xFF);
        repaints = host->Repaints();
    };
    Grid().AdjustWidth(1);
    EXPECT_EQ(repaints, 0);
    EXPECT_EQ(host->Repaints(), 1) << "and open behind it";
}

TEST_F(FittingTest, WithoutRedrawNothingIsPainted)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Widen(1, 1, u"a rather long text for a column");
    Grid().AdjustHeight(1);
    Grid().AutoSizeRows(2);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(Grid().ColWidth(1), NeededBy(1, 1).width);
    EXPECT_EQ(Grid().RowHeight(1), 33);
}

TEST_F(FittingTest, TheFormatOfTheColumnShapesWhatIsMeasured)
{
    Grid().SetText(0, 1, u"1");
    Grid().AdjustWidth(1);
    const int plain = Grid().ColWidth(1);
    Grid().SetColFormat(1, u"0.000000");
    Grid().AdjustWidth(1);
    EXPECT_GT(Grid().ColWidth(1), plain + 30);
}

TEST_F(FittingTest, ATextThatCannotBeFormattedIsItsFormatsError)
{
    Grid().SetColFormat(1, u"0.00");
    Grid().SetText(3, 1, u"1E999");
    const int width = Grid().ColWidth(1);
    const auto error = ErrorOf([&] { Grid().AdjustWidth(1); });
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustHeight(3); }), error);
    EXPECT_EQ(ErrorOf([&] { NeededBy(3, 1); }), error);
    EXPECT_TRUE(!error || Grid().ColWidth(1) == width);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustHeight(2); }), std::nullopt);
}

TEST_F(FittingTest, TheTitleIsLeftOut)
{
    Grid().SetCaptionEnabled(true);
    Grid().SetCaption(u"a title that is much longer than anything else");
    Grid().SetText(1, 0, u"text");
    Grid().AdjustWidth(0, -1);
    EXPECT_EQ(Grid().ColWidth(0), 120) << "alone it does nothing";
    Grid().AdjustWidth(0);
    EXPECT_EQ(Grid().ColWidth(0), NeededBy(1, 0).width);
    Grid().SetRowHeight(-1, 60);
    Grid().AdjustHeight(-1);
    EXPECT_EQ(Grid().RowHeight(-1), 19) << "its row is a row";
}

TEST_F(FittingTest, SplitColumnsAreCutAtTheWholeArea)
{
    Table(20, 12, 1, 1); // with a bar, as a split needs it
    Grid().SetScrollHBar(vxNormalScroll);
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(1);
    ASSERT_EQ(Grid().SplitCols(), 1);
    Widen(1, 0, std::u16string(200, u'm'));
    EXPECT_EQ(Grid().ColWidth(0), 640 - 30);
    Grid().SetColWidth(0, 120);
    Widen(1, 2, std::u16string(200, u'm'));
    EXPECT_EQ(Grid().ColWidth(2), 640 - 30 - 120);
}

TEST_F(FittingTest, SmoothScrollingLetsAColumnGrow)
{
    Grid().SetScrollHBar(vxScrollSmooth);
    Widen(1, 2, std::u16string(200, u'm'));
    EXPECT_GT(Grid().ColWidth(2), 1000);
    EXPECT_EQ(Grid().ColWidth(2), NeededBy(1, 2).width);
    EXPECT_TRUE(Grid().IsVisibleScrollH());
}

TEST_F(FittingTest, HiddenLinesTakeTheSizeWhenTheyAreShown)
{
    Grid().SetText(2, 1, u"one\rtwo\rthree");
    Grid().HideRow(2);
    Grid().AdjustHeight(2);
    EXPECT_EQ(Grid().RowHeight(2), 0);
    Grid().ShowRow(2);
    EXPECT_EQ(Grid().RowHeight(2), 3 * 14 + 5);
    Grid().HideCol(1);
    Grid().AdjustWidth(1, 2);
    Grid().ShowCol(1);
    EXPECT_EQ(Grid().ColWidth(1), NeededBy(2, 1).width);
}

TEST_F(FittingTest, AllRowsTakeSomeLines)
{
    Grid().HideRow(3);
    Grid().AutoSizeRows(3);
    EXPECT_EQ(Grid().DefaultHeight(), 3 * 14 + 5);
    EXPECT_EQ(Grid().RowHeight(2), 3 * 14 + 5);
    EXPECT_EQ(Grid().RowHeight(3), 0);
    EXPECT_EQ(Grid().RowHeight(-1), 21);
    Grid().ShowRow(3);
    EXPECT_EQ(Grid().RowHeight(3), 3 * 14 + 5);
    Grid().SetRows(21);
    EXPECT_EQ(Grid().RowHeight(20), 3 * 14 + 5) << "new ones as well";
    EXPECT_EQ(host->Count("ResizeRow"), 0);
}

TEST_F(FittingTest, AllRowsFollowTheControlsFont)
{
    Grid().SetFont(MakeFont(u"DejaVu Sans", 18));
    Grid().AutoSizeRows(1);
    EXPECT_THAT(Grid().RowHeight(0), AllOf(Gt(28), Lt(40)));
}

TEST_F(FittingTest, AnIndexLeftOutIsNoneAndOthersAreTested)
{
    Grid().SetText(2, 1, u"one\rtwo");
    Grid().AdjustHeight(2, NoIndex);
    EXPECT_EQ(Grid().RowHeight(2), 33);
    Grid().AdjustHeight(2, 0);
    EXPECT_EQ(Grid().RowHeight(2), 19);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustHeight(2, -32768); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustWidth(1, -32768); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustHeight(32767); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustWidth(-2); }), 9);
    EXPECT_EQ(ErrorOf([&] { NeededBy(30, 0); }), 9);
}

TEST_F(FittingTest, AnEmptyTableStaysEmpty)
{
    Table(0, 0);
    Grid().AdjustHeight(0);
    Grid().AdjustWidth(0);
    Grid().AutoSizeRows(2);
    EXPECT_EQ(host->Count("ResizeRow") + host->Count("ResizeCol"), 0);
    EXPECT_EQ(Grid().DefaultHeight(), 33);
}

TEST_F(FittingTest, TheLongestTableIsFitted)
{
    Table(32767, 1);
    Grid().SetText(32766, 0, u"the last text of all, and the longest");
    Grid().AdjustWidth(0);
    EXPECT_EQ(Grid().ColWidth(0), NeededBy(32766, 0).width);
    Grid().AutoSizeRows(2);
    EXPECT_EQ(Grid().RowHeight(32766), 33);
}

TEST_F(FittingTest, AnOpenEditorIsClosed)
{
    Grid().SetColMode(1, vxTextBox);
    Grid().CurrentPos(1, 1);
    Grid().EnterEdit();
    ASSERT_TRUE(Grid().IsEditMode());
    Grid().AdjustWidth(1);
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(host->Count("AfterEdit"), 1);
}

TEST_F(FittingTest, AHandlerMayTakeTheLineAway)
{
    handlers.OnResizeCol = [this](i16, i16&) { Grid().SetCols(1); };
    Grid().AdjustWidth(4);
    EXPECT_EQ(Grid().Cols(), 1);
    handlers.OnResizeRow = [this](i16, i16&) {
        Grid().SetRows(0);
        Grid().SetFixedRows(0);
    };
    Grid().AdjustHeight(15);
    EXPECT_EQ(Grid().Rows(), 0);
}

TEST_F(FittingTest, AHandlerMayFitOtherLines)
{
    Grid().SetText(1, 1, u"some text");
    Grid().SetText(1, 2, u"some other text");
    handlers.OnResizeCol = [this](i16 Col, i16&) {
        if (Col == 1)
            Grid().AdjustWidth(2);
    };
    Grid().AdjustWidth(1);
    EXPECT_EQ(Grid().ColWidth(1), NeededBy(1, 1).width);
    EXPECT_EQ(Grid().ColWidth(2), NeededBy(1, 2).width);
}

TEST_F(FittingTest, AHandlerMayCloseTheControl)
{
    handlers.OnResizeCol = [this](i16, i16&) { host->Close(); };
    Grid().AdjustWidth(1);
    EXPECT_TRUE(Grid().IsTerminated());
    Make({});
    Table(20, 5, 1, 1);
    handlers.OnResizeRow = [this](i16, i16&) { host->Close(); };
    Grid().AdjustHeight(1);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(FittingTest, AFixedRowMayTakeAllOfTheWindow)
{
    Grid().SetText(-1, 0, std::u16string(100, u'\r'));
    Grid().AdjustHeight(-1);
    EXPECT_EQ(Grid().RowHeight(-1), 480);
    Grid().SetText(0, 0, std::u16string(100, u'\r'));
    Grid().SetRowHeight(-1, 21);
    Grid().AdjustHeight(0);
    EXPECT_EQ(Grid().RowHeight(0), 480 - 21);
}

TEST_F(FittingTest, TheScaleChangesNoSize)
{
    Widen(2, 1, u"measured in logical pixels");
    const i16 width = Grid().ColWidth(1);
    for (const double scale : { 1.25, 1.5, 2.0 }) {
        HeadlessOptions options;
        options.scale = scale;
        Make(options);
        Table(20, 5, 1, 1);
        Widen(2, 1, u"measured in logical pixels");
        EXPECT_EQ(Grid().ColWidth(1), width) << scale;
    }
}

} // namespace
} // namespace vornix
