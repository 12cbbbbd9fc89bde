// The events of the control as functions that can be set one by one, for programs that handle a few of them:
//
//     handlers.OnCellChange = [](i16 Row, i16 Col, bool& bCancel) { bCancel = Col == 0; };
#pragma once

#include "vornix/event_functions.h"

namespace vornix {

class EventHandlers : public EventFunnel<EventHandlers>, public EventFunctions {
    friend EventFunnel<EventHandlers>;

    template <typename Tag, typename Event, typename... Arguments>
    void On(Tag tag, Event /*event*/, Arguments&... arguments)
    {
        // A copy, so that a handler may replace or drop itself while it runs.
        if (const auto handler = Of(tag))
            handler(arguments...);
    }
};

} // namespace vornix
