// The handle of the split: dragged by a person, drawn by the control.
#include "headless/person_fixture.h"

namespace vornix {
namespace {

class SplitHandle : public PersonTest {
protected:
    SplitHandle()
    {
        Table(60, 30, 1, 1);
        Grid().SetShowSplit(true);
        host->ClearLog();
    }

    HeadlessChild& Handle() { return Child(ChildName::picSplitCol); }
    HeadlessChild& Line() { return Child(ChildName::picSplitMove); }
    PointerLocation::Window WindowBelow() { return host->LocatePointer().window; }
    // The middle of the handle, in the control.
    std::pair<float, float> Grip()
    {
        const Rect place = Handle().Place();
        return { static_cast<float>(place.left + place.Width() / 2),
            static_cast<float>(place.top + place.Height() / 2) };
    }
    void DragTo(float x, i16 button = 1)
    {
        const auto [fromX, fromY] = Grip();
        host->Drag(fromX, fromY, x, fromY, button, 0, 3);
    }
    float LeftOf(i16 Col)
    {
        int left = 0;
        for (i16 col = -1; col < Col; ++col)
            left += Grid().ColWidth(col);
        return static_cast<float>(left);
    }
};

TEST_F(SplitHandle, ADragOfItSplitsTheColumns)
{
    ASSERT_TRUE(Handle().IsUsable());
    DragTo(LeftOf(3) + 5);
    EXPECT_EQ(Said(), (Lines { "SplitCols Cols=3" })) << "and the control hears nothing of the pointer";
    EXPECT_EQ(Grid().SplitCols(), 3);
    EXPECT_FALSE(Line().IsVisible());
}

TEST_F(SplitHandle, TheRightButtonDoesNotDragIt)
{
    DragTo(LeftOf(3) + 5, 2);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_TRUE(host->Log().empty());
}

TEST_F(SplitHandle, ADragFarOutsideSplitsNothing)
{
    EXPECT_EQ(ErrorOf([&] { DragTo(1e30F); }), std::nullopt);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_FALSE(Line().IsVisible());
}

TEST_F(SplitHandle, TheLineFollowsThePointer)
{
    const Rect handle = Handle().Place();
    Handle().MouseDown(1, 0, 3, 4);
    EXPECT_TRUE(Line().IsVisible());
    EXPECT_EQ(Line().Place().left, handle.left + 3);
    Handle().MouseMove(1, 0, 150, 4);
    EXPECT_EQ(Line().Place().left, handle.left + 150);
    EXPECT_EQ(Line().Place().Width(), 2);
    Handle().MouseUp(1, 0, 150, 4);
    EXPECT_FALSE(Line().IsVisible());
}

TEST_F(SplitHandle, TheLineIsThePictureOfTheGridInverted)
{
    Handle().MouseDown(1, 0, 3, 4);
    Handle().MouseMove(1, 0, 150, 4);
    RasterSurface* const canvas = Line().Canvas();
    ASSERT_NE(canvas, nullptr);
    const int left = Line().Place().left;
    for (const int y : { 0, 5, 30, 100 }) {
        for (const int x : { 0, 1 })
            EXPECT_EQ(canvas->GetPixel(x, y), host->Pixel(left + x, y) ^ 0xFFFFFFU) << x << ' ' << y;
    }
}

TEST_F(SplitHandle, ItIsDrawnOnACanvasAsLargeAsItself)
{
    RasterSurface* const canvas = Handle().Canvas();
    ASSERT_NE(canvas, nullptr);
    EXPECT_EQ(canvas->GetSize(), (Size { Handle().Place().Width(), Handle().Place().Height() }));
    constexpr ColorRef Shadow = 0xA0A0A0;
    constexpr ColorRef Highlight = 0xFFFFFF;
    const int middle = Handle().Place().Height() / 2;
    EXPECT_EQ(canvas->GetPixel(0, middle), 0xF0F0F0u);
    EXPECT_EQ(canvas->GetPixel(1, middle), Highlight);
    EXPECT_EQ(canvas->GetPixel(3, middle), Shadow);
    EXPECT_EQ(canvas->GetPixel(4, middle), 0x000000u);
}

TEST_F(SplitHandle, ItsCanvasGrowsWithIt)
{
    const int before = Handle().Place().Height();
    DragTo(LeftOf(3) + 5);
    ASSERT_GT(Handle().Place().Height(), before) << "over the cells it is as high as they are";
    RasterSurface* const canvas = Handle().Canvas();
    EXPECT_EQ(canvas->GetSize().height, Handle().Place().Height());
    EXPECT_EQ(canvas->GetPixel(4, Handle().Place().Height() - 1), 0x000000u);
}

TEST_F(SplitHandle, ACanvasHasTheScaleOfTheWindow)
{
    HeadlessOptions options;
    options.scale = 2;
    Make(options);
    Table(60, 30, 1, 1);
    Grid().SetShowSplit(true);
    EXPECT_EQ(Handle().Canvas()->Pixels().width, 2 * Handle().Place().Width());
}

TEST_F(SplitHandle, WindowsThatTheControlDoesNotDrawHaveNoCanvas)
{
    for (const ChildName name : { ChildName::scrV, ChildName::scrH, ChildName::txtTmp, ChildName::cboTmp,
             ChildName::fraEdit, ChildName::cPivot })
        EXPECT_EQ(Child(name).Canvas(), nullptr);
    Handle().Move({ 5, 5, 5, 20 });
    EXPECT_EQ(Handle().Canvas(), nullptr) << "nor has an empty one";
}

TEST_F(SplitHandle, AHandlerMayCloseTheControlWhenItIsLetGo)
{
    handlers.OnSplitCols = [&](i16) { host->Close(); };
    EXPECT_EQ(ErrorOf([&] { DragTo(LeftOf(3) + 5); }), std::nullopt);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(SplitHandle, TheCornerBetweenTheBarsTakesTheFocusForTheControl)
{
    const Rect corner = Child(ChildName::cPivot).Place();
    ASSERT_TRUE(Child(ChildName::cPivot).IsUsable());
    host->ClickAt(static_cast<float>(corner.left + 5), static_cast<float>(corner.top + 5));
    EXPECT_TRUE(host->HasFocus());
    EXPECT_TRUE(host->Log().empty());
    host->Press("a");
    EXPECT_EQ(SaidNames(), (Lines { "KeyDown", "KeyPress", "KeyUp" }));
}

} // namespace
} // namespace vornix
