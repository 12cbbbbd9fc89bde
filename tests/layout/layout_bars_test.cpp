// Which scroll bars are needed.
#include "layout/table.h"

namespace vornix {
namespace {

constexpr int window = 100;
constexpr int bar = 17;

struct BarCase {
    const char* name;
    int tableWidth;
    int tableHeight;
    i32 scrollH;
    i32 scrollV;
    bool wantsH;
    bool wantsV;
};

void PrintTo(const BarCase& value, std::ostream* out)
{
    *out << value.name;
}

class ScrollBarNeed : public testing::TestWithParam<BarCase> { };

// One row and one column of the table's size, in a window of 100 by 100.
TEST_P(ScrollBarNeed, FollowsTheRoomLeft)
{
    const BarCase& need = GetParam();
    Table table(0, 1, 0, 1);
    table.Widths({ need.tableWidth });
    table.Heights({ need.tableHeight });
    table.Window(window, window);
    table.layout.Settings.ScrollHBar = need.scrollH;
    table.layout.Settings.ScrollVBar = need.scrollV;
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), need.wantsH ? bar : 0);
    EXPECT_EQ(table.layout.VBarWidth(), need.wantsV ? bar : 0);
}

INSTANTIATE_TEST_SUITE_P(CrossCheck, ScrollBarNeed,
    testing::Values(BarCase { "both_fit", 83, 83, vxScrollSmooth, vxScrollTrack, false, false },
        BarCase { "both_fit_with_no_room_for_bars", 84, 84, vxScrollSmooth, vxScrollTrack, false, false },
        BarCase { "both_fit_to_the_pixel", 100, 100, vxScrollSmooth, vxScrollTrack, false, false },
        BarCase { "too_high", 83, 101, vxScrollSmooth, vxScrollTrack, false, true },
        BarCase { "too_high_and_the_bar_needs_the_other", 84, 101, vxScrollSmooth, vxScrollTrack, true, true },
        BarCase { "too_wide", 101, 83, vxScrollSmooth, vxScrollTrack, true, false },
        BarCase { "too_wide_and_the_bar_needs_the_other", 101, 84, vxScrollSmooth, vxScrollTrack, true, true },
        BarCase { "too_wide_and_too_high", 101, 101, vxScrollSmooth, vxScrollTrack, true, true },
        BarCase { "only_h_allowed", 101, 101, vxScrollTrack, vxNoScrollBar, true, false },
        BarCase { "only_h_allowed_height_full", 101, 100, vxScrollTrack, vxNoScrollBar, true, false },
        BarCase { "only_v_allowed", 101, 101, vxNoScrollBar, vxNormalScroll, false, true },
        BarCase { "only_v_allowed_width_full", 100, 101, vxNoScrollBar, vxNormalScroll, false, true },
        BarCase { "none_allowed", 101, 101, vxNoScrollBar, vxNoScrollBar, false, false },
        BarCase { "normal_bars", 84, 101, vxNormalScroll, vxNormalScroll, true, true }),
    [](const auto& test) { return std::string(test.param.name); });

TEST(ScrollBarNeedEdges, AWindowThatGrowsLosesItsBars)
{
    Table table(0, 1, 0, 1);
    table.Widths({ 150 });
    table.Heights({ 150 });
    table.Window(100, 100);
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), bar);
    table.Window(150, 150);
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), 0);
    EXPECT_EQ(table.layout.VBarWidth(), 0);
}

TEST(ScrollBarNeedEdges, NoColumnsNeedNoBars)
{
    Table table(0, 2, 0, 0);
    table.Window(100, 100);
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), 0);
    EXPECT_EQ(table.layout.VBarWidth(), 0);
}

TEST(ScrollBarNeedEdges, NoRowsNeedNoBars)
{
    Table table(1, 0, 1, 1);
    table.Window(150, 100);
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), 0);
    EXPECT_EQ(table.layout.VBarWidth(), 0);
}

TEST(ScrollBarNeedEdges, FixedRowsHigherThanTheWindowShowABarThatCannotScroll)
{
    Table table(1, 1, 0, 1);
    table.Heights({ 120, 0 });
    table.Widths({ 10 });
    table.Window(100, 100);
    table.Layout();
    EXPECT_EQ(table.layout.VBarWidth(), bar);
    table.layout.Settings.ScrollVBar = vxNoScrollBar;
    table.Layout();
    EXPECT_EQ(table.layout.VBarWidth(), 0);
}

// With no row to scroll, the bar comes from the cross check; that is too late to narrow the percent widths.
TEST(ScrollBarNeedEdges, FixedRowsAloneAskForABarInTheCrossCheck)
{
    Table table(1, 0, 0, 1);
    table.Heights({ 120 });
    table.store.ColumnAt(0).WidthPercent = 100;
    table.layout.RescanPercentActive();
    table.Window(100, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), std::vector<int> { 100 });
    EXPECT_EQ(table.layout.VBarWidth(), bar);
    EXPECT_EQ(table.layout.HBarHeight(), 0);
}

// Fixed columns alone ask for the bar in the first half of the cross check. The second half still looks at the
// height without it, so rows that end under that bar get none.
TEST(ScrollBarNeedEdges, TheSecondTestLooksAtTheBarAsItWasBefore)
{
    Table table(0, 1, 1, 0);
    table.Widths({ 120 });
    table.Heights({ 90 });
    table.Window(100, 100);
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), bar);
    EXPECT_EQ(table.layout.VBarWidth(), 0);
}

TEST(ScrollBarNeedEdges, FrozenColumnsNarrowTheRoom)
{
    Table table(0, 1, 1, 3);
    table.Widths({ 30, 30, 30, 10 });
    table.Window(100, 100);
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), 0);
    table.layout.SetFirstScrollCol(3);
    table.layout.MarkMetricsDirty();
    table.Layout();
    EXPECT_EQ(table.layout.FrozenColsWidth(), 90);
    EXPECT_EQ(table.layout.HBarHeight(), 0);
    table.store.ColumnAt(3).Width = 11;
    table.Layout();
    EXPECT_EQ(table.layout.HBarHeight(), bar);
}

TEST(ScrollBarNeedEdges, HiddenLinesTakeNoRoom)
{
    Table table(0, 3, 0, 3);
    table.Heights({ 60, 60, 40 });
    table.Widths({ 60, 60, 40 });
    table.Window(100, 100);
    HiddenLines(table.store).HideRow(1);
    HiddenLines(table.store).HideCol(1);
    table.Layout();
    EXPECT_EQ(table.layout.VBarWidth(), 0);
    EXPECT_EQ(table.layout.HBarHeight(), 0);
}

TEST(ScrollBarNeedEdges, ScrolledOutLinesCount)
{
    Table table(0, 3, 0, 3);
    table.Heights({ 60, 60, 40 });
    table.Widths({ 60, 60, 40 });
    table.scroll.SetFirstRow(2);
    table.scroll.SetFirstCol(2);
    table.Window(100, 100);
    table.Layout();
    EXPECT_EQ(table.layout.VBarWidth(), bar);
    EXPECT_EQ(table.layout.HBarHeight(), bar);
}

TEST(ScrollBarNeedEdges, AnyNumberOfRowsIsSettledAtTheEdgeOfTheWindow)
{
    Table table(0, 32767, 0, 1); // 688,107 pixels of rows
    table.Window(200, 500);
    table.Layout();
    EXPECT_EQ(table.layout.VBarWidth(), bar);
    EXPECT_EQ(table.layout.HBarHeight(), 0);
}

TEST(ScrollBarNeedEdges, TheSizeOfTheBarsIsASetting)
{
    Table table(0, 50, 0, 50);
    table.layout.Settings.ScrollBarSize = 24;
    table.Window(100, 100);
    table.Layout();
    EXPECT_EQ(table.layout.VBarWidth(), 24);
    EXPECT_EQ(table.layout.HBarHeight(), 24);
}

} // namespace
} // namespace vornix
