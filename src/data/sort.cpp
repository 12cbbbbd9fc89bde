#include "data/sort.h"

#include "automation/checked.h"

#include <algorithm>
#include <utility>

namespace vornix {

namespace {

using RowOrder = std::vector<RowSortKey>;

// The first of the gaps 1, 4, 13, ... above the number of rows. The gaps are 16 bits wide: error 6 behind 29524.
i16 GapAbove(int rows)
{
    i16 gap = 1;
    do
        gap = ToI16(3 * gap + 1);
    while (gap <= rows);
    return gap;
}

// One pass: every row walks forward over those, a gap apart, that belong behind it.
void InsertByGap(RowOrder& rows, int gap)
{
    const auto at = [&](int place) -> RowSortKey& { return rows[static_cast<std::size_t>(place)]; };
    const int count = static_cast<int>(rows.size());
    for (int i = gap; i < count; ++i) {
        const RowSortKey pivot = at(i);
        int j = i - gap;
        for (; j >= 0 && at(j).IsBehind(pivot); j -= gap)
            at(j + gap) = at(j);
        at(j + gap) = pivot;
    }
}

void ShellSort(RowOrder& rows, int firstRow)
{
    i16 gap = GapAbove(static_cast<int>(rows.size()));
    do {
        gap /= 3;
        ToI16(firstRow + gap); // where the pass begins
        InsertByGap(rows, gap);
    } while (gap != 1);
}

// For each row in its old place, whether the one above it will be another.
std::vector<bool> PartingRows(const RowOrder& rows, int firstRow)
{
    std::vector<bool> isParting(rows.size());
    int above = firstRow - 1;
    for (const RowSortKey& row : rows) {
        isParting[static_cast<std::size_t>(row.SourceRow - firstRow)] = row.SourceRow != above + 1;
        above = row.SourceRow;
    }
    return isParting;
}

// The spans whose children lie in this row and whose parents above it. Rows that were exchanged may hold links that
// lead nowhere: these stay as they are.
void RemoveSpansFromAbove(const GridStore& store, Spans& spans, int row)
{
    for (int col = 0; col < store.MaxCol(); ++col) {
        if (store.CellAt(row, col).ParentRow() >= 0)
            continue;
        const CellIndex parent = spans.ParentOf(row, col);
        if (parent != CellIndex { row, col })
            spans.RemoveSpan(parent.row, parent.col);
    }
}

// A child of a span counts the rows to its parent, which holds only while they are neighbours.
void RemoveTornSpans(const GridStore& store, Spans& spans, const RowOrder& rows, int firstRow)
{
    const auto isBelowItsParent = [](const Cell& cell) { return cell.ParentRow() < 0; };
    const std::vector<bool> isParting = OrOutOfMemory([&] { return PartingRows(rows, firstRow); });
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int row = firstRow + static_cast<int>(i);
        if (isParting[i] && std::ranges::any_of(store.RowAt(row).Cells.All(), isBelowItsParent))
            RemoveSpansFromAbove(store, spans, row);
    }
}

// Moves each row once, along the circles in which they take each other's places.
void MoveRows(GridStore& store, RowOrder& rows, int firstRow)
{
    constexpr i16 Moved = -1;
    const auto sourceOf = [&](int row) -> i16& { return rows[static_cast<std::size_t>(row - firstRow)].SourceRow; };
    for (int row = firstRow; row < firstRow + static_cast<int>(rows.size()); ++row) {
        if (sourceOf(row) == Moved || sourceOf(row) == row)
            continue;
        Row first = std::move(store.RowAt(row));
        int place = row;
        for (int source = sourceOf(place); source != row; source = sourceOf(place)) {
            store.RowAt(place) = std::move(store.RowAt(source));
            sourceOf(place) = Moved;
            place = source;
        }
        store.RowAt(place) = std::move(first);
        sourceOf(place) = Moved;
    }
}

} // namespace

void SortRows(GridStore& store, Spans& spans, HiddenLines& hidden, std::span<const i16> cols, const Locale& locale)
{
    const int firstRow = store.FixedRows();
    RowOrder rows = SortKeysOf(store, cols, locale);
    ShellSort(rows, firstRow);
    RemoveTornSpans(store, spans, rows, firstRow);
    MoveRows(store, rows, firstRow);
    hidden.RebuildChain();
}

} // namespace vornix
