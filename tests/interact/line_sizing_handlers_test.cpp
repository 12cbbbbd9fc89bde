// Handlers of ResizeCol and ResizeRow that do anything at all.
#include "interact/sizing_fixture.h"

#include "vornix/memory_stores.h"

#include <stdexcept>

namespace vornix {
namespace {

using testing::Each;
using testing::ElementsAre;

class LineSizingHandlersTest : public SizingTest {
protected:
    void OnResizeCol(const std::function<void()>& step)
    {
        handlers.OnResizeCol = [step](i16, i16&) { step(); };
    }
    void OnResizeRow(const std::function<void()>& step)
    {
        handlers.OnResizeRow = [step](i16, i16&) { step(); };
    }
    // What is left can be used, and a release ends the drag.
    void ExpectUsable()
    {
        LetGo(200, Header);
        EXPECT_FALSE(Grid().IsSizingMode());
        handlers.OnResizeCol = nullptr;
        handlers.OnResizeRow = nullptr;
        EXPECT_TRUE(IsPainted());
        host->MouseMove(200, 200);
        ClickOn(1, 1);
    }
};

TEST_F(LineSizingHandlersTest, TheColumnIsDeleted)
{
    OnResizeCol([this] { Grid().SetCols(2); });
    CatchCol(3);
    host->ClearLog();
    Drag(520, Header);
    EXPECT_THAT(Widths(), Each(120));
    EXPECT_EQ(host->Repaints(), 1) << "what is left is painted";
    host->ClearLog();
    Drag(500, Header);
    EXPECT_EQ(host->Count("ResizeCol"), 0) << "there is nothing left to size";
    EXPECT_TRUE(Grid().IsSizingMode());
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, AllColumnsAreDeleted)
{
    OnResizeCol([this] {
        Grid().SetCols(0);
        Grid().SetFixedCols(0);
    });
    CatchCol(0);
    Drag(200, Header);
    EXPECT_EQ(Grid().Cols(), 0);
    Drag(100, Header);
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, ColumnsAreDeletedBeforeIt)
{
    OnResizeCol([this] { Grid().SetFixedCols(0); });
    CatchCol(1);
    Drag(300, Header);
    EXPECT_EQ(Grid().FixedCols(), 0);
    EXPECT_THAT(Widths(), ElementsAre(120, 120, 150, 120, 120)) << "what stands at its place takes the width";
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, TheRowIsDeleted)
{
    OnResizeRow([this] { Grid().SetRows(2); });
    CatchRow(10);
    Drag(Header, 260);
    EXPECT_THAT(Heights(), ElementsAre(21, 21));
    host->ClearLog();
    Drag(Header, 250);
    EXPECT_EQ(host->Count("ResizeRow"), 0);
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, RowsAreDeletedWhileAllAreSized)
{
    Grid().SetResizingRows(true);
    OnResizeRow([this] { Grid().SetRows(0); });
    CatchRow(10);
    Drag(Header, 260);
    EXPECT_EQ(Grid().Rows(), 0);
    Drag(Header, 0);
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, RowsComeWhileAllAreSized)
{
    Grid().SetResizingRows(true);
    OnResizeRow([this] { Grid().SetRows(40); });
    CatchRow(0);
    Drag(Header, 51);
    EXPECT_EQ(Heights().size(), 40U);
    EXPECT_THAT(Heights(), Each(30));
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, TheLineIsHidden)
{
    OnResizeCol([this] { Grid().SetColHide(1, true); });
    CatchCol(1);
    Drag(300, Header);
    EXPECT_EQ(Grid().ColWidth(1), 0);
    EXPECT_TRUE(Grid().ColHide(1));
    Grid().SetColHide(1, false);
    EXPECT_EQ(Grid().ColWidth(1), 150) << "it takes the width for later";
    LetGo(300, Header);
    OnResizeRow([this] { Grid().SetRowHide(1, true); });
    CatchRow(1);
    Drag(Header, 72);
    EXPECT_EQ(Grid().RowHeight(1), 0);
    Grid().SetRowHide(1, false);
    EXPECT_EQ(Grid().RowHeight(1), 30);
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, TheLineIsLocked)
{
    OnResizeCol([this] { Grid().SetColResize(1, false); });
    CatchCol(1);
    Drag(300, Header);
    EXPECT_EQ(Grid().ColWidth(1), 150);
    Drag(310, Header);
    EXPECT_EQ(Grid().ColWidth(1), 160) << "the drag goes on";
    LetGo(310, Header);
    EXPECT_EQ(ShapeAt(309, Header), PointerShape::Default);
}

TEST_F(LineSizingHandlersTest, TheWidthIsWrittenByTheMember)
{
    OnResizeCol([this] { Grid().SetColWidth(1, 44); });
    CatchCol(1);
    Drag(300, Header);
    EXPECT_EQ(Grid().ColWidth(1), 150) << "the argument decides";
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, DrawingIsSwitchedOff)
{
    OnResizeCol([this] { Grid().SetRedraw(false); });
    CatchCol(1);
    host->ClearLog();
    Drag(300, Header);
    EXPECT_EQ(host->Repaints(), 1);
    Grid().SetText(0, 0, u"unseen");
    EXPECT_EQ(host->Refreshes(), 0);
    Grid().SetRedraw(true);
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, DrawingIsSwitchedOnInBetween)
{
    Grid().SetRedraw(false);
    OnResizeRow([this] {
        Grid().SetRedraw(true);
        Grid().SetText(0, 0, u"seen");
    });
    CatchRow(0);
    Drag(Header, 60);
    EXPECT_EQ(Grid().RowHeight(0), 39);
    host->ClearLog();
    Grid().SetText(0, 0, u"again");
    EXPECT_NE(host->Refreshes(), 0);
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, TheControlIsClosed)
{
    OnResizeCol([this] { host->Close(); });
    CatchCol(1);
    host->ClearLog();
    Drag(300, Header);
    EXPECT_TRUE(Grid().IsTerminated());
    EXPECT_EQ(host->Count("ResizeCol"), 1);
    EXPECT_EQ(ErrorOf([&] { Drag(310, Header); }), ErrorNumber::InvalidArgument);
}

TEST_F(LineSizingHandlersTest, TheControlIsClosedByARow)
{
    Grid().SetResizingRows(true);
    OnResizeRow([this] { host->Close(); });
    CatchRow(1);
    Drag(Header, 0);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(LineSizingHandlersTest, TheControlIsClosedByThePaintOfTheDrag)
{
    Grid().SetCellStyle(1, 1, vxCustomDraw);
    CatchCol(1);
    handlers.OnDrawCell = [this](i16, i16, Hdc&, bool&) { host->Close(); };
    Drag(300, Header);
    EXPECT_TRUE(Grid().IsTerminated());
}

TEST_F(LineSizingHandlersTest, TheButtonIsLetGoInside)
{
    OnResizeCol([this] { LetGo(300, Header); });
    CatchCol(1);
    Drag(300, Header);
    EXPECT_FALSE(Grid().IsSizingMode());
    EXPECT_EQ(Grid().ColWidth(1), 150) << "the step that had begun is ended";
    Drag(350, Header);
    EXPECT_EQ(Grid().ColWidth(1), 150);
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, ThePointerMovesOnInside)
{
    int depth = 0;
    handlers.OnResizeCol = [&](i16, i16&) {
        if (++depth < 3)
            Drag(300.0F + 10.0F * static_cast<float>(depth), Header);
    };
    CatchCol(1);
    Drag(300, Header);
    EXPECT_EQ(depth, 3);
    EXPECT_EQ(Grid().ColWidth(1), 150) << "the outermost move is the last to be stored";
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, TheViewScrollsInside)
{
    SmallWindow();
    Grid().SetScrollHBar(vxScrollTrack);
    OnResizeCol([this] {
        Grid().SetFirstCol(10);
        Grid().SetFirstRow(10);
    });
    Catch(149, Header);
    Drag(160, Header);
    EXPECT_EQ(Grid().ColWidth(0), 130);
    EXPECT_EQ(Grid().FirstCol(), 0) << "the column that is sized stays in view";
    ExpectUsable();
}

TEST_F(LineSizingHandlersTest, TheTableIsReadAnew)
{
    MemoryBag bag;
    bag.WriteProperty("Rows", 3);
    bag.WriteProperty("Cols", 2);
    OnResizeCol([&] { Grid().ReadProperties(bag); });
    CatchCol(4);
    Drag(600, Header);
    EXPECT_EQ(Grid().Cols(), 2);
    Drag(100, Header);
    LetGo(100, Header);
    EXPECT_FALSE(Grid().IsSizingMode());
}

TEST_F(LineSizingHandlersTest, ATableReadAnewIsNotSizedByTheDragOfTheOldOne)
{
    MemoryBag bag;
    bag.WriteProperty("Rows", 3);
    bag.WriteProperty("Cols", 5);
    CatchCol(1);
    Grid().ReadProperties(bag);
    EXPECT_FALSE(Grid().IsSizingMode());
    host->ClearLog();
    Drag(200, Header);
    EXPECT_EQ(host->Count("ResizeCol"), 0);
}

TEST_F(LineSizingHandlersTest, ThePropertiesOfTheSplitChangeInside)
{
    SmallWindow();
    OnResizeCol([this] {
        Grid().SetShowSplit(true);
        Grid().SetSplitCols(2);
    });
    Catch(149, Header);
    Drag(100, Header);
    EXPECT_EQ(Grid().ColWidth(0), 70);
    EXPECT_EQ(Grid().SplitCols(), 2);
    LetGo(100, Header);
    handlers.OnResizeCol = nullptr;
    EXPECT_TRUE(IsPainted());
}

TEST_F(LineSizingHandlersTest, AnErrorOfTheHostEndsTheStepAndOpensTheGate)
{
    OnResizeCol([] { throw std::runtime_error("the host's own"); });
    CatchCol(1);
    EXPECT_THROW(Drag(300, Header), std::runtime_error);
    EXPECT_EQ(Grid().ColWidth(1), 120);
    EXPECT_TRUE(Grid().IsSizingMode());
    host->ClearLog();
    Grid().SetText(0, 0, u"seen");
    EXPECT_NE(host->Refreshes(), 0);
    ExpectUsable();
}

} // namespace
} // namespace vornix
