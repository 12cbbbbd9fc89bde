// What of the selection is seen.
#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr ColorRef Ground = 0x0000AA;
constexpr ColorRef Ink = 0x00BB00;

class SelectedLook : public GridTest {
protected:
    SelectedLook()
    {
        Table(4, 3, 1, 1);
        Grid().SetBackColorSel(Ground);
        Grid().SetForeColorSel(Ink);
    }

    // By public indices; those of the filler lines lie behind the last ones.
    int Left(int Col) const { return Col < 0 ? 0 : 30 + 120 * Col; }
    int Top(int Row) const { return 21 * (Row + 1); }
    ColorRef GroundOf(int Row, int Col) { return host->Pixel(Left(Col) + 2, Top(Row) + 1); }
    int PixelsOf(ColorRef color, int Row, int Col)
    {
        int found = 0;
        for (int y = Top(Row); y < Top(Row + 1); ++y) {
            for (int x = Left(Col); x < Left(Col + 1); ++x)
                found += host->Pixel(x, y) == color ? 1 : 0;
        }
        return found;
    }
    // Cells and fillers whose ground is that of the selection.
    std::vector<CellPlace> Seen()
    {
        return CellsWhere(Grid(), [&](CellPlace cell) { return GroundOf(cell.Row, cell.Col) == Ground; });
    }
};

TEST_F(SelectedLook, RectanglesAreSeenWhereTheyAre)
{
    Grid().SetSelectedCells(1, 0, 2, 1);
    EXPECT_THAT(Seen(), ElementsAre(CellPlace { 1, 0 }, CellPlace { 1, 1 }, CellPlace { 2, 0 }, CellPlace { 2, 1 }));
    Grid().DeselectAll();
    EXPECT_THAT(Seen(), IsEmpty());
}

// Only keys that extend a selection from a fixed cell draw such a rectangle.
TEST_F(SelectedLook, ARectangleDrawnOverFixedCellsIsSeenBehindThem)
{
    constexpr i16 right = 39;
    constexpr i16 down = 40;
    Grid().SetCellSelection(true);
    Grid().CurrentPos(0, 0);
    host->KeyDown(right); // selecting by keys is for cells from now on
    Grid().CurrentPos(-1, -1);
    host->KeyDown(right);
    for (const i16 code : { down, down, right })
        host->KeyDown(code, 1);
    EXPECT_EQ(Grid().SelectCountCell(), 6);
    EXPECT_FALSE(Grid().CellSelected(-1, 0));
    EXPECT_FALSE(Grid().CellSelected(-1, 1));
    EXPECT_TRUE(Grid().CellSelected(0, 0));
    EXPECT_TRUE(Grid().CellSelected(1, 1));
    EXPECT_THAT(Seen(), ElementsAre(CellPlace { 0, 0 }, CellPlace { 0, 1 }, CellPlace { 1, 0 }, CellPlace { 1, 1 }));
}

TEST_F(SelectedLook, LinesReachIntoTheFillersButNotIntoFixedCells)
{
    Grid().SetRowSelected(2, true);
    EXPECT_THAT(Seen(), ElementsAre(CellPlace { 2, 0 }, CellPlace { 2, 1 }, CellPlace { 2, 2 }, CellPlace { 2, 3 }));
    Grid().SetColSelected(1, true);
    EXPECT_THAT(Seen(),
        ElementsAre(
            CellPlace { 0, 1 }, CellPlace { 1, 1 }, CellPlace { 2, 1 }, CellPlace { 3, 1 }, CellPlace { 4, 1 }));
}

TEST_F(SelectedLook, LinesSkipCellsThatSpanAcrossThem)
{
    Grid().SetColSpan(1, 0, 2);
    Grid().SetRowSpan(2, 2, 2);
    Grid().SetColSelected(0, true);
    EXPECT_THAT(Seen(), ElementsAre(CellPlace { 0, 0 }, CellPlace { 2, 0 }, CellPlace { 3, 0 }, CellPlace { 4, 0 }));
    Grid().SetRowsSelected(1, 2, true);
    EXPECT_THAT(Seen(),
        ElementsAre(CellPlace { 1, 0 }, CellPlace { 1, 1 }, CellPlace { 1, 2 }, CellPlace { 1, 3 }, CellPlace { 2, 0 },
            CellPlace { 2, 1 }, CellPlace { 2, 3 }))
        << "a cell that is wider is one of its row";
}

TEST_F(SelectedLook, ASpanIsSeenAsSelectedWithItsParent)
{
    Grid().SetColSpan(1, 0, 2);
    Grid().SetSelectedCells(1, 1, 1, 1);
    EXPECT_THAT(Seen(), IsEmpty());
    Grid().SetSelectedCells(1, 0, 1, 0);
    EXPECT_THAT(Seen(), ElementsAre(CellPlace { 1, 0 }, CellPlace { 1, 1 }));
}

TEST_F(SelectedLook, GroundAndTextTakeTheColoursOfTheSelectionWhateverTheirOwn)
{
    Grid().SetCellBackColor(1, 0, 0xFFFF00);
    Grid().SetCellForeColor(1, 0, 0x800000);
    Grid().SetCellFontBold(1, 0, true);
    Grid().SetCellFontSize(1, 0, 12);
    Grid().SetText(1, 0, u"HHHH");
    EXPECT_GT(PixelsOf(0x800000, 1, 0), 0);
    EXPECT_EQ(PixelsOf(Ink, 1, 0), 0);
    Grid().SetRowSelected(1, true);
    EXPECT_EQ(PixelsOf(0x800000, 1, 0), 0);
    EXPECT_GT(PixelsOf(Ink, 1, 0), 0);
    EXPECT_EQ(PixelsOf(0xFFFF00, 1, 0), 0);
    EXPECT_EQ(GroundOf(1, 0), Ground);
    Grid().SetRowSelected(1, false);
    EXPECT_GT(PixelsOf(0x800000, 1, 0), 0);
    EXPECT_EQ(GroundOf(1, 0), 0xFFFF00u);
}

TEST_F(SelectedLook, AlternateColoursAndGradientsGiveWay)
{
    Grid().SetAltBkColor(0x123456);
    Grid().SetAltColorEnabled(true);
    Grid().SetCellGradientMode(1, 1, vxGradientLR);
    Grid().SetRowSelected(1, true);
    EXPECT_EQ(GroundOf(1, 0), Ground);
    EXPECT_EQ(GroundOf(1, 1), Ground);
    EXPECT_EQ(GroundOf(3, 0), 0x123456u);
}

TEST_F(SelectedLook, BelowFullOpacityTheCellShowsThrough)
{
    Grid().SetCellBackColor(1, 0, 0xFFFFFF);
    Grid().SetOpacity(50);
    Grid().SetRowSelected(1, true);
    const ColorRef seen = GroundOf(1, 0);
    EXPECT_NEAR(static_cast<int>(seen >> 16 & 0xFF), 0x80, 2);
    EXPECT_NEAR(static_cast<int>(seen >> 8 & 0xFF), 0x80, 2);
    EXPECT_NEAR(static_cast<int>(seen & 0xFF), (0xAA + 0xFF) / 2, 2);
}

TEST_F(SelectedLook, ChangesWithTheGateClosedAreSeenWhenItOpens)
{
    Grid().SetRedraw(false);
    Grid().SetRowSelected(1, true);
    EXPECT_THAT(Seen(), IsEmpty());
    Grid().SetRedraw(true);
    EXPECT_EQ(Seen().size(), 4u);
}

TEST_F(SelectedLook, AHandlerThatSelectsInsideThePaintIsSeenAtTheNextOne)
{
    int drawn = 0;
    handlers.OnDrawCell = [&](i16, i16, Hdc&, bool&) {
        if (drawn++ != 0)
            return;
        Grid().SetSelectedCells(0, 0, 0, 0);
        Grid().SetRowSelected(3, true);
        EXPECT_TRUE(Grid().InvertSelect());
        Grid().SetRowsSelected(1, 2, false);
    };
    Grid().SetCellStyle(3, 2, vxCustomDraw);
    EXPECT_GT(drawn, 0);
    Grid().Refresh();
    EXPECT_TRUE(Grid().RowSelected(0));
    EXPECT_EQ(Grid().SelectCountRow(), 1);
    EXPECT_THAT(Seen(), ElementsAre(CellPlace { 0, 0 }, CellPlace { 0, 1 }, CellPlace { 0, 2 }, CellPlace { 0, 3 }));
}

} // namespace
} // namespace vornix
