#include "qt_frame_window.h"

#include "qt_ambient.h"
#include "qt_pointer.h"

#include <QMouseEvent>

namespace vornix {

void QtFrameWindow::SetBackColor(ColorRef color)
{
    hasPalette_ = true;
    palette_.setColor(QPalette::Window, QColorFrom(color));
    if (Widget())
        Widget()->setPalette(palette_);
}

QWidget* QtFrameWindow::MakeWindow(QWidget& parent)
{
    QWidget* const window = QtChildWindow::MakeWindow(parent);
    window->setFocusPolicy(Qt::ClickFocus);
    window->setMouseTracking(true);
    if (hasPalette_)
        window->setPalette(palette_);
    return window;
}

bool QtFrameWindow::Hears(QEvent& event)
{
    if (event.type() == QEvent::FocusIn)
        TakeFocus();
    if (!IsOfPointer(event))
        return QtChildWindow::Hears(event);
    HearPointer(static_cast<const QMouseEvent&>(event));
    return true;
}

void QtFrameWindow::HearPointer(const QMouseEvent& event)
{
    const auto [x, y] = PixelAt(event.position());
    if (event.type() == QEvent::MouseMove) {
        Setting().grid.Tell([&, x = x, y = y](Vornix& grid) {
            grid.ChildMouseMove(ChildName::fraEdit, ButtonSum(event.buttons()), ShiftSum(event.modifiers()), x, y);
        });
    } else if (event.type() == QEvent::MouseButtonPress && Widget()->hasFocus()) {
        // Qt tells of the focus only where it was elsewhere before.
        TakeFocus();
    }
}

void QtFrameWindow::TakeFocus()
{
    Setting().grid.Tell([](Vornix& grid) { grid.EnterChildFocus(ChildName::fraEdit); });
}

} // namespace vornix
