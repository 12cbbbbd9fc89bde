// Texts and patterns put together at random from the units that mean something to the parsers.
#include "automation/format_patterns.h"
#include "automation/reference_table.h"
#include "automation/text_compare.h"
#include "automation/text_conversions.h"

#include <gtest/gtest.h>

#include <random>

namespace vornix {

namespace {

using test::ErrorOf;
using test::ToUtf8;

constexpr int Rounds = 20000;

class RandomTexts {
public:
    std::u16string Next(std::u16string_view alphabet, int longest)
    {
        std::u16string text(std::uniform_int_distribution<std::size_t>(0, longest)(random_), u' ');
        std::uniform_int_distribution<std::size_t> unit(0, alphabet.size() - 1);
        for (char16_t& each : text)
            each = alphabet[unit(random_)];
        return text;
    }

private:
    std::mt19937 random_ { 20260101 };
};

constexpr std::u16string_view ValueUnits = u"0123456789019.,+-$()eE&HhOo /:-aApPmMJjnN#\u00A0";
constexpr std::u16string_view PatternUnits = u"0#0#.,%eE+-;;\"\\@&<>!dmyhnswqcta/p: $\u00E9";
constexpr std::u16string_view OrderUnits = u"aAbBeE\u00E9\u00C9\u0301\u00DF\u00E6ss-'- !$+0129\u0430\u0410";

} // namespace

TEST(AnyText, IsAValueOrAnErrorOfTheInterface)
{
    RandomTexts texts;
    int numbers = 0;
    int dates = 0;
    for (int round = 0; round < Rounds; ++round) {
        const std::u16string text = texts.Next(ValueUnits, 8);
        SCOPED_TRACE(ToUtf8(text));
        const int floatError = ErrorOf([&] { TextToR8(text); });
        EXPECT_EQ(IsNumeric(text), floatError == 0);
        EXPECT_EQ(IsDate(text), ErrorOf([&] { TextToDate(text); }) == 0);
        const int wideError = ErrorOf([&] { TextToI4(text); });
        EXPECT_TRUE(wideError == floatError || wideError == ErrorNumber::Overflow);
        if (ErrorOf([&] { TextToI2(text); }) == 0) {
            EXPECT_EQ(wideError, 0);
        }
        if (IsDate(text)) {
            EXPECT_NEAR(TextToDate(DateToText(TextToDate(text))), TextToDate(text), 1e-6);
        }
        numbers += IsNumeric(text);
        dates += IsDate(text);
    }
    EXPECT_GT(numbers, 100);
    EXPECT_GT(dates, 10);
}

TEST(AnyText, FormatsWithoutAnError)
{
    RandomTexts texts;
    for (int round = 0; round < Rounds; ++round) {
        const std::u16string text = texts.Next(ValueUnits, 8);
        const std::u16string pattern = texts.Next(PatternUnits, 12);
        EXPECT_EQ(ErrorOf([&] { FormatText(text, pattern); }), 0) << ToUtf8(text) << " by " << ToUtf8(pattern);
    }
}

TEST(AnyText, ComparesLikeAnOrder)
{
    RandomTexts texts;
    for (int round = 0; round < Rounds; ++round) {
        const std::u16string a = texts.Next(OrderUnits, 6);
        const std::u16string b = texts.Next(OrderUnits, 6);
        const std::u16string c = texts.Next(OrderUnits, 6);
        EXPECT_EQ(CompareTextNoCase(a, a), 0);
        EXPECT_EQ(CompareTextNoCase(a, b), -CompareTextNoCase(b, a)) << ToUtf8(a) << " / " << ToUtf8(b);
        if (CompareTextNoCase(a, b) <= 0 && CompareTextNoCase(b, c) <= 0) {
            EXPECT_LE(CompareTextNoCase(a, c), 0) << ToUtf8(a) << " / " << ToUtf8(b) << " / " << ToUtf8(c);
        }
    }
}

} // namespace vornix
