#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Lifecycle : public GridTest {
protected:
    // A control that was saved with a page of virtual rows, not shown yet.
    void MakeVirtual(i16 page, bool show = false)
    {
        bag.WriteProperty("VirtualPageSize", i32(page));
        bag.WriteProperty("Rows", i32(page));
        HeadlessOptions options;
        options.bag = &bag;
        options.show = show;
        Make(options);
    }

    MemoryBag bag;
};

TEST_F(Lifecycle, NewControlHasOneRowAndOneColumn)
{
    MakeDesign();
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Grid().Cols(), 1);
    EXPECT_EQ(Grid().FixedRows(), 0);
    EXPECT_EQ(Grid().FixedCols(), 0);
    EXPECT_EQ(Grid().Text(1, 1), u"");
    EXPECT_EQ(ErrorOf([&] { Grid().Text(2, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(0, 2); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().Text(-1, 0); }), 9);
}

TEST_F(Lifecycle, NewControlTakesTheAmbientFontForBothFonts)
{
    MakeDesign();
    EXPECT_EQ(Grid().Font(), host->AmbientFont());
    EXPECT_EQ(Grid().FontFixed(), host->AmbientFont());
    EXPECT_EQ(Grid().CellFontName(0, 0), u"DejaVu Sans");
    EXPECT_EQ(Grid().CellFontSize(0, 0), 9);
}

TEST_F(Lifecycle, NewControlDerivesTheResizeFlags)
{
    MakeDesign();
    EXPECT_TRUE(Grid().ColResize(0));
    EXPECT_TRUE(Grid().RowResize(0));
}

TEST_F(Lifecycle, LoadedControlDerivesTheResizeFlags)
{
    for (const auto& [mode, cols, rows] : { std::tuple(0, false, false), std::tuple(1, false, true),
             std::tuple(2, true, false), std::tuple(3, true, true), std::tuple(7, false, false) }) {
        bag.WriteProperty("ResizeMode", i32(mode));
        HeadlessOptions options;
        options.bag = &bag;
        Make(options);
        EXPECT_EQ(Grid().ColResize(0), cols) << mode;
        EXPECT_EQ(Grid().RowResize(0), rows) << mode;
    }
}

TEST_F(Lifecycle, FirstResizeOpensTheGateAtDesignTime)
{
    MakeDesign();
    EXPECT_GT(host->Repaints(), 0);
    host->ClearLog();
    Grid().SetBackColor(1);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Lifecycle, ResizeAtDesignTimeOpensTheGateWhateverRedrawSays)
{
    MakeDesign();
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetBackColor(1);
    EXPECT_EQ(host->Repaints(), 0);
    host->Resize(600, 400);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetBackColor(2);
    EXPECT_EQ(host->Repaints(), 2);
}

TEST_F(Lifecycle, LoadedWithoutRedrawNothingIsPaintedAtRunTime)
{
    bag.WriteProperty("Redraw", false);
    HeadlessOptions options;
    options.bag = &bag;
    Make(options);
    Grid().SetRows(5);
    host->Resize(100, 100);
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Lifecycle, ShowRaisesPopulateGridOnce)
{
    MakeVirtual(7);
    EXPECT_EQ(host->Count("PopulateGrid"), 0);
    host->Show();
    ASSERT_EQ(host->Log().size(), 1u);
    EXPECT_EQ(host->Log()[0]["Offset"].ToI32(), 0);
    EXPECT_EQ(host->Log()[0]["StartRow"].ToI16(), 0);
    EXPECT_EQ(host->Log()[0]["EndRow"].ToI16(), 6);
    host->Hide();
    host->Show();
    EXPECT_EQ(host->Count("PopulateGrid"), 1);
}

TEST_F(Lifecycle, ShowRaisesNothingWithoutVirtualMode)
{
    EXPECT_THAT(host->Log(), IsEmpty());
}

TEST_F(Lifecycle, ShowRaisesNothingAtDesignTime)
{
    MakeVirtual(7);
    host->SetUserMode(false);
    host->Show();
    EXPECT_THAT(host->Log(), IsEmpty());
}

TEST_F(Lifecycle, ShowRepaintsOnceWhatThePopulateHandlerWrote)
{
    MakeVirtual(3);
    handlers.OnPopulateGrid = [&](i32, i16 first, i16 last) {
        for (i16 row = first; row <= last; ++row)
            Grid().SetText(row, 0, u"filled");
    };
    host->ClearLog();
    host->Show();
    EXPECT_EQ(Grid().Text(2, 0), u"filled");
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(Lifecycle, ShowLeavesTheGateAsRedrawSays)
{
    bag.WriteProperty("Redraw", false);
    MakeVirtual(3);
    host->ClearLog();
    host->Show();
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetText(0, 0, u"x");
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(Lifecycle, ShowShowsTheSplitHandleBesideAVisibleBar)
{
    HeadlessOptions options;
    options.show = false;
    Make(options);
    Grid().SetShowSplit(true);
    host->Show();
    EXPECT_FALSE(host->FindChild("picSplitCol")->IsVisible());
    host->FindChild("scrH")->Show(true);
    host->Show();
    EXPECT_TRUE(host->FindChild("picSplitCol")->IsVisible());
}

TEST_F(Lifecycle, RefreshPopulatesAgainAndRepaintsOnce)
{
    MakeVirtual(3, true);
    handlers.OnPopulateGrid = [&](i32, i16, i16) { Grid().SetText(0, 0, u"again"); };
    host->ClearLog();
    Grid().Refresh();
    ASSERT_EQ(host->Count("PopulateGrid"), 1);
    EXPECT_EQ(host->Log()[0]["EndRow"].ToI16(), 2);
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Lifecycle, RefreshWithoutVirtualModeOnlyLaysOut)
{
    host->ClearLog();
    Grid().Refresh();
    EXPECT_THAT(host->Log(), IsEmpty());
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Lifecycle, RefreshAppliesTheBorderAgain)
{
    Grid().SetBorderStyle(vxInset);
    host->SetExtendedStyle(0);
    Grid().Refresh();
    EXPECT_EQ(host->ExtendedStyle(), 512u);
}

TEST_F(Lifecycle, RefreshCellPaintsEvenWhileRedrawIsOff)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().RefreshCell(0, 0);
    EXPECT_EQ(host->Refreshes(), 1);
    EXPECT_EQ(ErrorOf([&] { Grid().RefreshCell(2, 0); }), 9);
}

TEST_F(Lifecycle, EqualRedrawDoesNothing)
{
    host->ClearLog();
    Grid().SetRedraw(true);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
}

TEST_F(Lifecycle, RedrawOffAndOnRepaintsOnceWithTheNewSize)
{
    Table(3, 2);
    Grid().SetRedraw(false);
    Grid().SetRows(5);
    EXPECT_EQ(Grid().Rows(), 5);
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(Grid().LastRow(), 4);
    EXPECT_THAT(Reported(), ElementsAre("Redraw", "Rows", "Redraw"));
}

TEST_F(Lifecycle, RedrawDrivesTheTimerAtRunTime)
{
    Grid().SetRedraw(false);
    EXPECT_FALSE(host->IsTimerEnabled());
    EXPECT_EQ(host->TimerInterval(), 100);
    Grid().SetRedraw(true);
    EXPECT_TRUE(host->IsTimerEnabled());
    EXPECT_EQ(host->TimerInterval(), 100);
}

TEST_F(Lifecycle, RedrawLeavesTheTimerAloneAtDesignTime)
{
    MakeDesign();
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetRedraw(true);
    EXPECT_FALSE(host->IsTimerEnabled());
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Lifecycle, UserModeIsAskedAtEveryUse)
{
    Grid().SetDefaultForeColor(0x112233);
    EXPECT_NE(Grid().CellForeColor(0, 0), 0x112233u);
    host->SetUserMode(false);
    Grid().SetDefaultForeColor(0x445566);
    EXPECT_EQ(Grid().CellForeColor(0, 0), 0x445566u);
}

TEST_F(Lifecycle, ResizeLaysOutAndRepaintsAtTheNewSize)
{
    Table(3, 2);
    host->Resize(200, 100);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(host->Pixel(199, 99), host->Pixel(150, 99));
    EXPECT_EQ(host->Pixel(200, 99), 0xFFFFFFFFu);
    EXPECT_FLOAT_EQ(Grid().GetScaleWidth(), 200);
}

TEST_F(Lifecycle, PaintMessageCopiesWithoutPaintingCells)
{
    Table(3, 2);
    host->Paint();
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(Lifecycle, MembersOfATerminatedControlRaiseAnError)
{
    host->Close();
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_EQ(ErrorOf([&] { Grid().Rows(); }), 5);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRows(3); }), 5);
    EXPECT_EQ(ErrorOf([&] { Grid().SetText(0, 0, u"x"); }), 5);
    EXPECT_EQ(ErrorOf([&] { Grid().Refresh(); }), 5);
    EXPECT_EQ(ErrorOf([&] { host->Paint(); }), 5);
    EXPECT_EQ(ErrorOf([&] { host->Show(); }), 5);
    EXPECT_EQ(ErrorOf([&] { host->Resize(10, 10); }), 5);
}

TEST_F(Lifecycle, TerminateTwiceIsTerminateOnce)
{
    Grid().SetRedraw(false);
    Grid().SetRedraw(true);
    host->Close();
    EXPECT_FALSE(host->IsTimerEnabled());
    EXPECT_EQ(host->TimerInterval(), 0);
    EXPECT_FALSE(ErrorOf([&] { host->Close(); }));
}

TEST_F(Lifecycle, WithoutATableCountsCannotBeSet)
{
    HeadlessContainer& container = *host;
    Vornix bare(container, handlers);
    EXPECT_EQ(ErrorOf([&] { bare.SetRows(3); }), 9);
    EXPECT_EQ(ErrorOf([&] { bare.SetCols(3); }), 9);
    EXPECT_EQ(ErrorOf([&] { bare.SetFixedRows(3); }), 9);
    EXPECT_EQ(ErrorOf([&] { bare.SetFixedCols(3); }), 9);
    EXPECT_EQ(ErrorOf([&] { bare.Text(0, 0); }), 9);
    EXPECT_FALSE(ErrorOf([&] { bare.Resize(); }));
    EXPECT_FALSE(ErrorOf([&] { bare.Paint(); }));
    EXPECT_FALSE(ErrorOf([&] { bare.SetBackColor(3); }));
    EXPECT_EQ(bare.Repaints(), 0);
}

TEST_F(Lifecycle, AfterABagThatCannotBeReadThereIsNoTable)
{
    MemoryBag faulty;
    faulty.WriteProperty("Rows", i32 { 500 });
    faulty.WriteProperty("Redraw", std::u16string(u"perhaps"));
    EXPECT_EQ(ErrorOf([&] { Grid().ReadProperties(faulty); }), 13);
    EXPECT_EQ(ErrorOf([&] { Grid().SetRows(3); }), 9);
    EXPECT_FALSE(ErrorOf([&] { Grid().Refresh(); }));
    EXPECT_FALSE(ErrorOf([&] { Grid().ReadProperties(MemoryBag()); }));
    EXPECT_EQ(Grid().Rows(), 1);
}

TEST_F(Lifecycle, FocusComesAndGoesWithoutAnEditor)
{
    host->ClearLog();
    host->EnterFocus();
    host->ExitFocus();
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_THAT(host->Log(), IsEmpty());
}

TEST_F(Lifecycle, HandlesAreThoseOfTheWindow)
{
    EXPECT_EQ(Grid().hDC(), host->WindowDevice().Handle());
    EXPECT_EQ(Grid().hWnd(), host->WindowHandle());
}

TEST_F(Lifecycle, ANewControlHasNoCurrentCell)
{
    EXPECT_EQ(Grid().CurrentRow(), -32767);
    EXPECT_EQ(Grid().CurrentCol(), -32767);
}

} // namespace
} // namespace vornix
