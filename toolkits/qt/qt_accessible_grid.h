// The grid to assistive tools: a table with cells, headers and a title.
#pragma once

#include "qt_accessible_cell.h"

#include <QAccessibleWidget>
#include <QHash>

#include <memory>

namespace vornix {

// Rows and columns of the table are the grid's public ones, hidden lines among them; fixed rows and columns are its
// headers, the title row is its caption. The children are the title, if there is one, and then all rows of headers and
// cells, each from the left to the right; cells that another one covers are among them, and invisible.
//
// A cell has an object from the first time that somebody asks for it. The objects go when the table gets other counts,
// and those that were not asked for lately go when there are very many.
class QtAccessibleGrid final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    QtAccessibleGrid(QVornix& widget, std::shared_ptr<const AccessibleReader> reader);

    const AccessibleReader& Reader() const { return *reader_; }
    // Null for a place that the table does not have.
    QAccessibleInterface* CellFor(AccessiblePlace place) const;
    // How many cells have an object now.
    int CellObjects() const { return static_cast<int>(cells_.size()); }

    bool isValid() const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override;
    QAccessibleInterface* summary() const override { return nullptr; }
    // The covering cell, where one covers several.
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    // The first few thousand.
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override { return reader_->ColumnText(column); }
    QString rowDescription(int row) const override { return reader_->RowText(row); }
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override { return reader_->Cols(); }
    int rowCount() const override { return reader_->Rows(); }
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    // Beside what is selected, and only where the user could do so. True when the line is as wished.
    bool selectRow(int row) override { return SelectRow(row, true); }
    bool selectColumn(int column) override { return SelectColumn(column, true); }
    bool unselectRow(int row) override { return SelectRow(row, false); }
    bool unselectColumn(int column) override { return SelectColumn(column, false); }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

protected:
    ~QtAccessibleGrid() override;

private:
    struct CellObject {
        QAccessible::Id id = 0;
        quint64 lastAsked = 0;
    };

    bool SelectRow(int row, bool selected);
    bool SelectColumn(int column, bool selected);
    int ChildrenInRow() const { return reader_->HeaderCols() + reader_->Cols(); }
    void DropCells();
    void DropOldCells();
    void DropOldCellsSoon() const;

    const std::shared_ptr<const AccessibleReader> reader_;
    mutable QHash<quint32, CellObject> cells_;
    mutable quint64 asked_ = 0;
    mutable bool dropsSoon_ = false;
};

} // namespace vornix
