#include "interact/grid_selection.h"

#include "control/control.h"
#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Places = std::vector<std::pair<int, int>>;

class GridSelectionTest : public testing::Test {
protected:
    GridSelectionTest()
    {
        store.StoreRows(6);
        store.StoreCols(6);
        store.StoreFixedRows(1);
        store.StoreFixedCols(2);
        store.InitGridStore(SystemColors());
    }

    // Internal places of the plain cells that show as selected.
    Places Shown(bool printing = false) const
    {
        Places places;
        for (int row = 0; row <= store.LastRowIndex(); ++row) {
            for (int col = 0; col <= store.LastColIndex(); ++col) {
                if (selection.IsShownSelected(store.CellAt(row, col), row, col, printing))
                    places.emplace_back(row, col);
            }
        }
        return places;
    }

    GridStore store;
    CurrentCell current;
    GridSelection selection { store, current };
};

TEST_F(GridSelectionTest, StartsWithNothingSelectedAndNoCorners)
{
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_EQ(selection.Anchor, (CellIndex { NoIndex, NoIndex }));
    EXPECT_EQ(selection.End, (CellIndex { NoIndex, NoIndex }));
    EXPECT_FALSE(selection.IsDragging());
    EXPECT_EQ(selection.Settings.SelectMode, vxBoth);
    EXPECT_FALSE(selection.Settings.SelectByRowCol);
    EXPECT_FALSE(selection.Settings.CellSelection);
}

TEST_F(GridSelectionTest, CollapsingPutsTheCornersOnTheCurrentCell)
{
    selection.Ranges().AddRows(true, 2, 4);
    current.Set(3, 2);
    selection.Collapse();
    EXPECT_EQ(selection.Ranges().Count(), 0);
    EXPECT_EQ(selection.Anchor, (CellIndex { 3, 2 }));
    EXPECT_EQ(selection.End, (CellIndex { 3, 2 }));
}

TEST_F(GridSelectionTest, CollapsingLeavesTheCornersWithoutACurrentCellOrOnAFixedOne)
{
    for (const CellIndex fixed : { CellIndex { 0, 3 }, CellIndex { 2, 1 }, CellIndex { -1, -1 } }) {
        selection.Anchor = { 1, 2 };
        selection.End = { 4, 5 };
        if (fixed.row >= 0)
            current.Set(fixed.row, fixed.col);
        else
            current.Clear();
        selection.Collapse();
        EXPECT_EQ(selection.Anchor, (CellIndex { 1, 2 })) << fixed.row;
        EXPECT_EQ(selection.End, (CellIndex { 4, 5 })) << fixed.row;
    }
}

TEST_F(GridSelectionTest, CollapsingLeavesTheDragAlone)
{
    selection.PressKind = SelectionKind::Rows;
    selection.SetDragRows({ 2, 3 });
    selection.BeginDrag();
    selection.Collapse();
    EXPECT_TRUE(selection.IsDragging());
    EXPECT_EQ(Shown().size(), 2u * 8u);
}

TEST_F(GridSelectionTest, ResetForgetsAllOfATableThatIsNoMore)
{
    selection.Ranges().AddCols(true, 3, 4);
    selection.Ranges().AddCols(false, 6, 6);
    selection.Anchor = { 2, 3 };
    selection.End = { 4, 5 };
    selection.PressKind = SelectionKind::Rows;
    selection.BeginDrag();
    selection.DragBetweenCorners();
    selection.DragRowsToPaintedEnd(2);
    selection.AdvanceWalk();
    ASSERT_EQ(selection.LineAt(2), 6);

    selection.Reset();
    EXPECT_EQ(selection.Ranges().Count(), 0);
    EXPECT_EQ(selection.Ranges().Mode(), SelectionKind::None);
    EXPECT_EQ(selection.Anchor, (CellIndex { NoIndex, NoIndex }));
    EXPECT_EQ(selection.End, (CellIndex { NoIndex, NoIndex }));
    EXPECT_EQ(selection.PressKind, SelectionKind::None);
    EXPECT_FALSE(selection.IsDragging());
    EXPECT_EQ(selection.DragRows().first, 0);
    EXPECT_EQ(selection.DragCols().last, 0);
    selection.PaintRangeChanged(5, 5);
    EXPECT_EQ(selection.DragRows().last, 0) << "no drag follows the paint";
    selection.Ranges().AddCols(true, 4, 4);
    selection.Ranges().AddCols(false, 5, 5);
    EXPECT_EQ(selection.NextCols()->first, 4) << "the walk begins with the first";
    EXPECT_EQ(selection.LineAt(1), 5) << "and so does the count";
    EXPECT_EQ(Shown().size(), 2 * 7u);
}

TEST_F(GridSelectionTest, ARangeIsReadAgainUntilTheWalkAdvances)
{
    selection.Ranges().AddRows(true, 1, 2);
    selection.Ranges().AddRows(false, 5, 5);
    selection.BeginWalk();
    for (int times = 0; times < 2; ++times) {
        const auto rows = selection.NextRows();
        ASSERT_TRUE(rows);
        EXPECT_EQ(std::pair(rows->first, rows->last), std::pair(1, 2));
    }
    selection.AdvanceWalk();
    EXPECT_EQ(selection.NextRows()->first, 5);
    EXPECT_FALSE(selection.NextCols()) << "of the other kind";
    selection.AdvanceWalk();
    EXPECT_FALSE(selection.NextRows());
}

TEST_F(GridSelectionTest, ShowsWhatIsSelectedByItsKind)
{
    selection.Ranges().AddCells(true, 2, 3, 3, 4);
    EXPECT_THAT(Shown(), ElementsAre(std::pair(2, 3), std::pair(2, 4), std::pair(3, 3), std::pair(3, 4)));
    selection.Ranges().AddRows(true, 4, 4);
    EXPECT_EQ(Shown().size(), 8u);
    EXPECT_EQ(Shown().front(), std::pair(4, 0));
    selection.Ranges().AddCols(true, 5, 5);
    EXPECT_EQ(Shown().size(), 7u);
    EXPECT_EQ(Shown().front(), std::pair(0, 5));
}

TEST_F(GridSelectionTest, PrintsNothingAsSelected)
{
    selection.Ranges().AddCells(true, 2, 3, 3, 4);
    EXPECT_THAT(Shown(true), IsEmpty());
    selection.Ranges().AddRows(true, 4, 4);
    EXPECT_THAT(Shown(true), IsEmpty());
    selection.Ranges().AddCols(true, 5, 5);
    EXPECT_THAT(Shown(true), IsEmpty());
}

TEST_F(GridSelectionTest, LeavesSpansOutOfLinesButNotOutOfRectangles)
{
    Spans spans(store);
    spans.SetColSpan(2, 3, 2);
    spans.SetRowSpan(3, 5, 2);
    const auto isShown
        = [&](int row, int col) { return selection.IsShownSelected(store.CellAt(row, col), row, col, false); };
    const auto expectLines = [&](bool rows) {
        EXPECT_EQ(isShown(2, 3), rows) << "wide";
        EXPECT_EQ(isShown(3, 5), !rows) << "high";
    };
    selection.Ranges().AddRows(true, 1, 6);
    expectLines(true);
    selection.Ranges().AddCols(true, 2, 7);
    expectLines(false);
    selection.Ranges().AddCells(true, 1, 2, 6, 7);
    EXPECT_TRUE(isShown(2, 3));
    EXPECT_TRUE(isShown(3, 5));

    selection.SetDragRows({ 1, 6 });
    selection.SetDragCols({ 2, 7 });
    selection.BeginDrag();
    selection.PressKind = SelectionKind::Rows;
    expectLines(true);
    selection.PressKind = SelectionKind::Cols;
    expectLines(false);
    selection.PressKind = SelectionKind::Cells;
    EXPECT_TRUE(isShown(2, 3));
    EXPECT_TRUE(isShown(3, 5));
}

TEST_F(GridSelectionTest, ASpanOfOneIsNone)
{
    Spans(store).SetColSpan(2, 3, 1);
    Spans(store).SetRowSpan(2, 3, 1);
    selection.Ranges().AddRows(true, 2, 2);
    EXPECT_TRUE(selection.IsShownSelected(store.CellAt(2, 3), 2, 3, false));
    selection.Ranges().AddCols(true, 3, 3);
    EXPECT_TRUE(selection.IsShownSelected(store.CellAt(2, 3), 2, 3, false));
}

TEST_F(GridSelectionTest, ADragIsShownInPlaceOfTheSelection)
{
    selection.Ranges().AddRows(true, 5, 6);
    selection.PressKind = SelectionKind::Cells;
    selection.Anchor = { 3, 4 };
    selection.End = { 2, 5 };
    selection.DragBetweenCorners();
    EXPECT_EQ(Shown().size(), 16u) << "not before it begins";
    selection.BeginDrag();
    EXPECT_THAT(Shown(), ElementsAre(std::pair(2, 4), std::pair(2, 5), std::pair(3, 4), std::pair(3, 5)));
    selection.PressKind = SelectionKind::Rows;
    EXPECT_EQ(Shown().size(), 16u);
    EXPECT_EQ(Shown().front(), std::pair(2, 0));
    selection.PressKind = SelectionKind::Cols;
    EXPECT_EQ(Shown().size(), 14u);
    EXPECT_EQ(Shown().front(), std::pair(0, 4));
    selection.PressKind = SelectionKind::None;
    EXPECT_THAT(Shown(), IsEmpty());
    selection.EndDrag();
    EXPECT_EQ(Shown().front(), std::pair(5, 0));
}

TEST_F(GridSelectionTest, ADragFollowsThePaintedEndWhileItIsTold)
{
    selection.SetDragCols({ 2, 3 });
    selection.SetDragRows({ 2, 3 });
    selection.PaintRangeChanged(5, 6);
    EXPECT_EQ(selection.DragCols().last, 3);
    EXPECT_EQ(selection.DragRows().last, 3);
    selection.DragColsToPaintedEnd(4);
    selection.PaintRangeChanged(5, 6);
    EXPECT_EQ(selection.DragCols().first, 4);
    EXPECT_EQ(selection.DragCols().last, 6);
    EXPECT_EQ(selection.DragRows().last, 3);
    selection.DragRowsToPaintedEnd(1);
    selection.PaintRangeChanged(6, 7);
    EXPECT_EQ(selection.DragCols().last, 7);
    EXPECT_EQ(selection.DragRows().first, 1);
    EXPECT_EQ(selection.DragRows().last, 6);
    selection.SetDragCols({ 2, 2 });
    selection.EndDrag();
    selection.PaintRangeChanged(3, 3);
    EXPECT_EQ(selection.DragCols().last, 2);
    EXPECT_EQ(selection.DragRows().last, 6);
}

// A control whose parts are within reach, painting into the window of the container.
class PaintedDrag : public GridTest {
protected:
    PaintedDrag()
    {
        MemoryBag bag;
        bag.WriteProperty("Rows", 100);
        bag.WriteProperty("Cols", 20);
        bag.WriteProperty("FixedRows", 1);
        bag.WriteProperty("FixedCols", 1);
        bag.WriteProperty("BackColorSel", 0x0000AA);
        control.ReadSettings(bag);
        control.Load();
        control.funnel.ClientSizeChanged();
    }
    bool IsPainted(int x, int y) { return host->Pixel(x, y) == 0x0000AA; }

    Control control { *host, handlers };
};

TEST_F(PaintedDrag, IsSeenBeforeAnythingIsSelected)
{
    control.selection.PressKind = SelectionKind::Cells;
    control.selection.Anchor = { 2, 1 };
    control.selection.End = { 1, 2 };
    control.selection.DragBetweenCorners();
    control.selection.BeginDrag();
    control.funnel.RepaintGrid();
    EXPECT_TRUE(IsPainted(40, 23));
    EXPECT_TRUE(IsPainted(160, 44));
    EXPECT_FALSE(IsPainted(40, 65));
    EXPECT_FALSE(IsPainted(280, 23));
    EXPECT_FALSE(IsPainted(40, 5)) << "fixed";
    EXPECT_FALSE(IsPainted(5, 23)) << "fixed";
    EXPECT_EQ(control.selection.Ranges().Count(), 0);
}

TEST_F(PaintedDrag, ReachesTheLastLinesOfThePaint)
{
    control.selection.PressKind = SelectionKind::Rows;
    control.selection.DragRowsToPaintedEnd(3);
    control.selection.DragColsToPaintedEnd(2);
    control.selection.BeginDrag();
    control.funnel.RepaintGrid();
    EXPECT_EQ(control.selection.DragRows().last, control.paint.PaintLastRow());
    EXPECT_EQ(control.selection.DragCols().last, control.paint.PaintLastCol());
    EXPECT_GT(control.paint.PaintLastRow(), 15);
    EXPECT_FALSE(IsPainted(40, 44));
    EXPECT_TRUE(IsPainted(40, 65));
    EXPECT_TRUE(IsPainted(40, control.layout.ClientHeight() - 5));
    control.scroll.SetFirstRow(50);
    control.funnel.RepaintGrid();
    EXPECT_EQ(control.selection.DragRows().last, control.paint.PaintLastRow());
    EXPECT_GT(control.paint.PaintLastRow(), 65);
}

} // namespace
} // namespace vornix
