// The window of the viewer: the grid, and below it a line about the current cell, the selection and the table.
#pragma once

#include "table.h"
#include "vornix/event_handlers.h"
#include "vornix/qvornix.h"

#include <QMainWindow>

class QLabel;

namespace vornix::viewer {

// A grid that tells when a person has done something with it.
class UsedGrid final : public QVornix {
    Q_OBJECT

public:
    using QVornix::QVornix;

signals:
    void Used();

protected:
    bool event(QEvent* event) override;
};

// The table can be selected from, its lines sized and its first columns split off, but not changed, unless a class derived
// from this lets it; the first cell is the current one. Refers to the table for as long as it lives.
class ViewerWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit ViewerWindow(const Table& table);
    ~ViewerWindow() override;

    UsedGrid& GridWidget() { return *grid_; }

protected:
    EventHandlers& Handlers() { return handlers_; }
    // In the line below the table.
    QLabel* AddLabel(const char* name, int stretch);
    // About the current cell and the selection.
    void TellState();
    // A check box as the table holds it.
    void ResetCheckBox(const Table& table, i16 Row, i16 Col);

private:
    EventHandlers handlers_;
    UsedGrid* const grid_;
    QLabel* currentCell_ = nullptr;
    QLabel* selection_ = nullptr;
};

} // namespace vornix::viewer
