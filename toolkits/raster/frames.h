// Frames as the platform draws them: edges, check boxes, the focus rectangle. All rectangles are logical.
#pragma once

#include "pixel_view.h"
#include "vornix/platform/system_colors.h"
#include "vornix/types.h"

namespace vornix {

// A view with its logical size.
struct Canvas {
    const PixelView& view;
    Size logical;
};

// One logical pixel wide, inside the rectangle.
void DrawFrame(const Canvas& canvas, const Rect& rect, u32 pixel);

// Up to two rings of one pixel, each on the sides asked for; the right and bottom lines own the corners they share with
// the top and left ones. With BF_MIDDLE what is left inside takes the button face.
void DrawEdges(const Canvas& canvas, const Rect& rect, u32 edge, u32 sides, const SystemColors& colors);

// A check box in the largest square in the middle of the rectangle.
void DrawCheckBox(const Canvas& canvas, const Rect& rect, u32 state, const SystemColors& colors);

// Inverts the logical pixels of the rectangle's border whose coordinates have an odd sum.
void InvertFocusRect(const Canvas& canvas, const Rect& rect);

} // namespace vornix
