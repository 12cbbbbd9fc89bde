#include "render/mem_dc.h"
#include "support/fake_device.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

class MemDcTest : public testing::Test {
protected:
    std::shared_ptr<FakeScreen> screen = std::make_shared<FakeScreen>();
    FakeDevice window { screen, "window", { 500, 500 } };
    cMemDC mem;
    bool rebuilt = false;
};

TEST_F(MemDcTest, IsMadeOnTheFirstRequest)
{
    EXPECT_EQ(mem.hMemDC(), nullptr);
    Surface* const surface = mem.BuildMemDC(window, 100, 50, rebuilt);
    EXPECT_TRUE(rebuilt);
    EXPECT_EQ(mem.hMemDC(), surface);
    EXPECT_EQ(surface->GetSize(), (Size { 100, 50 }));
}

TEST_F(MemDcTest, NeverShrinks)
{
    Surface* const surface = mem.BuildMemDC(window, 100, 50, rebuilt);
    EXPECT_EQ(mem.BuildMemDC(window, 30, 50, rebuilt), surface);
    EXPECT_FALSE(rebuilt);
    EXPECT_EQ(screen->surfacesMade, 1);
}

TEST_F(MemDcTest, GrowsInBothDirections)
{
    mem.BuildMemDC(window, 100, 50, rebuilt);
    EXPECT_EQ(mem.BuildMemDC(window, 20, 80, rebuilt)->GetSize(), (Size { 100, 80 }));
    EXPECT_TRUE(rebuilt);
    mem.BuildMemDC(window, 100, 80, rebuilt);
    EXPECT_FALSE(rebuilt);
    EXPECT_EQ(screen->surfacesAlive, 2);
}

TEST_F(MemDcTest, FollowsTheScaleOfItsDevice)
{
    mem.BuildMemDC(window, 100, 50, rebuilt);
    screen->scale = 2;
    FakeDevice sharper(screen, "sharper", { 500, 500 });
    EXPECT_EQ(mem.BuildMemDC(sharper, 10, 10, rebuilt)->Scale(), 2);
    EXPECT_TRUE(rebuilt);
}

TEST_F(MemDcTest, IsNullWhenMemoryIsShort)
{
    screen->surfacesLeft = 0;
    EXPECT_EQ(mem.BuildMemDC(window, 100, 50, rebuilt), nullptr);
    EXPECT_TRUE(rebuilt);
    EXPECT_EQ(mem.FillBkGroundRect(window, 0xFF, 200, 50), nullptr);
}

TEST_F(MemDcTest, AClearedOneHandsBackNothingForASmallerSize)
{
    mem.BuildMemDC(window, 100, 50, rebuilt);
    mem.ClearMemDC();
    EXPECT_EQ(screen->surfacesAlive, 1);
    EXPECT_EQ(mem.BuildMemDC(window, 10, 10, rebuilt), nullptr);
    EXPECT_FALSE(rebuilt);
}

TEST_F(MemDcTest, AFillWithTheSameColourIsFree)
{
    mem.BuildMemDC(window, 100, 50, rebuilt);
    mem.FillBkGround(0xFF);
    mem.FillBkGround(0xFF);
    EXPECT_EQ(screen->Count("mem1.FillRect 0,0,100,50 #0000FF"), 1);
}

TEST_F(MemDcTest, TwoRectanglesInOneColourFillOnce)
{
    mem.FillBkGroundRect(window, 0xFF, 100, 50);
    mem.FillBkGroundRect(window, 0xFF, 40, 50);
    EXPECT_EQ(screen->Count("FillRect"), 1);
    mem.FillBkGroundRect(window, 0xFF00, 40, 50);
    EXPECT_EQ(screen->Count("mem1.FillRect 0,0,100,50 #00FF00"), 1);
}

TEST_F(MemDcTest, AGrownOneIsFilledAgain)
{
    mem.FillBkGroundRect(window, 0, 100, 50);
    mem.FillBkGroundRect(window, 0, 200, 50);
    EXPECT_EQ(screen->Count("mem1.FillRect 0,0,100,50 #000000"), 1);
    EXPECT_EQ(screen->Count("mem2.FillRect 0,0,200,50 #000000"), 1);
}

} // namespace
} // namespace vornix
