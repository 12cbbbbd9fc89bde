// Whether the focus is in the control: in its widget, in its editors or in a host's window on it.
#pragma once

#include <QObject>

class QWidget;

namespace vornix {

struct QtSetting;

class QtFocusWatch final : public QObject {
public:
    explicit QtFocusWatch(QtSetting& setting);

    // The focus has changed. Tells the control when it came in, or has left. Popups and menus borrow it only.
    void Look();

private:
    bool IsInside(const QWidget* focus) const;

    QtSetting& setting_;
    bool isInside_ = false;
};

} // namespace vornix
