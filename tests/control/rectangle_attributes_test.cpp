#include "control/grid_fixture.h"

namespace vornix {
namespace {

using testing::IsEmpty;

class RectangleAttributes : public GridTest {
protected:
    RectangleAttributes() { Table(4, 4, 1, 1); }

    std::vector<CellPlace> Block(i16 top, i16 left, i16 bottom, i16 right)
    {
        return CellsWhere(Grid(), [=](CellPlace cell) {
            return cell.Row >= top && cell.Row <= bottom && cell.Col >= left && cell.Col <= right;
        });
    }
};

TEST_F(RectangleAttributes, CornersMayComeInAnyOrder)
{
    const i16 corners[][4] = { { 0, 1, 2, 3 }, { 2, 3, 0, 1 }, { 0, 3, 2, 1 }, { 2, 1, 0, 3 } };
    OleColor color = 1;
    for (const auto& c : corners) {
        ++color;
        EXPECT_EQ(CellsChangedBy(Grid(), [&] { Grid().SetCellsBackColor(c[0], c[1], c[2], c[3], color); }),
            Block(0, 1, 2, 3));
        EXPECT_EQ(CellsChangedBy(Grid(), [&] { Grid().SetCellsForeColor(c[0], c[1], c[2], c[3], color); }),
            Block(0, 1, 2, 3));
    }
}

TEST_F(RectangleAttributes, FixedCellsAndFillersAreWrittenToo)
{
    EXPECT_EQ(CellsChangedBy(Grid(), [&] { Grid().SetCellsForeColor(-1, -1, 4, 4, 0x010203); }), AllCells(Grid()));
}

TEST_F(RectangleAttributes, EachColumnIsRefreshed)
{
    // Painted rows: a fixed one, four, and the filler.
    Grid().SetCellsBackColor(1, 0, 1, 2, 0x0000FF);
    EXPECT_EQ(host->Refreshes(), 3 * 6);
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_THAT(Reported(), IsEmpty());
    Grid().SetRedraw(false);
    host->ClearLog();
    Grid().SetCellsBackColor(1, 0, 1, 2, 0x00FF00);
    EXPECT_EQ(host->Refreshes(), 0);
}

TEST_F(RectangleAttributes, BackColorLeavesShadesAndGradientAlone)
{
    Grid().SetCellGradientMode(1, 1, vxGradientLR);
    Grid().SetCellGradientEnd(1, 1, 0x0000FF);
    const OleColor border = Grid().CellBorderColor(1, 1);
    const ColorRef start = host->Pixel(160, 50);
    const ColorRef end = host->Pixel(260, 50);
    Grid().SetCellsBackColor(1, 1, 1, 1, 0x00FF00);
    EXPECT_EQ(Grid().CellBackColor(1, 1), 0x00FF00u);
    EXPECT_EQ(Grid().CellBorderColor(1, 1), border);
    EXPECT_EQ(host->Pixel(160, 50), start);
    EXPECT_EQ(host->Pixel(260, 50), end);
}

TEST_F(RectangleAttributes, FontWritesItsSevenValues)
{
    EXPECT_EQ(
        CellsChangedBy(Grid(), [&] { Grid().SetCellsFont(1, 1, 2, 2, MakeFont(u"Serif", 11)); }), Block(1, 1, 2, 2));
    EXPECT_EQ(Grid().CellFontName(2, 2), u"Serif");
    EXPECT_EQ(Grid().CellFontSize(2, 2), 11);
    EXPECT_TRUE(Grid().CellFontStrikeThrough(2, 2));
    EXPECT_EQ(ErrorOf([&] { Grid().SetCellsFont(1, 1, 2, 2, nullptr); }), 5);
}

TEST_F(RectangleAttributes, OutsideTheStoreIsError9)
{
    EXPECT_EQ(ErrorOf([&] { Grid().SetCellsBackColor(0, 0, 5, 0, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetCellsBackColor(0, 0, 0, 5, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetCellsBackColor(-2, 0, 0, 0, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetCellsBackColor(0, -2, 0, 0, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Grid().SetCellsForeColor(0, 0, 32767, 0, 1); }), 6);
}

} // namespace
} // namespace vornix
