// The frames of cells: edges by style, the pressed look's frame, grid lines, gradients. Knows colours and sizes, no
// cells.
#pragma once

#include "model/cell_format.h"
#include "vornix/platform/device.h"

namespace vornix {

// Colours of a cell's frame, ready to draw with.
struct FrameColors {
    ColorRef light = 0;
    ColorRef shadow = 0;
    ColorRef dark = 0;
    // Behind rounded corners.
    ColorRef outside = 0;
};

struct GridLineLook {
    i32 kind = vxBoth;
    int width = 1;
    ColorRef rowColor = 0;
    ColorRef colColor = 0;
};

// Fills the cell from one colour to the other.
void PaintGradient(Device& device, Size cell, i32 mode, const GradientColor& start, const GradientColor& stop);

// The area around a round box, and the clip that keeps all that follows inside. Holds as long as the surface lives.
void PrepareRoundBox(Device& device, Size cell, ColorRef outside);
void PaintRoundFrame(Device& device, Size cell, const FrameColors& colors);
// Mends the left side of a vertical gradient in a round box.
void PaintRoundBoxSide(Device& device, Size cell, ColorRef color);

// True for the styles whose edges take the place of grid lines. Round boxes are framed too, without their side.
bool PaintStyleEdges(Device& device, Size cell, i32 style, const FrameColors& colors);
// The edges of a pressed press button: those of a raised cell the other way round.
void PaintSunkenEdges(Device& device, Size cell, const FrameColors& colors);
// Inside the cell, at its bottom and right.
void PaintGridLines(Device& device, Size cell, const GridLineLook& look);

} // namespace vornix
