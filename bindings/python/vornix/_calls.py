"""What the generated members are made of."""

from typing import TYPE_CHECKING, Any, NoReturn, Optional, Type

from ._errors import NO_SUCH_MEMBER, AutomationError
from ._session import CALL, GET, LET, Connection

_WRONG_COUNT = 450


class Members:
    """An object with members: each is one call of the library."""

    __slots__ = ("_session",)

    _session: Connection

    def _get(self, name: str) -> Any:
        return self._session.invoke(name, GET, ())

    def _let(self, name: str, value: Any) -> None:
        self._session.invoke(name, LET, (value,))

    def _call(self, name: str, *arguments: Any) -> Any:
        return self._session.invoke(name, CALL, arguments)


class Indexed:
    """A property with arguments, of one grid."""

    __slots__ = ("_grid",)

    # Not sequences: there is no first element to begin with.
    __iter__: None = None
    __contains__: None = None

    def __init__(self, grid: Members) -> None:
        self._grid = grid

    def _get(self, index: Any) -> Any:
        arguments = index if isinstance(index, tuple) else (index,)
        return self._grid._session.invoke(type(self).__name__, GET, arguments)

    def _let(self, index: Any, value: Any) -> None:
        arguments = index if isinstance(index, tuple) else (index,)
        self._grid._session.invoke(type(self).__name__, LET, (*arguments, value))

    def __repr__(self) -> str:
        doc = type(self).__doc__ or type(self).__name__
        return f"<{doc.splitlines()[0]} of {self._grid!r}>"


class WriteOnly(Indexed):
    """A property with arguments that cannot be read."""

    __slots__ = ()

    # Unseen by type checkers, which are to refuse it.
    if not TYPE_CHECKING:

        def __getitem__(self, index: Any) -> NoReturn:
            name = type(self).__name__
            raise AutomationError(NO_SUCH_MEMBER, f"{name} can be written only")


class IndexedMember:
    """Gives the property with arguments of a grid: `grid.Text` is what `grid.Text[0, 1]` indexes."""

    def __init__(self, kind: Type[Indexed]) -> None:
        self._kind = kind
        self.__doc__ = kind.__doc__

    def __get__(self, grid: Optional[Members], owner: Optional[type] = None) -> Any:
        return self if grid is None else self._kind(grid)

    def __set__(self, grid: Members, value: Any) -> NoReturn:
        form = (self._kind.__doc__ or "").splitlines()[0]
        raise AutomationError(_WRONG_COUNT, f"Its arguments are missing: {form}")

    def __repr__(self) -> str:
        return f"<property with arguments {(self.__doc__ or '').splitlines()[0]}>"
