// Writing to a run of rows that may share their cells.
#pragma once

#include "automation/checked.h"
#include "model/grid_store.h"

#include <algorithm>
#include <unordered_map>

namespace vornix {

// Rows that share cells before a rewrite share the rewritten cells after it, instead of each getting a copy.
class SharedRewrites {
public:
    // `rewrite` may depend on nothing but the cells it is given.
    template <typename Rewrite> void Apply(CellBlock& block, const Rewrite& rewrite)
    {
        if (!block.IsShared()) {
            rewrite(block);
            return;
        }
        if (!last_ || last_->before.Identity() != block.Identity())
            last_ = &Rewritten(block, rewrite);
        block = last_->after;
    }

private:
    // Keeping the block of before keeps its address from being used again.
    struct Pair {
        CellBlock before;
        CellBlock after;
    };

    template <typename Rewrite> const Pair& Rewritten(const CellBlock& block, const Rewrite& rewrite)
    {
        const auto found = known_.find(block.Identity());
        if (found != known_.end())
            return found->second;
        Pair pair { block, block };
        rewrite(pair.after);
        return OrOutOfMemory(
            [&]() -> const Pair& { return known_.emplace(block.Identity(), std::move(pair)).first->second; });
    }

    std::unordered_map<const void*, Pair> known_;
    const Pair* last_ = nullptr;
};

inline constexpr int NoPrefetch = -1;

// Runs `rewrite` on the cells of rows first..last, up to the end of the array and then with error 9. `prefetchCol` is
// the one column that is touched, if it is one.
template <typename Rewrite>
void RewriteBlocks(GapArray<Row>& rows, int first, int last, int prefetchCol, const Rewrite& rewrite)
{
    // Far enough ahead to cover a trip to memory.
    constexpr int PrefetchDistance = 64;
    const int count = static_cast<int>(rows.size());
    if (first > last)
        return;
    CheckedIndex(first, count);
    const int end = std::min(last + 1, count);
    SharedRewrites shared;
    for (int row = first; row < end; ++row) {
        if (prefetchCol != NoPrefetch && row + PrefetchDistance < end)
            rows[static_cast<std::size_t>(row + PrefetchDistance)].Cells.Prefetch(prefetchCol);
        shared.Apply(rows[static_cast<std::size_t>(row)].Cells, rewrite);
    }
    CheckedIndex(last, count);
}

} // namespace vornix
