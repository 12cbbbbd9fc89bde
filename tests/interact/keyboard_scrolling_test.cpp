#include "interact/keyboard_fixture.h"

namespace vornix {
namespace {

// 200 rows and 40 columns, whole columns at the left edge.
class KeyboardScrolling : public KeyboardTest {
protected:
    KeyboardScrolling()
    {
        Table(200, 40, 1, 1);
        Grid().SetScrollHBar(vxNormalScroll);
        Grid().SetScrollVBar(vxNormalScroll);
    }
};

TEST_F(KeyboardScrolling, DownBringsTheRowBelowTheLastOne)
{
    const i16 last = Grid().LastRow();
    Grid().CurrentPos(last, 0);
    Lines expected { "ValidateRow", "CellChange Row=" + std::to_string(last + 1) + " Col=0 bCancel=0", "Scroll" };
    EXPECT_EQ(Key(Code::Down), expected);
    EXPECT_EQ(Grid().LastRow(), last + 1);
    EXPECT_EQ(Grid().FirstRow(), 1);
    EXPECT_EQ(host->VerticalBar().Position(), 2) << "internal index of the first row";
    EXPECT_TRUE(IsMarkedAlone(static_cast<i16>(last + 1), 0));
}

TEST_F(KeyboardScrolling, UpBringsTheRowAboveTheFirstOne)
{
    Grid().SetFirstRow(50);
    Grid().CurrentPos(50, 0);
    EXPECT_EQ(Key(Code::Up), (Lines { "ValidateRow", "CellChange Row=49 Col=0 bCancel=0", "Scroll" }));
    EXPECT_EQ(Grid().FirstRow(), 49);
    EXPECT_TRUE(IsMarkedAlone(49, 0));
}

TEST_F(KeyboardScrolling, RightBringsTheColumnBehindTheLastOne)
{
    const i16 last = Grid().LastCol();
    Grid().CurrentPos(3, last);
    EXPECT_EQ(
        Key(Code::Right), (Lines { "CellChange Row=3 Col=" + std::to_string(last + 1) + " bCancel=0", "Scroll" }));
    EXPECT_EQ(Grid().LastCol(), last + 1);
    EXPECT_TRUE(IsMarkedAlone(3, static_cast<i16>(last + 1)));
}

TEST_F(KeyboardScrolling, LeftBringsTheColumnBeforeTheFirstOne)
{
    Grid().SetFirstCol(20);
    Grid().CurrentPos(3, 20);
    EXPECT_EQ(Key(Code::Left), (Lines { "CellChange Row=3 Col=19 bCancel=0", "Scroll" }));
    EXPECT_EQ(Grid().FirstCol(), 19);
}

TEST_F(KeyboardScrolling, TheWrapBackScrollsByKeyAndTheWrapForwardByView)
{
    Grid().CurrentPos(3, 39);
    EXPECT_EQ(Key(Code::Right), (Lines { "ValidateRow", "CellChange Row=4 Col=0 bCancel=0", "Scroll" }));
    EXPECT_EQ(Grid().FirstCol(), 0);
    EXPECT_EQ(Key(Code::Left), (Lines { "ValidateRow", "CellChange Row=3 Col=39 bCancel=0" }))
        << "a column behind the view is none that Left scrolls to";
    EXPECT_TRUE(Grid().IsVisibleCol(39)) << "but it comes into view";
}

TEST_F(KeyboardScrolling, AColumnCutOffAtTheLeftIsSquared)
{
    Grid().SetScrollHBar(vxScrollSmooth);
    Grid().CurrentPos(3, 6);
    Grid().SetFirstCol(5);
    Grid().ScrollBarNotify(ChildName::scrH, 1);
    Grid().ScrollBarNotify(ChildName::scrH, 8);
    ASSERT_EQ(Grid().FirstCol(), 5);
    const RgbaImage cutOff = host->Image();
    EXPECT_EQ(Key(Code::Left), (Lines { "CellChange Row=3 Col=5 bCancel=0", "Scroll" }));
    EXPECT_EQ(Grid().FirstCol(), 5);
    EXPECT_NE(host->Image().bytes, cutOff.bytes);
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=3 Col=6 bCancel=0" });
}

TEST_F(KeyboardScrolling, RightOntoAColumnCutOffAtTheLeftBringsItWhole)
{
    Grid().SetScrollHBar(vxScrollSmooth);
    Grid().SetFirstCol(5);
    Grid().ScrollBarNotify(ChildName::scrH, 1);
    Grid().ScrollBarNotify(ChildName::scrH, 8);
    ASSERT_EQ(Grid().FirstCol(), 5);
    ASSERT_FALSE(Grid().IsVisibleCol(5));
    // A current cell before the view, to which nothing has scrolled.
    Grid().SetRedraw(false);
    const i32 value = host->HorizontalBar().Value();
    Grid().CurrentPos(3, 4);
    Grid().SetFirstCol(5);
    Grid().SetRedraw(true);
    Grid().ScrollBarNotify(ChildName::scrH, 1);
    Grid().ScrollBarNotify(ChildName::scrH, 8);
    ASSERT_EQ(host->HorizontalBar().Value(), value);
    ASSERT_FALSE(Grid().IsVisibleCol(5));
    EXPECT_EQ(Key(Code::Right), (Lines { "CellChange Row=3 Col=5 bCancel=0", "Scroll" }));
    EXPECT_TRUE(Grid().IsVisibleCol(5));
    EXPECT_EQ(Grid().LastCol(), 5) << "as the last whole one";
    EXPECT_EQ(Grid().FirstCol(), 2);
}

TEST_F(KeyboardScrolling, TheCaptionTakesPartInNoScroll)
{
    Grid().SetCaption(u"Title");
    Grid().SetCaptionEnabled(true);
    const i16 last = Grid().LastRow();
    Grid().CurrentPos(last, 0);
    EXPECT_EQ(Key(Code::Down).back(), "Scroll");
    EXPECT_EQ(Grid().FirstRow(), 1);
    EXPECT_TRUE(IsMarkedAlone(static_cast<i16>(last + 1), 0));
    Grid().SetFirstCol(10);
    Grid().CurrentPos(-1, 20);
    EXPECT_EQ(Grid().FirstCol(), 10) << "one cell over the whole width";
}

class KeyboardBesideASplit : public KeyboardScrolling {
protected:
    KeyboardBesideASplit()
    {
        Grid().SetShowSplit(true);
        Grid().SetSplitCols(2);
        Grid().SetFirstCol(10);
        host->ClearLog();
    }
};

TEST_F(KeyboardBesideASplit, LeftIntoTheSplitColumnsScrollsNothing)
{
    Grid().CurrentPos(3, 1);
    EXPECT_EQ(Key(Code::Left), Lines { "CellChange Row=3 Col=0 bCancel=0" });
    EXPECT_EQ(Key(Code::Right), Lines { "CellChange Row=3 Col=1 bCancel=0" });
    EXPECT_EQ(Grid().FirstCol(), 10);
    Grid().CurrentPos(3, 2);
    Grid().SetFirstCol(10);
    EXPECT_EQ(Key(Code::Left), Lines { "CellChange Row=3 Col=1 bCancel=0" });
    EXPECT_EQ(Grid().FirstCol(), 10);
    EXPECT_TRUE(IsMarkedAlone(3, 1));
}

TEST_F(KeyboardBesideASplit, RightOutOfTheSplitColumnsBringsTheFirstThatScrolls)
{
    Grid().CurrentPos(3, 1);
    EXPECT_EQ(Key(Code::Right), (Lines { "CellChange Row=3 Col=2 bCancel=0", "Scroll" }));
    EXPECT_EQ(Grid().FirstCol(), 2);
    EXPECT_TRUE(IsMarkedAlone(3, 2));
}

TEST_F(KeyboardBesideASplit, LeftBeforeTheViewScrollsToTheColumn)
{
    Grid().CurrentPos(3, 10);
    EXPECT_EQ(Key(Code::Left), (Lines { "CellChange Row=3 Col=9 bCancel=0", "Scroll" }));
    EXPECT_EQ(Grid().FirstCol(), 9);
}

TEST_F(KeyboardBesideASplit, TheWrapsLeadIntoTheSplitColumnsAndOutOfThem)
{
    Grid().CurrentPos(3, 39);
    const i16 first = Grid().FirstCol();
    EXPECT_EQ(Key(Code::Right), (Lines { "ValidateRow", "CellChange Row=4 Col=0 bCancel=0" }));
    EXPECT_EQ(Grid().FirstCol(), first) << "it is in sight";
    Grid().SetFirstCol(10);
    EXPECT_EQ(Key(Code::Left), (Lines { "ValidateRow", "CellChange Row=3 Col=39 bCancel=0" }));
    EXPECT_TRUE(Grid().IsVisibleCol(39));
}

TEST_F(KeyboardScrolling, AWholeSpanComesIntoView)
{
    const i16 last = Grid().LastRow();
    Grid().SetRowSpan(static_cast<i16>(last + 1), 0, 3);
    Grid().CurrentPos(last, 0);
    Key(Code::Down);
    EXPECT_EQ(Grid().LastRow(), last + 3);
    const i16 lastCol = Grid().LastCol();
    Grid().SetColSpan(10, static_cast<i16>(lastCol + 1), 2);
    Grid().CurrentPos(10, lastCol);
    Key(Code::Right);
    EXPECT_EQ(Grid().LastCol(), lastCol + 2);
}

TEST_F(KeyboardScrolling, AnArrowAtTheEdgeBringsTheCellIntoView)
{
    Grid().CurrentPos(0, 0);
    Grid().SetFirstRow(100);
    EXPECT_EQ(Key(Code::Up), Lines {}) << "no event, and no Scroll";
    EXPECT_EQ(Grid().FirstRow(), 0);
}

TEST_F(KeyboardScrolling, PageDownPutsTheLastRowFirstAndLeavesTheCell)
{
    Grid().CurrentPos(2, 2);
    const i16 last = Grid().LastRow();
    EXPECT_EQ(Key(Code::PageDown), Lines {});
    EXPECT_EQ(Grid().FirstRow(), last);
    EXPECT_EQ(Current(), (CellPlace { 2, 2 }));
    EXPECT_EQ(Key(Code::PageUp), Lines {});
    EXPECT_EQ(Grid().LastRow(), last);
    EXPECT_EQ(Current(), (CellPlace { 2, 2 }));
}

TEST_F(KeyboardScrolling, PagesEndAtTheEnds)
{
    Grid().CurrentPos(2, 2);
    for (int page = 0; page < 40; ++page)
        Key(Code::PageDown);
    EXPECT_EQ(Grid().LastRow(), 199);
    const i16 first = Grid().FirstRow();
    const RgbaImage shown = host->Image();
    Key(Code::PageDown);
    EXPECT_EQ(Grid().FirstRow(), first);
    EXPECT_EQ(host->Image().bytes, shown.bytes);
    for (int page = 0; page < 40; ++page)
        Key(Code::PageUp);
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Current(), (CellPlace { 2, 2 }));
}

TEST_F(KeyboardScrolling, PagesOfAShortTableChangeNothing)
{
    Table(3, 3, 1, 1);
    const RgbaImage shown = host->Image();
    Key(Code::PageDown);
    Key(Code::PageUp);
    EXPECT_EQ(host->Image().bytes, shown.bytes);
    EXPECT_EQ(Current(), Nowhere);
}

TEST_F(KeyboardScrolling, JumpsScrollWithoutAnEvent)
{
    Grid().CurrentPos(0, 0);
    EXPECT_EQ(Key(Code::End, 2), Lines {});
    EXPECT_TRUE(Grid().IsVisibleCell(199, 39));
    EXPECT_TRUE(IsMarkedAlone(199, 39));
    EXPECT_EQ(Key(Code::Home, 2), Lines {});
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_EQ(Grid().FirstCol(), 0);
}

TEST_F(KeyboardScrolling, ScrollIsRaisedWhileRedrawIsOff)
{
    const i16 last = Grid().LastRow();
    Grid().CurrentPos(last, 0);
    Grid().SetRedraw(false);
    EXPECT_EQ(Key(Code::Down).back(), "Scroll");
    EXPECT_EQ(Grid().FirstRow(), 1);
}

} // namespace
} // namespace vornix
