#include "qt_field_pointer.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace vornix {

bool IsKeptByBox(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return true;
    default:
        return false;
    }
}

bool QtFieldPointer::Hears(QWidget& canvas, QWidget& window, QEvent& event)
{
    return IsKeptByBox(event) && HearsPointer(canvas, window, static_cast<QMouseEvent&>(event));
}

bool QtFieldPointer::HearsPointer(QWidget& canvas, QWidget& window, QMouseEvent& event)
{
    const QPointer<QWidget> there = &canvas;
    const PixelPlace place = PixelAt(canvas.mapTo(&window, event.position()));
    switch (event.type()) {
    case QEvent::MouseMove:
        field_.TellMouseMove(ButtonSum(event.buttons()), ShiftSum(event.modifiers()), place);
        break;
    case QEvent::MouseButtonRelease:
        Release(event, place, canvas.rect().contains(event.position().toPoint()));
        break;
    case QEvent::MouseButtonDblClick:
        if (!HasJustClicked(event)) {
            PressOnce(canvas, event);
            return true;
        }
        pressed_ = event.button();
        makesClick_ = false;
        clicked_ = Qt::NoButton;
        field_.TellDblClick();
        break;
    default:
        Press(event, place);
        break;
    }
    return !there || !there->isVisible();
}

// The first press was on what lay here before the field did.
void QtFieldPointer::PressOnce(QWidget& canvas, const QMouseEvent& event)
{
    QMouseEvent press(QEvent::MouseButtonPress, event.position(), event.scenePosition(), event.globalPosition(),
        event.button(), event.buttons(), event.modifiers(), event.pointingDevice());
    press.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(&canvas, &press);
}

void QtFieldPointer::Press(const QMouseEvent& event, PixelPlace place)
{
    const i16 button = ButtonNumber(event.button());
    if (button == 0)
        return;
    pressed_ = event.button();
    makesClick_ = true;
    field_.TellMouseDown(button, ShiftSum(event.modifiers()), place);
}

void QtFieldPointer::Release(const QMouseEvent& event, PixelPlace place, bool isInside)
{
    const i16 button = ButtonNumber(event.button());
    if (button == 0)
        return;
    const bool isClick = makesClick_ && pressed_ == event.button() && isInside;
    clicked_ = isClick ? event.button() : Qt::NoButton;
    clickedAt_ = event.timestamp();
    field_.TellMouseUp(button, ShiftSum(event.modifiers()), place);
    if (isClick)
        field_.TellClick();
}

bool QtFieldPointer::HasJustClicked(const QMouseEvent& event) const
{
    const auto interval = static_cast<quint64>(QApplication::doubleClickInterval());
    return clicked_ == event.button() && event.timestamp() - clickedAt_ <= interval;
}

} // namespace vornix
