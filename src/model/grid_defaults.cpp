#include "model/grid_defaults.h"

namespace vornix {

namespace {

CellFormat BuildFormat(
    OleColor backColor, OleColor foreColor, const FontPtr& font, i32 textAlign, const SystemColors& colors)
{
    CellFormat format;
    BackColorSet(backColor, colors).ApplyTo(format);
    format.ForeColor = foreColor;
    format.TextAlignment = textAlign | NoPrefixFlag;
    if (font)
        FontValues(font).ApplyTo(format);
    return format;
}

} // namespace

void GridDefaults::BuildFormats(const SystemColors& colors)
{
    DefaultCellFormat = BuildFormat(DefaultBkColor, DefaultForeColor, Font, DefaultTextAlign, colors);
    DefaultCellFormat.Mode = DefaultMode;
    DefaultCellFormatFixed
        = BuildFormat(DefaultBkColorFixed, DefaultForeColorFixed, FontFixed, DefaultTextAlignFixed, colors);
    DefaultCellFormatFixed.Mode = vxCellFixed;
    DefaultCellFormatFixed.Style = vxCellRaised;
}

} // namespace vornix
