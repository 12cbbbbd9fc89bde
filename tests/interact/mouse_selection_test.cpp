// What presses and drags select.
#include "interact/mouse_fixture.h"

namespace vornix {
namespace {

using Cells = std::vector<CellPlace>;
using Indices = std::vector<int>;

class MouseSelects : public MouseTest {
protected:
    void Drag(int Row1, int Col1, int Row2, int Col2)
    {
        Press(Row1, Col1);
        DragTo(Row2, Col2);
        Release(Row2, Col2);
    }
};

// -- A press without keys --

TEST_F(MouseSelects, NothingInTheBodyByDefault)
{
    Drag(1, 1, 3, 2);
    EXPECT_TRUE(SelectedCells().empty());
}

TEST_F(MouseSelects, TheCellOfAClick)
{
    Grid().SetCellSelection(true);
    Press(1, 2);
    EXPECT_TRUE(LooksSelected(1, 2));
    EXPECT_TRUE(SelectedCells().empty()) << "before the release it is a promise";
    Release(1, 2);
    EXPECT_EQ(SelectedCells(), (Cells { { 1, 2 } }));
}

TEST_F(MouseSelects, TheRectangleOfADrag)
{
    Grid().SetCellSelection(true);
    Press(1, 1);
    DragTo(3, 3);
    EXPECT_TRUE(LooksSelected(2, 2));
    EXPECT_FALSE(LooksSelected(4, 2));
    DragTo(2, 2);
    EXPECT_FALSE(LooksSelected(3, 3));
    Release(2, 2);
    EXPECT_EQ(SelectedCells(), (Cells { { 1, 1 }, { 2, 2 } }));
}

TEST_F(MouseSelects, BackwardsToo)
{
    Grid().SetCellSelection(true);
    Drag(5, 3, 2, 1);
    EXPECT_EQ(SelectedCells(), (Cells { { 2, 1 }, { 5, 3 } }));
}

TEST_F(MouseSelects, WholeRowsBySelectByRowCol)
{
    Grid().SetSelectByRowCol(true);
    Grid().SetCellSelection(true);
    Drag(2, 1, 4, 3);
    EXPECT_EQ(SelectedRows(), (Indices { 2, 3, 4 }));
}

TEST_F(MouseSelects, LinesByTheirHeadersAsSelectModeSays)
{
    struct Case {
        i32 mode;
        Indices rows;
        Indices cols;
    };
    for (const Case& one : { Case { vxNone, {}, {} }, Case { vxRow, { 1, 2 }, {} }, Case { vxColumn, {}, { 2, 3 } },
             Case { vxBoth, { 1, 2 }, { 2, 3 } } }) {
        Grid().SetSelectMode(one.mode);
        Drag(1, -1, 2, -1);
        EXPECT_EQ(SelectedRows(), one.rows) << one.mode;
        Drag(-1, 2, -1, 3);
        EXPECT_EQ(SelectedCols(), one.cols) << one.mode;
        Grid().SetRowsSelected(0, 19, false);
        ClickOn(-1, -1);
    }
}

TEST_F(MouseSelects, NothingByTheCorner)
{
    Grid().SetCellSelection(true);
    Drag(-1, -1, 2, 2);
    EXPECT_TRUE(SelectedCells().empty());
    EXPECT_TRUE(SelectedRows().empty());
}

TEST_F(MouseSelects, TheNextPressInPlaceOfTheOldOne)
{
    Grid().SetCellSelection(true);
    Drag(1, 1, 3, 3);
    Press(6, 0);
    EXPECT_TRUE(SelectedCells().empty());
    EXPECT_FALSE(LooksSelected(2, 2));
    Release(6, 0);
    EXPECT_EQ(SelectedCells(), (Cells { { 6, 0 } }));
}

TEST_F(MouseSelects, OneCellOfWhatIsSelectedOnlyAtTheRelease)
{
    Grid().SetCellSelection(true);
    Drag(1, 1, 3, 3);
    Press(2, 2);
    EXPECT_EQ(SelectedCells(), (Cells { { 1, 1 }, { 3, 3 } })) << "a drag of the contents may begin here";
    Release(2, 2);
    EXPECT_EQ(SelectedCells(), (Cells { { 2, 2 } }));
}

TEST_F(MouseSelects, OneLineOfThoseSelectedOnlyAtTheRelease)
{
    Drag(1, -1, 4, -1);
    Press(2, -1);
    EXPECT_EQ(SelectedRows(), (Indices { 1, 2, 3, 4 }));
    Release(2, -1);
    EXPECT_EQ(SelectedRows(), (Indices { 2 }));
}

TEST_F(MouseSelects, TheSameStillWhenThePointerMovedOnIt)
{
    Grid().SetCellSelection(true);
    Drag(1, 1, 3, 3);
    Press(2, 2);
    host->MouseMove(X(2) + 2, Y(2), 1);
    Release(2, 2);
    EXPECT_EQ(SelectedCells(), (Cells { { 1, 1 }, { 3, 3 } }));
}

TEST_F(MouseSelects, ByAClickAfterAMoveOfOnePixel)
{
    Grid().SetCellSelection(true);
    Drag(1, 1, 3, 3);
    Press(2, 2);
    host->MouseMove(X(2) + 1, Y(2) - 1, 1);
    Release(2, 2);
    EXPECT_EQ(SelectedCells(), (Cells { { 2, 2 } }));
}

TEST_F(MouseSelects, NoLongerAfterAClickThatSelectsNothing)
{
    Drag(1, -1, 3, -1);
    ClickOn(5, 2);
    EXPECT_TRUE(SelectedRows().empty());
}

TEST_F(MouseSelects, StillAfterADragThatSelectsNothing)
{
    Drag(1, -1, 3, -1);
    Press(5, 2);
    host->MouseMove(X(2) + 5, Y(5), 1);
    Release(5, 2);
    EXPECT_EQ(SelectedRows(), (Indices { 1, 2, 3 }));
}

TEST_F(MouseSelects, NothingByTheCaptionWhichEmptiesIt)
{
    Grid().SetCaption(u"Title");
    Grid().SetCaptionEnabled(true);
    Grid().SetRowsSelected(1, 3, true);
    host->MouseDown(200, 5);
    EXPECT_TRUE(SelectedRows().empty());
    host->MouseUp(200, 5);
    EXPECT_TRUE(SelectedCols().empty());
}

TEST_F(MouseSelects, NothingMoreWhereTheDragIsOnTheCaption)
{
    Grid().SetFixedRows(2);
    Grid().SetCaption(u"Title");
    Grid().SetCaptionEnabled(true);
    Grid().SetCellSelection(true);
    Press(3, 1);
    DragTo(4, 2);
    host->MouseMove(300, 5, 1);
    host->MouseUp(300, 5);
    const Cells cells = SelectedCells();
    ASSERT_EQ(cells.size(), 2u);
    EXPECT_EQ(cells.back().Col, 2) << "the corner that the drag had reached";
}

TEST_F(MouseSelects, NothingAnyMoreWhenTheButtonWasLetGoElsewhere)
{
    Grid().SetCellSelection(true);
    Press(1, 1);
    DragTo(3, 3);
    Hover(4, 3);
    EXPECT_FALSE(LooksSelected(2, 2));
    EXPECT_TRUE(SelectedCells().empty());
}

// -- With Shift --

TEST_F(MouseSelects, WithShiftUpToThePressAtOnce)
{
    Grid().SetCellSelection(true);
    Drag(2, 1, 2, 1);
    Press(5, 3, Held::Shift);
    EXPECT_EQ(SelectedCells(), (Cells { { 2, 1 }, { 5, 3 } }));
    DragTo(7, 4, Held::Shift);
    Release(7, 4, Held::Shift);
    EXPECT_EQ(SelectedCells(), (Cells { { 2, 1 }, { 5, 3 } })) << "there is no drag";
    ClickOn(0, 0, Held::Shift);
    EXPECT_EQ(SelectedCells(), (Cells { { 0, 0 }, { 2, 1 } })) << "the anchor stands";
}

TEST_F(MouseSelects, WithShiftFromTheCurrentCellWhereNothingIsSelected)
{
    Grid().SetCellSelection(true);
    Grid().CurrentPos(2, 1);
    Press(5, 3, Held::Shift);
    EXPECT_EQ(SelectedCells(), (Cells { { 2, 1 }, { 5, 3 } }));
}

TEST_F(MouseSelects, WithShiftFromThePressWithoutACurrentCellOrWithAFixedOne)
{
    Grid().SetCellSelection(true);
    Press(5, 3, Held::Shift);
    EXPECT_EQ(SelectedCells(), (Cells { { 5, 3 } }));
    Release(5, 3, Held::Shift);
    Grid().SetRowsSelected(0, 0, true);
    Grid().CurrentPos(-1, 1);
    Press(4, 2, Held::Shift);
    EXPECT_EQ(SelectedCells(), (Cells { { 4, 2 } }));
}

TEST_F(MouseSelects, WithShiftLinesFromTheAnchorOrThePress)
{
    Grid().CurrentPos(0, 0);
    ClickOn(6, -1, Held::Shift);
    EXPECT_EQ(SelectedRows(), (Indices { 6 })) << "lines begin at the press";
    ClickOn(4, -1, Held::Shift);
    EXPECT_EQ(SelectedRows(), (Indices { 4, 5, 6 }));
    ClickOn(-1, 3, Held::Shift);
    EXPECT_EQ(SelectedCols(), (Indices { 3 })) << "another kind begins anew";
    ClickOn(-1, 1, Held::Shift);
    EXPECT_EQ(SelectedCols(), (Indices { 1, 2, 3 }));
}

// -- With Ctrl --

TEST_F(MouseSelects, WithCtrlOneCellInPlaceOfOthers)
{
    Grid().SetCellSelection(true);
    Drag(1, 1, 3, 3);
    ClickOn(6, 2, Held::Ctrl);
    EXPECT_EQ(SelectedCells(), (Cells { { 6, 2 } }));
}

TEST_F(MouseSelects, WithCtrlRowsOneByOne)
{
    ClickOn(1, -1);
    ClickOn(4, -1, Held::Ctrl);
    EXPECT_EQ(SelectedRows(), (Indices { 1, 4 }));
    Press(1, -1, Held::Ctrl);
    EXPECT_EQ(SelectedRows(), (Indices { 1, 4 })) << "before the release it stays";
    Release(1, -1, Held::Ctrl);
    EXPECT_EQ(SelectedRows(), (Indices { 4 }));
}

TEST_F(MouseSelects, WithCtrlColumnsOneByOne)
{
    ClickOn(-1, 0);
    ClickOn(-1, 2, Held::Ctrl);
    EXPECT_EQ(SelectedCols(), (Indices { 0, 2 }));
    ClickOn(-1, 0, Held::Ctrl);
    EXPECT_EQ(SelectedCols(), (Indices { 2 }));
}

TEST_F(MouseSelects, WithCtrlAndAMoveTheLineStays)
{
    ClickOn(1, -1);
    Press(1, -1, Held::Ctrl);
    host->MouseMove(X(-1) + 5, Y(1), 1, Held::Ctrl);
    Release(1, -1, Held::Ctrl);
    EXPECT_EQ(SelectedRows(), (Indices { 1 }));
}

TEST_F(MouseSelects, WithCtrlRowsFromTheBodyToo)
{
    Grid().SetSelectByRowCol(true);
    ClickOn(1, 2);
    ClickOn(4, 0, Held::Ctrl);
    EXPECT_EQ(SelectedRows(), (Indices { 1, 4 }));
    ClickOn(1, 3, Held::Ctrl);
    EXPECT_EQ(SelectedRows(), (Indices { 4 }));
}

TEST_F(MouseSelects, ByTheKeyOfThePressWhateverIsHeldAtTheRelease)
{
    ClickOn(1, -1);
    Press(4, -1, Held::Ctrl);
    Release(4, -1, Held::None);
    EXPECT_EQ(SelectedRows(), (Indices { 1, 4 }));
}

TEST_F(MouseSelects, SoThatKeysGoOnFromTheClick)
{
    Grid().SetSelectByRowCol(true);
    ClickOn(3, 2);
    EXPECT_EQ(SelectedRows(), (Indices { 3 }));
    host->KeyDown(40, Held::Shift);
    EXPECT_EQ(SelectedRows(), (Indices { 3, 4 }));
}

TEST_F(MouseSelects, WithShiftSoThatKeysGoOnFromThePress)
{
    Grid().SetCellSelection(true);
    ClickOn(1, 1);
    ClickOn(3, 2, Held::Shift);
    host->KeyDown(39, Held::Shift);
    EXPECT_EQ(SelectedCells(), (Cells { { 1, 1 }, { 3, 3 } }));
}

TEST_F(MouseSelects, NothingByAClickBesideTheCellsAfterKeysHaveSelected)
{
    Grid().SetCellSelection(true);
    ClickOn(-1, -1);
    Grid().CurrentPos(1, 1);
    host->KeyDown(40);
    host->KeyDown(40, Held::Shift);
    ASSERT_EQ(SelectedCells(), (Cells { { 2, 1 }, { 3, 1 } }));
    host->MouseDown(635, 475);
    host->MouseUp(635, 475);
    EXPECT_EQ(Grid().SelectCountCell(), 0);
}

TEST_F(MouseSelects, WithShiftNothingOfAnAnchorThatIsGone)
{
    ClickOn(15, -1);
    Grid().SetRows(5);
    Grid().SetRowSelected(0, true);
    ClickOn(2, -1, Held::Shift);
    EXPECT_EQ(SelectedRows(), (Indices { 2 }));
    EXPECT_EQ(Grid().SelectCountRow(), 1);
}

TEST_F(MouseSelects, NothingThatAHandlerTookAwayDuringTheDrag)
{
    Grid().SetCellSelection(true);
    Press(1, 1);
    DragTo(15, 3);
    Grid().SetRows(4);
    Release(3, 3);
    i16 Row1 = 0, Col1 = 0, Row2 = 0, Col2 = 0;
    ASSERT_TRUE(Grid().GetSelectedCells(Row1, Col1, Row2, Col2));
    EXPECT_LE(Row2, 4);
}

TEST_F(MouseSelects, UpToTheFirstLinesWhereTheDragEndsOnFixedOnes)
{
    Grid().SetCellSelection(true);
    Press(3, 2);
    DragTo(-1, -1);
    Release(-1, -1);
    EXPECT_EQ(SelectedCells(), (Cells { { 0, 0 }, { 3, 2 } }));
}

TEST_F(MouseSelects, NothingNewWithShiftAndCtrlTogether)
{
    Drag(1, -1, 2, -1);
    ClickOn(5, -1, Held::ShiftAndCtrl);
    EXPECT_EQ(SelectedRows(), (Indices { 1, 2 }));
}

// -- Beyond the edges --

class MouseScrolls : public MouseSelects {
protected:
    MouseScrolls()
    {
        SmallWindow();
        Grid().SetCellSelection(true);
    }
};

TEST_F(MouseScrolls, DownOneRowAMove)
{
    Press(1, 1);
    host->MouseMove(X(1), 201, 1);
    EXPECT_EQ(Grid().FirstRow(), 1);
    host->MouseMove(X(1), 201, 1);
    EXPECT_EQ(Grid().FirstRow(), 2);
    EXPECT_EQ(host->Count("Scroll"), 0);
}

TEST_F(MouseScrolls, DownFasterFurtherOutside)
{
    Press(1, 1);
    host->MouseMove(X(1), 205, 1);
    EXPECT_EQ(Grid().FirstRow(), 2);
    host->MouseMove(X(1), 204, 1);
    EXPECT_EQ(Grid().FirstRow(), 3);
    host->MouseMove(X(1), 225, 1);
    EXPECT_EQ(Grid().FirstRow(), 9);
}

TEST_F(MouseScrolls, DownToTheLastRowAndNoFurther)
{
    Press(1, 1);
    for (int i = 0; i < 5; ++i)
        host->MouseMove(X(1), 1200, 1);
    EXPECT_EQ(Grid().LastRow(), 99);
    host->MouseUp(X(1), 1200);
    EXPECT_TRUE(Grid().CellSelected(99, 1));
    EXPECT_TRUE(Grid().CellSelected(1, 1));
    EXPECT_FALSE(Grid().CellSelected(0, 1));
}

TEST_F(MouseScrolls, UpByTheDistanceToo)
{
    Grid().SetFirstRow(50);
    host->MouseDown(X(1), Y(3));
    host->MouseMove(X(1), -1, 1);
    EXPECT_EQ(Grid().FirstRow(), 49);
    host->MouseMove(X(1), -10, 1);
    EXPECT_EQ(Grid().FirstRow(), 46);
    host->MouseMove(X(1), -14, 1);
    EXPECT_EQ(Grid().FirstRow(), 43);
    host->MouseUp(X(1), -14);
    EXPECT_EQ(SelectedCells(), (Cells { { 43, 1 }, { 53, 1 } }));
}

TEST_F(MouseScrolls, UpToTheFirstRow)
{
    Grid().SetFirstRow(5);
    host->MouseDown(X(1), Y(3));
    for (int i = 0; i < 3; ++i)
        host->MouseMove(X(1), -500, 1);
    EXPECT_EQ(Grid().FirstRow(), 0);
    host->MouseUp(X(1), -500);
    EXPECT_TRUE(Grid().CellSelected(0, 1));
    EXPECT_TRUE(Grid().CellSelected(8, 1));
}

// The end is a fixed row then: the view stays, and the row counts among the selected ones.
TEST_F(MouseScrolls, UpOntoTheFixedRowAtTheTop)
{
    Press(2, 1);
    host->MouseMove(X(1), -1, 1);
    EXPECT_EQ(Grid().FirstRow(), 0);
    host->MouseUp(X(1), -1);
    i16 Row1 = 0, Col1 = 0, Row2 = 0, Col2 = 0;
    ASSERT_TRUE(Grid().GetSelectedCells(Row1, Col1, Row2, Col2));
    EXPECT_EQ((CellPlace { Row1, Col1 }), (CellPlace { -1, 1 }));
    EXPECT_EQ((CellPlace { Row2, Col2 }), (CellPlace { 2, 1 }));
}

TEST_F(MouseScrolls, LeftOfATableWithoutFixedColumns)
{
    Grid().SetFixedCols(0);
    Press(2, 1);
    host->MouseMove(-1, Y(2), 1);
    host->MouseUp(-1, Y(2));
    i16 Row1 = 0, Col1 = 0, Row2 = 0, Col2 = 0;
    ASSERT_TRUE(Grid().GetSelectedCells(Row1, Col1, Row2, Col2));
    EXPECT_EQ(Col1, 0) << "there is none before the first";
}

TEST_F(MouseScrolls, UpAndThenOutBelow)
{
    Grid().SetFirstRow(50);
    host->MouseDown(X(1), Y(3));
    for (int i = 0; i < 3; ++i)
        host->MouseMove(X(1), -100, 1);
    EXPECT_EQ(Grid().FirstRow(), 0);
    host->MouseMove(X(1), 201, 1);
    EXPECT_TRUE(LooksSelected(7, 1)) << "up to the row of the press";
    host->MouseUp(X(1), 201);
    EXPECT_TRUE(Grid().CellSelected(53, 1));
    EXPECT_TRUE(Grid().CellSelected(20, 1));
    EXPECT_GT(Grid().SelectCountCell(), 0);
}

TEST_F(MouseScrolls, LeftFromTheMiddleOfAColumn)
{
    host->HorizontalBar().Notify(5, 250);
    host->HorizontalBar().Notify(8, 250);
    ASSERT_EQ(Grid().FirstCol(), 2);
    host->MouseDown(X(1), Y(1));
    host->MouseMove(-10, Y(1), 1);
    EXPECT_EQ(Grid().FirstCol(), 1);
    host->MouseUp(-10, Y(1));
    EXPECT_TRUE(Grid().CellSelected(1, 1));
}

TEST_F(MouseScrolls, RightOneColumnAMove)
{
    Press(1, 1);
    host->MouseMove(500, Y(1), 1);
    EXPECT_EQ(Grid().FirstCol(), 1);
    host->MouseMove(5000, Y(1), 1);
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_EQ(host->Count("Scroll"), 0);
    host->MouseUp(5000, Y(1));
    EXPECT_TRUE(Grid().CellSelected(1, 1));
    EXPECT_TRUE(Grid().CellSelected(1, Grid().LastCol()));
}

TEST_F(MouseScrolls, LeftOneColumnAMove)
{
    Grid().SetFirstCol(6);
    host->MouseDown(X(1), Y(1));
    host->MouseMove(-100, Y(1), 1);
    EXPECT_EQ(Grid().FirstCol(), 5);
    host->MouseMove(-100, Y(1), 1);
    EXPECT_EQ(Grid().FirstCol(), 4);
    host->MouseUp(-100, Y(1));
    EXPECT_EQ(SelectedCells(), (Cells { { 1, 4 }, { 1, 7 } }));
}

TEST_F(MouseScrolls, BothWaysAtOnce)
{
    Press(1, 1);
    host->MouseMove(500, 230, 1);
    EXPECT_EQ(Grid().FirstCol(), 1);
    EXPECT_EQ(Grid().FirstRow(), 7);
}

TEST_F(MouseScrolls, NotWhereAllShows)
{
    Make({});
    MouseTable(20, 5);
    Grid().SetCellSelection(true);
    Press(1, 1);
    host->MouseMove(700, 600, 1);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    host->MouseUp(700, 600);
    EXPECT_TRUE(Grid().CellSelected(19, 4));
}

TEST_F(MouseScrolls, RowsByTheirHeaders)
{
    Press(2, -1);
    host->MouseMove(X(-1), 220, 1);
    host->MouseUp(X(-1), 220);
    const Indices rows = SelectedRows();
    EXPECT_EQ(rows.front(), 2);
    EXPECT_GT(rows.back(), 8);
}

TEST_F(MouseScrolls, WithoutPaintingWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Press(1, 1);
    host->MouseMove(X(1), 230, 1);
    host->MouseUp(X(1), 230);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(MouseScrolls, PaintsOnceAMoveInsideAndOnceOutside)
{
    Press(1, 1);
    host->ClearLog();
    DragTo(2, 2);
    EXPECT_EQ(host->Repaints(), 1);
    host->ClearLog();
    host->MouseMove(X(1), 201, 1);
    EXPECT_EQ(host->Repaints(), 1);
}

} // namespace
} // namespace vornix
