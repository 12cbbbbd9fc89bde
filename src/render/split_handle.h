// The look of the split handle.
#pragma once

#include "vornix/platform/device.h"
#include "vornix/platform/system_colors.h"

namespace vornix {

// `handle` is the handle's surface, `height` its height in pixels. Over the cells it is a bar; beside the horizontal
// bar, while there is no split, a small button.
void DrawSplitHandle(Device& handle, const SystemColors& colors, int height, bool overCells);

} // namespace vornix
