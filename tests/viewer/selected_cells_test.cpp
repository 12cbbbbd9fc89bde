#include "selected_cells.h"

#include "present.h"

#include "vornix/headless_container.h"

#include <gmock/gmock.h>

using namespace vornix;
using namespace vornix::viewer;
using testing::ElementsAre;

namespace {

Table Orders()
{
    Table table;
    table.Columns()
        = { { u"city" }, { u"paid", ColumnKind::Boolean, u"yes", u"no" }, { u"done", ColumnKind::Boolean } };
    for (const char16_t* city : { u"Oslo", u"Roma", u"Bern" })
        table.AppendRow(std::vector<Field> { { city }, { city[0] == u'R' ? u"0" : u"-1" }, { u"-1" } });
    return table;
}

class Desk {
public:
    Desk()
    {
        PresentTable(grid, container.WindowDevice(), container.Colors(), table);
        grid.SetCellSelection(true);
        grid.SetSelectMode(vxBoth);
    }

    HeadlessContainer container;
    Vornix& grid = container.Grid();
    const Table table = Orders();
};

} // namespace

TEST(SelectedCells, AreTheCurrentOneWithoutASelection)
{
    Desk desk;
    EXPECT_TRUE(SelectedCellsOf(desk.grid).IsEmpty()) << "there is none yet";
    desk.grid.CurrentPos(1, 2);
    const SelectedCells cells = SelectedCellsOf(desk.grid);
    EXPECT_THAT(cells.Rows, ElementsAre(1));
    EXPECT_THAT(cells.Cols, ElementsAre(2));
    desk.grid.CurrentPos(-1, 2);
    EXPECT_TRUE(SelectedCellsOf(desk.grid).IsEmpty()) << "a title";
    desk.grid.CurrentPos(1, -1);
    EXPECT_TRUE(SelectedCellsOf(desk.grid).IsEmpty()) << "a row's number";
}

TEST(SelectedCells, AreARectangle)
{
    Desk desk;
    desk.grid.CurrentPos(2, 2);
    desk.grid.SetSelectedCells(0, 1, 1, 2);
    const SelectedCells cells = SelectedCellsOf(desk.grid);
    EXPECT_THAT(cells.Rows, ElementsAre(0, 1));
    EXPECT_THAT(cells.Cols, ElementsAre(1, 2));
}

TEST(SelectedCells, AreWholeLines)
{
    Desk desk;
    desk.grid.SetRowSelected(0, true);
    desk.grid.SetRowSelected(2, true);
    SelectedCells cells = SelectedCellsOf(desk.grid);
    EXPECT_THAT(cells.Rows, ElementsAre(0, 2));
    EXPECT_THAT(cells.Cols, ElementsAre(0, 1, 2));
    desk.grid.SetColSelected(1, true);
    cells = SelectedCellsOf(desk.grid);
    EXPECT_THAT(cells.Rows, ElementsAre(0, 1, 2));
    EXPECT_THAT(cells.Cols, ElementsAre(1));
}

TEST(SelectedCells, GoNoFurtherThanTheTable)
{
    Desk desk;
    desk.grid.CurrentPos(1, 1);
    desk.grid.SetSelectedCells(2, 1, 9, 9);
    const SelectedCells cells = SelectedCellsOf(desk.grid);
    EXPECT_THAT(cells.Rows, ElementsAre(2));
    EXPECT_THAT(cells.Cols, ElementsAre(1, 2));
    desk.grid.SetSelectedCells(7, 7, 8, 8);
    EXPECT_THAT(SelectedCellsOf(desk.grid).Rows, ElementsAre(1)) << "the current one";
}

TEST(SelectedRows, AreWholeOnesOrThoseOfARectangle)
{
    Desk desk;
    EXPECT_THAT(SelectedRowsOf(desk.grid), ElementsAre());
    desk.grid.CurrentPos(2, 1);
    EXPECT_THAT(SelectedRowsOf(desk.grid), ElementsAre(2));
    desk.grid.SetColSelected(0, true);
    EXPECT_THAT(SelectedRowsOf(desk.grid), ElementsAre(2)) << "columns are no rows";
    desk.grid.SetColSelected(0, false);
    desk.grid.SetSelectedCells(0, 0, 1, 0);
    EXPECT_THAT(SelectedRowsOf(desk.grid), ElementsAre(0, 1));
    desk.grid.SetRowSelected(2, true);
    EXPECT_THAT(SelectedRowsOf(desk.grid), ElementsAre(2));
    desk.grid.SetRowSelected(2, false);
    desk.grid.CurrentPos(-1, 1);
    EXPECT_THAT(SelectedRowsOf(desk.grid), ElementsAre()) << "a title";
}

TEST(SelectedCells, ReadAsTheirSourceWritesThem)
{
    Desk desk;
    const TextBlock block = TextsOf(desk.grid, desk.table.Columns(), { { 0, 1 }, { 0, 1, 2 } });
    EXPECT_EQ(block, (TextBlock { { u"Oslo", u"yes", u"true" }, { u"Roma", u"no", u"true" } }));
}
