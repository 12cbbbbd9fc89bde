// Paints one cell: everything that shows in it, composed on a surface of its own and copied out at once.
#pragma once

#include "render/background_picture.h"
#include "render/cell_picture.h"
#include "render/format_cache.h"
#include "render/mem_dc.h"
#include "render/paint_context.h"
#include "render/paint_palette.h"
#include "render/paint_settings.h"

#include <string>

namespace vornix {

class ScreenCell;

class CellPainter {
public:
    CellPainter(const PaintContext& context, const PaintSettings& settings, const BackgroundPicture& background);

    // Around each paint: what is remembered within one is read anew for the next.
    void BeginPaint();
    void EndPaint();

    // In whole pixels, for screens. May raise DrawCell; after that a handler may have changed or closed anything.
    void PaintCellScreen(const PaintJob& job, const CellPlacement& place);

    // Gives back the surface kept for blending the selection.
    void Release();

private:
    friend class ScreenCell;

    const PaintContext& context_;
    const PaintSettings& settings_;
    const BackgroundPicture& background_;
    cMemDC selectionSurface_;
    FormatCache formats_;
    PictureSurfaces pictures_;
    PaintPalette palette_;
    Size twipsPerPixel_;
    std::u16string scratch_;
};

// A dotted rectangle around the cell's visible part, on the job's devices; two of them for a heavy mark. Drawn twice it
// is gone. Fixed cells are the caller's to leave out.
void DrawFocusMark(const PaintJob& job, const Rect& visible, i32 kind);

} // namespace vornix
