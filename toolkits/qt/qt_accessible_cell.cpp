#include "qt_accessible_cell.h"

#include "qt_accessible_grid.h"

namespace vornix {

namespace {

bool IsButton(i32 mode)
{
    return mode == vxCommandButton || mode == vxPressButton;
}

QAccessible::Role RoleOf(i32 mode)
{
    if (mode == vxCheckBox)
        return QAccessible::CheckBox;
    return IsButton(mode) ? QAccessible::Button : QAccessible::Cell;
}

// Headers next to the table come last, as they are read toward the cell.
template <typename Header>
QList<QAccessibleInterface*> HeaderCells(const QtAccessibleGrid& table, int count, const Header& header)
{
    QList<QAccessibleInterface*> cells;
    for (int line = -count; line < 0; ++line) {
        QAccessibleInterface* const cell = table.CellFor(table.Reader().Parent(header(static_cast<i16>(line))));
        if (cell && !cells.contains(cell))
            cells.append(cell);
    }
    return cells;
}

} // namespace

QtAccessibleCell::QtAccessibleCell(QtAccessibleGrid& table, AccessiblePlace place)
    : table_(table)
    , place_(place)
{
}

const AccessibleReader& QtAccessibleCell::Reader() const
{
    return table_.Reader();
}

bool QtAccessibleCell::isValid() const
{
    return table_.isValid() && Reader().Has(place_);
}

QWindow* QtAccessibleCell::window() const
{
    return table_.window();
}

QAccessibleInterface* QtAccessibleCell::parent() const
{
    return &table_;
}

QAccessibleInterface* QtAccessibleCell::table() const
{
    return &table_;
}

// A check box without a name of its own is known by its column.
QString QtAccessibleCell::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name)
        return {};
    const bool isUnnamedBox = IsOfTable() && Reader().Mode(place_) == vxCheckBox;
    return isUnnamedBox ? Reader().ColumnText(place_.Col) : Reader().ShownText(place_);
}

QRect QtAccessibleCell::rect() const
{
    const QRect area = Reader().Area(place_);
    if (area.isEmpty())
        return {};
    return { Reader().Widget().mapToGlobal(area.topLeft()), area.size() };
}

QAccessible::Role QtAccessibleCell::role() const
{
    if (place_.IsTitle())
        return QAccessible::StaticText;
    if (place_.Row < 0)
        return QAccessible::ColumnHeader;
    if (place_.Col < 0)
        return QAccessible::RowHeader;
    return RoleOf(Reader().Mode(place_));
}

QAccessible::State QtAccessibleCell::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    AddPlaceStates(state);
    AddModeStates(state);
    return state;
}

void QtAccessibleCell::AddPlaceStates(QAccessible::State& state) const
{
    const QVornix& widget = Reader().Widget();
    state.invisible = !widget.isVisible() || Reader().IsHidden(place_);
    state.offscreen = !state.invisible && Reader().Area(place_).isEmpty();
    if (place_.IsTitle())
        return;
    state.selectable = IsOfTable() ? Reader().SelectsAny()
        : place_.Row < 0           ? place_.Col >= 0 && Reader().SelectsCols()
                                   : Reader().SelectsRows();
    state.selected = Reader().IsSelected(place_);
    // A header gets the keyboard by a press only.
    const bool isCurrent = Reader().Current() == place_;
    state.focusable = IsOfTable() || isCurrent;
    state.active = isCurrent;
    state.focused = isCurrent && widget.hasFocus();
}

void QtAccessibleCell::AddModeStates(QAccessible::State& state) const
{
    const i32 mode = Reader().Mode(place_);
    const bool isEnabled = Reader().IsEnabled(place_);
    state.disabled = !isEnabled;
    state.checkable = mode == vxCheckBox || mode == vxPressButton;
    state.pressed = IsButton(mode) && Reader().IsPressed(place_);
    state.checked = mode == vxPressButton ? bool(state.pressed) : Reader().IsChecked(place_);
    state.readOnly = !isEnabled || mode == vxCellFixed;
}

void* QtAccessibleCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface && IsOfTable())
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface && !place_.IsTitle())
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool QtAccessibleCell::isSelected() const
{
    return Reader().IsSelected(place_);
}

QList<QAccessibleInterface*> QtAccessibleCell::columnHeaderCells() const
{
    return HeaderCells(table_, Reader().HeaderRows(), [this](i16 Row) { return AccessiblePlace { Row, place_.Col }; });
}

QList<QAccessibleInterface*> QtAccessibleCell::rowHeaderCells() const
{
    return HeaderCells(table_, Reader().HeaderCols(), [this](i16 Col) { return AccessiblePlace { place_.Row, Col }; });
}

int QtAccessibleCell::columnExtent() const
{
    return Reader().ColExtent(place_);
}

int QtAccessibleCell::rowExtent() const
{
    return Reader().RowExtent(place_);
}

// The first one is what a click does, and cells can be given the keyboard besides.
QStringList QtAccessibleCell::actionNames() const
{
    QStringList names;
    if (!isValid() || Reader().IsHidden(place_) || !Reader().IsEnabled(place_))
        return names;
    const i32 mode = Reader().Mode(place_);
    if (mode == vxCheckBox || mode == vxPressButton)
        names << QAccessibleActionInterface::toggleAction();
    else if (mode == vxCommandButton || !IsOfTable())
        names << QAccessibleActionInterface::pressAction();
    if (IsOfTable())
        names << QAccessibleActionInterface::setFocusAction();
    return names;
}

void QtAccessibleCell::doAction(const QString& name)
{
    if (!actionNames().contains(name))
        return;
    if (name == QAccessibleActionInterface::setFocusAction())
        return Reader().MakeCurrent(place_);
    Reader().Click(place_);
}

} // namespace vornix
