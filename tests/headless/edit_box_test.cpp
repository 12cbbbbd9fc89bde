#include "vornix/headless_edit_box.h"

#include "headless/recording_listeners.h"
#include "virtual_keys.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

class EditBoxTest : public testing::Test {
protected:
    EditBoxTest()
    {
        box.Listen(&listener);
        box.Move({ 0, 0, 120, 21 });
        box.Show(true);
    }
    i16 Down(i16 code, i16 shift = 0)
    {
        box.KeyDown(code, shift);
        return code;
    }
    i16 Character(char16_t character, i16 shift = 0)
    {
        auto code = static_cast<i16>(character);
        box.KeyPress(code, shift);
        return code;
    }

    std::u16string clipboard;
    HeadlessEditBox box { { clipboard, 1, SystemColors(), std::make_shared<const FontObject>() } };
    RecordingEditListener listener;
};

TEST_F(EditBoxTest, TheListenerHearsOfAKeyBeforeTheBoxActs)
{
    box.SetText(u"ab");
    listener.onKeyDown = [&](i16&, i16&) { EXPECT_EQ(box.Text(), u"ab"); };
    Down(DeleteKey);
    EXPECT_EQ(box.Text(), u"b");
    EXPECT_EQ(listener.Said(), (Lines { "KeyDown 46 0", "TextChanged key" }));
    listener.onKeyPress = [&](i16&, i16) { EXPECT_EQ(box.Text(), u"b"); };
    Character(u'x', ShiftDown);
    EXPECT_EQ(box.Text(), u"xb");
    EXPECT_EQ(listener.Said(), (Lines { "KeyPress 120 1", "TextChanged key" }));
    i16 code = 46;
    i16 shift = 0;
    box.KeyUp(code, shift);
    EXPECT_EQ(listener.Said(), Lines { "KeyUp 46 0" });
}

TEST_F(EditBoxTest, WhatTheListenerTakesIsNotForTheBox)
{
    box.SetText(u"ab");
    listener.onKeyDown = [](i16& code, i16&) { code = 0; };
    listener.onKeyPress = [](i16& character, i16) { character = 0; };
    EXPECT_EQ(Down(DeleteKey), 0);
    EXPECT_EQ(Character(u'x'), 0);
    EXPECT_EQ(box.Text(), u"ab");
    EXPECT_EQ(listener.Said(), (Lines { "KeyDown 46 0", "KeyPress 120 0" }));
}

TEST_F(EditBoxTest, AnotherCharacterOfTheListenersIsTyped)
{
    listener.onKeyPress = [](i16& character, i16) { character = u'y'; };
    EXPECT_EQ(Character(u'x'), u'y');
    EXPECT_EQ(box.Text(), u"y");
}

TEST_F(EditBoxTest, CuttingAndPastingAreForeign)
{
    box.SetText(u"abc");
    box.SetSelLength(2);
    Character(24, CtrlDown);
    EXPECT_EQ(listener.Said(), (Lines { "KeyPress 24 2", "TextChanged foreign" }));
    Character(22, CtrlDown);
    EXPECT_EQ(listener.Said(), (Lines { "KeyPress 22 2", "TextChanged foreign" }));
    EXPECT_EQ(box.Text(), u"abc");
    box.Paste(u"12");
    EXPECT_EQ(box.Text(), u"ab12c");
    EXPECT_EQ(listener.Said(), Lines { "TextChanged foreign" });
    box.Paste(u"");
    EXPECT_EQ(listener.Said(), Lines {});
    box.Replace(u"other");
    EXPECT_EQ(box.Text(), u"other");
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(listener.Said(), Lines { "TextChanged foreign" });
}

TEST_F(EditBoxTest, SettersAreNotTold)
{
    box.SetText(u"abc");
    box.SetSelStart(1);
    box.SetSelLength(1);
    box.SetSelText(u"x");
    EXPECT_EQ(box.Text(), u"axc");
    EXPECT_EQ(listener.Said(), Lines {});
}

TEST_F(EditBoxTest, ABoxThatCannotBeUsedHasNoUser)
{
    for (const bool isHidden : { true, false }) {
        box.Show(!isHidden);
        box.SetEnabled(isHidden);
        EXPECT_EQ(Down(DeleteKey), DeleteKey);
        EXPECT_EQ(Character(u'x'), u'x');
        box.Paste(u"x");
    }
    EXPECT_EQ(box.Text(), u"");
    EXPECT_EQ(listener.Said(), Lines {});
}

TEST_F(EditBoxTest, TheListenerMayHideTheBoxAndLeave)
{
    box.SetText(u"ab");
    listener.onKeyDown = [&](i16&, i16&) {
        box.Show(false);
        box.Listen(nullptr);
    };
    Down(DeleteKey);
    EXPECT_EQ(box.Text(), u"ab") << "the key is for a box that shows";
    EXPECT_EQ(listener.Said(), Lines { "KeyDown 46 0" });
}

TEST_F(EditBoxTest, SettingsBindTheUser)
{
    Character(ReturnKey);
    EXPECT_EQ(box.Text(), u"");
    box.SetStyle({ .isMultiLine = true });
    Character(ReturnKey);
    EXPECT_EQ(box.Text(), u"\r\n");
    box.SetMaxLength(3);
    Character(u'a');
    Character(u'b');
    EXPECT_EQ(box.Text(), u"\r\na");
    box.SetLocked(true);
    Character(BackKey);
    EXPECT_EQ(box.Text(), u"\r\na");
    box.SetPasswordChar(u'*');
    box.SetSelStart(0);
    box.SetSelLength(3);
    Character(3, CtrlDown);
    EXPECT_EQ(clipboard, u"");
}

TEST_F(EditBoxTest, BehindSignsThereIsOneLine)
{
    box.SetPasswordChar(u'*');
    box.SetStyle({ .isMultiLine = true });
    Character(ReturnKey);
    EXPECT_EQ(box.Text(), u"");
    box.SetPasswordChar(0);
    Character(ReturnKey);
    EXPECT_EQ(box.Text(), u"\r\n");
    box.SetPasswordChar(u'*');
    Character(ReturnKey);
    EXPECT_EQ(box.Text(), u"\r\n");
}

TEST_F(EditBoxTest, ItTellsHowItLooks)
{
    EXPECT_FALSE(box.HasBorder());
    EXPECT_EQ(box.Style(), EditBoxStyle());
    box.SetBorder(true);
    box.SetStyle({ true, true, true });
    box.SetColors(1, 2);
    box.SetRightToLeft(true);
    box.SetToolTip(u"tip");
    box.SetPointer(99, nullptr);
    box.SetPasswordChar(u'#');
    FontObject font;
    font.Name = u"Serif";
    box.SetFont(font);
    EXPECT_TRUE(box.HasBorder());
    EXPECT_EQ(box.Style(), (EditBoxStyle { true, true, true }));
    EXPECT_EQ(box.ForeColor(), 1u);
    EXPECT_EQ(box.BackColor(), 2u);
    EXPECT_TRUE(box.IsRightToLeft());
    EXPECT_EQ(box.ToolTip(), u"tip");
    EXPECT_EQ(box.PointerShape(), 99);
    EXPECT_EQ(box.PasswordChar(), u'#');
    EXPECT_EQ(box.Font().Name, u"Serif");
    EXPECT_NE(box.Handle(), 0);
    ASSERT_NE(box.DrawingDevice(), nullptr);
    EXPECT_EQ(box.DrawingDevice(), box.DrawingDevice());
}

TEST_F(EditBoxTest, APressPutsTheCaretWhereItIs)
{
    box.SetText(u"iiiiiiii");
    box.MouseDown(1, 0, 500, 5);
    EXPECT_EQ(box.SelStart(), 8);
    box.MouseUp(1, 0, 500, 5);
    box.MouseDown(1, ShiftDown, -3, 5);
    EXPECT_EQ(box.SelLength(), 8);
    box.MouseUp(1, 0, -3, 5);
    box.MouseDown(2, 0, 500, 5);
    EXPECT_EQ(box.SelLength(), 8) << "another button";
    EXPECT_EQ(listener.Said(),
        (Lines { "MouseDown 1 0 500 5", "MouseUp 1 0 500 5", "MouseDown 1 1 -3 5", "MouseUp 1 0 -3 5",
            "MouseDown 2 0 500 5" }));
}

TEST_F(EditBoxTest, ADragSelectsAndADoubleClickSelectsAWord)
{
    box.SetText(u"one two");
    box.MouseDown(1, 0, 0, 5);
    box.MouseMove(1, 0, 500, 5);
    EXPECT_EQ(box.SelText(), u"one two");
    box.MouseUp(1, 0, 500, 5);
    box.MouseMove(0, 0, 0, 5);
    EXPECT_EQ(box.SelText(), u"one two");
    box.MouseDown(1, 0, 500, 5);
    box.MouseUp(1, 0, 500, 5);
    listener.Said();
    box.Click();
    box.DblClick();
    EXPECT_EQ(box.SelText(), u"two");
    EXPECT_EQ(listener.Said(), (Lines { "Click", "DblClick" }));
}

TEST_F(EditBoxTest, LinesAreFoundByTheirHeight)
{
    box.SetStyle({ .isMultiLine = true });
    box.SetText(u"one\r\ntwo\r\nthree");
    const auto click = [&](float x, float y) {
        box.MouseDown(1, 0, x, y);
        box.MouseUp(1, 0, x, y);
        return box.SelStart();
    };
    EXPECT_EQ(click(0, 2), 0);
    EXPECT_EQ(click(0, 1000), 10) << "below the text lies its last line";
    EXPECT_EQ(click(1000, 2), 3);
    box.SetStyle({ .isRightAligned = true, .isMultiLine = true });
    EXPECT_EQ(click(2, 2), 0) << "the text stands at the right";
    EXPECT_EQ(click(119, 2), 3);
}

} // namespace
} // namespace vornix
