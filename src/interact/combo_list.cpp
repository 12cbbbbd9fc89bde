#include "interact/combo_list.h"

#include "automation/checked.h"

#include <algorithm>
#include <cstddef>

namespace vornix {

namespace {

template <typename Items, typename Test> int IndexOf(const Items& items, const Test& test)
{
    const auto found = std::ranges::find_if(items, test);
    return found == items.end() ? ComboList::None : static_cast<int>(found - items.begin());
}

} // namespace

std::size_t ComboList::Checked(int index) const
{
    if (index < 0 || index >= Count())
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>(index);
}

void ComboList::Insert(int index, std::u16string_view text)
{
    if (index < 0 || index > Count())
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    items_.insert(items_.begin() + index, { std::u16string(text), 0 });
    newIndex_ = index;
}

void ComboList::Remove(int index)
{
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
    if (index == newIndex_)
        newIndex_ = None;
    else if (index < newIndex_)
        --newIndex_;
}

void ComboList::SetText(int index, std::u16string_view text)
{
    items_[Checked(index)].text = text;
}

void ComboList::SetItemData(int index, i32 data)
{
    items_[Checked(index)].data = data;
}

void ComboList::Clear()
{
    items_.clear();
    newIndex_ = None;
}

int ComboList::Find(std::u16string_view text) const
{
    return IndexOf(items_, [&](const Item& item) { return item.text == text; });
}

int ComboList::FindStart(std::u16string_view start, const Locale& locale) const
{
    const auto isSame = [&](char16_t a, char16_t b) { return a == b || locale.ToUpper(a) == locale.ToUpper(b); };
    return IndexOf(items_, [&](const Item& item) {
        return item.text.size() >= start.size() && std::equal(start.begin(), start.end(), item.text.begin(), isSame);
    });
}

} // namespace vornix
