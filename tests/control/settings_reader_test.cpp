#include "control/grid_fixture.h"

namespace vornix {
namespace {

class SettingsReader : public GridTest {
protected:
    void Load(bool design = false)
    {
        HeadlessOptions options;
        options.bag = &bag;
        options.design = design;
        Make(options);
    }

    MemoryBag bag;
};

TEST_F(SettingsReader, AnEmptyBagGivesTheDefaults)
{
    Load();
    EXPECT_EQ(Grid().DefaultMode(), 0);
    EXPECT_EQ(Grid().DefaultBkColor(), 0x80000005u);
    EXPECT_EQ(Grid().DefaultForeColor(), 0x80000008u);
    EXPECT_EQ(Grid().DefaultLineColor(), 0x8000000Fu);
    EXPECT_EQ(Grid().DefaultBkColorFixed(), 0x8000000Fu);
    EXPECT_EQ(Grid().DefaultForeColorFixed(), 0x80000012u);
    EXPECT_FALSE(Grid().AltColorEnabled());
    EXPECT_EQ(Grid().AltBkColor(), 0x80000005u);
    EXPECT_EQ(Grid().AltForeColor(), 0x80000008u);
    EXPECT_EQ(Grid().BackColorSel(), 0x8000000Du);
    EXPECT_EQ(Grid().ForeColorSel(), 0x8000000Eu);
    EXPECT_EQ(Grid().DefaultHeight(), 21);
    EXPECT_EQ(Grid().DefaultWidth(), 120);
    EXPECT_EQ(Grid().DefaultHeightFixed(), 21);
    EXPECT_EQ(Grid().DefaultWidthFixed(), 30);
    EXPECT_EQ(Grid().DefaultTextAlign(), 0);
    EXPECT_EQ(Grid().DefaultTextAlignFixed(), 0);
    EXPECT_EQ(Grid().Cols(), 1);
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Grid().FixedCols(), 0);
    EXPECT_EQ(Grid().FixedRows(), 0);
    EXPECT_EQ(Grid().BorderStyle(), 0);
    EXPECT_EQ(Grid().BackColor(), 0x80000005u);
    EXPECT_EQ(Grid().PictureBrightness(), 0);
    EXPECT_EQ(Grid().Picture(), nullptr);
    EXPECT_EQ(Grid().PictureMode(), 0);
    EXPECT_EQ(Grid().ScrollHBar(), 3);
    EXPECT_EQ(Grid().ScrollVBar(), 2);
    EXPECT_EQ(Grid().GridLines(), 3);
    EXPECT_EQ(Grid().FocusRect(), 1);
    EXPECT_EQ(Grid().UseMask(), 0);
    EXPECT_EQ(Grid().MaskColor(), 0u);
    EXPECT_FALSE(Grid().ShowSplit());
    EXPECT_EQ(Grid().ResizeMode(), 3);
    EXPECT_FALSE(Grid().ResizingRows());
    EXPECT_EQ(Grid().SelectMode(), 3);
    EXPECT_FALSE(Grid().SelectByRowCol());
    EXPECT_FALSE(Grid().CellSelection());
    EXPECT_TRUE(Grid().Redraw());
    EXPECT_EQ(Grid().GridLineWidth(), 1);
    EXPECT_FALSE(Grid().CaptionEnabled());
    EXPECT_EQ(Grid().Caption(), u"");
    EXPECT_EQ(Grid().VirtualPageSize(), 0);
    EXPECT_EQ(Grid().ScrollBarSize(), 17);
    EXPECT_EQ(Grid().AdjustLast(), 3);
    EXPECT_EQ(Grid().Opacity(), 100);
    EXPECT_EQ(Grid().CommonTextAlign(), 2048);
    EXPECT_TRUE(Grid().ResizingWidth());
}

TEST_F(SettingsReader, CountsBuildTheTable)
{
    bag.WriteProperty("Rows", 4);
    bag.WriteProperty("Cols", 3);
    bag.WriteProperty("FixedRows", 2);
    bag.WriteProperty("FixedCols", 1);
    bag.WriteProperty("DefaultHeight", 30);
    bag.WriteProperty("DefaultWidth", 50);
    bag.WriteProperty("DefaultHeightFixed", 31);
    bag.WriteProperty("DefaultWidthFixed", 51);
    Load();
    EXPECT_EQ(Grid().Rows(), 4);
    EXPECT_EQ(Grid().Cols(), 3);
    EXPECT_EQ(Grid().RowHeight(0), 30);
    EXPECT_EQ(Grid().RowHeight(-2), 31);
    EXPECT_EQ(Grid().ColWidth(2), 50);
    EXPECT_EQ(Grid().ColWidth(-1), 51);
    EXPECT_EQ(Grid().CellStyle(-1, 0), vxCellRaised);
    EXPECT_EQ(Grid().CellStyle(0, -1), vxCellRaised);
    EXPECT_EQ(Grid().CellStyle(0, 0), vxCellFlat);
}

TEST_F(SettingsReader, ColoursAndFontsReachTheCells)
{
    bag.WriteProperty("FixedRows", 1);
    bag.WriteProperty("DefaultBkColor", 0x0000FF);
    bag.WriteProperty("DefaultForeColor", static_cast<i32>(0x80000010));
    bag.WriteProperty("DefaultBkColorFixed", 0x00FF00);
    bag.WriteProperty("DefaultMode", 3);
    bag.WriteProperty("DefaultTextAlign", 2);
    bag.WriteProperty("DefaultTextAlignFixed", 1);
    bag.WriteProperty("Font", MakeFont(u"Serif", 12));
    Load();
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x0000FFu);
    EXPECT_EQ(Grid().CellForeColor(0, 0), 0x80000010u);
    EXPECT_EQ(Grid().CellBackColor(-1, 0), 0x00FF00u);
    EXPECT_EQ(Grid().CellMode(0, 0), 3);
    EXPECT_EQ(Grid().CellMode(-1, 0), 0);
    EXPECT_EQ(Grid().TextAlignment(0, 0), 2);
    EXPECT_EQ(Grid().TextAlignment(-1, 0), 1);
    EXPECT_EQ(Grid().CellFontName(0, 0), u"Serif");
    EXPECT_EQ(Grid().CellFontName(-1, 0), u"DejaVu Sans");
}

TEST_F(SettingsReader, TheCaptionLiesInItsCell)
{
    bag.WriteProperty("FixedRows", 1);
    bag.WriteProperty("FixedCols", 1);
    bag.WriteProperty("CaptionEnabled", true);
    bag.WriteProperty("Caption", std::u16string(u"Title"));
    Load();
    EXPECT_EQ(Grid().Caption(), u"Title");
    EXPECT_EQ(Grid().Text(-1, 0), u"Title");
    EXPECT_EQ(Grid().Text(-1, -1), u"");
}

TEST_F(SettingsReader, WhatAPressSelectsIsRead)
{
    bag.WriteProperty("SelectMode", 1);
    bag.WriteProperty("SelectByRowCol", true);
    Load();
    EXPECT_EQ(Grid().SelectMode(), vxRow);
    EXPECT_TRUE(Grid().SelectByRowCol());
    EXPECT_FALSE(Grid().CellSelection());
    bag.values.clear();
    bag.WriteProperty("CellSelection", true);
    Load();
    EXPECT_FALSE(Grid().SelectByRowCol());
    EXPECT_TRUE(Grid().CellSelection());
}

TEST_F(SettingsReader, TheBorderIsApplied)
{
    bag.WriteProperty("BorderStyle", 1);
    Load();
    EXPECT_EQ(host->ExtendedStyle(), 512u);
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 636);
}

TEST_F(SettingsReader, APictureIsTaken)
{
    const PicturePtr picture = MakePicture(0x0000FF);
    bag.WriteProperty("Picture", picture);
    bag.WriteProperty("PictureBrightness", 40);
    Load();
    EXPECT_EQ(Grid().Picture(), picture);
    EXPECT_EQ(Grid().PictureBrightness(), 40);
}

TEST_F(SettingsReader, ValuesOfTheWrongTypeOrWidthAreErrors)
{
    const auto load = [&](std::string_view name, const BagValue& value) {
        bag.values.clear();
        bag.WriteProperty(name, value);
        return ErrorOf([&] { Load(); });
    };
    EXPECT_EQ(load("Rows", std::u16string(u"many")), 13);
    EXPECT_EQ(load("Caption", FontPtr()), 13);
    EXPECT_EQ(load("Font", 3), 13);
    EXPECT_EQ(load("Picture", true), 13);
    EXPECT_EQ(load("Rows", 40000), 6);
    EXPECT_EQ(load("DefaultHeight", -40000), 6);
    EXPECT_EQ(load("Rows", -1), 9);
    EXPECT_EQ(load("FixedCols", -1), 9);
    bag.WriteProperty("FixedRows", 1);
    EXPECT_EQ(load("Redraw", 0), std::nullopt);
    EXPECT_FALSE(Grid().Redraw());
}

TEST_F(SettingsReader, ValuesAreConvertedAsArgumentsAre)
{
    bag.WriteProperty("Rows", std::u16string(u"7"));
    bag.WriteProperty("AltColorEnabled", std::u16string(u"True"));
    bag.WriteProperty("ShowSplit", 1);
    bag.WriteProperty("FixedRows", 1);
    bag.WriteProperty("Caption", 3);
    Load();
    EXPECT_EQ(Grid().Rows(), 7);
    EXPECT_TRUE(Grid().AltColorEnabled());
    EXPECT_TRUE(Grid().ShowSplit());
    EXPECT_EQ(Grid().Caption(), u"3");
}

TEST_F(SettingsReader, CountsThatLeaveSixteenBitsTogetherAreOverflow)
{
    bag.WriteProperty("Rows", 32767);
    bag.WriteProperty("FixedRows", 1);
    EXPECT_EQ(ErrorOf([&] { Load(); }), 6);
}

TEST_F(SettingsReader, AbsentFontsFollowTheAmbientOne)
{
    bag.WriteProperty("Font", FontPtr());
    Load();
    EXPECT_EQ(Grid().Font(), host->AmbientFont());
}

} // namespace
} // namespace vornix
