// Columns and rows under the pointer that drags their ends.
#include "interact/sizing_fixture.h"

#include "interact/keyboard_desk.h"

namespace vornix {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class LineSizingTest : public SizingTest {
protected:
    // 400 by 200 with bars of 17: 383 by 183 for the cells, of which 353 by 162 scroll.
    void SmallWindowIn(i32 mode)
    {
        SmallWindow();
        Grid().SetScrollHBar(mode);
        host->ClearLog();
    }
    void StandOn(i16 Row)
    {
        Grid().SetCurrentRow(Row);
        Grid().SetCurrentCol(0);
    }
};

// -- The whole of it --

TEST_F(LineSizingTest, RaisesOneEventForEachMoveOfTheDrag)
{
    host->MouseMove(149, Header);
    host->MouseDown(149, Header);
    host->MouseMove(160, Header, 1);
    host->MouseMove(90, 300, 1);
    host->MouseUp(90, 300);
    host->Click();
    host->MouseMove(90, Header);
    EXPECT_THAT(Said(),
        ElementsAre("MouseMove Button=0 Shift=0 x=149 y=10", "CellOver Row=-1 Col=0", "CellOut Row=-1 Col=0",
            "MouseMove Button=1 Shift=0 x=160 y=10", "ResizeCol Col=0 NewWidth=130",
            "MouseMove Button=1 Shift=0 x=90 y=300", "ResizeCol Col=0 NewWidth=60",
            "MouseUp Button=1 Shift=0 x=90 y=300", "Click", "MouseMove Button=0 Shift=0 x=90 y=10",
            "CellOver Row=-1 Col=1"));
    EXPECT_EQ(Current(), NoCell);
    EXPECT_THAT(host->PropertyChanges(), IsEmpty());
}

TEST_F(LineSizingTest, OfARowItIsTheSame)
{
    host->MouseMove(Header, 41);
    host->MouseDown(Header, 41);
    host->MouseMove(Header, 51, 1);
    host->MouseMove(500, 31, 1);
    host->MouseUp(500, 31);
    host->Click();
    EXPECT_THAT(Said(),
        ElementsAre("MouseMove Button=0 Shift=0 x=10 y=41", "CellOver Row=0 Col=-1", "CellOut Row=0 Col=-1",
            "MouseMove Button=1 Shift=0 x=10 y=51", "ResizeRow Row=0 NewHeight=30",
            "MouseMove Button=1 Shift=0 x=500 y=31", "ResizeRow Row=0 NewHeight=10",
            "MouseUp Button=1 Shift=0 x=500 y=31", "Click"));
    EXPECT_EQ(Grid().RowHeight(0), 10);
}

TEST_F(LineSizingTest, EachMoveIsPaintedAtOnce)
{
    CatchCol(1);
    host->ClearLog();
    Drag(300, Header);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_EQ(Grid().ColWidth(1), 150);
    EXPECT_TRUE(IsPainted());
    Drag(250, Header);
    EXPECT_EQ(Grid().ColWidth(1), 100);
    EXPECT_TRUE(IsPainted());
    EXPECT_TRUE(Grid().IsSizingMode());
    LetGo(250, Header);
    EXPECT_FALSE(Grid().IsSizingMode());
    EXPECT_THAT(Widths(), ElementsAre(120, 100, 120, 120, 120));
}

TEST_F(LineSizingTest, IsPaintedThoughTheHostDrawsNothing)
{
    Grid().SetRedraw(false);
    Grid().SetText(1, 1, u"seen with the drag");
    CatchCol(1);
    host->ClearLog();
    Drag(300, Header);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetText(1, 1, u"not yet");
    EXPECT_EQ(host->Refreshes(), 0) << "the gate is closed again";
    LetGo(300, Header);
    EXPECT_EQ(host->Repaints(), 1);
}

TEST_F(LineSizingTest, TheBarsFollowTheSizes)
{
    EXPECT_FALSE(Grid().IsVisibleScrollH());
    CatchCol(0);
    Drag(200, Header);
    EXPECT_TRUE(Grid().IsVisibleScrollH());
    Drag(100, Header);
    EXPECT_FALSE(Grid().IsVisibleScrollH());
    LetGo(100, Header);
    SizeRow(0, 100);
    EXPECT_TRUE(Grid().IsVisibleScrollV());
}

TEST_F(LineSizingTest, TheRightButtonEndsItWithTheSizeInForce)
{
    CatchCol(0);
    Drag(200, Header);
    host->MouseDown(200, Header, 2);
    EXPECT_FALSE(Grid().IsSizingMode());
    Drag(300, Header);
    EXPECT_EQ(Grid().ColWidth(0), 170);
}

TEST_F(LineSizingTest, AMoveWithoutAButtonSizesNothing)
{
    CatchCol(0);
    host->MouseMove(200, Header);
    EXPECT_EQ(Grid().ColWidth(0), 120);
}

// -- How small, how large --

TEST_F(LineSizingTest, LeftOfItsBeginningAColumnIsClosed)
{
    CatchCol(1);
    Drag(40, Header);
    EXPECT_EQ(Grid().ColWidth(1), 0);
    EXPECT_FALSE(Grid().ColHide(1)) << "closed, not hidden";
    Drag(-500, Header);
    EXPECT_EQ(Grid().ColWidth(1), 0);
    Drag(170, Header);
    EXPECT_EQ(Grid().ColWidth(1), 20) << "within one drag it opens again";
    Drag(150, Header);
    LetGo(150, Header);
    EXPECT_EQ(Grid().ColWidth(1), 0);
}

TEST_F(LineSizingTest, AClosedColumnIsCaughtByTheNextDrag)
{
    SizeCol(1, 100);
    ASSERT_EQ(Grid().ColWidth(1), 0);
    Catch(152, Header);
    Drag(190, Header);
    LetGo(190, Header);
    EXPECT_THAT(Widths(), ElementsAre(120, 40, 120, 120, 120));
}

TEST_F(LineSizingTest, AClosedRowIsCaughtByTheNextDrag)
{
    SizeRow(1, 0);
    ASSERT_EQ(Grid().RowHeight(1), 0);
    EXPECT_FALSE(Grid().RowHide(1));
    Catch(Header, 44);
    Drag(Header, 55);
    EXPECT_EQ(Grid().RowHeight(1), 13);
}

TEST_F(LineSizingTest, AClosedRowIsSteppedOverByTheKeyboardUntilItIsOpened)
{
    StandOn(0);
    SizeRow(1, 0);
    host->KeyDown(40);
    EXPECT_EQ(Current(), (CellPlace { 2, 0 }));
    Catch(Header, 44);
    Drag(Header, 55);
    LetGo(Header, 55);
    host->KeyDown(38);
    EXPECT_EQ(Current(), (CellPlace { 1, 0 }));
}

TEST_F(LineSizingTest, NoColumnIsWiderThanTheAreaThatScrolls)
{
    SmallWindowIn(vxScrollTrack);
    CatchCol(0);
    Drag(2000, Header);
    EXPECT_EQ(Grid().ColWidth(0), 353);
    EXPECT_THAT(Said(), testing::Contains("ResizeCol Col=0 NewWidth=353"));
}

TEST_F(LineSizingTest, ScrollingByPixelsItMayBe)
{
    SmallWindowIn(vxScrollSmooth);
    CatchCol(0);
    Drag(2000, Header);
    EXPECT_EQ(Grid().ColWidth(0), 1970);
}

TEST_F(LineSizingTest, AFrozenColumnLeavesTheAreaThatScrollsNothingAtTheMost)
{
    SmallWindowIn(vxScrollSmooth);
    Catch(28, Header);
    Drag(2000, Header);
    EXPECT_EQ(Grid().ColWidth(-1), 383);
    Drag(2000, Header);
    EXPECT_EQ(Grid().ColWidth(-1), 383) << "the sums follow";
    Drag(60, Header);
    LetGo(60, Header);
    EXPECT_EQ(Grid().ColWidth(-1), 60);
}

TEST_F(LineSizingTest, ASplitColumnIsFrozenToo)
{
    SmallWindowIn(vxScrollSmooth);
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(1);
    ASSERT_EQ(Grid().SplitCols(), 1);
    CatchCol(0);
    Drag(2000, Header);
    EXPECT_EQ(Grid().ColWidth(0), 353);
}

TEST_F(LineSizingTest, NoRowIsHigherThanTheAreaThatScrolls)
{
    SmallWindowIn(vxScrollSmooth);
    CatchRow(0);
    Drag(Header, 2000);
    EXPECT_EQ(Grid().RowHeight(0), 162);
    LetGo(Header, 2000);
    Catch(Header, 19);
    Drag(Header, 2000);
    EXPECT_EQ(Grid().RowHeight(-1), 183) << "a fixed one leaves that area nothing";
}

TEST_F(LineSizingTest, WithoutRoomToScrollAColumnIsClosed)
{
    SmallWindowIn(vxScrollTrack);
    CatchCol(0);
    Grid().SetColWidth(-1, 700);
    host->ClearLog();
    Drag(2000, Header);
    EXPECT_THAT(Said(), testing::Contains("ResizeCol Col=0 NewWidth=0"));
    EXPECT_EQ(Grid().ColWidth(0), 0);
}

TEST_F(LineSizingTest, ASizeBeyond16BitsIsAnOverflow)
{
    SmallWindowIn(vxScrollSmooth);
    Grid().SetColWidth(0, 300);
    host->HorizontalBar().Notify(5, 100);
    Catch(229, Header); // 30 + 300 - 100, less one
    ASSERT_TRUE(Grid().IsSizingMode());
    EXPECT_EQ(ErrorOf([&] { Drag(40000, Header); }), ErrorNumber::Overflow);
    EXPECT_EQ(Grid().ColWidth(0), 300);
    EXPECT_TRUE(Grid().IsSizingMode());
    Drag(250, Header);
    EXPECT_EQ(Grid().ColWidth(0), 320);
}

// -- The view --

TEST_F(LineSizingTest, OfAColumnPushedOutAtTheLeftTheUnseenPartCounts)
{
    SmallWindowIn(vxScrollSmooth);
    host->HorizontalBar().Notify(5, 50); // 70 pixels of column 0 are left
    Catch(99, Header);
    Drag(110, Header);
    EXPECT_EQ(Grid().ColWidth(0), 130);
    Drag(120, Header);
    EXPECT_EQ(Grid().ColWidth(0), 140) << "as much is pushed out as before";
}

TEST_F(LineSizingTest, AClosedColumnThatIsScrolledAwayComesBack)
{
    SmallWindowIn(vxScrollTrack);
    Grid().SetFirstCol(5);
    Grid().SetColWidth(3, 0);
    Catch(32, Header);
    Drag(70, Header);
    EXPECT_THAT(Said(), testing::Contains("ResizeCol Col=3 NewWidth=40"));
    EXPECT_EQ(Grid().ColWidth(3), 40);
    EXPECT_EQ(Grid().FirstCol(), 3);
    EXPECT_TRUE(IsPainted());
}

TEST_F(LineSizingTest, AClosedColumnComesBackFromItsLeftEdgeInAViewMovedByPixels)
{
    SmallWindowIn(vxScrollSmooth);
    Grid().SetColWidth(3, 0);
    host->HorizontalBar().Notify(5, 650);
    host->HorizontalBar().Notify(8, 650);
    ASSERT_EQ(Grid().FirstCol(), 6);
    Catch(32, Header);
    Drag(70, Header);
    EXPECT_EQ(Grid().FirstCol(), 3);
    EXPECT_EQ(Grid().ColWidth(3), 40) << "none of it is pushed out";
    EXPECT_TRUE(IsPainted());
}

TEST_F(LineSizingTest, PartsOfAPixelAreCutOff)
{
    CatchCol(0);
    Drag(160.7F, Header);
    EXPECT_EQ(Grid().ColWidth(0), 130);
    LetGo(160.7F, Header);
    CatchRow(0);
}

TEST_F(LineSizingTest, AFixedWidthBeyondAllSumsIsMendedByTheNextMove)
{
    Grid().SetFixedCols(2);
    handlers.OnResizeCol = [&](i16, i16& NewWidth) { NewWidth = 32767; };
    Catch(29, Header);
    EXPECT_EQ(ErrorOf([&] { Drag(60, Header); }), ErrorNumber::Overflow);
    handlers.OnResizeCol = nullptr;
    Drag(60, Header);
    EXPECT_EQ(Grid().ColWidth(-2), 60);
    LetGo(60, Header);
    EXPECT_TRUE(IsPainted());
}

TEST_F(LineSizingTest, AClosedRowThatIsScrolledAwayComesBack)
{
    SmallWindowIn(vxScrollTrack);
    Grid().SetFirstRow(50);
    Grid().SetRowHeight(10, 0);
    Catch(Header, 22);
    Drag(Header, 60);
    EXPECT_EQ(Grid().RowHeight(10), 39);
    EXPECT_EQ(Grid().FirstRow(), 10);
}

TEST_F(LineSizingTest, ClosingALineBringsTheFirstOneThatHasASizeToTheTop)
{
    SmallWindowIn(vxScrollTrack);
    Grid().SetColWidth(0, 0);
    Grid().SetFirstCol(5);
    Catch(149, Header);
    Drag(0, Header);
    EXPECT_EQ(Grid().ColWidth(5), 0);
    EXPECT_EQ(Grid().FirstCol(), 1);
    LetGo(0, Header);
    Grid().SetRowHeight(0, 0);
    Grid().SetFirstRow(50);
    Catch(Header, 41);
    Drag(Header, 0);
    EXPECT_EQ(Grid().RowHeight(50), 0);
    EXPECT_EQ(Grid().FirstRow(), 1);
}

TEST_F(LineSizingTest, AScrollDuringTheDragIsFollowed)
{
    SmallWindowIn(vxScrollTrack);
    Catch(269, Header); // column 1 begins at 150
    Drag(280, Header);
    EXPECT_EQ(Grid().ColWidth(1), 130);
    Grid().SetFirstCol(1); // at 30 now
    Drag(180, Header);
    EXPECT_EQ(Grid().ColWidth(1), 150);
    LetGo(180, Header);
    CatchRow(2);
    Grid().SetFirstRow(2);
    Drag(Header, 51);
    EXPECT_EQ(Grid().RowHeight(2), 30);
}

TEST_F(LineSizingTest, AtTheEndOfAFullTableTheLastRowIsSized)
{
    HeadlessOptions options;
    options.width = 400;
    options.height = 200;
    Make(options);
    MouseTable(32765, 3);
    Grid().SetFirstRow(32764);
    const i16 first = Grid().FirstRow();
    const float end = 21.0F + 21.0F * static_cast<float>(32765 - first);
    Catch(Header, end - 1);
    ASSERT_TRUE(Grid().IsSizingMode());
    Drag(Header, end - 11);
    EXPECT_EQ(Grid().RowHeight(32764), 10);
}

// -- The host's word --

TEST_F(LineSizingTest, TheHostDecidesTheWidth)
{
    handlers.OnResizeCol = [](i16 Col, i16& NewWidth) { NewWidth = static_cast<i16>(Col == 1 ? 77 : -20); };
    CatchCol(1);
    Drag(400, Header);
    EXPECT_EQ(Grid().ColWidth(1), 77);
    LetGo(400, Header);
    SizeCol(0, 400);
    EXPECT_EQ(Grid().ColWidth(0), 0) << "nothing is smaller";
}

TEST_F(LineSizingTest, TheHostIsNotBoundToTheLimit)
{
    SmallWindowIn(vxScrollTrack);
    handlers.OnResizeCol = [](i16, i16& NewWidth) { NewWidth = 500; };
    handlers.OnResizeRow = [](i16, i16& NewHeight) { NewHeight = 400; };
    SizeCol(0, 160);
    EXPECT_EQ(Grid().ColWidth(0), 500);
    SizeRow(0, 50);
    EXPECT_EQ(Grid().RowHeight(0), 400);
}

TEST_F(LineSizingTest, TheHostDecidesTheHeight)
{
    handlers.OnResizeRow = [](i16 Row, i16& NewHeight) { NewHeight = static_cast<i16>(Row == 1 ? 33 : -1); };
    SizeRow(1, 100);
    EXPECT_EQ(Grid().RowHeight(1), 33);
    SizeRow(0, 50);
    EXPECT_EQ(Grid().RowHeight(0), 0);
}

TEST_F(LineSizingTest, WhileTheHostIsAskedNothingIsDrawn)
{
    int drawn = 0;
    handlers.OnResizeCol = [&](i16, i16&) {
        Grid().SetText(1, 1, u"changed");
        Grid().SetRows(30);
        drawn += host->Repaints() + host->Refreshes();
    };
    CatchCol(0);
    host->ClearLog();
    Drag(200, Header);
    EXPECT_EQ(drawn, 0);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_TRUE(IsPainted());
    Grid().SetText(1, 1, u"again");
    EXPECT_NE(host->Refreshes(), 0) << "the gate is open again";
}

// -- All rows at once --

TEST_F(LineSizingTest, OneRowSizesThemAll)
{
    Grid().SetResizingRows(true);
    CatchRow(3);
    host->ClearLog();
    Drag(Header, 114);
    EXPECT_THAT(Heights(), Each(30));
    EXPECT_EQ(Grid().RowHeight(-1), 21) << "fixed ones stay";
    EXPECT_EQ(host->Count("ResizeRow"), 1);
    EXPECT_EQ(host->Repaints(), 1);
    EXPECT_TRUE(IsPainted());
    Drag(Header, 94); // row 3 begins at 111 now; at 84 when it was caught
    EXPECT_THAT(Heights(), Each(10));
}

TEST_F(LineSizingTest, AFixedRowIsSizedAlone)
{
    Grid().SetResizingRows(true);
    Catch(Header, 19);
    Drag(Header, 40);
    EXPECT_EQ(Grid().RowHeight(-1), 40);
    EXPECT_THAT(Heights(), Each(21));
}

TEST_F(LineSizingTest, HiddenRowsTakeTheHeightForLater)
{
    Grid().SetResizingRows(true);
    Grid().HideRow(5, 2);
    SizeRow(0, 51);
    EXPECT_EQ(Grid().RowHeight(5), 0);
    EXPECT_TRUE(Grid().RowHide(5));
    Grid().ShowRow(5, 2);
    EXPECT_THAT(Heights(), Each(30));
}

TEST_F(LineSizingTest, AllRowsCloseAndOpenAndTheKeyboardFollows)
{
    Grid().SetResizingRows(true);
    Grid().SetRowHide(2, true);
    StandOn(1);
    CatchRow(0);
    Drag(Header, 0);
    EXPECT_THAT(Heights(), Each(0));
    EXPECT_EQ(Grid().FirstRow(), 0);
    EXPECT_TRUE(IsPainted());
    Drag(Header, 46);
    LetGo(Header, 46);
    EXPECT_EQ(Grid().RowHeight(19), 25);
    StandOn(1);
    host->KeyDown(40);
    EXPECT_EQ(Current(), (CellPlace { 3, 0 })) << "the hidden one is stepped over still";
    host->KeyDown(40);
    EXPECT_EQ(Current(), (CellPlace { 4, 0 }));
    host->KeyDown(38);
    host->KeyDown(38);
    EXPECT_EQ(Current(), (CellPlace { 1, 0 }));
}

TEST_F(LineSizingTest, OfThirtyThousandRowsAllAreSized)
{
    HeadlessOptions options;
    Make(options);
    MouseTable(32766, 2);
    Grid().SetResizingRows(true);
    SizeRow(0, 31);
    EXPECT_EQ(Grid().RowHeight(0), 10);
    EXPECT_EQ(Grid().RowHeight(32765), 10);
}

// A page of a longer list.
class LineSizingPageTest : public KeyboardDesk {
protected:
    class PageEvents : public VornixEvents {
    public:
        explicit PageEvents(const RedrawGate& gate)
            : gate_(gate)
        {
        }
        void PopulateGrid(i32 Offset, i16 StartRow, i16 EndRow) override
        {
            asked.push_back({ Offset, StartRow, EndRow });
            wasGateOpen = gate_.IsOpen();
        }
        std::vector<std::vector<i32>> asked;
        bool wasGateOpen = true;

    private:
        const RedrawGate& gate_;
    };

    PageEvents pageEvents { control.gate };
    LineSizing sizing { { control.store, control.layout, control.scroll, control.hidden, control.spans, control.fitting,
        control.gate, control.scrolling, control.funnel, page, host, pageEvents } };

    LineSizingPageTest()
    {
        page.size = 6;
        page.offset = 40;
        control.layout.Settings.ResizingRows = true;
        sizing.UpdateCursor(10, 41, sizing.HitTest(10, 41));
        EXPECT_TRUE(sizing.Begin(10, 41));
    }
};

TEST_F(LineSizingPageTest, ClosingAllRowsOfAPageHasItFilledAnew)
{
    sizing.SizeTo(10, 40);
    EXPECT_THAT(pageEvents.asked, IsEmpty());
    sizing.SizeTo(10, 0);
    EXPECT_THAT(pageEvents.asked, ElementsAre(ElementsAre(40, 0, 5)));
    EXPECT_FALSE(pageEvents.wasGateOpen);
    EXPECT_TRUE(control.gate.IsOpen());
}

TEST_F(LineSizingPageTest, OneRowAloneIsNoReason)
{
    control.layout.Settings.ResizingRows = false;
    sizing.SizeTo(10, 0);
    EXPECT_THAT(pageEvents.asked, IsEmpty());
}

TEST_F(LineSizingPageTest, WithoutAListThereIsNothingToFill)
{
    page.size = 0;
    sizing.SizeTo(10, 0);
    EXPECT_THAT(pageEvents.asked, IsEmpty());
}

} // namespace
} // namespace vornix
