"""What the controls that come with the grid share: each lives in a container of its own."""

import ctypes
from typing import Any, Dict, List, Sequence, Tuple, TypeVar

from . import _library
from ._checks import to_name
from ._identity import Unique
from ._library import Value, library
from ._session import Connection, callback_address
from ._values import peek, put, take

__all__ = ["Companion", "CompanionSession"]


class CompanionSession(Connection):
    """One scroll bar or text box. Its functions in the library begin with `_prefix`."""

    __slots__ = ("log",)

    _prefix = ""

    def __init__(self, events: Sequence[Any], options: ctypes.Structure) -> None:
        super().__init__(events)
        self.log: List[Tuple[str, Dict[str, Any]]] = []
        pointer = ctypes.c_void_p()
        status = self.function("create")(ctypes.byref(options), ctypes.byref(pointer))
        self._made(status, pointer.value, self.function("destroy"))
        self.use("set_callback", callback_address, self._number)

    def function(self, name: str) -> Any:
        return getattr(library, self._prefix + name)

    def use(self, name: str, *arguments: Any) -> None:
        """Calls a function of the control's own."""
        self.call(self.function(name), *arguments)

    def invoke(self, name: str, kind: int, arguments: Sequence[Any]) -> Any:
        slots = (Value * len(arguments))()
        kept = [put(slot, argument) for slot, argument in zip(slots, arguments)]
        result = Value()
        try:
            self.use("invoke", to_name(name), kind, slots, len(arguments), ctypes.byref(result))
            return take(result)
        finally:
            library.vornix_value_clear(ctypes.byref(result))
            kept.clear()

    def saved(self) -> Dict[str, Any]:
        """What the control saves with its form."""
        length = ctypes.c_size_t()
        self.use("save", None, 0, ctypes.byref(length))
        entries = (_library.BagEntry * length.value)()
        self.use("save", entries, len(entries), ctypes.byref(length))
        return {entry.name.decode(): take(entry.value) for entry in entries}

    def dispatch(self, number: int, arguments: Any, length: int) -> None:
        event = self._events[number - 1]
        values = [peek(arguments[place]) for place in range(length)]
        self.log.append((event.__name__, dict(zip(event._names, values))))
        super().dispatch(number, arguments, length)

    def listen(self) -> None:
        """Events come in always, for the log."""
        self.require_open()

    def stop_listening(self) -> None:
        self.require_open()

    def end(self) -> None:
        """Ends the control. Inside one of its own calls it is freed with the last reference."""
        if self._ended:
            return
        self.require_open()
        self._ended = True
        self._handlers.clear()
        if self.function("destroy")(self._pointer) == 0:
            self._end.detach()


_C = TypeVar("_C", bound="Companion")


class Companion(Unique):
    """One of the controls as its host holds it."""

    __slots__ = ()

    _session: CompanionSession

    def close(self) -> None:
        """Ends the control: all of it raises error 5 from then on. A second time does nothing."""
        self._session.end()

    def __enter__(self: _C) -> _C:
        return self

    def __exit__(self, *exception: object) -> None:
        self.close()
