#include "textbox/mask_engine_fixture.h"

using namespace vornix;
using namespace std::string_literals;

namespace {

class MaskEngineChangesTest : public MaskEngineTest { };

TEST_F(MaskEngineChangesTest, APastedTextIsShapedAndARefusedCharacterKept)
{
    Mask(u"0000");
    Box.Paste(u"12x4");
    EXPECT_EQ(Box.Text(), u"12_4");
    EXPECT_EQ(Engine.Text(), u"12x4");
    EXPECT_EQ(Engine.TextInput(), u"124");
    EXPECT_EQ(Box.SelStart(), 4);
    EXPECT_THAT(Owner.log, testing::ElementsAre("FlattenBorder", "Change", "SizeToText"));
}

TEST_F(MaskEngineChangesTest, APastePushesTheRestOverTheEnd)
{
    Mask(u"0000");
    Engine.SetText(u"1234");
    Box.SetSelStart(1);
    Box.Paste(u"99");
    EXPECT_EQ(Box.Text(), u"1992");
    EXPECT_EQ(Box.SelStart(), 3);
}

TEST_F(MaskEngineChangesTest, TheWholeTextOfTheBoxIsShapedWithItsLiterals)
{
    Engine.SetIncludeLiteral(true);
    Mask(u"(00)");
    Box.Select(1, 2);
    Box.Paste(u"12");
    EXPECT_EQ(Box.Text(), u"(12)");
    // Without literals in the value, the ones that are there count as entered.
    Engine.SetIncludeLiteral(false);
    Mask(u"(00)");
    Box.Select(1, 2);
    Box.Paste(u"12");
    EXPECT_EQ(Box.Text(), u"(_1)");
    EXPECT_EQ(Engine.Text(), u"(1");
}

TEST_F(MaskEngineChangesTest, APasteIsForeignWhateverKeyCameBefore)
{
    Mask(u"0000");
    Box.TypeAll(u"1");
    Box.Paste(u"xx");
    EXPECT_EQ(Box.Text(), u"1___");
    Box.Press(Keys::Right);
    Box.Paste(u"y");
    EXPECT_EQ(Box.Text().size(), 4u);
}

TEST_F(MaskEngineChangesTest, PastingByKeyIsForeignAndTheKeyIsLetThrough)
{
    Mask(u"0000");
    Box.TypeAll(u"1");
    Box.PasteByKey(u"2x345");
    EXPECT_EQ(Box.Text(), u"12_3");
    EXPECT_EQ(Engine.Text(), u"12x3");
}

TEST_F(MaskEngineChangesTest, ABoxThatCannotTellAPasteByCtrlFromAKeyIsUnderstood)
{
    Mask(u"00");
    Box.TypeAll(u"1");
    i16 key = 86;
    Engine.KeyDown(key, Shifts::Ctrl);
    Box.SetTellsWrites(false);
    Box.SetText(u"1xyz");
    Engine.BoxChanged(ChangeOrigin::Key);
    EXPECT_EQ(Box.Text(), u"1_");
}

TEST_F(MaskEngineChangesTest, AKeyAnswersForOneChange)
{
    Mask(u"00");
    Box.SetTellsWrites(false);
    // No key came before.
    Box.SetText(u"xyz");
    Engine.BoxChanged(ChangeOrigin::Key);
    EXPECT_EQ(Box.Text(), u"__");
    i16 key = 65;
    Engine.KeyDown(key, Shifts::Shift);
    Box.SetText(u"xyz");
    Engine.BoxChanged(ChangeOrigin::Key);
    EXPECT_EQ(Box.Text(), u"xyz");
    Engine.BoxChanged(ChangeOrigin::Key);
    EXPECT_EQ(Box.Text(), u"__");
}

TEST_F(MaskEngineChangesTest, PastingByShiftAndInsertIsForeign)
{
    Mask(u"0000");
    Box.TypeAll(u"1");
    Box.PasteByInsert(u"2x345");
    EXPECT_EQ(Box.Text(), u"12_3");
    // Without Shift the key pastes nothing, and what changes is its own.
    i16 key = Keys::Insert;
    Engine.KeyDown(key, Shifts::None);
    Box.SetTellsWrites(false);
    Box.SetText(u"abcd");
    Engine.BoxChanged(ChangeOrigin::Key);
    EXPECT_EQ(Box.Text(), u"abcd");
}

TEST_F(MaskEngineChangesTest, UndoingByAltAndBackspaceIsForeign)
{
    Mask(u"00");
    Box.TypeAll(u"12");
    Box.UndoByKey(u"x1y");
    EXPECT_EQ(Box.Text(), u"_1");
    EXPECT_EQ(Engine.Text(), u"x1");
}

TEST_F(MaskEngineChangesTest, ErasingAWordIsForeign)
{
    for (const char16_t code : { u'\b', u'\x7F' }) {
        Mask(u"999");
        Engine.SetText(u"1 2");
        Box.SetSelStart(2);
        Box.BackspaceWord(code);
        EXPECT_EQ(Box.Text(), u"2__");
        EXPECT_EQ(Engine.TextInput(), u"2");
        EXPECT_EQ(Box.SelStart(), 0);
    }
}

TEST_F(MaskEngineChangesTest, ACharacterThatTheHostTookIsAKeyStill)
{
    Mask(u"00");
    Owner.onKeyPress = [](i16& KeyAscii) { KeyAscii = 0; };
    Box.Type(u'1');
    Box.SetTellsWrites(false);
    Box.SetText(u"xy");
    Engine.BoxChanged(ChangeOrigin::Key);
    EXPECT_EQ(Box.Text(), u"xy");
    i16 character = 0;
    Engine.KeyPress(character, Shifts::Ctrl);
    Engine.BoxChanged(ChangeOrigin::Key);
    EXPECT_EQ(Box.Text(), u"__");
}

TEST_F(MaskEngineChangesTest, ADropIsForeign)
{
    Mask(u"LL-LL");
    Engine.SetIncludeLiteral(true);
    Engine.SetText(u"ab-cd");
    Box.Drop(u"1", 0);
    // The letter at the literal's place is overwritten, and the literal that was pushed on is refused.
    EXPECT_EQ(Box.Text(), u"_a-_c");
    EXPECT_EQ(Engine.Text(), u"1a--c");
    EXPECT_EQ(Box.SelStart(), 1);
}

TEST_F(MaskEngineChangesTest, WhatIsCutGoesThroughTheMaskToo)
{
    Mask(u"0000");
    Engine.SetText(u"1234");
    Box.Select(1, 2);
    Box.CutByKey();
    EXPECT_EQ(Box.Text(), u"14__");
    EXPECT_EQ(Engine.TextInput(), u"14");
    EXPECT_EQ(Box.SelStart(), 1);
}

TEST_F(MaskEngineChangesTest, CuttingEverythingKeepsTheValue)
{
    Mask(u"00");
    Engine.SetText(u"12");
    Box.Select(0, 2);
    Box.CutByKey();
    EXPECT_EQ(Box.Text(), u"__");
    EXPECT_EQ(Engine.Text(), u"12");
    EXPECT_EQ(Engine.TextInput(), u"");
}

TEST_F(MaskEngineChangesTest, ForeignCharactersAreNotChangedInCase)
{
    Mask(u">LL");
    Box.Paste(u"ab");
    EXPECT_EQ(Box.Text(), u"ab");
}

TEST_F(MaskEngineChangesTest, SelTextIsAForeignChange)
{
    for (const bool tells : { false, true }) {
        Box.SetTellsWrites(tells);
        Mask(u"0000");
        Engine.SetText(u"1234");
        Box.TypeAll(u"1");
        Box.Select(1, 1);
        Forget();
        Engine.SetSelText(u"x9");
        EXPECT_EQ(Box.Text(), u"1_93");
        EXPECT_EQ(Engine.Text(), u"1x93");
        EXPECT_EQ(Box.SelStart(), 3);
        EXPECT_THAT(Owner.log, testing::ElementsAre("FlattenBorder", "Change", "SizeToText"));
    }
}

TEST_F(MaskEngineChangesTest, SelTextWithoutAMaskGoesIntoTheBox)
{
    for (const bool tells : { false, true }) {
        Box.SetTellsWrites(tells);
        Engine.SetText(u"abc");
        Box.Select(1, 1);
        Forget();
        Engine.SetSelText(u"xy");
        EXPECT_EQ(Box.Text(), u"axyc");
        EXPECT_THAT(Owner.log, testing::ElementsAre("Change", "SizeToText"));
        Forget();
        Engine.SetSelText(u"");
        EXPECT_THAT(Owner.log, testing::IsEmpty());
    }
}

TEST_F(MaskEngineChangesTest, EveryWritingOfSelTextIsAChangeButNothingForNothing)
{
    Engine.SetText(u"abc");
    Box.Select(1, 1);
    Forget();
    Engine.SetSelText(u"b");
    EXPECT_THAT(Owner.log, testing::ElementsAre("Change", "SizeToText"));
    EXPECT_EQ(Box.SelStart(), 2);
    Forget();
    Engine.SetSelText(u"");
    EXPECT_THAT(Owner.log, testing::IsEmpty());
    // The form is shaped anew: literals count as entered.
    Mask(u"-0");
    Box.Select(0, 1);
    Engine.SetSelText(u"-");
    EXPECT_THAT(Owner.log, testing::ElementsAre("FlattenBorder", "Change", "SizeToText"));
    EXPECT_EQ(Engine.Text(), u"-");
}

TEST_F(MaskEngineChangesTest, ABoxMayTellOfTheEnginesWritesOrNot)
{
    for (const bool tells : { false, true }) {
        Box.SetTellsWrites(tells);
        Mask(u"(00)");
        Engine.SetText(u"1");
        Box.SetSelStart(2);
        Box.TypeAll(u"2");
        Box.Backspace();
        Box.Press(Keys::Delete);
        // The texts "(12)" and "(1_)"; the first Change of the second round finds the text of the last one.
        EXPECT_EQ(Count("Change"), 2) << tells;
    }
}

TEST_F(MaskEngineChangesTest, ATextThatTheMaskMakesEqualAgainIsNotTold)
{
    Mask(u"00");
    Box.TypeAll(u"12");
    Forget();
    Box.Paste(u"34");
    EXPECT_EQ(Box.Text(), u"12");
    EXPECT_EQ(Count("Change"), 0);
    EXPECT_EQ(Count("SizeToText"), 1);
}

TEST_F(MaskEngineChangesTest, WithoutAMaskEveryChangeIsTold)
{
    Box.Paste(u"a");
    Box.Select(0, 1);
    Box.Paste(u"a");
    EXPECT_THAT(Owner.log, testing::ElementsAre("Change", "SizeToText", "Change", "SizeToText"));
}

TEST_F(MaskEngineChangesTest, AHostThatWritesSelTextInChangeEnds)
{
    Mask(u"0000");
    Owner.onChange = [&] {
        Box.Select(0, 1);
        Engine.SetSelText(u"7");
    };
    Box.TypeAll(u"1");
    EXPECT_EQ(Box.Text(), u"7___");
    EXPECT_EQ(Count("Change"), 2);
}

TEST_F(MaskEngineChangesTest, AHostThatAssignsTheTextInChangeHasTheLastWord)
{
    Mask(u"0000");
    Owner.onChange = [&] { Engine.SetText(u"42"); };
    Box.Paste(u"1");
    EXPECT_EQ(Box.Text(), u"42__");
    EXPECT_EQ(Engine.TextInput(), u"42");
    EXPECT_EQ(Count("Change"), 1);
}

TEST_F(MaskEngineChangesTest, TakingTheBorderOffMayComeBackIntoTheEngine)
{
    Mask(u"(00)");
    Engine.SetText(u"12");
    Box.SetSelStart(2);
    Owner.onFlattenBorder = [&] {
        Owner.onFlattenBorder = nullptr;
        Engine.SetMask(u"000");
    };
    Engine.SetText(u"345");
    EXPECT_EQ(Box.Text(), u"345");
    EXPECT_EQ(Box.SelStart(), 2);
    // The positions that the committed values belong to are gone when Escape comes to them.
    Owner.onFlattenBorder = [&] {
        Owner.onFlattenBorder = nullptr;
        Engine.SetMask(u"0");
    };
    Box.Press(Keys::Escape);
    EXPECT_EQ(Box.Text(), u"3");
    EXPECT_EQ(Engine.Text(), u"3");
}

} // namespace
