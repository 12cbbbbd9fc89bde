#include "render/split_handle.h"

#include "automation/colors.h"

namespace vornix {

namespace {

constexpr ColorRef Black = 0x000000;

void DrawVerticalLine(Device& handle, int x, int height, ColorRef color)
{
    handle.Polyline({ color, 1 }, { { x, 0 }, { x, height } });
}

} // namespace

void DrawSplitHandle(Device& handle, const SystemColors& colors, int height, bool overCells)
{
    const ColorRef shadow = OleTranslateColor(SystemOleColor(SystemColor::ButtonShadow), colors);
    const ColorRef highlight = OleTranslateColor(SystemOleColor(SystemColor::ButtonHighlight), colors);
    if (overCells) {
        DrawVerticalLine(handle, 4, height, Black);
        DrawVerticalLine(handle, 3, height, shadow);
        DrawVerticalLine(handle, 1, height, highlight);
        return;
    }
    const int bottom = height - 1;
    handle.Polyline({ Black, 1 }, { { 4, 0 }, { 4, bottom }, { -1, bottom } });
    handle.Polyline({ shadow, 1 }, { { 3, 1 }, { 3, bottom - 1 }, { 0, bottom - 1 } });
    handle.Polyline({ highlight, 1 }, { { 2, 1 }, { 1, 1 }, { 1, bottom - 1 } });
}

} // namespace vornix
