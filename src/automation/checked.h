// Arithmetic of the interface: computed in int, narrowed once, with error 6 on overflow and error 9 on a bad subscript.
#pragma once

#include "vornix/automation.h"
#include "vornix/types.h"

#include <cstdint>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

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

// Sums and products of the interface's integers; error 6 when the result does not fit.
inline i16 AddI16(i16 a, i16 b)
{
    return ToI16(std::int64_t { a } + b);
}
inline i16 SubtractI16(i16 a, i16 b)
{
    return ToI16(std::int64_t { a } - b);
}
inline i16 MultiplyI16(i16 a, i16 b)
{
    return ToI16(std::int64_t { a } * b);
}
inline i32 AddI32(i32 a, i32 b)
{
    return ToI32(std::int64_t { a } + b);
}
inline i32 SubtractI32(i32 a, i32 b)
{
    return ToI32(std::int64_t { a } - b);
}
inline i32 MultiplyI32(i32 a, i32 b)
{
    return ToI32(std::int64_t { a } * b);
}

// A condition on an argument; error 5 when it does not hold.
inline void CheckArgument(bool isValid)
{
    if (!isValid)
        RaiseError(ErrorNumber::InvalidArgument);
}

// Runs a step that needs memory; error 7 when there is none for it.
template <typename Step> decltype(auto) OrOutOfMemory(Step&& step)
{
    try {
        return std::forward<Step>(step)();
    } catch (const std::bad_alloc&) {
        RaiseError(ErrorNumber::OutOfMemory);
    } catch (const std::length_error&) {
        RaiseError(ErrorNumber::OutOfMemory);
    }
}

// To the nearest integer, ties to the even one: how floats become integers on the interface.
i16 RoundToI16(double value);
i32 RoundToI32(double value);

} // namespace vornix
