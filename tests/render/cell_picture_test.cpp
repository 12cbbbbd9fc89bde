#include "render/cell_picture.h"
#include "render/format_cache.h"
#include "support/fake_device.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

PicturePtr Solid(int width, int height)
{
    return PictureObject::FromRgba(
        width, height, std::vector<u8>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4, 9));
}

TEST(CellPictureTest, PixelsComeBackFromHiMetric)
{
    for (int side = 1; side < 300; ++side)
        EXPECT_EQ(PicturePixelSize(*Solid(side, 1), { 15, 15 }), (Size { side, 1 }));
}

TEST(CellPictureTest, PixelSizeFollowsTheScreensTwips)
{
    EXPECT_EQ(PicturePixelSize(*Solid(16, 32), { 10, 12 }), (Size { 24, 40 }));
}

TEST(CellPictureTest, StandsInTheTopLeftByDefault)
{
    EXPECT_EQ(PicturePlace(vxPicLeft | vxPicTop, { 100, 40 }, { 16, 16 }, 1), (Point { 2, 2 }));
}

TEST(CellPictureTest, IsCentredWithTruncation)
{
    EXPECT_EQ(PicturePlace(vxPicCenter | vxPicVCenter, { 100, 41 }, { 16, 16 }, 1), (Point { 42, 12 }));
    EXPECT_EQ(PicturePlace(vxPicCenter, { 10, 40 }, { 17, 16 }, 1), (Point { -3, 2 }));
}

TEST(CellPictureTest, RightAndBottomLeaveRoomForTheGridLine)
{
    EXPECT_EQ(PicturePlace(vxPicRight | vxPicBottom, { 100, 40 }, { 16, 16 }, 3), (Point { 77, 17 }));
}

TEST(CellPictureTest, OneSurfaceServesAllCellsWithThePicture)
{
    const auto screen = std::make_shared<FakeScreen>();
    FakeDevice device(screen, "d", { 10, 10 });
    PictureSurfaces surfaces;
    const PicturePtr picture = Solid(3, 3);
    Surface* const first = surfaces.SurfaceOf(picture, device);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(surfaces.SurfaceOf(picture, device), first);
    EXPECT_NE(surfaces.SurfaceOf(Solid(3, 3), device), first);
    EXPECT_EQ(screen->surfacesMade, 2);
    surfaces.Clear();
    EXPECT_EQ(screen->surfacesAlive, 1);
}

TEST(CellPictureTest, SurfacesOfManyPicturesAreBounded)
{
    const auto screen = std::make_shared<FakeScreen>();
    FakeDevice device(screen, "d", { 10, 10 });
    PictureSurfaces surfaces;
    for (int i = 0; i < 100; ++i)
        surfaces.SurfaceOf(Solid(1, 1), device);
    EXPECT_LE(screen->surfacesAlive, 17);
}

TEST(FormatCacheTest, ColoursAreTranslatedWithTheTableOfThePaint)
{
    FormatCache cache;
    SystemColors colors;
    CellFormat format;
    format.BackColor = 0x80000005;
    format.ForeColor = 0x123456;
    format.BorderColor = 0x80000010;
    cache.Begin(colors, 15);
    EXPECT_EQ(cache.Prepared(3, format).back, 0xFFFFFFu);
    EXPECT_EQ(cache.Prepared(3, format).fore, 0x123456u);
    EXPECT_EQ(cache.Prepared(3, format).shadow, 0xA0A0A0u);
    colors.values[5] = 0x010203;
    cache.Begin(colors, 15);
    EXPECT_EQ(cache.Prepared(3, format).back, 0x010203u);
}

TEST(FormatCacheTest, FormatsThatShareASlotDoNotMix)
{
    FormatCache cache;
    cache.Begin(SystemColors(), 15);
    CellFormat first;
    CellFormat second;
    first.ForeColor = 1;
    second.ForeColor = 2;
    EXPECT_EQ(cache.Prepared(5, first).fore, 1u);
    EXPECT_EQ(cache.Prepared(5 + 64, second).fore, 2u);
    EXPECT_EQ(cache.Prepared(5, first).fore, 1u);
}

TEST(FormatCacheTest, FontsAreDescribedByTheirValues)
{
    FormatCache cache;
    cache.Begin(SystemColors(), 15);
    CellFormat format;
    format.FontName = FontName(u"Sans");
    format.FontBold = format.FontUnderline = true;
    format.FontSize = 12;
    format.FontCharset = 177;
    const FontDescription expected { u"Sans", -16, 700, false, true, false, 177 };
    EXPECT_EQ(cache.Prepared(0, format).font, expected);
}

} // namespace
} // namespace vornix
