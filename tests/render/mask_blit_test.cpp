#include "render/mask_blit.h"
#include "support/fake_device.h"

#include <gmock/gmock.h>

namespace vornix {
namespace {

using testing::ElementsAre;

class MaskBlitTest : public testing::Test {
protected:
    std::shared_ptr<FakeScreen> screen = std::make_shared<FakeScreen>();
    FakeDevice device { screen, "d", { 50, 20 } };
    FakeDevice bitmap { screen, "bitmap", { 8, 6 } };
};

TEST_F(MaskBlitTest, ATransparentCopyIsEnough)
{
    MaskBlit(device, { 3, 4 }, { 8, 6 }, bitmap, 0xFF00FF, true);
    EXPECT_THAT(screen->journal, ElementsAre("d.TransparentBlt 3,4,11,10 from bitmap 0,0,8,6 #FF00FF"));
}

TEST_F(MaskBlitTest, MasksDoTheSameWhereThereIsNoTransparentCopy)
{
    screen->transparentBltFails = true;
    MaskBlit(device, { 3, 4 }, { 8, 6 }, bitmap, 0xFF00FF, false);
    EXPECT_THAT(screen->journal,
        ElementsAre("d.TransparentBlt 3,4,11,10 from bitmap 0,0,8,6 #FF00FF", "d.CreateMonochrome 8x6 mono1",
            "d.CreateCompatible 8x6 at 0,0 mem2", "bitmap.SetBkColor #FF00FF",
            "mono1.BitBlt 0,0,8,6 from bitmap 0,0 SRCCOPY", "d.BitBlt 3,4,11,10 from mono1 0,0 SRCAND",
            "mono1.BitBlt 0,0,8,6 from mono1 0,0 DSTINVERT", "mem2.BitBlt 0,0,8,6 from bitmap 0,0 SRCCOPY",
            "mem2.BitBlt 0,0,8,6 from mono1 0,0 SRCAND", "d.BitBlt 3,4,11,10 from mem2 0,0 SRCPAINT"));
    EXPECT_EQ(screen->surfacesAlive, 2);
}

TEST_F(MaskBlitTest, ASelectedBitmapShowsThroughADither)
{
    screen->transparentBltFails = true;
    MaskBlit(device, { 0, 0 }, { 8, 6 }, bitmap, 0, true);
    EXPECT_EQ(screen->Count("mem2.FillPattern 0,0,8,6 mem3"), 1);
    EXPECT_EQ(screen->Count("mono1.BitBlt 0,0,8,6 from mem2 0,0 SRCAND"), 1);
    EXPECT_EQ(screen->Count("mem3.SetPixel"), 32); // half of 8 by 8
    EXPECT_EQ(screen->surfacesAlive, 2);
}

TEST_F(MaskBlitTest, WithoutSurfacesNothingIsDrawn)
{
    screen->transparentBltFails = true;
    screen->surfacesLeft = 1;
    MaskBlit(device, { 0, 0 }, { 8, 6 }, bitmap, 0, false);
    EXPECT_EQ(screen->Count("BitBlt 0,0"), 0);
    EXPECT_EQ(screen->surfacesAlive, 2);
}

} // namespace
} // namespace vornix
