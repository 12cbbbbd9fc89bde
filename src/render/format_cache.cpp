#include "render/format_cache.h"

#include "automation/colors.h"
#include "automation/font_description.h"

namespace vornix {

void FormatCache::Begin(const SystemColors& colors, int twipsPerPixelY)
{
    colors_ = colors;
    twipsPerPixelY_ = twipsPerPixelY;
    for (Slot& slot : slots_)
        slot.id.reset();
}

const PreparedFormat& FormatCache::Prepared(FormatId id, const CellFormat& format)
{
    Slot& slot = slots_[id % SlotCount];
    if (slot.id != id) {
        Prepare(slot.prepared, format);
        slot.id = id;
    }
    return slot.prepared;
}

void FormatCache::Prepare(PreparedFormat& prepared, const CellFormat& format) const
{
    prepared.back = OleTranslateColor(format.BackColor, colors_);
    prepared.fore = OleTranslateColor(format.ForeColor, colors_);
    prepared.shadow = OleTranslateColor(format.BorderColor, colors_);
    FontDescription& font = prepared.font;
    font.face.assign(format.FontName.View());
    font.height = FontHeight(format.FontSize, twipsPerPixelY_);
    font.weight = format.FontBold ? 700 : 400;
    font.italic = format.FontItalic;
    font.underline = format.FontUnderline;
    font.strikeOut = format.FontStrikeThrough;
    font.charset = format.FontCharset;
}

} // namespace vornix
