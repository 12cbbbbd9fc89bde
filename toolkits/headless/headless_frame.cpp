#include "vornix/headless_frame.h"

#include "vornix/vornix.h"

namespace vornix {

void HeadlessFrame::MouseMove(i16 button, i16 shift, float x, float y)
{
    if (grid_)
        grid_->ChildMouseMove(ChildName::fraEdit, button, shift, x, y);
}

} // namespace vornix
