#include "raster_test.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vornix;
using namespace vornix::raster_test;

namespace {

// 1 2 3 ... along each axis, as channels.
std::unique_ptr<RasterSurface> Numbered(int width, int height)
{
    auto surface = WhiteSurface(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            surface->SetPixel(x, y, static_cast<ColorRef>((x + 1) | (y + 1) << 8));
    }
    return surface;
}

// The numbers along the first row, 0 for white.
std::vector<int> FirstRow(RasterSurface& surface)
{
    std::vector<int> row;
    for (int x = 0; x < surface.GetSize().width; ++x) {
        const ColorRef color = surface.GetPixel(x, 0);
        row.push_back(color == White ? 0 : static_cast<int>(color & 0xFF));
    }
    return row;
}

std::vector<int> StretchedRow(int targetWidth, Rect target, int sourceWidth, Rect source)
{
    auto surface = WhiteSurface(targetWidth, 1);
    auto from = Numbered(sourceWidth, 1);
    EXPECT_TRUE(surface->StretchBlt(target, *from, source, RasterOp::SrcCopy));
    return FirstRow(*surface);
}

} // namespace

TEST(StretchBlt, TakesThePixelBelowTheCenter)
{
    EXPECT_EQ(StretchedRow(6, { 0, 0, 6, 1 }, 3, { 0, 0, 3, 1 }), (std::vector { 1, 1, 2, 2, 3, 3 }));
    EXPECT_EQ(StretchedRow(5, { 0, 0, 5, 1 }, 3, { 0, 0, 3, 1 }), (std::vector { 1, 1, 2, 3, 3 }));
    EXPECT_EQ(StretchedRow(3, { 0, 0, 3, 1 }, 9, { 0, 0, 9, 1 }), (std::vector { 2, 5, 8 }));
    EXPECT_EQ(StretchedRow(1, { 0, 0, 1, 1 }, 5, { 0, 0, 5, 1 }), (std::vector { 3 }));
}

TEST(StretchBlt, ReadsAPartOfTheSource)
{
    EXPECT_EQ(StretchedRow(6, { 1, 0, 5, 1 }, 5, { 1, 0, 3, 1 }), (std::vector { 0, 2, 2, 3, 3, 0 }));
}

TEST(StretchBlt, MirrorsReversedRectangles)
{
    EXPECT_EQ(StretchedRow(4, { 4, 0, 0, 1 }, 4, { 0, 0, 4, 1 }), (std::vector { 4, 3, 2, 1 }));
    EXPECT_EQ(StretchedRow(4, { 0, 0, 4, 1 }, 4, { 4, 0, 0, 1 }), (std::vector { 4, 3, 2, 1 }));
    EXPECT_EQ(StretchedRow(4, { 4, 0, 0, 1 }, 4, { 4, 0, 0, 1 }), (std::vector { 1, 2, 3, 4 }));
    EXPECT_EQ(StretchedRow(6, { 6, 0, 0, 1 }, 3, { 0, 0, 3, 1 }), (std::vector { 3, 3, 2, 2, 1, 1 }));

    auto upside = WhiteSurface(1, 3);
    upside->StretchBlt({ 0, 3, 1, 0 }, *Numbered(1, 3), { 0, 0, 1, 3 }, RasterOp::SrcCopy);
    EXPECT_EQ(upside->GetPixel(0, 0), 0x0301u);
    EXPECT_EQ(upside->GetPixel(0, 2), 0x0101u);
}

TEST(StretchBlt, CutAtTheTargetKeepsItsMapping)
{
    EXPECT_EQ(StretchedRow(4, { -3, 0, 6, 1 }, 3, { 0, 0, 3, 1 }), (std::vector { 2, 2, 2, 3 }));
}

TEST(StretchBlt, LeavesTargetsOfPixelsOutsideTheSource)
{
    EXPECT_EQ(StretchedRow(8, { 0, 0, 8, 1 }, 2, { -1, 0, 3, 1 }), (std::vector { 0, 0, 1, 1, 2, 2, 0, 0 }));
    EXPECT_EQ(StretchedRow(8, { 8, 0, 0, 1 }, 2, { -1, 0, 3, 1 }), (std::vector { 0, 0, 2, 2, 1, 1, 0, 0 }));
    EXPECT_EQ(StretchedRow(2, { 0, 0, 2, 1 }, 2, { 5, 0, 9, 1 }), (std::vector { 0, 0 }));
}

TEST(StretchBlt, OfOneToOneIsACopy)
{
    EXPECT_EQ(StretchedRow(4, { 1, 0, 4, 1 }, 5, { 1, 0, 4, 1 }), (std::vector { 0, 2, 3, 4 }));
}

TEST(StretchBlt, WithoutWidthDrawsNothing)
{
    EXPECT_EQ(StretchedRow(2, { 1, 0, 1, 1 }, 2, { 0, 0, 2, 1 }), (std::vector { 0, 0 }));
    EXPECT_EQ(StretchedRow(2, { 0, 0, 2, 1 }, 2, { 1, 0, 1, 1 }), (std::vector { 0, 0 }));
    constexpr int Most = std::numeric_limits<int>::max();
    EXPECT_EQ(StretchedRow(2, { 0, 0, Most, 1 }, 2, { 0, 0, 2, 1 }), (std::vector { 0, 0 }));
}

TEST(StretchBlt, WithinOneSurfaceReadsWhatWasThere)
{
    auto surface = Numbered(6, 1);
    EXPECT_TRUE(surface->StretchBlt({ 0, 0, 6, 1 }, *surface, { 0, 0, 3, 1 }, RasterOp::SrcCopy));
    EXPECT_EQ(FirstRow(*surface), (std::vector { 1, 1, 2, 2, 3, 3 }));
}

TEST(StretchBlt, WithoutASourceInTheOperationFillsAlsoReversedRectangles)
{
    auto surface = WhiteSurface(4, 1);
    EXPECT_TRUE(surface->StretchBlt({ 3, 1, 1, 0 }, *surface, { 0, 0, 1, 1 }, RasterOp::Blackness));
    EXPECT_EQ(Drawn(*surface), "\n.##.\n");
}
