#include "control/grid_fixture.h"

namespace vornix {
namespace {

class BulkFill : public GridTest { };

// A host fills a large table with Redraw off and sees it once.
TEST_F(BulkFill, WithRedrawOffPaintsOnceAtTheEnd)
{
    host->ClearLog();
    Grid().SetRedraw(false);
    Grid().SetFixedRows(1);
    Grid().SetFixedCols(1);
    Grid().SetCols(8);
    Grid().SetRows(5000);
    for (i16 col = 0; col < 8; ++col) {
        Grid().SetText(-1, col, u"Head");
        Grid().SetColWidth(col, 60);
        Grid().SetColTextAlign(col, col % 2 ? vxTxtRight : vxTxtDefault);
    }
    for (i16 row = 0; row < 5000; ++row) {
        for (i16 col = 0; col < 8; ++col)
            Grid().SetText(row, col, u"Value");
        if (row % 2)
            Grid().SetRowBackColor(row, 0xF0FFF0);
    }
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_EQ(host->Refreshes(), 0);
    Grid().SetRedraw(true);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(Grid().Text(4999, 7), u"Value");
    EXPECT_EQ(Grid().CellBackColor(4999, 7), 0xF0FFF0u);
    EXPECT_EQ(Grid().TextAlignment(4998, 3), vxTxtRight);
    EXPECT_EQ(host->Pixel(30 + 50, 21 + 21 + 4), 0xF0FFF0u);
    EXPECT_TRUE(Grid().IsVisibleRow(10));
    EXPECT_FALSE(Grid().IsVisibleRow(100));
}

// The host leaves Redraw on and pays one cell paint a write, but only for cells in range.
TEST_F(BulkFill, WithRedrawOnPaintsEachCellInRange)
{
    Table(5000, 3);
    for (i16 row = 0; row < 5000; ++row)
        Grid().SetText(row, 0, u"Value");
    EXPECT_EQ(host->Repaints(), 0);
    EXPECT_GT(host->Refreshes(), 20);
    EXPECT_LT(host->Refreshes(), 30);
}

TEST_F(BulkFill, ScrollingShowsWhatWasFilledFarDown)
{
    Table(5000, 3);
    Grid().SetRedraw(false);
    for (i16 row = 0; row < 5000; ++row)
        Grid().SetCellBackColor(row, 0, static_cast<OleColor>(row));
    Grid().SetRedraw(true);
    Grid().SetFirstRow(4000);
    EXPECT_EQ(host->Pixel(60, 2), 4000u);
    EXPECT_EQ(host->Pixel(60, 23), 4001u);
    Grid().SetFirstRow(4999);
    EXPECT_EQ(Grid().LastRow(), 4999);
    EXPECT_EQ(host->Pixel(60, 2), 4978u);
}

} // namespace
} // namespace vornix
