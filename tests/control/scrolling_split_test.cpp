// A split that makes no sense any more takes the view back with it, and the bar follows.
#include "control/scroll_fixture.h"

namespace vornix {
namespace {

class DroppedSplits : public ScrollTest {
protected:
    DroppedSplits() { host->Child("picSplitCol").Move({ 0, 0, 6, 17 }); }
    void ExpectAtTheStart()
    {
        EXPECT_EQ(Grid().FirstCol(), 0);
        EXPECT_EQ(SmoothOffset(), 0);
        EXPECT_EQ(H().Value(), 0) << "the bar stands where the view does";
    }
    bool IsPainted()
    {
        const RgbaImage shown = host->Image();
        Grid().Refresh();
        return host->Image().bytes == shown.bytes;
    }
};

TEST_F(DroppedSplits, WhoseHandleLiesOutsideWhenItIsShownTakeTheOffset)
{
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(4);
    ASSERT_EQ(host->Child("picSplitCol").Place().left, 30 + 4 * 120 - 3);
    Grid().SetShowSplit(false);
    host->Resize(300, 480);
    DragTo(H(), 34);
    ASSERT_EQ(SmoothOffset(), -34);
    Grid().SetShowSplit(true);
    ExpectAtTheStart();
    EXPECT_TRUE(IsPainted());
}

TEST_F(DroppedSplits, OfAWindowWithoutWidthTakeTheOffset)
{
    Grid().SetShowSplit(true);
    DragTo(H(), 34);
    ASSERT_EQ(SmoothOffset(), -34);
    host->Resize(17, 480);
    ASSERT_TRUE(Grid().IsVisibleScrollH());
    ASSERT_FLOAT_EQ(Grid().GetScaleWidth(), 0);
    ExpectAtTheStart();
    host->Resize(640, 480);
    ExpectAtTheStart();
    EXPECT_TRUE(IsPainted());
}

TEST_F(DroppedSplits, OfAWindowWithoutWidthGoWhateverLaysItOut)
{
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(2);
    DragTo(H(), 150);
    host->Resize(17, 480);
    EXPECT_EQ(Grid().SplitCols(), 0);
    ExpectAtTheStart();
    Grid().SetColWidth(1, 60);
    ExpectAtTheStart();
}

TEST_F(DroppedSplits, InNormalModeLeaveTheFirstShownColumnAtTheBar)
{
    Grid().SetScrollHBar(vxNormalScroll);
    Grid().SetShowSplit(true);
    Grid().SetColHide(0, true);
    host->Resize(17, 480);
    EXPECT_EQ(H().Min(), 2);
    EXPECT_EQ(H().Value(), 2);
    EXPECT_EQ(Grid().FirstCol(), 1);
}

TEST_F(DroppedSplits, LeaveNoPlaceOfNegativeSizeInTheSmallestWindow)
{
    Grid().SetShowSplit(true);
    for (const int width : { 22, 19, 17, 16, 3, 1, 0 }) {
        host->Resize(width, 480);
        EXPECT_GE(H().Place().Width(), 0) << width;
        EXPECT_GE(V().Place().Height(), 0) << width;
        EXPECT_GE(host->Child("picSplitCol").Place().Width(), 0) << width;
    }
    Grid().SetCaptionEnabled(true);
    Grid().SetRowHeight(-1, 60);
    for (const int height : { 78, 77, 61, 60, 20, 0 }) {
        host->Resize(640, height);
        EXPECT_GE(V().Place().Height(), 0) << height;
        EXPECT_GE(host->Child("picSplitCol").Place().Height(), 0) << height;
    }
}

} // namespace
} // namespace vornix
