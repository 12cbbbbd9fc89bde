// The rows of the combo editor's list: a text and a number each. There is one list for the whole grid.
#pragma once

#include "vornix/platform/combo_box.h"
#include "vornix/platform/locale.h"

#include <string>
#include <string_view>
#include <vector>

namespace vornix {

class ComboList final : public ComboItems {
public:
    static constexpr int None = -1;

    int Count() const override { return static_cast<int>(items_.size()); }
    std::u16string_view Text(int index) const override { return items_[Checked(index)].text; }
    i32 ItemData(int index) const { return items_[Checked(index)].data; }
    // The row added last; None when it is gone.
    int NewIndex() const { return newIndex_; }

    // Error 9 for a place beyond the end; Count() is the end.
    void Insert(int index, std::u16string_view text);
    // Error 9 outside the list, as the next two.
    void Remove(int index);
    void SetText(int index, std::u16string_view text);
    void SetItemData(int index, i32 data);
    void Clear();

    // The first row with exactly this text.
    int Find(std::u16string_view text) const;
    // The first row that begins with this text, in any case.
    int FindStart(std::u16string_view start, const Locale& locale) const;

private:
    struct Item {
        std::u16string text;
        i32 data = 0;
    };

    std::size_t Checked(int index) const;

    std::vector<Item> items_;
    int newIndex_ = None;
};

} // namespace vornix
