#include "text_fixture.h"

#include "text/blend.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace vornix {
namespace {

// One row.
void BlendRow(std::vector<u32>& target, const u8* coverage, int count, u32 color)
{
    std::vector<u8> bytes(coverage, coverage + count);
    bytes.resize(bytes.size() + 8, 255);
    BlendCoverage(target.data(), 0, { bytes.data(), 0, count, 1 }, color);
}

u32 Channel(u32 pixel, int shift)
{
    return pixel >> shift & 0xFF;
}

TEST(Blend, FullCoverageIsTheColorAndNoneLeavesThePixel)
{
    const u8 coverage[] = { 0, 255, 0, 255, 255, 0, 0, 255, 255, 0, 255 };
    std::vector<u32> target(std::size(coverage), 0xFF123456);
    BlendRow(target, coverage, static_cast<int>(target.size()), 0xFFABCDEF);
    for (std::size_t pixel = 0; pixel < target.size(); ++pixel)
        EXPECT_EQ(target[pixel], coverage[pixel] ? 0xFFABCDEFu : 0xFF123456u) << pixel;
}

TEST(Blend, EveryCoverageGoesTowardsTheColorInProportion)
{
    Random random(7);
    for (int round = 0; round < 200; ++round) {
        const int count = 1 + static_cast<int>(random() % 40);
        std::vector<u8> coverage(static_cast<std::size_t>(count));
        std::vector<u32> target(coverage.size());
        for (u8& value : coverage)
            value = static_cast<u8>(random());
        for (u32& pixel : target)
            pixel = 0xFF000000u | random();
        const std::vector<u32> before = target;
        const u32 color = 0xFF000000u | random();
        BlendRow(target, coverage.data(), count, color);
        for (std::size_t pixel = 0; pixel < target.size(); ++pixel) {
            EXPECT_EQ(Channel(target[pixel], 24), 255u);
            for (int shift = 0; shift < 24; shift += 8) {
                const double from = Channel(before[pixel], shift);
                const double to = Channel(color, shift);
                const double expected = from + (to - from) * coverage[pixel] / 255.0;
                EXPECT_NEAR(Channel(target[pixel], shift), expected, 1.5);
            }
        }
    }
}

TEST(Blend, WritesNothingBeyondTheCount)
{
    const std::vector<u8> coverage(32, 255);
    for (int count = 0; count <= 20; ++count) {
        std::vector<u32> target(32, 0xFF000000);
        BlendRow(target, coverage.data(), count, 0xFFFFFFFF);
        EXPECT_EQ(std::count(target.begin(), target.end(), 0xFFFFFFFFu), count);
        EXPECT_EQ(target[static_cast<std::size_t>(count)], 0xFF000000u);
    }
}

TEST(Blend, BlocksHaveRowsOfTheirOwn)
{
    const u8 coverage[20] = { 255, 0, 255, 9, 9, 0, 255, 0 };
    std::vector<u32> target(15, 0xFF111111);
    BlendCoverage(target.data() + 1, 5, { coverage, 5, 3, 2 }, 0xFF222222);
    const std::vector<int> changed { 1, 3, 7 };
    for (int pixel = 0; pixel < 15; ++pixel) {
        const bool isChanged = std::find(changed.begin(), changed.end(), pixel) != changed.end();
        EXPECT_EQ(target[static_cast<std::size_t>(pixel)], isChanged ? 0xFF222222u : 0xFF111111u) << pixel;
    }
}

TEST(Blend, SumsOfCoverageStayWithinAByte)
{
    std::vector<u8> target { 0, 10, 200, 255, 128, 127, 1, 254 };
    const std::vector<u8> source { 0, 20, 100, 255, 128, 127, 254, 1 };
    AddCoverage(target.data(), source.data(), 8);
    EXPECT_EQ(target, (std::vector<u8> { 0, 30, 255, 255, 255, 254, 255, 255 }));
}

TEST(Blend, PremultipliedPicturesGoOverTheTarget)
{
    std::vector<u32> target { 0xFF102030, 0xFF102030, 0xFFFFFFFF };
    const std::vector<u32> source { 0x00000000, 0xFF445566, 0x80000080 };
    BlendColors(target.data(), source.data(), 3);
    EXPECT_EQ(target[0], 0xFF102030u);
    EXPECT_EQ(target[1], 0xFF445566u);
    EXPECT_NEAR(Channel(target[2], 16), 127, 1);
    EXPECT_NEAR(Channel(target[2], 0), 255, 1);
}

TEST(Blend, PicturesOfAnyWidthAgreeWithTheFormula)
{
    Random random(5);
    for (int count = 1; count < 30; ++count) {
        std::vector<u32> target(static_cast<std::size_t>(count) + 1, 0xFF000000);
        std::vector<u32> source(target.size(), 0xFFFFFFFF);
        for (int pixel = 0; pixel < count; ++pixel) {
            const auto place = static_cast<std::size_t>(pixel);
            target[place] = 0xFF000000u | random();
            const u32 alpha = random() & 0xFF;
            source[place] = alpha << 24;
            for (int shift = 0; shift < 24; shift += 8)
                source[place] |= (random() % (alpha + 1)) << shift;
        }
        const std::vector<u32> before = target;
        BlendColors(target.data(), source.data(), count);
        EXPECT_EQ(target.back(), 0xFF000000u);
        for (int pixel = 0; pixel < count; ++pixel) {
            const auto place = static_cast<std::size_t>(pixel);
            EXPECT_EQ(Channel(target[place], 24), 255u);
            for (int shift = 0; shift < 24; shift += 8) {
                const double rest = 1 - Channel(source[place], 24) / 255.0;
                const double expected = Channel(source[place], shift) + Channel(before[place], shift) * rest;
                EXPECT_NEAR(Channel(target[place], shift), expected, 1.6);
            }
        }
    }
}

} // namespace
} // namespace vornix
