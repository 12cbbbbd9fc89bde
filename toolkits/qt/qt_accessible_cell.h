// One cell, or the title, to assistive tools.
#pragma once

#include "qt_accessible_reader.h"

namespace vornix {

class QtAccessibleGrid;

// Belongs to the table that made it. Without the cell it is invalid, and its answers are empty.
class QtAccessibleCell final : public QAccessibleInterface,
                               public QAccessibleTableCellInterface,
                               public QAccessibleActionInterface {
public:
    QtAccessibleCell(QtAccessibleGrid& table, AccessiblePlace place);

    AccessiblePlace Place() const { return place_; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // Only cells of the table, not its headers and its title, are asked these: by the table's rows and columns.
    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override { return place_.Col; }
    int rowIndex() const override { return place_.Row; }
    int columnExtent() const override;
    int rowExtent() const override;
    QAccessibleInterface* table() const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const AccessibleReader& Reader() const;
    bool IsOfTable() const { return !place_.IsTitle() && !place_.IsFixed(); }
    void AddPlaceStates(QAccessible::State& state) const;
    void AddModeStates(QAccessible::State& state) const;

    QtAccessibleGrid& table_;
    const AccessiblePlace place_;
};

} // namespace vornix
