"""Dates as the interface holds them: days since 30 December 1899.

The fraction is the time of the day and counts forward from midnight, in days before the first one
too: -1.25 is 29 December 1899, six o'clock.
"""

import math
from datetime import date, datetime, timedelta

from ._errors import OVERFLOW, TYPE_MISMATCH, AutomationError

_FIRST_DAY = datetime(1899, 12, 30)
_MICROSECONDS_A_DAY = 86_400_000_000
_ONE_DAY = timedelta(days=1)

# No date of the interface lies behind this day, not even when it is rounded to a second.
_LAST_DAY = (datetime.max - _FIRST_DAY).days
_LAST_SECOND = _LAST_DAY + 86_399 / 86_400
_HALF_A_SECOND = 0.5 / 86_400


def to_days(value: date) -> float:
    """The days of a date or a datetime."""
    if not isinstance(value, datetime):
        return float((value - _FIRST_DAY.date()).days)
    if value.tzinfo is not None:
        raise AutomationError(TYPE_MISMATCH, "A date here has no time zone")
    since = value - _FIRST_DAY
    fraction = (since - timedelta(days=since.days)) / _ONE_DAY
    if since.days < 0:
        return since.days - fraction
    days = since.days + fraction
    return days if days < _LAST_SECOND + _HALF_A_SECOND else _LAST_SECOND


def from_days(days: float) -> datetime:
    """The datetime of a number of days, to the microsecond.

    A float of days is coarser than that in late centuries: there the whole millisecond is taken
    that the number cannot be told from.
    """
    if not math.isfinite(days):
        raise AutomationError(OVERFLOW, f"{days} is not a date")
    whole = math.trunc(days)
    exact = abs(days - whole) * _MICROSECONDS_A_DAY
    microseconds = round(exact)
    milliseconds = round(exact / 1000) * 1000
    step = math.ulp(days) * _MICROSECONDS_A_DAY
    if abs(milliseconds - exact) <= step:
        microseconds = milliseconds
    try:
        return _FIRST_DAY + timedelta(days=whole, microseconds=microseconds)
    except OverflowError:
        if whole == _LAST_DAY:
            return datetime.max
        raise AutomationError(OVERFLOW, f"{days} is not a date of datetime") from None
