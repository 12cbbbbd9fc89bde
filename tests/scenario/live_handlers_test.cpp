// Handlers that do anything at all, at every event that a person's input raises: mouse, bars, wheel, keys, sizing and
// split. Whatever comes out is a grid that still holds together, or an automation error.
#include "support/handler_deeds.h"

namespace vornix {
namespace {

// A deed at the first time that an event is raised, over all that a person can do.
class LiveHandlers : public HandlerDeeds {
protected:
    void FillGrid() override
    {
        Vornix& grid = host->Grid();
        grid.SetRedraw(false);
        grid.SetFixedRows(1);
        grid.SetFixedCols(1);
        grid.SetRows(60);
        grid.SetCols(10);
        for (i16 Col = 0; Col < 10; ++Col)
            grid.SetColWidth(Col, 40);
        grid.SetCellSelection(true);
        grid.SetColMode(1, vxCommandButton);
        grid.SetColMode(2, vxPressButton);
        grid.SetColMode(3, vxCheckBox);
        grid.SetShowSplit(true);
        grid.SetScrollVBar(vxScrollTrack);
        grid.SetCellStyle(1, 0, vxCustomDraw);
        grid.SetCellStyle(-1, 0, vxCustomDraw);
        grid.SetRedraw(true);
        grid.CurrentPos(3, 0);
    }

    Steps AllSteps() override
    {
        return {
            [&] { host->ClickAt(50, 50); },
            [&] { host->DblClickAt(90, 70); },
            [&] { host->ClickAt(130, 50); },
            [&] { host->ClickAt(170, 50); },
            [&] { host->ClickAt(10, 50); },
            [&] { host->ClickAt(10, 90, 1, 2); },
            [&] { host->ClickAt(90, 10, 1, 1); },
            [&] { host->ClickAt(90, 90, 2); },
            [&] { host->Drag(50, 50, 130, 90, 1, 0, 3); },
            [&] { host->Drag(50, 50, 300, 200, 1, 0, 4); },
            [&] { host->Drag(90, 90, -30, -20, 1, 0, 4); },
            [&] { host->Drag(70, 10, 90, 10, 1, 0, 3); },
            [&] { host->Drag(70, 10, 0, 10, 1, 0, 3); },
            [&] { host->Drag(10, 41, 10, 70, 1, 0, 3); },
            [&] { DragSplit(); },
            [&] { host->Wheel(-240); },
            [&] { host->Wheel(120); },
            [&] {
                Notify(ChildName::scrV, { 1, 3, 5, 4, 8, 0, 2 });
            },
            [&] {
                Notify(ChildName::scrH, { 1, 3, 5, 4, 8, 0, 2 });
            },
            [&] { Grid().SetScrollVBar(vxNormalScroll); },
            [&] { Grid().SetScrollHBar(vxNormalScroll); },
            [&] {
                Notify(ChildName::scrV, { 5, 4, 8 });
            },
            [&] {
                Notify(ChildName::scrH, { 5, 4, 8 });
            },
            [&] {
                Keys({ 37, 38, 39, 40, 40, 34, 33, 36, 35, 32 });
            },
            [&] { host->KeyDown(40, 1); },
            [&] { host->KeyDown(36, 2); },
            [&] { host->MouseMove(100, 60); },
            [&] { host->Tick(); },
            [&] { host->Paint(); },
        };
    }

    void DragSplit()
    {
        const Rect handle = host->Child(ChildName::picSplitCol).Place();
        if (!host->Child(ChildName::picSplitCol).IsVisible())
            return;
        Grid().ChildMouseDown(ChildName::picSplitCol, 1, 1, 1);
        Grid().ChildMouseMove(ChildName::picSplitCol, 1, 0, static_cast<float>(60 - handle.left), 1);
        Grid().ChildMouseUp(ChildName::picSplitCol, 1, static_cast<float>(60 - handle.left), 1);
    }

    void Notify(ChildName bar, std::initializer_list<i32> codes)
    {
        HeadlessScrollBar& child = bar == ChildName::scrV ? host->VerticalBar() : host->HorizontalBar();
        for (const i32 code : codes) {
            if (!Grid().IsTerminated())
                child.Notify(code, 5);
        }
    }

    void Keys(std::initializer_list<i16> codes)
    {
        for (const i16 code : codes) {
            if (!Grid().IsTerminated())
                host->KeyDown(code);
        }
    }

    // What holds whatever was done.
    void CheckWhole() override
    {
        Vornix& grid = Grid();
        EXPECT_FALSE(grid.IsInCall());
        const i32 Row = grid.CurrentRow();
        const i16 Col = grid.CurrentCol();
        if (Row != -32767) {
            EXPECT_TRUE(Row >= -grid.FixedRows() && Row < grid.Rows()) << Row;
            EXPECT_TRUE(Col >= -grid.FixedCols() && Col < grid.Cols()) << Col;
        }
        EXPECT_GE(grid.FirstRow(), 0);
        EXPECT_GE(grid.FirstCol(), 0);
        EXPECT_LE(grid.FirstRow(), grid.Rows());
        EXPECT_LE(grid.FirstCol(), grid.Cols());
        EXPECT_GE(grid.SplitCols(), 0);
        EXPECT_LE(grid.SplitCols(), grid.Cols());
        if (grid.Redraw())
            Try([&] { grid.Refresh(); });
    }
};

// Without deeds all of them are raised at least once.
TEST_F(LiveHandlers, AreReachedByAllEventsOfInput)
{
    MakeGrid();
    LiveThroughIt();
    for (const char* const event : { "CellChange", "CellClick", "CellDblClick", "CellDown", "CellOut", "CellOver",
             "CellUp", "Click", "DblClick", "DrawCell", "KeyDown", "MouseDown", "MouseMove", "MouseUp", "ResizeCol",
             "ResizeRow", "Scroll", "ScrollTrackCol", "ScrollTrackRow", "SplitCols", "TextChange", "ValidateRow" })
        EXPECT_GT(host->Count(event), 0) << event;
}

class LiveHandlersOf : public LiveHandlers, public testing::WithParamInterface<const char*> { };

TEST_P(LiveHandlersOf, MayDoAnything)
{
    TryAll(Deeds(), GetParam(), { 1, 3 });
}

INSTANTIATE_TEST_SUITE_P(Input, LiveHandlersOf,
    testing::Values("CellChange", "CellClick", "CellDblClick", "CellDown", "CellOut", "CellOver", "CellUp", "Click",
        "DblClick", "DrawCell", "KeyDown", "MouseDown", "MouseMove", "MouseUp", "ResizeCol", "ResizeRow", "Scroll",
        "ScrollTrackCol", "ScrollTrackRow", "SplitCols", "TextChange", "ValidateRow"),
    [](const auto& event) { return std::string(event.param); });

} // namespace
} // namespace vornix
