#include "number_value.h"

#include "cell_content.h"

#include <gtest/gtest.h>

#include <random>

using namespace vornix::viewer;

namespace {

// Such as -0.125e3; nothing is "none".
std::string Value(std::u16string_view text, DecimalMark mark = DecimalMark::Point)
{
    const auto number = NumberIn(text, mark);
    if (!number)
        return "none";
    return (number->isNegative ? "-0." : "0.") + std::string(number->digits.begin(), number->digits.end()) + "e"
        + std::to_string(number->exponent);
}

} // namespace

TEST(NumberValue, ReadsPlainNumbers)
{
    EXPECT_EQ(Value(u"125"), "0.125e3");
    EXPECT_EQ(Value(u"-12.50"), "-0.125e2");
    EXPECT_EQ(Value(u"+0.00125"), "0.125e-2");
    EXPECT_EQ(Value(u".5"), "0.5e0");
    EXPECT_EQ(Value(u"007"), "0.7e1");
    EXPECT_EQ(Value(u"9223372036854775807"), "0.9223372036854775807e19") << "all of its digits";
    for (const char16_t* zero : { u"0", u"-0.00", u"0e7", u" 0 % " })
        EXPECT_EQ(Value(zero), "0.e0");
}

TEST(NumberValue, ReadsEitherDecimalMark)
{
    EXPECT_EQ(Value(u"1,234.5"), "0.12345e4");
    EXPECT_EQ(Value(u"1.234,5", DecimalMark::Comma), "0.12345e4");
    EXPECT_EQ(Value(u"1.234"), "0.1234e1");
    EXPECT_EQ(Value(u"1.234", DecimalMark::Comma), "0.1234e4");
    EXPECT_EQ(Value(u"1\u00A0234,5", DecimalMark::Comma), "0.12345e4");
    EXPECT_EQ(Value(u"1'234.5"), "0.12345e4");
    EXPECT_EQ(Value(u"1\u2009234\u2009567"), "0.1234567e7");
    EXPECT_EQ(Value(u"1\t234"), "none");
    EXPECT_EQ(Value(u"1.2.3"), "none");
}

TEST(NumberValue, ReadsWhatStandsAroundNumbers)
{
    EXPECT_EQ(Value(u"  $12.50 "), "0.125e2");
    EXPECT_EQ(Value(u"-$12.50"), "-0.125e2");
    EXPECT_EQ(Value(u"$-12.50"), "-0.125e2");
    EXPECT_EQ(Value(u"(12.50)"), "-0.125e2");
    EXPECT_EQ(Value(u"12,50 €", DecimalMark::Comma), "0.125e2");
    EXPECT_EQ(Value(u"EUR 12"), "0.12e2");
    EXPECT_EQ(Value(u"12EUR"), "0.12e2");
    EXPECT_EQ(Value(u"12.5 %"), "0.125e0");
    EXPECT_EQ(Value(u"\u22125"), "-0.5e1") << "the minus sign of typesetters";
    EXPECT_EQ(Value(u"1.5e-07"), "0.15e-6");
    EXPECT_EQ(Value(u"1E+20"), "0.1e21");
    EXPECT_EQ(Value(u"1e99999999999"), "0.1e10000") << "as large as any";
}

TEST(NumberValue, IsNoneOfOtherTexts)
{
    for (const char16_t* text : { u"", u" ", u"-", u"abc", u"12 monkeys", u"e5", u"5e", u"5e1.5", u"()", u"%", u"$",
             u"2024-03-05", u"1e5e5", u"Inf", u"NA" })
        EXPECT_EQ(Value(text), "none") << std::string(text, text + std::char_traits<char16_t>::length(text));
}

TEST(NumberValue, IsThereWhereverTheContentIsANumber)
{
    const std::u16string_view parts[] = { u"1", u"25", u"000", u"7", u".", u",", u"'", u" ", u"\u00A0", u"\u202F",
        u"\u2009", u"-", u"+", u"\u2212", u"$", u"€", u"EUR", u"usd", u"SEK", u"%", u"e", u"E", u"(", u")", u"" };
    std::mt19937 random(3);
    int numbers = 0;
    for (int round = 0; round < 300'000; ++round) {
        std::u16string text;
        for (auto part = 1 + random() % 7; part > 0; --part)
            text += parts[random() % std::size(parts)];
        const Content content = ContentOf(text);
        const bool isPoint = content & (IntegerWithPoint | RealWithPoint | MoneyWithPoint);
        const bool isComma = content & (IntegerWithComma | RealWithComma | MoneyWithComma);
        numbers += isPoint || isComma ? 1 : 0;
        ASSERT_TRUE(!isPoint || NumberIn(text, DecimalMark::Point)) << testing::PrintToString(text);
        ASSERT_TRUE(!isComma || NumberIn(text, DecimalMark::Comma)) << testing::PrintToString(text);
    }
    EXPECT_GT(numbers, 10'000);
}
