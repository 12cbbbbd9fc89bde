// The control's colours as they are drawn in one paint, translated once.
#pragma once

#include "render/paint_context.h"
#include "render/paint_settings.h"

namespace vornix {

struct PaintPalette {
    ColorRef back = 0;
    ColorRef defaultBack = 0;
    ColorRef defaultFore = 0;
    ColorRef altBack = 0;
    ColorRef altFore = 0;
    ColorRef selectedBack = 0;
    ColorRef selectedFore = 0;
};

PaintPalette MakePaintPalette(const PaintContext& context, const PaintSettings& settings);

} // namespace vornix
