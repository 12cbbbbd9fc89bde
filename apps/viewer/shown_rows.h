// Which row of a table each row of the grid shows.
#pragma once

#include "sort_list.h"
#include "table.h"

#include "vornix/vornix.h"

#include <vector>

namespace vornix::viewer {

// Rows of the table are told by their numbers there; those of the grid by their index. Every member that moves rows closes
// the grid's editor.
class ShownRows {
public:
    // The grid shows the rows of the table from the first on, and as many. Both must outlive this.
    ShownRows(Vornix& grid, const Table& table);

    // -1 of the header.
    int At(int Row) const;
    int Count() const { return static_cast<int>(rows_.size()); }

    static constexpr int MostSorted = 29'523; // by columns, of the grid

    // Without columns there is nothing to compare, whatever the number.
    bool CanSort(const SortList& sort) const { return sort.Columns().empty() || Count() <= MostSorted; }
    // By the columns and then by `order`, which has all that are shown; without columns by that alone. Kinds of columns
    // decide what their texts are compared as. The titles are marked. Rows and cells that were selected are not any more,
    // unless the rows stand in `order` already. Where the grid cannot sort, AutomationError is raised, and std::logic_error
    // where others are shown than `order` has; the rows are as they were then.
    void Sort(const SortList& sort, const std::vector<int>& order);
    // New rows of the grid are made for them, one after the other, with the looks of their columns and no texts.
    void Insert(int Row, const std::vector<int>& rows);
    void Remove(int Row, int count);

private:
    void RequireShown(const std::vector<int>& order) const;
    void Arrange(const std::vector<int>& order);
    void SortByColumns(const SortList& sort, const std::vector<int>& order);
    void SetPlaces(const std::vector<int>& order);
    void SetKeys(int column);
    void ClearKeys(const SortList& sort);
    void SortGrid(const SortList& sort);
    void TakePlaces(const std::vector<int>& order);
    void MarkTitles(const SortList& sort);

    Vornix& grid_;
    const Table& table_;
    std::vector<int> rows_; // by the row of the grid
};

} // namespace vornix::viewer
