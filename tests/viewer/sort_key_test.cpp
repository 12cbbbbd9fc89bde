#include "sort_key.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace vornix::viewer;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

using Texts = std::vector<std::u16string>;

// The texts of a column as their keys order them; those with the same key stay as they are.
Texts Sorted(ColumnKind kind, Texts texts)
{
    SortKeyMaker maker(kind);
    for (const std::u16string& text : texts)
        maker.Add(text);
    std::stable_sort(texts.begin(), texts.end(),
        [&](const std::u16string& one, const std::u16string& other) { return maker.KeyOf(one) < maker.KeyOf(other); });
    return texts;
}

// Whether these, given backwards, are put into this order.
void ExpectOrder(ColumnKind kind, const Texts& texts)
{
    EXPECT_THAT(Sorted(kind, { texts.rbegin(), texts.rend() }), ElementsAreArray(texts));
}

} // namespace

TEST(SortKey, OrdersNumbersByTheirValue)
{
    ExpectOrder(ColumnKind::Integer,
        { u"", u"-1000", u"-999", u"-20", u"-3", u"0", u"1", u"9", u"10", u"1,000", u"9007199254740992",
            u"9007199254740993", u"NA" });
    ExpectOrder(ColumnKind::Real,
        { u"", u"-1e300", u"-1.5", u"-1.25", u"-1e-300", u"0", u"1e-300", u"0.001", u"0.01", u"12 %", u"1", u"1.05",
            u"1.5", u"10", u"1e300", u"Inf" });
    ExpectOrder(ColumnKind::Money, { u"($20.00)", u"-$3.00", u"$0.50", u"$9.00", u"$10.00", u"$1,000.00" });
}

TEST(SortKey, LearnsTheDecimalMarkFromTheColumn)
{
    ExpectOrder(ColumnKind::Real, { u"1,5", u"2", u"1.000", u"1.234,5" });
    ExpectOrder(ColumnKind::Real, { u"1.000", u"1.5", u"2", u"1,234.5" });
    ExpectOrder(ColumnKind::Integer, { u"999", u"1.000", u"2.500.000" });
    ExpectOrder(ColumnKind::Integer, { u"999", u"1,000", u"2,500,000" });
    ExpectOrder(ColumnKind::Integer, { u"999", u"1\u2009000", u"2\u2009500\u2009000" });
}

TEST(SortKey, OrdersDatesByTheCalendar)
{
    ExpectOrder(ColumnKind::Date, { u"", u"0999-12-31", u"2023-12-31", u"2024-02-29", u"2024-03-01", u"soon" });
    ExpectOrder(ColumnKind::Date, { u"5 Mar 2023", u"Apr 1, 2023", u"31.12.2023", u"2024/1/1" });
    ExpectOrder(ColumnKind::DateTime,
        { u"2024-03-05", u"2024-03-05 12:15 AM", u"2024-03-05T00:15:00.25", u"2024-03-05 9:00", u"2024-03-05 12:00",
            u"2024-03-05 1:00 PM", u"2024-03-05T15:00:00+01:00", u"2024-03-05T14:00:01Z" });
    ExpectOrder(ColumnKind::Date, { u"1.1.70", u"1.1.99", u"1.1.00", u"1.1.69" });
}

TEST(SortKey, LearnsTheOrderOfDayAndMonthFromTheColumn)
{
    ExpectOrder(ColumnKind::Date, { u"2/1/2024", u"1/2/2024", u"31/12/2024" });
    ExpectOrder(ColumnKind::Date, { u"1/2/2024", u"2/1/2024", u"12/31/2024" });
}

TEST(SortKey, PutsFalseBeforeTrueAndOtherTextsLast)
{
    ExpectOrder(ColumnKind::Boolean, { u"", u"0", u"-1", u"maybe", u"perhaps" });
    const SortKeyMaker maker(ColumnKind::Boolean);
    EXPECT_EQ(maker.KeyOf(u"Yes"), maker.KeyOf(u"-1")) << "as it was typed";
    EXPECT_EQ(maker.KeyOf(u"false"), maker.KeyOf(u"0"));
}

TEST(SortKey, LeavesTextsToThemselves)
{
    EXPECT_FALSE(SortKeyMaker(ColumnKind::Text).HasKeys());
    for (const ColumnKind kind : { ColumnKind::Integer, ColumnKind::Real, ColumnKind::Money, ColumnKind::Date,
             ColumnKind::DateTime, ColumnKind::Boolean })
        EXPECT_TRUE(SortKeyMaker(kind).HasKeys());
}

TEST(SortKey, IsOfDigitsAlone)
{
    for (const ColumnKind kind : { ColumnKind::Integer, ColumnKind::Date, ColumnKind::Boolean }) {
        for (const char16_t* text : { u"-12.5", u"0", u"1e9999", u"2024-03-05", u"-1" }) {
            const std::u16string key = SortKeyMaker(kind).KeyOf(text);
            if (key.front() != u'4') {
                EXPECT_EQ(key.find_first_not_of(u"0123456789"), std::u16string::npos);
            }
        }
    }
    EXPECT_EQ(SortKeyMaker(ColumnKind::Integer).KeyOf(u"\u00A0 \u2009"), u"");
}
