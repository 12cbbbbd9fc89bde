#include "qt_child_window.h"

namespace vornix {

QWidget& QtChildWindow::Window()
{
    if (!window_) {
        window_ = new QWidget(&parent_);
        window_->setAutoFillBackground(true);
        window_->setVisible(false);
        window_->setEnabled(enabled_);
    }
    return *window_;
}

void QtChildWindow::ApplyPlace()
{
    if (!window_)
        return;
    const QPoint client = parent_.contentsRect().topLeft();
    window_->setGeometry(place_.left + client.x(), place_.top + client.y(), place_.Width(), place_.Height());
}

void QtChildWindow::Move(const Rect& place)
{
    place_ = place;
    ApplyPlace();
}

void QtChildWindow::Show(bool visible)
{
    visible_ = visible;
    if (!visible && !window_)
        return;
    Window();
    ApplyPlace();
    Window().setVisible(visible);
}

void QtChildWindow::SetEnabled(bool enabled)
{
    enabled_ = enabled;
    if (window_)
        window_->setEnabled(enabled);
}

void QtChildWindow::Raise()
{
    if (window_)
        window_->raise();
}

bool QtChildWindow::SetFocus()
{
    if (!visible_ || !enabled_)
        return false;
    Window().setFocus();
    return true;
}

} // namespace vornix
