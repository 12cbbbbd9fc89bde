#include "raster_test.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

using namespace vornix;
using namespace vornix::raster_test;

TEST(Surface, HasANumberForAsLongAsItLives)
{
    auto surface = WhiteSurface(2, 2);
    const Hdc handle = surface->Handle();
    EXPECT_NE(handle, 0);
    EXPECT_EQ(surface->Handle(), handle);
    EXPECT_EQ(DeviceFromHandle(handle), surface.get());
    surface.reset();
    EXPECT_EQ(DeviceFromHandle(handle), nullptr);
    EXPECT_EQ(DeviceFromHandle(0), nullptr);
}

TEST(Surface, NumbersAreNotUsedAgain)
{
    auto first = WhiteSurface(1, 1);
    auto second = WhiteSurface(1, 1);
    const Hdc old = first->Handle();
    EXPECT_NE(old, second->Handle());
    first.reset();
    EXPECT_NE(WhiteSurface(1, 1)->Handle(), old);
}

TEST(Surface, OfNegativeSizeIsEmpty)
{
    auto surface = RasterSurface::Create({ -3, 4 }, 1, SystemColors());
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->GetSize(), (Size { 0, 4 }));
    surface->FillRect({ 0, 0, 5, 5 }, Red);
    surface->GradientFill({ 0, 0, 0, 0, 0 }, { 5, 5, 0, 0, 0 }, GradientDirection::Horizontal);
    surface->DrawFocusRect({ 0, 0, 5, 5 });
    EXPECT_TRUE(surface->BitBlt({ 0, 0, 5, 5 }, *WhiteSurface(5, 5), { 0, 0 }, RasterOp::SrcCopy));
    EXPECT_EQ(surface->GetPixel(0, 0), 0xFFFFFFFFu);
    auto other = WhiteSurface(2, 2);
    EXPECT_TRUE(other->BitBlt({ 0, 0, 2, 2 }, *surface, { 0, 0 }, RasterOp::SrcCopy));
    other->FillPattern({ 0, 0, 2, 2 }, *surface);
    EXPECT_EQ(Drawn(*other), "\n..\n..\n");
    EXPECT_NE(surface->CreateCompatible({ 0, 0 }), nullptr);
    EXPECT_NE(surface->ComposeAt({ 0, 0 }, { 0, 0 }, {}), nullptr);
}

TEST(Surface, TooLargeForMemoryIsNone)
{
    auto surface = WhiteSurface(1, 1);
    constexpr int Most = std::numeric_limits<int>::max();
    EXPECT_EQ(surface->CreateCompatible({ Most, Most }), nullptr);
    EXPECT_EQ(surface->CreateMonochrome({ 1 << 20, 1 << 20 }), nullptr);
    EXPECT_EQ(RasterSurface::Create({ Most, 1 }, 4, SystemColors()), nullptr);
}

TEST(Surface, NeedsAPositiveScale)
{
    EXPECT_THROW(RasterSurface::Create({ 1, 1 }, 0, SystemColors()), std::invalid_argument);
    EXPECT_THROW(RasterSurface::Create({ 1, 1 }, -1, SystemColors()), std::invalid_argument);
    EXPECT_THROW(RasterSurface::DeviceSize({ 1, 1 }, std::numeric_limits<double>::quiet_NaN()), std::invalid_argument);
}

TEST(Surface, DrawsOnBorrowedMemoryWithinItsSize)
{
    std::vector<u32> memory(5 * 3, 0xFFFFFFFF);
    const auto surface = RasterSurface::Over(memory.data(), 5, { 2, 1 }, 2, SystemColors());
    surface->FillRect({ 0, 0, 9, 9 }, Red);
    const u32 r = 0xFFFF0000;
    const u32 w = 0xFFFFFFFF;
    EXPECT_EQ(memory, (std::vector<u32> { r, r, r, r, w, r, r, r, r, w, w, w, w, w, w }));
}

TEST(Surface, ClipHoldsUntilItIsTakenAway)
{
    auto surface = WhiteSurface(4, 3);
    const Rect clip { 1, -5, 3, 2 };
    surface->SetClip(&clip);
    surface->FillRect({ 0, 0, 4, 3 }, Red);
    surface->FrameRect({ 0, 0, 4, 3 }, Blue);
    surface->SetPixel(0, 0, Black);
    surface->Polyline({ Black, 1 }, { { 0, 2 }, { 4, 2 } });
    EXPECT_EQ(Drawn(*surface), "\n.bb.\n.rr.\n....\n");
    surface->SetClip(nullptr);
    surface->FillRect({ 0, 2, 4, 3 }, Black);
    EXPECT_EQ(Drawn(*surface), "\n.bb.\n.rr.\n####\n");
}

TEST(Surface, AnEmptyClipHidesEverything)
{
    auto surface = WhiteSurface(2, 1);
    const Rect outside { 5, 5, 9, 9 };
    surface->SetClip(&outside);
    surface->FillRect({ 0, 0, 2, 1 }, Red);
    surface->BitBlt({ 0, 0, 2, 1 }, *surface, { 0, 0 }, RasterOp::Blackness);
    EXPECT_EQ(Drawn(*surface), "\n..\n");
}

TEST(Surface, StartsWithAWhiteBackgroundColor)
{
    auto surface = WhiteSurface(1, 1);
    EXPECT_EQ(surface->GetBkColor(), White);
    surface->SetBkColor(Red);
    EXPECT_EQ(surface->GetBkColor(), Red);
}

TEST(Surface, TakesNewSystemColors)
{
    auto surface = WhiteSurface(3, 3);
    SystemColors colors;
    colors.values[SystemColor::ButtonShadow] = Red;
    colors.values[SystemColor::ButtonHighlight] = Blue;
    surface->SetSystemColors(colors);
    surface->DrawEdge({ 0, 0, 3, 3 }, BDR_SUNKENOUTER, BF_RECT);
    EXPECT_EQ(Drawn(*surface), "\nrrb\nr.b\nbbb\n");
    const std::unique_ptr<Surface> made = surface->CreateCompatible({ 3, 3 });
    made->DrawEdge({ 0, 0, 3, 3 }, BDR_SUNKENOUTER, BF_RECT);
    EXPECT_EQ(made->GetPixel(0, 0), Red);
}

TEST(Surface, DrawsTextWithinItsClip)
{
    auto surface = WhiteSurface(60, 30);
    surface->SelectFont({ u"DejaVu Sans", -16, 400, false, false, false, 1 });
    surface->SetTextColor(Black);
    surface->SetBkMode(BackgroundMode::Transparent);
    const Rect clip { 20, 0, 60, 30 };
    surface->SetClip(&clip);
    Rect place { 0, 0, 60, 30 };
    EXPECT_GT(surface->DrawText(u"MMMM", place, DT_SINGLELINE), 0);
    int left = 0;
    int right = 0;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 60; ++x)
            (x < 20 ? left : right) += surface->GetPixel(x, y) != White ? 1 : 0;
    }
    EXPECT_EQ(left, 0);
    EXPECT_GT(right, 20);
}

TEST(Surface, MeasuresTextsAsDrawTextDoes)
{
    const std::unique_ptr<RasterSurface> surface = WhiteSurface(60, 40);
    surface->SelectFont({ .face = u"DejaVu Sans", .height = -12 });
    const std::vector<u32> before = PixelsOf(*surface);
    const std::u16string_view text = u"words\tthat & break\r\u05E9\u05DC\u05D5\u05DD";
    // With DT_TABSTOP the flag that measures is a part of the number of a tab's characters.
    for (const u32 format : { 0U, DT_WORDBREAK, DT_SINGLELINE | DT_END_ELLIPSIS, DT_EXPANDTABS, DT_RTLREADING,
             DT_NOPREFIX | DT_WORDBREAK | DT_EXTERNALLEADING, DT_EXPANDTABS | DT_TABSTOP }) {
        Rect measured { 2, 3, 42, 13 };
        Rect drawn = measured;
        const int height = surface->MeasureText(text, measured, format);
        EXPECT_TRUE(PixelsOf(*surface) == before || (format & DT_TABSTOP)) << format;
        EXPECT_EQ(surface->DrawText(text, drawn, format | DT_CALCRECT), height) << format;
        EXPECT_EQ(measured, drawn) << format;
    }
}
