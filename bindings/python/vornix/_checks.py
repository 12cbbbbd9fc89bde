"""What is checked on the way to the library, which ctypes would cut to size silently."""

import math
import os
import re
from typing import Any, Union

from ._errors import INVALID_ARGUMENT, OVERFLOW, TYPE_MISMATCH, AutomationError, error_of
from ._library import last_error

# Texts that are read as numbers: those that the interface and Python read alike.
_NUMBER = re.compile(r"\s*[+-]?(\d+\.?\d*|\.\d+)(e[+-]?\d+)?\s*", re.ASCII | re.IGNORECASE)

_LARGEST_SINGLE = 3.4028235677973366e38


def check(status: int) -> None:
    """Raises the error of a status."""
    if status:
        raise error_of(status, last_error())


def to_index(value: Any) -> int:
    """The integer that a value with __index__ stands for."""
    try:
        return int(value.__index__())
    except TypeError:
        raise AutomationError(TYPE_MISMATCH, f"{value!r} is not a number") from None


def _to_integer(value: Any) -> int:
    """An integer of what stands for one: floats are rounded to even, texts are read."""
    if hasattr(value, "__index__"):
        return to_index(value)
    number = to_float(value)
    if not math.isfinite(number):
        raise AutomationError(OVERFLOW, f"{number} is not an integer")
    return round(number)


def _to_width(value: Any, bits: int) -> int:
    number = _to_integer(value)
    if not -(1 << bits - 1) <= number < 1 << bits - 1:
        raise AutomationError(OVERFLOW, f"{number} does not fit {bits} bits")
    return number


def to_i16(value: Any) -> int:
    """An integer of 16 bits."""
    return _to_width(value, 16)


def to_i32(value: Any) -> int:
    """An integer of 32 bits."""
    return _to_width(value, 32)


def to_i64(value: Any) -> int:
    """An integer of 64 bits."""
    return _to_width(value, 64)


def to_float(value: Any) -> float:
    """A float; texts are read."""
    if isinstance(value, str) and not _NUMBER.fullmatch(value):
        raise AutomationError(TYPE_MISMATCH, f"{value!r} is not a number")
    try:
        return float(value)
    except (TypeError, ValueError):
        raise AutomationError(TYPE_MISMATCH, f"{value!r} is not a number") from None
    except OverflowError:
        raise AutomationError(OVERFLOW, "The number does not fit a float") from None


def to_single(value: Any) -> float:
    """A float of 32 bits, held in one of 64."""
    number = to_float(value)
    if math.isfinite(number) and abs(number) > _LARGEST_SINGLE:
        raise AutomationError(OVERFLOW, f"{number} does not fit a float of 32 bits")
    return number


def to_place(value: Any) -> float:
    """One number of a place of the pointer: finite, and of 32 bits."""
    number = to_single(value)
    if not math.isfinite(number):
        raise AutomationError(INVALID_ARGUMENT, f"{number} is no place of the pointer")
    return number


def to_bool(value: Any) -> bool:
    """A truth value: numbers other than 0 are true, texts are True, False or a number."""
    if isinstance(value, str):
        word = value.strip().lower()
        if word in ("true", "false"):
            return word == "true"
    elif isinstance(value, bool):
        return value
    return to_float(value) != 0


def to_text(value: Any) -> str:
    """A text, without a zero where it becomes one of C."""
    if not isinstance(value, str):
        raise AutomationError(TYPE_MISMATCH, f"{value!r} is not a text")
    return value


def to_name(value: Any) -> bytes:
    """A name for the library; one that no C text can hold is a name that nothing has."""
    return to_text(value).encode("utf-8", "replace").replace(b"\0", b"?")


def to_color(value: Any) -> int:
    """A colour as a pattern of 32 bits, which may come as a negative number."""
    number = _to_integer(value)
    if not -(1 << 31) <= number < 1 << 32:
        raise AutomationError(OVERFLOW, f"{number} is not a colour")
    return number & 0xFFFFFFFF


def path_bytes(path: Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]) -> bytes:
    """A path for the library."""
    encoded = os.fsencode(path)
    if b"\0" in encoded:
        raise ValueError("embedded null byte in a path")
    return encoded


def character_code(char: Union[str, int]) -> int:
    """The code of a character, which may be given as the code."""
    if not isinstance(char, str):
        return to_i16(char)
    if len(char) != 1:
        raise AutomationError(INVALID_ARGUMENT, f"{char!r} is not one character")
    code = ord(char)
    # The upper half of 16 bits is negative.
    return to_i16(code - 0x10000 if 0x8000 <= code <= 0xFFFF else code)
