#include "render/text_placement.h"
#include "vornix/platform/device.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

// Text of a fixed height; remembers what it was asked.
class FixedHeight : public TextMeasurer {
public:
    int height = 13;
    int calls = 0;
    Rect within;
    u32 format = 0;

    int MeasuredBottom(const Rect& rect, u32 flags) override
    {
        ++calls;
        within = rect;
        format = flags;
        return rect.top + height;
    }
};

class TextPlacementTest : public testing::Test {
protected:
    FixedHeight measurer;
    TextFrame frame { .cell = { 100, 40 }, .roomBelow = 200 };

    TextPlacement Place(i32 alignment) { return PlaceText(alignment, frame, measurer); }
};

TEST_F(TextPlacementTest, TopIsTwoPixelsInAndNothingIsMeasured)
{
    const TextPlacement placed = Place(vxTxtDefault | vxNoPrefix);
    EXPECT_EQ(placed.rect, (Rect { 4, 2, 96, 37 }));
    EXPECT_EQ(placed.format, DT_NOPREFIX);
    EXPECT_EQ(measurer.calls, 0);
}

TEST_F(TextPlacementTest, MarginsNarrowTheRectangle)
{
    frame.marginLeft = 10;
    frame.marginRight = 5;
    EXPECT_EQ(Place(vxTxtDefault).rect, (Rect { 14, 2, 91, 37 }));
    EXPECT_EQ(Place(vxTxtVCenter).rect, (Rect { 14, (40 - 15) / 2, 91, 37 }));
}

TEST_F(TextPlacementTest, HorizontalFlagsAreLeftToDrawText)
{
    EXPECT_EQ(Place(vxTxtCenter).format, DT_CENTER);
    EXPECT_EQ(Place(vxTxtRight | vxWordBreak).format, DT_RIGHT | DT_WORDBREAK);
    EXPECT_EQ(Place(vxSingleLine | vxWordEllipsis).format, DT_SINGLELINE | DT_WORD_ELLIPSIS);
}

TEST_F(TextPlacementTest, VerticalCentreTakesTheMeasuredBottomFromTheHeight)
{
    const TextPlacement placed = Place(vxTxtVCenter | vxTxtRight | vxNoPrefix);
    EXPECT_EQ(measurer.within, (Rect { 4, 2, 96, 37 }));
    EXPECT_EQ(measurer.format, DT_RIGHT | DT_NOPREFIX);
    EXPECT_EQ(placed.rect, (Rect { 4, 12, 96, 37 })); // (40 - (2 + 13)) / 2
    EXPECT_EQ(placed.format, DT_RIGHT | DT_NOPREFIX);
}

TEST_F(TextPlacementTest, TallTextIsCentredAboveTheTopWithTruncation)
{
    measurer.height = 61;
    EXPECT_EQ(Place(vxTxtVCenter).rect.top, -11); // (40 - 63) / 2
}

TEST_F(TextPlacementTest, BottomLeavesRoomForTheGridLine)
{
    frame.gridLineWidth = 3;
    const TextPlacement placed = Place(vxTxtBottom);
    EXPECT_EQ(placed.rect, (Rect { 4, 40 - (15 + 3), 96, 37 }));
    EXPECT_EQ(placed.format, 0u);
}

TEST_F(TextPlacementTest, AlwaysCentredTextIsCentredInTheVisiblePartWhileTheLowerEdgeShows)
{
    frame.sourceY = 10;
    frame.roomBelow = 30; // exactly the visible part
    const TextPlacement placed = Place(vxAlwaysVCenter);
    EXPECT_EQ(placed.rect, (Rect { 4, 10 + (40 - 15 - 10) / 2, 96, 10 + 37 }));
    EXPECT_EQ(placed.format, 0u);
}

TEST_F(TextPlacementTest, AlwaysCentredTextBeginsInTheMiddleOfTheRoomWhenTheLowerEdgeIsOffScreen)
{
    frame.sourceY = 10;
    frame.roomBelow = 29;
    EXPECT_EQ(Place(vxAlwaysVCenter).rect, (Rect { 4, 10 + 14, 96, 10 + 29 }));
    EXPECT_EQ(measurer.calls, 1);
}

TEST_F(TextPlacementTest, AlwaysTopKeepsTheTextInTheVisiblePartWithoutMeasuring)
{
    frame.sourceY = 10;
    EXPECT_EQ(Place(vxAlwaysTop | vxTxtCenter).rect, (Rect { 4, 11, 96, 37 }));
    EXPECT_EQ(measurer.calls, 0);
}

TEST_F(TextPlacementTest, PlainTopScrollsAwayWithTheCell)
{
    frame.sourceY = 10;
    EXPECT_EQ(Place(vxTxtDefault).rect.top, 2);
}

TEST_F(TextPlacementTest, TheFirstVerticalFlagWinsAndOnlyItIsTakenOut)
{
    const TextPlacement placed = Place(vxTxtVCenter | vxTxtBottom);
    EXPECT_EQ(placed.rect.top, 12);
    EXPECT_EQ(placed.format, DT_BOTTOM);
    EXPECT_EQ(Place(vxTxtBottom | vxAlwaysTop).rect.top, 40 - 16);
}

TEST_F(TextPlacementTest, OwnFlagsNeverReachDrawText)
{
    EXPECT_EQ(Place(vxTxtVCenter | vxAlwaysTop | vxAlwaysVCenter).format, 0u);
    EXPECT_EQ(measurer.format, 0u);
}

TEST_F(TextPlacementTest, TheCheckBoxFlagIsPassedOn)
{
    EXPECT_EQ(Place(vxCheck3D).format, static_cast<u32>(vxCheck3D));
}

} // namespace
} // namespace vornix
