// What rows are sorted by: the columns, and what the rows hold in them.
#pragma once

#include "model/grid_store.h"
#include "vornix/platform/locale.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vornix {

// The columns of a sort, the most significant first, by the internal indices they had when they were named. Columns that
// come and go later are not followed.
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
    // Where the row was when the sort began.
    i16 SourceRow = 0;
    // A number for each column of the sort, the most significant first.
    const std::uint64_t* Keys = nullptr;
};

// What the rows that are not fixed hold in the columns of a sort, made once. Each value is a number that is larger the
// further behind the value belongs, by type and direction of its column; a column of an unknown type has one for all.
class SortKeys {
public:
    // Error 9 when there are rows to sort and a column is not there.
    SortKeys(const GridStore& store, std::span<const i16> cols, const Locale& locale);

    // One for each row, in the order of the rows. They point into this.
    std::vector<RowSortKey> Rows() const;
    // Whether a row belongs behind the other.
    bool IsBehind(const RowSortKey& row, const RowSortKey& pivot) const
    {
        for (std::size_t key = 0; key < keyCount_; ++key)
            if (row.Keys[key] != pivot.Keys[key])
                return row.Keys[key] > pivot.Keys[key];
        return false;
    }

private:
    int firstRow_;
    std::size_t rowCount_;
    std::size_t keyCount_ = 0;
    std::vector<std::uint64_t> numbers_; // those of a row together
};

} // namespace vornix
