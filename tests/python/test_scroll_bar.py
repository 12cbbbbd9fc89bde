"""The scroll bar as a control of its own."""

import inspect
import os
import sys
import threading
import unittest
from pathlib import Path
from typing import Any, Callable, List

sys.path.insert(0, str(Path(os.environ["VORNIX_INTERFACE"]).parent / "generator"))

import iface  # noqa: E402

import vornix  # noqa: E402
from vornix import _scroll_bar  # noqa: E402

CONTROL = iface.read(Path(os.environ["VORNIX_INTERFACE"]))["vxScrollBar"]


class BarTest(unittest.TestCase):
    def setUp(self) -> None:
        self.bar = vornix.ScrollBar()
        self.addCleanup(self.bar.close)

    def fails(self, number: int, call: Callable[..., Any], *arguments: Any) -> None:
        with self.assertRaises(vornix.AutomationError) as caught:
            call(*arguments)
        self.assertEqual(caught.exception.number, number)


class TestAgreement(unittest.TestCase):
    def test_properties_are_those_of_the_interface(self) -> None:
        for member in CONTROL.members:
            with self.subTest(member=member.name):
                found = vars(vornix.ScrollBar)[member.name]
                if member.is_method:
                    names = [argument.name for argument in member.arguments]
                    self.assertEqual(list(inspect.signature(found).parameters), ["self", *names])
                else:
                    self.assertIsInstance(found, property)
                    self.assertEqual(found.fset is not None, member.is_writable)

    def test_there_are_no_others(self) -> None:
        names = {member.name for member in CONTROL.members}
        own = {"host", "close", "on", "off"}
        public = {name for name in dir(vornix.ScrollBar) if not name.startswith("_")}
        self.assertEqual(public, names | own)

    def test_events_are_those_of_the_interface(self) -> None:
        self.assertEqual(len(_scroll_bar._EVENTS), len(CONTROL.events))
        for event, described in zip(_scroll_bar._EVENTS, CONTROL.events):
            self.assertEqual(event.__name__, described.name)
            self.assertEqual(event._names, tuple(each.name for each in described.arguments))
            by_reference = {
                place: each.type for place, each in enumerate(described.arguments) if each.by_ref
            }
            self.assertEqual(event._references, by_reference)


class TestMembers(BarTest):
    def test_a_new_bar(self) -> None:
        bar = self.bar
        self.assertEqual((bar.Min, bar.Max, bar.Value, bar.Orientation), (0, 100, 1, 0))
        self.assertIs(bar.Enabled, True)
        self.assertIsInstance(bar.hWnd, int)
        self.assertEqual(repr(bar), "<vornix.ScrollBar Min=0 Max=100 Value=1>")
        with vornix.ScrollBar(1, length=50) as standing:
            self.assertEqual(standing.Orientation, 1)

    def test_values_are_limited(self) -> None:
        self.bar.Value = 500
        self.assertEqual(self.bar.Value, 100)
        self.bar.SetInfo(Min=10, Max=20, Page=1)
        self.assertEqual((self.bar.Min, self.bar.Max, self.bar.Value), (10, 20, 20))
        self.assertEqual(self.bar.host.log, [])

    def test_what_can_be_written_only(self) -> None:
        self.fails(438, lambda: self.bar.SmallChange)
        self.fails(438, lambda: self.bar.SmoothScroll)
        with self.assertRaises(AttributeError):
            self.bar.Min = 3  # type: ignore[misc]

    def test_wrong_values(self) -> None:
        self.fails(13, setattr, self.bar, "Value", "many")
        self.fails(6, setattr, self.bar, "Value", 2**40)
        self.fails(13, vornix.ScrollBar, "long")
        self.fails(5, vornix.ScrollBar, 0, 0)
        self.fails(5, vornix.ScrollBar, 0, 40000)


class TestUser(BarTest):
    def setUp(self) -> None:
        super().setUp()
        self.bar.Subclass()

    def test_a_bar_answers_between_subclass_and_unsubclass(self) -> None:
        self.bar.UnSubclass()
        self.bar.host.notify(1)
        self.assertEqual(self.bar.host.log, [])
        self.bar.Subclass()
        self.bar.host.notify(1)
        self.assertEqual(self.bar.host.log, [("Change", {"Value": 2, "Direction": 0})])
        self.assertEqual(self.bar.Value, 2)

    def test_steps(self) -> None:
        self.bar.SmallChange = 5
        self.bar.host.notify(1)
        self.bar.host.notify(8)
        self.assertEqual(self.bar.Value, 6)
        self.bar.host.notify(0)
        self.assertEqual(self.bar.Value, 1)

    def test_a_held_arrow_doubles_its_step(self) -> None:
        self.bar.SetInfo(0, 1000, 1)
        self.bar.SmoothScroll = True
        places: List[int] = []
        for _ in range(6):
            self.bar.host.notify(1)
            places.append(self.bar.Value)
        self.assertEqual(places, [3, 7, 15, 31, 63, 95])
        self.bar.host.notify(8)
        self.bar.host.notify(1)
        self.assertEqual(self.bar.Value, 97)

    def test_pages_are_the_handlers(self) -> None:
        @self.bar.on("change")
        def page(e: Any) -> None:
            e.Value += 20 * e.Direction

        self.bar.host.notify(3)
        self.assertEqual(self.bar.Value, 21)
        self.bar.host.notify(2)
        self.assertEqual(self.bar.Value, 1)
        self.bar.off("Change", page)
        self.bar.host.notify(3)
        self.assertEqual(self.bar.Value, 1)
        self.assertEqual([arguments["Direction"] for _, arguments in self.bar.host.log], [1, -1, 1])

    def test_a_drag_of_the_thumb(self) -> None:
        @self.bar.on("Scroll")
        def even(e: Any) -> None:
            e.Value -= e.Value % 2

        self.bar.host.notify(5, 31)
        self.assertEqual(self.bar.Value, 30)
        self.bar.host.notify(5, track_pos=4000)
        self.bar.host.notify(4)
        self.bar.host.notify(8)
        self.assertEqual([name for name, _ in self.bar.host.log], ["Scroll", "Scroll", "Change"])
        self.assertEqual(self.bar.Value, 100)
        self.bar.host.clear_log()
        self.assertEqual(self.bar.host.log, [])

    def test_ends(self) -> None:
        self.bar.host.notify(7)
        self.assertEqual(self.bar.Value, 100)
        self.bar.host.notify(6)
        self.assertEqual(self.bar.Value, 0)

    def test_a_disabled_bar_has_no_user(self) -> None:
        self.bar.Enabled = False
        self.bar.host.notify(1)
        self.assertEqual(self.bar.Value, 1)

    def test_other_codes(self) -> None:
        self.fails(5, self.bar.host.notify, 9)
        self.fails(5, self.bar.host.notify, -1)
        self.fails(13, self.bar.host.notify, "line")

    def test_a_handler_that_raises(self) -> None:
        @self.bar.on("Change")
        def fail(e: Any) -> None:
            raise LookupError("in the handler")

        with self.assertRaises(LookupError):
            self.bar.host.notify(1)
        self.assertEqual(self.bar.Value, 2)

    def test_other_events(self) -> None:
        self.fails(438, self.bar.on, "Click", print)
        self.fails(438, self.bar.on, "Click")


class TestHost(BarTest):
    def test_saved_and_read_again(self) -> None:
        self.bar.SetInfo(-3, 7, 1)
        self.bar.Orientation = 1
        saved = self.bar.host.save()
        self.assertEqual(saved, {"Orientation": 1, "Min": -3, "Max": 7})
        with vornix.ScrollBar(bag=saved) as other:
            self.assertEqual((other.Min, other.Max, other.Orientation), (-3, 7, 1))
            self.assertEqual(other.host.save(), saved)
        self.fails(13, lambda: vornix.ScrollBar(bag={"Max": "many"}))

    def test_sizes(self) -> None:
        self.bar.host.resize(300, 20)
        self.fails(5, self.bar.host.resize, -1, 20)

    def test_the_keyboard_does_nothing(self) -> None:
        self.bar.Subclass()
        host = self.bar.host
        self.assertEqual((host.key_down(40), host.key_press("a"), host.key_up(40, 1)), (40, 97, 40))
        host.type("abc")
        host.press("Left")
        host.press(40)
        host.paste("abc")
        host.tick()
        self.assertEqual((host.log, self.bar.Value), ([], 1))
        self.fails(5, host.key_press, "ab")


class TestEnd(BarTest):
    def test_a_closed_bar(self) -> None:
        host = self.bar.host
        self.bar.close()
        self.bar.close()
        self.assertEqual(repr(self.bar), "<vornix.ScrollBar closed>")
        uses: List[Callable[[], Any]] = [
            lambda: self.bar.Value,
            self.bar.Subclass,
            lambda: host.notify(1),
            lambda: host.log,
            host.save,
            host.tick,
            lambda: host.key_down(1),
            lambda: self.bar.on("Change", print),
        ]
        for use in uses:
            self.fails(5, use)

    def test_closed_in_its_own_event(self) -> None:
        self.bar.Subclass()
        self.bar.on("Change", lambda e: self.bar.close())
        self.bar.host.notify(1)
        self.fails(5, lambda: self.bar.Value)

    def test_it_belongs_to_its_thread(self) -> None:
        numbers: List[int] = []

        def use() -> None:
            try:
                self.bar.Value = 3
            except vornix.AutomationError as error:
                numbers.append(error.number)

        thread = threading.Thread(target=use)
        thread.start()
        thread.join()
        self.assertEqual(numbers, [5])


if __name__ == "__main__":
    unittest.main()
