#include "cell_content.h"

#include <gtest/gtest.h>

using namespace vornix::viewer;

namespace {

bool Has(std::u16string_view text, Content content)
{
    return (ContentOf(text) & content) != 0;
}

} // namespace

TEST(CellContent, KnowsWholeNumbers)
{
    for (const auto* text : { u"0", u"7", u"-12", u"+5", u"1,234", u"1.234.567", u"12 345", u" 42 ", u"−3",
             u"999999999999999999", u"1'000'000" })
        EXPECT_TRUE(Has(text, AnyInteger)) << std::string(text, text + std::u16string_view(text).size());
}

TEST(CellContent, KnowsDecimalsWithPointOrComma)
{
    EXPECT_TRUE(Has(u"3.14", RealWithPoint));
    EXPECT_FALSE(Has(u"3.14", RealWithComma));
    EXPECT_TRUE(Has(u"3,14", RealWithComma));
    EXPECT_FALSE(Has(u"3,14", RealWithPoint));
    EXPECT_TRUE(Has(u"1,234.50", RealWithPoint));
    EXPECT_TRUE(Has(u"1.234,50", RealWithComma));
    EXPECT_TRUE(Has(u"1\u00A0234,50", RealWithComma));
    EXPECT_TRUE(Has(u".5", RealWithPoint));
    EXPECT_TRUE(Has(u"-0.25", RealWithPoint));
    EXPECT_TRUE(Has(u"6.02e23", RealWithPoint));
    EXPECT_TRUE(Has(u"1E-9", RealWithPoint));
    EXPECT_TRUE(Has(u"12.5 %", RealWithPoint));
    EXPECT_TRUE(Has(u"(12.50)", RealWithPoint));
}

TEST(CellContent, KnowsAmountsWithACurrency)
{
    for (const auto* text :
        { u"$1,234.50", u"€ 12", u"12,50 €", u"-$5.00", u"$-5.00", u"($5.00)", u"USD 10", u"10.00 chf", u"₹1,000" }) {
        EXPECT_TRUE(Has(text, AnyMoney));
        EXPECT_FALSE(Has(text, AnyReal | AnyInteger));
    }
}

TEST(CellContent, TakesCodesAndOtherTextsForNoNumbers)
{
    for (const auto* text :
        { u"00123", u"12-34", u"1,23,4.5", u"1,2345", u"12,34", u"1.2.3", u"-", u"+", u"1e", u"e5", u"%", u"--5",
            u"(-5)", u"0x10", u"12a", u"", u" ", u"1234567890123456789", u"$", u"5.", u"1,", u",", u"." })
        EXPECT_FALSE(Has(text, IntegerWithPoint | RealWithPoint | MoneyWithPoint)) << ContentOf(text);
}

TEST(CellContent, KnowsDatesInTheCommonForms)
{
    for (const auto* text :
        { u"2024-03-05", u"2024/3/5", u"2024.03.05", u"5.3.2024", u"05.03.24", u"3/25/2024", u"25/3/2024",
            u"25-03-2024", u"5 Mar 2024", u"5. March 2024", u"05-MAR-2024", u"Mar 5, 2024", u"September 30, 1999" }) {
        EXPECT_TRUE(Has(text, DateOnly));
        EXPECT_TRUE(Has(text, DateAndTime));
    }
    EXPECT_TRUE(Has(u"2024-03-05", IsoDate));
    EXPECT_FALSE(Has(u"5.3.2024", IsoDate));
}

TEST(CellContent, KnowsDatesWithATime)
{
    for (const auto* text : { u"2024-03-05 14:30", u"2024-03-05T14:30:15Z", u"2024-03-05T14:30:15.250+01:00",
             u"2024-03-05 14:30:15-0330", u"3/5/2024 2:30 PM", u"Mar 5, 2024, 11:05:09 am", u"5.3.2024 7:05" }) {
        EXPECT_TRUE(Has(text, DateAndTime));
        EXPECT_FALSE(Has(text, DateOnly));
    }
}

TEST(CellContent, TestsDaysAgainstTheMonth)
{
    EXPECT_TRUE(Has(u"2024-02-29", DateOnly));
    EXPECT_TRUE(Has(u"2000-02-29", DateOnly));
    for (const auto* text :
        { u"2023-02-29", u"1900-02-29", u"2024-04-31", u"2024-13-01", u"2024-00-10", u"2024-01-00", u"31.4.2024",
            u"32/1/2024", u"13/13/2024", u"30 Feb 2024", u"2024-03-05x", u"2024-03-05 25:00", u"2024-03-05 10:60",
            u"2024-03-05 13:00 PM", u"2024-03", u"5.3", u"24-03-05", u"12345-01-01", u"Marvin 5, 2024" })
        EXPECT_FALSE(Has(text, AnyDate));
}

TEST(CellContent, KnowsTruthValues)
{
    EXPECT_TRUE(Has(u"true", WordTrueFalse));
    EXPECT_TRUE(Has(u"FALSE", WordTrueFalse));
    EXPECT_TRUE(Has(u"Yes", WordYesNo));
    EXPECT_TRUE(Has(u"n", LetterYesNo));
    EXPECT_TRUE(Has(u"T", LetterTrueFalse));
    EXPECT_FALSE(Has(u"1", AnyTruthValue));
    EXPECT_EQ(TruthValueOf(u" True "), true);
    EXPECT_EQ(TruthValueOf(u"no"), false);
    EXPECT_EQ(TruthValueOf(u"1"), true);
    EXPECT_EQ(TruthValueOf(u"0"), false);
    EXPECT_EQ(TruthValueOf(u"2"), std::nullopt);
    EXPECT_EQ(TruthValueOf(u""), std::nullopt);
}

TEST(CellContent, GivesUpOnLongTexts)
{
    EXPECT_EQ(ContentOf(std::u16string(1000, u'1')), 0u);
}

TEST(CellContent, KnowsTheOppositeInTheSameWriting)
{
    const std::vector<std::pair<std::u16string, std::u16string>> pairs { { u"true", u"false" }, { u"True", u"False" },
        { u"TRUE", u"FALSE" }, { u"no", u"yes" }, { u"No", u"Yes" }, { u"NO", u"YES" }, { u"y", u"n" }, { u"F", u"T" },
        { u"1", u"0" }, { u" Yes ", u"No" } };
    for (const auto& [text, opposite] : pairs)
        EXPECT_EQ(OppositeTruthText(text), opposite);
}
