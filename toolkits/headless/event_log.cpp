#include "vornix/event_log.h"

#include "vornix/members.h"

#include <algorithm>

namespace vornix {

const Variant& LoggedEvent::operator[](std::string_view argument) const
{
    for (const auto& [argumentName, value] : arguments) {
        if (argumentName == argument)
            return value;
    }
    throw AutomationError(ErrorNumber::InvalidArgument);
}

int EventLog::Count(std::string_view name) const
{
    return static_cast<int>(
        std::count_if(events_.begin(), events_.end(), [&](const LoggedEvent& event) { return event.name == name; }));
}

void EventLog::WriteDown(int number, std::span<Variant> values)
{
    const EventInfo& info = vornix::Events()[static_cast<std::size_t>(number) - 1];
    LoggedEvent event { std::string(info.name), {} };
    event.arguments.reserve(values.size());
    for (std::size_t place = 0; place < values.size(); ++place)
        event.arguments.emplace_back(info.arguments[place].name, std::move(values[place]));
    events_.push_back(std::move(event));
}

} // namespace vornix
