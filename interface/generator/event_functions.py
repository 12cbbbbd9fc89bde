"""Emits vornix/event_functions.h: a function object for every event of the control."""

import cpp
from iface import Event, Interface

HEAD = """// A function for every event of the control, none of them set at first.
#pragma once

#include "vornix/event_funnel.h"

#include <functional>

namespace vornix {

struct EventFunctions {""".split("\n")


def emit(interface: Interface) -> str:
    events = interface.grid.events
    lines = [*HEAD]
    lines += [function(interface, event) for event in events]
    lines += ["", "    // The function of an event."]
    lines += [getter(event) for event in events]
    lines += ["};", "", "} // namespace vornix"]
    return cpp.source(lines)


def function(interface: Interface, event: Event) -> str:
    return f"    std::function<void({cpp.event_parameters(interface, event)})> On{event.name};"


def getter(event: Event) -> str:
    tag = f"EventTag<{event.number}>"
    return f"    const auto& Of({tag} /*event*/) const {{ return On{event.name}; }}"
