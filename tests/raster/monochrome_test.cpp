#include "raster_test.h"

#include <gtest/gtest.h>

using namespace vornix;
using namespace vornix::raster_test;

namespace {

std::string Drawn(Surface& surface)
{
    return raster_test::Drawn(dynamic_cast<RasterSurface&>(surface));
}

} // namespace

TEST(Monochrome, TakesTheBackgroundColorOfTheSourceAsWhiteAndAllOthersAsBlack)
{
    auto source = WhiteSurface(4, 1);
    source->SetPixel(1, 0, Red);
    source->SetPixel(2, 0, Black);
    source->SetPixel(3, 0, 0x0000FE);
    source->SetBkColor(Red);
    const std::unique_ptr<Surface> mask = source->CreateMonochrome({ 4, 1 });
    EXPECT_TRUE(mask->BitBlt({ 0, 0, 4, 1 }, *source, { 0, 0 }, RasterOp::SrcCopy));
    EXPECT_EQ(Drawn(*mask), "\n#.##\n");
    EXPECT_TRUE(mask->BitBlt({ 0, 0, 4, 1 }, *mask, { 0, 0 }, RasterOp::DstInvert));
    EXPECT_EQ(Drawn(*mask), "\n.#..\n");
}

TEST(Monochrome, CopiedToColorsBecomesTextAndBackgroundColor)
{
    auto target = WhiteSurface(2, 1);
    const std::unique_ptr<Surface> mask = target->CreateMonochrome({ 2, 1 });
    mask->FillRect({ 0, 0, 1, 1 }, Black);
    mask->FillRect({ 1, 0, 2, 1 }, White);
    target->BitBlt({ 0, 0, 2, 1 }, *mask, { 0, 0 }, RasterOp::SrcCopy);
    EXPECT_EQ(Drawn(*target), "\n#.\n");
    target->SetTextColor(Red);
    target->SetBkColor(Blue);
    target->BitBlt({ 0, 0, 2, 1 }, *mask, { 0, 0 }, RasterOp::SrcCopy);
    EXPECT_EQ(Drawn(*target), "\nrb\n");
}

TEST(Monochrome, StaysWithTwoColorsWhateverIsDrawn)
{
    auto reference = WhiteSurface(20, 16);
    const std::unique_ptr<Surface> surface = reference->CreateMonochrome({ 20, 16 });
    FillWithNoise(*reference, 3);
    surface->FillRect({ 0, 0, 20, 16 }, 0x808080);
    surface->FillRect({ 0, 0, 10, 16 }, 0x7F7F7F);
    surface->GradientFill({ 0, 0, 0, 0, 0 }, { 20, 8, 0xFF00, 0xFF00, 0xFF00 }, GradientDirection::Horizontal);
    surface->AlphaBlend({ 2, 2, 18, 12 }, *reference, { 2, 2, 18, 12 }, BlendFunction(100));
    surface->TransparentBlt({ 0, 4, 6, 8 }, *reference, { 0, 4, 6, 8 }, White);
    surface->FillPattern({ 0, 14, 20, 16 }, *reference);
    surface->DrawFrameControl({ 3, 1, 16, 14 }, DFC_BUTTON, DFCS_CHECKED | DFCS_INACTIVE);
    surface->DrawEdge({ 0, 0, 20, 16 }, BDR_SUNKENOUTER, BF_RECT);
    surface->DrawIcon(5, 5, *SolidPicture(4, 4, 90, 90, 90, 128, PictureType::Icon));
    EXPECT_EQ(Drawn(*surface).find_first_not_of(".#\n"), std::string::npos);
    EXPECT_NE(Drawn(*surface).find('#'), std::string::npos);
    EXPECT_NE(Drawn(*surface).find('.'), std::string::npos);
}

// The long way of drawing a picture with one transparent colour gives what TransparentBlt gives.
TEST(Monochrome, MasksOutOneColor)
{
    auto source = WhiteSurface(16, 9);
    FillWithNoise(*source, 8);
    for (int i = 0; i < 9; ++i)
        source->SetPixel(i, i, Red);
    const Rect all { 0, 0, 16, 9 };
    auto expected = WhiteSurface(16, 9);
    FillWithNoise(*expected, 9);
    auto target = WhiteSurface(16, 9);
    FillWithNoise(*target, 9);
    expected->TransparentBlt(all, *source, all, Red);

    const std::unique_ptr<Surface> mask = target->CreateMonochrome({ 16, 9 });
    const std::unique_ptr<Surface> work = target->CreateCompatible({ 16, 9 });
    source->SetBkColor(Red);
    mask->BitBlt(all, *source, { 0, 0 }, RasterOp::SrcCopy);
    target->BitBlt(all, *mask, { 0, 0 }, RasterOp::SrcAnd);
    mask->BitBlt(all, *mask, { 0, 0 }, RasterOp::DstInvert);
    work->BitBlt(all, *source, { 0, 0 }, RasterOp::SrcCopy);
    work->BitBlt(all, *mask, { 0, 0 }, RasterOp::SrcAnd);
    target->BitBlt(all, *work, { 0, 0 }, RasterOp::SrcPaint);
    EXPECT_EQ(PixelsOf(*target), PixelsOf(*expected));
}

TEST(Monochrome, GivesCompatibleSurfacesOfItsKind)
{
    auto reference = WhiteSurface(1, 1);
    const std::unique_ptr<Surface> mask = reference->CreateMonochrome({ 2, 1 });
    const std::unique_ptr<Surface> second = mask->CreateCompatible({ 2, 1 });
    second->FillRect({ 0, 0, 1, 1 }, Red);
    second->FillRect({ 1, 0, 2, 1 }, Green);
    EXPECT_EQ(Drawn(*second), "\n#.\n");
}
