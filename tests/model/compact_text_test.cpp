#include "model/compact_text.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

std::u16string Repeated(char16_t unit, std::size_t length)
{
    return std::u16string(length, unit);
}

TEST(CompactTextTest, TakesTwelveBytes)
{
    EXPECT_EQ(sizeof(CompactText), 12u);
}

TEST(CompactTextTest, StartsEmpty)
{
    const CompactText text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.Length(), 0u);
    EXPECT_EQ(text.ToString(), u"");
    EXPECT_EQ(text.HeapBytes(), 0u);
}

TEST(CompactTextTest, KeepsEveryCodeUnit)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        for (const std::size_t length : { 1u, 11u, 12u }) {
            const std::u16string value = Repeated(static_cast<char16_t>(unit), length);
            const CompactText text(value);
            ASSERT_EQ(text.ToString(), value) << unit;
            ASSERT_EQ(text.Length(), length);
            ASSERT_FALSE(text.IsEmpty());
            ASSERT_TRUE(text.Equals(value));
        }
    }
}

TEST(CompactTextTest, KeepsNulsAndHalfSurrogates)
{
    using namespace std::string_view_literals;
    for (const std::u16string_view value : { u"\0"sv, u"a\0b"sv, u"\0\0\0\0\0\0\0\0\0\0\0\0\0"sv, u"\xD83D\xDE00"sv,
             u"\xDE00"sv, u"x\xD83D"sv, u"\xFFFF\0\xFFFE"sv }) {
        const CompactText text(value);
        EXPECT_EQ(text.ToString(), value);
        std::u16string scratch;
        EXPECT_EQ(text.View(scratch), value);
    }
}

TEST(CompactTextTest, HoldsElevenNarrowUnitsInside)
{
    EXPECT_EQ(CompactText(Repeated(u'\xFF', 11)).HeapBytes(), 0u);
    EXPECT_EQ(CompactText(Repeated(u'\xFF', 12)).HeapBytes(), 4u + 12u);
}

TEST(CompactTextTest, WidensOnlyWhatNeedsIt)
{
    EXPECT_EQ(CompactText(u"\x100").HeapBytes(), 4u + 2u);
    EXPECT_EQ(CompactText(Repeated(u'a', 100)).HeapBytes(), 4u + 100u);
    EXPECT_EQ(CompactText(Repeated(u'a', 99) + u"\x20AC").HeapBytes(), 4u + 200u);
}

TEST(CompactTextTest, ShowsWideTextInPlace)
{
    const CompactText text(u"\x4E2D\x6587");
    std::u16string scratch = u"untouched";
    EXPECT_EQ(text.View(scratch), u"\x4E2D\x6587");
    EXPECT_EQ(scratch, u"untouched");
}

TEST(CompactTextTest, ComparesByValue)
{
    const CompactText text(u"abc");
    EXPECT_TRUE(text.Equals(u"abc"));
    EXPECT_FALSE(text.Equals(u"ab"));
    EXPECT_FALSE(text.Equals(u"abd"));
    // Only the low bytes are alike.
    EXPECT_FALSE(text.Equals(u"ab\x0163"));
    EXPECT_FALSE(CompactText(u"\x0163").Equals(u"c"));
}

TEST(CompactTextTest, CopiesAreIndependent)
{
    for (const std::u16string& value : { std::u16string(u"short"), Repeated(u'n', 40), Repeated(u'\x20AC', 40) }) {
        CompactText original(value);
        CompactText copy = original;
        original.Assign(u"changed, and long enough for the heap");
        EXPECT_EQ(copy.ToString(), value);
        copy = original;
        original.Clear();
        EXPECT_EQ(copy.ToString(), u"changed, and long enough for the heap");
    }
}

TEST(CompactTextTest, MovesLeaveAnEmptyText)
{
    CompactText original(Repeated(u'm', 50));
    CompactText taken = std::move(original);
    EXPECT_EQ(taken.Length(), 50u);
    EXPECT_TRUE(original.IsEmpty()); // NOLINT(bugprone-use-after-move)
    original = std::move(taken);
    EXPECT_EQ(original.Length(), 50u);
    CompactText& same = original;
    original = std::move(same);
    EXPECT_EQ(original.Length(), 50u);
    original = *&same;
    EXPECT_EQ(original.Length(), 50u);
}

TEST(CompactTextTest, TakesAViewOfItself)
{
    CompactText text(u"\x0100\x0101\x0102\x0103");
    std::u16string scratch;
    text.Assign(text.View(scratch).substr(1, 2));
    EXPECT_EQ(text.ToString(), u"\x0101\x0102");
}

TEST(CompactTextTest, FollowsAPlainStringThroughRandomChanges)
{
    RandomNumbers random(1);
    std::vector<CompactText> texts(8);
    std::vector<std::u16string> model(8);
    for (int step = 0; step < 20000; ++step) {
        const auto target = static_cast<std::size_t>(random.Between(0, 7));
        const auto source = static_cast<std::size_t>(random.Between(0, 7));
        switch (random.Between(0, 3)) {
        case 0:
            model[target] = RandomText(random);
            texts[target].Assign(model[target]);
            break;
        case 1:
            model[target] = model[source];
            texts[target] = texts[source];
            break;
        case 2:
            std::swap(model[target], model[source]);
            std::swap(texts[target], texts[source]);
            break;
        default:
            model[target].clear();
            texts[target].Clear();
        }
        for (std::size_t index = 0; index < texts.size(); ++index)
            ASSERT_EQ(texts[index].ToString(), model[index]);
    }
}

} // namespace
} // namespace vornix
