#include "text/unicode_classes.h"
#include "text/utf16.h"
#include "vornix/types.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

TEST(Utf16, DecodesPairsAndReplacesHalves)
{
    const std::u16string_view text(u"a\xD83D\xDE00\xD83Dz\xDE00\xD83D", 7);
    EXPECT_EQ(DecodeUtf16(text, 0).codePoint, U'a');
    EXPECT_EQ(DecodeUtf16(text, 1).codePoint, 0x1F600u);
    EXPECT_EQ(DecodeUtf16(text, 1).units, 2u);
    EXPECT_EQ(DecodeUtf16(text, 3).codePoint, ReplacementCharacter);
    EXPECT_EQ(DecodeUtf16(text, 3).units, 1u);
    EXPECT_EQ(DecodeUtf16(text, 5).codePoint, ReplacementCharacter);
    EXPECT_EQ(DecodeUtf16(text, 6).codePoint, ReplacementCharacter);
}

TEST(Utf16, CutsBesidePairs)
{
    const std::u16string_view text = u"a\xD83D\xDE00";
    EXPECT_EQ(CutUtf16(text, 2), u"a");
    EXPECT_EQ(CutUtf16(text, 3), text);
    EXPECT_EQ(CutUtf16(text, 1), u"a");
    EXPECT_EQ(CutUtf16(text, 0), u"");
}

TEST(Utf16, BecomesUtf8)
{
    EXPECT_EQ(ToUtf8(u"a\u00E9\u20AC\U0001F600"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf8(std::u16string(1, char16_t { 0xD800 })), "\xEF\xBF\xBD");
}

TEST(UnicodeClasses, SimpleCharactersHavePlacesOfTheirOwn)
{
    std::vector<bool> taken(SimpleCharacters);
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const int index = SimpleIndex(static_cast<char16_t>(unit));
        if (index < 0)
            continue;
        ASSERT_LT(index, SimpleCharacters);
        EXPECT_FALSE(taken[static_cast<std::size_t>(index)]) << unit;
        taken[static_cast<std::size_t>(index)] = true;
        EXPECT_FALSE(ExtendsCluster(static_cast<char32_t>(unit))) << unit;
        EXPECT_FALSE(MakesLineBidirectional(static_cast<char32_t>(unit))) << unit;
        EXPECT_FALSE(IsControl(static_cast<char32_t>(unit))) << unit;
        EXPECT_FALSE(IsDefaultIgnorable(static_cast<char32_t>(unit))) << unit;
    }
    for (const char16_t unit : { u'a', u'~', u' ', u'\u00E9', u'\u0416', u'\u03B1', u'\u2013', u'\u20AC', u'\u2122' })
        EXPECT_GE(SimpleIndex(unit), 0) << static_cast<int>(unit);
    for (const int unit :
        { 0, 9, 10, 13, 0x7F, 0x85, 0xAD, 0x301, 0x483, 0x5D0, 0x627, 0x200D, 0x202E, 0x4E00, 0xD800 })
        EXPECT_EQ(SimpleIndex(static_cast<char16_t>(unit)), -1) << unit;
}

TEST(UnicodeClasses, ClustersHoldWhatBelongsTogether)
{
    const auto endOf
        = [](std::u32string_view text) { return ClusterEnd(std::vector<char32_t>(text.begin(), text.end()), 0); };
    EXPECT_EQ(endOf(U"ab"), 1u);
    EXPECT_EQ(endOf(U"e\u0301\u0323b"), 3u);
    EXPECT_EQ(endOf(U"\u2764\uFE0Fb"), 2u);
    EXPECT_EQ(endOf(U"\U0001F1E9\U0001F1EA\U0001F1EF\U0001F1F5"), 2u);
    EXPECT_EQ(endOf(U"\U0001F44D\U0001F3FDb"), 2u);
    EXPECT_EQ(endOf(U"\U0001F468\u200D\U0001F469\u200D\U0001F467b"), 5u);
    EXPECT_EQ(endOf(U"1\uFE0F\u20E3b"), 3u);
    EXPECT_EQ(endOf(U"a\u200Db"), 2u);
}

TEST(UnicodeClasses, EmojiAreKnown)
{
    for (const u32 codePoint : { 0x1F600u, 0x231Au, 0x2705u, 0x1F1E9u, 0x1FAE0u })
        EXPECT_TRUE(IsEmojiByDefault(codePoint)) << codePoint;
    for (const u32 codePoint : { 0x23u, 0xA9u, 0x2122u, 0x2764u, 0x263Au, 0x4E00u, 0x1F321u })
        EXPECT_FALSE(IsEmojiByDefault(codePoint)) << codePoint;
}

TEST(UnicodeClasses, IdeographsBreakExceptAtPunctuation)
{
    EXPECT_TRUE(BreaksFreely(0x4E16));
    EXPECT_TRUE(BreaksFreely(0x3042));
    EXPECT_TRUE(BreaksFreely(0xD55C));
    EXPECT_FALSE(BreaksFreely(U'a'));
    EXPECT_FALSE(BreaksFreely(0x0E01));
    EXPECT_TRUE(MayNotBeginLine(0x3002));
    EXPECT_TRUE(MayNotBeginLine(0x3063));
    EXPECT_FALSE(MayNotBeginLine(0x3042));
    EXPECT_TRUE(MayNotEndLine(0x300C));
    EXPECT_FALSE(MayNotEndLine(0x300D));
}

} // namespace
} // namespace vornix
