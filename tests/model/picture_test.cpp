#include "vornix/picture.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

#include <vector>

namespace vornix {
namespace {

TEST(PictureTest, TheEmptyPictureHasNoHandle)
{
    const PictureObject picture;
    EXPECT_EQ(picture.Handle(), 0);
    EXPECT_EQ(picture.Type(), PictureType::None);
    EXPECT_TRUE(picture.Pixels().empty());
}

TEST(PictureTest, EachPictureHasAHandleOfItsOwn)
{
    const std::vector<u8> rgba(4, 0);
    const PicturePtr first = PictureObject::FromRgba(1, 1, rgba);
    const PicturePtr second = PictureObject::FromRgba(1, 1, rgba);
    EXPECT_NE(first->Handle(), 0);
    EXPECT_NE(second->Handle(), 0);
    EXPECT_NE(first->Handle(), second->Handle());
}

TEST(PictureTest, ABitmapIsOpaqueAndAnIconIsNot)
{
    const std::vector<u8> rgba { 0x11, 0x22, 0x33, 0x80 };
    EXPECT_EQ(PictureObject::FromRgba(1, 1, rgba)->Pixels()[0], 0xFF112233u);
    EXPECT_EQ(PictureObject::FromRgba(1, 1, rgba, PictureType::Icon)->Pixels()[0], 0x80112233u);
}

TEST(PictureTest, MeasuresInHundredthsOfAMillimetre)
{
    const PicturePtr picture = PictureObject::FromRgba(96, 48, std::vector<u8>(96 * 48 * 4));
    EXPECT_EQ(picture->Width(), 2540);
    EXPECT_EQ(picture->Height(), 1270);
    EXPECT_EQ(picture->PixelWidth(), 96);
    EXPECT_EQ(picture->PixelHeight(), 48);
}

TEST(PictureTest, RefusesOtherLengths)
{
    const std::vector<u8> rgba(8, 0);
    EXPECT_EQ(ErrorOf([&] { PictureObject::FromRgba(1, 1, rgba); }), ErrorNumber::InvalidArgument);
    EXPECT_EQ(ErrorOf([&] { PictureObject::FromRgba(-1, -2, rgba); }), ErrorNumber::InvalidArgument);
}

} // namespace
} // namespace vornix
