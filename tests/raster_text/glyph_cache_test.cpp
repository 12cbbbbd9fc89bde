#include "text_fixture.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

FontFace& Face(std::u16string_view name = u"DejaVu Sans")
{
    return TextEngine::OfThread().Library().Open(*MatchFont(name, {}), {});
}

long Sum(const GlyphImage& image)
{
    long sum = 0;
    for (int row = 0; row < image.height; ++row) {
        for (int x = 0; x < image.width; ++x)
            sum += image.Coverage()[row * image.Stride() + x];
    }
    return sum;
}

TEST(GlyphCache, RowsOfCoverageEndInZeros)
{
    GlyphCache cache;
    for (char16_t letter = u'!'; letter < 0x7F; ++letter) {
        const GlyphImage& image = cache.Get(Face(), Face().NominalGlyph(letter), 12 * 64, 1);
        EXPECT_EQ(image.Stride() % 8, 0);
        for (int row = 0; row < image.height; ++row) {
            for (int x = image.width; x < image.Stride(); ++x)
                EXPECT_EQ(image.Coverage()[row * image.Stride() + x], 0);
        }
    }
}

TEST(GlyphCache, PhasesMoveTheInkByQuarters)
{
    GlyphCache cache;
    const u32 glyph = Face().NominalGlyph('l');
    double before = -1;
    for (int phase = 0; phase < GlyphCache::Phases; ++phase) {
        const GlyphImage& image = cache.Get(Face(), glyph, 40 * 64, phase);
        double weighted = 0;
        for (int row = 0; row < image.height; ++row) {
            for (int x = 0; x < image.width; ++x)
                weighted += (image.left + x + 0.5) * image.Coverage()[row * image.Stride() + x];
        }
        const double center = weighted / static_cast<double>(Sum(image));
        if (phase > 0) {
            EXPECT_NEAR(center - before, 0.25, 0.06);
        }
        before = center;
    }
}

TEST(GlyphCache, BlankGlyphsHaveNoPicture)
{
    GlyphCache cache;
    EXPECT_EQ(cache.Get(Face(), Face().NominalGlyph(' '), 12 * 64, 0).width, 0);
    EXPECT_EQ(cache.Get(Face(), 65000, 12 * 64, 0).width, 0);
}

TEST(GlyphCache, PicturesComeAtTheSizeOfTheEm)
{
    GlyphCache cache;
    FontFace& emoji = TextEngine::OfThread().Library().Open(*FindInstalledFont("Noto Color Emoji", {}), {});
    ASSERT_TRUE(emoji.IsColor());
    for (const int em : { 8, 12, 15, 24, 109, 200 }) {
        const GlyphImage& image = cache.Get(emoji, emoji.NominalGlyph(0x1F600), em * 64, 0);
        EXPECT_TRUE(image.isColor);
        EXPECT_NEAR(image.width, em * 136 / 109.0, 1);
        EXPECT_NEAR(image.height, em * 128 / 109.0, 1);
        // The middle of the face is yellow and opaque.
        const u32 middle = image.Colors()[image.height / 3 * image.width + image.width / 2];
        EXPECT_EQ(middle >> 24, 255u);
        EXPECT_GT(middle >> 16 & 0xFF, 200u);
        EXPECT_LT(middle & 0xFF, 120u);
        for (int pixel = 0; pixel < image.width * image.height; ++pixel) {
            const u32 color = image.Colors()[pixel];
            EXPECT_LE(color & 0xFF, color >> 24);
            EXPECT_LE(color >> 8 & 0xFF, color >> 24);
            EXPECT_LE(color >> 16 & 0xFF, color >> 24);
        }
    }
}

TEST(GlyphCache, StaysWithinItsBounds)
{
    GlyphCache cache;
    for (int em = 8; em < 160; ++em) {
        for (u32 glyph = 30; glyph < 130; ++glyph)
            cache.Get(Face(), glyph, em * 64, static_cast<int>(glyph) & 3);
    }
    EXPECT_GT(cache.Images().Rotations(), 0u);
    EXPECT_LE(cache.Images().Bytes(), 2 * cache.Images().ByteLimit() + (1u << 20));
    EXPECT_LE(cache.Images().Records(), 2 * cache.Images().RecordLimit() + 2);
}

} // namespace
} // namespace vornix
