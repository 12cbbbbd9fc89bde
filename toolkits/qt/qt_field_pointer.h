// The pointer over a field, as its listener hears of it.
#pragma once

#include "qt_pointer.h"
#include "vornix/types.h"

#include <functional>

class QEvent;
class QMouseEvent;
class QWidget;

namespace vornix {

// Who hears of it. Places in pixels of a window around the field.
class QtPointedField {
public:
    virtual ~QtPointedField() = default;
    virtual void TellMouseDown(i16 button, i16 shift, PixelPlace place) = 0;
    virtual void TellMouseMove(i16 buttons, i16 shift, PixelPlace place) = 0;
    virtual void TellMouseUp(i16 button, i16 shift, PixelPlace place) = 0;
    virtual void TellClick() = 0;
    virtual void TellDblClick() = 0;
};

// What the widgets of a box have no use for is not for those below it.
bool IsKeptByBox(const QEvent& event);

class QtFieldPointer {
public:
    explicit QtFieldPointer(QtPointedField& field)
        : field_(field)
    {
    }

    // True for what is not for the field any more. `window` is the one that places count in.
    bool Hears(QWidget& canvas, QWidget& window, QEvent& event);

private:
    bool HearsPointer(QWidget& canvas, QWidget& window, QMouseEvent& event);
    static void PressOnce(QWidget& canvas, const QMouseEvent& event);
    void Press(const QMouseEvent& event, PixelPlace place);
    void Release(const QMouseEvent& event, PixelPlace place, bool isInside);
    bool HasJustClicked(const QMouseEvent& event) const;

    QtPointedField& field_;
    Qt::MouseButton pressed_ = Qt::NoButton;
    bool makesClick_ = false;
    Qt::MouseButton clicked_ = Qt::NoButton;
    quint64 clickedAt_ = 0; // milliseconds
};

} // namespace vornix
