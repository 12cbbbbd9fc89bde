// Writes down every event that the control raises, with its arguments as they were raised, and hands it on.
#pragma once

#include "vornix/automation.h"
#include "vornix/event_funnel.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vornix {

struct LoggedEvent {
    std::string name;
    // In the order of the event's arguments. An object is a value of type Object.
    std::vector<std::pair<std::string, Variant>> arguments;

    // Error 5 when the event has no such argument.
    const Variant& operator[](std::string_view argument) const;
};

class EventLog : public EventFunnel<EventLog> {
public:
    // The receiver may be null and must outlive the log.
    explicit EventLog(VornixEvents* receiver = nullptr)
        : receiver_(receiver)
    {
    }

    const std::vector<LoggedEvent>& Events() const { return events_; }
    // How often an event was raised.
    int Count(std::string_view name) const;
    void Clear() { events_.clear(); }

private:
    friend EventFunnel<EventLog>;

    template <typename Event, typename... Arguments> void On(int number, Event event, Arguments&... arguments)
    {
        std::array<Variant, sizeof...(Arguments)> values { Logged(arguments)... };
        WriteDown(number, values);
        if (receiver_)
            (receiver_->*event)(arguments...);
    }

    // Of an object only that it was there is kept.
    static Variant Logged(const DataObject& /*data*/) { return Variant::FromObject(nullptr); }
    template <typename Argument> static Variant Logged(Argument argument)
    {
        if constexpr (std::is_same_v<Argument, Hdc>)
            return Variant(static_cast<std::int64_t>(argument));
        else
            return Variant(argument);
    }

    void WriteDown(int number, std::span<Variant> values);

    VornixEvents* receiver_;
    std::vector<LoggedEvent> events_;
};

} // namespace vornix
