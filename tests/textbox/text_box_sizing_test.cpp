#include "textbox/text_box_fixture.h"

using namespace vornix;

namespace {

// A box at 10, 20 of 100 by 20 pixels, that grows to 200 by 60.
class TextBoxSizingTest : public TextBoxTest {
protected:
    TextBoxSizingTest()
    {
        Grow();
        Native.SetTellsWrites(false);
    }

    void Paste(std::u16string_view text)
    {
        Native.Select(0, static_cast<int>(Native.Text().size()));
        Native.Paste(text);
    }
    Size ShownSize() const { return { Window.place.Width(), Window.place.Height() }; }
};

TEST_F(TextBoxSizingTest, AShortTextLeavesTheBoxAsItIs)
{
    Window.place = { 0, 0, 300, 77 };
    Native.TypeAll(u"abc");
    EXPECT_EQ(ShownSize(), (Size { 300, 77 }));
    EXPECT_EQ(Window.moveCount, 0);
    EXPECT_FALSE(Native.hasBorder);
    EXPECT_EQ(Count("Resize"), 0);
}

TEST_F(TextBoxSizingTest, ALongTextGetsItsSizeAndABorder)
{
    // 14 characters and 2 of 7 pixels, and the margin.
    Paste(u"abcdefghijklmn");
    EXPECT_EQ(Window.place, (Rect { 10, 20, 127, 38 }));
    EXPECT_TRUE(Native.hasBorder);
    EXPECT_EQ(Box.BorderStyle(), 1);
    EXPECT_EQ(Events.log, (std::vector<std::string> { "Change", "Resize" }));
}

TEST_F(TextBoxSizingTest, AtTheGreatestWidthLinesBreak)
{
    Paste(u"one two three four five six seven");
    // "one two three four five six" has 27 characters and is the longest line below 195.
    EXPECT_EQ(ShownSize(), (Size { 27 * 7 + 5, 26 + 5 }));
    EXPECT_FALSE(Native.style.hasScrollBar);
}

TEST_F(TextBoxSizingTest, TheSizeIsThatOfTheTextOrTheNormalOne)
{
    // With the two characters behind it 98 pixels, which the margin does not count against.
    Paste(u"abcdefghijkl");
    EXPECT_EQ(Count("Resize"), 0);
    Paste(u"abcdefghijklm");
    EXPECT_EQ(ShownSize(), (Size { 15 * 7 + 5, 18 }));
}

TEST_F(TextBoxSizingTest, ItGrowsInHeightAlone)
{
    Paste(u"a\r\nb");
    EXPECT_EQ(ShownSize(), (Size { 28 + 5, 26 + 5 }));
}

TEST_F(TextBoxSizingTest, ItShrinksAndIsFlatAgainWhenTheTextFits)
{
    Paste(u"abcdefghijklmn");
    Forget();
    Paste(u"abc");
    EXPECT_EQ(Window.place, (Rect { 10, 20, 110, 40 }));
    EXPECT_FALSE(Native.hasBorder);
    EXPECT_EQ(Box.BorderStyle(), 0);
    EXPECT_EQ(Count("Resize"), 1);
    Forget();
    Paste(u"ab");
    EXPECT_EQ(Count("Resize"), 0);
}

TEST_F(TextBoxSizingTest, ABorderOfTheHostsIsTakenOffWhenTheTextFits)
{
    Box.SetBorderStyle(1);
    Window.place = { 0, 0, 300, 77 };
    Native.TypeAll(u"a");
    EXPECT_EQ(ShownSize(), (Size { 100, 20 }));
    EXPECT_FALSE(Native.hasBorder);
    EXPECT_EQ(Count("Resize"), 1);
}

TEST_F(TextBoxSizingTest, AtTheGreatestHeightItGetsAScrollBarAndKeepsIt)
{
    Paste(u"a\r\nb\r\nc\r\nd");
    EXPECT_FALSE(Native.style.hasScrollBar);
    EXPECT_EQ(ShownSize(), (Size { 33, 52 + 5 }));
    Paste(u"a\r\nb\r\nc\r\nd\r\ne");
    EXPECT_TRUE(Native.style.hasScrollBar);
    EXPECT_EQ(ShownSize(), (Size { 33, 60 }));
    Paste(u"a");
    EXPECT_TRUE(Native.style.hasScrollBar) << "until a setting chooses";
    EXPECT_EQ(ShownSize(), (Size { 100, 20 }));
    Box.SetMultiLine(false);
    EXPECT_FALSE(Native.style.hasScrollBar);
}

TEST_F(TextBoxSizingTest, TheScrollBarStaysUntilAnyOfTheSettingsIsWritten)
{
    const std::vector<std::function<void()>> writings {
        [&] { Box.SetAlignment(0); },
        [&] { Box.SetScrollBars(0); },
        [&] { Box.SetMultiLine(false); },
        [&] { Box.SetAutoResize(true); },
        [&] { Box.InitializeTextBox(0, false); },
    };
    for (const auto& write : writings) {
        Paste(u"a\r\nb\r\nc\r\nd\r\ne");
        ASSERT_TRUE(Native.style.hasScrollBar);
        Box.SetMaxHeight(60);
        Box.SetText(u"a");
        Box.SetFontBold(true);
        EXPECT_TRUE(Native.style.hasScrollBar);
        write();
        EXPECT_FALSE(Native.style.hasScrollBar);
    }
}

TEST_F(TextBoxSizingTest, TheBoxWithTheScrollBarIsTheLeftOne)
{
    Box.SetAlignment(1);
    ASSERT_TRUE(Native.style.isRightAligned);
    Paste(u"a\r\nb\r\nc\r\nd\r\ne");
    EXPECT_TRUE(Native.style.hasScrollBar);
    EXPECT_FALSE(Native.style.isRightAligned);
    Box.SetAlignment(1);
    EXPECT_TRUE(Native.style.isRightAligned);
}

TEST_F(TextBoxSizingTest, InAHigherNormalBoxLinesBreakInside)
{
    Box.SetNormalHeight(60);
    Window.place = { 0, 0, 100, 60 };
    Paste(u"one two three four");
    EXPECT_EQ(ShownSize(), (Size { 100, 60 })) << "two lines fit";
    EXPECT_EQ(Count("Resize"), 0);
    Paste(u"unbreakableword");
    EXPECT_EQ(ShownSize(), (Size { 17 * 7 + 5, 13 + 5 })) << "a word that is wider than the box";
}

TEST_F(TextBoxSizingTest, WithoutAutoResizeNothingIsMeasured)
{
    Box.SetAutoResize(false);
    Paste(u"a long text that would not fit at all");
    Box.Show();
    EXPECT_EQ(Window.moveCount, 0);
    EXPECT_EQ(Count("Resize"), 0);
    EXPECT_THAT(Screen->LinesOf("paper"), testing::IsEmpty());
}

TEST_F(TextBoxSizingTest, WhereNothingCanBeMeasuredTheSizeStays)
{
    Native.device = nullptr;
    Paste(u"a long text that would not fit at all");
    EXPECT_EQ(Window.moveCount, 0);
    EXPECT_EQ(Count("Resize"), 0);
    EXPECT_EQ(Count("Change"), 1);
}

TEST_F(TextBoxSizingTest, WritingTextTakesTheBorderOffAndMeasuresNothing)
{
    Paste(u"abcdefghijklmn");
    Forget();
    Box.SetText(u"another text that is much too long");
    EXPECT_FALSE(Native.hasBorder);
    EXPECT_EQ(ShownSize(), (Size { 117, 18 }));
    EXPECT_EQ(Count("Resize"), 0);
}

TEST_F(TextBoxSizingTest, ShowingMeasures)
{
    Box.SetText(u"abcdefghijklmn");
    Box.Show();
    EXPECT_EQ(ShownSize(), (Size { 117, 18 }));
    EXPECT_TRUE(Native.hasBorder);
    EXPECT_EQ(Events.log, (std::vector<std::string> { "Resize" }));
}

TEST_F(TextBoxSizingTest, EscapeMeasures)
{
    Box.SetText(u"abcdefghijklmn");
    Paste(u"a");
    ASSERT_EQ(ShownSize(), (Size { 100, 20 }));
    Forget();
    Native.Press(Keys::Escape);
    EXPECT_EQ(ShownSize(), (Size { 117, 18 }));
    EXPECT_EQ(Events.log, (std::vector<std::string> { "KeyDown 27 0", "Resize" }));
}

TEST_F(TextBoxSizingTest, EscapeToAShortTextShrinksABoxThatHasGrown)
{
    Box.SetText(u"a");
    Paste(u"abcdefghijklmn");
    ASSERT_EQ(ShownSize(), (Size { 117, 18 }));
    Native.Press(Keys::Escape);
    EXPECT_EQ(ShownSize(), (Size { 100, 20 })) << "though the text that came back has taken the border off";
    EXPECT_FALSE(Native.hasBorder);
}

TEST_F(TextBoxSizingTest, ABoxThatWasPlacedAnewHasNotGrown)
{
    Paste(u"abcdefghijklmn");
    Window.place = { 0, 0, 90, 30 };
    Box.SetText(u"a");
    Forget();
    Box.Show();
    EXPECT_EQ(ShownSize(), (Size { 90, 30 }));
    EXPECT_EQ(Count("Resize"), 0);
}

TEST_F(TextBoxSizingTest, SelTextMeasures)
{
    Box.SetSelText(u"abcdefghijklmn");
    EXPECT_EQ(ShownSize(), (Size { 117, 18 }));
    EXPECT_EQ(Events.log, (std::vector<std::string> { "Change", "Resize" }));
}

TEST_F(TextBoxSizingTest, ThePlaceOfAFormIsMeasuredAsItIsShown)
{
    Box.SetMask(u"0000000000000");
    Native.TypeAll(u"1");
    EXPECT_EQ(ShownSize(), (Size { 15 * 7 + 5, 18 }));
}

TEST_F(TextBoxSizingTest, TheTextIsMeasuredInTheFontOfTheBox)
{
    Box.SetFont(std::make_shared<const FontObject>(FontObject { .Name = u"Sans", .Size = 8.25, .Bold = true }));
    Native.TypeAll(u"a");
    ASSERT_FALSE(Screen->LinesOf("paper").empty());
    EXPECT_THAT(Screen->LinesOf("paper").front(), testing::HasSubstr("-11"));
    EXPECT_THAT(Screen->LinesOf("paper").front(), testing::HasSubstr("700"));
}

TEST_F(TextBoxSizingTest, MovingItselfMeasuresNothing)
{
    Window.onMove = [&] { Box.Show(); };
    Paste(u"abcdefghijklmn");
    EXPECT_EQ(Window.moveCount, 1);
    EXPECT_EQ(Count("Resize"), 1);
}

TEST_F(TextBoxSizingTest, AHandlerOfResizeMayWriteTheText)
{
    Events.onAny = [&](const std::string& name) {
        if (name == "Resize" && Count("Resize") < 3) {
            Native.Select(0, static_cast<int>(Native.Text().size()));
            Box.SetSelText(u"a\r\nb");
        }
    };
    Paste(u"abcdefghijklmn");
    EXPECT_EQ(ShownSize(), (Size { 33, 31 }));
    EXPECT_EQ(Count("Resize"), 3);
}

TEST_F(TextBoxSizingTest, AHandlerOfChangeMayEndAutoResize)
{
    Events.onAny = [&](const std::string& name) {
        if (name == "Change")
            Box.SetAutoResize(false);
    };
    Paste(u"abcdefghijklmn");
    EXPECT_EQ(Window.moveCount, 0);
}

TEST_F(TextBoxSizingTest, LimitsOfAnySizeMakeNoNegativeBox)
{
    for (const i16 limit : std::initializer_list<i16> { -32768, -1, 0, 4, 5, 6, 32767 }) {
        Box.SetNormalWidth(limit);
        Box.SetNormalHeight(limit);
        for (const i16 most : std::initializer_list<i16> { -32768, -1, 0, 4, 5, 6, 32767 }) {
            Box.SetMaxWidth(most);
            Box.SetMaxHeight(most);
            Paste(u"a long text that would not fit at all");
            EXPECT_GE(ShownSize().width, 0);
            EXPECT_GE(ShownSize().height, 0);
        }
    }
    EXPECT_EQ(Box.NormalWidth(), 32767);
    EXPECT_EQ(Box.MaxHeight(), 32767);
}

TEST_F(TextBoxSizingTest, WithoutLimitsTheSizeStays)
{
    Box.SetNormalWidth(0);
    Box.SetNormalHeight(0);
    Box.SetMaxWidth(0);
    Box.SetMaxHeight(0);
    Native.TypeAll(u"a");
    EXPECT_EQ(ShownSize(), (Size { 100, 20 }));
    EXPECT_EQ(Count("Resize"), 0);
}

} // namespace
