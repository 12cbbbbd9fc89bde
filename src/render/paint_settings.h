// The painter's share of the control's properties.
#pragma once

#include "vornix/types.h"

namespace vornix {

struct PaintSettings {
    OleColor BackColor = 0x80000005;
    OleColor BackColorSel = 0x8000000D;
    OleColor ForeColorSel = 0x8000000E;
    bool AltColorEnabled = false;
    OleColor AltBkColor = 0x80000005;
    OleColor AltForeColor = 0x80000008;
    i32 FocusRect = vxFocusLight;
    i32 GridLines = vxBoth;
    i16 GridLineWidth = 1;
    i16 Opacity = 100;
    i32 UseMask = vxNoMask;
    OleColor MaskColor = 0;
    i32 PictureMode = vxDefault;
    i32 PictureBrightness = 0;
    PicturePtr Picture;
    i16 PictureAlpha = 0;
};

} // namespace vornix
