#include "unicode.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

TEST(Unicode, ConvertsEveryLengthOfCharacterBothWays)
{
    const std::u16string text = u"a\u007F\u0080é\u07FF\u0800ह中\uFFFF\U00010000😀\U0010FFFF";
    const std::string bytes = "a\x7F\xC2\x80\xC3\xA9\xDF\xBF\xE0\xA0\x80\xE0\xA4\xB9\xE4\xB8\xAD\xEF\xBF\xBF"
                              "\xF0\x90\x80\x80\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF";
    EXPECT_EQ(ToUtf8(text), bytes);
    EXPECT_EQ(ToUtf16(bytes), text);
}

TEST(Unicode, ReplacesUnpairedSurrogates)
{
    const std::u16string text = { u'a', 0xD83D, u'b', 0xDE00 };
    EXPECT_EQ(ToUtf8(text),
        "a\xEF\xBF\xBD"
        "b\xEF\xBF\xBD");
}

TEST(Unicode, ReplacesEachByteThatIsNoText)
{
    EXPECT_EQ(ToUtf16("x\xFFy\xC3"), u"x\uFFFDy\uFFFD");
}

TEST(Unicode, StopsAtOverlongFormsSurrogatesAndTooLargeNumbers)
{
    for (const char* bad : { "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
             "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\x80", "\xE4\xB8", "\xE4\xB8z", "\xFE" }) {
        std::u16string text;
        EXPECT_EQ(AppendUtf8(std::string("ok") + bad, text), 2u) << bad;
        EXPECT_EQ(text, u"ok") << bad;
    }
}

TEST(Unicode, KnowsABeginningOfACharacterFromAFault)
{
    EXPECT_TRUE(IsIncompleteUtf8("\xE4\xB8"));
    EXPECT_TRUE(IsIncompleteUtf8("\xF0"));
    EXPECT_FALSE(IsIncompleteUtf8("\xE4\xB8\xAD"));
    EXPECT_FALSE(IsIncompleteUtf8("\xED\xA0"));
    EXPECT_FALSE(IsIncompleteUtf8("\xE4z"));
    EXPECT_FALSE(IsIncompleteUtf8("\x80"));
}

TEST(Unicode, PutsAMessageOnOneLine)
{
    EXPECT_EQ(OneLine("a\nb\tc\x1B\x7F"), "a b c  ");
}

TEST(Unicode, MendsHalvesOfCharacters)
{
    EXPECT_EQ(WellFormed(u"a😀\xD800"
                         u"b\xDC00"),
        u"a😀\uFFFDb\uFFFD");
    EXPECT_EQ(WellFormed(u"\xDC00\xD800"), u"\uFFFD\uFFFD");
    EXPECT_EQ(WellFormed(u""), u"");
}
