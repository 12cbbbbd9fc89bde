#include "text_fixture.h"

#include <gtest/gtest.h>
#include <hb.h>

namespace vornix {
namespace {

ShapedLine& Shaped(std::u16string_view text, bool rightToLeft = false, const FontDescription& font = TestFont(-100))
{
    TextEngine& engine = TextEngine::OfThread();
    return engine.Line(engine.Resolve(font), text, rightToLeft);
}

// Code units in the order their glyphs stand, from left to right.
std::vector<u32> VisualOrder(std::u16string_view text, bool rightToLeft = false)
{
    std::vector<u32> order;
    for (const ShapedGlyph& glyph : Shaped(text, rightToLeft).Glyphs())
        order.push_back(glyph.cluster);
    return order;
}

TEST(Shaper, PlainLinesHaveAGlyphAUnit)
{
    const ShapedLine& line = Shaped(u"office");
    EXPECT_TRUE(line.simple);
    ASSERT_EQ(line.glyphs, 6u);
    float x = 0;
    for (u32 unit = 0; unit < 6; ++unit) {
        EXPECT_EQ(line.Glyphs()[unit].cluster, unit);
        EXPECT_FLOAT_EQ(line.Glyphs()[unit].x, x);
        x += line.Glyphs()[unit].advance;
    }
    EXPECT_FLOAT_EQ(line.width, x);
}

TEST(Shaper, WidthIsTheSumOfUnhintedAdvances)
{
    // Units of 2048: a 1255, b 1300.
    EXPECT_NEAR(Shaped(u"a").width, 100 * 1255 / 2048.0, 0.01);
    EXPECT_NEAR(Shaped(u"b").width, 100 * 1300 / 2048.0, 0.01);
    EXPECT_NEAR(Shaped(u"ab").width, 100 * 2555 / 2048.0, 0.01);
    EXPECT_NEAR(Shaped(u"ab", false, TestFont(-12)).width, 12 * 2555 / 2048.0, 0.01);
}

TEST(Shaper, PairsAreKerned)
{
    const float apart = Shaped(u"A").width + Shaped(u"V").width;
    const float together = Shaped(u"AV").width;
    EXPECT_LT(together, apart - 3);
    // The same in a line with another script.
    const float withIdeograph = Shaped(u"AV\u4E16").width - Shaped(u"\u4E16").width;
    EXPECT_NEAR(withIdeograph, together, 0.05);
}

// What the shaping library itself makes of plain text, ligatures apart.
float WidthByLibrary(std::u16string_view text, Font& font)
{
    hb_buffer_t* buffer = hb_buffer_create();
    hb_buffer_add_utf16(buffer, reinterpret_cast<const u16*>(text.data()), static_cast<int>(text.size()), 0, -1);
    hb_buffer_guess_segment_properties(buffer);
    const hb_feature_t noLigatures { HB_TAG('l', 'i', 'g', 'a'), 0, 0, ~0u };
    hb_shape(font.Face().Shaping(), buffer, &noLigatures, 1);
    unsigned count = 0;
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer, &count);
    int units = 0;
    for (unsigned index = 0; index < count; ++index)
        units += positions[index].x_advance;
    hb_buffer_destroy(buffer);
    return static_cast<float>(units) * font.UnitsToPixels();
}

TEST(Shaper, PlainLinesAreAsWideAsTheLibraryMakesThem)
{
    for (const char16_t* face : { u"DejaVu Sans", u"Noto Sans", u"Noto Serif", u"DejaVu Sans Mono" }) {
        const FontDescription description = TestFont(-100, face);
        Font& font = TextEngine::OfThread().Resolve(description);
        for (const std::u16string_view text :
            { u"AVATAR Tor. LT-Wo, fi", u"1,234.56 7.", u"Gr\u00F6\u00DFe \u0141\u00F3d\u017A",
                u"\u0413\u0434\u0435 \u0422\u0430\u0440\u0430", u"\u0391\u03A5\u03A4\u039F" })
            EXPECT_NEAR(Shaped(text, false, description).width, WidthByLibrary(text, font), 0.1);
    }
}

TEST(Shaper, PlainWordsLookTheSameInEveryLine)
{
    const float plain = Shaped(u"Affluent Tor. \u0416\u0443\u043A \u03B1\u03B2").width;
    const float mixed = Shaped(u"Affluent Tor. \u0416\u0443\u043A \u03B1\u03B2\u4E16").width - Shaped(u"\u4E16").width;
    EXPECT_NEAR(mixed, plain, 0.1);
}

TEST(Shaper, HebrewRunsFromRightToLeftInsideALine)
{
    EXPECT_EQ(VisualOrder(u"ab \u05D0\u05D1\u05D2"), (std::vector<u32> { 0, 1, 2, 5, 4, 3 }));
    EXPECT_EQ(VisualOrder(u"\u05D0\u05D1 12 \u05D2"), (std::vector<u32> { 6, 5, 3, 4, 2, 1, 0 }));
    EXPECT_EQ(VisualOrder(u"\u05D0\u05D1."), (std::vector<u32> { 1, 0, 2 }));
}

TEST(Shaper, RightToLeftReadingTurnsTheLine)
{
    EXPECT_EQ(VisualOrder(u"ab.", true), (std::vector<u32> { 2, 0, 1 }));
    EXPECT_EQ(VisualOrder(u"ab \u05D0\u05D1", true), (std::vector<u32> { 4, 3, 2, 0, 1 }));
    EXPECT_EQ(VisualOrder(u"\u05D0\u05D1.", true), (std::vector<u32> { 2, 1, 0 }));
}

TEST(Shaper, SpacesAtTheEndStandAtTheEndOfTheParagraph)
{
    EXPECT_EQ(VisualOrder(u"\u05D0\u05D1  "), (std::vector<u32> { 1, 0, 2, 3 }));
    EXPECT_EQ(VisualOrder(u"ab  ", true), (std::vector<u32> { 3, 2, 0, 1 }));
}

TEST(Shaper, BracketsAreMirrored)
{
    const ShapedLine& leftToRight = Shaped(u"(a");
    const u32 opening = leftToRight.Glyphs()[0].glyph;
    const ShapedLine& rightToLeft = Shaped(u"\u05D0(\u05D1)");
    // From left to right: closing, bet, opening, alef, and what closes looks like an opening one.
    EXPECT_EQ(rightToLeft.Glyphs()[0].cluster, 3u);
    EXPECT_EQ(rightToLeft.Glyphs()[0].glyph, opening);
}

TEST(Shaper, ArabicLettersJoin)
{
    const u32 alone = Shaped(u"\u0639").Glyphs()[0].glyph;
    std::vector<u32> glyphs;
    for (const ShapedGlyph& glyph : Shaped(u"\u0639\u0639\u0639").Glyphs())
        glyphs.push_back(glyph.glyph);
    ASSERT_EQ(glyphs.size(), 3u);
    for (const u32 glyph : glyphs)
        EXPECT_NE(glyph, alone);
    EXPECT_NE(glyphs[0], glyphs[1]);
    EXPECT_NE(glyphs[1], glyphs[2]);
}

TEST(Shaper, MarksTakeNoRoom)
{
    EXPECT_NEAR(Shaped(u"q\u0307\u0323").width, Shaped(u"q").width, 0.01);
    EXPECT_NEAR(Shaped(u"e\u0301").width, Shaped(u"\u00E9").width, 0.01);
}

TEST(Shaper, ControlsShowNothingAndBreaksASpace)
{
    const float plain = Shaped(u"ab").width;
    const float space = Shaped(u" ").width;
    EXPECT_NEAR(Shaped(std::u16string_view(u"a\0b", 3)).width, plain, 0.01);
    EXPECT_NEAR(Shaped(u"a\u0001\u007F\u0085b").width, plain, 0.01);
    EXPECT_NEAR(Shaped(u"a\nb").width, plain + space, 0.01);
    EXPECT_NEAR(Shaped(u"a\rb").width, plain + space, 0.01);
    EXPECT_NEAR(Shaped(u"a\r\nb").width, plain + space, 0.01);
    EXPECT_NEAR(Shaped(u"a\tb").width, plain + space, 0.01);
    EXPECT_EQ(Shaped(std::u16string_view(u"\0\0", 2)).glyphs, 0u);
    EXPECT_EQ(Shaped(u"").width, 0);
}

TEST(Shaper, SizesDifferByScaleOnly)
{
    const std::u16string_view text = u"Mixed \u05D0\u05D1 \u4E16 \U0001F600 text";
    const float at100 = Shaped(text, false, TestFont(-100)).width;
    const float at12 = Shaped(text, false, TestFont(-12)).width;
    EXPECT_NEAR(at100 / 100, at12 / 12, 0.001);
}

TEST(Shaper, LongLinesAreShapedToo)
{
    const std::u16string text(5000, u'a');
    const ShapedLine& line = Shaped(text);
    EXPECT_EQ(line.glyphs, 5000u);
    EXPECT_NEAR(line.width, 5000 * 100 * 1255 / 2048.0, 30);
}

} // namespace
} // namespace vornix
