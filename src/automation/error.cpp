#include "automation/checked.h"

#include <cmath>
#include <utility>

namespace vornix {

namespace {

std::string StandardDescription(int number)
{
    switch (number) {
    case ErrorNumber::InvalidArgument:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::OutOfMemory:
        return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange:
        return "Subscript out of range";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::InvalidUseOfNull:
        return "Invalid use of Null";
    case ErrorNumber::NoSuchMember:
        return "Object doesn't support this property or method";
    case ErrorNumber::ActionNotSupported:
        return "Object doesn't support this action";
    case ErrorNumber::NamedArgumentNotFound:
        return "Named argument not found";
    case ErrorNumber::WrongArgumentCount:
        return "Wrong number of arguments or invalid property assignment";
    default:
        return "Automation error " + std::to_string(number);
    }
}

// Rounds half to even whatever the rounding mode of the thread is.
double RoundHalfEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5)
        return below;
    if (rest > 0.5)
        return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

} // namespace

AutomationError::AutomationError(int number)
    : AutomationError(number, StandardDescription(number))
{
}

AutomationError::AutomationError(int number, std::string description)
    : number_(number)
    , description_(std::move(description))
{
}

void RaiseError(int number)
{
    throw AutomationError(number);
}

i16 RoundToI16(double value)
{
    const double rounded = RoundHalfEven(value);
    if (!(rounded >= -32768 && rounded <= 32767))
        RaiseError(ErrorNumber::Overflow);
    return static_cast<i16>(rounded);
}

i32 RoundToI32(double value)
{
    const double rounded = RoundHalfEven(value);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
        RaiseError(ErrorNumber::Overflow);
    return static_cast<i32>(rounded);
}

} // namespace vornix
