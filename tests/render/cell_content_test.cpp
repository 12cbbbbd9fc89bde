// Text, check boxes and pictures in cells.
#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class CellContentTest : public testing::Test {
protected:
    FakePaintTable table { { 50, 20 }, 0, 1, 0, 1 };

    void Align(i32 alignment)
    {
        table.Format(0, 0, [&](CellFormat& format) { format.TextAlignment = alignment; });
    }
    // The last DrawText call, which draws rather than measures.
    std::string Drawn()
    {
        std::string drawn;
        for (const std::string& line : table.CellLines()) {
            if (line.starts_with("DrawText "))
                drawn = line.substr(9);
        }
        return drawn;
    }
    std::string BoxState(std::u16string_view text)
    {
        table.SetText(0, 0, text);
        for (const std::string& line : table.CellLines()) {
            if (line.starts_with("DrawFrameControl"))
                return line;
        }
        return {};
    }
};

TEST_F(CellContentTest, TextIsMeasuredBeforeItIsPlacedVertically)
{
    table.SetText(0, 0, u"ab");
    Align(vxTxtVCenter | vxNoPrefix);
    const std::vector<std::string> lines = table.CellLines();
    EXPECT_THAT(lines, Contains("DrawText \"ab\" 4,2,46,17 C00"));
    EXPECT_EQ(Drawn(), "\"ab\" 4,2,46,17 800"); // (20 - 15) / 2
    Align(vxTxtBottom | vxTxtRight);
    EXPECT_EQ(Drawn(), "\"ab\" 4,4,46,17 2"); // 20 - (15 + 1)
}

TEST_F(CellContentTest, MarginsMoveTheText)
{
    table.SetText(0, 0, u"ab");
    table.Format(0, 0, [](CellFormat& format) {
        format.TextMarginLeft = 5;
        format.TextMarginRight = 7;
    });
    EXPECT_EQ(Drawn(), "\"ab\" 9,2,39,17 800");
}

TEST_F(CellContentTest, AClippedCellKeepsAlwaysTopTextInSight)
{
    FakePaintTable clipped({ 50, 60 }, 0, 5, 0, 1);
    clipped.Span(0, 0, 4, 1);
    clipped.SetText(0, 0, u"ab");
    clipped.scroll.SetFirstRow(2);
    clipped.ClearJournal();
    clipped.pipeline.RepaintGrid();
    EXPECT_GE(clipped.screen->Count("DrawText \"ab\" 4,2,46,77 800"), 1);
    clipped.Format(0, 0, [](CellFormat& format) { format.TextAlignment = vxAlwaysTop; });
    clipped.ClearJournal();
    clipped.pipeline.RepaintGrid();
    EXPECT_GE(clipped.screen->Count("DrawText \"ab\" 4,41,46,77 0"), 1);
}

TEST_F(CellContentTest, AlwaysCentredTextFollowsTheRoomInTheClientArea)
{
    FakePaintTable low({ 50, 50 }, 0, 5, 0, 1);
    low.Span(0, 0, 4, 1);
    low.SetText(0, 0, u"ab");
    low.Format(0, 0, [](CellFormat& format) { format.TextAlignment = vxAlwaysVCenter; });
    low.ClearJournal();
    low.pipeline.RepaintGrid();
    EXPECT_EQ(low.screen->Count("DrawText \"ab\" 4,25,46,50 0"), 1);
}

TEST_F(CellContentTest, TheFontIsTheCellsOwn)
{
    table.SetText(0, 0, u"a");
    table.Format(0, 0, [](CellFormat& format) {
        format.FontName = FontName(u"Serif");
        format.FontSize = 14;
        format.FontBold = format.FontItalic = format.FontUnderline = format.FontStrikeThrough = true;
        format.FontCharset = 177;
    });
    EXPECT_THAT(table.CellLines(), Contains("SelectFont Serif -19 700 italic underline strikeout 177"));
}

TEST_F(CellContentTest, AColumnsFormatShapesTheText)
{
    table.SetText(0, 0, u"1234.5");
    table.store.ColumnAt(0).Format = u"#,##0.00";
    EXPECT_EQ(Drawn(), "\"1,234.50\" 4,2,46,17 800");
}

TEST_F(CellContentTest, AnEmptyTextDrawsNothing)
{
    EXPECT_THAT(table.CellLines(), Each(Not(StartsWith("SelectFont"))));
}

TEST_F(CellContentTest, TheCaptionKeepsItsColourWhenSelected)
{
    FakePaintTable caption({ 50, 25 }, 1, 0, 0, 1);
    caption.layout.Settings.CaptionEnabled = true;
    caption.SetText(0, 0, u"Title");
    caption.interaction.selected = [](const Cell&, int, int, bool) { return true; };
    EXPECT_THAT(caption.CellLines(), Contains("SetTextColor #000000"));
}

TEST_F(CellContentTest, DisabledTextKeepsItsColour)
{
    table.SetText(0, 0, u"a");
    table.Format(0, 0, [](CellFormat& format) { format.Disabled = true; });
    EXPECT_THAT(table.CellLines(), Contains("SetTextColor #000000"));
}

TEST_F(CellContentTest, ModesWithEditorsPaintAsText)
{
    table.SetText(0, 0, u"a");
    for (const i32 mode :
        { vxCellFixed, vxCommandButton, vxTextBox, vxComboDropDownBox, vxComboListBox, vxCustom, vxPressButton }) {
        table.Format(0, 0, [&](CellFormat& format) { format.Mode = mode; });
        EXPECT_EQ(Drawn(), "\"a\" 4,2,46,17 800") << mode;
    }
}

TEST_F(CellContentTest, ACheckBoxShowsWhetherTheTextIsTrue)
{
    table.Format(0, 0, [](CellFormat& format) { format.Mode = vxCheckBox; });
    EXPECT_EQ(BoxState(u"-1"), "DrawFrameControl 2,2,15,15 4 4400");
    EXPECT_EQ(BoxState(u"True"), "DrawFrameControl 2,2,15,15 4 4400");
    EXPECT_EQ(BoxState(u"0.5"), "DrawFrameControl 2,2,15,15 4 4400");
    EXPECT_EQ(BoxState(u"0"), "DrawFrameControl 2,2,15,15 4 4000");
    EXPECT_EQ(BoxState(u""), "DrawFrameControl 2,2,15,15 4 4000");
    EXPECT_EQ(BoxState(u"perhaps"), "DrawFrameControl 2,2,15,15 4 4000");
    EXPECT_EQ(table.screen->Count("DrawText"), 0);
}

TEST_F(CellContentTest, ACheckBoxShowsDisabledAndDepth)
{
    table.Format(0, 0, [](CellFormat& format) {
        format.Mode = vxCheckBox;
        format.Disabled = true;
        format.TextAlignment = vxCheck3D | vxTxtCenter;
    });
    EXPECT_EQ(BoxState(u"1"), "DrawFrameControl 18,2,31,15 4 500");
}

TEST_F(CellContentTest, ABottomCheckBoxIsCutOffAtTheLeft)
{
    table.Format(0, 0, [](CellFormat& format) {
        format.Mode = vxCheckBox;
        format.TextAlignment = vxTxtBottom;
    });
    EXPECT_EQ(BoxState(u"0"), "DrawFrameControl -4,8,9,21 4 4000");
}

class PictureTest : public testing::Test {
protected:
    FakePaintTable table { { 50, 20 }, 0, 1, 0, 1 };

    void Show(const PicturePtr& picture, i32 alignment = vxPicLeft)
    {
        table.store.EditCell(0, 0).SetPicture(picture);
        table.Format(0, 0, [&](CellFormat& format) { format.PictureAlignment = alignment; });
    }
};

TEST_F(PictureTest, ABitmapIsCopiedInItsOwnSize)
{
    Show(SolidPicture(8, 6));
    EXPECT_THAT(table.CellLines(), Contains("BitBlt 2,2,10,8 from pic3 0,0 SRCCOPY"));
}

TEST_F(PictureTest, IsPlacedByItsAlignment)
{
    Show(SolidPicture(8, 6), vxPicCenter | vxPicVCenter);
    EXPECT_THAT(table.CellLines(), Contains(StartsWith("BitBlt 21,7,29,13 from pic")));
    Show(SolidPicture(8, 6), vxPicRight | vxPicBottom);
    EXPECT_THAT(table.CellLines(), Contains(StartsWith("BitBlt 37,9,45,15 from pic")));
}

TEST_F(PictureTest, CanBeStretchedOverTheCell)
{
    Show(SolidPicture(8, 6), vxStretch | vxPicRight);
    EXPECT_THAT(table.CellLines(), Contains("StretchBlt 0,0,50,20 from pic3 0,0,8,6 SRCCOPY"));
}

TEST_F(PictureTest, AnIconKeepsItsOwnTransparency)
{
    Show(SolidPicture(8, 6, PictureType::Icon), vxPicCenter);
    table.pipeline.Settings.UseMask = vxMaskColor;
    EXPECT_THAT(table.CellLines(), Contains("DrawIcon 21,2 8x6"));
}

TEST_F(PictureTest, AStretchedIconIsStretchedWithTheGroundBehindIt)
{
    Show(SolidPicture(8, 6, PictureType::Icon), vxStretch);
    EXPECT_THAT(
        table.CellLines(), ElementsAre("FillRect 0,0,50,20 #FFFFFF", "StretchBlt 0,0,50,20 from mem3 0,0,8,6 SRCCOPY"));
    EXPECT_THAT(table.screen->LinesOf("mem3"),
        ElementsAre("StretchBlt 0,0,8,6 from mem2 0,0,50,20 SRCCOPY", "DrawIcon 0,0 8x6"));
    EXPECT_EQ(table.screen->surfacesAlive, 2);
}

TEST_F(PictureTest, AMaskColourMakesABitmapTransparent)
{
    Show(SolidPicture(8, 6));
    table.pipeline.Settings.UseMask = vxMaskColor;
    table.pipeline.Settings.MaskColor = 0x80000005;
    EXPECT_THAT(table.CellLines(), Contains("TransparentBlt 2,2,10,8 from pic3 0,0,8,6 #FFFFFF"));
}

TEST_F(PictureTest, TheTopLeftPixelCanBeTheMaskColour)
{
    Show(SolidPicture(8, 6));
    table.pipeline.Settings.UseMask = vxTopLeftPixel;
    table.pipeline.Settings.MaskColor = 0xFF;
    EXPECT_THAT(table.CellLines(), Contains("TransparentBlt 2,2,10,8 from pic3 0,0,8,6 #000000"));
    EXPECT_EQ(table.screen->Count("pic3.GetPixel 0,0"), 1);
}

TEST_F(PictureTest, ASelectedMaskedPictureIsDitheredInTheFallback)
{
    Show(SolidPicture(8, 6));
    table.pipeline.Settings.UseMask = vxMaskColor;
    table.screen->transparentBltFails = true;
    table.CellLines();
    EXPECT_EQ(table.screen->Count("FillPattern"), 0);
    table.interaction.selected = [](const Cell&, int, int, bool) { return true; };
    table.CellLines();
    EXPECT_EQ(table.screen->Count("FillPattern"), 1);
}

TEST_F(PictureTest, LiesUnderTheText)
{
    Show(SolidPicture(8, 6));
    table.SetText(0, 0, u"a");
    const std::vector<std::string> lines = table.CellLines();
    ASSERT_GE(lines.size(), 3u);
    EXPECT_TRUE(lines[1].starts_with("BitBlt 2,2,10,8"));
    EXPECT_TRUE(lines.back().starts_with("DrawText"));
}

TEST_F(PictureTest, AnEmptyPictureIsNone)
{
    Show(std::make_shared<PictureObject>());
    EXPECT_THAT(table.CellLines(), ElementsAre("FillRect 0,0,50,20 #FFFFFF"));
}

TEST_F(PictureTest, AColumnOfOnePictureUnpacksItOnce)
{
    FakePaintTable column({ 50, 100 }, 0, 5, 0, 1);
    const PicturePtr picture = SolidPicture(8, 6);
    for (int row = 0; row < 5; ++row)
        column.store.EditCell(row, 0).SetPicture(picture);
    column.pipeline.RepaintGrid();
    EXPECT_EQ(column.screen->Count("CreateFromPicture"), 1);
    EXPECT_EQ(column.screen->surfacesAlive, 2);
}

} // namespace
} // namespace vornix
