#include "qt_child_window.h"

#include <QEvent>

namespace vornix {

class QtChildWindow::Watch final : public QObject {
public:
    explicit Watch(QtChildWindow& child)
        : child_(child)
    {
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        // Over a child the control gets no moves, and Qt does not tell it that the pointer has left.
        if (event->type() == QEvent::Enter)
            child_.setting_.grid.Tell([](Vornix& grid) { grid.Tick(); });
        return child_.Hears(*event);
    }

private:
    QtChildWindow& child_;
};

QtChildWindow::QtChildWindow(QtSetting& setting, QPalette::ColorRole ground)
    : setting_(setting)
    , ground_(ground)
    , watch_(std::make_unique<Watch>(*this))
{
}

QtChildWindow::QtChildWindow(QtSetting& setting, QtChildWindow& frame)
    : QtChildWindow(setting)
{
    frame_ = &frame;
}

QtChildWindow::~QtChildWindow()
{
    DropWidget();
}

void QtChildWindow::DropWidget()
{
    if (window_)
        window_->removeEventFilter(watch_.get());
    delete window_;
}

bool QtChildWindow::Owns(const QWidget& widget) const
{
    return window_ && (window_ == &widget || window_->isAncestorOf(&widget));
}

bool QtChildWindow::IsOfPointer(const QEvent& event)
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

// What a widget does not want Qt hands to its parent, at a place that is not the parent's business.
bool QtChildWindow::Hears(QEvent& event)
{
    return IsOfPointer(event);
}

QWidget* QtChildWindow::MakeWindow(QWidget& parent)
{
    auto* const window = new QWidget(&parent);
    window->setAutoFillBackground(true);
    window->setBackgroundRole(ground_);
    return window;
}

QWidget& QtChildWindow::Window()
{
    if (!window_) {
        window_ = MakeWindow(frame_ ? frame_->Window() : setting_.widget);
        window_->setVisible(false);
        window_->setEnabled(enabled_);
        if (!window_->testAttribute(Qt::WA_SetCursor))
            window_->setCursor(Qt::ArrowCursor); // not the one for sizing
        window_->installEventFilter(watch_.get());
    }
    return *window_;
}

void QtChildWindow::ApplyPlace()
{
    if (!window_)
        return;
    const QPoint client = frame_ ? QPoint(0, 0) : setting_.widget.contentsRect().topLeft();
    window_->setGeometry(place_.left + client.x(), place_.top + client.y(), place_.Width(), place_.Height());
}

void QtChildWindow::Move(const Rect& place)
{
    place_ = place;
    ApplyPlace();
}

// Or would have it, were its window active.
bool QtChildWindow::HasFocus() const
{
    const QWidget* const focus = setting_.widget.window()->focusWidget();
    return focus && Owns(*focus);
}

// Qt would give it to the next widget of the form.
void QtChildWindow::HandFocusBack()
{
    if (HasFocus())
        setting_.widget.setFocus();
}

void QtChildWindow::Show(bool visible)
{
    visible_ = visible;
    if (!visible && !window_)
        return;
    Window();
    ApplyPlace();
    if (!visible)
        HandFocusBack();
    Window().setVisible(visible);
}

void QtChildWindow::SetEnabled(bool enabled)
{
    enabled_ = enabled;
    if (!window_)
        return;
    if (!enabled)
        HandFocusBack();
    window_->setEnabled(enabled);
}

void QtChildWindow::Raise()
{
    if (window_)
        window_->raise();
}

bool QtChildWindow::SetFocus()
{
    if (!visible_ || !enabled_ || (frame_ && !(frame_->visible_ && frame_->enabled_)))
        return false;
    Window().setFocus();
    return true;
}

} // namespace vornix
