#include "qt_host_windows.h"

#include <QApplication>
#include <QHash>

#include <utility>

namespace vornix {

namespace {

QHash<i32, QPointer<QWidget>>& Numbered()
{
    static QHash<i32, QPointer<QWidget>> windows;
    return windows;
}

QWidget* WindowWithId(std::intptr_t id)
{
    // Hosts have 32 bits for it.
    const auto number = static_cast<quint32>(id);
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        if (number != 0 && static_cast<quint32>(widget->internalWinId()) == number)
            return widget;
    }
    return nullptr;
}

} // namespace

i32 NumberOfHostWindow(QWidget& widget)
{
    static i32 latest = 0;
    const i32 known = Numbered().key(&widget, 0);
    if (known != 0)
        return known;
    const i32 number = --latest;
    Numbered().insert(number, &widget);
    QObject::connect(&widget, &QObject::destroyed, qApp, [number] { Numbered().remove(number); });
    return number;
}

QWidget* HostWindowOf(std::intptr_t number)
{
    if (number < 0)
        return Numbered().value(static_cast<i32>(number));
    return WindowWithId(number);
}

QWidget* QtHostWindows::Show(std::intptr_t window, const Rect& place)
{
    QWidget* const shown = HostWindowOf(window);
    if (!shown || shown == &widget_ || shown->isAncestorOf(&widget_))
        return nullptr;
    if (shown->parentWidget() != &widget_)
        TakeIn(*shown);
    const QPoint client = widget_.contentsRect().topLeft();
    shown->setGeometry(place.left + client.x(), place.top + client.y(), place.Width(), place.Height());
    shown->raise();
    shown->show();
    return shown;
}

void QtHostWindows::TakeIn(QWidget& window)
{
    std::erase_if(guests_, [&](const Guest& guest) { return !guest.window || guest.window == &window; });
    guests_.push_back({ &window, window.parentWidget(), window.parentWidget() != nullptr });
    window.setParent(&widget_);
}

void QtHostWindows::Hide(std::intptr_t window)
{
    QWidget* const hidden = HostWindowOf(window);
    if (!hidden || hidden->parentWidget() != &widget_)
        return;
    const QWidget* const focus = widget_.window()->focusWidget();
    if (focus && (focus == hidden || hidden->isAncestorOf(focus)))
        widget_.setFocus();
    hidden->hide();
}

bool QtHostWindows::Focus(std::intptr_t window)
{
    QWidget* const focused = HostWindowOf(window);
    if (!focused || !focused->isVisible() || !focused->isEnabled())
        return false;
    focused->setFocus();
    return true;
}

void QtHostWindows::LetGo()
{
    for (const Guest& guest : std::exchange(guests_, {})) {
        const bool isHere = guest.window && guest.window->parentWidget() == &widget_;
        if (isHere && (guest.formerParent || !guest.hadParent))
            guest.window->setParent(guest.formerParent);
    }
}

} // namespace vornix
