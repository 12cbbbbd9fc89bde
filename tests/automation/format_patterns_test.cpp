#include "automation/format_patterns.h"

#include "automation/reference_table.h"

#include <gtest/gtest.h>

namespace vornix {

namespace {

using test::NameOf;
using test::ReadReferenceTable;
using test::ReferenceRow;

std::string Formatted(std::u16string_view text, std::u16string_view pattern)
{
    return test::ToUtf8(FormatText(text, pattern));
}

} // namespace

TEST(FormatPatterns, EveryRowOfTheTableFormats)
{
    constexpr const char* table = "format_patterns.tsv";
    for (const ReferenceRow& row : ReadReferenceTable(table, 3)) {
        SCOPED_TRACE(NameOf(table, row));
        EXPECT_EQ(Formatted(row.fields[0], row.fields[1]), test::ToUtf8(row.fields[2]));
    }
}

TEST(FormatPatterns, AnEmptyPatternAndAnEmptyTextStay)
{
    EXPECT_EQ(Formatted(u"1,234", u""), "1,234");
    EXPECT_EQ(Formatted(u"", u"0.00"), "");
    EXPECT_EQ(Formatted(u"", u"yyyy"), "");
}

TEST(FormatPatterns, AnEmptySectionShowsLikeAPositiveNumber)
{
    EXPECT_EQ(Formatted(u"-5", u"$#,##0;;\\Z\\e\\r\\o"), "-$5");
    EXPECT_EQ(Formatted(u"0", u"$#,##0;;\\Z\\e\\r\\o"), "Zero");
    EXPECT_EQ(Formatted(u"0", u"0.0;(0.0);"), "0.0");
    EXPECT_EQ(Formatted(u"0", u"0.0;(0.0);\"none\""), "none");
    EXPECT_EQ(Formatted(u"-7", u"0;\"below\""), "below");
}

TEST(FormatPatterns, SemicolonsInsideLiteralsDoNotPart)
{
    EXPECT_EQ(Formatted(u"-2", u"0\";\"0"), "-0;2");
    EXPECT_EQ(Formatted(u"12", u"0\\;0"), "1;2");
}

TEST(FormatPatterns, CommasBehindTheLastPlaceDivideByThousands)
{
    EXPECT_EQ(Formatted(u"123456789", u"##0,,"), "123");
    EXPECT_EQ(Formatted(u"123456789", u"#,##0,"), "123,457");
    EXPECT_EQ(Formatted(u"1234567", u"0,.0"), "1234.6");
}

TEST(FormatPatterns, LiteralsStandBetweenPlaces)
{
    EXPECT_EQ(Formatted(u"5551234567", u"(000) 000-0000"), "(555) 123-4567");
    EXPECT_EQ(Formatted(u"1234567", u"0.0\"x\"0"), "1234567.0x0");
    EXPECT_EQ(Formatted(u"0.5", u".00"), ".50");
    EXPECT_EQ(Formatted(u"12.5", u".00"), "12.50");
    EXPECT_EQ(Formatted(u"5", u"#0#"), "05");
    EXPECT_EQ(Formatted(u"5", u"\"open"), "open");
    EXPECT_EQ(Formatted(u"5", u"0\\"), "5");
}

TEST(FormatPatterns, ZerosAreGroupedLikeOtherDigits)
{
    EXPECT_EQ(Formatted(u"12", u"0,000"), "0,012");
    EXPECT_EQ(Formatted(u"1234567890", u"#,#"), "1,234,567,890");
}

TEST(FormatPatterns, TiesOfTheDecimalTextGoAwayFromZero)
{
    EXPECT_EQ(Formatted(u"2.5", u"0"), "3");
    EXPECT_EQ(Formatted(u"-2.5", u"0"), "-3");
    EXPECT_EQ(Formatted(u"1.005", u"0.00"), "1.01");
    EXPECT_EQ(Formatted(u"999.995", u"#,##0.00"), "1,000.00");
    EXPECT_EQ(Formatted(u"0.0049", u"0.00"), "0.00");
    EXPECT_EQ(Formatted(u"1e-20", u"0.00"), "0.00");
    EXPECT_EQ(Formatted(u"1e20", u"#,##0"), "100,000,000,000,000,000,000");
}

TEST(FormatPatterns, ExponentsFollowTheirPlaces)
{
    EXPECT_EQ(Formatted(u"0.00012", u"0.0E+00"), "1.2E-04");
    EXPECT_EQ(Formatted(u"0.00012", u"0.0E-0"), "1.2E-4");
    EXPECT_EQ(Formatted(u"12345", u"00.0e+0"), "12.3e+3");
    EXPECT_EQ(Formatted(u"9.99", u"0.0E+0"), "1.0E+1");
    EXPECT_EQ(Formatted(u"1e100", u"0E+00"), "1E+100");
    EXPECT_EQ(Formatted(u"5", u"0E+#"), "5E+0");
}

TEST(FormatPatterns, NamedFormatsAreFoundInAnyCase)
{
    EXPECT_EQ(Formatted(u"1234.5", u"CURRENCY"), "$1,234.50");
    EXPECT_EQ(Formatted(u"-1234.5", u"Currency"), "($1,234.50)");
    EXPECT_EQ(Formatted(u"0", u"yes/no"), "No");
    EXPECT_EQ(Formatted(u"-3", u"On/Off"), "On");
    EXPECT_EQ(Formatted(u"0", u"True/False"), "False");
    EXPECT_EQ(Formatted(u"1,234.50", u"General Number"), "1234.5");
    EXPECT_EQ(Formatted(u"abc", u"General Number"), "abc");
}

TEST(FormatPatterns, NamedDateFormats)
{
    constexpr std::u16string_view moment = u"2020-03-04 15:06:07";
    EXPECT_EQ(Formatted(moment, u"General Date"), "3/4/2020 3:06:07 PM");
    EXPECT_EQ(Formatted(u"2020-03-04", u"General Date"), "3/4/2020");
    EXPECT_EQ(Formatted(u"15:06", u"General Date"), "3:06:00 PM");
    EXPECT_EQ(Formatted(moment, u"Long Date"), "Wednesday, March 4, 2020");
    EXPECT_EQ(Formatted(moment, u"Medium Date"), "04-Mar-20");
    EXPECT_EQ(Formatted(moment, u"Long Time"), "3:06:07 PM");
    EXPECT_EQ(Formatted(moment, u"Medium Time"), "03:06 PM");
    EXPECT_EQ(Formatted(moment, u"Short Time"), "15:06");
    EXPECT_EQ(Formatted(u"abc", u"Short Date"), "abc");
}

TEST(FormatPatterns, DatePatterns)
{
    constexpr std::u16string_view moment = u"2020-03-04 15:06:07";
    EXPECT_EQ(Formatted(moment, u"c"), "3/4/2020 3:06:07 PM");
    EXPECT_EQ(Formatted(moment, u"ddddd ttttt"), "3/4/2020 3:06:07 PM");
    EXPECT_EQ(Formatted(moment, u"dddddd"), "Wednesday, March 4, 2020");
    EXPECT_EQ(Formatted(moment, u"ddd d"), "Wed 4");
    EXPECT_EQ(Formatted(moment, u"w ww y"), "4 10 64");
    EXPECT_EQ(Formatted(moment, u"hh:mm"), "15:06");
    EXPECT_EQ(Formatted(moment, u"h:n:s"), "15:6:7");
    EXPECT_EQ(Formatted(moment, u"mm/dd hh:mm"), "03/04 15:06");
    EXPECT_EQ(Formatted(moment, u"YYYY\\y"), "2020y");
    EXPECT_EQ(Formatted(moment, u"d \"of\" mmmm"), "4 of March");
    EXPECT_EQ(Formatted(u"2020-12-31", u"q ww"), "4 53");
}

TEST(FormatPatterns, HoursCountToTwelveBesideAHalfDay)
{
    EXPECT_EQ(Formatted(u"15:06", u"h:nn AM/PM"), "3:06 PM");
    EXPECT_EQ(Formatted(u"0:06", u"hh:nn am/pm"), "12:06 am");
    EXPECT_EQ(Formatted(u"12:06", u"h A/P"), "12 P");
    EXPECT_EQ(Formatted(u"9:06", u"h a/p"), "9 a");
    EXPECT_EQ(Formatted(u"9:06", u"h AMPM"), "9 AM");
}

TEST(FormatPatterns, ANumberIsADayToADatePattern)
{
    EXPECT_EQ(Formatted(u"43832.5", u"yyyy-mm-dd hh:nn"), "2020-01-02 12:00");
    EXPECT_EQ(Formatted(u"-1.25", u"yyyy-mm-dd hh:nn"), "1899-12-29 06:00");
    EXPECT_EQ(Formatted(u"1e9", u"yyyy"), "1e9");
    // A month and a year rather than a grouped number.
    EXPECT_EQ(Formatted(u"12,34", u"yyyy-mm"), "2034-12");
}

TEST(FormatPatterns, ADateIsATextToANumberPattern)
{
    EXPECT_EQ(Formatted(u"1/2/2020", u"0.00"), "1/2/2020");
}

TEST(FormatPatterns, TextPatternsFillFromTheRight)
{
    EXPECT_EQ(Formatted(u"ab", u"@@@@"), "  ab");
    EXPECT_EQ(Formatted(u"ab", u"&&&&"), "ab");
    EXPECT_EQ(Formatted(u"ab", u"!@@@@"), "ab  ");
    EXPECT_EQ(Formatted(u"1234567", u"@@@-@@@@"), "123-4567");
    EXPECT_EQ(Formatted(u"34567", u"@@@-@@@@"), "  3-4567");
    EXPECT_EQ(Formatted(u"012345678", u"@@@-@@@@"), "01234-5678");
    EXPECT_EQ(Formatted(u"012345678", u"!@@@-@@@@"), "012-345678");
}

TEST(FormatPatterns, TextPatternsChangeCase)
{
    EXPECT_EQ(Formatted(u"Ab\u00C9", u"<"), "ab\u00E9");
    EXPECT_EQ(Formatted(u"ab\u00E9", u">@@@"), "AB\u00C9");
    EXPECT_EQ(Formatted(u"ab", u"> \"is\" @@"), " is AB");
}

TEST(FormatPatterns, TheSecondTextSectionIsForTheEmptyText)
{
    EXPECT_EQ(Formatted(u"", u"@;\"none\""), "none");
    EXPECT_EQ(Formatted(u"x", u"@;\"none\""), "x");
    EXPECT_EQ(Formatted(u"", u"@@"), "  ");
}

} // namespace vornix
