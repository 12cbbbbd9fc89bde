// What rows are sorted by: the columns, and what the rows hold in them.
#pragma once

#include "model/grid_store.h"
#include "vornix/platform/locale.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vornix {

// The columns of a sort, the most significant first, by the internal indices they had when they were named. Columns
// that come and go later are not followed.
class SortKeyList {
public:
    bool IsEmpty() const { return cols_.empty(); }
    std::span<const i16> Cols() const { return cols_; }
    // The first place that holds the column, from 1; 0 for one that is no key.
    i16 PositionOf(int col) const;
    // The column becomes the last key, at a place from 1 on: keys behind it are dropped, and places that open before it
    // hold column 0.
    void Put(int col, int position);

private:
    std::vector<i16> cols_;
};

// One row while rows are sorted.
struct RowSortKey {
    // What it holds in all columns of the sort: larger the further behind the row belongs, the same for rows that none
    // of the columns tells apart.
    std::uint64_t Key = 0;
    // Where the row was when the sort began.
    i16 SourceRow = 0;

    bool IsBehind(const RowSortKey& pivot) const { return Key > pivot.Key; }
};

// One for each row that is not fixed, in the order of the rows: what the columns hold, the most significant first, by
// the type and the direction of each. Error 9 when there are rows to sort and a column is not there.
std::vector<RowSortKey> SortKeysOf(const GridStore& store, std::span<const i16> cols, const Locale& locale);

} // namespace vornix
