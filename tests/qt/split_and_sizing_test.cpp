// Dragging the edges of lines and the handle of the split on the Qt widget, and what the children look like.
#include "live_grid.h"

#include <QTest>

namespace vornix {

namespace {

using testing::Contains;
using testing::ElementsAre;

class QtSizingTest : public LiveGridTest {
protected:
    QtSizingTest() { Grid().SetResizeMode(vxBoth); }
};

class QtSplitTest : public LiveGridTest {
protected:
    QtSplitTest()
    {
        Grid().SetShowSplit(true);
        Settle();
        log.Clear();
    }
    // Null where there is none at the place.
    QWidget* ChildAt(QPoint client)
    {
        QWidget* const child = window.childAt(InWindow(client));
        return child == widget ? nullptr : child;
    }
    QRect DeviceRect(const QWidget& child) { return DevicePlace(*widget, child.geometry()); }
};

} // namespace

TEST_F(QtSizingTest, TheEdgeOfAColumnIsDragged)
{
    const QPoint edge(60 + 2 * 60 - 2, 10);
    MoveTo(edge);
    EXPECT_EQ(widget->cursor().shape(), Qt::SplitHCursor);
    Drag(edge, edge + QPoint(30, 0));
    EXPECT_EQ(Grid().ColWidth(1), 88);
    EXPECT_EQ(Grid().ColWidth(2), 60);
    EXPECT_THAT(SaidNames(), Contains("ResizeCol"));
    EXPECT_TRUE(Bar(Qt::Horizontal)->isVisible());
    MoveTo(MiddleOf(3, 3));
    EXPECT_EQ(widget->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(QtSizingTest, TheEdgeOfARowIsDragged)
{
    const QPoint edge(30, 20 + 3 * 20 - 2);
    MoveTo(edge);
    EXPECT_EQ(widget->cursor().shape(), Qt::SplitVCursor);
    Drag(edge, edge + QPoint(0, 15));
    EXPECT_EQ(Grid().RowHeight(2), 33);
}

TEST_F(QtSizingTest, ADoubleClickOnTheEdgeFitsTheColumn)
{
    Grid().SetText(3, 1, u"wider than sixty pixels");
    const QPoint edge(60 + 2 * 60 - 2, 10);
    MoveTo(edge);
    Click(edge);
    DoubleClick(edge);
    i32 width = 0;
    i32 height = 0;
    Grid().CalcRectText(3, 1, width, height);
    EXPECT_GT(width, 60);
    // A line too tall for its row of 20 pixels adds what it has too much.
    EXPECT_EQ(Grid().ColWidth(1), width + std::max(height - 20, 0));
    EXPECT_EQ(Grid().ColWidth(0), 60);
    EXPECT_FALSE(Grid().IsSizingMode());
    EXPECT_THAT(SaidNames(), Contains("ResizeCol"));
}

TEST_F(QtSizingTest, ADoubleClickOnTheEdgeFitsTheRow)
{
    Grid().SetText(2, 3, u"one\rtwo\rthree");
    const QPoint edge(30, 20 + 3 * 20 - 2);
    MoveTo(edge);
    Click(edge);
    DoubleClick(edge);
    i32 width = 0;
    i32 height = 0;
    Grid().CalcRectText(2, 3, width, height);
    EXPECT_EQ(Grid().RowHeight(2), height + 1);
    EXPECT_GT(Grid().RowHeight(2), 40);
    EXPECT_THAT(SaidNames(), Contains("ResizeRow"));
}

TEST_F(QtSizingTest, TheHostHasTheLastWord)
{
    handlers.OnResizeCol = [](i16, i16& NewWidth) { NewWidth = 100; };
    const QPoint edge(60 + 60 - 2, 10);
    Drag(edge, edge + QPoint(7, 0));
    EXPECT_EQ(Grid().ColWidth(0), 100);
}

TEST_F(QtSizingTest, TheCursorForSizingDoesNotStayOnABar)
{
    MoveTo({ 60 + 60 - 2, 10 });
    EXPECT_EQ(widget->cursor().shape(), Qt::SplitHCursor);
    EXPECT_EQ(Bar(Qt::Vertical)->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(QtSplitTest, TheHandleWaitsAtTheHorizontalBar)
{
    QWidget* const handle = ChildAt({ 2, 290 });
    ASSERT_TRUE(handle);
    EXPECT_EQ(handle->geometry(), QRect(0, 284, 6, 17));
    EXPECT_EQ(handle->cursor().shape(), Qt::SplitHCursor);
    EXPECT_EQ(Bar(Qt::Horizontal)->geometry().left(), 6);
}

// A black line in the fifth pixel.
TEST_F(QtSplitTest, TheHandleIsDrawnByTheGridAtTheScreensResolution)
{
    QWidget* const handle = ChildAt({ 2, 290 });
    ASSERT_TRUE(handle);
    const QRect place = DeviceRect(*handle);
    const QImage shown = ScreenPicture(window);
    const double scale = widget->devicePixelRatioF();
    const int y = place.top() + place.height() / 2;
    std::vector<QRgb> pixels;
    for (int x = DeviceEdge(4, scale); x < DeviceEdge(5, scale); ++x)
        pixels.push_back(shown.pixel(place.left() + x, y));
    EXPECT_THAT(pixels, Contains(0xFF000000u));
    EXPECT_EQ(shown.pixel(place.left(), y), widget->palette().color(QPalette::Button).rgb());
}

TEST_F(QtSplitTest, DraggingItShowsALineAndSplitsWhereItIsLetGo)
{
    const QPoint at(2, 290);
    MoveTo(at);
    Press(at);
    MoveTo({ 200, 150 });
    Settle();
    QWidget* line = nullptr;
    for (QWidget* const child : widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && child->width() == 2)
            line = child;
    }
    ASSERT_TRUE(line);
    EXPECT_EQ(line->geometry(), QRect(200, 0, 2, 284));
    Release({ 200, 150 });
    Settle();
    EXPECT_FALSE(line->isVisible());
    EXPECT_EQ(Grid().SplitCols(), 2);
    EXPECT_THAT(Said(), ElementsAre("SplitCols Cols=2"));
    // The handle now lies over the cells, along the last column that stands still.
    QWidget* const handle = ChildAt({ 180, 100 });
    ASSERT_TRUE(handle);
    EXPECT_EQ(handle->geometry(), QRect(177, 0, 6, 284));
    EXPECT_EQ(Bar(Qt::Horizontal)->minimum(), 3);
}

TEST_F(QtSplitTest, TheHandleIsDraggedBackAgain)
{
    Grid().SetSplitCols(2);
    Settle();
    Drag({ 180, 100 }, { 30, 100 });
    EXPECT_EQ(Grid().SplitCols(), 0);
    ASSERT_TRUE(ChildAt({ 2, 290 }));
}

TEST_F(QtSplitTest, TheRightButtonDoesNotDragAndTheGridHearsOfNoPress)
{
    Press({ 2, 290 }, Qt::RightButton);
    MoveTo({ 200, 150 });
    Release({ 200, 150 }, Qt::RightButton);
    EXPECT_EQ(Grid().SplitCols(), 0);
    EXPECT_EQ(log.Count("MouseDown"), 0);
}

TEST_F(QtSplitTest, AGridWithoutInputKeepsItsSplit)
{
    Grid().SetEnabled(false);
    Drag({ 2, 290 }, { 200, 150 });
    EXPECT_EQ(Grid().SplitCols(), 0);
}

TEST_F(QtSplitTest, AHandlerMayCloseTheGridOrHaveTheWidgetDeletedLater)
{
    handlers.OnSplitCols = [&](i16) {
        Grid().Terminate();
        widget->deleteLater();
    };
    Drag({ 2, 290 }, { 200, 150 });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtSplitTest, NewColoursReachHandleAndCorner)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Button, QColor(10, 120, 200));
    widget->setPalette(palette);
    Settle();
    const QImage shown = ScreenPicture(window);
    for (const QPoint at : { QPoint(2, 290), QPoint(392, 292) }) {
        QWidget* const child = ChildAt(at);
        ASSERT_TRUE(child);
        const QRect place = DeviceRect(*child);
        EXPECT_EQ(shown.pixel(place.left(), place.top() + place.height() / 2), 0xFF0A78C8u) << at.x();
    }
}

} // namespace vornix
