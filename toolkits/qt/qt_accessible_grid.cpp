#include "qt_accessible_grid.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>

namespace vornix {

namespace {

constexpr int MostCellObjects = 4096;
constexpr int MostListed = 4096;

quint32 KeyOf(AccessiblePlace place)
{
    return static_cast<quint32>(static_cast<u16>(place.Row)) << 16 | static_cast<u16>(place.Col);
}

AccessiblePlace PlaceOf(int row, int col)
{
    return { static_cast<i16>(row), static_cast<i16>(col) };
}

bool IsLine(int line, int count)
{
    return line >= 0 && line < count;
}

QList<int> ListOf(const std::vector<int>& lines)
{
    return { lines.begin(), lines.end() };
}

} // namespace

QtAccessibleGrid::QtAccessibleGrid(QVornix& widget, std::shared_ptr<const AccessibleReader> reader)
    : QAccessibleWidget(&widget, QAccessible::Table)
    , reader_(std::move(reader))
{
}

QtAccessibleGrid::~QtAccessibleGrid()
{
    DropCells();
}

bool QtAccessibleGrid::isValid() const
{
    return QAccessibleWidget::isValid() && reader_->IsOpen();
}

QAccessibleInterface* QtAccessibleGrid::CellFor(AccessiblePlace place) const
{
    if (!reader_->Has(place))
        return nullptr;
    CellObject& cell = cells_[KeyOf(place)];
    cell.lastAsked = ++asked_;
    if (QAccessibleInterface* const known = QAccessible::accessibleInterface(cell.id))
        return known;
    auto* const made = new QtAccessibleCell(const_cast<QtAccessibleGrid&>(*this), place);
    cell.id = QAccessible::registerAccessibleInterface(made);
    if (cells_.size() > MostCellObjects)
        DropOldCellsSoon();
    return made;
}

void QtAccessibleGrid::DropCells()
{
    const auto cells = std::exchange(cells_, {});
    for (const CellObject& cell : cells)
        QAccessible::deleteAccessibleInterface(cell.id);
}

// Who asks for cells may hold some until its call ends.
void QtAccessibleGrid::DropOldCellsSoon() const
{
    if (std::exchange(dropsSoon_, true))
        return;
    const auto drop = [id = QAccessible::uniqueId(const_cast<QtAccessibleGrid*>(this))] {
        if (auto* const grid = dynamic_cast<QtAccessibleGrid*>(QAccessible::accessibleInterface(id)))
            grid->DropOldCells();
    };
    QTimer::singleShot(0, &reader_->Widget(), drop);
}

// Half of them stay: those that were asked for last.
void QtAccessibleGrid::DropOldCells()
{
    dropsSoon_ = false;
    std::vector<quint64> times;
    for (const CellObject& cell : std::as_const(cells_))
        times.push_back(cell.lastAsked);
    if (times.size() <= MostCellObjects)
        return;
    const auto oldestKept = times.end() - MostCellObjects / 2;
    std::nth_element(times.begin(), oldestKept, times.end());
    cells_.removeIf([since = *oldestKept](const auto& entry) {
        if (entry.value().lastAsked >= since)
            return false;
        QAccessible::deleteAccessibleInterface(entry.value().id);
        return true;
    });
}

int QtAccessibleGrid::childCount() const
{
    const int rows = reader_->HeaderRows() + reader_->Rows();
    return (reader_->HasTitle() ? 1 : 0) + rows * ChildrenInRow();
}

int QtAccessibleGrid::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const cell = dynamic_cast<const QtAccessibleCell*>(child);
    if (!cell || cell->parent() != this || !reader_->Has(cell->Place()))
        return -1;
    if (cell->Place().IsTitle())
        return 0;
    const auto [row, col] = cell->Place();
    const int before = (row + reader_->HeaderRows()) * ChildrenInRow() + col + reader_->HeaderCols();
    return (reader_->HasTitle() ? 1 : 0) + before;
}

QAccessibleInterface* QtAccessibleGrid::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    if (reader_->HasTitle() && index-- == 0)
        return caption();
    const int row = index / ChildrenInRow() - reader_->HeaderRows();
    const int col = index % ChildrenInRow() - reader_->HeaderCols();
    return CellFor(PlaceOf(row, col));
}

QAccessibleInterface* QtAccessibleGrid::childAt(int x, int y) const
{
    if (!reader_->IsOpen())
        return nullptr;
    const auto place = reader_->PlaceAt(reader_->Widget().mapFromGlobal(QPoint(x, y)));
    return place ? CellFor(*place) : nullptr;
}

// An editor, or the current cell.
QAccessibleInterface* QtAccessibleGrid::focusChild() const
{
    QWidget* const focus = QApplication::focusWidget();
    const bool isOnGrid = focus && focus != widget() && reader_->IsOpen() && widget()->isAncestorOf(focus);
    if (isOnGrid)
        return QAccessible::queryAccessibleInterface(focus);
    const auto current = reader_->Current();
    return current ? CellFor(*current) : nullptr;
}

// The title is the name, or else says more about it.
QString QtAccessibleGrid::text(QAccessible::Text kind) const
{
    const QString given = QAccessibleWidget::text(kind);
    if (!given.isEmpty() || (kind != QAccessible::Name && kind != QAccessible::Description))
        return given;
    const bool titleIsName = QAccessibleWidget::text(QAccessible::Name).isEmpty();
    return titleIsName == (kind == QAccessible::Name) ? reader_->Title() : QString();
}

QAccessible::State QtAccessibleGrid::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = reader_->SelectsAny();
    state.extSelectable = state.multiSelectable;
    return state;
}

void* QtAccessibleGrid::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* QtAccessibleGrid::caption() const
{
    return CellFor(AccessiblePlace::Title());
}

QAccessibleInterface* QtAccessibleGrid::cellAt(int row, int column) const
{
    if (!IsLine(row, rowCount()) || !IsLine(column, columnCount()))
        return nullptr;
    return CellFor(reader_->Parent(PlaceOf(row, column)));
}

int QtAccessibleGrid::selectedCellCount() const
{
    const AccessibleSelection selection = reader_->Selection();
    const int rows = static_cast<int>(selection.rows.size());
    const int cols = static_cast<int>(selection.cols.size());
    const int inBlock = selection.cells ? selection.cells->Rows() * selection.cells->Cols() : 0;
    return rows * columnCount() + cols * rowCount() + inBlock;
}

QList<QAccessibleInterface*> QtAccessibleGrid::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    const auto add = [&](int row, int col) {
        if (cells.size() < MostListed)
            cells.append(CellFor(PlaceOf(row, col)));
        return cells.size() < MostListed;
    };
    const AccessibleSelection selection = reader_->Selection();
    for (const int row : selection.rows) {
        for (int col = 0; col < columnCount() && add(row, col); ++col) { }
    }
    for (const int col : selection.cols) {
        for (int row = 0; row < rowCount() && add(row, col); ++row) { }
    }
    const int blockRows = selection.cells ? selection.cells->Rows() : 0;
    for (int row = 0; row < blockRows; ++row) {
        const auto& [first, last] = *selection.cells;
        for (int col = first.Col; col <= last.Col && add(first.Row + row, col); ++col) { }
    }
    return cells;
}

int QtAccessibleGrid::selectedColumnCount() const
{
    return static_cast<int>(reader_->Selection().cols.size());
}

int QtAccessibleGrid::selectedRowCount() const
{
    return static_cast<int>(reader_->Selection().rows.size());
}

QList<int> QtAccessibleGrid::selectedColumns() const
{
    return ListOf(reader_->Selection().cols);
}

QList<int> QtAccessibleGrid::selectedRows() const
{
    return ListOf(reader_->Selection().rows);
}

bool QtAccessibleGrid::isColumnSelected(int column) const
{
    return IsLine(column, columnCount()) && reader_->IsColSelected(column);
}

bool QtAccessibleGrid::isRowSelected(int row) const
{
    return IsLine(row, rowCount()) && reader_->IsRowSelected(row);
}

bool QtAccessibleGrid::SelectRow(int row, bool selected)
{
    if (!IsLine(row, rowCount()) || !reader_->SelectsRows())
        return false;
    reader_->SelectRow(row, selected);
    return isRowSelected(row) == selected;
}

bool QtAccessibleGrid::SelectColumn(int column, bool selected)
{
    if (!IsLine(column, columnCount()) || !reader_->SelectsCols())
        return false;
    reader_->SelectCol(column, selected);
    return isColumnSelected(column) == selected;
}

void QtAccessibleGrid::modelChange(QAccessibleTableModelChangeEvent* event)
{
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged)
        DropCells();
}

} // namespace vornix
