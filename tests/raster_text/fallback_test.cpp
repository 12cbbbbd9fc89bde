#include "text_fixture.h"

#include "text/utf16.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

ShapedLine& Shaped(std::u16string_view text, const FontDescription& font = TestFont())
{
    TextEngine& engine = TextEngine::OfThread();
    return engine.Line(engine.Resolve(font), text, false);
}

FontFace& FaceOf(const ShapedGlyph& glyph)
{
    return TextEngine::OfThread().Library().Face(glyph.face);
}

struct Sample {
    const char* name;
    const char16_t* text;
};

void PrintTo(const Sample& sample, std::ostream* stream)
{
    *stream << sample.name;
}

class EveryScript : public testing::TestWithParam<Sample> { };

TEST_P(EveryScript, HasAGlyphForEveryCharacterAndShowsInk)
{
    for (const char16_t* face : { u"DejaVu Sans", u"Noto Sans", u"Arial", u"Courier New", u"" }) {
        for (const int weight : { 400, 700 }) {
            FontDescription font = TestFont(-12, face);
            font.weight = weight;
            const ShapedLine& line = Shaped(GetParam().text, font);
            ASSERT_GT(line.glyphs, 0u);
            for (const ShapedGlyph& glyph : line.Glyphs())
                EXPECT_NE(glyph.glyph, 0u) << ToUtf8(face) << " unit " << glyph.cluster;
            EXPECT_GT(line.width, 0);
            Canvas canvas(300, 30);
            canvas.Draw(GetParam().text, { 0, 4, 300, 30 }, DT_SINGLELINE, font);
            EXPECT_GT(canvas.Ink().Width(), 4);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Scripts, EveryScript,
    testing::Values(Sample { "Latin", u"The quick brown fox" },
        Sample { "Accents", u"Gr\u00F6\u00DFe \u0141\u00F3d\u017A" },
        Sample { "Greek", u"\u0395\u03BB\u03BB\u03B7\u03BD\u03B9\u03BA\u03AC" },
        Sample { "Cyrillic", u"\u0420\u0443\u0441\u0441\u043A\u0438\u0439" },
        Sample { "Arabic", u"\u0627\u0644\u0633\u0644\u0627\u0645 \u0639\u0644\u064A\u0643\u0645\u060C" },
        Sample { "Hebrew", u"\u05E9\u05C1\u05B8\u05DC\u05D5\u05B9\u05DD \u05E2\u05D5\u05DC\u05DD" },
        Sample {
            "Devanagari", u"\u0928\u092E\u0938\u094D\u0924\u0947 \u0915\u094D\u0937\u0924\u094D\u0930\u093F\u092F" },
        Sample { "Thai", u"\u0E2A\u0E27\u0E31\u0E2A\u0E14\u0E35 \u0E17\u0E35\u0E48\u0E19\u0E35\u0E48" },
        Sample { "Chinese", u"\u4F60\u597D\uFF0C\u4E16\u754C\u3002" },
        Sample { "Japanese", u"\u3053\u3093\u306B\u3061\u306F\u65E5\u672C\u30AB\u30BF" },
        Sample { "Korean", u"\uC548\uB155\uD558\uC138\uC694" },
        Sample { "Combining", u"e\u0301 a\u0323\u0302 q\u0307\u0323 z\u0335" },
        Sample { "Emoji", u"\U0001F600\u2764\uFE0F" },
        Sample { "Family", u"\U0001F468\u200D\U0001F469\u200D\U0001F467" },
        Sample { "Flags", u"\U0001F1E9\U0001F1EA\U0001F1EF\U0001F1F5" }, Sample { "SkinTone", u"\U0001F44D\U0001F3FD" },
        Sample { "Keycap", u"1\uFE0F\u20E3" }, Sample { "Tamil", u"\u0BA4\u0BAE\u0BBF\u0BB4\u0BCD" },
        Sample { "Bengali", u"\u09AC\u09BE\u0982\u09B2\u09BE" }, Sample { "Georgian", u"\u10E5\u10D0\u10E0\u10D7" },
        Sample { "Armenian", u"\u0540\u0561\u0575" }, Sample { "Ethiopic", u"\u12A0\u121B\u122D\u129B" },
        Sample { "Khmer", u"\u1781\u17D2\u1798\u17C2\u179A" },
        Sample { "Symbols", u"\u2713 \u2605 \u2192 \u221E \u20B9" },
        Sample { "Mixed", u"\u20B9500 \u05E9\u05DC\u05D5\u05DD \u4E16\u754C \U0001F600 \u0928\u092E" }),
    [](const testing::TestParamInfo<Sample>& sample) { return sample.param.name; });

TEST(Fallback, TheFontItselfComesFirst)
{
    TextEngine& engine = TextEngine::OfThread();
    const Font& font = engine.Resolve(TestFont());
    for (const ShapedGlyph& glyph : Shaped(u"\u0627\u0644\u0633 abc \u05E9\u05DC").Glyphs())
        EXPECT_EQ(&FaceOf(glyph), &font.Face());
}

TEST(Fallback, ACharacterNoFontHasShowsTheMissingGlyphBox)
{
    const ShapedLine& line = Shaped(u"\U0010FFFD");
    ASSERT_EQ(line.glyphs, 1u);
    EXPECT_EQ(line.Glyphs()[0].glyph, 0u);
    EXPECT_EQ(&FaceOf(line.Glyphs()[0]), &TextEngine::OfThread().Resolve(TestFont()).Face());
    Canvas canvas(40, 20);
    canvas.Draw(u"\U0010FFFD", { 2, 2, 40, 20 }, 0);
    EXPECT_GT(canvas.Ink().Width(), 3);
    EXPECT_GT(canvas.Ink().Height(), 5);
}

TEST(Fallback, LoneSurrogatesShowTheReplacementCharacter)
{
    const ShapedLine& line = Shaped(std::u16string(u"a\xD800z", 3));
    ASSERT_EQ(line.glyphs, 3u);
    EXPECT_EQ(line.Glyphs()[1].glyph, FaceOf(line.Glyphs()[1]).NominalGlyph(ReplacementCharacter));
    EXPECT_NE(line.Glyphs()[1].glyph, 0u);
}

TEST(Fallback, EmojiSequencesAreOneColoredGlyph)
{
    for (const char16_t* text : { u"\U0001F600", u"\u2764\uFE0F", u"\U0001F468\u200D\U0001F469\u200D\U0001F467",
             u"\U0001F1E9\U0001F1EA", u"\U0001F44D\U0001F3FD", u"1\uFE0F\u20E3",
             u"\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F" }) {
        const ShapedLine& line = Shaped(text);
        EXPECT_TRUE(line.hasColor) << ToUtf8(text);
        int wide = 0;
        for (const ShapedGlyph& glyph : line.Glyphs())
            wide += glyph.advance > 0 ? 1 : 0;
        EXPECT_EQ(wide, 1) << ToUtf8(text);
        EXPECT_GT(line.width, 12);
        EXPECT_LT(line.width, 18);
    }
}

TEST(Fallback, VariationSelectorsChooseBetweenTextAndPicture)
{
    EXPECT_FALSE(Shaped(u"\u263A\uFE0E").hasColor);
    EXPECT_TRUE(Shaped(u"\u263A\uFE0F").hasColor);
    EXPECT_FALSE(Shaped(u"\u263A").hasColor);
    EXPECT_TRUE(Shaped(u"\u231A").hasColor);
    EXPECT_FALSE(Shaped(u"\u231A\uFE0E").hasColor);
    EXPECT_FALSE(Shaped(u"1#*\u00A9\u2122").hasColor);
}

TEST(Fallback, EmojiShowInTheirColors)
{
    Canvas canvas(40, 24);
    canvas.Draw(u"\u2764\uFE0F", { 2, 2, 40, 24 }, 0);
    int red = 0;
    for (const u32 pixel : canvas.Pixels())
        red += (pixel >> 16 & 0xFF) > 180 && (pixel >> 8 & 0xFF) < 100 && (pixel & 0xFF) < 100 ? 1 : 0;
    EXPECT_GT(red, 30);
    EXPECT_LT(red, 200);
}

TEST(Fallback, IdeographsFollowTheirNeighbours)
{
    const auto indexOfFirst = [](std::u16string_view text) { return FaceOf(Shaped(text).Glyphs()[0]).Source().index; };
    EXPECT_EQ(indexOfFirst(u"\u76F4\u304B\u3089"), indexOfFirst(u"\u304B"));
    EXPECT_EQ(indexOfFirst(u"\u76F4\uC548"), indexOfFirst(u"\uC548"));
    EXPECT_NE(indexOfFirst(u"\u304B"), indexOfFirst(u"\uC548"));
}

TEST(Fallback, StackedMarksKeepWithinTheLine)
{
    const FontDescription font = TestFont(-48);
    Canvas canvas(400, 200);
    canvas.Draw(u"\u0E17\u0E35\u0E48\u0E19\u0E35\u0E48", { 10, 80, 400, 200 }, DT_NOCLIP, font);
    EXPECT_GE(canvas.Ink().top, 80);
    EXPECT_LE(canvas.Ink().bottom, 80 + MeasureFont(font).lineHeight);
}

TEST(Fallback, TheMemoryOfLookupsIsBounded)
{
    TextEngine& engine = TextEngine::OfThread();
    Font& font = engine.Resolve(TestFont());
    for (char16_t unit = 0x3400; unit < 0x9000; ++unit)
        engine.Line(font, std::u16string(1, unit), false);
    EXPECT_LE(engine.Shaping().Fallback().Entries(), FallbackFinder::MostEntries);
}

} // namespace
} // namespace vornix
