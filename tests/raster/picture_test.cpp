#include "vornix/automation.h"
#include "vornix/picture.h"

#include <gtest/gtest.h>

#include <array>

using namespace vornix;

TEST(Picture, WithoutBitsHasNoHandle)
{
    const PictureObject empty;
    EXPECT_EQ(empty.Handle(), 0);
    EXPECT_EQ(empty.Type(), PictureType::None);
    EXPECT_EQ(empty.Width(), 0);
    EXPECT_TRUE(empty.Pixels().empty());
    EXPECT_EQ(PictureObject::FromRgba(0, 5, {})->Handle(), 0);
}

TEST(Picture, HasAHandleOfItsOwn)
{
    const std::array<u8, 4> rgba { 1, 2, 3, 4 };
    const PicturePtr first = PictureObject::FromRgba(1, 1, rgba);
    const PicturePtr second = PictureObject::FromRgba(1, 1, rgba);
    EXPECT_NE(first->Handle(), 0);
    EXPECT_NE(first->Handle(), second->Handle());
}

TEST(Picture, KeepsTheAlphaOfIconsOnly)
{
    const std::array<u8, 8> rgba { 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x00 };
    const PicturePtr icon = PictureObject::FromRgba(2, 1, rgba, PictureType::Icon);
    EXPECT_EQ(icon->Pixels()[0], 0x44112233u);
    EXPECT_EQ(icon->Pixels()[1], 0x00556677u);
    const PicturePtr bitmap = PictureObject::FromRgba(2, 1, rgba);
    EXPECT_EQ(bitmap->Type(), PictureType::Bitmap);
    EXPECT_EQ(bitmap->Pixels()[0], 0xFF112233u);
    EXPECT_EQ(bitmap->Pixels()[1], 0xFF556677u);
}

TEST(Picture, MeasuresInHiMetricAt96PixelsAnInch)
{
    const std::vector<u8> rgba(96 * 16 * 4);
    const PicturePtr picture = PictureObject::FromRgba(96, 16, rgba);
    EXPECT_EQ(picture->Width(), 2540);
    EXPECT_EQ(picture->Height(), 423);
    EXPECT_EQ(picture->PixelWidth(), 96);
    EXPECT_EQ(picture->PixelHeight(), 16);
}

TEST(Picture, RefusesBytesOfAnotherLength)
{
    const std::array<u8, 4> rgba {};
    for (const auto& [width, height] : { std::pair { 2, 1 }, std::pair { -1, -1 }, std::pair { 0, 0 } }) {
        try {
            PictureObject::FromRgba(width, height, rgba);
            ADD_FAILURE() << width << ' ' << height;
        } catch (const AutomationError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::InvalidArgument);
        }
    }
}
