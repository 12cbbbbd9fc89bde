#include "qt_focus_watch.h"

#include "qt_setting.h"

#include <QApplication>

namespace vornix {

namespace {

bool IsPopup(const QWidget* widget)
{
    return widget && widget->window()->windowType() == Qt::Popup;
}

} // namespace

QtFocusWatch::QtFocusWatch(QtSetting& setting)
    : setting_(setting)
{
    connect(qApp, &QApplication::focusChanged, this, [this] { Look(); });
}

bool QtFocusWatch::IsInside(const QWidget* focus) const
{
    return focus && (focus == &setting_.widget || setting_.widget.isAncestorOf(focus));
}

void QtFocusWatch::Look()
{
    const QWidget* const focus = QApplication::focusWidget();
    const bool isInside = IsInside(focus);
    if (isInside == isInside_ || (!isInside && IsPopup(focus)))
        return;
    isInside_ = isInside;
    setting_.grid.Tell([isInside](Vornix& grid) { isInside ? grid.EnterFocus() : grid.ExitFocus(); });
}

} // namespace vornix
