// Rows and columns in and out, moved, exchanged, copied, emptied, and given their defaults back.
#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr i16 NoLine = -32767;

class Structure : public GridTest {
protected:
    // Every cell holds its row and column as it is filled, fixed ones included.
    void Filled(i16 rows, i16 cols, i16 fixedRows = 0, i16 fixedCols = 0)
    {
        Table(rows, cols, fixedRows, fixedCols);
        for (i16 row = static_cast<i16>(-fixedRows); row < rows; ++row)
            for (i16 col = static_cast<i16>(-fixedCols); col < cols; ++col)
                Grid().SetText(row, col, Name(row, col));
        host->ClearLog();
    }
    static std::u16string Name(int row, int col)
    {
        const std::string text = std::to_string(row) + "," + std::to_string(col);
        return { text.begin(), text.end() };
    }
    std::vector<std::u16string> ColTexts(i16 col = 0)
    {
        std::vector<std::u16string> texts;
        for (i16 row = 0; row < Grid().Rows(); ++row)
            texts.push_back(Grid().Text(row, col));
        return texts;
    }
    std::vector<std::u16string> RowTexts(i16 row = 0)
    {
        std::vector<std::u16string> texts;
        for (i16 col = 0; col < Grid().Cols(); ++col)
            texts.push_back(Grid().Text(row, col));
        return texts;
    }
};

// -- Inserting --

TEST_F(Structure, NewRowsComeInFrontOfARowAndAreEmpty)
{
    Filled(3, 2);
    Grid().InsertRows(1, 2);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"", u"", u"1,0", u"2,0"));
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Structure, ARowInsertedAtTheEndLeavesTheFillerOnTop)
{
    Filled(2, 2);
    Grid().SetText(2, 0, u"filler");
    Grid().InsertRows(2);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"1,0", u""));
    EXPECT_EQ(Grid().Text(3, 0), u"filler");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(4, 0); }), 9);
}

TEST_F(Structure, RowsAreNotInsertedBeforeTheFirstOrBehindTheLast)
{
    Filled(2, 2, 1);
    Grid().InsertRows(3);
    Grid().InsertRows(-1);
    Grid().InsertRows(0, 0);
    EXPECT_EQ(Grid().Rows(), 2);
    Grid().InsertCols(3);
    Grid().InsertCols(-1);
    Grid().InsertCols(0, 0);
    EXPECT_EQ(Grid().Cols(), 2);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Structure, ANegativeCountIsAnErrorAndChangesNothing)
{
    Filled(3, 3);
    EXPECT_EQ(ErrorOf([&] { Grid().InsertRows(1, -1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().InsertCols(1, -1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().DeleteRows(1, -1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().DeleteCols(1, -1); }), 9);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"1,0", u"2,0"));
    EXPECT_THAT(RowTexts(), ElementsAre(u"0,0", u"0,1", u"0,2"));
}

TEST_F(Structure, MoreLinesThanSixteenBitsCountAreAnErrorAndChangeNothing)
{
    Filled(3, 2, 1);
    EXPECT_EQ(ErrorOf([&] { Grid().InsertRows(0, 32767); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().InsertRows(0, 32764); }), 6) << "with the fixed row one too many";
    EXPECT_EQ(ErrorOf([&] { Grid().InsertCols(0, 32767); }), 6);
    EXPECT_EQ(Grid().Rows(), 3);
    EXPECT_EQ(Grid().Cols(), 2);
    EXPECT_EQ(Grid().Text(2, 1), u"2,1");
    Grid().InsertRows(3, 32763);
    EXPECT_EQ(Grid().Rows(), 32766);
    Grid().DeleteRows(1, 32764);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u""));
}

TEST_F(Structure, NewColumnsComeInFrontOfAColumn)
{
    Filled(2, 3, 1);
    Grid().SetColWidth(1, 77);
    Grid().InsertCols(1, 2);
    EXPECT_THAT(RowTexts(), ElementsAre(u"0,0", u"", u"", u"0,1", u"0,2"));
    EXPECT_THAT(RowTexts(-1), ElementsAre(u"-1,0", u"", u"", u"-1,1", u"-1,2"));
    EXPECT_EQ(Grid().ColWidth(1), Grid().DefaultWidth());
    EXPECT_EQ(Grid().ColWidth(3), 77);
    EXPECT_EQ(Grid().CellMode(-1, 1), vxCellFixed);
}

TEST_F(Structure, ANewColumnRepeatsTheOrderOfTheOneItPushedAside)
{
    Table(1, 4);
    Grid().InsertCols(1);
    std::vector<i16> orders;
    for (const char16_t* index : { u"0", u"1", u"2", u"3", u"4" })
        orders.push_back(Grid().ColOrder(index));
    EXPECT_THAT(orders, ElementsAre(0, 1, 1, 2, 3));
}

TEST_F(Structure, ASpanGrowsOverLinesInsertedInIt)
{
    Filled(5, 5);
    Grid().SetRowSpan(1, 1, 3);
    Grid().SetColSpan(1, 1, 2);
    Grid().InsertRows(2, 2);
    EXPECT_EQ(Grid().RowSpan(1, 1), 5);
    EXPECT_EQ(Grid().ColSpan(1, 1), 2);
    EXPECT_EQ(Grid().ParentRow(3, 2), 1);
    EXPECT_EQ(Grid().ParentCol(3, 2), 1);
    EXPECT_EQ(Grid().ParentRow(5, 1), 1);
    Grid().InsertCols(2);
    EXPECT_EQ(Grid().ColSpan(1, 1), 3);
    EXPECT_EQ(Grid().ParentCol(5, 3), 1);
    Grid().InsertRows(1);
    EXPECT_EQ(Grid().RowSpan(2, 1), 5) << "in front of it, it only moves";
    EXPECT_EQ(Grid().RowSpan(1, 1), 0);
}

TEST_F(Structure, ASpanOfAFixedRowGrowsOverRowsBelowIt)
{
    Filled(3, 2, 1);
    Grid().SetRowSpan(-1, 0, 2);
    Grid().InsertRows(0);
    EXPECT_EQ(Grid().RowSpan(-1, 0), 3);
    EXPECT_EQ(Grid().ParentRow(1, 0), -1);
}

TEST_F(Structure, NewColumnsHaveNoSpansOfTheirOwn)
{
    Filled(3, 4);
    Grid().SetColSpan(0, 1, 2);
    Grid().SetRowSpan(1, 1, 2);
    Grid().InsertCols(1);
    EXPECT_EQ(Grid().ColSpan(0, 1), 0);
    EXPECT_EQ(Grid().RowSpan(1, 1), 0);
    EXPECT_EQ(Grid().ParentRow(2, 1), 2);
    EXPECT_EQ(Grid().ColSpan(0, 2), 2);
    EXPECT_EQ(Grid().ParentRow(2, 2), 1);
}

TEST_F(Structure, ANewRowKeepsTheMarkOfAHiddenOneThatStoodThere)
{
    Table(3, 1);
    Grid().HideRow(1);
    Grid().InsertRows(1);
    EXPECT_TRUE(Grid().RowHide(1));
    EXPECT_EQ(Grid().RowHeight(1), Grid().DefaultHeight());
    EXPECT_TRUE(Grid().RowHide(2));
    EXPECT_EQ(Grid().RowHeight(2), 0);
}

// -- Deleting --

TEST_F(Structure, DeletedRowsCloseUp)
{
    Filled(5, 2);
    Grid().DeleteRows(1, 2);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"3,0", u"4,0"));
    EXPECT_EQ(ErrorOf([&] { Grid().Text(4, 0); }), 9);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Structure, DeletingAllRowsLeavesNoneAndNoCurrentCell)
{
    for (const i16 row : { i16(0), i16(1), i16(2) }) {
        Filled(3, 2, 1, 1);
        Grid().CurrentPos(row, 1);
        Grid().DeleteRows(0, 3);
        EXPECT_EQ(Grid().Rows(), 0);
        EXPECT_EQ(Grid().CurrentRow(), NoLine) << "a fixed row does not become the current one";
        EXPECT_EQ(Grid().Text(-1, 0), u"-1,0");
    }
    Grid().InsertRows(0, 2);
    EXPECT_THAT(ColTexts(), ElementsAre(u"", u""));
}

TEST_F(Structure, LinesThatThereAreNotAreNotDeleted)
{
    Filled(3, 3, 1);
    Grid().DeleteRows(-1);
    Grid().DeleteRows(3);
    Grid().DeleteRows(0, 0);
    Grid().DeleteCols(-1);
    Grid().DeleteCols(3);
    Grid().DeleteCols(0, 0);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(ErrorOf([&] { Grid().DeleteRows(1, 3); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().DeleteRows(1, 30); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().DeleteRows(2, 32767); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().DeleteCols(1, 3); }), 9);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"1,0", u"2,0"));
    EXPECT_THAT(RowTexts(), ElementsAre(u"0,0", u"0,1", u"0,2"));
}

TEST_F(Structure, ASpanAroundDeletedRowsShrinks)
{
    Filled(8, 3);
    Grid().SetRowSpan(1, 0, 5);
    Grid().SetColSpan(1, 0, 2);
    Grid().DeleteRows(3, 2);
    EXPECT_EQ(Grid().RowSpan(1, 0), 3);
    EXPECT_EQ(Grid().ColSpan(1, 0), 2);
    EXPECT_EQ(Grid().ParentRow(3, 1), 1);
    EXPECT_EQ(Grid().ParentRow(4, 1), 4);
}

TEST_F(Structure, ASpanThatEndsInDeletedRowsIsCut)
{
    Filled(6, 2);
    Grid().SetRowSpan(0, 0, 3);
    Grid().DeleteRows(2, 3);
    EXPECT_EQ(Grid().RowSpan(0, 0), 2);
    EXPECT_EQ(Grid().ParentRow(1, 0), 0);
    EXPECT_EQ(Grid().ParentRow(2, 0), 2);
    Grid().DeleteRows(1);
    EXPECT_EQ(Grid().RowSpan(0, 0), 1) << "it covers its own row";
}

TEST_F(Structure, WhatASpanLeavesBelowDeletedRowsGetsAParentOfItsOwn)
{
    Filled(6, 3);
    Grid().SetRowSpan(1, 0, 4);
    Grid().SetColSpan(1, 0, 2);
    Grid().DeleteRows(0, 3);
    EXPECT_EQ(Grid().RowSpan(0, 0), 2);
    EXPECT_EQ(Grid().ColSpan(0, 0), 2);
    EXPECT_EQ(Grid().Text(0, 0), u"3,0") << "its text has been there all along";
    EXPECT_EQ(Grid().ParentRow(1, 1), 0);
    EXPECT_EQ(Grid().ParentCol(1, 1), 0);
    EXPECT_EQ(Grid().ParentRow(2, 1), 2);
}

TEST_F(Structure, TheSameHoldsForColumns)
{
    Filled(3, 8);
    Grid().SetColSpan(0, 0, 3);
    Grid().SetRowSpan(0, 0, 2);
    Grid().SetColSpan(0, 4, 4);
    Grid().DeleteCols(2, 3);
    EXPECT_EQ(Grid().ColSpan(0, 0), 2);
    EXPECT_EQ(Grid().ParentCol(1, 1), 0);
    EXPECT_EQ(Grid().ColSpan(0, 2), 3);
    EXPECT_EQ(Grid().Text(0, 2), u"0,5");
    Grid().DeleteCols(3);
    EXPECT_EQ(Grid().ColSpan(0, 2), 2);
    EXPECT_EQ(Grid().ParentCol(0, 3), 2);
}

TEST_F(Structure, ColumnsThatStayKeepTheirOrder)
{
    Table(1, 4);
    Grid().DeleteCols(1);
    EXPECT_EQ(Grid().ColOrder(u"1"), 2);
    EXPECT_EQ(Grid().ColOrder(u"2"), 3);
}

// -- The title --

class TitledTable : public Structure {
protected:
    TitledTable()
    {
        Filled(2, 4, 2, 1);
        Grid().SetCaption(u"Stock");
        Grid().SetCaptionEnabled(true);
        host->ClearLog();
    }
};

TEST_F(TitledTable, TheTitleKeepsItsCellWhereColumnsComeAndGo)
{
    Grid().InsertCols(0, 2);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
    EXPECT_EQ(Grid().Text(-2, 2), u"");
    EXPECT_EQ(Grid().Text(-1, 2), u"-1,0");
    Grid().InsertCols(3);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
    Grid().DeleteCols(0, 3);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
    Grid().DeleteCols(1);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
}

TEST_F(TitledTable, DeletingAllColumnsTurnsItOff)
{
    Grid().DeleteCols(0, 4);
    EXPECT_FALSE(Grid().CaptionEnabled());
    EXPECT_EQ(Grid().Cols(), 0);
    Grid().InsertCols(0);
    EXPECT_EQ(Grid().Text(-2, 0), u"");
}

TEST_F(TitledTable, MovedAndExchangedColumnsLeaveItWhereItIs)
{
    Grid().MoveCol(3, 0);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
    EXPECT_EQ(Grid().Text(0, 0), u"0,3");
    Grid().MoveCol(0, 2);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
    EXPECT_EQ(Grid().Text(0, 2), u"0,3");
    EXPECT_EQ(Grid().Text(-2, 2), u"") << "the title is no text of the column";
    Grid().SetText(-2, 3, u"below");
    Grid().SwapCols(0, 3);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
    EXPECT_EQ(Grid().Text(-2, 3), u"below");
    EXPECT_EQ(Grid().Text(0, 0), u"0,2");
    Grid().CopyCol(1, 0);
    EXPECT_EQ(Grid().Text(-2, 0), u"Stock");
    EXPECT_EQ(Grid().Text(-1, 0), Grid().Text(-1, 1));
}

// -- Moving --

TEST_F(Structure, AMovedRowEndsAtItsNewIndex)
{
    Filled(7, 1);
    Grid().SetRowHeight(2, 55);
    Grid().MoveRow(2, 5);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"1,0", u"3,0", u"4,0", u"5,0", u"2,0", u"6,0"));
    EXPECT_EQ(Grid().RowHeight(5), 55);
    EXPECT_EQ(Grid().RowHeight(2), Grid().DefaultHeight());
    host->ClearLog();
    Grid().MoveRow(5, 0);
    EXPECT_THAT(ColTexts(), ElementsAre(u"2,0", u"0,0", u"1,0", u"3,0", u"4,0", u"5,0", u"6,0"));
    EXPECT_EQ(host->Repaints(), 1);
    Grid().MoveRow(0, 6);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"1,0", u"3,0", u"4,0", u"5,0", u"6,0", u"2,0"));
}

TEST_F(Structure, AMovedColumnTakesItsWholeRecordAlong)
{
    Filled(2, 4, 1);
    Grid().SetColName(3, u"price");
    Grid().SetColFormat(3, u"0.00");
    Grid().SetColMask(3, u"##");
    Grid().SetColWidth(3, 33);
    Grid().MoveCol(3, 1);
    EXPECT_THAT(RowTexts(), ElementsAre(u"0,0", u"0,3", u"0,1", u"0,2"));
    EXPECT_THAT(RowTexts(-1), ElementsAre(u"-1,0", u"-1,3", u"-1,1", u"-1,2"));
    EXPECT_EQ(Grid().ColName(1), u"price");
    EXPECT_EQ(Grid().ColFormat(1), u"0.00");
    EXPECT_EQ(Grid().ColMask(1), u"##");
    EXPECT_EQ(Grid().ColWidth(1), 33);
    EXPECT_EQ(Grid().ColOrder(u"1"), 3);
}

TEST_F(Structure, MovesOfLinesThatThereAreNotAreErrorsOrNothing)
{
    Filled(3, 3, 1, 1);
    Grid().MoveRow(-1, 1);
    Grid().MoveRow(1, -1);
    Grid().MoveRow(1, 1);
    Grid().MoveCol(-1, 1);
    Grid().MoveCol(1, 1);
    EXPECT_EQ(ErrorOf([&] { Grid().MoveRow(0, 3); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().MoveRow(3, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().MoveCol(0, 30); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().MoveCol(3, 0); }), 9);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"1,0", u"2,0"));
    EXPECT_THAT(RowTexts(), ElementsAre(u"0,0", u"0,1", u"0,2"));
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Structure, AHiddenRowThatMovesKeepsItsHeightOfNothing)
{
    Filled(5, 1);
    Grid().HideRow(1);
    Grid().MoveRow(1, 3);
    EXPECT_EQ(Grid().RowHeight(3), 0);
    EXPECT_EQ(Grid().RowHeight(1), Grid().DefaultHeight());
    Grid().CurrentPos(2, 0);
    host->Press("Down");
    EXPECT_EQ(Grid().CurrentRow(), 4) << "the keyboard steps over it where it is now";
}

TEST_F(Structure, ANameFindsItsColumnWhereItHasMoved)
{
    Table(2, 5);
    Grid().SetColName(1, u"price");
    Grid().MoveCol(1, 4);
    EXPECT_EQ(Grid().ColOrder(u"price"), 4);
    EXPECT_EQ(Grid().ColOrder(u"4"), 1);
    Grid().MoveCol(0, 2);
    Grid().ReOrderCols();
    for (i16 col = 0; col < 5; ++col)
        EXPECT_EQ(Grid().ColOrder(std::u16string(1, static_cast<char16_t>(u'0' + col))), col);
    EXPECT_EQ(Grid().ColOrder(u"price"), 1);
}

TEST_F(Structure, OfTwoColumnsWithOneOrderTheFirstOneFoundMoves)
{
    Filled(1, 3);
    Grid().InsertCols(1);
    Grid().MoveCol(0, 3);
    Grid().ReOrderCols();
    EXPECT_THAT(RowTexts(), ElementsAre(u"0,0", u"", u"0,2", u"0,1"));
}

TEST_F(Structure, AParkedLookGoesBackToItsPlaceWhateverLiesThereNow)
{
    Filled(4, 2);
    Grid().SetCellBackColor(1, 0, 0xAB);
    Grid().StoreVisualCell(0, 1, 0);
    Grid().DeleteRows(0);
    Grid().SetCellBackColor(0, 0, 0xCD);
    Grid().RestoreVisualCell(0);
    EXPECT_EQ(Grid().CellBackColor(1, 0), 0xABu);
    EXPECT_EQ(Grid().Text(1, 0), u"2,0");
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0xCDu);
}

// -- Exchanging --

TEST_F(Structure, ExchangedRowsTakeEverythingAlong)
{
    Filled(3, 2, 1);
    Grid().SetRowHeight(0, 50);
    Grid().SetRowBackColor(0, 0x123456);
    Grid().SetColSpan(0, 0, 2);
    Grid().SwapRows(0, 2);
    EXPECT_THAT(ColTexts(), ElementsAre(u"2,0", u"1,0", u"0,0"));
    EXPECT_EQ(Grid().RowHeight(2), 50);
    EXPECT_EQ(Grid().CellBackColor(2, 1), 0x123456u);
    EXPECT_EQ(Grid().ParentCol(2, 1), 0);
    EXPECT_EQ(Grid().ParentCol(0, 1), 1);
    Grid().SwapRows(-1, 1);
    EXPECT_EQ(Grid().Text(-1, 0), u"1,0");
    EXPECT_EQ(Grid().Text(1, 0), u"-1,0");
}

TEST_F(Structure, RowsThatThereAreNotAreNotExchanged)
{
    Filled(2, 2, 1, 1);
    Grid().SwapRows(-2, 0);
    Grid().SwapRows(1, 1);
    Grid().SwapCols(-2, 0);
    EXPECT_EQ(ErrorOf([&] { Grid().SwapRows(0, 2); }), 9) << "the filler stays";
    EXPECT_EQ(ErrorOf([&] { Grid().SwapRows(0, 3); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SwapCols(0, 2); }), 9);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(ColTexts(), ElementsAre(u"0,0", u"1,0"));
}

TEST_F(Structure, ARowOfASpanLeavesItWhenExchanged)
{
    Filled(8, 2);
    Grid().SetRowSpan(1, 0, 3);
    Grid().SwapRows(2, 6);
    EXPECT_EQ(Grid().RowSpan(1, 0), 3);
    EXPECT_EQ(Grid().ParentRow(2, 0), 2);
    EXPECT_EQ(Grid().ParentRow(3, 0), 1);
    Grid().SwapRows(3, 0);
    Grid().SwapRows(1, 7);
    host->Paint();
    i16 row = 0;
    i16 col = 0;
    for (i32 y = 0; y < 240; y += 7)
        Grid().GetCellParentAtPos(5, y, row, col);
    Grid().DeleteRows(0, 1);
    Grid().InsertRows(1, 2);
    Grid().DeleteRows(4, 3);
    Grid().RemoveSpanRows(0);
    Grid().SetRowSpan(0, 0, 2);
    EXPECT_EQ(Grid().ParentRow(1, 0), 0) << "links that lead nowhere harm nobody";
}

TEST_F(Structure, LinesMayComeAndGoWhereSpansWereExchanged)
{
    Filled(8, 14);
    Grid().SetRowSpan(0, 0, 2);
    Grid().SetColSpan(0, 0, 10);
    Grid().SwapCols(0, 11);
    Grid().SetRowSpan(0, 0, 2);
    Grid().InsertRows(1, 4000);
    EXPECT_EQ(Grid().Rows(), 4008);
    EXPECT_EQ(Grid().RowSpan(0, 0), 4002);
    Grid().DeleteRows(1, 4000);
    EXPECT_EQ(Grid().RowSpan(0, 0), 2);
    Grid().SetColSpan(0, 0, 3);
    EXPECT_EQ(Grid().ParentCol(1, 2), 0);
}

TEST_F(Structure, SizesFitWhereASpanWasExchangedToTheEnd)
{
    Filled(5, 5);
    Grid().SetRowSpan(0, 0, 3);
    Grid().SwapRows(0, 4);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustHeight(4); }), std::nullopt);
    Grid().SetColSpan(0, 1, 4);
    Grid().SwapCols(1, 4);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustHeight(0); }), std::nullopt);
    EXPECT_EQ(ErrorOf([&] { Grid().AdjustWidth(4); }), std::nullopt);
}

TEST_F(Structure, AFixedRowOfAnotherHeightMovesTheRowsBelow)
{
    Filled(3, 2, 1);
    Grid().SetRowHeight(2, 60);
    host->ClearLog();
    Grid().SwapRows(-1, 2);
    EXPECT_EQ(host->Repaints(), 1);
    i32 x = 0;
    i32 y = 0;
    Grid().GetPositionCell(0, 0, x, y);
    EXPECT_EQ(y / 15, 60);
}

TEST_F(Structure, TheMarkOfASelectedRowMovesWithIt)
{
    Filled(6, 2);
    Grid().SetRowSelected(1, true);
    Grid().SwapRows(1, 4);
    EXPECT_FALSE(Grid().RowSelected(1));
    EXPECT_TRUE(Grid().RowSelected(4));
    Grid().MoveRow(4, 0);
    EXPECT_TRUE(Grid().RowSelected(0));
    EXPECT_EQ(Grid().SelectCountRow(), 1);
    Grid().SetRowSelected(3, true);
    Grid().SwapRows(0, 3);
    EXPECT_TRUE(Grid().RowSelected(0) && Grid().RowSelected(3)) << "both stay";
}

TEST_F(Structure, TheMarkOfASelectedColumnMovesWithIt)
{
    Filled(2, 6);
    Grid().SetColSelected(1, true);
    Grid().SwapCols(1, 4);
    EXPECT_TRUE(Grid().ColSelected(4));
    Grid().MoveCol(4, 2);
    EXPECT_TRUE(Grid().ColSelected(2));
    Grid().InsertCols(0, 2);
    EXPECT_TRUE(Grid().ColSelected(4));
    Grid().DeleteCols(1, 2);
    EXPECT_TRUE(Grid().ColSelected(2));
    Grid().InsertRows(0);
    EXPECT_TRUE(Grid().ColSelected(2)) << "rows are another matter";
}

TEST_F(Structure, SelectedCellsAreNotAnyMoreButForAnExchange)
{
    Filled(5, 5);
    Grid().SetSelectedCells(1, 1, 2, 2);
    Grid().SwapRows(1, 4);
    Grid().SwapCols(1, 4);
    EXPECT_EQ(Grid().SelectCountCell(), 4);
    Grid().InsertRows(0);
    EXPECT_EQ(Grid().SelectCountCell(), 0);
    Grid().SetSelectedCells(1, 1, 2, 2);
    Grid().DeleteCols(4);
    EXPECT_EQ(Grid().SelectCountCell(), 0);
    Grid().SetSelectedCells(1, 1, 2, 2);
    Grid().MoveRow(0, 3);
    EXPECT_EQ(Grid().SelectCountCell(), 0);
}

TEST_F(Structure, TheCurrentCellShiftsWithWhatComesAndGoesBeforeIt)
{
    Filled(6, 6);
    Grid().CurrentPos(3, 3);
    Grid().InsertRows(3);
    Grid().InsertCols(0, 2);
    EXPECT_EQ(Grid().CurrentRow(), 4);
    EXPECT_EQ(Grid().CurrentCol(), 5);
    Grid().DeleteRows(5);
    Grid().DeleteCols(1, 2);
    EXPECT_EQ(Grid().CurrentRow(), 4);
    EXPECT_EQ(Grid().CurrentCol(), 3);
    Grid().SwapRows(4, 0);
    EXPECT_EQ(Grid().CurrentRow(), 4) << "an exchange leaves it";
}

TEST_F(Structure, TheViewStaysInTheTable)
{
    Filled(200, 3);
    Grid().SetFirstRow(190);
    Grid().DeleteRows(20, 180);
    EXPECT_LT(Grid().FirstRow(), 20);
    Grid().DeleteRows(0, 20);
    EXPECT_EQ(Grid().FirstRow(), 0);
}

// -- Copying --

TEST_F(Structure, ACopiedCellTakesTextKeyLookAndSpan)
{
    Filled(4, 4);
    Grid().SetKey(0, 0, u"k");
    Grid().SetCellBackColor(0, 0, 0xABCDEF);
    Grid().SetCellPicture(0, 0, MakePicture(0xFF));
    Grid().SetColSpan(0, 0, 2);
    Grid().SetRowSpan(1, 2, 2);
    host->ClearLog();
    Grid().CopyCell(0, 0, 2, 1);
    EXPECT_EQ(Grid().Text(2, 1), u"0,0");
    EXPECT_EQ(Grid().Key(2, 1), u"k");
    EXPECT_EQ(Grid().CellBackColor(2, 1), 0xABCDEFu);
    EXPECT_EQ(Grid().CellPicture(2, 1), Grid().CellPicture(0, 0));
    EXPECT_EQ(Grid().ColSpan(2, 1), 2);
    EXPECT_EQ(Grid().RowSpan(1, 2), 0) << "a span in the way goes as a whole";
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(ErrorOf([&] { Grid().CopyCell(0, 0, 9, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().CopyCell(9, 0, 0, 0); }), 9);
}

TEST_F(Structure, ACopiedRowLeavesTheHeightOfTheOther)
{
    Filled(3, 3);
    Grid().SetRowHeight(0, 44);
    Grid().SetColSpan(0, 1, 2);
    Grid().CopyRow(0, 2);
    EXPECT_THAT(RowTexts(2), ElementsAre(u"0,0", u"0,1", u"0,2"));
    EXPECT_EQ(Grid().RowHeight(2), Grid().DefaultHeight());
    EXPECT_EQ(Grid().ColSpan(2, 1), 2);
    EXPECT_EQ(ErrorOf([&] { Grid().CopyRow(0, 4); }), 9);
}

TEST_F(Structure, ACopiedColumnTakesTheFixedCellsAlong)
{
    Filled(2, 3, 1);
    Grid().SetColWidth(0, 44);
    Grid().SetRowSpan(0, 0, 2);
    Grid().CopyCol(0, 2);
    EXPECT_EQ(Grid().Text(-1, 2), u"-1,0");
    EXPECT_EQ(Grid().Text(1, 2), u"1,0");
    EXPECT_EQ(Grid().RowSpan(0, 2), 2);
    EXPECT_EQ(Grid().ColWidth(2), Grid().DefaultWidth());
    EXPECT_EQ(ErrorOf([&] { Grid().CopyCol(4, 0); }), 9);
}

// -- Emptying --

TEST_F(Structure, AnEmptiedRowLosesTextsAndKeysOnly)
{
    Filled(2, 2, 0, 1);
    Grid().SetKey(0, 0, u"k");
    Grid().SetColSpan(0, 0, 2);
    Grid().SetCellPicture(0, 0, MakePicture(0xFF));
    Grid().ClearRow(0);
    EXPECT_THAT(RowTexts(), ElementsAre(u"", u""));
    EXPECT_EQ(Grid().Key(0, 0), u"");
    EXPECT_EQ(Grid().Text(0, -1), u"0,-1");
    EXPECT_EQ(Grid().ColSpan(0, 0), 2);
    EXPECT_NE(Grid().CellPicture(0, 0), nullptr);
    Grid().ClearRow(0, true);
    EXPECT_EQ(Grid().Text(0, -1), u"");
    EXPECT_EQ(Grid().Text(1, 0), u"1,0");
    EXPECT_EQ(ErrorOf([&] { Grid().ClearRow(3); }), 9);
}

TEST_F(Structure, AnEmptiedColumnKeepsItsFixedCellsUnlessAskedFor)
{
    Filled(2, 2, 1);
    Grid().ClearCol(1);
    EXPECT_THAT(ColTexts(1), ElementsAre(u"", u""));
    EXPECT_EQ(Grid().Text(-1, 1), u"-1,1");
    Grid().ClearCol(1, true);
    EXPECT_EQ(Grid().Text(-1, 1), u"");
    EXPECT_THAT(ColTexts(0), ElementsAre(u"0,0", u"1,0"));
    EXPECT_EQ(ErrorOf([&] { Grid().ClearCol(3); }), 9);
}

TEST_F(Structure, TheCurrentCellDoesNotBecomeAFixedOne)
{
    Filled(3, 3, 1, 1);
    Grid().CurrentPos(0, 2);
    Grid().MoveRow(0, 2);
    EXPECT_EQ(Grid().CurrentRow(), NoLine);
    Grid().CurrentPos(2, 0);
    Grid().DeleteCols(0);
    EXPECT_EQ(Grid().CurrentCol(), NoLine);
    Grid().CurrentPos(-1, -1);
    Grid().DeleteRows(0, 2);
    EXPECT_EQ(Grid().CurrentRow(), -1) << "one that was fixed stays";
}

TEST_F(Structure, AnEditorThatIsEmptiedTellsSoWhereverItIs)
{
    Filled(3, 2);
    Grid().SetCellMode(0, 0, vxTextBox);
    std::vector<i16> told;
    handlers.OnTextChange = [&](i16 Row, i16) { told.push_back(Row); };
    for (const i16 row : { i16(0), i16(2) }) {
        Grid().SetText(0, 0, u"text");
        Grid().CurrentPos(0, 0);
        Grid().EnterEdit();
        Grid().ClearRow(row);
        Grid().ClearRow(row);
    }
    EXPECT_THAT(told, ElementsAre(0, 0)) << "once for each text that went";
}

TEST_F(Structure, AnEditorWithAMaskIsEmptiedToItsPlaces)
{
    Filled(3, 2);
    Grid().SetColMask(0, u"00-00");
    Grid().SetColMode(0, vxTextBox);
    Grid().SetText(1, 0, u"12-34");
    Grid().CurrentPos(1, 0);
    Grid().EnterEdit();
    int told = 0;
    handlers.OnTextChange = [&](i16, i16) { ++told; };
    Grid().ClearRow(1);
    EXPECT_EQ(Grid().Text(1, 0), u"");
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(Grid().IsEditMode());
    host->Press("Home");
    host->Type(u"56");
    EXPECT_EQ(Grid().Text(1, 0).substr(0, 2), u"56") << "nothing of what was there comes back";
    EXPECT_EQ(Grid().Text(1, 0).find(u"4"), std::u16string::npos);
}

TEST_F(Structure, AHandlerOfTheEmptiedEditorMayTakeTheRowAway)
{
    Filled(3, 2);
    Grid().SetCellMode(2, 0, vxTextBox);
    handlers.OnTextChange = [&](i16, i16) { Grid().SetRows(1); };
    Grid().CurrentPos(2, 0);
    Grid().EnterEdit();
    Grid().ClearRow(2);
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Grid().Text(0, 0), u"0,0");
}

TEST_F(Structure, ExchangedRowsCloseAnEditorFirst)
{
    Filled(3, 2);
    Grid().SetCellMode(0, 0, vxTextBox);
    Grid().CurrentPos(0, 0);
    Grid().EnterEdit();
    Grid().SetSelText(u"typed");
    const std::u16string typed = Grid().Text(0, 0);
    Grid().SwapRows(0, 2);
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Grid().Text(2, 0), typed);
    EXPECT_EQ(Grid().Text(0, 0), u"2,0");
}

TEST_F(Structure, RowsThatStayLeaveTheEditorOpen)
{
    Filled(3, 2, 1);
    Grid().SetCellMode(0, 0, vxTextBox);
    Grid().CurrentPos(0, 0);
    Grid().EnterEdit();
    Grid().SwapRows(0, 0);
    Grid().SwapRows(-2, 1);
    EXPECT_EQ(ErrorOf([&] { Grid().SwapRows(0, 3); }), 9);
    EXPECT_TRUE(Grid().IsEditMode());
}

TEST_F(Structure, AHandlerOfTheEditorThatClosesMayDoAnything)
{
    Filled(3, 2);
    Grid().SetCellMode(0, 0, vxTextBox);
    Grid().CurrentPos(0, 0);
    Grid().EnterEdit();
    handlers.OnAfterEdit = [&](i16, i16) { Grid().EnterEdit(); };
    Grid().SwapRows(0, 2);
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(Grid().Text(0, 0), u"2,0");
    handlers.OnAfterEdit = [&](i16, i16) {
        Grid().SetRows(1);
        Grid().EnterEdit();
        host->ClearLog();
    };
    Grid().SetCellMode(0, 0, vxTextBox);
    Grid().EnterEdit();
    EXPECT_EQ(ErrorOf([&] { Grid().SwapRows(0, 2); }), 9);
    EXPECT_FALSE(Grid().IsEditMode());
    EXPECT_EQ(host->Repaints(), 1);
    handlers.OnAfterEdit = [&](i16, i16) { host->Close(); };
    Grid().SetRows(3);
    Grid().EnterEdit();
    Grid().SwapRows(0, 2);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(Structure, NothingIsToldOfACellThatWasUnderThePointerAndIsGone)
{
    Filled(5, 2);
    std::vector<i16> left;
    handlers.OnCellOut = [&](i16 Row, i16) { left.push_back(Row); };
    const i32 y = 4 * Grid().DefaultHeight() + 5;
    host->MouseMove(5, static_cast<float>(y));
    Grid().DeleteRows(1, 4);
    host->MouseMove(5, 5);
    EXPECT_THAT(left, IsEmpty());
}

TEST_F(Structure, AnOpenEditorIsEmptiedAndWritesThat)
{
    Filled(3, 2);
    Grid().SetCellMode(0, 0, vxTextBox);
    Grid().CurrentPos(0, 0);
    Grid().EnterEdit();
    ASSERT_TRUE(Grid().IsEditMode());
    Grid().ClearCol(0);
    EXPECT_EQ(Grid().Text(0, 0), u"");
    EXPECT_TRUE(Grid().IsEditMode());
    Grid().SetSelText(u"new");
    EXPECT_EQ(Grid().Text(0, 0), u"new") << "of the text before nothing is left in the editor";
    Grid().ClearRow(2);
    EXPECT_EQ(Grid().Text(0, 0), u"") << "wherever it is";
}

TEST_F(Structure, AnOpenComboIsEmptiedAndWritesThat)
{
    Filled(3, 2);
    for (const i32 mode : { vxComboDropDownBox, vxComboListBox }) {
        Grid().SetText(0, 0, u"Oslo");
        Grid().SetKey(0, 0, u"7");
        Grid().SetCellMode(0, 0, mode);
        Grid().ComboClear();
        Grid().ComboAddItem(u"Oslo");
        Grid().CurrentPos(0, 0);
        Grid().EnterEdit();
        ASSERT_TRUE(Grid().IsEditMode());
        Grid().ClearRow(1);
        EXPECT_EQ(Grid().Text(0, 0), u"");
        EXPECT_EQ(Grid().Key(0, 0), u"");
        EXPECT_EQ(Grid().ComboListIndex(), -1);
        Grid().ExitEdit();
    }
}

TEST_F(Structure, AnEditorClosesWhereLinesComeAndGo)
{
    Filled(5, 5);
    const std::vector<std::function<void()>> steps { [&] { Grid().InsertRows(0); }, [&] { Grid().DeleteRows(0); },
        [&] { Grid().InsertCols(0); }, [&] { Grid().DeleteCols(0); }, [&] { Grid().MoveRow(1, 2); },
        [&] { Grid().MoveCol(1, 2); }, [&] { Grid().SwapCols(1, 2); }, [&] { Grid().CopyRow(1, 2); } };
    for (const bool redraw : { true, false })
        for (const auto& step : steps) {
            Grid().SetRedraw(true);
            Grid().SetCellMode(3, 3, vxTextBox);
            Grid().CurrentPos(3, 3);
            Grid().EnterEdit();
            ASSERT_TRUE(Grid().IsEditMode());
            Grid().SetRedraw(redraw);
            step();
            EXPECT_FALSE(Grid().IsEditMode());
        }
}

// -- The defaults --

TEST_F(Structure, ResetCellsGivesARectangleItsDefaultsBack)
{
    Filled(3, 4, 1, 1);
    for (const i16 col : { i16(1), i16(2) }) {
        Grid().SetColWidth(col, 11);
        Grid().SetColName(col, u"n");
        Grid().SetColMask(col, u"##");
        Grid().SetColBackColor(col, 0xFF);
    }
    Grid().SetRowHeight(1, 55);
    Grid().SetKey(1, 2, u"k");
    Grid().SetColSpan(1, 2, 2);
    const std::vector<std::string> plain = LookOf(Grid(), { 1, 0 });
    Grid().ResetCells(1, 2, 0, 2);
    EXPECT_EQ(LookOf(Grid(), { 1, 2 }), plain);
    EXPECT_EQ(Grid().CellBackColor(2, 2), 0xFFu) << "outside the rectangle";
    EXPECT_EQ(Grid().ColWidth(2), Grid().DefaultWidth());
    EXPECT_EQ(Grid().ColName(2), u"");
    EXPECT_EQ(Grid().ColMask(2), u"");
    EXPECT_EQ(Grid().ColName(1), u"n");
    EXPECT_EQ(Grid().RowHeight(1), Grid().DefaultHeight());
    EXPECT_EQ(Grid().Text(1, 2), u"1,2");
    EXPECT_EQ(Grid().Key(1, 2), u"k");
    EXPECT_EQ(Grid().ColSpan(1, 2), 2);
    Grid().SetRowHeight(-1, 70);
    Grid().SetColWidth(-1, 70);
    Grid().SetCellMode(-1, -1, vxTextBox);
    Grid().ResetCells(-1, -1, -1, -1);
    EXPECT_EQ(Grid().RowHeight(-1), Grid().DefaultHeightFixed());
    EXPECT_EQ(Grid().ColWidth(-1), Grid().DefaultWidthFixed());
    EXPECT_EQ(Grid().CellMode(-1, -1), vxCellFixed);
    EXPECT_EQ(ErrorOf([&] { Grid().ResetCells(0, 0, 9, 0); }), 9);
}

// -- Percent widths, the split --

TEST_F(Structure, APercentWidthThatGoesWithItsColumnIsForgotten)
{
    Filled(2, 3);
    Grid().SetColWidthPercent(1, 100);
    Grid().DeleteCols(1);
    Grid().SetColWidth(1, 40);
    host->Resize(300, 200);
    EXPECT_EQ(Grid().ColWidth(1), 40);
}

TEST_F(Structure, ASplitWithoutAColumnBehindItIsDropped)
{
    Filled(2, 20);
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(3);
    ASSERT_EQ(Grid().SplitCols(), 3);
    Grid().DeleteCols(2, 18);
    EXPECT_EQ(Grid().SplitCols(), 0);
}

// -- While nothing is painted --

TEST_F(Structure, NothingIsPaintedWhileRedrawIsOff)
{
    Filled(6, 6);
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().InsertRows(1, 2);
    Grid().DeleteRows(0, 3);
    Grid().MoveRow(0, 2);
    Grid().SwapRows(0, 1);
    Grid().CopyCell(0, 0, 1, 1);
    Grid().ClearRow(0);
    Grid().ResetCells(0, 0, 1, 1);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(host->Repaints(), 1);
}

} // namespace
} // namespace vornix
