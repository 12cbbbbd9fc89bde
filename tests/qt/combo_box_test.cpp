// The combo box alone: what a person does with it, what its listener hears, and lists of any length.
#include "qt_ambient.h"
#include "qt_combo_box.h"
#include "recording_listener.h"
#include "vornix/automation.h"
#include "widget_support.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace vornix {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Fruits : public ComboItems {
public:
    std::vector<std::u16string> rows { u"apple", u"banana", u"cherry" };
    mutable int asked = 0;

    int Count() const override { return static_cast<int>(rows.size()); }
    std::u16string_view Text(int index) const override
    {
        ++asked;
        if (index < 0 || index >= Count())
            throw AutomationError(ErrorNumber::SubscriptOutOfRange);
        return rows[static_cast<std::size_t>(index)];
    }
};

class QtComboBoxTest : public testing::Test {
protected:
    QtComboBoxTest()
    {
        form.resize(300, 200);
        box.SetItems(&fruits);
        box.Window().setParent(&form);
        box.Window().setGeometry(10, 20, 150, 22);
        form.show();
        form.activateWindow();
        box.Window().show();
        box.Window().setFocus();
        Settle();
        box.Listen(&listener);
    }
    ~QtComboBoxTest() override { box.DropDown(false); }

    QComboBox& Combo() { return static_cast<QComboBox&>(box.Window()); }
    void Send(QWidget& widget, int key, Qt::KeyboardModifiers keys)
    {
        const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z && !(keys & Qt::ControlModifier);
        const QString text = isLetter ? QString(QChar(key + 32)) : QString();
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, key, keys, text);
            QApplication::sendEvent(&widget, &event);
        }
    }
    void Type(int key, Qt::KeyboardModifiers keys = {}) { Send(Combo(), key, keys); }
    bool IsListOpen() { return Combo().view()->isVisible(); }

    Fruits fruits;
    QWidget form;
    RecordingListener listener;
    QtComboBox box { Qt::StrongFocus };
};

} // namespace

TEST_F(QtComboBoxTest, ItBeginsEmptyWithNoRowSelected)
{
    EXPECT_EQ(box.Text(), u"");
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_F(QtComboBoxTest, ARowIsTakenIntoTheFieldAndOtherNumbersAreNot)
{
    box.SetListIndex(1);
    EXPECT_EQ(box.Text(), u"banana");
    box.SetListIndex(3);
    box.SetListIndex(-2);
    EXPECT_EQ(box.ListIndex(), 1);
    box.SetListIndex(-1);
    EXPECT_EQ(box.Text(), u"");
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_F(QtComboBoxTest, ATextSelectsNoRowEvenIfItIsOne)
{
    box.SetListIndex(1);
    box.SetText(u"cherry");
    EXPECT_EQ(box.ListIndex(), -1);
    box.SetListOnly(true);
    box.SetText(u"in no row");
    EXPECT_EQ(box.Text(), u"in no row");
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_F(QtComboBoxTest, WhatIsTypedIsToldAndSelectsNoRow)
{
    box.SetListIndex(0);
    box.SetSelStart(5);
    Type(Qt::Key_S);
    EXPECT_EQ(box.Text(), u"apples");
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 83 0", "KeyPress 115 0", "TextChanged", "KeyUp 83 0"));
}

TEST_F(QtComboBoxTest, NothingIsCompletedAndNoRowIsChosenForWhatWasTyped)
{
    QTest::keyClicks(&Combo(), QStringLiteral("banana"));
    listener.Heard();
    QLineEdit other(&form);
    other.show();
    other.setFocus();
    EXPECT_FALSE(Combo().hasFocus());
    EXPECT_EQ(box.ListIndex(), -1);
    box.Window().setFocus();
    Type(Qt::Key_Return);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 13 0", "KeyPress 13 0", "KeyUp 13 0"));
    EXPECT_EQ(Combo().count(), 0);
    EXPECT_EQ(fruits.rows.size(), 3u);
}

TEST_F(QtComboBoxTest, CharactersAndKeysSetToZeroEndThere)
{
    listener.keyPress = [](i16& character, i16) { character = 0; };
    Type(Qt::Key_S);
    EXPECT_EQ(box.Text(), u"");
    listener.keyDown = [](i16& code, i16&) { code = 0; };
    Type(Qt::Key_Down);
    EXPECT_EQ(box.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, AListAloneTakesNoCharactersButTellsThem)
{
    box.SetListOnly(true);
    box.SetListIndex(1);
    Type(Qt::Key_S);
    Type(Qt::Key_Backspace);
    Type(Qt::Key_Delete);
    QApplication::clipboard()->setText(QStringLiteral("pasted"));
    Type(Qt::Key_V, Qt::ControlModifier);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("é"));
    QApplication::sendEvent(&Combo(), &composed);
    EXPECT_EQ(box.Text(), u"banana");
    EXPECT_EQ(box.ListIndex(), 1);
    EXPECT_THAT(listener.Heard(),
        ElementsAre("KeyDown 83 0", "KeyPress 115 0", "KeyUp 83 0", "KeyDown 8 0", "KeyPress 8 0", "KeyUp 8 0",
            "KeyDown 46 0", "KeyUp 46 0", "KeyDown 86 2", "KeyPress 22 2", "KeyUp 86 2", "KeyDown 229 0",
            "KeyPress 233 0"));
}

TEST_F(QtComboBoxTest, UpAndDownWalkTheListAndTellAClick)
{
    Type(Qt::Key_Down);
    EXPECT_EQ(box.ListIndex(), 0);
    EXPECT_EQ(box.Text(), u"apple");
    EXPECT_EQ(box.SelText(), u"apple");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 40 0", "Click", "KeyUp 40 0"));
    Type(Qt::Key_Down);
    EXPECT_EQ(box.Text(), u"banana");
    Type(Qt::Key_Up);
    EXPECT_EQ(box.Text(), u"apple");
    listener.Heard();
    Type(Qt::Key_Up);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 38 0", "KeyUp 38 0"));
    Type(Qt::Key_PageDown);
    EXPECT_EQ(box.Text(), u"cherry");
}

TEST_F(QtComboBoxTest, WithoutARowUpBeginsAtTheFirstToo)
{
    box.SetText(u"other");
    Type(Qt::Key_Up);
    EXPECT_EQ(box.ListIndex(), 0);
}

TEST_F(QtComboBoxTest, AnEmptyListIsWalkedNowhere)
{
    box.SetItems(nullptr);
    Type(Qt::Key_Down);
    Type(Qt::Key_PageUp);
    EXPECT_EQ(box.ListIndex(), -1);
    box.DropDown(true);
    EXPECT_EQ(box.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, HomeAndEndAreOfTheFieldOrOfTheListAlone)
{
    box.SetListIndex(1);
    Type(Qt::Key_End);
    EXPECT_EQ(box.ListIndex(), 1);
    EXPECT_EQ(box.SelStart(), 6);
    box.SetListOnly(true);
    Type(Qt::Key_End);
    EXPECT_EQ(box.ListIndex(), 2);
    Type(Qt::Key_Home);
    EXPECT_EQ(box.ListIndex(), 0);
}

TEST_F(QtComboBoxTest, ARowOfTheOpenListIsChosenWithEnter)
{
    box.SetText(u"other");
    Type(Qt::Key_F4);
    ASSERT_TRUE(IsListOpen());
    EXPECT_EQ(box.Text(), u"other");
    listener.Heard();
    Combo().view()->setCurrentIndex(Combo().model()->index(2, 0));
    QTest::keyClick(Combo().view(), Qt::Key_Return);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(box.ListIndex(), 2);
    EXPECT_EQ(box.Text(), u"cherry");
    EXPECT_THAT(listener.Heard(), testing::Contains("Click").Times(1));
}

TEST_F(QtComboBoxTest, ARowOfTheOpenListIsChosenWithThePointer)
{
    box.SetListIndex(1);
    box.DropDown(true);
    ASSERT_TRUE(IsListOpen());
    QAbstractItemView& list = *Combo().view();
    const QPoint first = list.visualRect(Combo().model()->index(0, 0)).center();
    QTest::mouseMove(list.viewport(), first);
    QTest::qWait(QApplication::doubleClickInterval() + 20); // Qt takes an early release for that of the opening press
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(box.ListIndex(), 0);
    EXPECT_THAT(listener.Heard(), testing::Contains("Click").Times(1));
}

TEST_F(QtComboBoxTest, EscapeClosesTheListAndLeavesTheRow)
{
    box.SetListIndex(1);
    box.DropDown(true);
    Combo().view()->setCurrentIndex(Combo().model()->index(2, 0));
    listener.Heard();
    QTest::keyClick(Combo().view(), Qt::Key_Escape);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(box.ListIndex(), 1);
    EXPECT_EQ(box.Text(), u"banana");
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_F(QtComboBoxTest, WhatIsTypedIntoAnOpenListIsToldAndARowThatComesOfItIsShown)
{
    box.SetListOnly(true);
    box.DropDown(true);
    listener.keyPress = [this](i16&, i16) { box.SetListIndex(2); };
    Send(*Combo().view(), Qt::Key_C, {});
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 67 0", "KeyPress 99 0", "KeyUp 67 0"));
    EXPECT_EQ(Combo().view()->currentIndex().row(), 2);
    EXPECT_EQ(box.ListIndex(), 2);
}

TEST_F(QtComboBoxTest, AnOpenListFollowsItsRows)
{
    box.SetText(u"other");
    box.DropDown(true);
    EXPECT_EQ(Combo().count(), 3);
    fruits.rows.push_back(u"date");
    box.ItemsChanged();
    fruits.rows.push_back(u"elder");
    box.ItemsChanged();
    Settle();
    EXPECT_EQ(Combo().count(), 5);
    EXPECT_EQ(box.Text(), u"other");
    fruits.rows.clear();
    box.ItemsChanged();
    Settle();
    EXPECT_EQ(Combo().count(), 0);
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_F(QtComboBoxTest, AClickOnTheFieldOfAListAloneOpensIt)
{
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(30, 31));
    EXPECT_FALSE(IsListOpen());
    box.SetListOnly(true);
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(30, 31));
    EXPECT_TRUE(IsListOpen());
}

TEST_F(QtComboBoxTest, AClickOnTheFieldOfAnOpenListAloneClosesIt)
{
    const QPoint place(30, 31);
    box.SetListOnly(true);
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, place);
    ASSERT_TRUE(IsListOpen());
    QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, place);
    Settle();
    EXPECT_FALSE(IsListOpen());
    QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, place);
    Settle();
    EXPECT_FALSE(IsListOpen());
    QTest::qWait(QApplication::doubleClickInterval() + 20);
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(IsListOpen());
}

// As Qt does it where windows have the pointer for themselves.
TEST_F(QtComboBoxTest, APressThatClosedTheListAndComesAgainDoesNotOpenIt)
{
    box.SetListOnly(true);
    box.DropDown(true);
    QWidget& line = *Combo().lineEdit();
    const auto send = [&](QWidget& widget, QEvent::Type type, quint64 time) {
        const QPointF place = line.mapToGlobal(QPointF(5, 5));
        const bool isPress = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, widget.mapFromGlobal(place), place, Qt::LeftButton,
            isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(&widget, &event);
    };
    send(*Combo().view()->window(), QEvent::MouseButtonPress, 1000);
    EXPECT_FALSE(IsListOpen());
    send(line, QEvent::MouseButtonPress, 1000);
    send(line, QEvent::MouseButtonRelease, 1100);
    EXPECT_FALSE(IsListOpen());
    send(line, QEvent::MouseButtonPress, 2000);
    send(line, QEvent::MouseButtonRelease, 2100);
    EXPECT_TRUE(IsListOpen());
}

TEST_F(QtComboBoxTest, AReleaseWithoutAPressOnTheFieldOpensNothing)
{
    box.SetListOnly(true);
    QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, QPoint(250, 150));
    QTest::mouseRelease(&*Combo().lineEdit(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(IsListOpen());
}

TEST_F(QtComboBoxTest, AToolThatWritesTheTextIsTold)
{
    box.SetListIndex(1);
    Combo().lineEdit()->setText(QStringLiteral("other"));
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_THAT(listener.Heard(), ElementsAre("TextChanged"));
    // What is pasted next is seen against what the tool wrote.
    QApplication::clipboard()->setText(QStringLiteral("one\ntwo"));
    box.SetSelStart(5);
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"otherone");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 86 2", "KeyPress 22 2", "TextChanged", "KeyUp 86 2"));
}

TEST_F(QtComboBoxTest, AToolThatWritesTheTextOfARowIsToldTooAndChoosesNone)
{
    box.SetListIndex(1);
    box.DropDown(true);
    box.DropDown(false);
    box.SetText(u"other");
    Combo().lineEdit()->setText(QStringLiteral("banana"));
    Settle();
    EXPECT_THAT(listener.Heard(), ElementsAre("TextChanged"));
    EXPECT_EQ(box.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, ARowThatAProgramChoosesAfterAToolStaysChosen)
{
    box.SetListIndex(1);
    box.DropDown(true);
    box.DropDown(false);
    box.SetText(u"other");
    Combo().lineEdit()->setText(QStringLiteral("banana"));
    EXPECT_EQ(box.ListIndex(), -1);
    box.SetListIndex(2);
    Settle();
    EXPECT_EQ(box.ListIndex(), 2);
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_F(QtComboBoxTest, TheRowThatTheListWasOpenedWithIsChosenAgainWithoutAChange)
{
    box.SetListIndex(1);
    box.DropDown(true);
    box.SetListIndex(2);
    Combo().view()->setCurrentIndex(Combo().model()->index(1, 0));
    QTest::keyClick(Combo().view(), Qt::Key_Return);
    Settle();
    EXPECT_EQ(box.Text(), u"banana");
    EXPECT_EQ(box.ListIndex(), 1);
    EXPECT_THAT(listener.Heard(),
        testing::AllOf(testing::Contains("Click").Times(1), testing::Not(testing::Contains("TextChanged"))));
}

TEST_F(QtComboBoxTest, TheSelectionIsThatOfTheField)
{
    box.SetText(u"abcd");
    box.SetSelStart(1);
    box.SetSelLength(9);
    EXPECT_EQ(box.SelText(), u"bcd");
    EXPECT_EQ(box.SelStart(), 1);
    box.SetSelText(u"x");
    EXPECT_EQ(box.Text(), u"ax");
    EXPECT_EQ(box.SelStart(), 2);
    box.SetSelStart(99);
    EXPECT_EQ(box.SelStart(), 2);
    box.SetListOnly(true);
    box.SetSelStart(0);
    box.SetSelLength(1);
    EXPECT_EQ(box.SelText(), u"a");
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_F(QtComboBoxTest, OfPastedLinesTheFirstIsTakenAndToldOnce)
{
    box.SetText(u"ab\r\nc");
    box.SetSelStart(1);
    QApplication::clipboard()->setText(QStringLiteral("one\ntwo"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"aoneb\r\nc");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 86 2", "KeyPress 22 2", "TextChanged", "KeyUp 86 2"));
}

TEST_F(QtComboBoxTest, TheWheelDoesNotChooseRows)
{
    box.SetListIndex(1);
    QWheelEvent wheel({ 5, 5 }, form.mapToGlobal(QPointF(15, 25)), {}, { 0, 120 }, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Combo(), &wheel);
    EXPECT_EQ(box.ListIndex(), 1);
    EXPECT_FALSE(wheel.isAccepted());
}

TEST_F(QtComboBoxTest, MovesAreToldInPixelsOfTheBox)
{
    QTest::mouseEvent(QTest::MouseMove, form.windowHandle(), Qt::NoButton, {}, QPoint(40, 30));
    EXPECT_THAT(listener.Heard(), ElementsAre("MouseMove 0 0 30,10"));
}

TEST_F(QtComboBoxTest, AHundredThousandRowsAreReadOnlyWhereTheyAreSeen)
{
    fruits.rows.clear();
    for (int row = 0; row < 100'000; ++row) {
        fruits.rows.push_back(u"row " + FromQString(QString::number(row)));
        box.ItemsChanged();
    }
    EXPECT_EQ(fruits.asked, 0);
    box.SetListIndex(99'999);
    box.DropDown(true);
    Settle();
    EXPECT_EQ(Combo().count(), 100'000);
    EXPECT_LT(fruits.asked, 1000);
    EXPECT_EQ(Combo().view()->currentIndex().row(), 99'999);
    fruits.asked = 0;
    box.DropDown(false);
    Type(Qt::Key_Up);
    EXPECT_EQ(box.Text(), u"row 99998");
    EXPECT_LT(fruits.asked, 100);
}

TEST_F(QtComboBoxTest, ABoxWhoseWindowWentMakesAnother)
{
    box.SetListIndex(1);
    delete &box.Window();
    EXPECT_EQ(box.Text(), u"");
    EXPECT_EQ(box.ListIndex(), -1);
    box.SetListIndex(2);
    EXPECT_EQ(box.Text(), u"cherry");
}

} // namespace vornix
