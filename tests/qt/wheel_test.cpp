// The wheel and the touchpad over the Qt widget.
#include "live_grid.h"

#include <QApplication>
#include <QWheelEvent>

#include <limits>

namespace vornix {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QtWheelTest : public LiveGridTest {
protected:
    QScrollBar& V() { return *Bar(Qt::Vertical); }
    QScrollBar& H() { return *Bar(Qt::Horizontal); }
    bool Fingers(QPoint pixels, Qt::KeyboardModifiers keys = {}, Qt::ScrollPhase phase = Qt::ScrollUpdate)
    {
        return Wheel(pixels * 8, pixels, keys, { 100, 100 }, phase);
    }
};

} // namespace

TEST_F(QtWheelTest, ANotchIsThreeRows)
{
    EXPECT_TRUE(Wheel({ 0, -120 }));
    EXPECT_EQ(Grid().FirstRow(), 3);
    EXPECT_EQ(V().value(), 4);
    EXPECT_THAT(Said(), ElementsAre("Scroll"));
    EXPECT_TRUE(Wheel({ 0, -240 }));
    EXPECT_EQ(Grid().FirstRow(), 9);
    EXPECT_TRUE(Wheel({ 0, 120 }));
    EXPECT_EQ(Grid().FirstRow(), 6);
}

TEST_F(QtWheelTest, SmallTurnsAreKeptUntilTheyMakeANotch)
{
    for (int turn = 0; turn < 7; ++turn) {
        EXPECT_TRUE(Wheel({ 0, -15 }));
        EXPECT_EQ(Grid().FirstRow(), 0);
    }
    Wheel({ 0, -15 });
    EXPECT_EQ(Grid().FirstRow(), 3);
    Wheel({ 0, -200 });
    EXPECT_EQ(Grid().FirstRow(), 6);
    Wheel({ 0, -40 });
    EXPECT_EQ(Grid().FirstRow(), 9);
}

TEST_F(QtWheelTest, TurningBackForgetsWhatWasKept)
{
    Grid().SetFirstRow(30);
    Wheel({ 0, -110 });
    Wheel({ 0, 100 });
    EXPECT_EQ(Grid().FirstRow(), 30);
    Wheel({ 0, 20 });
    EXPECT_EQ(Grid().FirstRow(), 27);
}

TEST_F(QtWheelTest, AWheelAcrossAndShiftTurnTheHorizontalBar)
{
    Wheel({ -120, 0 });
    EXPECT_EQ(Grid().FirstCol(), 3);
    EXPECT_EQ(H().value(), 4);
    Wheel({ 0, -120 }, {}, Qt::ShiftModifier);
    EXPECT_EQ(Grid().FirstCol(), 6);
    Wheel({ 0, 120 }, {}, Qt::ShiftModifier);
    EXPECT_EQ(Grid().FirstCol(), 3);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(log.Count("Scroll"), 3);
}

TEST_F(QtWheelTest, EachAxisKeepsItsOwnRest)
{
    Wheel({ 0, -60 });
    Wheel({ -60, 0 });
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
    Wheel({ 0, -60 });
    EXPECT_EQ(Grid().FirstRow(), 3);
    EXPECT_EQ(Grid().FirstCol(), 0);
    Wheel({ -60, 0 });
    EXPECT_EQ(Grid().FirstCol(), 3);
}

TEST_F(QtWheelTest, OverABarItGoesTheGridsWay)
{
    EXPECT_TRUE(Wheel({ 0, -120 }, {}, {}, { 390, 100 }));
    EXPECT_EQ(Grid().FirstRow(), 3);
    EXPECT_TRUE(Wheel({ 0, -120 }, {}, {}, { 100, 290 }));
    EXPECT_EQ(Grid().FirstRow(), 6);
    EXPECT_EQ(Grid().FirstCol(), 0);
    Grid().SetScrollVEnabled(false);
    EXPECT_TRUE(Wheel({ 0, -120 }, {}, {}, { 390, 100 }));
    EXPECT_EQ(Grid().FirstRow(), 9);
}

TEST_F(QtWheelTest, WithoutAVerticalBarItTurnsTheHorizontalOne)
{
    Grid().SetScrollVBar(vxNoScrollBar);
    EXPECT_TRUE(Wheel({ 0, -120 }));
    EXPECT_EQ(Grid().FirstCol(), 3);
    EXPECT_TRUE(Fingers({ 0, -60 }));
    EXPECT_EQ(Grid().FirstCol(), 4);
}

TEST_F(QtWheelTest, WithNothingToScrollItIsTheFormsBusiness)
{
    Grid().SetScrollVBar(vxNoScrollBar);
    Grid().SetScrollHBar(vxNoScrollBar);
    EXPECT_FALSE(Wheel({ 0, -120 }));
    Grid().SetScrollVBar(vxNormalScroll);
    EXPECT_FALSE(Wheel({ -120, 0 }));
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(QtWheelTest, WithoutRedrawNothingScrolls)
{
    Grid().SetRedraw(false);
    Wheel({ 0, -120 });
    Fingers({ 0, -100 });
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(QtWheelTest, FingersMoveRowsAsFarAsTheyGo)
{
    Fingers({ 0, -15 });
    EXPECT_EQ(Grid().FirstRow(), 0);
    Fingers({ 0, -15 });
    EXPECT_EQ(Grid().FirstRow(), 1);
    Fingers({ 0, -90 });
    EXPECT_EQ(Grid().FirstRow(), 6);
    EXPECT_EQ(V().value(), 7);
    EXPECT_EQ(log.Count("Scroll"), 2);
    Fingers({ 0, 40 });
    EXPECT_EQ(Grid().FirstRow(), 4);
}

TEST_F(QtWheelTest, RowsCountWithTheirOwnHeights)
{
    Grid().SetRowHeight(1, 50);
    Grid().HideRow(2, 3);
    Fingers({ 0, -60 });
    EXPECT_EQ(Grid().FirstRow(), 1);
    Fingers({ 0, -10 });
    EXPECT_EQ(Grid().FirstRow(), 5);
    Fingers({ 0, 49 });
    EXPECT_EQ(Grid().FirstRow(), 5);
    Fingers({ 0, 1 });
    EXPECT_EQ(Grid().FirstRow(), 1);
}

TEST_F(QtWheelTest, AtTheEndsNothingIsKept)
{
    Fingers({ 0, 500 });
    EXPECT_EQ(Grid().FirstRow(), 0);
    Fingers({ 0, -20 });
    EXPECT_EQ(Grid().FirstRow(), 1);
    Fingers({ 0, -30000 });
    EXPECT_EQ(Grid().FirstRow(), V().maximum() - 1);
}

TEST_F(QtWheelTest, InSmoothModeColumnsFollowTheFingersPixelByPixel)
{
    Grid().SetScrollHBar(vxScrollSmooth);
    Fingers({ -7, 0 });
    EXPECT_EQ(H().value(), 7);
    Fingers({ -60, -5 });
    EXPECT_EQ(H().value(), 67);
    EXPECT_EQ(Grid().FirstCol(), 1);
    Fingers({ 0, 3 }, Qt::ShiftModifier);
    EXPECT_EQ(H().value(), 64);
    Fingers({ 3000, 0 });
    EXPECT_EQ(H().value(), 0);
    Wheel({ -120, 0 });
    EXPECT_EQ(H().value(), 3);
}

TEST_F(QtWheelTest, InOtherModesColumnsMoveWhole)
{
    Fingers({ -59, 0 });
    EXPECT_EQ(Grid().FirstCol(), 0);
    Fingers({ -1, 0 });
    EXPECT_EQ(Grid().FirstCol(), 1);
    EXPECT_EQ(H().value(), 2);
}

TEST_F(QtWheelTest, PutDownAgainTheFingersStartAnew)
{
    Fingers({ 0, -15 });
    Fingers({ 0, -10 }, {}, Qt::ScrollBegin);
    EXPECT_EQ(Grid().FirstRow(), 0);
    Fingers({ 0, -10 });
    EXPECT_EQ(Grid().FirstRow(), 1);
}

TEST_F(QtWheelTest, StepsBeyondTheRangeEndAtItsEnds)
{
    constexpr i32 most = std::numeric_limits<i32>::max();
    Grid().MoveScrollBar(ChildName::scrV, most);
    EXPECT_EQ(Grid().FirstRow(), V().maximum() - 1);
    Grid().MoveScrollBar(ChildName::scrV, most);
    Grid().MoveScrollBar(ChildName::scrV, -most - 1);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(log.Count("Scroll"), 2);
    Grid().MoveScrollBar(ChildName::cPivot, 3);
    Grid().MouseWheel(ChildName::picSplitCol, -120);
    EXPECT_EQ(log.Count("Scroll"), 2);
}

TEST_F(QtWheelTest, AHandlerMayCloseTheGridOrHaveTheWidgetDeletedLater)
{
    handlers.OnScroll = [&] {
        Grid().Terminate();
        widget->deleteLater();
    };
    Wheel({ 0, -120 });
    EXPECT_TRUE(Grid().IsTerminated());
    Wheel({ 0, -120 });
    Fingers({ 0, -120 });
    EXPECT_THAT(Said(), ElementsAre("Scroll"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

} // namespace vornix
