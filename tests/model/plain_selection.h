// What SelectCollection does, written down step by step with a map from slots to ranges.
#pragma once

#include "vornix/types.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

namespace vornix {

class PlainSelection {
public:
    struct Item {
        i32 left;
        i32 right;
        bool single;
        i32 top = 0;
        i32 bottom = 0;
        friend bool operator==(const Item&, const Item&) = default;
    };
    enum Kind { Nothing, Cells, Cols, Rows };

    void AddRows(bool reset, i32 first, i32 last) { AddLines(Rows, reset, first, last); }
    void AddCols(bool reset, i32 first, i32 last) { AddLines(Cols, reset, first, last); }
    void AddCells(bool reset, i32 row1, i32 col1, i32 row2, i32 col2)
    {
        Begin(Cells, reset);
        AddItem({ col1, col2, true, row1, row2 });
    }

    void RemoveAll()
    {
        count = 0;
        mode_ = Nothing;
    }

    int Mode() const { return count == 0 ? Nothing : mode_; }
    void SetMode(int mode) { mode_ = count == 0 ? Nothing : mode; }
    bool IsNewMode(int mode) const { return count != 0 && mode_ != Nothing && mode_ != mode; }

    // Whether a live range holds the line, whatever the mode.
    bool IsSelected(i32 index) const
    {
        return std::any_of(live.begin(), live.end(),
            [&](const auto& each) { return each.second.left <= index && index <= each.second.right; });
    }
    bool IsCellSelected(i32 row, i32 col) const
    {
        return Mode() == Cells && std::any_of(live.begin(), live.end(), [&](const auto& each) {
            const Item& item = each.second;
            return item.left <= col && col <= item.right && item.top <= row && row <= item.bottom;
        });
    }

    i32 Sum() const
    {
        i32 sum = 0;
        for (const auto& [slot, item] : live)
            sum += item.right - item.left + 1;
        return sum;
    }
    i32 CountLines(int kind) const { return Mode() == kind ? Sum() : 0; }
    i32 CountCells() const
    {
        i32 sum = 0;
        for (const auto& [slot, item] : live)
            sum += (item.right - item.left + 1) * (item.bottom - item.top + 1);
        return Mode() == Cells ? sum : 0;
    }

    void RemoveLines(int kind, i32 first, i32 last)
    {
        if (Mode() != kind)
            return;
        for (auto each = live.begin(); each != live.end();) {
            const auto following = std::next(each);
            if (each->second.left < last && first < each->second.right)
                Remove(each->first);
            each = following;
        }
        if (count == 0)
            mode_ = Nothing;
    }

    void UnSelect(i32 index)
    {
        if (count == 0)
            return;
        for (auto& [slot, item] : live) {
            const bool isInside = item.left < index && index < item.right;
            const bool isAtEnd = index == item.left || index == item.right;
            if (item.single ? index != item.left : !isInside && !isAtEnd)
                continue;
            if (item.single) {
                Remove(slot);
            } else if (isInside) {
                const i32 right = std::exchange(item.right, index - 1);
                if (mode_ == Rows || mode_ == Cols)
                    AddRange(index + 1, right);
            } else if (index == item.left) {
                item.single = ++item.left == item.right;
            } else {
                item.single = --item.right == item.left;
            }
            return;
        }
    }

    void Unselect(i32 first, i32 last)
    {
        if (!HasLines())
            return;
        for (const int slot : Slots()) {
            if (IsAdded(slot))
                continue;
            Item& item = live.at(slot);
            if (item.right < first || last < item.left)
                continue;
            if (item.left < first) {
                const i32 right = std::exchange(item.right, first - 1);
                if (last < right)
                    AddRange(last + 1, right);
            } else if (last < item.right)
                item.left = last + 1;
            else
                live.erase(slot);
        }
    }

    void Insert(i32 position, i32 n)
    {
        if (!HasLines())
            return;
        for (const int slot : Slots()) {
            if (IsAdded(slot))
                continue;
            Item& item = live.at(slot);
            if (position <= item.left) {
                item.left += n;
                item.right += n;
            } else if (position <= item.right) {
                const i32 right = std::exchange(item.right, position - 1);
                AddRange(position + n, right + n);
            }
        }
    }

    void Delete(i32 position, i32 n)
    {
        if (!HasLines() || n == 0)
            return;
        const i32 last = position + n - 1;
        for (const int slot : Slots()) {
            if (IsAdded(slot))
                continue;
            Item& item = live.at(slot);
            if (last < item.left) {
                item.left -= n;
                item.right -= n;
            } else if (last >= item.right && position <= item.left) {
                Remove(slot);
            } else if (last >= item.right && position <= item.right) {
                item.right = position - 1;
            } else if (last < item.right) {
                const Item old = item;
                const bool hasFront = position > old.left;
                const bool isFrontLost = hasFront && next_ == slot;
                if (hasFront)
                    AddRange(old.left, position - 1);
                Item rest = isFrontLost ? Item { 0, 0, false } : old;
                rest.left = last + 1 - n;
                rest.right = old.right - n;
                if (isFrontLost)
                    rest.single = rest.left == rest.right;
                live[slot] = rest;
            }
        }
    }

    void Invert(i32 first, i32 last)
    {
        if (!HasLines())
            return;
        const auto before = live;
        count = 0;
        AddRange(first, last);
        for (const auto& [slot, item] : before)
            Unselect(item.left, item.right);
    }

    // Stays when the last range goes, until another is added.
    std::map<int, Item> live;
    int count = 0;

private:
    bool HasLines() const { return mode_ != Cells && count > 0; }

    void Begin(int mode, bool reset)
    {
        if (reset || mode_ != mode)
            RemoveAll();
        mode_ = mode;
    }

    void AddLines(int mode, bool reset, i32 first, i32 last)
    {
        Begin(mode, reset);
        AddRange(first, last);
    }

    void AddRange(i32 first, i32 last)
    {
        if (first <= last)
            AddItem({ first, last, first == last });
    }

    void AddItem(const Item& item)
    {
        if (count++ == 0) {
            live.clear();
            next_ = 0;
        }
        added_.push_back(next_);
        live[next_++] = item;
    }

    void Remove(int slot)
    {
        live.erase(slot);
        --count;
        next_ = std::min(next_, slot);
    }

    bool IsAdded(int slot) const { return std::find(added_.begin(), added_.end(), slot) != added_.end(); }

    // The slots to look at; those that are written from now on are passed over.
    std::vector<int> Slots()
    {
        added_.clear();
        std::vector<int> slots;
        for (const auto& each : live)
            slots.push_back(each.first);
        return slots;
    }

    int mode_ = Nothing;
    int next_ = 0;
    std::vector<int> added_;
};

} // namespace vornix
