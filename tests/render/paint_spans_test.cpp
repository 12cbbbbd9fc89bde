#include "render/paint_table.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

TEST(PaintSpansTest, TheParentPaintsTheWholeSpan)
{
    FakePaintTable table({ 150, 60 }, 0, 3, 0, 3);
    table.ColorEveryCell();
    table.Span(0, 1, 2, 2);
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,0 @ 0,0,50,20", "0,1 @ 50,0,150,40", "1,0 @ 0,20,50,40", "2,0 @ 0,40,50,60",
            "2,1 @ 50,40,100,60", "2,2 @ 100,40,150,60"));
}

TEST(PaintSpansTest, ASpanScrolledOutAboveShowsFromItsFirstVisibleRowComposedAtFullSize)
{
    FakePaintTable table({ 100, 70 }, 0, 6, 0, 2);
    table.ColorEveryCell();
    table.Span(0, 1, 4, 1);
    table.scroll.SetFirstRow(2);
    // Composed 80 pixels high, the upper 40 cut away; row 3 leaves it to row 2.
    EXPECT_THAT(table.Repainted(),
        ElementsAre("2,0 @ 0,0,50,20", "0,1 @ 50,0,100,80 from 0,40", "3,0 @ 0,20,50,40", "4,0 @ 0,40,50,60",
            "4,1 @ 50,40,100,60", "5,0 @ 0,60,50,80", "5,1 @ 50,60,100,80"));
    EXPECT_EQ(table.screen->Count("CreateCompatible 50x80 at 50,-40"), 1);
}

TEST(PaintSpansTest, ASpanScrolledOutAtTheLeftShowsFromItsFirstVisibleColumn)
{
    FakePaintTable table({ 150, 20 }, 0, 1, 0, 6);
    table.ColorEveryCell();
    table.Span(0, 0, 1, 4);
    table.scroll.SetFirstCol(3);
    EXPECT_THAT(
        table.Repainted(), ElementsAre("0,0 @ 0,0,200,20 from 150,0", "0,4 @ 50,0,100,20", "0,5 @ 100,0,150,20"));
}

TEST(PaintSpansTest, ASpanScrolledOutAtTheLeftTakesTheSmoothOffsetToo)
{
    FakePaintTable table({ 150, 20 }, 0, 1, 0, 6);
    table.ColorEveryCell();
    table.Span(0, 0, 1, 4);
    table.scroll.SetFirstCol(3);
    table.layout.SetSmoothOffset(-7);
    EXPECT_EQ(table.Repainted().front(), "0,0 @ 0,0,200,20 from 157,0");
}

TEST(PaintSpansTest, ASpanClippedAtBothSidesIsPaintedFromItsFirstVisibleRowAndColumnOnly)
{
    FakePaintTable table({ 150, 60 }, 0, 6, 0, 6);
    table.ColorEveryCell();
    table.Span(0, 0, 3, 3);
    table.scroll.SetFirstRow(1);
    table.scroll.SetFirstCol(1);
    const std::vector<std::string> cells = table.Repainted();
    // Row 1 (both visible columns of the span) and column 1 of row 2; the cell at 2,2 paints nothing.
    EXPECT_EQ(std::count(cells.begin(), cells.end(), "0,0 @ 0,0,150,60 from 50,20"), 3);
    EXPECT_THAT(cells, Contains("1,3 @ 100,0,150,20"));
}

TEST(PaintSpansTest, ASpanWithAHiddenParentRowPaintsFromItsFirstShowingRow)
{
    FakePaintTable table({ 50, 90 }, 0, 6, 0, 1);
    table.ColorEveryCell();
    table.Span(1, 0, 3, 1);
    HiddenLines(table.store).HideRow(1);
    EXPECT_THAT(
        table.Repainted(), ElementsAre("0,0 @ 0,0,50,20", "1,0 @ 0,20,50,60", "4,0 @ 0,60,50,80", "5,0 @ 0,80,50,100"));
}

TEST(PaintSpansTest, ASpanWhoseParentIsTheFirstRowPaintsFromTheNextRowWhenThatIsHidden)
{
    FakePaintTable table({ 50, 60 }, 0, 4, 0, 1);
    table.ColorEveryCell();
    table.Span(0, 0, 3, 1);
    HiddenLines(table.store).HideRow(0);
    const std::vector<std::string> cells = table.Repainted();
    // The first row stays in the walk and paints the span itself; the row behind it does so again at the same place.
    EXPECT_THAT(cells, Contains("0,0 @ 0,0,50,40"));
    EXPECT_THAT(cells, Contains("3,0 @ 0,40,50,60"));
    EXPECT_THAT(cells, Each(Not(StartsWith("1,0"))));
}

TEST(PaintSpansTest, HiddenRowsInsideASpanAddNothing)
{
    FakePaintTable table({ 50, 60 }, 0, 4, 0, 1);
    table.ColorEveryCell();
    table.Span(0, 0, 3, 1);
    HiddenLines(table.store).HideRow(1);
    EXPECT_THAT(table.Repainted(), ElementsAre("0,0 @ 0,0,50,40", "3,0 @ 0,40,50,60"));
}

TEST(PaintSpansTest, CellsAfterAClippedSpanStandWhereTheyBelong)
{
    FakePaintTable table({ 150, 60 }, 0, 4, 0, 3);
    table.ColorEveryCell();
    table.Span(0, 0, 3, 1);
    table.scroll.SetFirstRow(1);
    // Painting the parent moves the remembered place; the next cell of the row finds its own again.
    EXPECT_THAT(table.Repainted(),
        ElementsAre("0,0 @ 0,0,50,60 from 0,20", "1,1 @ 50,0,100,20", "1,2 @ 100,0,150,20", "0,0 @ 0,0,50,60 from 0,20",
            "2,1 @ 50,20,100,40", "2,2 @ 100,20,150,40", "3,0 @ 0,40,50,60", "3,1 @ 50,40,100,60",
            "3,2 @ 100,40,150,60"));
}

TEST(PaintSpansTest, TheRectangleOfTheCellIsItsVisiblePart)
{
    FakePaintTable table({ 50, 60 }, 0, 6, 0, 1);
    table.Span(0, 0, 4, 1);
    table.scroll.SetFirstRow(2);
    table.pipeline.RepaintGrid();
    table.pipeline.RefreshOneCell(2, 0);
    EXPECT_EQ(table.pipeline.CellRect(), (Rect { 0, 0, 50, 40 }));
}

} // namespace
} // namespace vornix
