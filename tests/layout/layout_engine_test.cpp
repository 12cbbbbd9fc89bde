// Caption, fixed sums and the client area.
#include "layout/layout_engine.h"

#include "layout/table.h"

namespace vornix {
namespace {

TEST(LayoutEngine, StartsAtTheFirstCellThatScrolls)
{
    Table table(2, 3, 1, 4);
    table.layout.SetSmoothOffset(-5);
    table.scroll.SetFirstRow(4);
    table.scroll.SetFirstCol(3);
    table.layout.ResetFor(table.store);
    EXPECT_EQ(table.scroll.FirstRow(), 2);
    EXPECT_EQ(table.scroll.FirstCol(), 1);
    EXPECT_EQ(table.layout.FirstScrollCol(), 1);
    EXPECT_EQ(table.layout.SmoothOffset(), 0);
    EXPECT_EQ(table.layout.FixedRowsHeight(), 42);
    EXPECT_EQ(table.layout.FixedColsWidth(), 30);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 30);
    EXPECT_TRUE(table.layout.MetricsDirty());
    EXPECT_FALSE(table.layout.PercentActive());
}

TEST(LayoutEngine, StartsWithTheSplitThatIsSet)
{
    Table table(0, 1, 1, 4);
    table.layout.Settings.SplitCols = 2;
    table.layout.ResetFor(table.store);
    EXPECT_EQ(table.layout.FirstScrollCol(), 3);
    EXPECT_EQ(table.layout.FixedColsWidth(), 30);
}

TEST(LayoutEngine, StartFindsPercentWidthsInTheNewColumns)
{
    Table table(0, 1, 0, 3);
    table.store.ColumnAt(2).WidthPercent = 10;
    table.layout.ResetFor(table.store);
    EXPECT_TRUE(table.layout.PercentActive());
}

TEST(LayoutEngine, CaptionTakesTheHeightOfRowZero)
{
    Table table(1, 2, 0, 1);
    table.Heights({ 33 });
    table.layout.UpdateCaptionHeight();
    EXPECT_EQ(table.layout.CaptionHeight(), 0);
    table.layout.Settings.CaptionEnabled = true;
    table.layout.UpdateCaptionHeight();
    EXPECT_EQ(table.layout.CaptionHeight(), 33);
}

TEST(LayoutEngine, CaptionNeedsAFixedRow)
{
    Table table(0, 2, 0, 1);
    table.layout.Settings.CaptionEnabled = true;
    table.layout.UpdateCaptionHeight();
    EXPECT_EQ(table.layout.CaptionHeight(), 0);
}

TEST(LayoutEngine, SumsFixedAndFrozenLines)
{
    Table table(2, 2, 2, 4);
    table.Heights({ 10, 20, 40, 80 });
    table.Widths({ 1, 2, 4, 8, 16, 32 });
    table.layout.SetFirstScrollCol(4);
    table.layout.MeasureIfDirty();
    EXPECT_EQ(table.layout.FixedRowsHeight(), 30);
    EXPECT_EQ(table.layout.FixedColsWidth(), 3);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 15);
}

TEST(LayoutEngine, FixedColsWidthIsZeroWithoutFixedColumns)
{
    Table table(0, 1, 0, 4);
    table.Widths({ 1, 2, 4, 8 });
    table.layout.SetFirstScrollCol(2);
    table.layout.SumFixedCols();
    EXPECT_EQ(table.layout.FixedColsWidth(), 0);
    EXPECT_EQ(table.layout.FrozenColsWidth(), 3);
}

TEST(LayoutEngine, EachSumClearsTheMark)
{
    Table table(1, 1, 1, 1);
    table.layout.MarkMetricsDirty();
    table.layout.SumFixedRows();
    EXPECT_FALSE(table.layout.MetricsDirty());
    table.layout.MarkMetricsDirty();
    table.layout.SumFixedCols();
    EXPECT_FALSE(table.layout.MetricsDirty());
}

TEST(LayoutEngine, MeasuresOnlyWhenMarked)
{
    Table table(1, 1, 0, 1);
    table.Heights({ 10 });
    table.layout.MeasureIfDirty();
    table.store.RowAt(0).Height = 99;
    table.layout.MeasureIfDirty();
    EXPECT_EQ(table.layout.FixedRowsHeight(), 10);
    table.layout.MarkMetricsDirty();
    table.layout.MeasureIfDirty();
    EXPECT_EQ(table.layout.FixedRowsHeight(), 99);
}

TEST(LayoutEngine, HiddenFixedLinesAddNothing)
{
    Table table(2, 1, 2, 1);
    table.Heights({ 10, 20 });
    table.Widths({ 5, 7 });
    HiddenLines(table.store).HideRow(0);
    HiddenLines(table.store).HideCol(1);
    table.layout.MeasureIfDirty();
    EXPECT_EQ(table.layout.FixedRowsHeight(), 20);
    EXPECT_EQ(table.layout.FixedColsWidth(), 5);
}

TEST(LayoutEngine, FixedSumsBeyond16BitsAreOverflow)
{
    Table table(2, 1, 2, 1);
    table.Heights({ 32767, 1 });
    table.Widths({ 32767, 1 });
    EXPECT_EQ(ErrorOf([&] { table.layout.SumFixedRows(); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([&] { table.layout.SumFixedCols(); }), ErrorNumber::Overflow);
}

TEST(LayoutEngine, FrozenColumnsThatAreNotThereAreABadSubscript)
{
    Table table(0, 1, 0, 2);
    table.layout.SetFirstScrollCol(3); // sums columns 0 to 2, the last being the filler
    EXPECT_EQ(ErrorOf([&] { table.layout.SumFixedCols(); }), 0);
    table.layout.SetFirstScrollCol(4);
    EXPECT_EQ(ErrorOf([&] { table.layout.SumFixedCols(); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(LayoutEngine, ClientAreaIsTheWindowLessTheBars)
{
    Table table(0, 100, 0, 100);
    table.Window(200, 100);
    table.Layout();
    EXPECT_EQ(table.layout.ClientWidth(), 183);
    EXPECT_EQ(table.layout.ClientHeight(), 83);
    table.NoBars();
    table.Layout();
    EXPECT_EQ(table.layout.ClientWidth(), 200);
    EXPECT_EQ(table.layout.ClientHeight(), 100);
}

TEST(LayoutEngine, ClientAreaNeverGoesBelowZero)
{
    Table table(0, 100, 0, 100);
    table.Window(10, 16);
    table.Layout();
    EXPECT_EQ(table.layout.ClientWidth(), 0);
    EXPECT_EQ(table.layout.ClientHeight(), 0);
    table.Window(0, 0);
    table.Layout();
    EXPECT_EQ(table.layout.ClientWidth(), 0);
    EXPECT_EQ(table.layout.ClientHeight(), 0);
}

TEST(LayoutEngine, AWindowBeyond16BitsIsOverflow)
{
    Table table(0, 1, 0, 1);
    table.Window(100, 32768);
    EXPECT_EQ(ErrorOf([&] { table.Layout(); }), ErrorNumber::Overflow);
    table.Window(32768, 100);
    EXPECT_EQ(ErrorOf([&] { table.Layout(); }), ErrorNumber::Overflow);
    table.Window(32767, 32767);
    EXPECT_EQ(ErrorOf([&] { table.Layout(); }), 0);
}

} // namespace
} // namespace vornix
