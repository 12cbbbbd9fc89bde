#include "model/visual_cell_store.h"

#include "automation/checked.h"

namespace vornix {

VisualCellStore::VisualCellStore()
{
    Clear();
}

void VisualCellStore::Store(int index, const VisualCell& cell)
{
    if (index < 0)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    const std::size_t place = static_cast<std::size_t>(index);
    OrOutOfMemory([&] {
        if (place >= entries_.size())
            entries_.resize(place + 1);
    });
    entries_[place] = cell;
}

const VisualCell* VisualCellStore::Find(int index) const
{
    if (index < 0)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    const std::size_t place = static_cast<std::size_t>(index);
    return place < entries_.size() ? &entries_[place] : nullptr;
}

void VisualCellStore::Clear()
{
    std::vector<VisualCell> fresh = OrOutOfMemory([] { return std::vector<VisualCell>(1); });
    entries_.swap(fresh);
}

} // namespace vornix
