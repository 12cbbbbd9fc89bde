// The pointer on the Qt widget: order and numbers of what the grid hears, capture, focus, hovering, and handlers that
// close or delete.
#include "live_grid.h"

#include "vornix/headless_container.h"

#include <QCursor>
#include <QTest>

namespace vornix {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class QtPointerTest : public LiveGridTest {
protected:
    // The same grid in a container without a screen.
    QtPointerTest()
        : other(OptionsOfSameSize())
    {
        FillLiveTable(other.Grid());
        other.ClearLog();
        Forget();
    }

    static HeadlessOptions OptionsOfSameSize()
    {
        HeadlessOptions options;
        options.width = LiveSize.width();
        options.height = LiveSize.height();
        return options;
    }
    Lines OtherSaid()
    {
        const Lines lines = LinesOf(other.Log());
        other.ClearLog();
        return lines;
    }
    void Forget()
    {
        log.Clear();
        other.ClearLog();
    }

    HeadlessContainer other;
};

float X(QPoint at)
{
    return static_cast<float>(at.x());
}

float Y(QPoint at)
{
    return static_cast<float>(at.y());
}

} // namespace

TEST_F(QtPointerTest, AClickIsTheSameAsInTheContainerWithoutAScreen)
{
    const QPoint at = MiddleOf(3, 2);
    Click(at);
    other.ClickAt(X(at), Y(at));
    const Lines said = Said();
    EXPECT_EQ(said, OtherSaid());
    EXPECT_THAT(said, Contains("CellClick Row=3 Col=2"));
    EXPECT_EQ(Grid().CurrentRow(), 3);
    EXPECT_EQ(Grid().CurrentCol(), 2);
}

TEST_F(QtPointerTest, SoIsADoubleClick)
{
    const QPoint at = MiddleOf(5, 1);
    DoubleClick(at);
    other.DblClickAt(X(at), Y(at));
    const Lines said = Said();
    EXPECT_EQ(said, OtherSaid());
    EXPECT_THAT(said, Contains("CellDblClick Row=5 Col=1"));
    EXPECT_EQ(std::count(said.begin(), said.end(), "Click"), 1);
    EXPECT_EQ(std::count(said.begin(), said.end(), "DblClick"), 1);
}

TEST_F(QtPointerTest, SoAreTheOtherButtonsAndTheKeysHeld)
{
    const QPoint first = MiddleOf(2, 3);
    const QPoint second = MiddleOf(3, 3);
    const QPoint third = MiddleOf(3, 4);
    Click(first, Qt::RightButton);
    Click(second, Qt::MiddleButton, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    Click(third, Qt::LeftButton, Qt::ControlModifier);
    other.ClickAt(X(first), Y(first), 2);
    other.ClickAt(X(second), Y(second), 4, 7);
    other.ClickAt(X(third), Y(third), 1, 2);
    const Lines said = Said();
    EXPECT_EQ(said, OtherSaid());
    EXPECT_THAT(said, Contains("MouseDown Button=2 Shift=0 x=270 y=70"));
    EXPECT_THAT(said, Contains("MouseUp Button=4 Shift=7 x=270 y=90"));
}

TEST_F(QtPointerTest, SoIsADrag)
{
    Grid().SetCellSelection(true);
    other.Grid().SetCellSelection(true);
    Forget();
    const QPoint from = MiddleOf(1, 1);
    const QPoint to = MiddleOf(4, 3);
    Drag(from, to, {}, 4);
    other.Drag(X(from), Y(from), X(to), Y(to), 1, 0, 4);
    EXPECT_EQ(Said(), OtherSaid());
    i16 Row1 = 0;
    i16 Col1 = 0;
    i16 Row2 = 0;
    i16 Col2 = 0;
    ASSERT_TRUE(Grid().GetSelectedCells(Row1, Col1, Row2, Col2));
    EXPECT_THAT((std::array { Row1, Col1, Row2, Col2 }), ElementsAre(1, 1, 4, 3));
}

TEST_F(QtPointerTest, OtherButtonsAreLeftToTheForm)
{
    Click(MiddleOf(1, 1), Qt::BackButton);
    EXPECT_THAT(SaidNames(), Not(Contains(testing::AnyOf("MouseDown", "MouseUp", "Click"))));
}

TEST_F(QtPointerTest, ADragBeyondTheEdgeScrolls)
{
    Grid().SetCellSelection(true);
    const QPoint from = MiddleOf(2, 1);
    MoveTo(from);
    Press(from);
    for (int move = 0; move < 6; ++move)
        MoveTo({ from.x(), LiveSize.height() + 20 + move });
    EXPECT_GT(Grid().FirstRow(), 6);
    Release({ from.x(), LiveSize.height() + 25 });
    i16 Row1 = 0;
    i16 Col1 = 0;
    i16 Row2 = 0;
    i16 Col2 = 0;
    ASSERT_TRUE(Grid().GetSelectedCells(Row1, Col1, Row2, Col2));
    EXPECT_EQ(Row1, 2);
    EXPECT_GT(Row2, Grid().LastRow() - 2);
    EXPECT_EQ(Bar(Qt::Vertical)->value(), Grid().FirstRow() + 1);
}

TEST_F(QtPointerTest, AReleaseOutsideMakesNoClick)
{
    const QPoint at = MiddleOf(1, 1);
    MoveTo(at);
    Press(at);
    MoveTo({ -20, 40 });
    Release({ -20, 40 });
    const Lines names = SaidNames();
    EXPECT_THAT(names, Contains("MouseUp"));
    EXPECT_THAT(names, Not(Contains("Click")));
}

TEST_F(QtPointerTest, ARightPressOverAHeaderNumbersItsButton)
{
    Press(MiddleOf(-1, 2), Qt::RightButton);
    EXPECT_EQ(Grid().GetMouseButton(), 2);
    Release(MiddleOf(-1, 2), Qt::RightButton);
}

TEST_F(QtPointerTest, HeadersSelectWithShiftAndCtrl)
{
    Grid().SetSelectMode(vxBoth);
    Click(MiddleOf(-1, 1));
    EXPECT_TRUE(Grid().ColSelected(1));
    Click(MiddleOf(-1, 3), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Grid().SelectCountCol(), 3);
    Click(MiddleOf(-1, 4), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(Grid().SelectCountCol(), 4);
    Click(MiddleOf(-1, 2), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_FALSE(Grid().ColSelected(2));
    EXPECT_EQ(Grid().SelectCountCol(), 3);
    Drag(MiddleOf(2, -1), MiddleOf(5, -1));
    EXPECT_EQ(Grid().SelectCountRow(), 4);
    Click(MiddleOf(9, -1), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(Grid().SelectCountRow(), 5);
}

TEST_F(QtPointerTest, AButtonCellRisesWhenThePointerLeavesItAndSinksAgain)
{
    Grid().SetCellMode(2, 2, vxCommandButton);
    Settle();
    const QPoint at = MiddleOf(2, 2);
    const auto picture = [&] {
        Settle();
        return ShownClient(*widget).copy();
    };
    MoveTo(at);
    const QImage raised = picture();
    Press(at);
    const QImage sunken = picture();
    EXPECT_FALSE(SameImage(sunken, raised));
    log.Clear();
    MoveTo(MiddleOf(2, 3));
    EXPECT_THAT(SaidNames(), ElementsAre("MouseMove", "CellUp", "CellOut", "CellOver"));
    EXPECT_FALSE(SameImage(picture(), sunken));
    MoveTo(at);
    EXPECT_THAT(SaidNames(), ElementsAre("MouseMove", "CellOut", "CellOver", "CellDown"));
    EXPECT_TRUE(SameImage(picture(), sunken));
    Release(at);
    EXPECT_THAT(SaidNames(), ElementsAre("MouseUp", "CellUp", "CellClick"));
}

TEST_F(QtPointerTest, PlacesAreThoseOfTheClientArea)
{
    Grid().SetBorderStyle(vxInset);
    Settle();
    log.Clear();
    MoveTo({ 0, 0 });
    MoveTo({ 70, 30 });
    const Lines said = Said();
    EXPECT_THAT(said, Contains("MouseMove Button=0 Shift=0 x=0 y=0"));
    EXPECT_THAT(said, Contains("MouseMove Button=0 Shift=0 x=70 y=30"));
}

TEST_F(QtPointerTest, APlaceWithinAPixelIsThatPixel)
{
    QMouseEvent move(QEvent::MouseMove, QPointF(70.75, 30.5), QPointF(70.75, 30.5), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(widget, &move);
    EXPECT_THAT(Said(), Contains("MouseMove Button=0 Shift=0 x=70 y=30"));
}

TEST_F(QtPointerTest, APressGivesTheFocusBeforeItIsTold)
{
    QWidget elsewhere(&window);
    elsewhere.setFocusPolicy(Qt::StrongFocus);
    elsewhere.setGeometry(500, 400, 20, 20);
    elsewhere.show();
    elsewhere.setFocus();
    bool hadFocus = false;
    handlers.OnMouseDown = [&](i16, i16, float, float) { hadFocus = widget->hasFocus(); };
    Click(MiddleOf(1, 1));
    EXPECT_TRUE(hadFocus);
    EXPECT_TRUE(widget->hasFocus());
}

TEST_F(QtPointerTest, ADisabledWidgetHearsNothing)
{
    widget->setEnabled(false);
    Click(MiddleOf(1, 1));
    Type(Qt::Key_Down);
    EXPECT_THAT(Said(), IsEmpty());
    widget->setEnabled(true);
    Grid().SetEnabled(false);
    Click(MiddleOf(1, 1));
    Type(Qt::Key_Down);
    Wheel({ 0, -120 });
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_EQ(Grid().FirstRow(), 0);
    Grid().SetEnabled(true);
    Click(MiddleOf(1, 1));
    EXPECT_THAT(SaidNames(), Contains("CellClick"));
}

TEST_F(QtPointerTest, ASecondPressWithoutAFirstClickIsAPress)
{
    QMouseEvent second(
        QEvent::MouseButtonDblClick, QPointF(80, 50), QPointF(80, 50), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &second);
    const Lines names = SaidNames();
    EXPECT_THAT(names, Contains("MouseDown"));
    EXPECT_THAT(names, Not(Contains("DblClick")));
}

TEST_F(QtPointerTest, TheCornerAndTheBarsTellTheGridOfNoPress)
{
    Click({ 390, 290 });
    DoubleClick({ 390, 290 });
    Click({ 390, 290 }, Qt::RightButton);
    EXPECT_THAT(Said(), IsEmpty());
}

// -- Hovering --

class QtHoverTest : public LiveGridTest {
protected:
    ~QtHoverTest() override { QCursor::setPos(1, 1); }
    void PointAt(QPoint client)
    {
        QCursor::setPos(window.mapToGlobal(InWindow(client)));
        Settle();
    }
};

TEST_F(QtHoverTest, ItEndsAtOnceWhenThePointerLeavesTheWindow)
{
    PointAt(MiddleOf(1, 1));
    EXPECT_THAT(SaidNames(), Contains("CellOver"));
    QCursor::setPos(window.geometry().bottomRight() + QPoint(40, 20));
    Settle();
    EXPECT_THAT(SaidNames(), Contains("CellOut"));
}

TEST_F(QtHoverTest, ItEndsAtOnceOnABarAndBesideTheGrid)
{
    PointAt(MiddleOf(1, 1));
    log.Clear();
    PointAt({ 390, 100 });
    EXPECT_THAT(Said(), ElementsAre("CellOut Row=1 Col=1"));
    PointAt(MiddleOf(2, 2));
    EXPECT_THAT(SaidNames(), Contains("CellOver"));
    PointAt({ LiveSize.width() + 20, 100 });
    EXPECT_THAT(SaidNames(), Contains("CellOut"));
}

// As on systems that do not tell of every leaving.
TEST_F(QtHoverTest, TheTimerLooksForThePointerToo)
{
    QCursor::setPos(window.mapToGlobal(QPoint(2, 2)));
    Settle();
    log.Clear();
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(widget, &move);
    EXPECT_THAT(SaidNames(), ElementsAre("MouseMove", "CellOver"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return log.Count("CellOut") == 1; }, 5000));
}

// -- Handlers that end things --

class QtPointerEndTest : public LiveGridTest { };

TEST_F(QtPointerEndTest, ClosingTheGridInAnyHandlerOfAClickIsTheLastOfIt)
{
    handlers.OnCellDown = [&](i16, i16) { Grid().Terminate(); };
    const QPoint elsewhere = MiddleOf(2, 2);
    Click(MiddleOf(1, 1));
    EXPECT_THAT(SaidNames(), ElementsAre("MouseMove", "CellOver", "MouseDown", "CellDown"));
    Click(elsewhere);
    Type(Qt::Key_Down);
    Wheel({ 0, -120 });
    EXPECT_THAT(Said(), IsEmpty());
}

TEST_F(QtPointerEndTest, ClosingItInMouseUpMakesNoClick)
{
    handlers.OnMouseUp = [&](i16, i16, float, float) { Grid().Terminate(); };
    Click(MiddleOf(1, 1));
    EXPECT_THAT(SaidNames(), Not(Contains("Click")));
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(QtPointerEndTest, HidingTheWidgetInMouseUpMakesNoClick)
{
    handlers.OnMouseUp = [&](i16, i16, float, float) { widget->hide(); };
    Click(MiddleOf(1, 1));
    EXPECT_THAT(SaidNames(), Not(Contains("Click")));
}

TEST_F(QtPointerEndTest, EveryHandlerOfAClickMayHaveTheWidgetDeletedLater)
{
    const auto remove = [&](auto&&...) { widget->deleteLater(); };
    handlers.OnCellDown = remove;
    Click(MiddleOf(1, 1));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Settle();
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtPointerEndTest, SoMayTheHandlerOfTheClickItself)
{
    handlers.OnClick = [&] { widget->deleteLater(); };
    Click(MiddleOf(1, 1));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Settle();
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtPointerEndTest, AnErrorInAHandlerStaysInsideQt)
{
    handlers.OnCellDown = [&](i16, i16) { Grid().SetText(9000, 9000, u"nowhere"); };
    EXPECT_NO_THROW(Click(MiddleOf(1, 1)));
    handlers.OnCellDown = nullptr;
    Click(MiddleOf(2, 2));
    EXPECT_EQ(Grid().CurrentRow(), 2);
}

} // namespace vornix
