// What the user does with the bars and the wheel: where the view goes, which events are raised, and what the handlers
// may do meanwhile.
#include "control/scroll_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class VerticalScroll : public ScrollTest { };

TEST_F(VerticalScroll, LinesPagesAndEnds)
{
    Grid().SetScrollVBar(vxNormalScroll);
    Do(V(), LineDown);
    EXPECT_EQ(Grid().FirstRow(), 1);
    Do(V(), PageDown);
    EXPECT_EQ(Grid().FirstRow(), 22) << "what came behind the last whole row comes first";
    Do(V(), PageUp);
    EXPECT_EQ(Grid().FirstRow(), 1);
    Do(V(), LineUp);
    Do(V(), LineUp);
    EXPECT_EQ(Grid().FirstRow(), 0);
    Do(V(), Bottom);
    EXPECT_EQ(Grid().LastRow(), 99);
    Do(V(), PageDown);
    EXPECT_EQ(Grid().FirstRow(), 79) << "the last page";
    Do(V(), Top);
    EXPECT_EQ(Grid().FirstRow(), 0);
    Do(V(), PageUp);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(V().Value(), 1);
    EXPECT_EQ(host->Count("Scroll"), 9);
}

TEST_F(VerticalScroll, EachNotificationRepaintsOnce)
{
    V().Notify(LineDown);
    EXPECT_EQ(host->Repaints(), 1);
    V().Notify(EndScroll);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(VerticalScroll, InNormalModeADragMovesNothingUntilTheRelease)
{
    Grid().SetScrollVBar(vxNormalScroll);
    host->ClearLog();
    V().Notify(ThumbTrack, 11);
    V().Notify(ThumbTrack, 41);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(V().Value(), 41);
    EXPECT_THAT(Said(), ElementsAre("ScrollTrackRow 10", "ScrollTrackRow 40"));
    EXPECT_EQ(host->Repaints(), 0);
    V().Notify(ThumbPosition);
    EXPECT_THAT(Said(), IsEmpty());
    V().Notify(EndScroll);
    EXPECT_EQ(Grid().FirstRow(), 40);
    EXPECT_THAT(Said(), ElementsAre("Scroll"));
}

TEST_F(VerticalScroll, InTrackModeEachStepOfADragScrolls)
{
    V().Notify(ThumbTrack, 11);
    EXPECT_EQ(Grid().FirstRow(), 10);
    V().Notify(ThumbTrack, 1000);
    EXPECT_EQ(Grid().FirstRow(), 79) << "the thumb ends with the range";
    EXPECT_THAT(Said(), ElementsAre("Scroll", "Scroll"));
    V().Notify(EndScroll);
    Do(V(), LineUp);
    Do(V(), PageUp);
    EXPECT_THAT(Said(), IsEmpty()) << "what is no drag moves the grid without a word";
    EXPECT_EQ(Grid().FirstRow(), 57);
}

TEST_F(VerticalScroll, StepsOverHiddenRowsInWholeRuns)
{
    Grid().HideRow(1, 5);
    Do(V(), LineDown);
    EXPECT_EQ(Grid().FirstRow(), 6);
    EXPECT_EQ(V().Value(), 7);
    Do(V(), LineUp);
    EXPECT_EQ(Grid().FirstRow(), 0);
    Grid().SetRowHeight(30, 0);
    Grid().HideRow(31, 3);
    Grid().SetFirstRow(29);
    Do(V(), LineDown);
    EXPECT_EQ(Grid().FirstRow(), 34);
    Grid().SetFirstRow(20);
    Grid().SetScrollVBar(vxNormalScroll);
    DragTo(V(), 32);
    EXPECT_EQ(Grid().FirstRow(), 34) << "on from where the view stood";
    DragTo(V(), 33);
    EXPECT_EQ(Grid().FirstRow(), 29) << "back from where the view stood";
}

TEST_F(VerticalScroll, APageThatEndsOnAHiddenRowGoesToTheNextShownOne)
{
    Grid().HideRow(21, 5);
    Do(V(), PageDown);
    EXPECT_EQ(Grid().FirstRow(), 26);
}

class HorizontalScroll : public ScrollTest {
protected:
    // The same table in a control that was saved with this mode.
    void LoadWith(i32 scrollHBar)
    {
        MemoryBag bag;
        bag.values["ScrollHBar"] = scrollHBar;
        HeadlessOptions options;
        options.bag = &bag;
        Make(options);
        Table(100, 30, 1, 1);
    }
};

TEST_F(HorizontalScroll, ByColumns)
{
    LoadWith(vxNormalScroll);
    Do(H(), LineDown);
    EXPECT_EQ(Grid().FirstCol(), 1);
    Do(H(), PageDown);
    EXPECT_EQ(Grid().FirstCol(), 5);
    Do(H(), PageUp);
    EXPECT_EQ(Grid().FirstCol(), 1);
    Do(H(), Bottom);
    EXPECT_EQ(Grid().FirstCol(), 26);
    Do(H(), PageDown);
    EXPECT_EQ(Grid().FirstCol(), 26);
    Do(H(), Top);
    Do(H(), PageUp);
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(H().Value(), 1);
    EXPECT_EQ(host->Count("Scroll"), 7);
}

TEST_F(HorizontalScroll, HiddenColumnsAreSearchedOneByOne)
{
    LoadWith(vxNormalScroll);
    for (i16 col = 2; col <= 4; ++col)
        Grid().HideCol(col);
    Grid().SetFirstCol(1);
    Do(H(), LineDown);
    EXPECT_EQ(Grid().FirstCol(), 5);
    EXPECT_EQ(H().Value(), 6);
    Do(H(), LineUp);
    EXPECT_EQ(Grid().FirstCol(), 1);
    DragTo(H(), 4);
    EXPECT_EQ(Grid().FirstCol(), 5);
    DragTo(H(), 4);
    EXPECT_EQ(Grid().FirstCol(), 1);
}

TEST_F(HorizontalScroll, InTrackModeADragScrollsAndLinesAreSilent)
{
    LoadWith(vxScrollTrack);
    DragTo(H(), 9);
    EXPECT_EQ(Grid().FirstCol(), 8);
    Do(H(), LineDown);
    EXPECT_EQ(Grid().FirstCol(), 9);
    EXPECT_THAT(Said(), ElementsAre("Scroll"));
}

TEST_F(HorizontalScroll, InNormalModeADragTellsColumns)
{
    Grid().SetScrollHBar(vxNormalScroll);
    host->ClearLog();
    DragTo(H(), 9);
    EXPECT_EQ(Grid().FirstCol(), 8);
    EXPECT_THAT(Said(), ElementsAre("ScrollTrackCol 8", "Scroll"));
}

TEST_F(HorizontalScroll, ByPixels)
{
    H().Notify(ThumbTrack, 130);
    EXPECT_EQ(Grid().FirstCol(), 1);
    EXPECT_EQ(SmoothOffset(), -10);
    EXPECT_THAT(Said(), IsEmpty());
    H().Notify(EndScroll);
    EXPECT_THAT(Said(), ElementsAre("Scroll"));
    EXPECT_FALSE(Grid().IsVisibleCol(1)) << "half-shown";
    Do(H(), PageDown);
    EXPECT_EQ(H().Value(), 130 + 593);
    EXPECT_EQ(Grid().FirstCol(), 6);
    EXPECT_EQ(SmoothOffset(), -3);
    Do(H(), PageUp);
    Do(H(), PageUp);
    EXPECT_EQ(H().Value(), 0);
    Do(H(), Bottom);
    EXPECT_EQ(H().Value(), 3007);
    EXPECT_EQ(Grid().LastCol(), 29);
    Do(H(), PageDown);
    EXPECT_EQ(H().Value(), 3007);
}

TEST_F(HorizontalScroll, AHeldArrowDoublesItsPixels)
{
    for (int i = 0; i < 6; ++i)
        H().Notify(LineDown);
    EXPECT_EQ(H().Value(), 2 + 4 + 8 + 16 + 32 + 32);
    H().Notify(EndScroll);
    H().Notify(LineDown);
    EXPECT_EQ(H().Value(), 96);
}

TEST_F(HorizontalScroll, AModeChosenLaterHasNoDoubling)
{
    LoadWith(vxNormalScroll);
    Grid().SetScrollHBar(vxScrollSmooth);
    H().Notify(LineDown);
    H().Notify(LineDown);
    EXPECT_EQ(H().Value(), 2);
    LoadWith(vxScrollSmooth);
    Grid().SetScrollHBar(vxNormalScroll);
    Do(H(), LineDown);
    EXPECT_EQ(Grid().FirstCol(), 2) << "and one left behind keeps it";
}

TEST_F(HorizontalScroll, SplitColumnsStandStill)
{
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(2);
    Do(H(), PageDown);
    EXPECT_EQ(H().Value(), 623 - 270);
    EXPECT_EQ(Grid().FirstCol(), 4);
    Do(H(), Top);
    EXPECT_EQ(Grid().FirstCol(), 2);
    Grid().SetScrollHBar(vxNormalScroll);
    host->ClearLog();
    H().Notify(ThumbTrack, 5);
    EXPECT_THAT(Said(), ElementsAre("ScrollTrackCol 4"));
    Do(H(), Top);
    Do(H(), PageUp);
    EXPECT_EQ(Grid().FirstCol(), 2);
}

class Wheel : public ScrollTest { };

TEST_F(Wheel, MovesThreeRowsANotch)
{
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstRow(), 3);
    host->Wheel(-360);
    EXPECT_EQ(Grid().FirstRow(), 12);
    host->Wheel(120);
    EXPECT_EQ(Grid().FirstRow(), 9);
    EXPECT_EQ(V().Value(), 10);
    host->Wheel(119);
    host->Wheel(-119);
    EXPECT_EQ(Grid().FirstRow(), 9);
    host->Wheel(32760);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(Wheel, RaisesScrollWhereTheModeIsNotTrack)
{
    Grid().SetScrollVBar(vxNormalScroll);
    host->ClearLog();
    host->Wheel(-120);
    host->Wheel(120);
    host->Wheel(120);
    EXPECT_THAT(Said(), ElementsAre("Scroll", "Scroll")) << "at the end nothing moves";
}

TEST_F(Wheel, TurnsTheHorizontalBarWhereTheVerticalOneIsNotShown)
{
    Grid().SetScrollVBar(vxNoScrollBar);
    host->Wheel(-240);
    EXPECT_EQ(H().Value(), 6) << "pixels";
    EXPECT_EQ(SmoothOffset(), -6);
    Grid().SetScrollHBar(vxNormalScroll);
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstCol(), 3);
    Grid().SetScrollHBar(vxNoScrollBar);
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstCol(), 0);
}

TEST_F(Wheel, StepsOverHiddenLines)
{
    Grid().HideRow(2, 5);
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstRow(), 7);
    EXPECT_EQ(V().Value(), 8);
    Grid().SetScrollVBar(vxNoScrollBar);
    Grid().SetScrollHBar(vxNormalScroll);
    Grid().HideCol(3);
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstCol(), 4);
    EXPECT_EQ(H().Value(), 5);
}

TEST_F(Wheel, AndBarsAreNotHeardWhileRedrawIsOffOrAtDesignTime)
{
    Grid().SetRedraw(false);
    Do(V(), LineDown);
    DragTo(H(), 500);
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(H().Value(), 0);
    Grid().SetRedraw(true);
    Do(V(), LineDown);
    EXPECT_EQ(Grid().FirstRow(), 1);
    MakeDesign();
    Table(100, 30, 1, 1);
    EXPECT_TRUE(Grid().IsVisibleScrollV());
    Do(V(), LineDown);
    host->Wheel(-120);
    EXPECT_EQ(Grid().FirstRow(), 0);
}

TEST_F(Wheel, AndBarsOfAClosedControlAreErrors)
{
    host->Close();
    EXPECT_EQ(ErrorOf([&] { host->Wheel(-120); }), 5);
    EXPECT_EQ(ErrorOf([&] { V().Notify(LineDown); }), 5);
    EXPECT_EQ(ErrorOf([&] { Grid().SetLastRow(3); }), 5);
    EXPECT_EQ(ErrorOf([&] { Grid().IsVisibleScrollH(); }), 5);
}

TEST_F(Wheel, BarsKnowNineNotifications)
{
    EXPECT_EQ(ErrorOf([&] { V().Notify(9); }), 5);
    EXPECT_EQ(ErrorOf([&] { V().Notify(-1); }), 5);
    Grid().ScrollBarNotify(ChildName::cPivot, LineDown);
    Grid().ScrollBarNotify(ChildName::scrV, 100);
    EXPECT_EQ(Grid().FirstRow(), 0);
}

// -- Handlers --

class ScrollHandlers : public ScrollTest {
protected:
    ScrollHandlers()
    {
        Grid().SetScrollVBar(vxNormalScroll);
        Grid().SetScrollHBar(vxNormalScroll);
        host->ClearLog();
    }
    void OnScroll(std::function<void()> step) { handlers.OnScroll = std::move(step); }
};

TEST_F(ScrollHandlers, MayMoveTheViewAndTheBarFollows)
{
    OnScroll([&] { Grid().SetFirstRow(50); });
    Do(V(), LineDown);
    EXPECT_EQ(Grid().FirstRow(), 50);
    EXPECT_EQ(V().Value(), 51);
    OnScroll([&] { Grid().SetFirstCol(7); });
    Do(H(), LineDown);
    EXPECT_EQ(H().Value(), 8);
    Grid().SetScrollHBar(vxScrollSmooth);
    Do(H(), LineDown);
    EXPECT_EQ(Grid().FirstCol(), 7);
    EXPECT_EQ(H().Value(), 840);
}

TEST_F(ScrollHandlers, MayChooseAnotherMode)
{
    OnScroll([&] { Grid().SetScrollHBar(vxScrollSmooth); });
    Do(H(), PageDown);
    EXPECT_EQ(Grid().FirstCol(), 4);
    EXPECT_EQ(H().Value(), 480);
    OnScroll([&] { Grid().SetScrollHBar(vxScrollTrack); });
    Do(H(), PageDown);
    EXPECT_EQ(Grid().FirstCol(), 8);
    EXPECT_EQ(H().Value(), 9);
}

TEST_F(ScrollHandlers, SeeTheViewAndTheLastLinesOfTheirPaint)
{
    i16 first = -1, last = -1;
    OnScroll([&] {
        first = Grid().FirstRow();
        last = Grid().LastRow();
    });
    Do(V(), PageDown);
    EXPECT_EQ(first, 21);
    EXPECT_EQ(last, 41);
}

// Every notification of both bars and the wheel, with a handler of each event that does one thing.
TEST_F(ScrollHandlers, MayDoAnythingAtAll)
{
    const std::vector<std::function<void()>> deeds {
        [&] { Grid().SetRows(3); },
        [&] { Grid().SetRows(0); },
        [&] { Grid().SetCols(1); },
        [&] { Grid().SetCols(0); },
        [&] { Grid().SetFixedRows(0); },
        [&] { Grid().SetFixedRows(50); },
        [&] { Grid().SetFixedCols(8); },
        [&] { Grid().SetRedraw(false); },
        [&] {
            Grid().SetRedraw(false);
            Grid().SetRows(2);
            Grid().SetCols(2);
            Grid().SetRedraw(true);
        },
        [&] { Grid().HideRow(0, 100); },
        [&] { Grid().HideCol(5); },
        [&] { Grid().SetScrollVBar(vxNoScrollBar); },
        [&] { Grid().SetScrollHBar(vxNoScrollBar); },
        [&] { Grid().SetScrollHBar(vxScrollSmooth); },
        [&] { Grid().SetScrollVBar(vxScrollTrack); },
        [&] { Grid().SetLastRow(70); },
        [&] { Grid().SetFirstCol(20); },
        [&] {
            Grid().SetShowSplit(true);
            Grid().SetSplitCols(2);
        },
        [&] { host->Resize(10, 10); },
        [&] { Grid().ResetGrid(); },
        [&] { Grid().Refresh(); },
        [&] { host->Close(); },
    };
    for (std::size_t number = 0; number < deeds.size(); ++number) {
        for (const i32 mode : { vxNormalScroll, vxScrollTrack, vxScrollSmooth }) {
            for (int what = 0; what < 13; ++what) {
                SCOPED_TRACE(testing::Message() << "deed " << number << ", mode " << mode << ", step " << what);
                handlers = {};
                Make({});
                Table(100, 30, 1, 1);
                Grid().SetScrollVBar(mode);
                Grid().SetScrollHBar(mode);
                Grid().SetFirstRow(60);
                Grid().SetFirstCol(22);
                int times = 0;
                const auto once = [&] {
                    if (++times == 1)
                        deeds[number]();
                };
                handlers.OnScroll = once;
                handlers.OnScrollTrackRow = [&](i16) { once(); };
                handlers.OnScrollTrackCol = [&](i16) { once(); };
                const auto act = [&] {
                    switch (what) {
                    case 12:
                        return host->Wheel(-120);
                    case 10:
                        return V().Notify(ThumbTrack, V().Max());
                    case 11:
                        return H().Notify(ThumbTrack, H().Max());
                    default:
                        return (what % 2 ? H() : V()).Notify(std::array { 0, 1, 2, 3, 7 }[what / 2]);
                    }
                };
                EXPECT_FALSE(ErrorOf(act));
                if (Grid().IsTerminated())
                    continue;
                EXPECT_FALSE(ErrorOf([&] { (what % 2 ? H() : V()).Notify(EndScroll); }));
                if (Grid().IsTerminated())
                    continue;
                EXPECT_GE(Grid().FirstRow(), 0);
                EXPECT_LE(Grid().FirstRow(), Grid().Rows());
                EXPECT_GE(Grid().FirstCol(), 0);
                EXPECT_LE(Grid().FirstCol(), Grid().Cols());
                EXPECT_FALSE(ErrorOf([&] { Grid().Refresh(); }));
            }
        }
    }
}

TEST_F(ScrollHandlers, OfDrawCellMayNotifyAgain)
{
    Grid().SetCellStyle(5, 1, vxCustomDraw);
    int draws = 0;
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) {
        if (++draws > 3)
            return;
        V().Notify(LineDown);
        host->Wheel(-120);
        Grid().SetFirstRow(2);
    };
    for (int i = 0; i < 6; ++i)
        Grid().Refresh();
    EXPECT_GT(draws, 3);
    EXPECT_EQ(V().Value(), Grid().FirstRow() + 1);
}

} // namespace
} // namespace vornix
