#include "vornix/edited_text.h"

#include "virtual_keys.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

constexpr auto ByKey = std::optional(ChangeOrigin::Key);
constexpr auto ByOthers = std::optional(ChangeOrigin::Foreign);
constexpr auto Unchanged = std::optional<ChangeOrigin>();

class EditedTextTest : public testing::Test {
protected:
    std::optional<ChangeOrigin> Key(i16 code, i16 shift = 0) { return text.DoKey(code, shift); }
    std::optional<ChangeOrigin> Type(char16_t character, i16 shift = 0) { return text.DoCharacter(character, shift); }
    // The text, with the selection between brackets or the caret as a bar.
    std::u16string Shown() const
    {
        std::u16string shown = text.Text();
        const auto start = static_cast<std::size_t>(text.SelStart());
        const auto length = static_cast<std::size_t>(text.SelLength());
        if (length == 0)
            return shown.insert(start, u"|");
        return shown.insert(start + length, u"]").insert(start, u"[");
    }
    void Begin(std::u16string_view content, int start, int length = 0)
    {
        text.SetText(content);
        text.SetSelStart(start);
        text.SetSelLength(length);
    }

    std::u16string clipboard;
    EditedText text { clipboard };
};

TEST_F(EditedTextTest, PlacesAreLimitedToTheText)
{
    Begin(u"abc", 9);
    EXPECT_EQ(Shown(), u"abc|");
    text.SetSelStart(-4);
    EXPECT_EQ(Shown(), u"|abc");
    text.SetSelStart(1);
    text.SetSelLength(9);
    EXPECT_EQ(Shown(), u"a[bc]");
    text.SetSelLength(-1);
    EXPECT_EQ(Shown(), u"a|bc");
    text.SetSelLength(1);
    text.SetText(u"other");
    EXPECT_EQ(Shown(), u"|other");
}

TEST_F(EditedTextTest, ACharacterTakesThePlaceOfTheSelection)
{
    Begin(u"abcd", 1, 2);
    EXPECT_EQ(text.SelText(), u"bc");
    EXPECT_EQ(Type(u'x'), ByKey);
    EXPECT_EQ(Shown(), u"ax|d");
    EXPECT_EQ(Type(u'y'), ByKey);
    EXPECT_EQ(Shown(), u"axy|d");
}

TEST_F(EditedTextTest, BackspaceAndDeleteEraseTheSelectionOrOneCharacter)
{
    Begin(u"abcdef", 1, 2);
    EXPECT_EQ(Type(BackKey), ByKey);
    EXPECT_EQ(Shown(), u"a|def");
    EXPECT_EQ(Type(BackKey), ByKey);
    EXPECT_EQ(Type(BackKey), Unchanged) << "at the start";
    EXPECT_EQ(Shown(), u"|def");
    EXPECT_EQ(Key(DeleteKey), ByKey);
    EXPECT_EQ(Shown(), u"|ef");
    text.SetSelStart(2);
    EXPECT_EQ(Key(DeleteKey), Unchanged) << "at the end";
    text.SetSelStart(0);
    text.SetSelLength(2);
    EXPECT_EQ(Key(DeleteKey), ByKey);
    EXPECT_EQ(Shown(), u"|");
}

TEST_F(EditedTextTest, ALineEndAndACharacterOfTwoUnitsAreOne)
{
    Begin(u"a\r\n\U0001F600b", 1);
    Key(RightKey);
    EXPECT_EQ(text.Caret(), 3);
    Key(RightKey);
    EXPECT_EQ(text.Caret(), 5);
    Key(LeftKey);
    EXPECT_EQ(text.Caret(), 3);
    Key(DeleteKey);
    EXPECT_EQ(text.Text(), u"a\r\nb");
    Type(BackKey);
    EXPECT_EQ(Shown(), u"a|b");
}

TEST_F(EditedTextTest, WordsArePassedAndErasedWithCtrl)
{
    Begin(u"one  two three", 6);
    Key(LeftKey, CtrlDown);
    EXPECT_EQ(Shown(), u"one  |two three");
    Key(LeftKey, CtrlDown);
    EXPECT_EQ(Shown(), u"|one  two three");
    Key(RightKey, CtrlDown);
    EXPECT_EQ(Shown(), u"one  |two three");
    Key(RightKey, CtrlDown | ShiftDown);
    EXPECT_EQ(Shown(), u"one  [two ]three");
    Key(LeftKey);
    EXPECT_EQ(Key(DeleteKey, CtrlDown), ByKey);
    EXPECT_EQ(Shown(), u"one  |three");
    EXPECT_EQ(Type(127, CtrlDown), ByKey);
    EXPECT_EQ(Shown(), u"|three");
    EXPECT_EQ(Type(127, CtrlDown), Unchanged);
}

TEST_F(EditedTextTest, ShiftSelectsFromWhereItBegan)
{
    Begin(u"abcd", 2);
    Key(RightKey, ShiftDown);
    EXPECT_EQ(Shown(), u"ab[c]d");
    Key(LeftKey, ShiftDown);
    Key(LeftKey, ShiftDown);
    EXPECT_EQ(Shown(), u"a[b]cd");
    Key(HomeKey, ShiftDown);
    EXPECT_EQ(Shown(), u"[ab]cd");
    Key(EndKey, ShiftDown);
    EXPECT_EQ(Shown(), u"ab[cd]");
    Key(LeftKey);
    EXPECT_EQ(Shown(), u"ab|cd") << "a selection is left at its end";
    Key(EndKey, ShiftDown);
    Key(RightKey);
    EXPECT_EQ(Shown(), u"abcd|");
}

TEST_F(EditedTextTest, InOneLineHomeAndEndGoToTheEndsAndUpAndDownNowhere)
{
    Begin(u"ab\r\ncd", 5);
    Key(UpKey);
    EXPECT_EQ(text.Caret(), 5);
    Key(HomeKey);
    EXPECT_EQ(text.Caret(), 0);
    Key(DownKey);
    EXPECT_EQ(text.Caret(), 0);
    Key(EndKey);
    EXPECT_EQ(text.Caret(), 6);
    EXPECT_EQ(Type(ReturnKey), Unchanged);
}

TEST_F(EditedTextTest, InSeveralLinesKeysMoveByLines)
{
    text.SetMultiLine(true);
    Begin(u"long line\r\nab\r\nanother", 6);
    Key(DownKey);
    EXPECT_EQ(text.Caret(), 13) << "the end of a shorter line";
    Key(DownKey);
    EXPECT_EQ(text.Caret(), 21) << "where the caret began";
    Key(DownKey);
    EXPECT_EQ(text.Caret(), 21);
    Key(HomeKey);
    EXPECT_EQ(text.Caret(), 15);
    Key(UpKey, ShiftDown);
    EXPECT_EQ(text.SelText(), u"ab\r\n");
    Key(EndKey);
    EXPECT_EQ(text.Caret(), 13);
    Key(UpKey);
    EXPECT_EQ(text.Caret(), 2);
    Key(UpKey);
    EXPECT_EQ(text.Caret(), 2);
    Key(EndKey, CtrlDown);
    EXPECT_EQ(text.Caret(), 22);
    Key(HomeKey, CtrlDown);
    EXPECT_EQ(text.Caret(), 0);
}

TEST_F(EditedTextTest, ReturnBeginsALineWhereThereAreSeveral)
{
    text.SetMultiLine(true);
    Begin(u"ab", 1);
    EXPECT_EQ(Type(ReturnKey), ByKey);
    EXPECT_EQ(text.Text(), u"a\r\nb");
    EXPECT_EQ(text.Caret(), 3);
    EXPECT_EQ(Type(10, CtrlDown), Unchanged) << "with Ctrl it does nothing";
}

TEST_F(EditedTextTest, CombinationsAndControlCharactersAreNotTyped)
{
    Begin(u"ab", 1);
    for (const char16_t character : std::u16string_view(u"\x02\x04\x09\x1A\x1B\x1F"))
        EXPECT_EQ(Type(character), Unchanged) << static_cast<int>(character);
    EXPECT_EQ(Type(u' ', CtrlDown), Unchanged);
    EXPECT_EQ(Key(DeleteKey, AltDown), Unchanged);
    EXPECT_EQ(Key(70), Unchanged);
    EXPECT_EQ(Shown(), u"a|b");
    EXPECT_EQ(Type(u'@', CtrlDown | AltDown), ByKey) << "the third sign of a key";
    EXPECT_EQ(Shown(), u"a@|b");
}

TEST_F(EditedTextTest, TheClipboardIsCutCopiedAndPasted)
{
    Begin(u"abcd", 1, 2);
    EXPECT_EQ(Type(3, CtrlDown), Unchanged);
    EXPECT_EQ(clipboard, u"bc");
    EXPECT_EQ(Type(24, CtrlDown), ByOthers);
    EXPECT_EQ(Shown(), u"a|d");
    EXPECT_EQ(Type(24, CtrlDown), Unchanged) << "nothing is selected";
    EXPECT_EQ(clipboard, u"bc");
    EXPECT_EQ(Type(22, CtrlDown), ByOthers);
    EXPECT_EQ(Shown(), u"abc|d");
    EXPECT_EQ(Type(1, CtrlDown), Unchanged);
    EXPECT_EQ(Shown(), u"[abcd]");
    EXPECT_EQ(Key(DeleteKey, ShiftDown), ByOthers);
    EXPECT_EQ(Key(InsertKey, ShiftDown), ByOthers);
    EXPECT_EQ(Shown(), u"abcd|");
    text.SelectAll();
    EXPECT_EQ(Key(InsertKey), Unchanged);
    clipboard = u"";
    EXPECT_EQ(Key(InsertKey, CtrlDown), Unchanged);
    EXPECT_EQ(clipboard, u"abcd");
    clipboard = u"";
    EXPECT_EQ(Type(22, CtrlDown), Unchanged);
    EXPECT_EQ(Shown(), u"[abcd]") << "an empty clipboard takes nothing away";
}

TEST_F(EditedTextTest, OneLineTakesTheFirstLineOfWhatIsPasted)
{
    EXPECT_TRUE(text.Paste(u"ab\tc\nd"));
    EXPECT_EQ(Shown(), u"ab\tc|");
    EXPECT_FALSE(text.Paste(u"\r\nx"));
    text.SetMultiLine(true);
    EXPECT_TRUE(text.Paste(u"1\n2\r3\r\n4\r"));
    EXPECT_EQ(text.Text(), u"ab\tc1\r\n2\r\n3\r\n4\r\n");
}

TEST_F(EditedTextTest, ALockedTextCanBeReadAndCopied)
{
    text.SetLocked(true);
    clipboard = u"x";
    Begin(u"abcd", 1, 2);
    for (const char16_t character : { u'x', char16_t { 8 }, char16_t { 127 }, char16_t { 22 }, char16_t { 24 } })
        EXPECT_EQ(Type(character), Unchanged);
    EXPECT_EQ(Key(DeleteKey), Unchanged);
    EXPECT_EQ(Shown(), u"a[bc]d");
    EXPECT_EQ(clipboard, u"x");
    Type(3);
    EXPECT_EQ(clipboard, u"bc");
    Key(EndKey);
    EXPECT_EQ(Shown(), u"abcd|");
    text.SetSelText(u"!");
    EXPECT_EQ(Shown(), u"abcd!|") << "the program may";
}

TEST_F(EditedTextTest, TheGreatestLengthBindsTheUser)
{
    text.SetMaxLength(4);
    text.SetMultiLine(true);
    Begin(u"abc", 3);
    EXPECT_EQ(Type(ReturnKey), Unchanged) << "a line end is two units";
    EXPECT_EQ(Type(u'd'), ByKey);
    EXPECT_EQ(Type(u'e'), Unchanged);
    text.SetSelStart(1);
    text.SetSelLength(1);
    EXPECT_EQ(Type(u'x'), ByKey);
    EXPECT_EQ(Shown(), u"ax|cd");
    Begin(u"ab", 2);
    EXPECT_TRUE(text.Paste(u"123"));
    EXPECT_EQ(Shown(), u"ab12|");
    Begin(u"abc", 3);
    EXPECT_FALSE(text.Paste(u"\n")) << "half a line end is none";
    EXPECT_FALSE(text.Paste(u"\U0001F600"));
    Begin(u"longer than that", 0);
    EXPECT_EQ(Type(u'x'), Unchanged);
    EXPECT_EQ(Type(BackKey), Unchanged);
    EXPECT_EQ(Key(DeleteKey), ByKey);
}

TEST_F(EditedTextTest, ASecretStaysOffTheClipboard)
{
    text.SetSecret(true);
    Begin(u"abc", 0, 3);
    EXPECT_EQ(Type(3), Unchanged);
    EXPECT_EQ(Type(24), Unchanged);
    EXPECT_EQ(clipboard, u"");
    EXPECT_EQ(text.Text(), u"abc");
}

TEST_F(EditedTextTest, AWordIsSelectedAtItsEndsToo)
{
    text.SetText(u"one two  three");
    for (const int place : { 4, 5, 7 }) {
        text.SelectWordAt(place);
        EXPECT_EQ(Shown(), u"one [two]  three") << place;
    }
    text.SelectWordAt(99);
    EXPECT_EQ(text.SelText(), u"three");
    text.SelectWordAt(8);
    EXPECT_EQ(Shown(), u"one two | three");
}

} // namespace
} // namespace vornix
