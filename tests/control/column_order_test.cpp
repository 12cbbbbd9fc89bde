#include "control/control.h"
#include "control/grid_fixture.h"

namespace vornix {
namespace {

class ColumnOrder : public GridTest { };

TEST_F(ColumnOrder, ANameGivesThePositionAndANumberTheIdentity)
{
    Table(1, 4, 0, 1);
    Grid().SetColName(2, u"Amount");
    EXPECT_EQ(Grid().ColOrder(u"Amount"), 2);
    EXPECT_EQ(Grid().ColOrder(u"3"), 3);
    EXPECT_EQ(Grid().ColOrder(u" 2 "), 2);
}

TEST_F(ColumnOrder, FixedColumnsMadeWithTheTableHaveNegativeNumbers)
{
    MemoryBag bag;
    bag.WriteProperty("FixedCols", 2);
    HeadlessOptions options;
    options.bag = &bag;
    Make(options);
    EXPECT_EQ(Grid().ColOrder(u"-2"), -2);
    EXPECT_EQ(Grid().ColOrder(u"-1"), -1);
    EXPECT_EQ(Grid().ColOrder(u"0"), 0);
}

TEST_F(ColumnOrder, NamesAreComparedInFullAndWithCase)
{
    Table(1, 4, 0, 1);
    Grid().SetColName(2, u"Amount");
    EXPECT_EQ(Grid().ColOrder(u"amount"), -32767);
    EXPECT_EQ(Grid().ColOrder(u"Amoun"), -32767);
    EXPECT_EQ(Grid().ColOrder(u"nobody"), -32767);
}

TEST_F(ColumnOrder, TheFirstOfEqualNamesIsFoundFixedColumnsIncluded)
{
    Table(1, 4, 0, 1);
    Grid().SetColName(-1, u"twice");
    Grid().SetColName(3, u"twice");
    EXPECT_EQ(Grid().ColOrder(u"twice"), -1);
}

TEST_F(ColumnOrder, NumbersOutOfRangeAreErrors)
{
    Table(1, 4);
    EXPECT_EQ(ErrorOf([&] { Grid().ColOrder(u"5"); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().ColOrder(u"-1"); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().ColOrder(u"40000"); }), 6);
}

TEST_F(ColumnOrder, ReOrderColsOfOrderedColumnsRepaintsUnderTheGate)
{
    Table(2, 4);
    Grid().ReOrderCols();
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().ReOrderCols();
    EXPECT_EQ(host->Repaints(), 0);
}

// The steps below the public members, on columns whose order was shuffled in the store.
class ShuffledColumns : public GridTest {
protected:
    ShuffledColumns()
    {
        MemoryBag bag;
        bag.WriteProperty("Rows", 2);
        bag.WriteProperty("Cols", 4);
        bag.WriteProperty("FixedCols", 1);
        control.ReadSettings(bag);
        control.Load();
    }

    // Gives the columns behind the fixed one this identity, a text and a width to know them by.
    void Shuffle(std::initializer_list<i16> order)
    {
        int col = 1;
        for (const i16 identity : order) {
            Column& column = control.store.ColumnAt(col);
            column.Order = identity;
            column.Width = static_cast<i16>(100 + identity);
            control.store.EditCell(0, col).SetText(std::u16string(1, static_cast<char16_t>(u'a' + identity)));
            ++col;
        }
    }
    std::u16string Texts()
    {
        std::u16string texts;
        for (int col = 1; col <= control.store.LastColIndex(); ++col)
            texts += control.store.CellAt(0, col).Text();
        return texts;
    }

    Control control { *host, handlers };
};

TEST_F(ShuffledColumns, GoBackToTheOrderOfCreation)
{
    Shuffle({ 2, 0, 3, 1 });
    control.RestoreColumnOrder();
    EXPECT_EQ(Texts(), u"abcd");
    for (int col = 1; col <= 4; ++col) {
        EXPECT_EQ(control.store.ColumnAt(col).Order, col - 1);
        EXPECT_EQ(control.store.ColumnAt(col).Width, 100 + col - 1);
    }
}

TEST_F(ShuffledColumns, AColumnWithoutMatchStays)
{
    Shuffle({ 7, 2, 1, 2 });
    control.RestoreColumnOrder();
    EXPECT_EQ(control.store.ColumnAt(1).Order, 7);
    EXPECT_EQ(control.store.ColumnAt(2).Order, 1);
    EXPECT_EQ(control.store.ColumnAt(3).Order, 2);
}

TEST_F(ShuffledColumns, TheFirstOfTwoWithOneIdentityMoves)
{
    Shuffle({ 1, 0, 0, 3 });
    control.store.EditCell(0, 2).SetText(u"first");
    control.RestoreColumnOrder();
    EXPECT_EQ(control.store.CellAt(0, 1).Text(), u"first");
}

TEST_F(ShuffledColumns, TheCurrentCellKeepsItsColumn)
{
    Shuffle({ 1, 2, 0, 3 });
    control.current.Set(1, 2);
    control.RestoreColumnOrder();
    EXPECT_EQ(control.current.Col(), 3);
    EXPECT_EQ(control.store.CellAt(0, 3).Text(), u"c");
}

TEST_F(ShuffledColumns, TheTitleKeepsItsCell)
{
    control.SetFixedRowCount(1);
    control.layout.Settings.CaptionEnabled = true;
    control.settings.Caption = u"Title";
    control.CopyCaption();
    int col = 1;
    for (const i16 identity : { i16(1), i16(0), i16(2), i16(3) })
        control.store.ColumnAt(col++).Order = identity;
    control.RestoreColumnOrder();
    EXPECT_EQ(control.store.CellAt(0, 1).Text(), u"Title");
    EXPECT_EQ(control.store.CellAt(0, 2).Text(), u"");
}

TEST_F(ShuffledColumns, SelectedOnesStaySelected)
{
    Shuffle({ 1, 2, 0, 3 });
    control.selection.Ranges().AddCols(true, 2, 2);
    control.selection.Ranges().AddCols(false, 3, 3);
    control.RestoreColumnOrder();
    EXPECT_TRUE(control.selection.Ranges().IsColSelected(1)) << "a";
    EXPECT_FALSE(control.selection.Ranges().IsColSelected(2)) << "b";
    EXPECT_TRUE(control.selection.Ranges().IsColSelected(3)) << "c";
    EXPECT_EQ(control.selection.Ranges().CountCols(), 2);
}

TEST_F(ShuffledColumns, SelectedCellsAreNotAnyMoreWhenAColumnMoves)
{
    control.selection.Ranges().AddCells(true, 0, 1, 1, 1);
    control.RestoreColumnOrder();
    EXPECT_EQ(control.selection.Ranges().CountCells(), 2) << "no column moved";
    Shuffle({ 1, 0, 2, 3 });
    control.RestoreColumnOrder();
    EXPECT_EQ(control.selection.Ranges().CountCells(), 0);
}

} // namespace
} // namespace vornix
