#include "vornix/icu_locale.h"

#include "automation/date_fields.h"
#include "automation/format_patterns.h"
#include "automation/reference_table.h"
#include "automation/text_compare.h"
#include "automation/text_conversions.h"

#include <gtest/gtest.h>

namespace vornix {

namespace {

using test::NameOf;
using test::ReadReferenceTable;
using test::ReferenceRow;
using test::ToUtf8;

std::string Formatted(std::u16string_view text, std::u16string_view pattern, const Locale& locale)
{
    return ToUtf8(FormatText(text, pattern, locale));
}

} // namespace

TEST(IcuLocale, AmericanEnglishConvertsLikeTheBuiltInOne)
{
    const auto locale = MakeIcuLocale("en-US");
    constexpr const char* table = "text_conversions.tsv";
    for (const ReferenceRow& row : ReadReferenceTable(table, 6)) {
        SCOPED_TRACE(NameOf(table, row));
        const std::u16string& text = row.fields[0];
        EXPECT_EQ(IsNumeric(text, *locale), IsNumeric(text));
        EXPECT_EQ(IsDate(text, *locale), IsDate(text));
        if (IsNumeric(text)) {
            EXPECT_EQ(TextToR8(text, *locale), TextToR8(text));
        }
        if (IsDate(text)) {
            EXPECT_EQ(TextToDate(text, *locale), TextToDate(text));
        }
    }
}

TEST(IcuLocale, AmericanEnglishFormatsLikeTheBuiltInOne)
{
    const auto locale = MakeIcuLocale("en-US");
    constexpr const char* table = "format_patterns.tsv";
    for (const ReferenceRow& row : ReadReferenceTable(table, 3)) {
        SCOPED_TRACE(NameOf(table, row));
        EXPECT_EQ(Formatted(row.fields[0], row.fields[1], *locale), ToUtf8(row.fields[2]));
    }
    EXPECT_EQ(locale->Dates().shortDate, BuiltinLocale().Dates().shortDate);
    EXPECT_EQ(locale->Dates().longDate, BuiltinLocale().Dates().longDate);
    EXPECT_EQ(locale->Dates().longTime, BuiltinLocale().Dates().longTime);
    EXPECT_EQ(locale->Dates().months, BuiltinLocale().Dates().months);
    EXPECT_EQ(locale->Dates().dayAbbreviations, BuiltinLocale().Dates().dayAbbreviations);
}

TEST(IcuLocale, AmericanEnglishOrdersLikeTheBuiltInOne)
{
    const auto locale = MakeIcuLocale("en-US");
    constexpr const char* table = "text_order.tsv";
    for (const ReferenceRow& row : ReadReferenceTable(table, 3)) {
        SCOPED_TRACE(NameOf(table, row));
        const int expected = std::stoi(ToUtf8(row.fields[2]));
        EXPECT_EQ(CompareTextNoCase(row.fields[0], row.fields[1], *locale), expected);
        EXPECT_EQ(CompareTextNoCase(row.fields[1], row.fields[0], *locale), -expected);
    }
    EXPECT_EQ(CompareTextNoCase(u"coop", u"co-op", *locale), -1);
    EXPECT_EQ(CompareTextNoCase(u"co-op", u"coops", *locale), -1);
}

TEST(IcuLocale, German)
{
    const auto locale = MakeIcuLocale("de-DE");
    EXPECT_EQ(TextToR8(u"1.234,5", *locale), 1234.5);
    EXPECT_EQ(TextToR8(u"-1.234,50 \u20AC", *locale), -1234.5);
    EXPECT_EQ(TextToI2(u"2,5", *locale), 2);
    EXPECT_EQ(NumberToText(1234.5, *locale), u"1234,5");
    EXPECT_EQ(TextToDate(u"3.4.2020", *locale), DayNumber(2020, 4, 3));
    EXPECT_EQ(TextToDate(u"3. April 2020", *locale), DayNumber(2020, 4, 3));
    EXPECT_EQ(TextToDate(u"3/4/2020", *locale), DayNumber(2020, 4, 3));
    EXPECT_EQ(TextToDate(u"2020-04-03 12:00", *locale), DayNumber(2020, 4, 3) + 0.5);
    EXPECT_EQ(DateToText(DayNumber(2020, 4, 3) + 0.75, *locale), u"03.04.2020 18:00:00");
    EXPECT_EQ(Formatted(u"1234,5", u"#,##0.00", *locale), "1.234,50");
    EXPECT_EQ(Formatted(u"-1234,5", u"Currency", *locale), "-1.234,50\u00A0\u20AC");
    EXPECT_EQ(Formatted(u"3.4.2020", u"Long Date", *locale), "Freitag, 3. April 2020");
    EXPECT_EQ(Formatted(u"3.4.2020", u"dd/mm/yyyy", *locale), "03.04.2020");
    EXPECT_EQ(CompareTextNoCase(u"\u00C4pfel", u"Birne", *locale), -1);
    EXPECT_EQ(CompareTextNoCase(u"STRASSE", u"strasse", *locale), 0);
}

TEST(IcuLocale, French)
{
    const auto locale = MakeIcuLocale("fr_FR.UTF-8");
    EXPECT_EQ(TextToR8(u"1 234,5", *locale), 1234.5);
    EXPECT_EQ(TextToR8(u"1\u202F234,5", *locale), 1234.5);
    EXPECT_EQ(TextToR8(u"12 ", *locale), 12);
    EXPECT_EQ(NumberToText(0.5, *locale), u"0,5");
    EXPECT_EQ(Formatted(u"1234567,5", u"Standard", *locale), "1\u202F234\u202F567,50");
    EXPECT_EQ(TextToDate(u"1 janvier 2020", *locale), DayNumber(2020, 1, 1));
    EXPECT_EQ(TextToDate(u"1 f\u00E9vr. 2020", *locale), DayNumber(2020, 2, 1));
    EXPECT_EQ(DateToText(DayNumber(2020, 2, 1), *locale), u"01/02/2020");
    EXPECT_EQ(locale->Dates().firstDayOfWeek, 1);
}

TEST(IcuLocale, Japanese)
{
    const auto locale = MakeIcuLocale("ja-JP");
    EXPECT_EQ(locale->Dates().order, DateOrder::YearMonthDay);
    EXPECT_EQ(TextToDate(u"2020/4/3", *locale), DayNumber(2020, 4, 3));
    EXPECT_EQ(DateToText(DayNumber(2020, 4, 3), *locale), u"2020/04/03");
    EXPECT_EQ(Formatted(u"2020/4/3", u"Long Date", *locale), ToUtf8(u"2020\u5E744\u67083\u65E5\u91D1\u66DC\u65E5"));
    EXPECT_EQ(locale->Numbers().currencyDigits, 0);
    EXPECT_EQ(Formatted(u"1234.5", u"#,##0.0", *locale), "1,234.5");
    // Both kana of a sound are one letter.
    EXPECT_EQ(CompareTextNoCase(u"\u3042", u"\u3044", *locale), -1);
}

TEST(IcuLocale, ArabicKeepsDigitsThatTheParsersRead)
{
    for (const char* name : { "ar", "ar-EG" }) {
        const auto locale = MakeIcuLocale(name);
        SCOPED_TRACE(name);
        EXPECT_EQ(TextToR8(NumberToText(-1234.5, *locale), *locale), -1234.5);
        const std::u16string formatted = FormatText(NumberToText(-1234.5, *locale), u"#,##0.00", *locale);
        EXPECT_EQ(TextToR8(formatted, *locale), -1234.5) << ToUtf8(formatted);
        const std::u16string date = DateToText(DayNumber(2020, 4, 3) + 0.75, *locale);
        EXPECT_EQ(TextToDate(date, *locale), DayNumber(2020, 4, 3) + 0.75) << ToUtf8(date);
    }
}

TEST(IcuLocale, IndianGroupsHaveTwoDigitsBehindTheFirst)
{
    const auto locale = MakeIcuLocale("hi-IN");
    EXPECT_EQ(Formatted(u"12345678", u"#,##0", *locale), "1,23,45,678");
}

TEST(IcuLocale, EveryLocaleReadsBackItsOwnNumbersAndDates)
{
    for (const char* name :
        { "en-GB", "es-ES", "it-IT", "pt-BR", "nl-NL", "sv-SE", "fi-FI", "da-DK", "pl-PL", "cs-CZ", "ru-RU", "tr-TR",
            "el-GR", "he-IL", "ko-KR", "zh-CN", "ja-JP", "vi-VN", "th-TH", "fa-IR", "de-CH", "fr-CA", "hu-HU" }) {
        SCOPED_TRACE(name);
        const auto locale = MakeIcuLocale(name);
        EXPECT_EQ(TextToR8(NumberToText(-1234567.25, *locale), *locale), -1234567.25);
        EXPECT_EQ(TextToR8(FormatText(NumberToText(-1234567.25, *locale), u"Standard", *locale), *locale), -1234567.25);
        const std::u16string currency = FormatText(NumberToText(-1250, *locale), u"Currency", *locale);
        EXPECT_EQ(TextToR8(currency, *locale), -1250) << ToUtf8(currency);
        const double moment = DayNumber(2020, 4, 3) + 0.75;
        const std::u16string date = DateToText(moment, *locale);
        EXPECT_TRUE(IsDate(date, *locale)) << ToUtf8(date);
        if (IsDate(date, *locale)) {
            EXPECT_EQ(TextToDate(date, *locale), moment) << ToUtf8(date);
        }
        const std::u16string named = FormatText(date, u"d mmmm yyyy", *locale);
        EXPECT_TRUE(IsDate(named, *locale)) << ToUtf8(named);
    }
}

TEST(IcuLocale, CaseIsOfOneUnitEach)
{
    const auto locale = MakeIcuLocale("de-DE");
    EXPECT_EQ(locale->ToUpper(u'\u00E9'), u'\u00C9');
    EXPECT_EQ(locale->ToLower(u'\u0416'), u'\u0436');
    EXPECT_EQ(locale->ToUpper(u'\u00DF'), u'\u00DF');
    EXPECT_EQ(locale->ToLower(u'\xD83D'), u'\xD83D');
}

TEST(IcuLocale, UnknownAndEmptyNamesGiveAWorkingLocale)
{
    for (const char* name : { "", "xx-YY", "C", "POSIX", "not a locale", "en_US_POSIX", "@", "de_DE.UTF-8@euro" }) {
        SCOPED_TRACE(name);
        const auto locale = MakeIcuLocale(name);
        EXPECT_FALSE(locale->Numbers().decimalSeparator.empty());
        EXPECT_FALSE(locale->Dates().months[11].empty());
        EXPECT_EQ(TextToR8(NumberToText(0.5, *locale), *locale), 0.5);
    }
    EXPECT_EQ(MakeIcuLocale("C")->Dates().shortDate, u"M/d/yyyy");
    EXPECT_EQ(MakeIcuLocale("en_US_POSIX")->Numbers().groupSeparator, u",");
}

} // namespace vornix
