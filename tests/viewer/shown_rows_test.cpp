#include "shown_rows.h"

#include "present.h"

#include "vornix/automation.h"
#include "vornix/headless_container.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <stdexcept>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

Table Cities()
{
    Table table;
    table.Columns() = { { u"city" }, { u"people", ColumnKind::Integer }, { u"since", ColumnKind::Date },
        { u"coast", ColumnKind::Boolean, u"yes", u"no" } };
    const auto add = [&](std::u16string_view city, std::u16string_view people, std::u16string_view since,
                         std::u16string_view coast) {
        table.AppendRow(std::vector<Field> { { city }, { people }, { since }, { coast, coast.empty() } });
    };
    add(u"Oslo", u"709,037", u"2 Jan 1048", u"-1");
    add(u"bern", u"134,591", u"1191-01-01", u"0");
    add(u"Roma", u"2,800,000", u"0753-04-21", u"0");
    add(u"Atlantis", u"", u"", u"");
    add(u"Bern", u"99", u"2001-05-05", u"0");
    table.SetTotalRows(5);
    return table;
}

class Desk {
public:
    explicit Desk(Table shown = Cities())
        : table(std::move(shown))
        , rows(grid, table)
        , order(static_cast<std::size_t>(table.RowCount()))
    {
        PresentTable(grid, container.WindowDevice(), container.Colors(), table);
        std::iota(order.begin(), order.end(), 0);
    }

    void Choose(int column)
    {
        sort.Choose(column);
        rows.Sort(sort, order);
    }
    void ChooseToo(int column)
    {
        sort.ChooseToo(column);
        rows.Sort(sort, order);
    }
    // The rows of the table, as the grid shows them.
    std::vector<int> Shown() const
    {
        std::vector<int> shown;
        for (int Row = 0; Row < rows.Count(); ++Row)
            shown.push_back(rows.At(Row));
        return shown;
    }
    bool ShowsWhatItSays()
    {
        for (int Row = 0; Row < rows.Count(); ++Row) {
            for (int column = 0; column < table.ColumnCount(); ++column) {
                if (table.Columns()[static_cast<std::size_t>(column)].kind == ColumnKind::Boolean)
                    continue;
                if (grid.Text(static_cast<i16>(Row), static_cast<i16>(column)) != table.Text(rows.At(Row), column))
                    return false;
            }
            const std::string number = std::to_string(rows.At(Row) + 1);
            if (grid.Text(static_cast<i16>(Row), -1) != std::u16string(number.begin(), number.end()))
                return false;
        }
        return true;
    }

    HeadlessContainer container;
    Vornix& grid = container.Grid();
    Table table;
    ShownRows rows;
    std::vector<int> order;
    SortList sort;
};

} // namespace

TEST(ShownRows, AreThoseOfTheTableAtFirst)
{
    const Desk desk;
    EXPECT_THAT(desk.Shown(), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_EQ(desk.rows.At(-1), -1);
    EXPECT_EQ(desk.rows.At(5), -1);
}

TEST(ShownRows, AreSortedByWhatTheirColumnsHold)
{
    Desk desk;
    desk.Choose(0);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 1, 4, 0, 2)) << "words, without regard to case";
    EXPECT_TRUE(desk.ShowsWhatItSays());
    desk.Choose(1);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 4, 1, 0, 2)) << "numbers, none first";
    desk.Choose(1);
    EXPECT_THAT(desk.Shown(), ElementsAre(2, 0, 1, 4, 3));
    desk.Choose(2);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 2, 0, 1, 4)) << "dates";
    desk.Choose(3);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 1, 2, 4, 0)) << "truth values, rows that are alike as they were";
    EXPECT_TRUE(desk.ShowsWhatItSays());
}

TEST(ShownRows, ComeBackToTheOrderOfTheirSource)
{
    Desk desk;
    desk.Choose(1);
    desk.Choose(1);
    desk.Choose(1);
    EXPECT_THAT(desk.sort.Columns(), testing::IsEmpty());
    EXPECT_THAT(desk.Shown(), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_TRUE(desk.ShowsWhatItSays());
}

TEST(ShownRows, AreSelectedNoMoreOnceTheyMove)
{
    Desk desk;
    const auto count = [&desk] { return desk.grid.SelectCountRow() + desk.grid.SelectCountCell(); };
    desk.Choose(1);
    desk.grid.SetRowSelected(1, true);
    desk.grid.SetRowSelected(3, true);
    desk.rows.Sort(SortList(), desk.order);
    EXPECT_EQ(count(), 0) << "others stand where they were";
    desk.Choose(1);
    desk.grid.SetSelectedCells(0, 0, 1, 1);
    desk.rows.Sort(SortList(), desk.order);
    EXPECT_EQ(count(), 0);
    desk.grid.SetRowSelected(1, true);
    desk.rows.Sort(SortList(), desk.order);
    EXPECT_TRUE(desk.grid.RowSelected(1)) << "none has moved";
    desk.Choose(1);
    desk.grid.SetColSelected(2, true);
    desk.rows.Sort(SortList(), desk.order);
    EXPECT_TRUE(desk.grid.ColSelected(2));
}

TEST(ShownRows, AreNotPutInAnOrderOfOthers)
{
    Desk desk;
    desk.Choose(1);
    const std::vector<int> shown = desk.Shown();
    SortList sort;
    const auto expectRefused = [&](std::vector<int> order) {
        EXPECT_THROW(desk.rows.Sort(SortList(), order), std::logic_error);
        EXPECT_THROW(desk.rows.Sort(sort, order), std::logic_error);
        EXPECT_EQ(desk.Shown(), shown);
        EXPECT_TRUE(desk.ShowsWhatItSays());
        EXPECT_EQ(desk.grid.Text(-1, 1), u"people ▲");
    };
    sort.Choose(0);
    expectRefused({ 0, 1, 2, 3 });
    expectRefused({ 0, 1, 2, 3, 4, 5 });
    expectRefused({ 0, 1, 2, 3, 3 });
    expectRefused({ 0, 1, 2, 3, 99 });
    expectRefused({});
}

TEST(ShownRows, AreSortedBySeveralColumns)
{
    Desk desk;
    desk.Choose(3);
    desk.ChooseToo(0);
    desk.ChooseToo(1);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 4, 1, 2, 0));
    desk.ChooseToo(1);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 1, 4, 2, 0));
    desk.ChooseToo(3);
    EXPECT_THAT(desk.Shown(), ElementsAre(0, 1, 4, 2, 3));
}

TEST(ShownRows, MarkTheTitles)
{
    Desk desk;
    desk.Choose(1);
    EXPECT_EQ(desk.grid.Text(-1, 1), u"people ▲") << "numbers stand to the right";
    EXPECT_EQ(desk.grid.Text(-1, 0), u"city");
    desk.ChooseToo(0);
    desk.ChooseToo(0);
    EXPECT_EQ(desk.grid.Text(-1, 1), u"people ▲1");
    EXPECT_EQ(desk.grid.Text(-1, 0), u"▼2 city");
    EXPECT_EQ(desk.grid.ColName(0), u"city");
    desk.sort.Clear();
    desk.rows.Sort(desk.sort, desk.order);
    EXPECT_EQ(desk.grid.Text(-1, 0), u"city");
    EXPECT_EQ(desk.grid.Text(-1, 1), u"people");
}

TEST(ShownRows, LeaveNoKeysInTheCells)
{
    Desk desk;
    desk.Choose(1);
    desk.ChooseToo(2);
    for (i16 Row = 0; Row < 5; ++Row) {
        for (i16 Col = -1; Col < 4; ++Col)
            EXPECT_EQ(desk.grid.Key(Row, Col), u"");
    }
}

TEST(ShownRows, GoByWhatTheGridShowsNow)
{
    Desk desk;
    desk.grid.SetText(4, 1, u"5,000,000");
    desk.Choose(1);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 1, 0, 2, 4));
}

TEST(ShownRows, ComeAndGo)
{
    Desk desk;
    desk.Choose(1);
    desk.rows.Remove(1, 2);
    EXPECT_THAT(desk.Shown(), ElementsAre(3, 0, 2));
    EXPECT_EQ(desk.grid.Rows(), 3);
    desk.order = { 0, 2, 3 };
    desk.Choose(1);
    EXPECT_THAT(desk.Shown(), ElementsAre(2, 0, 3));
    EXPECT_TRUE(desk.ShowsWhatItSays());
    desk.rows.Remove(0, 3);
    EXPECT_EQ(desk.rows.Count(), 0);
    desk.order = {};
    desk.Choose(0);
    desk.rows.Insert(0, { 4, 1 });
    EXPECT_THAT(desk.Shown(), ElementsAre(4, 1));
    EXPECT_EQ(desk.grid.Rows(), 2);
    EXPECT_EQ(desk.grid.Text(0, 0), u"") << "its texts are not told yet";
}

TEST(ShownRows, OfARandomTableAreSortedAsAPlainSortDoes)
{
    std::mt19937 random(6);
    Table table;
    table.Columns() = { { u"a", ColumnKind::Integer }, { u"b", ColumnKind::Integer } };
    std::vector<std::pair<int, int>> values;
    for (int row = 0; row < 3000; ++row) {
        values.emplace_back(static_cast<int>(random() % 40) - 20, static_cast<int>(random() % 1'000'000) - 500'000);
        const std::string first = std::to_string(values.back().first);
        const std::string second = std::to_string(values.back().second);
        table.AppendRow(std::vector<Field> {
            { std::u16string(first.begin(), first.end()) }, { std::u16string(second.begin(), second.end()) } });
    }
    Desk desk(std::move(table));
    desk.Choose(0);
    desk.ChooseToo(1);
    desk.ChooseToo(1);
    std::vector<int> wanted = desk.order;
    std::stable_sort(wanted.begin(), wanted.end(), [&](int one, int other) {
        const auto& [a, b] = values[static_cast<std::size_t>(one)];
        const auto& [c, d] = values[static_cast<std::size_t>(other)];
        return a != c ? a < c : b > d;
    });
    EXPECT_THAT(desk.Shown(), ElementsAreArray(wanted));
    EXPECT_TRUE(desk.ShowsWhatItSays());
}

TEST(ShownRows, StayWhereTheGridSortsNoMore)
{
    Table table;
    table.Columns() = { { u"a", ColumnKind::Integer } };
    for (int row = 0; row < 29'524; ++row)
        table.AppendRow(std::vector<Field> { { row % 2 == 0 ? u"2" : u"1" } });
    Desk desk(std::move(table));
    SortList sort;
    sort.Choose(0);
    EXPECT_FALSE(desk.rows.CanSort(sort));
    EXPECT_THROW(desk.Choose(0), AutomationError);
    EXPECT_EQ(desk.rows.At(1), 1);
    EXPECT_TRUE(desk.ShowsWhatItSays());
    EXPECT_EQ(desk.grid.Text(-1, 0), u"a");
    EXPECT_EQ(desk.grid.Key(0, 0), u"");
    EXPECT_TRUE(desk.grid.Redraw());
    desk.rows.Remove(29'523, 1);
    desk.order.pop_back();
    desk.rows.Sort(desk.sort, desk.order);
    EXPECT_EQ(desk.rows.At(0), 1);
    EXPECT_EQ(desk.rows.At(29'522), 29'522);
    EXPECT_TRUE(desk.ShowsWhatItSays());
}

TEST(ShownRows, GoBackIntoTheirOrderHoweverManyTheyAre)
{
    Table table;
    table.Columns() = { { u"a", ColumnKind::Integer } };
    for (int row = 0; row < ShownRows::MostSorted; ++row)
        table.AppendRow(std::vector<Field> { { row % 3 == 0 ? u"2" : u"1" } });
    Desk desk(std::move(table));
    desk.Choose(0);
    desk.grid.SetCellBackColor(0, 0, 0x123456);
    const int coloured = desk.rows.At(0);
    ASSERT_EQ(coloured, 1);
    desk.table.AppendRow(std::vector<Field> { { u"new" } });
    desk.rows.Insert(5, { ShownRows::MostSorted });
    desk.grid.SetText(5, 0, u"new");
    desk.grid.SetText(5, -1, u"29524");
    desk.order.insert(desk.order.begin(), ShownRows::MostSorted);
    EXPECT_TRUE(desk.rows.CanSort(SortList()));
    desk.rows.Sort(SortList(), desk.order);
    EXPECT_EQ(desk.Shown(), desk.order);
    EXPECT_TRUE(desk.ShowsWhatItSays());
    EXPECT_EQ(desk.grid.Text(-1, 0), u"a") << "the mark is gone";
    EXPECT_EQ(desk.grid.CellBackColor(static_cast<i16>(coloured + 1), 0), 0x123456);
}
