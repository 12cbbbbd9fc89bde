// The cell that the user holds down, as the painter shows it. Internal indices.
#pragma once

#include "model/spans.h"

namespace vornix {

struct PressedCell {
    CellIndex cell { NoIndex, NoIndex };
    // The pointer is on it with the button down.
    bool isShown = false;

    bool ShowsAt(int row, int col) const { return isShown && cell == CellIndex { row, col }; }
};

} // namespace vornix
