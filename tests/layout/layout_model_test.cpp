// The walks beside a slow, obvious picture of the table: explicit edges of everything on the screen.
#include "layout/table.h"

#include <numeric>
#include <random>

namespace vornix {
namespace {

// One axis: sizes, the number of frozen lines at the start, and the first line shown behind them.
struct SlowAxis {
    std::vector<int> sizes;
    int frozen = 0;
    int first = 0;
    int offset = 0;
    int client = 0;

    int Count() const { return static_cast<int>(sizes.size()); }
    int Sum(int from, int to) const // to excluded
    {
        return from < to ? std::accumulate(sizes.begin() + from, sizes.begin() + to, 0) : 0;
    }
    int FrozenSize() const { return Sum(0, std::min(frozen, Count())); }
    int Origin(int line) const
    {
        if (line <= frozen)
            return Sum(0, std::min(line, Count()));
        if (line <= first)
            return FrozenSize();
        return FrozenSize() + Sum(first, std::min(line, Count())) + offset;
    }
    // Where each line on the screen ends, in screen order.
    std::vector<std::pair<int, int>> Ends() const
    {
        std::vector<std::pair<int, int>> ends;
        for (int line = 0; line < std::min(frozen, Count()); ++line)
            ends.emplace_back(line, Sum(0, line + 1));
        for (int line = first; line < Count(); ++line)
            ends.emplace_back(line, FrozenSize() + Sum(first, line + 1) + offset);
        return ends;
    }
    int Hit(int position) const
    {
        if (position < 0 || position > client)
            return NoIndex;
        for (const auto& [line, end] : Ends())
            if (position < end)
                return line;
        return NoIndex;
    }
    int FirstForLast(int last) const
    {
        if (last < frozen)
            return last;
        int fitting = last + 1; // first line of the longest run up to `last` that fits
        while (fitting > frozen && FrozenSize() + Sum(fitting - 1, last + 1) <= client)
            --fitting;
        if (fitting > frozen && FrozenSize() + sizes[static_cast<std::size_t>(fitting - 1)] > client)
            return fitting - 1;
        for (int line = fitting; line <= last; ++line)
            if (sizes[static_cast<std::size_t>(line)] > 0)
                return line;
        return last;
    }
};

class RandomLayout {
public:
    explicit RandomLayout(unsigned seed)
        : random_(seed)
    {
    }

    int Number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    SlowAxis Axis(int maxFixed, int maxScrolling)
    {
        SlowAxis axis;
        const int fixed = Number(0, maxFixed);
        const int scrolling = Number(0, maxScrolling);
        const int largest = Number(1, 5) == 1 ? 400 : 60;
        for (int line = 0; line < fixed + scrolling; ++line)
            axis.sizes.push_back(Number(0, 3) == 0 ? 0 : Number(1, largest));
        axis.frozen = fixed;
        axis.client = Number(0, 500);
        return axis;
    }

private:
    std::mt19937 random_;
};

// A table with random sizes, fixed and split columns, and scrolled somewhere.
struct RandomTable {
    RandomLayout random;
    SlowAxis rows = random.Axis(3, 40);
    SlowAxis cols = random.Axis(3, 30);
    int fixedCols = cols.frozen;
    Table table { rows.frozen, rows.Count() - rows.frozen, fixedCols, cols.Count() - fixedCols };

    explicit RandomTable(unsigned seed)
        : random(seed)
    {
        table.Heights(rows.sizes);
        table.Widths(cols.sizes);
        if (cols.Count() - fixedCols >= 3 && random.Number(0, 1) == 1)
            cols.frozen += random.Number(1, cols.Count() - fixedCols - 1);
        rows.first = FirstShown(rows);
        cols.first = FirstShown(cols);
        if (cols.first < cols.Count() && random.Number(0, 1) == 1)
            cols.offset = -random.Number(0, std::max(cols.sizes[static_cast<std::size_t>(cols.first)] - 1, 0));
        table.layout.SetFirstScrollCol(cols.frozen);
        table.LayoutWithoutBars(cols.client, rows.client);
        table.layout.SetSmoothOffset(static_cast<i16>(cols.offset));
        table.scroll.SetFirstRow(rows.first);
        table.scroll.SetFirstCol(cols.first);
    }

private:
    int FirstShown(const SlowAxis& axis)
    {
        return axis.Count() > axis.frozen ? random.Number(axis.frozen, axis.Count() - 1) : axis.frozen;
    }
};

template <class Step> void ForRandomTables(Step step)
{
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        RandomTable random(seed);
        step(random);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(LayoutModel, FixedSums)
{
    ForRandomTables([](RandomTable& at) {
        EXPECT_EQ(at.table.layout.FixedRowsHeight(), at.rows.FrozenSize());
        EXPECT_EQ(at.table.layout.FrozenColsWidth(), at.cols.FrozenSize());
        EXPECT_EQ(at.table.layout.FixedColsWidth(), at.cols.Sum(0, at.fixedCols));
    });
}

TEST(LayoutModel, CellOrigin)
{
    ForRandomTables([](RandomTable& at) {
        for (int row = 0; row <= at.rows.Count(); ++row)
            for (int col = 0; col <= at.cols.Count(); ++col) {
                const Point expected { at.cols.Origin(col), at.rows.Origin(row) };
                ASSERT_EQ(at.table.layout.CellOriginAt(row, col), expected) << row << ", " << col;
            }
    });
}

TEST(LayoutModel, HitTest)
{
    ForRandomTables([](RandomTable& at) {
        for (int y = -3; y <= at.rows.client + 3; ++y)
            ASSERT_EQ(at.table.layout.HitTestCell(0, y).row, at.rows.Hit(y)) << "at y " << y;
        for (int x = -3; x <= at.cols.client + 3; ++x)
            ASSERT_EQ(at.table.layout.HitTestCell(x, 0).col, at.cols.Hit(x)) << "at x " << x;
    });
}

TEST(LayoutModel, TheCellUnderAPixelBeginsThereOrBefore)
{
    ForRandomTables([](RandomTable& at) {
        for (int x = 0; x <= at.cols.client; ++x) {
            const HitResult hit = at.table.layout.HitTestCell(x, 0);
            if (hit.col == NoIndex)
                continue;
            const int left = at.table.layout.CellOriginAt(0, hit.col).x;
            ASSERT_LE(left, x);
            ASSERT_LT(x, left + at.table.store.WidthOf(hit.col));
        }
    });
}

TEST(LayoutModel, FirstForLast)
{
    ForRandomTables([](RandomTable& at) {
        for (int row = 0; row < at.rows.Count(); ++row)
            ASSERT_EQ(at.table.layout.FirstRowForLast(row), at.rows.FirstForLast(row)) << row;
        for (int col = 0; col < at.cols.Count(); ++col)
            ASSERT_EQ(at.table.layout.FirstColForLast(col), at.cols.FirstForLast(col)) << col;
    });
}

TEST(LayoutModel, SpanSizeIsTheSizeOfTheRectangle)
{
    ForRandomTables([](RandomTable& at) {
        Spans spans(at.table.store);
        for (int round = 0; round < 8 && at.rows.Count() > 0 && at.cols.Count() > 0; ++round) {
            const int row = at.random.Number(0, at.rows.Count() - 1);
            const int col = at.random.Number(0, at.cols.Count() - 1);
            const int rowSpan = at.random.Number(1, at.rows.Count() - row);
            const int colSpan = at.random.Number(1, at.cols.Count() - col);
            spans.SetColSpan(row, col, static_cast<i16>(colSpan));
            spans.SetRowSpan(row, col, static_cast<i16>(rowSpan));
            const Size expected { at.cols.Sum(col, col + colSpan), at.rows.Sum(row, row + rowSpan) };
            const int childRow = row + at.random.Number(0, rowSpan - 1);
            const int childCol = col + at.random.Number(0, colSpan - 1);
            ASSERT_EQ(at.table.layout.CellSpanSize(row, col), expected);
            ASSERT_EQ(at.table.layout.CellSpanSize(childRow, childCol), expected);
        }
    });
}

// The rules as they read, on plain sums: what scrolls asks first, then each bar that came narrows the other's room.
TEST(LayoutModel, BarsNeeded)
{
    ForRandomTables([](RandomTable& at) {
        LayoutEngine& layout = at.table.layout;
        layout.Settings.ScrollHBar = at.random.Number(0, 3);
        layout.Settings.ScrollVBar = at.random.Number(0, 2);
        const bool hAllowed = layout.Settings.ScrollHBar != vxNoScrollBar;
        const bool vAllowed = layout.Settings.ScrollVBar != vxNoScrollBar;
        const int width = at.cols.Sum(0, hAllowed ? at.cols.Count() : at.cols.frozen);
        const int height = at.rows.Sum(0, vAllowed ? at.rows.Count() : at.rows.frozen);
        const bool hFirst = hAllowed && at.cols.Count() > at.cols.frozen && width > at.cols.client;
        const bool vFirst = vAllowed && at.rows.Count() > at.rows.frozen && height > at.rows.client;
        const bool h = hFirst || (hAllowed && width > at.cols.client - (vFirst ? 17 : 0));
        const bool v = vFirst || (vAllowed && height > at.rows.client - (hFirst ? 17 : 0));
        at.table.Layout();
        ASSERT_EQ(layout.HBarHeight(), h ? 17 : 0);
        ASSERT_EQ(layout.VBarWidth(), v ? 17 : 0);
    });
}

} // namespace
} // namespace vornix
