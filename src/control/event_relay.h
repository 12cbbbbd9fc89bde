// Stands between the control and the host's events: silent once the control is closed.
#pragma once

#include "vornix/event_funnel.h"

namespace vornix {

class EventRelay : public EventFunnel<EventRelay> {
public:
    explicit EventRelay(VornixEvents& host)
        : host_(host)
    {
    }

    // Nothing is raised from now on.
    void Silence() { silent_ = true; }

private:
    friend EventFunnel<EventRelay>;

    template <typename Event, typename... Arguments> void On(int /*number*/, Event event, Arguments&... arguments)
    {
        if (!silent_)
            (host_.*event)(arguments...);
    }

    VornixEvents& host_;
    bool silent_ = false;
};

} // namespace vornix
