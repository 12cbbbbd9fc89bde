"""The text box as a control of its own."""

import inspect
import os
import random
import sys
import threading
import unittest
from pathlib import Path
from typing import Any, Callable, List

sys.path.insert(0, str(Path(os.environ["VORNIX_INTERFACE"]).parent / "generator"))

import iface  # noqa: E402

import vornix  # noqa: E402
from test_hostile import VALUES  # noqa: E402

CONTROL = iface.read(Path(os.environ["VORNIX_INTERFACE"]))["vxTextBox"]


class BoxTest(unittest.TestCase):
    def setUp(self) -> None:
        self.box = vornix.TextBox()
        self.addCleanup(self.box.close)

    def fails(self, number: int, call: Callable[..., Any], *arguments: Any) -> None:
        with self.assertRaises(vornix.AutomationError) as caught:
            call(*arguments)
        self.assertEqual(caught.exception.number, number)

    def said(self) -> List[str]:
        return [name for name, _ in self.box.host.log]


class TestAgreement(unittest.TestCase):
    def test_members_are_those_of_the_interface(self) -> None:
        for member in CONTROL.members:
            with self.subTest(member=member.name):
                found = inspect.getattr_static(vornix.TextBox, member.name)
                if member.is_method:
                    names = [argument.name for argument in member.arguments]
                    self.assertEqual(list(inspect.signature(found).parameters), ["self", *names])
                else:
                    self.assertIsInstance(found, property)
                    self.assertEqual(found.fset is not None, member.is_writable)

    def test_events_are_those_of_the_interface(self) -> None:
        events = vornix.text_box_events.EVENTS
        self.assertEqual(len(events), len(CONTROL.events))
        for event, described in zip(events, CONTROL.events):
            self.assertEqual(event.__name__, described.name)
            self.assertEqual(event._names, tuple(each.name for each in described.arguments))


class TestMembers(BoxTest):
    def test_a_new_box(self) -> None:
        box = self.box
        self.assertEqual((box.Text, box.Mask, box.PromptChar, box.ReplaceChar), ("", "", "_", "\0"))
        self.assertEqual((box.ForeColor, box.BackColor), (0x80000008, 0x80000005))
        self.assertEqual((box.FontName, box.FontSize), ("DejaVu Sans", 9))
        self.assertIs(box.Enabled, True)
        self.assertNotEqual(box.hWnd, 0)
        self.assertEqual(repr(box), "<vornix.TextBox Text=''>")
        self.assertEqual(box.host.size, (120, 21))
        self.assertEqual(box.host.log, [])

    def test_every_property_can_be_written_with_what_it_is(self) -> None:
        for member in CONTROL.members:
            if member.is_method or not (member.is_readable and member.is_writable):
                continue
            with self.subTest(member=member.name):
                value = getattr(self.box, member.name)
                setattr(self.box, member.name, value)
                self.assertEqual(getattr(self.box, member.name), value)

    def test_texts_and_objects(self) -> None:
        self.box.Text = "a\0\U0001f600"
        self.assertEqual(self.box.Text, "a\0\U0001f600")
        self.box.Font = vornix.Font(Name="DejaVu Serif", Size=12)
        self.assertEqual(self.box.Font, vornix.Font(Name="DejaVu Serif", Size=12))
        icon = vornix.Picture.from_rgba(1, 1, bytes(4))
        self.box.MouseIcon = icon
        self.assertEqual(self.box.MouseIcon, icon)
        self.box.MouseIcon = None
        self.assertIsNone(self.box.MouseIcon)
        self.box.InitializeTextBox(1, MultiLine=True)
        self.assertEqual((self.box.Alignment, self.box.MultiLine), (1, True))

    def test_wrong_values(self) -> None:
        self.fails(13, setattr, self.box, "MaxLength", "many")
        self.fails(6, setattr, self.box, "MaxWidth", 40000)
        self.fails(5, setattr, self.box, "SelStart", -1)
        self.fails(445, self.box.OLEDrag)
        self.fails(13, vornix.TextBox, "wide")
        self.fails(5, vornix.TextBox, 0)
        self.fails(5, vornix.TextBox, 120, 40000)
        with self.assertRaises(AttributeError):
            self.box.TextInput = "3"  # type: ignore[misc]


class TestUser(BoxTest):
    def test_typing(self) -> None:
        self.box.host.type("aB")
        self.assertEqual(self.box.Text, "aB")
        self.assertEqual(
            self.box.host.log[4:],
            [
                ("KeyDown", {"KeyCode": 66, "Shift": 1}),
                ("KeyPress", {"KeyAscii": 66}),
                ("Change", {}),
                ("KeyUp", {"KeyCode": 66, "Shift": 1}),
            ],
        )
        self.box.host.clear_log()
        self.assertEqual(self.box.host.log, [])

    def test_single_notifications(self) -> None:
        host = self.box.host
        self.assertEqual(host.key_down(65), 65)
        self.assertEqual(host.key_press("a"), 97)
        self.assertEqual(host.key_up(65, 1), 65)
        self.assertEqual(self.said(), ["KeyDown", "KeyPress", "Change", "KeyUp"])
        self.box.SelStart = 0
        host.key_down(46)
        self.assertEqual(self.box.Text, "")

    def test_a_mask(self) -> None:
        self.box.Mask = "(00) >LL"
        self.box.SelStart = 1
        self.box.host.type("1x2")
        self.box.SelStart = 5
        self.box.host.type("ab")
        self.assertEqual((self.box.TextInput, self.box.Text), ("12AB", "12AB"))
        self.box.IncludeLiteral = True
        self.assertEqual(self.box.Text, "(12) AB")
        self.box.IncludeLiteral = False
        self.box.SelStart = 1
        self.box.host.press("Delete")
        self.assertEqual(self.box.TextInput, "2AB")

    def test_pasting_passes_the_mask(self) -> None:
        self.box.Mask = "00-00"
        self.box.Text = ""
        self.box.SelLength = 5
        self.box.host.paste("1234")
        self.assertEqual(self.box.TextInput, "1234")
        self.assertEqual(self.said(), ["Change"])

    def test_keys_for_the_clipboard(self) -> None:
        host = self.box.host
        host.type("abc")
        for key in "ac":
            host.press(key, 2)
        host.press("End")
        host.press("v", 2)
        self.assertEqual(self.box.Text, "abcabc")

    def test_leaving_at_the_edges(self) -> None:
        self.box.host.press("Left")
        self.box.host.press(39)
        self.assertEqual(self.said(), ["KeyDown", "KeyArrowMove", "KeyUp"] * 2)

    def test_a_handler_takes_keys(self) -> None:
        @self.box.on("keypress")
        def digits(e: Any) -> None:
            if not chr(e.KeyAscii).isdigit():
                e.KeyAscii = 0

        self.box.host.type("a1b2")
        self.assertEqual(self.box.Text, "12")
        self.assertEqual(self.box.host.key_press("c"), 0)
        self.box.off("KeyPress", digits)
        self.assertEqual(self.box.host.key_press("c"), ord("c"))

    def test_a_handler_that_raises_or_sets_what_there_is_not(self) -> None:
        @self.box.on("KeyDown")
        def fail(e: Any) -> None:
            raise LookupError("in the handler")

        with self.assertRaises(LookupError):
            self.box.host.key_down(65)
        self.box.off("KeyDown", fail)

        @self.box.on("KeyDown")
        def much(e: Any) -> None:
            e.KeyCode = 2**20

        self.fails(6, self.box.host.key_down, 65)

    def test_a_disabled_box_has_no_user(self) -> None:
        self.box.Enabled = False
        self.box.host.type("a")
        self.box.host.paste("a")
        self.assertEqual(self.box.host.key_down(46), 46)
        self.assertEqual((self.box.Text, self.said()), ("", []))

    def test_growing(self) -> None:
        self.box.NormalWidth, self.box.NormalHeight = 40, 10
        self.box.MaxWidth, self.box.MaxHeight = 200, 100
        self.box.AutoResize = True
        self.box.host.type("a line of text")
        self.assertIn("Resize", self.said())
        self.assertGreater(self.box.host.size[0], 60)

    def test_what_there_is_not(self) -> None:
        host = self.box.host
        self.fails(5, host.press, "NoSuchKey")
        self.fails(5, host.press, 0)
        self.fails(5, host.press, "a", 8)
        self.fails(5, host.key_press, "ab")
        self.fails(13, host.type, 5)
        self.fails(13, host.paste, None)
        self.fails(5, host.resize, -1, 5)
        self.fails(438, self.box.on, "NoEvent", print)


class TestHost(BoxTest):
    def test_saved_and_read_again(self) -> None:
        self.box.Text, self.box.MaxLength, self.box.ForeColor = "kept", 9, 0x80000011
        self.box.Font = vornix.Font(Name="DejaVu Serif", Size=12)
        self.box.MouseIcon = vornix.Picture.from_rgba(1, 1, bytes(4))
        saved = self.box.host.save()
        self.assertEqual((saved["Text"], saved["ForeColor"]), ("kept", 0x80000011))
        with vornix.TextBox(bag=saved) as other:
            self.assertEqual((other.Text, other.MaxLength), ("kept", 9))
            self.assertEqual(other.ForeColor, 0x80000011)
            self.assertEqual(other.Font.Name, "DejaVu Serif")
            self.assertEqual(other.host.save(), saved)
        self.fails(13, lambda: vornix.TextBox(bag={"MaxLength": "many"}))

    def test_sizes(self) -> None:
        self.box.host.resize(300, 40)
        self.assertEqual(self.box.host.size, (300, 40))
        self.box.host.tick()


class TestEnd(BoxTest):
    def test_a_closed_box(self) -> None:
        host = self.box.host
        self.box.close()
        self.box.close()
        self.assertEqual(repr(self.box), "<vornix.TextBox closed>")
        uses: List[Callable[[], Any]] = [
            lambda: self.box.Text,
            self.box.Refresh,
            lambda: host.log,
            lambda: host.size,
            host.save,
            host.tick,
            lambda: host.type("a"),
            lambda: host.key_down(1),
            lambda: self.box.on("Change", print),
        ]
        for use in uses:
            self.fails(5, use)

    def test_closed_in_its_own_event(self) -> None:
        self.box.on("Change", lambda e: self.box.close())
        self.box.host.type("a")
        self.fails(5, lambda: self.box.Text)

    def test_it_belongs_to_its_thread(self) -> None:
        numbers: List[int] = []

        def use() -> None:
            try:
                self.box.Text = "3"
            except vornix.AutomationError as error:
                numbers.append(error.number)

        thread = threading.Thread(target=use)
        thread.start()
        thread.join()
        self.assertEqual(numbers, [5])


class TestHostile(BoxTest):
    """Any member with any values, inside handlers too: a value or an AutomationError."""

    def test_nothing_brings_it_down(self) -> None:
        picked = random.Random(20240229)
        values = [*VALUES, vornix.Font("DejaVu Sans", 12), "00-00", "<LL", "\\"]
        depth = failed = succeeded = 0

        def use() -> None:
            nonlocal failed, succeeded
            member = picked.choice(CONTROL.members)
            host = self.box.host
            try:
                if picked.random() < 0.3:
                    value = picked.choice(values)
                    picked.choice(
                        (host.type, host.paste, host.press, host.key_down, host.key_press)
                    )(value)
                elif member.is_method:
                    arguments = [picked.choice(values) for _ in member.arguments]
                    getattr(self.box, member.name)(*arguments)
                elif member.is_writable and picked.random() < 0.7:
                    setattr(self.box, member.name, picked.choice(values))
                else:
                    getattr(self.box, member.name)
                succeeded += 1
            except vornix.AutomationError:
                failed += 1

        def inside(e: Any) -> None:
            nonlocal depth
            depth += 1
            if depth < 3:
                use()
            depth -= 1

        for event in vornix.text_box_events.EVENTS:
            self.box.on(event.__name__, inside)
        for _ in range(5000):
            use()
            self.box.host.clear_log()
        self.assertGreater(succeeded, 500)
        self.assertGreater(failed, 500)


if __name__ == "__main__":
    unittest.main()
