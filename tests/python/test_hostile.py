"""Any member with any values, inside handlers too: a value or an AutomationError, and nothing else."""

import os
import random
import sys
import unittest
from datetime import datetime
from decimal import Decimal
from pathlib import Path
from typing import Any, List

import vornix
from support import GridTest

sys.path.insert(0, str(Path(os.environ["VORNIX_INTERFACE"]).parent / "generator"))

import iface  # noqa: E402

CONTROL = iface.read(Path(os.environ["VORNIX_INTERFACE"]))["Vornix"]

CALLS = 20_000
# The deepest nesting of calls inside handlers.
DEPTH = 3

VALUES: List[Any] = [
    *(0, 0, 0, 1, 1, 2, -1, 3, 100, -32768, 32767, 40000, 2**31, -(2**63), 2**64),
    *(0.5, -1e300, float("nan"), float("inf"), True, False, None),
    *("", "5", "x", "\ud800", "a\0b", "long " * 50),
    *(datetime(1, 1, 1), datetime(2024, 2, 29), Decimal("1E-30"), Decimal("NaN")),
    *(b"", [], [["a"], [None]], object()),
]


class TestHostile(GridTest):
    def setUp(self) -> None:
        super().setUp()
        self.random = random.Random(20240229)
        self.depth = 0
        self.failed = self.succeeded = self.nested = 0
        font, picture = vornix.Font("DejaVu Sans", 12), vornix.Picture.from_rgba(1, 1, bytes(4))
        self.values = [*VALUES, font, picture, vornix.Surface(20, 20), vornix.Surface(5, 5).hdc]

    def call_any_member(self) -> None:
        member = self.random.choice(CONTROL.members)
        arguments = [self.random.choice(self.values) for _ in member.arguments]
        owner = getattr(vornix.Grid, member.name)
        try:
            if member.is_method:
                owner(self.g, *arguments)
            elif not member.arguments:
                if member.is_writable and self.random.random() < 0.5:
                    setattr(self.g, member.name, self.random.choice(self.values))
                else:
                    getattr(self.g, member.name)
            elif member.is_writable and self.random.random() < 0.5:
                getattr(self.g, member.name)[tuple(arguments)] = self.random.choice(self.values)
            else:
                getattr(self.g, member.name)[tuple(arguments)]
            self.succeeded += 1
        except vornix.AutomationError:
            self.failed += 1

    def use_the_host(self) -> None:
        host = self.g.host
        x, y = self.random.randint(-5, 330), self.random.randint(-5, 250)
        uses: List[Any] = [
            lambda: host.mouse_down(x, y),
            lambda: host.mouse_up(x, y),
            lambda: host.click_at(x, y),
            lambda: host.drag(x, y, y, x),
            lambda: host.press("Left"),
            lambda: host.paint(),
            lambda: host.resize(abs(x), abs(y)),
            lambda: host.resize(320, 240),
            lambda: host.type("a1"),
            lambda: host.child("txtTmp").key_down(46),
            lambda: host.child("txtTmp").key_press("x"),
            lambda: setattr(host.child("txtTmp"), "text", self.random.choice(("", "whole"))),
            lambda: setattr(host.child("cboTmp"), "sel_length", x),
            lambda: host.child("cboTmp").key_down(40),
            lambda: host.child("cboTmp").click_item(self.random.randint(-1, 3)),
        ]
        try:
            self.random.choice(uses)()
        except vornix.AutomationError:
            self.failed += 1

    def nest(self, event: Any) -> None:
        if self.depth == DEPTH:
            return
        self.depth += 1
        self.nested += 1
        for _ in range(2):
            self.call_any_member()
        self.depth -= 1

    def begin_anew(self) -> None:
        """A grid that has grown costs time, and one whose sums are too large answers nothing else."""
        self.g.close()
        super().setUp()
        for event in vornix.events.EVENTS:
            self.g.on(event.__name__, self.nest)  # type: ignore[call-overload]

    def test_random_calls(self) -> None:
        for number in range(CALLS):
            if number % 100 == 0:
                self.begin_anew()
            self.call_any_member()
            if number % 5 == 0:
                self.use_the_host()
        # All of this happens often, or the test shows nothing.
        self.assertGreater(self.nested, CALLS // 100)
        self.assertGreater(self.failed, CALLS // 10)
        self.assertGreater(self.succeeded, CALLS // 10)
        self.begin_anew()
        self.g.Text[0, 0] = "alive"
        self.assertEqual(self.g.Text[0, 0], "alive")


if __name__ == "__main__":
    unittest.main()
