#include "raster_test.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace vornix;
using namespace vornix::raster_test;

namespace {

// System colours of which each is recognised in a picture as text.
SystemColors NamedColors()
{
    SystemColors colors;
    colors.values[SystemColor::Light] = 0x010101;
    colors.values[SystemColor::ButtonHighlight] = 0x020202;
    colors.values[SystemColor::ButtonShadow] = 0x030303;
    colors.values[SystemColor::DarkShadow] = 0x040404;
    colors.values[SystemColor::ButtonFace] = 0x050505;
    colors.values[SystemColor::Window] = 0x060606;
    colors.values[SystemColor::WindowFrame] = 0x070707;
    colors.values[SystemColor::WindowText] = 0x080808;
    colors.values[SystemColor::GrayText] = 0x090909;
    return colors;
}

// l light, h highlight, s shadow, d dark shadow, f face, w window, F window frame, t text, g gray text.
std::string Named(RasterSurface& surface)
{
    const DevicePixels pixels = surface.Pixels();
    std::string text = "\n";
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            const u32 value = pixels.data[y * pixels.stride + x] & 0xFF;
            text += value < 10 ? ".lhsdfwFtg"[value] : '.';
        }
        text += '\n';
    }
    return text;
}

std::string EdgeOf(u32 edge, u32 sides)
{
    auto surface = RasterSurface::Create({ 7, 6 }, 1, NamedColors());
    surface->FillRect({ 0, 0, 7, 6 }, White);
    surface->DrawEdge({ 1, 1, 6, 5 }, edge, sides);
    return Named(*surface);
}

std::string CheckBoxOf(u32 state)
{
    auto surface = RasterSurface::Create({ 13, 13 }, 1, NamedColors());
    surface->FillRect({ 0, 0, 13, 13 }, White);
    surface->DrawFrameControl({ 0, 0, 13, 13 }, DFC_BUTTON, state);
    return Named(*surface);
}

} // namespace

TEST(Edge, SunkenOuterIsShadowLeftAndTopHighlightRightAndBottom)
{
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER, BF_RECT), R"(
.......
.ssssh.
.s...h.
.s...h.
.hhhhh.
.......
)");
}

TEST(Edge, RaisedOuterIsLightAndDarkShadow)
{
    EXPECT_EQ(EdgeOf(BDR_RAISEDOUTER, BF_RECT), R"(
.......
.lllld.
.l...d.
.l...d.
.ddddd.
.......
)");
}

TEST(Edge, InnerOnesAloneLieAtTheRectangle)
{
    EXPECT_EQ(EdgeOf(BDR_RAISEDINNER, BF_RECT), R"(
.......
.hhhhs.
.h...s.
.h...s.
.sssss.
.......
)");
    EXPECT_EQ(EdgeOf(BDR_SUNKENINNER, BF_RECT), R"(
.......
.ddddl.
.d...l.
.d...l.
.lllll.
.......
)");
}

TEST(Edge, RaisedIsTwoRingsAroundTheFace)
{
    EXPECT_EQ(EdgeOf(BDR_RAISEDOUTER | BDR_RAISEDINNER, BF_RECT | BF_MIDDLE), R"(
.......
.lllld.
.lhhsd.
.lsssd.
.ddddd.
.......
)");
}

TEST(Edge, SunkenEtchedAndBumpMixTheRings)
{
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER | BDR_SUNKENINNER, BF_RECT), R"(
.......
.ssssh.
.sddlh.
.slllh.
.hhhhh.
.......
)");
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER | BDR_RAISEDINNER, BF_RECT), R"(
.......
.ssssh.
.shhsh.
.ssssh.
.hhhhh.
.......
)");
    EXPECT_EQ(EdgeOf(BDR_RAISEDOUTER | BDR_SUNKENINNER, BF_RECT), R"(
.......
.lllld.
.lddld.
.lllld.
.ddddd.
.......
)");
}

TEST(Edge, DrawsOnlyTheSidesAskedFor)
{
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER, BF_LEFT), "\n.......\n.s.....\n.s.....\n.s.....\n.s.....\n.......\n");
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER, BF_TOP), "\n.......\n.sssss.\n.......\n.......\n.......\n.......\n");
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER, BF_RIGHT), "\n.......\n.....h.\n.....h.\n.....h.\n.....h.\n.......\n");
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER, BF_BOTTOM), "\n.......\n.......\n.......\n.......\n.hhhhh.\n.......\n");
}

TEST(Edge, TheInnerRingAndTheMiddleReachSidesThatAreNotDrawn)
{
    EXPECT_EQ(EdgeOf(BDR_RAISEDOUTER | BDR_RAISEDINNER, BF_TOP | BF_BOTTOM | BF_MIDDLE), R"(
.......
.lllll.
.hhhhh.
.sssss.
.ddddd.
.......
)");
    EXPECT_EQ(EdgeOf(BDR_SUNKENOUTER, BF_TOP | BF_MIDDLE), R"(
.......
.sssss.
.fffff.
.fffff.
.fffff.
.......
)");
}

TEST(Edge, RaisedAndSunkenAtOnceIsNone)
{
    EXPECT_EQ(EdgeOf(BDR_RAISEDOUTER | BDR_SUNKENOUTER, BF_RECT), EdgeOf(0, BF_RECT));
    EXPECT_EQ(EdgeOf(0, BF_RECT), "\n.......\n.......\n.......\n.......\n.......\n.......\n");
}

TEST(CheckBox, FlatHasAFrameOfOnePixel)
{
    EXPECT_EQ(CheckBoxOf(DFCS_BUTTONCHECK | DFCS_FLAT), R"(
FFFFFFFFFFFFF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FFFFFFFFFFFFF
)");
}

TEST(CheckBox, CheckedHasATick)
{
    EXPECT_EQ(CheckBoxOf(DFCS_FLAT | DFCS_CHECKED), R"(
FFFFFFFFFFFFF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwtwwF
FwwwwwwwttwwF
FwwtwwwtttwwF
FwwttwtttwwwF
FwwtttttwwwwF
FwwwtttwwwwwF
FwwwwtwwwwwwF
FwwwwwwwwwwwF
FwwwwwwwwwwwF
FFFFFFFFFFFFF
)");
}

TEST(CheckBox, WithoutFlatIsSunken)
{
    EXPECT_EQ(CheckBoxOf(DFCS_CHECKED), R"(
ssssssssssssh
sddddddddddlh
sdwwwwwwwwwlh
sdwwwwwwwtwlh
sdwwwwwwttwlh
sdwtwwwtttwlh
sdwttwtttwwlh
sdwtttttwwwlh
sdwwtttwwwwlh
sdwwwtwwwwwlh
sdwwwwwwwwwlh
slllllllllllh
hhhhhhhhhhhhh
)");
}

TEST(CheckBox, InactiveIsGray)
{
    const std::string drawn = CheckBoxOf(DFCS_FLAT | DFCS_CHECKED | DFCS_INACTIVE);
    EXPECT_EQ(drawn.substr(1, 13), "sssssssssssss");
    EXPECT_EQ(drawn.substr(1 + 5 * 14, 13), "sffgfffgggffs");
}

TEST(CheckBox, PushedHasTheFaceAsGround)
{
    const std::string drawn = CheckBoxOf(DFCS_FLAT | DFCS_CHECKED | DFCS_PUSHED);
    EXPECT_EQ(drawn.substr(1, 13), "FFFFFFFFFFFFF");
    EXPECT_EQ(drawn.substr(1 + 5 * 14, 13), "FfftffftttffF");
}

TEST(CheckBox, LiesInTheMiddleOfALongerRectangle)
{
    auto surface = RasterSurface::Create({ 9, 5 }, 1, NamedColors());
    surface->FillRect({ 0, 0, 9, 5 }, White);
    surface->DrawFrameControl({ 0, 0, 9, 5 }, DFC_BUTTON, DFCS_FLAT);
    EXPECT_EQ(Named(*surface), R"(
..FFFFF..
..FwwwF..
..FwwwF..
..FwwwF..
..FFFFF..
)");
}

TEST(CheckBox, OnAFinerDeviceKeepsTheShapeWithSmoothEdges)
{
    auto coarse = RasterSurface::Create({ 13, 13 }, 1, SystemColors());
    auto fine = RasterSurface::Create({ 13, 13 }, 4, SystemColors());
    for (RasterSurface* const surface : { coarse.get(), fine.get() })
        surface->DrawFrameControl({ 0, 0, 13, 13 }, DFC_BUTTON, DFCS_FLAT | DFCS_CHECKED);
    // The mean of each logical pixel on the fine device agrees with the bitmap up to the smoothing of its steps.
    for (int y = 0; y < 13; ++y) {
        for (int x = 0; x < 13; ++x) {
            u32 sum = 0;
            for (int dy = 0; dy < 4; ++dy) {
                for (int dx = 0; dx < 4; ++dx)
                    sum += PixelAt(*fine, 4 * x + dx, 4 * y + dy) & 0xFF;
            }
            EXPECT_NEAR(sum / 16.0, PixelAt(*coarse, x, y) & 0xFF, 140) << x << ' ' << y;
        }
    }
    // Well inside and well outside of the mark nothing is smoothed.
    EXPECT_EQ(PixelAt(*fine, 5 * 4 + 2, 8 * 4 + 2), 0xFF000000u);
    EXPECT_EQ(PixelAt(*fine, 5 * 4 + 2, 4 * 4), 0xFFFFFFFFu);
    EXPECT_EQ(PixelAt(*fine, 2, 2), 0xFF646464u);
}

TEST(CheckBox, OfOtherKindsDrawsNothing)
{
    auto surface = WhiteSurface(4, 4);
    surface->DrawFrameControl({ 0, 0, 4, 4 }, 1, DFCS_CHECKED);
    surface->DrawFrameControl({ 0, 0, 4, 4 }, DFC_BUTTON, 0x10);
    surface->DrawFrameControl({ 2, 2, 2, 4 }, DFC_BUTTON, DFCS_CHECKED);
    EXPECT_EQ(Drawn(*surface), "\n....\n....\n....\n....\n");
}

TEST(FocusRect, InvertsEverySecondPixelOfTheBorder)
{
    auto surface = WhiteSurface(7, 6);
    surface->DrawFocusRect({ 1, 1, 6, 5 });
    EXPECT_EQ(Drawn(*surface), R"(
.......
..#.#..
.#...#.
.......
.#.#.#.
.......
)");
}

TEST(FocusRect, InvertsWhatIsBelow)
{
    auto surface = WhiteSurface(2, 1);
    surface->FillRect({ 0, 0, 2, 1 }, 0x123456);
    surface->DrawFocusRect({ 0, 0, 2, 1 });
    EXPECT_EQ(surface->GetPixel(0, 0), 0x123456u);
    EXPECT_EQ(surface->GetPixel(1, 0), 0xEDCBA9u);
}

class FocusRectTwice : public testing::TestWithParam<std::tuple<double, Rect>> { };

TEST_P(FocusRectTwice, IsGone)
{
    const auto [scale, rect] = GetParam();
    auto surface = RasterSurface::Create({ 20, 16 }, scale, SystemColors());
    FillWithNoise(*surface, 5);
    const std::vector<u32> before = PixelsOf(*surface);
    surface->DrawFocusRect(rect);
    EXPECT_NE(PixelsOf(*surface), before);
    surface->DrawFocusRect(rect);
    EXPECT_EQ(PixelsOf(*surface), before);
}

INSTANTIATE_TEST_SUITE_P(Everywhere, FocusRectTwice,
    testing::Combine(testing::Values(1.0, 1.25, 1.5, 2.0, 3.0),
        testing::Values(Rect { 2, 3, 17, 12 }, Rect { -4, -3, 8, 9 }, Rect { 5, 5, 6, 12 }, Rect { 5, 5, 12, 6 },
            Rect { 4, 4, 6, 6 }, Rect { 9, 9, 1000000, 1000000 })));

TEST(FocusRect, OnAFinerDeviceHasDotsOfALogicalPixel)
{
    auto surface = WhiteSurface(4, 3, 2.0);
    surface->DrawFocusRect({ 0, 0, 4, 3 });
    EXPECT_EQ(Drawn(*surface), R"(
..##..##
..##..##
##......
##......
..##..##
..##..##
)");
}
