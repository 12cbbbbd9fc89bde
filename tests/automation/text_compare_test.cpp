#include "automation/text_compare.h"

#include "automation/reference_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace vornix {

namespace {

using test::NameOf;
using test::ReadReferenceTable;
using test::ReferenceRow;

constexpr const char* Table = "text_order.tsv";

} // namespace

TEST(TextCompare, EveryRowOfTheTableComparesBothWays)
{
    for (const ReferenceRow& row : ReadReferenceTable(Table, 3)) {
        SCOPED_TRACE(NameOf(Table, row));
        const int expected = std::stoi(test::ToUtf8(row.fields[2]));
        EXPECT_EQ(CompareTextNoCase(row.fields[0], row.fields[1]), expected);
        EXPECT_EQ(CompareTextNoCase(row.fields[1], row.fields[0]), -expected);
    }
}

TEST(TextCompare, HyphenAndApostropheDecideLast)
{
    EXPECT_EQ(CompareTextNoCase(u"coop", u"co-op"), -1);
    EXPECT_EQ(CompareTextNoCase(u"co-op", u"coops"), -1);
    EXPECT_EQ(CompareTextNoCase(u"co-op", u"COOP"), 1);
    EXPECT_EQ(CompareTextNoCase(u"co-op", u"CO-OP"), 0);
    EXPECT_EQ(CompareTextNoCase(u"can't", u"can-t"), -1);
    EXPECT_EQ(CompareTextNoCase(u"-ab", u"a-b"), -1);
    EXPECT_EQ(CompareTextNoCase(u"-", u"--"), -1);
}

TEST(TextCompare, AccentsDecideBetweenEqualLetters)
{
    EXPECT_EQ(CompareTextNoCase(u"resume", u"r\u00E9sum\u00E9"), -1);
    EXPECT_EQ(CompareTextNoCase(u"r\u00E9sum\u00E9", u"resumes"), -1);
    EXPECT_EQ(CompareTextNoCase(u"\u00C9", u"\u00E9"), 0);
    EXPECT_EQ(CompareTextNoCase(u"e\u0301", u"\u00E9"), 0);
    EXPECT_EQ(CompareTextNoCase(u"\u017Ei\u017Eka", u"Zizka"), 1);
    EXPECT_EQ(CompareTextNoCase(u"\u017Ei\u017Eka", u"zj"), -1);
}

TEST(TextCompare, DoubleLettersAreTheirParts)
{
    EXPECT_EQ(CompareTextNoCase(u"stra\u00DFe", u"STRASSE"), 0);
    EXPECT_EQ(CompareTextNoCase(u"\u00E6on", u"aeon"), 0);
    EXPECT_EQ(CompareTextNoCase(u"\u0152uvre", u"ofuvre"), -1);
}

TEST(TextCompare, OtherAlphabetsFollowTheLatinOneWithoutCase)
{
    EXPECT_EQ(CompareTextNoCase(u"z", u"\u0430"), -1);
    EXPECT_EQ(CompareTextNoCase(u"\u0410\u0411", u"\u0430\u0431"), 0);
    EXPECT_EQ(CompareTextNoCase(u"\u0430", u"\u0431"), -1);
    EXPECT_EQ(CompareTextNoCase(u"\u20AC", u"+"), -1);
    EXPECT_EQ(CompareTextNoCase(u"\u2022", u"1"), -1);
}

TEST(TextCompare, ControlsAndSoftHyphensDoNotCount)
{
    EXPECT_EQ(CompareTextNoCase(u"a\u00ADb", u"ab"), 0);
    EXPECT_EQ(CompareTextNoCase(std::u16string_view(u"a\0b", 3), u"ab"), 0);
    EXPECT_EQ(CompareTextNoCase(u"", u""), 0);
}

// The texts of the table, sorted from any shuffle, come out in an order without contradictions.
TEST(TextCompare, IsAnOrder)
{
    std::vector<std::u16string> texts;
    for (const ReferenceRow& row : ReadReferenceTable(Table, 3))
        texts.insert(texts.end(), row.fields.begin(), row.fields.begin() + 2);
    std::sort(texts.begin(), texts.end());
    texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
    ASSERT_GT(texts.size(), 50u);

    std::mt19937 random(7);
    std::shuffle(texts.begin(), texts.end(), random);
    std::stable_sort(
        texts.begin(), texts.end(), [](const auto& a, const auto& b) { return CompareTextNoCase(a, b) < 0; });
    for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t j = i + 1; j < texts.size(); ++j)
            EXPECT_LE(CompareTextNoCase(texts[i], texts[j]), 0)
                << test::ToUtf8(texts[i]) << " / " << test::ToUtf8(texts[j]);
}

} // namespace vornix
