// What a click and a double click do by the mode of the cell.
#include "interact/mouse_fixture.h"

namespace vornix {
namespace {

class MouseClick : public MouseTest {
protected:
    MouseClick() { handlers.OnDrawCell = nullptr; }

    Lines ClickEvents(int Row, int Col, i16 shift = Held::None)
    {
        Press(Row, Col, shift);
        Release(Row, Col, shift);
        host->ClearLog();
        host->Click();
        return Said();
    }
};

TEST_F(MouseClick, OnAPlainCellIsOneOfCellAndGrid)
{
    EXPECT_EQ(ClickEvents(1, 2), (Lines { "CellClick Row=1 Col=2", "Click" }));
}

TEST_F(MouseClick, OnACommandButtonIsTheCellsAlone)
{
    Grid().SetColMode(2, vxCommandButton);
    EXPECT_EQ(ClickEvents(1, 2), Lines { "CellClick Row=1 Col=2" });
    EXPECT_EQ(Grid().GetMouseButton(), 1) << "what the latest press was stays";
}

TEST_F(MouseClick, LatchesAPressButtonAndReleasesIt)
{
    Grid().SetColMode(2, vxPressButton);
    EXPECT_EQ(ClickEvents(1, 2), (Lines { "CellClick Row=1 Col=2", "Click" }));
    EXPECT_TRUE(Grid().ButtonPressed(1, 2));
    ClickEvents(1, 2);
    EXPECT_FALSE(Grid().ButtonPressed(1, 2));
}

TEST_F(MouseClick, PaintsAPressButtonAsItIsThen)
{
    Grid().SetColMode(2, vxPressButton);
    ClickEvents(1, 2);
    const RgbaImage shown = host->Image();
    Grid().Refresh();
    EXPECT_EQ(host->Image().bytes, shown.bytes);
}

TEST_F(MouseClick, TurnsACheckBoxOver)
{
    Grid().SetColMode(2, vxCheckBox);
    EXPECT_EQ(ClickEvents(1, 2), (Lines { "TextChange Row=1 Col=2", "CellClick Row=1 Col=2", "Click" }));
    EXPECT_EQ(Grid().Text(1, 2), u"-1");
    ClickEvents(1, 2);
    EXPECT_EQ(Grid().Text(1, 2), u"0");
}

TEST_F(MouseClick, LeavesADisabledCheckBox)
{
    Grid().SetColMode(2, vxCheckBox);
    Grid().SetCellEnabled(1, 2, false);
    EXPECT_EQ(ClickEvents(1, 2), (Lines { "CellClick Row=1 Col=2", "Click" }));
    EXPECT_EQ(Grid().Text(1, 2), u"");
}

TEST_F(MouseClick, OnADisabledCellThatIsEditedEndsWithoutTheGrids)
{
    for (const i32 mode : { vxTextBox, vxComboDropDownBox, vxComboListBox, vxCustom }) {
        Grid().SetColMode(2, mode);
        Grid().SetCellEnabled(1, 2, true);
        EXPECT_THAT(
            ClickEvents(1, 2), testing::AllOf(testing::Contains("BeforeEdit Row=1 Col=2"), testing::Contains("Click")))
            << mode;
        Grid().ExitEdit();
        Grid().SetCellEnabled(1, 2, false);
        EXPECT_EQ(ClickEvents(1, 2), Lines { "CellClick Row=1 Col=2" }) << mode;
    }
}

TEST_F(MouseClick, FollowsTheCurrentCellAndNotThePressed)
{
    Grid().SetColMode(2, vxCommandButton);
    handlers.OnCellChange = [](i16, i16, bool& bCancel) { bCancel = true; };
    Grid().CurrentPos(0, 0);
    EXPECT_EQ(ClickEvents(1, 2), (Lines { "CellClick Row=1 Col=2", "Click" }));
}

TEST_F(MouseClick, GivesTheCurrentCellBackWhenTheHostTookItAway)
{
    handlers.OnMouseUp = [&](i16, i16, float, float) {
        Grid().SetRows(0);
        Grid().SetRows(20);
    };
    Press(1, 2);
    Release(1, 2);
    EXPECT_EQ(Current(), (CellPlace { 1, 2 }));
}

TEST_F(MouseClick, WithoutACurrentCellEndsWithTheCells)
{
    Press(1, 2);
    Release(1, 2);
    host->ClearLog();
    handlers.OnCellClick = [&](i16, i16) { Grid().SetRows(0); };
    host->Click();
    EXPECT_EQ(SaidNames(), Lines { "CellClick" });
}

TEST_F(MouseClick, BringsTheCurrentCellIntoViewUnlessAKeyIsHeld)
{
    SmallWindow();
    const int partly = 7; // begins inside the window and ends behind it
    host->MouseDown(60, Y(partly));
    host->MouseUp(60, Y(partly));
    EXPECT_EQ(Current(), (CellPlace { partly, 0 })) << "the row at the lower edge";
    host->Click();
    EXPECT_GT(Grid().FirstRow(), 0);

    Grid().SetFirstRow(0);
    Grid().CurrentPos(0, 0);
    host->MouseDown(60, Y(partly), 1, Held::Ctrl);
    host->MouseUp(60, Y(partly), 1, Held::Ctrl);
    host->Click();
    EXPECT_EQ(Grid().FirstRow(), 0);
}

TEST_F(MouseClick, OfTheMiddleButtonEndsLikeOneOfTheLeftThatWasThere)
{
    Grid().SetColMode(2, vxCheckBox);
    ClickOn(1, 2);
    host->ClearLog();
    Press(1, 2, Held::None, 4);
    Release(1, 2, Held::None, 4);
    host->Click();
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "MouseUp", "CellUp", "TextChange", "CellClick", "Click" }));
}

TEST_F(MouseClick, OnATableThatTheHandlerMadeAnewIsTheGridsAlone)
{
    handlers.OnCellUp = [&](i16, i16) { Grid().ReadProperties(MemoryBag()); };
    Press(1, 2);
    Release(1, 2);
    host->ClearLog();
    host->Click();
    EXPECT_EQ(SaidNames(), Lines { "Click" });
    handlers.OnCellUp = nullptr;
    MouseTable(5, 5);
    Grid().SetColMode(2, vxCheckBox);
    handlers.OnTextChange = [&](i16, i16) { Grid().ReadProperties(MemoryBag()); };
    Press(1, 2);
    Release(1, 2);
    host->ClearLog();
    host->Click();
    EXPECT_EQ(host->Count("CellClick"), 0);
}

TEST_F(MouseClick, TwiceBringsTheCurrentCellIntoView)
{
    SmallWindow();
    ClickOn(1, 1);
    Grid().SetFirstRow(50);
    host->DblClick();
    EXPECT_EQ(Grid().FirstRow(), 1);
}

TEST_F(MouseClick, WithoutAPressIsTheGridsAlone)
{
    host->Click();
    host->DblClick();
    EXPECT_EQ(SaidNames(), (Lines { "Click", "DblClick" }));
}

TEST_F(MouseClick, TwiceIsADoubleClickOnTheRawCell)
{
    Grid().SetRowSpan(1, 1, 3);
    host->ClearLog();
    Press(3, 1);
    Release(3, 1);
    host->Click();
    host->DblClick();
    Release(3, 1);
    EXPECT_EQ(Said(),
        (Lines { "MouseDown Button=1 Shift=0 x=210 y=94", "CellDown Row=1 Col=1", "CellChange Row=1 Col=1 bCancel=0",
            "MouseUp Button=1 Shift=0 x=210 y=94", "CellUp Row=1 Col=1", "CellClick Row=1 Col=1", "Click",
            "CellDblClick Row=3 Col=1", "DblClick", "MouseUp Button=1 Shift=0 x=210 y=94", "CellUp Row=1 Col=1" }));
    EXPECT_EQ(Grid().GetMouseButton(), 0);
}

TEST_F(MouseClick, TwiceOffTheCellsIsTheGridsAlone)
{
    ClickOn(1, 2);
    host->MouseDown(635, 475);
    host->MouseUp(635, 475);
    host->ClearLog();
    host->Click();
    host->DblClick();
    EXPECT_EQ(SaidNames(), (Lines { "Click", "DblClick" }));
}

} // namespace
} // namespace vornix
