#include "textbox/mask_engine_fixture.h"

using namespace vornix;
using namespace std::string_literals;

namespace {

class MaskEngineKeysTest : public MaskEngineTest {
protected:
    bool Leaves(int key, int caret, i16 shift = 0)
    {
        Box.SetSelStart(caret);
        Forget();
        Box.Press(static_cast<i16>(key), shift);
        return Count("KeyArrowMove " + std::to_string(key)) == 1;
    }
};

TEST_F(MaskEngineKeysTest, RightAndLeftLeaveAtTheEnds)
{
    Engine.SetText(u"abc");
    EXPECT_TRUE(Leaves(Keys::Right, 3));
    EXPECT_FALSE(Leaves(Keys::Right, 2));
    EXPECT_FALSE(Leaves(Keys::Right, 0));
    EXPECT_TRUE(Leaves(Keys::Left, 0));
    EXPECT_FALSE(Leaves(Keys::Left, 1));
    EXPECT_FALSE(Leaves(Keys::Left, 3));
}

TEST_F(MaskEngineKeysTest, InAnEmptyBoxEveryArrowLeaves)
{
    for (const int key : { Keys::Left, Keys::Up, Keys::Right, Keys::Down })
        EXPECT_TRUE(Leaves(key, 0)) << key;
}

TEST_F(MaskEngineKeysTest, InOneLineUpAndDownLeaveFromEverywhere)
{
    Engine.SetText(u"abc");
    for (int caret = 0; caret <= 3; ++caret) {
        EXPECT_TRUE(Leaves(Keys::Up, caret)) << caret;
        EXPECT_TRUE(Leaves(Keys::Down, caret)) << caret;
    }
}

TEST_F(MaskEngineKeysTest, InSeveralLinesUpLeavesFromTheFirstAndDownFromTheLast)
{
    Engine.SetMultiLine(true);
    // Lines at 0 .. 2, 4 .. 6 and 8 .. 10.
    Engine.SetText(u"ab\r\ncd\r\nef");
    for (const int caret : { 0, 1, 2 }) {
        EXPECT_TRUE(Leaves(Keys::Up, caret)) << caret;
        EXPECT_FALSE(Leaves(Keys::Down, caret)) << caret;
    }
    for (const int caret : { 4, 5, 6 }) {
        EXPECT_FALSE(Leaves(Keys::Up, caret)) << caret;
        EXPECT_FALSE(Leaves(Keys::Down, caret)) << caret;
    }
    for (const int caret : { 8, 9, 10 }) {
        EXPECT_FALSE(Leaves(Keys::Up, caret)) << caret;
        EXPECT_TRUE(Leaves(Keys::Down, caret)) << caret;
    }
}

TEST_F(MaskEngineKeysTest, ALoneFeedOrReturnEndsNoLine)
{
    Engine.SetText(u"a\nb\rc");
    EXPECT_TRUE(Leaves(Keys::Up, 5));
    EXPECT_TRUE(Leaves(Keys::Down, 0));
}

TEST_F(MaskEngineKeysTest, AnEmptyLastLineIsALine)
{
    Engine.SetText(u"a\r\n");
    EXPECT_FALSE(Leaves(Keys::Down, 1));
    EXPECT_TRUE(Leaves(Keys::Down, 3));
    EXPECT_FALSE(Leaves(Keys::Up, 3));
}

TEST_F(MaskEngineKeysTest, ArrowsLeaveAFormToo)
{
    Mask(u"(00)");
    EXPECT_TRUE(Leaves(Keys::Left, 0));
    EXPECT_FALSE(Leaves(Keys::Left, 1));
    EXPECT_TRUE(Leaves(Keys::Right, 4));
    EXPECT_FALSE(Leaves(Keys::Right, 3));
    EXPECT_TRUE(Leaves(Keys::Up, 2));
    EXPECT_TRUE(Leaves(Keys::Down, 2));
    Engine.SetNumericOnly(true);
    EXPECT_TRUE(Leaves(Keys::Left, 0));
}

TEST_F(MaskEngineKeysTest, WithAShiftKeyOrASelectionNoArrowLeaves)
{
    Engine.SetText(u"abc");
    for (const i16 shift : std::initializer_list<i16> { 1, 2, 4, 3 }) {
        EXPECT_FALSE(Leaves(Keys::Left, 0, shift)) << shift;
        EXPECT_FALSE(Leaves(Keys::Up, 0, shift)) << shift;
    }
    Box.Select(0, 3);
    Forget();
    Box.Press(Keys::Up);
    Box.Select(0, 3);
    Box.Press(Keys::Left);
    EXPECT_THAT(Owner.log, testing::ElementsAre("KeyDown 38", "KeyDown 37"));
}

TEST_F(MaskEngineKeysTest, NoOtherKeyLeaves)
{
    Engine.SetText(u"");
    Forget();
    for (const i16 key : std::initializer_list<i16> { 8, 9, 13, 33, 34, 35, 36, 41, 45, 46, 112 })
        Box.Press(key);
    for (const std::string& entry : Owner.log)
        EXPECT_EQ(entry.substr(0, 8), "KeyDown ");
}

TEST_F(MaskEngineKeysTest, TheHostMayTakeTheArrowThatLeaves)
{
    Engine.SetText(u"abc");
    Owner.onKeyArrowMove = [](i16& KeyCode) { KeyCode = 0; };
    Box.SetSelStart(3);
    EXPECT_EQ(Box.Press(Keys::Right), 0);
    Owner.onKeyArrowMove = nullptr;
    EXPECT_EQ(Box.Press(Keys::Right), Keys::Right);
}

TEST_F(MaskEngineKeysTest, TheHostHasTheFirstWordOnKeyAndShift)
{
    Engine.SetText(u"abc");
    Owner.onKeyDown = [](i16& KeyCode, i16& Shift) {
        KeyCode = Keys::Left;
        Shift = 0;
    };
    Box.SetSelStart(0);
    Forget();
    Box.Press(Keys::Right, Shifts::Shift);
    EXPECT_THAT(Owner.log, testing::ElementsAre("KeyDown 39", "KeyArrowMove 37"));
    Owner.onKeyDown = [](i16&, i16& Shift) { Shift = Shifts::Ctrl; };
    EXPECT_FALSE(Leaves(Keys::Left, 0));
}

TEST_F(MaskEngineKeysTest, EscapeGoesBackToTheAssignedText)
{
    Engine.SetText(u"abc");
    Box.SetSelStart(3);
    Box.TypeAll(u"de");
    Forget();
    EXPECT_EQ(Box.Press(Keys::Escape), Keys::Escape);
    EXPECT_EQ(Box.Text(), u"abc");
    EXPECT_EQ(Box.SelStart(), 3);
    EXPECT_THAT(Owner.log, testing::ElementsAre("KeyDown 27", "FlattenBorder", "SizeToText"));
}

TEST_F(MaskEngineKeysTest, EscapeRestoresFormAndValuesWithLiteralsOnOrOff)
{
    for (const bool includeLiteral : { false, true }) {
        Engine.SetIncludeLiteral(includeLiteral);
        Mask(u"(00)-00");
        Engine.SetText(includeLiteral ? u"(12)-x" : u"12x");
        const std::u16string value = Engine.Text();
        ASSERT_EQ(Box.Text(), u"(12)-__");
        Box.SetSelStart(1);
        Box.TypeAll(u"9876");
        Box.Press(Keys::Escape);
        EXPECT_EQ(Box.Text(), u"(12)-__");
        EXPECT_EQ(Engine.Text(), value);
        EXPECT_EQ(Engine.TextInput(), u"12");
        EXPECT_EQ(Box.SelStart(), 7);
    }
}

TEST_F(MaskEngineKeysTest, EscapeRestoresTheValuesBehindAnEmptyAssignment)
{
    Mask(u"00");
    Engine.SetText(u"12");
    Engine.SetText(u"");
    Box.TypeAll(u"98");
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"__");
    EXPECT_EQ(Engine.Text(), u"12");
}

TEST_F(MaskEngineKeysTest, EscapeWithoutAnAssignmentEmptiesTheForm)
{
    Mask(u"0-0");
    Box.TypeAll(u"12");
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"_-_");
    EXPECT_EQ(Engine.TextInput(), u"");
    EXPECT_EQ(Engine.Text(), u"\0\0"s);
}

TEST_F(MaskEngineKeysTest, EscapeShapesATextThatIsOlderThanTheMask)
{
    Engine.SetText(u"12");
    Mask(u"0-00");
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"1-2_");
    EXPECT_EQ(Engine.TextInput(), u"12");
}

TEST_F(MaskEngineKeysTest, EscapeKeepsLiteralsWhereTheyAreAfterTheMaskWasWrittenAgain)
{
    for (const bool includeLiteral : { false, true }) {
        Engine.SetIncludeLiteral(includeLiteral);
        Mask(u"(00)-00");
        Engine.SetText(includeLiteral ? u"(12)-34" : u"1234");
        Mask(u"(00)-00");
        ASSERT_EQ(Box.Text(), u"(__)-__");
        Box.Press(Keys::Escape);
        EXPECT_EQ(Box.Text(), u"(12)-34");
        EXPECT_EQ(Engine.TextInput(), u"1234");
    }
}

TEST_F(MaskEngineKeysTest, EscapePutsLiteralsIntoATextThatWasNoForm)
{
    Mask(u"0-0");
    Engine.SetText(u"12");
    Engine.SetMask(u"");
    Engine.SetText(u"34");
    Mask(u"0-0");
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"3-4");
}

TEST_F(MaskEngineKeysTest, EscapeBringsTheFormBackAsTextOnceTheMaskIsOff)
{
    Mask(u"0-0");
    Engine.SetText(u"12");
    Engine.SetMask(u"");
    Engine.SetSelStart(0);
    Box.TypeAll(u"xyz");
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"1-2");
}

TEST_F(MaskEngineKeysTest, EscapeDoesNothingWithAShiftKeyOrASelection)
{
    Mask(u"00");
    Engine.SetText(u"12");
    Box.SetSelStart(0);
    Box.TypeAll(u"9");
    Box.Press(Keys::Escape, Shifts::Shift);
    EXPECT_EQ(Box.Text(), u"92");
    Box.Select(0, 1);
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"92");
    EXPECT_EQ(Box.SelLength(), 1);
}

TEST_F(MaskEngineKeysTest, EscapeIsNotTypedIntoAPlaceForAnything)
{
    Mask(u"&&");
    Engine.SetText(u"ab");
    Box.SetSelStart(0);
    Box.Type(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"ab");
    EXPECT_EQ(Engine.Text(), u"ab");
}

TEST_F(MaskEngineKeysTest, EscapeRaisesNoChangeAndTheNextTypedTextIsTold)
{
    Mask(u"00");
    Engine.SetText(u"12");
    Box.SetSelStart(0);
    Box.TypeAll(u"9");
    Forget();
    Box.Press(Keys::Escape);
    EXPECT_EQ(Count("Change"), 0);
    Box.SetSelStart(0);
    Box.TypeAll(u"8");
    EXPECT_EQ(Count("Change"), 1);
}

} // namespace
