#include "layout/scroll_model.h"

#include "layout/table.h"

namespace vornix {
namespace {

TEST(ScrollModel, ClampKeepsAFirstLineThatIsStillThere)
{
    Table table(1, 5, 1, 5);
    table.scroll.SetFirstRow(5);
    table.scroll.SetFirstCol(3);
    table.scroll.ClampVisible();
    EXPECT_EQ(table.scroll.FirstRow(), 5);
    EXPECT_EQ(table.scroll.FirstCol(), 3);
}

TEST(ScrollModel, ClampBringsAFirstLineBackToTheLastRealOne)
{
    Table table(1, 5, 2, 5);
    table.scroll.SetFirstRow(6);
    table.scroll.SetFirstCol(30);
    table.scroll.ClampVisible();
    EXPECT_EQ(table.scroll.FirstRow(), 5);
    EXPECT_EQ(table.scroll.FirstCol(), 6);
}

TEST(ScrollModel, ClampBringsALastLineBackToTheFiller)
{
    Table table(1, 5, 2, 5);
    table.scroll.SetLastRow(40);
    table.scroll.SetLastCol(7);
    table.scroll.ClampVisible();
    EXPECT_EQ(table.scroll.LastRow(), 6);
    EXPECT_EQ(table.scroll.LastCol(), 7);
}

TEST(ScrollModel, ClampNeverGoesIntoTheFixedLines)
{
    Table table(2, 0, 3, 0);
    table.scroll.SetFirstRow(4);
    table.scroll.SetFirstCol(4);
    table.scroll.ClampVisible();
    EXPECT_EQ(table.scroll.FirstRow(), 2);
    EXPECT_EQ(table.scroll.FirstCol(), 3);
}

} // namespace
} // namespace vornix
