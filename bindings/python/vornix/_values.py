"""Values on their way between Python and the library."""

import ctypes
import decimal
from datetime import date, datetime
from typing import Any, Callable, Dict, Optional, Tuple

from . import _library
from ._arrays import Array, is_iterable
from ._checks import to_float, to_index
from ._dates import from_days, to_days
from ._errors import INVALID_ARGUMENT, OVERFLOW, TYPE_MISMATCH, AutomationError
from ._library import Value, library, text_of
from ._objects import Font, ForeignObject, Picture, Surface

_I32_MIN, _I32_MAX = -(2**31), 2**31 - 1
_I64_MIN, _I64_MAX = -(2**63), 2**63 - 1

# What a decimal of the interface holds: 96 bits, and at most 28 digits behind the point.
_DECIMAL_SCALE = 28
_DECIMAL_LIMIT = 2**96


def _put_none(slot: Value, value: None) -> None:
    slot.type = _library.NULL


def _put_bool(slot: Value, value: bool) -> None:
    slot.type = _library.BOOLEAN
    slot.integer = -1 if value else 0


def _put_int(slot: Value, value: int) -> None:
    if _I32_MIN <= value <= _I32_MAX:
        slot.type = _library.I32
    elif _I64_MIN <= value <= _I64_MAX:
        slot.type = _library.I64
    else:
        raise AutomationError(OVERFLOW, "The integer does not fit 64 bits")
    slot.integer = value


def _put_float(slot: Value, value: float) -> None:
    slot.type = _library.DOUBLE
    slot.number = value


def _put_text(slot: Value, value: str) -> None:
    data = value.encode("utf-16-le", "surrogatepass")
    slot.type = _library.TEXT
    text = slot.text
    text.data = data
    text.length = len(data) // 2


def _put_date(slot: Value, value: date) -> None:
    slot.type = _library.DATE
    slot.number = to_days(value)


def _put_decimal(slot: Value, value: decimal.Decimal) -> None:
    coefficient, scale = _decimal_parts(value)
    slot.type = _library.DECIMAL
    parts = slot.decimal
    parts.low = coefficient & 0xFFFFFFFFFFFFFFFF
    parts.high = coefficient >> 64
    parts.scale = scale
    parts.negative = value.is_signed()


def _decimal_parts(value: decimal.Decimal) -> Tuple[int, int]:
    """Coefficient and digits behind the point, rounded to what the interface holds."""
    if not value.is_finite():
        raise AutomationError(OVERFLOW, f"{value} is not a decimal number")
    with decimal.localcontext() as context:
        context.prec = decimal.MAX_PREC
        context.Emax, context.Emin = decimal.MAX_EMAX, decimal.MIN_EMIN
        if value.adjusted() > 28:
            raise AutomationError(OVERFLOW, "The decimal does not fit 96 bits")
        scale = min(max(-int(value.as_tuple().exponent), 0), _DECIMAL_SCALE)
        while True:
            coefficient = abs(int(value.scaleb(scale).to_integral_value(decimal.ROUND_HALF_EVEN)))
            if coefficient < _DECIMAL_LIMIT:
                return coefficient, scale
            if not scale:
                raise AutomationError(OVERFLOW, "The decimal does not fit 96 bits")
            scale -= 1


def _put_font(slot: Value, value: Font) -> None:
    slot.type = _library.FONT
    slot.pointer = value._native()


def _put_picture(slot: Value, value: Picture) -> None:
    slot.type = _library.PICTURE
    slot.pointer = value._pointer


def _put_surface(slot: Value, value: Surface) -> None:
    _put_int(slot, value.hdc)


def _put_object(slot: Value, value: ForeignObject) -> None:
    if value._pointer is None:
        raise AutomationError(INVALID_ARGUMENT, "The object was that of an event that is over")
    slot.type = _library.OBJECT
    slot.pointer = value._pointer


def _put_table(slot: Value, value: Any) -> Array:
    array = Array(value)
    slot.type = _library.ARRAY
    slot.pointer = array.pointer
    return array


_PUT: Dict[type, Callable[[Value, Any], Optional[Array]]] = {
    int: _put_int,
    str: _put_text,
    bool: _put_bool,
    type(None): _put_none,
    float: _put_float,
    datetime: _put_date,
    date: _put_date,
    decimal.Decimal: _put_decimal,
    Font: _put_font,
    Picture: _put_picture,
    Surface: _put_surface,
    ForeignObject: _put_object,
    list: _put_table,
    tuple: _put_table,
}


def put(slot: Value, value: Any) -> Optional[Array]:
    """Writes a value into an empty one of the library.

    It is good for as long as the slot, the value, and the array that is given back.
    """
    return _PUT.get(type(value), _put_other)(slot, value)


def _put_other(slot: Value, value: Any) -> Optional[Array]:
    if isinstance(value, int):
        _put_int(slot, int(value))
        return None
    for kind, function in _PUT.items():
        if isinstance(value, kind):
            return function(slot, value)
    if is_iterable(value):
        return _put_table(slot, value)
    if hasattr(value, "__index__"):
        _put_int(slot, to_index(value))
    elif hasattr(value, "__float__"):
        _put_float(slot, to_float(value))
    else:
        raise AutomationError(TYPE_MISMATCH, f"A value of type {type(value).__name__} is none here")
    return None


def _take_decimal(value: Value) -> decimal.Decimal:
    parts = value.decimal
    digits = parts.high << 64 | parts.low
    sign = "-" if parts.negative else ""
    return decimal.Decimal(f"{sign}{digits}E-{parts.scale}")


def _take_font(value: Value) -> Optional[Font]:
    return Font._from_native(_taken(value)) if value.pointer else None


def _take_picture(value: Value) -> Optional[Picture]:
    return Picture._from_native(_taken(value)) if value.pointer else None


def _taken(value: Value) -> int:
    """The pointer of a value that came out, which is the caller's from here on."""
    pointer: int = value.pointer
    value.owned, value.type = 0, _library.EMPTY
    return pointer


def _take_object(value: Value) -> Optional[ForeignObject]:
    if not value.pointer:
        return None
    kept = Value()
    if value.owned:
        ctypes.memmove(ctypes.byref(kept), ctypes.byref(value), ctypes.sizeof(Value))
        value.owned, value.type = 0, _library.EMPTY
    return ForeignObject(value.pointer, kept)


def _take_array(value: Value) -> None:
    raise AutomationError(TYPE_MISMATCH, "An array cannot be read")


_TAKE: Dict[int, Callable[[Value], Any]] = {
    _library.EMPTY: lambda value: None,
    _library.NULL: lambda value: None,
    _library.I16: lambda value: value.integer,
    _library.I32: lambda value: value.integer,
    _library.I64: lambda value: value.integer,
    _library.SINGLE: lambda value: value.number,
    _library.DOUBLE: lambda value: value.number,
    _library.CURRENCY: lambda value: decimal.Decimal(f"{value.integer}E-4"),
    _library.DECIMAL: _take_decimal,
    _library.DATE: lambda value: from_days(value.number),
    _library.BOOLEAN: lambda value: value.integer != 0,
    _library.TEXT: lambda value: text_of(value.text),
    _library.MISSING: lambda value: None,
    _library.FONT: _take_font,
    _library.PICTURE: _take_picture,
    _library.OBJECT: _take_object,
    _library.ARRAY: _take_array,
}


def take(value: Value) -> Any:
    """What a value that came out of the library holds; it is given back."""
    try:
        return _TAKE[value.type](value)
    finally:
        if value.owned:
            library.vornix_value_clear(ctypes.byref(value))


def peek(value: Value) -> Any:
    """What a value holds that stays the library's: an argument of an event."""
    if value.type in (_library.FONT, _library.PICTURE):
        raise AutomationError(TYPE_MISMATCH, "No event has fonts or pictures")
    return _TAKE[value.type](value)
