#include "persist/script_parser.h"

#include <gtest/gtest.h>

#include <vector>

namespace vornix {
namespace {

using Texts = std::vector<std::u16string>;

// The elements of a script, three texts each; ends with "open" when its comments do not close, with "rest" when not all
// of it is elements.
Texts Parse(std::u16string_view script)
{
    ScriptParser parser(script);
    if (!parser.RemoveComments())
        return { u"open" };
    Texts texts;
    while (!parser.IsAtEnd()) {
        const std::optional<ScriptTag> tag = parser.Next();
        if (!tag) {
            texts.emplace_back(u"rest");
            break;
        }
        texts.emplace_back(tag->name);
        texts.emplace_back(tag->attributes);
        texts.emplace_back(tag->value);
    }
    return texts;
}

std::u16string Times(int count, std::u16string_view text)
{
    std::u16string all;
    while (count-- > 0)
        all += text;
    return all;
}

} // namespace

TEST(ScriptParser, ReadsNameAttributesAndValue)
{
    EXPECT_EQ(Parse(u"<A>1</A>"), (Texts { u"A", u"", u"1" }));
    EXPECT_EQ(Parse(u"<A Row=\"1\">x</A>"), (Texts { u"A", u"Row=\"1\"", u"x" }));
    EXPECT_EQ(Parse(u"<A></A><B>2</B>"), (Texts { u"A", u"", u"", u"B", u"", u"2" }));
}

TEST(ScriptParser, TrimsBlanksOfTheTagAndOfTheScriptAlone)
{
    EXPECT_EQ(Parse(u"   <  A   x  >  1  </A>   "), (Texts { u"A", u"  x", u"  1  " }));
    EXPECT_EQ(Parse(u"<A\tx>1</A\tx>"), (Texts { u"A\tx", u"", u"1" })) << "a tab is a character of the name";
    EXPECT_EQ(Parse(u"<\nA>1</\nA>"), (Texts { u"\nA", u"", u"1" }));
}

TEST(ScriptParser, SkipsWhatStandsAheadOfAnElement)
{
    EXPECT_EQ(Parse(u"abc > <A>1</A>\r\n\t -- <B>2</B>"), (Texts { u"A", u"", u"1", u"B", u"", u"2" }));
}

TEST(ScriptParser, DoesNotSkipWhatStandsBehindTheLast)
{
    EXPECT_EQ(Parse(u"<A>1</A>\r\n"), (Texts { u"A", u"", u"1", u"rest" }));
    EXPECT_EQ(Parse(u"<A>1</A>x"), (Texts { u"A", u"", u"1", u"rest" }));
    EXPECT_EQ(Parse(u"<A>1</A>  "), (Texts { u"A", u"", u"1" })) << "blanks are trimmed";
}

TEST(ScriptParser, TheValueEndsAtTheFirstClosingTagOfTheName)
{
    EXPECT_EQ(Parse(u"<A>a<b</A>"), (Texts { u"A", u"", u"a<b" }));
    EXPECT_EQ(Parse(u"<A><B>1</B></A>"), (Texts { u"A", u"", u"<B>1</B>" }));
    EXPECT_EQ(Parse(u"<A><A>1</A></A>"), (Texts { u"A", u"", u"<A>1", u"rest" }));
    EXPECT_EQ(Parse(u"<A>1</A >2</ A>3</a>4</A>"), (Texts { u"A", u"", u"1</A >2</ A>3</a>4" }));
    EXPECT_EQ(Parse(u"<A>></A>"), (Texts { u"A", u"", u">" }));
}

TEST(ScriptParser, ATagEndsAtItsFirstBracket)
{
    EXPECT_EQ(Parse(u"<A x=\"1>2\">3</A>"), (Texts { u"A", u"x=\"1", u"2\">3" }));
    EXPECT_EQ(Parse(u"<A <B>1</A>"), (Texts { u"A", u"<B", u"1" }));
}

TEST(ScriptParser, WhatIsNoElementEndsTheScript)
{
    for (const std::u16string_view script : { u"abc", u"<", u"<A", u"<>1</>", u"<  >1</>", u"<A>1", u"<A>1</B>",
             u"<A>1</A", u"<A/>", u"</A>", u"<A>1</a>", u">" })
        EXPECT_EQ(Parse(script), (Texts { u"rest" })) << testing::PrintToString(script);
}

TEST(ScriptParser, AnEmptyScriptHasNoElements)
{
    EXPECT_EQ(Parse(u""), Texts());
    EXPECT_EQ(Parse(u"   "), Texts());
    EXPECT_EQ(Parse(u"<!-- a --><!---->  <!-- b -->"), Texts());
    EXPECT_EQ(Parse(u"\n"), (Texts { u"rest" }));
}

TEST(ScriptParser, CommentsGoFromAnyPlace)
{
    EXPECT_EQ(Parse(u"<!-- a --><A>1</A>"), (Texts { u"A", u"", u"1" }));
    EXPECT_EQ(Parse(u"<A>1<!-- </A> -->2</A>"), (Texts { u"A", u"", u"12" }));
    EXPECT_EQ(Parse(u"<A<!-- -->B x<!--y-->z>1</AB>"), (Texts { u"AB", u"xz", u"1" }));
    EXPECT_EQ(Parse(u"<A>1</<!-->-->A>"), (Texts { u"rest" })) << "the comment ends at its own start";
    EXPECT_EQ(Parse(u"<A>1</<!-- > -->A> <!-- end -->"), (Texts { u"A", u"", u"1" }));
    EXPECT_EQ(Parse(u"<!-- <!-- --><A>1</A>"), (Texts { u"A", u"", u"1" })) << "they do not nest";
}

TEST(ScriptParser, AStartMayShareItsDashesWithItsEnd)
{
    EXPECT_EQ(Parse(u"<!--><A>1</A>"), (Texts { u"A", u"", u"1" }));
    EXPECT_EQ(Parse(u"<!---><A>1</A>"), (Texts { u"A", u"", u"1" }));
}

TEST(ScriptParser, ACommentLeftOpenFailsTheWholeScript)
{
    EXPECT_EQ(Parse(u"<A>1</A><!-- "), (Texts { u"open" }));
    EXPECT_EQ(Parse(u"<!-- a --><!-- b -- >"), (Texts { u"open" }));
    EXPECT_EQ(Parse(u"<!--"), (Texts { u"open" }));
}

TEST(ScriptParser, ACommentPutTogetherByARemovalGoesBeforeTheNextElement)
{
    EXPECT_EQ(Parse(u"<!<!--x-->-- y --><A>1</A>"), (Texts { u"A", u"", u"1" }));
    EXPECT_EQ(Parse(u"<A>1</A><!<!--x-->-- <B>2</B> --><C>3</C>"), (Texts { u"A", u"", u"1", u"C", u"", u"3" }));
    EXPECT_EQ(Parse(u"<A>1<!<!--x-->-- y -->2</A>"), (Texts { u"A", u"", u"12" }));
}

TEST(ScriptParser, BehindACommentPutTogetherNothingIsSkipped)
{
    EXPECT_EQ(Parse(u"<!<!--x-->-- y --> <A>1</A>"), (Texts { u"A", u"", u"1" })) << "blanks are trimmed";
    EXPECT_EQ(Parse(u"<!<!--x-->-- y -->z<A>1</A>"), (Texts { u"rest" }));
}

TEST(ScriptParser, DeeperOnesWaitForTheElementAfter)
{
    // Two removals away: the value of the first element still holds the comment, that of the second does not.
    const std::u16string deep = u"<!<!<!--x-->--y-->-- z -->";
    EXPECT_EQ(Parse(u"<A>" + deep + u"</A>"), (Texts { u"A", u"", u"<!-- z -->" }));
    EXPECT_EQ(Parse(u"<A>1</A><B>" + deep + u"</B>"), (Texts { u"A", u"", u"1", u"B", u"", u"" }));
}

TEST(ScriptParser, ACommentPutTogetherAndLeftOpenIsText)
{
    EXPECT_EQ(Parse(u"<A>1<!<!--x-->-- y</A><B>2</B>"), (Texts { u"A", u"", u"1<!-- y", u"B", u"", u"2" }));
    // Those ahead of it go all the same.
    EXPECT_EQ(Parse(u"<A>1<!<!--x-->--y-->2<!<!--x-->--</A>"), (Texts { u"A", u"", u"12<!--" }));
}

TEST(ScriptParser, WhatARemovalLeavesAtTheEndCounts)
{
    EXPECT_EQ(Parse(u"<A>1</A>  <!<!--x-->-- y -->  "), (Texts { u"A", u"", u"1" }))
        << "gone before the first element, and the blanks with it";
    EXPECT_EQ(Parse(u"<A>1</A>  <!<!<!--x-->--y-->-- z -->"), (Texts { u"A", u"", u"1", u"rest" }))
        << "gone behind the last element, which was not the end";
    EXPECT_EQ(Parse(u"<A>1</A>x <!<!--x-->-- y -->"), (Texts { u"A", u"", u"1", u"rest" }));
}

TEST(ScriptParser, LongScriptsTakeTimeLinearInThem)
{
    constexpr int count = 200'000;
    EXPECT_EQ(Parse(Times(count, u"<A>1</A>\r\n") + u"<A>1</A>").size(), 3u * (count + 1));
    EXPECT_EQ(Parse(Times(count, u"<A>1<!--x--></A>")).size(), 3u * count);
    EXPECT_EQ(Parse(Times(count, u"<A>1<!<!--x-->--y--></A>")).size(), 3u * count);
    EXPECT_EQ(Parse(Times(count, u"<A>1<!<!--x-->--</A>")).size(), 3u * count) << "open ones, put together";
    EXPECT_EQ(Parse(u"<A>" + Times(count, u"<!--x-->") + u"</A>").size(), 3u);
    EXPECT_EQ(Parse(Times(count, u"<")), (Texts { u"rest" }));
}

} // namespace vornix
