"""What a person sees in an interactive shell."""

import inspect
import io
import pydoc
import rlcompleter
import traceback
import unittest
from contextlib import redirect_stdout
from typing import List

import vornix
from support import GridTest


def help_on(thing: object) -> str:
    """What help() prints."""
    out = io.StringIO()
    with redirect_stdout(out):
        pydoc.Helper(output=out).help(thing)
    return out.getvalue()


class TestHelp(GridTest):
    def test_a_method(self) -> None:
        text = help_on(self.g.InsertRows)
        self.assertIn("InsertRows(Row: int, Rows: int = 1) -> None", text)
        self.assertIn("New rows in front of a row;", text)
        self.assertIn("Rows: integer, 16 bits; 1 where it is left out", text)
        self.assertIn("9 (subscript out of range)", text)

    def test_a_property_with_arguments(self) -> None:
        text = help_on(self.g.Text)
        self.assertIn("Text[Row, Col]", text)
        self.assertIn("The text of a cell.", text)
        self.assertIn("Row: integer, 16 bits", text)
        self.assertIn("__setitem__(self, index: Tuple[int, int], value: str) -> None", text)

    def test_a_property_of_the_class(self) -> None:
        text = help_on(vornix.Grid)
        for name in ("Rows", "Text", "GetCellAtPos", "texts", "on"):
            self.assertIn(f"\n |  {name}", text)
        self.assertIn("Rows that are not fixed", text)

    def test_constants_are_named_where_they_fit(self) -> None:
        self.assertIn("vxCellFixed, vxCheckBox", help_on(vornix.Grid.DefaultMode))

    def test_events_and_the_rest(self) -> None:
        self.assertIn("bCancel keeps it", help_on(vornix.events.CellChange))
        self.assertIn("@g.on", help_on(self.g.on))
        self.assertIn("moves to another", help_on(self.g.host.drag))
        self.assertIn("IsNullTest: bool = True", help_on(self.g.LoadFromArray))

    def test_signatures(self) -> None:
        signature = inspect.signature(vornix.Grid)
        self.assertEqual(
            list(signature.parameters),
            ["width", "height", "design", "bag", "settings", "show", "scale"],
        )
        self.assertEqual(
            str(inspect.signature(self.g.GetCellAtPos)),
            "(x: int, y: int, Row: int = 0, Col: int = 0) -> Tuple[bool, int, int]",
        )

    def test_every_public_name_says_what_it_is(self) -> None:
        for owner in (vornix.Grid, vornix.host.Host, vornix.host.Child, vornix.Font, vornix.Picture):
            self.assertTrue(inspect.getdoc(owner))
            for name in dir(owner):
                if not name.startswith("_"):
                    doc = getattr(owner, name).__doc__
                    self.assertTrue(doc and doc.strip(), f"{owner.__name__}.{name}")


class TestCompletion(GridTest):
    def complete(self, text: str) -> List[str]:
        completer = rlcompleter.Completer({"g": self.g, "vornix": vornix})
        found: List[str] = []
        while True:
            match = completer.complete(text, len(found))
            if match is None:
                return [each.rstrip("()") for each in found]
            found.append(match)

    def test_members(self) -> None:
        self.assertEqual(self.complete("g.InsertR"), ["g.InsertRows"])
        self.assertIn("g.Text", self.complete("g.Te"))
        self.assertEqual(self.complete("g.FixedRo"), ["g.FixedRows"])
        self.assertIn("g.host", self.complete("g.ho"))

    def test_constants(self) -> None:
        self.assertEqual(self.complete("vornix.vxCheckB"), ["vornix.vxCheckBox"])

    def test_nothing_private_is_offered(self) -> None:
        self.assertEqual([name for name in self.complete("g.") if name.startswith("g._")], [])


class TestReprs(GridTest):
    def test_they_tell_what_things_are(self) -> None:
        self.assertEqual(repr(self.g), "<vornix.Grid Rows=4 Cols=3>")
        self.assertEqual(repr(self.g.Text), "<Text[Row, Col] of <vornix.Grid Rows=4 Cols=3>>")
        self.assertEqual(repr(vornix.Font("A", 9)), "vornix.Font(Name='A', Size=9)")
        self.assertIn("Text[Row, Col]", repr(vornix.Grid.Text))

    def test_errors_show_the_member_and_the_class(self) -> None:
        try:
            self.g.Text[100, 0]
        except vornix.AutomationError as error:
            lines = traceback.format_exception(type(error), error, error.__traceback__)
        self.assertTrue(lines[-1].startswith("vornix.AutomationError: "))
        self.assertIn("(error 9)", lines[-1])


if __name__ == "__main__":
    unittest.main()
