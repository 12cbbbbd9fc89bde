// Counts of lines as hosts write them.
#pragma once

#include "automation/checked.h"

namespace vornix {

// There are no fewer than none; error 9.
inline void RequireCount(i16 count)
{
    if (count < 0)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
}

} // namespace vornix
