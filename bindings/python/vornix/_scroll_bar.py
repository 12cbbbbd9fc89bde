"""The scroll bar that comes with the grid, in a container without a screen of its own."""

import ctypes
from typing import Any, Callable, Dict, List, Mapping, Optional, Tuple, Union

from . import _library
from ._bag import make_bag
from ._checks import character_code, to_i16, to_i32, to_text
from ._companion import Companion, CompanionSession
from ._errors import INVALID_ARGUMENT, AutomationError
from ._event import Event
from ._identity import Unique
from ._library import CALL, GET, LET

__all__ = ["BarHost", "Change", "Scroll", "ScrollBar"]


class Change(Event):
    """The user asks for another position.

    Value: where the bar goes, or where it stands when a page is asked for; can be set.
    Direction: -1 and 1 for a page up and down, 0 for everything else.
    """

    __slots__ = ()
    _names: Tuple[str, ...] = ("Value", "Direction")
    _references: Dict[int, str] = {0: "i32"}

    @property
    def Value(self) -> int:
        return int(self._values[0])

    @Value.setter
    def Value(self, value: int) -> None:
        self._set(0, value)

    @property
    def Direction(self) -> int:
        return int(self._values[1])


class Scroll(Event):
    """The thumb is being dragged.

    Value: where it is held; can be set.
    """

    __slots__ = ()
    _names: Tuple[str, ...] = ("Value",)
    _references: Dict[int, str] = {0: "i32"}

    @property
    def Value(self) -> int:
        return int(self._values[0])

    @Value.setter
    def Value(self, value: int) -> None:
        self._set(0, value)


_EVENTS = (Change, Scroll)


class _BarSession(CompanionSession):
    """One scroll bar."""

    __slots__ = ()

    _kind = "scroll bar"
    _prefix = "vornix_scroll_bar_"


class ScrollBar(Companion):
    """A scroll bar in a container without a screen, which is its `host`.

    orientation: 1 for a standing bar, 0 for a lying one; a saved one has its own.
    length: in pixels.
    bag: what a bar was saved with, values by name.

    A new bar goes from 0 to 100 and stands at 1. It answers to its user from Subclass() on. A bar
    belongs to the thread that made it.
    """

    __slots__ = ("_session", "__weakref__")

    _session: _BarSession

    def __init__(
        self, orientation: int = 0, length: int = 100, *, bag: Optional[Mapping[str, Any]] = None
    ) -> None:
        size = to_i32(length)
        if size < 1:
            raise AutomationError(INVALID_ARGUMENT, f"A bar cannot be {length} pixels long")
        entries = make_bag({} if bag is None else bag)
        options = _library.ScrollBarOptions(
            size=ctypes.sizeof(_library.ScrollBarOptions),
            orientation=to_i32(orientation),
            length=size,
            has_bag=bag is not None,
            bag=entries,
            bag_count=len(entries),
        )
        self._session = _BarSession(_EVENTS, options)

    @property
    def host(self) -> "BarHost":
        """The container: what a form and a person do to the bar, and what it says."""
        return BarHost(self._session)

    # -- Members --

    @property
    def hWnd(self) -> int:
        """The native handle of the bar. Read only."""
        return int(self._session.invoke("hWnd", GET, ()))

    @property
    def Enabled(self) -> bool:
        """Whether the bar takes input."""
        return bool(self._session.invoke("Enabled", GET, ()))

    @Enabled.setter
    def Enabled(self, value: bool) -> None:
        self._session.invoke("Enabled", LET, (value,))

    @property
    def Min(self) -> int:
        """The lowest position. Read only."""
        return int(self._session.invoke("Min", GET, ()))

    @property
    def Max(self) -> int:
        """The highest position. Read only."""
        return int(self._session.invoke("Max", GET, ()))

    @property
    def Orientation(self) -> int:
        """0 horizontal, 1 vertical."""
        return int(self._session.invoke("Orientation", GET, ()))

    @Orientation.setter
    def Orientation(self, value: int) -> None:
        self._session.invoke("Orientation", LET, (value,))

    @property
    def SmallChange(self) -> int:
        """Step of the arrows. Can be written only."""
        return int(self._session.invoke("SmallChange", GET, ()))

    @SmallChange.setter
    def SmallChange(self, value: int) -> None:
        self._session.invoke("SmallChange", LET, (value,))

    @property
    def SmoothScroll(self) -> bool:
        """Whether the step doubles while an arrow is held. Can be written only."""
        return bool(self._session.invoke("SmoothScroll", GET, ()))

    @SmoothScroll.setter
    def SmoothScroll(self, value: bool) -> None:
        self._session.invoke("SmoothScroll", LET, (value,))

    @property
    def Value(self) -> int:
        """The position, limited to the range. Writing it raises nothing."""
        return int(self._session.invoke("Value", GET, ()))

    @Value.setter
    def Value(self, value: int) -> None:
        self._session.invoke("Value", LET, (value,))

    def SetInfo(self, Min: int, Max: int, Page: int) -> None:
        """Sets range and page at once; the position stays as far as the range lets it."""
        self._session.invoke("SetInfo", CALL, (Min, Max, Page))

    def Subclass(self) -> None:
        """Has the bar answer to its user."""
        self._session.invoke("Subclass", CALL, ())

    def UnSubclass(self) -> None:
        """Has the bar not answer to its user."""
        self._session.invoke("UnSubclass", CALL, ())

    # -- Events --

    def on(self, name: str, handler: Optional[Callable[[Any], object]] = None) -> Any:
        """Has a handler called with each event of a name, "Change" or "Scroll"; without one, a
        decorator. As Grid.on in all else."""
        if handler is not None:
            self._session.add_handler(name, handler)
            return None
        self._session.event_number(name)

        def add(handler: Callable[[Any], object]) -> Callable[[Any], object]:
            self._session.add_handler(name, handler)
            return handler

        return add

    def off(self, name: str, handler: Callable[[Any], object]) -> None:
        """Takes a handler away again. One that is not there is nothing."""
        self._session.remove_handler(name, handler)

    def __repr__(self) -> str:
        session = self._session
        if session.has_ended:
            return "<vornix.ScrollBar closed>"
        if not session.is_here:
            return "<vornix.ScrollBar of another thread>"
        return f"<vornix.ScrollBar Min={self.Min} Max={self.Max} Value={self.Value}>"


class BarHost(Unique):
    """What a form and a person do to a scroll bar, and what it says.

    A bar takes nothing from the keyboard: keys are passed on as they are, and what is typed does
    nothing.
    """

    __slots__ = ("_session",)

    def __init__(self, session: _BarSession) -> None:
        self._session = session

    def notify(self, code: int, track_pos: Optional[int] = None) -> None:
        """What its user does, as a number of the platform; nothing else follows from it.

        0 and 1 a line up and down, 2 and 3 a page, 4 the thumb let go (not used), 5 the thumb
        dragged to track_pos, 6 to the top, 7 to the bottom, 8 behind each of the others. A disabled
        bar hears nothing. Error 5 for other codes.
        """
        held = None if track_pos is None else ctypes.byref(ctypes.c_int32(to_i32(track_pos)))
        self._session.use("notify", to_i32(code), held)

    def resize(self, width: int, height: int) -> None:
        """Gives the bar another size, in pixels."""
        self._session.use("resize", to_i32(width), to_i32(height))

    def save(self) -> Dict[str, Any]:
        """What the bar saves with its form."""
        return self._session.saved()

    def tick(self) -> None:
        """One tick of a timer, which a bar does not have."""
        self._session.require_open()

    @property
    def log(self) -> List[Tuple[str, Dict[str, Any]]]:
        """Every event since clear_log(), handled or not: its name, and its arguments as they were
        when it was raised."""
        self._session.require_open()
        return list(self._session.log)

    def clear_log(self) -> None:
        """Empties the log."""
        self._session.require_open()
        self._session.log.clear()

    def key_down(self, code: int, shift: int = 0) -> int:
        """A key goes down. Gives the code back."""
        self._session.require_open()
        to_i16(shift)
        return to_i16(code)

    def key_press(self, char: Union[str, int]) -> int:
        """A character is typed. Gives its code back."""
        self._session.require_open()
        return character_code(char)

    def key_up(self, code: int, shift: int = 0) -> int:
        """A key goes up. Gives the code back."""
        return self.key_down(code, shift)

    def type(self, text: str) -> None:
        """Types a text."""
        self._session.require_open()
        to_text(text)

    def press(self, key: Union[str, int], shift: int = 0) -> None:
        """Presses a key."""
        self._session.require_open()
        to_text(key) if isinstance(key, str) else to_i16(key)
        to_i16(shift)

    def paste(self, text: str) -> None:
        """Pastes a text."""
        self.type(text)


ScrollBar.__module__ = "vornix"
