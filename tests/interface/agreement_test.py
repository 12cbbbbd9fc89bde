"""The comparison of headers and interface notices every kind of difference."""

import sys
import tempfile
import unittest
from pathlib import Path
from typing import List

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(Path(__file__).resolve().parent))

import agreement  # noqa: E402
import iface  # noqa: E402

INTERFACE = iface.read(ROOT / "interface" / "vornix.iface")
INCLUDE = ROOT / "include" / "vornix"
VORNIX = (INCLUDE / "vornix.h").read_text(encoding="utf-8")
EVENTS = (INCLUDE / "events.h").read_text(encoding="utf-8")
TYPES = (INCLUDE / "types.h").read_text(encoding="utf-8")
TEXT_BOX = (INCLUDE / "text_box.h").read_text(encoding="utf-8")
SCROLL_BAR = (INCLUDE / "scroll_bar.h").read_text(encoding="utf-8")


def replaced(text: str, old: str, new: str) -> str:
    """The text with one piece replaced that stands in it once."""
    if text.count(old) != 1:
        raise AssertionError(f"{old!r} stands there {text.count(old)} times")
    return text.replace(old, new)


class Members(unittest.TestCase):
    def differences(self, old: str, new: str) -> List[str]:
        return list(agreement.member_differences(INTERFACE, replaced(VORNIX, old, new)))

    def test_agree_as_they_are(self) -> None:
        self.assertEqual(list(agreement.member_differences(INTERFACE, VORNIX)), [])

    def test_one_that_is_missing(self) -> None:
        self.assertEqual(
            self.differences("    void SetRows(i16 Value);\n", ""),
            ["not in the header: void SetRows(i16 Value)"],
        )

    def test_one_in_a_comment_is_missing(self) -> None:
        self.assertEqual(
            self.differences("    i16 Rows() const;", "    // i16 Rows() const;"),
            ["not in the header: i16 Rows() const"],
        )

    def test_one_that_is_private_is_missing(self) -> None:
        self.assertEqual(
            self.differences("    i16 Rows() const;", "private:\n    i16 Rows() const;\npublic:"),
            ["not in the header: i16 Rows() const"],
        )

    def test_one_that_the_interface_does_not_have(self) -> None:
        self.assertEqual(
            self.differences("    i16 Rows() const;", "    i16 Rows() const;\n i16 Lines() const;"),
            ["not in the interface: i16 Lines() const"],
        )

    def test_one_that_is_pending(self) -> None:
        interface = interface_of(
            'class Vornix: S.\nfamily f "F" [pending]: S.\nproperty Rows() -> i16: S.\n'
        )
        functions = ["i16 Rows() const", "void SetRows(i16 Value)", *agreement.GRID.overloads]
        header = f"class Vornix {{ public: {'; '.join(functions)}; }};"
        self.assertEqual(
            list(agreement.member_differences(interface, header)),
            [
                "pending in the interface: i16 Rows() const",
                "pending in the interface: void SetRows(i16 Value)",
            ],
        )

    def test_another_type(self) -> None:
        self.assertEqual(
            self.differences("void SetRows(i16 Value)", "void SetRows(i32 Value)"),
            ["the interface has void SetRows(i16 Value), the header void SetRows(i32 Value)"],
        )

    def test_another_name_of_an_argument(self) -> None:
        old = "i16 ParentRow(i16 Row, i16 Col)"
        self.assertEqual(
            self.differences(old, "i16 ParentRow(i16 Row, i16 Column)"),
            [
                "the interface has i16 ParentRow(i16 Row, i16 Col) const, "
                "the header i16 ParentRow(i16 Row, i16 Column) const"
            ],
        )

    def test_another_order_of_arguments(self) -> None:
        old = "i16 ParentRow(i16 Row, i16 Col)"
        self.assertEqual(len(self.differences(old, "i16 ParentRow(i16 Col, i16 Row)")), 1)

    def test_another_result(self) -> None:
        self.assertEqual(len(self.differences("i16 Rows() const", "i32 Rows() const")), 1)

    def test_another_by_reference_mark(self) -> None:
        old = "bool GetCellAtPos(i32 x, i32 y, i16& Row, i16& Col) const"
        self.assertEqual(len(self.differences(old, old.replace("i16& Col", "i16 Col"))), 1)

    def test_another_default(self) -> None:
        old = "void HideRow(i16 Row, i16 Rows = 1)"
        self.assertEqual(len(self.differences(old, "void HideRow(i16 Row, i16 Rows = 2)")), 1)
        self.assertEqual(len(self.differences(old, "void HideRow(i16 Row, i16 Rows)")), 1)
        self.assertEqual(len(self.differences(old, "void HideRow(i16 Row = 0, i16 Rows = 1)")), 1)

    def test_reading_that_is_not_const(self) -> None:
        self.assertEqual(len(self.differences("i16 Rows() const", "i16 Rows()")), 1)

    def test_methods_may_be_const(self) -> None:
        self.assertEqual(self.differences("void ReOrderCols();", "void ReOrderCols() const;"), [])

    def test_an_overload(self) -> None:
        old = "    void ReOrderCols();"
        self.assertEqual(len(self.differences(old, old + " void ReOrderCols(i16 Col);")), 2)

    def test_a_known_overload_that_is_missing(self) -> None:
        self.assertEqual(
            self.differences("    void SpanRows(i16 Col, bool&& bUseKey = false);\n", ""),
            ["not in the header: void SpanRows(i16 Col, bool&& bUseKey = false)"],
        )

    def test_what_is_no_function_is_not_passed_over(self) -> None:
        with self.assertRaises(ValueError):
            self.differences("    void ReOrderCols();", "    void ReOrderCols();\n    int rows;")


class EventsOfTheControl(unittest.TestCase):
    def differences(self, old: str, new: str) -> List[str]:
        return list(agreement.event_differences(INTERFACE, replaced(EVENTS, old, new)))

    def test_agree_as_they_are(self) -> None:
        self.assertEqual(list(agreement.event_differences(INTERFACE, EVENTS)), [])

    def test_another_order(self) -> None:
        first = "    virtual void Click() { }\n"
        second = "    virtual void DblClick() { }\n"
        self.assertEqual(
            self.differences(first + second, second + first),
            [
                "event 12: the interface has void Click(), the header void DblClick()",
                "event 13: the interface has void DblClick(), the header void Click()",
            ],
        )

    def test_another_name_or_type_of_an_argument(self) -> None:
        old = "bool& /*DefaultCursors*/"
        for new in ("bool& /*Cursors*/", "bool /*DefaultCursors*/", "i16& /*DefaultCursors*/"):
            self.assertEqual(len(self.differences(old, new)), 1, new)

    def test_one_that_is_missing_or_too_many(self) -> None:
        last = "    virtual void ValidateRow() { }\n"
        self.assertEqual(self.differences(last, "")[-1][-7:], "nothing")
        more = last + "    virtual void More() { }\n"
        self.assertIn("event 37", self.differences(last, more)[-1])


class ControlsBesideTheGrid(unittest.TestCase):
    def differences(self, described: agreement.Described, header: str) -> List[str]:
        return [
            *agreement.member_differences(INTERFACE, header, described),
            *agreement.event_differences(INTERFACE, header, described),
        ]

    def test_agree_as_they_are(self) -> None:
        self.assertEqual(self.differences(agreement.TEXT_BOX, TEXT_BOX), [])
        self.assertEqual(self.differences(agreement.SCROLL_BAR, SCROLL_BAR), [])

    def test_a_member_of_the_text_box_that_is_another(self) -> None:
        header = replaced(TEXT_BOX, "void SetMaxWidth(i16 Value)", "void SetMaxWidth(i32 Value)")
        self.assertEqual(
            self.differences(agreement.TEXT_BOX, header),
            ["the interface has void SetMaxWidth(i16 Value), the header void SetMaxWidth(i32 Value)"],
        )

    def test_one_that_is_pending(self) -> None:
        header = replaced(TEXT_BOX, "    void Refresh();", "    void Refresh();\n    void OLEDrag();")
        self.assertEqual(
            self.differences(agreement.TEXT_BOX, header),
            ["pending in the interface: void OLEDrag()"],
        )

    def test_an_event_that_is_missing(self) -> None:
        header = replaced(TEXT_BOX, "    virtual void Resize() { }\n", "")
        self.assertIn("event 16", self.differences(agreement.TEXT_BOX, header)[0])


class EnumsOfTypes(unittest.TestCase):
    def differences(self, old: str, new: str) -> List[str]:
        return list(agreement.enum_differences(INTERFACE, replaced(TYPES, old, new)))

    def test_agree_as_they_are(self) -> None:
        self.assertEqual(list(agreement.enum_differences(INTERFACE, TYPES)), [])

    def test_another_value(self) -> None:
        self.assertEqual(len(self.differences("vxCheckBox = 1", "vxCheckBox = 2")), 1)

    def test_a_value_that_is_missing_or_too_many(self) -> None:
        self.assertEqual(len(self.differences("    vxCheckBox = 1,\n", "")), 1)
        last = "vxPressButton = 7"
        self.assertEqual(len(self.differences(last, last + ", vxMore = 8")), 1)

    def test_an_enum_that_is_missing_or_too_many(self) -> None:
        text = "enum vxOrderEnum : i32 { vxNoOrder = 0, vxAsc = 1, vxDesc = 2 };"
        self.assertEqual(len(self.differences(text, "")), 1)
        more = text + "\nenum vxMore : i32 { vxOne = 1 };"
        self.assertEqual(len(self.differences(text, more)), 1)


def interface_of(text: str) -> iface.Interface:
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / "test.iface"
        path.write_text(text, encoding="utf-8")
        return iface.read(path)


if __name__ == "__main__":
    unittest.main()
