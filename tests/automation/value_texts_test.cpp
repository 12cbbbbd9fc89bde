#include "automation/reference_table.h"
#include "automation/text_conversions.h"

#include <gtest/gtest.h>

#include <limits>

namespace vornix {

using test::ErrorOf;

TEST(ValueTexts, FloatsShowUpToFifteenDigits)
{
    EXPECT_EQ(NumberToText(0), u"0");
    EXPECT_EQ(NumberToText(-0.0), u"0");
    EXPECT_EQ(NumberToText(1.0), u"1");
    EXPECT_EQ(NumberToText(-1234.5), u"-1234.5");
    EXPECT_EQ(NumberToText(0.1 + 0.2), u"0.3");
    EXPECT_EQ(NumberToText(123456789012345.0), u"123456789012345");
    EXPECT_EQ(NumberToText(1e6), u"1000000");
}

TEST(ValueTexts, VeryLargeAndVerySmallFloatsHaveAnExponent)
{
    EXPECT_EQ(NumberToText(1e14), u"100000000000000");
    EXPECT_EQ(NumberToText(1e15), u"1E+15");
    EXPECT_EQ(NumberToText(-1.5e100), u"-1.5E+100");
    EXPECT_EQ(NumberToText(0.0001), u"0.0001");
    EXPECT_EQ(NumberToText(0.00001), u"1E-05");
    EXPECT_EQ(NumberToText(std::numeric_limits<double>::max()), u"1.79769313486232E+308");
    EXPECT_EQ(NumberToText(std::numeric_limits<double>::infinity()), u"1.#INF");
}

TEST(ValueTexts, SinglesShowUpToSevenDigits)
{
    EXPECT_EQ(SingleToText(0.1f), u"0.1");
    EXPECT_EQ(SingleToText(1234567.0f), u"1234567");
    EXPECT_EQ(SingleToText(12345678.0f), u"1.234568E+07");
}

TEST(ValueTexts, DatesShowTheirTimeWhenThereIsOne)
{
    EXPECT_EQ(DateToText(43832), u"1/2/2020");
    EXPECT_EQ(DateToText(43832.520833333336), u"1/2/2020 12:30:00 PM");
    EXPECT_EQ(DateToText(0.5), u"12:00:00 PM");
    EXPECT_EQ(DateToText(0), u"12:00:00 AM");
    EXPECT_EQ(DateToText(-1.25), u"12/29/1899 6:00:00 AM");
    EXPECT_EQ(DateToText(43832.999999), u"1/3/2020");
    EXPECT_EQ(DateToText(-657434), u"1/1/0100");
    EXPECT_EQ(DateToText(2958465.9999999), u"12/31/9999 11:59:59 PM");
    EXPECT_EQ(ErrorOf([] { DateToText(2958466); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { DateToText(std::numeric_limits<double>::quiet_NaN()); }), ErrorNumber::Overflow);
}

TEST(ValueTexts, DatesReadBackWhatTheyShow)
{
    for (double date = -657434; date < 2958465; date += 4321.123456) {
        const double wholeSeconds = TextToDate(DateToText(date));
        EXPECT_NEAR(wholeSeconds, date, 1.0 / 86400) << date;
    }
}

TEST(ValueTexts, Booleans)
{
    EXPECT_EQ(BoolToText(true), u"True");
    EXPECT_EQ(BoolToText(false), u"False");
}

} // namespace vornix
