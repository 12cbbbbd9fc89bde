#include "headless/person_fixture.h"

#include <limits>

namespace vornix {
namespace {

class Pointer : public PersonTest {
protected:
    // What is held in each notification: "MouseDown 1 16" for the left button and Shift.
    void WriteDownWhatIsHeld()
    {
        handlers.OnMouseDown = [this](i16, i16, float, float) { WriteDown("MouseDown"); };
        handlers.OnMouseMove = [this](i16, i16, float, float) { WriteDown("MouseMove"); };
        handlers.OnMouseUp = [this](i16, i16, float, float) { WriteDown("MouseUp"); };
        handlers.OnClick = [this] { WriteDown("Click"); };
        handlers.OnDblClick = [this] { WriteDown("DblClick"); };
    }
    void WriteDown(std::string line)
    {
        for (const int code : { 1, 2, 4, 16, 17, 18 }) {
            if (host->IsKeyDown(code))
                line += ' ' + std::to_string(code);
        }
        held.push_back(line);
    }
    const LoggedEvent& LastMove() const
    {
        const auto found = std::find_if(host->Log().rbegin(), host->Log().rend(),
            [](const LoggedEvent& event) { return event.name == "MouseMove"; });
        return *found;
    }
    static std::pair<double, double> PlaceOf(const LoggedEvent& event)
    {
        return { event["x"].ToDouble(), event["y"].ToDouble() };
    }

    Lines held;
};

TEST_F(Pointer, AHiddenControlIsReachedByNothingThatAPersonDoes)
{
    ShowChild(ChildName::picSplitCol, { 0, 0, 20, 20 });
    const auto doEverything = [&] {
        host->ClickAt(40, 30);
        host->ClickAt(10, 10);
        host->DblClickAt(40, 30);
        host->Drag(40, 30, 60, 50);
        host->Type(u"a");
        host->Press("Left");
        host->Press(i16 { 65 });
    };
    host->Hide();
    host->ClearLog();
    doEverything();
    EXPECT_EQ(SaidNames(), Lines {});
    EXPECT_FALSE(host->HasFocus());
    EXPECT_EQ(ErrorOf([&] { host->Press("NoSuchKey"); }), 5);

    host->Show();
    host->ClearLog();
    doEverything();
    EXPECT_EQ(host->Count("Click"), 3);
    EXPECT_EQ(host->Count("KeyPress"), 2);
    EXPECT_TRUE(host->HasFocus());
}

TEST_F(Pointer, AControlThatAHandlerHidesGetsNothingMore)
{
    handlers.OnMouseDown = [this](i16, i16, float, float) { host->Hide(); };
    host->ClickAt(40, 30);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "MouseDown" }));
    host->Show();
    handlers.OnMouseDown = nullptr;
    host->ClearLog();
    host->ClickAt(40, 30);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "MouseDown", "MouseUp", "Click" }));
}

TEST_F(Pointer, AHiddenControlHearsSingleNotifications)
{
    host->Hide();
    host->ClearLog();
    host->MouseDown(40, 30);
    host->KeyDown(65);
    EXPECT_EQ(SaidNames(), (Lines { "MouseDown", "KeyDown" }));
}

TEST_F(Pointer, AClickMovesPressesReleasesAndClicks)
{
    host->ClickAt(40, 30);
    EXPECT_EQ(Said(),
        (Lines { "MouseMove Button=0 Shift=0 x=40 y=30", "MouseDown Button=1 Shift=0 x=40 y=30",
            "MouseUp Button=1 Shift=0 x=40 y=30", "Click" }));
}

TEST_F(Pointer, AClickWithAnotherButtonAndKeysHeldSaysSo)
{
    host->ClickAt(40.5F, 30, 2, 3);
    EXPECT_EQ(Said(),
        (Lines { "MouseMove Button=0 Shift=3 x=40.5 y=30", "MouseDown Button=2 Shift=3 x=40.5 y=30",
            "MouseUp Button=2 Shift=3 x=40.5 y=30", "Click" }));
}

TEST_F(Pointer, ADoubleClickHasOneClickAndTwoReleases)
{
    host->DblClickAt(40, 30, 1, 2);
    EXPECT_EQ(Said(),
        (Lines { "MouseMove Button=0 Shift=2 x=40 y=30", "MouseDown Button=1 Shift=2 x=40 y=30",
            "MouseUp Button=1 Shift=2 x=40 y=30", "Click", "DblClick", "MouseUp Button=1 Shift=2 x=40 y=30" }));
}

TEST_F(Pointer, ADragMovesInStepsThatEndExactlyAtTheEnd)
{
    host->Drag(10, 20, 50, 30, 1, 0, 4);
    EXPECT_EQ(Heard(),
        (Lines { "MouseMove Button=0 Shift=0 x=10 y=20", "MouseDown Button=1 Shift=0 x=10 y=20",
            "MouseMove Button=1 Shift=0 x=20 y=22.5", "MouseMove Button=1 Shift=0 x=30 y=25",
            "MouseMove Button=1 Shift=0 x=40 y=27.5", "MouseMove Button=1 Shift=0 x=50 y=30",
            "MouseUp Button=1 Shift=0 x=50 y=30", "Click" }));
}

TEST_F(Pointer, ADragTakesEightStepsUnlessToldOtherwise)
{
    host->Drag(10, 20, 13, 17);
    EXPECT_EQ(host->Count("MouseMove"), 1 + 8);
    EXPECT_EQ(PlaceOf(LastMove()), (std::pair { 13.0, 17.0 }));
    host->ClearLog();
    host->Drag(0.1F, 0.1F, 0.7F, 0.3F, 1, 0, 3);
    EXPECT_EQ(LastMove()["x"].ToSingle(), 0.7F) << "not the sum of three thirds";
    host->ClearLog();
    host->Drag(5, 5, 5, 5, 2, 0, 1);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown", "MouseMove", "MouseUp", "Click" }));
}

TEST_F(Pointer, ADragOutOfTheWindowGoesOnThereAndEndsWithoutAClick)
{
    host->Drag(10, 20, -30, 500, 1, 0, 2);
    EXPECT_EQ(Heard(),
        (Lines { "MouseMove Button=0 Shift=0 x=10 y=20", "MouseDown Button=1 Shift=0 x=10 y=20",
            "MouseMove Button=1 Shift=0 x=-10 y=260", "MouseMove Button=1 Shift=0 x=-30 y=500",
            "MouseUp Button=1 Shift=0 x=-30 y=500" }));
}

TEST_F(Pointer, ADragOutAndBackEndsWithAClick)
{
    host->Drag(639, 479, 0, 0, 1, 0, 1);
    EXPECT_EQ(host->Log().back().name, "Click");
    host->ClearLog();
    host->Drag(0, 0, 640, 479, 1, 0, 1);
    EXPECT_EQ(host->Log().back().name, "MouseUp") << "the right edge lies outside";
}

TEST_F(Pointer, AClickOnACellGivesTheCellsEventsAmongThem)
{
    Table(3, 3);
    host->ClickAt(5, 5);
    EXPECT_EQ(Said(),
        (Lines { "MouseMove Button=0 Shift=0 x=5 y=5", "CellOver Row=0 Col=0", "MouseDown Button=1 Shift=0 x=5 y=5",
            "CellDown Row=0 Col=0", "CellChange Row=0 Col=0 bCancel=0", "MouseUp Button=1 Shift=0 x=5 y=5",
            "CellUp Row=0 Col=0", "CellClick Row=0 Col=0", "Click" }));
    host->ClickAt(5, 5);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "MouseDown", "CellDown", "MouseUp", "CellUp", "CellClick", "Click" }))
        << "the pointer and the current cell are there already";
    host->ClickAt(5, Grid().RowHeight(0) + 5.F);
    EXPECT_EQ(SaidNames(),
        (Lines { "MouseMove", "CellOut", "CellOver", "MouseDown", "CellDown", "ValidateRow", "CellChange", "MouseUp",
            "CellUp", "CellClick", "Click" }));
    host->ClickAt(5, 5, 2);
    EXPECT_EQ(SaidNames(), (Lines { "MouseMove", "CellOut", "CellOver", "CellOut", "MouseDown", "MouseUp", "Click" }))
        << "the right button ends the hovering and does nothing else";
}

TEST_F(Pointer, ADoubleClickOnACellGivesTheCellsEventsAmongThem)
{
    Table(3, 3);
    host->DblClickAt(5, 5);
    EXPECT_EQ(SaidNames(),
        (Lines { "MouseMove", "CellOver", "MouseDown", "CellDown", "CellChange", "MouseUp", "CellUp", "CellClick",
            "Click", "CellDblClick", "DblClick", "MouseUp", "CellUp" }));
}

TEST_F(Pointer, ADragOverCellsLeavesOneAndEntersTheNext)
{
    Table(3, 3);
    Grid().SetCellSelection(true);
    host->ClearLog();
    host->Drag(5, 5, Grid().ColWidth(0) + 5.F, 5, 1, 0, 1);
    EXPECT_EQ(Said(),
        (Lines { "MouseMove Button=0 Shift=0 x=5 y=5", "CellOver Row=0 Col=0", "MouseDown Button=1 Shift=0 x=5 y=5",
            "CellDown Row=0 Col=0", "CellChange Row=0 Col=0 bCancel=0",
            "MouseMove Button=1 Shift=0 x=" + std::to_string(Grid().ColWidth(0) + 5) + " y=5", "CellUp Row=0 Col=0",
            "CellOut Row=0 Col=0", "CellOver Row=0 Col=1",
            "MouseUp Button=1 Shift=0 x=" + std::to_string(Grid().ColWidth(0) + 5) + " y=5", "Click" }));
    EXPECT_EQ(Grid().SelectCountCell(), 2);
}

TEST_F(Pointer, NothingArrivesFromOutsideTheClientArea)
{
    for (const auto& [x, y] :
        { std::pair(-1.F, 5.F), std::pair(5.F, -0.5F), std::pair(640.F, 5.F), std::pair(5.F, 480.F) }) {
        host->ClickAt(x, y);
        host->DblClickAt(x, y);
    }
    host->Drag(-5, -5, 30, 30);
    EXPECT_TRUE(host->Log().empty()) << "the press was another window's";
    EXPECT_FALSE(host->HasFocus());
    host->ClickAt(0, 0);
    host->ClickAt(639.5F, 479.5F);
    EXPECT_EQ(host->Count("Click"), 2);
}

TEST_F(Pointer, TheBorderIsOutside)
{
    Grid().SetBorderStyle(vxInset);
    host->ClearLog();
    ASSERT_EQ(host->ClientSize(), (Size { 636, 476 }));
    host->ClickAt(636, 10);
    EXPECT_TRUE(host->Log().empty());
    host->ClickAt(635, 475);
    EXPECT_EQ(host->Count("Click"), 1);
}

TEST_F(Pointer, NothingArrivesInAWindowWithoutArea)
{
    host->Resize(0, 0);
    host->ClearLog();
    host->ClickAt(0, 0);
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(Pointer, ButtonsAndKeysAreHeldFromPressToRelease)
{
    WriteDownWhatIsHeld();
    host->ClickAt(5, 5, 2, 5);
    EXPECT_EQ(held, (Lines { "MouseMove 16 18", "MouseDown 2 16 18", "MouseUp 16 18", "Click 16 18" }));
    held.clear();
    host->DblClickAt(5, 5, 4);
    EXPECT_EQ(held, (Lines { "MouseMove", "MouseDown 4", "MouseUp", "Click", "DblClick 4", "MouseUp" }));
    held.clear();
    host->Drag(5, 5, 9, 9, 1, 2, 2);
    EXPECT_EQ(held,
        (Lines { "MouseMove 17", "MouseDown 1 17", "MouseMove 1 17", "MouseMove 1 17", "MouseUp 17", "Click 17" }));
    for (const int code : { 1, 2, 4, 16, 17, 18 })
        EXPECT_FALSE(host->IsKeyDown(code)) << code;
}

TEST_F(Pointer, WhatTheHostHoldsStaysHeld)
{
    WriteDownWhatIsHeld();
    host->HoldKey(16, true);
    host->HoldKey(1, true);
    host->ClickAt(5, 5);
    EXPECT_EQ(held, (Lines { "MouseMove 1 16", "MouseDown 1 16", "MouseUp 1 16", "Click 1 16" }));
    EXPECT_TRUE(host->IsKeyDown(1));
    host->HoldKey(1, false);
    EXPECT_FALSE(host->IsKeyDown(1));
    EXPECT_FALSE(host->IsKeyDown(-1));
    EXPECT_FALSE(host->IsKeyDown(100000));
}

TEST_F(Pointer, AClickInsideAHandlerLeavesThePressAroundItAsItWas)
{
    bool nested = false;
    WriteDownWhatIsHeld();
    handlers.OnMouseDown = [&](i16, i16, float, float) {
        WriteDown("MouseDown");
        if (!std::exchange(nested, true))
            host->ClickAt(7, 7, 2);
    };
    host->Drag(5, 5, 9, 9, 1, 0, 1);
    EXPECT_EQ(held,
        (Lines { "MouseMove", "MouseDown 1", "MouseMove 1", "MouseDown 1 2", "MouseUp 1", "Click 1", "MouseMove 1",
            "MouseUp", "Click" }));
    EXPECT_EQ(host->Log()[2]["Button"].ToI16(), 1) << "the inner move knows of the button that is held";
}

TEST_F(Pointer, AHandlerThatThrowsLeavesNothingHeld)
{
    handlers.OnMouseDown = [](i16, i16, float, float) { throw std::runtime_error("no"); };
    EXPECT_THROW(host->ClickAt(5, 5, 1, 7), std::runtime_error);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown" }));
    for (const int code : { 1, 16, 17, 18 })
        EXPECT_FALSE(host->IsKeyDown(code)) << code;
    handlers.OnMouseDown = nullptr;
    host->ClickAt(5, 5);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown", "MouseUp", "Click" }));
}

TEST_F(Pointer, WhatThereIsNotIsAnError)
{
    for (const i16 button : std::initializer_list<i16> { 0, 3, 8, -1, 32767 }) {
        EXPECT_EQ(ErrorOf([&] { host->ClickAt(5, 5, button); }), 5) << button;
        EXPECT_EQ(ErrorOf([&] { host->DblClickAt(5, 5, button); }), 5) << button;
        EXPECT_EQ(ErrorOf([&] { host->Drag(5, 5, 6, 6, button); }), 5) << button;
    }
    for (const i16 shift : std::initializer_list<i16> { 8, -1, 32767, -32768 }) {
        EXPECT_EQ(ErrorOf([&] { host->ClickAt(5, 5, 1, shift); }), 5) << shift;
        EXPECT_EQ(ErrorOf([&] { host->DblClickAt(5, 5, 1, shift); }), 5) << shift;
        EXPECT_EQ(ErrorOf([&] { host->Drag(5, 5, 6, 6, 1, shift); }), 5) << shift;
    }
    for (const i32 steps : { 0, -1, 32768, std::numeric_limits<i32>::max() })
        EXPECT_EQ(ErrorOf([&] { host->Drag(5, 5, 6, 6, 1, 0, steps); }), 5) << steps;
    for (const float place : { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity() }) {
        EXPECT_EQ(ErrorOf([&] { host->ClickAt(place, 5); }), 5);
        EXPECT_EQ(ErrorOf([&] { host->DblClickAt(5, place); }), 5);
        EXPECT_EQ(ErrorOf([&] { host->Drag(5, 5, place, 5); }), 5);
        EXPECT_EQ(ErrorOf([&] { host->Drag(5, place, 5, 5); }), 5);
    }
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(Pointer, HugePlacesAreOnlyFarAway)
{
    const float far = std::numeric_limits<float>::max();
    host->ClickAt(far, far);
    EXPECT_TRUE(host->Log().empty());
    host->Drag(5, 5, -far, far, 1, 0, 2);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown", "MouseMove", "MouseMove", "MouseUp" }));
}

} // namespace
} // namespace vornix
