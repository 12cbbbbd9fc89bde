#include "model/grid_defaults.h"

#include <gtest/gtest.h>

namespace vornix {
namespace {

FontPtr MakeFont(std::u16string_view name, double size)
{
    FontObject font;
    font.Name = name;
    font.Size = size;
    return std::make_shared<const FontObject>(font);
}

TEST(GridDefaultsTest, BuildsTheFormatOfPlainCells)
{
    GridDefaults defaults;
    defaults.DefaultMode = vxTextBox;
    defaults.DefaultTextAlign = vxTxtVCenter;
    defaults.Font = MakeFont(u"Plain", 9);
    defaults.BuildFormats(SystemColors());
    const CellFormat& format = defaults.DefaultCellFormat;

    CellFormat expected;
    expected.Mode = vxTextBox;
    expected.ForeColor = 0x80000008;
    expected.TextAlignment = vxTxtVCenter | vxNoPrefix;
    expected.FontName = FontName(u"Plain");
    expected.FontSize = 9;
    expected.FontCharset = 1;
    BackColorSet(0x80000005, SystemColors()).ApplyTo(expected);
    EXPECT_EQ(format, expected);
    EXPECT_EQ(format.Style, vxCellFlat);
}

TEST(GridDefaultsTest, BuildsTheFormatOfFixedCells)
{
    GridDefaults defaults;
    defaults.DefaultMode = vxTextBox;
    defaults.DefaultTextAlignFixed = vxTxtCenter;
    defaults.FontFixed = MakeFont(u"Fixed", 8);
    defaults.BuildFormats(SystemColors());
    const CellFormat& format = defaults.DefaultCellFormatFixed;
    EXPECT_EQ(format.Mode, vxCellFixed);
    EXPECT_EQ(format.Style, vxCellRaised);
    EXPECT_EQ(format.BackColor, 0x8000000Fu);
    EXPECT_EQ(format.ForeColor, 0x80000012u);
    EXPECT_EQ(format.TextAlignment, vxTxtCenter | vxNoPrefix);
    EXPECT_EQ(format.FontName.View(), u"Fixed");
    EXPECT_EQ(format.GradientStart.Color, 0xF0F0F0u);
}

TEST(GridDefaultsTest, AMissingFontLeavesItsValuesZero)
{
    GridDefaults defaults;
    defaults.BuildFormats(SystemColors());
    EXPECT_EQ(defaults.DefaultCellFormat.FontName.View(), u"");
    EXPECT_EQ(defaults.DefaultCellFormat.FontSize, 0);
}

} // namespace
} // namespace vornix
