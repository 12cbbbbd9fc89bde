// What a person has changed of a table and not saved yet.
#pragma once

#include "table.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace vornix::viewer {

// Rows, columns and texts as Table counts and writes them: a truth value is "-1" or "0". A cell that has got its old
// text back is none that was changed.
class Edits {
public:
    // Columns and their new texts, of one row.
    using RowEdits = std::map<int, std::u16string>;

    // The table must outlive this; its texts are the saved ones.
    explicit Edits(const Table& table)
        : table_(table)
    {
    }

    // Throws std::out_of_range when the table has no such cell.
    void Set(int row, int column, std::u16string_view text);
    // The text as it was changed last, or as it was saved. Valid until the cell is set again.
    std::u16string_view Text(int row, int column) const;
    void Clear();

    bool IsEmpty() const { return rows_.empty(); }
    // Of cells.
    std::size_t Count() const { return count_; }
    // The changed rows, from the first on.
    const std::map<int, RowEdits>& Rows() const { return rows_; }

private:
    void Remove(int row, int column);

    const Table& table_;
    std::map<int, RowEdits> rows_;
    std::size_t count_ = 0;
};

} // namespace vornix::viewer
