// The viewer's window in the hands of a person.
#include "viewer_window.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace vornix::viewer {

namespace {

Table Orders()
{
    Table table;
    table.SetName(u"orders");
    table.Columns() = { { u"<b>city</b>", ColumnKind::Text }, { u"total", ColumnKind::Money },
        { u"paid", ColumnKind::Boolean }, { u"day", ColumnKind::Date } };
    for (int row = 0; row < 200; ++row) {
        const std::vector<Field> fields { { u"Oslo" }, { u"12.00" }, { row % 2 == 0 ? u"-1" : u"0" },
            { u"2025-06-30" } };
        table.AppendRow(fields);
    }
    table.SetTotalRows(200);
    return table;
}

class ViewerWindowTest : public testing::Test {
protected:
    ViewerWindowTest()
    {
        window.resize(500, 400);
        window.show();
        window.activateWindow();
        Settle();
    }

    Vornix& Grid() { return window.GridWidget().Grid(); }
    static void Settle()
    {
        QApplication::processEvents();
        QApplication::processEvents();
    }
    std::string Label(const char* name) { return window.findChild<QLabel*>(QLatin1String(name))->text().toStdString(); }
    std::string Current() { return Label("currentCell"); }
    std::string Selection() { return Label("selection"); }

    // In the window.
    QPoint MiddleOf(i16 Row, i16 Col)
    {
        i32 x = 0;
        i32 y = 0;
        i16 width = 0;
        i16 height = 0;
        Grid().GetPositionCell(Row, Col, x, y);
        Grid().GetSizeCell(Row, Col, width, height);
        return window.GridWidget().mapTo(&window, QPoint(x / 15 + width / 2, y / 15 + height / 2));
    }
    void MoveTo(QPoint at) { QTest::mouseEvent(QTest::MouseMove, window.windowHandle(), Qt::NoButton, {}, at); }
    void Press(QPoint at, Qt::KeyboardModifiers keys = {})
    {
        MoveTo(at);
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, keys, at);
    }
    void Release(QPoint at, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, keys, at);
    }
    void Click(QPoint at, Qt::KeyboardModifiers keys = {})
    {
        Press(at, keys);
        Release(at, keys);
    }
    void DragTo(QPoint from, QPoint to)
    {
        for (int step = 1; step <= 8; ++step)
            MoveTo(from + (to - from) * step / 8);
    }
    void Type(Qt::Key key, Qt::KeyboardModifiers keys = {}) { QTest::keyClick(window.windowHandle(), key, keys); }

    const Table table = Orders();
    ViewerWindow window { table };
};

TEST_F(ViewerWindowTest, BeginsWithTheFirstCellAndTheKeyboard)
{
    EXPECT_TRUE(window.GridWidget().hasFocus());
    EXPECT_EQ(Current(), "<b>city</b>, row 1");
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("currentCell"))->textFormat(), Qt::PlainText);
    EXPECT_EQ(Selection(), "");
    EXPECT_EQ(Label("extent"), "200 rows, 4 columns");
    Type(Qt::Key_Down);
    EXPECT_EQ(Current(), "<b>city</b>, row 2") << "the first key moves already";
}

TEST_F(ViewerWindowTest, FollowsTheKeys)
{
    Type(Qt::Key_Right);
    EXPECT_EQ(Current(), "total, row 1");
    Type(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Current(), "day, row 200");
    Type(Qt::Key_Up, Qt::ShiftModifier);
    Type(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Selection(), "2 × 2 cells selected");
    Type(Qt::Key_Home, Qt::ControlModifier);
    Type(Qt::Key_Down);
    EXPECT_EQ(Selection(), "");
    QTest::keyPress(window.windowHandle(), Qt::Key_Down);
    EXPECT_EQ(Current(), "<b>city</b>, row 3") << "while the key is still down";
    QTest::keyRelease(window.windowHandle(), Qt::Key_Down);
}

TEST_F(ViewerWindowTest, FollowsTheMouse)
{
    Press(MiddleOf(3, 1));
    EXPECT_EQ(Current(), "total, row 4") << "while the button is still down";
    Release(MiddleOf(3, 1));
    EXPECT_EQ(Selection(), "");
    const QPoint from = MiddleOf(1, 0);
    const QPoint to = MiddleOf(4, 1);
    Press(from);
    DragTo(from, to);
    Release(to);
    EXPECT_EQ(Current(), "<b>city</b>, row 2");
    EXPECT_EQ(Selection(), "4 × 2 cells selected");
}

TEST_F(ViewerWindowTest, SelectsLinesByTheirHeaders)
{
    Click(MiddleOf(2, -1));
    EXPECT_EQ(Selection(), "1 row selected");
    EXPECT_EQ(Current(), "Row 3");
    Click(MiddleOf(5, -1), Qt::ControlModifier);
    EXPECT_EQ(Selection(), "2 rows selected");
    Click(MiddleOf(7, -1), Qt::ShiftModifier);
    EXPECT_EQ(Selection(), "3 rows selected");
    Click(MiddleOf(-1, 1));
    EXPECT_EQ(Selection(), "1 column selected");
    EXPECT_EQ(Current(), "total, header");
    Click(MiddleOf(-2, 0));
    EXPECT_EQ(Selection(), "") << "the title takes the selection away";
}

TEST_F(ViewerWindowTest, SizesColumns)
{
    const i16 before = Grid().ColWidth(0);
    const QPoint edge = MiddleOf(-1, 0) + QPoint(before / 2, 0);
    Press(edge);
    DragTo(edge, edge + QPoint(40, 0));
    Release(edge + QPoint(40, 0));
    EXPECT_NEAR(Grid().ColWidth(0), before + 40, 3);
}

TEST_F(ViewerWindowTest, ChangesNothingOfTheTable)
{
    ASSERT_EQ(Grid().CellMode(0, 2), vxCheckBox);
    Click(MiddleOf(0, 2));
    EXPECT_TRUE(Grid().CellChecked(0, 2));
    Click(MiddleOf(1, 2));
    EXPECT_FALSE(Grid().CellChecked(1, 2));
    Type(Qt::Key_Space);
    EXPECT_FALSE(Grid().CellChecked(1, 2));
    EXPECT_EQ(Current(), "paid, row 2");
}

TEST_F(ViewerWindowTest, CanBeNarrowerThanItsLine)
{
    window.resize(120, 200);
    Settle();
    EXPECT_LT(window.width(), 350);
}

TEST(ViewerWindow, ShowsATableWithoutRows)
{
    Table table;
    table.Columns() = { { u"city", ColumnKind::Text } };
    ViewerWindow window(table);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("currentCell"))->text(), QString());
}

} // namespace

} // namespace vornix::viewer
