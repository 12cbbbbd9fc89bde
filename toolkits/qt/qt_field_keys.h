// What is typed into a field: its listener hears of each key and each character before the field acts on them.
#pragma once

#include "qt_key_codes.h"
#include "vornix/platform/edit_box.h"

#include <QInputMethodEvent>
#include <QPointer>
#include <QString>

#include <string>

class QEvent;
class QKeyEvent;
class QWidget;

namespace vornix {

// A field with its listener.
class QtTypedField {
public:
    virtual ~QtTypedField() = default;

    // Of the listener.
    virtual void TellKeyDown(i16& code, i16& shift) = 0;
    virtual void TellKeyPress(i16& character, i16 shift) = 0;
    virtual void TellKeyUp(i16& code, i16& shift) = 0;
    // Of the field: the widget with the focus, and the text.
    virtual QWidget& KeyWidget() = 0;
    virtual EditBox& TypedText() = 0;
    // Does what the field does by itself with a key or with composed text. A key is accepted when it was of use.
    virtual void ActOnKey(QKeyEvent& event, ChangeOrigin origin) = 0;
    virtual void ActOnComposition(QInputMethodEvent& event, ChangeOrigin origin) = 0;
    // Whether the focus has gone somewhere.
    virtual bool MoveFocus(bool forward) = 0;
};

class QtFieldKeys {
public:
    explicit QtFieldKeys(QtTypedField& field);

    // True for what it has seen to; a key that nobody has a use for is ignored.
    bool Hears(QEvent& event);
    // Where a program has written the text; what was selected before is nothing to come back to.
    void ForgetComposition();

private:
    // Whether what follows of a key is still for the field: it is not where a handler has hidden it or moved the focus.
    class Turn;

    void Press(QKeyEvent& event);
    bool PressHeard(QKeyEvent& event, i16 key);
    bool PressTyped(QKeyEvent& event, const std::u16string& characters, const std::u16string& left);
    // Those that a handler has put in place of others.
    void ActOnCharacters(const QString& characters);
    bool Act(QKeyEvent& event);
    void Release(QKeyEvent& event);
    void Compose(QInputMethodEvent& event);
    // Whether the field still has its turn.
    bool Commit(const QString& text);
    void CommitCharacters(const QString& characters);
    void ShowComposition(QInputMethodEvent& event);
    // The selection stays until what takes its place is known.
    void KeepSelection();
    void RestoreSelection();

    QtTypedField& field_;
    NativeKeys native_;
    bool isComposing_ = false;
    int keptStart_ = 0;
    int keptLength_ = 0;
};

} // namespace vornix
