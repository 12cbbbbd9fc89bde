#include "raster_test.h"

#include <gtest/gtest.h>

#include <functional>

using namespace vornix;
using namespace vornix::raster_test;

namespace {

constexpr Size ParentSize { 70, 50 };
constexpr Rect Everything { 0, 0, 70, 50 };

// What is not drawn on either kind of surface: their first contents differ.
using Script = std::vector<std::function<void(Surface&)>>;

Rect RandomRect(std::mt19937& random, Size size)
{
    const int left = Between(random, -3, size.width + 2);
    const int top = Between(random, -3, size.height + 2);
    return { left, top, left + Between(random, 0, size.width + 3), top + Between(random, 0, size.height + 3) };
}

ColorRef RandomColor(std::mt19937& random)
{
    return static_cast<ColorRef>(random() & 0xFFFFFF);
}

std::function<void(Surface&)> RandomStep(std::mt19937& random, Size size, RasterSurface& other)
{
    const Rect rect = RandomRect(random, size);
    const Rect second = RandomRect(random, size);
    const ColorRef color = RandomColor(random);
    const int number = Between(random, 1, 4);
    switch (Between(random, 0, 14)) {
    case 0:
        return [=](Surface& mem) { mem.FillRect(rect, color); };
    case 1:
        return [=](Surface& mem) { mem.FrameRect(rect, color); };
    case 2:
        return [=](Surface& mem) {
            mem.Polyline({ color, number }, { { rect.left, rect.top }, { rect.right, rect.bottom }, { 0, rect.top } });
        };
    case 3: // the shift of a pressed cell
        return [=](Surface& mem) {
            mem.BitBlt({ 1, 1, size.width - 1, size.height - 1 }, mem, { 0, 0 }, RasterOp::SrcCopy);
        };
    case 4:
        return [=](Surface& mem) { mem.BitBlt(rect, mem, { second.left, second.top }, RasterOp::SrcInvert); };
    case 5:
        return [=](Surface& mem) { mem.StretchBlt(rect, mem, second, RasterOp::SrcCopy); };
    case 6:
        return [=, &other](Surface& mem) { mem.AlphaBlend(rect, other, { 0, 0, 9, 9 }, BlendFunction(number * 50)); };
    case 7:
        return [=, &other](Surface& mem) { mem.TransparentBlt(rect, other, second, other.GetPixel(0, 0)); };
    case 8:
        return [=](Surface& mem) { mem.DrawEdge(rect, static_cast<u32>(number * 3), BF_RECT | BF_MIDDLE); };
    case 9:
        return [=](Surface& mem) {
            mem.DrawFrameControl(rect, DFC_BUTTON, number % 2 ? DFCS_CHECKED : DFCS_CHECKED | DFCS_FLAT);
        };
    case 10:
        return [=](Surface& mem) { mem.DrawFocusRect(rect); };
    case 11:
        return [=](Surface& mem) {
            mem.GradientFill({ rect.left, rect.top, 0, 0x8000, 0xFF00 }, { rect.right, rect.bottom, 0xFF00, 0, 0 },
                number % 2 ? GradientDirection::Horizontal : GradientDirection::Vertical);
        };
    case 12:
        return [=, &other](Surface& mem) { mem.FillPattern(rect, other); };
    case 13:
        return [=](Surface& mem) { mem.SetPixel(rect.left, rect.top, color); };
    default:
        return [=](Surface& mem) { mem.SetClip(number == 1 ? nullptr : &rect); };
    }
}

Script RandomScript(std::mt19937& random, Size size, RasterSurface& other)
{
    Script script { [size](Surface& mem) { mem.FillRect({ 0, 0, size.width, size.height }, 0xABCDEF); } };
    for (int i = 0; i < 12; ++i)
        script.push_back(RandomStep(random, size, other));
    return script;
}

void ComposeAndCopy(Surface& mem, RasterSurface& parent, Point origin, const Script& script)
{
    for (const auto& step : script)
        step(mem);
    const Size size = mem.GetSize();
    const Rect place { origin.x, origin.y, origin.x + size.width, origin.y + size.height };
    EXPECT_TRUE(parent.BitBlt(place, mem, { 0, 0 }, RasterOp::SrcCopy));
}

std::unique_ptr<RasterSurface> NoisyParent(double scale)
{
    auto parent = RasterSurface::Create(ParentSize, scale, SystemColors());
    FillWithNoise(*parent, 77);
    return parent;
}

bool IsWindowOnto(RasterSurface& parent, Surface& mem, int deviceX, int deviceY)
{
    const DevicePixels pixels = parent.Pixels();
    return dynamic_cast<RasterSurface&>(mem).Pixels().data == pixels.data + deviceY * pixels.stride + deviceX;
}

} // namespace

class Compose : public testing::TestWithParam<double> { };

TEST_P(Compose, GivesThePictureOfAPrivateSurface)
{
    std::mt19937 random(4711);
    auto other = RasterSurface::Create({ 14, 11 }, GetParam(), SystemColors());
    FillWithNoise(*other, 3);
    for (int round = 0; round < 400; ++round) {
        const Size size { Between(random, 1, 40), Between(random, 1, 30) };
        const Point origin { Between(random, 0, ParentSize.width - size.width),
            Between(random, 0, ParentSize.height - size.height) };
        const Script script = RandomScript(random, size, *other);
        auto first = NoisyParent(GetParam());
        auto second = NoisyParent(GetParam());
        ComposeAndCopy(*first->ComposeAt(origin, size, Everything), *first, origin, script);
        ComposeAndCopy(*second->CreateCompatible(size, origin), *second, origin, script);
        ASSERT_EQ(PixelsOf(*first), PixelsOf(*second)) << "round " << round;
    }
}

TEST_P(Compose, IsAWindowOntoTheSurfaceWhenAllOfItIsCopied)
{
    auto parent = NoisyParent(GetParam());
    const std::unique_ptr<Surface> mem = parent->ComposeAt({ 4, 8 }, { 16, 12 }, Everything);
    EXPECT_TRUE(IsWindowOnto(*parent, *mem, RasterSurface::DeviceSize({ 4, 8 }, GetParam()).width,
        RasterSurface::DeviceSize({ 4, 8 }, GetParam()).height));
}

INSTANTIATE_TEST_SUITE_P(Scales, Compose, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0, 3.0));

TEST(ComposeAt, IsPrivateWhereNotAllOfItWillBeSeen)
{
    auto parent = NoisyParent(1);
    const std::vector<u32> before = PixelsOf(*parent);
    const Rect visible { 10, 0, 70, 40 };
    for (const Rect& place : { Rect { 9, 0, 20, 10 }, Rect { 60, 35, 70, 41 }, Rect { -1, 0, 5, 5 },
             Rect { 65, 0, 71, 5 }, Rect { 20, 45, 25, 51 } }) {
        const std::unique_ptr<Surface> mem
            = parent->ComposeAt({ place.left, place.top }, { place.Width(), place.Height() }, visible);
        ASSERT_NE(mem, nullptr);
        EXPECT_EQ(mem->GetSize(), (Size { place.Width(), place.Height() }));
        mem->FillRect({ 0, 0, 99, 99 }, Red);
    }
    EXPECT_EQ(PixelsOf(*parent), before);
}

TEST_P(Compose, PartOfACellGivesThePictureOfTheWholeCell)
{
    std::mt19937 random(1147);
    for (int round = 0; round < 200; ++round) {
        const Size size { Between(random, 1, 120), Between(random, 1, 90) };
        const Point origin { Between(random, -size.width + 1, ParentSize.width - 1),
            Between(random, -size.height + 1, ParentSize.height - 1) };
        auto first = NoisyParent(GetParam());
        auto second = NoisyParent(GetParam());
        for (RasterSurface* parent : { first.get(), second.get() }) {
            const std::unique_ptr<Surface> mem = parent == first.get() ? parent->ComposeAt(origin, size, Everything)
                                                                       : parent->CreateCompatible(size, origin);
            ASSERT_NE(mem, nullptr);
            EXPECT_EQ(mem->GetSize(), size);
            mem->GradientFill(
                { 0, 0, 0xFF00, 0, 0x8000 }, { size.width, size.height, 0, 0xFF00, 0 }, GradientDirection::Vertical);
            mem->DrawEdge({ 0, 0, size.width, size.height }, BDR_SUNKENOUTER, BF_RECT);
            mem->FrameRect({ 3, 3, size.width - 3, size.height - 3 }, Red);
            mem->Polyline({ 0x00FF00, 2 }, { { 0, 0 }, { size.width, size.height }, { size.width - 1, -1 } });
            parent->BitBlt(
                { origin.x, origin.y, origin.x + size.width, origin.y + size.height }, *mem, {}, RasterOp::SrcCopy);
        }
        ASSERT_EQ(PixelsOf(*first), PixelsOf(*second)) << "round " << round;
    }
}

TEST(ComposeAt, HoldsPixelsOnlyForWhatIsSeen)
{
    auto parent = NoisyParent(1);
    // 40 million pixels, were they all there.
    const std::unique_ptr<Surface> mem = parent->ComposeAt({ 4, -300000 }, { 60, 700000 }, Everything);
    ASSERT_NE(mem, nullptr);
    mem->FillRect({ 0, 0, 60, 700000 }, Red);
    EXPECT_EQ(mem->GetPixel(5, 300001), Red);
    EXPECT_EQ(mem->GetPixel(5, 299999), 0xFFFFFFFFu);
    EXPECT_EQ(mem->GetPixel(5, 699999), 0xFFFFFFFFu);
    parent->BitBlt({ 4, 0, 64, 40 }, *mem, { 0, 300000 }, RasterOp::SrcCopy);
    EXPECT_EQ(parent->GetPixel(63, 39), Red);
    const Rect clip { 0, 0, 60, 300010 };
    mem->SetClip(&clip);
    mem->FillRect({ 0, 0, 60, 700000 }, 0x00FF00);
    EXPECT_EQ(mem->GetPixel(0, 300009), 0x00FF00u);
    EXPECT_EQ(mem->GetPixel(0, 300010), Red);
}

TEST(ComposeAt, IsPrivateWhereTheParentClips)
{
    auto parent = NoisyParent(1);
    const std::vector<u32> before = PixelsOf(*parent);
    const Rect clip { 0, 0, 15, 50 };
    parent->SetClip(&clip);
    parent->ComposeAt({ 10, 10 }, { 10, 10 }, Everything)->FillRect({ 0, 0, 10, 10 }, Red);
    EXPECT_EQ(PixelsOf(*parent), before);
    parent->ComposeAt({ 5, 10 }, { 10, 10 }, Everything)->FillRect({ 0, 0, 10, 10 }, Red);
    EXPECT_EQ(parent->GetPixel(14, 19), Red);
}

TEST(ComposeAt, KeepsItsClipToItself)
{
    auto parent = NoisyParent(1);
    const std::unique_ptr<Surface> mem = parent->ComposeAt({ 10, 10 }, { 10, 10 }, Everything);
    const Rect clip { 0, 0, 9, 9 };
    mem->SetClip(&clip);
    mem->FillRect({ 0, 0, 10, 10 }, Red);
    parent->FillRect({ 19, 19, 20, 20 }, Blue);
    EXPECT_EQ(parent->GetPixel(18, 18), Red);
    EXPECT_EQ(parent->GetPixel(19, 19), Blue);
    EXPECT_NE(parent->GetPixel(19, 18), Red);
}

TEST(ComposeAt, OnAComposedSurfaceWorksAsWell)
{
    auto parent = NoisyParent(1.5);
    const std::unique_ptr<Surface> outer = parent->ComposeAt({ 3, 5 }, { 30, 30 }, Everything);
    const std::unique_ptr<Surface> inner = outer->ComposeAt({ 4, 4 }, { 7, 7 }, { 0, 0, 30, 30 });
    inner->FillRect({ 0, 0, 7, 7 }, Red);
    auto expected = NoisyParent(1.5);
    expected->FillRect({ 7, 9, 14, 16 }, Red);
    EXPECT_EQ(PixelsOf(*parent), PixelsOf(*expected));
}

TEST(ComposeAt, OutlivesTheSurfaceItWasMadeOn)
{
    auto parent = NoisyParent(1);
    const std::unique_ptr<Surface> mem = parent->ComposeAt({ 3, 5 }, { 30, 30 }, Everything);
    parent.reset();
    mem->FillRect({ 0, 0, 30, 30 }, Green);
    EXPECT_EQ(mem->GetPixel(29, 29), Green);
}

TEST(ComposeAt, StartsWithAFreshDrawingState)
{
    auto parent = NoisyParent(1);
    parent->SetBkColor(Red);
    EXPECT_EQ(parent->ComposeAt({ 0, 0 }, { 5, 5 }, Everything)->GetBkColor(), White);
}

TEST(SamePicture, IsTheSameMemoryInTheSameSize)
{
    std::vector<u32> memory(100);
    const auto first = RasterSurface::Over(memory.data(), 10, { 10, 10 }, 1, SystemColors());
    const auto second = RasterSurface::Over(memory.data(), 10, { 10, 10 }, 1, SystemColors());
    const auto other = WhiteSurface(10, 10);
    EXPECT_TRUE(first->IsSamePicture(*first));
    EXPECT_TRUE(first->IsSamePicture(*second));
    EXPECT_TRUE(first->IsSamePicture(*first->ComposeAt({ 0, 0 }, { 10, 10 }, { 0, 0, 10, 10 })));
    EXPECT_FALSE(first->IsSamePicture(*first->ComposeAt({ 0, 0 }, { 9, 10 }, { 0, 0, 10, 10 })));
    EXPECT_FALSE(first->IsSamePicture(*other));
}
