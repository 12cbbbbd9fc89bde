#include "automation/case_mapping.h"
#include "textbox/mask_engine_fixture.h"

using namespace vornix;
using namespace std::string_literals;

namespace {

class MaskEngineTypingTest : public MaskEngineTest { };

TEST_F(MaskEngineTypingTest, FillsATelephoneNumber)
{
    Mask(u"(000) 000-0000");
    Box.SetSelStart(1);
    Box.TypeAll(u"12345");
    EXPECT_EQ(Box.Text(), u"(123) 45_-____");
    EXPECT_EQ(Engine.Text(), u"12345\0\0\0\0\0"s);
    EXPECT_EQ(Engine.TextInput(), u"12345");
    Engine.SetReplaceChar(u" ");
    EXPECT_EQ(Engine.Text(), u"12345     ");
    Engine.SetIncludeLiteral(true);
    EXPECT_EQ(Engine.Text(), u"(123) 45 -    ");
}

TEST_F(MaskEngineTypingTest, SwallowsACharacterAtALiteral)
{
    Mask(u"(00)");
    EXPECT_EQ(Box.Type(u'1'), 0);
    EXPECT_EQ(Box.Type(u'('), 0);
    EXPECT_EQ(Box.Text(), u"(__)");
    EXPECT_EQ(Box.SelStart(), 0);
    EXPECT_EQ(Count("Change"), 0);
}

TEST_F(MaskEngineTypingTest, SwallowsACharacterAtTheEnd)
{
    Mask(u"00");
    Box.SetSelStart(2);
    EXPECT_EQ(Box.Type(u'1'), 0);
    EXPECT_EQ(Box.Text(), u"__");
    EXPECT_EQ(Box.SelStart(), 2);
}

TEST_F(MaskEngineTypingTest, JumpsOverLiteralsBehindACharacter)
{
    Mask(u"0) -0");
    Box.TypeAll(u"1");
    EXPECT_EQ(Box.SelStart(), 4);
}

TEST_F(MaskEngineTypingTest, StaysBehindTheLastCharacterWhereOnlyLiteralsFollow)
{
    Mask(u"00)-");
    Box.TypeAll(u"12");
    EXPECT_EQ(Box.SelStart(), 2);
    Mask(u"00");
    Box.TypeAll(u"12");
    EXPECT_EQ(Box.SelStart(), 2);
}

TEST_F(MaskEngineTypingTest, OverwritesWhatStandsThere)
{
    Mask(u"000");
    Engine.SetText(u"123");
    Box.SetSelStart(1);
    Box.TypeAll(u"9");
    EXPECT_EQ(Box.Text(), u"193");
    EXPECT_EQ(Engine.Text(), u"193");
    EXPECT_EQ(Box.SelStart(), 2);
}

TEST_F(MaskEngineTypingTest, TakesWhatThePlaceTakes)
{
    struct {
        char16_t sign;
        std::u16string taken;
    } const cases[] = { { u'0', u"7" }, { u'9', u"7 " }, { u'L', u"qQ" }, { u'?', u"qQ" }, { u'A', u"7qQ" },
        { u'a', u"7qQ" }, { u'&', u"7 qQ+\u00E9\uAC00" }, { u'C', u"7 qQ+\u00E9\uAC00" } };
    for (const auto& place : cases) {
        for (const char16_t character : u"7 qQ+\u00E9\uAC00"s) {
            Mask(std::u16string(1, place.sign));
            EXPECT_EQ(Box.Type(character), 0);
            const bool isTaken = place.taken.find(character) != std::u16string::npos;
            EXPECT_EQ(Box.Text(), std::u16string(1, isTaken ? character : u'_')) << static_cast<int>(character);
            EXPECT_EQ(Engine.TextInput(), isTaken ? std::u16string(1, character) : u""s);
            EXPECT_EQ(Engine.Text(), std::u16string(1, isTaken ? character : u'\0'));
            EXPECT_EQ(Box.SelStart(), isTaken ? 1 : 0);
        }
    }
}

TEST_F(MaskEngineTypingTest, ARefusedCharacterLeavesTheSelection)
{
    Mask(u"0000");
    Engine.SetText(u"1234");
    Forget();
    Box.Select(1, 2);
    EXPECT_EQ(Box.Type(u'x'), 0);
    EXPECT_EQ(Box.Text(), u"1234");
    EXPECT_EQ(Box.SelStart(), 1);
    EXPECT_EQ(Box.SelLength(), 2);
    EXPECT_EQ(Count("Change"), 0);
}

TEST_F(MaskEngineTypingTest, ASelectionThatBeginsAtALiteralTakesNothing)
{
    Mask(u"-00");
    Engine.SetText(u"12");
    Box.Select(0, 3);
    EXPECT_EQ(Box.Type(u'9'), 0);
    EXPECT_EQ(Box.Text(), u"-12");
    EXPECT_EQ(Box.SelLength(), 3);
}

TEST_F(MaskEngineTypingTest, FoldsTheCaseOfTypedLetters)
{
    Mask(u">LL");
    Box.TypeAll(u"ab");
    EXPECT_EQ(Box.Text(), u"AB");
    EXPECT_EQ(Engine.Text(), u"AB");
    Mask(u"L<LL>L");
    Box.TypeAll(u"aBCd");
    EXPECT_EQ(Box.Text(), u"abcD");
    // Not only letters of ASCII, and other characters as they are.
    Mask(u">&&<&&");
    Box.TypeAll(u"\u00E97\u00C9-");
    EXPECT_EQ(Box.Text(), u"\u00C97\u00E9-");
}

class ShoutingLocale : public Locale {
public:
    const NumberSymbols& Numbers() const override { return BuiltinLocale().Numbers(); }
    const DateSymbols& Dates() const override { return BuiltinLocale().Dates(); }
    const LocaleWords& Words() const override { return BuiltinLocale().Words(); }
    char16_t ToLower(char16_t unit) const override { return unit == u'I' ? u'\u0131' : SimpleLower(unit); }
    char16_t ToUpper(char16_t unit) const override { return unit == u'i' ? u'\u0130' : SimpleUpper(unit); }
    int CompareNoCase(std::u16string_view a, std::u16string_view b) const override
    {
        return BuiltinLocale().CompareNoCase(a, b);
    }
};

TEST_F(MaskEngineTypingTest, FoldsAsTheLocaleOfTheMomentDoes)
{
    const ShoutingLocale turkish;
    Mask(u">L<L");
    Owner.locale = &turkish;
    Box.TypeAll(u"iI");
    EXPECT_EQ(Box.Text(), u"\u0130\u0131");
}

TEST_F(MaskEngineTypingTest, ASelectionOfOneIsReplaced)
{
    Mask(u"0000");
    Engine.SetText(u"1234");
    Box.Select(1, 1);
    Box.TypeAll(u"9");
    EXPECT_EQ(Box.Text(), u"1934");
    EXPECT_EQ(Box.SelStart(), 2);
    EXPECT_EQ(Box.SelLength(), 0);
}

TEST_F(MaskEngineTypingTest, ALongerSelectionShowsBlanksAndKeepsItsValues)
{
    Mask(u"00-00-0");
    Engine.SetText(u"12345");
    Box.Select(1, 4);
    Box.TypeAll(u"9");
    EXPECT_EQ(Box.Text(), u"19-__-5");
    // The places behind the first still give what they had.
    EXPECT_EQ(Engine.Text(), u"19345");
    EXPECT_EQ(Engine.TextInput(), u"195");
    EXPECT_EQ(Box.SelStart(), 3);
}

TEST_F(MaskEngineTypingTest, TheWholeTextSelectedIsStartedAnew)
{
    Mask(u"0-0");
    Engine.SetText(u"12");
    Box.Select(0, 3);
    Box.TypeAll(u"9");
    EXPECT_EQ(Box.Text(), u"9-_");
}

TEST_F(MaskEngineTypingTest, TellsOfEachCharacterInOrder)
{
    Mask(u"00");
    Box.TypeAll(u"1");
    EXPECT_THAT(Owner.log, testing::ElementsAre("KeyDown 49", "KeyPress 49", "Change", "SizeToText"));
}

TEST_F(MaskEngineTypingTest, ATextThatStaysEqualToldOnce)
{
    Mask(u"00");
    Box.TypeAll(u"1");
    Box.SetSelStart(0);
    Box.TypeAll(u"1");
    EXPECT_EQ(Count("Change"), 1);
}

TEST_F(MaskEngineTypingTest, BehindAnAssignmentTheTextOfTheChangeBeforeIsToldAgain)
{
    Mask(u"0");
    Box.TypeAll(u"1");
    Engine.SetText(u"2");
    Box.SetSelStart(0);
    Box.TypeAll(u"1");
    EXPECT_EQ(Box.Text(), u"1");
    EXPECT_EQ(Count("Change"), 2);
    Engine.SetMask(u"0");
    Box.TypeAll(u"1");
    EXPECT_EQ(Count("Change"), 3);
    Engine.SetText(u"1");
    Box.SetSelStart(0);
    Box.TypeAll(u"1");
    EXPECT_EQ(Count("Change"), 3) << "nothing else was assigned";
}

TEST_F(MaskEngineTypingTest, TheHostSeesTheValueOfTheTextItIsToldOf)
{
    Mask(u"00-00");
    std::vector<std::u16string> values;
    Owner.onChange = [&] { values.push_back(Engine.TextInput()); };
    Box.TypeAll(u"123");
    EXPECT_EQ(values, (std::vector<std::u16string> { u"1", u"12", u"123" }));
}

TEST_F(MaskEngineTypingTest, TheHostMayExchangeTheCharacterOrTakeIt)
{
    Mask(u"&&");
    Owner.onKeyPress = [](i16& KeyAscii) { KeyAscii = KeyAscii == u'a' ? i16 { u'b' } : i16 { 0 }; };
    Box.TypeAll(u"a");
    EXPECT_EQ(Box.Text(), u"b_");
    EXPECT_EQ(Box.Type(u'c'), 0);
    EXPECT_EQ(Box.Text(), u"b_");
    EXPECT_EQ(Engine.Text(), u"b\0"s);
    EXPECT_EQ(Box.SelStart(), 1);
}

TEST_F(MaskEngineTypingTest, EnterIsSwallowedInABoxOfOneLine)
{
    for (const std::u16string mask : { u"", u"&&" }) {
        Engine.SetMask(mask);
        Engine.SetText(u"ab");
        EXPECT_EQ(Box.Type(Keys::Enter), 0);
        EXPECT_EQ(Box.Text(), u"ab");
    }
}

TEST_F(MaskEngineTypingTest, EnterReachesABoxOfSeveralLines)
{
    Engine.SetMultiLine(true);
    Engine.SetText(u"ab");
    Box.SetSelStart(1);
    EXPECT_EQ(Box.Type(Keys::Enter), Keys::Enter);
    EXPECT_EQ(Box.Text(), u"a\r\nb");
    EXPECT_EQ(Count("Change"), 1);
}

TEST_F(MaskEngineTypingTest, ALineEndGoesIntoAFormAsItIs)
{
    Engine.SetMultiLine(true);
    Mask(u"00");
    Engine.SetText(u"12");
    Box.SetSelStart(2);
    Box.Type(Keys::Enter);
    EXPECT_EQ(Box.Text(), u"12\r\n");
    EXPECT_EQ(Engine.Text(), u"12");
    EXPECT_EQ(Box.Type(u'3'), 0);
    // Behind the form the keys are the box's.
    Box.Backspace();
    EXPECT_EQ(Box.Text(), u"12");
}

TEST_F(MaskEngineTypingTest, WithoutAMaskCharactersAreTheBoxs)
{
    EXPECT_EQ(Box.Type(u'x'), u'x');
    EXPECT_EQ(Box.Text(), u"x");
    EXPECT_EQ(Box.Type(8), 8);
    EXPECT_EQ(Box.Text(), u"");
    EXPECT_EQ(Count("Change"), 2);
}

TEST_F(MaskEngineTypingTest, WhatCtrlTypesIsNoCharacter)
{
    Mask(u"&&");
    for (const char16_t code : std::initializer_list<char16_t> { 3, 9, 10, 22, 24, 26, 27, 127, 1 }) {
        EXPECT_EQ(Box.Type(code, Shifts::Ctrl), code);
        EXPECT_EQ(Box.Text(), u"__");
        EXPECT_EQ(Engine.Text(), u"\0\0"s);
    }
    Box.SetSelStart(0);
    i16 blank = u' ';
    Engine.KeyPress(blank, Shifts::Ctrl);
    EXPECT_EQ(blank, u' ');
    EXPECT_EQ(Box.Text(), u"__");
    // The third character of a key is one.
    EXPECT_EQ(Box.Type(u'@', Shifts::Ctrl | Shifts::Alt), 0);
    EXPECT_EQ(Box.Text(), u"@_");
    EXPECT_EQ(Box.Type(u'A', Shifts::Shift), 0);
    EXPECT_EQ(Box.Text(), u"@A");
}

TEST_F(MaskEngineTypingTest, ACtrlCombinationWithBackspaceIsTheBoxs)
{
    Mask(u"&&");
    Engine.SetText(u"ab");
    for (const char16_t code : { u'\b', u'\x7F' }) {
        auto character = static_cast<i16>(code);
        Engine.KeyPress(character, Shifts::Ctrl);
        EXPECT_EQ(character, code);
        character = static_cast<i16>(code);
        Engine.KeyPress(character, Shifts::Alt);
        EXPECT_EQ(character, code);
    }
    EXPECT_EQ(Engine.Text(), u"ab");
}

TEST_F(MaskEngineTypingTest, AControlCharacterIsTakenAndNotStored)
{
    Mask(u"&&");
    for (const char16_t code : std::initializer_list<char16_t> { 1, 9, 10, 26, 27, 31, 127 }) {
        for (const i16 shift : std::initializer_list<i16> { Shifts::None, Shifts::Shift, Shifts::Alt }) {
            auto character = static_cast<i16>(code);
            Engine.KeyPress(character, code == 127 ? i16 { Shifts::None } : shift);
            EXPECT_EQ(character, 0) << static_cast<int>(code);
        }
        EXPECT_EQ(Box.Text(), u"__");
        EXPECT_EQ(Engine.Text(), u"\0\0"s);
    }
    EXPECT_EQ(Count("Change"), 0);
}

TEST_F(MaskEngineTypingTest, WithoutAMaskAControlCharacterIsTheBoxs)
{
    for (const char16_t code : std::initializer_list<char16_t> { 9, 27 }) {
        auto character = static_cast<i16>(code);
        Engine.KeyPress(character, Shifts::None);
        EXPECT_EQ(character, code);
    }
}

TEST_F(MaskEngineTypingTest, ACharacterOfTwoUnitsFindsNoPlace)
{
    Mask(u"&C&");
    for (const char16_t half : u"\U0001F600"s) {
        EXPECT_EQ(Box.Type(half), 0);
        EXPECT_EQ(Box.Text(), u"___");
        EXPECT_EQ(Engine.Text(), u"\0\0\0"s);
    }
    EXPECT_EQ(Count("Change"), 0);
    Box.Paste(u"\U0001F600x");
    EXPECT_EQ(Box.Text(), u"__x");
    EXPECT_EQ(Engine.Text(), u"\0\0x"s);
    Engine.SetText(u"a\U0001F600");
    EXPECT_EQ(Box.Text(), u"a__");
}

TEST_F(MaskEngineTypingTest, ACharacterOfTwoUnitsIsTheBoxsWithoutAMask)
{
    for (const char16_t half : u"\U0001F600"s)
        EXPECT_EQ(Box.Type(half), static_cast<i16>(half));
    EXPECT_EQ(Engine.Text(), u"\U0001F600");
}

TEST_F(MaskEngineTypingTest, WhatWasComposedComesWithoutKeys)
{
    Mask(u">&0");
    for (const char16_t character : u"\u00E95"s) {
        auto code = static_cast<i16>(character);
        Engine.KeyPress(code, 0);
        EXPECT_EQ(code, 0);
    }
    EXPECT_EQ(Box.Text(), u"\u00C95");
    EXPECT_EQ(Engine.TextInput(), u"\u00C95");
}

class ShortBox : public SimulatedBox {
public:
    void SetText(std::u16string_view text) override { SimulatedBox::SetText(text.substr(0, 3)); }
};

TEST_F(MaskEngineTypingTest, ABoxThatIsTooShortForTheFormIsFilledAsFarAsItGoes)
{
    ShortBox box;
    MaskEngine engine(box, Owner);
    box.Attach(engine);
    engine.SetMask(u"0-000");
    engine.SetReplaceChar(u"?");
    EXPECT_EQ(box.Text(), u"_-_");
    EXPECT_EQ(engine.Text(), u"??");
    box.TypeAll(u"123");
    EXPECT_EQ(box.Text(), u"1-2");
    EXPECT_EQ(engine.TextInput(), u"12");
    // The place behind the end took a value all the same.
    EXPECT_EQ(engine.Text(), u"123");
    box.Backspace();
    EXPECT_EQ(box.Text(), u"1-_");
    EXPECT_EQ(box.SelStart(), 2);
}

TEST_F(MaskEngineTypingTest, AHostThatChangesTheMaskInChangeIsFollowed)
{
    Mask(u"00");
    Owner.onChange = [&] { Engine.SetMask(u"(L)"); };
    Box.TypeAll(u"1");
    EXPECT_EQ(Box.Text(), u"(_)");
    EXPECT_EQ(Box.SelStart(), 1);
    Owner.onChange = [&] { Engine.SetMask(u""); };
    Box.TypeAll(u"q");
    EXPECT_EQ(Engine.Text(), u"(q)");
}

TEST_F(MaskEngineTypingTest, AHostThatEmptiesTheBoxInChangeLeavesTheCaretInIt)
{
    Mask(u"00");
    Owner.onChange = [&] { Engine.SetNumericOnly(true); };
    Box.TypeAll(u"1");
    EXPECT_EQ(Box.Text(), u"");
    EXPECT_EQ(Box.SelStart(), 0);
}

} // namespace
