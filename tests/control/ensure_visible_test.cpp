// A cell brought into view, as the keyboard and the mouse ask for it.
#include "control/control.h"
#include "control/scroll_fixture.h"

namespace vornix {
namespace {

// A control without its public face, in the window of another one. Internal indices.
class EnsureVisible : public ScrollTest {
protected:
    EnsureVisible()
    {
        MemoryBag bag;
        bag.values["Rows"] = i32 { 100 };
        bag.values["Cols"] = i32 { 30 };
        bag.values["FixedRows"] = i32 { 1 };
        bag.values["FixedCols"] = i32 { 1 };
        bag.values["ScrollHBar"] = i32 { vxScrollSmooth };
        control.ReadSettings(bag);
        control.Load();
        control.funnel.ClientSizeChanged();
    }
    bool Ensure(int row, int col) { return control.scrolling.EnsureCellVisible(row, col); }
    int FirstRow() const { return control.scroll.FirstRow(); }
    int FirstCol() const { return control.scroll.FirstCol(); }

    Control control { *host, handlers };
};

TEST_F(EnsureVisible, MovesNothingForACellInSight)
{
    control.paint.ClearCounters();
    EXPECT_FALSE(Ensure(1, 1));
    EXPECT_FALSE(Ensure(21, 4));
    EXPECT_FALSE(Ensure(0, 0));
    EXPECT_EQ(control.paint.Repaints(), 0);
}

TEST_F(EnsureVisible, MovesAsLittleAsBringsTheCellWholeIntoSight)
{
    EXPECT_TRUE(Ensure(30, 1));
    EXPECT_EQ(FirstRow(), 10);
    EXPECT_EQ(control.scroll.LastRow(), 30);
    EXPECT_TRUE(Ensure(5, 1));
    EXPECT_EQ(FirstRow(), 5);
    EXPECT_TRUE(Ensure(5, 8));
    EXPECT_EQ(FirstCol(), 5);
    EXPECT_EQ(control.scroll.LastCol(), 8);
    EXPECT_TRUE(Ensure(5, 2));
    EXPECT_EQ(FirstCol(), 2);
    EXPECT_EQ(control.paint.Repaints(), 5) << "one for each, and the first of all";
    EXPECT_EQ(host->VerticalBar().Value(), 5);
    EXPECT_EQ(host->HorizontalBar().Value(), 120);
}

TEST_F(EnsureVisible, BringsTheFirstColumnBackToItsWhole)
{
    host->HorizontalBar().SetPosition(0);
    control.scroll.SetFirstCol(3);
    control.layout.SetSmoothOffset(-50);
    EXPECT_TRUE(Ensure(1, 3));
    EXPECT_EQ(control.layout.SmoothOffset(), 0);
    EXPECT_EQ(FirstCol(), 3);
    EXPECT_FALSE(Ensure(1, 3));
}

TEST_F(EnsureVisible, FixedAndSplitLinesAreInSightAlways)
{
    control.layout.Settings.ShowSplit = true;
    control.layout.SetSplitCols(2);
    control.scrolling.ApplyScrollAndRepaint();
    control.scrolling.SetFirstCol(10);
    control.scrolling.SetFirstRow(40);
    EXPECT_FALSE(Ensure(0, 10));
    EXPECT_FALSE(Ensure(40, 0));
    EXPECT_FALSE(Ensure(40, 2));
    EXPECT_TRUE(Ensure(40, 3));
    EXPECT_EQ(FirstCol(), 3);
    EXPECT_TRUE(Ensure(0, 9)) << "the column scrolls for a cell of a fixed row too";
    EXPECT_EQ(FirstRow(), 40);
}

TEST_F(EnsureVisible, BringsTheWholeSpanIntoSight)
{
    control.spans.SetRowSpan(40, 10, 5);
    control.spans.SetColSpan(40, 10, 2);
    EXPECT_TRUE(Ensure(42, 11));
    EXPECT_EQ(control.scroll.LastRow(), 44);
    EXPECT_EQ(control.scroll.LastCol(), 11);
    EXPECT_EQ(FirstRow(), 24);
    EXPECT_EQ(FirstCol(), 8);
}

TEST_F(EnsureVisible, OfASpanLargerThanTheViewItsEndComesFirstAndItsParentNext)
{
    control.spans.SetRowSpan(40, 10, 40);
    control.spans.SetColSpan(40, 10, 6);
    EXPECT_TRUE(Ensure(42, 11));
    EXPECT_EQ(control.scroll.LastRow(), 79);
    EXPECT_EQ(FirstRow(), 59) << "a view of 21 rows, the asked one before it";
    EXPECT_EQ(control.scroll.LastCol(), 15);
    EXPECT_EQ(FirstCol(), 12);
    EXPECT_TRUE(Ensure(40, 10));
    EXPECT_EQ(FirstRow(), 40);
    EXPECT_EQ(FirstCol(), 10);
    EXPECT_FALSE(Ensure(40, 10));
    EXPECT_FALSE(Ensure(60, 13)) << "in sight, for all that the span goes on behind it";
}

TEST_F(EnsureVisible, TheCaptionNeverScrolls)
{
    control.layout.Settings.CaptionEnabled = true;
    control.funnel.RecalcLayout(false);
    EXPECT_FALSE(Ensure(0, 20));
    EXPECT_EQ(FirstCol(), 1);
}

TEST_F(EnsureVisible, MovesTheViewBehindAClosedGateToo)
{
    control.gate.Close();
    EXPECT_TRUE(Ensure(60, 20));
    EXPECT_EQ(FirstRow(), 40);
    EXPECT_EQ(host->VerticalBar().Value(), 1);
    control.gate.Open();
}

TEST_F(EnsureVisible, ACellOutsideTheTableIsAnError)
{
    EXPECT_EQ(ErrorOf([&] { Ensure(102, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Ensure(1, -1); }), 9);
}

} // namespace
} // namespace vornix
