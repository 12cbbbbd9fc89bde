// The event in the middle of a cell's painting, and hosts that turn everything upside down in it.
#include "render/paint_table.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace vornix {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class DrawCellTest : public testing::Test {
protected:
    FakePaintTable table { { 80, 65 }, 1, 2, 1, 1 };

    DrawCellTest()
    {
        table.pipeline.Settings.GridLines = vxBoth;
        table.SetText(1, 1, u"a");
        Custom(1, 1);
    }
    void Custom(int row, int col, i32 style = vxCellFlat)
    {
        table.Format(row, col, [&](CellFormat& format) { format.Style = style | vxCustomDraw; });
    }
    void RepaintNoted()
    {
        table.ClearJournal();
        table.pipeline.RepaintGrid();
    }
};

TEST_F(DrawCellTest, CarriesPublicIndices)
{
    Custom(0, 0);
    table.pipeline.RepaintGrid();
    EXPECT_THAT(table.events.drawn, ElementsAre(CellIndex { -1, -1 }, CellIndex { 0, 0 }));
}

TEST_F(DrawCellTest, CarriesTheSurfaceOfTheCell)
{
    table.events.drawCell = [&](i16, i16, Hdc& PictureHdc, bool& bCancel) {
        EXPECT_FALSE(bCancel);
        Device* const device = DeviceFromHandle(PictureHdc);
        ASSERT_NE(device, nullptr);
        EXPECT_EQ(device->GetSize(), (Size { 50, 20 }));
        device->SetPixel(7, 7, 0x010203);
    };
    RepaintNoted();
    EXPECT_EQ(table.screen->Count("SetPixel 7,7 #010203"), 1);
}

TEST_F(DrawCellTest, ComesBetweenGroundAndContent)
{
    table.events.drawCell = [&](i16, i16, Hdc& PictureHdc, bool&) { DeviceFromHandle(PictureHdc)->SetPixel(0, 0, 0); };
    table.pipeline.ResetCache();
    table.ClearJournal();
    table.pipeline.RefreshOneCell(1, 1);
    const std::vector<std::string> lines = table.screen->LinesOf("mem2");
    ASSERT_GE(lines.size(), 4u);
    EXPECT_EQ(lines[0], "FillRect 0,0,50,20 #FFFFFF");
    EXPECT_EQ(lines[1], "SetPixel 0,0 #000000");
    EXPECT_TRUE(lines[2].starts_with("SelectFont"));
}

TEST_F(DrawCellTest, ACancelledCellShowsWhatTheHandlerDrewAndNothingElse)
{
    table.interaction.current = { 1, 1 };
    table.pipeline.Settings.FocusRect = vxFocusLight;
    table.events.drawCell = [](i16, i16, Hdc&, bool& bCancel) { bCancel = true; };
    table.ClearJournal();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.screen->LinesOf("mem2"), ElementsAre("FillRect 0,0,50,20 #FFFFFF"));
    EXPECT_THAT(table.WindowLines(), Contains("BitBlt 30,25,80,45 from mem2 0,0 SRCCOPY"));
    EXPECT_THAT(table.screen->LinesOf("mem1"), IsEmpty()); // no mirror, no mark
    EXPECT_EQ(table.screen->Count("DrawFocusRect"), 0);
    EXPECT_EQ(table.screen->surfacesAlive, 2);
}

TEST_F(DrawCellTest, TheStyleBesideTheBitStillCounts)
{
    Custom(1, 1, vxCellInset);
    RepaintNoted();
    EXPECT_EQ(table.screen->Count("DrawEdge 0,0,50,20 2 F"), 1);
}

TEST_F(DrawCellTest, TheGateIsClosedMeanwhileAndComesBackFromRedraw)
{
    table.gate.Open();
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) { EXPECT_FALSE(table.gate.IsOpen()); };
    table.pipeline.RepaintGrid();
    EXPECT_TRUE(table.gate.IsOpen());
    table.gate.SetRedraw(false);
    table.pipeline.RepaintGrid();
    EXPECT_FALSE(table.gate.IsOpen());
    EXPECT_EQ(table.events.drawn.size(), 2u);
}

TEST_F(DrawCellTest, ASurfaceOfTheHostsOwnIsDrawnOnAndCopied)
{
    FakeDevice own(table.screen, "own", { 50, 20 });
    table.events.drawCell = [&](i16, i16, Hdc& PictureHdc, bool&) { PictureHdc = own.Handle(); };
    table.ClearJournal();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.screen->LinesOf("own"), Contains(StartsWith("DrawText \"a\"")));
    EXPECT_THAT(table.WindowLines(), Contains("BitBlt 30,25,80,45 from own 0,0 SRCCOPY"));
}

TEST_F(DrawCellTest, AHandleThatNamesNothingDrawsNothing)
{
    table.events.drawCell = [&](i16, i16, Hdc& PictureHdc, bool&) { PictureHdc = 0; };
    table.ClearJournal();
    table.pipeline.RefreshOneCell(1, 1);
    EXPECT_THAT(table.WindowLines(), Each(Not(StartsWith("BitBlt"))));
    EXPECT_EQ(table.screen->surfacesAlive, 2);
}

TEST_F(DrawCellTest, WhatTheHandlerWritesInTheCellShowsAtOnce)
{
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.SetText(1, 1, u"changed");
        table.Format(1, 1, [](CellFormat& format) { format.ForeColor = 0x123456; });
    };
    RepaintNoted();
    EXPECT_EQ(table.screen->Count("DrawText \"changed\""), 1);
    EXPECT_EQ(table.screen->Count("SetTextColor #123456"), 1);
}

TEST_F(DrawCellTest, TheHandlerMayDeleteTheRowItDraws)
{
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.store.ResizeRowStore(1);
        table.store.StoreRows(0);
    };
    table.pipeline.RepaintGrid();
    EXPECT_TRUE(table.pipeline.Repainted());
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.screen->surfacesAlive, 2);
}

TEST_F(DrawCellTest, TheHandlerMayDeleteEveryRowAndColumn)
{
    Custom(0, 0);
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.store.ResizeRowStore(0);
        table.store.ResizeColStore(0);
        table.store.StoreRows(0);
        table.store.StoreCols(0);
        table.store.StoreFixedRows(0);
        table.store.StoreFixedCols(0);
    };
    table.pipeline.RepaintGrid();
    EXPECT_TRUE(table.pipeline.Repainted());
    EXPECT_EQ(table.events.drawn.size(), 1u);
}

TEST_F(DrawCellTest, TheHandlerMayAddRowsAndColumns)
{
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.store.ResizeColStore(20);
        table.store.ResizeRowStore(200);
        table.store.InitCols(2, 19);
        table.store.InitRows(2, 199);
    };
    table.pipeline.RepaintGrid();
    EXPECT_TRUE(table.pipeline.Repainted());
}

TEST_F(DrawCellTest, TheHandlerMayScroll)
{
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.scroll.SetFirstRow(2);
        table.scroll.SetFirstCol(2);
    };
    table.pipeline.RepaintGrid();
    EXPECT_TRUE(table.pipeline.Repainted());
}

TEST_F(DrawCellTest, TheHandlerMayCloseTheControl)
{
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) { table.pipeline.Release(); };
    Custom(1, 0);
    RepaintNoted();
    EXPECT_EQ(table.events.drawn.size(), 1u); // nothing more is painted
    EXPECT_EQ(table.screen->surfacesAlive, 1);
    EXPECT_EQ(table.pipeline.BackStore(), nullptr);
    EXPECT_FALSE(table.pipeline.Repainted());
    EXPECT_THAT(table.WindowLines(), IsEmpty());
}

TEST_F(DrawCellTest, TheHandlerMayCloseTheControlDuringARefresh)
{
    table.pipeline.RepaintGrid();
    table.events.drawn.clear();
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) { table.pipeline.Release(); };
    table.ClearJournal();
    table.pipeline.RefreshRowCells(1);
    EXPECT_EQ(table.screen->surfacesAlive, 1);
    EXPECT_EQ(table.events.drawn.size(), 1u);
}

TEST_F(DrawCellTest, ANewSizeWaitsForTheEndOfThePaint)
{
    const Surface* before = table.pipeline.BackStore();
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.pipeline.ResizeBackStore({ 500, 500 });
        EXPECT_EQ(table.pipeline.BackStore(), before);
    };
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.pipeline.BackStore()->GetSize(), (Size { 500, 500 }));
}

TEST_F(DrawCellTest, PaintsInsideAPaintAreDropped)
{
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.pipeline.RepaintGrid();
        table.pipeline.RefreshOneCell(1, 1);
        table.pipeline.RefreshRowCells(1);
    };
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.events.drawn.size(), 1u);
    EXPECT_EQ(table.pipeline.Repaints(), 1);
    EXPECT_EQ(table.pipeline.Refreshes(), 0);
}

TEST_F(DrawCellTest, TheHandlerMayTakeTheBackgroundPictureAway)
{
    table.pipeline.SetPicture(SolidPicture(8, 8));
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) { table.pipeline.SetPicture(nullptr); };
    table.pipeline.RepaintGrid();
    EXPECT_TRUE(table.pipeline.Repainted());
    EXPECT_EQ(table.screen->surfacesAlive, 2);
}

TEST_F(DrawCellTest, AHandlerThatThrowsLeavesEverythingInOrder)
{
    table.gate.Open();
    table.events.drawCell = [](i16, i16, Hdc&, bool&) { throw std::runtime_error("host"); };
    EXPECT_THROW(table.pipeline.RepaintGrid(), std::runtime_error);
    EXPECT_TRUE(table.gate.IsOpen());
    EXPECT_EQ(table.screen->surfacesAlive, 2);
    table.events.drawCell = nullptr;
    table.pipeline.RepaintGrid();
    EXPECT_EQ(table.pipeline.Repaints(), 1);
}

TEST_F(DrawCellTest, AHandlerMayCloseTheControlAndThrow)
{
    table.events.drawCell = [&](i16, i16, Hdc&, bool&) {
        table.pipeline.Release();
        throw std::runtime_error("host");
    };
    EXPECT_THROW(table.pipeline.RepaintGrid(), std::runtime_error);
    EXPECT_EQ(table.screen->surfacesAlive, 1);
    EXPECT_EQ(table.pipeline.BackStore(), nullptr);
}

TEST_F(DrawCellTest, ACellWithoutTheBitRaisesNothing)
{
    table.Format(1, 1, [](CellFormat& format) { format.Style = vxCellFlat; });
    table.pipeline.RepaintGrid();
    EXPECT_THAT(table.events.drawn, IsEmpty());
}

TEST_F(DrawCellTest, ACaptionDrawnByTheHostIsRaisedForEveryColumn)
{
    FakePaintTable caption({ 130, 45 }, 1, 1, 1, 2);
    caption.layout.Settings.CaptionEnabled = true;
    caption.Format(0, 1, [](CellFormat& format) { format.Style = vxCustomDraw; });
    caption.pipeline.RepaintGrid();
    EXPECT_THAT(caption.events.drawn, ElementsAre(CellIndex { -1, 0 }, CellIndex { -1, 0 }, CellIndex { -1, 0 }));
}

} // namespace
} // namespace vornix
