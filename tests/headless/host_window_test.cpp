// Windows of the host over the control, and the boxes and their frame as windows of it.
#include "headless/person_fixture.h"
#include "headless/recording_listeners.h"

namespace vornix {
namespace {

class EditorWindows : public PersonTest {
protected:
    // The frame with a box in it, the listener the test's own.
    void ShowEditBox()
    {
        ShowChild(ChildName::fraEdit, { 100, 50, 300, 90 });
        ShowChild(ChildName::txtTmp, { 10, 5, 150, 30 });
        host->EditBox().Listen(&listener);
        host->EditBox().SetEnabled(true);
    }

    RecordingEditListener listener;
};

TEST_F(EditorWindows, ThePointerReachesABoxWhereItLiesInTheFrame)
{
    ShowEditBox();
    host->EditBox().SetText(u"abc");
    host->ClickAt(240, 60);
    EXPECT_EQ(listener.Said(), (Lines { "MouseMove 0 0 130 5", "MouseDown 1 0 130 5", "MouseUp 1 0 130 5", "Click" }));
    EXPECT_EQ(HeardNames(), Lines {}) << "the control hears nothing of it";
    EXPECT_TRUE(host->EditBox().HasFocus());
    EXPECT_EQ(host->EditBox().SelStart(), 3);
    EXPECT_EQ(host->LocatePointer().child, ChildName::txtTmp);
}

TEST_F(EditorWindows, APersonTypesIntoTheBoxWithTheFocus)
{
    ShowEditBox();
    ASSERT_TRUE(host->EditBox().SetFocus());
    host->Type(u"aB");
    EXPECT_EQ(host->EditBox().Text(), u"aB");
    EXPECT_EQ(listener.Said(),
        (Lines { "KeyDown 65 0", "KeyPress 97 0", "TextChanged key", "KeyUp 65 0", "KeyDown 66 1", "KeyPress 66 1",
            "TextChanged key", "KeyUp 66 1" }));
    host->Press("a", 2);
    host->Press("x", 2);
    EXPECT_EQ(host->ClipboardText(), u"aB");
    EXPECT_EQ(host->EditBox().Text(), u"");
    host->SetClipboardText(u"pasted");
    host->Press("v", 2);
    host->Press("Left");
    host->Press("Back");
    host->Press("Delete");
    host->Press("Tab");
    EXPECT_EQ(host->EditBox().Text(), u"past");
    EXPECT_EQ(HeardNames(), Lines {});
}

TEST_F(EditorWindows, WhatIsWithdrawnLeavesTheFocusToTheControl)
{
    ShowEditBox();
    for (const auto& withdraw : std::vector<std::function<void()>> {
             [&] { host->EditBox().Show(false); },
             [&] { host->EditBox().SetEnabled(false); },
             [&] { host->EditFrame().Show(false); },
         }) {
        ShowEditBox();
        ASSERT_TRUE(host->EditBox().SetFocus());
        host->ClearLog();
        withdraw();
        EXPECT_FALSE(host->EditBox().HasFocus());
        EXPECT_EQ(SaidNames(), Lines {});
        ShowEditBox();
        host->Type(u"x");
        EXPECT_EQ(HeardNames(), (Lines { "KeyDown", "KeyPress", "KeyUp" })) << "it does not come back by itself";
        EXPECT_EQ(host->EditBox().Text(), u"");
    }
}

TEST_F(EditorWindows, AFrameTellsTheControlOfMovesAndKeepsItsColour)
{
    ShowChild(ChildName::fraEdit, { 100, 50, 300, 90 });
    host->EditFrame().SetBackColor(0x123456);
    EXPECT_EQ(host->EditFrame().BackColor(), 0x123456u);
    host->MouseMove(5, 5);
    Said();
    host->ClickAt(120, 60);
    EXPECT_FALSE(host->EditFrame().HasFocus());
    EXPECT_EQ(host->LocatePointer().child, ChildName::fraEdit);
    EXPECT_EQ(host->Count("MouseDown"), 0);
}

TEST_F(EditorWindows, TheBoxesAreNotDrawn)
{
    const RgbaImage before = host->Image();
    ShowEditBox();
    host->EditBox().SetText(u"text");
    host->EditBox().SetBorder(true);
    EXPECT_EQ(host->Image().bytes, before.bytes);
}

TEST_F(EditorWindows, AWindowOfTheHostIsKeptWithItsPlaceAndFocus)
{
    EXPECT_EQ(host->HostWindow(7), nullptr);
    EXPECT_FALSE(host->FocusHostWindow(7));
    EXPECT_FALSE(host->ShowHostWindow(0, { 0, 0, 10, 10 }));
    host->HideHostWindow(7);
    ASSERT_TRUE(host->ShowHostWindow(7, { 20, 30, 80, 50 }));
    HeadlessHostWindow* const window = host->HostWindow(7);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->Number(), 7);
    EXPECT_EQ(window->Place(), (Rect { 20, 30, 80, 50 }));
    EXPECT_TRUE(window->IsVisible());
    EXPECT_FALSE(window->HasFocus());
    EXPECT_TRUE(host->FocusHostWindow(7));
    EXPECT_TRUE(window->HasFocus());
    EXPECT_TRUE(host->HasFocus()) << "it lies on the control";
    Said();
    host->Type(u"x");
    EXPECT_EQ(HeardNames(), Lines {}) << "the keys are the window's";
    ASSERT_TRUE(host->ShowHostWindow(7, { 0, 0, 10, 10 }));
    EXPECT_EQ(host->HostWindow(7), window);
    EXPECT_EQ(window->Place(), (Rect { 0, 0, 10, 10 }));
    host->HideHostWindow(7);
    EXPECT_FALSE(window->IsVisible());
    EXPECT_FALSE(window->HasFocus());
    EXPECT_FALSE(host->FocusHostWindow(7));
    host->Type(u"x");
    EXPECT_EQ(HeardNames(), (Lines { "KeyDown", "KeyPress", "KeyUp" }));
}

TEST_F(EditorWindows, AWindowOfTheHostLiesJustBehindTheCorner)
{
    ShowChild(ChildName::fraEdit, { 100, 50, 300, 90 });
    ShowChild(ChildName::cPivot, { 100, 50, 110, 60 });
    host->ShowHostWindow(7, { 100, 50, 300, 90 });
    host->MouseMove(105, 55);
    EXPECT_EQ(host->LocatePointer().child, ChildName::cPivot);
    host->MouseMove(150, 60);
    EXPECT_EQ(host->LocatePointer().window, PointerLocation::Window::Elsewhere)
        << "the window is none of the control's";
    Said();
    host->ClickAt(150, 60);
    EXPECT_EQ(HeardNames(), Lines {});
    EXPECT_TRUE(host->HostWindow(7)->HasFocus());
    host->HideHostWindow(7);
    EXPECT_EQ(host->LocatePointer().child, ChildName::fraEdit);
}

} // namespace
} // namespace vornix
