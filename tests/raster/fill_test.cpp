#include "raster_test.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vornix;
using namespace vornix::raster_test;

TEST(Fill, CoversTheRectangleWithoutItsRightAndBottomEdges)
{
    auto surface = WhiteSurface(5, 4);
    surface->FillRect({ 1, 1, 4, 3 }, Red);
    EXPECT_EQ(Drawn(*surface), R"(
.....
.rrr.
.rrr.
.....
)");
}

TEST(Fill, TakesColorsWithRedInTheLowByte)
{
    auto surface = WhiteSurface(1, 1);
    surface->FillRect({ 0, 0, 1, 1 }, 0x332211);
    EXPECT_EQ(PixelAt(*surface, 0, 0), 0xFF112233u);
    EXPECT_EQ(surface->GetPixel(0, 0), 0x332211u);
}

TEST(Fill, IsCutAtAllEdges)
{
    constexpr int Least = std::numeric_limits<int>::min();
    constexpr int Most = std::numeric_limits<int>::max();
    auto surface = WhiteSurface(3, 2);
    surface->FillRect({ -2, -2, 1, 1 }, Red);
    surface->FillRect({ 2, 1, 9, 9 }, Blue);
    EXPECT_EQ(Drawn(*surface), "\nr..\n..b\n");
    surface->FillRect({ Least, Least, Most, Most }, Black);
    EXPECT_EQ(Drawn(*surface), "\n###\n###\n");
}

TEST(Fill, DrawsNothingForEmptyAndReversedRectangles)
{
    auto surface = WhiteSurface(3, 2);
    surface->FillRect({ 1, 0, 1, 2 }, Red);
    surface->FillRect({ 2, 2, 0, 0 }, Red);
    surface->FrameRect({ 1, 1, 1, 1 }, Red);
    EXPECT_EQ(Drawn(*surface), "\n...\n...\n");
}

TEST(Frame, IsOnePixelInsideTheRectangle)
{
    auto surface = WhiteSurface(6, 5);
    surface->FrameRect({ 1, 0, 6, 4 }, Blue);
    EXPECT_EQ(Drawn(*surface), R"(
.bbbbb
.b...b
.b...b
.bbbbb
......
)");
}

TEST(Frame, OfOnePixelIsThatPixel)
{
    auto surface = WhiteSurface(3, 3);
    surface->FrameRect({ 1, 1, 2, 2 }, Blue);
    EXPECT_EQ(Drawn(*surface), "\n...\n.b.\n...\n");
}

TEST(Pattern, TilesFromTheOriginOfTheDevice)
{
    auto tile = WhiteSurface(2, 2);
    tile->SetPixel(0, 0, Black);
    tile->SetPixel(1, 1, Red);
    auto surface = WhiteSurface(6, 4);
    surface->FillPattern({ 1, 1, 6, 4 }, *tile);
    EXPECT_EQ(Drawn(*surface), R"(
......
.r.r.r
..#.#.
.r.r.r
)");
}

TEST(Pattern, OfScaleOneIsEnlargedOnAFinerDevice)
{
    auto tile = WhiteSurface(2, 1);
    tile->SetPixel(0, 0, Black);
    auto surface = WhiteSurface(3, 1, 2.0);
    surface->FillPattern({ 0, 0, 3, 1 }, *tile);
    EXPECT_EQ(Drawn(*surface), "\n##..##\n##..##\n");
}

TEST(Pattern, MayLieOnTheDeviceItself)
{
    auto surface = WhiteSurface(5, 1);
    surface->SetPixel(1, 0, Red);
    surface->SetPixel(2, 0, Blue);
    const std::unique_ptr<Surface> part = surface->ComposeAt({ 1, 0 }, { 2, 1 }, { 0, 0, 5, 1 });
    surface->FillPattern({ 0, 0, 5, 1 }, *part);
    EXPECT_EQ(Drawn(*surface), "\nrbrbr\n");
}

namespace {

GradientVertex Vertex(int x, int y, u16 red, u16 green, u16 blue)
{
    return { x, y, red, green, blue };
}

} // namespace

// Channel = ((first * (n - i) + last * i) / n) >> 8 for pixel i of n.
TEST(Gradient, RunsFromTheFirstColorToJustShortOfTheLast)
{
    auto surface = WhiteSurface(4, 2);
    EXPECT_TRUE(surface->GradientFill(
        Vertex(0, 0, 0, 0xFF00, 0x8000), Vertex(4, 2, 0xFF00, 0, 0x8000), GradientDirection::Horizontal));
    const u32 row[] { 0xFF00FF80, 0xFF3FBF80, 0xFF7F7F80, 0xFFBF3F80 };
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(PixelAt(*surface, x, y), row[x]) << x << ' ' << y;
    }
}

TEST(Gradient, RunsDownward)
{
    auto surface = WhiteSurface(2, 4);
    EXPECT_TRUE(surface->GradientFill(
        Vertex(0, 0, 0, 0, 0), Vertex(2, 4, 0xFF00, 0x0100, 0xFF00), GradientDirection::Vertical));
    const u32 column[] { 0xFF000000, 0xFF3F003F, 0xFF7F007F, 0xFFBF00BF };
    for (int y = 0; y < 4; ++y) {
        EXPECT_EQ(PixelAt(*surface, 0, y), column[y]);
        EXPECT_EQ(PixelAt(*surface, 1, y), column[y]);
    }
}

TEST(Gradient, ColorsBelongToTheirVerticesInEitherOrder)
{
    const GradientVertex left = Vertex(0, 0, 0x1000, 0x2000, 0x3000);
    const GradientVertex right = Vertex(9, 3, 0xF000, 0x0000, 0xB000);
    for (const GradientDirection direction : { GradientDirection::Horizontal, GradientDirection::Vertical }) {
        auto forward = WhiteSurface(9, 3);
        auto backward = WhiteSurface(9, 3);
        forward->GradientFill(left, right, direction);
        backward->GradientFill(right, left, direction);
        EXPECT_EQ(PixelsOf(*forward), PixelsOf(*backward));
        EXPECT_EQ(PixelAt(*forward, 0, 0), 0xFF102030u);
    }
}

TEST(Gradient, CutAtTheSurfaceKeepsItsColors)
{
    auto whole = WhiteSurface(12, 1);
    whole->GradientFill(Vertex(0, 0, 0, 0, 0), Vertex(12, 1, 0xFF00, 0, 0), GradientDirection::Horizontal);
    auto part = WhiteSurface(4, 1);
    part->GradientFill(Vertex(-5, 0, 0, 0, 0), Vertex(7, 1, 0xFF00, 0, 0), GradientDirection::Horizontal);
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(PixelAt(*part, x, 0), PixelAt(*whole, x + 5, 0));
}

TEST(Gradient, FollowsItsFormulaForAllColorsAndSizes)
{
    std::mt19937 random(31);
    for (int round = 0; round < 500; ++round) {
        const int width = Between(random, 1, 300);
        const int begin = Between(random, -100, 20);
        const u16 first = static_cast<u16>(Between(random, 0, 0xFFFF));
        const u16 last = static_cast<u16>(Between(random, 0, 0xFFFF));
        auto surface = WhiteSurface(100, 1);
        surface->GradientFill(Vertex(begin, 0, first, 0, last), Vertex(begin + width, 1, last, 0xFFFF, first),
            GradientDirection::Horizontal);
        for (int x = std::max(begin, 0); x < std::min(begin + width, 100); ++x) {
            const int i = x - begin;
            const auto channel = [&](u32 from, u32 to) { return ((from * (width - i) + to * i) / width) >> 8; };
            ASSERT_EQ(PixelAt(*surface, x, 0),
                0xFF000000u | channel(first, last) << 16 | channel(0, 0xFFFF) << 8 | channel(last, first))
                << width << ' ' << i;
        }
    }
}

TEST(Gradient, OfAnUnknownDirectionFails)
{
    auto surface = WhiteSurface(2, 1);
    EXPECT_FALSE(
        surface->GradientFill(Vertex(0, 0, 0, 0, 0), Vertex(2, 1, 0, 0, 0), static_cast<GradientDirection>(2)));
    EXPECT_EQ(Drawn(*surface), "\n..\n");
}
