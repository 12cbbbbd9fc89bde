// What Qt tells of the pointer, as the platform's notifications: press, move, release, and the click that comes of them.
#pragma once

#include "qt_setting.h"

#include <Qt>

class QMouseEvent;
class QPointF;

namespace vornix {

// 1 left, 2 right, 4 middle; 0 for others.
i16 ButtonNumber(Qt::MouseButton button);
// The sum of those held.
i16 ButtonSum(Qt::MouseButtons buttons);
// The sum of 1 Shift, 2 Ctrl, 4 Alt.
i16 ShiftSum(Qt::KeyboardModifiers modifiers);

// The logical pixel that holds a place.
struct PixelPlace {
    float x = 0;
    float y = 0;
};
PixelPlace PixelAt(const QPointF& place);

class QtPointer {
public:
    explicit QtPointer(QtSetting& setting)
        : setting_(setting)
    {
    }

    void Press(QMouseEvent& event);
    void Move(const QMouseEvent& event);
    // A click follows a release inside the client area.
    void Release(QMouseEvent& event);
    // The second press of a double click, which arrives as DblClick in place of MouseDown; no click comes of it.
    void DoubleClick(QMouseEvent& event);

private:
    PixelPlace PlaceOf(const QMouseEvent& event) const;
    bool IsInside(const QMouseEvent& event) const;
    bool HasJustClicked(const QMouseEvent& event) const;

    QtSetting& setting_;
    // The latest press, and whether its release makes a click.
    Qt::MouseButton pressed_ = Qt::NoButton;
    bool makesClick_ = false;
    // The latest click.
    Qt::MouseButton clicked_ = Qt::NoButton;
    quint64 clickedAt_ = 0; // milliseconds
};

} // namespace vornix
