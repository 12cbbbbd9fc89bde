#include "render/paint_palette.h"

#include "automation/colors.h"

namespace vornix {

PaintPalette MakePaintPalette(const PaintContext& context, const PaintSettings& settings)
{
    const SystemColors& colors = context.container.Colors();
    const GridDefaults& defaults = context.store.Defaults;
    return {
        .back = OleTranslateColor(settings.BackColor, colors),
        .defaultBack = OleTranslateColor(defaults.DefaultBkColor, colors),
        .defaultFore = OleTranslateColor(defaults.DefaultForeColor, colors),
        .altBack = OleTranslateColor(settings.AltBkColor, colors),
        .altFore = OleTranslateColor(settings.AltForeColor, colors),
        .selectedBack = OleTranslateColor(settings.BackColorSel, colors),
        .selectedFore = OleTranslateColor(settings.ForeColorSel, colors),
    };
}

} // namespace vornix
