"""The grid."""

import ctypes
from typing import Any, List, Mapping, MutableMapping, Optional, TypeVar

from . import _library
from ._bag import make_bag
from ._checks import to_bool, to_float, to_i16, to_i32, to_text
from ._errors import INVALID_ARGUMENT, TYPE_MISMATCH, AutomationError
from ._identity import Unique
from ._members import GridMembers
from ._session import CALL, GET, LET, Session, Settings
from .events import EVENTS, GridEvents
from .host import Host

__all__ = ["Grid"]

_KINDS = {"get": GET, "let": LET, "call": CALL}


def _check_settings(settings: Any) -> None:
    """Raises error 13 for what is no dict of settings."""
    if not isinstance(settings, MutableMapping):
        kind = type(settings).__name__
        raise AutomationError(TYPE_MISMATCH, f"The settings are a dict, not a {kind}")
    for name, text in settings.items():
        if not isinstance(name, tuple) or len(name) != 3:
            raise AutomationError(
                TYPE_MISMATCH, f"{name!r} is not application, section and key of a setting"
            )
        for part in (*name, text):
            to_text(part)


_G = TypeVar("_G", bound="Grid")


class Grid(GridMembers, GridEvents, Unique):
    """A grid in a container without a screen, which is its `host`.

    width, height: of its window in pixels, border included.
    design: the form is being designed; without a bag the control is a new one.
    bag: what a control was saved with, values by name.
    settings: the user's settings, a dict of text by (application, section, key). It is the store
        itself: the control reads from it and writes into it. Grids that are given one share it.
    show: whether the control is shown at the end.
    scale: device pixels for each pixel, 1 to 4.

    Row and Col are 0 for the first row and column that are not fixed; fixed ones are -1, -2, ...
    outward. A grid belongs to the thread that made it.
    """

    __slots__ = ("__weakref__",)

    _session: Session

    def __init__(
        self,
        width: int = 640,
        height: int = 480,
        *,
        design: bool = False,
        bag: Optional[Mapping[str, Any]] = None,
        settings: Optional[Settings] = None,
        show: bool = True,
        scale: float = 1.0,
    ) -> None:
        size = to_i32(width), to_i32(height)
        if min(size) < 1:
            raise AutomationError(INVALID_ARGUMENT, f"A window cannot be {width} x {height}")
        entries = make_bag({} if bag is None else bag)
        store: Settings = {} if settings is None else settings
        _check_settings(store)
        options = _library.GridOptions(
            size=ctypes.sizeof(_library.GridOptions),
            width=size[0],
            height=size[1],
            scale=to_float(scale),
            design=to_bool(design),
            hidden=not to_bool(show),
            has_bag=bag is not None,
            bag=entries,
            bag_count=len(entries),
        )
        self._session = Session(options, EVENTS, store)

    @property
    def host(self) -> Host:
        """The container: what a form and a person do to the grid, and what it says and shows."""
        return Host(self._session)

    def close(self) -> None:
        """Ends the grid: everything of it raises error 5 from then on. A second time does nothing."""
        self._session.end()

    def __enter__(self: _G) -> _G:
        return self

    def __exit__(self, *exception: object) -> None:
        self.close()

    def texts(self, Col: int, start: int = 0, stop: Optional[int] = None) -> List[str]:
        """The texts of a column in one call, from row `start` up to, not including, row `stop`.

        Without `stop`, to the last row. Fixed rows are negative, as everywhere: the whole column is
        `g.texts(Col, -g.FixedRows)`. Errors 6 and 9 for what is no row or column.
        """
        end = self.Rows if stop is None else to_i32(stop)
        first, col = to_i16(start), to_i16(Col)
        if end <= first:
            return []
        return self._session.texts(first, col, to_i16(end - 1), col)

    def columns(self, Row1: int, Col1: int, Row2: int, Col2: int) -> List[List[str]]:
        """The texts of a rectangle in one call: a list for each column, as LoadFromArray takes
        them. Both corners belong to it, in any order."""
        row1, row2 = sorted((to_i16(Row1), to_i16(Row2)))
        col1, col2 = sorted((to_i16(Col1), to_i16(Col2)))
        texts = self._session.texts(row1, col1, row2, col2)
        height = row2 - row1 + 1
        return [texts[start : start + height] for start in range(0, len(texts), height)]

    def invoke(self, name: str, /, *arguments: Any, kind: str = "call", **named: Any) -> Any:
        """Calls a member by a name that is found out at run time, in any case.

        kind: "call" calls a method or reads a property, "get" reads a property, "let" writes one,
        the value being the last argument, or the one that is named Value. Arguments may be given by
        name. What comes back is what the member's own spelling gives. Errors 438, 448, 450 for what the grid does not have.
        """
        if kind not in _KINDS:
            raise ValueError(f"kind must be one of {', '.join(_KINDS)}, not {kind!r}")
        return self._session.invoke_by_name(name, _KINDS[kind], arguments, named)

    def __repr__(self) -> str:
        if not self._session.is_here and not self._session.has_ended:
            return "<vornix.Grid of another thread>"
        size = self._session.size()
        if size is None:
            return "<vornix.Grid closed>"
        return f"<vornix.Grid Rows={size[0]} Cols={size[1]}>"


Grid.__module__ = "vornix"
