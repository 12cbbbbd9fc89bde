#include "looks.h"

#include "dark_colors.h"

#include <gtest/gtest.h>

using namespace vornix;
using namespace vornix::viewer;

namespace {

void ExpectReadable(const Looks& looks)
{
    EXPECT_GT(Contrast(looks.ink, looks.ground), 7);
    EXPECT_GT(Contrast(looks.ink, looks.alternateGround), 7);
    EXPECT_GT(Contrast(looks.headerInk, looks.headerGround), 7);
    EXPECT_GT(Contrast(looks.faintInk, looks.headerGround), 3);
    // Lines and alternate rows are there, but stay behind the text.
    EXPECT_NE(looks.ground, looks.alternateGround);
    EXPECT_LT(Contrast(looks.ground, looks.alternateGround), 1.2);
    EXPECT_GT(Contrast(looks.ground, looks.line), 1.1);
    EXPECT_LT(Contrast(looks.ground, looks.line), 2);
}

int Brightness(ColorRef color)
{
    return static_cast<int>((color & 0xFF) + (color >> 8 & 0xFF) + (color >> 16 & 0xFF));
}

} // namespace

TEST(Looks, AreReadableOnLightAndDarkDesktops)
{
    ExpectReadable(LooksFrom(SystemColors()));
    ExpectReadable(LooksFrom(DarkColors()));
}

TEST(Looks, AreLightOrDarkAsTheDesktopIs)
{
    const Looks light = LooksFrom(SystemColors());
    EXPECT_EQ(light.ground, 0xFFFFFFu);
    EXPECT_LT(Brightness(light.headerGround), Brightness(light.ground));
    const Looks dark = LooksFrom(DarkColors());
    EXPECT_EQ(dark.ground, 0x1E1E1Eu);
    EXPECT_LT(Brightness(dark.headerGround), 3 * 0x60);
    EXPECT_GT(Brightness(dark.headerGround), Brightness(dark.ground));
}
