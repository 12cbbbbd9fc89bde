// Memory that runs out reaches a host as error 7.
#pragma once

#include "automation/checked.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace vornix {

// Runs the step; an allocation that fails in it becomes error 7.
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

} // namespace vornix
