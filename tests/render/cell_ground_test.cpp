// Ground, alternate colours, background picture and selection.
#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

bool Always(const Cell&, int, int, bool)
{
    return true;
}

class CellGroundTest : public testing::Test {
protected:
    FakePaintTable table { { 50, 20 }, 0, 1, 0, 1 };
};

TEST_F(CellGroundTest, AnEmptyCellIsItsColour)
{
    table.BackColor(0, 0, 0x123456);
    EXPECT_THAT(table.CellLines(), ElementsAre("FillRect 0,0,50,20 #123456"));
}

TEST_F(CellGroundTest, SystemColoursAreTranslated)
{
    table.BackColor(0, 0, 0x8000000F);
    EXPECT_THAT(table.CellLines(), ElementsAre("FillRect 0,0,50,20 #F0F0F0"));
}

TEST_F(CellGroundTest, AGradientTakesThePlaceOfTheColour)
{
    table.BackColor(0, 0, 0x0000FF);
    table.Format(0, 0, [](CellFormat& format) { format.GradientMode = vxGradientTB; });
    EXPECT_THAT(table.CellLines(), ElementsAre("GradientFill 0,0:FF00/0000/0000 50,20:CC00/0000/0000 vertical"));
}

class AlternateTest : public testing::Test {
protected:
    FakePaintTable table { { 80, 85 }, 1, 3, 1, 1 };

    AlternateTest()
    {
        table.pipeline.Settings.AltColorEnabled = true;
        table.pipeline.Settings.AltBkColor = 0xEEEEEE;
        table.pipeline.Settings.AltForeColor = 0x0000EE;
    }
    int Fills(const std::string& color)
    {
        table.ClearJournal();
        table.pipeline.RepaintGrid();
        return table.screen->Count("FillRect 0,0,50,20 #" + color);
    }
};

TEST_F(AlternateTest, OddRowsBehindTheFixedOnesTakeTheAlternateColour)
{
    EXPECT_EQ(Fills("EEEEEE"), 1); // internal row 2
    EXPECT_EQ(Fills("FFFFFF"), 2);
}

TEST_F(AlternateTest, FixedCellsDoNot)
{
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.screen->Count("FillRect 0,0,30,20 #F0F0F0"), 3);
}

TEST_F(AlternateTest, AColourOfItsOwnIsNeverReplaced)
{
    table.BackColor(2, 1, 0x112233);
    EXPECT_EQ(Fills("EEEEEE"), 0);
    EXPECT_EQ(Fills("112233"), 1);
}

TEST_F(AlternateTest, AColourThatEqualsTheDefaultIsReplaced)
{
    table.BackColor(2, 1, 0xFFFFFF); // the window colour, written as a plain one
    EXPECT_EQ(Fills("EEEEEE"), 1);
}

TEST_F(AlternateTest, HiddenRowsCount)
{
    HiddenLines(table.store).HideRow(2);
    EXPECT_EQ(Fills("EEEEEE"), 0);
    EXPECT_EQ(Fills("FFFFFF"), 2);
}

TEST_F(AlternateTest, NothingHappensWhileItIsOff)
{
    table.pipeline.Settings.AltColorEnabled = false;
    EXPECT_EQ(Fills("EEEEEE"), 0);
}

TEST_F(AlternateTest, AGradientIgnoresIt)
{
    table.Format(2, 1, [](CellFormat& format) { format.GradientMode = vxGradientLR; });
    EXPECT_EQ(Fills("EEEEEE"), 0);
    EXPECT_EQ(table.screen->Count("GradientFill"), 1);
}

TEST_F(AlternateTest, TextTakesTheAlternateColourOnlyInThePlaceOfTheDefault)
{
    table.SetText(1, 1, u"a");
    table.SetText(2, 1, u"b");
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.screen->Count("SetTextColor #0000EE"), 1);
    EXPECT_EQ(table.screen->Count("SetTextColor #000000"), 1);
    table.Format(2, 1, [](CellFormat& format) { format.ForeColor = 0x445566; });
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.screen->Count("SetTextColor #445566"), 1);
    EXPECT_EQ(table.screen->Count("SetTextColor #0000EE"), 0);
}

class BackgroundTest : public testing::Test {
protected:
    // Cells of 50 x 20 behind a header of 25 and a column of 30; the background is mem4.
    FakePaintTable table { { 130, 65 }, 1, 2, 1, 2 };

    BackgroundTest() { table.pipeline.SetPicture(SolidPicture(8, 8)); }
    // What is copied from the background into the cells, in paint order.
    std::vector<std::string> Copies(const std::string& operation)
    {
        const std::string source = "from mem4 ";
        std::vector<std::string> found;
        table.ClearJournal();
        table.pipeline.RepaintGrid();
        for (const std::string& line : table.Journal()) {
            if (line.find(operation) != std::string::npos && line.find(source) != std::string::npos)
                found.push_back(line.substr(line.find(' ') + 1));
        }
        return found;
    }
};

TEST_F(BackgroundTest, LiesUnderDefaultCellsAsOnePictureBehindTheTable)
{
    EXPECT_THAT(Copies("BitBlt"),
        ElementsAre("0,0,50,20 from mem4 0,0 SRCCOPY", "0,0,50,20 from mem4 50,0 SRCCOPY",
            "0,0,50,20 from mem4 0,20 SRCCOPY", "0,0,50,20 from mem4 50,20 SRCCOPY"));
}

TEST_F(BackgroundTest, CanBeginAnewInEachRowColumnOrCell)
{
    table.pipeline.Settings.PictureMode = vxPicRow;
    EXPECT_EQ(Copies("BitBlt").back(), "0,0,50,20 from mem4 50,0 SRCCOPY");
    table.pipeline.Settings.PictureMode = vxPicColumn;
    EXPECT_EQ(Copies("BitBlt").back(), "0,0,50,20 from mem4 0,20 SRCCOPY");
    table.pipeline.Settings.PictureMode = vxPicCell;
    EXPECT_EQ(Copies("BitBlt").back(), "0,0,50,20 from mem4 0,0 SRCCOPY");
}

TEST_F(BackgroundTest, FixedCellsNeverShowIt)
{
    EXPECT_EQ(Copies("BitBlt").size(), 4u); // of nine cells
}

TEST_F(BackgroundTest, GoesWhereTheVisiblePartBegins)
{
    table.Span(1, 1, 2, 1);
    table.scroll.SetFirstRow(2);
    EXPECT_THAT(Copies("BitBlt"), Contains("0,20,50,60 from mem4 0,0 SRCCOPY"));
}

TEST_F(BackgroundTest, AColouredCellHidesItAtFullOpacity)
{
    table.BackColor(1, 1, 0x112233);
    EXPECT_EQ(Copies("BitBlt").size(), 3u);
    EXPECT_EQ(Copies("AlphaBlend").size(), 0u);
}

TEST_F(BackgroundTest, ItShowsThroughAColouredCellBelowFullOpacity)
{
    table.BackColor(1, 1, 0x112233);
    table.pipeline.Settings.Opacity = 40;
    EXPECT_THAT(Copies("AlphaBlend"), ElementsAre("0,0,50,20 from mem4 0,0,50,20 102"));
}

TEST_F(BackgroundTest, AnAlternateRowCountsAsColoured)
{
    table.pipeline.Settings.AltColorEnabled = true;
    table.pipeline.Settings.AltBkColor = 0xEEEEEE;
    table.pipeline.Settings.Opacity = 50;
    EXPECT_EQ(Copies("AlphaBlend").size(), 2u);
}

TEST_F(BackgroundTest, AGradientCountsAsColoured)
{
    table.Format(1, 1, [](CellFormat& format) { format.GradientMode = vxGradientLR; });
    EXPECT_EQ(Copies("BitBlt").size(), 3u);
}

TEST_F(BackgroundTest, AFailedBlendIsTriedAgainWithWhatLiesInTheClientArea)
{
    FakePaintTable narrow({ 40, 15 }, 0, 1, 0, 1);
    narrow.pipeline.SetPicture(SolidPicture(8, 8));
    narrow.BackColor(0, 0, 0x112233);
    narrow.pipeline.Settings.Opacity = 50;
    narrow.screen->alphaBlendFailures = 1;
    narrow.ClearJournal();
    narrow.pipeline.RepaintGrid();
    EXPECT_EQ(narrow.screen->Count("AlphaBlend 0,0,50,20 from mem4 0,0,50,20 127"), 1);
    EXPECT_EQ(narrow.screen->Count("AlphaBlend 0,0,40,15 from mem4 0,0,40,15 127"), 1);
}

TEST_F(BackgroundTest, ASecondFailureLeavesTheGround)
{
    table.BackColor(1, 1, 0x112233);
    table.pipeline.Settings.Opacity = 50;
    table.screen->alphaBlendFailures = 2;
    EXPECT_EQ(Copies("AlphaBlend").size(), 2u);
    EXPECT_TRUE(table.pipeline.Repainted());
}

class SelectionTest : public testing::Test {
protected:
    FakePaintTable table { { 50, 20 }, 0, 1, 0, 1 };

    SelectionTest()
    {
        table.interaction.selected = Always;
        table.pipeline.Settings.BackColorSel = 0x0000AA;
        table.pipeline.Settings.ForeColorSel = 0x00BB00;
        table.SetText(0, 0, u"a");
    }
};

TEST_F(SelectionTest, CoversTheGroundAtFullOpacity)
{
    EXPECT_THAT(table.CellLines(), Contains("FillRect 0,0,50,20 #0000AA"));
    EXPECT_EQ(table.screen->Count("AlphaBlend"), 0);
}

TEST_F(SelectionTest, IsBlendedBelowFullOpacity)
{
    table.pipeline.Settings.Opacity = 30;
    const std::vector<std::string> lines = table.CellLines();
    EXPECT_THAT(lines, Contains("AlphaBlend 0,0,50,20 from mem3 0,0,50,20 76"));
    EXPECT_EQ(table.screen->Count("mem3.FillRect 0,0,50,20 #0000AA"), 1);
}

TEST_F(SelectionTest, ManyCellsShareOneFill)
{
    FakePaintTable many({ 200, 100 }, 0, 5, 0, 4);
    many.interaction.selected = Always;
    many.pipeline.Settings.BackColorSel = 0x0000AA;
    many.pipeline.Settings.Opacity = 30;
    many.pipeline.RepaintGrid();
    EXPECT_EQ(many.screen->Count("AlphaBlend"), 20);
    EXPECT_EQ(many.screen->Count("#0000AA"), 1);
}

TEST_F(SelectionTest, AFailedBlendIsTriedAgain)
{
    table.pipeline.Settings.Opacity = 30;
    table.screen->alphaBlendFailures = 1;
    table.CellLines();
    EXPECT_EQ(table.screen->Count("AlphaBlend"), 2);
}

TEST_F(SelectionTest, TextTakesTheSelectionsColour)
{
    EXPECT_THAT(table.CellLines(), Contains("SetTextColor #00BB00"));
}

TEST_F(SelectionTest, FixedCellsAreNeverSelected)
{
    FakePaintTable fixed({ 80, 45 }, 1, 1, 1, 1);
    std::vector<CellIndex> asked;
    fixed.interaction.selected = [&](const Cell&, int row, int col, bool) {
        asked.push_back({ row, col });
        return true;
    };
    fixed.pipeline.RepaintGrid();
    EXPECT_THAT(asked, ElementsAre(CellIndex { 1, 1 }));
}

TEST_F(SelectionTest, TheCellIsHandedOverForItsSpan)
{
    FakePaintTable spanned({ 100, 20 }, 0, 1, 0, 2);
    spanned.Span(0, 0, 1, 2);
    int width = 0;
    spanned.interaction.selected = [&](const Cell& cell, int, int, bool printing) {
        width = cell.ColSpan();
        return printing;
    };
    spanned.pipeline.RepaintGrid();
    EXPECT_EQ(width, 2);
    EXPECT_EQ(spanned.screen->Count("#D77800"), 0);
}

TEST_F(SelectionTest, TheBackgroundPictureIsHiddenAtFullOpacityAndShowsThroughBelow)
{
    table.pipeline.SetPicture(SolidPicture(8, 8));
    std::vector<std::string> lines = table.CellLines();
    ASSERT_GE(lines.size(), 1u);
    EXPECT_EQ(lines[0], "FillRect 0,0,50,20 #0000AA") << "what it would cover is not drawn at all";
    table.pipeline.Settings.Opacity = 50;
    lines = table.CellLines();
    ASSERT_GE(lines.size(), 3u);
    EXPECT_TRUE(lines[1].starts_with("BitBlt 0,0,50,20 from"));
    EXPECT_TRUE(lines[2].starts_with("AlphaBlend 0,0,50,20 from"));
}

} // namespace
} // namespace vornix
