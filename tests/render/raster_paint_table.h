// A table painted on pixels in memory.
#pragma once

#include "render/paint_table.h"
#include "vornix/raster_surface.h"

#include <string>

namespace vornix {

class RasterPaintTable : public PaintTable {
public:
    explicit RasterPaintTable(
        Size client = { 50, 20 }, double scale = 1, int fixedRows = 0, int rows = 1, int fixedCols = 0, int cols = 1)
        : PaintTable(RasterSurface::Create(client, scale, SystemColors()), client, fixedRows, rows, fixedCols, cols)
    {
        Window().FillRect({ 0, 0, client.width, client.height }, Unpainted);
    }

    // What the window holds where nothing was painted.
    static constexpr ColorRef Unpainted = 0xFF00FE;

    RasterSurface& Window() { return static_cast<RasterSurface&>(*container.window); }
    ColorRef Pixel(int x, int y) { return Window().GetPixel(x, y); }
    ColorRef StorePixel(int x, int y) { return pipeline.BackStore()->GetPixel(x, y); }
    void Repaint() { pipeline.RepaintGrid(); }

    // The pixels of a line, one letter each; colours that `letters` does not name are '?'.
    std::string Row(int y, const std::map<ColorRef, char>& letters)
    {
        std::string row;
        for (int x = 0; x < Window().GetSize().width; ++x)
            row += Letter(Pixel(x, y), letters);
        return row;
    }
    std::vector<std::string> Picture(const std::map<ColorRef, char>& letters)
    {
        std::vector<std::string> rows;
        for (int y = 0; y < Window().GetSize().height; ++y)
            rows.push_back(Row(y, letters));
        return rows;
    }
    int CountPixels(const Rect& area, ColorRef color)
    {
        int count = 0;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x)
                count += Pixel(x, y) == color;
        }
        return count;
    }

private:
    static char Letter(ColorRef color, const std::map<ColorRef, char>& letters)
    {
        const auto found = letters.find(color);
        return found == letters.end() ? '?' : found->second;
    }
};

} // namespace vornix
