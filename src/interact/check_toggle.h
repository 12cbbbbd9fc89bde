// Turns the check of a cell over, as the space bar and a click do. Internal indices.
#pragma once

#include "model/grid_store.h"
#include "model/repainter.h"
#include "vornix/events.h"
#include "vornix/platform/container.h"

namespace vornix {

class CheckToggle {
public:
    CheckToggle(GridStore& store, Repainter& repainter, const Container& container, VornixEvents& events)
        : store_(store)
        , repainter_(repainter)
        , container_(container)
        , events_(events)
    {
    }

    // Writes the other truth value into the text, paints the cell and raises TextChange. A cell that is disabled stays.
    void Toggle(int row, int col);

private:
    GridStore& store_;
    Repainter& repainter_;
    const Container& container_;
    VornixEvents& events_;
};

} // namespace vornix
