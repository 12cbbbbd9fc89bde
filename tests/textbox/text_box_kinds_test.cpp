#include "textbox/box_choice.h"
#include "textbox/text_box_fixture.h"

using namespace vornix;

namespace {

TEST(BoxChoiceTest, FollowsTheFourSettings)
{
    struct {
        i16 scrollBars;
        bool multiLine;
        bool autoResize;
        int left;
        int right;
    } const rows[] = {
        { 0, false, false, 0, 1 },
        { 0, false, true, 0, 1 },
        { 0, true, false, 3, 4 },
        { 0, true, true, 0, 1 },
        { 1, false, false, 0, 1 },
        { 1, false, true, 2, 5 },
        { 1, true, false, 3, 4 },
        { 1, true, true, 2, 5 },
        { -1, true, true, 2, 5 },
        { 3, false, true, 2, 5 },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ChosenBox({ 0, row.scrollBars, row.multiLine, row.autoResize }), row.left);
        for (const i16 alignment : std::initializer_list<i16> { 1, 2, -1 })
            EXPECT_EQ(ChosenBox({ alignment, row.scrollBars, row.multiLine, row.autoResize }), row.right);
    }
}

TEST(BoxChoiceTest, EachBoxHasItsStyle)
{
    const auto style = [](bool isRight, bool isMultiLine, bool hasScrollBar) {
        return EditBoxStyle { isRight, isMultiLine, hasScrollBar };
    };
    EXPECT_EQ(StyleOf(0, false), style(false, false, false));
    EXPECT_EQ(StyleOf(1, false), style(true, false, false));
    EXPECT_EQ(StyleOf(2, false), style(false, false, true));
    EXPECT_EQ(StyleOf(3, false), style(false, true, false));
    EXPECT_EQ(StyleOf(4, false), style(true, true, false));
    EXPECT_EQ(StyleOf(5, false), style(true, false, true));
    // What follows its text breaks lines.
    EXPECT_EQ(StyleOf(0, true), style(false, true, false));
    EXPECT_EQ(StyleOf(1, true), style(true, true, false));
    EXPECT_EQ(StyleOf(2, true), style(false, true, true));
    EXPECT_EQ(StyleOf(5, true), style(true, true, true));
}

class TextBoxKindsTest : public TextBoxTest {
protected:
    // "left one", "right lines bar"
    std::string Style() const
    {
        return std::string(Native.style.isRightAligned ? "right" : "left")
            + (Native.style.isMultiLine ? " lines" : " one") + (Native.style.hasScrollBar ? " bar" : "");
    }
};

TEST_F(TextBoxKindsTest, ANewBoxIsLeftAlignedAndOfOneLine)
{
    EXPECT_EQ(Style(), "left one");
    EXPECT_EQ(Native.styleCount, 1);
    EXPECT_EQ(Box.Alignment(), 0);
    EXPECT_EQ(Box.ScrollBars(), 0);
    EXPECT_FALSE(Box.MultiLine());
    EXPECT_FALSE(Box.AutoResize());
}

TEST_F(TextBoxKindsTest, EachOfTheSettingsChooses)
{
    Box.SetAlignment(1);
    EXPECT_EQ(Style(), "right one");
    Box.SetMultiLine(true);
    EXPECT_EQ(Style(), "right lines");
    Box.SetScrollBars(2);
    EXPECT_EQ(Style(), "right lines");
    Box.SetAutoResize(true);
    EXPECT_EQ(Style(), "right lines bar");
    Box.SetAlignment(0);
    EXPECT_EQ(Style(), "left lines bar");
    Box.SetScrollBars(0);
    EXPECT_EQ(Style(), "left lines");
    Box.SetAutoResize(false);
    EXPECT_EQ(Style(), "left lines");
    Box.SetMultiLine(false);
    EXPECT_EQ(Style(), "left one");
    EXPECT_THAT(Site.reports, testing::IsEmpty());
}

TEST_F(TextBoxKindsTest, AScrollBarNeedsAutoResize)
{
    Box.SetMultiLine(true);
    Box.SetScrollBars(3);
    EXPECT_EQ(Style(), "left lines");
    EXPECT_EQ(Box.ScrollBars(), 3);
}

TEST_F(TextBoxKindsTest, AutoResizeBreaksLinesWhateverMultiLineSays)
{
    Box.SetAutoResize(true);
    EXPECT_EQ(Style(), "left lines");
    Box.SetMultiLine(true);
    EXPECT_EQ(Style(), "left lines");
    EXPECT_EQ(Native.styleCount, 2) << "the same box";
    Box.SetMultiLine(false);
    Box.SetAutoResize(false);
    EXPECT_EQ(Style(), "left one");
}

TEST_F(TextBoxKindsTest, InitializeTextBoxSetsBothAndReportsNothing)
{
    Box.InitializeTextBox(1, true);
    EXPECT_EQ(Style(), "right lines");
    EXPECT_EQ(Box.Alignment(), 1);
    EXPECT_TRUE(Box.MultiLine());
    Box.InitializeTextBox(0, false);
    EXPECT_EQ(Style(), "left one");
    EXPECT_THAT(Site.reports, testing::IsEmpty());
    EXPECT_THAT(Events.log, testing::IsEmpty());
}

TEST_F(TextBoxKindsTest, TheBoxIsStyledOnlyWhereTheKindChanges)
{
    Box.SetAlignment(0);
    Box.SetMultiLine(false);
    Box.InitializeTextBox(0, false);
    EXPECT_EQ(Native.styleCount, 1);
    Box.SetAlignment(1);
    Box.SetAlignment(2);
    EXPECT_EQ(Native.styleCount, 2);
}

TEST_F(TextBoxKindsTest, ChangingTheKindKeepsTextCaretSelectionAndEnabled)
{
    Box.SetText(u"abcdef");
    Native.Select(2, 3);
    Box.SetEnabled(false);
    Forget();
    Box.SetAlignment(1);
    Box.SetMultiLine(true);
    EXPECT_EQ(Box.Text(), u"abcdef");
    EXPECT_EQ(Box.SelStart(), 2);
    EXPECT_EQ(Box.SelLength(), 3);
    EXPECT_FALSE(Box.Enabled());
    EXPECT_THAT(Events.log, testing::IsEmpty());
}

TEST_F(TextBoxKindsTest, AFormIsKeptToo)
{
    Box.SetMask(u"(00)");
    Box.SetText(u"12");
    Box.SetAlignment(1);
    EXPECT_EQ(Native.Text(), u"(12)");
    EXPECT_EQ(Box.Text(), u"12");
}

TEST_F(TextBoxKindsTest, TheNumericFilterEndsMultiLineAndItsBox)
{
    Box.SetMultiLine(true);
    Box.SetNumericOnly(true);
    EXPECT_FALSE(Box.MultiLine());
    EXPECT_EQ(Style(), "left one");
    Box.SetMultiLine(true);
    Box.SetNumericOnly(false);
    EXPECT_TRUE(Box.MultiLine());
    EXPECT_EQ(Style(), "left lines");
}

TEST_F(TextBoxKindsTest, EnterBeginsALineWhereMultiLineIsOn)
{
    EXPECT_EQ(Native.Type(Keys::Enter), 0);
    Box.SetAutoResize(true);
    EXPECT_EQ(Native.Type(Keys::Enter), 0) << "the box shows lines, and MultiLine is off";
    Box.SetMultiLine(true);
    EXPECT_EQ(Native.Type(Keys::Enter), Keys::Enter);
    EXPECT_EQ(Box.Text(), u"\r\n");
}

} // namespace
