#include "headless/person_fixture.h"

namespace vornix {
namespace {

class DesignMode : public PersonTest {
protected:
    DesignMode()
    {
        MakeDesign();
        host->ClearLog();
    }
};

TEST_F(DesignMode, NotificationsReachTheControl)
{
    host->MouseDown(1, 2);
    host->KeyDown(40);
    EXPECT_EQ(Heard(), (Lines { "MouseDown Button=1 Shift=0 x=1 y=2", "KeyDown KeyCode=40 Shift=0" }));
}

TEST_F(DesignMode, WhatAPersonDoesReachesTheControl)
{
    host->ClickAt(1, 2);
    EXPECT_EQ(HeardNames(), (Lines { "MouseMove", "MouseDown", "MouseUp", "Click" }));
}

TEST_F(DesignMode, TheUserModeCanBeSwitched)
{
    EXPECT_FALSE(host->UserMode());
    host->SetUserMode(true);
    EXPECT_TRUE(host->UserMode());
    Table(2, 2);
    Grid().SetDefaultBkColor(0x123456);
    EXPECT_NE(Grid().CellBackColor(0, 0), 0x123456u) << "at run time only new cells take a default";
    host->SetUserMode(false);
    Grid().SetDefaultBkColor(0x654321);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x654321u);
}

} // namespace
} // namespace vornix
