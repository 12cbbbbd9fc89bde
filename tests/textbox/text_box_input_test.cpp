#include "textbox/text_box_fixture.h"

using namespace vornix;

namespace {

class TextBoxInputTest : public TextBoxTest {
protected:
    using Names = std::vector<std::string>;
};

TEST_F(TextBoxInputTest, TypingRaisesKeyDownKeyPressAndChange)
{
    Native.TypeAll(u"a");
    EXPECT_EQ(Events.log, (Names { "KeyDown 65 0", "KeyPress 97", "Change" }));
    EXPECT_EQ(Box.Text(), u"a");
    EXPECT_THAT(Site.reports, testing::IsEmpty());
}

TEST_F(TextBoxInputTest, TypingGoesThroughTheMask)
{
    Box.SetMask(u">LL-00");
    Native.TypeAll(u"ab1");
    EXPECT_EQ(Native.Text(), u"AB-1_");
    EXPECT_EQ(Count("Change"), 3);
    Native.Backspace();
    EXPECT_EQ(Box.TextInput(), u"AB");
    Native.Paste(u"x");
    EXPECT_EQ(Native.Text(), u"AB-__");
}

TEST_F(TextBoxInputTest, TheEventsOfTheMouseAreHandedOn)
{
    EditBoxListener& listener = Box.Listener();
    listener.MouseDown(1, 2, 3, 4);
    listener.MouseMove(2, 0, 5, 6);
    listener.MouseUp(4, 1, 7, 8);
    listener.Click();
    listener.DblClick();
    EXPECT_EQ(Events.log, (Names { "MouseDown 1 2 3 4", "MouseMove 2 0 5 6", "MouseUp 4 1 7 8", "Click", "DblClick" }));
}

TEST_F(TextBoxInputTest, TheHostMaySetAKeyThatGoesUp)
{
    Events.onKeyUp = [](i16& KeyCode) { KeyCode = 0; };
    i16 key = 65;
    i16 shift = Shifts::Ctrl;
    Box.Listener().KeyUp(key, shift);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(Events.log, Names { "KeyUp 65 2" });
}

TEST_F(TextBoxInputTest, TheHostMayTakeAKeyOrACharacter)
{
    Events.onKeyPress = [](i16& KeyAscii) { KeyAscii = KeyAscii == u'a' ? i16 { 0 } : KeyAscii; };
    Native.TypeAll(u"ab");
    EXPECT_EQ(Box.Text(), u"b");
    Events.onKeyDown = [](i16& KeyCode) { KeyCode = 0; };
    EXPECT_EQ(Native.Press(Keys::Delete), 0);
    Native.TypeAll(u"c");
    EXPECT_EQ(Box.Text(), u"b");
}

TEST_F(TextBoxInputTest, AnArrowThatLeavesIsTold)
{
    Box.SetText(u"ab");
    Native.Press(Keys::Left);
    EXPECT_EQ(Events.log, (Names { "KeyDown 37 0", "KeyArrowMove 37" }));
    Events.onKeyArrowMove = [](i16& KeyCode) { KeyCode = 0; };
    EXPECT_EQ(Native.Press(Keys::Left), 0);
}

TEST_F(TextBoxInputTest, ALockedTextCannotBeChangedByItsUser)
{
    Box.SetMask(u"000");
    Box.SetText(u"123");
    Box.SetLocked(true);
    Native.SetSelStart(1);
    Forget();
    EXPECT_EQ(Native.Type(u'9'), 0);
    EXPECT_EQ(Native.Type(Keys::Backspace), 0);
    EXPECT_EQ(Native.Press(Keys::Delete), 0);
    EXPECT_EQ(Native.Text(), u"123");
    EXPECT_EQ(Box.Text(), u"123");
    EXPECT_EQ(Count("Change"), 0);
    EXPECT_EQ(Count("KeyPress 57"), 1) << "the host hears of it";
    // Copying is left to the box, and the host may write.
    auto copy = i16 { 3 };
    Box.Listener().KeyPress(copy, Shifts::Ctrl);
    EXPECT_EQ(copy, 3);
    Box.SetText(u"456");
    EXPECT_EQ(Box.Text(), u"456");
    Box.SetLocked(false);
    Native.SetSelStart(0);
    Native.TypeAll(u"7");
    EXPECT_EQ(Box.Text(), u"756");
}

TEST_F(TextBoxInputTest, TheFocusEnablesTheBoxAndIsGivenToIt)
{
    Window.isEnabled = false;
    Box.EnterFocus();
    EXPECT_TRUE(Window.isEnabled);
    EXPECT_EQ(Window.focusCount, 1);
    EXPECT_THAT(Site.reports, testing::IsEmpty());
}

TEST_F(TextBoxInputTest, AHiddenBoxGetsNoFocus)
{
    Window.isVisible = false;
    Window.isEnabled = false;
    Box.EnterFocus();
    EXPECT_FALSE(Window.isEnabled);
    EXPECT_EQ(Window.focusCount, 0);
}

TEST_F(TextBoxInputTest, TheFocusIsGivenOnceWhereTheWindowTellsOfIt)
{
    Window.onFocus = [&] { Box.EnterFocus(); };
    Box.EnterFocus();
    EXPECT_EQ(Window.focusCount, 1);
    Box.EnterFocus();
    EXPECT_EQ(Window.focusCount, 2);
}

TEST_F(TextBoxInputTest, AHandlerMayMakeTheBoxNewInsideAnyEvent)
{
    for (const char* const event : { "KeyDown", "KeyPress", "Change", "KeyArrowMove", "Resize" }) {
        Grow();
        Box.SetMask(u"0000000000000");
        Box.SetText(u"12");
        Native.SetSelStart(0);
        Events.onAny = [&](const std::string& name) {
            if (name != event)
                return;
            Events.onAny = nullptr;
            Box.InitProperties();
        };
        Native.Press(Keys::Left);
        Native.TypeAll(u"7");
        EXPECT_EQ(Events.onAny, nullptr) << event;
        Events.onAny = nullptr;
        EXPECT_EQ(Box.Mask(), u"") << event;
    }
}

TEST_F(TextBoxInputTest, AHandlerMayTakeTheListenerAway)
{
    Events.onKeyDown = [&](i16&) { Native.Listen(nullptr); };
    i16 key = Keys::Delete;
    i16 shift = 0;
    Box.Listener().KeyDown(key, shift);
    Events.onKeyDown = nullptr;
    Native.Listen(&Box.Listener());
    Native.TypeAll(u"a");
    EXPECT_EQ(Box.Text(), u"a");
}

} // namespace
