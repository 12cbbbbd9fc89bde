#include "raster_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vornix;
using namespace vornix::raster_test;

TEST(BitBlt, OntoItselfShiftsAsFromACopy)
{
    auto surface = WhiteSurface(5, 4);
    surface->SetPixel(0, 0, Red);
    surface->SetPixel(1, 1, Blue);
    surface->SetPixel(2, 2, Black);
    EXPECT_TRUE(surface->BitBlt({ 1, 1, 4, 3 }, *surface, { 0, 0 }, RasterOp::SrcCopy));
    EXPECT_EQ(Drawn(*surface), R"(
r....
.r...
..b..
.....
)");
}

TEST(BitBlt, OfARectangleBeyondAllIntegersIsCut)
{
    constexpr int Most = std::numeric_limits<int>::max();
    auto target = WhiteSurface(2, 2);
    auto source = WhiteSurface(3, 3);
    source->FillRect({ 0, 0, 3, 3 }, Red);
    EXPECT_TRUE(target->BitBlt({ 1, 1, Most, Most }, *source, { 2, 2 }, RasterOp::SrcCopy));
    EXPECT_EQ(Drawn(*target), "\n..\n.r\n");
    EXPECT_TRUE(target->BitBlt({ 0, 0, 2, 2 }, *source, { Most, std::numeric_limits<int>::min() }, RasterOp::SrcCopy));
    EXPECT_EQ(Drawn(*target), "\n..\n.r\n");
}

TEST(BitBlt, OfAReversedRectangleDrawsNothing)
{
    auto target = WhiteSurface(3, 1);
    auto source = WhiteSurface(3, 1);
    source->FillRect({ 0, 0, 3, 1 }, Red);
    EXPECT_TRUE(target->BitBlt({ 2, 0, 0, 1 }, *source, { 0, 0 }, RasterOp::SrcCopy));
    EXPECT_EQ(Drawn(*target), "\n...\n");
}

TEST(TransparentBlt, LeavesOutOneColor)
{
    auto target = WhiteSurface(4, 1);
    target->FillRect({ 0, 0, 4, 1 }, Blue);
    auto source = WhiteSurface(4, 1);
    source->SetPixel(1, 0, Red);
    source->SetPixel(3, 0, Black);
    EXPECT_TRUE(target->TransparentBlt({ 0, 0, 4, 1 }, *source, { 0, 0, 4, 1 }, White));
    EXPECT_EQ(Drawn(*target), "\nbrb#\n");
}

TEST(TransparentBlt, Stretches)
{
    auto target = WhiteSurface(4, 2);
    auto source = WhiteSurface(2, 1);
    source->SetPixel(0, 0, Red);
    source->SetPixel(1, 0, Green);
    EXPECT_TRUE(target->TransparentBlt({ 0, 0, 4, 2 }, *source, { 0, 0, 2, 1 }, Green));
    EXPECT_EQ(Drawn(*target), "\nrr..\nrr..\n");
}

TEST(TransparentBlt, RefusesReversedRectangles)
{
    auto target = WhiteSurface(2, 1);
    auto source = WhiteSurface(2, 1);
    source->FillRect({ 0, 0, 2, 1 }, Red);
    EXPECT_FALSE(target->TransparentBlt({ 2, 0, 0, 1 }, *source, { 0, 0, 2, 1 }, Green));
    EXPECT_FALSE(target->TransparentBlt({ 0, 0, 2, 1 }, *source, { 2, 0, 0, 1 }, Green));
    EXPECT_EQ(Drawn(*target), "\n..\n");
}

TEST(AlphaBlend, RoundsEachChannelToTheNearest)
{
    // Every pair of channels for some alphas, 256 by 256 at a time.
    for (const int alpha : { 0, 1, 76, 127, 128, 191, 254, 255 }) {
        auto target = WhiteSurface(256, 256);
        auto source = WhiteSurface(256, 256);
        for (int y = 0; y < 256; ++y) {
            for (int x = 0; x < 256; ++x) {
                target->SetPixel(x, y, static_cast<ColorRef>(x | (255 - x) << 8 | y << 16));
                source->SetPixel(x, y, static_cast<ColorRef>(y | x << 8 | (255 - y) << 16));
            }
        }
        EXPECT_TRUE(target->AlphaBlend({ 0, 0, 256, 256 }, *source, { 0, 0, 256, 256 }, BlendFunction(alpha)));
        const auto mixed = [alpha](int from, int onto) {
            return static_cast<u32>(std::lround((from * alpha + onto * (255 - alpha)) / 255.0));
        };
        int wrong = 0;
        for (int y = 0; y < 256; ++y) {
            for (int x = 0; x < 256; ++x) {
                const u32 expected = mixed(y, x) | mixed(x, 255 - x) << 8 | mixed(255 - y, y) << 16;
                wrong += target->GetPixel(x, y) != expected ? 1 : 0;
            }
        }
        EXPECT_EQ(wrong, 0) << "alpha " << alpha;
    }
}

TEST(AlphaBlend, FailsWhenTheSourceRectangleLeavesTheSource)
{
    auto target = WhiteSurface(4, 4);
    auto source = WhiteSurface(3, 3);
    source->FillRect({ 0, 0, 3, 3 }, Red);
    for (const Rect outside : { Rect { -1, 0, 2, 2 }, Rect { 0, -1, 2, 2 }, Rect { 0, 0, 4, 2 }, Rect { 0, 0, 2, 4 },
             Rect { 2, 0, 0, 2 }, Rect { 0, 2, 2, 0 } })
        EXPECT_FALSE(target->AlphaBlend({ 0, 0, 2, 2 }, *source, outside, BlendFunction(255)));
    EXPECT_FALSE(target->AlphaBlend({ 2, 0, 0, 2 }, *source, { 0, 0, 2, 2 }, BlendFunction(255)));
    EXPECT_EQ(Drawn(*target), "\n....\n....\n....\n....\n");
    EXPECT_TRUE(target->AlphaBlend({ 0, 0, 3, 3 }, *source, { 0, 0, 3, 3 }, BlendFunction(255)));
    EXPECT_EQ(Drawn(*target), "\nrrr.\nrrr.\nrrr.\n....\n");
}

TEST(AlphaBlend, CutAtTheTargetStillSucceeds)
{
    auto target = WhiteSurface(2, 2);
    auto source = WhiteSurface(3, 3);
    source->FillRect({ 0, 0, 3, 3 }, Red);
    source->SetPixel(2, 2, Black);
    EXPECT_TRUE(target->AlphaBlend({ -2, -2, 1, 1 }, *source, { 0, 0, 3, 3 }, BlendFunction(255)));
    EXPECT_EQ(Drawn(*target), "\n#.\n..\n");
}

TEST(AlphaBlend, OfASurfaceWithItselfReadsWhatWasThere)
{
    auto surface = WhiteSurface(3, 1);
    surface->FillRect({ 0, 0, 1, 1 }, Black);
    EXPECT_TRUE(surface->AlphaBlend({ 1, 0, 3, 1 }, *surface, { 0, 0, 2, 1 }, BlendFunction(128)));
    EXPECT_EQ(surface->GetPixel(0, 0), 0x000000u);
    EXPECT_EQ(surface->GetPixel(1, 0), 0x7F7F7Fu);
    EXPECT_EQ(surface->GetPixel(2, 0), 0xFFFFFFu);
}

TEST(Icon, BlendsEachPixelByItsOwnAlpha)
{
    const std::vector<u8> rgba { 255, 0, 0, 0, 255, 0, 0, 255, 0, 0, 0, 51, 10, 20, 30, 128 };
    const PicturePtr icon = PictureObject::FromRgba(4, 1, rgba, PictureType::Icon);
    auto surface = WhiteSurface(6, 2);
    surface->DrawIcon(1, 1, *icon);
    EXPECT_EQ(surface->GetPixel(0, 1), White);
    EXPECT_EQ(surface->GetPixel(1, 1), White);
    EXPECT_EQ(surface->GetPixel(2, 1), Red);
    EXPECT_EQ(surface->GetPixel(3, 1), 0xCCCCCCu);
    // (10 * 128 + 255 * 127) / 255 = 132.02, (20 * 128 + ...) = 137.04, (30 * 128 + ...) = 142.06
    EXPECT_EQ(surface->GetPixel(4, 1), 0x8E8984u);
    EXPECT_EQ(surface->GetPixel(5, 1), White);
    EXPECT_EQ(surface->GetPixel(2, 0), White);
}

TEST(Icon, IsCutAtTheEdges)
{
    const PicturePtr icon = SolidPicture(3, 3, 0, 0, 255, 255, PictureType::Icon);
    auto surface = WhiteSurface(3, 2);
    surface->DrawIcon(-2, 1, *icon);
    surface->DrawIcon(2, -1, *icon);
    surface->DrawIcon(std::numeric_limits<int>::max(), 0, *icon);
    surface->DrawIcon(0, 0, PictureObject());
    EXPECT_EQ(Drawn(*surface), "\n..b\nb.b\n");
}

TEST(PictureSurface, HoldsThePicturePixelByPixel)
{
    const std::vector<u8> rgba { 255, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255, 255, 0, 0, 255, 0 };
    auto surface = WhiteSurface(3, 3, 2.0);
    const std::unique_ptr<Surface> picture = surface->CreateFromPicture(*PictureObject::FromRgba(2, 2, rgba));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->GetSize(), (Size { 2, 2 }));
    EXPECT_EQ(picture->Scale(), 1.0);
    surface->BitBlt({ 0, 0, 2, 2 }, *picture, { 0, 0 }, RasterOp::SrcCopy);
    EXPECT_EQ(Drawn(*surface), R"(
rr##..
rr##..
..bb..
..bb..
......
......
)");
    EXPECT_EQ(surface->CreateFromPicture(PictureObject()), nullptr);
}
