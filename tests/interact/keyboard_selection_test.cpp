#include "interact/keyboard_fixture.h"

namespace vornix {
namespace {

class KeyboardSelection : public KeyboardTest {
protected:
    KeyboardSelection() { Table(5, 4, 1, 1); }

    // The cell of the latest move by a key is where selecting begins.
    void BeginAt(i16 Row, i16 Col)
    {
        Grid().CurrentPos(Row, Col);
        Key(Code::Right);
        Key(Code::Left);
        ASSERT_EQ(Current(), (CellPlace { Row, Col }));
    }
    std::vector<CellPlace> Selected()
    {
        return CellsWhere(Grid(), [&](CellPlace cell) {
            return Grid().CellSelected(cell.Row, cell.Col) && cell.Row < Grid().Rows() && cell.Col < Grid().Cols();
        });
    }
};

TEST_F(KeyboardSelection, ShiftAndArrowsGrowARectangleFromTheCurrentCell)
{
    Grid().SetCellSelection(true);
    BeginAt(1, 1);
    EXPECT_EQ(Key(Code::Down, 1), Lines {});
    EXPECT_EQ(Selected(), (std::vector<CellPlace> { { 1, 1 }, { 2, 1 } }));
    Key(Code::Right, 1);
    EXPECT_EQ(Selected(), (std::vector<CellPlace> { { 1, 1 }, { 1, 2 }, { 2, 1 }, { 2, 2 } }));
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
    Key(Code::Up, 1);
    Key(Code::Up, 1);
    Key(Code::Left, 1);
    EXPECT_EQ(Selected(), (std::vector<CellPlace> { { 0, 1 }, { 1, 1 } })) << "the corners in any order";
}

TEST_F(KeyboardSelection, WholeRowsGrowWithSelectByRowCol)
{
    Grid().SetSelectByRowCol(true);
    Grid().SetCellSelection(true);
    BeginAt(1, 1);
    Key(Code::Down, 1);
    Key(Code::Down, 1);
    EXPECT_EQ(Grid().SelectCountRow(), 3);
    EXPECT_TRUE(Grid().RowSelected(1) && Grid().RowSelected(2) && Grid().RowSelected(3));
    EXPECT_FALSE(Grid().RowSelected(0) || Grid().RowSelected(4));
    Key(Code::Up, 1);
    EXPECT_EQ(Grid().SelectCountRow(), 2);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(KeyboardSelection, NothingIsSelectedWithoutEitherSetting)
{
    BeginAt(1, 1);
    Key(Code::Down, 1);
    EXPECT_EQ(Grid().SelectCountCell() + Grid().SelectCountRow(), 0);
    Grid().SetCellSelection(true);
    Key(Code::Down, 1);
    EXPECT_EQ(Selected(), (std::vector<CellPlace> { { 1, 1 }, { 2, 1 }, { 3, 1 } })) << "the corner moved all the same";
}

TEST_F(KeyboardSelection, NeedsACellToBeginAt)
{
    Grid().SetCellSelection(true);
    for (const i16 code : { Code::Left, Code::Right, Code::Up, Code::Down })
        EXPECT_EQ(Key(code, 1), Lines {});
    Grid().CurrentPos(1, 1);
    Key(Code::Down, 1);
    EXPECT_EQ(Selected(), std::vector<CellPlace> {}) << "a host's move sets no corner";
}

TEST_F(KeyboardSelection, OnlyArrowsWithExactlyShiftExtend)
{
    Grid().SetCellSelection(true);
    BeginAt(1, 1);
    for (const i16 code : { Code::Home, Code::End, Code::PageUp, Code::PageDown, Code::Space })
        Key(code, 1);
    for (const i16 shift : std::initializer_list<i16> { 3, 5, 7 })
        Key(Code::Down, shift);
    EXPECT_EQ(Selected(), std::vector<CellPlace> {});
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(KeyboardSelection, ASelectionAtTheEdgeIsItsCell)
{
    Grid().SetCellSelection(true);
    Key(Code::Home, 2);
    Key(Code::Up, 1);
    EXPECT_EQ(Selected(), (std::vector<CellPlace> { { 0, 0 } }));
}

TEST_F(KeyboardSelection, HomeAndEndBeginAnew)
{
    Grid().SetCellSelection(true);
    Grid().CurrentPos(2, 2);
    Key(Code::End);
    Key(Code::Left, 1);
    EXPECT_EQ(Selected(), (std::vector<CellPlace> { { 2, 2 }, { 2, 3 } }));
}

TEST_F(KeyboardSelection, ARefusedMoveHasMovedTheCorners)
{
    Grid().SetCellSelection(true);
    Grid().CurrentPos(1, 1);
    handlers.OnCellChange = [](i16, i16, bool& bCancel) { bCancel = true; };
    Key(Code::Down);
    Key(Code::Right, 1);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
    EXPECT_EQ(Selected(), (std::vector<CellPlace> { { 2, 1 }, { 2, 2 } }));
}

TEST_F(KeyboardSelection, ScrollsToTheCornerThatMoves)
{
    Table(200, 40, 1, 1);
    Grid().SetCellSelection(true);
    BeginAt(0, 0);
    for (int step = 0; step < 60; ++step)
        Key(Code::Down, 1);
    EXPECT_TRUE(Grid().IsVisibleRow(60));
    EXPECT_FALSE(Grid().IsVisibleRow(0));
    EXPECT_EQ(Grid().SelectCountCell(), 61);
    EXPECT_EQ(host->Count("Scroll"), 0);
}

TEST_F(KeyboardSelection, ColumnsThatAreSelectedAreReplacedByCells)
{
    Grid().SetCellSelection(true);
    BeginAt(1, 1);
    Grid().SetColSelected(3, true);
    Key(Code::Down, 1);
    EXPECT_EQ(Grid().SelectCountCol(), 0);
    EXPECT_EQ(Grid().SelectCountCell(), 2);
}

TEST_F(KeyboardSelection, OutlivesTheLinesOfItsCorners)
{
    Grid().SetCellSelection(true);
    BeginAt(4, 2);
    Grid().SetRows(2);
    Key(Code::Down, 1);
    Grid().SetRows(0);
    for (const i16 code : { Code::Left, Code::Right, Code::Up, Code::Down })
        Key(code, 1);
    EXPECT_EQ(Grid().SelectCountCell(), 0);
}

} // namespace
} // namespace vornix
