// Where the pointer offers to size a line, and what a press makes of it.
#include "interact/sizing_fixture.h"

namespace vornix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using LineSizingCursorTest = SizingTest;

constexpr PointerShape None = PointerShape::Default;
constexpr PointerShape WestEast = PointerShape::SizeWE;
constexpr PointerShape NorthSouth = PointerShape::SizeNS;

TEST_F(LineSizingCursorTest, ShowsAtTheEndOfAColumnInTheFixedRows)
{
    EXPECT_EQ(ShapeAt(143, Header), None);
    EXPECT_EQ(ShapeAt(144, Header), WestEast);
    EXPECT_EQ(Grid().MousePointer(), 99);
    EXPECT_EQ(ShapeAt(154, Header), WestEast);
    EXPECT_EQ(ShapeAt(155, Header), None);
    EXPECT_EQ(Grid().MousePointer(), 0);
    EXPECT_FALSE(Grid().IsSizingMode());
    EXPECT_EQ(ShapeAt(634, Header), WestEast) << "behind the last column";
    EXPECT_EQ(ShapeAt(635, Header), None);
}

TEST_F(LineSizingCursorTest, ShowsAtTheEndOfARowInTheFixedColumns)
{
    EXPECT_EQ(ShapeAt(Header, 35), None);
    EXPECT_EQ(ShapeAt(Header, 36), NorthSouth);
    EXPECT_EQ(Grid().MousePointer(), 99);
    EXPECT_EQ(ShapeAt(Header, 46), NorthSouth);
    EXPECT_EQ(ShapeAt(Header, 47), None);
    EXPECT_EQ(ShapeAt(Header, 445), NorthSouth) << "below the last row";
    EXPECT_EQ(ShapeAt(Header, 446), None);
}

TEST_F(LineSizingCursorTest, TheFixedLinesEndWithTheFirstPixelBehindThem)
{
    EXPECT_EQ(ShapeAt(ColEnd(0), 21), WestEast);
    EXPECT_EQ(ShapeAt(ColEnd(0), 22), None);
    EXPECT_EQ(ShapeAt(30, RowEnd(0)), NorthSouth);
    EXPECT_EQ(ShapeAt(31, RowEnd(0)), None);
}

TEST_F(LineSizingCursorTest, FixedLinesAreSizedToo)
{
    EXPECT_EQ(ShapeAt(28, Header), WestEast);
    EXPECT_EQ(ShapeAt(Header, 20), NorthSouth);
    EXPECT_EQ(ShapeAt(28, 20), WestEast) << "in the corner the column comes first";
}

TEST_F(LineSizingCursorTest, GoesWithTheNextMove)
{
    ShapeAt(ColEnd(0), Header);
    EXPECT_EQ(ShapeAt(200, 200), None);
    EXPECT_EQ(ShapeAt(ColEnd(1), Header), WestEast);
    EXPECT_EQ(ShapeAt(Header, RowEnd(3)), NorthSouth) << "from one shape to the other";
}

TEST_F(LineSizingCursorTest, StaysWhileAButtonIsHeld)
{
    host->MouseMove(ColEnd(0), Header, 1);
    EXPECT_EQ(host->Pointer(), None);
    ShapeAt(ColEnd(0), Header);
    host->MouseMove(200, 200, 2);
    EXPECT_EQ(host->Pointer(), WestEast);
}

TEST_F(LineSizingCursorTest, ALockedColumnIsNotOfferedAndBlocksWhatLiesBeforeIt)
{
    Grid().SetColResize(1, false);
    for (float x = ColEnd(1) - 6; x < ColEnd(1) + 5; ++x)
        EXPECT_EQ(ShapeAt(x, Header), None) << x;
    for (float x = ColEnd(0) - 6; x < ColEnd(0) + 5; ++x)
        EXPECT_EQ(ShapeAt(x, Header), WestEast) << "its first pixels still offer the one before it, " << x;
    Grid().SetColWidth(1, 0);
    EXPECT_EQ(ShapeAt(ColEnd(0) + 2, Header), WestEast) << "without a width it blocks nothing";
}

TEST_F(LineSizingCursorTest, ALockedRowIsNotOffered)
{
    Grid().SetRowResize(1, false);
    for (float y = RowEnd(1) - 6; y < RowEnd(1) + 5; ++y)
        EXPECT_EQ(ShapeAt(Header, y), None) << y;
    EXPECT_EQ(ShapeAt(Header, RowEnd(0) + 4), NorthSouth);
}

TEST_F(LineSizingCursorTest, FollowsResizeMode)
{
    const auto shapes = [this] { return std::pair(ShapeAt(ColEnd(0), Header), ShapeAt(Header, RowEnd(0))); };
    EXPECT_EQ(shapes(), std::pair(WestEast, NorthSouth));
    Grid().SetResizeMode(vxRow);
    EXPECT_EQ(shapes(), std::pair(None, NorthSouth));
    Grid().SetResizeMode(vxColumn);
    EXPECT_EQ(shapes(), std::pair(WestEast, None));
    Grid().SetResizeMode(vxNone);
    EXPECT_EQ(shapes(), std::pair(None, None));
    Grid().SetColResize(0, true);
    EXPECT_EQ(shapes(), std::pair(WestEast, None)) << "the flag of the line decides";
}

TEST_F(LineSizingCursorTest, HiddenLinesArePassedOver)
{
    Grid().SetColHide(1, true);
    Grid().SetRowHide(1, true);
    CatchCol(0);
    Drag(ColEnd(0) + 10, Header);
    LetGo(ColEnd(0) + 10, Header);
    EXPECT_THAT(Widths(), ElementsAre(130, 0, 120, 120, 120)) << "column 0, not the hidden one behind it";
    EXPECT_EQ(ShapeAt(Header, RowEnd(0) + 4), NorthSouth);
}

TEST_F(LineSizingCursorTest, TheCaptionHasNoBoundaries)
{
    Grid().SetFixedRows(2);
    Grid().SetCaptionEnabled(true);
    EXPECT_EQ(ShapeAt(ColEnd(0), 10), None);
    EXPECT_EQ(ShapeAt(Header, 19), None);
    EXPECT_EQ(ShapeAt(ColEnd(0), 31), WestEast) << "the header below it has";
    EXPECT_EQ(ShapeAt(Header, 22), NorthSouth) << "from below it can be sized";
    EXPECT_EQ(ShapeAt(Header, 41), NorthSouth);
}

TEST_F(LineSizingCursorTest, OfASpanOnlyTheLastLineIsOffered)
{
    Grid().SetColSpan(-1, 1, 2);
    EXPECT_EQ(ShapeAt(ColEnd(1), Header), None);
    EXPECT_EQ(ShapeAt(ColEnd(2), Header), WestEast);
    EXPECT_EQ(ShapeAt(ColEnd(0), Header), WestEast);
    Grid().SetRowSpan(1, -1, 3);
    EXPECT_EQ(ShapeAt(Header, RowEnd(1)), None);
    EXPECT_EQ(ShapeAt(Header, RowEnd(2)), None);
    EXPECT_EQ(ShapeAt(Header, RowEnd(3)), NorthSouth);
}

TEST_F(LineSizingCursorTest, AColumnScrolledAwayIsNotOffered)
{
    SmallWindow();
    Grid().SetFirstCol(5);
    // The boundary at 30 belongs to the fixed column and to none of those scrolled away.
    Catch(31, Header);
    EXPECT_TRUE(Grid().IsSizingMode());
    Drag(50, Header);
    EXPECT_EQ(Grid().ColWidth(-1), 50);
    EXPECT_EQ(Grid().ColWidth(4), 120);
}

TEST_F(LineSizingCursorTest, WithoutFixedLinesOnlyTheFirstPixelIsLeft)
{
    Table(5, 5);
    EXPECT_EQ(ShapeAt(120, 0), WestEast);
    EXPECT_EQ(ShapeAt(120, 1), None);
    EXPECT_EQ(ShapeAt(0, 21), NorthSouth);
    EXPECT_EQ(ShapeAt(1, 21), None);
}

TEST_F(LineSizingCursorTest, TablesWithoutLinesOfferWhatTheyHave)
{
    MouseTable(0, 5);
    EXPECT_EQ(ShapeAt(ColEnd(0), Header), WestEast);
    EXPECT_EQ(ShapeAt(ColEnd(0), 21), None) << "no row is left there";
    EXPECT_EQ(ShapeAt(Header, 20), NorthSouth);
    MouseTable(5, 0);
    EXPECT_EQ(ShapeAt(28, Header), WestEast);
    EXPECT_EQ(ShapeAt(Header, RowEnd(1)), NorthSouth);
    Table(0, 0);
    for (const float place : { 0.0F, 3.0F, 100.0F })
        EXPECT_EQ(ShapeAt(place, place), None);
}

TEST_F(LineSizingCursorTest, ARightPressPutsThePointerBack)
{
    ShapeAt(ColEnd(0), Header);
    host->MouseDown(ColEnd(0), Header, 2);
    EXPECT_EQ(host->Pointer(), None);
    EXPECT_EQ(Grid().MousePointer(), 0);
    EXPECT_FALSE(Grid().IsSizingMode());
}

TEST_F(LineSizingCursorTest, APressSizesWhatLiesThereNow)
{
    ShapeAt(ColEnd(0), Header);
    Grid().SetColWidth(0, 100); // 130 is the end now
    host->ClearLog();
    host->MouseDown(ColEnd(0), Header);
    EXPECT_FALSE(Grid().IsSizingMode());
    EXPECT_EQ(host->Pointer(), None);
    EXPECT_EQ(host->Count("MouseDown"), 1) << "a press like any other";
}

TEST_F(LineSizingCursorTest, APressOnALineThatWasLockedMeanwhileSizesNothing)
{
    ShapeAt(ColEnd(0) - 1, Header);
    Grid().SetColResize(0, false);
    host->MouseDown(ColEnd(0) - 1, Header);
    EXPECT_FALSE(Grid().IsSizingMode());
    EXPECT_EQ(host->Pointer(), None);
}

TEST_F(LineSizingCursorTest, APressOnTheBoundaryTellsNothingButThatTheCellIsLeft)
{
    host->MouseMove(ColEnd(0) - 1, Header);
    host->ClearLog();
    host->MouseDown(ColEnd(0) - 1, Header);
    EXPECT_TRUE(Grid().IsSizingMode());
    EXPECT_THAT(Said(), ElementsAre("CellOut Row=-1 Col=0"));
    EXPECT_FALSE(host->IsTimerEnabled());
    EXPECT_EQ(host->Repaints(), 0);
}

TEST_F(LineSizingCursorTest, OtherPressesAreIgnoredDuringTheDrag)
{
    CatchCol(0);
    host->ClearLog();
    host->MouseDown(300, 300, 4);
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_TRUE(Grid().IsSizingMode());
    host->MouseDown(300, 300, 2);
    EXPECT_FALSE(Grid().IsSizingMode()) << "the right button ends it";
    EXPECT_EQ(host->Pointer(), None);
}

TEST_F(LineSizingCursorTest, ADoubleClickOnTheBoundaryFitsTheColumnAndEndsTheDrag)
{
    Grid().SetText(2, 0, u"what the column holds");
    i32 width = 0;
    i32 height = 0;
    Grid().CalcRectText(2, 0, width, height);
    CatchCol(0);
    LetGo(ColEnd(0) - 1, Header);
    host->Click();
    host->MouseDown(ColEnd(0) - 1, Header);
    EXPECT_TRUE(Grid().IsSizingMode());
    host->DblClick();
    EXPECT_FALSE(Grid().IsSizingMode());
    Drag(ColEnd(0) + 30, Header);
    EXPECT_EQ(Grid().ColWidth(0), width);
}

} // namespace
} // namespace vornix
