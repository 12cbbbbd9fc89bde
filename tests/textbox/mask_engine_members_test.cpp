#include "textbox/mask_engine_fixture.h"

using namespace vornix;
using namespace std::string_literals;

namespace {

class MaskEngineMembersTest : public MaskEngineTest { };

TEST_F(MaskEngineMembersTest, StartsWithoutMaskAndWithTheUsualCharacters)
{
    EXPECT_EQ(Engine.Mask(), u"");
    EXPECT_EQ(Engine.Form().PositionCount(), 0);
    EXPECT_EQ(Engine.PromptChar(), u"_");
    EXPECT_EQ(Engine.ReplaceChar(), u"\0"s);
    EXPECT_FALSE(Engine.IncludeLiteral());
    EXPECT_FALSE(Engine.NumericOnly());
    EXPECT_FALSE(Engine.MultiLine());
    EXPECT_EQ(Engine.Text(), u"");
    EXPECT_EQ(Engine.TextInput(), u"");
    EXPECT_EQ(Engine.CommittedText(), u"");
}

TEST_F(MaskEngineMembersTest, PromptAndReplacementTakeTheFirstCharacterAndIgnoreNone)
{
    Engine.SetPromptChar(u"*#");
    Engine.SetReplaceChar(u"?!");
    Engine.SetPromptChar(u"");
    Engine.SetReplaceChar(u"");
    EXPECT_EQ(Engine.PromptChar(), u"*");
    EXPECT_EQ(Engine.ReplaceChar(), u"?");
    // A place holds one unit.
    Engine.SetPromptChar(u"\U0001F600");
    Engine.SetReplaceChar(u"\U0001F600");
    EXPECT_EQ(Engine.PromptChar(), u"*");
    EXPECT_EQ(Engine.ReplaceChar(), u"?");
}

TEST_F(MaskEngineMembersTest, InitializeMakesANewEngineOfIt)
{
    Engine.SetPromptChar(u"*");
    Engine.SetReplaceChar(u"?");
    Engine.SetIncludeLiteral(true);
    Engine.SetMultiLine(true);
    Mask(u"0-0");
    Engine.SetText(u"1-2");
    Box.Paste(u"3");
    Forget();
    Engine.Initialize();
    EXPECT_THAT(Owner.log, testing::IsEmpty());
    EXPECT_EQ(Box.Text(), u"");
    EXPECT_EQ(Engine.Mask(), u"");
    EXPECT_EQ(Engine.Form().PositionCount(), 0);
    EXPECT_EQ(Engine.PromptChar(), u"_");
    EXPECT_EQ(Engine.ReplaceChar(), u"\0"s);
    EXPECT_FALSE(Engine.IncludeLiteral());
    EXPECT_FALSE(Engine.MultiLine());
    EXPECT_EQ(Engine.CommittedText(), u"");
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"");
}

TEST_F(MaskEngineMembersTest, AMaskShowsItsEmptyFormWithoutAChange)
{
    Box.SetText(u"before");
    Forget();
    Engine.SetMask(u" (00) ");
    EXPECT_EQ(Engine.Mask(), u" (00) ");
    EXPECT_EQ(Box.Text(), u"(__)");
    EXPECT_EQ(Engine.Text(), u"\0\0"s);
    EXPECT_EQ(Engine.TextInput(), u"");
    EXPECT_THAT(Owner.log, testing::IsEmpty());
}

TEST_F(MaskEngineMembersTest, AMaskAloneDoesNotTouchTheBorder)
{
    Engine.SetMask(u"00");
    EXPECT_EQ(Count("FlattenBorder"), 0);
    Engine.SetText(u"1");
    EXPECT_EQ(Count("FlattenBorder"), 1);
}

TEST_F(MaskEngineMembersTest, TheEmptyMaskKeepsPositionsAndTextAndEndsTheForm)
{
    Mask(u"00-00");
    Engine.SetText(u"1234");
    Engine.SetMask(u"");
    EXPECT_EQ(Engine.Form().PositionCount(), 5);
    EXPECT_EQ(Box.Text(), u"12-34");
    // Both readings are the box's.
    EXPECT_EQ(Engine.Text(), u"12-34");
    EXPECT_EQ(Engine.TextInput(), u"12-34");
    Box.SetSelStart(2);
    Box.TypeAll(u"x");
    EXPECT_EQ(Box.Text(), u"12x-34");
}

TEST_F(MaskEngineMembersTest, AMaskOfBlanksTakesNothing)
{
    Engine.SetMask(u"  ");
    Box.TypeAll(u"1");
    Engine.SetText(u"12");
    EXPECT_EQ(Box.Text(), u"");
    EXPECT_EQ(Engine.Text(), u"");
}

TEST_F(MaskEngineMembersTest, ThePromptReachesTheFormWithTheNextMask)
{
    Mask(u"00");
    Engine.SetReplaceChar(u"?");
    Engine.SetPromptChar(u"*");
    EXPECT_EQ(Box.Text(), u"__");
    // What the form shows is not the prompt any more.
    EXPECT_EQ(Engine.Text(), u"__");
    EXPECT_EQ(Engine.TextInput(), u"__");
    Engine.SetMask(u"00");
    EXPECT_EQ(Box.Text(), u"**");
    EXPECT_EQ(Engine.Text(), u"??");
}

TEST_F(MaskEngineMembersTest, ARefusedCharacterShowsThePromptOfNow)
{
    Mask(u"00");
    Engine.SetPromptChar(u"*");
    Engine.SetText(u"x");
    EXPECT_EQ(Box.Text(), u"*_");
}

TEST_F(MaskEngineMembersTest, TextWithoutAMaskIsTheBoxs)
{
    Engine.SetText(u"any (text)");
    EXPECT_EQ(Box.Text(), u"any (text)");
    EXPECT_EQ(Engine.Text(), u"any (text)");
    EXPECT_EQ(Engine.TextInput(), u"any (text)");
    EXPECT_EQ(Engine.CommittedText(), u"any (text)");
    EXPECT_THAT(Owner.log, testing::ElementsAre("FlattenBorder"));
}

TEST_F(MaskEngineMembersTest, AnAssignedTextIsShapedWithoutAChange)
{
    Mask(u"(00) 00");
    Engine.SetText(u"123");
    EXPECT_EQ(Box.Text(), u"(12) 3_");
    EXPECT_EQ(Engine.CommittedText(), u"(12) 3_");
    EXPECT_THAT(Owner.log, testing::ElementsAre("FlattenBorder"));
}

TEST_F(MaskEngineMembersTest, AnAssignedTextKeepsTheCaretAsFarAsItReaches)
{
    Mask(u"00-00");
    Box.Select(3, 1);
    Engine.SetText(u"1234");
    EXPECT_EQ(Engine.SelStart(), 3);
    EXPECT_EQ(Engine.SelLength(), 0);
    Engine.SetMask(u"");
    Engine.SetText(u"ab");
    EXPECT_EQ(Engine.SelStart(), 2);
}

TEST_F(MaskEngineMembersTest, AssigningNothingShowsTheFormAndKeepsTheValue)
{
    Mask(u"00-00");
    Engine.SetText(u"1234");
    Engine.SetText(u"");
    EXPECT_EQ(Box.Text(), u"__-__");
    EXPECT_EQ(Engine.Text(), u"1234");
    EXPECT_EQ(Engine.TextInput(), u"");
    EXPECT_EQ(Engine.CommittedText(), u"__-__");
}

TEST_F(MaskEngineMembersTest, TooFewLiteralsAreOverwritten)
{
    Engine.SetIncludeLiteral(true);
    Mask(u"(00)-00");
    Engine.SetText(u"1234567");
    EXPECT_EQ(Box.Text(), u"(23)-67");
    EXPECT_EQ(Engine.Text(), u"(23)-67");
    EXPECT_EQ(Engine.TextInput(), u"2367");
}

TEST_F(MaskEngineMembersTest, LiteralsPushAnOverlongTextOverTheEnd)
{
    Mask(u"(00)-00");
    Engine.SetText(u"1234567");
    EXPECT_EQ(Box.Text(), u"(12)-34");
    EXPECT_EQ(Engine.Text(), u"1234");
}

TEST_F(MaskEngineMembersTest, AnAssignedTextIsNotChangedInCase)
{
    Mask(u">LL<LL");
    Engine.SetText(u"abCD");
    EXPECT_EQ(Box.Text(), u"abCD");
    EXPECT_EQ(Engine.Text(), u"abCD");
}

TEST_F(MaskEngineMembersTest, IncludeLiteralCountsAtTheMomentOfReading)
{
    Mask(u"00-00");
    Engine.SetText(u"1234");
    Engine.SetIncludeLiteral(true);
    EXPECT_EQ(Engine.Text(), u"12-34");
    EXPECT_EQ(Engine.TextInput(), u"1234");
    Engine.SetIncludeLiteral(false);
    EXPECT_EQ(Engine.Text(), u"1234");
}

TEST_F(MaskEngineMembersTest, ATextBeforeTheMaskGivesWayToTheForm)
{
    Engine.SetText(u"12");
    Engine.SetMask(u"0000");
    EXPECT_EQ(Box.Text(), u"____");
    EXPECT_EQ(Engine.TextInput(), u"");
}

TEST_F(MaskEngineMembersTest, SelectionIsTheBoxs)
{
    Engine.SetText(u"abcdef");
    Engine.SetSelStart(2);
    Engine.SetSelLength(3);
    EXPECT_EQ(Box.SelStart(), 2);
    EXPECT_EQ(Box.SelLength(), 3);
    EXPECT_EQ(Engine.SelStart(), 2);
    EXPECT_EQ(Engine.SelLength(), 3);
    EXPECT_EQ(Engine.SelText(), u"cde");
}

TEST_F(MaskEngineMembersTest, ATextMayBeReadBackIntoItself)
{
    Mask(u"0000");
    Engine.SetText(u"1234");
    Engine.SetMask(Engine.Mask());
    EXPECT_EQ(Engine.Mask(), u"0000");
    EXPECT_EQ(Box.Text(), u"____");
    Engine.SetText(Engine.CommittedText());
    EXPECT_EQ(Box.Text(), u"1234");
}

} // namespace
