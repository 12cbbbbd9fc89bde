#include "textbox/text_sizing.h"

#include "textbox/text_box_fixture.h"

using namespace vornix;

namespace {

class TextSizingTest : public testing::Test {
protected:
    TextSizingTest() { Screen->measure = SizeInGrid; }

    TextExtent Measure(std::u16string_view text)
    {
        Screen->journal.clear();
        return MeasureBoxText(Paper, { .face = u"Sans", .height = -12 }, text, Limits);
    }
    std::vector<std::string> Calls() const { return Screen->LinesOf("paper"); }

    std::shared_ptr<FakeScreen> Screen = std::make_shared<FakeScreen>();
    FakeDevice Paper { Screen, "paper", { 100, 100 } };
    // Neither breaks nor cuts what is short.
    SizeLimits Limits { .NormalWidth = 100, .NormalHeight = 20, .MaxWidth = 1000, .MaxHeight = 1000 };
};

TEST_F(TextSizingTest, AShortTextIsMeasuredOnceWithRoomForTheNextCharacter)
{
    EXPECT_EQ(Measure(u"ab"), (TextExtent { 35, 13, false }));
    ASSERT_EQ(Calls().size(), 2u);
    EXPECT_EQ(Calls()[0].substr(0, 10), "SelectFont");
    EXPECT_EQ(Calls()[1], "DrawText \"abAAj\" 0,0,0,0 400");
}

TEST_F(TextSizingTest, AnEmptyTextHasALine)
{
    EXPECT_EQ(Measure(u""), (TextExtent { 21, 13, false }));
}

TEST_F(TextSizingTest, AnEmptyLastLineCounts)
{
    EXPECT_EQ(Measure(u"ab\r\n"), (TextExtent { 21, 26, false }));
}

TEST_F(TextSizingTest, LongLinesBreakAtTheGreatestWidth)
{
    Limits.MaxWidth = 100;
    EXPECT_EQ(Measure(u"hello world foo"), (TextExtent { 77, 26, false }));
    ASSERT_EQ(Calls().size(), 3u);
    EXPECT_EQ(Calls()[2], "DrawText \"hello world fooAj\" 0,0,95,13 410");
}

TEST_F(TextSizingTest, ALineThatJustFitsTheGreatestWidthIsNotBroken)
{
    Limits.NormalHeight = 0;
    // 18 characters of 7 and a margin of 5.
    Limits.MaxWidth = 131;
    EXPECT_EQ(Measure(u"hello world foo"), (TextExtent { 126, 13, false }));
    EXPECT_EQ(Calls().size(), 2u);
    Limits.MaxWidth = 130;
    EXPECT_EQ(Measure(u"hello world foo"), (TextExtent { 119, 13, false })) << "with one character less behind it";
}

TEST_F(TextSizingTest, AWordThatCannotBreakIsNotWiderThanTheGreatestWidth)
{
    Limits.MaxWidth = 50;
    EXPECT_EQ(Measure(u"unbreakable"), (TextExtent { 45, 13, false }));
}

TEST_F(TextSizingTest, InAHigherBoxLinesBreakAtTheNormalWidth)
{
    Limits.NormalWidth = 50;
    Limits.NormalHeight = 60;
    EXPECT_EQ(Measure(u"hello world foo"), (TextExtent { 35, 39, false }));
    ASSERT_EQ(Calls().size(), 3u);
    EXPECT_EQ(Calls()[2], "DrawText \"hello world fooAj\" 0,0,50,60 410");
}

TEST_F(TextSizingTest, OnlyATextThatIsTooWideAndLowerThanTheBoxBreaksAtTheNormalWidth)
{
    // 18 is the height with its margin, 131 the width.
    const auto breaks = [this] {
        Measure(u"hello world foo");
        return Calls().size() == 3;
    };
    Limits.NormalHeight = 18;
    EXPECT_FALSE(breaks());
    Limits.NormalHeight = 19;
    EXPECT_TRUE(breaks());
    Limits.NormalWidth = 131;
    EXPECT_FALSE(breaks());
    Limits.NormalWidth = 130;
    EXPECT_TRUE(breaks());
}

TEST_F(TextSizingTest, ATextBrokenAtTheGreatestWidthMayBreakOnceMoreAtTheNormalOne)
{
    Limits = { .NormalWidth = 50, .NormalHeight = 60, .MaxWidth = 100, .MaxHeight = 1000 };
    EXPECT_EQ(Measure(u"hello world foo"), (TextExtent { 35, 39, false }));
    EXPECT_EQ(Calls().size(), 4u);
}

TEST_F(TextSizingTest, ATextHigherThanTheGreatestBoxIsCut)
{
    Limits.MaxHeight = 44;
    EXPECT_EQ(Measure(u"a\r\nb\r\nc"), (TextExtent { 28, 39, false }));
    Limits.MaxHeight = 43;
    EXPECT_EQ(Measure(u"a\r\nb\r\nc"), (TextExtent { 28, 38, true }));
}

TEST_F(TextSizingTest, LimitsOfNothingLeaveNothing)
{
    Limits = {};
    EXPECT_EQ(Measure(u"ab"), (TextExtent { -5, -5, true }));
    EXPECT_EQ(Calls()[2], "DrawText \"abAj\" 0,0,0,13 410");
    Limits = { .NormalWidth = -32768, .NormalHeight = 32767, .MaxWidth = -32768, .MaxHeight = -32768 };
    EXPECT_EQ(Measure(u"ab").height, -32773);
}

} // namespace
