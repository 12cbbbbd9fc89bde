#include "qt_accessible_news.h"

#include "qt_accessible_grid.h"

#include <QEvent>

#include <utility>

namespace vornix {

namespace {

// Asked for the class of each widget, and for those that it is made of.
QAccessibleInterface* MakeAccessible(const QString& className, QObject* object)
{
    if (className != QLatin1String(QVornix::staticMetaObject.className()))
        return nullptr;
    auto* const widget = qobject_cast<QVornix*>(object);
    const auto* const news
        = widget ? widget->findChild<QtAccessibleNews*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    return news ? new QtAccessibleGrid(*widget, news->Reader()) : nullptr;
}

} // namespace

QtAccessibleNews::QtAccessibleNews(QVornix& widget, const Container& container)
    : QObject(&widget)
    , widget_(widget)
    , reader_(std::make_shared<AccessibleReader>(widget, container))
{
    // More than once does nothing.
    QAccessible::installFactory(MakeAccessible);
    QAccessible::installActivationObserver(this);
    widget.installEventFilter(this);
}

QtAccessibleNews::~QtAccessibleNews()
{
    QAccessible::removeActivationObserver(this);
    reader_->Close();
}

bool QtAccessibleNews::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Paint || type == QEvent::FocusIn || type == QEvent::FocusOut)
        LookSoon();
    return QObject::eventFilter(watched, event);
}

void QtAccessibleNews::LookSoon()
{
    if (somebodyListens_ && !std::exchange(looksSoon_, true))
        QMetaObject::invokeMethod(this, &QtAccessibleNews::Look, Qt::QueuedConnection);
}

void QtAccessibleNews::Look()
{
    looksSoon_ = false;
    if (!reader_->IsOpen())
        return;
    const Seen before = std::exchange(seen_, Read());
    TellOfTable(before);
    TellOfCurrentCell(before);
}

QtAccessibleNews::Seen QtAccessibleNews::Read() const
{
    Seen seen;
    seen.counts
        = { reader_->Rows(), reader_->Cols(), reader_->HeaderRows(), reader_->HeaderCols(), reader_->HasTitle() };
    seen.hasFocus = widget_.hasFocus();
    seen.selection = reader_->Selection();
    seen.current = reader_->Current();
    if (seen.current) {
        seen.text = reader_->ShownText(*seen.current);
        seen.isChecked = reader_->IsChecked(*seen.current);
        seen.isPressed = reader_->IsPressed(*seen.current);
    }
    return seen;
}

QAccessibleInterface* QtAccessibleNews::CurrentCell() const
{
    QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(&widget_);
    return grid ? grid->focusChild() : nullptr;
}

// Which lines came or went, only the host could tell.
void QtAccessibleNews::TellOfTable(const Seen& before)
{
    if (seen_.counts != before.counts) {
        QAccessibleTableModelChangeEvent reset(&widget_, QAccessibleTableModelChangeEvent::ModelReset);
        Tell(reset);
    }
    if (seen_.selection != before.selection) {
        QAccessibleEvent selection(&widget_, QAccessible::SelectionWithin);
        Tell(selection);
    }
}

void QtAccessibleNews::TellOfCurrentCell(const Seen& before)
{
    QAccessibleInterface* const cell = seen_.current && seen_.hasFocus ? CurrentCell() : nullptr;
    if (!cell)
        return;
    // The reset of the table has dropped the cell that a tool knew.
    if (seen_.current != before.current || seen_.counts != before.counts || !before.hasFocus) {
        QAccessibleEvent focus(cell, QAccessible::Focus);
        return Tell(focus);
    }
    if (seen_.text != before.text) {
        QAccessibleEvent name(cell, QAccessible::NameChanged);
        Tell(name);
    }
    QAccessible::State changed;
    changed.checked = seen_.isChecked != before.isChecked;
    changed.pressed = seen_.isPressed != before.isPressed;
    if (changed != QAccessible::State()) {
        QAccessibleStateChangeEvent state(cell, changed);
        Tell(state);
    }
}

} // namespace vornix
