#include "raster_test.h"

#include <gtest/gtest.h>

#include <utility>

using namespace vornix;
using namespace vornix::raster_test;

namespace {

constexpr RasterOp AllOperations[] { RasterOp::Blackness, RasterOp::NotSrcErase, RasterOp::NotSrcCopy,
    RasterOp::SrcErase, RasterOp::DstInvert, RasterOp::PatInvert, RasterOp::SrcInvert, RasterOp::SrcAnd,
    RasterOp::MergePaint, RasterOp::MergeCopy, RasterOp::SrcCopy, RasterOp::SrcPaint, RasterOp::PatCopy,
    RasterOp::PatPaint, RasterOp::Whiteness };

// The code carries its own truth table: bit p * 4 + s * 2 + d of its third byte is the result for these bits. The
// pattern is white.
u32 ByTruthTable(RasterOp operation, u32 source, u32 target)
{
    const u32 table = static_cast<u32>(operation) >> 16 & 0xFF;
    u32 result = 0xFF000000u;
    for (int bit = 0; bit < 24; ++bit) {
        const u32 index = 4 + 2 * (source >> bit & 1) + (target >> bit & 1);
        result |= (table >> index & 1) << bit;
    }
    return result;
}

} // namespace

class RasterOperation : public testing::TestWithParam<RasterOp> { };

TEST_P(RasterOperation, FollowsItsTruthTable)
{
    auto target = WhiteSurface(13, 7);
    auto source = WhiteSurface(13, 7);
    FillWithNoise(*target, 1);
    FillWithNoise(*source, 2);
    std::vector<u32> expected = PixelsOf(*target);
    const std::vector<u32> from = PixelsOf(*source);
    for (std::size_t i = 0; i < expected.size(); ++i)
        expected[i] = ByTruthTable(GetParam(), from[i], expected[i]);
    EXPECT_TRUE(target->BitBlt({ 0, 0, 13, 7 }, *source, { 0, 0 }, GetParam()));
    EXPECT_EQ(PixelsOf(*target), expected);
}

TEST_P(RasterOperation, StretchedFollowsItToo)
{
    auto target = WhiteSurface(8, 6);
    auto source = WhiteSurface(4, 3);
    FillWithNoise(*target, 3);
    FillWithNoise(*source, 4);
    std::vector<u32> expected = PixelsOf(*target);
    for (int y = 0; y < 6; ++y) {
        for (int x = 0; x < 8; ++x) {
            u32& pixel = expected[static_cast<std::size_t>(y * 8 + x)];
            pixel = ByTruthTable(GetParam(), PixelAt(*source, x / 2, y / 2), pixel);
        }
    }
    EXPECT_TRUE(target->StretchBlt({ 0, 0, 8, 6 }, *source, { 0, 0, 4, 3 }, GetParam()));
    EXPECT_EQ(PixelsOf(*target), expected);
}

// Rectangles anywhere, source and target the same surface or not, checked pixel by pixel.
TEST_P(RasterOperation, AgreesWithAPixelByPixelCopyAtAllEdges)
{
    std::mt19937 random(static_cast<u32>(GetParam()));
    for (int round = 0; round < 300; ++round) {
        auto target = WhiteSurface(9, 8);
        auto other = WhiteSurface(11, 6);
        FillWithNoise(*target, static_cast<unsigned>(round));
        FillWithNoise(*other, static_cast<unsigned>(round) + 1000);
        RasterSurface& source = round % 2 ? *target : *other;
        const Size sourceSize = source.GetSize();
        const int left = Between(random, -4, 9);
        const int top = Between(random, -4, 8);
        const Rect rect { left, top, left + Between(random, 0, 13), top + Between(random, 0, 12) };
        const Point origin { Between(random, -4, 11), Between(random, -4, 8) };
        const Rect clip { Between(random, -1, 3), Between(random, -1, 3), Between(random, 4, 10),
            Between(random, 4, 9) };
        target->SetClip(&clip);

        const bool usesSource = GetParam() != RasterOp::Blackness && GetParam() != RasterOp::DstInvert
            && GetParam() != RasterOp::PatInvert && GetParam() != RasterOp::PatCopy
            && GetParam() != RasterOp::Whiteness;
        const std::vector<u32> from = PixelsOf(source);
        std::vector<u32> expected = PixelsOf(*target);
        for (int y = std::max({ rect.top, clip.top, 0 }); y < std::min({ rect.bottom, clip.bottom, 8 }); ++y) {
            for (int x = std::max({ rect.left, clip.left, 0 }); x < std::min({ rect.right, clip.right, 9 }); ++x) {
                const int sx = origin.x + x - rect.left;
                const int sy = origin.y + y - rect.top;
                const bool inside = sx >= 0 && sy >= 0 && sx < sourceSize.width && sy < sourceSize.height;
                if (usesSource && !inside)
                    continue;
                const u32 read = inside ? from[static_cast<std::size_t>(sy * sourceSize.width + sx)] : 0;
                u32& pixel = expected[static_cast<std::size_t>(y * 9 + x)];
                pixel = ByTruthTable(GetParam(), read, pixel);
            }
        }
        EXPECT_TRUE(target->BitBlt(rect, source, origin, GetParam()));
        ASSERT_EQ(PixelsOf(*target), expected) << "round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(All, RasterOperation, testing::ValuesIn(AllOperations));

TEST(RasterOperationCode, UnknownIsRefused)
{
    auto target = WhiteSurface(2, 1);
    auto source = WhiteSurface(2, 1);
    source->FillRect({ 0, 0, 2, 1 }, Black);
    EXPECT_FALSE(target->BitBlt({ 0, 0, 2, 1 }, *source, { 0, 0 }, static_cast<RasterOp>(0x12345678)));
    EXPECT_FALSE(target->StretchBlt({ 0, 0, 2, 1 }, *source, { 0, 0, 2, 1 }, static_cast<RasterOp>(0)));
    EXPECT_EQ(Drawn(*target), "\n..\n");
}
