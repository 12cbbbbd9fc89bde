#include "qt_combo_model.h"

#include "qt_ambient.h"

namespace vornix {

void QtComboModel::SetItems(const ComboItems* items)
{
    items_ = items;
    ItemsChanged();
}

void QtComboModel::ShowChanges()
{
    if (!isChanged_)
        return;
    isChanged_ = false;
    beginResetModel();
    shown_ = Count();
    endResetModel();
}

QString QtComboModel::TextOf(int row) const
{
    return row >= 0 && row < Count() ? ToQString(items_->Text(row)) : QString();
}

QVariant QtComboModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    return TextOf(index.row());
}

} // namespace vornix
