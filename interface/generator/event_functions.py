"""Emits vornix/event_functions.h: a function object for every event of the control."""

from typing import List

import cpp
from iface import Event, Interface

CONTROL = "Vornix"

HEAD = """// A function for every event of the control, none of them set at first.
#pragma once

#include "vornix/event_funnel.h"

#include <functional>

namespace vornix {

struct EventFunctions {""".split("\n")


def emit(interface: Interface) -> str:
    events = interface[CONTROL].events
    lines = [*HEAD]
    lines += [function(interface, event) for event in events]
    lines += ["", "    // The function of an event."]
    for event in events:
        lines += [f"    const auto& Of(EventTag<{event.number}> /*event*/) const {{ return On{event.name}; }}"]
    lines += ["};", "", "} // namespace vornix"]
    return cpp.source(lines)


def function(interface: Interface, event: Event) -> str:
    parameters: List[str] = [
        f"{cpp.event_argument_type(interface, argument)} {argument.name}" for argument in event.arguments
    ]
    return f"    std::function<void({cpp.joined(parameters)})> On{event.name};"
