"""What the tests of the package share."""

import unittest
from typing import Any, Callable, Optional, Type
from types import TracebackType

import vornix


class _Raised:
    """Holds that a block raises an automation error of one number."""

    def __init__(self, test: unittest.TestCase, number: int) -> None:
        self._test = test
        self._number = number
        self.error: Optional[vornix.AutomationError] = None

    def __enter__(self) -> "_Raised":
        return self

    def __exit__(
        self,
        kind: Optional[Type[BaseException]],
        error: Optional[BaseException],
        traceback: Optional[TracebackType],
    ) -> bool:
        if error is None:
            self._test.fail(f"no error {self._number}")
        if not isinstance(error, vornix.AutomationError):
            return False
        self._test.assertEqual(error.number, self._number, str(error))
        self.error = error
        return True


class GridTest(unittest.TestCase):
    """A test with a grid `g` of 4 rows and 3 columns, and a fixed one of each."""

    def setUp(self) -> None:
        self.g = vornix.Grid(320, 240)
        self.addCleanup(self.g.close)
        self.g.Cols, self.g.Rows, self.g.FixedCols, self.g.FixedRows = 3, 4, 1, 1
        self.g.host.clear_log()

    def raises(self, number: int) -> _Raised:
        return _Raised(self, number)

    def fails(self, number: int, call: Callable[..., Any], *arguments: Any, **named: Any) -> None:
        with self.raises(number):
            call(*arguments, **named)
