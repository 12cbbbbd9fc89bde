"""Emits vornix/vornix_constants.h: enums and the numbers of the grid's events, for C and C++."""

from typing import List, Tuple

from iface import Enum, Event, Interface

HEAD = """/* Made from interface/vornix.iface; do not edit. */
/* The constants of the grid: values of its properties, and the numbers of its events. */
#ifndef VORNIX_CONSTANTS_H
#define VORNIX_CONSTANTS_H""".split("\n")


def emit(interface: Interface) -> str:
    lines = [*HEAD]
    for enum in interface.enums:
        lines += ["", f"/* {enum.sentence} */", *declaration(enum)]
    lines += ["", "/* Events. */", *event_numbers(interface.grid.events)]
    lines += ["", "#endif"]
    return "\n".join(lines) + "\n"


def declaration(enum: Enum) -> List[str]:
    """An enum by its name, in C as well."""
    return [f"typedef enum {enum.name} {{", *entries(enum.values), f"}} {enum.name};"]


def event_numbers(events: List[Event]) -> List[str]:
    numbers = [(f"VORNIX_EVENT_{event.name}", event.number) for event in events]
    return ["enum {", *entries(numbers), "};"]


def entries(values: List[Tuple[str, int]]) -> List[str]:
    return ",\n".join(f"    {name} = {value}" for name, value in values).split("\n")
