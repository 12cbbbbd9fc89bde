"""Emits a test source that holds the C++ enums of vornix/types.h against the interface."""

from typing import List

import cpp
from iface import Enum, Interface


def emit(interface: Interface) -> str:
    lines = ['#include "vornix/types.h"', "", "#include <type_traits>", ""]
    lines += ["namespace vornix {", ""]
    for enum in interface.enums:
        lines += checks(enum)
    return cpp.source([*lines, "} // namespace vornix"])


def checks(enum: Enum) -> List[str]:
    lines = [f"static_assert(std::is_same_v<std::underlying_type_t<{enum.name}>, i32>);"]
    for name, value in enum.values:
        lines.append(f"static_assert({name} == {value});")
        lines.append(f"static_assert(std::is_same_v<decltype({name}), {enum.name}>);")
    return [*lines, ""]
