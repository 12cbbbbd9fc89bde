"""What iface.py makes of the interface file, and what it refuses."""

import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "interface" / "generator"))

import iface  # noqa: E402

HEAD = 'class Vornix: A grid.\nfamily all "All": Everything.\n'


def read(text: str) -> iface.Interface:
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / "test.iface"
        path.write_text(text, encoding="utf-8")
        return iface.read(path)


def member(line: str) -> iface.Member:
    return read(HEAD + line).grid.members[0]


class Reading(unittest.TestCase):
    def test_property_with_arguments(self) -> None:
        found = member("property Text(Row: i16, Col: i16) -> text: The text.")
        self.assertEqual((found.kind, found.name, found.result), ("property", "Text", "text"))
        row, col = found.arguments
        self.assertEqual((row, col), (iface.Argument("Row", "i16"), iface.Argument("Col", "i16")))
        self.assertEqual(found.sentence, "The text.")
        self.assertTrue(found.is_readable and found.is_writable)
        self.assertEqual(found.line, 3)

    def test_optional_and_by_reference_arguments(self) -> None:
        found = member('method Do(Row: i16, ref Key: bool = False, Like: text = ""): Does.')
        _, key, like = found.arguments
        self.assertEqual(key, iface.Argument("Key", "bool", True, "False"))
        self.assertEqual(like, iface.Argument("Like", "text", False, '""'))
        self.assertIsNone(found.result)

    def test_marks(self) -> None:
        events = "\nevent 1 CellChange(): S.\nevent 2 Click(): S."
        found = member("property Do() -> i16 [errors 6 9; raises CellChange Click; reports]: Does." + events)
        self.assertEqual((found.errors, found.raises), ((6, 9), ("CellChange", "Click")))
        self.assertEqual(found.reports, "Do")
        self.assertEqual(member("property Do() -> i16 [reports do]: Does.").reports, "do")

    def test_marks_of_the_family(self) -> None:
        text = 'class Vornix: A.\nfamily f "F" [pending; errors 6]: S.\n'
        text += "property A() -> i16: S.\nmethod B() [built]: S.\n"
        members = read(text + "writeonly C() -> i16 [errors 9]: S.\n").grid.members
        self.assertEqual([each.pending_read for each in members], [True, False, False])
        self.assertEqual([each.pending_write for each in members], [True, False, True])
        self.assertEqual([each.errors for each in members], [(6,), (6,), (9,)])
        self.assertEqual([each.is_pending for each in members], [True, False, True])

    def test_pending_writing_alone(self) -> None:
        found = member("property A() -> i16 [pending write]: S.")
        self.assertEqual((found.pending_read, found.pending_write), (False, True))
        self.assertFalse(found.is_pending)

    def test_counts_every_pending_line_once(self) -> None:
        lines = "property A() -> i16 [pending]: S.\nproperty B() -> i16 [pending write]: S.\n"
        lines += "event 1 E() [pending]: S.\nmethod C(): S.\n"
        self.assertEqual(read(HEAD + lines).pending_count, 3)

    def test_events_by_number(self) -> None:
        events = read(HEAD + "event 2 B(): S.\nevent 1 A(ref x: i32): S.").grid.events
        self.assertEqual([(each.number, each.name) for each in events], [(1, "A"), (2, "B")])
        self.assertTrue(events[0].arguments[0].by_ref)

    def test_enums(self) -> None:
        enums = read("enum vxE: S.\nvxA = 0\nvxB = -1\n").enums
        self.assertEqual(enums, [iface.Enum("vxE", "S.", [("vxA", 0), ("vxB", -1)])])

    def test_examples(self) -> None:
        found = member("method A(): S.\n    >>> g.A()\n    1\n")
        self.assertEqual(found.example.lines, [">>> g.A()", "1"])

    def test_comments_and_empty_lines(self) -> None:
        self.assertEqual(read("# a comment\n\n" + HEAD).grid.members, [])


class Refusing(unittest.TestCase):
    def refused(self, text: str, what: str) -> None:
        with self.assertRaises(iface.IfaceError) as caught:
            read(text)
        self.assertEqual(str(caught.exception), what)

    def test_what_cannot_be_read(self) -> None:
        self.refused(HEAD + "propperty A(): S.", "test.iface:3: cannot be read: propperty A(): S.")
        self.refused(HEAD + "method A()", "test.iface:3: cannot be read: method A()")

    def test_a_property_without_a_type(self) -> None:
        self.refused(HEAD + "readonly A(): S.", "test.iface:3: a property needs a type")

    def test_an_argument_of_another_form(self) -> None:
        self.refused(HEAD + "method A(Row i16): S.", "test.iface:3: not an argument: Row i16")
        self.refused(HEAD + "method A(Row: i16 = x): S.", "test.iface:3: not a default: x")

    def test_an_argument_behind_an_optional_one(self) -> None:
        self.refused(
            HEAD + "method A(Row: i16 = 1, Col: i16): S.",
            "test.iface:3: Col must be given, so Row cannot be left out",
        )

    def test_an_argument_twice(self) -> None:
        what = "test.iface:3: an argument is there twice"
        self.refused(HEAD + "method A(Row: i16, row: i16): S.", what)

    def test_arguments_that_a_property_cannot_have(self) -> None:
        what = "test.iface:3: an argument of a property is by reference or optional: Row"
        self.refused(HEAD + "property A(ref Row: i16) -> i16: S.", what)
        self.refused(HEAD + "property A(Row: i16 = 1) -> i16: S.", what)

    def test_an_unknown_mark(self) -> None:
        self.refused(HEAD + "method A() [erors 6]: S.", "test.iface:3: unknown mark: erors 6")
        self.refused(HEAD + "method A() [pending x]: S.", "test.iface:3: unknown mark: pending x")

    def test_an_unknown_type(self) -> None:
        self.refused(HEAD + "\nmethod A(Row: i8): S.", "test.iface:4: A: no type i8")
        self.refused(HEAD + "method A() -> vxNone: S.", "test.iface:3: A: no type vxNone")
        self.refused(HEAD + "event 1 A(Row: i8): S.", "test.iface:3: A: no type i8")

    def test_what_is_there_twice(self) -> None:
        self.refused(HEAD + "method A(): S.\nmethod a(): S.", "test.iface:4: a is there twice")
        self.refused(HEAD + "event 1 A(): S.\nevent 1 B(): S.", "test.iface:4: 1 is there twice")
        self.refused(HEAD + "event 1 A(): S.\nevent 2 A(): S.", "test.iface:4: a is there twice")
        self.refused("enum e: S.\nvxA = 1\nvxA = 2", "test.iface: the enums have vxA twice")

    def test_lines_before_their_place(self) -> None:
        self.refused('family f "F": S.', "test.iface:1: a line before the first class")
        what = "test.iface:2: a line before the first family"
        self.refused("class Vornix: S.\nmethod A(): S.", what)
        self.refused("vxA = 1", "test.iface:1: a value without an enum")
        self.refused(HEAD + "    >>> 1", "test.iface:3: an example without a member")


class TheFileItself(unittest.TestCase):
    def test_has_all_members_and_events(self) -> None:
        interface = iface.read(ROOT / "interface" / "vornix.iface")
        self.assertEqual(len(interface.grid.members), 272)
        self.assertEqual([event.number for event in interface.grid.events], list(range(1, 37)))


if __name__ == "__main__":
    unittest.main()
