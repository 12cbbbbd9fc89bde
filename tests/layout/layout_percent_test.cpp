// Widths in percent of what the other columns leave.
#include "layout/table.h"

namespace vornix {
namespace {

// Percents from column 0 on, in a window without bars; widths after a forced layout.
std::vector<int> WidthsFor(int windowWidth, const std::vector<int>& percents)
{
    Table table(0, 1, 0, static_cast<int>(percents.size()));
    for (std::size_t col = 0; col < percents.size(); ++col)
        table.layout.SetColWidthPercent(static_cast<int>(col), percents[col]);
    table.NoBars();
    table.Window(windowWidth, 100);
    table.Layout(true);
    return table.Widths();
}

using W = std::vector<int>;

TEST(PercentWidths, TiesGoToTheEvenPixelAndTheLastTakesTheRest)
{
    EXPECT_EQ(WidthsFor(101, { 50, 50 }), (W { 50, 51 }));
    EXPECT_EQ(WidthsFor(103, { 50, 50 }), (W { 52, 51 })); // 51.5 goes to 52
    EXPECT_EQ(WidthsFor(102, { 25, 75 }), (W { 26, 76 })); // 25.5 goes to 26
}

TEST(PercentWidths, RoundingErrorsLandOnTheColumnThatCompletesAHundred)
{
    EXPECT_EQ(WidthsFor(100, { 33, 33, 34 }), (W { 33, 33, 34 }));
    EXPECT_EQ(WidthsFor(202, { 33, 33, 34 }), (W { 67, 67, 68 }));
    EXPECT_EQ(WidthsFor(1001, { 10, 10, 10, 10, 10, 10, 10, 10, 10, 10 }),
        (W { 100, 100, 100, 100, 100, 100, 100, 100, 100, 101 }));
}

TEST(PercentWidths, OneColumnOfAHundredTakesAll)
{
    EXPECT_EQ(WidthsFor(321, { 100 }), (W { 321 }));
}

TEST(PercentWidths, PercentsBelowAHundredLeaveTheRest)
{
    EXPECT_EQ(WidthsFor(200, { 30, 30 }), (W { 60, 60 }));
}

TEST(PercentWidths, PercentsThatJumpOverAHundredAreOnlyRounded)
{
    EXPECT_EQ(WidthsFor(101, { 60, 60, 80 }), (W { 61, 61, 81 }));
    EXPECT_EQ(WidthsFor(101, { 150 }), (W { 152 })); // 151.5
}

TEST(PercentWidths, GroupsShareTheSameRoomWhileUsedRunsOn)
{
    // Used is 50 after the first group, 100 before the last column of the second.
    EXPECT_EQ(WidthsFor(100, { 50, 50, 50, 50 }), (W { 50, 50, 50, 0 }));
    EXPECT_EQ(WidthsFor(100, { 100, 100 }), (W { 100, 100 }));
    EXPECT_EQ(WidthsFor(100, { 50, 50, 100 }), (W { 50, 50, 50 }));
    EXPECT_EQ(WidthsFor(100, { 50, 50, 50, 50, 50, 50 }), (W { 50, 50, 50, 0, 50, -50 }));
}

TEST(PercentWidths, PercentZeroAmongThemKeepsItsWidthAndTakesRoom)
{
    Table table(0, 1, 1, 3);
    table.Widths({ 30, 0, 70, 0 });
    table.layout.SetColWidthPercent(1, 50);
    table.layout.SetColWidthPercent(3, 50);
    table.NoBars();
    table.Window(301, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 30, 100, 70, 101 })); // 201 left, 100.5 goes to 100
}

TEST(PercentWidths, APlainColumnBehindAFullGroupIsNoMember)
{
    Table table(0, 1, 0, 3);
    table.Widths({ 0, 40, 0 });
    table.layout.SetColWidthPercent(0, 100);
    table.layout.SetColWidthPercent(2, 50);
    table.NoBars();
    table.Window(140, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 100, 40, 50 }));
}

TEST(PercentWidths, FixedColumnsMayHavePercentsToo)
{
    Table table(0, 1, 1, 1);
    table.Widths({ 30, 100 });
    table.layout.SetColWidthPercent(0, 25);
    table.NoBars();
    table.Window(300, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 50, 100 }));
    EXPECT_EQ(table.layout.FixedColsWidth(), 50); // measured again behind the new widths
    EXPECT_EQ(table.layout.FrozenColsWidth(), 50);
}

TEST(PercentWidths, HiddenPercentColumnsCountInTheGroupButGetNoWidth)
{
    Table table(0, 1, 0, 3);
    table.layout.SetColWidthPercent(0, 50);
    table.layout.SetColWidthPercent(1, 20);
    table.layout.SetColWidthPercent(2, 30);
    HiddenLines(table.store).HideCol(1);
    table.NoBars();
    table.Window(201, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 100, 0, 101 })); // the last completes the hundred and takes what is left
}

TEST(PercentWidths, AHiddenColumnThatWouldCompleteAHundredStaysHidden)
{
    Table table(0, 1, 0, 2);
    table.layout.SetColWidthPercent(0, 50);
    table.layout.SetColWidthPercent(1, 50);
    HiddenLines(table.store).HideCol(1);
    table.NoBars();
    table.Window(201, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 100, 0 }));
}

TEST(PercentWidths, AHiddenColumnThatCompletesAHundredEndsItsGroup)
{
    Table table(0, 1, 0, 4);
    for (int col = 0; col < 4; ++col)
        table.layout.SetColWidthPercent(col, 50);
    HiddenLines(table.store).HideCol(1);
    table.NoBars();
    table.Window(201, 100);
    table.Layout(true);
    // 100 of the first group run on into the second, whose last column takes the rest.
    EXPECT_EQ(table.Widths(), (W { 100, 0, 100, 1 }));
}

TEST(PercentWidths, HiddenPlainColumnsTakeNoRoom)
{
    Table table(0, 1, 0, 2);
    table.layout.SetColWidthPercent(0, 100);
    HiddenLines(table.store).HideCol(1);
    table.NoBars();
    table.Window(200, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 200, 0 }));
}

TEST(PercentWidths, AColumnMarkedHiddenTakesNoRoomWhateverItsWidth)
{
    Table table(0, 1, 0, 2);
    table.layout.SetColWidthPercent(0, 100);
    table.store.ColumnAt(1).Hidden = true; // as on a column that was made anew while hidden
    table.Widths({ 0, 50 });
    table.NoBars();
    table.Window(200, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 200, 50 }));
}

TEST(PercentWidths, NoRoomGivesWidthZero)
{
    Table table(0, 1, 0, 3);
    table.Widths({ 300, 50, 50 });
    table.layout.SetColWidthPercent(1, 50);
    table.layout.SetColWidthPercent(2, 50);
    table.NoBars();
    table.Window(200, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 300, 0, 0 }));
}

TEST(PercentWidths, AVerticalBarNarrowsTheRoomAHorizontalOneIsNotNeeded)
{
    Table table(0, 100, 0, 2);
    table.layout.SetColWidthPercent(0, 50);
    table.layout.SetColWidthPercent(1, 50);
    table.Window(217, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 100, 100 }));
    EXPECT_EQ(table.layout.VBarWidth(), 17);
    EXPECT_EQ(table.layout.HBarHeight(), 0);
}

TEST(PercentWidths, AWindowNarrowerThanTheBarLeavesNothing)
{
    Table table(0, 100, 0, 1);
    table.layout.SetColWidthPercent(0, 100);
    table.Window(16, 100);
    table.Layout(true);
    EXPECT_EQ(table.layout.ClientWidth(), 0);
    EXPECT_EQ(table.Widths(), (W { 0 }));
}

TEST(PercentWidths, AreRedoneOnlyWhenForcedAndResizingWidthIsOn)
{
    Table table(0, 1, 0, 1);
    table.Widths({ 44 });
    table.layout.SetColWidthPercent(0, 100);
    table.NoBars();
    table.Window(200, 100);
    table.Layout(false);
    EXPECT_EQ(table.Widths(), (W { 44 }));
    table.layout.Settings.ResizingWidth = false;
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 44 }));
    table.layout.Settings.ResizingWidth = true;
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 200 }));
}

TEST(PercentWidths, RestWhileColumnsAreSplitOff)
{
    Table table(0, 1, 0, 3);
    table.Widths({ 10, 20, 30 });
    table.layout.SetColWidthPercent(2, 100);
    table.layout.Settings.SplitCols = 1;
    table.Window(200, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 10, 20, 30 }));
}

TEST(PercentWidths, RestWithoutScrollingColumns)
{
    Table table(0, 1, 1, 0);
    table.Widths({ 10 });
    table.layout.SetColWidthPercent(0, 100);
    table.Window(200, 100);
    table.Layout(true);
    EXPECT_EQ(table.Widths(), (W { 10 }));
}

TEST(PercentWidths, SumsBeyond16BitsAreOverflow)
{
    Table plain(0, 1, 0, 3);
    plain.Widths({ 32767, 1, 10 });
    plain.layout.SetColWidthPercent(2, 50);
    plain.NoBars();
    plain.Window(200, 100);
    EXPECT_EQ(ErrorOf([&] { plain.Layout(true); }), ErrorNumber::Overflow);

    EXPECT_EQ(ErrorOf([] { WidthsFor(32767, { 101 }); }), ErrorNumber::Overflow); // the width itself
    EXPECT_EQ(ErrorOf([] { WidthsFor(10, { 32767, 1 }); }), ErrorNumber::Overflow); // the sum of percents
    EXPECT_EQ(ErrorOf([] { WidthsFor(20000, { 90, 90 }); }), ErrorNumber::Overflow); // the sum of widths
}

} // namespace
} // namespace vornix
