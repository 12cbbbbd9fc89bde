// The handle of the split under a person's pointer.
#include "interact/mouse_fixture.h"

#include "vornix/memory_stores.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr ChildName Handle = ChildName::picSplitCol;

// 400 by 200 with both bars of 17: 383 by 183 for a fixed column of 30 and columns of 120 that scroll.
class SplitDragTest : public MouseTest {
protected:
    SplitDragTest() { Begin(20); }

    void Begin(i16 cols)
    {
        SmallWindow(100, cols);
        Child(Handle).Move({ 0, 0, 6, 17 });
        Grid().SetShowSplit(true);
        Grid().Refresh();
        host->ClearLog();
    }

    HeadlessChild& Line() { return Child(ChildName::picSplitMove); }
    int HandleLeft() { return Child(Handle).Place().left; }
    // Places in the client area, as the handle tells them.
    void Press(float x, i16 button = 1) { Grid().ChildMouseDown(Handle, button, OnHandle(x), 5); }
    void Move(float x) { Grid().ChildMouseMove(Handle, 1, 0, OnHandle(x), 5); }
    void Release(float x, i16 button = 1) { Grid().ChildMouseUp(Handle, button, OnHandle(x), 5); }
    void DragTo(float x)
    {
        Press(static_cast<float>(HandleLeft() + 3));
        Move(x);
        Release(x);
    }
    bool IsPainted()
    {
        const RgbaImage shown = host->Image();
        Grid().Refresh();
        return host->Image().bytes == shown.bytes;
    }

private:
    float OnHandle(float x) { return x - static_cast<float>(HandleLeft()); }
};

// -- The line --

TEST_F(SplitDragTest, ALineFollowsThePointer)
{
    EXPECT_FALSE(Line().IsVisible());
    Press(3);
    EXPECT_TRUE(Line().IsVisible());
    EXPECT_EQ(Line().Place(), (Rect { 3, 0, 5, 183 }));
    Move(200);
    EXPECT_EQ(Line().Place(), (Rect { 200, 0, 202, 183 }));
    Move(-40);
    EXPECT_EQ(Line().Place(), (Rect { -40, 0, -38, 183 }));
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_EQ(host->Repaints(), 0);
    Release(200);
    EXPECT_FALSE(Line().IsVisible());
}

TEST_F(SplitDragTest, TheLineIsDrawnAnewWhereverItGoes)
{
    const auto isInverted = [this] {
        const Device* const canvas = Line().Canvas();
        const int left = Line().Place().left;
        for (int y = 0; canvas && y < 183; ++y) {
            if (canvas->GetPixel(1, y) != (host->Pixel(left + 1, y) ^ 0xFFFFFF))
                return false;
        }
        return canvas != nullptr;
    };
    for (i16 Row = 0; Row < 8; ++Row)
        Grid().SetCellBackColor(Row, 1, 0x123456 + Row);
    Press(3);
    EXPECT_TRUE(isInverted());
    Move(200);
    EXPECT_TRUE(isInverted());
    Move(40);
    EXPECT_TRUE(isInverted());
}

TEST_F(SplitDragTest, WithoutAPressThereIsNoDrag)
{
    Move(200);
    EXPECT_FALSE(Line().IsVisible());
    Release(200);
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_EQ(Grid().SplitCols(), 0);
}

TEST_F(SplitDragTest, TheRightButtonDoesNotDrag)
{
    Press(3, 2);
    EXPECT_FALSE(Line().IsVisible());
    Press(3);
    Release(200, 2);
    EXPECT_TRUE(Line().IsVisible());
    EXPECT_THAT(Said(), IsEmpty());
    Release(200);
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=1"));
}

TEST_F(SplitDragTest, OtherButtonsDo)
{
    Press(3, 4);
    Release(200, 4);
    EXPECT_EQ(Grid().SplitCols(), 1);
}

TEST_F(SplitDragTest, OtherChildrenDragNothing)
{
    Grid().ChildMouseDown(ChildName::cPivot, 1, 1, 1);
    EXPECT_FALSE(Line().IsVisible());
    Grid().SetEnabled(false);
    Press(3);
    EXPECT_FALSE(Line().IsVisible()) << "nobody is heard";
}

// -- The split --

TEST_F(SplitDragTest, TheColumnUnderThePointerIsTheFirstThatScrolls)
{
    DragTo(200); // column 1 lies from 150 to 269
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=1"));
    EXPECT_EQ(Grid().SplitCols(), 1);
    EXPECT_EQ(Grid().FirstCol(), 1);
    EXPECT_EQ(Child(Handle).Place(), (Rect { 147, 0, 153, 183 }));
    EXPECT_TRUE(Child(Handle).IsVisible());
    EXPECT_EQ(host->HorizontalBar().Place().left, 0);
    EXPECT_TRUE(IsPainted());
    EXPECT_THAT(host->PropertyChanges(), IsEmpty());
}

TEST_F(SplitDragTest, ColumnsBeforeAScrolledViewStandStillToo)
{
    Grid().SetScrollHBar(vxScrollTrack);
    Grid().SetFirstCol(1);
    host->ClearLog();
    DragTo(160); // column 2 lies from 150 to 269
    EXPECT_EQ(Grid().SplitCols(), 2);
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_EQ(Child(Handle).Place().left, 267);
}

TEST_F(SplitDragTest, OnAFixedColumnTheSplitEnds)
{
    Grid().SetSplitCols(2);
    host->ClearLog();
    DragTo(10);
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=0"));
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(Child(Handle).Place(), (Rect { 0, 183, 6, 200 })) << "beside the bar again";
    EXPECT_TRUE(IsPainted());
}

TEST_F(SplitDragTest, OnItsOwnPlaceItIsToldAgain)
{
    Grid().SetSplitCols(1);
    Grid().SetFirstCol(2);
    host->ClearLog();
    Press(149);
    Release(151);
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=2")) << "column 2 stands behind the split one";
    DragTo(160);
    EXPECT_EQ(Grid().SplitCols(), 1);
    DragTo(160);
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=1", "SplitCols Cols=1"));
}

TEST_F(SplitDragTest, BehindTheLastColumnsButThreeNothingHappens)
{
    Begin(4);
    DragTo(280); // column 2 lies from 270 to 389
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_EQ(host->Repaints(), 0);
    DragTo(160);
    EXPECT_EQ(Grid().SplitCols(), 1);
    Said();
    DragTo(280);
    EXPECT_EQ(Grid().SplitCols(), 1);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(SplitDragTest, WhereNoColumnIsNothingHappens)
{
    Grid().SetSplitCols(1);
    host->ClearLog();
    for (const float x : { -20.0F, 384.0F, 2000.0F }) {
        DragTo(x);
        EXPECT_EQ(Grid().SplitCols(), 1) << x;
    }
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_FALSE(Line().IsVisible());
}

TEST_F(SplitDragTest, ASpanIsNotCut)
{
    Grid().SetColSpan(90, 1, 2);
    host->ClearLog();
    DragTo(280); // column 2
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_THAT(Said(), IsEmpty());
    DragTo(160); // where it begins
    EXPECT_EQ(Grid().SplitCols(), 1);
}

TEST_F(SplitDragTest, NorIsOneInTheFixedRows)
{
    Grid().SetColSpan(-1, 0, 2);
    host->ClearLog();
    DragTo(160);
    EXPECT_THAT(Said(), IsEmpty());
    Grid().SetColSpan(-1, 0, 0);
    Grid().SetRowSpan(2, 1, 3); // within the column
    host->ClearLog();
    DragTo(160);
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=1"));
}

TEST_F(SplitDragTest, ASplitThatLeavesNoRoomEndsAndIsToldAsNone)
{
    Grid().SetScrollHBar(vxScrollTrack);
    Grid().SetColWidth(0, 380);
    Grid().SetFirstCol(1);
    host->ClearLog();
    DragTo(60); // 30 and 380 would stand still
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=0"));
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_TRUE(IsPainted());
}

TEST_F(SplitDragTest, ColumnsTooWideForASumAreAnOverflow)
{
    Grid().SetScrollHBar(vxScrollTrack);
    for (i16 Col = 0; Col < 2; ++Col)
        Grid().SetColWidth(Col, 20000);
    Grid().SetFirstCol(2);
    host->ClearLog();
    EXPECT_EQ(ErrorOf([&] { DragTo(60); }), ErrorNumber::Overflow);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(SplitDragTest, TheOffsetOfSmoothScrollingEnds)
{
    host->HorizontalBar().Notify(5, 50);
    host->ClearLog();
    DragTo(160); // column 1, from 100 on
    EXPECT_EQ(Grid().SplitCols(), 1);
    EXPECT_EQ(host->HorizontalBar().Value(), 0);
    EXPECT_TRUE(IsPainted());
    i32 x = 0, y = 0;
    Grid().GetPositionCell(0, 2, x, y);
    EXPECT_EQ(x, 270 * 15);
}

TEST_F(SplitDragTest, UnderACaptionTheColumnsAreFoundBelowIt)
{
    Grid().SetFixedRows(2);
    Grid().SetCaptionEnabled(true);
    host->ClearLog();
    DragTo(280);
    EXPECT_EQ(Grid().SplitCols(), 2);
    EXPECT_EQ(Child(Handle).Place().top, 21);
}

TEST_F(SplitDragTest, ATableWithoutRowsIsSplitToo)
{
    MouseTable(0, 20);
    DragTo(160);
    EXPECT_EQ(Grid().SplitCols(), 1);
}

TEST_F(SplitDragTest, WhileNothingIsDrawnTheSplitIsStored)
{
    Grid().SetRedraw(false);
    host->ClearLog();
    DragTo(160);
    EXPECT_EQ(Grid().SplitCols(), 1);
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(Grid().SplitCols(), 1);
}

// -- The members --

TEST_F(SplitDragTest, TheHandleShowsAndGoesWithTheSetting)
{
    Grid().SetShowSplit(false);
    EXPECT_FALSE(Child(Handle).IsVisible());
    EXPECT_EQ(host->HorizontalBar().Place(), (Rect { 0, 182, 383, 200 }));
    Grid().SetShowSplit(true);
    EXPECT_TRUE(Child(Handle).IsVisible());
    EXPECT_EQ(Child(Handle).Place(), (Rect { 0, 183, 6, 200 }));
    EXPECT_EQ(host->HorizontalBar().Place(), (Rect { 6, 182, 383, 200 }));
    EXPECT_THAT(host->PropertyChanges(), ElementsAre("ShowSplit", "ShowSplit"));
}

TEST_F(SplitDragTest, WithoutABarThereIsNoHandle)
{
    Begin(2);
    EXPECT_FALSE(Grid().IsVisibleScrollH());
    Grid().SetShowSplit(false);
    Grid().SetShowSplit(true);
    EXPECT_FALSE(Child(Handle).IsVisible());
}

// No release comes to a handle that is gone, nor to a control that does not hear it.
TEST_F(SplitDragTest, TheLineGoesWithTheHandle)
{
    Press(3);
    Grid().SetCols(1);
    EXPECT_FALSE(Child(Handle).IsVisible());
    EXPECT_FALSE(Line().IsVisible());

    Begin(20);
    Press(3);
    Grid().SetShowSplit(false);
    EXPECT_FALSE(Line().IsVisible());

    Begin(20);
    Press(3);
    Grid().SetEnabled(false);
    EXPECT_FALSE(Line().IsVisible());

    Begin(20);
    Press(3);
    Grid().ReadProperties(MemoryBag());
    EXPECT_FALSE(Line().IsVisible());
}

TEST_F(SplitDragTest, PlacesBeyond16BitsAreOnlyFarAway)
{
    Press(3);
    Grid().ChildMouseMove(Handle, 1, 0, 1e9F, 5);
    EXPECT_TRUE(Line().IsVisible());
    Grid().ChildMouseUp(Handle, 1, 1e9F, 5);
    EXPECT_FALSE(Line().IsVisible());
    EXPECT_EQ(Grid().SplitCols(), 0);
}

TEST_F(SplitDragTest, AnyChangeOfTheSettingDropsTheSplit)
{
    DragTo(280);
    ASSERT_EQ(Grid().SplitCols(), 2);
    Grid().SetShowSplit(false);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_FALSE(Child(Handle).IsVisible());
    EXPECT_TRUE(IsPainted());
}

// -- Handlers --

class SplitHandlersTest : public SplitDragTest {
protected:
    void OnSplit(const std::function<void()>& step)
    {
        handlers.OnSplitCols = [step](i16) { step(); };
    }
};

TEST_F(SplitHandlersTest, TheControlIsClosed)
{
    OnSplit([this] { host->Close(); });
    DragTo(160);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(SplitHandlersTest, TheSplitIsSwitchedOff)
{
    OnSplit([this] { Grid().SetShowSplit(false); });
    DragTo(160);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_FALSE(Child(Handle).IsVisible());
    EXPECT_TRUE(IsPainted());
}

TEST_F(SplitHandlersTest, TheHostSplitsElsewhere)
{
    OnSplit([this] { Grid().SetSplitCols(2); });
    DragTo(160);
    EXPECT_EQ(Grid().SplitCols(), 2);
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_TRUE(IsPainted());
}

TEST_F(SplitHandlersTest, TheColumnsAreDeleted)
{
    OnSplit([this] { Grid().SetCols(1); });
    DragTo(280);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_TRUE(IsPainted());
}

TEST_F(SplitHandlersTest, DrawingIsSwitchedOff)
{
    OnSplit([this] { Grid().SetRedraw(false); });
    DragTo(160);
    EXPECT_EQ(host->Repaints(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(Grid().SplitCols(), 1);
}

TEST_F(SplitHandlersTest, TheTableIsReadAnew)
{
    MemoryBag bag;
    bag.WriteProperty("Cols", 3);
    OnSplit([&] { Grid().ReadProperties(bag); });
    DragTo(280);
    EXPECT_EQ(Grid().Cols(), 3);
    EXPECT_EQ(Grid().SplitCols(), 0);
}

TEST_F(SplitHandlersTest, TheHandleIsDraggedAgainInside)
{
    int depth = 0;
    OnSplit([&] {
        if (++depth < 3)
            DragTo(160);
    });
    DragTo(280);
    EXPECT_EQ(depth, 3);
    EXPECT_FALSE(Line().IsVisible());
    EXPECT_EQ(Grid().FirstCol(), Grid().SplitCols());
}

TEST_F(SplitHandlersTest, DuringTheDragTheSettingGoes)
{
    Press(3);
    Grid().SetShowSplit(false);
    Release(160);
    EXPECT_FALSE(Line().IsVisible());
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(SplitHandlersTest, DuringTheDragTheColumnsGo)
{
    Press(3);
    Move(160);
    Grid().SetFixedCols(0);
    Grid().SetCols(0);
    Move(170);
    Release(160);
    EXPECT_FALSE(Line().IsVisible());
    EXPECT_EQ(Grid().SplitCols(), 0);
}

} // namespace
} // namespace vornix
