"""Emits vornix/event_funnel.h: all events of the control in one template of a derived class."""

from typing import List

import cpp
from iface import Event, Interface

HEAD = """\
// All events of the control through one function, for receivers that treat every event alike.
//
// A class `Receiver` derives from EventFunnel<Receiver> and has a member template that is called
// for every event:
//
//     template <typename Tag, typename Event, typename... Arguments>
//     void On(Tag tag, Event event, Arguments&... arguments);
//
// `tag` is the event's EventTag: it converts to the number of the event, and functions can be
// overloaded by it. `event` points to the function of VornixEvents; its type tells which arguments
// are by reference. The arguments are those of the event; ones by reference may be written. The
// member may be private where the funnel is a friend.
#pragma once

#include "vornix/events.h"

#include <type_traits>

namespace vornix {

// The number of an event as a type.
template <int number> using EventTag = std::integral_constant<int, number>;

// Numbers of the events.
namespace EventNumber {""".split("\n")


def emit(interface: Interface) -> str:
    events = interface.grid.events
    lines = [*HEAD]
    lines += [f"inline constexpr int {event.name} = {event.number};" for event in events]
    lines += ["} // namespace EventNumber", ""]
    lines += ["template <typename Derived> class EventFunnel : public VornixEvents {", "public:"]
    for event in events:
        lines += override(interface, event)
    lines += [
        "",
        "private:",
        "    Derived& Self() { return static_cast<Derived&>(*this); }",
        "};",
        "",
        "// Calls `visit` with the tag of every event and the function of VornixEvents, in order.",
        "template <typename Visit> void ForEachEvent(Visit&& visit)",
        "{",
        *(f"    visit(EventTag<{event.number}>(), &VornixEvents::{event.name});" for event in events),
        "}",
        "",
        "} // namespace vornix",
    ]
    return cpp.source(lines)


def override(interface: Interface, event: Event) -> List[str]:
    parameters = cpp.event_parameters(interface, event)
    passed = "".join(f", {argument.name}" for argument in event.arguments)
    return [
        f"    void {event.name}({parameters}) override",
        "    {",
        f"        Self().On(EventTag<{event.number}>(), &VornixEvents::{event.name}{passed});",
        "    }",
    ]
