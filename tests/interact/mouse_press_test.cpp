// What a press raises, and where it takes the current cell.
#include "interact/mouse_fixture.h"

namespace vornix {
namespace {

class MousePress : public MouseTest { };

TEST_F(MousePress, AndAReleaseOnOneCellAreAClick)
{
    ClickOn(1, 2);
    EXPECT_EQ(Said(),
        (Lines { "MouseDown Button=1 Shift=0 x=330 y=52", "CellDown Row=1 Col=2", "CellChange Row=1 Col=2 bCancel=0",
            "MouseUp Button=1 Shift=0 x=330 y=52", "CellUp Row=1 Col=2", "CellClick Row=1 Col=2", "Click" }));
    EXPECT_EQ(Current(), (CellPlace { 1, 2 }));
}

TEST_F(MousePress, AsksToValidateTheRowItLeaves)
{
    Grid().CurrentPos(0, 2);
    host->ClearLog();
    ClickOn(1, 2);
    EXPECT_EQ(SaidNames(),
        (Lines { "MouseDown", "CellDown", "ValidateRow", "CellChange", "MouseUp", "CellUp", "CellClick", "Click" }));
}

TEST_F(MousePress, ValidatesOnTheWayLeftButNotToTheRight)
{
    Grid().CurrentPos(3, 2);
    host->ClearLog();
    Press(3, 4);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "CellDown", "CellChange" }));
    Release(3, 4);
    host->ClearLog();
    Press(3, 1);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "CellDown", "ValidateRow", "CellChange" }));
}

TEST_F(MousePress, ValidatesNothingWhenTheCurrentCellIsFixed)
{
    Grid().CurrentPos(-1, 2);
    host->ClearLog();
    Press(3, 1);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "CellDown", "CellChange" }));
}

TEST_F(MousePress, OnTheCurrentCellAsksNothing)
{
    Grid().CurrentPos(1, 2);
    host->ClearLog();
    Press(1, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "CellDown" }));
}

TEST_F(MousePress, OnTheCurrentCellAsksWithShift)
{
    Grid().CurrentPos(1, 2);
    host->ClearLog();
    Press(1, 2, Held::Shift);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "CellDown", "CellChange" }));
}

TEST_F(MousePress, ThatIsRefusedLeavesTheCurrentCell)
{
    Grid().CurrentPos(0, 0);
    Grid().SetCellSelection(true);
    handlers.OnCellChange = [](i16, i16, bool& bCancel) { bCancel = true; };
    Press(1, 2);
    EXPECT_EQ(Current(), (CellPlace { 0, 0 }));
    EXPECT_FALSE(LooksSelected(1, 2)) << "the drag is over, too";
}

TEST_F(MousePress, LeavesTheCurrentCellWhereTheHostPutIt)
{
    handlers.OnCellChange = [&](i16, i16, bool&) { Grid().CurrentPos(7, 3); };
    Press(1, 2);
    EXPECT_EQ(Current(), (CellPlace { 7, 3 }));
}

TEST_F(MousePress, TakesAMoveOfTheHostBeforeTheQuestionForOneToo)
{
    handlers.OnCellDown = [&](i16, i16) { Grid().SetCurrentRow(7); };
    Press(1, 2);
    EXPECT_EQ(Current(), (CellPlace { 7, 0 }));
}

TEST_F(MousePress, MakesAFixedCellCurrent)
{
    Press(-1, 2);
    EXPECT_EQ(Said(),
        (Lines {
            "MouseDown Button=1 Shift=0 x=330 y=10", "CellDown Row=-1 Col=2", "CellChange Row=-1 Col=2 bCancel=0" }));
    EXPECT_TRUE(Grid().IsCurrent(-1, 2));
}

TEST_F(MousePress, InASpanIsAPressOnItsParent)
{
    Grid().SetRowSpan(1, 1, 3);
    Grid().SetColSpan(1, 1, 2);
    host->ClearLog();
    ClickOn(3, 2);
    EXPECT_EQ(Said(),
        (Lines { "MouseDown Button=1 Shift=0 x=330 y=94", "CellDown Row=1 Col=1", "CellChange Row=1 Col=1 bCancel=0",
            "MouseUp Button=1 Shift=0 x=330 y=94", "CellUp Row=1 Col=1", "CellClick Row=1 Col=1", "Click" }));
}

TEST_F(MousePress, AndAReleaseOnTwoCellsOfASpanRaisesNoCellClick)
{
    Grid().SetRowSpan(1, 1, 3);
    host->ClearLog();
    Press(1, 1);
    Release(2, 1);
    host->Click();
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "CellDown", "CellChange", "MouseUp", "CellUp", "Click" }));
}

TEST_F(MousePress, OffAllCellsIsTheHostsAlone)
{
    host->MouseDown(635, 475);
    EXPECT_EQ(SaidNames(), Lines { "MouseDown" });
    host->MouseUp(635, 475);
    host->Click();
    EXPECT_EQ(SaidNames(), (Lines { "MouseUp", "Click" }));
}

TEST_F(MousePress, OfTheRightButtonNeverMovesTheCurrentCell)
{
    Press(1, 2, Held::None, 2);
    Release(1, 2, Held::None, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "MouseUp" }));
    EXPECT_EQ(Current(), NoCell);
}

TEST_F(MousePress, OfTheRightButtonEndsTheHoveringFirst)
{
    Hover(1, 2);
    host->ClearLog();
    Press(1, 2, Held::None, 2);
    EXPECT_EQ(SaidNames(), (Lines { "CellOut", "MouseDown" }));
    EXPECT_FALSE(host->IsTimerEnabled());
}

TEST_F(MousePress, OfTheRightButtonLeavesAClickOfTheLeftOne)
{
    Press(1, 2);
    host->ClearLog();
    Release(1, 2, Held::None, 2);
    EXPECT_EQ(SaidNames(), Lines { "MouseUp" });
    Release(1, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseUp", "CellUp" }));
}

TEST_F(MousePress, OfTheMiddleButtonIsTheHosts)
{
    Press(1, 2, Held::None, 4);
    EXPECT_EQ(SaidNames(), Lines { "MouseDown" });
    EXPECT_EQ(Current(), NoCell);
    EXPECT_EQ(Grid().GetMouseButton(), 4);
}

TEST_F(MousePress, StopsTheWatchOverThePointer)
{
    Hover(1, 2);
    EXPECT_TRUE(host->IsTimerEnabled());
    Press(1, 2);
    EXPECT_FALSE(host->IsTimerEnabled());
    EXPECT_EQ(host->TimerInterval(), 0);
    Release(1, 2);
    EXPECT_TRUE(host->IsTimerEnabled());
    EXPECT_EQ(host->TimerInterval(), 100);
}

TEST_F(MousePress, TellsButtonAndShiftUntilTheClick)
{
    Press(1, 2, Held::Shift);
    EXPECT_EQ(Grid().GetMouseButton(), 1);
    EXPECT_EQ(Grid().GetMouseShift(), 1);
    DragTo(1, 2, Held::Ctrl);
    EXPECT_EQ(Grid().GetMouseShift(), 2);
    Release(1, 2, Held::Ctrl);
    EXPECT_EQ(Grid().GetMouseButton(), 1);
    host->Click();
    EXPECT_EQ(Grid().GetMouseButton(), 0);
    EXPECT_EQ(Grid().GetMouseShift(), 0);
}

TEST_F(MousePress, WritesWithoutPaintingInCellDown)
{
    handlers.OnCellDown = [&](i16 Row, i16 Col) {
        host->ClearLog();
        Grid().SetText(Row, Col, u"pressed");
        EXPECT_EQ(host->Repaints() + host->Refreshes(), 0);
    };
    Press(1, 2);
    EXPECT_GT(host->Repaints(), 0) << "the press itself repaints at its end";
}

TEST_F(MousePress, PaintsNothingWhileRedrawIsOff)
{
    Grid().SetColMode(2, vxCommandButton);
    Grid().SetRedraw(false);
    host->ClearLog();
    ClickOn(1, 2);
    EXPECT_EQ(host->Repaints() + host->Refreshes(), 0);
    EXPECT_EQ(Current(), (CellPlace { 1, 2 }));
}

TEST_F(MousePress, GoesOnWithoutACellThatTheHandlerTakesAway)
{
    handlers.OnMouseDown = [&](i16, i16, float, float) { Grid().SetRows(1); };
    ClickOn(5, 2);
    EXPECT_EQ(Current(), NoCell);
    EXPECT_EQ(host->Count("CellChange"), 0);
}

TEST_F(MousePress, GoesOnWithoutACellThatIsAnotherOneByNow)
{
    handlers.OnCellDown = [&](i16, i16) { Grid().SetFixedRows(4); };
    Press(1, 2); // its row is a fixed one then
    EXPECT_EQ(host->Count("CellChange"), 0);
    EXPECT_EQ(Current(), NoCell);
}

TEST_F(MousePress, OnATableWithoutRowsOrColumnsFindsNoCell)
{
    for (const auto& [rows, cols] : { std::pair<i16, i16> { 0, 5 }, { 5, 0 } }) {
        MouseTable(rows, cols);
        ClickOn(2, 2);
        EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "MouseUp", "Click" }));
    }
}

TEST_F(MousePress, ReachesTheLastOf32766Rows)
{
    MouseTable(32766, 3);
    Grid().SetLastRow(32765);
    i32 x = 0;
    i32 y = 0;
    Grid().GetPositionCell(32765, 1, x, y);
    host->MouseDown(static_cast<float>(x / 15 + 5), static_cast<float>(y / 15 + 5));
    EXPECT_EQ(Current(), (CellPlace { 32765, 1 }));
}

TEST_F(MousePress, PlacesBeyond16BitsAreOnlyFarAway)
{
    host->MouseDown(1e9F, -1e9F);
    host->MouseMove(-1e9F, 1e9F, 1);
    host->MouseUp(1e9F, 1e9F);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "MouseMove", "MouseUp" }));
}

TEST_F(MousePress, IsNotHeardByADisabledControl)
{
    Grid().SetEnabled(false);
    EXPECT_THAT(Reported(), testing::Contains("Enabled"));
    ClickOn(1, 2);
    Hover(1, 3);
    host->Wheel(-120);
    EXPECT_TRUE(Said().empty());
    EXPECT_EQ(Current(), NoCell);
    Grid().SetEnabled(true);
    ClickOn(1, 2);
    EXPECT_EQ(Current(), (CellPlace { 1, 2 }));
}

TEST_F(MousePress, EndsWhenTheControlIsDisabled)
{
    Grid().SetCellSelection(true);
    Press(1, 2);
    DragTo(3, 3);
    Grid().SetEnabled(false);
    EXPECT_FALSE(LooksSelected(2, 2));
    Release(3, 3);
    Grid().SetEnabled(true);
    host->ClearLog();
    Hover(1, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOut", "CellOver" })) << "nothing is held any more";

    host->MouseMove(149, 10);
    host->MouseDown(149, 10);
    ASSERT_TRUE(Grid().IsSizingMode());
    Grid().SetEnabled(false);
    EXPECT_FALSE(Grid().IsSizingMode());
    EXPECT_EQ(host->Pointer(), PointerShape::Default);
}

TEST_F(MousePress, GoesNoFurtherBehindAnEventThatDisablesTheControl)
{
    Grid().SetCellSelection(true);
    const auto disable = [&] { Grid().SetEnabled(false); };
    const auto saidWith = [&](const std::function<void()>& set) {
        handlers.OnMouseDown = nullptr;
        handlers.OnCellDown = nullptr;
        handlers.OnMouseUp = nullptr;
        set();
        Grid().SetEnabled(true);
        host->ClearLog();
        ClickOn(1, 2);
        return SaidNames();
    };
    EXPECT_EQ(
        saidWith([&] { handlers.OnMouseDown = [=](i16, i16, float, float) { disable(); }; }), Lines { "MouseDown" });
    EXPECT_EQ(
        saidWith([&] { handlers.OnCellDown = [=](i16, i16) { disable(); }; }), (Lines { "MouseDown", "CellDown" }));
    EXPECT_EQ(Current(), NoCell);
    EXPECT_EQ(saidWith([&] { handlers.OnMouseUp = [=](i16, i16, float, float) { disable(); }; }),
        (Lines { "MouseDown", "CellDown", "CellChange", "MouseUp" }));
    Grid().SetEnabled(true);
    EXPECT_FALSE(LooksSelected(2, 2));
}

TEST_F(MousePress, IsForgottenWithItsTable)
{
    Grid().SetColMode(2, vxPressButton);
    Press(1, 2);
    Release(1, 2);
    Grid().ReadProperties(MemoryBag());
    MouseTable(20, 5);
    host->ClearLog();
    host->Click();
    EXPECT_EQ(SaidNames(), Lines { "Click" });
}

} // namespace
} // namespace vornix
