#include "text_fixture.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

using Strings = std::vector<std::u16string>;

Strings Broken(std::u16string_view text, int width, u32 format = 0)
{
    return TextsOf(text, { 0, 0, width, 100000 }, DT_WORDBREAK | DT_NOPREFIX | format);
}

TEST(LineBreaking, BreaksAtSpaces)
{
    EXPECT_EQ(Broken(u"one two three", WidthOf(u"one two")), (Strings { u"one two", u"three" }));
    EXPECT_EQ(Broken(u"one two three", WidthOf(u"one two") - 1), (Strings { u"one", u"two", u"three" }));
    EXPECT_EQ(Broken(u"one two three", 1000), (Strings { u"one two three" }));
}

TEST(LineBreaking, SpacesAtABreakBelongToNoLine)
{
    EXPECT_EQ(Broken(u"one     two", WidthOf(u"one ")), (Strings { u"one", u"two" }));
    EXPECT_EQ(Broken(u"  one two", WidthOf(u"  one")), (Strings { u"  one", u"two" }));
    const Rect measured = Measured(u"one     two", DT_WORDBREAK, WidthOf(u"one "));
    EXPECT_EQ(measured.right, std::max(WidthOf(u"one"), WidthOf(u"two")));
}

TEST(LineBreaking, SpacesAtTheEndMakeNoLine)
{
    EXPECT_EQ(Broken(u"one      ", WidthOf(u"one")), (Strings { u"one" }));
    EXPECT_EQ(Broken(u"one      \ntwo", WidthOf(u"one")), (Strings { u"one", u"two" }));
}

TEST(LineBreaking, AWordTooWideStandsAlone)
{
    EXPECT_EQ(Broken(u"a extraordinarily b", WidthOf(u"extra")), (Strings { u"a", u"extraordinarily", u"b" }));
    EXPECT_EQ(Broken(u"extraordinarily", 5), (Strings { u"extraordinarily" }));
    EXPECT_EQ(Measured(u"a extraordinarily b", DT_WORDBREAK, 20).right, WidthOf(u"extraordinarily"));
    EXPECT_EQ(Measured(u"a extraordinarily b", DT_WORDBREAK, 20).bottom, 3 * 14);
}

TEST(LineBreaking, EditControlsBreakInsideWords)
{
    const Strings lines = Broken(u"aaaaaaaaaa", WidthOf(u"aaaa"), DT_EDITCONTROL);
    EXPECT_EQ(lines, (Strings { u"aaaa", u"aaaa", u"aa" }));
    EXPECT_EQ(Broken(u"aaa", 1, DT_EDITCONTROL), (Strings { u"a", u"a", u"a" }));
}

TEST(LineBreaking, HardBreaksRemain)
{
    EXPECT_EQ(Broken(u"one two\r\n\r\nthree", WidthOf(u"one")), (Strings { u"one", u"two", u"", u"three" }));
}

TEST(LineBreaking, IdeographsBreakBetweenEachOther)
{
    const int three = WidthOf(u"\u4E16\u754C\u4E2D");
    EXPECT_EQ(Broken(u"\u4E16\u754C\u4E2D\u6587\u5B57", three), (Strings { u"\u4E16\u754C\u4E2D", u"\u6587\u5B57" }));
    EXPECT_EQ(Broken(u"\u4E16\u754C\u4E2D\u6587\u5B57", three, DT_NOFULLWIDTHCHARBREAK),
        (Strings { u"\u4E16\u754C\u4E2D\u6587\u5B57" }));
}

TEST(LineBreaking, PunctuationOfIdeographsKeepsItsPlace)
{
    const int two = WidthOf(u"\u4E16\u754C");
    // A full stop does not begin a line, a bracket does not end one.
    EXPECT_EQ(Broken(u"\u4E16\u754C\u3002\u4E2D", two), (Strings { u"\u4E16", u"\u754C\u3002", u"\u4E2D" }));
    EXPECT_EQ(Broken(u"\u4E16\u300C\u4E2D\u300D", two), (Strings { u"\u4E16", u"\u300C\u4E2D\u300D" }));
}

TEST(LineBreaking, ClustersAreNotBroken)
{
    std::u16string text;
    for (int number = 0; number < 10; ++number)
        text += u"\U0001F468\u200D\U0001F469\u200D\U0001F467";
    for (const u32 format : { 0u, DT_EDITCONTROL }) {
        std::u16string together;
        for (const std::u16string& line : Broken(text, 40, format)) {
            EXPECT_TRUE(line.starts_with(u"\U0001F468"));
            EXPECT_TRUE(line.ends_with(u"\U0001F467"));
            together += line;
        }
        EXPECT_EQ(together, text);
    }
}

TEST(LineBreaking, ZeroWidthSpacesAreOpportunities)
{
    EXPECT_EQ(Broken(u"aaaa\u200Bbbbb", WidthOf(u"aaaab")), (Strings { u"aaaa\u200B", u"bbbb" }));
}

TEST(LineBreaking, TabsMoveTheWordsBehindThem)
{
    const int stop = 8 * MeasureFont(TestFont()).averageWidth;
    EXPECT_EQ(Broken(u"a\tb", stop + WidthOf(u"b"), DT_EXPANDTABS), (Strings { u"a\tb" }));
    EXPECT_EQ(Broken(u"a\tb", stop + WidthOf(u"b") - 1, DT_EXPANDTABS), (Strings { u"a", u"b" }));
}

TEST(LineBreaking, RightToLeftTextBreaksInReadingOrder)
{
    const std::u16string_view text = u"\u05D0\u05D0\u05D0 \u05D1\u05D1\u05D1 \u05D2\u05D2\u05D2";
    const int width = WidthOf(u"\u05D0\u05D0\u05D0 \u05D1\u05D1\u05D1");
    EXPECT_EQ(Broken(text, width, DT_RTLREADING),
        (Strings { u"\u05D0\u05D0\u05D0 \u05D1\u05D1\u05D1", u"\u05D2\u05D2\u05D2" }));
}

// A slow model for plain words: line after line, as many words as fit.
Strings GreedyLines(const std::vector<std::u16string>& words, int width)
{
    Strings lines;
    std::u16string line;
    for (const std::u16string& word : words) {
        if (line.empty()) {
            line = word;
            continue;
        }
        if (WidthOf(line + u" " + word) <= width) {
            line += u" " + word;
            continue;
        }
        lines.push_back(line);
        line = word;
    }
    lines.push_back(line);
    return lines;
}

TEST(LineBreaking, AgreesWithTheObviousModel)
{
    Random random(11);
    for (int round = 0; round < 150; ++round) {
        std::vector<std::u16string> words;
        std::u16string text;
        for (unsigned count = 1 + random() % 40; count > 0; --count) {
            std::u16string word;
            for (unsigned length = 1 + random() % 9; length > 0; --length)
                word += static_cast<char16_t>(u'a' + random() % 26);
            text += (text.empty() ? u"" : u" ") + word;
            words.push_back(word);
        }
        const int width = 10 + static_cast<int>(random() % 200);
        EXPECT_EQ(Broken(text, width), GreedyLines(words, width));
    }
}

TEST(LineBreaking, LongParagraphsAreBrokenWindowByWindow)
{
    std::vector<std::u16string> words;
    std::u16string text;
    for (int number = 0; number < 3000; ++number) {
        std::u16string word(1 + number * 7 % 11, static_cast<char16_t>(u'a' + number % 26));
        text += (text.empty() ? u"" : u" ") + word;
        words.push_back(word);
    }
    EXPECT_GT(text.size(), 10000u);
    EXPECT_EQ(Broken(text, 137), GreedyLines(words, 137));
    std::size_t units = 0;
    for (const std::u16string& line : Broken(text, 12000))
        units += line.size() + 1;
    EXPECT_EQ(units, text.size() + 1);
}

} // namespace
} // namespace vornix
