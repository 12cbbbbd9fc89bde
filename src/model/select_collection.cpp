#include "model/select_collection.h"

#include "automation/checked.h"

#include <algorithm>

namespace vornix {

// Collects the slots that are written while it lives.
class SelectCollection::WrittenSlots {
public:
    explicit WrittenSlots(SelectCollection& collection)
        : collection_(collection)
    {
        collection_.written_ = &slots_;
    }
    ~WrittenSlots() { collection_.written_ = nullptr; }
    WrittenSlots(const WrittenSlots&) = delete;
    WrittenSlots& operator=(const WrittenSlots&) = delete;

    bool Contains(int slot) const { return std::find(slots_.begin(), slots_.end(), slot) != slots_.end(); }

private:
    SelectCollection& collection_;
    std::vector<int> slots_;
};

SelectCollection::SelectCollection()
    : items_(1)
{
}

SelectionKind SelectCollection::Mode() const
{
    return count_ == 0 ? SelectionKind::None : mode_;
}

void SelectCollection::SetMode(SelectionKind mode)
{
    mode_ = count_ == 0 ? SelectionKind::None : mode;
}

void SelectCollection::AddCells(bool reset, i32 row1, i32 col1, i32 row2, i32 col2)
{
    BeginMode(SelectionKind::Cells, reset);
    AddItem({ col1, col2, row1, row2, true, true });
}

void SelectCollection::AddCols(bool reset, i32 first, i32 last)
{
    AddLines(SelectionKind::Cols, reset, first, last);
}

void SelectCollection::AddRows(bool reset, i32 first, i32 last)
{
    AddLines(SelectionKind::Rows, reset, first, last);
}

void SelectCollection::AddLines(SelectionKind mode, bool reset, i32 first, i32 last)
{
    BeginMode(mode, reset);
    AddRange(first, last);
}

void SelectCollection::BeginMode(SelectionKind mode, bool reset)
{
    if (!reset && mode_ == mode)
        return;
    RemoveAll();
    mode_ = mode;
}

void SelectCollection::AddRange(i32 first, i32 last)
{
    if (first <= last)
        AddItem({ first, last, 0, 0, true, first == last });
}

SelectedRange& SelectCollection::Item(int slot)
{
    if (!answers_.empty()) // clearing costs as much as there once were
        answers_.clear();
    return items_[static_cast<std::size_t>(slot)];
}

void SelectCollection::AddItem(const SelectedRange& item)
{
    const i16 count = ToI16(count_ + 1);
    if (count_ == 0) {
        nextFreeSlot_ = 0;
        items_.assign(1, {});
    }
    const i16 next = ToI16(nextFreeSlot_ + 1);
    if (nextFreeSlot_ >= SlotCount())
        items_.emplace_back();
    Item(nextFreeSlot_) = item;
    if (written_ != nullptr)
        written_->push_back(nextFreeSlot_);
    nextFreeSlot_ = next;
    count_ = count;
}

i32 SelectCollection::CountCells() const
{
    if (Mode() != SelectionKind::Cells)
        return 0;
    std::int64_t sum = 0;
    for (int slot = 0; slot < SlotCount(); ++slot) {
        const SelectedRange& item = Slot(slot);
        if (item.isActive)
            sum += std::int64_t { item.right - item.left + 1 } * (item.bottom - item.top + 1);
    }
    return ToI32(sum);
}

i32 SelectCollection::CountCols() const
{
    return CountLines(SelectionKind::Cols);
}

i32 SelectCollection::CountRows() const
{
    return CountLines(SelectionKind::Rows);
}

i32 SelectCollection::CountLines(SelectionKind mode) const
{
    if (Mode() != mode)
        return 0;
    std::int64_t sum = 0;
    for (int slot = 0; slot < SlotCount(); ++slot) {
        if (Slot(slot).isActive)
            sum += Slot(slot).right - Slot(slot).left + 1;
    }
    return ToI32(sum);
}

bool SelectCollection::IsCellSelected(i32 row, i32 col) const
{
    if (Mode() != SelectionKind::Cells)
        return false;
    for (int slot = 0; slot < SlotCount(); ++slot) {
        const SelectedRange& item = Slot(slot);
        if (item.isActive && item.left <= col && col <= item.right && item.top <= row && row <= item.bottom)
            return true;
    }
    return false;
}

bool SelectCollection::IsColSelected(i32 col) const
{
    return IsLineSelected(SelectionKind::Cols, col);
}

bool SelectCollection::IsRowSelected(i32 row) const
{
    return IsLineSelected(SelectionKind::Rows, row);
}

bool SelectCollection::IsLineSelected(SelectionKind mode, i32 index) const
{
    if (Mode() != mode)
        return false;
    const auto [answer, isNew] = answers_.try_emplace(index, false);
    if (isNew)
        answer->second = IsInAnyRange(index);
    return answer->second;
}

bool SelectCollection::IsInAnyRange(i32 index) const
{
    for (int slot = 0; slot < SlotCount(); ++slot) {
        const SelectedRange& item = Slot(slot);
        if (item.isActive && item.left <= index && index <= item.right)
            return true;
    }
    return false;
}

bool SelectCollection::IsNewModeSelection(SelectionKind mode) const
{
    return count_ != 0 && mode_ != SelectionKind::None && mode_ != mode;
}

void SelectCollection::RemoveAll()
{
    count_ = 0;
    mode_ = SelectionKind::None;
}

void SelectCollection::RemoveCols(i32 first, i32 last)
{
    if (Mode() == SelectionKind::Cols)
        RemoveLines(first, last);
}

void SelectCollection::RemoveRows(i32 first, i32 last)
{
    if (Mode() == SelectionKind::Rows)
        RemoveLines(first, last);
}

void SelectCollection::RemoveLines(i32 first, i32 last)
{
    for (int slot = 0; slot < SlotCount(); ++slot) {
        const SelectedRange& item = Slot(slot);
        if (item.isActive && item.left < last && first < item.right)
            FreeSlot(slot);
    }
    if (count_ == 0)
        mode_ = SelectionKind::None;
}

void SelectCollection::FreeSlot(int slot)
{
    Item(slot).isActive = false;
    count_ = ToI16(count_ - 1);
    nextFreeSlot_ = ToI16(std::min<int>(nextFreeSlot_, slot));
}

bool SelectCollection::SelectCell(i16& slot, i32& row1, i32& col1, i32& row2, i32& col2) const
{
    if (Mode() != SelectionKind::Cells)
        return false;
    for (int each = std::max<int>(slot, 0); each < SlotCount(); ++each) {
        const SelectedRange& item = Slot(each);
        if (!item.isActive)
            continue;
        row1 = item.top;
        col1 = item.left;
        row2 = item.bottom;
        col2 = item.right;
        return true;
    }
    return false;
}

bool SelectCollection::SelectItem(i16& slot, i32& first, i32& last) const
{
    for (int each = std::max<int>(slot, 0); each < SlotCount(); ++each) {
        const SelectedRange& item = Slot(each);
        if (!item.isActive)
            continue;
        slot = ToI16(each);
        first = item.left;
        last = item.right;
        return true;
    }
    return false;
}

void SelectCollection::UnSelectRange(i32 index)
{
    if (count_ == 0)
        return;
    for (int slot = 0; slot < SlotCount(); ++slot) {
        SelectedRange& item = Item(slot);
        if (!item.isActive)
            continue;
        if (item.isSingle) {
            if (index != item.left)
                continue;
            FreeSlot(slot);
        } else if (item.left < index && index < item.right) {
            const i32 right = item.right;
            item.right = index - 1;
            if (mode_ == SelectionKind::Cols || mode_ == SelectionKind::Rows)
                AddRange(index + 1, right); // `item` is no longer valid
        } else if (index == item.left) {
            // A range that was cut down to one line stays, empty, and answers to its new left end.
            item.left = index + 1;
            item.isSingle = item.left == item.right;
        } else if (index == item.right) {
            item.right = index - 1;
            item.isSingle = item.left == item.right;
        } else {
            continue;
        }
        return;
    }
}

template <typename Action> void SelectCollection::ForEachPresent(const Action& action)
{
    const WrittenSlots written(*this);
    const int slots = SlotCount();
    for (int slot = 0; slot < slots; ++slot) {
        if (Slot(slot).isActive && !written.Contains(slot))
            action(slot, Item(slot));
    }
}

void SelectCollection::UnselectItems(i32 first, i32 last)
{
    if (!HasLines())
        return;
    ForEachPresent([&](int, SelectedRange& item) {
        if (first > item.right || last < item.left)
            return;
        if (first > item.left) {
            const i32 right = item.right;
            item.right = first - 1;
            if (last < right)
                AddRange(last + 1, right);
        } else if (last < item.right) {
            item.left = last + 1;
        } else {
            item.isActive = false;
        }
    });
}

void SelectCollection::InsertItems(i32 position, i32 count)
{
    if (!HasLines())
        return;
    ForEachPresent([&](int, SelectedRange& item) {
        if (position <= item.left) {
            item.left += count;
            item.right += count;
        } else if (position <= item.right) {
            const i32 right = item.right;
            item.right = position - 1;
            AddRange(position + count, right + count);
        }
    });
}

void SelectCollection::DeleteItems(i32 position, i32 count)
{
    if (count == 0 || !HasLines())
        return;
    const i32 last = position + count - 1;
    ForEachPresent([&](int slot, SelectedRange& item) {
        if (last < item.left) {
            item.left -= count;
            item.right -= count;
        } else if (last >= item.right) {
            if (position <= item.left)
                FreeSlot(slot);
            else if (position <= item.right)
                item.right = position - 1;
        } else {
            const i32 left = item.left;
            const i32 right = item.right;
            if (position > left)
                AddRange(left, position - 1); // `item` is no longer valid
            // The part in front may have gone to this very slot: then it is gone, and what it was is not said of the rest.
            SelectedRange& rest = Item(slot);
            const bool isOverwritten = rest.right != right;
            rest.left = last + 1 - count;
            rest.right = right - count;
            if (isOverwritten)
                rest.isSingle = rest.left == rest.right;
        }
    });
}

void SelectCollection::InvertSelection(i32 first, i32 last)
{
    if (!HasLines())
        return;
    const std::vector<SelectedRange> before(items_.begin(), items_.end() - 1);
    count_ = 0;
    AddRange(first, last);
    for (const SelectedRange& item : before) {
        if (item.isActive)
            UnselectItems(item.left, item.right);
    }
}

} // namespace vornix
