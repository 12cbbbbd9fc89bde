// Frames, pressed look, grid lines, focus: what lies over the content, and in which order.
#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class CellLookTest : public testing::Test {
protected:
    FakePaintTable table { { 50, 20 }, 0, 1, 0, 1 };

    CellLookTest()
    {
        table.BackColor(0, 0, 0xC0C0C0);
        table.Format(0, 0, [](CellFormat& format) {
            format.LightShade = 0xEEEEEE;
            format.BorderColor = 0x808080;
            format.DarkShade = 0x404040;
        });
        table.store.RowAt(0).LineColor = 0x111111;
        table.store.ColumnAt(0).LineColor = 0x222222;
        table.pipeline.Settings.GridLines = vxBoth;
    }
    void Style(i32 style, i32 mode = vxCellFixed)
    {
        table.Format(0, 0, [&](CellFormat& format) {
            format.Style = style;
            format.Mode = mode;
        });
    }
    void Press() { table.interaction.pressed = { 0, 0 }; }
    void Latch() { table.store.EditCell(0, 0).SetButtonPressed(true); }
    bool HasGridLines()
    {
        table.CellLines();
        return table.screen->Count("SelectPen #111111 1") == 1;
    }
};

TEST_F(CellLookTest, AFlatCellIsGroundTextAndGridLines)
{
    table.SetText(0, 0, u"ab");
    EXPECT_THAT(table.CellLines(),
        ElementsAre("FillRect 0,0,50,20 #C0C0C0", "SelectFont DejaVu Sans -12 400 1", "SetTextColor #000000",
            "SetBkMode transparent", "DrawText \"ab\" 4,2,46,17 800", "SelectPen #111111 1", "MoveTo 0,19",
            "LineTo 49,19", "SelectPen #222222 1", "MoveTo 49,19", "LineTo 49,-1"));
}

TEST_F(CellLookTest, GridLinesCanBeRowsColumnsOrNone)
{
    table.pipeline.Settings.GridLines = vxRow;
    EXPECT_THAT(table.CellLines(), Not(Contains("SelectPen #222222 1")));
    table.pipeline.Settings.GridLines = vxColumn;
    EXPECT_THAT(table.CellLines(), Not(Contains("SelectPen #111111 1")));
    table.pipeline.Settings.GridLines = vxNone;
    EXPECT_THAT(table.CellLines(), ElementsAre("FillRect 0,0,50,20 #C0C0C0"));
}

TEST_F(CellLookTest, GridLinesHaveTheirWidth)
{
    table.pipeline.Settings.GridLineWidth = 3;
    EXPECT_THAT(table.CellLines(), Contains("SelectPen #111111 3"));
}

TEST_F(CellLookTest, FixedCellsHaveTheSameLines)
{
    FakePaintTable fixed({ 30, 20 }, 0, 1, 1, 0);
    fixed.pipeline.Settings.GridLines = vxRow;
    fixed.Format(0, 0, [](CellFormat& format) { format.Style = vxCellFlat; });
    EXPECT_THAT(fixed.CellLines(), Contains("LineTo 30,19"));
}

TEST_F(CellLookTest, RaisedButtonAndInsetCellsGetNoGridLines)
{
    for (const i32 style : { vxCellRaised, vxCellButton, vxCellInset }) {
        Style(style);
        EXPECT_FALSE(HasGridLines()) << style;
    }
    Style(vxCellInset);
    EXPECT_THAT(table.CellLines(), ElementsAre("FillRect 0,0,50,20 #C0C0C0", "DrawEdge 0,0,50,20 2 F"));
}

TEST_F(CellLookTest, ShadesOfTheFormatColourTheEdges)
{
    Style(vxCellButton);
    EXPECT_THAT(table.CellLines(), Contains("SelectPen #EEEEEE 1"));
    EXPECT_THAT(table.CellLines(), Contains("SelectPen #808080 1"));
    EXPECT_THAT(table.CellLines(), Contains("SelectPen #404040 1"));
}

TEST_F(CellLookTest, BoxesKeepTheirGridLines)
{
    Style(vxCellBox);
    EXPECT_TRUE(HasGridLines());
    EXPECT_THAT(table.CellLines(), Contains("FrameRect 0,0,49,19 #808080"));
}

TEST_F(CellLookTest, ARoundBoxIsSurroundedClippedFramedAndLined)
{
    Style(vxCellRoundBox);
    table.pipeline.Settings.BackColor = 0x99AABB;
    EXPECT_THAT(table.CellLines(),
        ElementsAre("FillRect 0,0,50,20 #99AABB", "SetClip 0,0,49,19", "FillRect 0,0,50,20 #C0C0C0",
            "FrameRect 0,0,49,19 #808080", "SetPixel 0,0 #99AABB", "SetPixel 48,0 #99AABB", "SetPixel 0,18 #99AABB",
            "SetPixel 48,18 #99AABB", "SelectPen #111111 1", "MoveTo 0,19", "LineTo 49,19", "SelectPen #222222 1",
            "MoveTo 49,19", "LineTo 49,-1"));
}

TEST_F(CellLookTest, AVerticalGradientInARoundBoxIsMendedAtItsLeftUnlessSelected)
{
    Style(vxCellRoundBox);
    table.Format(0, 0, [](CellFormat& format) { format.GradientMode = vxGradientTB; });
    EXPECT_THAT(table.CellLines(), Contains("SelectPen #C0C0C0 1"));
    EXPECT_THAT(table.CellLines(), Contains("LineTo 2,17"));
    table.interaction.selected = [](const Cell&, int, int, bool) { return true; };
    EXPECT_THAT(table.CellLines(), Not(Contains("LineTo 2,17")));
    table.interaction.selected = nullptr;
    table.Format(0, 0, [](CellFormat& format) { format.GradientMode = vxGradientBT; });
    EXPECT_THAT(table.CellLines(), Not(Contains("LineTo 2,17")));
}

TEST_F(CellLookTest, APressedCommandButtonShiftsItsContentAndIsFramed)
{
    Style(vxCellButton, vxCommandButton);
    Press();
    EXPECT_THAT(table.CellLines(),
        ElementsAre(
            "FillRect 0,0,50,20 #C0C0C0", "BitBlt 1,1,49,19 from mem2 0,0 SRCCOPY", "FrameRect 0,0,50,20 #808080"));
}

TEST_F(CellLookTest, APressedPressButtonIsSunken)
{
    Style(vxCellButton, vxPressButton);
    Press();
    EXPECT_THAT(table.CellLines(),
        ElementsAre("FillRect 0,0,50,20 #C0C0C0", "BitBlt 1,1,49,19 from mem2 0,0 SRCCOPY", "SelectPen #808080 1",
            "MoveTo 0,19", "LineTo 0,0", "LineTo 50,0", "SelectPen #EEEEEE 1", "MoveTo 0,19", "LineTo 49,19",
            "LineTo 49,-1"));
}

TEST_F(CellLookTest, APressedRoundBoxKeepsItsFrameWithoutTheMendedSide)
{
    Style(vxCellRoundBox, vxCommandButton);
    table.Format(0, 0, [](CellFormat& format) { format.GradientMode = vxGradientTB; });
    Press();
    const std::vector<std::string> lines = table.CellLines();
    EXPECT_THAT(lines, Contains("FrameRect 0,0,49,19 #808080"));
    EXPECT_THAT(lines, Contains(StartsWith("SetPixel 48,18")));
    EXPECT_THAT(lines, Each(Not(StartsWith("SelectPen"))));
}

TEST_F(CellLookTest, OnlyButtonsLookPressed)
{
    Style(vxCellFlat, vxTextBox);
    Press();
    EXPECT_THAT(table.CellLines(), Each(Not(StartsWith("BitBlt 1,1"))));
}

TEST_F(CellLookTest, ATransientPressDropsTheGridLinesOfAFlatCell)
{
    Style(vxCellFlat, vxPressButton);
    Press();
    EXPECT_FALSE(HasGridLines());
}

TEST_F(CellLookTest, ALatchedPressOnAFlatCellKeepsThem)
{
    Style(vxCellFlat, vxPressButton);
    Latch();
    EXPECT_TRUE(HasGridLines());
    Press();
    EXPECT_TRUE(HasGridLines());
}

TEST_F(CellLookTest, ALatchedPressOnAnyOtherCellDropsThem)
{
    for (const i32 style : { vxCellInset, vxCellRaised, vxCellButton, vxCellBox, vxCellRoundBox }) {
        Style(style, vxPressButton);
        Latch();
        EXPECT_FALSE(HasGridLines()) << style;
        EXPECT_EQ(table.screen->Count("DrawEdge"), 0) << style;
    }
}

TEST_F(CellLookTest, ALatchedPressNeedsNoButton)
{
    Style(vxCellFlat, vxTextBox);
    Latch();
    EXPECT_THAT(table.CellLines(), Contains("FrameRect 0,0,50,20 #808080"));
}

TEST_F(CellLookTest, APressedCellIsComposedOnPixelsOfItsOwn)
{
    Style(vxCellButton, vxCommandButton);
    Press();
    table.CellLines();
    EXPECT_EQ(table.screen->surfacesAlive, 2);
    EXPECT_THAT(table.StoreLines(),
        ElementsAre("CreateCompatible 50x20 at 0,0 mem2", "BitBlt 0,0,50,20 from mem2 0,0 SRCCOPY"));
}

TEST_F(CellLookTest, AHostsBorderColourMayFollowTheSystem)
{
    Style(vxCellBox);
    table.Format(0, 0, [](CellFormat& format) { format.BorderColor = 0x80000010; });
    EXPECT_THAT(table.CellLines(), Contains("FrameRect 0,0,49,19 #A0A0A0"));
}

class FocusTest : public testing::Test {
protected:
    FakePaintTable table { { 80, 45 }, 1, 1, 1, 1 };

    FocusTest()
    {
        table.interaction.current = { 1, 1 };
        table.pipeline.Settings.FocusRect = vxFocusLight;
        table.SetText(1, 1, u"a");
    }
    std::vector<std::string> Marks()
    {
        table.ClearJournal();
        table.pipeline.RepaintGrid();
        std::vector<std::string> marks;
        for (const std::string& line : table.StoreLines()) {
            if (line.starts_with("DrawFocusRect "))
                marks.push_back(line.substr(14));
        }
        return marks;
    }
};

TEST_F(FocusTest, ALightMarkLeavesOutTheGridLines)
{
    EXPECT_THAT(Marks(), ElementsAre("30,25,79,44"));
}

TEST_F(FocusTest, AHeavyMarkIsTwoRectangles)
{
    table.pipeline.Settings.FocusRect = vxFocusHeavy;
    EXPECT_THAT(Marks(), ElementsAre("30,25,79,44", "31,26,78,43"));
}

TEST_F(FocusTest, NoMarkWithoutOne)
{
    table.pipeline.Settings.FocusRect = vxFocusNone;
    EXPECT_THAT(Marks(), ElementsAre());
}

TEST_F(FocusTest, ItLiesOnTheTargetBehindTheCopy)
{
    Marks();
    const std::vector<std::string> lines = table.StoreLines();
    EXPECT_TRUE(lines.back().starts_with("DrawFocusRect"));
    EXPECT_TRUE(lines[lines.size() - 2].starts_with("BitBlt 30,25,80,45"));
}

TEST_F(FocusTest, NoneWhileEditingOrSuppressed)
{
    table.interaction.editing = true;
    EXPECT_THAT(Marks(), ElementsAre());
    table.interaction.editing = false;
    table.interaction.suppressesFocus = true;
    EXPECT_THAT(Marks(), ElementsAre());
}

TEST_F(FocusTest, FixedCellsGetNone)
{
    table.interaction.current = { 0, 1 };
    EXPECT_THAT(Marks(), ElementsAre());
    table.interaction.current = { 1, 0 };
    EXPECT_THAT(Marks(), ElementsAre());
}

TEST_F(FocusTest, ASelectingFocusPutsTheTextAloneOnABlock)
{
    table.pipeline.Settings.FocusRect = vxFocusSelect;
    table.pipeline.Settings.BackColorSel = 0x0000AA;
    table.pipeline.Settings.ForeColorSel = 0x00BB00;
    EXPECT_THAT(Marks(), ElementsAre());
    EXPECT_EQ(table.screen->Count("SetTextColor #00BB00"), 1);
    EXPECT_EQ(table.screen->Count("SetBkColor #0000AA"), 1);
    EXPECT_EQ(table.screen->Count("SetBkMode opaque"), 1);
    EXPECT_EQ(table.screen->Count("FillRect 0,0,50,20 #FFFFFF"), 1);
    EXPECT_EQ(table.screen->Count("FillRect 0,0,50,20 #0000AA"), 0);
}

TEST_F(FocusTest, AClippedCellIsMarkedWhereItShows)
{
    FakePaintTable clipped({ 50, 30 }, 0, 4, 0, 1);
    clipped.Span(0, 0, 3, 1);
    clipped.scroll.SetFirstRow(2);
    clipped.interaction.current = { 0, 0 };
    clipped.pipeline.Settings.FocusRect = vxFocusLight;
    clipped.ClearJournal();
    clipped.pipeline.RepaintGrid();
    EXPECT_THAT(clipped.StoreLines(), Contains("DrawFocusRect 0,0,49,19"));
}

} // namespace
} // namespace vornix
