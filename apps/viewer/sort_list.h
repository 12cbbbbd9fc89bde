// The columns that a table is sorted by, as clicks on their titles choose them.
#pragma once

#include <string>
#include <vector>

namespace vornix::viewer {

struct SortColumn {
    int column = 0;
    bool isDescending = false;

    bool operator==(const SortColumn&) const = default;
};

class SortList {
public:
    // The most important one first; none for the order of the source.
    const std::vector<SortColumn>& Columns() const { return columns_; }

    // By this column alone: up, then down, then no more.
    void Choose(int column);
    // As a further one; one that is there turns round.
    void ChooseToo(int column);
    void Clear() { columns_.clear(); }

    // What the title of the column shows: an arrow, and the place among several. Empty for the others.
    std::u16string MarkOf(int column) const;

private:
    std::vector<SortColumn> columns_;
};

} // namespace vornix::viewer
