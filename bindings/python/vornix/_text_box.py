"""The text box that comes with the grid, in a container without a screen of its own."""

import ctypes
from typing import Any, Dict, List, Mapping, Optional, Sequence, Tuple, Union

from . import _library
from ._bag import make_bag
from ._checks import character_code, to_i16, to_i32, to_name, to_text
from ._companion import Companion, CompanionSession
from ._errors import INVALID_ARGUMENT, AutomationError
from ._identity import Unique
from ._library import GET, make_text
from ._text_box_members import TextBoxMembers
from .text_box_events import EVENTS, TextBoxEvents

__all__ = ["BoxHost", "TextBox"]

# Properties whose value is a pattern of 32 bits.
_COLORS = ("ForeColor", "BackColor")


class _BoxSession(CompanionSession):
    """One text box."""

    __slots__ = ()

    _kind = "text box"
    _prefix = "vornix_text_box_"

    def invoke(self, name: str, kind: int, arguments: Sequence[Any]) -> Any:
        value = super().invoke(name, kind, arguments)
        return value & 0xFFFFFFFF if kind == GET and name in _COLORS else value

    def saved(self) -> Dict[str, Any]:
        saved = super().saved()
        for name in _COLORS:
            if name in saved:
                saved[name] &= 0xFFFFFFFF
        return saved


class TextBox(TextBoxMembers, TextBoxEvents, Companion):
    """A text box with an input mask in a container without a screen, which is its `host`.

    width, height: in pixels.
    bag: what a box was saved with, values by name.

    Set PromptChar and ReplaceChar before Mask. Text is the value, which the mask shapes when it is
    written; it raises nothing then. A box belongs to the thread that made it.
    """

    __slots__ = ("__weakref__",)

    _session: _BoxSession

    def __init__(
        self, width: int = 120, height: int = 21, *, bag: Optional[Mapping[str, Any]] = None
    ) -> None:
        size = to_i32(width), to_i32(height)
        if min(size) < 1:
            raise AutomationError(INVALID_ARGUMENT, f"A box cannot be {width} x {height}")
        entries = make_bag({} if bag is None else bag)
        options = _library.TextBoxOptions(
            size=ctypes.sizeof(_library.TextBoxOptions),
            width=size[0],
            height=size[1],
            has_bag=bag is not None,
            bag=entries,
            bag_count=len(entries),
        )
        self._session = _BoxSession(EVENTS, options)

    @property
    def host(self) -> "BoxHost":
        """The container: what a form and a person do to the box, and what it says."""
        return BoxHost(self._session)

    def __repr__(self) -> str:
        session = self._session
        if session.has_ended:
            return "<vornix.TextBox closed>"
        if not session.is_here:
            return "<vornix.TextBox of another thread>"
        return f"<vornix.TextBox Text={self.Text!r}>"


class BoxHost(Unique):
    """What a form and a person do to a text box, and what it says.

    A key goes to the handlers, then the box does what the key does by itself: Delete, and the keys
    that move the caret. A character goes to the handlers, then takes the place of the selection;
    Back, Ctrl+A, C, X and V are characters too. A box that is disabled has no user.
    """

    __slots__ = ("_session",)

    def __init__(self, session: _BoxSession) -> None:
        self._session = session

    def _key(self, name: str, code: int, shift: int) -> int:
        value = ctypes.c_int16(code)
        self._session.use(name, ctypes.byref(value), to_i16(shift))
        return value.value

    def key_down(self, code: int, shift: int = 0) -> int:
        """A key goes down. Gives the code as the handlers left it."""
        return self._key("key_down", to_i16(code), shift)

    def key_press(self, char: Union[str, int], shift: int = 0) -> int:
        """A character is typed: itself, or its code. Gives the code as it was left."""
        return self._key("key_press", character_code(char), shift)

    def key_up(self, code: int, shift: int = 0) -> int:
        """A key goes up. Gives the code as the handlers left it."""
        return self._key("key_up", to_i16(code), shift)

    def type(self, text: str) -> None:
        """Types a text, each character by its key; the box gets the focus first. A line break, CR
        LF too, is one Return."""
        self._session.use("type", make_text(to_text(text)))

    def press(self, key: Union[str, int], shift: int = 0) -> None:
        """Presses a key by its name in any case ("Left", "F2", "Escape", "Delete", ...), by the
        character it gives, or by its code; the box gets the focus first."""
        if isinstance(key, str):
            self._session.use("press", to_name(key), to_i16(shift))
        else:
            self._session.use("press_code", to_i16(key), to_i16(shift))

    def paste(self, text: str) -> None:
        """Pastes a text in place of the selection, as by a menu."""
        self._session.use("paste", make_text(to_text(text)))

    def resize(self, width: int, height: int) -> None:
        """Gives the box another size, in pixels."""
        self._session.use("resize", to_i32(width), to_i32(height))

    @property
    def size(self) -> Tuple[int, int]:
        """Width and height in pixels, which the box itself may change."""
        width, height = ctypes.c_int32(), ctypes.c_int32()
        self._session.use("size", ctypes.byref(width), ctypes.byref(height))
        return width.value, height.value

    def save(self) -> Dict[str, Any]:
        """What the box saves with its form."""
        return self._session.saved()

    def tick(self) -> None:
        """One tick of a timer, which a text box does not have."""
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


TextBox.__module__ = "vornix"
