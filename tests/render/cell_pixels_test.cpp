// The looks of single cells, pixel by pixel.
#include "render/raster_paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::ElementsAre;

constexpr ColorRef Ground = 0xC0C0C0;
constexpr ColorRef Light = 0xEEEEEE;
constexpr ColorRef Shadow = 0x808080;
constexpr ColorRef Dark = 0x404040;
constexpr ColorRef Outside = 0x99AABB;
constexpr ColorRef RowLine = 0x111111;
constexpr ColorRef ColLine = 0x222222;

const std::map<ColorRef, char> Letters { { Ground, '.' }, { Light, 'L' }, { Shadow, 'S' }, { Dark, 'D' },
    { Outside, 'o' }, { RowLine, '-' }, { ColLine, '|' }, { 0xA0A0A0, 's' }, { 0xFFFFFF, 'W' }, { 0x000000, 'K' } };

// One small cell alone in its window.
class CellPixelsTest : public testing::Test {
protected:
    std::unique_ptr<RasterPaintTable> table;

    CellPixelsTest() { Make({ 8, 6 }); }
    void Make(Size size, double scale = 1)
    {
        table = std::make_unique<RasterPaintTable>(size, scale);
        table->store.ColumnAt(0).Width = static_cast<i16>(size.width);
        table->store.RowAt(0).Height = static_cast<i16>(size.height);
        table->store.RowAt(0).LineColor = RowLine;
        table->store.ColumnAt(0).LineColor = ColLine;
        table->pipeline.Settings.BackColor = Outside;
        table->Format(0, 0, [](CellFormat& format) {
            format.BackColor = Ground;
            format.LightShade = Light;
            format.BorderColor = Shadow;
            format.DarkShade = Dark;
        });
        table->Layout();
    }
    void Style(i32 style, i32 mode = vxCellFixed)
    {
        table->Format(0, 0, [&](CellFormat& format) {
            format.Style = style;
            format.Mode = mode;
        });
    }
    std::vector<std::string> Painted()
    {
        table->Repaint();
        return table->Picture(Letters);
    }
};

TEST_F(CellPixelsTest, Flat)
{
    EXPECT_THAT(Painted(), testing::Each("........"));
}

TEST_F(CellPixelsTest, GridLinesInBothDirections)
{
    table->pipeline.Settings.GridLines = vxBoth;
    EXPECT_THAT(Painted(), ElementsAre(".......|", ".......|", ".......|", ".......|", ".......|", "-------|"));
}

TEST_F(CellPixelsTest, GridLinesOfRowsReachTheEdge)
{
    table->pipeline.Settings.GridLines = vxRow;
    EXPECT_EQ(Painted().back(), "--------");
}

TEST_F(CellPixelsTest, GridLinesOfColumnsReachTheBottom)
{
    table->pipeline.Settings.GridLines = vxColumn;
    EXPECT_THAT(Painted(), testing::Each(".......|"));
}

TEST_F(CellPixelsTest, AWideLineInARowOneHighStillDraws)
{
    Make({ 8, 1 });
    table->pipeline.Settings.GridLines = vxRow;
    table->pipeline.Settings.GridLineWidth = 3;
    EXPECT_THAT(Painted(), ElementsAre("--------"));
}

TEST_F(CellPixelsTest, Raised)
{
    Style(vxCellRaised);
    EXPECT_THAT(Painted(), ElementsAre("LLLLLLLS", "L......S", "L......S", "L......S", "L......S", "SSSSSSSS"));
}

TEST_F(CellPixelsTest, Button)
{
    Style(vxCellButton);
    EXPECT_THAT(Painted(), ElementsAre("LLLLLLLD", "L.....SD", "L.....SD", "L.....SD", "LSSSSSSD", "DDDDDDDD"));
}

TEST_F(CellPixelsTest, Inset)
{
    Style(vxCellInset);
    EXPECT_THAT(Painted(), ElementsAre("sssssssW", "s......W", "s......W", "s......W", "s......W", "WWWWWWWW"));
}

TEST_F(CellPixelsTest, Box)
{
    Style(vxCellBox);
    table->pipeline.Settings.GridLines = vxBoth;
    EXPECT_THAT(Painted(), ElementsAre("SSSSSSS|", "S.....S|", "S.....S|", "S.....S|", "SSSSSSS|", "-------|"));
}

TEST_F(CellPixelsTest, RoundBoxIsClippedBeforeTheGridLines)
{
    Style(vxCellRoundBox);
    table->pipeline.Settings.GridLines = vxBoth;
    EXPECT_THAT(Painted(), ElementsAre("oSSSSSoo", "S.....So", "S.....So", "S.....So", "oSSSSSoo", "oooooooo"));
}

TEST_F(CellPixelsTest, RoundBoxWithAVerticalGradientHasItsSideMended)
{
    Style(vxCellRoundBox);
    table->Format(0, 0, [](CellFormat& format) {
        format.GradientMode = vxGradientTB;
        format.GradientStart = MakeGradientColor(0xFFFFFF, 0);
        format.GradientStop = MakeGradientColor(0x000000, 0);
    });
    table->Repaint();
    EXPECT_EQ(table->Pixel(2, 2), Ground); // from (2,2) to (2,3), which is left out
    EXPECT_NE(table->Pixel(2, 3), Ground);
    EXPECT_NE(table->Pixel(3, 2), Ground);
}

TEST_F(CellPixelsTest, PressedCommandButton)
{
    Style(vxCellButton, vxCommandButton);
    table->interaction.pressed = { 0, 0 };
    EXPECT_THAT(Painted(), ElementsAre("SSSSSSSS", "S......S", "S......S", "S......S", "S......S", "SSSSSSSS"));
}

TEST_F(CellPixelsTest, PressedPressButton)
{
    Style(vxCellButton, vxPressButton);
    table->interaction.pressed = { 0, 0 };
    EXPECT_THAT(Painted(), ElementsAre("SSSSSSSL", "S......L", "S......L", "S......L", "S......L", "LLLLLLLL"));
}

TEST_F(CellPixelsTest, LatchedPressButtonOnAFlatCellIsLined)
{
    Style(vxCellFlat, vxPressButton);
    table->store.EditCell(0, 0).SetButtonPressed(true);
    table->pipeline.Settings.GridLines = vxBoth;
    EXPECT_THAT(Painted(), ElementsAre("SSSSSSS|", "S......|", "S......|", "S......|", "S......|", "-------|"));
}

TEST_F(CellPixelsTest, ThePressedContentMovesByOnePixel)
{
    Make({ 30, 20 });
    Style(vxCellFlat, vxPressButton);
    table->store.EditCell(0, 0).SetPicture(SolidPicture(4, 4));
    table->Repaint();
    EXPECT_EQ(table->CountPixels({ 2, 2, 6, 6 }, 0xFFFFFF), 16);
    table->interaction.pressed = { 0, 0 };
    table->Repaint();
    EXPECT_EQ(table->CountPixels({ 3, 3, 7, 7 }, 0xFFFFFF), 16);
    EXPECT_EQ(table->Pixel(2, 2), Ground);
}

TEST_F(CellPixelsTest, GradientsEndInTheirColours)
{
    Make({ 64, 32 });
    const auto gradient = [&](i32 mode) {
        table->Format(0, 0, [&](CellFormat& format) {
            format.GradientMode = mode;
            format.GradientStart = MakeGradientColor(0x0000FF, 0);
            format.GradientStop = MakeGradientColor(0x00FF00, 0);
        });
        table->Repaint();
    };
    const auto red = [&](int x, int y) { return static_cast<int>(table->Pixel(x, y) & 0xFF); };
    gradient(vxGradientLR);
    EXPECT_GT(red(0, 9), 245);
    EXPECT_LT(red(63, 9), 10);
    EXPECT_EQ(table->Pixel(20, 0), table->Pixel(20, 31));
    gradient(vxGradientRL);
    EXPECT_LT(red(0, 9), 10);
    EXPECT_GT(red(63, 9), 245);
    gradient(vxGradientTB);
    EXPECT_GT(red(5, 0), 240);
    EXPECT_LT(red(5, 31), 15);
    EXPECT_EQ(table->Pixel(0, 20), table->Pixel(63, 20));
    gradient(vxGradientBT);
    EXPECT_LT(red(5, 0), 15);
    EXPECT_GT(red(5, 31), 240);
}

class PixelTextTest : public testing::Test {
protected:
    RasterPaintTable table { { 120, 60 }, 1, 0, 1, 0, 1 };

    PixelTextTest()
    {
        table.store.ColumnAt(0).Width = 120;
        table.store.RowAt(0).Height = 60;
        table.SetText(0, 0, u"Hxg");
    }
    // The rectangle of all pixels that are not the ground.
    Rect Ink(i32 alignment, ColorRef ground = 0xFFFFFF)
    {
        table.Format(0, 0, [&](CellFormat& format) { format.TextAlignment = alignment; });
        table.Repaint();
        Rect ink { 120, 60, 0, 0 };
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 120; ++x) {
                if (table.Pixel(x, y) == ground)
                    continue;
                ink = { std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
                    std::max(ink.bottom, y + 1) };
            }
        }
        return ink;
    }
};

TEST_F(PixelTextTest, StandsWhereItsAlignmentSays)
{
    const Rect topLeft = Ink(vxTxtDefault);
    ASSERT_FALSE(topLeft.IsEmpty());
    EXPECT_GE(topLeft.left, 4);
    EXPECT_LE(topLeft.left, 7);
    EXPECT_GE(topLeft.top, 2);
    EXPECT_LE(topLeft.top, 8);
    const Rect right = Ink(vxTxtRight);
    EXPECT_GE(right.right, 112);
    EXPECT_LE(right.right, 116);
    const Rect centred = Ink(vxTxtCenter | vxTxtVCenter);
    EXPECT_NEAR((centred.left + centred.right) / 2, 60, 2);
    EXPECT_NEAR((centred.top + centred.bottom) / 2, 30, 3);
    const Rect bottom = Ink(vxTxtBottom);
    EXPECT_GE(bottom.bottom, 53);
    EXPECT_LE(bottom.bottom, 57);
    EXPECT_EQ(Ink(vxAlwaysTop).top, topLeft.top - 1);
    EXPECT_EQ(centred.Height(), topLeft.Height());
}

TEST_F(PixelTextTest, LongWordsAreBrokenOrCut)
{
    table.SetText(0, 0, u"some words that need more than one line");
    EXPECT_GT(Ink(vxWordBreak).Height(), 25);
    EXPECT_LE(Ink(vxSingleLine).Height(), 16);
    EXPECT_LE(Ink(vxSingleLine).right, 116);
}

TEST_F(PixelTextTest, MarginsKeepItIn)
{
    table.Format(0, 0, [](CellFormat& format) { format.TextMarginLeft = 30; });
    EXPECT_GE(Ink(vxTxtDefault).left, 34);
}

TEST_F(PixelTextTest, ASelectingFocusPutsOnlyTheTextOnABlock)
{
    table.interaction.current = { 0, 0 };
    table.pipeline.Settings.FocusRect = vxFocusSelect;
    table.pipeline.Settings.BackColorSel = 0xFF0000;
    const Rect block = Ink(vxTxtDefault);
    EXPECT_EQ(block.left, 4);
    EXPECT_EQ(block.top, 2);
    EXPECT_LT(block.Width(), 60);
    EXPECT_EQ(table.Pixel(4, 2), 0xFF0000u);
    EXPECT_EQ(table.Pixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(table.Pixel(119, 59), 0xFFFFFFu);
}

TEST_F(PixelTextTest, TheBottomCheckBoxIsCutOffAtTheLeft)
{
    table.Format(0, 0, [](CellFormat& format) { format.Mode = vxCheckBox; });
    const Rect box = Ink(vxTxtBottom);
    EXPECT_EQ(box.left, 0);
    EXPECT_EQ(box.right, 9);
    EXPECT_EQ(box.bottom, 60);
}

class PixelPictureTest : public testing::Test {
protected:
    RasterPaintTable table { { 50, 20 } };

    // Four pixels: red, green, blue, red.
    static PicturePtr Four(PictureType type = PictureType::Bitmap, u8 alphaOfGreen = 255)
    {
        const std::vector<u8> rgba { 255, 0, 0, 255, 0, 255, 0, alphaOfGreen, 0, 0, 255, 255, 255, 0, 0, 255 };
        return PictureObject::FromRgba(2, 2, rgba, type);
    }
    void Show(const PicturePtr& picture, i32 alignment = 0)
    {
        table.store.EditCell(0, 0).SetPicture(picture);
        table.Format(0, 0, [&](CellFormat& format) { format.PictureAlignment = alignment; });
        table.Repaint();
    }
};

TEST_F(PixelPictureTest, ABitmapStandsTwoPixelsIn)
{
    Show(Four());
    EXPECT_EQ(table.Pixel(2, 2), 0x0000FFu);
    EXPECT_EQ(table.Pixel(3, 2), 0x00FF00u);
    EXPECT_EQ(table.Pixel(2, 3), 0xFF0000u);
    EXPECT_EQ(table.Pixel(4, 2), 0xFFFFFFu);
}

TEST_F(PixelPictureTest, MasksLeaveOutOneColour)
{
    table.pipeline.Settings.UseMask = vxMaskColor;
    table.pipeline.Settings.MaskColor = 0x00FF00;
    Show(Four());
    EXPECT_EQ(table.Pixel(2, 2), 0x0000FFu);
    EXPECT_EQ(table.Pixel(3, 2), 0xFFFFFFu);
    table.pipeline.Settings.UseMask = vxTopLeftPixel;
    Show(Four());
    EXPECT_EQ(table.Pixel(2, 2), 0xFFFFFFu);
    EXPECT_EQ(table.Pixel(3, 3), 0xFFFFFFu);
    EXPECT_EQ(table.Pixel(3, 2), 0x00FF00u);
}

TEST_F(PixelPictureTest, AnIconShowsTheGroundWhereItIsTransparent)
{
    Show(Four(PictureType::Icon, 0));
    EXPECT_EQ(table.Pixel(2, 2), 0x0000FFu);
    EXPECT_EQ(table.Pixel(3, 2), 0xFFFFFFu);
}

TEST_F(PixelPictureTest, StretchedPicturesFillTheCell)
{
    Show(Four(), vxStretch);
    EXPECT_EQ(table.Pixel(0, 0), 0x0000FFu);
    EXPECT_EQ(table.Pixel(49, 0), 0x00FF00u);
    EXPECT_EQ(table.Pixel(0, 19), 0xFF0000u);
    EXPECT_EQ(table.Pixel(24, 9), 0x0000FFu);
    Show(Four(PictureType::Icon, 0), vxStretch);
    EXPECT_EQ(table.Pixel(49, 0), 0xFFFFFFu);
    EXPECT_EQ(table.Pixel(49, 19), 0x0000FFu);
}

} // namespace
} // namespace vornix
