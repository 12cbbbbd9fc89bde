#include "headless/person_fixture.h"

namespace vornix {
namespace {

class PaintCounters : public PersonTest {
protected:
    // Repaints and refreshes of a step.
    std::pair<int, int> CountsOf(const std::function<void()>& step)
    {
        host->ClearLog();
        step();
        return { host->Repaints(), host->Refreshes() };
    }
    using Counts = std::pair<int, int>;
};

TEST_F(PaintCounters, ACellIsOneRefresh)
{
    Table(4, 3);
    EXPECT_EQ(CountsOf([&] { Grid().SetText(1, 1, u"a"); }), (Counts { 0, 1 }));
    EXPECT_EQ(CountsOf([&] { Grid().RefreshCell(2, 2); }), (Counts { 0, 1 }));
}

TEST_F(PaintCounters, ARowRefreshCountsEachOfItsCells)
{
    Grid().SetAdjustLast(vxNone);
    Table(4, 3, 1, 2);
    EXPECT_EQ(CountsOf([&] { Grid().SetRowBackColor(1, 0x00FF00); }), (Counts { 0, 5 }));
    Grid().SetAdjustLast(vxColumn);
    EXPECT_EQ(CountsOf([&] { Grid().SetRowBackColor(1, 0x0000FF); }), (Counts { 0, 6 })) << "the filler is one more";
}

TEST_F(PaintCounters, AColumnRefreshCountsEachOfItsCells)
{
    Grid().SetAdjustLast(vxNone);
    Table(4, 3, 1, 2);
    EXPECT_EQ(CountsOf([&] { Grid().SetColBackColor(1, 0x00FF00); }), (Counts { 0, 5 }));
    Grid().SetAdjustLast(vxRow);
    EXPECT_EQ(CountsOf([&] { Grid().SetColBackColor(1, 0x0000FF); }), (Counts { 0, 6 })) << "the filler is one more";
}

TEST_F(PaintCounters, ARowThatIsPartlyScrolledAwayCountsWhatIsPainted)
{
    Grid().SetAdjustLast(vxNone);
    Table(4, 40);
    const int seen = Grid().LastCol() + 2; // and one that is partly seen
    ASSERT_LT(seen, 40);
    EXPECT_EQ(CountsOf([&] { Grid().SetRowBackColor(1, 0x00FF00); }), (Counts { 0, seen }));
}

TEST_F(PaintCounters, ALookOfTheWholeGridIsOneRepaint)
{
    Table(4, 3);
    EXPECT_EQ(CountsOf([&] { Grid().SetGridLineWidth(3); }), (Counts { 1, 0 }));
    EXPECT_EQ(CountsOf([&] { Grid().SetRows(9); }), (Counts { 1, 0 }));
    EXPECT_EQ(CountsOf([&] { host->Resize(300, 200); }), (Counts { 1, 0 }));
}

TEST_F(PaintCounters, NothingIsCountedWhileNothingIsPainted)
{
    Table(4, 3);
    Grid().SetRedraw(false);
    EXPECT_EQ(CountsOf([&] {
        Grid().SetText(1, 1, u"a");
        Grid().SetRowBackColor(1, 0x00FF00);
        Grid().SetGridLineWidth(3);
    }),
        (Counts { 0, 0 }));
    EXPECT_EQ(CountsOf([&] { Grid().SetRedraw(true); }), (Counts { 1, 0 }));
}

TEST_F(PaintCounters, CountOnUntilTheLogIsCleared)
{
    Table(4, 3);
    Grid().SetText(0, 0, u"a");
    Grid().SetText(0, 1, u"b");
    Grid().SetGridLineWidth(2);
    Grid().SetGridLineWidth(3);
    EXPECT_EQ(host->Refreshes(), 2);
    EXPECT_EQ(host->Repaints(), 2);
    host->ClearLog();
    EXPECT_EQ(host->Refreshes(), 0);
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(PaintCounters, ACopyToTheWindowIsNoRepaint)
{
    Table(4, 3);
    EXPECT_EQ(CountsOf([&] { host->Paint(); }), (Counts { 0, 0 }));
}

} // namespace
} // namespace vornix
