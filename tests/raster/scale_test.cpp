#include "raster_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace vornix;
using namespace vornix::raster_test;

namespace {

int DeviceEdge(int logical, double scale)
{
    return static_cast<int>(std::floor(logical * scale + 0.5));
}

} // namespace

class Scale : public testing::TestWithParam<double> { };

TEST_P(Scale, SizesAndEdgesAreRoundedTheSameWay)
{
    const double scale = GetParam();
    auto surface = WhiteSurface(23, 17, scale);
    EXPECT_EQ(surface->GetSize(), (Size { 23, 17 }));
    EXPECT_EQ(surface->Scale(), scale);
    const DevicePixels pixels = surface->Pixels();
    EXPECT_EQ(pixels.width, DeviceEdge(23, scale));
    EXPECT_EQ(pixels.height, DeviceEdge(17, scale));
    EXPECT_EQ(RasterSurface::DeviceSize({ 23, 17 }, scale), (Size { pixels.width, pixels.height }));

    surface->FillRect({ 5, 7, 11, 8 }, Red);
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            const bool inside = x >= DeviceEdge(5, scale) && x < DeviceEdge(11, scale) && y >= DeviceEdge(7, scale)
                && y < DeviceEdge(8, scale);
            ASSERT_EQ(PixelAt(*surface, x, y), inside ? 0xFFFF0000u : 0xFFFFFFFFu) << x << ' ' << y;
        }
    }
}

// Neighbours, filled each by itself with an exclusive or: a gap would stay, an overlap would be undone.
TEST_P(Scale, NeighboursLeaveNoSeamAndDoNotOverlap)
{
    auto surface = WhiteSurface(60, 40, GetParam());
    std::mt19937 random(12);
    for (int round = 0; round < 30; ++round) {
        const std::vector<u32> before = PixelsOf(*surface);
        for (int y = 0; y < 40;) {
            const int bottom = std::min(40, y + Between(random, 1, 9));
            for (int x = 0; x < 60;) {
                const int right = std::min(60, x + Between(random, 1, 9));
                surface->BitBlt({ x, y, right, bottom }, *surface, { 0, 0 }, RasterOp::DstInvert);
                x = right;
            }
            y = bottom;
        }
        std::vector<u32> expected = before;
        for (u32& pixel : expected)
            pixel ^= 0xFFFFFF;
        ASSERT_EQ(PixelsOf(*surface), expected);
    }
}

// The way of the painter: each cell on a surface of its own, copied to its place.
TEST_P(Scale, ComposedCellsTileWithoutSeam)
{
    std::mt19937 random(99);
    for (int round = 0; round < 20; ++round) {
        auto surface = RasterSurface::Create({ 60, 40 }, GetParam(), SystemColors());
        surface->FillRect({ 0, 0, 60, 40 }, Red);
        auto direct = RasterSurface::Create({ 60, 40 }, GetParam(), SystemColors());
        for (int y = 0; y < 40;) {
            const int bottom = std::min(40, y + Between(random, 2, 9));
            for (int x = 0; x < 60;) {
                const int right = std::min(60, x + Between(random, 2, 9));
                const auto draw = [&](Device& device, int left, int top) {
                    const Rect cell { left, top, left + right - x, top + bottom - y };
                    device.FillRect(cell, White);
                    device.Polyline({ Black, 1 },
                        { { left, cell.bottom - 1 }, { cell.right - 1, cell.bottom - 1 },
                            { cell.right - 1, top - 1 } });
                };
                const std::unique_ptr<Surface> mem = surface->CreateCompatible({ right - x, bottom - y }, { x, y });
                draw(*mem, 0, 0);
                surface->BitBlt({ x, y, right, bottom }, *mem, { 0, 0 }, RasterOp::SrcCopy);
                draw(*direct, x, y);
                x = right;
            }
            y = bottom;
        }
        ASSERT_EQ(PixelsOf(*surface), PixelsOf(*direct));
    }
}

TEST_P(Scale, ASurfaceForAPlaceHasTheDeviceSizeOfThePlace)
{
    const double scale = GetParam();
    auto surface = WhiteSurface(50, 50, scale);
    for (int x = 0; x < 20; ++x) {
        for (int width = 1; width < 20; ++width) {
            const std::unique_ptr<Surface> mem = surface->CreateCompatible({ width, width }, { x, x });
            const DevicePixels pixels = dynamic_cast<RasterSurface&>(*mem).Pixels();
            ASSERT_EQ(pixels.width, DeviceEdge(x + width, scale) - DeviceEdge(x, scale));
            ASSERT_EQ(pixels.height, pixels.width);
        }
    }
}

TEST_P(Scale, ABlendOfEqualLogicalSizeCoversTheWholeTarget)
{
    auto surface = WhiteSurface(50, 50, GetParam());
    for (int x = 0; x < 12; ++x) {
        const std::unique_ptr<Surface> solid = surface->CreateCompatible({ 30, 30 });
        solid->FillRect({ 0, 0, 30, 30 }, Black);
        const std::unique_ptr<Surface> mem = surface->CreateCompatible({ 30, 30 }, { x, x });
        mem->FillRect({ 0, 0, 30, 30 }, White);
        EXPECT_TRUE(mem->AlphaBlend({ 0, 0, 30, 30 }, *solid, { 0, 0, 30, 30 }, BlendFunction(255)));
        const std::string drawn = Drawn(dynamic_cast<RasterSurface&>(*mem));
        ASSERT_EQ(drawn.find_first_not_of("#\n"), std::string::npos);
    }
}

// At this scale five logical pixels are six device pixels from 0 on and seven from 1 on.
TEST(ScaleOfOneAndAQuarter, RepeatsTheLastSourcePixelWhereRoundingLeavesItShort)
{
    auto surface = WhiteSurface(8, 1, 1.25);
    const std::unique_ptr<Surface> source = surface->CreateCompatible({ 5, 1 });
    const ColorRef colors[] { Red, Blue, Black, Green, Red };
    for (int x = 0; x < 5; ++x)
        source->SetPixel(x, 0, colors[x]);
    ASSERT_EQ(Drawn(dynamic_cast<RasterSurface&>(*source)), "\nrbb#gr\n");
    EXPECT_TRUE(surface->BitBlt({ 1, 0, 6, 1 }, *source, { 0, 0 }, RasterOp::SrcCopy));
    EXPECT_EQ(Drawn(*surface), "\n.rbb#grr..\n");
}

TEST_P(Scale, LinesAreEquallyThickEverywhere)
{
    const auto thickness = static_cast<std::size_t>(std::max(1, static_cast<int>(GetParam())));
    for (int at = 0; at < 12; ++at) {
        auto across = WhiteSurface(12, 1, GetParam());
        across->SelectPen({ Black, 1 });
        across->MoveTo(at, 0);
        across->LineTo(at, 1);
        const std::string columns = Drawn(*across);
        const auto lines = static_cast<std::size_t>(RasterSurface::DeviceSize({ 12, 1 }, GetParam()).height);
        EXPECT_EQ(std::count(columns.begin(), columns.end(), '#'), static_cast<std::ptrdiff_t>(thickness * lines))
            << at;

        auto frame = WhiteSurface(at + 2, 1, GetParam());
        frame->FrameRect({ 0, 0, at + 2, 9 }, Black);
        EXPECT_EQ(frame->GetPixel(at + 1, 0), Black) << at;
    }
}

TEST_P(Scale, SetPixelAndGetPixelAgree)
{
    auto surface = WhiteSurface(9, 9, GetParam());
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 9; ++x)
            surface->SetPixel(x, y, static_cast<ColorRef>(x * 16 + y));
    }
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 9; ++x)
            ASSERT_EQ(surface->GetPixel(x, y), static_cast<ColorRef>(x * 16 + y));
    }
}

INSTANTIATE_TEST_SUITE_P(All, Scale, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0, 3.0));

TEST(ScaleOfTwo, DrawsLinesTwoDevicePixelsWide)
{
    auto surface = WhiteSurface(3, 2, 2.0);
    surface->Polyline({ Black, 1 }, { { 0, 1 }, { 2, 1 }, { 2, -1 } });
    EXPECT_EQ(Drawn(*surface), R"(
....##
....##
######
######
)");
}

TEST(ScaleOfTwo, RunsGradientsOverDevicePixels)
{
    auto surface = WhiteSurface(2, 1, 2.0);
    surface->GradientFill({ 0, 0, 0, 0, 0 }, { 2, 1, 0xFF00, 0, 0 }, GradientDirection::Horizontal);
    EXPECT_EQ(PixelAt(*surface, 0, 0), 0xFF000000u);
    EXPECT_EQ(PixelAt(*surface, 1, 0), 0xFF3F0000u);
    EXPECT_EQ(PixelAt(*surface, 3, 1), 0xFFBF0000u);
}

TEST(ScaleOfTwo, EnlargesPicturesAndIconsOfScaleOne)
{
    auto surface = WhiteSurface(2, 1, 2.0);
    auto picture = WhiteSurface(1, 1);
    picture->SetPixel(0, 0, Red);
    surface->BitBlt({ 1, 0, 2, 1 }, *picture, { 0, 0 }, RasterOp::SrcCopy);
    surface->DrawIcon(0, 0, *SolidPicture(1, 1, 0, 0, 255, 255, PictureType::Icon));
    EXPECT_EQ(Drawn(*surface), "\nbbrr\nbbrr\n");
}

TEST(ScaleOfTwo, ReducedToScaleOneTakesTheNearestPixel)
{
    auto fine = WhiteSurface(2, 1, 2.0);
    fine->FillRect({ 1, 0, 2, 1 }, Red);
    auto coarse = WhiteSurface(2, 1);
    coarse->BitBlt({ 0, 0, 2, 1 }, *fine, { 0, 0 }, RasterOp::SrcCopy);
    EXPECT_EQ(Drawn(*coarse), "\n.r\n");
}
