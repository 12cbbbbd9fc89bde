"""Many values at once: the columns of LoadFromArray, and texts read in bulk.

A column whose elements are all of one kind goes to the library in one piece.
"""

import ctypes
from array import array
from datetime import date, datetime
from itertools import accumulate
from typing import Any, Callable, Dict, FrozenSet, Iterable, List, Mapping, Optional, Sequence

from . import _library
from ._checks import check
from ._dates import to_days
from ._errors import OVERFLOW, SUBSCRIPT_OUT_OF_RANGE, TYPE_MISMATCH, AutomationError
from ._library import library

# The length of a text that is null.
_NULL_LENGTH = 0xFFFFFFFF

# array codes of 32 and 64 bits.
_UINT32 = next(code for code in "IL" if array(code).itemsize == 4)
_INT64 = next(code for code in "lq" if array(code).itemsize == 8)


class Array:
    """An array of the library: columns of records."""

    __slots__ = ("pointer",)

    def __init__(self, columns: Any) -> None:
        self.pointer: Optional[int] = None
        table = _to_table(columns)
        records = len(table[0]) if table else 0
        pointer = ctypes.c_void_p()
        check(library.vornix_array_create(len(table), records, ctypes.byref(pointer)))
        self.pointer = pointer.value
        if records:
            for place, column in enumerate(table):
                _set_column(self.pointer, place, column)

    def __del__(self) -> None:
        if self.pointer is not None:
            library.vornix_array_release(self.pointer)


def is_iterable(value: Any) -> bool:
    """Whether a value is taken for the list of what it gives: neither texts nor mappings are."""
    if isinstance(value, (str, bytes, bytearray, Mapping)):
        return False
    return isinstance(value, Iterable) or (hasattr(value, "tolist") and hasattr(value, "__len__"))


def _is_no_value(value: Any) -> bool:
    return is_iterable(value) or isinstance(value, (bytes, bytearray, Mapping))


def _to_list(value: Any) -> Sequence[Any]:
    """The elements of a column; other libraries' arrays give plain values by tolist()."""
    if isinstance(value, (list, tuple)):
        return value
    return list(value.tolist() if hasattr(value, "tolist") else value)


def _to_table(columns: Any) -> List[Sequence[Any]]:
    if not is_iterable(columns):
        kind = type(columns).__name__
        raise AutomationError(TYPE_MISMATCH, f"A list of columns is needed, not a {kind}")
    outer = columns if isinstance(columns, (list, tuple)) else list(columns)
    if not any(map(_is_no_value, outer)):
        # One dimension only: there are no records in it.
        return [[] for _ in outer]
    for place, column in enumerate(outer):
        if not is_iterable(column):
            kind = type(column).__name__
            raise AutomationError(TYPE_MISMATCH, f"Column {place} is not a list but a {kind}")
    table = [_to_list(column) for column in outer]
    for place, column in enumerate(table):
        if len(column) != len(table[0]):
            raise AutomationError(
                SUBSCRIPT_OUT_OF_RANGE,
                f"Column {place} has {len(column)} records, column 0 has {len(table[0])}",
            )
    return table


def _address(numbers: "array[Any]") -> int:
    return numbers.buffer_info()[0]


def _set_texts(pointer: Any, place: int, column: Sequence[str]) -> None:
    _send_texts(pointer, place, "".join(column), array(_UINT32, map(len, column)))


def _set_texts_and_nulls(pointer: Any, place: int, column: Sequence[Optional[str]]) -> None:
    lengths = array(_UINT32, (_NULL_LENGTH if text is None else len(text) for text in column))
    _send_texts(pointer, place, "".join(filter(None, column)), lengths)


def _send_texts(pointer: Any, place: int, joined: str, lengths: "array[int]") -> None:
    data = joined.encode("utf-32-le", "surrogatepass")
    call = library.vornix_array_set_texts
    check(call(pointer, place, data, len(data) // 4, _address(lengths), len(lengths)))


def _send_integers(pointer: Any, place: int, kind: int, column: Sequence[int]) -> None:
    try:
        numbers = array(_INT64, column)
    except OverflowError:
        raise AutomationError(OVERFLOW, f"Column {place} has an integer beyond 64 bits") from None
    call = library.vornix_array_set_integers
    check(call(pointer, place, kind, _address(numbers), len(numbers)))


def _set_integers(pointer: Any, place: int, column: Sequence[int]) -> None:
    is_short = -(2**31) <= min(column) and max(column) < 2**31
    _send_integers(pointer, place, _library.I32 if is_short else _library.I64, column)


def _set_booleans(pointer: Any, place: int, column: Sequence[bool]) -> None:
    _send_integers(pointer, place, _library.BOOLEAN, column)


def _send_numbers(pointer: Any, place: int, kind: int, numbers: "array[float]") -> None:
    call = library.vornix_array_set_numbers
    check(call(pointer, place, kind, _address(numbers), len(numbers)))


def _set_floats(pointer: Any, place: int, column: Sequence[float]) -> None:
    _send_numbers(pointer, place, _library.DOUBLE, array("d", column))


def _set_dates(pointer: Any, place: int, column: Sequence[date]) -> None:
    _send_numbers(pointer, place, _library.DATE, array("d", map(to_days, column)))


def _set_values(pointer: Any, place: int, column: Sequence[Any]) -> None:
    """Elements of any kinds, one by one."""
    from ._values import put

    slots = (_library.Value * len(column))()
    kept = [put(slot, value) for slot, value in zip(slots, column)]
    check(library.vornix_array_set_values(pointer, place, slots, len(column)))
    kept.clear()


_none: type = type(None)
_SET_BY_KINDS: Dict[FrozenSet[type], Callable[[Any, int, Any], None]] = {
    frozenset({str}): _set_texts,
    frozenset({str, _none}): _set_texts_and_nulls,
    frozenset({_none}): _set_texts_and_nulls,
    frozenset({int}): _set_integers,
    frozenset({bool}): _set_booleans,
    frozenset({float}): _set_floats,
    frozenset({datetime}): _set_dates,
    frozenset({date}): _set_dates,
    frozenset({date, datetime}): _set_dates,
}


def _set_column(pointer: Any, place: int, column: Sequence[Any]) -> None:
    kinds = frozenset(map(type, column))
    _SET_BY_KINDS.get(kinds, _set_values)(pointer, place, column)


def texts_of(block: _library.TextBlock) -> List[str]:
    """The texts of a block, which is given back."""
    try:
        if not block.count:
            return []
        data = ctypes.string_at(block.code_points, block.code_point_count * 4)
        lengths = array(_UINT32, ctypes.string_at(block.lengths, block.count * 4))
    finally:
        library.vornix_text_block_clear(ctypes.byref(block))
    joined = data.decode("utf-32-le", "surrogatepass")
    ends = list(accumulate(lengths))
    return [joined[start:end] for start, end in zip([0, *ends], ends)]
