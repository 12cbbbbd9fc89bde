#include "automation/text_conversions.h"

#include "automation/date_fields.h"
#include "automation/date_parser.h"
#include "automation/reference_table.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace vornix {

namespace {

using test::ErrorOf;
using test::NameOf;
using test::ReadReferenceTable;
using test::ReferenceRow;
using test::ToUtf8;

constexpr const char* Table = "text_conversions.tsv";

// A column of the table and the conversion it is about. All values of the table are exact as doubles but the dates.
struct Column {
    const char* name;
    std::size_t index;
    double tolerance;
    double (*convert)(std::u16string_view text);
};

// The table was read in 2026; a date without a year is one of the current year.
double DateIn2026(std::u16string_view text)
{
    const std::optional<double> date = ParseDate(text, BuiltinLocale(), 2026);
    if (!date)
        throw AutomationError(ErrorNumber::TypeMismatch);
    return *date;
}

const Column Columns[] = {
    { "I2", 1, 0, [](std::u16string_view text) { return static_cast<double>(TextToI2(text)); } },
    { "I4", 2, 0, [](std::u16string_view text) { return static_cast<double>(TextToI4(text)); } },
    { "R8", 3, 0, [](std::u16string_view text) { return TextToR8(text); } },
    { "Bool", 4, 0, [](std::u16string_view text) { return TextToBool(text) ? -1.0 : 0.0; } },
    { "Date", 5, 1e-9, DateIn2026 },
};

int ExpectedError(const std::u16string& field)
{
    if (field == u"mismatch")
        return ErrorNumber::TypeMismatch;
    return field == u"overflow" ? ErrorNumber::Overflow : 0;
}

class TextConversionTable : public testing::TestWithParam<Column> { };

} // namespace

TEST_P(TextConversionTable, EveryRowConverts)
{
    const Column& column = GetParam();
    for (const ReferenceRow& row : ReadReferenceTable(Table, 6)) {
        SCOPED_TRACE(NameOf(Table, row));
        const std::u16string& expected = row.fields[column.index];
        double value = 0;
        const int error = ErrorOf([&] { value = column.convert(row.fields[0]); });
        EXPECT_EQ(error, ExpectedError(expected));
        if (error == 0 && ExpectedError(expected) == 0) {
            EXPECT_NEAR(value, std::stod(ToUtf8(expected)), column.tolerance);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Columns, TextConversionTable, testing::ValuesIn(Columns),
    [](const testing::TestParamInfo<Column>& column) { return column.param.name; });

TEST(TextConversions, ATextIsNumericWhereItHasAFloatAndADateWhereItHasADate)
{
    for (const ReferenceRow& row : ReadReferenceTable(Table, 6)) {
        SCOPED_TRACE(NameOf(Table, row));
        EXPECT_EQ(IsNumeric(row.fields[0]), ExpectedError(row.fields[3]) == 0);
        EXPECT_EQ(IsDate(row.fields[0]), ExpectedError(row.fields[5]) == 0);
    }
}

TEST(TextConversions, FractionsRoundToTheEvenInteger)
{
    EXPECT_EQ(TextToI2(u"0.5"), 0);
    EXPECT_EQ(TextToI2(u"1.5"), 2);
    EXPECT_EQ(TextToI2(u"2.5"), 2);
    EXPECT_EQ(TextToI2(u"-1.5"), -2);
    EXPECT_EQ(TextToI4(u"2147483646.5"), 2147483646);
    EXPECT_EQ(TextToI2(u"-32768.5"), -32768);
    EXPECT_EQ(ErrorOf([] { TextToI4(u"2147483647.5"); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { TextToI4(u"-2147483648.6"); }), ErrorNumber::Overflow);
}

TEST(TextConversions, HexadecimalAndOctalTextsFillTheBitsOfTheType)
{
    EXPECT_EQ(TextToI2(u"&H7FFF"), 32767);
    EXPECT_EQ(TextToI2(u"&H8000"), -32768);
    EXPECT_EQ(TextToI2(u"&hffff"), -1);
    EXPECT_EQ(TextToI4(u"&HFFFF"), 65535);
    EXPECT_EQ(TextToI4(u"&HFFFFFFFF"), -1);
    EXPECT_EQ(TextToI4(u"&H80000000"), -2147483647 - 1);
    EXPECT_EQ(TextToR8(u"&HFFFF"), 65535);
    EXPECT_EQ(TextToI2(u"&O177777"), -1);
    EXPECT_EQ(ErrorOf([] { TextToI2(u"&O200000"); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { TextToI4(u"&H100000000"); }), ErrorNumber::Overflow);
    EXPECT_EQ(TextToI2(u" &H10 "), 16);
    EXPECT_FALSE(IsNumeric(u"&H10000000000000000"));
    EXPECT_FALSE(IsNumeric(u"&O8"));
    EXPECT_FALSE(IsNumeric(u"&H1.5"));
    EXPECT_FALSE(IsNumeric(u"&HFFg"));
}

TEST(TextConversions, SignsBracketsAndCurrencyComeOnce)
{
    EXPECT_EQ(TextToR8(u"5-"), -5);
    EXPECT_EQ(TextToR8(u"5 -"), -5);
    EXPECT_EQ(TextToR8(u"($1,234.50)"), -1234.5);
    EXPECT_EQ(TextToR8(u"$(5)"), -5);
    EXPECT_EQ(TextToR8(u"5$"), 5);
    for (const std::u16string_view text :
        { u"--5", u"++5", u"-5-", u"+5+", u"((5))", u"5)", u"()", u"$$5", u"$5$", u"$", u"-", u"(", u"5-+-" })
        EXPECT_FALSE(IsNumeric(text)) << ToUtf8(text);
}

TEST(TextConversions, PointsGroupsAndExponents)
{
    EXPECT_EQ(TextToR8(u"1.5E-3"), 0.0015);
    EXPECT_EQ(TextToR8(u"1E3 "), 1000);
    EXPECT_EQ(TextToR8(u"1,2,3"), 123);
    EXPECT_EQ(TextToR8(u"\u00A05\u00A0"), 5);
    EXPECT_EQ(TextToR8(u"12345678901234567890123"), 12345678901234567890123.0);
    for (const std::u16string_view text :
        { u"", u".", u"1.2.3", u"1e", u"1e+", u"1e3.5", u"1e3e3", u"e3", u"1 2", u"1x", u"0x10", u"\u0661" })
        EXPECT_FALSE(IsNumeric(text)) << ToUtf8(text);
}

TEST(TextConversions, NumbersOutOfTheRangeOfAFloat)
{
    EXPECT_EQ(TextToR8(u"1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(ErrorOf([] { TextToR8(u"1e309"); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { TextToI4(u"-1e309"); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { TextToR8(u"1e99999999999999999999"); }), ErrorNumber::Overflow);
    EXPECT_FALSE(IsNumeric(u"1e309"));
    EXPECT_EQ(TextToR8(u"1e-400"), 0);
    EXPECT_EQ(TextToR8(u"1e-99999999999999999999"), 0);
    EXPECT_EQ(TextToR8(u"0e999"), 0);

    const std::u16string zeros(400, u'0');
    EXPECT_EQ(TextToR8(u"0." + zeros + u"1"), 0);
    EXPECT_EQ(TextToR8(u"0." + zeros + u"1e401"), 1);
    EXPECT_EQ(TextToR8(zeros + u"7"), 7);
    EXPECT_EQ(ErrorOf([&] { TextToR8(zeros + u"1" + zeros); }), ErrorNumber::Overflow);
}

TEST(TextConversions, BooleansAreWordsOrNumbers)
{
    EXPECT_TRUE(TextToBool(u"TRUE"));
    EXPECT_FALSE(TextToBool(u"false"));
    EXPECT_TRUE(TextToBool(u"-1"));
    EXPECT_TRUE(TextToBool(u"$0.01"));
    EXPECT_FALSE(TextToBool(u"0.0"));
    EXPECT_FALSE(TextToBool(u"&H0"));
    for (const std::u16string_view text : { u"", u"Yes", u"True ", u"#True", u"1/2/2020" })
        EXPECT_EQ(ErrorOf([&] { TextToBool(text); }), ErrorNumber::TypeMismatch) << ToUtf8(text);
}

TEST(TextConversions, TwoDigitYearsLieBetween1950And2049)
{
    EXPECT_EQ(TextToDate(u"1/1/49"), DayNumber(2049, 1, 1));
    EXPECT_EQ(TextToDate(u"1/1/50"), DayNumber(1950, 1, 1));
    EXPECT_EQ(TextToDate(u"1/1/00"), DayNumber(2000, 1, 1));
    EXPECT_EQ(TextToDate(u"1/1/99"), DayNumber(1999, 1, 1));
    EXPECT_EQ(TextToDate(u"1/1/100"), DayNumber(100, 1, 1));
}

TEST(TextConversions, TheOrderOfTheLocaleIsTriedFirst)
{
    EXPECT_EQ(TextToDate(u"3/4/2020"), DayNumber(2020, 3, 4));
    EXPECT_EQ(TextToDate(u"13/4/2020"), DayNumber(2020, 4, 13));
    EXPECT_EQ(TextToDate(u"2020/4/13"), DayNumber(2020, 4, 13));
    EXPECT_EQ(TextToDate(u"20-1-13"), DayNumber(2013, 1, 20));
    EXPECT_EQ(TextToDate(u"30/2/15"), DayNumber(2030, 2, 15));
    EXPECT_EQ(TextToDate(u"2/2021"), DayNumber(2021, 2, 1));
    EXPECT_EQ(TextToDate(u"2020-02"), DayNumber(2020, 2, 1));
}

TEST(TextConversions, ADateWithoutAYearIsOfTheCurrentOne)
{
    EXPECT_EQ(TextToDate(u"1/13"), DayNumber(CurrentYear(), 1, 13));
    EXPECT_EQ(TextToDate(u"13/1"), DayNumber(CurrentYear(), 1, 13));
    EXPECT_EQ(TextToDate(u"Jan 13"), DayNumber(CurrentYear(), 1, 13));
    EXPECT_EQ(ParseDate(u"2/29", BuiltinLocale(), 2024), DayNumber(2024, 2, 29));
    EXPECT_EQ(ParseDate(u"2/29", BuiltinLocale(), 2026), DayNumber(2029, 2, 1));
}

TEST(TextConversions, MonthsMayBeWords)
{
    EXPECT_EQ(TextToDate(u"July 4, 1976"), DayNumber(1976, 7, 4));
    EXPECT_EQ(TextToDate(u"4-JUL-76"), DayNumber(1976, 7, 4));
    EXPECT_EQ(TextToDate(u"4jul1976"), DayNumber(1976, 7, 4));
    EXPECT_EQ(TextToDate(u"1976 july 4"), DayNumber(1976, 7, 4));
    EXPECT_EQ(TextToDate(u"May 2020"), DayNumber(2020, 5, 1));
    EXPECT_EQ(TextToDate(u"12:30 Jan 2 2020"), DayNumber(2020, 1, 2) + 0.5208333333333334);
    for (const std::u16string_view text : { u"Jan", u"Janu 2 2020", u"Jan Feb 2020", u"Jan 32 2020 1", u"30 Feb 2020",
             u"Wednesday, March 4, 2020", u"Jan 2 12:30 2020 12:30" })
        EXPECT_FALSE(IsDate(text)) << ToUtf8(text);
}

TEST(TextConversions, TimesOfDay)
{
    EXPECT_EQ(TextToDate(u"0:00"), 0);
    EXPECT_EQ(TextToDate(u"6 am"), 0.25);
    EXPECT_EQ(TextToDate(u"6PM"), 0.75);
    EXPECT_EQ(TextToDate(u"12 am"), 0);
    EXPECT_EQ(TextToDate(u"6:00 p"), 0.75);
    EXPECT_EQ(TextToDate(u"12/29/1899 6:00"), -1.25);
    EXPECT_EQ(TextToDate(u"6:00 12/29/1899"), -1.25);
    for (const std::u16string_view text : { u"24:00", u"12:60", u"1:", u":30", u"13 pm", u"12:30 xm", u"12:30 12:40",
             u"1:2:", u"12345:1", u"1/2/2020/12:30", u"6 2 2020 am" })
        EXPECT_FALSE(IsDate(text)) << ToUtf8(text);
}

TEST(TextConversions, SeparatorsStandSinglyBetweenParts)
{
    EXPECT_EQ(TextToDate(u" 1 / 2 / 2020 "), DayNumber(2020, 1, 2));
    EXPECT_EQ(TextToDate(u"1 2 2020"), DayNumber(2020, 1, 2));
    EXPECT_EQ(TextToDate(u"1,2,2020"), DayNumber(2020, 1, 2));
    for (const std::u16string_view text :
        { u"", u" ", u"1/", u"1/2/", u"1//2", u"-1/2", u"1/2/2020/1", u"1.2.2020", u"1/2/20201", u"12" })
        EXPECT_FALSE(IsDate(text)) << ToUtf8(text);
}

TEST(TextConversions, TheFirstAndTheLastDay)
{
    EXPECT_EQ(TextToDate(u"1/1/100"), FirstDay);
    EXPECT_EQ(TextToDate(u"12/31/9999"), LastDay);
    EXPECT_EQ(TextToDate(u"12/30/1899"), 0);
}

} // namespace vornix
