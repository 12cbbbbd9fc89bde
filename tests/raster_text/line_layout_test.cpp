#include "text_fixture.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

using Strings = std::vector<std::u16string>;

constexpr Rect Wide { 0, 0, 1000, 1000 };
constexpr int LineHeight = 14;

TEST(Measuring, WidthIsTheSumOfAdvancesWithinRounding)
{
    EXPECT_EQ(WidthOf(u"ab"), static_cast<int>(12 * 2555 / 2048.0 + 0.999));
    EXPECT_NEAR(WidthOf(u"ab"), WidthOf(u"a") + WidthOf(u"b"), 1);
    EXPECT_EQ(WidthOf(u""), 0);
}

TEST(Measuring, EveryLineIsOneLineHeight)
{
    EXPECT_EQ(Measured(u"a").bottom, LineHeight);
    std::u16string text = u"Aj";
    for (int lines = 1; lines <= 20; ++lines) {
        EXPECT_EQ(Measured(text, DT_NOPREFIX).bottom, lines * LineHeight);
        text += u'\r';
    }
}

TEST(Measuring, BreaksAreCrLfOrEitherAlone)
{
    EXPECT_EQ(TextsOf(u"a\r\nb\nc\rd", Wide, 0), (Strings { u"a", u"b", u"c", u"d" }));
    EXPECT_EQ(TextsOf(u"a\n\rb\r\r\n", Wide, 0), (Strings { u"a", u"", u"b", u"", u"" }));
    EXPECT_EQ(TextsOf(u"\n", Wide, 0), (Strings { u"", u"" }));
}

TEST(Measuring, ASingleLineIgnoresBreaks)
{
    EXPECT_EQ(TextsOf(u"a\r\nb", Wide, DT_SINGLELINE), (Strings { u"a\r\nb" }));
    EXPECT_EQ(Measured(u"a\r\nb", DT_SINGLELINE).bottom, LineHeight);
    EXPECT_EQ(Measured(u"a\r\nb", DT_SINGLELINE).right, WidthOf(u"a b"));
    EXPECT_EQ(TextsOf(u"aaa bbb", { 0, 0, 30, 100 }, DT_SINGLELINE | DT_WORDBREAK), (Strings { u"aaa bbb" }));
}

TEST(Measuring, TheWidestLineIsTheWidth)
{
    EXPECT_EQ(Measured(u"a\nlonger\nbb").right, WidthOf(u"longer"));
    EXPECT_EQ(Measured(u"a\nlonger\nbb", 0, 5).right, WidthOf(u"longer"));
}

TEST(Measuring, AnEmptyTextIsOneLineHighAndHasNoWidth)
{
    Rect rect { 10, 20, 110, 120 };
    EXPECT_EQ(DrawTextOnPixels({}, u"", rect, DT_CALCRECT, TestFont(), {}), LineHeight);
    EXPECT_EQ(rect, (Rect { 10, 20, 10, 20 + LineHeight }));
    EXPECT_TRUE(LinesOf(u"", Wide, 0).empty());
}

TEST(Measuring, KeepsTheCornerAndMovesTheOtherEdges)
{
    Rect rect { 10, 20, 15, 21 };
    EXPECT_EQ(DrawTextOnPixels({}, u"one\ntwo", rect, DT_CALCRECT, TestFont(), {}), 2 * LineHeight);
    EXPECT_EQ(rect, (Rect { 10, 20, 10 + std::max(WidthOf(u"one"), WidthOf(u"two")), 20 + 2 * LineHeight }));
}

TEST(Measuring, ExternalLeadingIsAddedOnRequest)
{
    const FontMetrics metrics = MeasureFont(TestFont());
    EXPECT_EQ(Measured(u"a\nb", DT_EXTERNALLEADING).bottom, 2 * (metrics.lineHeight + metrics.externalLeading));
    const FontDescription cjk = TestFont(-100, u"Noto Sans CJK JP");
    EXPECT_EQ(Measured(u"a", DT_EXTERNALLEADING, 1000, cjk).bottom,
        MeasureFont(cjk).lineHeight + MeasureFont(cjk).externalLeading);
}

TEST(Measuring, WhatFitsItsMeasureIsNotBrokenOrShortened)
{
    for (int length = 1; length < 60; ++length) {
        std::u16string text;
        for (int unit = 0; unit < length; ++unit)
            text += u"iW mla-t 1."[(unit * 7 + length) % 11];
        const int width = Measured(text).right;
        const Rect rect { 0, 0, width, 100 };
        EXPECT_EQ(TextsOf(text, rect, DT_WORDBREAK).size(), 1u);
        EXPECT_EQ(TextsOf(text, rect, DT_WORD_ELLIPSIS), Strings { text });
        EXPECT_EQ(TextsOf(text, rect, DT_END_ELLIPSIS), Strings { text });
    }
}

TEST(Placing, LinesStandLeftCenteredOrRight)
{
    const int width = WidthOf(u"text");
    const Rect rect { 10, 20, 110, 60 };
    EXPECT_EQ(LinesOf(u"text", rect, DT_LEFT)[0].left, 10);
    EXPECT_EQ(LinesOf(u"text", rect, DT_CENTER)[0].left, 10 + (100 - width) / 2);
    EXPECT_EQ(LinesOf(u"text", rect, DT_RIGHT)[0].left, 110 - width);
    EXPECT_EQ(LinesOf(u"text", rect, DT_LEFT)[0].top, 20);
    EXPECT_EQ(LinesOf(u"a\ntext", rect, DT_RIGHT)[1].top, 20 + LineHeight);
}

TEST(Placing, ALineTooWideOverflowsOnItsFreeSide)
{
    const int width = WidthOf(u"wide text");
    const Rect rect { 50, 0, 70, 20 };
    EXPECT_EQ(LinesOf(u"wide text", rect, DT_LEFT)[0].left, 50);
    EXPECT_EQ(LinesOf(u"wide text", rect, DT_RIGHT)[0].left, 70 - width);
    EXPECT_EQ(LinesOf(u"wide text", rect, DT_CENTER)[0].left, 50 + (20 - width) / 2);
}

TEST(Placing, OnlyASingleLineIsCenteredVertically)
{
    const Rect rect { 0, 10, 100, 60 };
    EXPECT_EQ(LinesOf(u"a", rect, DT_VCENTER | DT_SINGLELINE)[0].top, 10 + (50 - LineHeight) / 2);
    EXPECT_EQ(LinesOf(u"a", rect, DT_BOTTOM | DT_SINGLELINE)[0].top, 60 - LineHeight);
    EXPECT_EQ(LinesOf(u"a", rect, DT_VCENTER)[0].top, 10);
    EXPECT_EQ(LinesOf(u"a", rect, DT_BOTTOM)[0].top, 10);
}

TEST(Placing, TheResultIsWhereTheTextEnds)
{
    Canvas canvas(100, 100);
    const Rect rect { 0, 10, 100, 60 };
    EXPECT_EQ(canvas.Draw(u"a", rect, 0), LineHeight);
    EXPECT_EQ(canvas.Draw(u"a\nb\nc", rect, 0), 3 * LineHeight);
    EXPECT_EQ(canvas.Draw(u"a", rect, DT_VCENTER | DT_SINGLELINE), (50 - LineHeight) / 2 + LineHeight);
    EXPECT_EQ(canvas.Draw(u"a", rect, DT_BOTTOM | DT_SINGLELINE), 50);
    EXPECT_EQ(canvas.Draw(u"", rect, 0), LineHeight);
}

TEST(Placing, LinesBelowTheRectangleAreNotMade)
{
    const Rect rect { 0, 0, 100, 30 };
    EXPECT_EQ(TextsOf(u"a\nb\nc\nd", rect, 0), (Strings { u"a", u"b", u"c" }));
    EXPECT_EQ(TextsOf(u"a\nb\nc\nd", rect, DT_EDITCONTROL), (Strings { u"a", u"b" }));
    EXPECT_EQ(TextsOf(u"a\nb\nc\nd", rect, DT_NOCLIP), (Strings { u"a", u"b", u"c", u"d" }));
}

TEST(Prefix, MarksTheNextCharacter)
{
    const std::vector<KeptLine> lines = LinesOf(u"Save &As", Wide, 0);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].text, u"Save As");
    EXPECT_EQ(lines[0].mark, 5);
    EXPECT_EQ(lines[0].width, WidthOf(u"Save As"));
}

TEST(Prefix, TwoAreOneAmpersand)
{
    EXPECT_EQ(LinesOf(u"R && D", Wide, 0)[0].text, u"R & D");
    EXPECT_EQ(LinesOf(u"R && D", Wide, 0)[0].mark, -1);
    EXPECT_EQ(LinesOf(u"&&&x", Wide, 0)[0].text, u"&x");
    EXPECT_EQ(LinesOf(u"&&&x", Wide, 0)[0].mark, 1);
}

TEST(Prefix, OneAtTheEndIsDropped)
{
    EXPECT_EQ(LinesOf(u"end&", Wide, 0)[0].text, u"end");
    EXPECT_EQ(LinesOf(u"&", Wide, 0)[0].text, u"");
    EXPECT_EQ(Measured(u"&").bottom, LineHeight);
}

TEST(Prefix, FlagsTurnItOff)
{
    EXPECT_EQ(LinesOf(u"R&&D &x", Wide, DT_NOPREFIX)[0].text, u"R&&D &x");
    EXPECT_EQ(LinesOf(u"R&&D &x", Wide, DT_NOPREFIX)[0].mark, -1);
    EXPECT_EQ(LinesOf(u"R&&D &x", Wide, DT_HIDEPREFIX)[0].text, u"R&D x");
    EXPECT_EQ(LinesOf(u"R&&D &x", Wide, DT_HIDEPREFIX)[0].mark, -1);
}

TEST(Prefix, EachLineHasItsOwnMark)
{
    const std::vector<KeptLine> lines = LinesOf(u"&one\ntwo\nth&ree", Wide, 0);
    EXPECT_EQ(lines[0].mark, 0);
    EXPECT_EQ(lines[1].mark, -1);
    EXPECT_EQ(lines[2].mark, 2);
    const std::vector<KeptLine> broken = LinesOf(u"aaaa bb&bb", { 0, 0, WidthOf(u"aaaa") + 2, 100 }, DT_WORDBREAK);
    EXPECT_EQ(broken[0].mark, -1);
    EXPECT_EQ(broken[1].text, u"bbbb");
    EXPECT_EQ(broken[1].mark, 2);
}

TEST(Tabs, StandAtMultiplesOfEightAverageCharacters)
{
    const int stop = 8 * MeasureFont(TestFont()).averageWidth;
    EXPECT_EQ(Measured(u"a\tb", DT_EXPANDTABS).right, stop + WidthOf(u"b"));
    EXPECT_EQ(Measured(u"\tb", DT_EXPANDTABS).right, stop + WidthOf(u"b"));
    EXPECT_EQ(Measured(u"\t\tb", DT_EXPANDTABS).right, 2 * stop + WidthOf(u"b"));
    EXPECT_EQ(Measured(u"a\t", DT_EXPANDTABS).right, stop);
    EXPECT_EQ(Measured(u"a\tb\nx", DT_EXPANDTABS).right, stop + WidthOf(u"b"));
}

TEST(Tabs, AreSpacesUnlessExpanded)
{
    EXPECT_EQ(Measured(u"a\tb").right, WidthOf(u"a b"));
}

TEST(Tabs, TheirWidthIsInTheSecondByte)
{
    const int average = MeasureFont(TestFont()).averageWidth;
    const u32 format = DT_EXPANDTABS | DT_TABSTOP | 4u << 8;
    const std::vector<KeptLine> lines = LinesOf(u"a\tb", Wide, format);
    EXPECT_EQ(lines[0].width, 4 * average + WidthOf(u"b"));
    // The flags those bits are elsewhere do not count: 8 << 8 is also DT_NOPREFIX.
    EXPECT_EQ(LinesOf(u"&a", Wide, DT_EXPANDTABS | DT_TABSTOP | 8u << 8)[0].text, u"a");
}

TEST(Ellipsis, TheEndGivesWayToDots)
{
    const Rect rect { 0, 0, 100, 20 };
    const std::u16string_view text = u"A text that is far too long";
    for (const u32 flag : { DT_END_ELLIPSIS, DT_WORD_ELLIPSIS }) {
        const std::vector<KeptLine> lines = LinesOf(text, rect, flag | DT_SINGLELINE);
        ASSERT_EQ(lines.size(), 1u);
        const std::u16string& shown = lines[0].text;
        ASSERT_TRUE(shown.ends_with(u"..."));
        const std::u16string kept = shown.substr(0, shown.size() - 3);
        EXPECT_TRUE(text.starts_with(kept));
        EXPECT_LE(lines[0].width, 100);
        // One more character would not fit.
        EXPECT_GT(WidthOf(std::u16string(text.substr(0, kept.size() + 1)) + u"..."), 100);
    }
}

TEST(Ellipsis, AtLeastOneCharacterStays)
{
    EXPECT_EQ(TextsOf(u"Wide", { 0, 0, 3, 20 }, DT_WORD_ELLIPSIS), (Strings { u"W..." }));
    EXPECT_EQ(TextsOf(u"\U0001F600abc", { 0, 0, 3, 20 }, DT_END_ELLIPSIS), (Strings { u"\U0001F600..." }));
    EXPECT_EQ(TextsOf(u"e\u0301abc", { 0, 0, 3, 20 }, DT_END_ELLIPSIS), (Strings { u"e\u0301..." }));
}

TEST(Ellipsis, TextThatFitsIsLeftAlone)
{
    EXPECT_EQ(TextsOf(u"short", Wide, DT_END_ELLIPSIS | DT_WORD_ELLIPSIS | DT_PATH_ELLIPSIS), (Strings { u"short" }));
}

TEST(Ellipsis, EndShortensTheLastLineOnly)
{
    const Rect rect { 0, 0, 60, 1000 };
    const Strings lines = TextsOf(u"a first line too long\na last line too long", rect, DT_END_ELLIPSIS);
    EXPECT_EQ(lines[0], u"a first line too long");
    EXPECT_TRUE(lines[1].ends_with(u"..."));
}

TEST(Ellipsis, EndMarksTheLastVisibleLineWhenMoreFollows)
{
    const Rect rect { 0, 0, 200, 2 * LineHeight };
    EXPECT_EQ(TextsOf(u"one\ntwo\nthree", rect, DT_END_ELLIPSIS), (Strings { u"one", u"two..." }));
    EXPECT_EQ(TextsOf(u"one\ntwo", rect, DT_END_ELLIPSIS), (Strings { u"one", u"two" }));
}

TEST(Ellipsis, WordShortensEveryWordThatDoesNotFit)
{
    const Rect rect { 0, 0, WidthOf(u"overlong..."), 1000 };
    const Strings lines = TextsOf(u"a overlongwordhere b", rect, DT_WORD_ELLIPSIS | DT_WORDBREAK);
    EXPECT_EQ(lines, (Strings { u"a", u"overlong...", u"b" }));
}

TEST(Ellipsis, MeasuringSeesTheShortenedText)
{
    EXPECT_LE(Measured(u"A text that is far too long", DT_WORD_ELLIPSIS | DT_SINGLELINE, 60).right, 60);
    EXPECT_GT(Measured(u"A text that is far too long", DT_SINGLELINE, 60).right, 100);
}

TEST(Ellipsis, PathsKeepWhatFollowsTheLastBackslash)
{
    const std::u16string_view path = u"C:\\Folder one\\Folder two\\file.txt";
    const Rect rect { 0, 0, 130, 20 };
    const std::vector<KeptLine> lines = LinesOf(path, rect, DT_PATH_ELLIPSIS);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].text.ends_with(u"...\\file.txt"));
    EXPECT_TRUE(lines[0].text.starts_with(u"C:\\"));
    EXPECT_LE(lines[0].width, 130);
    EXPECT_EQ(TextsOf(path, { 0, 0, 10, 20 }, DT_PATH_ELLIPSIS), (Strings { u"...\\file.txt" }));
    EXPECT_TRUE(TextsOf(u"no separators in here", { 0, 0, 60, 20 }, DT_PATH_ELLIPSIS)[0].ends_with(u"..."));
}

TEST(Ellipsis, PairsAndMarksAreNotCutApart)
{
    std::u16string text;
    for (int number = 0; number < 20; ++number)
        text += u"\U0001F600e\u0301";
    for (int width = 20; width < 200; ++width) {
        const std::u16string shown = TextsOf(text, { 0, 0, width, 20 }, DT_WORD_ELLIPSIS)[0];
        ASSERT_TRUE(shown.ends_with(u"..."));
        const char16_t last = shown[shown.size() - 4];
        EXPECT_TRUE(last == 0xDE00 || last == 0x301) << width;
    }
}

} // namespace
} // namespace vornix
