#include "automation/comma_locale.h"
#include "textbox/mask_engine_fixture.h"

using namespace vornix;

namespace {

class MaskEngineNumbersTest : public MaskEngineTest {
protected:
    MaskEngineNumbersTest() { Engine.SetNumericOnly(true); }

    std::u16string After(std::u16string_view typed)
    {
        Engine.SetNumericOnly(true);
        Box.TypeAll(typed);
        return Box.Text();
    }
};

TEST_F(MaskEngineNumbersTest, TakesWhatKeepsTheTextANumber)
{
    EXPECT_EQ(After(u"1x2"), u"12");
    EXPECT_EQ(After(u"1.5"), u"1.5");
    EXPECT_EQ(After(u"1.5.2"), u"1.52");
    EXPECT_EQ(After(u"1,234"), u"1,234");
    EXPECT_EQ(After(u"12-"), u"12-");
    // A sign alone is no number yet.
    EXPECT_EQ(After(u"-1"), u"1");
}

TEST_F(MaskEngineNumbersTest, ASignGoesBeforeANumber)
{
    Box.TypeAll(u"12");
    Box.SetSelStart(0);
    EXPECT_EQ(Box.Type(u'-'), u'-');
    EXPECT_EQ(Box.Text(), u"-12");
    EXPECT_EQ(Box.Type(u'x'), 0);
}

TEST_F(MaskEngineNumbersTest, RefusesBackspaceAndLeavesDeleteToTheBox)
{
    Box.TypeAll(u"123");
    EXPECT_EQ(Box.Type(8), 0);
    EXPECT_EQ(Box.Text(), u"123");
    Box.Select(0, 2);
    EXPECT_EQ(Box.Type(8), 0);
    Box.Select(0, 2);
    EXPECT_EQ(Box.Press(Keys::Delete), Keys::Delete);
    EXPECT_EQ(Box.Text(), u"3");
}

TEST_F(MaskEngineNumbersTest, DoesNotLookAtTheSelection)
{
    Engine.SetText(u"abc");
    Box.Select(0, 3);
    // "5abc" is no number, though "5" would be left.
    EXPECT_EQ(Box.Type(u'5'), 0);
    EXPECT_EQ(Box.Text(), u"abc");
    Engine.SetText(u"12");
    Box.Select(0, 2);
    EXPECT_EQ(Box.Type(u'-'), u'-');
    EXPECT_EQ(Box.Text(), u"-");
}

TEST_F(MaskEngineNumbersTest, GoesByTheNumbersOfTheLocale)
{
    const CommaLocale locale;
    EXPECT_EQ(After(u"1,5,5"), u"1,5,5");
    Owner.locale = &locale;
    EXPECT_EQ(After(u"1,5,5"), u"1,55");
}

TEST_F(MaskEngineNumbersTest, EndsTheMaskAndTheSecondLine)
{
    Engine.SetMask(u"(00)");
    Engine.SetMultiLine(true);
    ASSERT_FALSE(Engine.NumericOnly());
    Forget();
    Engine.SetNumericOnly(true);
    EXPECT_EQ(Box.Text(), u"");
    EXPECT_EQ(Engine.Form().PositionCount(), 0);
    EXPECT_FALSE(Engine.MultiLine());
    EXPECT_THAT(Owner.log, testing::IsEmpty());
    // The mask is out of force, but still there to be read.
    EXPECT_EQ(Engine.Mask(), u"(00)");
    Box.TypeAll(u"12");
    EXPECT_EQ(Box.Text(), u"12");
    EXPECT_EQ(Engine.Text(), u"12");
    EXPECT_EQ(Engine.TextInput(), u"12");
    EXPECT_EQ(Count("Change"), 2);
}

TEST_F(MaskEngineNumbersTest, BothValuesEmptyTheBoxWithoutAChange)
{
    for (const bool value : { true, false }) {
        Engine.SetText(u"12");
        Forget();
        Engine.SetNumericOnly(value);
        EXPECT_EQ(Engine.NumericOnly(), value);
        EXPECT_EQ(Box.Text(), u"");
        EXPECT_THAT(Owner.log, testing::IsEmpty());
    }
}

TEST_F(MaskEngineNumbersTest, SwitchedOffItLeavesTheLinesAsTheyAre)
{
    Engine.SetMultiLine(true);
    Engine.SetNumericOnly(false);
    EXPECT_TRUE(Engine.MultiLine());
}

TEST_F(MaskEngineNumbersTest, AMaskSwitchesItOffAndNoMaskDoesNot)
{
    Engine.SetMask(u"");
    EXPECT_TRUE(Engine.NumericOnly());
    Engine.SetMask(u"LL");
    EXPECT_FALSE(Engine.NumericOnly());
    EXPECT_EQ(Box.Text(), u"__");
    Box.TypeAll(u"q");
    EXPECT_EQ(Box.Text(), u"q_");
}

TEST_F(MaskEngineNumbersTest, AMaskIsInForceAgainOnlyOnceItIsWritten)
{
    Engine.SetMask(u"00");
    Engine.SetNumericOnly(true);
    Engine.SetNumericOnly(false);
    Box.TypeAll(u"1");
    EXPECT_EQ(Box.Text(), u"");
    Engine.SetText(u"1");
    EXPECT_EQ(Box.Text(), u"");
    Engine.SetMask(u"00");
    Box.TypeAll(u"1");
    EXPECT_EQ(Box.Text(), u"1_");
}

TEST_F(MaskEngineNumbersTest, DoesNotLookAtTextsThatComeOtherwise)
{
    Engine.SetText(u"abc");
    EXPECT_EQ(Box.Text(), u"abc");
    Box.PasteByKey(u"x");
    EXPECT_EQ(Box.Text(), u"xabc");
    EXPECT_EQ(Count("Change"), 1);
}

TEST_F(MaskEngineNumbersTest, LetsEnterAndCtrlThrough)
{
    EXPECT_EQ(Box.Type(Keys::Enter), 0);
    Engine.SetMultiLine(true);
    EXPECT_EQ(Box.Type(Keys::Enter), Keys::Enter);
    EXPECT_EQ(Box.Type(3, Shifts::Ctrl), 3);
    i16 character = Keys::Backspace;
    Engine.KeyPress(character, Shifts::Ctrl);
    EXPECT_EQ(character, Keys::Backspace);
}

TEST_F(MaskEngineNumbersTest, TakesControlCharacters)
{
    EXPECT_EQ(Box.Type(9), 0);
    EXPECT_EQ(Box.Type(Keys::Escape), 0);
    EXPECT_EQ(Box.Text(), u"");
}

} // namespace
