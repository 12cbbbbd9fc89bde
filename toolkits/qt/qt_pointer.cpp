#include "qt_pointer.h"

#include <QApplication>
#include <QMouseEvent>

#include <cmath>

namespace vornix {

i16 ButtonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

i16 ButtonSum(Qt::MouseButtons buttons)
{
    int sum = 0;
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        if (buttons.testFlag(button))
            sum += ButtonNumber(button);
    }
    return static_cast<i16>(sum);
}

i16 ShiftSum(Qt::KeyboardModifiers modifiers)
{
    const int shift = modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0;
    const int ctrl = modifiers.testFlag(Qt::ControlModifier) ? 2 : 0;
    const int alt = modifiers.testFlag(Qt::AltModifier) ? 4 : 0;
    return static_cast<i16>(shift + ctrl + alt);
}

PixelPlace PixelAt(const QPointF& place)
{
    return { static_cast<float>(std::floor(place.x())), static_cast<float>(std::floor(place.y())) };
}

PixelPlace QtPointer::PlaceOf(const QMouseEvent& event) const
{
    return PixelAt(event.position() - setting_.widget.contentsRect().topLeft());
}

bool QtPointer::IsInside(const QMouseEvent& event) const
{
    const QRect client = setting_.widget.contentsRect();
    const auto [x, y] = PlaceOf(event);
    return x >= 0 && y >= 0 && x < static_cast<float>(client.width()) && y < static_cast<float>(client.height());
}

void QtPointer::Press(QMouseEvent& event)
{
    const i16 button = ButtonNumber(event.button());
    if (button == 0)
        return event.ignore();
    pressed_ = event.button();
    makesClick_ = true;
    const auto [x, y] = PlaceOf(event);
    setting_.grid.Tell([&, x = x, y = y](Vornix& grid) { grid.MouseDown(button, ShiftSum(event.modifiers()), x, y); });
}

void QtPointer::Move(const QMouseEvent& event)
{
    const auto [x, y] = PlaceOf(event);
    setting_.grid.Tell([&, x = x, y = y](Vornix& grid) {
        grid.MouseMove(ButtonSum(event.buttons()), ShiftSum(event.modifiers()), x, y);
    });
}

void QtPointer::Release(QMouseEvent& event)
{
    const i16 button = ButtonNumber(event.button());
    if (button == 0)
        return event.ignore();
    const bool isClick = makesClick_ && pressed_ == event.button() && IsInside(event);
    clicked_ = Qt::NoButton;
    const auto [x, y] = PlaceOf(event);
    setting_.grid.Tell([&, x = x, y = y](Vornix& grid) { grid.MouseUp(button, ShiftSum(event.modifiers()), x, y); });
    if (!isClick || !setting_.widget.isVisible())
        return;
    clicked_ = event.button();
    clickedAt_ = event.timestamp();
    setting_.grid.Tell([](Vornix& grid) { grid.Click(); });
}

// The first click may have been on a window that lay here until then.
bool QtPointer::HasJustClicked(const QMouseEvent& event) const
{
    const auto interval = static_cast<quint64>(QApplication::doubleClickInterval());
    return clicked_ == event.button() && event.timestamp() - clickedAt_ <= interval;
}

void QtPointer::DoubleClick(QMouseEvent& event)
{
    if (!HasJustClicked(event))
        return Press(event);
    pressed_ = event.button();
    makesClick_ = false;
    clicked_ = Qt::NoButton;
    setting_.grid.Tell([](Vornix& grid) { grid.DblClick(); });
}

} // namespace vornix
