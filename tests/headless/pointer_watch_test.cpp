// Where the pointer is, and what the control finds out about it by its timer.
#include "headless/person_fixture.h"

#include <limits>

namespace vornix {
namespace {

class PointerWatch : public PersonTest {
protected:
    using Window = PointerLocation::Window;

    PointerWatch() { Table(60, 20); }

    Window WindowBelow() const { return host->LocatePointer().window; }
    bool IsOn(ChildName child) const { return WindowBelow() == Window::Child && host->LocatePointer().child == child; }
    // The pointer goes where the control hears nothing of it.
    void LeaveUnheard() { host->ClickAt(-5, -5); }
};

TEST_F(PointerWatch, BeforeTheFirstNotificationThePointerIsElsewhere)
{
    EXPECT_EQ(WindowBelow(), Window::Elsewhere);
}

TEST_F(PointerWatch, ThePointerIsWhereTheLatestNotificationPutIt)
{
    host->MouseMove(5, 6);
    EXPECT_EQ(WindowBelow(), Window::Control);
    EXPECT_EQ(host->LocatePointer().place, (Point { 5, 6 }));
    host->MouseDown(7.9F, 8);
    EXPECT_EQ(host->LocatePointer().place, (Point { 7, 8 }));
    host->MouseUp(9, 10);
    EXPECT_EQ(host->LocatePointer().place, (Point { 9, 10 }));
    host->ClickAt(11, 12);
    EXPECT_EQ(host->LocatePointer().place, (Point { 11, 12 }));
    host->Drag(11, 12, 101, 102);
    EXPECT_EQ(host->LocatePointer().place, (Point { 101, 102 }));
    host->Click();
    host->KeyDown(65);
    EXPECT_EQ(host->LocatePointer().place, (Point { 101, 102 }));
}

TEST_F(PointerWatch, AHandlerSeesThePlaceOfItsNotification)
{
    Point seen;
    handlers.OnMouseMove = [&](i16, i16, float, float) { seen = host->LocatePointer().place; };
    host->MouseMove(15, 16);
    EXPECT_EQ(seen, (Point { 15, 16 }));
    host->ClickAt(17, 18);
    EXPECT_EQ(seen, (Point { 17, 18 }));
}

TEST_F(PointerWatch, OutsideTheClientAreaThePointerIsElsewhere)
{
    for (const auto& [x, y] : { std::pair(-1.F, 5.F), std::pair(5.F, -0.5F), std::pair(640.F, 5.F),
             std::pair(5.F, 480.F), std::pair(std::numeric_limits<float>::max(), 5.F) }) {
        host->MouseMove(5, 5);
        ASSERT_EQ(WindowBelow(), Window::Control);
        host->MouseMove(x, y);
        EXPECT_EQ(WindowBelow(), Window::Elsewhere) << x << ' ' << y;
    }
    host->Drag(5, 5, -50, 5);
    EXPECT_EQ(WindowBelow(), Window::Elsewhere) << "also behind a drag that began inside";
}

TEST_F(PointerWatch, WhileTheControlIsHiddenThePointerIsElsewhere)
{
    host->MouseMove(5, 5);
    host->Hide();
    EXPECT_EQ(WindowBelow(), Window::Elsewhere);
    host->Show();
    EXPECT_EQ(WindowBelow(), Window::Control);
}

TEST_F(PointerWatch, ThePointerIsOnTheChildOnTop)
{
    const Rect bar = host->VerticalBar().Place();
    host->ClickAt(static_cast<float>(bar.left + 3), static_cast<float>(bar.top + 40));
    EXPECT_TRUE(IsOn(ChildName::scrV));
    EXPECT_EQ(host->LocatePointer().place, (Point { bar.left + 3, bar.top + 40 })) << "in the control's client area";
    host->VerticalBar().SetEnabled(false);
    EXPECT_EQ(WindowBelow(), Window::Control);

    ShowChild(ChildName::fraEdit, { 100, 100, 200, 120 });
    host->MouseMove(110, 110);
    EXPECT_TRUE(IsOn(ChildName::fraEdit));
    HeadlessChild& box = ShowChild(ChildName::txtTmp, { 0, 0, 100, 20 });
    EXPECT_TRUE(IsOn(ChildName::txtTmp)) << "a window may come below the pointer";
    ShowChild(ChildName::cboTmp, { 0, 0, 100, 20 });
    EXPECT_TRUE(IsOn(ChildName::cboTmp));
    box.Raise();
    EXPECT_TRUE(IsOn(ChildName::txtTmp));
}

TEST_F(PointerWatch, AMoveStartsTheTimer)
{
    EXPECT_FALSE(host->IsTimerEnabled());
    host->MouseMove(5, 5);
    EXPECT_TRUE(host->IsTimerEnabled());
    EXPECT_EQ(host->TimerInterval(), 100);
    host->MouseDown(5, 5);
    EXPECT_FALSE(host->IsTimerEnabled()) << "a press stops it";
    host->MouseUp(5, 5);
    EXPECT_TRUE(host->IsTimerEnabled());
}

TEST_F(PointerWatch, ATickFindsThatThePointerHasLeft)
{
    host->MouseMove(5, 5);
    LeaveUnheard();
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOver" }));
    host->Tick();
    EXPECT_EQ(Said(), (Lines { "CellOut Row=0 Col=0" }));
    EXPECT_FALSE(host->IsTimerEnabled());
    host->Tick();
    EXPECT_EQ(SaidNames(), Lines {});
    host->MouseMove(5, 5);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOver" })) << "it has come back";
}

TEST_F(PointerWatch, APointerOnABarHasLeft)
{
    host->MouseMove(5, 5);
    const Rect bar = host->VerticalBar().Place();
    host->ClickAt(static_cast<float>(bar.left + 3), static_cast<float>(bar.top + 40), 2);
    host->ClearLog();
    host->Tick();
    EXPECT_EQ(SaidNames(), (Lines { "CellOut" }));
}

TEST_F(PointerWatch, APointerOverAControlThatWasHiddenHasLeft)
{
    host->MouseMove(5, 5);
    host->Hide();
    host->ClearLog();
    host->Tick();
    EXPECT_EQ(SaidNames(), (Lines { "CellOut" }));
}

TEST_F(PointerWatch, DeepInsideTheTimerIsSwitchedOffAndTheHoveringGoesOn)
{
    for (const auto& [x, y] : { std::pair(21.F, 200.F), std::pair(200.F, 21.F), std::pair(599.F, 200.F),
             std::pair(200.F, 439.F), std::pair(300.F, 200.F) }) {
        host->MouseMove(x, y);
        ASSERT_TRUE(host->IsTimerEnabled());
        host->ClearLog();
        host->Tick();
        EXPECT_FALSE(host->IsTimerEnabled()) << x << ' ' << y;
        EXPECT_EQ(SaidNames(), Lines {});
    }
}

TEST_F(PointerWatch, NearTheEdgesTheTimerStaysOn)
{
    for (const auto& [x, y] :
        { std::pair(20.F, 200.F), std::pair(200.F, 20.F), std::pair(600.F, 200.F), std::pair(200.F, 440.F) }) {
        host->MouseMove(x, y);
        host->ClearLog();
        host->Tick();
        EXPECT_TRUE(host->IsTimerEnabled()) << x << ' ' << y;
        EXPECT_EQ(SaidNames(), Lines {});
    }
}

TEST_F(PointerWatch, EditorsAreTheGridToo)
{
    host->MouseMove(110, 110);
    host->ClearLog();
    ShowChild(ChildName::fraEdit, { 100, 100, 200, 120 });
    host->Tick();
    ShowChild(ChildName::txtTmp, { 100, 100, 200, 120 });
    host->Tick();
    EXPECT_EQ(SaidNames(), Lines {});
}

TEST_F(PointerWatch, OverTheListOfAComboTheTickMovesOn)
{
    ShowChild(ChildName::fraEdit, { 100, 100, 400, 300 });
    ShowChild(ChildName::cboTmp, { 0, 0, 300, 200 });
    host->ClickAt(110, 110);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOver" })) << "the box tells of moves itself";
    host->Tick();
    EXPECT_EQ(Said(), (Lines { "MouseMove Button=0 Shift=0 x=110 y=110" }));
    EXPECT_TRUE(host->IsTimerEnabled());
}

TEST_F(PointerWatch, TheShapeOfThePointerComesBackWhenItHasLeft)
{
    Grid().SetFixedRows(1);
    Grid().SetColResize(0, true);
    host->MouseMove(Grid().ColWidth(0) - 2.F, 5);
    ASSERT_EQ(host->Pointer(), PointerShape::SizeWE);
    host->Tick();
    EXPECT_EQ(host->Pointer(), PointerShape::SizeWE) << "it is still there";
    LeaveUnheard();
    EXPECT_EQ(host->Pointer(), PointerShape::SizeWE);
    host->Tick();
    EXPECT_EQ(host->Pointer(), PointerShape::Default);
}

TEST_F(PointerWatch, AHandlerMayCloseTheControlInATick)
{
    host->MouseMove(5, 5);
    LeaveUnheard();
    handlers.OnCellOut = [&](i16, i16) { host->Close(); };
    EXPECT_EQ(ErrorOf([&] { host->Tick(); }), std::nullopt);
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_EQ(ErrorOf([&] { host->Tick(); }), 5);
}

} // namespace
} // namespace vornix
