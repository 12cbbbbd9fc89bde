#include "headless/person_fixture.h"

namespace vornix {
namespace {

// 5 rows and 4 columns behind one fixed line of each kind.
class CurrentCellMembers : public PersonTest {
protected:
    CurrentCellMembers() { Table(5, 4, 1, 1); }
    CellPlace Current() { return { static_cast<i16>(Grid().CurrentRow()), Grid().CurrentCol() }; }
};

constexpr CellPlace Nowhere { -32767, -32767 };

TEST_F(CurrentCellMembers, AreNoneAtTheStart)
{
    EXPECT_EQ(Current(), Nowhere);
    EXPECT_FALSE(Grid().IsCurrent(0, 0));
    EXPECT_FALSE(Grid().IsCurrent(-32767, -32767) || Grid().IsCurrent(-1, -1));
}

TEST_F(CurrentCellMembers, OneOfThemTakesTheFirstLineOfTheOther)
{
    Grid().SetCurrentRow(3);
    EXPECT_EQ(Current(), (CellPlace { 3, 0 }));
    Make({});
    Table(5, 4, 1, 1);
    Grid().SetCurrentCol(2);
    EXPECT_EQ(Current(), (CellPlace { 0, 2 }));
}

TEST_F(CurrentCellMembers, MoveOneLineAndKeepTheOther)
{
    Grid().CurrentPos(2, 1);
    Grid().SetCurrentRow(4);
    EXPECT_EQ(Current(), (CellPlace { 4, 1 }));
    Grid().SetCurrentCol(3);
    EXPECT_EQ(Current(), (CellPlace { 4, 3 }));
}

TEST_F(CurrentCellMembers, RaiseNothing)
{
    Grid().CurrentPos(2, 1);
    Grid().SetCurrentRow(4);
    Grid().SetCurrentCol(3);
    EXPECT_EQ(SaidNames(), Lines {});
    EXPECT_EQ(Reported(), std::vector<std::string> {});
}

TEST_F(CurrentCellMembers, IgnoreLinesThatThereAreNot)
{
    for (const bool isThere : { false, true }) {
        if (isThere)
            Grid().CurrentPos(2, 1);
        const CellPlace before = Current();
        for (const i32 Row : { -1, -2, -32767, 5, 6, 32767, 100000, -100000, 2147483647, -2147483647 - 1 }) {
            Grid().SetCurrentRow(Row);
            EXPECT_EQ(Current(), before) << Row;
        }
        for (const i16 Col : std::initializer_list<i16> { -1, -32768, 4, 5, 32767 }) {
            Grid().SetCurrentCol(Col);
            EXPECT_EQ(Current(), before) << Col;
        }
    }
}

TEST_F(CurrentCellMembers, NeedALineOfTheOtherKind)
{
    Table(0, 4, 1, 1);
    Grid().SetCurrentCol(2);
    EXPECT_EQ(Current(), Nowhere);
    Table(5, 0, 1, 1);
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Current(), Nowhere);
    Grid().CurrentPos(2, 0);
    EXPECT_EQ(Current(), Nowhere);
    Table(0, 0);
    Grid().CurrentPos(0, 0);
    Grid().SetCurrentRow(0);
    Grid().SetCurrentCol(0);
    EXPECT_EQ(Current(), Nowhere);
}

TEST_F(CurrentCellMembers, CurrentPosReachesFixedCells)
{
    Grid().CurrentPos(-1, -1);
    EXPECT_EQ(Current(), (CellPlace { -1, -1 }));
    EXPECT_TRUE(Grid().IsCurrent(-1, -1));
    Grid().CurrentPos(3, -1);
    EXPECT_EQ(Current(), (CellPlace { 3, -1 }));
    Grid().SetCurrentRow(1);
    EXPECT_EQ(Current(), (CellPlace { 1, -1 })) << "the column stays fixed";
}

TEST_F(CurrentCellMembers, CurrentPosReachesTheEdgesAndNoFiller)
{
    Grid().CurrentPos(4, 3);
    const CellPlace last { 4, 3 };
    for (const CellPlace beyond :
        { CellPlace { 5, 3 }, CellPlace { 4, 4 }, CellPlace { -2, 0 }, CellPlace { 0, -2 } }) {
        Grid().CurrentPos(beyond.Row, beyond.Col);
        EXPECT_EQ(Current(), last);
    }
    Grid().CurrentPos(-2147483647 - 1, 0);
    Grid().CurrentPos(2147483647, 0);
    Grid().CurrentPos(0, -32768);
    EXPECT_EQ(Current(), last);
}

TEST_F(CurrentCellMembers, CurrentPosStaysOnHiddenLines)
{
    Grid().SetRowHide(2, true);
    Grid().SetColHide(1, true);
    Grid().CurrentPos(2, 1);
    EXPECT_EQ(Current(), (CellPlace { 2, 1 }));
}

TEST_F(CurrentCellMembers, AHiddenColumnGivesWayInTheDirectionOfTheMove)
{
    Grid().SetColHide(1, true);
    Grid().CurrentPos(2, 0);
    Grid().SetCurrentCol(1);
    EXPECT_EQ(Current(), (CellPlace { 2, 2 }));
    Grid().SetCurrentCol(1);
    EXPECT_EQ(Current(), (CellPlace { 2, 0 }));
}

TEST_F(CurrentCellMembers, AHiddenColumnAtTheEndWrapsIntoTheNextRow)
{
    Grid().SetColHide(3, true);
    Grid().CurrentPos(2, 2);
    Grid().SetCurrentCol(3);
    EXPECT_EQ(Current(), (CellPlace { 3, 0 }));
    Grid().CurrentPos(4, 2);
    Grid().SetCurrentCol(3);
    EXPECT_EQ(Current(), (CellPlace { 4, 2 })) << "no row to wrap into";
}

TEST_F(CurrentCellMembers, AColumnWithoutWidthIsHiddenToo)
{
    Grid().SetColWidth(1, 0);
    Grid().SetCurrentCol(1);
    EXPECT_EQ(Current(), (CellPlace { 0, 2 }));
}

TEST_F(CurrentCellMembers, AHiddenRowGivesWayInTheDirectionOfTheMove)
{
    Grid().SetRowHide(2, true);
    Grid().CurrentPos(0, 1);
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Current(), (CellPlace { 3, 1 }));
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(CurrentCellMembers, AHiddenLastRowIsNotReached)
{
    Grid().SetRowHide(4, true);
    Grid().CurrentPos(1, 1);
    Grid().SetCurrentRow(4);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(CurrentCellMembers, AHiddenLineWithNoneToGiveWayToMakesNoCurrentCell)
{
    Table(1, 4, 1, 1);
    Grid().SetColHide(3, true);
    Grid().SetCurrentCol(3);
    EXPECT_EQ(Current(), Nowhere);
    Table(5, 4, 1, 1);
    Grid().SetRowHide(4, true);
    Grid().SetCurrentRow(4);
    EXPECT_EQ(Current(), Nowhere);
    Grid().SetRowHide(0, true);
    Grid().SetCurrentRow(0);
    EXPECT_EQ(Current(), (CellPlace { 1, 0 }));
}

TEST_F(CurrentCellMembers, ARowWithoutHeightIsHiddenToo)
{
    Grid().SetRowHeight(2, 0);
    ASSERT_FALSE(Grid().RowHide(2));
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Current(), (CellPlace { 3, 0 }));
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Current(), (CellPlace { 1, 0 }));
    Grid().SetRowHeight(0, 0);
    Grid().SetCurrentRow(0);
    EXPECT_EQ(Current(), (CellPlace { 1, 0 })) << "no row above it";
}

TEST_F(CurrentCellMembers, SnapToTheParentOfASpan)
{
    Grid().SetRowSpan(1, 1, 2);
    Grid().SetColSpan(1, 1, 2);
    Grid().CurrentPos(2, 2);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
    EXPECT_TRUE(Grid().IsCurrent(1, 1));
    EXPECT_FALSE(Grid().IsCurrent(2, 2)) << "a cell inside the span is not the current one";
    Grid().CurrentPos(4, 2);
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
    Grid().CurrentPos(2, 3);
    Grid().SetCurrentCol(2);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
}

TEST_F(CurrentCellMembers, BringTheCellIntoView)
{
    Table(500, 60, 1, 1);
    Grid().CurrentPos(400, 50);
    EXPECT_TRUE(Grid().IsVisibleCell(400, 50));
    Grid().SetCurrentRow(3);
    EXPECT_EQ(Grid().FirstRow(), 3);
    Grid().SetCurrentCol(2);
    EXPECT_EQ(Grid().FirstCol(), 2);
}

TEST_F(CurrentCellMembers, ReachTheLastRowOfTheLongestTable)
{
    Table(32766, 2);
    Grid().SetCurrentRow(32765);
    EXPECT_EQ(Current(), (CellPlace { 32765, 0 }));
    EXPECT_TRUE(Grid().IsVisibleRow(32765));
    Grid().SetCurrentRow(32766);
    EXPECT_EQ(Current(), (CellPlace { 32765, 0 }));
}

TEST_F(CurrentCellMembers, ARefusedValueTakesTheMarkOff)
{
    Grid().SetFocusRect(vxFocusHeavy);
    Grid().CurrentPos(1, 1);
    const RgbaImage marked = host->Image();
    Grid().SetCurrentCol(99);
    EXPECT_NE(host->Image().bytes, marked.bytes);
    EXPECT_EQ(Current(), (CellPlace { 1, 1 }));
    Grid().Refresh();
    EXPECT_EQ(host->Image().bytes, marked.bytes);
}

TEST_F(CurrentCellMembers, PaintNothingWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().CurrentPos(1, 1);
    Grid().SetCurrentRow(3);
    Grid().SetCurrentCol(2);
    EXPECT_EQ(host->Repaints() + host->Refreshes(), 0);
    EXPECT_EQ(Current(), (CellPlace { 3, 2 }));
}

TEST_F(CurrentCellMembers, LeaveTheSelectionAlone)
{
    Grid().SetSelectedCells(0, 0, 2, 2);
    Grid().CurrentPos(4, 3);
    Grid().SetCurrentRow(1);
    Grid().SetCurrentCol(1);
    EXPECT_EQ(Grid().SelectCountCell(), 9);
    EXPECT_TRUE(Grid().CellSelected(2, 2));
}

TEST_F(CurrentCellMembers, AnIndexBeyond16BitsIsAnError)
{
    EXPECT_EQ(ErrorOf([&] { Grid().IsCurrent(32767, 0); }), 6);
    EXPECT_EQ(ErrorOf([&] { Grid().IsCurrent(0, 32767); }), 6);
    EXPECT_FALSE(Grid().IsCurrent(32766, 32766));
}

TEST_F(CurrentCellMembers, FollowTheTable)
{
    Grid().CurrentPos(4, 3);
    Grid().SetRows(3);
    EXPECT_EQ(Current(), Nowhere);
    Grid().SetCurrentRow(2);
    EXPECT_EQ(Current(), (CellPlace { 2, 0 }));
}

TEST_F(CurrentCellMembers, StandHandlersOfPaintingThatDoAnything)
{
    Grid().SetCellStyle(1, 1, vxCustomDraw);
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) { Grid().SetRows(1); };
    Grid().CurrentPos(1, 1);
    Grid().SetCurrentRow(0);
    Grid().SetCurrentCol(1);
    EXPECT_EQ(Grid().Rows(), 1);
}

} // namespace
} // namespace vornix
