#include "raster_test.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

using namespace vornix;
using namespace vornix::raster_test;

namespace {

// A file of the running test alone, gone afterwards.
class Png : public testing::Test {
protected:
    Png()
        : path_((std::filesystem::path(testing::TempDir())
            / (std::string("vornix-") + testing::UnitTest::GetInstance()->current_test_info()->name() + ".png"))
                    .string())
    {
    }
    ~Png() override { std::filesystem::remove(path_); }

    void WriteBytes(const std::string& bytes) { std::ofstream(path_, std::ios::binary) << bytes; }
    std::string ReadBytes()
    {
        std::ifstream file(path_, std::ios::binary);
        return { std::istreambuf_iterator<char>(file), {} };
    }
    std::string LoadError()
    {
        try {
            LoadPng(path_);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return {};
    }

    std::string path_;
};

} // namespace

TEST_F(Png, ComesBackAsItWasWritten)
{
    auto surface = RasterSurface::Create({ 31, 17 }, 1.5, SystemColors());
    FillWithNoise(*surface, 6);
    surface->SavePng(path_);
    const PicturePtr picture = LoadPng(path_);
    EXPECT_EQ(picture->Type(), PictureType::Bitmap);
    EXPECT_EQ(picture->PixelWidth(), surface->Pixels().width);
    EXPECT_EQ(picture->PixelHeight(), surface->Pixels().height);
    EXPECT_EQ(std::vector<u32>(picture->Pixels().begin(), picture->Pixels().end()), PixelsOf(*surface));
}

TEST_F(Png, OfAComposedSurfaceHoldsItsPartAlone)
{
    auto surface = WhiteSurface(20, 20);
    const std::unique_ptr<Surface> part = surface->ComposeAt({ 5, 6 }, { 3, 2 }, { 0, 0, 20, 20 });
    part->FillRect({ 0, 0, 3, 2 }, Red);
    dynamic_cast<RasterSurface&>(*part).SavePng(path_);
    const PicturePtr picture = LoadPng(path_);
    EXPECT_EQ(picture->PixelWidth(), 3);
    EXPECT_EQ(std::vector<u32>(picture->Pixels().begin(), picture->Pixels().end()), std::vector<u32>(6, 0xFFFF0000u));
}

TEST_F(Png, WithTransparencyIsAnIcon)
{
    // One pixel, 0x11 0x22 0x33 at alpha 0x44.
    const unsigned char bytes[] { 0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48,
        0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x06, 0x00, 0x00, 0x00, 0x1F, 0x15, 0xC4,
        0x89, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x44, 0x41, 0x54, 0x78, 0x9C, 0x63, 0x10, 0x54, 0x32, 0x76, 0x01, 0x00,
        0x01, 0x59, 0x00, 0xAB, 0x13, 0x2A, 0x25, 0xAB, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42,
        0x60, 0x82 };
    WriteBytes(std::string(reinterpret_cast<const char*>(bytes), sizeof bytes));
    const PicturePtr picture = LoadPng(path_);
    EXPECT_EQ(picture->Type(), PictureType::Icon);
    ASSERT_EQ(picture->Pixels().size(), 1u);
    EXPECT_EQ(picture->Pixels()[0], 0x44112233u);
}

TEST_F(Png, ThatCannotBeReadSaysWhichFileAndWhy)
{
    EXPECT_THAT(LoadError(), testing::AllOf(testing::StartsWith(path_ + ": "), testing::HasSubstr("No such file")));
    WriteBytes("this is text");
    EXPECT_THAT(LoadError(), testing::AllOf(testing::StartsWith(path_ + ": "), testing::HasSubstr("PNG")));
    WriteBytes("");
    EXPECT_THAT(LoadError(), testing::StartsWith(path_ + ": "));
}

TEST_F(Png, ThatIsCutOffIsRefused)
{
    auto surface = WhiteSurface(64, 64);
    FillWithNoise(*surface, 1);
    surface->SavePng(path_);
    const std::string whole = ReadBytes();
    for (const std::size_t length : { std::size_t { 20 }, std::size_t { 40 }, whole.size() / 2 }) {
        WriteBytes(whole.substr(0, length));
        EXPECT_THAT(LoadError(), testing::StartsWith(path_ + ": ")) << length;
    }
}

TEST_F(Png, ThatCannotBeWrittenSaysWhichFileAndWhy)
{
    const std::string nowhere = path_ + "/deeper/picture.png";
    const auto reason = [](RasterSurface& surface, const std::string& path) -> std::string {
        try {
            surface.SavePng(path);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return {};
    };
    EXPECT_THAT(reason(*WhiteSurface(1, 1), nowhere), testing::StartsWith(nowhere + ": No such file"));
    EXPECT_THAT(reason(*WhiteSurface(0, 1), path_), testing::HasSubstr("empty"));
    EXPECT_FALSE(std::filesystem::exists(path_));
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_THAT(reason(*WhiteSurface(300, 300), "/dev/full"), testing::StartsWith("/dev/full: "));
    }
}
