#include "textbox/mask_engine_fixture.h"

using namespace vornix;
using namespace std::string_literals;

namespace {

class MaskEngineEraseTest : public MaskEngineTest {
protected:
    void Form(std::u16string_view mask, std::u16string_view text)
    {
        Engine.SetMask(mask);
        Engine.SetText(text);
        Forget();
    }
};

TEST_F(MaskEngineEraseTest, DeleteBlanksThePlaceAtTheCaretAndStepsOn)
{
    Form(u"000", u"123");
    Box.SetSelStart(1);
    EXPECT_EQ(Box.Press(Keys::Delete), 0);
    EXPECT_EQ(Box.Text(), u"1_3");
    EXPECT_EQ(Engine.Text(), u"1\0"s + u"3");
    EXPECT_EQ(Engine.TextInput(), u"13");
    EXPECT_EQ(Box.SelStart(), 2);
}

TEST_F(MaskEngineEraseTest, BackspaceBlanksThePlaceBeforeTheCaretAndStepsBack)
{
    Form(u"000", u"123");
    Box.SetSelStart(2);
    Box.Backspace();
    EXPECT_EQ(Box.Text(), u"1_3");
    EXPECT_EQ(Engine.TextInput(), u"13");
    EXPECT_EQ(Box.SelStart(), 1);
}

TEST_F(MaskEngineEraseTest, TheCaretWalksOverLiteralsInBothDirections)
{
    Form(u"0-(0)", u"12");
    for (int step = 0; step < 5; ++step) {
        EXPECT_EQ(Box.SelStart(), step);
        Box.Press(Keys::Delete);
    }
    EXPECT_EQ(Box.Text(), u"_-(_)");
    EXPECT_EQ(Box.SelStart(), 5);
    Engine.SetText(u"12");
    Box.SetSelStart(5);
    for (int step = 5; step > 0; --step) {
        EXPECT_EQ(Box.SelStart(), step);
        Box.Backspace();
    }
    EXPECT_EQ(Box.Text(), u"_-(_)");
    EXPECT_EQ(Engine.TextInput(), u"");
    EXPECT_EQ(Box.SelStart(), 0);
}

TEST_F(MaskEngineEraseTest, AtTheEdgesNothingHappens)
{
    Form(u"00", u"12");
    Box.SetSelStart(2);
    EXPECT_EQ(Box.Press(Keys::Delete), Keys::Delete);
    EXPECT_EQ(Box.Text(), u"12");
    EXPECT_EQ(Box.SelStart(), 2);
    Box.SetSelStart(0);
    Forget();
    EXPECT_EQ(Box.Type(8), 8);
    EXPECT_EQ(Box.Text(), u"12");
    EXPECT_EQ(Box.SelStart(), 0);
    // Not even KeyArrowMove.
    EXPECT_THAT(Owner.log, testing::ElementsAre("KeyDown 8", "KeyPress 8"));
}

TEST_F(MaskEngineEraseTest, BothKeysBlankASelectionAndGoToItsStart)
{
    for (const bool forward : { true, false }) {
        Form(u"00-00", u"1234");
        Box.Select(1, 3);
        if (forward)
            EXPECT_EQ(Box.Press(Keys::Delete), 0);
        else
            EXPECT_EQ(Box.Type(8), 0);
        EXPECT_EQ(Box.Text(), u"1_-_4");
        // Here the values go too.
        EXPECT_EQ(Engine.Text(), u"1\0\0"s + u"4");
        EXPECT_EQ(Box.SelStart(), 1);
        EXPECT_EQ(Box.SelLength(), 0);
    }
}

TEST_F(MaskEngineEraseTest, DeleteAsTheFirstKeyIsNoForeignChange)
{
    // With its literals put in once more the form would read "(_2)".
    Form(u"(00)", u"12");
    Box.SetSelStart(1);
    Box.Press(Keys::Delete);
    EXPECT_EQ(Box.Text(), u"(_2)");
    EXPECT_EQ(Engine.Text(), u"\0"s + u"2");
    EXPECT_THAT(Owner.log, testing::ElementsAre("KeyDown 46", "Change", "SizeToText"));
}

TEST_F(MaskEngineEraseTest, ASelectionErasedAsTheFirstKeyIsNoForeignChange)
{
    Form(u"(00)", u"12");
    Box.Select(1, 1);
    Box.Press(Keys::Delete);
    EXPECT_EQ(Box.Text(), u"(_2)");
    EXPECT_EQ(Engine.Text(), u"\0"s + u"2");
}

TEST_F(MaskEngineEraseTest, ErasingTellsOnceOfEachNewText)
{
    Form(u"000", u"123");
    Box.SetSelStart(3);
    Box.Backspace();
    EXPECT_THAT(Owner.log, testing::ElementsAre("KeyDown 8", "KeyPress 8", "Change", "SizeToText"));
    Box.SetSelStart(3);
    Forget();
    // The place is blank already, and the host knows.
    Box.Backspace();
    EXPECT_EQ(Count("Change"), 0);
    EXPECT_EQ(Box.SelStart(), 2);
}

TEST_F(MaskEngineEraseTest, ErasingTakesARefusedCharacterThatWasKept)
{
    Form(u"00", u"x1");
    ASSERT_EQ(Engine.Text(), u"x1");
    Box.Press(Keys::Delete);
    EXPECT_EQ(Box.Text(), u"_1");
    EXPECT_EQ(Engine.Text(), u"\0"s + u"1");
    EXPECT_EQ(Count("Change"), 1);
}

TEST_F(MaskEngineEraseTest, DeleteErasesWhateverIsHeldWithIt)
{
    for (const int shift : { Shifts::Shift, Shifts::Ctrl, Shifts::Alt }) {
        Form(u"00", u"12");
        Box.SetSelStart(0);
        EXPECT_EQ(Box.Press(Keys::Delete, static_cast<i16>(shift)), 0);
        EXPECT_EQ(Box.Text(), u"_2");
    }
}

TEST_F(MaskEngineEraseTest, WithoutAMaskTheKeysAreTheBoxs)
{
    Engine.SetText(u"abc");
    Box.SetSelStart(1);
    EXPECT_EQ(Box.Press(Keys::Delete), Keys::Delete);
    EXPECT_EQ(Box.Text(), u"ac");
    Box.Backspace();
    EXPECT_EQ(Box.Text(), u"c");
    Box.Select(0, 1);
    Box.Press(Keys::Delete);
    EXPECT_EQ(Box.Text(), u"");
    EXPECT_EQ(Count("Change"), 3);
}

TEST_F(MaskEngineEraseTest, AHostThatTakesTheKeyKeepsTheText)
{
    Form(u"00", u"12");
    Owner.onKeyDown = [](i16& KeyCode, i16&) { KeyCode = 0; };
    EXPECT_EQ(Box.Press(Keys::Delete), 0);
    EXPECT_EQ(Box.Text(), u"12");
    EXPECT_EQ(Box.SelStart(), 0);
}

TEST_F(MaskEngineEraseTest, WhatWasSelectedBehindTheFormGoes)
{
    Engine.SetMultiLine(true);
    Form(u"00", u"12");
    Box.SetSelStart(2);
    Box.Type(Keys::Enter);
    ASSERT_EQ(Box.Text(), u"12\r\n");
    Box.Select(1, 3);
    Box.Press(Keys::Delete);
    EXPECT_EQ(Box.Text(), u"1_");
    EXPECT_EQ(Box.SelStart(), 1);
}

TEST_F(MaskEngineEraseTest, ABoxThatLostItsFormGetsItBack)
{
    Form(u"00-00", u"1234");
    Engine.SetNumericOnly(false);
    ASSERT_EQ(Box.Text(), u"");
    Box.Press(Keys::Delete);
    EXPECT_EQ(Box.Text(), u"__-__");
    Engine.SetNumericOnly(false);
    Box.TypeAll(u"9");
    EXPECT_EQ(Box.Text(), u"9_-__");
}

} // namespace
