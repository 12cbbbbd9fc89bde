// Tells assistive tools what has changed about a grid.
#pragma once

#include "qt_accessible_reader.h"

#include <QObject>

#include <functional>
#include <memory>

namespace vornix {

// Looks at the grid after each picture of it and after each turn of the focus, in the event loop and not inside a call
// of the grid, and only while a tool listens. Part of its widget.
class QtAccessibleNews final : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT

public:
    QtAccessibleNews(QVornix& widget, const Container& container);
    // From here on the tools have a table without anything in it.
    ~QtAccessibleNews() override;

    std::shared_ptr<const AccessibleReader> Reader() const { return reader_; }
    // Where the news go. Qt itself passes nothing on unless the platform has a tool that listens.
    std::function<void(QAccessibleEvent&)> Tell
        = [](QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); };

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void accessibilityActiveChanged(bool active) override { somebodyListens_ = active; }

    struct Counts {
        int rows = 0;
        int cols = 0;
        int headerRows = 0;
        int headerCols = 0;
        bool hasTitle = false;
        friend bool operator==(const Counts&, const Counts&) = default;
    };
    struct Seen {
        Counts counts;
        bool hasFocus = false;
        std::optional<AccessiblePlace> current;
        QString text; // of the current cell
        bool isChecked = false;
        bool isPressed = false;
        AccessibleSelection selection;
    };

    void LookSoon();
    void Look();
    Seen Read() const;
    // Each with the cell as it was seen before.
    void TellOfTable(const Seen& before);
    void TellOfCurrentCell(const Seen& before);
    QAccessibleInterface* CurrentCell() const;

    QVornix& widget_;
    const std::shared_ptr<AccessibleReader> reader_;
    bool somebodyListens_ = QAccessible::isActive();
    Seen seen_;
    bool looksSoon_ = false;
};

} // namespace vornix
