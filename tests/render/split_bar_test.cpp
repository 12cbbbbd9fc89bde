#include "render/split_handle.h"

#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::ElementsAre;

class SplitBarTest : public testing::Test {
protected:
    FakePaintTable table { { 200, 100 }, 1, 10, 1, 10 };

    SplitBarTest()
    {
        table.layout.Settings.ScrollHBar = vxScrollSmooth;
        table.layout.Settings.ShowSplit = true;
        table.Layout();
        Handle().Move({ 0, 83, 6, 100 });
    }
    ChildWindow& Handle() { return table.container.Child(ChildName::picSplitCol); }
    ChildWindow& Bar() { return table.container.Child(ChildName::scrH); }
    void Split(int cols)
    {
        table.layout.SetSplitCols(cols);
        table.layout.SumFixedCols();
    }
};

TEST_F(SplitBarTest, LiesOverTheCellsBehindTheLastSplitColumn)
{
    Split(2);
    table.pipeline.PaintSplitBar();
    EXPECT_EQ(Handle().Place(), (Rect { 127, 0, 133, 83 })); // 30 + 2 * 50 - 3
    EXPECT_EQ(table.layout.Settings.SplitCols, 2);
    EXPECT_EQ(Bar().Place(), (Rect {}));
}

TEST_F(SplitBarTest, BeginsBelowTheCaption)
{
    table.layout.Settings.CaptionEnabled = true;
    table.Layout();
    Split(1);
    table.pipeline.PaintSplitBar();
    EXPECT_EQ(Handle().Place(), (Rect { 77, 25, 83, 83 }));
}

TEST_F(SplitBarTest, WithoutASplitItStandsBesideTheBar)
{
    table.layout.SetFrozenColsWidth(77);
    table.pipeline.PaintSplitBar();
    EXPECT_EQ(Handle().Place(), (Rect { 0, 83, 6, 100 }));
    EXPECT_EQ(Bar().Place(), (Rect { 6, 82, 200, 100 }));
    EXPECT_EQ(table.layout.FrozenColsWidth(), 30);
}

TEST_F(SplitBarTest, ASplitBeyondTheClientAreaIsDropped)
{
    Split(4); // 30 + 200 - 3
    table.layout.SetSmoothOffset(-5);
    table.pipeline.PaintSplitBar();
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
    EXPECT_EQ(table.layout.FirstScrollCol(), 1);
    EXPECT_EQ(table.scroll.FirstCol(), 1);
    EXPECT_EQ(table.layout.SmoothOffset(), 0);
    EXPECT_EQ(Handle().Place().left, 0);
}

TEST_F(SplitBarTest, ASplitWithoutABarIsDropped)
{
    Split(2);
    table.layout.SetHBarHeight(0);
    table.pipeline.PaintSplitBar();
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
    EXPECT_EQ(table.scroll.FirstCol(), 1);
}

TEST_F(SplitBarTest, ASplitOfHiddenColumnsIsDropped)
{
    HiddenLines(table.store).HideCol(1);
    Split(1);
    table.pipeline.PaintSplitBar();
    EXPECT_EQ(table.layout.Settings.SplitCols, 0);
}

TEST_F(SplitBarTest, TheHandleOverTheCellsIsThreeVerticalLines)
{
    FakeDevice handle(table.screen, "handle", { 6, 83 });
    table.ClearJournal();
    DrawSplitHandle(handle, table.container.colors, 83, true);
    EXPECT_THAT(table.screen->LinesOf("handle"),
        ElementsAre("SelectPen #000000 1", "MoveTo 4,0", "LineTo 4,83", "SelectPen #A0A0A0 1", "MoveTo 3,0",
            "LineTo 3,83", "SelectPen #FFFFFF 1", "MoveTo 1,0", "LineTo 1,83"));
}

TEST_F(SplitBarTest, TheHandleBesideTheBarIsAButton)
{
    FakeDevice handle(table.screen, "handle", { 6, 17 });
    table.ClearJournal();
    DrawSplitHandle(handle, table.container.colors, 17, false);
    EXPECT_THAT(table.screen->LinesOf("handle"),
        ElementsAre("SelectPen #000000 1", "MoveTo 4,0", "LineTo 4,16", "LineTo -1,16", "SelectPen #A0A0A0 1",
            "MoveTo 3,1", "LineTo 3,15", "LineTo 0,15", "SelectPen #FFFFFF 1", "MoveTo 2,1", "LineTo 1,1",
            "LineTo 1,15"));
}

} // namespace
} // namespace vornix
