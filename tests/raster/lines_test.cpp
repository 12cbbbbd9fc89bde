#include "raster_test.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vornix;
using namespace vornix::raster_test;

TEST(Line, LeavesOutItsEndPoint)
{
    auto surface = WhiteSurface(6, 5);
    surface->Polyline({ Black, 1 }, { { 1, 1 }, { 4, 1 }, { 4, 4 }, { 1, 4 } });
    EXPECT_EQ(Drawn(*surface), R"(
......
.####.
....#.
....#.
..###.
)");
}

TEST(Line, GoesOnFromWhereTheLastOneEnded)
{
    auto surface = WhiteSurface(4, 2);
    surface->SelectPen({ Red, 1 });
    surface->MoveTo(0, 0);
    surface->LineTo(2, 0);
    surface->SelectPen({ Blue, 1 });
    surface->LineTo(4, 0);
    EXPECT_EQ(Drawn(*surface), "\nrrbb\n....\n");
}

TEST(Line, BackwardLeavesOutItsEndPointToo)
{
    auto surface = WhiteSurface(4, 3);
    surface->Polyline({ Black, 1 }, { { 3, 0 }, { 0, 0 } });
    surface->Polyline({ Red, 1 }, { { 0, 2 }, { 0, 0 } });
    EXPECT_EQ(Drawn(*surface), "\n.###\nr...\nr...\n");
}

TEST(Line, OfNoLengthDrawsNothing)
{
    auto surface = WhiteSurface(2, 1);
    surface->Polyline({ Black, 1 }, { { 0, 0 }, { 0, 0 } });
    surface->Polyline({ Black, 1 }, {});
    EXPECT_EQ(Drawn(*surface), "\n..\n");
}

TEST(Line, UpToMinusOneCoversTheFirstPixel)
{
    auto surface = WhiteSurface(3, 3);
    surface->Polyline({ Black, 1 }, { { 0, 2 }, { 2, 2 }, { 2, -1 } });
    EXPECT_EQ(Drawn(*surface), "\n..#\n..#\n###\n");
}

TEST(Line, SlantedTakesTheNearestPixelInEachStep)
{
    auto surface = WhiteSurface(8, 4);
    surface->Polyline({ Black, 1 }, { { 0, 0 }, { 7, 3 } });
    EXPECT_EQ(Drawn(*surface), R"(
##......
..##....
....##..
......#.
)");
}

TEST(Line, HalfwayBetweenTwoPixelsTakesTheUpperOrLeftOne)
{
    auto wide = WhiteSurface(4, 3);
    wide->Polyline({ Black, 1 }, { { 0, 0 }, { 4, 2 } });
    EXPECT_EQ(Drawn(*wide), "\n##..\n..##\n....\n");
    auto upward = WhiteSurface(4, 3);
    upward->Polyline({ Black, 1 }, { { 0, 2 }, { 4, 0 } });
    EXPECT_EQ(Drawn(*upward), "\n...#\n.##.\n#...\n");
    auto steep = WhiteSurface(3, 4);
    steep->Polyline({ Black, 1 }, { { 0, 0 }, { 2, 4 } });
    EXPECT_EQ(Drawn(*steep), "\n#..\n#..\n.#.\n.#.\n");
}

TEST(Line, DiagonalTouchesOnePixelARow)
{
    auto surface = WhiteSurface(4, 4);
    surface->Polyline({ Black, 1 }, { { 3, 0 }, { -1, 4 } });
    EXPECT_EQ(Drawn(*surface), "\n...#\n..#.\n.#..\n#...\n");
}

// A pen of width w covers the w pixels from w / 2 before the line on, along it and across it.
TEST(Line, WidePensLieAroundTheLine)
{
    auto two = WhiteSurface(6, 5);
    two->Polyline({ Black, 2 }, { { 2, 2 }, { 4, 2 } });
    EXPECT_EQ(Drawn(*two), R"(
......
.###..
.###..
......
......
)");
    auto three = WhiteSurface(6, 5);
    three->Polyline({ Black, 3 }, { { 2, 2 }, { 4, 2 } });
    EXPECT_EQ(Drawn(*three), R"(
......
.####.
.####.
.####.
......
)");
    auto down = WhiteSurface(5, 5);
    down->Polyline({ Black, 3 }, { { 2, 3 }, { 2, 2 } });
    EXPECT_EQ(Drawn(*down), R"(
.....
.....
.###.
.###.
.###.
)");
}

TEST(Line, WiderThanTheSurfaceStillDraws)
{
    auto surface = WhiteSurface(3, 1);
    surface->Polyline({ Red, 3 }, { { 0, 0 }, { 3, 0 } });
    EXPECT_EQ(Drawn(*surface), "\nrrr\n");
}

TEST(Line, WideAndSlantedIsTheUnionOfItsSquares)
{
    auto surface = WhiteSurface(5, 4);
    surface->Polyline({ Black, 2 }, { { 1, 1 }, { 4, 4 } });
    EXPECT_EQ(Drawn(*surface), R"(
##...
###..
.###.
..##.
)");
}

TEST(Line, FromFarAwayIsCut)
{
    constexpr int Least = std::numeric_limits<int>::min();
    constexpr int Most = std::numeric_limits<int>::max();
    auto surface = WhiteSurface(3, 2);
    surface->Polyline({ Red, 1 }, { { Least, 0 }, { Most, 0 } });
    surface->Polyline({ Blue, 1 }, { { 1, Most }, { 1, Least } });
    EXPECT_EQ(Drawn(*surface), "\nrbr\n.b.\n");
}

TEST(Pixel, OutsideTheDeviceIsNotThere)
{
    auto surface = WhiteSurface(2, 2);
    for (const Point outside : { Point { -1, 0 }, Point { 0, -1 }, Point { 2, 0 }, Point { 0, 2 } }) {
        EXPECT_EQ(surface->GetPixel(outside.x, outside.y), 0xFFFFFFFFu);
        surface->SetPixel(outside.x, outside.y, Red);
    }
    surface->SetPixel(std::numeric_limits<int>::max(), 0, Red);
    EXPECT_EQ(Drawn(*surface), "\n..\n..\n");
    surface->SetPixel(1, 1, Red);
    EXPECT_EQ(surface->GetPixel(1, 1), Red);
}
