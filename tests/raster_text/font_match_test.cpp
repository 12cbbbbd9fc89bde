#include "text_fixture.h"

#include "text/font_match.h"
#include "text/utf16.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vornix {
namespace {

TEST(FontMatch, ExactFamiliesAreFound)
{
    const FontSource* sans = MatchFont(u"DejaVu Sans", {});
    EXPECT_TRUE(sans->path.ends_with("DejaVuSans.ttf")) << sans->path;
    EXPECT_TRUE(MatchFont(u"dejavu sans", { true, false })->path.ends_with("DejaVuSans-Bold.ttf"));
    EXPECT_TRUE(MatchFont(u"DejaVu Sans Mono", {})->path.ends_with("DejaVuSansMono.ttf"));
    EXPECT_EQ(MatchFont(u"DejaVu Sans", {}), sans);
}

TEST(FontMatch, UsualNamesOfThePlatformHaveRelatives)
{
    const FontSource* sans = MatchFont(u"DejaVu Sans", {});
    for (const char16_t* name : { u"", u"Tahoma", u"MS Sans Serif", u"VERDANA", u"MS Shell Dlg 2" })
        EXPECT_EQ(MatchFont(name, {}), sans) << ToUtf8(name);
    EXPECT_TRUE(MatchFont(u"Segoe UI", {})->path.ends_with("NotoSans-Regular.ttf"));
    EXPECT_NE(MatchFont(u"Times New Roman", {}), sans);
    EXPECT_NE(MatchFont(u"Arial", {})->path, "");
    // Every letter of these has one width.
    const FontDescription courier = TestFont(-12, u"Courier New");
    EXPECT_EQ(WidthOf(u"iiiiiiii", courier), WidthOf(u"MMMMMMMM", courier));
}

TEST(FontMatch, UnknownNamesAreReplaced)
{
    for (const std::u16string& name : { std::u16string(u"No Such Face"), std::u16string(u"\xD800"),
             std::u16string(u"x\0y", 3), std::u16string(300, u'w'), std::u16string(u"-,:=()") }) {
        const FontSource* source = MatchFont(name, {});
        ASSERT_NE(source, nullptr);
        EXPECT_NE(source->path, "");
    }
}

TEST(FontMatch, ManyNamesDoNotPileUp)
{
    const FontSource* sans = MatchFont(u"DejaVu Sans", {});
    for (int number = 0; number < 600; ++number) {
        std::u16string name = u"Missing ";
        name.push_back(static_cast<char16_t>(0x4E00 + number));
        EXPECT_NE(MatchFont(name, {})->path, "");
    }
    EXPECT_EQ(MatchFont(u"DejaVu Sans", {}), sans);
}

TEST(FontMatch, StylesThatFilesLackAreMadeUp)
{
    TextEngine& engine = TextEngine::OfThread();
    const FontSource* regular = MatchFont(u"DejaVu Sans", {});
    FontFace& upright = engine.Library().Open(*regular, {});
    FontFace& made = engine.Library().Open(*regular, { true, true });
    EXPECT_NE(&upright, &made);
    EXPECT_TRUE(made.Emboldens());
    EXPECT_TRUE(made.Slants());
    EXPECT_GT(made.Advance(made.NominalGlyph('a')), upright.Advance(upright.NominalGlyph('a')));
    const GlyphImage upright64 = engine.Glyphs().Get(upright, upright.NominalGlyph('l'), 64 * 64, 0);
    const GlyphImage made64 = engine.Glyphs().Get(made, made.NominalGlyph('l'), 64 * 64, 0);
    EXPECT_GT(made64.width, upright64.width + 4);
}

TEST(FontMatch, NegativeHeightIsTheEmAndPositiveTheCell)
{
    const FontMetrics em = MeasureFont(TestFont(-100));
    // 1901 and 483 of 2048 units.
    EXPECT_EQ(em.ascent, 93);
    EXPECT_EQ(em.descent, 24);
    EXPECT_EQ(em.lineHeight, 117);
    EXPECT_GT(em.averageWidth, 40);
    EXPECT_LT(em.averageWidth, 70);
    EXPECT_EQ(MeasureFont(TestFont(117)).lineHeight, 117);
    EXPECT_EQ(MeasureFont(TestFont(-12)).lineHeight, 14);
    EXPECT_EQ(MeasureFont(TestFont(0)).lineHeight, MeasureFont(TestFont(-12)).lineHeight);
}

TEST(FontMatch, WeightsFrom600AreBold)
{
    FontDescription font = TestFont();
    const int regular = WidthOf(u"Weights", font);
    font.weight = 599;
    EXPECT_EQ(WidthOf(u"Weights", font), regular);
    font.weight = 600;
    const int bold = WidthOf(u"Weights", font);
    EXPECT_GT(bold, regular);
    font.weight = 900;
    EXPECT_EQ(WidthOf(u"Weights", font), bold);
}

TEST(FontMatch, UnderlineAndCharacterSetDoNotChangeTheFont)
{
    TextEngine& engine = TextEngine::OfThread();
    FontDescription font = TestFont(-13);
    const u32 id = engine.Resolve(font).Id();
    font.underline = true;
    font.strikeOut = true;
    font.charset = 178;
    EXPECT_EQ(engine.Resolve(font).Id(), id);
}

} // namespace
} // namespace vornix
