// The rows of a combo box as Qt's lists read them. Nothing is copied, and nothing is done for a row that is not looked at.
#pragma once

#include "vornix/platform/combo_box.h"

#include <QAbstractListModel>

namespace vornix {

class QtComboModel final : public QAbstractListModel {
public:
    void SetItems(const ComboItems* items);
    // The rows are others; who shows them learns of it by ShowChanges.
    void ItemsChanged() { isChanged_ = true; }
    bool IsChanged() const { return isChanged_; }
    void ShowChanges();
    int Count() const { return items_ ? items_->Count() : 0; }
    // "" outside the list.
    QString TextOf(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : shown_; }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const ComboItems* items_ = nullptr;
    int shown_ = 0;
    bool isChanged_ = false;
};

} // namespace vornix
