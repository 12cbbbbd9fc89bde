#include "event_bridge.h"

#include "event_values.h"

namespace vornix::c {

void EventBridge::SetCallback(vornix_event_callback callback, void* user)
{
    callback_ = callback;
    user_ = user;
}

std::optional<AutomationError> EventBridge::TakeKeptFailure()
{
    std::optional<AutomationError> converted = TakeFailure();
    std::optional<AutomationError> own = std::exchange(failure_, std::nullopt);
    return own ? own : converted;
}

void EventBridge::Raise(const EventInfo& event, std::span<Variant> arguments)
{
    if (callback_ == nullptr)
        return;
    CallWithArguments(
        event, arguments,
        [&](vornix_value* values, std::size_t count) { callback_(user_, grid_, event.number, values, count); },
        failure_);
}

} // namespace vornix::c
