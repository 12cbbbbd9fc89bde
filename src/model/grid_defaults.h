// The templates that new rows, columns and cells are made from, as the control's Default properties set them.
#pragma once

#include "model/cell_format.h"
#include "vornix/types.h"

namespace vornix {

inline constexpr i32 NoPrefixFlag = vxNoPrefix;

struct GridDefaults {
    i32 DefaultMode = 0;
    OleColor DefaultBkColor = 0x80000005;
    OleColor DefaultForeColor = 0x80000008;
    OleColor DefaultBkColorFixed = 0x8000000F;
    OleColor DefaultForeColorFixed = 0x80000012;
    OleColor DefaultLineColor = 0x8000000F;
    i16 DefaultHeight = 21;
    i16 DefaultWidth = 120;
    i16 DefaultHeightFixed = 21;
    i16 DefaultWidthFixed = 30;
    i32 DefaultTextAlign = 0;
    i32 DefaultTextAlignFixed = 0;
    i32 CommonTextAlign = NoPrefixFlag;
    FontPtr Font;
    FontPtr FontFixed;
    bool ColsResizable = true; // from ResizeMode
    bool RowsResizable = true;
    bool AdjustLastCol = true; // from AdjustLast
    bool AdjustLastRow = true;

    CellFormat DefaultCellFormat;
    CellFormat DefaultCellFormatFixed;

    // Makes both formats anew from the values above. A missing font leaves the font values zero.
    void BuildFormats(const SystemColors& colors);
};

} // namespace vornix
