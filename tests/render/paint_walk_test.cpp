#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(PaintWalkTest, PaintsRowByRowWithFixedCellsFirst)
{
    FakePaintTable table({ 130, 65 }, 1, 2, 1, 2);
    table.ColorEveryCell();
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,0 @ 0,0,30,25", "0,1 @ 30,0,80,25", "0,2 @ 80,0,130,25", "1,0 @ 0,25,30,45", "1,1 @ 30,25,80,45",
            "1,2 @ 80,25,130,45", "2,0 @ 0,45,30,65", "2,1 @ 30,45,80,65", "2,2 @ 80,45,130,65"));
}

TEST(PaintWalkTest, ScrolledLinesAreLeftOutBehindTheFixedOnes)
{
    FakePaintTable table({ 90, 50 }, 1, 5, 1, 5);
    table.ColorEveryCell();
    table.scroll.SetFirstRow(4);
    table.scroll.SetFirstCol(3);
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,0 @ 0,0,30,25", "0,3 @ 30,0,80,25", "0,4 @ 80,0,130,25", "4,0 @ 0,25,30,45", "4,3 @ 30,25,80,45",
            "4,4 @ 80,25,130,45", "5,0 @ 0,45,30,65", "5,3 @ 30,45,80,65", "5,4 @ 80,45,130,65"));
}

TEST(PaintWalkTest, SplitColumnsStayBetweenFixedAndScrollingOnes)
{
    FakePaintTable table({ 140, 20 }, 0, 1, 1, 6);
    table.ColorEveryCell();
    table.layout.SetFirstScrollCol(2);
    table.layout.SetFrozenColsWidth(80);
    table.scroll.SetFirstCol(4);
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,0 @ 0,0,30,20", "0,1 @ 30,0,80,20", "0,4 @ 80,0,130,20", "0,5 @ 130,0,180,20"));
}

TEST(PaintWalkTest, LastColCountsWholeColumnsAndOneMoreIsPainted)
{
    FakePaintTable table({ 120, 50 }, 0, 10, 0, 10);
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.scroll.LastCol(), 1);
    EXPECT_EQ(table.pipeline.PaintLastCol(), 2);
    EXPECT_EQ(table.scroll.LastRow(), 1);
    EXPECT_EQ(table.pipeline.PaintLastRow(), 2);
}

TEST(PaintWalkTest, LinesThatEndExactlyAtTheEdgeAreWhole)
{
    FakePaintTable table({ 100, 40 }, 0, 10, 0, 10);
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.scroll.LastCol(), 1);
    EXPECT_EQ(table.scroll.LastRow(), 1);
}

TEST(PaintWalkTest, TheLastLineIsNeverPassed)
{
    FakePaintTable table({ 1000, 1000 }, 1, 3, 1, 2);
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.scroll.LastCol(), 2);
    EXPECT_EQ(table.pipeline.PaintLastCol(), 2);
    EXPECT_EQ(table.scroll.LastRow(), 3);
    EXPECT_EQ(table.pipeline.PaintLastRow(), 3);
}

TEST(PaintWalkTest, LastRowNeverLiesBeforeFirstRow)
{
    FakePaintTable table({ 100, 15 }, 0, 10, 0, 1);
    table.scroll.SetFirstRow(4); // 20 pixels high, taller than the window
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.scroll.LastRow(), 4);
    EXPECT_EQ(table.pipeline.PaintLastRow(), 5);
}

TEST(PaintWalkTest, LastColNeverLiesBeforeFirstCol)
{
    FakePaintTable table({ 30, 50 }, 0, 1, 0, 10);
    table.scroll.SetFirstCol(3);
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.scroll.LastCol(), 3);
    EXPECT_EQ(table.pipeline.PaintLastCol(), 4);
}

TEST(PaintWalkTest, AGapTakesTheWindowsBackgroundColour)
{
    FakePaintTable table({ 200, 100 }, 0, 2, 0, 3);
    table.Window().SetBkColor(0x123456);
    table.pipeline.Settings.BackColor = 0x654321;
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_THAT(table.StoreLines(), testing::Contains("FillRect 150,0,200,100 #123456"));
    EXPECT_THAT(table.StoreLines(), testing::Contains("FillRect 0,40,200,100 #123456"));
    EXPECT_EQ(table.screen->Count("#654321"), 0);
}

TEST(PaintWalkTest, TheGapAtTheRightIsFilledBeforeTheCellsAndTheOneBelowAfterThem)
{
    FakePaintTable table({ 80, 30 }, 0, 1, 0, 1);
    table.ColorEveryCell();
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    const std::vector<std::string> lines = table.StoreLines();
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], "FillRect 50,0,80,30 #FFFFFF");
    EXPECT_EQ(lines[2].substr(0, 18), "BitBlt 0,0,50,20 f");
    EXPECT_EQ(lines[3], "FillRect 0,20,80,30 #FFFFFF");
}

TEST(PaintWalkTest, WithASmoothOffsetAStripIsNotFilledAgain)
{
    FakePaintTable table({ 200, 20 }, 0, 1, 0, 3);
    table.layout.SetSmoothOffset(-12);
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    // Columns end at 150 - 12; the fill begins one offset farther right.
    EXPECT_THAT(table.StoreLines(), testing::Contains("FillRect 150,0,200,20 #FFFFFF"));
}

TEST(PaintWalkTest, ASmoothOffsetCutsTheFirstScrollingColumn)
{
    FakePaintTable table({ 130, 20 }, 0, 1, 1, 5);
    table.ColorEveryCell();
    table.scroll.SetFirstCol(2);
    table.layout.SetSmoothOffset(-12);
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,0 @ 0,0,30,20", "0,2 @ 30,0,80,20 from 12,0", "0,3 @ 68,0,118,20", "0,4 @ 118,0,168,20"));
    EXPECT_EQ(table.scroll.LastCol(), 3);
}

TEST(PaintWalkTest, FillerLinesTakeTheGapsUnderAdjustLast)
{
    FakePaintTable table({ 130, 50 }, 1, 1, 0, 2);
    table.AdjustLast(true, true);
    table.ColorEveryCell();
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,0 @ 0,0,50,25", "0,1 @ 50,0,100,25", "0,2 @ 100,0,130,25", "1,0 @ 0,25,50,45",
            "1,1 @ 50,25,100,45", "1,2 @ 100,25,130,45", "2,0 @ 0,45,50,50", "2,1 @ 50,45,100,50",
            "2,2 @ 100,45,130,50"));
    EXPECT_EQ(table.pipeline.PaintLastCol(), 2);
    EXPECT_EQ(table.pipeline.PaintLastRow(), 2);
    EXPECT_EQ(table.store.ColumnAt(2).Width, 30);
    EXPECT_EQ(table.store.RowAt(2).Height, 5);
    EXPECT_EQ(table.scroll.LastCol(), 1);
    EXPECT_EQ(table.scroll.LastRow(), 1);
}

TEST(PaintWalkTest, FillerCellsPaintWithTheLooksOfTheLastEntries)
{
    FakePaintTable table({ 130, 50 }, 1, 1, 0, 1);
    table.BackColor(1, 0, 0x112233);
    table.AdjustLast(true, true);
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    // The filler column copies the colour of its neighbour; the fixed one keeps the face of a header.
    EXPECT_EQ(table.screen->Count("FillRect 0,0,80,20 #112233"), 1);
    EXPECT_EQ(table.screen->Count("FillRect 0,0,80,25 #F0F0F0"), 1);
    EXPECT_EQ(table.screen->Count("FillRect 0,0,80,5 #FFFFFF"), 1);
}

TEST(PaintWalkTest, NoGapNoFiller)
{
    FakePaintTable table({ 50, 20 }, 0, 1, 0, 1);
    table.AdjustLast(true, true);
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.pipeline.PaintLastCol(), 0);
    EXPECT_EQ(table.pipeline.PaintLastRow(), 0);
}

TEST(PaintWalkTest, OneDirectionCanBeAdjustedAlone)
{
    FakePaintTable table({ 80, 50 }, 0, 1, 0, 1);
    table.AdjustLast(false, true);
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.pipeline.PaintLastCol(), 1);
    EXPECT_EQ(table.pipeline.PaintLastRow(), 0);
    EXPECT_THAT(table.StoreLines(), testing::Contains("FillRect 0,20,80,50 #FFFFFF"));
}

TEST(PaintWalkTest, CellsOfAHiddenRunAreJumpedOver)
{
    FakePaintTable table({ 50, 100 }, 0, 6, 0, 1);
    table.ColorEveryCell();
    HiddenLines hidden(table.store);
    hidden.HideRow(2);
    hidden.HideRow(3);
    EXPECT_THAT(
        table.Repainted(), ElementsAre("0,0 @ 0,0,50,20", "1,0 @ 0,20,50,40", "4,0 @ 0,40,50,60", "5,0 @ 0,60,50,80"));
}

TEST(PaintWalkTest, HiddenColumnsTakeNoRoom)
{
    FakePaintTable table({ 100, 20 }, 0, 1, 0, 3);
    table.ColorEveryCell();
    HiddenLines(table.store).HideCol(1);
    EXPECT_THAT(table.Repainted(), ElementsAre("0,0 @ 0,0,50,20", "0,2 @ 50,0,100,20"));
}

TEST(PaintWalkTest, AHiddenFirstRowIsPassedThrough)
{
    FakePaintTable table({ 50, 65 }, 1, 3, 0, 1);
    table.ColorEveryCell();
    HiddenLines(table.store).HideRow(1);
    EXPECT_THAT(table.Repainted(), ElementsAre("0,0 @ 0,0,50,25", "2,0 @ 0,25,50,45", "3,0 @ 0,45,50,65"));
}

TEST(PaintWalkTest, TheCaptionIsPaintedAcrossTheWholeControl)
{
    FakePaintTable table({ 130, 45 }, 1, 1, 1, 2);
    table.ColorEveryCell();
    table.layout.Settings.CaptionEnabled = true;
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,1 @ 0,0,130,25", "1,0 @ 0,25,30,45", "1,1 @ 30,25,80,45", "1,2 @ 80,25,130,45"));
}

TEST(PaintWalkTest, TheCaptionDoesNotScroll)
{
    FakePaintTable table({ 130, 45 }, 1, 1, 1, 5);
    table.ColorEveryCell();
    table.layout.Settings.CaptionEnabled = true;
    table.scroll.SetFirstCol(3);
    table.layout.SetSmoothOffset(-10);
    EXPECT_EQ(table.Repainted().front(), "0,1 @ 0,0,130,25");
}

TEST(PaintWalkTest, TheDragFollowsTheRealLastLines)
{
    FakePaintTable table({ 200, 200 }, 0, 3, 0, 2);
    table.AdjustLast(true, true);
    table.pipeline.RepaintGrid();
    EXPECT_THAT(table.interaction.ranges, ElementsAre(CellIndex { 2, 1 }));
}

TEST(PaintWalkTest, ATableWithoutColumnsPaintsTheFillerAlone)
{
    FakePaintTable table({ 100, 20 }, 0, 1, 1, 0);
    table.AdjustLast(false, true);
    table.ColorEveryCell();
    EXPECT_THAT(table.Repainted(), ElementsAre("0,0 @ 0,0,30,20", "0,1 @ 30,0,100,20"));
}

TEST(PaintWalkTest, ATableWithoutAnyRowIsAllGap)
{
    FakePaintTable table({ 100, 20 }, 0, 0, 0, 0);
    EXPECT_THAT(table.Repainted(), IsEmpty());
    EXPECT_THAT(table.StoreLines(), testing::Contains("FillRect 0,0,100,20 #FFFFFF"));
}

TEST(PaintWalkTest, WithoutABackStoreTheWalkStillFindsTheLastLines)
{
    FakePaintTable table({ 120, 50 }, 0, 10, 0, 10);
    table.pipeline.Release();
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.scroll.LastCol(), 1);
    EXPECT_EQ(table.scroll.LastRow(), 1);
    EXPECT_THAT(table.Journal(), IsEmpty());
}

TEST(PaintWalkTest, AFirstPaintBeforeAnyLayoutRunsWithTheMetricsAsTheyAre)
{
    const auto screen = std::make_shared<FakeScreen>();
    GridStore store;
    ScrollModel scroll(store);
    LayoutEngine layout(store, scroll);
    RedrawGate gate;
    PaintInteraction interaction;
    PaintEvents events;
    PlainContainer container(std::make_unique<FakeDevice>(screen, "window", Size { 50, 50 }), { 50, 50 });
    PaintPipeline pipeline({ store, layout, scroll, gate, interaction, container, events });
    pipeline.PaintMessage();
    EXPECT_TRUE(pipeline.Repainted());
    EXPECT_EQ(pipeline.Repaints(), 1);
}

} // namespace
} // namespace vornix
