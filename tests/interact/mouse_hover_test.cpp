// What moves of the pointer raise, and how its leaving is noticed.
#include "interact/mouse_fixture.h"

namespace vornix {
namespace {

class MouseHover : public MouseTest { };

TEST_F(MouseHover, TellsWhichCellThePointerEntersAndLeaves)
{
    Hover(0, 0);
    Hover(0, 0);
    Hover(0, 1);
    EXPECT_EQ(Said(),
        (Lines { "MouseMove Button=0 Shift=0 x=90 y=31", "CellOver Row=0 Col=0", "MouseMove Button=0 Shift=0 x=90 y=31",
            "MouseMove Button=0 Shift=0 x=210 y=31", "CellOut Row=0 Col=0", "CellOver Row=0 Col=1" }));
}

TEST_F(MouseHover, TellsFixedCellsByNegativeIndices)
{
    Hover(-1, -1);
    EXPECT_EQ(Said(), (Lines { "MouseMove Button=0 Shift=0 x=15 y=10", "CellOver Row=-1 Col=-1" }));
}

TEST_F(MouseHover, TakesASpanForOneCell)
{
    Grid().SetColSpan(1, 1, 3);
    Hover(1, 1);
    Hover(1, 3);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOver", "MouseMove" }));
}

TEST_F(MouseHover, EndsOffTheCells)
{
    Hover(1, 1);
    host->MouseMove(635, 475);
    host->MouseMove(636, 475);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOver", "MouseMove", "CellOut", "MouseMove" }));
    Hover(1, 1);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOver" }));
}

class MouseButtons : public MouseHover, public testing::WithParamInterface<i32> { };

INSTANTIATE_TEST_SUITE_P(Modes, MouseButtons, testing::Values(vxCommandButton, vxPressButton));

TEST_P(MouseButtons, RiseAndSinkWithThePointer)
{
    Grid().SetColMode(2, GetParam());
    Press(1, 2);
    const ColorRef sunken = host->Pixel(30 + 240, 21 + 21);
    host->ClearLog();
    DragTo(1, 3);
    EXPECT_EQ(
        Said(), (Lines { "MouseMove Button=1 Shift=0 x=450 y=52", "CellUp Row=1 Col=2", "CellOver Row=1 Col=3" }));
    EXPECT_NE(host->Pixel(30 + 240, 21 + 21), sunken);
    DragTo(1, 2);
    EXPECT_EQ(Said(),
        (Lines { "MouseMove Button=1 Shift=0 x=330 y=52", "CellOut Row=1 Col=3", "CellOver Row=1 Col=2",
            "CellDown Row=1 Col=2" }));
    EXPECT_EQ(host->Pixel(30 + 240, 21 + 21), sunken);
    Release(1, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseUp", "CellUp" }));
    if (GetParam() == vxCommandButton) {
        EXPECT_NE(host->Pixel(30 + 240, 21 + 21), sunken) << "the other one stays down by the click";
    }
}

TEST_F(MouseHover, RaisesAllOfOneMoveInItsOrder)
{
    Hover(1, 2);
    Press(1, 2);
    host->ClearLog();
    DragTo(2, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellUp", "CellOut", "CellOver" }));
}

TEST_F(MouseHover, APressThatIsDraggedOffTheCellsShowsAgainOnlyOnItsCell)
{
    Press(1, 2);
    host->ClearLog();
    host->MouseMove(-5, -5, 1);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellUp" }));
    DragTo(3, 3);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOver" }));
    DragTo(1, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOut", "CellOver", "CellDown" }));
}

TEST_F(MouseHover, AReleaseOnAnotherCellIsNoClick)
{
    Press(1, 2);
    DragTo(3, 3);
    host->ClearLog();
    Release(3, 3);
    host->Click();
    EXPECT_EQ(SaidNames(), (Lines { "MouseUp", "Click" }));
}

TEST_F(MouseHover, WatchesThePointerWithoutAButtonOnly)
{
    Press(1, 2);
    DragTo(1, 3);
    EXPECT_FALSE(host->IsTimerEnabled());
    Release(1, 3);
    Hover(1, 3);
    EXPECT_TRUE(host->IsTimerEnabled());
    EXPECT_EQ(host->TimerInterval(), 100);
}

TEST_F(MouseHover, SurvivesARowThatIsGone)
{
    Hover(15, 1);
    Grid().SetRows(2);
    host->ClearLog();
    Hover(0, 1);
    EXPECT_EQ(Said(), (Lines { "MouseMove Button=0 Shift=0 x=210 y=31", "CellOver Row=0 Col=1" }));
}

TEST_F(MouseHover, EntersNoCellWhenAHandlerSizedALineMeanwhile)
{
    Hover(1, 1);
    handlers.OnCellOut = [&](i16, i16) {
        handlers.OnCellOut = nullptr;
        host->Drag(149, 10, 180, 10);
    };
    Hover(1, 2);
    for (const LoggedEvent& event : host->Log()) {
        if (event.name == "CellOver") {
            EXPECT_GE(event["Col"].ToDouble(), -1);
        }
    }
    EXPECT_EQ(Grid().ColWidth(0), 150);
}

TEST_F(MouseHover, RepaintsTheCellThatIsLeft)
{
    Hover(1, 1);
    host->ClearLog();
    Hover(1, 2);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 1);
}

TEST_F(MouseHover, EndsWhenTheViewScrollsUnderIt)
{
    SmallWindow();
    Grid().CurrentPos(0, 0);
    Hover(3, 1);
    host->ClearLog();
    for (int i = 0; i < 10; ++i)
        host->KeyDown(40);
    EXPECT_EQ(host->Count("CellOut"), 1);
}

} // namespace
} // namespace vornix
