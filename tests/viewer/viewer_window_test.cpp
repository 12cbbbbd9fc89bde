// The viewer's window in the hands of a person.
#include "viewer_window.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
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

    void TypeText(const char* text)
    {
        for (; *text; ++text)
            QTest::keyClick(window.findChild<QLineEdit*>(QStringLiteral("findText")), *text);
    }
    QWidget& Bar() { return *window.findChild<QWidget*>(QStringLiteral("findBar")); }
    std::string Found() { return Label("findCount"); }

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
    const QPoint from = MiddleOf(-1, 0);
    Press(from);
    DragTo(from, MiddleOf(-1, 1));
    Release(MiddleOf(-1, 1));
    EXPECT_EQ(Selection(), "2 columns selected");
    Click(MiddleOf(-1, 1), Qt::ShiftModifier);
    EXPECT_EQ(Selection(), "2 columns selected");
    EXPECT_EQ(Grid().Text(-1, 1), u"total") << "nothing is sorted by that";
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

TEST_F(ViewerWindowTest, SortsByClicksOnTitles)
{
    Click(MiddleOf(-1, 2));
    EXPECT_EQ(Grid().Text(-1, 2), u"▲ paid");
    EXPECT_EQ(Selection(), "") << "the click was for the order";
    EXPECT_FALSE(Grid().CellChecked(99, 2));
    EXPECT_TRUE(Grid().CellChecked(100, 2));
    EXPECT_EQ(Grid().Text(0, -1), u"2") << "numbers go with their rows";
    EXPECT_EQ(Grid().Text(100, -1), u"1");
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    Click(MiddleOf(-1, 2));
    EXPECT_EQ(Grid().Text(-1, 2), u"▼ paid");
    EXPECT_EQ(Grid().Text(0, -1), u"1");
    Click(MiddleOf(-1, 0), Qt::ControlModifier);
    EXPECT_EQ(Grid().Text(-1, 2), u"▼1 paid");
    EXPECT_EQ(Grid().Text(-1, 0), u"▲2 <b>city</b>");
    window.findChild<QAction*>(QStringLiteral("asInSource"))->trigger();
    EXPECT_EQ(Grid().Text(-1, 2), u"paid");
    EXPECT_EQ(Grid().Text(1, -1), u"2");
}

TEST_F(ViewerWindowTest, TakesADoubleClickOnATitleForTwoClicks)
{
    const QPoint at = MiddleOf(-1, 3);
    MoveTo(at);
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, at);
    EXPECT_EQ(Grid().Text(-1, 3), u"day ▼");
}

TEST_F(ViewerWindowTest, FitsAColumnByADoubleClickOnItsEdge)
{
    Grid().SetColWidth(1, 200);
    const QPoint edge = MiddleOf(-1, 1) + QPoint(Grid().ColWidth(1) / 2 - 1, 0);
    MoveTo(edge);
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, edge);
    EXPECT_LT(Grid().ColWidth(1), 120);
    EXPECT_GT(Grid().ColWidth(1), 20);
    EXPECT_EQ(Grid().Text(-1, 1), u"total") << "nothing is sorted by that";
}

TEST_F(ViewerWindowTest, KeepsCheckBoxesOfSortedRowsAsTheyAre)
{
    Click(MiddleOf(-1, 2));
    ASSERT_FALSE(Grid().CellChecked(0, 2));
    Click(MiddleOf(0, 2));
    EXPECT_FALSE(Grid().CellChecked(0, 2));
}

TEST_F(ViewerWindowTest, CopiesWhatIsSelected)
{
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Oslo")) << "the current cell";
    const QPoint from = MiddleOf(1, 0);
    Press(from);
    DragTo(from, MiddleOf(2, 2));
    Release(MiddleOf(2, 2));
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Oslo\t12.00\tfalse\r\nOslo\t12.00\ttrue"));
    Click(MiddleOf(-1, 3), Qt::ShiftModifier);
    QApplication::clipboard()->clear();
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().count(QStringLiteral("2025-06-30")), 200) << "the whole column";
    Type(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selection(), "200 × 4 cells selected");
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().count(QLatin1Char('\t')), 600);
}

TEST_F(ViewerWindowTest, FindsTextsAsTheyAreTyped)
{
    EXPECT_FALSE(Bar().isVisible());
    Type(Qt::Key_F, Qt::ControlModifier);
    Settle();
    ASSERT_TRUE(Bar().isVisible());
    TypeText("12");
    EXPECT_EQ(Found(), "1 of 200");
    EXPECT_EQ(Current(), "total, row 1");
    Type(Qt::Key_Return);
    EXPECT_EQ(Found(), "2 of 200");
    EXPECT_EQ(Current(), "total, row 2");
    Type(Qt::Key_F3);
    EXPECT_EQ(Found(), "3 of 200");
    Type(Qt::Key_Return, Qt::ShiftModifier);
    Type(Qt::Key_F3, Qt::ShiftModifier);
    Type(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Found(), "200 of 200") << "around the beginning";
    EXPECT_EQ(Current(), "total, row 200");
    EXPECT_LE(Grid().FirstRow(), 199);
    EXPECT_GE(Grid().LastRow(), 199) << "it is in view";
    TypeText("x");
    EXPECT_EQ(Found(), "not found");
    EXPECT_EQ(Current(), "total, row 200") << "it stays where it is";
    Type(Qt::Key_Escape);
    Settle();
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_TRUE(window.GridWidget().hasFocus());
    Type(Qt::Key_F, Qt::ControlModifier);
    TypeText("OSLO");
    EXPECT_EQ(Found(), "1 of 200") << "the old text is typed over, and case does not count";
    Type(Qt::Key_Escape);
    Type(Qt::Key_F3);
    EXPECT_EQ(Current(), "<b>city</b>, row 2") << "it goes on without its line";
}

TEST_F(ViewerWindowTest, CountsAnewWhatIsFoundOnceRowsAreSorted)
{
    Type(Qt::Key_F, Qt::ControlModifier);
    TypeText("oslo");
    EXPECT_EQ(Found(), "1 of 200");
    Click(MiddleOf(-1, 2));
    Type(Qt::Key_F3);
    EXPECT_EQ(Found(), "1 of 200") << "from the title on";
    Type(Qt::Key_F3);
    EXPECT_EQ(Current(), "<b>city</b>, row 4") << "the second one that is not paid";
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

TEST(ViewerWindow, TellsOfTooManyRowsToSort)
{
    Table table;
    table.Columns() = { { u"n", ColumnKind::Integer } };
    for (int row = 0; row < 30'000; ++row)
        table.AppendRow(std::vector<Field> { { row % 2 == 0 ? u"2" : u"1" } });
    ViewerWindow window(table);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    i32 x = 0;
    i32 y = 0;
    window.GridWidget().Grid().GetPositionCell(-1, 0, x, y);
    const QPoint at = window.GridWidget().mapTo(&window, QPoint(x / 15 + 10, y / 15 + 10));
    QTest::mouseMove(window.windowHandle(), at);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at);
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("notice"))->text(),
        QStringLiteral("not sorted: 30,000 rows are more than the 29,523 that can be sorted"));
    EXPECT_EQ(window.GridWidget().Grid().Text(-1, 0), u"n");
    EXPECT_EQ(window.GridWidget().Grid().Text(0, 0), u"2");
    QTest::keyClick(window.windowHandle(), Qt::Key_Down);
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("notice"))->text(), QString()) << "until the next key";
}

TEST(ViewerWindow, SearchesManyCellsOnceTheTypingRests)
{
    Table table;
    table.Columns().resize(10, { u"n" });
    const std::vector<Field> fields(10, { u"abc" });
    for (int row = 0; row < 20'000; ++row)
        table.AppendRow(fields);
    ViewerWindow window(table);
    window.show();
    window.OpenFindBar();
    auto* const text = window.findChild<QLineEdit*>(QStringLiteral("findText"));
    auto* const count = window.findChild<QLabel*>(QStringLiteral("findCount"));
    QTest::keyClicks(text, QStringLiteral("abc"));
    EXPECT_EQ(count->text(), QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return count->text() == QStringLiteral("1 of 200,000"); }));
    QTest::keyClick(text, Qt::Key_Backspace);
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(count->text(), QStringLiteral("1 of 200,000")) << "Enter does not wait, and does not go past the first";
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(count->text(), QStringLiteral("2 of 200,000"));
}

TEST(ViewerWindow, ShowsATableWithoutRows)
{
    Table table;
    table.Columns() = { { u"city", ColumnKind::Text } };
    ViewerWindow window(table);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("currentCell"))->text(), QString());
    for (const char* action : { "copy", "selectAll", "find", "next", "asInSource" })
        window.findChild<QAction*>(QLatin1String(action))->trigger();
    QTest::keyClicks(window.findChild<QLineEdit*>(QStringLiteral("findText")), QStringLiteral("x\r"));
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("findCount"))->text(), QStringLiteral("not found"));
}

} // namespace

} // namespace vornix::viewer
