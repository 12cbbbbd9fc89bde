"""The controls of the library: their calls, their handlers of events, and their end.

A control and its host share one. Everything of it belongs to the thread that made it.
"""

import ctypes
import threading
import weakref
from itertools import count
from typing import Any, Callable, Dict, List, Mapping, MutableMapping, Optional, Sequence, Tuple

from . import _library
from ._arrays import Array, texts_of
from ._checks import check, to_name, to_text
from ._errors import INVALID_ARGUMENT, NO_SUCH_MEMBER, AutomationError, error_of
from ._identity import Unique
from ._library import CALL, GET, LET, TYPE_COLOR, Value, library, make_text, text_of
from ._values import peek, put, take

Handler = Callable[[Any], object]
# Application, section and key.
SettingName = Tuple[str, str, str]
Settings = MutableMapping[SettingName, str]

# The arguments that an event has at most.
_LONGEST_EVENT = 8


class Member:
    """A member of the grid, looked up once."""

    __slots__ = ("pointer", "references", "is_color", "has_result", "arguments")

    def __init__(self, pointer: int) -> None:
        info = library.vornix_describe_member(pointer).contents
        self.pointer = pointer
        self.is_color = info.type == TYPE_COLOR
        self.has_result = info.type != 0
        self.arguments = [info.arguments[place] for place in range(info.argument_count)]
        self.references = tuple(
            place for place, argument in enumerate(self.arguments) if argument.by_reference
        )


class _Members(Dict[str, Member]):
    """Members by their names, in any case."""

    def __missing__(self, name: str) -> Member:
        pointer = library.vornix_find_member(to_name(name))
        if not pointer:
            raise error_of(NO_SUCH_MEMBER, f"The grid has no member {name!r}")
        member = self[name] = Member(pointer)
        return member


_members = _Members()

# What starts an argument by reference that was left out, by its declared type.
_STARTS: Mapping[int, Any] = {3: 0.0, 4: False, 5: ""}

_live: "weakref.WeakValueDictionary[int, Connection]" = weakref.WeakValueDictionary()
_numbers = count(1)


def _on_event(user: int, grid: int, number: int, arguments: Any, length: int) -> None:
    """Every event of every control that has handlers comes in here."""
    session = _live.get(user)
    if session is None:
        return
    try:
        session.dispatch(number, arguments, length)
    except BaseException as error:
        session.keep_error(error)


def _get_setting(user: int, setting: Any) -> int:
    """Every reading of a setting by a grid comes in here: 0 where there is no such setting."""
    session = _live.get(user)
    try:
        return session.read_setting(setting[0]) if isinstance(session, Session) else 0
    except BaseException as error:
        if session is not None:
            session.keep_error(error)
        return 0


def _save_setting(user: int, setting: Any) -> None:
    """And every writing here."""
    session = _live.get(user)
    try:
        if isinstance(session, Session):
            session.write_setting(setting[0])
    except BaseException as error:
        if session is not None:
            session.keep_error(error)


_setting_reader = _library.SettingReader(_get_setting)
_setting_writer = _library.SettingWriter(_save_setting)
_callback = _library.EventCallback(_on_event)
callback_address = ctypes.cast(_callback, ctypes.c_void_p)


class Connection(Unique):
    """A control of the library that raises events. Everything of it belongs to the thread that
    made it."""

    __slots__ = (
        "_pointer",
        "_number",
        "_thread",
        "_ended",
        "_error",
        "_handlers",
        "_events",
        "_end",
        "__weakref__",
    )

    # What messages call it.
    _kind = "control"

    def __init__(self, events: Sequence[Any]) -> None:
        self._thread = threading.get_ident()
        self._ended = False
        self._error: Optional[BaseException] = None
        self._events = events
        self._handlers: Dict[int, Tuple[Handler, ...]] = {}
        self._number = next(_numbers)
        _live[self._number] = self

    def _made(self, status: int, pointer: Optional[int], destroy: Callable[[int], int]) -> None:
        """What a function that makes a control gave."""
        if pointer is not None:
            self._pointer = pointer
            self._end = weakref.finalize(self, destroy, pointer)
        if self._error is not None:
            self.raise_error()
        check(status)

    # -- Calls --

    @property
    def has_ended(self) -> bool:
        return self._ended

    @property
    def is_here(self) -> bool:
        """Whether this is the control's own thread."""
        return threading.get_ident() == self._thread

    def require_open(self) -> None:
        if threading.get_ident() != self._thread:
            raise AutomationError(INVALID_ARGUMENT, f"The {self._kind} belongs to another thread")
        if self._ended:
            raise AutomationError(INVALID_ARGUMENT, f"The {self._kind} is closed")

    def call(self, function: Callable[..., int], *arguments: Any) -> None:
        """Calls a function of the library that takes the control first."""
        self.require_open()
        status = function(self._pointer, *arguments)
        if self._error is not None:
            self.raise_error()
        if status:
            check(status)

    def keep_error(self, error: BaseException) -> None:
        """The first exception out of a handler comes out of the call that is running."""
        if self._error is None:
            self._error = error

    def raise_error(self) -> None:
        error, self._error = self._error, None
        assert error is not None
        try:
            raise error
        finally:
            del error

    def invoke(self, name: str, kind: int, arguments: Sequence[Any]) -> Any:
        """Calls a member."""
        raise NotImplementedError

    # -- Events --

    def event_number(self, name: str) -> int:
        lowered = name.lower() if isinstance(name, str) else name
        for number, event in enumerate(self._events):
            if event.__name__.lower() == lowered:
                return number + 1
        raise AutomationError(NO_SUCH_MEMBER, f"The {self._kind} has no event {name!r}")

    def add_handler(self, name: str, handler: Handler) -> None:
        number = self.event_number(name)
        if not callable(handler):
            raise TypeError(f"a handler must be callable, not {type(handler).__name__}")
        if self._handlers:
            self.require_open()
        else:
            self.listen()
        self._handlers[number] = (*self._handlers.get(number, ()), handler)

    def remove_handler(self, name: str, handler: Handler) -> None:
        number = self.event_number(name)
        self.require_open()
        handlers = list(self._handlers.get(number, ()))
        if handler not in handlers:
            return
        handlers.remove(handler)
        if handlers:
            self._handlers[number] = tuple(handlers)
            return
        del self._handlers[number]
        if not self._handlers:
            self.stop_listening()

    def dispatch(self, number: int, arguments: Any, length: int) -> None:
        """Runs the handlers of an event, and writes back what they have set."""
        handlers = self._handlers.get(number)
        if not handlers:
            return
        event = self._events[number - 1]([peek(arguments[place]) for place in range(length)])
        for handler in handlers:
            now = self._handlers.get(number, ())
            if now is not handlers and handler not in now:
                continue
            self._run(handler, event)
        for place, value in event._end():
            put(arguments[place], value)

    def _run(self, handler: Handler, event: Any) -> None:
        """What waits to come out of the call that raised the event is not for the handler's own
        calls."""
        waiting, self._error = self._error, None
        try:
            handler(event)
        except BaseException as error:
            self.keep_error(error)
        finally:
            if waiting is not None:
                self._error = waiting

    def listen(self) -> None:
        """Has events come in: there is a first handler."""
        raise NotImplementedError

    def stop_listening(self) -> None:
        """There is no handler any more."""
        raise NotImplementedError


class Session(Connection):
    """One grid."""

    __slots__ = ("_settings", "_setting")

    _kind = "grid"

    def __init__(
        self, options: _library.GridOptions, events: Sequence[Any], settings: Settings
    ) -> None:
        # Settings are read while the grid is being made.
        super().__init__(events)
        self._settings = settings
        self._setting: Optional[_library.Text] = None
        options.get_setting = ctypes.cast(_setting_reader, ctypes.c_void_p)
        options.save_setting = ctypes.cast(_setting_writer, ctypes.c_void_p)
        options.settings_user = self._number
        pointer = ctypes.c_void_p()
        status = library.vornix_grid_create(ctypes.byref(options), ctypes.byref(pointer))
        self._made(status, pointer.value, library.vornix_grid_destroy)

    # -- Calls --

    def size(self) -> Optional[Tuple[int, int]]:
        """Rows and columns; None of a closed grid. An exception that waits goes on waiting."""
        waiting, self._error = self._error, None
        try:
            if self._ended or self._is_terminated():
                return None
            return self.invoke("Rows", GET, ()), self.invoke("Cols", GET, ())
        finally:
            self._error = waiting

    def _is_terminated(self) -> bool:
        closed = ctypes.c_int32()
        self.call(library.vornix_host_is_closed, ctypes.byref(closed))
        return closed.value != 0

    def invoke(self, name: str, kind: int, arguments: Sequence[Any]) -> Any:
        """Calls a member: its own result, then its arguments by reference."""
        member = _members[name]
        length = len(arguments)
        slots = (Value * length)()
        kept = [put(slots[place], arguments[place]) for place in range(length)]
        result = Value()
        try:
            self.call(
                library.vornix_invoke_member,
                member.pointer,
                kind,
                slots,
                length,
                ctypes.byref(result),
            )
        except BaseException:
            library.vornix_value_clear(ctypes.byref(result))
            raise
        finally:
            kept.clear()
        if kind == LET:
            return None
        return _returned(member, member.references, slots, result)

    def invoke_by_name(
        self, name: str, kind: int, positional: Sequence[Any], named: Mapping[str, Any]
    ) -> Any:
        """Calls a member with some arguments by their names."""
        member = _members[name]
        if kind == LET and named and positional and "value" not in map(str.lower, named):
            positional, named = positional[:-1], {**named, "Value": positional[-1]}
        given = [key.lower() for key in named]
        values = [*positional, *named.values()]
        names = [to_name(key) for key in named]
        for argument in member.arguments[len(positional) :]:
            if argument.by_reference and argument.name.decode().lower() not in given:
                values.append(_STARTS.get(argument.type, 0))
                names.append(argument.name)
        slots = (Value * len(values))()
        kept = [put(slots[place], value) for place, value in enumerate(values)]
        result = Value()
        # Where the arguments by reference come back.
        lowered = [argument.name.decode().lower() for argument in member.arguments]
        order = [*lowered[: len(positional)], *(key.decode().lower() for key in names)]
        self.call(
            library.vornix_invoke_named,
            to_name(name),
            kind,
            slots,
            len(values),
            (ctypes.c_char_p * len(names))(*names),
            len(names),
            ctypes.byref(result),
        )
        kept.clear()
        if kind == LET:
            return None
        places = tuple(order.index(lowered[place]) for place in member.references)
        return _returned(member, places, slots, result)

    # -- Settings --

    @property
    def settings(self) -> Settings:
        """The user's settings: what the control reads and writes."""
        return self._settings

    def read_setting(self, setting: _library.Setting) -> int:
        text = self._settings.get(_name_of(setting))
        if text is None:
            return 0
        # Kept for as long as the library reads it.
        self._setting = make_text(to_text(text))
        setting.value = self._setting
        return 1

    def write_setting(self, setting: _library.Setting) -> None:
        self._settings[_name_of(setting)] = text_of(setting.value)

    # -- Many values --

    def texts(self, row1: int, col1: int, row2: int, col2: int) -> List[str]:
        """The texts of a rectangle, column by column."""
        block = _library.TextBlock()
        try:
            self.call(library.vornix_read_texts, row1, col1, row2, col2, ctypes.byref(block))
        except BaseException:
            library.vornix_text_block_clear(ctypes.byref(block))
            raise
        return texts_of(block)

    # -- Events --

    def listen(self) -> None:
        self.call(library.vornix_set_event_callback, callback_address, self._number)

    def stop_listening(self) -> None:
        self.call(library.vornix_set_event_callback, None, None)

    def logged(self) -> List[Tuple[str, Dict[str, Any]]]:
        """The events since the log was cleared."""
        length = ctypes.c_size_t()
        self.call(library.vornix_host_log_count, ctypes.byref(length))
        return [self._logged_at(index) for index in range(length.value)]

    def _logged_at(self, index: int) -> Tuple[str, Dict[str, Any]]:
        number = ctypes.c_int32()
        values = (Value * _LONGEST_EVENT)()
        length = ctypes.c_size_t()
        self.call(
            library.vornix_host_log_at,
            index,
            ctypes.byref(number),
            values,
            _LONGEST_EVENT,
            ctypes.byref(length),
        )
        event = self._events[number.value - 1]
        taken = [take(values[place]) for place in range(length.value)]
        return event.__name__, dict(zip(event._names, taken))

    # -- The end --

    def end(self) -> None:
        """Closes the grid for good. Inside one of its own calls it is freed after that call."""
        if self._ended:
            return
        self.require_open()
        try:
            self.call(library.vornix_host_close)
        finally:
            self._ended = True
            self._handlers.clear()
            if library.vornix_grid_destroy(self._pointer) == 0:
                self._end.detach()


def _name_of(setting: _library.Setting) -> SettingName:
    return text_of(setting.application), text_of(setting.section), text_of(setting.key)


def _returned(member: Member, places: Sequence[int], slots: Any, result: Value) -> Any:
    """What a call gives back: nothing, one value, or a tuple."""
    returned = []
    if member.has_result:
        value = take(result)
        if member.is_color and value is not None:
            value &= 0xFFFFFFFF
        if not places:
            return value
        returned.append(value)
    elif not places:
        return None
    returned += [take(slots[place]) for place in places]
    return returned[0] if len(returned) == 1 else tuple(returned)


__all__ = ["CALL", "GET", "LET", "Array", "Connection", "Session"]
