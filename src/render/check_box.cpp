#include "render/check_box.h"

#include "vornix/platform/device.h"

namespace vornix {

Rect CheckBoxRect(i32 textAlignment, Size cell, int gridLineWidth)
{
    constexpr int side = 13;
    int x = 2;
    int y = 2;
    if (textAlignment & vxTxtCenter)
        x = (cell.width - side) / 2;
    if (textAlignment & vxTxtRight)
        x = cell.width - 4 - (side + gridLineWidth);
    if (textAlignment & vxTxtVCenter)
        y = (cell.height - side) / 2;
    if (textAlignment & vxTxtBottom) {
        x = -4;
        y = 2 + cell.height - (side + gridLineWidth);
    }
    return { x, y, x + side, y + side };
}

u32 CheckBoxState(bool checked, bool disabled, i32 textAlignment)
{
    u32 state = DFCS_BUTTONCHECK;
    if (checked)
        state |= DFCS_CHECKED;
    if (disabled)
        state |= DFCS_INACTIVE;
    if ((textAlignment & vxCheck3D) == 0)
        state |= DFCS_FLAT;
    return state;
}

} // namespace vornix
