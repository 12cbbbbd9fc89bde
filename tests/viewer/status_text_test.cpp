#include "status_text.h"

#include "present.h"
#include "vornix/headless_container.h"

#include <gtest/gtest.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

Table Prices(int rows = 2000)
{
    Table table;
    table.SetName(u"prices");
    table.Columns() = { { u"price", ColumnKind::Text }, { u"city", ColumnKind::Text }, { u"  ", ColumnKind::Text },
        { u"two\nlines", ColumnKind::Text } };
    for (int row = 0; row < rows; ++row) {
        const std::vector<Field> fields { { u"12.00" }, { u"Oslo" }, { u"x" }, { u"y" } };
        table.AppendRow(fields);
    }
    table.SetTotalRows(static_cast<std::uint64_t>(rows));
    return table;
}

struct Shown {
    explicit Shown(const Table& table)
    {
        PresentTable(grid, container.WindowDevice(), {}, table);
        container.Paint();
    }

    HeadlessContainer container;
    Vornix& grid = container.Grid();
};

} // namespace

TEST(CurrentCellText, NamesTheColumnAndTheRow)
{
    Shown shown(Prices());
    EXPECT_EQ(CurrentCellText(shown.grid), "") << "there is no current cell yet";
    shown.grid.CurrentPos(11, 0);
    EXPECT_EQ(CurrentCellText(shown.grid), "price, row 12");
    shown.grid.CurrentPos(1599, 1);
    EXPECT_EQ(CurrentCellText(shown.grid), "city, row 1600") << "as the row is numbered";
}

TEST(CurrentCellText, NamesHeaders)
{
    Shown shown(Prices());
    shown.grid.CurrentPos(-1, 1);
    EXPECT_EQ(CurrentCellText(shown.grid), "city, header");
    shown.grid.CurrentPos(4, -1);
    EXPECT_EQ(CurrentCellText(shown.grid), "Row 5");
    shown.grid.CurrentPos(-1, -1);
    EXPECT_EQ(CurrentCellText(shown.grid), "Header");
    shown.grid.CurrentPos(-2, 0);
    EXPECT_EQ(CurrentCellText(shown.grid), "Title");
}

TEST(CurrentCellText, ShowsTitlesOnOneShortLine)
{
    Table table = Prices();
    table.Columns()[0].name = std::u16string(100, u'a');
    table.Columns()[1].name = std::u16string(38, u'a') + u"\xD83C\xDF81" + std::u16string(20, u'b');
    Shown shown(table);
    shown.grid.CurrentPos(0, 0);
    EXPECT_EQ(CurrentCellText(shown.grid), std::string(39, 'a') + "…, row 1");
    shown.grid.CurrentPos(0, 1);
    EXPECT_EQ(CurrentCellText(shown.grid), std::string(38, 'a') + "…, row 1") << "a character is not cut in two";
    shown.grid.CurrentPos(0, 2);
    EXPECT_EQ(CurrentCellText(shown.grid), "Column 3, row 1") << "a blank title is none";
    shown.grid.CurrentPos(0, 3);
    EXPECT_EQ(CurrentCellText(shown.grid), "two lines, row 1");
}

TEST(CurrentCellText, IsEmptyForATableWithoutRows)
{
    Shown shown(Prices(0));
    shown.grid.CurrentPos(0, 0);
    EXPECT_EQ(CurrentCellText(shown.grid), "");
    EXPECT_EQ(SelectionText(shown.grid), "");
}

TEST(SelectionText, CountsLines)
{
    Shown shown(Prices());
    EXPECT_EQ(SelectionText(shown.grid), "");
    shown.grid.SetRowSelected(3, true);
    EXPECT_EQ(SelectionText(shown.grid), "1 row selected");
    shown.grid.SetRowsSelected(10, 1509, true);
    EXPECT_EQ(SelectionText(shown.grid), "1,501 rows selected");
    shown.grid.SetColSelected(0, true);
    shown.grid.SetColSelected(2, true);
    EXPECT_EQ(SelectionText(shown.grid), "2 columns selected");
    shown.grid.DeselectAll();
    EXPECT_EQ(SelectionText(shown.grid), "");
}

TEST(SelectionText, TellsTheSizeOfARectangle)
{
    Shown shown(Prices());
    shown.grid.SetSelectedCells(2, 1, 5, 2);
    EXPECT_EQ(SelectionText(shown.grid), "4 × 2 cells selected");
    shown.grid.SetSelectedCells(0, 0, 1999, 0);
    EXPECT_EQ(SelectionText(shown.grid), "2,000 × 1 cells selected");
    shown.grid.SetSelectedCells(7, 3, 7, 3);
    EXPECT_EQ(SelectionText(shown.grid), "1 cell selected");
    shown.grid.CurrentPos(7, 3);
    EXPECT_EQ(SelectionText(shown.grid), "") << "that is told of the current cell";
    shown.grid.SetSelectedCells(5, 2, 2, 1);
    EXPECT_EQ(SelectionText(shown.grid), "") << "with its corners the wrong way round it holds no cell";
}
