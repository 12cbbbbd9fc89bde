#include "qt_field_keys.h"

#include "qt_ambient.h"
#include "qt_pointer.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QWidget>

#include <utility>

namespace vornix {

namespace {

constexpr char16_t FirstPrintable = 32;
// The key that an input method has used.
constexpr i16 ComposedKey = 229;

bool IsTab(const QKeyEvent& event)
{
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return isTab && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

bool IsForward(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Tab && !event.modifiers().testFlag(Qt::ShiftModifier);
}

// Keys that an edited text has a use for before any shortcut of the form.
bool IsOfEditing(const QKeyEvent& event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

// A character, or one character or one line taken away or begun. All else that keys do is as by a menu.
ChangeOrigin OriginOf(const QKeyEvent& event)
{
    static constexpr QKeySequence::StandardKey foreign[]
        = { QKeySequence::Paste, QKeySequence::Cut, QKeySequence::Undo, QKeySequence::Redo };
    for (const QKeySequence::StandardKey key : foreign) {
        if (event.matches(key))
            return ChangeOrigin::Foreign;
    }
    const bool isCtrl = event.modifiers().testFlag(Qt::ControlModifier);
    const bool isAlt = event.modifiers().testFlag(Qt::AltModifier);
    return isCtrl == isAlt ? ChangeOrigin::Key : ChangeOrigin::Foreign;
}

// The two characters that fields act on rather than insert.
int KeyOf(const QString& characters)
{
    if (characters == QLatin1Char('\b'))
        return Qt::Key_Backspace;
    return characters == QLatin1Char('\r') ? Qt::Key_Return : Qt::Key_unknown;
}

bool IsPrintable(const std::u16string& characters)
{
    return !characters.empty() && characters.front() >= FirstPrintable && characters.front() != 127;
}

} // namespace

class QtFieldKeys::Turn {
public:
    explicit Turn(QWidget& widget)
        : widget_(&widget)
        , hadFocus_(widget.hasFocus())
    {
    }

    bool IsOver(QtTypedField& field) const
    {
        return !widget_ || &field.KeyWidget() != widget_ || !widget_->isVisible()
            || (hadFocus_ && !widget_->hasFocus());
    }

private:
    QPointer<QWidget> widget_;
    bool hadFocus_;
};

QtFieldKeys::QtFieldKeys(QtTypedField& field)
    : field_(field)
    , native_(NativeKeysOfPlatform())
{
}

bool QtFieldKeys::Hears(QEvent& event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
        if (!IsOfEditing(static_cast<QKeyEvent&>(event)))
            return false;
        event.accept();
        return true;
    case QEvent::KeyPress:
        Press(static_cast<QKeyEvent&>(event));
        return true;
    case QEvent::KeyRelease:
        Release(static_cast<QKeyEvent&>(event));
        return true;
    case QEvent::FocusOut:
        ForgetComposition();
        return false;
    case QEvent::InputMethod:
        Compose(static_cast<QInputMethodEvent&>(event));
        return true;
    default:
        return false;
    }
}

void QtFieldKeys::Press(QKeyEvent& event)
{
    const i16 key = KeyCodeOf(event, native_);
    event.setAccepted(key == 0 ? Act(event) : PressHeard(event, key));
}

// Whether the key was of use.
bool QtFieldKeys::PressHeard(QKeyEvent& event, i16 key)
{
    const Turn turn(field_.KeyWidget());
    i16 code = key;
    i16 shift = ShiftSum(event.modifiers());
    field_.TellKeyDown(code, shift);
    if (code == 0 || turn.IsOver(field_))
        return true;
    const std::u16string characters = CharactersOf(event, key);
    std::u16string left;
    for (const char16_t unit : characters) {
        i16 character = static_cast<i16>(unit);
        field_.TellKeyPress(character, shift);
        if (turn.IsOver(field_))
            return true;
        if (character != 0)
            left += static_cast<char16_t>(character);
    }
    if (IsTab(event) && left == characters)
        return field_.MoveFocus(IsForward(event));
    return PressTyped(event, characters, left);
}

bool QtFieldKeys::PressTyped(QKeyEvent& event, const std::u16string& characters, const std::u16string& left)
{
    if (left == characters)
        return Act(event) || IsPrintable(characters);
    if (!left.empty())
        ActOnCharacters(ToQString(left));
    return true;
}

void QtFieldKeys::ActOnCharacters(const QString& characters)
{
    QKeyEvent typed(QEvent::KeyPress, KeyOf(characters), Qt::NoModifier, characters);
    Act(typed);
}

bool QtFieldKeys::Act(QKeyEvent& event)
{
    field_.ActOnKey(event, OriginOf(event));
    return event.isAccepted();
}

void QtFieldKeys::Release(QKeyEvent& event)
{
    const i16 key = event.isAutoRepeat() ? i16 { 0 } : KeyCodeOf(event, native_);
    if (key == 0)
        return event.ignore();
    i16 code = key;
    i16 shift = ShiftSum(event.modifiers());
    field_.TellKeyUp(code, shift);
    event.accept();
}

// -- Input methods --

void QtFieldKeys::Compose(QInputMethodEvent& event)
{
    event.accept();
    if (event.replacementLength() > 0) {
        // Text that is there already is written otherwise.
        field_.ActOnComposition(event, ChangeOrigin::Foreign);
        return;
    }
    if (!event.commitString().isEmpty()) {
        QInputMethodEvent end;
        ShowComposition(end);
        if (!Commit(event.commitString()) || event.preeditString().isEmpty())
            return;
    }
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    ShowComposition(rest);
}

// Each character is in the text before the next one is told. The keys themselves have not come here; one stands for all.
bool QtFieldKeys::Commit(const QString& text)
{
    const Turn turn(field_.KeyWidget());
    i16 code = ComposedKey;
    i16 shift = 0;
    field_.TellKeyDown(code, shift);
    if (code == 0 || turn.IsOver(field_))
        return !turn.IsOver(field_);
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        QString left;
        for (qsizetype end = at + (isPair ? 2 : 1); at < end; ++at) {
            i16 character = static_cast<i16>(text[at].unicode());
            field_.TellKeyPress(character, 0);
            if (turn.IsOver(field_))
                return false;
            if (character != 0)
                left += QChar(static_cast<char16_t>(character));
        }
        if (left.isEmpty())
            continue;
        CommitCharacters(left);
        if (turn.IsOver(field_))
            return false;
    }
    return true;
}

void QtFieldKeys::CommitCharacters(const QString& characters)
{
    if (KeyOf(characters) != Qt::Key_unknown)
        return ActOnCharacters(characters);
    QInputMethodEvent typed;
    typed.setCommitString(characters);
    field_.ActOnComposition(typed, ChangeOrigin::Key);
}

void QtFieldKeys::ShowComposition(QInputMethodEvent& event)
{
    const bool begins = !isComposing_ && !event.preeditString().isEmpty();
    const bool ends = isComposing_ && event.preeditString().isEmpty();
    isComposing_ = !event.preeditString().isEmpty();
    if (begins)
        KeepSelection();
    field_.ActOnComposition(event, ChangeOrigin::Foreign);
    if (ends)
        RestoreSelection();
}

void QtFieldKeys::ForgetComposition()
{
    isComposing_ = false;
    keptLength_ = 0;
}

void QtFieldKeys::KeepSelection()
{
    keptStart_ = field_.TypedText().SelStart();
    keptLength_ = field_.TypedText().SelLength();
    if (keptLength_ > 0)
        field_.TypedText().SetSelStart(keptStart_);
}

void QtFieldKeys::RestoreSelection()
{
    const int length = std::exchange(keptLength_, 0);
    if (length > 0 && field_.TypedText().SelStart() == keptStart_)
        field_.TypedText().SetSelLength(length);
}

} // namespace vornix
