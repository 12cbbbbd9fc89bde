#include "control/grid_fixture.h"

#include <limits>

namespace vornix {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::pair<int, int>>;

class Selection : public GridTest {
protected:
    Selection() { Table(12, 6, 2, 1); }

    std::vector<int> SelectedRows()
    {
        std::vector<int> rows;
        for (int row = -2; row < 40; ++row) {
            if (Grid().RowSelected(static_cast<i16>(row)))
                rows.push_back(row);
        }
        return rows;
    }
    std::vector<int> SelectedCols()
    {
        std::vector<int> cols;
        for (int col = -1; col < 40; ++col) {
            if (Grid().ColSelected(static_cast<i16>(col)))
                cols.push_back(col);
        }
        return cols;
    }
    std::vector<CellPlace> SelectedCells()
    {
        return CellsWhere(Grid(), [&](CellPlace cell) { return Grid().CellSelected(cell.Row, cell.Col); });
    }
    // Ranges from where the walk stands.
    Lines NextRows()
    {
        Lines lines;
        i16 first = 0;
        i16 last = 0;
        while (Grid().NextSelectedRows(first, last))
            lines.emplace_back(first, last);
        return lines;
    }
    Lines NextCols()
    {
        Lines lines;
        i16 first = 0;
        i16 last = 0;
        while (Grid().NextSelectedCols(first, last))
            lines.emplace_back(first, last);
        return lines;
    }
    Lines AllRows()
    {
        Grid().StartSelectedItems();
        return NextRows();
    }
    void SelectRows(std::initializer_list<i16> rows)
    {
        for (const i16 row : rows)
            Grid().SetRowSelected(row, true);
    }
    bool IsNothingSelected()
    {
        return Grid().SelectCountCell() + Grid().SelectCountCol() + Grid().SelectCountRow() == 0;
    }
};

TEST_F(Selection, IsEmptyInANewGrid)
{
    EXPECT_TRUE(IsNothingSelected());
    EXPECT_THAT(SelectedCells(), IsEmpty());
    EXPECT_THAT(SelectedRows(), IsEmpty());
    EXPECT_THAT(SelectedCols(), IsEmpty());
}

// -- Rectangles --

TEST_F(Selection, OneRectangleIsSelectedAndReadBack)
{
    Grid().SetSelectedCells(1, 2, 2, 4);
    EXPECT_EQ(Grid().SelectCountCell(), 6);
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    EXPECT_EQ(Grid().SelectCountCol(), 0);
    EXPECT_THAT(SelectedCells(),
        ElementsAre(CellPlace { 1, 2 }, CellPlace { 1, 3 }, CellPlace { 1, 4 }, CellPlace { 2, 2 }, CellPlace { 2, 3 },
            CellPlace { 2, 4 }));
    i16 row1 = 0;
    i16 col1 = 0;
    i16 row2 = 0;
    i16 col2 = 0;
    EXPECT_TRUE(Grid().GetSelectedCells(row1, col1, row2, col2));
    EXPECT_THAT((std::vector<int> { row1, col1, row2, col2 }), ElementsAre(1, 2, 2, 4));
    Grid().SetSelectedCells(0, 0, 0, 0);
    EXPECT_EQ(Grid().SelectCountCell(), 1) << "the one before is gone";
}

TEST_F(Selection, CornersOutOfOrderAreKeptAndHoldNoCell)
{
    Grid().SetSelectedCells(5, 1, 2, 4);
    EXPECT_THAT(SelectedCells(), IsEmpty());
    EXPECT_EQ(Grid().SelectCountCell(), 4 * -2);
    i16 row1 = 0;
    i16 col1 = 0;
    i16 row2 = 0;
    i16 col2 = 0;
    EXPECT_TRUE(Grid().GetSelectedCells(row1, col1, row2, col2));
    EXPECT_THAT((std::vector<int> { row1, col1, row2, col2 }), ElementsAre(5, 1, 2, 4));
}

TEST_F(Selection, AFixedCornerSelectsNothingAndLeavesWhatIsSelected)
{
    Grid().SetRowSelected(3, true);
    host->ClearLog();
    Grid().SetSelectedCells(-1, 0, 2, 2);
    Grid().SetSelectedCells(0, -1, 2, 2);
    Grid().SetSelectedCells(0, 0, -1, 2);
    Grid().SetSelectedCells(0, 0, 2, -1);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(SelectedRows(), ElementsAre(3));
}

TEST_F(Selection, FixedCellsAreNeverSelected)
{
    Grid().SetSelectedCells(0, 0, 11, 5);
    EXPECT_EQ(SelectedCells().size(), 72u);
    EXPECT_FALSE(Grid().CellSelected(-1, 0));
    EXPECT_FALSE(Grid().CellSelected(0, -1));
    EXPECT_FALSE(Grid().CellSelected(-32768, -32768));
}

TEST_F(Selection, RectanglesAreNotFoundWhereLinesAreSelected)
{
    i16 row1 = 71;
    i16 col1 = 72;
    i16 row2 = 73;
    i16 col2 = 74;
    EXPECT_FALSE(Grid().GetSelectedCells(row1, col1, row2, col2));
    Grid().SetRowSelected(1, true);
    EXPECT_FALSE(Grid().GetSelectedCells(row1, col1, row2, col2));
    EXPECT_THAT((std::vector<int> { row1, col1, row2, col2 }), ElementsAre(71, 72, 73, 74)) << "unchanged";
    EXPECT_FALSE(Grid().CellSelected(1, 1)) << "a cell of a selected row";
}

TEST_F(Selection, RectanglesPaintWhateverTheGateSays)
{
    Grid().SetSelectedCells(1, 1, 2, 2);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetSelectedCells(1, 1, 2, 2);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(host->Count("PropertyChanged"), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

// -- Lines --

TEST_F(Selection, LinesAreSelectedOneByOne)
{
    SelectRows({ 0, 4, 11 });
    EXPECT_THAT(SelectedRows(), ElementsAre(0, 4, 11));
    EXPECT_EQ(Grid().SelectCountRow(), 3);
    EXPECT_EQ(Grid().SelectCountCol(), 0);
    Grid().SetColSelected(2, true);
    EXPECT_THAT(SelectedRows(), IsEmpty()) << "one kind at a time";
    EXPECT_THAT(SelectedCols(), ElementsAre(2));
    EXPECT_EQ(Grid().SelectCountCol(), 1);
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    Grid().SetSelectedCells(0, 0, 1, 1);
    EXPECT_THAT(SelectedCols(), IsEmpty());
    SelectRows({ 7 });
    EXPECT_EQ(Grid().SelectCountCell(), 0);
    EXPECT_THAT(SelectedRows(), ElementsAre(7));
}

TEST_F(Selection, ALineThatIsSelectedTwiceCountsTwice)
{
    Grid().SetColSelected(3, true);
    Grid().SetColSelected(3, true);
    EXPECT_EQ(Grid().SelectCountCol(), 2);
    Grid().SetColSelected(3, false);
    EXPECT_EQ(Grid().SelectCountCol(), 1);
    EXPECT_TRUE(Grid().ColSelected(3));
    Grid().SetColSelected(3, false);
    EXPECT_FALSE(Grid().ColSelected(3));
    SelectRows({ 3, 3 });
    EXPECT_EQ(Grid().SelectCountRow(), 2);
}

TEST_F(Selection, FixedLinesAreNotSelected)
{
    SelectRows({ 2 });
    host->ClearLog();
    Grid().SetColSelected(-1, true);
    Grid().SetRowSelected(-1, true);
    Grid().SetRowsSelected(-1, 4, true);
    Grid().SetRowsSelected(4, -1, true);
    Grid().SetRowsSelected(-2, 4, false);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(SelectedRows(), ElementsAre(2));
    Grid().SetColSelected(-1, false);
    Grid().SetRowSelected(-1, false);
    EXPECT_THAT(SelectedRows(), ElementsAre(2));
}

TEST_F(Selection, LinesThatTheTableDoesNotHaveMayBeSelected)
{
    SelectRows({ 12, 35 });
    EXPECT_THAT(SelectedRows(), ElementsAre(12, 35));
    EXPECT_EQ(Grid().SelectCountRow(), 2);
}

TEST_F(Selection, IndicesThatLeaveSixteenBitsAreOverflows)
{
    EXPECT_EQ(ErrorOf([&] { Grid().CellSelected(32766, 0); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().CellSelected(0, 32767); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().ColSelected(32767); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().SetColSelected(32767, true); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRowSelected(32766, false); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRowsSelected(32767, 0, true); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().SetSelectedCells(0, 0, 0, 32767); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().RowSelected(-32768); }), std::nullopt);
    EXPECT_TRUE(IsNothingSelected());
}

TEST_F(Selection, ARunOfRowsIsSelectedFromEitherEnd)
{
    Grid().SetRowsSelected(2, 4, true);
    Grid().SetRowsSelected(9, 8, true);
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(2, 4), std::pair(8, 9)));
    EXPECT_EQ(Grid().SelectCountRow(), 5);
    Grid().SetRowsSelected(8, 3, false);
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(2, 2), std::pair(9, 9)));
}

TEST_F(Selection, TakingOutTheMiddleOfARangeLeavesTwo)
{
    Grid().SetRowsSelected(2, 6, true);
    Grid().SetRowSelected(4, false);
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(2, 3), std::pair(5, 6)));
    EXPECT_EQ(Grid().SelectCountRow(), 4);
    Grid().SetRowSelected(2, false);
    Grid().SetRowSelected(6, false);
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(3, 3), std::pair(5, 5)));
    Grid().SetRowSelected(3, false);
    Grid().SetRowSelected(5, false);
    EXPECT_THAT(AllRows(), IsEmpty());
    EXPECT_FALSE(Grid().InvertSelect()) << "nothing is counted any more";
}

TEST_F(Selection, TakingOutALineHandlesTheFirstOfTwoRangesOnly)
{
    Grid().SetRowsSelected(2, 6, true);
    SelectRows({ 4 });
    Grid().SetRowSelected(4, false);
    EXPECT_TRUE(Grid().RowSelected(4));
    EXPECT_EQ(Grid().SelectCountRow(), 5);
}

TEST_F(Selection, TakingOutALineThatIsNotSelectedOnlyPaints)
{
    SelectRows({ 4 });
    host->ClearLog();
    Grid().SetRowSelected(5, false);
    Grid().SetColSelected(4, false);
    EXPECT_EQ(host->Repaints(), 2);
    EXPECT_THAT(SelectedRows(), ElementsAre(4));
}

TEST_F(Selection, AFreedPlaceIsTakenAndTheRangeBehindItOverwritten)
{
    SelectRows({ 1, 3, 5 });
    Grid().SetRowSelected(1, false);
    SelectRows({ 7 });
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(7, 7), std::pair(3, 3), std::pair(5, 5)));
    SelectRows({ 9 });
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(7, 7), std::pair(9, 9), std::pair(5, 5)));
    EXPECT_FALSE(Grid().RowSelected(3));
    EXPECT_EQ(Grid().SelectCountRow(), 3);
    for (const i16 row : { i16(5), i16(7), i16(9) })
        Grid().SetRowSelected(row, false);
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    EXPECT_TRUE(Grid().InvertSelect()) << "the overwritten one is still counted";
}

TEST_F(Selection, ARunThatIsTakenOutStaysCounted)
{
    Grid().SetRowsSelected(2, 3, true);
    Grid().SetRowsSelected(0, 11, false);
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    EXPECT_THAT(AllRows(), IsEmpty());
    EXPECT_TRUE(Grid().InvertSelect()) << "rows still are what is selected";
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(0, 11)));
}

TEST_F(Selection, ARunOfRowsIsTakenOutOfColumnsTooByTheSameInternalIndices)
{
    for (i16 col = 0; col < 6; ++col)
        Grid().SetColSelected(col, true);
    Grid().SetRowsSelected(0, 1, false);
    EXPECT_THAT(SelectedCols(), ElementsAre(0, 3, 4, 5)) << "two fixed rows, one fixed column";
    Grid().SetSelectedCells(0, 0, 3, 3);
    Grid().SetRowsSelected(0, 3, false);
    EXPECT_EQ(Grid().SelectCountCell(), 16);
}

TEST_F(Selection, LinesPaintUnderTheGate)
{
    const std::vector<std::function<void()>> steps { [&] { Grid().SetRowSelected(1, true); },
        [&] { Grid().SetRowSelected(1, true); }, [&] { Grid().SetRowSelected(1, false); },
        [&] { Grid().SetRowsSelected(1, 3, true); }, [&] { Grid().SetRowsSelected(2, 2, false); },
        [&] { Grid().InvertSelect(); }, [&] { Grid().SetColSelected(1, true); },
        [&] { Grid().SetColSelected(1, false); }, [&] { Grid().DeselectAll(); } };
    std::vector<int> open;
    std::vector<int> closed;
    for (const auto& step : steps) {
        host->ClearLog();
        step();
        open.push_back(host->Repaints());
    }
    Grid().SetRedraw(false);
    for (const auto& step : steps) {
        host->ClearLog();
        step();
        closed.push_back(host->Repaints());
    }
    EXPECT_THAT(open, Each(1));
    EXPECT_THAT(closed, Each(0));
    EXPECT_THAT(Reported(), IsEmpty());
}

// -- Walks --

TEST_F(Selection, AWalkGivesTheRangesAsTheyLie)
{
    Grid().SetColSelected(4, true);
    Grid().SetColSelected(0, true);
    Grid().SetColSelected(1, true);
    Grid().StartSelectedItems();
    EXPECT_THAT(NextCols(), ElementsAre(std::pair(4, 4), std::pair(0, 0), std::pair(1, 1)));
    EXPECT_THAT(NextCols(), IsEmpty()) << "until it is begun again";
    Grid().StartSelectedItems();
    EXPECT_EQ(NextCols().size(), 3u);
}

TEST_F(Selection, AWalkLeavesItsArgumentsBehindTheLastRangeAndForTheOtherKind)
{
    SelectRows({ 3 });
    Grid().StartSelectedItems();
    i16 first = 91;
    i16 last = 92;
    EXPECT_FALSE(Grid().NextSelectedCols(first, last));
    EXPECT_EQ(first, 91);
    EXPECT_EQ(last, 92);
    EXPECT_TRUE(Grid().NextSelectedRows(first, last)) << "the other walk did not move it";
    EXPECT_EQ(first, 3);
    EXPECT_EQ(last, 3);
    first = 91;
    EXPECT_FALSE(Grid().NextSelectedRows(first, last));
    EXPECT_EQ(first, 91);
    SelectRows({ 8 });
    EXPECT_TRUE(Grid().NextSelectedRows(first, last)) << "a range that came behind";
    EXPECT_EQ(first, 8);
}

TEST_F(Selection, LookingForARectangleBeginsTheWalkAnew)
{
    SelectRows({ 3, 5 });
    Grid().StartSelectedItems();
    i16 ignored = 0;
    i16 first = 0;
    EXPECT_TRUE(Grid().NextSelectedRows(first, ignored));
    EXPECT_FALSE(Grid().GetSelectedCells(ignored, ignored, ignored, ignored));
    EXPECT_TRUE(Grid().NextSelectedRows(first, ignored));
    EXPECT_EQ(first, 3);
}

TEST_F(Selection, AWalkOverRectanglesGivesNothing)
{
    Grid().SetSelectedCells(1, 1, 2, 2);
    EXPECT_THAT(AllRows(), IsEmpty());
    EXPECT_THAT(NextCols(), IsEmpty());
}

TEST_F(Selection, ItemsAreNumberedThroughAllRanges)
{
    Grid().SetRowsSelected(8, 9, true);
    SelectRows({ 2 });
    Grid().SetRowsSelected(4, 5, true);
    std::vector<int> items;
    for (i32 i = 0; i < Grid().SelectCountRow(); ++i)
        items.push_back(Grid().SelectItem(i));
    EXPECT_THAT(items, ElementsAre(8, 9, 2, 4, 5));
    EXPECT_EQ(Grid().SelectItem(4), 5) << "asked again";
    EXPECT_EQ(Grid().SelectItem(5), 0) << "behind the last";
    EXPECT_EQ(Grid().SelectItem(4), 0) << "it never goes back";
    EXPECT_EQ(Grid().SelectItem(0), 8);
    EXPECT_EQ(Grid().SelectItem(3), 4) << "ranges are passed over";
}

TEST_F(Selection, ItemsOfColumnsAreColumns)
{
    Grid().SetColSelected(5, true);
    Grid().SetColSelected(2, true);
    EXPECT_EQ(Grid().SelectItem(0), 5);
    EXPECT_EQ(Grid().SelectItem(1), 2);
}

TEST_F(Selection, AnItemBeforeTheLatestLiesInFrontOfItsRange)
{
    Grid().SetRowsSelected(0, 1, true);
    Grid().SetRowsSelected(8, 9, true);
    EXPECT_EQ(Grid().SelectItem(0), 0);
    EXPECT_EQ(Grid().SelectItem(3), 9);
    EXPECT_EQ(Grid().SelectItem(1), 7);
    EXPECT_EQ(Grid().SelectItem(-1), 5);
    EXPECT_EQ(Grid().SelectItem(0), 0);
}

TEST_F(Selection, ThereAreNoItemsOfNothingAndOfRectangles)
{
    EXPECT_EQ(Grid().SelectItem(0), 0);
    EXPECT_EQ(Grid().SelectItem(3), 0);
    Grid().SetSelectedCells(3, 3, 4, 4);
    EXPECT_EQ(Grid().SelectItem(0), 0);
}

TEST_F(Selection, TooManyLinesBeforeAnItemAreAnOverflow)
{
    Grid().SetRowsSelected(0, 32000, true);
    Grid().SetRowsSelected(0, 32000, true);
    EXPECT_EQ(Grid().SelectCountRow(), 64002);
    EXPECT_EQ(Grid().SelectItem(0), 0);
    EXPECT_EQ(Grid().SelectItem(64001), 32000);
    EXPECT_EQ(ErrorOf([&] { Grid().SelectItem(64002); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().SelectItem(std::numeric_limits<i32>::min()); }), 6);
}

// -- All at once --

TEST_F(Selection, InvertingSelectsTheOtherLines)
{
    SelectRows({ 0, 4, 5 });
    EXPECT_TRUE(Grid().InvertSelect());
    EXPECT_THAT(SelectedRows(), ElementsAre(1, 2, 3, 6, 7, 8, 9, 10, 11));
    EXPECT_EQ(Grid().SelectCountRow(), 9);
    Grid().SetColSelected(5, true);
    EXPECT_TRUE(Grid().InvertSelect());
    EXPECT_THAT(SelectedCols(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(Selection, InvertingAllLinesLeavesNoneAndInvertingAgainAll)
{
    Grid().SetRowsSelected(0, 11, true);
    EXPECT_TRUE(Grid().InvertSelect());
    EXPECT_EQ(Grid().SelectCountRow(), 0);
    EXPECT_TRUE(Grid().InvertSelect()) << "rows still are what is selected";
    EXPECT_EQ(Grid().SelectCountRow(), 12);
}

TEST_F(Selection, InvertingDoesNothingWithoutLines)
{
    EXPECT_FALSE(Grid().InvertSelect());
    EXPECT_TRUE(IsNothingSelected());
    Grid().SetSelectedCells(1, 1, 2, 2);
    host->ClearLog();
    EXPECT_FALSE(Grid().InvertSelect());
    EXPECT_EQ(Grid().SelectCountCell(), 4);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Selection, DeselectingLeavesNothing)
{
    Grid().SetSelectedCells(1, 1, 2, 2);
    Grid().DeselectAll();
    EXPECT_TRUE(IsNothingSelected());
    Grid().SetRedraw(false);
    SelectRows({ 1 });
    Grid().DeselectAll();
    EXPECT_TRUE(IsNothingSelected()) << "with the gate closed, too";
}

TEST_F(Selection, ANewCountOfLinesEmptiesIt)
{
    const std::vector<std::function<void(i16)>> counts { [&](i16 count) { Grid().SetRows(count); },
        [&](i16 count) { Grid().SetCols(count); }, [&](i16 count) { Grid().SetFixedRows(count); },
        [&](i16 count) { Grid().SetFixedCols(count); } };
    Table(5, 5, 5, 5);
    for (const auto& set : counts) {
        SelectRows({ 1 });
        set(5);
        EXPECT_EQ(Grid().SelectCountRow(), 1) << "the count that it has";
        set(6);
        EXPECT_TRUE(IsNothingSelected());
        Grid().SetSelectedCells(0, 0, 1, 1);
        set(4);
        EXPECT_TRUE(IsNothingSelected());
        set(5);
    }
}

TEST_F(Selection, LooksAndSizesLeaveItAlone)
{
    Grid().SetRowsSelected(2, 4, true);
    Grid().ResetGrid();
    Grid().HideRow(3);
    Grid().SetColSpan(2, 1, 2);
    Grid().SetFirstRow(5);
    Grid().Refresh();
    EXPECT_THAT(AllRows(), ElementsAre(std::pair(2, 4)));
}

TEST_F(Selection, ATableThatIsMadeAnewStartsWithout)
{
    SelectRows({ 1 });
    Grid().InitProperties();
    EXPECT_TRUE(IsNothingSelected());
}

// -- Settings --

TEST_F(Selection, WhatAPressSelectsIsReportedWhenItChanges)
{
    EXPECT_FALSE(Grid().SelectByRowCol());
    EXPECT_FALSE(Grid().CellSelection());
    Grid().SetSelectByRowCol(false);
    Grid().SetCellSelection(false);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetSelectByRowCol(true);
    Grid().SetCellSelection(true);
    Grid().SetSelectByRowCol(true);
    Grid().SetCellSelection(true);
    EXPECT_THAT(Reported(), ElementsAre("SelectByRowCol", "CellSelection"));
    EXPECT_TRUE(Grid().SelectByRowCol());
    EXPECT_TRUE(Grid().CellSelection());
    EXPECT_EQ(host->Repaints(), 0);
}

} // namespace
} // namespace vornix
