#include "control/grid_fixture.h"

#include <stdexcept>

namespace vornix {
namespace {

// Handlers that do what handlers should not: none of it may bring the control down.
class Handlers : public GridTest {
protected:
    // Rows of cells that raise DrawCell.
    void CustomTable(i16 rows = 6, i16 cols = 4)
    {
        Table(rows, cols, 1, 1);
        Grid().SetRedraw(false);
        for (i16 row = 0; row < rows; ++row)
            Grid().SetRowStyle(row, vxCustomDraw);
        Grid().SetRedraw(true);
        host->ClearLog();
    }
    // Runs a step in the first DrawCell only.
    void OnFirstDraw(std::function<void(Hdc&, bool&)> step)
    {
        drawn = 0;
        handlers.OnDrawCell = [this, step](i16, i16, Hdc& hdc, bool& bCancel) {
            if (drawn++ == 0)
                step(hdc, bCancel);
        };
    }
    void MakeVirtual(i16 page)
    {
        bag.WriteProperty("VirtualPageSize", i32(page));
        bag.WriteProperty("Rows", i32(page));
        bag.WriteProperty("Cols", 3);
        HeadlessOptions options;
        options.bag = &bag;
        options.show = false;
        Make(options);
    }

    MemoryBag bag;
    int drawn = 0;
};

TEST_F(Handlers, DrawCellIsRaisedForEachCustomCellWithPublicIndices)
{
    CustomTable(2, 2);
    std::vector<CellPlace> places;
    handlers.OnDrawCell = [&](i16 Row, i16 Col, Hdc& hdc, bool& bCancel) {
        places.push_back({ Row, Col });
        EXPECT_NE(DeviceFromHandle(hdc), nullptr);
        EXPECT_FALSE(bCancel);
        EXPECT_TRUE(Grid().IsInCall());
    };
    Grid().Refresh();
    EXPECT_THAT(places,
        testing::IsSupersetOf({ CellPlace { 0, 0 }, CellPlace { 0, 1 }, CellPlace { 1, 0 }, CellPlace { 1, 1 } }));
    EXPECT_FALSE(Grid().IsInCall());
}

TEST_F(Handlers, WhatAHandlerDrawsIsTheCell)
{
    CustomTable();
    handlers.OnDrawCell = [&](i16 Row, i16 Col, Hdc& hdc, bool& bCancel) {
        if (Row != 1 || Col != 1)
            return;
        DeviceFromHandle(hdc)->FillRect({ 0, 0, 120, 21 }, 0x123456);
        bCancel = true;
    };
    Grid().SetText(1, 1, u"never seen");
    Grid().Refresh();
    for (const int x : { 150, 200, 269 })
        EXPECT_EQ(host->Pixel(x, 50), 0x123456u);
    EXPECT_NE(host->Pixel(100, 50), 0x123456u);
}

TEST_F(Handlers, DrawCellWritesWithoutPaintingAgain)
{
    CustomTable();
    handlers.OnDrawCell = [&](i16 Row, i16 Col, Hdc&, bool&) {
        Grid().SetKey(Row, Col, u"drawn");
        Grid().SetText(Row, Col, u"drawn");
        Grid().SetCellForeColor(Row, Col, 0x0000FF);
        Grid().SetBackColor(Grid().BackColor() + 1);
    };
    Grid().Refresh();
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_EQ(Grid().Text(5, 3), u"drawn");
}

TEST_F(Handlers, DrawCellShrinksTheTableToNothing)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) {
        Grid().SetRows(0);
        Grid().SetCols(0);
    });
    Grid().Refresh();
    EXPECT_EQ(Grid().Rows(), 0);
    EXPECT_EQ(Grid().Cols(), 0);
    Grid().Refresh();
    Grid().SetRows(3);
    EXPECT_EQ(Grid().Rows(), 3);
}

TEST_F(Handlers, DrawCellOfOneRefreshedCellShrinksTheTable)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) { Grid().SetRows(0); });
    Grid().SetText(5, 3, u"last");
    EXPECT_EQ(drawn, 1);
    EXPECT_EQ(Grid().Rows(), 0);
}

// A refresh of a line ends where its line is gone; a rectangle's next column may be one that is not there any more.
TEST_F(Handlers, DrawCellShrinksTheTableDuringLineRefreshes)
{
    const std::pair<std::function<void()>, std::function<void()>> cases[] = {
        { [&] { Grid().SetColForeColor(1, 1); }, [&] { Grid().SetRows(1); } },
        { [&] { Grid().SetRowForeColor(1, 1); }, [&] { Grid().SetCols(1); } },
        { [&] { Grid().SetColForeColor(1, 1); }, [&] { Grid().SetCols(0); } },
        { [&] { Grid().SetCellsForeColor(0, 0, 5, 3, 1); }, [&] { Grid().SetFixedRows(0); } },
        { [&] { Grid().SetCellsForeColor(0, 0, 5, 3, 1); }, [&] { Grid().SetCols(0); } },
    };
    for (const auto& [refresh, shrink] : cases) {
        Make({});
        CustomTable();
        OnFirstDraw([step = shrink](Hdc&, bool&) { step(); });
        const std::optional<int> error = ErrorOf(refresh);
        EXPECT_TRUE(!error || error == 9) << *error;
        EXPECT_GE(drawn, 1);
        Grid().Refresh();
        EXPECT_FALSE(ErrorOf([&] { Grid().SetRowForeColor(0, 2); }));
    }
}

TEST_F(Handlers, DrawCellTakesTheRefreshedLineAway)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) { Grid().SetRows(1); });
    EXPECT_FALSE(ErrorOf([&] { Grid().SetRowForeColor(3, 1); }));
    EXPECT_EQ(drawn, 1);
    Make({});
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) { Grid().SetCols(1); });
    EXPECT_FALSE(ErrorOf([&] { Grid().SetColForeColor(3, 1); }));
}

TEST_F(Handlers, DrawCellGrowsTheTable)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) {
        Grid().SetRows(3000);
        Grid().SetCols(50);
        Grid().SetFixedRows(3);
    });
    Grid().Refresh();
    EXPECT_EQ(Grid().Rows(), 3000);
    Grid().Refresh();
    EXPECT_TRUE(Grid().IsVisibleRow(5));
}

TEST_F(Handlers, DrawCellMergesHidesAndScrolls)
{
    CustomTable(40, 10);
    OnFirstDraw([&](Hdc&, bool&) {
        Grid().SetColSpan(2, 1, 3);
        Grid().SetRowSpan(2, 1, 4);
        Grid().HideRow(1, 3);
        Grid().HideCol(0);
        Grid().SetFirstRow(15);
        Grid().SetRowHeight(5, 0);
        Grid().SpanRows(0);
        Grid().ResetGrid();
        Grid().ReOrderCols();
    });
    Grid().Refresh();
    Grid().Refresh();
    EXPECT_EQ(Grid().FirstRow(), 15);
}

TEST_F(Handlers, DrawCellClosesTheControl)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) {
        host->Close();
        EXPECT_TRUE(Grid().IsTerminated());
        EXPECT_EQ(ErrorOf([&] { Grid().Rows(); }), 5);
    });
    Grid().Refresh();
    EXPECT_EQ(drawn, 1) << "no event after the end";
    EXPECT_EQ(ErrorOf([&] { Grid().Refresh(); }), 5);
}

TEST_F(Handlers, DrawCellClosesTheControlInEveryKindOfPaint)
{
    const std::function<void()> paints[] = { [&] { Grid().SetText(1, 1, u"x"); }, [&] { Grid().SetRowForeColor(1, 1); },
        [&] { Grid().SetColForeColor(1, 1); }, [&] { Grid().SetCellsForeColor(0, 0, 3, 3, 1); },
        [&] { host->Resize(500, 300); }, [&] { Grid().SetDefaultBkColor(1); }, [&] { Grid().SetRows(9); },
        [&] { Grid().SetFirstRow(3); }, [&] { Grid().RefreshCell(0, 0); }, [&] { Grid().SpanRows(0); },
        [&] { Grid().SetRedraw(false), Grid().SetRedraw(true); }, [&] { Grid().SetPicture(MakePicture(1)); },
        [&] { Grid().SetColFont(0, MakeFont(u"Serif", 9)); } };
    for (const auto& paint : paints) {
        Make({});
        CustomTable();
        OnFirstDraw([&](Hdc&, bool&) { host->Close(); });
        paint();
        EXPECT_EQ(drawn, 1);
        EXPECT_TRUE(Grid().IsTerminated());
    }
}

TEST_F(Handlers, DrawCellAsksForAnotherPaint)
{
    CustomTable();
    handlers.OnDrawCell = [&](i16 Row, i16 Col, Hdc&, bool&) {
        Grid().SetDefaultForeColor(Grid().DefaultForeColor() + 1);
        Grid().RefreshCell(Row, Col);
        Grid().Refresh();
        host->Paint();
    };
    Grid().Refresh();
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(Handlers, DrawCellTogglesRedraw)
{
    CustomTable();
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) {
        Grid().SetRedraw(false);
        Grid().SetRedraw(true);
    };
    Grid().Refresh();
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_TRUE(Grid().Redraw());
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) { Grid().SetRedraw(false); };
    Grid().Refresh();
    EXPECT_FALSE(Grid().Redraw());
    host->ClearLog();
    Grid().SetBackColor(1);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(Handlers, DrawCellResizesTheWindow)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) { host->Resize(900, 700); });
    Grid().Refresh();
    EXPECT_EQ(host->Repaints(), 2) << "the new size is painted when the first paint is over";
    EXPECT_EQ(host->Window().GetSize(), (Size { 900, 700 }));
    OnFirstDraw([&](Hdc&, bool&) { host->Resize(200, 100); });
    Grid().SetText(1, 1, u"x");
    EXPECT_EQ(host->Window().GetSize(), (Size { 200, 100 }));
    OnFirstDraw([&](Hdc&, bool&) { Grid().SetBorderStyle(vxInset); });
    Grid().Refresh();
    EXPECT_EQ(host->Window().GetSize(), (Size { 196, 96 }));
}

TEST_F(Handlers, DrawCellResizesTheWindowEveryTime)
{
    CustomTable();
    int width = 640;
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) { host->Resize(++width, 480); };
    Grid().Refresh();
    Grid().Refresh();
    EXPECT_GT(width, 680);
    handlers.OnDrawCell = nullptr;
    Grid().Refresh();
    EXPECT_EQ(host->Window().GetSize().width, width);
}

TEST_F(Handlers, DrawCellChangesPictures)
{
    CustomTable();
    Grid().SetPicture(MakePicture(0x0000FF));
    int turn = 0;
    handlers.OnDrawCell = [&](i16 Row, i16 Col, Hdc&, bool&) {
        Grid().SetPicture(++turn % 2 ? nullptr : MakePicture(static_cast<ColorRef>(turn)));
        Grid().SetPictureBrightness(static_cast<i32>(turn % 101));
        Grid().SetOpacity(static_cast<i16>(turn % 100 + 1));
        Grid().SetCellPicture(Row, Col, MakePicture(1));
    };
    Grid().Refresh();
    EXPECT_EQ(turn, 6 * 5);
}

TEST_F(Handlers, DrawCellReplacesItsDeviceAndGivesItBack)
{
    CustomTable();
    handlers.OnDrawCell = [&](i16, i16, Hdc& hdc, bool& bCancel) {
        hdc = 12345;
        bCancel = true;
    };
    Grid().Refresh();
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Handlers, AnErrorInDrawCellComesOutAndLeavesTheGateAsItWas)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) { Grid().Text(1000, 0); });
    EXPECT_EQ(ErrorOf([&] { Grid().Refresh(); }), 9);
    EXPECT_FALSE(Grid().IsInCall());
    host->ClearLog();
    Grid().SetBackColor(1);
    EXPECT_EQ(host->Repaints(), 1);
    OnFirstDraw([&](Hdc&, bool&) { throw std::runtime_error("handler"); });
    EXPECT_THROW(Grid().Refresh(), std::runtime_error);
    Grid().Refresh();
    EXPECT_EQ(Grid().Rows(), 6);
}

TEST_F(Handlers, AnErrorInAClosingHandlerComesOut)
{
    CustomTable();
    OnFirstDraw([&](Hdc&, bool&) {
        host->Close();
        throw std::runtime_error("closed");
    });
    EXPECT_THROW(Grid().Refresh(), std::runtime_error);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(Handlers, PopulateGridShrinksTheTable)
{
    MakeVirtual(8);
    handlers.OnPopulateGrid = [&](i32, i16, i16) { Grid().SetRows(0); };
    host->Show();
    EXPECT_EQ(Grid().Rows(), 0);
    EXPECT_EQ(Grid().VirtualPageSize(), 0);
    Grid().Refresh();
    EXPECT_EQ(host->Count("PopulateGrid"), 1);
}

TEST_F(Handlers, PopulateGridChangesStructureAndAppearance)
{
    MakeVirtual(8);
    handlers.OnPopulateGrid = [&](i32, i16, i16 last) {
        Grid().SetFixedRows(2);
        Grid().SetFixedCols(1);
        Grid().SetCols(12);
        Grid().SetColSpan(0, 0, 3);
        Grid().SetColBackColor(1, 0x00FFFF);
        Grid().SetText(last, 11, u"end");
        Grid().SetCaptionEnabled(true);
        Grid().SetCaption(u"Title");
    };
    host->ClearLog();
    host->Show();
    EXPECT_EQ(Grid().Text(7, 11), u"end");
    EXPECT_EQ(Grid().Text(-2, 0), u"Title");
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(Handlers, PopulateGridClosesTheControl)
{
    MakeVirtual(8);
    handlers.OnPopulateGrid = [&](i32, i16, i16) { host->Close(); };
    host->ClearLog();
    host->Show();
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(ErrorOf([&] { host->Show(); }), 5);

    MakeVirtual(8);
    handlers.OnPopulateGrid = nullptr;
    host->Show();
    handlers.OnPopulateGrid = [&](i32, i16, i16) { host->Close(); };
    Grid().Refresh();
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(Handlers, PopulateGridRefreshesFromWithin)
{
    MakeVirtual(8);
    int depth = 0;
    handlers.OnPopulateGrid = [&](i32, i16, i16) {
        if (++depth < 4)
            Grid().Refresh();
    };
    host->Show();
    EXPECT_EQ(depth, 4);
    EXPECT_TRUE(Grid().Redraw());
}

TEST_F(Handlers, AnErrorInPopulateGridComesOutAndOpensTheGateAgain)
{
    MakeVirtual(8);
    handlers.OnPopulateGrid = [&](i32, i16, i16) { throw AutomationError(ErrorNumber::TypeMismatch); };
    EXPECT_EQ(ErrorOf([&] { host->Show(); }), 13);
    host->ClearLog();
    Grid().SetBackColor(1);
    EXPECT_EQ(host->Repaints(), 1);
}

} // namespace
} // namespace vornix
