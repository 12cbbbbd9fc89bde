#include "automation/font_description.h"

#include <gtest/gtest.h>

#include <limits>

namespace vornix {
namespace {

TEST(FontHeightTest, IsPointsInNegativePixels)
{
    EXPECT_EQ(FontHeight(9, 15), -12);
    EXPECT_EQ(FontHeight(72, 15), -96);
    EXPECT_EQ(FontHeight(8.25, 15), -11);
    EXPECT_EQ(FontHeight(0, 15), 0);
}

TEST(FontHeightTest, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(FontHeight(1, 8), -3); // -2.5
    EXPECT_EQ(FontHeight(-1, 8), 3);
    EXPECT_EQ(FontHeight(7, 15), -9); // -9.33
    EXPECT_EQ(FontHeight(8, 15), -11); // -10.67
    EXPECT_EQ(FontHeight(8, 0), -1);
}

TEST(FontHeightTest, StaysWithinTheIntegers)
{
    EXPECT_EQ(FontHeight(1e300, 15), -1000000);
    EXPECT_EQ(FontHeight(std::numeric_limits<double>::quiet_NaN(), 15), -1);
}

TEST(FontDescriptionTest, HasEveryValueOfTheFont)
{
    const FontDescription expected { u"Sans", -16, 700, true, true, true, 177 };
    EXPECT_EQ(Described({ u"Sans", 12, true, true, true, true, 177 }), expected);
    EXPECT_EQ(Described({ u"Serif", 9, false, false, false, false, 1 }).weight, 400);
}

} // namespace
} // namespace vornix
