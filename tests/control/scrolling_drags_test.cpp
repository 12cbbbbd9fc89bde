// Drags of the thumb that do not end as they began: in another range, in another mode, with Redraw off.
#include "control/scroll_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScrollDrags : public ScrollTest {
protected:
    ScrollDrags() { Grid().SetScrollVBar(vxNormalScroll); }
};

TEST_F(ScrollDrags, ATableThatShrinksMeanwhileTakesTheThumbAlong)
{
    handlers.OnScrollTrackRow = [&](i16) { Grid().SetRows(40); };
    V().Notify(ThumbTrack, 80);
    V().Notify(EndScroll);
    EXPECT_EQ(V().Max(), 20);
    EXPECT_EQ(V().Value(), 20);
    EXPECT_EQ(Grid().FirstRow(), 19);
    EXPECT_EQ(Grid().LastRow(), 39);
}

TEST_F(ScrollDrags, ATableThatShrinksBetweenTheStepsDoesToo)
{
    Grid().SetScrollVBar(vxScrollTrack);
    V().Notify(ThumbTrack, 80);
    Grid().SetRows(40);
    V().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstRow(), 19);
    Grid().SetRows(5);
    ASSERT_FALSE(V().IsVisible());
    V().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstRow(), 0);
}

TEST_F(ScrollDrags, EndWithTheUnitOfTheBar)
{
    H().Notify(ThumbTrack, 1234);
    Grid().SetScrollHBar(vxNormalScroll);
    EXPECT_EQ(Grid().FirstCol(), 10);
    host->ClearLog();
    H().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstCol(), 10) << "pixels are no columns";
    EXPECT_THAT(Said(), IsEmpty());
    DragTo(H(), 9);
    EXPECT_THAT(Said(), ElementsAre("ScrollTrackCol 8", "Scroll")) << "the next one is a new one";
    H().Notify(ThumbTrack, 20);
    Grid().SetScrollHBar(vxScrollSmooth);
    H().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstCol(), 8) << "and columns are no pixels";
    EXPECT_EQ(H().Value(), 8 * 120);
}

TEST_F(ScrollDrags, GoOnBetweenModesOfOneUnit)
{
    Grid().SetScrollHBar(vxNormalScroll);
    H().Notify(ThumbTrack, 20);
    Grid().SetScrollHBar(vxScrollTrack);
    H().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstCol(), 19);
}

TEST_F(ScrollDrags, EndInsideTheirOwnEvent)
{
    Grid().SetScrollHBar(vxNormalScroll);
    handlers.OnScrollTrackCol = [&](i16) { Grid().SetScrollHBar(vxScrollSmooth); };
    H().Notify(ThumbTrack, 9);
    const i32 value = H().Value();
    H().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(H().Value(), value);
}

// Handlers of painting run behind a closed gate: the bar learns of the mode at the next notification.
TEST_F(ScrollDrags, OfABarThatKnowsNothingOfTheModeYetAreReadInTheNewOne)
{
    Table(5, 300, 1, 1);
    H().Notify(ThumbTrack, 33000);
    H().Notify(EndScroll);
    ASSERT_EQ(H().Value(), 33000);
    Grid().SetCellStyle(0, 275, vxCustomDraw);
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) { Grid().SetScrollHBar(vxNormalScroll); };
    Grid().Refresh();
    handlers.OnDrawCell = nullptr;
    ASSERT_EQ(Grid().ScrollHBar(), vxNormalScroll);
    host->ClearLog();
    EXPECT_FALSE(ErrorOf([&] { H().Notify(ThumbTrack, 33000); }));
    EXPECT_FALSE(ErrorOf([&] { H().Notify(EndScroll); }));
    EXPECT_EQ(H().Max(), 296);
    EXPECT_EQ(Grid().FirstCol(), 295) << "the end of the range";
    EXPECT_THAT(Said(), ElementsAre("ScrollTrackCol 295", "Scroll"));
    EXPECT_FALSE(ErrorOf([&] { Do(H(), LineUp); }));
    EXPECT_EQ(Grid().FirstCol(), 293) << "by the step that smooth mode left behind";
}

TEST_F(ScrollDrags, EndWithRedraw)
{
    handlers.OnScrollTrackRow = [&](i16) { Grid().SetRedraw(false); };
    V().Notify(ThumbTrack, 30);
    handlers.OnScrollTrackRow = nullptr;
    V().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstRow(), 0) << "nobody listens";
    Grid().SetRedraw(true);
    host->ClearLog();
    V().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstRow(), 0) << "no drag is going on any more";
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(ScrollDrags, EndWithABarOrAControlThatIsDisabled)
{
    for (const bool ofControl : { false, true }) {
        const auto enable
            = [&](bool enabled) { ofControl ? Grid().SetEnabled(enabled) : Grid().SetScrollVEnabled(enabled); };
        Grid().SetFirstRow(0);
        V().Notify(ThumbTrack, 80);
        enable(false);
        V().Notify(EndScroll);
        enable(true);
        V().Notify(LineDown);
        V().Notify(EndScroll);
        EXPECT_EQ(Grid().FirstRow(), 1) << "the end of a step is not that of the drag";
    }
}

TEST_F(ScrollDrags, AnArrowHeldWhileRedrawWasOffBeginsAnew)
{
    for (int i = 0; i < 4; ++i)
        H().Notify(LineDown);
    ASSERT_EQ(H().Value(), 2 + 4 + 8 + 16);
    Grid().SetRedraw(false);
    Grid().SetRedraw(true);
    H().Notify(LineDown);
    EXPECT_EQ(H().Value(), 32);
}

TEST_F(ScrollDrags, AFixedColumnWiderThanTheWindowLeavesNoOffsetToTheRight)
{
    Grid().SetColWidth(-1, 2000);
    ASSERT_TRUE(Grid().IsVisibleScrollH());
    const i32 codes[] { PageDown, PageUp, PageUp, LineUp, Bottom, PageDown, PageUp, Top, PageUp };
    for (const i32 code : codes) {
        Do(H(), code);
        EXPECT_LE(SmoothOffset(), 0) << code;
        EXPECT_GE(H().Value(), 0) << code;
    }
    EXPECT_EQ(H().Value(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(SmoothOffset(), 0);
}

} // namespace
} // namespace vornix
