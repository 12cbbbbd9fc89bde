// The grid's bars as Qt's own, used by the pointer, by Qt's menus and by assistive tools.
#include "live_grid.h"

#include <QDialog>
#include <QTest>

namespace vornix {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QtScrollBarTest : public LiveGridTest {
protected:
    QScrollBar& V() { return *Bar(Qt::Vertical); }
    QScrollBar& H() { return *Bar(Qt::Horizontal); }
    // The bar, the view and the value that the control keeps agree. The range counts the fixed line.
    testing::AssertionResult RowsAgree(int first)
    {
        if (Grid().FirstRow() == first && V().value() == first + 1 && V().sliderPosition() == first + 1)
            return testing::AssertionSuccess();
        return testing::AssertionFailure()
            << "first row " << Grid().FirstRow() << ", bar " << V().value() << ", slider " << V().sliderPosition();
    }
    void ClickOn(QScrollBar& bar, QStyle::SubControl part)
    {
        const QPoint at = PartOf(bar, part);
        Press(at);
        Release(at);
    }
};

} // namespace

TEST_F(QtScrollBarTest, TheyLieBesideTheCellsWithTheCornerBetweenThem)
{
    ASSERT_TRUE(Bar(Qt::Vertical) && Bar(Qt::Horizontal));
    EXPECT_TRUE(V().isVisible());
    EXPECT_TRUE(H().isVisible());
    EXPECT_EQ(V().geometry(), QRect(384, 0, 17, 284));
    EXPECT_EQ(H().geometry(), QRect(0, 283, 384, 18));
    QWidget* const corner = widget->childAt(390, 290);
    ASSERT_TRUE(corner);
    EXPECT_EQ(corner->geometry(), QRect(384, 284, 17, 17));
    EXPECT_EQ(V().minimum(), 1);
    EXPECT_EQ(V().maximum(), 88);
    EXPECT_EQ(V().pageStep(), 1);
    EXPECT_TRUE(RowsAgree(0));
}

TEST_F(QtScrollBarTest, TheArrowsMoveByALine)
{
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_TRUE(RowsAgree(1));
    EXPECT_THAT(SaidNames(), ElementsAre("Scroll"));
    ClickOn(V(), QStyle::SC_ScrollBarSubLine);
    EXPECT_TRUE(RowsAgree(0));
    ClickOn(V(), QStyle::SC_ScrollBarSubLine);
    EXPECT_TRUE(RowsAgree(0));
}

TEST_F(QtScrollBarTest, HiddenLinesAreCrossedAndTheBarStandsWhereTheViewDoes)
{
    Grid().HideRow(1, 5);
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_TRUE(RowsAgree(6));
    ClickOn(V(), QStyle::SC_ScrollBarSubLine);
    EXPECT_TRUE(RowsAgree(0));
}

TEST_F(QtScrollBarTest, TheGroovesMoveByWhatIsInView)
{
    const int page = Grid().LastRow() + 1;
    ClickOn(V(), QStyle::SC_ScrollBarAddPage);
    EXPECT_TRUE(RowsAgree(page));
    ClickOn(V(), QStyle::SC_ScrollBarSubPage);
    EXPECT_TRUE(RowsAgree(0));
}

TEST_F(QtScrollBarTest, TheThumbTellsWhereItIsAndMovesTheViewWhenItIsLetGo)
{
    const QPoint thumb = PartOf(V(), QStyle::SC_ScrollBarSlider);
    Press(thumb);
    MoveTo(thumb + QPoint(0, 100));
    const int held = V().value();
    EXPECT_GT(held, 10);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_THAT(Said(), ElementsAre("ScrollTrackRow Row=" + std::to_string(held - 1)));
    Release(thumb + QPoint(0, 100));
    EXPECT_TRUE(RowsAgree(held - 1));
    EXPECT_THAT(SaidNames(), ElementsAre("Scroll"));
}

TEST_F(QtScrollBarTest, InTrackModeTheViewFollowsTheThumb)
{
    Grid().SetScrollVBar(vxScrollTrack);
    const QPoint thumb = PartOf(V(), QStyle::SC_ScrollBarSlider);
    Press(thumb);
    int before = 0;
    for (int y = 20; y <= 160; y += 20) {
        MoveTo(thumb + QPoint(0, y));
        EXPECT_GT(Grid().FirstRow(), before);
        before = Grid().FirstRow();
        EXPECT_TRUE(RowsAgree(before));
    }
    EXPECT_EQ(log.Count("Scroll"), 8);
    Release(thumb + QPoint(0, 160));
    EXPECT_TRUE(RowsAgree(before));
    EXPECT_EQ(log.Count("Scroll"), 8);
}

TEST_F(QtScrollBarTest, InSmoothModeColumnsFollowTheThumbByPixels)
{
    Grid().SetScrollHBar(vxScrollSmooth);
    EXPECT_EQ(H().maximum(), 20 * 60 - (384 - 60));
    const QPoint thumb = PartOf(H(), QStyle::SC_ScrollBarSlider);
    Press(thumb);
    MoveTo(thumb + QPoint(33, 0));
    const int pixel = H().value();
    EXPECT_GT(pixel, 0);
    EXPECT_EQ(Grid().FirstCol(), pixel / 60);
    Release(thumb + QPoint(33, 0));
    EXPECT_EQ(H().value(), pixel);
    i16 Row = 0;
    i16 Col = 0;
    ASSERT_TRUE(Grid().GetCellAtPos(60 + 60 - pixel % 60, 30, Row, Col));
    EXPECT_EQ(Col, pixel / 60 + 1);
}

TEST_F(QtScrollBarTest, AHeldArrowRepeatsAndEndsWithTheRelease)
{
    const QPoint arrow = PartOf(V(), QStyle::SC_ScrollBarAddLine);
    Press(arrow);
    EXPECT_TRUE(RowsAgree(1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Grid().FirstRow() >= 4; }, 5000));
    Release(arrow);
    const int first = Grid().FirstRow();
    QTest::qWait(150);
    EXPECT_TRUE(RowsAgree(first));
}

TEST_F(QtScrollBarTest, ARepetitionEndsWhereAnotherWindowTookTheRelease)
{
    const QPoint arrow = PartOf(V(), QStyle::SC_ScrollBarAddLine);
    QDialog dialog(&window);
    Press(arrow);
    dialog.open();
    Release(arrow);
    dialog.close();
    Settle();
    const int first = Grid().FirstRow();
    QTest::qWait(800); // longer than until the first repetition
    EXPECT_TRUE(RowsAgree(first));
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_TRUE(RowsAgree(first + 1));
}

// The horizontal bar of a grid that was loaded in smooth mode doubles its step until it is told of the end.
TEST_F(QtScrollBarTest, TheEndOfEveryActionIsTold)
{
    for (int click = 1; click <= 3; ++click) {
        ClickOn(H(), QStyle::SC_ScrollBarAddLine);
        EXPECT_EQ(Grid().FirstCol(), 2 * click);
        EXPECT_EQ(H().value(), 2 * click + 1);
    }
    H().triggerAction(QAbstractSlider::SliderSingleStepSub);
    H().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_EQ(log.Count("Scroll"), 5);
}

TEST_F(QtScrollBarTest, AHeldArrowGoesFasterAndTheNextOneSlowlyAgain)
{
    Grid().SetScrollHBar(vxScrollSmooth);
    const QPoint arrow = PartOf(H(), QStyle::SC_ScrollBarAddLine);
    Press(arrow);
    EXPECT_EQ(H().value(), 2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return H().value() >= 14; }, 5000)); // 2 + 4 + 8
    Release(arrow);
    const int before = H().value();
    ClickOn(H(), QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(H().value(), before + 2);
}

TEST_F(QtScrollBarTest, QtsOwnWaysOfMovingItAreTheUsers)
{
    V().triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_TRUE(RowsAgree(87));
    V().triggerAction(QAbstractSlider::SliderToMinimum);
    EXPECT_TRUE(RowsAgree(0));
    V().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_TRUE(RowsAgree(13));
    log.Clear();
    V().setValue(41); // as the menu and assistive tools do
    EXPECT_TRUE(RowsAgree(40));
    EXPECT_THAT(Said(), ElementsAre("ScrollTrackRow Row=40", "Scroll"));
}

TEST_F(QtScrollBarTest, WhatTheProgramDoesIsNotTheUsers)
{
    Grid().SetFirstRow(30);
    EXPECT_TRUE(RowsAgree(30));
    Grid().SetRows(50);
    Grid().SetFirstRow(12);
    EXPECT_TRUE(RowsAgree(12));
    EXPECT_EQ(V().maximum(), 38);
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(QtScrollBarTest, AHandlerThatMovesTheViewHasTheLastWord)
{
    int calls = 0;
    handlers.OnScroll = [&] {
        if (++calls == 1)
            Grid().SetFirstRow(50);
    };
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_TRUE(RowsAgree(50));
    EXPECT_EQ(calls, 1);
}

TEST_F(QtScrollBarTest, WithoutRedrawItStaysWhereItIs)
{
    Grid().SetRedraw(false);
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    V().triggerAction(QAbstractSlider::SliderToMaximum);
    V().setValue(20);
    EXPECT_TRUE(RowsAgree(0));
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(QtScrollBarTest, ADisabledBarKeepsThePointerToItself)
{
    Grid().SetScrollVEnabled(false);
    EXPECT_FALSE(V().isEnabled());
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    DoubleClick(PartOf(V(), QStyle::SC_ScrollBarAddPage));
    EXPECT_TRUE(RowsAgree(0));
    EXPECT_THAT(Said(), IsEmpty());
    Grid().SetScrollVEnabled(true);
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_TRUE(RowsAgree(1));
}

TEST_F(QtScrollBarTest, DisablingItDuringADragLetsTheThumbGo)
{
    const QPoint thumb = PartOf(V(), QStyle::SC_ScrollBarSlider);
    Press(thumb);
    MoveTo(thumb + QPoint(0, 50));
    const int held = V().value();
    Grid().SetScrollVEnabled(false);
    EXPECT_TRUE(RowsAgree(held - 1));
    Release(thumb + QPoint(0, 50));
    EXPECT_EQ(log.Count("Scroll"), 1);
}

TEST_F(QtScrollBarTest, AGridWithoutInputLeavesItsBarsStanding)
{
    Grid().SetEnabled(false);
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    V().triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_TRUE(RowsAgree(0));
}

TEST_F(QtScrollBarTest, AHandlerMayTakeTheBarAway)
{
    handlers.OnScrollTrackRow = [&](i16) { Grid().SetScrollVBar(vxNoScrollBar); };
    const QPoint thumb = PartOf(V(), QStyle::SC_ScrollBarSlider);
    Press(thumb);
    MoveTo(thumb + QPoint(0, 60));
    EXPECT_FALSE(Grid().IsVisibleScrollV());
    EXPECT_TRUE(V().isHidden());
    Release(thumb + QPoint(0, 60));
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(log.Count("Scroll"), 0);
}

TEST_F(QtScrollBarTest, AHandlerMayCloseTheGrid)
{
    handlers.OnScroll = [&] { Grid().Terminate(); };
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_TRUE(Grid().IsTerminated());
    const int value = V().value();
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(V().value(), value);
}

TEST_F(QtScrollBarTest, AHandlerMayHaveTheWidgetDeletedLater)
{
    handlers.OnScroll = [&] { widget->deleteLater(); };
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtScrollBarTest, RightToLeftChangesNothing)
{
    window.setLayoutDirection(Qt::RightToLeft);
    Settle();
    EXPECT_EQ(V().geometry(), QRect(384, 0, 17, 284));
    EXPECT_LT(PartOf(H(), QStyle::SC_ScrollBarSubLine).x(), PartOf(H(), QStyle::SC_ScrollBarAddLine).x());
    ClickOn(H(), QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_LT(PartOf(H(), QStyle::SC_ScrollBarSubPage).x(), PartOf(H(), QStyle::SC_ScrollBarSlider).x());
}

TEST_F(QtScrollBarTest, TheyFollowTheClientAreaInsideABorder)
{
    Grid().SetBorderStyle(vxInset);
    Settle();
    EXPECT_EQ(V().geometry().right(), widget->contentsRect().right());
    EXPECT_EQ(H().geometry().bottom(), widget->contentsRect().bottom());
    EXPECT_EQ(V().geometry().top(), widget->contentsRect().top());
}

TEST_F(QtScrollBarTest, TheyNeverTakeTheFocusAndGiveItToTheGrid)
{
    widget->clearFocus();
    ClickOn(V(), QStyle::SC_ScrollBarAddLine);
    EXPECT_FALSE(V().hasFocus());
    EXPECT_TRUE(widget->hasFocus());
}

} // namespace vornix
