"""What a control was saved with."""

import ctypes
from typing import Any, Mapping

from . import _library
from ._checks import to_name
from ._errors import TYPE_MISMATCH, AutomationError
from ._objects import Font, Picture
from ._values import put

_BAG_KINDS = (bool, int, str, Font, Picture, type(None))


def make_bag(bag: Mapping[str, Any]) -> "ctypes.Array[_library.BagEntry]":
    """What a control was saved with; None is no picture."""
    if not isinstance(bag, Mapping):
        raise AutomationError(TYPE_MISMATCH, f"A bag is a dict, not a {type(bag).__name__}")
    made = (_library.BagEntry * len(bag))()
    for entry, (name, value) in zip(made, bag.items()):
        if not isinstance(value, _BAG_KINDS):
            kind = type(value).__name__
            raise AutomationError(TYPE_MISMATCH, f"{name} in the bag cannot be of type {kind}")
        entry.name = to_name(name)
        put(entry.value, value)
        if value is None:
            entry.value.type = _library.PICTURE
    return made
