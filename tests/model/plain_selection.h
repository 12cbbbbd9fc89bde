// What SelectCollection does to rows, written down step by step with a map from slots to ranges.
#pragma once

#include "vornix/types.h"

#include <algorithm>
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
    };

    void AddRows(bool reset, i32 first, i32 last)
    {
        if (reset || !isRows)
            RemoveAll();
        isRows = true;
        Add(first, last);
    }

    void RemoveAll()
    {
        count = 0;
        isRows = false;
    }

    bool IsSelected(i32 index) const
    {
        return std::any_of(live.begin(), live.end(),
            [&](const auto& each) { return each.second.left <= index && index <= each.second.right; });
    }

    i32 Sum() const
    {
        i32 sum = 0;
        for (const auto& [slot, item] : live)
            sum += item.right - item.left + 1;
        return sum;
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
            if (item.single)
                Remove(slot);
            else if (item.left < index && index < item.right)
                Add(index + 1, std::exchange(item.right, index - 1));
            else if (index == item.left)
                item.single = ++item.left == item.right;
            else
                item.single = --item.right == item.left;
            return;
        }
    }

    void Unselect(i32 first, i32 last)
    {
        if (count == 0)
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
                    Add(last + 1, right);
            } else if (last < item.right)
                item.left = last + 1;
            else
                live.erase(slot);
        }
    }

    void Insert(i32 position, i32 n)
    {
        if (count == 0)
            return;
        for (const int slot : Slots()) {
            if (IsAdded(slot))
                continue;
            Item& item = live.at(slot);
            if (position <= item.left)
                item = { item.left + n, item.right + n, item.single };
            else if (position <= item.right)
                Add(position + n, std::exchange(item.right, position - 1) + n);
        }
    }

    void Delete(i32 position, i32 n)
    {
        if (count == 0 || n == 0)
            return;
        const i32 last = position + n - 1;
        for (const int slot : Slots()) {
            if (IsAdded(slot))
                continue;
            Item& item = live.at(slot);
            if (last < item.left)
                item = { item.left - n, item.right - n, item.single };
            else if (last >= item.right && position <= item.left)
                Remove(slot);
            else if (last >= item.right && position <= item.right)
                item.right = position - 1;
            else if (last < item.right) {
                const Item old = item;
                if (position > old.left)
                    Add(old.left, position - 1);
                live[slot] = { last + 1 - n, old.right - n, live[slot].single };
            }
        }
    }

    void Invert(i32 first, i32 last)
    {
        if (count == 0)
            return;
        const auto before = live;
        count = 0;
        Add(first, last);
        for (const auto& [slot, item] : before)
            Unselect(item.left, item.right);
    }

    // To be read while the count is not 0.
    std::map<int, Item> live;
    int count = 0;
    bool isRows = false;

private:
    void Add(i32 first, i32 last)
    {
        if (first > last)
            return;
        if (count++ == 0) {
            live.clear();
            next = 0;
        }
        added.push_back(next);
        live[next++] = { first, last, first == last };
    }

    void Remove(int slot)
    {
        live.erase(slot);
        --count;
        next = std::min(next, slot);
    }

    bool IsAdded(int slot) const { return std::find(added.begin(), added.end(), slot) != added.end(); }

    // The slots to look at; those that are written from now on are passed over.
    std::vector<int> Slots()
    {
        added.clear();
        std::vector<int> slots;
        for (const auto& each : live)
            slots.push_back(each.first);
        return slots;
    }

    int next = 0;
    std::vector<int> added;
};

} // namespace vornix
