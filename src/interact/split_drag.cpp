#include "interact/split_drag.h"

namespace vornix {

void SplitDrag::Press(i16 /*button*/, int /*x*/) { }

void SplitDrag::Move(int /*x*/) { }

void SplitDrag::Release(i16 /*button*/, int /*x*/) { }

} // namespace vornix
