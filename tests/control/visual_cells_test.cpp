#include "control/grid_fixture.h"

namespace vornix {
namespace {

class VisualCells : public GridTest {
protected:
    VisualCells()
    {
        Table(4, 3, 1, 1);
        Grid().SetCellBackColor(0, 0, 0x0000FF);
        Grid().SetCellStyle(0, 0, vxCellBox);
        Grid().SetText(0, 0, u"text");
        Grid().SetKey(0, 0, u"key");
        host->ClearLog();
    }
};

TEST_F(VisualCells, ALookIsParkedAndGivenBack)
{
    Grid().StoreVisualCell(0, 0, 0);
    Grid().SetCellBackColor(0, 0, 0x00FF00);
    Grid().SetText(0, 0, u"new");
    host->ClearLog();
    Grid().RestoreVisualCell(0);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x0000FFu);
    EXPECT_EQ(Grid().CellStyle(0, 0), vxCellBox);
    EXPECT_EQ(Grid().Text(0, 0), u"new") << "only the look is kept";
    EXPECT_EQ(host->Refreshes(), 1);
}

TEST_F(VisualCells, ALookGoesToAnotherCellAndStaysParked)
{
    Grid().StoreVisualCell(5, 0, 0);
    Grid().RestoreVisualToCell(5, 2, 1);
    EXPECT_EQ(Grid().CellBackColor(2, 1), 0x0000FFu);
    EXPECT_EQ(Grid().Text(2, 1), u"");
    Grid().SetCellBackColor(0, 0, 0);
    Grid().RestoreVisualCell(5);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x0000FFu);
}

TEST_F(VisualCells, PlacesAreInternalAndDoNotFollowTheTable)
{
    Grid().StoreVisualCell(0, 0, 0);
    Grid().SetFixedRows(2);
    Grid().RestoreVisualCell(0);
    // What was internal row 1 is now the inner fixed row.
    EXPECT_EQ(Grid().CellBackColor(-1, 0), 0x0000FFu);
}

TEST_F(VisualCells, EntriesBeyondTheEndGiveNothingBack)
{
    Grid().RestoreVisualCell(1);
    Grid().RestoreVisualToCell(1, 1, 1);
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_EQ(Grid().CellBackColor(1, 1), 0x80000005u);
}

TEST_F(VisualCells, AnEntryNeverWrittenBlanksTheLook)
{
    Grid().StoreVisualCell(3, 0, 0);
    Grid().RestoreVisualToCell(2, 1, 1);
    EXPECT_EQ(Grid().CellBackColor(1, 1), 0u);
    EXPECT_EQ(Grid().CellForeColor(1, 1), 0u);
    EXPECT_EQ(Grid().CellFontName(1, 1), u"");
}

TEST_F(VisualCells, ClearingEmptiesTheStore)
{
    Grid().StoreVisualCell(3, 0, 0);
    Grid().ClearVisualCell();
    Grid().SetCellBackColor(0, 0, 0x00FF00);
    Grid().RestoreVisualCell(3);
    EXPECT_EQ(Grid().CellBackColor(0, 0), 0x00FF00u);
}

TEST_F(VisualCells, BadIndicesAreError9)
{
    EXPECT_EQ(ErrorOf([&] { Grid().StoreVisualCell(-1, 0, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().RestoreVisualCell(-1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().RestoreVisualToCell(-1, 0, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().StoreVisualCell(0, 5, 0); }), 9);
    Grid().StoreVisualCell(0, 3, 0);
    EXPECT_EQ(ErrorOf([&] { Grid().RestoreVisualToCell(0, 5, 0); }), 9);
    Grid().SetRows(1);
    EXPECT_EQ(ErrorOf([&] { Grid().RestoreVisualCell(0); }), 9);
}

TEST_F(VisualCells, TheLargestEntryCanBeUsed)
{
    Grid().StoreVisualCell(32767, 0, 0);
    Grid().RestoreVisualToCell(32767, 1, 1);
    EXPECT_EQ(Grid().CellBackColor(1, 1), 0x0000FFu);
}

TEST_F(VisualCells, NothingIsPaintedWhileRedrawIsOff)
{
    Grid().StoreVisualCell(0, 0, 0);
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().RestoreVisualToCell(0, 1, 1);
    EXPECT_EQ(host->Refreshes(), 0);
}

} // namespace
} // namespace vornix
