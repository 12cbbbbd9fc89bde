#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(PaintPipelineTest, ARepaintEndsInOneCopyOfTheWholeScaleArea)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_THAT(table.WindowLines(), ElementsAre("BitBlt 0,0,100,50 from mem1 0,0 SRCCOPY"));
    EXPECT_EQ(table.Journal().back(), "window.BitBlt 0,0,100,50 from mem1 0,0 SRCCOPY");
    EXPECT_TRUE(table.pipeline.Repainted());
}

TEST(PaintPipelineTest, TheCopyCoversTheStripsOfTheBars)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.layout.Settings.ScrollHBar = vxScrollSmooth;
    table.layout.Settings.ScrollVBar = vxScrollTrack;
    table.Layout();
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.layout.ClientWidth(), 83);
    EXPECT_EQ(table.WindowLines().back(), "BitBlt 0,0,100,50 from mem1 0,0 SRCCOPY");
}

TEST(PaintPipelineTest, SurfacesOfCellsAreGivenBack)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.screen->surfacesAlive, 2); // window and back store
}

TEST(PaintPipelineTest, AWindowThatShowsTheBackStoreIsNotCopiedTo)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.Window().ShowEveryPicture();
    table.interaction.current = { 1, 1 };
    table.pipeline.Settings.FocusRect = vxFocusLight;
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.WindowLines(), IsEmpty());
    EXPECT_EQ(table.screen->Count("mem1.DrawFocusRect"), 2); // once for each time the cell was painted
}

TEST(PaintPipelineTest, ARefreshPaintsOntoControlAndBackStore)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.ColorEveryCell();
    table.pipeline.RepaintGrid();
    table.ClearJournal();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.CellsOn("window"), ElementsAre("1,1 @ 50,20,100,40"));
    EXPECT_THAT(table.CellsOn("mem1"), ElementsAre("1,1 @ 50,20,100,40"));
}

TEST(PaintPipelineTest, TheFocusMarkIsMirroredToo)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.interaction.current = { 1, 1 };
    table.pipeline.Settings.FocusRect = vxFocusHeavy;
    table.pipeline.RepaintGrid();
    table.ClearJournal();
    table.pipeline.RefreshOneCell(1, 1);
    for (const std::string device : { "window", "mem1" }) {
        EXPECT_EQ(table.screen->Count(device + ".DrawFocusRect 50,20,99,39"), 1);
        EXPECT_EQ(table.screen->Count(device + ".DrawFocusRect 51,21,98,38"), 1);
    }
}

TEST(PaintPipelineTest, ARefreshFindsTheCellWithoutAWalkHavingBeenThere)
{
    FakePaintTable table({ 200, 100 }, 1, 10, 1, 10);
    table.ColorEveryCell();
    table.scroll.SetFirstRow(3);
    table.scroll.SetFirstCol(4);
    table.layout.SetSmoothOffset(-5);
    table.pipeline.RepaintGrid();
    table.pipeline.ResetCache();
    table.ClearJournal();
    table.pipeline.RefreshOneCell(5, 6);
    table.pipeline.RefreshOneCell(3, 4);
    table.pipeline.RefreshOneCell(0, 0);
    EXPECT_THAT(
        table.CellsOn("window"), ElementsAre("5,6 @ 125,65,175,85", "3,4 @ 30,25,80,45 from 5,0", "0,0 @ 0,0,30,25"));
}

TEST(PaintPipelineTest, ARefreshAgreesWithTheRepaintForEveryCell)
{
    FakePaintTable table({ 230, 130 }, 1, 10, 1, 10);
    table.ColorEveryCell();
    table.scroll.SetFirstRow(3);
    table.scroll.SetFirstCol(4);
    table.layout.SetSmoothOffset(-5);
    const std::vector<std::string> repainted = table.Repainted();
    table.ClearJournal();
    for (int row = 0; row <= table.pipeline.PaintLastRow(); row = row == 0 ? 3 : row + 1) {
        for (int col = 0; col <= table.pipeline.PaintLastCol(); col = col == 0 ? 4 : col + 1)
            table.pipeline.RefreshOneCell(row, col);
    }
    EXPECT_EQ(table.CellsOn("window"), repainted);
}

TEST(PaintPipelineTest, RowsFarOutsideAreNotTouched)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.pipeline.RepaintGrid();
    table.ClearJournal();
    table.pipeline.RefreshIfInRange(3, 0); // the last row painted is 2
    table.pipeline.RefreshIfInRange(0, 3);
    EXPECT_THAT(table.Journal(), IsEmpty());
    EXPECT_EQ(table.pipeline.Refreshes(), 0);
    table.pipeline.RefreshIfInRange(2, 2);
    EXPECT_EQ(table.pipeline.Refreshes(), 1);
}

TEST(PaintPipelineTest, ACellScrolledOutAboveIsCutOffByItsPosition)
{
    FakePaintTable table({ 100, 50 }, 0, 10, 0, 10);
    table.ColorEveryCell();
    table.scroll.SetFirstRow(4);
    table.pipeline.RepaintGrid();
    table.ClearJournal();
    table.pipeline.RefreshIfInRange(1, 0);
    EXPECT_THAT(table.CellsOn("window"), IsEmpty());
    EXPECT_EQ(table.pipeline.Refreshes(), 1);
    EXPECT_TRUE(table.pipeline.CellRect().IsEmpty());
}

TEST(PaintPipelineTest, ARowRefreshPassesOverSplitColumns)
{
    FakePaintTable table({ 200, 50 }, 0, 10, 1, 10);
    table.ColorEveryCell();
    table.layout.SetFirstScrollCol(3);
    table.layout.SetFrozenColsWidth(130);
    table.scroll.SetFirstCol(5);
    table.pipeline.RepaintGrid();
    table.ClearJournal();
    table.pipeline.RefreshRowCells(1);
    EXPECT_THAT(table.CellsOn("window"), ElementsAre("1,0 @ 0,20,30,40", "1,5 @ 130,20,180,40", "1,6 @ 180,20,230,40"));
}

TEST(PaintPipelineTest, AColumnRefreshTakesFixedAndVisibleRows)
{
    FakePaintTable table({ 100, 60 }, 1, 10, 0, 10);
    table.ColorEveryCell();
    table.scroll.SetFirstRow(4);
    table.pipeline.RepaintGrid();
    table.ClearJournal();
    table.pipeline.RefreshColCells(1);
    EXPECT_THAT(table.CellsOn("window"), ElementsAre("0,1 @ 50,0,100,25", "4,1 @ 50,25,100,45", "5,1 @ 50,45,100,65"));
}

TEST(PaintPipelineTest, CountsRepaintsAndRefreshedCells)
{
    FakePaintTable table({ 100, 40 }, 0, 10, 0, 10);
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.pipeline.Repaints(), 1);
    EXPECT_EQ(table.pipeline.Refreshes(), 0);
    table.pipeline.RefreshRowCells(0);
    EXPECT_EQ(table.pipeline.Refreshes(), 3);
    table.pipeline.RefreshColCells(0);
    EXPECT_EQ(table.pipeline.Refreshes(), 6);
    table.pipeline.RefreshOneCell(0, 0);
    EXPECT_EQ(table.pipeline.Refreshes(), 7);
    table.pipeline.ClearCounters();
    EXPECT_EQ(table.pipeline.Repaints(), 0);
    EXPECT_EQ(table.pipeline.Refreshes(), 0);
}

TEST(PaintPipelineTest, ReportsWhatChanged)
{
    FakePaintTable table({ 120, 50 }, 0, 10, 0, 10);
    table.pipeline.RepaintGrid();
    EXPECT_THAT(table.container.changes, ElementsAre(Rect { 0, 0, 120, 50 }));
    table.container.changes.clear();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.container.changes, ElementsAre(Rect { 50, 20, 100, 40 }));
    table.container.changes.clear();
    table.pipeline.RefreshRowCells(2);
    EXPECT_THAT(table.container.changes, ElementsAre(Rect { 0, 40, 120, 50 }));
    table.container.changes.clear();
    table.scroll.SetFirstRow(5);
    table.pipeline.ResetCache();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.container.changes, IsEmpty());
}

TEST(PaintPipelineTest, ACoveredCellChangesNothing)
{
    FakePaintTable table({ 120, 50 }, 0, 10, 0, 10);
    table.Span(0, 0, 2, 2);
    table.pipeline.RepaintGrid();
    table.container.changes.clear();
    table.ClearJournal();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.Journal(), IsEmpty());
    EXPECT_THAT(table.container.changes, IsEmpty());
    EXPECT_EQ(table.pipeline.Refreshes(), 1);
}

TEST(PaintPipelineTest, AnIndexOutsideTheStoreIsError9)
{
    FakePaintTable table({ 120, 50 }, 0, 3, 0, 3);
    try {
        table.pipeline.RefreshOneCell(5, 0);
        FAIL() << "No error was raised.";
    } catch (const AutomationError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::SubscriptOutOfRange);
    }
    // The failed paint is over: the next one works.
    table.pipeline.RefreshOneCell(0, 0);
    EXPECT_EQ(table.container.changes.size(), 1u);
}

TEST(PaintPipelineTest, ThePaintMessageCopiesTheBackStore)
{
    FakePaintTable table({ 120, 50 }, 0, 3, 0, 3);
    table.pipeline.RepaintGrid();
    table.ClearJournal();
    table.container.changes.clear();
    table.pipeline.PaintMessage();
    EXPECT_THAT(table.Journal(), ElementsAre("window.BitBlt 0,0,120,50 from mem1 0,0 SRCCOPY"));
    EXPECT_EQ(table.pipeline.Repaints(), 1);
    // The container asked for it: a report would ask it to ask again.
    EXPECT_THAT(table.container.changes, IsEmpty());
}

TEST(PaintPipelineTest, ThePaintMessageFillsTheStripsAtThePlacesOfTheBars)
{
    FakePaintTable table({ 120, 50 }, 0, 3, 0, 3);
    table.container.Child(ChildName::scrH).Move({ 0, 33, 103, 50 });
    table.container.Child(ChildName::scrV).Move({ 103, 0, 120, 33 });
    table.container.Child(ChildName::scrV).Show(true);
    table.ClearJournal();
    table.pipeline.PaintMessage();
    EXPECT_THAT(table.WindowLines(), Contains("FillRect 103,0,120,33 #F0F0F0"));
    EXPECT_EQ(table.screen->Count("0,33,103,50"), 0);
    table.container.Child(ChildName::scrH).Show(true);
    table.pipeline.PaintMessage();
    EXPECT_THAT(table.WindowLines(), Contains("FillRect 0,33,103,50 #F0F0F0"));
}

TEST(PaintPipelineTest, TheBackStoreOnlyGrows)
{
    FakePaintTable table({ 120, 50 }, 0, 3, 0, 3);
    table.pipeline.ResizeBackStore({ 60, 50 });
    EXPECT_EQ(table.BackStore().GetSize(), (Size { 120, 50 }));
    table.pipeline.ResizeBackStore({ 300, 20 });
    EXPECT_EQ(table.BackStore().GetSize(), (Size { 300, 50 }));
}

TEST(PaintPipelineTest, ANewBackStoreIsNeverShownAsItComes)
{
    FakePaintTable table({ 120, 50 }, 0, 3, 0, 3);
    table.Window().SetBkColor(0x123456);
    table.ClearJournal();
    table.pipeline.ResizeBackStore({ 300, 50 });
    EXPECT_EQ(table.Journal().back(), "mem2.FillRect 0,0,300,50 #123456");
}

TEST(PaintPipelineTest, WithoutMemoryNothingIsShownAndNothingFails)
{
    FakePaintTable table({ 120, 50 }, 0, 3, 0, 3);
    table.screen->surfacesLeft = 0;
    table.pipeline.ResizeBackStore({ 1200, 500 });
    EXPECT_EQ(table.pipeline.BackStore(), nullptr);
    table.ClearJournal();
    table.pipeline.RepaintGrid();
    table.pipeline.RefreshOneCell(0, 0);
    table.pipeline.PaintMessage();
    EXPECT_EQ(table.screen->Count("BitBlt"), 0);
}

TEST(PaintPipelineTest, ReleaseGivesBackEverySurface)
{
    FakePaintTable table({ 120, 50 }, 0, 3, 0, 3);
    table.pipeline.SetPicture(SolidPicture(4, 4));
    table.interaction.selected = [](const Cell&, int, int, bool) { return true; };
    table.pipeline.Settings.Opacity = 50;
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.screen->surfacesAlive, 4); // window, back store, background, selection
    table.pipeline.Release();
    EXPECT_EQ(table.screen->surfacesAlive, 1);
    EXPECT_EQ(table.pipeline.BackStore(), nullptr);
    EXPECT_EQ(table.pipeline.Settings.Picture, nullptr);
}

} // namespace
} // namespace vornix
