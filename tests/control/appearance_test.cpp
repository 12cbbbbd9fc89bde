#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A property of the whole grid that repaints.
struct LookCase {
    const char* name;
    std::function<i32(Vornix&)> get;
    std::function<void(Vornix&, i32)> set;
    i32 value;
};

class WholeGridLook : public GridTest, public testing::WithParamInterface<LookCase> { };

TEST_P(WholeGridLook, IsStoredRepaintedAndReported)
{
    host->ClearLog();
    GetParam().set(Grid(), GetParam().value);
    EXPECT_EQ(GetParam().get(Grid()), GetParam().value);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), ElementsAre(GetParam().name));
}

TEST_P(WholeGridLook, EqualValuesDoNothing)
{
    GetParam().set(Grid(), GetParam().value);
    host->ClearLog();
    GetParam().set(Grid(), GetParam().value);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_P(WholeGridLook, IsReportedButNotPaintedWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    GetParam().set(Grid(), GetParam().value);
    EXPECT_EQ(GetParam().get(Grid()), GetParam().value);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), ElementsAre(GetParam().name));
}

template <typename Value>
LookCase Look(const char* name, Value (Vornix::*get)() const, void (Vornix::*set)(Value), i32 value)
{
    return { name, [=](Vornix& grid) { return static_cast<i32>((grid.*get)()); },
        [=](Vornix& grid, i32 v) { (grid.*set)(static_cast<Value>(v)); }, value };
}

INSTANTIATE_TEST_SUITE_P(All, WholeGridLook,
    testing::Values(Look("BackColor", &Vornix::BackColor, &Vornix::SetBackColor, 0x0102F3),
        Look("BackColorSel", &Vornix::BackColorSel, &Vornix::SetBackColorSel, 0x0102F3),
        Look("ForeColorSel", &Vornix::ForeColorSel, &Vornix::SetForeColorSel, 0x0102F3),
        Look("AltBkColor", &Vornix::AltBkColor, &Vornix::SetAltBkColor, 0x0102F3),
        Look("AltForeColor", &Vornix::AltForeColor, &Vornix::SetAltForeColor, 0x0102F3),
        Look("AltColorEnabled", &Vornix::AltColorEnabled, &Vornix::SetAltColorEnabled, 1),
        Look("GridLines", &Vornix::GridLines, &Vornix::SetGridLines, vxRow),
        Look("GridLines", &Vornix::GridLines, &Vornix::SetGridLines, 77),
        Look("GridLineWidth", &Vornix::GridLineWidth, &Vornix::SetGridLineWidth, 3),
        Look("FocusRect", &Vornix::FocusRect, &Vornix::SetFocusRect, vxFocusHeavy),
        Look("PictureMode", &Vornix::PictureMode, &Vornix::SetPictureMode, vxPicCell),
        Look("PictureBrightness", &Vornix::PictureBrightness, &Vornix::SetPictureBrightness, 60),
        Look("Opacity", &Vornix::Opacity, &Vornix::SetOpacity, 40)),
    [](const auto& test) { return std::string(test.param.name) + std::to_string(test.index); });

class Appearance : public GridTest { };

TEST_F(Appearance, GridLineWidthZeroIsOne)
{
    Grid().SetGridLineWidth(4);
    Grid().SetGridLineWidth(0);
    EXPECT_EQ(Grid().GridLineWidth(), 1);
}

TEST_F(Appearance, OpacityOutsideOneToHundredIsIgnored)
{
    host->ClearLog();
    for (const i16 value : { i16(0), i16(101), i16(-1), i16(32767) })
        Grid().SetOpacity(value);
    EXPECT_EQ(Grid().Opacity(), 100);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Appearance, BrightnessAboveHundredIsIgnored)
{
    host->ClearLog();
    Grid().SetPictureBrightness(101);
    EXPECT_EQ(Grid().PictureBrightness(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Appearance, MaskPropertiesAreStoredWithoutARepaint)
{
    host->ClearLog();
    Grid().SetUseMask(vxTopLeftPixel);
    Grid().SetMaskColor(0x123456);
    EXPECT_EQ(Grid().UseMask(), vxTopLeftPixel);
    EXPECT_EQ(Grid().MaskColor(), 0x123456u);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), ElementsAre("UseMask", "MaskColor"));
}

TEST_F(Appearance, APictureShowsBehindDefaultCells)
{
    Table(3, 2, 1, 0);
    Grid().SetPicture(MakePicture(0x0000FF));
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), ElementsAre("Picture"));
    EXPECT_EQ(host->Pixel(20, 31), 0x0000FFu);
    EXPECT_NE(host->Pixel(20, 10), 0x0000FFu) << "fixed cells never show it";
    Grid().SetPicture(nullptr);
    EXPECT_EQ(Grid().Picture(), nullptr);
    EXPECT_EQ(host->Pixel(20, 31), 0xFFFFFFu);
}

TEST_F(Appearance, APictureWithHandleZeroIsNone)
{
    Table(3, 2);
    Grid().SetPicture(std::make_shared<const PictureObject>());
    EXPECT_EQ(Grid().Picture(), nullptr);
    EXPECT_EQ(host->Pixel(20, 10), 0xFFFFFFu);
}

TEST_F(Appearance, FullBrightnessIsWhite)
{
    Table(3, 2);
    Grid().SetPicture(MakePicture(0x0000FF));
    Grid().SetPictureBrightness(100);
    EXPECT_EQ(host->Pixel(20, 10), 0xFFFFFFu);
    Grid().SetPictureBrightness(0);
    EXPECT_EQ(host->Pixel(20, 10), 0x0000FFu);
}

TEST_F(Appearance, AlternateColoursReplaceOnlyTheDefaultOnOddRows)
{
    Table(4, 2);
    Grid().SetCellBackColor(1, 1, 0x00FF00);
    Grid().SetAltBkColor(0xFF0000);
    Grid().SetAltColorEnabled(true);
    EXPECT_EQ(host->Pixel(60, 10), 0xFFFFFFu);
    EXPECT_EQ(host->Pixel(60, 31), 0xFF0000u);
    EXPECT_EQ(host->Pixel(180, 31), 0x00FF00u);
    Grid().SetCellBackColor(1, 1, 0x80000005);
    EXPECT_EQ(host->Pixel(180, 31), 0xFF0000u);
    EXPECT_EQ(Grid().CellBackColor(1, 0), 0x80000005u) << "the cell itself never takes it";
}

TEST_F(Appearance, ColorBrightnessMovesEachChannel)
{
    EXPECT_EQ(Grid().ColorBrightness(0x804020, 0), 0x804020u);
    EXPECT_EQ(Grid().ColorBrightness(0x804020, 100), 0xFFFFFFu);
    EXPECT_EQ(Grid().ColorBrightness(0x804020, -100), 0u);
    EXPECT_EQ(Grid().ColorBrightness(0x804020, 50), 0xBF9F8Fu);
    EXPECT_EQ(Grid().ColorBrightness(0x804020, -50), 0x402010u);
    EXPECT_EQ(Grid().ColorBrightness(0x80000005, -20), 0xCCCCCCu);
}

} // namespace
} // namespace vornix
