#include "automation/colors.h"

#include <gtest/gtest.h>

namespace vornix {

namespace {

constexpr ColorRef White = 0xFFFFFF;
constexpr ColorRef Black = 0x000000;
constexpr ColorRef Red = 0x0000FF;
constexpr ColorRef Green = 0x00FF00;
constexpr ColorRef Blue = 0xFF0000;

} // namespace

TEST(Colors, TheDefaultTableIsThatOfTheContainerWithoutAScreen)
{
    const SystemColors table;
    EXPECT_EQ(table.values[SystemColor::ScrollBar], 0xC8C8C8u);
    EXPECT_EQ(table.values[SystemColor::Window], 0xFFFFFFu);
    EXPECT_EQ(table.values[SystemColor::WindowFrame], 0x646464u);
    EXPECT_EQ(table.values[SystemColor::WindowText], 0x000000u);
    EXPECT_EQ(table.values[SystemColor::Highlight], 0xD77800u);
    EXPECT_EQ(table.values[SystemColor::HighlightText], 0xFFFFFFu);
    EXPECT_EQ(table.values[SystemColor::ButtonFace], 0xF0F0F0u);
    EXPECT_EQ(table.values[SystemColor::ButtonShadow], 0xA0A0A0u);
    EXPECT_EQ(table.values[SystemColor::GrayText], 0x6D6D6Du);
    EXPECT_EQ(table.values[SystemColor::ButtonText], 0x000000u);
    EXPECT_EQ(table.values[SystemColor::ButtonHighlight], 0xFFFFFFu);
    EXPECT_EQ(table.values[SystemColor::DarkShadow], 0x696969u);
    EXPECT_EQ(table.values[SystemColor::Light], 0xE3E3E3u);
}

TEST(Colors, SystemColoursComeFromTheTableOthersFromThemselves)
{
    SystemColors table;
    table.values[SystemColor::ButtonFace] = 0x123456;
    EXPECT_EQ(OleTranslateColor(0x8000000F, table), 0x123456u);
    EXPECT_EQ(OleTranslateColor(SystemOleColor(SystemColor::Highlight), table), 0xD77800u);
    EXPECT_EQ(OleTranslateColor(0x00C0FFFF, table), 0xC0FFFFu);
    EXPECT_EQ(OleTranslateColor(0x02C0FFFF, table), 0xC0FFFFu);
}

TEST(Colors, AnIndexOutOfTheTableIsBlack)
{
    EXPECT_EQ(OleTranslateColor(0x80000020, SystemColors()), Black);
    EXPECT_EQ(OleTranslateColor(0xFFFFFFFF, SystemColors()), Black);
}

TEST(Colors, HueLumaAndSaturationOfKnownColours)
{
    EXPECT_EQ(ToHueLumaSaturation(White), (HueLumaSaturation { 160, 240, 0 }));
    EXPECT_EQ(ToHueLumaSaturation(Black), (HueLumaSaturation { 160, 0, 0 }));
    EXPECT_EQ(ToHueLumaSaturation(Red), (HueLumaSaturation { 0, 120, 240 }));
    EXPECT_EQ(ToHueLumaSaturation(Green), (HueLumaSaturation { 80, 120, 240 }));
    EXPECT_EQ(ToHueLumaSaturation(Blue), (HueLumaSaturation { 160, 120, 240 }));
    EXPECT_EQ(ToHueLumaSaturation(0x808080), (HueLumaSaturation { 160, 120, 0 }));
    EXPECT_EQ(ToHueLumaSaturation(0xF0F0F0), (HueLumaSaturation { 160, 226, 0 }));
}

TEST(Colors, ThePrimariesSurviveTheWayThereAndBack)
{
    for (const ColorRef color : { White, Black, Red, Green, Blue, 0xFFFF00u, 0xFF00FFu, 0x00FFFFu })
        EXPECT_EQ(FromHueLumaSaturation(ToHueLumaSaturation(color)), color);
}

// Worked out by hand from the integer rules.
TEST(Colors, LumaOfKnownPairs)
{
    struct Pair {
        ColorRef color;
        int n;
        ColorRef expected;
    };
    const Pair pairs[] = {
        { White, 480, 0xFFFFFF }, // 240.48 -> 240
        { White, -300, 0xB2B2B2 }, // 168
        { White, -650, 0x595959 }, // 84
        { Black, 480, 0x7A7A7A }, // 115
        { Black, -300, 0x000000 },
        { Black, -650, 0x000000 },
        { 0xF0F0F0, 480, 0xF7F7F7 }, // 226 -> 233
        { 0xF0F0F0, -300, 0xA7A7A7 }, // 158
        { 0xF0F0F0, -650, 0x535353 }, // 79
        { 0x808080, 480, 0xBDBDBD }, // 120 -> 178
        { 0x808080, -300, 0x595959 }, // 84
        { 0x808080, -650, 0x2C2C2C }, // 42
        { 0xC0C0C0, 480, 0xDEDEDE }, // 181 -> 209
        { Red, 480, 0x7B7BFF }, // 178, channels 116 and 240 of 240
        { Red, -300, 0x0000B3 },
        { Red, -650, 0x000059 },
        { Green, -300, 0x00B300 },
        { Blue, -650, 0x590000 },
        { White, 1000, 0xFFFFFF },
        { Black, 1000, 0xFFFFFF },
        { White, -1000, 0x000000 },
    };
    for (const Pair& pair : pairs)
        EXPECT_EQ(ColorAdjustLuma(pair.color, pair.n), pair.expected)
            << std::hex << pair.color << std::dec << " by " << pair.n;
}

TEST(Colors, NoChangeOfLumaLeavesTheColour)
{
    EXPECT_EQ(ColorAdjustLuma(0x123457, 0), 0x123457u);
    EXPECT_EQ(ColorAdjustLuma(0xFEFDFC, 0), 0xFEFDFCu);
}

TEST(Colors, BrightnessTruncatesPerChannel)
{
    EXPECT_EQ(ColorBrightness(0x402010, 0), 0x402010u);
    EXPECT_EQ(ColorBrightness(0x402010, 100), White);
    EXPECT_EQ(ColorBrightness(0x402010, -100), Black);
    EXPECT_EQ(ColorBrightness(0x402010, 50), 0x9F8F87u);
    EXPECT_EQ(ColorBrightness(0x402010, -20), 0x33190Cu);
    EXPECT_EQ(ColorBrightness(0xFFFFFF, -20), 0xCCCCCCu);
    EXPECT_EQ(ColorBrightness(0x000000, 1), 0x020202u);
    EXPECT_EQ(ColorBrightness(0x0000FF, -1), 0x0000FCu);
}

} // namespace vornix
