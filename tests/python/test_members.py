"""Properties, properties with arguments, and methods."""

import os
import sys
import unittest
from pathlib import Path

import vornix
from support import GridTest

sys.path.insert(0, str(Path(os.environ["VORNIX_INTERFACE"]).parent / "generator"))

import iface  # noqa: E402

CONTROL = iface.read(Path(os.environ["VORNIX_INTERFACE"]))["Vornix"]

# As the page of the interface tells them apart.
PROPERTIES_WITHOUT_ARGUMENTS = (
    "SelectCountCell SelectCountCol SelectCountRow ComboListCount ComboNewIndex VirtualOffset"
    " MousePointer hDC hWnd"
).split()
METHODS_WITHOUT_ARGUMENTS = (
    "GetMouseButton GetMouseShift GetScaleWidth GetScaleHeight IsEditMode IsSizingMode"
    " IsVisibleScrollH IsVisibleScrollV"
).split()


class TestProperties(GridTest):
    def test_a_property_reads_back_what_was_written(self) -> None:
        self.g.Rows = 7
        self.assertEqual(self.g.Rows, 7)

    def test_a_boolean_is_a_bool(self) -> None:
        self.g.Redraw = False
        self.assertIs(self.g.Redraw, False)

    def test_a_boolean_takes_the_numbers_of_the_interface(self) -> None:
        for value, expected in ((-1, True), (0, False), (1, True)):
            self.g.AltColorEnabled = value
            self.assertIs(self.g.AltColorEnabled, expected)

    def test_a_system_colour_reads_as_a_positive_number(self) -> None:
        self.g.BackColor = 0x80000005
        self.assertEqual(self.g.BackColor, 0x80000005)
        self.g.BackColor = 0
        self.g.BackColor = 0x80000005 - (1 << 32)
        self.assertEqual(self.g.BackColor, 0x80000005)

    def test_a_value_converts_as_late_binding_converts_it(self) -> None:
        self.g.Rows = "5"
        self.assertEqual(self.g.Rows, 5)
        with self.raises(13):
            self.g.Rows = "x"
        with self.raises(6):
            self.g.Rows = 40000

    def test_an_unknown_attribute_cannot_be_set(self) -> None:
        with self.assertRaises(AttributeError):
            self.g.Colls = 3  # type: ignore[attr-defined]
        self.assertFalse(hasattr(self.g, "Colls"))

    def test_a_read_only_property_cannot_be_set(self) -> None:
        with self.assertRaises(AttributeError):
            self.g.hDC = 3  # type: ignore[misc]

    def test_handles_are_numbers(self) -> None:
        self.assertGreater(self.g.hWnd, 0)
        self.assertGreater(self.g.hDC, 0)

    def test_no_picture_is_none(self) -> None:
        self.assertIsNone(self.g.Picture)


class TestIndexed(GridTest):
    def test_two_arguments(self) -> None:
        self.g.Text[0, 1] = "a"
        self.assertEqual(self.g.Text[0, 1], "a")

    def test_one_argument(self) -> None:
        self.g.ColBackColor[2] = 0x00C0FFFF
        self.assertEqual(self.g.CellBackColor[1, 2], 0x00C0FFFF)

    def test_four_arguments(self) -> None:
        self.g.CellsForeColor[0, 0, 1, 1] = 0x0000FF
        self.assertEqual(self.g.CellForeColor[1, 1], 0x0000FF)
        self.assertNotEqual(self.g.CellForeColor[1, 2], 0x0000FF)

    def test_what_is_only_read_works_in_both_spellings(self) -> None:
        self.assertEqual(self.g.ParentRow[1, 2], 1)
        self.assertEqual(self.g.ParentRow(1, 2), 1)
        self.assertIs(self.g.IsVisibleCol(0), True)
        self.g.ColName[1] = "Name"
        self.assertEqual(self.g.ColOrder("Name"), 1)
        self.assertEqual(self.g.ColOrder[0], 0)

    def test_arguments_by_name(self) -> None:
        self.g.Text[2, 1] = "named"
        self.assertEqual(self.g.Text(Col=1, Row=2), "named")

    def test_a_wrong_number_of_arguments_is_error_450(self) -> None:
        self.fails(450, lambda: self.g.Text[0])  # type: ignore[index]
        self.fails(450, lambda: self.g.ColWidth[0, 0])  # type: ignore[index]
        self.fails(450, lambda: self.g.Text[()])  # type: ignore[index]

    def test_a_value_without_arguments_is_error_450(self) -> None:
        with self.raises(450):
            self.g.Text = "a"  # type: ignore[misc,assignment]

    def test_indices_outside_are_error_9_and_6(self) -> None:
        self.fails(9, lambda: self.g.Text[100, 0])
        self.fails(6, lambda: self.g.Text[40000, 0])

    def test_what_is_only_written_cannot_be_read(self) -> None:
        self.fails(438, lambda: self.g.ColBackColor[0])  # type: ignore[index]

    def test_an_index_that_is_none_is_refused(self) -> None:
        self.fails(94, lambda: self.g.Text[None, 0])  # type: ignore[index]
        self.fails(13, lambda: self.g.Text[0:2, 0])  # type: ignore[index]

    def test_it_is_not_a_sequence(self) -> None:
        with self.assertRaises(TypeError):
            iter(self.g.ColName)  # type: ignore[call-overload]
        with self.assertRaises(TypeError):
            "a" in self.g.ColName  # type: ignore[operator]


class TestMethods(GridTest):
    def test_by_reference_arguments_come_back_behind_the_result(self) -> None:
        self.assertEqual(self.g.GetCellAtPos(5, 5), (True, -1, -1))
        found, row, col = self.g.GetCellAtPos(35, 26)
        self.assertEqual((found, row, col), (True, 0, 0))

    def test_by_reference_arguments_alone_are_a_tuple(self) -> None:
        self.assertEqual(self.g.getWidthHeightCell(1, 1, 7, 8), (7, 8))
        self.assertEqual(self.g.getWidthHeightCell(1, 1), (0, 0))
        self.assertEqual(self.g.GetSizeCell(0, 0), (120, 21))

    def test_a_single_value_comes_back_alone(self) -> None:
        self.assertIs(self.g.SpanRows(0), False)
        self.assertIs(self.g.SpanRows(0, True), True)
        self.assertGreater(self.g.GetScaleWidth(), 100.0)
        self.assertEqual(self.g.ColorBrightness(0, 0), 0)

    def test_nothing_comes_back_as_none(self) -> None:
        self.assertIsNone(self.g.HideRow(0))  # type: ignore[func-returns-value]

    def test_optional_arguments_have_defaults_and_names(self) -> None:
        self.g.HideRow(0, Rows=2)
        self.assertEqual([self.g.RowHide[row] for row in range(4)], [True, True, False, False])
        self.g.ShowRow(Row=0)
        self.assertEqual([self.g.RowHide[row] for row in range(4)], [False, True, False, False])

    def test_wrong_arguments_are_a_type_error_of_python(self) -> None:
        with self.assertRaises(TypeError):
            self.g.HideRow()  # type: ignore[call-arg]
        with self.assertRaises(TypeError):
            self.g.HideRow(0, Lines=1)  # type: ignore[call-arg]

    def test_a_call_that_fails_changes_nothing(self) -> None:
        before = self.g.Rows
        self.fails(9, self.g.HideRow, 100)
        self.assertEqual(self.g.Rows, before)


class TestInvoke(GridTest):
    def test_names_in_any_case(self) -> None:
        self.g.invoke("ROWS", 9, kind="let")
        self.assertEqual(self.g.invoke("rows", kind="get"), 9)

    def test_arguments_by_name(self) -> None:
        self.g.invoke("hiderow", 1, rows=2)
        self.assertTrue(self.g.RowHide[2])

    def test_a_property_is_written_by_names(self) -> None:
        self.assertIsNone(self.g.invoke("Text", Col=1, Row=2, Value="by names", kind="let"))
        self.assertEqual(self.g.Text[2, 1], "by names")
        self.g.invoke("text", 2, col=1, VALUE="one name", kind="let")
        self.assertEqual(self.g.Text[2, 1], "one name")
        self.g.invoke("Text", "value last", Row=2, Col=1, kind="let")
        self.assertEqual(self.g.Text[2, 1], "value last")
        self.g.invoke("Text", 2, "value last", Col=1, kind="let")
        self.assertEqual(self.g.Text[2, 1], "value last")
        self.g.invoke("Rows", Value=6, kind="let")
        self.assertEqual(self.g.Rows, 6)
        self.assertEqual(self.g.invoke("Text", Row=2, Col=1, kind="get"), "value last")
        self.fails(450, self.g.invoke, "Text", Row=2, Value="a", kind="let")
        self.fails(448, self.g.invoke, "Text", Row=2, Column=1, Value="a", kind="let")
        self.fails(450, self.g.invoke, "Text", Row=2, Col=1, Value="a", kind="get")

    def test_by_reference_arguments_come_back(self) -> None:
        self.assertEqual(self.g.invoke("GetCellAtPos", 5, 5), (True, -1, -1))
        self.assertEqual(self.g.invoke("getwidthheightcell", 1, 1, iHeight=8), (0, 8))

    def test_errors(self) -> None:
        self.fails(438, self.g.invoke, "NoSuchMember")
        self.fails(438, self.g.invoke, "Rows\0")
        self.fails(448, self.g.invoke, "HideRow", 1, NoSuchArgument=2)
        self.fails(450, self.g.invoke, "HideRow", 1, Row=2)
        self.fails(450, self.g.invoke, "HideRow")
        with self.assertRaises(ValueError):
            self.g.invoke("Rows", kind="put")


class TestEveryMember(GridTest):
    def test_every_member_is_there_by_its_name(self) -> None:
        names = [member.name for member in CONTROL.members]
        self.assertEqual(len(names), 272)
        self.assertEqual([name for name in names if name not in dir(vornix.Grid)], [])

    def test_members_without_arguments_are_what_the_interface_calls_them(self) -> None:
        for name in PROPERTIES_WITHOUT_ARGUMENTS:
            self.assertIsInstance(getattr(vornix.Grid, name), property, name)
        for name in METHODS_WITHOUT_ARGUMENTS:
            self.assertTrue(callable(getattr(vornix.Grid, name)), name)

    def test_every_member_tells_what_it_is(self) -> None:
        for member in CONTROL.members:
            doc = getattr(vornix.Grid, member.name).__doc__
            words = " ".join(doc.split())
            self.assertIn(member.sentence, words, member.name)
            for argument in member.arguments:
                self.assertIn(f"{argument.name}:", words, member.name)

    def test_every_pending_member_is_error_445(self) -> None:
        called = 0
        for member in CONTROL.members:
            if not (member.is_method or member.is_readable) or not member.pending_read:
                continue
            arguments = [
                {"text": "", "bool": False, "f32": 0.0}.get(argument.type, 0)
                for argument in member.arguments
            ]
            with self.subTest(member.name):
                self.fails(445, self.read, member, arguments)
                called += 1
        if not called:
            self.skipTest("every member is built")

    def read(self, member: iface.Member, arguments: list) -> None:  # type: ignore[type-arg]
        if member.is_method:
            getattr(self.g, member.name)(*arguments)
        elif arguments:
            getattr(self.g, member.name)[tuple(arguments)]
        else:
            getattr(self.g, member.name)

    def test_every_constant_has_its_value(self) -> None:
        interface = iface.read(Path(os.environ["VORNIX_INTERFACE"]))
        for enum in interface.enums:
            for name, value in enum.values:
                self.assertIs(type(getattr(vornix, name)), int)
                self.assertEqual(getattr(vornix, name), value)
                self.assertIn(name, vornix.__all__)

    def test_every_event_has_its_class(self) -> None:
        for event in CONTROL.events:
            kind = vornix.events.EVENTS[event.number - 1]
            self.assertIs(kind, getattr(vornix.events, event.name))
            self.assertEqual(kind._names, tuple(argument.name for argument in event.arguments))


if __name__ == "__main__":
    unittest.main()
