#include "bar_geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace vornix {
namespace {

// 200 pixels long and 20 thick: arrows to 20 and from 180.
BarGeometry Bar(i32 min, i32 max, i32 page, i32 position)
{
    return { 200, 20, { min, max, page, position } };
}

TEST(BarGeometry, HasAnArrowAtEachEndAsLongAsItIsThick)
{
    const BarGeometry bar = Bar(0, 100, 1, 50);
    EXPECT_EQ(bar.PartAt(0), BarPart::LineUp);
    EXPECT_EQ(bar.PartAt(19.9), BarPart::LineUp);
    EXPECT_EQ(bar.PartAt(20), BarPart::PageUp);
    EXPECT_EQ(bar.PartAt(179.9), BarPart::PageDown);
    EXPECT_EQ(bar.PartAt(180), BarPart::LineDown);
    EXPECT_EQ(bar.PartAt(199.9), BarPart::LineDown);
}

TEST(BarGeometry, HasNothingOutside)
{
    const BarGeometry bar = Bar(0, 100, 1, 50);
    EXPECT_EQ(bar.PartAt(-0.1), BarPart::None);
    EXPECT_EQ(bar.PartAt(200), BarPart::None);
}

TEST(BarGeometry, TheThumbHasTheShareOfThePage)
{
    const BarGeometry bar = Bar(0, 60, 20, 0); // a quarter of the trough of 160
    EXPECT_EQ(bar.PartAt(20), BarPart::Thumb);
    EXPECT_EQ(bar.PartAt(59.9), BarPart::Thumb);
    EXPECT_EQ(bar.PartAt(60), BarPart::PageDown);
}

TEST(BarGeometry, TheThumbIsNeverShorterThanItsLeast)
{
    const BarGeometry bar = Bar(0, 1'000'000, 1, 0);
    EXPECT_EQ(bar.PartAt(20 + BarGeometry::ShortestThumb - 0.1), BarPart::Thumb);
    EXPECT_EQ(bar.PartAt(20 + BarGeometry::ShortestThumb), BarPart::PageDown);
}

TEST(BarGeometry, TheThumbGoesFromArrowToArrow)
{
    EXPECT_EQ(Bar(10, 70, 20, 10).ThumbStart(), 20);
    EXPECT_EQ(Bar(10, 70, 20, 40).ThumbStart(), 20 + 120 / 2);
    EXPECT_EQ(Bar(10, 70, 20, 70).ThumbStart(), 180 - 40);
}

TEST(BarGeometry, EveryPositionIsTheOneAtItsThumb)
{
    for (i32 position = -30; position <= 70; ++position) {
        const BarGeometry bar = Bar(-30, 70, 10, position);
        EXPECT_EQ(bar.PositionAt(bar.ThumbStart()), position);
    }
}

TEST(BarGeometry, AThumbThatIsDraggedTooFarStopsAtTheEnds)
{
    const BarGeometry bar = Bar(10, 70, 20, 40);
    EXPECT_EQ(bar.PositionAt(-1e9), 10);
    EXPECT_EQ(bar.PositionAt(1e9), 70);
}

TEST(BarGeometry, WithNothingToScrollOnlyTheArrowsAreThere)
{
    for (const BarGeometry& bar : { Bar(5, 5, 1, 5), Bar(5, 4, 1, 4) }) {
        EXPECT_EQ(bar.PartAt(10), BarPart::LineUp);
        EXPECT_EQ(bar.PartAt(100), BarPart::None);
        EXPECT_EQ(bar.PartAt(190), BarPart::LineDown);
    }
    EXPECT_EQ(Bar(5, 5, 1, 5).PositionAt(100), 5);
}

TEST(BarGeometry, AShortBarIsAllArrows)
{
    const BarGeometry bar(30, 20, { 0, 10, 1, 5 });
    EXPECT_EQ(bar.PartAt(14.9), BarPart::LineUp);
    EXPECT_EQ(bar.PartAt(15), BarPart::LineDown);
    EXPECT_EQ(bar.PositionAt(20), 5) << "no way for the thumb";
    EXPECT_EQ(BarGeometry(0, 0, { 0, 10, 1, 5 }).PartAt(0), BarPart::None);
}

TEST(BarGeometry, TheWidestRangeIsARange)
{
    constexpr i32 lowest = std::numeric_limits<i32>::min();
    constexpr i32 highest = std::numeric_limits<i32>::max();
    const BarGeometry bar = Bar(lowest, highest, highest, highest);
    EXPECT_EQ(bar.PositionAt(bar.ThumbStart()), highest);
    EXPECT_EQ(bar.PositionAt(20), lowest);
}

} // namespace
} // namespace vornix
