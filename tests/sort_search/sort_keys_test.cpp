#include "data/sort_keys.h"

#include "automation/comma_locale.h"
#include "data/text_ranks.h"
#include "model/store_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SortKeyListTest, IsEmptyAtFirst)
{
    const SortKeyList list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.PositionOf(0), 0);
    EXPECT_THAT(list.Cols(), IsEmpty());
}

TEST(SortKeyListTest, TheFirstPlaceBeginsAnew)
{
    SortKeyList list;
    list.Put(1, 1);
    list.Put(2, 2);
    EXPECT_THAT(list.Cols(), ElementsAre(1, 2));
    list.Put(3, 1);
    EXPECT_THAT(list.Cols(), ElementsAre(3));
    EXPECT_EQ(list.PositionOf(2), 0);
    EXPECT_EQ(list.PositionOf(3), 1);
}

TEST(SortKeyListTest, PlacesThatAJumpOpensHoldTheFirstColumn)
{
    SortKeyList list;
    list.Put(5, 1);
    list.Put(7, 4);
    EXPECT_THAT(list.Cols(), ElementsAre(5, 0, 0, 7));
    EXPECT_EQ(list.PositionOf(0), 2);
    list.Put(8, 2);
    EXPECT_THAT(list.Cols(), ElementsAre(5, 8));
}

TEST(SortKeyListTest, ThePositionOfAColumnIsItsFirst)
{
    SortKeyList list;
    list.Put(4, 1);
    list.Put(4, 2);
    list.Put(4, 3);
    EXPECT_THAT(list.Cols(), ElementsAre(4, 4, 4));
    EXPECT_EQ(list.PositionOf(4), 1);
}

std::vector<std::uint32_t> Ranks(std::vector<std::u16string_view> texts)
{
    return TextRanks(texts, BuiltinLocale());
}

TEST(TextRanksTest, AreThePlacesInTheOrder)
{
    EXPECT_THAT(Ranks({}), IsEmpty());
    EXPECT_THAT(Ranks({ u"x" }), ElementsAre(0));
    EXPECT_THAT(Ranks({ u"pear", u"apple", u"fig", u"apple" }), ElementsAre(2, 0, 1, 0));
}

TEST(TextRanksTest, AreTheSameForWhatDiffersInCaseAlone)
{
    EXPECT_THAT(Ranks({ u"b", u"A", u"a", u"" }), ElementsAre(2, 1, 1, 0));
}

// As words, "a-c" would stand between "aca" and "acz": the hyphen is no letter of theirs. The first three units decide.
TEST(TextRanksTest, GoByTheFirstThreeUnitsFirst)
{
    const Locale& locale = BuiltinLocale();
    ASSERT_GT(locale.CompareNoCase(u"a-cb", u"aca"), 0);
    ASSERT_LT(locale.CompareNoCase(u"a-c", u"aca"), 0);
    EXPECT_THAT(Ranks({ u"a-cb", u"aca" }), ElementsAre(0, 1));
}

class SortKeysTest : public testing::Test {
protected:
    // Whether the first text is behind the second one in a column of this kind, and the other way round.
    std::pair<bool, bool> Behind(const char16_t* a, const char16_t* b)
    {
        store->EditCell(1, 1).SetText(a);
        store->EditCell(2, 1).SetText(b);
        const i16 cols[] = { 1 };
        const std::vector<RowSortKey> rows = SortKeysOf(*store, cols, *locale);
        return { rows[0].IsBehind(rows[1]), rows[1].IsBehind(rows[0]) };
    }
    Column& Kind() { return store->ColumnAt(1); }

    static constexpr std::pair<bool, bool> Yes { true, false };
    static constexpr std::pair<bool, bool> No { false, true };
    static constexpr std::pair<bool, bool> Equal { false, false };

    std::unique_ptr<GridStore> store = BuildStore(2, 2, 1, 1);
    const Locale* locale = &BuiltinLocale();
};

TEST_F(SortKeysTest, RowsKnowWhereTheyCameFrom)
{
    const i16 cols[] = { 1 };
    const std::vector<RowSortKey> rows = SortKeysOf(*store, cols, BuiltinLocale());
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].SourceRow, 1);
    EXPECT_EQ(rows[1].SourceRow, 2);
}

TEST_F(SortKeysTest, TextsHaveNoCase)
{
    EXPECT_EQ(Behind(u"b", u"A"), Yes);
    EXPECT_EQ(Behind(u"B", u"b"), Equal);
    EXPECT_EQ(Behind(u"", u"a"), No);
    EXPECT_EQ(Behind(u"10", u"9"), No);
}

TEST_F(SortKeysTest, NumbersCountAndWhatIsNoneIsZero)
{
    Kind().SortType = vxNumeric;
    EXPECT_EQ(Behind(u"10", u"9"), Yes);
    EXPECT_EQ(Behind(u"1,000", u"999.5"), Yes);
    EXPECT_EQ(Behind(u"-1", u"-2"), Yes);
    EXPECT_EQ(Behind(u"-1", u""), No);
    EXPECT_EQ(Behind(u"1e-300", u"word"), Yes);
    EXPECT_EQ(Behind(u"", u"word"), Equal);
    EXPECT_EQ(Behind(u"-0", u"0"), Equal);
    EXPECT_EQ(Behind(u"&HFF", u"255.0"), Equal);
    EXPECT_EQ(Behind(u"1e999", u"0"), Equal) << "too large is no number";
    EXPECT_EQ(Behind(u"9007199254740993", u"9007199254740992"), Equal) << "the same in 64 bits";
}

TEST_F(SortKeysTest, DatesCountAndWhatIsNoneIsAheadOfAll)
{
    Kind().SortType = vxDate;
    EXPECT_EQ(Behind(u"1/2/2020", u"12/31/2019"), Yes);
    EXPECT_EQ(Behind(u"March 5, 1999", u"3/5/1999"), Equal);
    EXPECT_EQ(Behind(u"", u"1/1/100"), No);
    EXPECT_EQ(Behind(u"", u"word"), Equal);
    EXPECT_EQ(Behind(u"0000-01-01", u"word"), Equal);
    EXPECT_EQ(Behind(u"0000-01-01", u"1/1/100"), No);
    EXPECT_EQ(Behind(u"6:00", u"5:59"), Yes);
    EXPECT_EQ(Behind(u"45000", u"word"), Equal) << "a number is no date";
}

TEST_F(SortKeysTest, OnlyVxDescTurnsTheOrderAround)
{
    for (const i32 type : { i32(vxAlphaNum), i32(vxNumeric), i32(vxDate) }) {
        Kind().SortType = type;
        for (const i32 criteria : { i32(vxNoOrder), i32(vxAsc), 3, -1 }) {
            Kind().SortCriteria = criteria;
            EXPECT_EQ(Behind(u"1/2/2020", u""), type == vxNumeric ? Equal : Yes);
            EXPECT_EQ(Behind(u"2", u"1"), type == vxDate ? Equal : Yes);
        }
        Kind().SortCriteria = vxDesc;
        EXPECT_EQ(Behind(u"1/2/2020", u""), type == vxNumeric ? Equal : No);
        EXPECT_EQ(Behind(u"2", u"1"), type == vxDate ? Equal : No);
        EXPECT_EQ(Behind(u"", u""), Equal);
    }
}

TEST_F(SortKeysTest, AnUnknownTypeTellsNothingApart)
{
    for (const i32 type : { 3, -1, 2147483647 }) {
        Kind().SortType = type;
        EXPECT_EQ(Behind(u"2", u"1"), Equal);
    }
}

TEST_F(SortKeysTest, KeysTakeThePlaceOfTexts)
{
    Kind().SortUseKey = true;
    store->EditCell(1, 1).SetKey(u"b");
    store->EditCell(2, 1).SetKey(u"a");
    EXPECT_EQ(Behind(u"1", u"2"), Yes);
}

TEST_F(SortKeysTest, TheFirstDifferenceDecides)
{
    store->EditCell(1, 0).SetText(u"same");
    store->EditCell(2, 0).SetText(u"SAME");
    store->EditCell(1, 1).SetText(u"b");
    store->EditCell(2, 1).SetText(u"a");
    const i16 cols[] = { 0, 1, 0 };
    const std::vector<RowSortKey> rows = SortKeysOf(*store, cols, BuiltinLocale());
    EXPECT_TRUE(rows[0].IsBehind(rows[1]));
    EXPECT_FALSE(rows[1].IsBehind(rows[0]));
}

class DayFirstLocale : public CommaLocale {
public:
    DayFirstLocale()
        : dates_(CommaLocale::Dates())
    {
        dates_.order = DateOrder::DayMonthYear;
    }
    const DateSymbols& Dates() const override { return dates_; }

private:
    DateSymbols dates_;
};

TEST_F(SortKeysTest, TheLocaleReadsDates)
{
    const DayFirstLocale dayFirst;
    Kind().SortType = vxDate;
    EXPECT_EQ(Behind(u"1/2/2020", u"2/1/2020"), No);
    locale = &dayFirst;
    EXPECT_EQ(Behind(u"1/2/2020", u"2/1/2020"), Yes);
}

TEST_F(SortKeysTest, TheLocaleReadsNumbers)
{
    const CommaLocale comma;
    Kind().SortType = vxNumeric;
    EXPECT_EQ(Behind(u"1,5", u"1,25"), No) << "15 and 125";
    locale = &comma;
    EXPECT_EQ(Behind(u"1,5", u"1,25"), Yes);
}

// More columns than have room in the bits of one number side by side.
TEST_F(SortKeysTest, ManyColumnsOfManyValues)
{
    constexpr int Cols = 12;
    constexpr int Rows = 300;
    const auto table = BuildStore(Rows, Cols, 0, 0);
    std::vector<i16> cols;
    for (int col = 0; col < Cols; ++col) {
        cols.push_back(static_cast<i16>(col));
        table->ColumnAt(col).SortType = vxNumeric;
        table->ColumnAt(col).SortCriteria = col % 2 == 0 ? vxAsc : vxDesc;
        for (int row = 0; row < Rows; ++row) {
            const std::string digits = std::to_string(row);
            table->EditCell(row, col).SetText(std::u16string(digits.begin(), digits.end()));
        }
    }
    // Rows 0 and 1 differ in one column.
    for (int col = 0; col < Cols; ++col) {
        SCOPED_TRACE(col);
        for (int other = 0; other < Cols; ++other)
            table->EditCell(1, other).SetText(u"0");
        table->EditCell(1, col).SetText(u"7");
        const std::vector<RowSortKey> rows = SortKeysOf(*table, cols, BuiltinLocale());
        EXPECT_EQ(rows[1].IsBehind(rows[0]), col % 2 == 0);
        EXPECT_EQ(rows[0].IsBehind(rows[1]), col % 2 != 0);
        EXPECT_TRUE(rows[Rows - 1].IsBehind(rows[1]));
    }
}

TEST_F(SortKeysTest, AColumnThatIsNotThereIsAnError)
{
    const i16 missing[] = { 1, 4 };
    EXPECT_EQ(ErrorOf([&] { SortKeysOf(*store, missing, BuiltinLocale()); }), ErrorNumber::SubscriptOutOfRange);
    const i16 filler[] = { 3 };
    EXPECT_EQ(ErrorOf([&] { SortKeysOf(*store, filler, BuiltinLocale()); }), 0);
    ChangeRows(*store, 0);
    EXPECT_EQ(ErrorOf([&] { SortKeysOf(*store, missing, BuiltinLocale()); }), 0) << "no row asks for it";
}

} // namespace
} // namespace vornix
