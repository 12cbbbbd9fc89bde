// The two widgets that an edit box is made of: one for a line, one for several.
#pragma once

#include "vornix/platform/edit_box.h"

#include <QCursor>
#include <QFont>
#include <QPalette>
#include <QString>
#include <Qt>

#include <functional>
#include <optional>

class QKeyEvent;
class QWidget;

namespace vornix {

struct QtEditSettings {
    EditBoxStyle style;
    bool isRightToLeft = false;
    char16_t passwordChar = 0;
    i32 maxLength = 0;
    bool isLocked = false;
    QFont font;
    QPalette palette;
    QString toolTip;
    std::optional<QCursor> cursor;
    Qt::FocusPolicy focusPolicy = Qt::StrongFocus;

    // Left and right are what they are, in either direction of reading.
    Qt::Alignment Alignment() const
    {
        return (style.isRightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop | Qt::AlignAbsolute;
    }
};

// Text and places as those of EditBox. The text begins in the corner of the widget, as a cell's does in its rectangle.
class QtEditField {
public:
    virtual ~QtEditField() = default;

    // Has the focus.
    virtual QWidget& Widget() = 0;
    // Lies under the pointer.
    virtual QWidget& Canvas() = 0;
    virtual void Apply(const QtEditSettings& settings) = 0;

    virtual std::u16string Text() const = 0;
    virtual void SetText(std::u16string_view text) = 0;
    virtual int SelStart() const = 0;
    virtual int SelLength() const = 0;
    // The caret stands at the end of the selection.
    virtual void Select(int start, int length) = 0;
    // Puts a text in the place of the selection, which can be undone.
    virtual void Insert(std::u16string_view text) = 0;
    // What the widget does by itself with a key; false when it has no use for it.
    virtual bool Act(QKeyEvent& event) = 0;
    // As Tab does; false when the focus has nowhere to go.
    virtual bool MoveFocus(bool forward) = 0;
    // Whether so many characters can be typed in the place of the selection.
    virtual bool HasRoomFor(int characters) const = 0;

    // The text has changed, whoever has done it.
    std::function<void()> OnChange;
};

} // namespace vornix
