#include "interact/cell_step.h"

#include "automation/key_codes.h"
#include "control/grid_fixture.h"

namespace vornix {

void PrintTo(const CellIndex& cell, std::ostream* out)
{
    *out << "(" << cell.row << ", " << cell.col << ")";
}

namespace {

// One fixed row, two fixed columns, 5 rows and 4 columns: the body is (1, 2) to (5, 5).
class CellStepTest : public testing::Test {
protected:
    CellStepTest() { Make(5, 4, 1, 2); }

    void Make(i16 rows, i16 cols, i16 fixedRows, i16 fixedCols)
    {
        store.StoreRows(rows);
        store.StoreCols(cols);
        store.StoreFixedRows(fixedRows);
        store.StoreFixedCols(fixedCols);
        store.InitGridStore(SystemColors());
        store.RefreshLastIndices();
    }
    CellIndex Up(CellIndex cell) const { return Arrow(cell, Keys::Up); }
    CellIndex Down(CellIndex cell) const { return Arrow(cell, Keys::Down); }
    CellIndex Left(CellIndex cell) const { return Arrow(cell, Keys::Left); }
    CellIndex Right(CellIndex cell) const { return Arrow(cell, Keys::Right); }

    GridStore store;
    Spans spans { store };
    HiddenLines hidden { store };
    CellStep step { store, spans, hidden };

private:
    CellIndex Arrow(CellIndex cell, int key) const
    {
        const CellStep::Result result = step.From(cell, key);
        EXPECT_TRUE(result.moved) << "an arrow moves wherever it leads";
        return result.cell;
    }
};

TEST_F(CellStepTest, GoesToTheNeighbour)
{
    EXPECT_EQ(Up({ 3, 3 }), (CellIndex { 2, 3 }));
    EXPECT_EQ(Down({ 3, 3 }), (CellIndex { 4, 3 }));
    EXPECT_EQ(Left({ 3, 3 }), (CellIndex { 3, 2 }));
    EXPECT_EQ(Right({ 3, 3 }), (CellIndex { 3, 4 }));
}

TEST_F(CellStepTest, OtherKeysDoNotMove)
{
    for (const int key : { 0, Keys::Home, Keys::End, Keys::PageUp, Keys::PageDown, Keys::Space, 65, 41, 36 }) {
        EXPECT_FALSE(step.From({ 3, 3 }, key).moved) << key;
        EXPECT_EQ(step.From({ 3, 3 }, key).cell, (CellIndex { 3, 3 })) << key;
    }
}

TEST_F(CellStepTest, StaysAtTheEdges)
{
    EXPECT_EQ(Up({ 1, 3 }), (CellIndex { 1, 3 }));
    EXPECT_EQ(Down({ 5, 3 }), (CellIndex { 5, 3 }));
    EXPECT_EQ(Left({ 1, 2 }), (CellIndex { 1, 2 }));
    EXPECT_EQ(Right({ 5, 5 }), (CellIndex { 5, 5 }));
}

TEST_F(CellStepTest, WrapsIntoTheNextRowAndTheOneBefore)
{
    EXPECT_EQ(Right({ 2, 5 }), (CellIndex { 3, 2 }));
    EXPECT_EQ(Left({ 3, 2 }), (CellIndex { 2, 5 }));
}

TEST_F(CellStepTest, WrapsByIndexEvenIntoAHiddenRow)
{
    hidden.HideRow(3);
    EXPECT_EQ(Right({ 2, 5 }), (CellIndex { 3, 2 }));
    EXPECT_EQ(Left({ 4, 2 }), (CellIndex { 3, 5 }));
}

TEST_F(CellStepTest, PassesOverHiddenRowsInOneStep)
{
    hidden.HideRow(2);
    hidden.HideRow(3);
    EXPECT_EQ(Down({ 1, 4 }), (CellIndex { 4, 4 }));
    EXPECT_EQ(Up({ 4, 4 }), (CellIndex { 1, 4 }));
}

TEST_F(CellStepTest, RefusesAHiddenFirstOrLastRow)
{
    hidden.HideRow(1);
    hidden.HideRow(5);
    EXPECT_EQ(Up({ 2, 3 }), (CellIndex { 2, 3 }));
    EXPECT_EQ(Down({ 4, 3 }), (CellIndex { 4, 3 }));
}

TEST_F(CellStepTest, PassesOverHiddenColumns)
{
    hidden.HideCol(3);
    hidden.HideCol(4);
    EXPECT_EQ(Right({ 2, 2 }), (CellIndex { 2, 5 }));
    EXPECT_EQ(Left({ 2, 5 }), (CellIndex { 2, 2 }));
    store.ColumnAt(5).Width = 0;
    EXPECT_EQ(Right({ 2, 2 }), (CellIndex { 2, 2 })) << "no other column to the right; the wrap is behind the last one";
    EXPECT_EQ(Left({ 3, 2 }), (CellIndex { 2, 2 })) << "the last column with a width";
}

TEST_F(CellStepTest, StaysWhereTheWrapFindsNoColumn)
{
    for (int col = 2; col <= 5; ++col)
        hidden.HideCol(col);
    EXPECT_EQ(Right({ 2, 5 }), (CellIndex { 2, 5 }));
    EXPECT_EQ(Left({ 3, 2 }), (CellIndex { 3, 2 }));
}

TEST_F(CellStepTest, LeavesASpanAtItsEdges)
{
    spans.SetRowSpan(2, 3, 2);
    spans.SetColSpan(2, 3, 2);
    for (const CellIndex cell : { CellIndex { 2, 3 }, CellIndex { 3, 3 } }) {
        EXPECT_EQ(Down(cell), (CellIndex { 4, 3 }));
        EXPECT_EQ(Up(cell), (CellIndex { 1, 3 }));
    }
    EXPECT_EQ(Right({ 2, 3 }), (CellIndex { 2, 5 }));
    EXPECT_EQ(Left({ 2, 3 }), (CellIndex { 2, 2 }));
}

TEST_F(CellStepTest, EntersASpanAtItsParent)
{
    spans.SetRowSpan(2, 3, 2);
    spans.SetColSpan(2, 3, 2);
    EXPECT_EQ(Up({ 4, 4 }), (CellIndex { 2, 3 }));
    EXPECT_EQ(Left({ 3, 5 }), (CellIndex { 2, 3 }));
    EXPECT_EQ(Right({ 3, 2 }), (CellIndex { 2, 3 }));
    EXPECT_EQ(Down({ 1, 4 }), (CellIndex { 2, 3 }));
}

TEST_F(CellStepTest, KeepsTheColumnThroughAWideSpan)
{
    spans.SetColSpan(2, 3, 3);
    EXPECT_EQ(Down({ 2, 5 }), (CellIndex { 3, 5 }));
    EXPECT_EQ(Up({ 2, 4 }), (CellIndex { 1, 4 }));
    EXPECT_EQ(Right({ 2, 4 }), (CellIndex { 3, 2 })) << "behind the whole span";
}

TEST_F(CellStepTest, AHiddenRowThatEndsTheWayKeepsTheSpan)
{
    spans.SetRowSpan(3, 3, 2);
    hidden.HideRow(5);
    EXPECT_EQ(Down({ 3, 3 }), (CellIndex { 3, 3 }));
}

TEST_F(CellStepTest, LeavesFixedCellsIntoTheBody)
{
    EXPECT_EQ(Down({ 0, 3 }), (CellIndex { 1, 3 }));
    EXPECT_EQ(Up({ 0, 3 }), (CellIndex { 1, 3 })) << "not above the first row that scrolls";
    EXPECT_EQ(Right({ 2, 1 }), (CellIndex { 2, 2 }));
    EXPECT_EQ(Right({ 2, 0 }), (CellIndex { 2, 1 })) << "fixed columns count on the way right";
    EXPECT_EQ(Left({ 2, 1 }), (CellIndex { 1, 5 })) << "one row up, to the end";
    EXPECT_EQ(Left({ 1, 1 }), (CellIndex { 1, 1 }));
    EXPECT_EQ(Right({ 0, 5 }), (CellIndex { 1, 2 }));
    EXPECT_EQ(Left({ 0, 2 }), (CellIndex { 0, 2 }));
}

TEST_F(CellStepTest, StaysInATableOfFixedLines)
{
    Make(0, 0, 2, 2);
    for (const CellIndex cell : { CellIndex { 0, 0 }, CellIndex { 1, 1 } }) {
        EXPECT_EQ(Up(cell), cell);
        EXPECT_EQ(Left(cell), cell);
    }
    EXPECT_EQ(Down({ 0, 0 }), (CellIndex { 1, 0 }));
    EXPECT_EQ(Down({ 1, 0 }), (CellIndex { 1, 0 })) << "the filler row is no cell";
    EXPECT_EQ(Right({ 0, 0 }), (CellIndex { 0, 1 }));
    EXPECT_EQ(Right({ 1, 1 }), (CellIndex { 1, 1 })) << "nor is the filler column";
}

TEST_F(CellStepTest, ReachesTheEndOfALongTable)
{
    Make(32766, 1, 0, 0);
    EXPECT_EQ(Down({ 32764, 0 }), (CellIndex { 32765, 0 }));
    EXPECT_EQ(Down({ 32765, 0 }), (CellIndex { 32765, 0 }));
    EXPECT_EQ(Right({ 32764, 0 }), (CellIndex { 32765, 0 }));
    EXPECT_EQ(Right({ 32765, 0 }), (CellIndex { 32765, 0 }));
    EXPECT_EQ(Left({ 32765, 0 }), (CellIndex { 32764, 0 }));
}

TEST_F(CellStepTest, ACellOutsideTheStoreIsAnError)
{
    for (const int key : { Keys::Left, Keys::Right, Keys::Up, Keys::Down }) {
        EXPECT_EQ(ErrorOf([&] { step.From({ -1, 2 }, key); }), 9);
        EXPECT_EQ(ErrorOf([&] { step.From({ 2, 99 }, key); }), 9);
        EXPECT_EQ(ErrorOf([&] { step.From({ 99, 2 }, key); }), 9);
    }
}

} // namespace
} // namespace vornix
