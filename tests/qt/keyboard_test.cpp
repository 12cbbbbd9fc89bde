// Keys on the Qt widget: what the grid hears, what it does with them, and what is left to the form.
#include "live_grid.h"

#include "vornix/headless_container.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QTest>

namespace vornix {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class QtKeyboardTest : public LiveGridTest {
protected:
    QtKeyboardTest()
    {
        edit.setGeometry(500, 10, 80, 20);
        edit.show();
        Grid().CurrentPos(5, 3);
        widget->setFocus();
        Settle();
        log.Clear();
    }
    // The key alone, with others held that went down before.
    void Strike(int key, Qt::KeyboardModifiers keys = {}, const QString& text = {})
    {
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, key, keys, text);
            QApplication::sendEvent(widget, &event);
        }
    }
    // Whether the widget takes the press of the key.
    bool Takes(int key, Qt::KeyboardModifiers keys = {}, const QString& text = {})
    {
        QKeyEvent press(QEvent::KeyPress, key, keys, text);
        press.setAccepted(true);
        QApplication::sendEvent(widget, &press);
        return press.isAccepted();
    }

    QLineEdit edit { &window };
};

} // namespace

TEST_F(QtKeyboardTest, ArrowsMoveTheCurrentCell)
{
    Type(Qt::Key_Down);
    EXPECT_EQ(Grid().CurrentRow(), 6);
    Type(Qt::Key_Right);
    EXPECT_EQ(Grid().CurrentCol(), 4);
    Type(Qt::Key_Up);
    Type(Qt::Key_Left);
    EXPECT_TRUE(Grid().IsCurrent(5, 3));
    EXPECT_EQ(log.Count("CellChange"), 4);
}

TEST_F(QtKeyboardTest, HomeEndAndThePageKeys)
{
    Type(Qt::Key_End);
    EXPECT_TRUE(Grid().IsCurrent(5, 19));
    EXPECT_EQ(Bar(Qt::Horizontal)->value(), Grid().FirstCol() + 1);
    Type(Qt::Key_Home);
    EXPECT_TRUE(Grid().IsCurrent(5, 0));
    Type(Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(Grid().IsCurrent(99, 19));
    EXPECT_EQ(Bar(Qt::Vertical)->value(), Grid().FirstRow() + 1);
    Type(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_TRUE(Grid().IsCurrent(0, 0));
    EXPECT_EQ(Grid().FirstRow(), 0);
    const int last = Grid().LastRow();
    Type(Qt::Key_PageDown);
    EXPECT_EQ(Grid().FirstRow(), last);
    EXPECT_TRUE(Grid().IsCurrent(0, 0));
    Type(Qt::Key_PageUp);
    EXPECT_EQ(Grid().FirstRow(), 0);
}

TEST_F(QtKeyboardTest, ShiftAndArrowsSelect)
{
    Grid().SetCellSelection(true);
    Click(MiddleOf(2, 2));
    Type(Qt::Key_Down, Qt::ShiftModifier);
    Type(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Grid().SelectCountCell(), 4);
}

TEST_F(QtKeyboardTest, AKeyIsTheSameAsInTheContainerWithoutAScreen)
{
    HeadlessOptions options;
    options.width = LiveSize.width();
    options.height = LiveSize.height();
    HeadlessContainer other(options);
    FillLiveTable(other.Grid());
    other.Grid().CurrentPos(5, 3);
    other.EnterFocus();
    other.ClearLog();
    Strike(Qt::Key_Down);
    Strike(Qt::Key_A, Qt::ShiftModifier, "A");
    Strike(Qt::Key_C, Qt::ControlModifier, "\x03");
    Strike(Qt::Key_Return, {}, "\r");
    Strike(Qt::Key_Delete, {}, "\x7f");
    Strike(Qt::Key_F4, Qt::ShiftModifier);
    for (const auto& [name, shift] : { std::pair<const char*, i16> { "Down", i16 { 0 } }, { "a", i16 { 1 } },
             { "c", i16 { 2 } }, { "Return", i16 { 0 } }, { "Delete", i16 { 0 } }, { "F4", i16 { 1 } } })
        other.Press(name, shift);
    EXPECT_EQ(Said(), LinesOf(other.Log()));
}

TEST_F(QtKeyboardTest, KeysOfShiftItselfCountThemselvesWhileTheyAreDown)
{
    // Qt's events tell what was held before them.
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);
    QApplication::sendEvent(widget, &down);
    QApplication::sendEvent(widget, &up);
    EXPECT_THAT(Said(), ElementsAre("KeyDown KeyCode=16 Shift=1", "KeyUp KeyCode=16 Shift=0"));
}

TEST_F(QtKeyboardTest, EachUnitOfATextIsAPress)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, {}, QString::fromUtf8("a😀"));
    QApplication::sendEvent(widget, &press);
    EXPECT_THAT(Said(),
        ElementsAre("KeyDown KeyCode=231 Shift=0", "KeyPress KeyAscii=97", "KeyPress KeyAscii=-10179",
            "KeyPress KeyAscii=-8704"));
}

TEST_F(QtKeyboardTest, AHeldKeyRepeatsItsPressAlone)
{
    for (const QEvent::Type type : { QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress }) {
        QKeyEvent repeated(type, Qt::Key_B, {}, "b", true);
        QApplication::sendEvent(widget, &repeated);
    }
    EXPECT_THAT(SaidNames(), ElementsAre("KeyDown", "KeyPress", "KeyDown", "KeyPress"));
}

TEST_F(QtKeyboardTest, ACodeSetToZeroIsTakenAndGivesNoCharacter)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16&) { KeyCode = 0; };
    EXPECT_TRUE(Takes(Qt::Key_X, {}, "x"));
    EXPECT_TRUE(Takes(Qt::Key_Down));
    EXPECT_EQ(Grid().CurrentRow(), 5);
    EXPECT_THAT(SaidNames(), ElementsAre("KeyDown", "KeyDown"));
}

TEST_F(QtKeyboardTest, ACharacterSetToZeroIsTaken)
{
    EXPECT_FALSE(Takes(Qt::Key_X, {}, "x"));
    handlers.OnKeyPress = [](i16& KeyAscii) { KeyAscii = 0; };
    EXPECT_TRUE(Takes(Qt::Key_X, {}, "x"));
}

TEST_F(QtKeyboardTest, AnotherCodeIsTheKeyThatTheGridSees)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16&) { KeyCode = KeyCode == 13 ? 40 : KeyCode; };
    EXPECT_TRUE(Takes(Qt::Key_Return, {}, "\r"));
    EXPECT_EQ(Grid().CurrentRow(), 6);
}

TEST_F(QtKeyboardTest, KeysThatTheGridDoesNotUseAreLeftToTheForm)
{
    for (const int key : { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End,
             Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_F2 })
        EXPECT_TRUE(Takes(key)) << key;
    for (const int key : { Qt::Key_Return, Qt::Key_Escape, Qt::Key_Delete, Qt::Key_F5, Qt::Key_A })
        EXPECT_FALSE(Takes(key)) << key;
    EXPECT_TRUE(Takes(Qt::Key_Home, Qt::ControlModifier));
    EXPECT_FALSE(Takes(Qt::Key_C, Qt::ControlModifier));
    EXPECT_FALSE(Takes(Qt::Key_PageDown, Qt::ControlModifier));
    EXPECT_TRUE(Takes(Qt::Key_Down, Qt::ShiftModifier));
    EXPECT_FALSE(Takes(Qt::Key_Down, Qt::AltModifier));
}

TEST_F(QtKeyboardTest, ShortcutsComeBeforeTheGrid)
{
    int copies = 0;
    QShortcut shortcut(QKeySequence::Copy, &window);
    QObject::connect(&shortcut, &QShortcut::activated, &window, [&] { ++copies; });
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copies, 1);
    EXPECT_THAT(Said(), Not(Contains("KeyDown KeyCode=67 Shift=2")));
}

TEST_F(QtKeyboardTest, TabMovesTheFocusAfterTheHandlersHeardOfIt)
{
    Type(Qt::Key_Tab);
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_THAT(Said(), ElementsAre("KeyDown KeyCode=9 Shift=0", "KeyPress KeyAscii=9"));
    widget->setFocus();
    Takes(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_THAT(Said(), ElementsAre("KeyDown KeyCode=9 Shift=1", "KeyPress KeyAscii=9"));
}

TEST_F(QtKeyboardTest, AHandlerMayTakeTab)
{
    handlers.OnKeyDown = [](i16& KeyCode, i16&) { KeyCode = 0; };
    Type(Qt::Key_Tab);
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_THAT(SaidNames(), ElementsAre("KeyDown", "KeyUp"));
}

TEST_F(QtKeyboardTest, AHandlerMayGiveTheFocusAwayItself)
{
    handlers.OnKeyDown = [&](i16&, i16&) { edit.setFocus(); };
    Type(Qt::Key_Tab);
    EXPECT_TRUE(edit.hasFocus());
    EXPECT_THAT(SaidNames(), ElementsAre("KeyDown"));
}

TEST_F(QtKeyboardTest, CtrlTabIsTheForms)
{
    EXPECT_FALSE(Takes(Qt::Key_Tab, Qt::ControlModifier));
    EXPECT_TRUE(widget->hasFocus());
}

TEST_F(QtKeyboardTest, ClosingTheGridInAHandlerIsTheLastOfTheKey)
{
    handlers.OnKeyDown = [&](i16&, i16&) { Grid().Terminate(); };
    Type(Qt::Key_A);
    Type(Qt::Key_Down);
    EXPECT_THAT(SaidNames(), ElementsAre("KeyDown"));
}

TEST_F(QtKeyboardTest, AHandlerMayHaveTheWidgetDeletedLater)
{
    handlers.OnCellChange = [&](i16, i16, bool&) { widget->deleteLater(); };
    Type(Qt::Key_Down);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtKeyboardTest, TheMarkOfTheCurrentCellLeavesAndComesBackWithTheFocus)
{
    Settle();
    const QImage marked = ShownClient(*widget).copy();
    edit.setFocus();
    Settle();
    EXPECT_FALSE(SameImage(ShownClient(*widget), marked));
    widget->setFocus();
    Settle();
    EXPECT_TRUE(SameImage(ShownClient(*widget), marked));
}

} // namespace vornix
