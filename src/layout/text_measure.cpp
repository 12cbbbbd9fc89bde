#include "layout/text_measure.h"

#include "automation/checked.h"
#include "automation/font_description.h"
#include "automation/format_patterns.h"

namespace vornix {

namespace {

// Underline, strike-through and character set are left out of what is measured.
FontDescription PlainFont(std::u16string_view face, int points, bool bold, bool italic, int twipsPerPixelY)
{
    FontDescription font;
    font.face = face;
    font.height = FontHeight(points, twipsPerPixelY);
    font.weight = bold ? 700 : 400;
    font.italic = italic;
    font.charset = 0;
    return font;
}

std::unique_ptr<Surface> SurfaceToMeasureOn(Device& window)
{
    std::unique_ptr<Surface> surface = window.CreateCompatible({});
    if (!surface)
        RaiseError(ErrorNumber::OutOfMemory);
    return surface;
}

// Texts go to the device without their length: they end at the first zero.
std::u16string_view UpToZero(std::u16string_view text)
{
    return text.substr(0, text.find(u'\0'));
}

} // namespace

TextMeasure::TextMeasure(const GridStore& store, Container& container)
    : store_(store)
    , locale_(container.GetLocale())
    , twipsPerPixelY_(container.TwipsPerPixel().height)
    , surface_(SurfaceToMeasureOn(container.WindowDevice()))
{
}

void TextMeasure::MeasureCellText(int row, int col, std::u16string_view pattern, Rect& rect)
{
    const Cell& cell = store_.CellAt(row, col);
    SelectFontOf(cell);
    text_ = cell.TextView(scratch_);
    if (!pattern.empty()) {
        scratch_ = FormatText(text_, pattern, locale_);
        text_ = scratch_;
    }
    text_ = UpToZero(text_);
    const u32 flags = static_cast<u32>(store_.FormatOf(cell).TextAlignment) & ~DT_WORD_ELLIPSIS;
    surface_->MeasureText(text_, rect, flags);
}

void TextMeasure::SelectFontOf(const Cell& cell)
{
    if (selected_ == cell.FormatNumber())
        return;
    const CellFormat& format = store_.FormatOf(cell);
    surface_->SelectFont(
        PlainFont(format.FontName.View(), format.FontSize, format.FontBold, format.FontItalic, twipsPerPixelY_));
    selected_ = cell.FormatNumber();
}

int TextMeasure::HeightOfLines(const FontPtr& font, int lines)
{
    const FontValues values(font);
    surface_->SelectFont(PlainFont(values.Name.View(), values.Size, values.Bold, values.Italic, twipsPerPixelY_));
    selected_.reset();
    std::u16string sample = u"Aj";
    sample.append(static_cast<std::size_t>(lines - 1), u'\r');
    Rect rect { 0, 0, 5, 5 };
    surface_->MeasureText(sample, rect, DT_NOPREFIX);
    return rect.bottom;
}

} // namespace vornix
