#include "model/cell_format.h"

#include "automation/checked.h"
#include "automation/colors.h"

namespace vornix {

namespace {

constexpr int GradientStopPercent = -20;
constexpr int LightShadeLuma = 480;
constexpr int BorderLuma = -300;
constexpr int DarkShadeLuma = -650;

i16 InHighByte(ColorRef channel)
{
    return static_cast<i16>(static_cast<u16>((channel & 0xFF) << 8));
}

} // namespace

GradientColor MakeGradientColor(ColorRef color, int percent)
{
    const ColorRef moved = ColorBrightness(color, percent);
    return { moved, InHighByte(moved), InHighByte(moved >> 8), InHighByte(moved >> 16) };
}

FontName::FontName(std::u16string_view name)
    : name_(name.empty() ? nullptr : OrOutOfMemory([&] { return std::make_shared<const std::u16string>(name); }))
{
}

std::u16string_view FontName::View() const
{
    return name_ ? std::u16string_view(*name_) : std::u16string_view();
}

BackColorSet::BackColorSet(OleColor value, const SystemColors& colors)
    : BackColor(value)
{
    const ColorRef color = OleTranslateColor(value, colors);
    GradientStart = MakeGradientColor(color, 0);
    GradientStop = MakeGradientColor(color, GradientStopPercent);
    LightShade = ColorAdjustLuma(color, LightShadeLuma);
    BorderColor = ColorAdjustLuma(color, BorderLuma);
    DarkShade = ColorAdjustLuma(color, DarkShadeLuma);
}

void BackColorSet::ApplyTo(CellFormat& format) const
{
    format.BackColor = BackColor;
    format.GradientStart = GradientStart;
    format.GradientStop = GradientStop;
    format.LightShade = LightShade;
    format.BorderColor = BorderColor;
    format.DarkShade = DarkShade;
}

FontValues::FontValues(const FontPtr& font)
{
    if (!font)
        RaiseError(ErrorNumber::InvalidArgument);
    Name = vornix::FontName(font->Name);
    Bold = font->Bold;
    Italic = font->Italic;
    Underline = font->Underline;
    StrikeThrough = font->Strikethrough;
    Size = RoundToI16(font->Size);
    Charset = font->Charset;
}

void FontValues::ApplyTo(CellFormat& format) const
{
    format.FontName = Name;
    format.FontBold = Bold;
    format.FontItalic = Italic;
    format.FontUnderline = Underline;
    format.FontStrikeThrough = StrikeThrough;
    format.FontSize = Size;
    format.FontCharset = Charset;
}

i32 MergedTextAlignment(i32 stored, i32 value, i32 commonFlags)
{
    if (value >= 0)
        return commonFlags | value;
    // Negated as unsigned: the lowest value has no positive twin.
    return static_cast<i32>(static_cast<u32>(stored) ^ (0u - static_cast<u32>(value)));
}

} // namespace vornix
