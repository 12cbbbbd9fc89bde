// The arguments of an event on their way to a callback and back.
#pragma once

#include "vornix/automation.h"
#include "vornix/members.h"
#include "vornix/vornix_c.h"

#include <functional>
#include <optional>
#include <span>

namespace vornix::c {

// No event has more.
inline constexpr std::size_t MostEventArguments = 8;

using CallbackOfValues = std::function<void(vornix_value* values, std::size_t count)>;

// Calls the callback with the arguments. Those by reference take what it left; a value that is none leaves its argument
// as it was, and is kept in `failure` unless there is one already. Objects end with the event.
void CallWithArguments(const EventInfo& event, std::span<Variant> arguments, const CallbackOfValues& callback,
    std::optional<AutomationError>& failure);

} // namespace vornix::c
