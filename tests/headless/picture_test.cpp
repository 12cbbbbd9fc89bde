#include "headless/person_fixture.h"

#include <cmath>
#include <filesystem>
#include <limits>

namespace vornix {
namespace {

class PictureOfTheControl : public PersonTest {
protected:
    static ColorRef ColorAt(const RgbaImage& image, int x, int y)
    {
        const std::size_t at
            = 4 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) + static_cast<std::size_t>(x));
        EXPECT_EQ(image.bytes.at(at + 3), 255);
        return static_cast<ColorRef>(image.bytes.at(at) | image.bytes.at(at + 1) << 8 | image.bytes.at(at + 2) << 16);
    }
    std::optional<int> ErrorOfSize(int width, int height, double scale = 1)
    {
        return ErrorOf([&] { HeadlessContainer({ .width = width, .height = height, .scale = scale }); });
    }
};

TEST_F(PictureOfTheControl, IsRedGreenBlueAlphaFromTheTopLeft)
{
    Grid().SetCellBackColor(0, 0, 0x123456);
    const RgbaImage image = host->Image();
    EXPECT_EQ(image.width, 640);
    EXPECT_EQ(image.height, 480);
    ASSERT_EQ(image.bytes.size(), 640u * 480u * 4u);
    const std::size_t at = 4 * (10 * 640 + 60);
    EXPECT_EQ(image.bytes[at], 0x56);
    EXPECT_EQ(image.bytes[at + 1], 0x34);
    EXPECT_EQ(image.bytes[at + 2], 0x12);
    EXPECT_EQ(image.bytes[at + 3], 255);
}

TEST_F(PictureOfTheControl, ShowsWhatThePixelsAre)
{
    Table(4, 3, 1, 1);
    Grid().SetText(1, 1, u"text");
    const RgbaImage image = host->Image();
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 640; ++x)
            ASSERT_EQ(ColorAt(image, x, y), host->Pixel(x, y)) << x << ", " << y;
    }
}

TEST_F(PictureOfTheControl, IsInDevicePixels)
{
    Make({ .width = 101, .height = 61, .scale = 1.5 });
    Grid().SetCellBackColor(0, 0, 0x00FFFF);
    const RgbaImage image = host->Image();
    EXPECT_EQ(image.width, 152);
    EXPECT_EQ(image.height, 92);
    EXPECT_EQ(image.bytes.size(), 152u * 92u * 4u);
    EXPECT_EQ(ColorAt(image, 90, 15), 0x00FFFFu);
    EXPECT_EQ(host->Pixel(60, 10), 0x00FFFFu);
}

TEST_F(PictureOfTheControl, FollowsTheSizeOfTheClientArea)
{
    host->Resize(300, 200);
    EXPECT_EQ(host->Image().width, 300);
    EXPECT_EQ(host->Image().height, 200);
    Grid().SetBorderStyle(vxInset);
    EXPECT_EQ(host->Image().width, 296);
    EXPECT_EQ(host->Image().height, 196);
}

TEST_F(PictureOfTheControl, OfAWindowWithoutAreaIsOnePixel)
{
    host->Resize(0, 0);
    EXPECT_EQ(host->ClientSize(), (Size { 0, 0 }));
    EXPECT_EQ(host->Image().bytes.size(), 4u);
    host->Resize(640, 480);
    EXPECT_EQ(host->Image().width, 640);
}

TEST_F(PictureOfTheControl, IsTheFilesToo)
{
    const std::string path = testing::TempDir() + "/picture_test.png";
    Table(2, 2, 1, 1);
    Grid().SetCellBackColor(0, 0, 0x123456);
    host->SavePng(path);
    const PicturePtr picture = LoadPng(path);
    std::filesystem::remove(path);
    const RgbaImage image = host->Image();
    ASSERT_EQ(picture->PixelWidth(), image.width);
    ASSERT_EQ(picture->PixelHeight(), image.height);
    for (int y = 0; y < image.height; y += 7) {
        for (int x = 0; x < image.width; x += 3) {
            const u32 pixel = picture->Pixels()[static_cast<std::size_t>(y * image.width + x)];
            const ColorRef color = (pixel >> 16 & 0xFF) | (pixel & 0xFF00) | (pixel & 0xFF) << 16;
            ASSERT_EQ(color, ColorAt(image, x, y)) << x << ", " << y;
        }
    }
}

TEST_F(PictureOfTheControl, HasNoPixelsOutside)
{
    for (const auto& [x, y] : { std::pair(-1, 0), std::pair(0, -1), std::pair(640, 0), std::pair(0, 480),
             std::pair(std::numeric_limits<int>::max(), 0), std::pair(0, std::numeric_limits<int>::min()) })
        EXPECT_EQ(host->Pixel(x, y), 0xFFFFFFFFu) << x << ", " << y;
}

TEST_F(PictureOfTheControl, HasItsLimits)
{
    for (const auto& [width, height] : { std::pair(-1, 10), std::pair(10, -1), std::pair(32768, 10),
             std::pair(10, 32768), std::pair(32767, 32767), std::pair(8193, 8192),
             std::pair(std::numeric_limits<int>::max(), 1), std::pair(std::numeric_limits<int>::min(), 1) }) {
        EXPECT_EQ(ErrorOfSize(width, height), 5) << width << " by " << height;
        EXPECT_EQ(ErrorOf([&, w = width, h = height] { host->Resize(w, h); }), 5) << width << " by " << height;
    }
    EXPECT_EQ(ErrorOfSize(4097, 4096, 2), 5);
    EXPECT_EQ(host->ClientSize(), (Size { 640, 480 }));
    EXPECT_EQ(host->Image().width, 640);
    EXPECT_EQ(ErrorOfSize(32767, 1), std::nullopt);
    EXPECT_EQ(ErrorOfSize(1, 32767), std::nullopt);
    EXPECT_EQ(ErrorOfSize(0, 0), std::nullopt);
    EXPECT_EQ(ErrorOfSize(0, 32767), std::nullopt);
}

TEST_F(PictureOfTheControl, HasTheLimitThatItIsGiven)
{
    HeadlessOptions options { .width = 20, .height = 10, .scale = 2 };
    options.mostPixels = 800;
    Make(options);
    EXPECT_EQ(ErrorOf([&] { host->Resize(21, 10); }), 5);
    EXPECT_EQ(ErrorOf([&] { host->Resize(10, 20); }), std::nullopt);
    options.mostPixels = 799;
    EXPECT_EQ(ErrorOf([&] { HeadlessContainer { options }; }), 5);
}

TEST_F(PictureOfTheControl, HasScalesFromOneToFour)
{
    for (const double scale : { 0.0, 0.99, -1.0, 4.01, 1e300, std::nan(""), std::numeric_limits<double>::infinity() })
        EXPECT_EQ(ErrorOfSize(10, 10, scale), 5) << scale;
    for (const double scale : { 1.0, 1.25, 4.0 })
        EXPECT_EQ(ErrorOfSize(10, 10, scale), std::nullopt) << scale;
}

} // namespace
} // namespace vornix
