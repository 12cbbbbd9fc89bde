"""What a handler of an event gets."""

from typing import Any, Callable, Dict, List, Sequence, Tuple

from ._checks import to_bool, to_i16, to_i32, to_i64, to_single
from ._errors import INVALID_ARGUMENT, AutomationError
from ._identity import Unique
from ._objects import ForeignObject, Surface


def _to_hdc(value: Any) -> int:
    """The number of a device, which a surface stands for as well."""
    return to_i64(value.hdc if isinstance(value, Surface) else value)


_CONVERSIONS: Dict[str, Callable[[Any], Any]] = {
    "i16": to_i16,
    "i32": to_i32,
    "f32": to_single,
    "bool": to_bool,
    "hdc": _to_hdc,
}


class Event(Unique):
    """An event with its arguments as attributes. Those by reference can be set by a handler."""

    __slots__ = ("_values", "_changed", "_has_ended")

    # The names of the arguments, and the types of those by reference by their places.
    _names: Tuple[str, ...] = ()
    _references: Dict[int, str] = {}

    def __init__(self, values: Sequence[Any]) -> None:
        self._values: List[Any] = list(values)
        self._changed: Dict[int, Any] = {}
        self._has_ended = False

    def _set(self, place: int, value: Any) -> None:
        if self._has_ended:
            raise AutomationError(INVALID_ARGUMENT, "The event is over")
        converted = _CONVERSIONS[self._references[place]](value)
        self._values[place] = self._changed[place] = converted

    def _end(self) -> List[Tuple[int, Any]]:
        """What was set. From here on nothing can be."""
        self._has_ended = True
        for value in self._values:
            if isinstance(value, ForeignObject):
                value._end_event()
        return list(self._changed.items())

    def __repr__(self) -> str:
        arguments = ", ".join(map("{}={!r}".format, self._names, self._values))
        return f"{type(self).__name__}({arguments})"
