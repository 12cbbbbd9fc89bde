// The corner between the bars has got the focus: it hands it on, and the mark of the current cell comes back.
#include "interact/mouse_fixture.h"

namespace vornix {
namespace {

class CornerFocus : public MouseTest {
protected:
    int CellsPaintedBy(ChildName child)
    {
        host->ClearLog();
        Grid().EnterChildFocus(child);
        EXPECT_EQ(host->Repaints(), 0);
        return host->Refreshes();
    }
};

TEST_F(CornerFocus, PaintsTheCurrentCell)
{
    EXPECT_EQ(CellsPaintedBy(ChildName::cPivot), 0) << "there is none yet";
    Grid().CurrentPos(1, 1);
    EXPECT_EQ(CellsPaintedBy(ChildName::cPivot), 1);
    EXPECT_EQ(CellsPaintedBy(ChildName::scrV), 0);
    Grid().ExitFocus();
    const RgbaImage without = host->Image();
    Grid().EnterChildFocus(ChildName::cPivot);
    EXPECT_NE(host->Image().bytes, without.bytes);
}

TEST_F(CornerFocus, PaintsNoCellThatIsScrolledOut)
{
    SmallWindow();
    Grid().CurrentPos(0, 0);
    Grid().SetFirstRow(50);
    EXPECT_EQ(CellsPaintedBy(ChildName::cPivot), 0);
    Grid().SetFirstRow(0);
    Grid().SetFirstCol(5);
    EXPECT_EQ(CellsPaintedBy(ChildName::cPivot), 0);
    Grid().SetShowSplit(true);
    Grid().SetSplitCols(1);
    Grid().SetFirstCol(5);
    EXPECT_EQ(CellsPaintedBy(ChildName::cPivot), 1) << "a column that stands still is always seen";
}

TEST_F(CornerFocus, PaintsNothingWhileTheButtonIsHeldOrRedrawIsOff)
{
    Grid().CurrentPos(1, 1);
    Press(2, 2);
    EXPECT_EQ(CellsPaintedBy(ChildName::cPivot), 0);
    Release(2, 2);
    Grid().SetRedraw(false);
    EXPECT_EQ(CellsPaintedBy(ChildName::cPivot), 0);
}

} // namespace
} // namespace vornix
