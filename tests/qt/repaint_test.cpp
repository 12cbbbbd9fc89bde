// What is repainted, and that it is enough.
#include "widget_support.h"

#include <QVBoxLayout>

#include <stdexcept>

namespace vornix {

namespace {

class QVornixRepaintTest : public testing::Test {
protected:
    QVornixRepaintTest()
    {
        widget.setParent(&window);
        window.resize(500, 400);
        FillTable(widget.Grid());
        widget.setGeometry(11, 13, 333, 287);
        ShowAndSettle(window);
        widget.ClearNotes();
    }

    // The place of a cell in the widget.
    QRect CellPlace(i16 Row, i16 Col)
    {
        i32 x = 0;
        i32 y = 0;
        i16 width = 0;
        i16 height = 0;
        widget.Grid().GetPositionCell(Row, Col, x, y);
        widget.Grid().GetSizeCell(Row, Col, width, height);
        const QPoint client = widget.contentsRect().topLeft();
        return QRect(x / 15 + client.x(), y / 15 + client.y(), width, height);
    }

    QWidget window;
    NotedWidget widget;
};

} // namespace

TEST_F(QVornixRepaintTest, AnIdleWidgetPaintsNothing)
{
    Settle();
    EXPECT_EQ(widget.paints, 0);
}

TEST_F(QVornixRepaintTest, AChangedCellRepaintsItsAreaAlone)
{
    for (i16 Row = 0; Row < 9; ++Row) {
        for (i16 Col = 0; Col < 4; ++Col) {
            widget.ClearNotes();
            widget.Grid().SetCellBackColor(Row, Col, 0x0000FF);
            widget.Grid().SetText(Row, Col, u"new");
            Settle();
            const QRect place = CellPlace(Row, Col);
            EXPECT_EQ(widget.paints, 1);
            EXPECT_TRUE(widget.painted.boundingRect().contains(place));
            EXPECT_TRUE(place.adjusted(-1, -1, 1, 1).contains(widget.painted.boundingRect()));
        }
    }
    EXPECT_TRUE(ShowsItsGrid(widget));
}

// The cell's own edges lie inside device pixels at fractional scales: no line of an old colour may stay.
TEST_F(QVornixRepaintTest, SingleCellsAddUpToTheWholePicture)
{
    for (int dx = 0; dx < 4; ++dx) {
        widget.move(11 + dx, 13 + dx);
        Settle();
        for (i16 Row = 0; Row < 9; ++Row) {
            for (i16 Col = 0; Col < 4; ++Col) {
                widget.Grid().SetCellBackColor(
                    Row, Col, static_cast<OleColor>(0x101010 * (dx + 1) + 40 * Row + 9 * Col));
                Settle();
            }
        }
        EXPECT_TRUE(ShowsItsGrid(widget)) << "moved by " << dx;
    }
}

TEST_F(QVornixRepaintTest, SeveralChangesArePaintedTogether)
{
    for (i16 Row = 0; Row < 9; ++Row)
        widget.Grid().SetText(Row, 1, u"together");
    Settle();
    EXPECT_EQ(widget.paints, 1);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST_F(QVornixRepaintTest, ACellOutOfSightRepaintsNothing)
{
    widget.Grid().SetText(39, 7, u"below and to the right");
    Settle();
    EXPECT_EQ(widget.paints, 0);
}

TEST_F(QVornixRepaintTest, NothingIsRepaintedWhileRedrawIsOff)
{
    widget.Grid().SetRedraw(false);
    widget.Grid().SetText(0, 0, u"unseen");
    widget.Grid().SetColWidth(0, 99);
    Settle();
    EXPECT_EQ(widget.paints, 0);
    widget.Grid().SetRedraw(true);
    Settle();
    EXPECT_EQ(widget.paints, 1);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST_F(QVornixRepaintTest, ARepaintFromQtPaintsNoCell)
{
    widget.Grid().ClearPaintCounters();
    widget.update();
    Settle();
    EXPECT_EQ(widget.paints, 1);
    EXPECT_EQ(widget.Grid().Repaints(), 0);
    EXPECT_EQ(widget.Grid().Refreshes(), 0);
    EXPECT_TRUE(ShowsItsGrid(widget));
}

TEST_F(QVornixRepaintTest, FocusComesAndGoesWithoutARepaint)
{
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.setGeometry(400, 10, 50, 20);
    other.show();
    window.activateWindow();
    Settle();
    widget.ClearNotes();
    widget.setFocus();
    Settle();
    EXPECT_TRUE(widget.hasFocus());
    other.setFocus();
    Settle();
    EXPECT_FALSE(widget.hasFocus());
    EXPECT_EQ(widget.paints, 0);
}

TEST_F(QVornixRepaintTest, AResizeLaysOutOnce)
{
    widget.Grid().ClearPaintCounters();
    widget.resize(250, 222);
    Settle();
    EXPECT_EQ(widget.Grid().Repaints(), 1);
    EXPECT_EQ(widget.paints, 1);
}

} // namespace vornix
