// Calculated sizes of one cell, and heights of rows.
#include "layout/fitting_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int Line = FakeDevice::LineHeight;
constexpr int Letter = FakeDevice::CharWidth;

class FitTest : public testing::Test {
protected:
    FittingTable table { 1, 6, 1, 4 };
    AutoSize& fitting = table.fitting;
};

class CellSizeTest : public FitTest { };

TEST_F(CellSizeTest, IsTheTextWithItsPadding)
{
    table.Text(2, 2, u"four");
    EXPECT_EQ(fitting.CalcRectText(2, 2), (Size { 4 * Letter + 8, Line + 4 }));
    EXPECT_THAT(table.Measured(), ElementsAre("\"four\" 0,0,42,16 C00"));
}

TEST_F(CellSizeTest, MarginsAreTakenOffBeforeAndAddedBehind)
{
    table.Text(2, 2, u"four");
    table.Margins(2, 2, 3, 6);
    EXPECT_EQ(fitting.CalcRectText(2, 2), (Size { 4 * Letter + 17, Line + 4 }));
    EXPECT_THAT(table.Measured(), ElementsAre("\"four\" 0,0,33,16 C00"));
}

TEST_F(CellSizeTest, WordsBreakAtThePresentWidth)
{
    table.BreakWords(2, 2);
    table.Text(2, 2, u"aa bb cc");
    EXPECT_EQ(fitting.CalcRectText(2, 2), (Size { 5 * Letter + 8, 2 * Line + 4 }));
}

TEST_F(CellSizeTest, TheColumnsPatternShapesTheText)
{
    table.store.ColumnAt(2).Format = u"0.000";
    table.Text(2, 2, u"1");
    EXPECT_EQ(fitting.CalcRectText(2, 2).width, 5 * Letter + 8);
}

TEST_F(CellSizeTest, ASpanIsNotFollowed)
{
    table.Span(2, 2, 2, 2);
    table.Text(2, 2, u"parent");
    table.Text(3, 3, u"child");
    EXPECT_EQ(fitting.CalcRectText(3, 3).width, 5 * Letter + 8);
    EXPECT_THAT(table.Measured(), ElementsAre("\"child\" 0,0,42,16 C00"));
}

TEST_F(CellSizeTest, NothingIsChangedOrTold)
{
    table.Text(2, 2, u"a text that is longer than its column");
    fitting.CalcRectText(2, 2);
    EXPECT_EQ(table.Width(2), 50);
    EXPECT_THAT(table.events.said, IsEmpty());
    EXPECT_THAT(table.repainter.calls, IsEmpty());
}

TEST_F(CellSizeTest, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { fitting.CalcRectText(8, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { fitting.CalcRectText(0, 6); }), 9);
}

class RowHeightTest : public FitTest { };

TEST_F(RowHeightTest, IsTheTallestTextAndFive)
{
    table.Text(2, 1, u"one\rtwo");
    table.Text(2, 3, u"one\rtwo\rthree");
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 3 * Line + 5);
    EXPECT_THAT(table.events.said, ElementsAre("ResizeRow 1 44"));
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout"));
    EXPECT_TRUE(table.layout.MetricsDirty());
    EXPECT_TRUE(table.gate.IsOpen());
}

TEST_F(RowHeightTest, FixedColumnsAreMeasuredAsWell)
{
    table.Text(2, 0, u"one\rtwo");
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 2 * Line + 5);
}

TEST_F(RowHeightTest, OneColumnAloneIsMeasured)
{
    table.Text(2, 1, u"one\rtwo\rthree");
    table.Text(2, 3, u"one\rtwo");
    fitting.AdjustHeight(2, 3);
    EXPECT_EQ(table.Height(2), 2 * Line + 5);
    EXPECT_EQ(table.Measured().size(), 1U);
}

TEST_F(RowHeightTest, OfEmptyCellsIsALineAndFive)
{
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), Line + 5);
    EXPECT_THAT(table.Measured(), Each(HasSubstr(",5 C00")));
    EXPECT_EQ(table.Measured().size(), 5U);
}

TEST_F(RowHeightTest, EveryTextIsMeasuredInTheRoomOfItsColumn)
{
    table.BreakWords(2, 1);
    table.Text(2, 1, u"aa bb cc");
    fitting.AdjustHeight(2, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"aa bb cc\" 0,0,42,5 C10"));
    EXPECT_EQ(table.Height(2), 2 * Line + 5);
}

TEST_F(RowHeightTest, AWordEllipsisDoesNotShortenTheText)
{
    table.BreakWords(2, 1);
    table.Format(2, 1, [](CellFormat& format) { format.TextAlignment |= vxWordEllipsis; });
    table.Text(2, 1, u"aa bb cc");
    fitting.AdjustHeight(2, 1);
    EXPECT_EQ(table.Height(2), 2 * Line + 5);
    EXPECT_THAT(table.Measured(), ElementsAre(HasSubstr(" C10")));
}

TEST_F(RowHeightTest, AColumnNarrowerThanItsMarginsHasOnePixel)
{
    table.Margins(2, 1, 30, 30);
    table.Text(2, 1, u"text");
    fitting.AdjustHeight(2, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"text\" 0,0,1,5 C00"));
}

TEST_F(RowHeightTest, ARoomOfExactlyNothingStays)
{
    table.Margins(2, 1, 21, 21);
    fitting.AdjustHeight(2, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"\" 0,0,0,5 C00"));
}

TEST_F(RowHeightTest, ThePatternOfTheColumnShapesTheText)
{
    table.store.ColumnAt(1).Format = u"0.00";
    table.Text(2, 1, u"7");
    fitting.AdjustHeight(2, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"7.00\" 0,0,42,5 C00"));
}

// -- Spans --

TEST_F(RowHeightTest, OfASpanTheSecondColumnIsLeftOutAndTheOneBehindItCounts)
{
    table.Widths({ 30, 50, 60, 70, 80 });
    table.Span(2, 1, 1, 2);
    table.Text(2, 1, u"parent");
    fitting.AdjustHeight(2, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"parent\" 0,0,112,5 C00")) << "50 - 8 + 70";
    table.Span(2, 1, 1, 3);
    table.ForgetCalls();
    fitting.AdjustHeight(2, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"parent\" 0,0,192,5 C00")) << "50 - 8 + 70 + 80";
}

TEST_F(RowHeightTest, ASpanToTheLastColumnTakesTheFiller)
{
    table.Widths({ 30, 50, 60, 70, 80 });
    table.store.ColumnAt(5).Width = 9;
    table.Span(2, 3, 1, 2);
    fitting.AdjustHeight(2, 3);
    EXPECT_THAT(table.Measured(), ElementsAre("\"\" 0,0,71,5 C00")) << "70 - 8 + 9";
}

TEST_F(RowHeightTest, ASpanOfOneColumnIsPlain)
{
    table.Span(2, 1, 3, 1);
    fitting.AdjustHeight(2, 1);
    EXPECT_THAT(table.Measured(), ElementsAre("\"\" 0,0,42,5 C00"));
}

TEST_F(RowHeightTest, ASpanIsMeasuredOnce)
{
    table.Text(2, 1, u"parent");
    table.Text(2, 2, u"child");
    table.Text(2, 3, u"behind");
    table.Span(2, 1, 1, 2);
    fitting.AdjustHeight(2);
    EXPECT_THAT(table.Measured(),
        ElementsAre("\"\" 0,0,22,5 C00", HasSubstr("parent"), HasSubstr("behind"), "\"\" 0,0,42,5 C00"));
}

TEST_F(RowHeightTest, AChildsColumnMeasuresItsParent)
{
    table.Text(2, 1, u"one\rtwo\rthree");
    table.Span(2, 1, 2, 2);
    fitting.AdjustHeight(3, 2);
    EXPECT_THAT(table.Measured(), ElementsAre("\"one\rtwo\rthree\" 0,0,92,5 C00"));
    EXPECT_EQ(table.Height(3), 3 * Line + 5 - 20) << "the row above carries its part";
    EXPECT_EQ(table.Height(2), 20);
}

TEST_F(RowHeightTest, RowsOfASpanThatHoldTheTextNeedNotGrow)
{
    FittingTable one(0, 4, 0, 1);
    one.Text(0, 0, u"one\rtwo\rthree");
    one.Span(0, 0, 3, 1);
    one.fitting.AdjustHeight(1);
    EXPECT_EQ(one.Height(1), 3 * Line + 5 - 40) << "small";
    one.Heights({ 40, 40, 40 });
    one.ForgetCalls();
    one.fitting.AdjustHeight(1);
    EXPECT_EQ(one.Height(1), 40) << "what is left below nothing asks for nothing";
    EXPECT_THAT(one.events.said, IsEmpty());
    EXPECT_THAT(one.repainter.calls, IsEmpty());
}

TEST_F(RowHeightTest, ASpanAlongTheRowSubtractsNothing)
{
    table.Span(2, 1, 1, 2);
    table.Text(2, 1, u"one\rtwo");
    fitting.AdjustHeight(2, 1);
    EXPECT_EQ(table.Height(2), 2 * Line + 5);
}

// -- Widening on the way --

TEST_F(RowHeightTest, WithTheWidthAColumnGrowsToItsWords)
{
    table.Text(2, 1, u"a long text");
    table.Margins(2, 1, 2, 3);
    fitting.AdjustHeight(2, {}, true);
    EXPECT_EQ(table.Width(1), 11 * Letter + 13);
    EXPECT_EQ(table.Width(2), 50) << "what fits stays";
    EXPECT_THAT(table.events.said, ElementsAre("ResizeRow 1 18")) << "the width is not offered";
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout"));
}

TEST_F(RowHeightTest, WithoutTheWidthColumnsStay)
{
    table.Text(2, 1, u"a long text");
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Width(1), 50);
}

TEST_F(RowHeightTest, AWordThatFitsExactlyWidensNothing)
{
    table.Text(2, 1, u"123456");
    fitting.AdjustHeight(2, 1, true);
    EXPECT_EQ(table.Width(1), 50);
}

TEST_F(RowHeightTest, ASpansParentColumnTakesTheWholeWidth)
{
    table.Span(2, 1, 1, 2);
    table.Text(2, 1, std::u16string(20, u'x'));
    fitting.AdjustHeight(2, 2, true);
    EXPECT_EQ(table.Width(1), 20 * Letter + 8);
    EXPECT_EQ(table.Width(2), 50);
}

TEST_F(RowHeightTest, AColumnWidenedBeforeMakesRoomForTheNext)
{
    table.Span(2, 1, 1, 2);
    table.Text(2, 3, std::u16string(20, u'x'));
    fitting.AdjustHeight(2, 3, true);
    table.ForgetCalls();
    fitting.AdjustHeight(2, 1, true);
    EXPECT_THAT(table.Measured(), ElementsAre("\"\" 0,0,190,5 C00"));
}

TEST_F(RowHeightTest, AWidenedColumnIsLaidOutWithoutAHeight)
{
    FittingTable one(0, 4, 0, 1);
    one.Text(0, 0, u"a long text");
    one.Span(0, 0, 2, 1);
    one.fitting.AdjustHeight(1, {}, true);
    EXPECT_EQ(one.Width(0), 11 * Letter + 8);
    EXPECT_THAT(one.events.said, IsEmpty());
    EXPECT_THAT(one.repainter.calls, ElementsAre("RecalcLayout"));
    EXPECT_TRUE(one.layout.MetricsDirty());
}

TEST_F(RowHeightTest, AHiddenColumnIsWidenedForLater)
{
    table.hidden.HideCol(1);
    table.Text(2, 1, u"text");
    fitting.AdjustHeight(2, {}, true);
    EXPECT_EQ(table.Width(1), 0);
    EXPECT_EQ(table.store.ColumnAt(1).SavedWidth, 4 * Letter + 8);
}

TEST_F(RowHeightTest, AWidthBeyondSixteenBitsIsError6)
{
    table.Text(2, 1, std::u16string(5000, u'x'));
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustHeight(2, 1, true); }), 6);
    EXPECT_EQ(table.Width(1), 50);
}

// -- The room --

TEST_F(RowHeightTest, ARowGrowsToTheAreaBelowTheFixedRows)
{
    table.Text(2, 1, std::u16string(40, u'\r'));
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 300 - 25);
}

TEST_F(RowHeightTest, AFixedRowGrowsByTheWholeArea)
{
    table.Text(0, 1, std::u16string(40, u'\r'));
    fitting.AdjustHeight(0);
    EXPECT_EQ(table.Height(0), 300);
    EXPECT_THAT(table.events.said, ElementsAre("ResizeRow -1 300"));
}

TEST_F(RowHeightTest, TheBarBelowTakesOfTheRoom)
{
    table.layout.SetHBarHeight(17);
    table.Text(2, 1, std::u16string(40, u'\r'));
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 300 - 25 - 17);
}

TEST_F(RowHeightTest, MoreThanSixteenBitsOfTextAreCutAsWell)
{
    table.Text(2, 1, std::u16string(4000, u'\r'));
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 275);
}

TEST_F(RowHeightTest, StaleSumsAreMeasuredFirst)
{
    table.Heights({ 100 });
    table.Text(2, 1, std::u16string(40, u'\r'));
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 200);
}

TEST_F(RowHeightTest, WhereThereIsNoRoomTheHandlerHearsOfLessThanNothing)
{
    table.Window(400, 20);
    fitting.AdjustHeight(2);
    EXPECT_THAT(table.events.said, ElementsAre("ResizeRow 1 -5"));
    EXPECT_EQ(table.Height(2), 0) << "a size below 0 counts as 0";
}

TEST_F(RowHeightTest, WithoutRoomNothingIsOffered)
{
    table.Window(400, 25);
    fitting.AdjustHeight(2);
    EXPECT_THAT(table.events.said, IsEmpty());
    EXPECT_EQ(table.Height(2), 20);
}

TEST_F(RowHeightTest, WithoutColumnsNothingIsOffered)
{
    FittingTable none(1, 3, 0, 0);
    none.fitting.AdjustHeight(1);
    EXPECT_THAT(none.events.said, IsEmpty());
    EXPECT_EQ(none.Height(1), 20);
}

TEST_F(RowHeightTest, TheFillerRowIsInTheStore)
{
    fitting.AdjustHeight(7);
    EXPECT_EQ(table.Height(7), Line + 5);
}

TEST_F(RowHeightTest, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustHeight(8); }), 9);
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustHeight(-1); }), 9);
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustHeight(2, 6); }), 9);
    EXPECT_EQ(ErrorOf([&] { fitting.AdjustHeight(2, -1); }), 9);
    EXPECT_THAT(table.events.said, IsEmpty());
}

// -- The host and hidden rows --

TEST_F(RowHeightTest, TheHandlerHasTheLastWord)
{
    table.events.onResize = [](i16& height) { height = 77; };
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 77);
}

TEST_F(RowHeightTest, TheGateTakesTheHostsSettingBehindTheEvent)
{
    table.gate.SetRedraw(false);
    fitting.AdjustHeight(2);
    EXPECT_FALSE(table.gate.IsOpen());
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout shut"));
}

TEST_F(RowHeightTest, ZeroTakesTheRowOutOfTheChain)
{
    table.events.onResize = [](i16& height) { height = 0; };
    fitting.AdjustHeight(3);
    EXPECT_EQ(table.Height(3), 0);
    EXPECT_FALSE(table.store.RowAt(3).Hidden);
    EXPECT_EQ(table.hidden.NextInChain(2), 4);
    EXPECT_EQ(table.hidden.PrevInChain(4), 2);
    table.events.onResize = nullptr;
    fitting.AdjustHeight(3);
    EXPECT_EQ(table.hidden.NextInChain(2), 3);
    EXPECT_EQ(table.hidden.PrevInChain(4), 3);
}

TEST_F(RowHeightTest, ZeroForTheFirstRowMovesTheView)
{
    table.scroll.SetFirstRow(1);
    table.events.onResize = [](i16& height) { height = 0; };
    fitting.AdjustHeight(1);
    EXPECT_EQ(table.scroll.FirstRow(), 2);
}

TEST_F(RowHeightTest, AHiddenRowTakesItForLater)
{
    table.hidden.HideRow(2);
    table.Text(2, 1, u"one\rtwo");
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 0);
    EXPECT_EQ(table.store.RowAt(2).SavedHeight, 2 * Line + 5);
    EXPECT_EQ(table.hidden.NextInChain(1), 3) << "it stays out";
    table.events.onResize = [](i16& height) { height = 0; };
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.store.RowAt(2).SavedHeight, 0);
}

TEST_F(RowHeightTest, ARowHiddenByTheHandlerTakesItForLater)
{
    table.events.onResize = [&](i16&) { table.hidden.HideRow(2); };
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 0);
    EXPECT_EQ(table.store.RowAt(2).SavedHeight, Line + 5);
}

TEST_F(RowHeightTest, ARowThatTheHandlerTookAwayTakesNothing)
{
    table.events.onResize = [&](i16&) { table.store.ResizeRowStore(2); };
    fitting.AdjustHeight(6);
    EXPECT_FALSE(table.store.ContainsRow(6));
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout"));
}

TEST_F(RowHeightTest, HiddenColumnsAreMeasuredInOnePixel)
{
    table.hidden.HideCol(1);
    table.BreakWords(2, 1);
    table.Text(2, 1, u"a b c");
    fitting.AdjustHeight(2);
    EXPECT_EQ(table.Height(2), 3 * Line + 5);
}

// -- All rows --

class AllRowsTest : public FitTest { };

TEST_F(AllRowsTest, TakeTheHeightOfLinesAndFive)
{
    fitting.AutoSizeRows(3);
    EXPECT_EQ(table.store.Defaults.DefaultHeight, 3 * Line + 5);
    for (int row = 1; row <= 6; ++row)
        EXPECT_EQ(table.Height(row), 3 * Line + 5) << row;
    EXPECT_EQ(table.Height(0), 25) << "fixed rows stay";
    EXPECT_THAT(table.events.said, IsEmpty());
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout"));
}

TEST_F(AllRowsTest, FollowTheControlsFontAlone)
{
    table.Format(2, 1, [](CellFormat& format) { format.FontSize = 40; });
    table.store.Defaults.Font = std::make_shared<FontObject>(FontObject { .Name = u"Serif", .Size = 12 });
    fitting.AutoSizeRows(1);
    EXPECT_EQ(table.screen->Count("SelectFont"), 1);
    EXPECT_EQ(table.screen->Count("SelectFont Serif -16 400 0"), 1);
    EXPECT_EQ(table.Height(2), Line + 5);
}

TEST_F(AllRowsTest, WithLessThanALineNothingHappens)
{
    fitting.AutoSizeRows(0);
    fitting.AutoSizeRows(-3);
    EXPECT_EQ(table.Height(2), 20);
    EXPECT_THAT(table.screen->journal, IsEmpty());
    EXPECT_THAT(table.repainter.calls, IsEmpty());
}

TEST_F(AllRowsTest, HiddenOnesTakeItForLater)
{
    table.hidden.HideRow(3);
    fitting.AutoSizeRows(1);
    EXPECT_EQ(table.Height(3), 0);
    EXPECT_EQ(table.store.RowAt(3).SavedHeight, Line + 5);
    EXPECT_EQ(table.hidden.NextInChain(2), 4);
}

TEST_F(AllRowsTest, OnesOfNoHeightComeBackIntoTheChain)
{
    table.layout.SetRowHeight(3, 0);
    table.hidden.HideRow(5);
    EXPECT_EQ(table.hidden.NextInChain(2), 4);
    fitting.AutoSizeRows(1);
    EXPECT_EQ(table.Height(3), Line + 5);
    EXPECT_EQ(table.hidden.NextInChain(2), 3);
    EXPECT_EQ(table.hidden.NextInChain(4), 6) << "the hidden one stays out";
}

TEST_F(AllRowsTest, PercentWidthsAreRedone)
{
    table.layout.SetColWidthPercent(1, 50);
    fitting.AutoSizeRows(1);
    EXPECT_THAT(table.repainter.calls, ElementsAre("RecalcLayout percent"));
}

TEST_F(AllRowsTest, HeightsBeyondSixteenBitsAreError6)
{
    EXPECT_EQ(ErrorOf([&] { fitting.AutoSizeRows(2521); }), 6);
    EXPECT_EQ(table.store.Defaults.DefaultHeight, 21);
    EXPECT_EQ(table.Height(2), 20);
    EXPECT_EQ(ErrorOf([&] { fitting.AutoSizeRows(2520); }), 0);
    EXPECT_EQ(table.Height(2), 2520 * Line + 5);
}

TEST_F(AllRowsTest, WithoutRowsTheDefaultAloneIsTaken)
{
    FittingTable none(1, 0, 1, 1);
    none.fitting.AutoSizeRows(2);
    EXPECT_EQ(none.store.Defaults.DefaultHeight, 2 * Line + 5);
    EXPECT_EQ(none.Height(0), 25);
}

TEST_F(AllRowsTest, WithoutAFontIsError5)
{
    table.store.Defaults.Font = nullptr;
    EXPECT_EQ(ErrorOf([&] { fitting.AutoSizeRows(1); }), 5);
}

} // namespace
} // namespace vornix
