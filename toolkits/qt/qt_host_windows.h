// Windows of the host that edit cells, by the numbers that hosts name them by.
#pragma once

#include "vornix/types.h"

#include <QFrame>
#include <QPointer>

#include <cstdint>
#include <vector>

namespace vornix {

// The same number for the same widget, for as long as it lives. Negative, unlike the ids of windows.
i32 NumberOfHostWindow(QWidget& widget);
// The widget with this number, or with a native window of this id; null for none.
QWidget* HostWindowOf(std::intptr_t number);

// Those that are shown on one control. They stay the host's own.
class QtHostWindows {
public:
    explicit QtHostWindows(QFrame& widget)
        : widget_(widget)
    {
    }

    // The window shown, above all others on the control; null when there is none.
    QWidget* Show(std::intptr_t window, const Rect& place);
    // The control gets the focus from it.
    void Hide(std::intptr_t window);
    bool Focus(std::intptr_t window);
    // The control's widget is about to go. Those that had no parent have none again; others go to theirs, while it is
    // there.
    void LetGo();

private:
    struct Guest {
        QPointer<QWidget> window;
        QPointer<QWidget> formerParent;
        bool hadParent = false;
    };

    void TakeIn(QWidget& window);

    QFrame& widget_;
    std::vector<Guest> guests_;
};

} // namespace vornix
