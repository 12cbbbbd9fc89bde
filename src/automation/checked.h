// Arithmetic of the interface: computed in int, narrowed once, with error 6 on overflow and error 9 on a bad subscript.
#pragma once

#include "vornix/automation.h"
#include "vornix/types.h"

#include <cstdint>
#include <limits>

namespace vornix {

[[noreturn]] void RaiseError(int number);

// The value as 16 bits; error 6 when it does not fit.
inline i16 ToI16(std::int64_t value)
{
    if (value < std::numeric_limits<i16>::min() || value > std::numeric_limits<i16>::max())
        RaiseError(ErrorNumber::Overflow);
    return static_cast<i16>(value);
}

// The value as 32 bits; error 6 when it does not fit.
inline i32 ToI32(std::int64_t value)
{
    if (value < std::numeric_limits<i32>::min() || value > std::numeric_limits<i32>::max())
        RaiseError(ErrorNumber::Overflow);
    return static_cast<i32>(value);
}

// A subscript of an array of `count` elements; error 9 outside.
inline int CheckedIndex(int index, int count)
{
    if (index < 0 || index >= count)
        RaiseError(ErrorNumber::SubscriptOutOfRange);
    return index;
}

// To the nearest integer, ties to the even one: how floats become integers on the interface.
i16 RoundToI16(double value);
i32 RoundToI32(double value);

} // namespace vornix
