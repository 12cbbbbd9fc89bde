// The step beside a walk that looks at one line after the other and knows nothing of chains.
#include "interact/cell_step.h"

#include "automation/key_codes.h"

#include <gtest/gtest.h>

#include <random>

namespace vornix {
namespace {

class PlainWalk {
public:
    PlainWalk(const GridStore& store, const Spans& spans)
        : store_(store)
        , spans_(spans)
    {
    }

    CellIndex From(CellIndex cell, int key) const
    {
        const CellIndex parent = spans_.ParentOf(cell.row, cell.col);
        const int endRow = parent.row + spans_.RowsCovered(parent.row, parent.col);
        const int endCol = parent.col + spans_.ColsCovered(parent.row, parent.col);
        switch (key) {
        case Keys::Up:
            return InCol(cell, parent, parent.row - 1, -1);
        case Keys::Down:
            return InCol(cell, parent, endRow, 1);
        case Keys::Left:
            return parent.col - 1 < store_.FixedCols() && cell.row > store_.FixedRows()
                ? InRow(cell, cell.row - 1, store_.LastColIndex(), -1)
                : InRow(cell, cell.row, parent.col - 1, -1);
        default:
            return endCol > store_.LastColIndex() && cell.row < store_.LastRowIndex()
                ? InRow(cell, cell.row + 1, store_.FixedCols(), 1)
                : InRow(cell, cell.row, endCol, 1);
        }
    }

private:
    CellIndex InCol(CellIndex cell, CellIndex parent, int row, int direction) const
    {
        for (; row >= store_.FixedRows() && row <= store_.LastRowIndex(); row += direction) {
            if (store_.HeightOf(row) != 0)
                return spans_.ParentOf(row, cell.col);
        }
        return parent;
    }
    CellIndex InRow(CellIndex cell, int row, int col, int direction) const
    {
        for (; col >= store_.FixedCols() && col <= store_.LastColIndex(); col += direction) {
            if (store_.WidthOf(col) != 0)
                return spans_.ParentOf(row, col);
        }
        return cell;
    }

    const GridStore& store_;
    const Spans& spans_;
};

class RandomTable {
public:
    explicit RandomTable(unsigned seed)
        : random_(seed)
    {
        store.StoreRows(static_cast<i16>(Below(9) + 1));
        store.StoreCols(static_cast<i16>(Below(7) + 1));
        store.StoreFixedRows(static_cast<i16>(Below(3)));
        store.StoreFixedCols(static_cast<i16>(Below(3)));
        store.InitGridStore(SystemColors());
        store.RefreshLastIndices();
    }

    void Change()
    {
        switch (Below(6)) {
        case 0:
            hidden.HideRow(BodyRow());
            break;
        case 1:
            hidden.ShowRow(BodyRow());
            break;
        case 2:
            hidden.HideCol(BodyCol());
            break;
        case 3:
            hidden.ShowCol(BodyCol());
            break;
        case 4:
            spans.SetRowSpan(BodyRow(), BodyCol(), static_cast<i16>(Below(4)));
            break;
        default:
            spans.SetColSpan(BodyRow(), BodyCol(), static_cast<i16>(Below(4)));
        }
    }

    int BodyRow() { return store.FixedRows() + Below(store.Rows()); }
    int BodyCol() { return store.FixedCols() + Below(store.Cols()); }
    // Rows that were hidden have lost their neighbours, and a way that leaves from them is anyone's guess.
    bool IsLinked(int row) const
    {
        return store.HeightOf(row) != 0 || row == store.FixedRows() || row == store.LastRowIndex();
    }
    bool HasWayOut(CellIndex cell) const
    {
        const CellIndex parent = spans.ParentOf(cell.row, cell.col);
        return IsLinked(parent.row) && IsLinked(parent.row + spans.RowsCovered(parent.row, parent.col) - 1);
    }

    GridStore store;
    Spans spans { store };
    HiddenLines hidden { store };

private:
    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    std::mt19937 random_;
};

TEST(CellStepAtRandom, LeadsWhereAPlainWalkLeads)
{
    int compared = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        RandomTable table(seed);
        const CellStep step(table.store, table.spans, table.hidden);
        const PlainWalk walk(table.store, table.spans);
        for (int change = 0; change < 25; ++change) {
            table.Change();
            const CellIndex cell { table.BodyRow(), table.BodyCol() };
            for (const int key : { Keys::Left, Keys::Right, Keys::Up, Keys::Down }) {
                const bool isVertical = key == Keys::Up || key == Keys::Down;
                if (isVertical && !table.HasWayOut(cell))
                    continue;
                const CellIndex expected = walk.From(cell, key);
                const CellIndex found = step.From(cell, key).cell;
                ASSERT_TRUE(found == expected)
                    << "seed " << seed << " change " << change << " key " << key << " from (" << cell.row << ", "
                    << cell.col << ") to (" << found.row << ", " << found.col << "), not (" << expected.row << ", "
                    << expected.col << ")";
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 20000);
}

} // namespace
} // namespace vornix
