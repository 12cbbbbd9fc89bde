// Where a cell's text goes: from alignment, margins and sizes to a rectangle and the flags left for DrawText.
#pragma once

#include "vornix/types.h"

namespace vornix {

// What the placement depends on. Logical pixels, in the coordinates of the whole cell.
struct TextFrame {
    Size cell;
    int marginLeft = 0;
    int marginRight = 0;
    int gridLineWidth = 1;
    // Rows of pixels clipped away at the top of the cell.
    int sourceY = 0;
    // From the visible top edge of the cell to the bottom of the client area.
    int roomBelow = 0;
};

// Measures the text at hand.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;
    // The bottom edge that the text reaches when it is laid out in `within` by the DT_ flags of `format`.
    virtual int MeasuredBottom(const Rect& within, u32 format) = 0;
};

struct TextPlacement {
    Rect rect;
    u32 format = 0;
};

TextPlacement PlaceText(i32 textAlignment, const TextFrame& frame, TextMeasurer& measurer);

} // namespace vornix
