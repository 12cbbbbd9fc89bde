// Measures texts of cells as DrawText lays them out, on a surface that nobody sees.
#pragma once

#include "model/grid_store.h"
#include "vornix/platform/container.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vornix {

// For one run of measurements: the formats of the store must not be written meanwhile.
class TextMeasure {
public:
    // Error 7 when there is no memory for a surface.
    TextMeasure(const GridStore& store, Container& container);

    // Lays the text of a cell out in `rect`, after what `pattern` makes of it unless it is empty: the right and bottom
    // edges take what the text needs. Without the word ellipsis, which would make every text fit. Raises what
    // formatting the text raises.
    void MeasureCellText(int row, int col, std::u16string_view pattern, Rect& rect);
    // The text measured last once more, in this rectangle and with no flag at all: nothing is measured.
    void DrawAgain(Rect& rect) { surface_->DrawText(text_, rect, 0); }
    // Lines of text in a font of the host's, by their height.
    int HeightOfLines(const FontPtr& font, int lines);

private:
    void SelectFontOf(const Cell& cell);

    const GridStore& store_;
    const Locale& locale_;
    int twipsPerPixelY_;
    std::unique_ptr<Surface> surface_;
    // The format whose font is selected.
    std::optional<FormatId> selected_;
    std::u16string_view text_;
    std::u16string scratch_;
};

} // namespace vornix
