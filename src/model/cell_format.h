// The look of a cell, and how its derived colours follow from its back colour.
#pragma once

#include "vornix/platform/system_colors.h"
#include "vornix/types.h"

#include <memory>
#include <string>
#include <string_view>

namespace vornix {

// A colour in the two forms that gradients need: as it is, and with each channel in the high byte of 16 bits.
struct GradientColor {
    ColorRef Color = 0;
    i16 Red = 0;
    i16 Green = 0;
    i16 Blue = 0;
    friend bool operator==(const GradientColor&, const GradientColor&) = default;
};

// Percent -100 to 100: below 0 toward black, above toward white.
GradientColor MakeGradientColor(ColorRef color, int percent);

// A font name shared by the formats that carry it. Compares by value, case matters.
class FontName {
public:
    FontName() = default;
    explicit FontName(std::u16string_view name);
    std::u16string_view View() const;
    friend bool operator==(const FontName& a, const FontName& b) { return a.name_ == b.name_ || a.View() == b.View(); }

private:
    std::shared_ptr<const std::u16string> name_;
};

// Every attribute of a cell, a plain value. A zeroed one is black on black without a font.
struct CellFormat {
    i32 Mode = 0;
    i32 Style = 0;
    OleColor BackColor = 0;
    OleColor ForeColor = 0;
    i32 PictureAlignment = 0;
    i32 TextAlignment = 0;
    i16 TextMarginLeft = 0;
    i16 TextMarginRight = 0;
    vornix::FontName FontName;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontStrikeThrough = false;
    i16 FontSize = 0;
    i32 FontCharset = 0;
    bool Disabled = false;
    ColorRef LightShade = 0;
    OleColor BorderColor = 0;
    ColorRef DarkShade = 0;
    i32 GradientMode = 0;
    OleColor GradientEnd = 0;
    GradientColor GradientStart;
    GradientColor GradientStop;
    friend bool operator==(const CellFormat&, const CellFormat&) = default;
};

// What a back colour brings with it, computed once for all cells it is written to.
struct BackColorSet {
    OleColor BackColor = 0;
    GradientColor GradientStart;
    GradientColor GradientStop;
    ColorRef LightShade = 0;
    OleColor BorderColor = 0;
    ColorRef DarkShade = 0;

    BackColorSet(OleColor value, const SystemColors& colors);
    // Writes the back colour, both gradient colours and the three shades.
    void ApplyTo(CellFormat& format) const;
};

// The seven font values of a font object; the size is rounded to whole points.
struct FontValues {
    vornix::FontName Name;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool StrikeThrough = false;
    i16 Size = 0;
    i32 Charset = 0;

    // Error 5 for a null font; error 6 when the size leaves 16 bits.
    explicit FontValues(const FontPtr& font);
    void ApplyTo(CellFormat& format) const;
};

// TextAlignment after a host wrote `value`: set with the common flags, or with a negative value toggled.
i32 MergedTextAlignment(i32 stored, i32 value, i32 commonFlags);

} // namespace vornix
