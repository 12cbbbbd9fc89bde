#include "records.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace vornix::viewer {

Records::Records(int count)
    : states_(static_cast<std::size_t>(count))
    , order_(static_cast<std::size_t>(count))
    , count_(count)
{
    std::iota(order_.begin(), order_.end(), 0);
    for (std::size_t record = 0; record < states_.size(); ++record)
        states_[record].name = static_cast<int>(record) + 1;
}

std::vector<int> Records::InOrder() const
{
    std::vector<int> records;
    records.reserve(static_cast<std::size_t>(count_));
    std::copy_if(
        order_.begin(), order_.end(), std::back_inserter(records), [this](int record) { return IsThere(record); });
    return records;
}

std::string Records::NameOf(int record) const
{
    return (At(record).isNew ? "+" : "") + std::to_string(At(record).name);
}

void Records::Add(int record, int neighbour, Side side)
{
    if (record != static_cast<int>(states_.size()) || (neighbour >= 0 && !IsThere(neighbour)))
        throw std::logic_error("no such place for a record");
    auto place = neighbour < 0 ? order_.begin() : std::find(order_.begin(), order_.end(), neighbour);
    if (neighbour >= 0 && side == Side::Behind)
        ++place;
    order_.insert(place, record);
    states_.push_back({ ++newNames_, true });
    ++count_;
}

void Records::Remove(int record)
{
    if (!IsThere(record))
        throw std::logic_error("the record was removed before");
    At(record).isRemoved = true;
    --count_;
}

bool Records::Restore(int record)
{
    State& state = At(record);
    if (!state.isRemoved || state.isForgotten)
        return false;
    state.isRemoved = false;
    ++count_;
    return true;
}

std::vector<int> Records::Removed() const
{
    std::vector<int> removed;
    for (const int record : order_) {
        if (At(record).isRemoved && !At(record).isNew)
            removed.push_back(record);
    }
    return removed;
}

std::vector<Records::Addition> Records::Added() const
{
    std::vector<Addition> added;
    int last = -1;
    for (const int record : order_) {
        if (!IsThere(record))
            continue;
        if (At(record).isNew)
            added.push_back({ record, last });
        else
            last = record;
    }
    return added;
}

void Records::NoteSaved()
{
    int name = 0;
    for (const int record : order_) {
        State& state = At(record);
        state.isForgotten = state.isRemoved;
        state.isNew = false;
        if (!state.isRemoved)
            state.name = ++name;
    }
    order_ = InOrder();
    newNames_ = 0;
}

} // namespace vornix::viewer
