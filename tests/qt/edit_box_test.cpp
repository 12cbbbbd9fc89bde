// The edit box alone: what a person does with it, what its listener hears, and what its settings come to.
#include "qt_edit_box.h"
#include "recording_listener.h"
#include "widget_support.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <gmock/gmock.h>

namespace vornix {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// For one line and for several.
class QtEditBoxTest : public testing::TestWithParam<bool> {
protected:
    QtEditBoxTest()
    {
        box.SetStyle({ .isMultiLine = GetParam() });
        box.Window().setParent(&form);
        box.Window().setGeometry(10, 20, 200, 60);
        form.resize(300, 200);
        form.show();
        form.activateWindow();
        box.Window().show();
        box.Window().setFocus();
        Settle();
        box.Listen(&listener);
    }
    QWidget& Field() { return *box.Window().focusProxy(); }
    QWidget& Canvas()
    {
        auto* const several = qobject_cast<QPlainTextEdit*>(&Field());
        return several ? *several->viewport() : Field();
    }
    // The key alone, with others held that went down before.
    void Type(int key, Qt::KeyboardModifiers keys = {})
    {
        const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z && !(keys & Qt::ControlModifier);
        const bool isUpper = keys & Qt::ShiftModifier;
        const QString text = isLetter ? QString(QChar(isUpper ? key : key + 32)) : QString();
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, key, keys, text);
            QApplication::sendEvent(&Field(), &event);
        }
    }
    void TypeText(const QString& text) { QTest::keyClicks(&Field(), text); }
    void Compose(const QString& shown, const QString& done = {})
    {
        QInputMethodEvent event(shown, {});
        event.setCommitString(done);
        QApplication::sendEvent(&Field(), &event);
    }
    // What is being composed in a field of several lines.
    QString ShownPreedit()
    {
        return qobject_cast<QPlainTextEdit*>(&Field())->document()->firstBlock().layout()->preeditAreaText();
    }
    // Whether the box has a use for the key.
    bool Takes(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, {});
        QApplication::sendEvent(&Field(), &press);
        return press.isAccepted();
    }
    void Drop(const QString& text)
    {
        QMimeData data;
        data.setText(text);
        const QPoint place(1, 5);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&Canvas(), &enter);
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&Canvas(), &drop);
    }

    QWidget form;
    RecordingListener listener;
    QtEditBox box { Qt::StrongFocus };
};

INSTANTIATE_TEST_SUITE_P(Lines, QtEditBoxTest, testing::Bool(),
    [](const auto& lines) { return std::string(lines.param ? "Several" : "One"); });

} // namespace

TEST_P(QtEditBoxTest, ACharacterIsToldBeforeItIsThere)
{
    listener.keyPress = [this](i16&, i16) { EXPECT_EQ(box.Text(), u""); };
    Type(Qt::Key_A);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 65 0", "KeyPress 97 0", "TextChanged by key", "KeyUp 65 0"));
    EXPECT_EQ(box.Text(), u"a");
    EXPECT_EQ(box.SelStart(), 1);
}

TEST_P(QtEditBoxTest, ShiftAndWhatItTypes)
{
    Type(Qt::Key_B, Qt::ShiftModifier);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 66 1", "KeyPress 66 1", "TextChanged by key", "KeyUp 66 1"));
    EXPECT_EQ(box.Text(), u"B");
}

TEST_P(QtEditBoxTest, AKeySetToZeroEndsThere)
{
    listener.keyDown = [](i16& code, i16&) { code = 0; };
    Type(Qt::Key_A);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 65 0", "KeyUp 65 0"));
    EXPECT_EQ(box.Text(), u"");
}

TEST_P(QtEditBoxTest, ACharacterSetToZeroIsNotInserted)
{
    listener.keyPress = [](i16& character, i16) { character = 0; };
    Type(Qt::Key_A);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 65 0", "KeyPress 97 0", "KeyUp 65 0"));
    EXPECT_EQ(box.Text(), u"");
}

TEST_P(QtEditBoxTest, ACharacterMayBecomeAnother)
{
    listener.keyPress = [](i16& character, i16) { character = u'x'; };
    Type(Qt::Key_A);
    EXPECT_EQ(box.Text(), u"x");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 65 0", "KeyPress 97 0", "TextChanged by key", "KeyUp 65 0"));
}

TEST_P(QtEditBoxTest, ACharacterThatBecomesBackspaceTakesOneAway)
{
    box.SetText(u"abcd");
    box.SetSelStart(2);
    listener.keyPress = [](i16& character, i16) { character = 8; };
    Type(Qt::Key_X);
    EXPECT_EQ(box.Text(), u"acd");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 88 0", "KeyPress 120 0", "TextChanged by key", "KeyUp 88 0"));
    Compose({}, QStringLiteral("é"));
    EXPECT_EQ(box.Text(), u"cd");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 229 0", "KeyPress 233 0", "TextChanged by key"));
}

TEST_P(QtEditBoxTest, ACharacterThatBecomesEnterBeginsALineWhereThereAreSeveral)
{
    box.SetText(u"ab");
    box.SetSelStart(1);
    listener.keyPress = [](i16& character, i16) { character = 13; };
    Type(Qt::Key_X);
    EXPECT_EQ(box.Text(), GetParam() ? u"a\r\nb" : u"ab");
    Compose({}, QStringLiteral("é"));
    EXPECT_EQ(box.Text(), GetParam() ? u"a\r\n\r\nb" : u"ab");
}

TEST_P(QtEditBoxTest, AKeyThatBecomesAnotherDoesWhatItDid)
{
    box.SetText(u"abcd");
    listener.keyDown = [](i16& code, i16&) { code = 46; };
    Type(Qt::Key_Right);
    Type(Qt::Key_X);
    EXPECT_EQ(box.Text(), u"axbcd");
}

TEST_P(QtEditBoxTest, BackspaceAndDeleteTakeOneCharacter)
{
    box.SetText(u"abcd");
    box.SetSelStart(2);
    Type(Qt::Key_Backspace);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 8 0", "KeyPress 8 0", "TextChanged by key", "KeyUp 8 0"));
    EXPECT_EQ(box.Text(), u"acd");
    EXPECT_EQ(box.SelStart(), 1);
    Type(Qt::Key_Delete);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 46 0", "TextChanged by key", "KeyUp 46 0"));
    EXPECT_EQ(box.Text(), u"ad");
    EXPECT_EQ(box.SelStart(), 1);
}

TEST_P(QtEditBoxTest, AtTheEndsBackspaceAndDeleteChangeNothing)
{
    box.SetText(u"ab");
    Type(Qt::Key_Backspace);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 8 0", "KeyPress 8 0", "KeyUp 8 0"));
    box.SetSelStart(2);
    Type(Qt::Key_Delete);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 46 0", "KeyUp 46 0"));
    EXPECT_EQ(box.Text(), u"ab");
}

TEST_P(QtEditBoxTest, WhatIsTypedTakesThePlaceOfTheSelection)
{
    box.SetText(u"abcd");
    box.SetSelStart(1);
    box.SetSelLength(2);
    EXPECT_EQ(box.SelText(), u"bc");
    Type(Qt::Key_X);
    EXPECT_EQ(box.Text(), u"axd");
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_P(QtEditBoxTest, SettersTellNothing)
{
    box.SetText(u"abcd");
    box.SetSelStart(1);
    box.SetSelLength(2);
    box.SetSelText(u"xyz");
    EXPECT_EQ(box.Text(), u"axyzd");
    EXPECT_EQ(box.SelStart(), 4);
    EXPECT_EQ(box.SelLength(), 0);
    box.SetStyle({ .isMultiLine = !GetParam() });
    box.SetPasswordChar(u'*');
    box.SetMaxLength(2);
    box.SetRightToLeft(true);
    box.SetFont({ .Name = u"DejaVu Sans", .Size = 14 });
    box.SetBorder(true);
    EXPECT_THAT(listener.Heard(), IsEmpty());
    EXPECT_EQ(box.Text(), u"axyzd");
}

TEST_P(QtEditBoxTest, PlacesAreLimitedToTheText)
{
    box.SetText(u"abc");
    box.SetSelStart(-5);
    EXPECT_EQ(box.SelStart(), 0);
    box.SetSelLength(99);
    EXPECT_EQ(box.SelText(), u"abc");
    box.SetSelLength(-1);
    EXPECT_EQ(box.SelLength(), 0);
    box.SetSelStart(99);
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(1);
    box.SetSelLength(1);
    box.SetSelStart(2);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_P(QtEditBoxTest, ASelectionIsGivenFromItsStartWhicheverEndTheCaretIsAt)
{
    box.SetText(u"abcd");
    box.SetSelStart(3);
    Type(Qt::Key_Left, Qt::ShiftModifier);
    Type(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelText(), u"bc");
}

TEST_P(QtEditBoxTest, PastingCuttingAndUndoingAreForeignThoughKeysAskForThem)
{
    QApplication::clipboard()->setText(QStringLiteral("pq"));
    box.SetText(u"ab");
    box.SetSelStart(1);
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"apqb");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 86 2", "KeyPress 22 2", "TextChanged by others", "KeyUp 86 2"));
    box.SetSelStart(0);
    box.SetSelLength(2);
    Type(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"qb");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("ap"));
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 88 2", "KeyPress 24 2", "TextChanged by others", "KeyUp 88 2"));
    Type(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"apqb");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 90 2", "KeyPress 26 2", "TextChanged by others", "KeyUp 90 2"));
    Type(Qt::Key_Y, Qt::ControlModifier);
}

TEST_P(QtEditBoxTest, ADropIsForeign)
{
    box.SetText(u"ab");
    Drop(QStringLiteral("x"));
    EXPECT_EQ(box.Text().size(), 3u);
    EXPECT_THAT(listener.Heard(), ElementsAre("TextChanged by others"));
}

TEST_P(QtEditBoxTest, ErasingAWordIsAsByAMenu)
{
    box.SetText(u"one two");
    box.SetSelStart(7);
    Type(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"one ");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 8 2", "KeyPress 127 2", "TextChanged by others", "KeyUp 8 2"));
}

TEST_P(QtEditBoxTest, TheListenerMayWriteTheTextOnTheWay)
{
    listener.keyPress = [this](i16& character, i16) {
        box.SetText(u"(" + std::u16string(1, static_cast<char16_t>(character)) + u")");
        box.SetSelStart(2);
        character = 0;
    };
    Type(Qt::Key_A);
    EXPECT_EQ(box.Text(), u"(a)");
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 65 0", "KeyPress 97 0", "KeyUp 65 0"));
}

TEST_P(QtEditBoxTest, AnAnswerToAChangeIsNoChange)
{
    QApplication::clipboard()->setText(QStringLiteral("pq"));
    listener.textChanged = [this] { box.SetText(u"tamed"); };
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"tamed");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 86 2", "KeyPress 22 2", "TextChanged by others", "KeyUp 86 2"));
}

TEST_P(QtEditBoxTest, ComposedCharactersComeWhenTheyAreDone)
{
    Compose(QStringLiteral("´"));
    EXPECT_THAT(listener.Heard(), IsEmpty());
    EXPECT_EQ(box.Text(), u"");
    Compose({}, QStringLiteral("é"));
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 229 0", "KeyPress 233 0", "TextChanged by key"));
    EXPECT_EQ(box.Text(), u"é");
}

TEST_P(QtEditBoxTest, EachComposedCharacterIsThereBeforeTheNextIsTold)
{
    std::vector<std::u16string> before;
    listener.keyPress = [&](i16&, i16) { before.push_back(box.Text()); };
    Compose(QStringLiteral("xy"));
    Compose({}, QStringLiteral("日本"));
    EXPECT_THAT(before, ElementsAre(u"", u"日"));
    EXPECT_EQ(box.Text(), u"日本");
    EXPECT_EQ(box.SelStart(), 2);
}

TEST_P(QtEditBoxTest, ACharacterOfTwoUnitsIsToldAsTwoAndInsertedAsOne)
{
    Compose({}, QStringLiteral("😀"));
    EXPECT_THAT(
        listener.Heard(), ElementsAre("KeyDown 229 0", "KeyPress -10179 0", "KeyPress -8704 0", "TextChanged by key"));
    EXPECT_EQ(box.Text(), u"😀");
}

TEST_P(QtEditBoxTest, OfComposedCharactersThoseSetToZeroAreLeftOut)
{
    listener.keyPress = [](i16& character, i16) {
        if (character == u'b')
            character = 0;
    };
    Compose({}, QStringLiteral("abc"));
    EXPECT_EQ(box.Text(), u"ac");
}

TEST_P(QtEditBoxTest, AKeyOfComposingSetToZeroLeavesAllOut)
{
    listener.keyDown = [](i16& code, i16&) { code = 0; };
    Compose({}, QStringLiteral("abc"));
    EXPECT_EQ(box.Text(), u"");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 229 0"));
}

TEST_P(QtEditBoxTest, TheSelectionStaysUntilSomethingIsComposed)
{
    box.SetText(u"abcd");
    box.SetSelStart(1);
    box.SetSelLength(2);
    Compose(QStringLiteral("´"));
    EXPECT_EQ(box.Text(), u"abcd");
    EXPECT_THAT(listener.Heard(), IsEmpty());
    listener.keyPress = [this](i16&, i16) { EXPECT_EQ(box.SelText(), u"bc"); };
    Compose({}, QStringLiteral("é"));
    EXPECT_EQ(box.Text(), u"aéd");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 229 0", "KeyPress 233 0", "TextChanged by key"));
}

TEST_P(QtEditBoxTest, ACompositionThatIsGivenUpLeavesTheSelection)
{
    box.SetText(u"abcd");
    box.SetSelStart(1);
    box.SetSelLength(2);
    Compose(QStringLiteral("´"));
    Compose({});
    EXPECT_EQ(box.Text(), u"abcd");
    EXPECT_EQ(box.SelText(), u"bc");
    EXPECT_THAT(listener.Heard(), IsEmpty());
}

TEST_P(QtEditBoxTest, ACompositionGoesNoFurtherThanAFieldThatLosesTheFocus)
{
    QLineEdit other(&form);
    other.show();
    int presses = 0;
    listener.keyPress = [&](i16&, i16) {
        ++presses;
        other.setFocus();
    };
    Compose(QStringLiteral("´"));
    Compose(QStringLiteral("rest"), QStringLiteral("éa"));
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(box.Text(), u"");
    auto* const line = qobject_cast<QLineEdit*>(&Field());
    EXPECT_EQ(line ? line->displayText() : ShownPreedit(), QString());
}

TEST_P(QtEditBoxTest, ASelectionOfBeforeIsNotRestoredInATextThatAProgramWrote)
{
    box.SetText(u"abcd");
    box.SetSelLength(2);
    Compose(QStringLiteral("´"));
    box.SetText(u"efgh");
    Compose({});
    EXPECT_EQ(box.SelLength(), 0);
    box.SetSelLength(2);
    Compose(QStringLiteral("´"));
    box.SetSelText(u"");
    box.SetSelStart(0);
    Compose({});
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_P(QtEditBoxTest, ASelectionOfBeforeIsNotRestoredInAFieldThatWasLeft)
{
    QLineEdit other(&form);
    other.show();
    box.SetText(u"abcd");
    box.SetSelLength(2);
    Compose(QStringLiteral("´"));
    other.setFocus();
    Field().setFocus();
    box.SetSelStart(0);
    Compose({});
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_P(QtEditBoxTest, MoreThanTheGreatestLengthCannotBeTypedOrPasted)
{
    box.SetMaxLength(3);
    TypeText(QStringLiteral("abcd"));
    EXPECT_EQ(box.Text(), u"abc");
    Compose({}, QStringLiteral("é"));
    EXPECT_EQ(box.Text(), u"abc");
    QApplication::clipboard()->setText(QStringLiteral("pqr"));
    box.SetSelStart(1);
    box.SetSelLength(2);
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"apq");
}

TEST_P(QtEditBoxTest, ACharacterOfTwoUnitsIsNotCutAtTheGreatestLength)
{
    box.SetMaxLength(3);
    TypeText(QStringLiteral("ab"));
    QKeyEvent pair(QEvent::KeyPress, Qt::Key_unknown, {}, QStringLiteral("😀"));
    QApplication::sendEvent(&Field(), &pair);
    EXPECT_EQ(box.Text(), u"ab");
    QApplication::clipboard()->setText(QStringLiteral("😀"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"ab");
    box.SetSelStart(0);
    box.SetSelLength(2);
    QApplication::clipboard()->setText(QStringLiteral("😀😁"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"😀");
    // The same first unit as before.
    box.SetSelStart(0);
    box.SetSelLength(2);
    QApplication::clipboard()->setText(QStringLiteral("😁😂"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"😁");
    box.SetText(u"");
    QApplication::sendEvent(&Field(), &pair);
    EXPECT_EQ(box.Text(), u"😀");
}

TEST_P(QtEditBoxTest, AProgramMayWriteMoreThanCanBeTyped)
{
    box.SetMaxLength(3);
    box.SetText(u"abcdef");
    EXPECT_EQ(box.Text(), u"abcdef");
    box.SetSelStart(6);
    box.SetSelText(u"gh");
    EXPECT_EQ(box.Text(), u"abcdefgh");
    Type(Qt::Key_X);
    EXPECT_EQ(box.Text(), u"abcdefgh");
    for (int key = 0; key < 6; ++key)
        Type(Qt::Key_Backspace);
    TypeText(QStringLiteral("xy"));
    EXPECT_EQ(box.Text(), u"abx");
}

TEST_P(QtEditBoxTest, ALockedBoxIsReadAndNotWritten)
{
    box.SetText(u"abcd");
    box.SetLocked(true);
    Type(Qt::Key_X);
    Type(Qt::Key_Delete);
    QApplication::clipboard()->setText(QStringLiteral("pq"));
    Type(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"abcd");
    Type(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), u"a");
    Type(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a"));
}

TEST_P(QtEditBoxTest, AnotherStyleKeepsTextCaretSelectionFocusAndEnabled)
{
    box.SetText(u"abcd");
    box.SetSelStart(1);
    box.SetSelLength(2);
    for (const EditBoxStyle style :
        { EditBoxStyle { .isRightAligned = true, .isMultiLine = GetParam() },
            EditBoxStyle { .isMultiLine = !GetParam() }, EditBoxStyle { .isMultiLine = true, .hasScrollBar = true } }) {
        box.SetStyle(style);
        EXPECT_EQ(box.Text(), u"abcd");
        EXPECT_EQ(box.SelText(), u"bc");
        EXPECT_TRUE(Field().hasFocus());
        EXPECT_TRUE(Field().isVisible());
        EXPECT_EQ(qobject_cast<QPlainTextEdit*>(&Field()) != nullptr, style.isMultiLine);
    }
    EXPECT_THAT(listener.Heard(), IsEmpty());
    TypeText(QStringLiteral("x"));
    EXPECT_EQ(box.Text(), u"axd");
}

TEST_P(QtEditBoxTest, AnotherStyleKeepsTheFocusOfAWindowThatIsNotActive)
{
    QLineEdit elsewhere;
    ShowAndSettle(elsewhere);
    elsewhere.activateWindow();
    elsewhere.setFocus();
    Settle();
    ASSERT_FALSE(Field().hasFocus());
    box.SetStyle({ .isMultiLine = !GetParam() });
    EXPECT_EQ(form.focusWidget(), &Field());
    EXPECT_TRUE(elsewhere.hasFocus());
    form.activateWindow();
    Settle();
    EXPECT_TRUE(Field().hasFocus());
}

TEST_P(QtEditBoxTest, EscapeAndTabAreTheFormsUnlessSetToZero)
{
    EXPECT_FALSE(Takes(Qt::Key_Escape));
    EXPECT_FALSE(Takes(Qt::Key_F5));
    listener.keyDown = [](i16& code, i16&) { code = 0; };
    EXPECT_TRUE(Takes(Qt::Key_Escape));
    EXPECT_TRUE(Takes(Qt::Key_Tab));
    EXPECT_TRUE(Field().hasFocus());
}

TEST_P(QtEditBoxTest, AKeyThatHidesTheBoxGoesNoFurther)
{
    listener.keyDown = [this](i16&, i16&) { box.Window().hide(); };
    EXPECT_TRUE(Takes(Qt::Key_Escape));
}

TEST_P(QtEditBoxTest, TabMovesTheFocusAndIsACharacterBefore)
{
    QLineEdit other(&form);
    other.show();
    QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(box.Text(), u"");
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 9 0", "KeyPress 9 0"));
}

TEST_P(QtEditBoxTest, KeysOfEditingComeBeforeShortcutsOfTheForm)
{
    for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Up, Qt::Key_A }) {
        QKeyEvent override(QEvent::ShortcutOverride, key, {}, key == Qt::Key_A ? QStringLiteral("a") : QString());
        override.ignore();
        QApplication::sendEvent(&Field(), &override);
        EXPECT_TRUE(override.isAccepted()) << key;
    }
    QKeyEvent save(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    save.ignore();
    QApplication::sendEvent(&Field(), &save);
    EXPECT_FALSE(save.isAccepted());
}

TEST_P(QtEditBoxTest, ThePointerIsToldWhereItIsInTheBox)
{
    QTest::mouseClick(form.windowHandle(), Qt::LeftButton, Qt::ControlModifier, QPoint(17, 25));
    EXPECT_THAT(listener.Heard(), ElementsAre("MouseMove 0 2 7,5", "MouseDown 1 2 7,5", "MouseUp 1 2 7,5", "Click"));
    QTest::mouseEvent(QTest::MouseMove, form.windowHandle(), Qt::NoButton, {}, QPoint(19, 26));
    EXPECT_THAT(listener.Heard(), ElementsAre("MouseMove 0 0 9,6"));
}

TEST_P(QtEditBoxTest, ADoubleClickOnTheBoxSelectsAWord)
{
    box.SetText(u"word");
    QTest::mouseDClick(form.windowHandle(), Qt::LeftButton, {}, QPoint(15, 25));
    EXPECT_EQ(box.SelText(), u"word");
    const auto heard = listener.Heard();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "DblClick"), 1);
}

TEST_P(QtEditBoxTest, TheSecondPressOfAPairThatBeganElsewhereIsAPress)
{
    box.SetText(u"word");
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), Canvas().mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
        Qt::LeftButton, {});
    QApplication::sendEvent(&Canvas(), &second);
    const auto heard = listener.Heard();
    ASSERT_EQ(heard.size(), 1u);
    EXPECT_TRUE(heard.front().starts_with("MouseDown 1 0"));
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_P(QtEditBoxTest, TextAtEitherEdgeIsWholeAndItsCaretIsSeen)
{
    for (const bool isRight : { false, true }) {
        box.SetStyle({ .isRightAligned = isRight, .isMultiLine = GetParam() });
        box.SetText(u"abc");
        box.SetSelStart(3);
        Settle();
        const QRect caret = Field().inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int x = Field().mapTo(&box.Window(), caret.center()).x();
        if (isRight)
            EXPECT_NEAR(x, 198.5, 1.5);
        else
            EXPECT_LT(x, 60);
    }
}

TEST_P(QtEditBoxTest, LeftStaysLeftWhenTheTextIsReadFromTheRight)
{
    box.SetRightToLeft(true);
    box.SetText(u"שלום");
    EXPECT_EQ(Field().layoutDirection(), Qt::RightToLeft);
    box.SetSelStart(4);
    Settle();
    const QRect caret = Field().inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_LT(Field().mapTo(&box.Window(), caret.center()).x(), 8);
    Type(Qt::Key_X);
    EXPECT_EQ(box.Text(), u"שלוםx");
}

TEST_P(QtEditBoxTest, TheBorderIsALineAroundTheText)
{
    EXPECT_EQ(Field().geometry(), QRect(0, 0, 200, 60));
    box.SetBorder(true);
    EXPECT_EQ(Field().geometry(), QRect(2, 1, 196, 58));
    box.SetBorder(false);
    EXPECT_EQ(Field().geometry(), QRect(0, 0, 200, 60));
}

TEST_P(QtEditBoxTest, ColoursAndFontAreThoseGiven)
{
    box.SetColors(0x0000FF, 0x00FFFF);
    box.SetFont({ .Name = u"DejaVu Sans", .Size = 12, .Bold = true });
    EXPECT_EQ(Field().palette().color(QPalette::Text), QColor(255, 0, 0));
    EXPECT_EQ(Field().palette().color(QPalette::Base), QColor(255, 255, 0));
    EXPECT_EQ(Field().font().pixelSize(), 16);
    EXPECT_TRUE(Field().font().bold());
}

TEST_P(QtEditBoxTest, ABoxWhoseWindowWentMakesAnother)
{
    box.SetText(u"ab");
    delete &box.Window();
    EXPECT_EQ(box.Text(), u"");
    box.SetText(u"cd");
    EXPECT_EQ(box.Text(), u"cd");
    EXPECT_EQ(qobject_cast<QPlainTextEdit*>(&Field()) != nullptr, GetParam());
}

TEST_P(QtEditBoxTest, ItMeasuresOnADeviceOfItsResolution)
{
    Device* const device = box.DrawingDevice();
    ASSERT_TRUE(device);
    EXPECT_EQ(device->Scale(), box.Window().devicePixelRatioF());
    Rect extent;
    EXPECT_GT(device->DrawText(u"text", extent, DT_CALCRECT), 0);
}

// -- One line --

TEST(QtOneLineTest, EnterIsTheFormsUnlessTheCharacterIsSetToZero)
{
    QWidget form;
    RecordingListener listener;
    QtEditBox box(Qt::StrongFocus);
    box.Window().setParent(&form);
    box.Listen(&listener);
    ShowAndSettle(form);
    const auto takes = [&] {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"));
        QApplication::sendEvent(box.Window().focusProxy(), &press);
        return press.isAccepted();
    };
    EXPECT_FALSE(takes());
    listener.keyPress = [](i16& character, i16) { character = 0; };
    EXPECT_TRUE(takes());
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 13 0", "KeyPress 13 0", "KeyDown 13 0", "KeyPress 13 0"));
}

TEST(QtOneLineTest, OfPastedLinesItTakesTheFirst)
{
    QtEditBox box(Qt::StrongFocus);
    box.Window().show();
    box.SetText(u"ab");
    box.SetSelStart(1);
    QApplication::clipboard()->setText(QStringLiteral("one\ntwo"));
    QTest::keyClick(box.Window().focusProxy(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"aoneb");
    EXPECT_EQ(box.SelStart(), 4);
}

TEST(QtOneLineTest, LinesThatAProgramWroteStay)
{
    QtEditBox box(Qt::StrongFocus);
    box.Window().show();
    box.SetText(u"one\r\ntwo");
    EXPECT_EQ(box.Text(), u"one\r\ntwo");
    QTest::keyClick(box.Window().focusProxy(), Qt::Key_X);
    EXPECT_EQ(box.Text(), u"xone\r\ntwo");
}

TEST(QtOneLineTest, ASignHidesTheTextFromViewAndFromTheClipboard)
{
    QtEditBox box(Qt::StrongFocus);
    box.Window().show();
    box.SetText(u"secret");
    auto* const line = qobject_cast<QLineEdit*>(box.Window().focusProxy());
    ASSERT_TRUE(line);
    box.SetPasswordChar(u'#');
    EXPECT_EQ(line->displayText(), QStringLiteral("######"));
    EXPECT_EQ(box.Text(), u"secret");
    QApplication::clipboard()->setText(QStringLiteral("before"));
    box.SetSelLength(6);
    QTest::keyClick(line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("before"));
    box.SetPasswordChar(u'+');
    EXPECT_EQ(line->displayText(), QStringLiteral("++++++"));
    box.SetStyle({ .isMultiLine = true });
    EXPECT_EQ(box.Window().focusProxy(), line);
    EXPECT_EQ(line->displayText(), QStringLiteral("++++++"));
    box.SetPasswordChar(0);
    auto* const lines = qobject_cast<QPlainTextEdit*>(box.Window().focusProxy());
    ASSERT_TRUE(lines);
    EXPECT_EQ(lines->toPlainText(), QStringLiteral("secret"));
    box.SetStyle({});
    EXPECT_EQ(line->displayText(), QStringLiteral("secret"));
}

// -- Several lines --

class QtSeveralLinesTest : public testing::Test {
protected:
    QtSeveralLinesTest()
    {
        box.SetStyle({ .isMultiLine = true });
        box.Window().resize(200, 80);
        box.Window().show();
        box.Listen(&listener);
    }
    QPlainTextEdit& Field() { return *qobject_cast<QPlainTextEdit*>(box.Window().focusProxy()); }

    RecordingListener listener;
    QtEditBox box { Qt::StrongFocus };
};

TEST_F(QtSeveralLinesTest, EnterBeginsALineThatCountsTwo)
{
    box.SetText(u"ab");
    box.SetSelStart(1);
    QTest::keyClick(&Field(), Qt::Key_Return);
    EXPECT_THAT(listener.Heard(), ElementsAre("KeyDown 13 0", "KeyPress 13 0", "TextChanged by key", "KeyUp 13 0"));
    EXPECT_EQ(box.Text(), u"a\r\nb");
    EXPECT_EQ(box.SelStart(), 3);
    QTest::keyClick(&Field(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), u"a\r\n\r\nb");
    QTest::keyClick(&Field(), Qt::Key_Backspace);
    QTest::keyClick(&Field(), Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), u"ab");
}

TEST_F(QtSeveralLinesTest, PlacesCountBothCharactersOfALinesEnd)
{
    box.SetText(u"one\r\ntwo\r\n\r\nfour");
    EXPECT_EQ(box.Text(), u"one\r\ntwo\r\n\r\nfour");
    for (const int place : { 0, 3, 5, 8, 10, 12, 16 }) {
        box.SetSelStart(place);
        EXPECT_EQ(box.SelStart(), place);
    }
    // Between the two.
    box.SetSelStart(4);
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(2);
    box.SetSelLength(8);
    EXPECT_EQ(box.SelLength(), 8);
    EXPECT_EQ(box.SelText(), u"e\r\ntwo\r\n");
    box.SetSelText(u"1\r\n2");
    EXPECT_EQ(box.Text(), u"on1\r\n2\r\nfour");
    EXPECT_EQ(box.SelStart(), 6);
}

TEST_F(QtSeveralLinesTest, OtherLinesEndsBecomeTheUsualOne)
{
    box.SetText(u"a\nb\rc");
    EXPECT_EQ(box.Text(), u"a\r\nb\r\nc");
}

TEST_F(QtSeveralLinesTest, BlanksThatDoNotBreakStayWhatTheyAre)
{
    box.SetText(u"a\u00A0b");
    EXPECT_EQ(box.Text(), u"a\u00A0b");
}

TEST_F(QtSeveralLinesTest, ALineThatIsTooLongBreaksAndIsOneLineInTheText)
{
    box.SetText(u"many words that do not fit in so narrow a box at all");
    EXPECT_GT(Field().document()->firstBlock().layout()->lineCount(), 1);
    EXPECT_EQ(box.Text().find(u'\r'), std::u16string::npos);
}

TEST_F(QtSeveralLinesTest, ABarIsThereWhenItIsAskedFor)
{
    box.SetStyle({ .isMultiLine = true, .hasScrollBar = true });
    EXPECT_TRUE(Field().verticalScrollBar()->isVisible());
    box.SetStyle({ .isMultiLine = true });
    EXPECT_FALSE(Field().verticalScrollBar()->isVisible());
}

TEST_F(QtSeveralLinesTest, ABoxLowerThanItsLineShowsTheLineFromTheTop)
{
    box.Window().resize(200, 9);
    box.SetText(u"text");
    box.SetSelStart(4);
    QTest::keyClick(&Field(), Qt::Key_X);
    EXPECT_EQ(Field().verticalScrollBar()->value(), 0);
    EXPECT_LE(Field().mapTo(&box.Window(), Field().viewport()->mapTo(&Field(), Field().cursorRect().topLeft())).y(), 0);
}

TEST_F(QtSeveralLinesTest, PastedLinesAreCutToTheRoomThereIs)
{
    box.SetMaxLength(6);
    QApplication::clipboard()->setText(QStringLiteral("ab\ncd\nef"));
    QTest::keyClick(&Field(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"ab\r\ncd");
    QTest::keyClick(&Field(), Qt::Key_Return);
    EXPECT_EQ(box.Text(), u"ab\r\ncd");
}

} // namespace vornix
