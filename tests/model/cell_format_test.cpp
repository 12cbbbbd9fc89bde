#include "model/cell_format.h"

#include "model/store_support.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

TEST(CellFormatTest, ZeroPercentLeavesTheColour)
{
    const GradientColor color = MakeGradientColor(0x00336699, 0);
    EXPECT_EQ(color.Color, 0x00336699u);
    EXPECT_EQ(color.Red, static_cast<i16>(0x9900));
    EXPECT_EQ(color.Green, static_cast<i16>(0x6600));
    EXPECT_EQ(color.Blue, static_cast<i16>(0x3300));
}

TEST(CellFormatTest, AllTheWayIsWhiteAndBlack)
{
    EXPECT_EQ(MakeGradientColor(0x00123456, 100).Color, 0x00FFFFFFu);
    EXPECT_EQ(MakeGradientColor(0x00123456, 100).Red, static_cast<i16>(0xFF00));
    EXPECT_EQ(MakeGradientColor(0x00FEDCBA, -100).Color, 0u);
    EXPECT_EQ(MakeGradientColor(0x00FEDCBA, -100).Blue, 0);
}

TEST(CellFormatTest, PercentsTruncate)
{
    // 255 * 80 / 100 = 204; 240 * 80 / 100 = 192; 99 * 80 / 100 = 79.2
    EXPECT_EQ(MakeGradientColor(0x0063F0FF, -20).Color, 0x004FC0CCu);
    // (100 * 50 + 255 * 50) / 100 = 177.5; (1 * 50 + 255 * 50) / 100 = 128; (0 + 255 * 50) / 100 = 127.5
    EXPECT_EQ(MakeGradientColor(0x00000164, 50).Color, 0x007F80B1u);
}

TEST(CellFormatTest, BackColourBringsItsShades)
{
    SystemColors colors;
    colors.values[SystemColor::ButtonFace] = 0xF0F0F0;
    const BackColorSet set(SystemOleColor(SystemColor::ButtonFace), colors);
    CellFormat format;
    set.ApplyTo(format);
    EXPECT_EQ(format.BackColor, 0x8000000Fu) << "the host's value, not translated";
    EXPECT_EQ(format.GradientStart.Color, 0xF0F0F0u);
    EXPECT_EQ(format.GradientStart.Green, static_cast<i16>(0xF000));
    EXPECT_EQ(format.GradientStop.Color, 0xC0C0C0u);
    // Luma of F0F0F0 is 226 of 240: raised by 480, lowered by 300 and by 650 thousandths.
    EXPECT_GT(format.LightShade, 0xF0F0F0u);
    EXPECT_LT(format.BorderColor, 0xF0F0F0u);
    EXPECT_LT(format.DarkShade, format.BorderColor);
}

TEST(CellFormatTest, BackColourLeavesTheRest)
{
    CellFormat format;
    format.ForeColor = 5;
    format.GradientEnd = 6;
    format.GradientMode = vxGradientLR;
    CellFormat expected = format;
    const BackColorSet set(0x00FFFFFF, SystemColors());
    set.ApplyTo(format);
    expected.BackColor = set.BackColor;
    expected.GradientStart = set.GradientStart;
    expected.GradientStop = set.GradientStop;
    expected.LightShade = set.LightShade;
    expected.BorderColor = set.BorderColor;
    expected.DarkShade = set.DarkShade;
    EXPECT_EQ(format, expected);
}

TEST(CellFormatTest, FontNamesCompareByValueWithCase)
{
    EXPECT_EQ(FontName(u"Arial"), FontName(u"Arial"));
    EXPECT_FALSE(FontName(u"Arial") == FontName(u"arial"));
    EXPECT_EQ(FontName(), FontName(u""));
    EXPECT_EQ(FontName(u"Arial").View(), u"Arial");
    EXPECT_EQ(FontName().View(), u"");
}

TEST(CellFormatTest, TakesTheSevenFontValues)
{
    FontObject font;
    font.Name = u"DejaVu Sans";
    font.Size = 8.25;
    font.Bold = font.Underline = true;
    font.Charset = 204;
    CellFormat format;
    format.ForeColor = 3;
    FontValues(std::make_shared<const FontObject>(font)).ApplyTo(format);
    EXPECT_EQ(format.FontName.View(), u"DejaVu Sans");
    EXPECT_EQ(format.FontSize, 8);
    EXPECT_TRUE(format.FontBold);
    EXPECT_FALSE(format.FontItalic);
    EXPECT_TRUE(format.FontUnderline);
    EXPECT_FALSE(format.FontStrikeThrough);
    EXPECT_EQ(format.FontCharset, 204);
    EXPECT_EQ(format.ForeColor, 3u);
}

TEST(CellFormatTest, RoundsFontSizesTiesToEven)
{
    const auto sizeOf = [](double size) {
        FontObject font;
        font.Size = size;
        return FontValues(std::make_shared<const FontObject>(font)).Size;
    };
    EXPECT_EQ(sizeOf(8.5), 8);
    EXPECT_EQ(sizeOf(9.5), 10);
    EXPECT_EQ(sizeOf(9.75), 10);
    EXPECT_EQ(ErrorOf([&] { sizeOf(40000); }), ErrorNumber::Overflow);
    EXPECT_EQ(ErrorOf([] { FontValues(nullptr); }), ErrorNumber::InvalidArgument);
}

TEST(CellFormatTest, AlignmentIsSetWithTheCommonFlags)
{
    EXPECT_EQ(MergedTextAlignment(1, vxTxtRight, vxNoPrefix), vxTxtRight | vxNoPrefix);
    EXPECT_EQ(MergedTextAlignment(1, 0, vxNoPrefix | vxSingleLine), vxNoPrefix | vxSingleLine);
}

TEST(CellFormatTest, NegativeAlignmentTogglesFlags)
{
    const i32 stored = vxTxtCenter | vxNoPrefix;
    EXPECT_EQ(MergedTextAlignment(stored, -vxTxtRight, vxNoPrefix), stored | vxTxtRight);
    EXPECT_EQ(MergedTextAlignment(MergedTextAlignment(stored, -vxTxtRight, 0), -vxTxtRight, 0), stored);
    EXPECT_EQ(MergedTextAlignment(stored, -vxNoPrefix, vxNoPrefix), vxTxtCenter);
    constexpr i32 lowest = std::numeric_limits<i32>::min();
    EXPECT_EQ(MergedTextAlignment(0, lowest, 0), lowest);
}

} // namespace
} // namespace vornix
