// Widths of columns that follow from their texts.
#include "layout/fitting_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int Line = FakeDevice::LineHeight;
constexpr int Letter = FakeDevice::CharWidth;

class ColumnWidthTest : public testing::Test {
protected:
    ColumnWidthTest() { table.layout.Settings.ScrollHBar = vxNormalScroll; }

    FittingTable table { 1, 6, 1, 4 };
    AutoSize& fitting = table.fitting;
};

TEST_F(ColumnWidthTest, IsTheLongestTextAndItsPadding)
{
    table.Text(1, 1, u"short");
    table.Text(4, 1, u"the longest");
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 11 * Letter + 8);
    EXPECT_THAT(table.events.said, ElementsAre("ResizeCol 0 85"));
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout"));
    EXPECT_TRUE(table.gate.IsOpen());
    EXPECT_EQ(table.Measured().size(), 7U);
}

TEST_F(ColumnWidthTest, FixedRowsAreMeasuredAsWell)
{
    table.Text(0, 1, u"a header");
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 8 * Letter + 8);
}

TEST_F(ColumnWidthTest, OneRowAloneIsMeasured)
{
    table.Text(0, 1, u"a header");
    table.Text(2, 1, u"text");
    fitting.AdjustWidth(1, 2);
    EXPECT_EQ(table.Width(1), 4 * Letter + 8);
    EXPECT_THAT(table.Measured(), ElementsAre("\"text\" 0,0,5,16 C00"));
}

TEST_F(ColumnWidthTest, MarginsAreAdded)
{
    table.Text(2, 1, u"text");
    table.Margins(2, 1, 5, 6);
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 4 * Letter + 19);
}

TEST_F(ColumnWidthTest, OfEmptyTextsIsThePadding)
{
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 8);
}

TEST_F(ColumnWidthTest, NegativeMarginsMayLeaveNothing)
{
    table.Margins(2, 1, -4, -4);
    fitting.AdjustWidth(1, 2);
    EXPECT_THAT(table.events.said, IsEmpty());
    EXPECT_THAT(table.repainter.calls, IsEmpty());
    EXPECT_EQ(table.Width(1), 50);
}

TEST_F(ColumnWidthTest, ThePatternOfTheColumnShapesTheText)
{
    table.store.ColumnAt(1).Format = u"0.000";
    table.Text(2, 1, u"7");
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 5 * Letter + 8);
}

// -- Texts too tall --

TEST_F(ColumnWidthTest, ATextTooTallAddsItsExcessOnce)
{
    table.BreakWords(2, 1);
    table.Text(2, 1, u"aa bbb cc");
    fitting.AdjustWidth(1, 2);
    EXPECT_EQ(table.Width(1), 3 * Letter + (3 * Line + 4 - 20) + 8) << "three words, one below the other";
    EXPECT_THAT(table.Measured(), ElementsAre("\"aa bbb cc\" 0,0,5,16 C10", "\"aa bbb cc\" 0,0,44,16 0"));
}

TEST_F(ColumnWidthTest, ATextThatIsJustAsTallAddsNothing)
{
    table.Heights({ 25, Line + 4 });
    table.Text(1, 1, u"text");
    fitting.AdjustWidth(1, 1);
    EXPECT_EQ(table.Width(1), 4 * Letter + 8);
    table.Heights({ 25, Line + 3 });
    fitting.AdjustWidth(1, 1);
    EXPECT_EQ(table.Width(1), 4 * Letter + 1 + 8);
}

TEST_F(ColumnWidthTest, ARowWithoutHeightIsMeasuredFromOnePixel)
{
    table.hidden.HideRow(2);
    table.Text(2, 1, u"text");
    fitting.AdjustWidth(1, 2);
    EXPECT_THAT(table.Measured(), ElementsAre("\"text\" 0,0,5,1 C00", "\"text\" 0,0,45,-4 0"));
    EXPECT_EQ(table.Width(1), 4 * Letter + Line + 4 + 8);
}

TEST_F(ColumnWidthTest, ARowAsHighAsThePaddingHasNoRoom)
{
    table.Heights({ 25, 4 });
    fitting.AdjustWidth(1, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"\" 0,0,5,0 C00", "\"\" 0,0,13,0 0"));
}

// -- The title --

TEST_F(ColumnWidthTest, TheTitleIsNotMeasured)
{
    table.layout.Settings.CaptionEnabled = true;
    table.Text(0, 1, u"a very long title");
    table.Text(2, 1, u"text");
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 4 * Letter + 8);
}

TEST_F(ColumnWidthTest, TheTitleAloneDoesNothing)
{
    table.layout.Settings.CaptionEnabled = true;
    table.Text(0, 1, u"a very long title");
    fitting.AdjustWidth(1, 0);
    EXPECT_EQ(table.Width(1), 50);
    EXPECT_THAT(table.Measured(), IsEmpty());
    EXPECT_THAT(table.events.said, IsEmpty());
    table.layout.Settings.CaptionEnabled = false;
    fitting.AdjustWidth(1, 0);
    EXPECT_EQ(table.Width(1), 17 * Letter + 8);
}

// -- Spans --

TEST_F(ColumnWidthTest, TheOtherColumnsOfASpanCarryTheirPart)
{
    table.Widths({ 30, 50, 60, 70, 80 });
    table.Span(2, 1, 1, 3);
    table.Text(2, 1, std::u16string(25, u'x'));
    fitting.AdjustWidth(1, 2);
    EXPECT_EQ(table.Width(1), 25 * Letter + 8 - 60 - 70);
    table.ForgetCalls();
    fitting.AdjustWidth(2, 2);
    EXPECT_EQ(table.Width(2), 25 * Letter + 8 - 53 - 70) << "from a child's column as well";
}

TEST_F(ColumnWidthTest, ASpanThatHoldsItsTextAsksForNothing)
{
    table.Span(2, 1, 1, 3);
    table.Text(2, 1, u"text");
    fitting.AdjustWidth(1, 2);
    EXPECT_THAT(table.events.said, IsEmpty());
    EXPECT_EQ(table.Width(1), 50);
}

TEST_F(ColumnWidthTest, ASpanOverRowsIsMeasuredOnceInItsFirstRow)
{
    table.Span(2, 1, 3, 1);
    table.Text(2, 1, u"parent");
    table.Text(3, 1, u"a child's own text");
    table.Text(5, 1, u"behind");
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Measured().size(), 5U);
    EXPECT_EQ(table.Width(1), 6 * Letter + 8);
}

TEST_F(ColumnWidthTest, AStartWithinASpanStepsOverRowsBehindIt)
{
    table.layout.Settings.CaptionEnabled = true;
    table.Span(0, 1, 3, 1);
    table.Text(0, 1, u"parent");
    table.Text(3, 1, u"the row behind the span");
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 6 * Letter + 8);
}

TEST_F(ColumnWidthTest, AChildIsMeasuredByItsParentsPatternAndHeight)
{
    table.Span(2, 1, 2, 2);
    table.store.ColumnAt(1).Format = u"0.0";
    table.store.ColumnAt(2).Format = u"0.000000";
    table.Text(2, 1, u"1");
    table.Heights({ 25, 20, 40, 20 });
    fitting.AdjustWidth(2, 3);
    EXPECT_THAT(table.Measured(), ElementsAre("\"1.0\" 0,0,5,36 C00"));
}

// -- The room --

TEST_F(ColumnWidthTest, AColumnGrowsToTheAreaThatScrolls)
{
    table.Text(2, 1, std::u16string(100, u'x'));
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 400 - 30);
}

TEST_F(ColumnWidthTest, TheBarAtTheSideTakesOfTheRoom)
{
    table.layout.Settings.ScrollVBar = vxScrollTrack;
    table.Window(400, 100);
    table.Layout();
    ASSERT_EQ(table.layout.VBarWidth(), 17);
    table.Text(2, 1, std::u16string(100, u'x'));
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 400 - 30 - 17);
}

TEST_F(ColumnWidthTest, WithSmoothScrollingItGrowsBeyond)
{
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    table.Text(2, 1, std::u16string(100, u'x'));
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 708);
    EXPECT_FALSE(table.events.said.empty());
}

TEST_F(ColumnWidthTest, AFixedColumnGrowsByTheWholeArea)
{
    table.Text(2, 0, std::u16string(100, u'x'));
    fitting.AdjustWidth(0);
    EXPECT_EQ(table.Width(0), 400);
    EXPECT_THAT(table.events.said, ElementsAre("ResizeCol -1 400"));
    EXPECT_TRUE(table.layout.MetricsDirty());
}

TEST_F(ColumnWidthTest, AFixedColumnIsCutWithSmoothScrollingAsWell)
{
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    table.Text(2, 0, std::u16string(100, u'x'));
    fitting.AdjustWidth(0);
    EXPECT_EQ(table.Width(0), 400);
}

TEST_F(ColumnWidthTest, ASplitColumnIsAFrozenOne)
{
    table.layout.Settings.ShowSplit = true;
    ASSERT_TRUE(table.layout.SetSplitCols(2));
    table.Text(2, 2, std::u16string(100, u'x'));
    fitting.AdjustWidth(2);
    EXPECT_EQ(table.Width(2), 400 - 30 - 50 - 50 + 50);
    table.Text(2, 3, std::u16string(100, u'x'));
    table.ForgetCalls();
    fitting.AdjustWidth(3);
    EXPECT_THAT(table.events.said, ElementsAre("ResizeCol 2 0")) << "the frozen columns leave no room at all";
    EXPECT_EQ(table.Width(3), 0);
}

TEST_F(ColumnWidthTest, WhereThereIsNoRoomTheHandlerHearsOfLessThanNothing)
{
    table.Window(20, 300);
    table.Text(2, 1, u"text");
    fitting.AdjustWidth(1);
    EXPECT_THAT(table.events.said, ElementsAre("ResizeCol 0 -10"));
    EXPECT_EQ(table.Width(1), 0);
}

TEST_F(ColumnWidthTest, BeyondSixteenBitsIsError6)
{
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    table.Text(2, 1, std::u16string(5000, u'x'));
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustWidth(1); }), 6);
    EXPECT_EQ(table.Width(1), 50);
    EXPECT_TRUE(table.gate.IsOpen());
}

TEST_F(ColumnWidthTest, WithoutRowsNothingIsOffered)
{
    FittingTable none(0, 0, 0, 2);
    none.fitting.AdjustWidth(1);
    EXPECT_THAT(none.events.said, IsEmpty());
    EXPECT_EQ(none.Width(1), 50);
}

TEST_F(ColumnWidthTest, TheFillerColumnIsInTheStore)
{
    fitting.AdjustWidth(5);
    EXPECT_EQ(table.Width(5), 8);
}

TEST_F(ColumnWidthTest, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustWidth(6); }), 9);
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustWidth(-1); }), 9);
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustWidth(1, 8); }), 9);
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustWidth(1, -1); }), 9);
}

// -- The host and hidden columns --

TEST_F(ColumnWidthTest, TheHandlerHasTheLastWord)
{
    table.events.onResize = [](i16& width) { width = 99; };
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 99);
    table.events.onResize = [](i16& width) { width = 0; };
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 0);
    EXPECT_FALSE(table.store.ColumnAt(1).Hidden);
}

TEST_F(ColumnWidthTest, ZeroForTheFirstColumnMovesTheView)
{
    table.scroll.SetFirstCol(1);
    table.events.onResize = [](i16& width) { width = 0; };
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.scroll.FirstCol(), 2);
}

TEST_F(ColumnWidthTest, AHiddenColumnTakesItForLater)
{
    table.hidden.HideCol(1);
    table.Text(2, 1, u"text");
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.Width(1), 0);
    EXPECT_EQ(table.store.ColumnAt(1).SavedWidth, 4 * Letter + 8);
    table.events.onResize = [](i16& width) { width = 0; };
    fitting.AdjustWidth(1);
    EXPECT_EQ(table.store.ColumnAt(1).SavedWidth, 0);
}

TEST_F(ColumnWidthTest, AColumnThatTheHandlerTookAwayTakesNothing)
{
    table.events.onResize = [&](i16&) { table.store.ResizeColStore(2); };
    fitting.AdjustWidth(4);
    EXPECT_FALSE(table.store.ContainsCol(4));
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout"));
}

TEST_F(ColumnWidthTest, TheGateTakesTheHostsSettingBehindTheEvent)
{
    table.gate.SetRedraw(false);
    fitting.AdjustWidth(1);
    EXPECT_FALSE(table.gate.IsOpen());
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout shut"));
}

} // namespace
} // namespace vornix
