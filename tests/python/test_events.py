"""Events and their handlers."""

import copy
import pickle
import unittest
from typing import Any, List

import vornix
from support import GridTest

# A place in the client area, and the cell there.
PLACE = (35, 26)


class TestEvents(GridTest):
    def setUp(self) -> None:
        super().setUp()
        self.seen: List[Any] = []

    def press(self) -> int:
        return self.g.host.key_down(65, 2)

    def test_arguments_are_attributes(self) -> None:
        self.g.on("KeyDown", self.seen.append)
        self.press()
        (event,) = self.seen
        self.assertEqual((event.KeyCode, event.Shift), (65, 2))
        self.assertIsInstance(event, vornix.events.KeyDown)
        self.assertEqual(repr(event), "KeyDown(KeyCode=65, Shift=2)")

    def test_by_reference_arguments_can_be_set(self) -> None:
        def other(e: vornix.events.KeyDown) -> None:
            e.KeyCode = 66

        self.g.on("KeyDown", other)
        self.assertEqual(self.press(), 66)

    def test_the_others_cannot(self) -> None:
        def move(e: vornix.events.MouseDown) -> None:
            with self.assertRaises(AttributeError):
                e.x = 3.0  # type: ignore[misc]
            with self.assertRaises(AttributeError):
                e.NoSuch = 3  # type: ignore[attr-defined]
            self.seen.append(e.x)

        self.g.on("MouseDown", move)
        self.g.host.mouse_down(12.5, 7)
        self.assertEqual(self.seen, [12.5])

    def test_what_is_set_is_converted_at_once(self) -> None:
        def convert(e: Any) -> None:
            for value, number in ((40000, 6), ("x", 13), (None, 13), (float("nan"), 6)):
                self.fails(number, setattr, e, "KeyCode", value)
            e.KeyCode = "67"
            self.seen.append(e.KeyCode)
            e.KeyCode = 68.5

        self.g.on("KeyDown", convert)
        self.assertEqual(self.press(), 68)
        self.assertEqual(self.seen, [67])

    def test_a_boolean_argument(self) -> None:
        from vornix.events import CellChange

        event = CellChange([0, 1, False])
        for value, expected in ((True, True), (-1, True), (0, False), ("True", True), (0.5, True)):
            event.bCancel = value  # type: ignore[assignment]
            self.assertIs(event.bCancel, expected)
        self.fails(13, setattr, event, "bCancel", "perhaps")

    def test_an_event_that_is_over_cannot_be_set(self) -> None:
        self.g.on("KeyDown", self.seen.append)
        self.press()
        self.assertEqual(self.seen[0].KeyCode, 65)
        self.fails(5, setattr, self.seen[0], "KeyCode", 1)

    def test_handlers_run_in_order_and_see_what_earlier_ones_set(self) -> None:
        def first(e: vornix.events.KeyDown) -> None:
            self.seen.append(("first", e.KeyCode))
            e.KeyCode = 1

        def second(e: vornix.events.KeyDown) -> None:
            self.seen.append(("second", e.KeyCode))
            e.KeyCode += 1

        self.g.on("KeyDown", first)
        self.g.on("KeyDown", second)
        self.assertEqual(self.press(), 2)
        self.assertEqual(self.seen, [("first", 65), ("second", 1)])

    def test_names_are_in_any_case(self) -> None:
        self.g.on("keydown", self.seen.append)  # type: ignore[call-overload]
        self.press()
        self.g.off("KEYDOWN", self.seen.append)  # type: ignore[arg-type]
        self.press()
        self.assertEqual(len(self.seen), 1)
        self.fails(438, self.g.on, 3, print)

    def test_events_cannot_be_copied_or_pickled(self) -> None:
        self.g.on("KeyDown", self.seen.append)
        self.press()
        for use in (copy.copy, copy.deepcopy, pickle.dumps):
            with self.assertRaises(TypeError):
                use(self.seen[0])  # type: ignore[operator]

    def test_off_takes_a_handler_away(self) -> None:
        self.g.on("KeyDown", self.seen.append)
        self.g.off("KeyDown", self.seen.append)
        self.g.off("KeyDown", self.seen.append)
        self.press()
        self.assertEqual(self.seen, [])

    def test_off_takes_one_of_two_away(self) -> None:
        self.g.on("KeyDown", self.seen.append)
        self.g.on("KeyDown", self.seen.append)
        self.g.off("KeyDown", self.seen.append)
        self.press()
        self.assertEqual(len(self.seen), 1)

    def test_on_as_a_decorator(self) -> None:
        @self.g.on("KeyDown")
        def handler(e: vornix.events.KeyDown) -> None:
            e.KeyCode = 99

        self.assertEqual(self.press(), 99)
        self.g.off("KeyDown", handler)
        self.assertEqual(self.press(), 65)

    def test_handlers_may_come_and_go_inside_handlers(self) -> None:
        def late(e: object) -> None:
            self.seen.append("late")

        def second(e: object) -> None:
            self.seen.append("second")

        def first(e: object) -> None:
            self.seen.append("first")
            self.g.off("KeyDown", first)
            self.g.off("KeyDown", second)
            self.g.on("KeyDown", late)

        self.g.on("KeyDown", first)
        self.g.on("KeyDown", second)
        self.press()
        self.assertEqual(self.seen, ["first"])
        self.press()
        self.assertEqual(self.seen, ["first", "late"])

    def test_an_unknown_event_is_error_438(self) -> None:
        self.fails(438, self.g.on, "NoSuch", print)
        self.fails(438, self.g.on, "NoSuch")
        self.fails(438, self.g.off, "NoSuch", print)

    def test_a_handler_must_be_callable(self) -> None:
        with self.assertRaises(TypeError):
            self.g.on("Click", 3)  # type: ignore[call-overload]

    def test_handlers_call_the_grid(self) -> None:
        def handler(e: vornix.events.KeyDown) -> None:
            self.g.Text[0, 0] = str(e.KeyCode)
            self.g.Rows += 1

        self.g.on("KeyDown", handler)
        self.press()
        self.assertEqual((self.g.Text[0, 0], self.g.Rows), ("65", 5))

    def test_two_grids_have_their_own_handlers(self) -> None:
        with vornix.Grid(100, 100) as other:
            self.g.on("KeyDown", self.seen.append)
            other.host.key_down(1)
            self.assertEqual(self.seen, [])

    def test_the_log_holds_what_was_raised(self) -> None:
        def other(e: vornix.events.KeyDown) -> None:
            e.KeyCode = 1

        self.g.on("KeyDown", other)
        self.press()
        self.assertEqual(self.g.host.log, [("KeyDown", {"KeyCode": 65, "Shift": 2})])
        self.g.host.clear_log()
        self.assertEqual(self.g.host.log, [])


class TestExceptions(GridTest):
    def test_an_exception_comes_out_of_the_call_that_was_running(self) -> None:
        def handler(e: object) -> None:
            raise LookupError("out of the handler")

        self.g.on("KeyDown", handler)
        with self.assertRaisesRegex(LookupError, "out of the handler") as caught:
            self.g.host.key_down(65)
        self.assertIsNone(caught.exception.__context__)
        self.g.off("KeyDown", handler)
        self.assertEqual(self.g.host.key_down(65), 65)

    def test_it_comes_out_of_the_innermost_call(self) -> None:
        seen = []

        def inner(e: object) -> None:
            raise LookupError

        def outer(e: object) -> None:
            try:
                self.g.host.key_up(66)
            except LookupError:
                seen.append("caught")

        self.g.on("KeyUp", inner)
        self.g.on("KeyDown", outer)
        self.assertEqual(self.g.host.key_down(65), 65)
        self.assertEqual(seen, ["caught"])

    def test_one_that_is_not_caught_goes_further_out(self) -> None:
        def inner(e: object) -> None:
            raise LookupError

        self.g.on("KeyUp", inner)
        self.g.on("KeyDown", lambda e: self.g.host.key_up(66))
        with self.assertRaises(LookupError):
            self.g.host.key_down(65)

    def test_the_first_wins_and_later_handlers_run(self) -> None:
        seen = []

        def fail(error: Exception) -> Any:
            def handler(e: object) -> None:
                seen.append(error)
                raise error

            return handler

        for error in (LookupError(), OSError()):
            self.g.on("KeyDown", fail(error))
        with self.assertRaises(LookupError):
            self.g.host.key_down(65)
        self.assertEqual(len(seen), 2)
        self.g.Rows = 3

    def test_calls_of_later_handlers_are_not_disturbed(self) -> None:
        seen = []

        def first(e: object) -> None:
            raise LookupError("of the first handler")

        def inner(e: object) -> None:
            raise OSError("of the inner call")

        def second(e: object) -> None:
            self.g.Text[0, 0] = "written"
            seen.append((self.g.Text[0, 0], self.g.Rows, repr(self.g)))
            try:
                self.g.host.key_up(66)
            except OSError:
                seen.append("its own")

        self.g.on("KeyDown", first)
        self.g.on("KeyDown", second)
        self.g.on("KeyUp", inner)
        with self.assertRaisesRegex(LookupError, "of the first handler"):
            self.g.host.key_down(65)
        self.assertEqual(seen, [("written", 4, "<vornix.Grid Rows=4 Cols=3>"), "its own"])
        self.assertEqual(self.g.Text[0, 0], "written")

    def test_an_inner_exception_that_goes_on_is_not_the_first(self) -> None:
        def first(e: object) -> None:
            raise LookupError

        def inner(e: object) -> None:
            raise OSError

        self.g.on("KeyDown", first)
        self.g.on("KeyDown", lambda e: self.g.host.key_up(66))
        self.g.on("KeyUp", inner)
        with self.assertRaises(LookupError):
            self.g.host.key_down(65)
        self.assertEqual(self.g.Rows, 4)

    def test_an_error_that_waits_survives_the_repr(self) -> None:
        session = self.g._session
        session.keep_error(LookupError("waiting"))
        self.assertEqual(repr(self.g), "<vornix.Grid Rows=4 Cols=3>")
        with self.assertRaisesRegex(LookupError, "waiting"):
            self.g.Rows

    def test_what_was_set_before_counts(self) -> None:
        def handler(e: vornix.events.KeyDown) -> None:
            e.KeyCode = 7
            raise LookupError

        def later(e: vornix.events.KeyDown) -> None:
            self.code = e.KeyCode

        self.g.on("KeyDown", handler)
        self.g.on("KeyDown", later)
        with self.assertRaises(LookupError):
            self.g.host.key_down(65)
        self.assertEqual(self.code, 7)

    def test_exits_and_interrupts_come_out_too(self) -> None:
        for kind in (KeyboardInterrupt, SystemExit, GeneratorExit):

            def handler(e: object) -> None:
                raise kind

            self.g.on("KeyDown", handler)
            with self.assertRaises(kind):
                self.g.host.key_down(65)
            self.g.off("KeyDown", handler)

    def test_a_property_that_raises_an_event(self) -> None:
        def handler(e: vornix.events.DrawCell) -> None:
            raise LookupError

        self.g.CellStyle[0, 0] = vornix.vxCustomDraw
        self.g.on("DrawCell", handler)
        with self.assertRaises(LookupError):
            self.g.Redraw = False
            self.g.Redraw = True
        self.g.off("DrawCell", handler)

    def test_an_attribute_error_is_no_missing_attribute(self) -> None:
        def handler(e: Any) -> None:
            e.NoSuch

        self.g.on("KeyDown", handler)
        with self.assertRaisesRegex(AttributeError, "NoSuch"):
            self.g.host.key_down(65)


class TestDrawing(GridTest):
    def test_a_handler_draws_a_cell_itself(self) -> None:
        drawn: List[Any] = []

        def draw(e: vornix.events.DrawCell) -> None:
            drawn.append((e.Row, e.Col, e.PictureHdc != 0))
            e.bCancel = True

        self.g.on("DrawCell", draw)
        self.g.CellStyle[0, 0] = vornix.vxCustomDraw
        self.assertIn((0, 0, True), drawn)

    def test_a_surface_is_a_device(self) -> None:
        surface = vornix.Surface(20, 20)
        found = [
            (event, place)
            for event in vornix.events.EVENTS
            for place, kind in event._references.items()
            if kind == "hdc"
        ]
        self.assertTrue(found)
        for event, place in found:
            made = event([0] * len(event._names))
            made._set(place, surface)
            self.assertEqual(getattr(made, event._names[place]), surface.hdc)
            self.fails(13, made._set, place, "x")


if __name__ == "__main__":
    unittest.main()
