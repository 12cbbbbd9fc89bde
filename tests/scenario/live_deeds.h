// What a handler may do to the control, and handlers for all events at once.
#pragma once

#include "vornix/event_funnel.h"
#include "vornix/headless_container.h"
#include "vornix/members.h"

#include <functional>
#include <string_view>
#include <vector>

namespace vornix {

// Calls one function for every event.
class EveryEvent : public EventFunnel<EveryEvent> {
public:
    std::function<void(std::string_view name)> Then = [](std::string_view) {};

private:
    friend EventFunnel<EveryEvent>;
    template <typename Event, typename... Arguments> void On(int number, Event, Arguments&...)
    {
        Then(vornix::Events()[static_cast<std::size_t>(number) - 1].name);
    }
};

struct Deed {
    const char* name;
    std::function<void(HeadlessContainer&)> act;
};

// Whatever the grid is used for.
const std::vector<Deed>& Deeds();
// With what is edited in place.
const std::vector<Deed>& EditingDeeds();

// Nothing where the step ends with an automation error.
void Try(const std::function<void()>& step);

} // namespace vornix
