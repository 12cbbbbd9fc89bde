#include "text_block.h"

#include <gmock/gmock.h>

#include <random>

using namespace vornix::viewer;
using testing::IsEmpty;

TEST(TextBlock, IsSeparatedByTabsAndLineEnds)
{
    EXPECT_EQ(TextOf({ { u"a", u"b" }, { u"c", u"" } }), u"a\tb\r\nc\t");
    EXPECT_EQ(TextOf({ { u"a" } }), u"a") << "no line end behind the last row";
    EXPECT_EQ(TextOf({}), u"");
    EXPECT_EQ(TextOf({ { u"a" }, { u"" } }), u"a\r\n\r\n") << "an empty line in front of a line end";
    EXPECT_EQ(TextOf({ { u"" } }), u"\r\n");
    EXPECT_EQ(TextOf({ { u"", u"" } }), u"\t");
}

TEST(TextBlock, QuotesWhatWouldBeTakenApart)
{
    EXPECT_EQ(TextOf({ { u"a\r\nb", u"c\td" } }), u"\"a\nb\"\t\"c\td\"");
    EXPECT_EQ(TextOf({ { u"\"x\"", u"5\" wide" } }), u"\"\"\"x\"\"\"\t5\" wide");
    EXPECT_EQ(TextOf({ { u"say \"x\"\n" } }), u"\"say \"\"x\"\"\n\"");
}

TEST(TextBlock, ReadsAnyLineEnds)
{
    const TextBlock block { { u"a", u"b" }, { u"c", u"d" } };
    for (const char16_t* text : { u"a\tb\r\nc\td", u"a\tb\nc\td", u"a\tb\rc\td", u"a\tb\r\nc\td\r\n", u"a\tb\nc\td\n" })
        EXPECT_EQ(BlockOf(text), block);
    EXPECT_EQ(BlockOf(u"a\r\n\r\nb"), (TextBlock { { u"a" }, { u"" }, { u"b" } })) << "an empty row in between";
    EXPECT_EQ(BlockOf(u"\n"), (TextBlock { { u"" } }));
    EXPECT_EQ(BlockOf(u"\t"), (TextBlock { { u"", u"" } }));
    EXPECT_THAT(BlockOf(u""), IsEmpty());
}

TEST(TextBlock, ReadsQuotes)
{
    EXPECT_EQ(BlockOf(u"\"a\nb\"\tc"), (TextBlock { { u"a\nb", u"c" } }));
    EXPECT_EQ(BlockOf(u"\"a\tb\"\r\n\"\"\"x\"\"\""), (TextBlock { { u"a\tb" }, { u"\"x\"" } }));
    EXPECT_EQ(BlockOf(u"\"say \"x\"\nagain\""), (TextBlock { { u"say \"x" }, { u"again\"" } }))
        << "a mark that is not doubled ends the text where it can";
    EXPECT_EQ(BlockOf(u"\"\""), (TextBlock { { u"" } }));
    EXPECT_EQ(BlockOf(u"\"a \"b\" c\""), (TextBlock { { u"a \"b\" c" } })) << "marks that are not doubled";
}

TEST(TextBlock, LeavesMarksThatAreNoQuotes)
{
    EXPECT_EQ(BlockOf(u"5\"\t6\""), (TextBlock { { u"5\"", u"6\"" } }));
    EXPECT_EQ(BlockOf(u"\"open\tb\nc"), (TextBlock { { u"\"open", u"b" }, { u"c" } })) << "none ends it";
    EXPECT_EQ(BlockOf(u"\"a\"b\tc"), (TextBlock { { u"\"a\"b", u"c" } }));
}

// Looking for the end of each to the end of the text would take minutes.
TEST(TextBlock, MayHoldManyQuotesWithoutAnEnd)
{
    constexpr int lines = 100'000;
    for (const std::u16string line : { u"\"Smith\",5\r\n", u"\"\"\"Smith\"\"\t5\n", u"\"\r\n" }) {
        std::u16string text;
        for (int count = 0; count < lines; ++count)
            text += line;
        text += u"\"x\"y";
        const TextBlock block = BlockOf(text);
        EXPECT_EQ(block.back().back(), u"\"x\"y");
    }
}

TEST(TextBlock, ComesBackAsItWas)
{
    std::mt19937 random(11);
    const std::u16string parts[] = { u"a", u"\"", u"\t", u"\n", u" ", u"ä", u"" };
    for (int round = 0; round < 3000; ++round) {
        TextBlock block(1 + random() % 3, std::vector<std::u16string>(1 + random() % 3));
        for (auto& row : block) {
            for (std::u16string& text : row) {
                for (auto part = random() % 6; part > 0; --part)
                    text += parts[random() % std::size(parts)];
            }
        }
        ASSERT_EQ(BlockOf(TextOf(block)), block) << round;
    }
}
