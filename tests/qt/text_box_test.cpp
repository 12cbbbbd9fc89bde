// The text box as a widget on a form.
#include "vornix/qvxtextbox.h"
#include "widget_support.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <gmock/gmock.h>

namespace vornix {

namespace {

using testing::ElementsAre;

class Noted : public TextBoxEvents {
public:
    std::vector<std::string> names;

    void Change() override { names.emplace_back("Change"); }
    void Click() override { names.emplace_back("Click"); }
    void Resize() override { names.emplace_back("Resize"); }
    void MouseDown(i16, i16, float, float) override { names.emplace_back("MouseDown"); }
    void MouseUp(i16, i16, float, float) override { names.emplace_back("MouseUp"); }
    void KeyDown(i16& KeyCode, i16&) override { names.push_back("KeyDown " + std::to_string(KeyCode)); }
    void KeyPress(i16& KeyAscii) override { names.push_back("KeyPress " + std::to_string(KeyAscii)); }
    void KeyUp(i16& KeyCode, i16&) override { names.push_back("KeyUp " + std::to_string(KeyCode)); }
    void KeyArrowMove(i16& KeyCode) override { names.push_back("KeyArrowMove " + std::to_string(KeyCode)); }
};

class QVxTextBoxTest : public testing::Test {
protected:
    QVxTextBoxTest()
    {
        form.resize(400, 300);
        field.setGeometry(20, 20, 150, 24);
        other.setGeometry(20, 200, 100, 24);
        form.show();
        form.activateWindow();
        field.setFocus();
        Settle();
    }
    TextBox& Box() { return field.Box(); }
    void TypeText(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text)); }
    void Type(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    Noted noted;
    QWidget form;
    QVxTextBox field { noted, &form };
    QLineEdit other { &form };
};

} // namespace

TEST_F(QVxTextBoxTest, WhatIsTypedFollowsTheMask)
{
    Box().SetMask(u"(999) 000-0000");
    Box().SetSelStart(1);
    TypeText("0301234567");
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("(030) 123-4567"));
    EXPECT_EQ(Box().Text(), u"0301234567");
    EXPECT_EQ(Box().TextInput(), u"0301234567");
    Type(Qt::Key_Backspace);
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("(030) 123-456_"));
}

TEST_F(QVxTextBoxTest, DeleteAndBackspaceLeaveTheFormItsLength)
{
    Box().SetMask(u"00-00");
    Box().SetSelStart(0);
    TypeText("1234");
    Box().SetSelStart(1);
    Type(Qt::Key_Delete);
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("1_-34"));
    EXPECT_EQ(Box().SelStart(), 2);
    Type(Qt::Key_Backspace);
    Type(Qt::Key_Backspace);
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("__-34"));
    EXPECT_EQ(Box().SelStart(), 0);
}

TEST_F(QVxTextBoxTest, WhatIsPastedAndComposedFollowsTheMask)
{
    Box().SetMask(u"0000");
    QApplication::clipboard()->setText(QStringLiteral("12a4"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("12_4"));
    Box().SetMask(u">LL");
    Box().SetSelStart(0);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("ab"));
    QApplication::sendEvent(QApplication::focusWidget(), &composed);
    EXPECT_EQ(Box().Text(), u"AB");
}

TEST_F(QVxTextBoxTest, ItsEventsComeInTheirOrderAndItsSignalsBehindThem)
{
    std::vector<std::string> seen;
    QObject::connect(&field, &QVxTextBox::changed, [&] { seen = noted.names; });
    TypeText("a");
    EXPECT_THAT(noted.names, ElementsAre("KeyDown 65", "KeyPress 97", "Change", "KeyUp 65"));
    EXPECT_THAT(seen, ElementsAre("KeyDown 65", "KeyPress 97", "Change"));
    noted.names.clear();
    Type(Qt::Key_Right);
    EXPECT_THAT(noted.names, ElementsAre("KeyDown 39", "KeyArrowMove 39", "KeyUp 39"));
    noted.names.clear();
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(30, 30));
    EXPECT_THAT(noted.names, ElementsAre("MouseDown", "MouseUp", "Click"));
}

TEST_F(QVxTextBoxTest, WritingTheTextIsNoChange)
{
    const QSignalSpy changes(&field, &QVxTextBox::changed);
    Box().SetText(u"written");
    EXPECT_EQ(changes.count(), 0);
    Box().SetSelText(u"more ");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(QVxTextBoxTest, UndoingTakesBackWhatWasTyped)
{
    TypeText("ab");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Box().Text(), u"");
}

TEST_F(QVxTextBoxTest, TheFieldFillsTheWidgetWhateverItsKind)
{
    const auto place = [&] {
        QWidget* const inside = QApplication::focusWidget();
        return QRect(inside->mapTo(&form, QPoint(0, 0)), inside->size());
    };
    EXPECT_EQ(place(), field.geometry());
    Box().SetMultiLine(true);
    EXPECT_TRUE(qobject_cast<QPlainTextEdit*>(QApplication::focusWidget()));
    EXPECT_EQ(place(), field.geometry());
    field.resize(200, 90);
    EXPECT_EQ(place(), field.geometry());
    EXPECT_EQ(Box().Text(), u"");
}

TEST_F(QVxTextBoxTest, ItGrowsWithItsTextAndSaysSo)
{
    Box().SetNormalWidth(60);
    Box().SetNormalHeight(12);
    Box().SetMaxWidth(300);
    Box().SetMaxHeight(100);
    Box().SetAutoResize(true);
    const QSignalSpy sized(&field, &QVxTextBox::sized);
    TypeText("a rather long text");
    EXPECT_GT(field.width(), 100);
    EXPECT_GT(sized.count(), 0);
    EXPECT_EQ(field.sizeHint(), field.size());
    EXPECT_EQ(field.pos(), QPoint(20, 20));
    auto* const lines = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(lines);
    EXPECT_EQ(lines->document()->firstBlock().layout()->lineCount(), 1) << "the text has the room it asked for";
    TypeText(" that goes on and on until it does not fit into the greatest width and has to break");
    EXPECT_LE(field.width(), 300);
    EXPECT_GT(lines->document()->firstBlock().layout()->lineCount(), 1);
    EXPECT_EQ(lines->verticalScrollBar()->maximum(), 0) << "all lines are seen";
}

TEST_F(QVxTextBoxTest, FontAndPaletteOfTheWidgetAreItsAmbient)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    field.setFont(font);
    EXPECT_EQ(QApplication::focusWidget()->font().pixelSize(), 20);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::yellow);
    palette.setColor(QPalette::Text, Qt::red);
    field.setPalette(palette);
    EXPECT_EQ(QApplication::focusWidget()->palette().color(QPalette::Base), QColor(Qt::yellow));
    EXPECT_EQ(QApplication::focusWidget()->palette().color(QPalette::Text), QColor(Qt::red));
    EXPECT_GE(field.sizeHint().height(), 20);
}

TEST_F(QVxTextBoxTest, FocusComesAndGoesWithTab)
{
    EXPECT_TRUE(field.hasFocus());
    QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
    QTest::keyClick(form.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(field.hasFocus());
    Box().SetMultiLine(true);
    QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
    QTest::keyClick(form.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(QVxTextBoxTest, DisablingIsThatOfTheWidget)
{
    Box().SetEnabled(false);
    EXPECT_FALSE(field.isEnabled());
    field.setEnabled(true);
    EXPECT_TRUE(Box().Enabled());
}

TEST_F(QVxTextBoxTest, OnADisabledFormItKeepsItsOwnSetting)
{
    form.setEnabled(false);
    EXPECT_TRUE(Box().Enabled());
    Box().SetEnabled(false);
    EXPECT_FALSE(Box().Enabled());
    form.setEnabled(true);
    EXPECT_FALSE(field.isEnabled());
}

TEST_F(QVxTextBoxTest, AssistiveToolsFindTheEditWidgetByTheNameOfTheField)
{
    QLabel label(QStringLiteral("&Telephone"), &form);
    label.setBuddy(&field);
    other.setFocus();
    field.setFocus();
    QAccessibleInterface* const inside = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    ASSERT_TRUE(inside);
    EXPECT_EQ(inside->role(), QAccessible::EditableText);
    EXPECT_EQ(inside->text(QAccessible::Name), QStringLiteral("Telephone"));
    field.setAccessibleName(QStringLiteral("Fax"));
    other.setFocus();
    field.setFocus();
    EXPECT_EQ(inside->text(QAccessible::Name), QStringLiteral("Fax"));
}

TEST_F(QVxTextBoxTest, AToolThatWritesTheTextIsSomeoneElse)
{
    Box().SetMask(u"0000");
    QAccessibleInterface* const inside = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
    ASSERT_TRUE(inside);
    noted.names.clear();
    inside->setText(QAccessible::Value, QStringLiteral("1x3"));
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), QStringLiteral("1_3_"));
    EXPECT_THAT(noted.names, ElementsAre("Change"));
}

TEST(QVxTextBoxLifeTest, WithoutHandlersAndWithoutAFormItIsWhole)
{
    QVxTextBox field;
    field.Box().SetText(u"abc");
    EXPECT_EQ(field.Box().Text(), u"abc");
    EXPECT_GT(field.sizeHint().width(), 20);
    EXPECT_GT(field.sizeHint().height(), 8);
    ShowAndSettle(field);
    QTest::keyClicks(QApplication::focusWidget() ? QApplication::focusWidget() : &field, QStringLiteral("x"));
}

} // namespace vornix
