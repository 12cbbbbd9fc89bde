#include "headless/person_fixture.h"

namespace vornix {
namespace {

class Notifications : public PersonTest { };

TEST_F(Notifications, OfThePointerOutsideOfTheCellsRaiseTheirEventAloneWithTheArgumentsAsGiven)
{
    host->MouseDown(5.5F, -6, 2, 3);
    EXPECT_EQ(Said(), (Lines { "MouseDown Button=2 Shift=3 x=5.5 y=-6" }));
    host->MouseMove(700, 8, 1, 4);
    EXPECT_EQ(Said(), (Lines { "MouseMove Button=1 Shift=4 x=700 y=8" }));
    host->MouseUp(9, 10000, 4, 7);
    EXPECT_EQ(Said(), (Lines { "MouseUp Button=4 Shift=7 x=9 y=10000" }));
    host->Click();
    EXPECT_EQ(Said(), (Lines { "Click" }));
    host->DblClick();
    EXPECT_EQ(Said(), (Lines { "DblClick" }));
}

TEST_F(Notifications, OfThePointerHaveDefaultsForButtonAndShift)
{
    host->MouseDown(1, 2);
    host->MouseMove(1, 2);
    host->MouseUp(1, 2);
    EXPECT_EQ(Heard(),
        (Lines { "MouseDown Button=1 Shift=0 x=1 y=2", "MouseMove Button=0 Shift=0 x=1 y=2",
            "MouseUp Button=1 Shift=0 x=1 y=2" }));
}

TEST_F(Notifications, OfKeysRaiseTheirEventAlone)
{
    EXPECT_EQ(host->KeyDown(65, 1), 65);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=65 Shift=1" }));
    EXPECT_EQ(host->KeyPress(97), 97);
    EXPECT_EQ(Said(), (Lines { "KeyPress KeyAscii=97" }));
    EXPECT_EQ(host->KeyUp(65), 65);
    EXPECT_EQ(Said(), (Lines { "KeyUp KeyCode=65 Shift=0" }));
}

TEST_F(Notifications, OfKeysGiveTheCodeAsTheHandlersLeftIt)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16& Shift) {
        KeyCode = static_cast<i16>(KeyCode + 1);
        Shift = 7;
    };
    handlers.OnKeyPress = [](i16& KeyAscii) { KeyAscii = 0; };
    handlers.OnKeyUp = [](i16& KeyCode, i16&) { KeyCode = -5; };
    EXPECT_EQ(host->KeyDown(40), 41);
    EXPECT_EQ(host->KeyPress(97), 0);
    EXPECT_EQ(host->KeyUp(40), -5);
    EXPECT_EQ(Said(), (Lines { "KeyDown KeyCode=40 Shift=0", "KeyPress KeyAscii=97", "KeyUp KeyCode=40 Shift=0" }))
        << "the log has the values as they were raised";
}

TEST_F(Notifications, BringTheShiftStateOfTheControlsOwnEntryBackToo)
{
    handlers.OnKeyDown = [](i16&, i16& Shift) { Shift = 2; };
    i16 code = 40;
    i16 shift = 0;
    Grid().KeyDown(code, shift);
    EXPECT_EQ(code, 40);
    EXPECT_EQ(shift, 2);
}

TEST_F(Notifications, ImplyNoChildOnTopAndNoFocusAndNothingHeld)
{
    ShowChild(ChildName::fraEdit, { 0, 0, 640, 480 });
    bool leftDown = true;
    bool keyDown = true;
    handlers.OnMouseDown = [&](i16, i16, float, float) { leftDown = host->IsKeyDown(1); };
    handlers.OnKeyDown = [&](i16&, i16&) { keyDown = host->IsKeyDown(65); };
    host->MouseDown(5, 5);
    host->KeyDown(65);
    EXPECT_EQ(HeardNames(), (Lines { "MouseDown", "KeyDown" }));
    EXPECT_FALSE(leftDown);
    EXPECT_FALSE(keyDown);
    EXPECT_FALSE(host->HasFocus());
}

TEST_F(Notifications, PaintOnlyWhereTheGridDoesSomethingWithThem)
{
    Table(3, 3);
    host->MouseMove(600, 400);
    host->MouseDown(600, 400);
    host->Click();
    host->KeyDown(65);
    host->KeyPress(97);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 0);
    host->MouseDown(5, 5);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Notifications, ArriveWhileTheRedrawGateIsClosed)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    host->MouseMove(1, 1);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove" }));
}

TEST_F(Notifications, MayComeFromInsideHandlers)
{
    handlers.OnMouseDown = [&](i16, i16, float, float) {
        EXPECT_EQ(host->KeyDown(38), 38);
        host->Click();
    };
    host->MouseDown(1, 1);
    EXPECT_EQ(HeardNames(), (Lines { "MouseDown", "KeyDown", "Click" }));
}

} // namespace
} // namespace vornix
