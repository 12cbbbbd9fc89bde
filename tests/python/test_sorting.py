"""Sorting and searching."""

import unittest
from typing import Any, List

import vornix
from support import GridTest


class TestSort(GridTest):
    def fill(self, col: int, texts: List[str]) -> None:
        self.g.Rows = len(texts)
        for row, text in enumerate(texts):
            self.g.Text[row, col] = text

    def column(self, col: int) -> List[str]:
        return [self.g.Text[row, col] for row in range(self.g.Rows)]

    def test_without_keys_there_is_a_message(self) -> None:
        self.g.Sort()
        boxes = self.g.host.message_boxes
        self.assertEqual(len(boxes), 1)
        self.assertEqual(boxes[0]["title"], "Vornix - Sort Property")
        self.assertEqual(
            boxes[0]["text"],
            "You have not set the SortOrder property (or incorrectly set). \n"
            "For example : SortOrder(3)=1 to sort by column 3.",
        )
        self.assertEqual(boxes[0]["icon"], "exclamation")

    def test_numbers(self) -> None:
        self.fill(0, ["10", "9", "-1", "1,000", "2.5"])
        self.g.SortType[0] = vornix.vxNumeric
        self.g.SortOrder[0] = 1
        self.g.Sort()
        self.assertEqual(self.column(0), ["-1", "2.5", "9", "10", "1,000"])
        self.g.SortOrder[0] = 1
        self.g.Sort()
        self.assertEqual(self.column(0), ["1,000", "10", "9", "2.5", "-1"])

    def test_dates_behind_what_is_none(self) -> None:
        self.fill(1, ["1/31/2024", "", "12/24/1999", "2024-01-30"])
        self.g.SortType[1] = vornix.vxDate
        self.g.SortOrder[1] = 1
        self.g.Sort()
        self.assertEqual(self.column(1), ["", "12/24/1999", "2024-01-30", "1/31/2024"])

    def test_keys_and_several_columns(self) -> None:
        self.fill(0, ["b", "a", "b", "a"])
        for row, key in enumerate(["1", "2", "3", "4"]):
            self.g.Key[row, 2] = key
        self.g.SortUseKey[2] = True
        self.g.SortOrder[0] = 1
        self.g.SortOrder[2] = 2
        self.g.SortCriteria[2] = vornix.vxDesc
        self.g.Sort()
        self.assertEqual(self.column(0), ["a", "a", "b", "b"])
        self.assertEqual([self.g.Key[row, 2] for row in range(4)], ["4", "2", "3", "1"])

    def test_a_column_that_is_gone_is_error_9(self) -> None:
        self.g.SortOrder[2] = 1
        self.g.Cols = 1
        self.fails(9, self.g.Sort)

    def test_too_many_rows_are_error_6(self) -> None:
        self.g.Redraw = False
        self.g.Rows = 29524
        self.g.Text[0, 0] = "z"
        self.g.SortOrder[0] = 1
        self.fails(6, self.g.Sort)
        self.assertEqual(self.g.Text[0, 0], "z")

    def test_the_editor_closes(self) -> None:
        self.fill(0, ["b", "c", "a"])
        self.g.ColMode[0] = vornix.vxTextBox
        self.g.SortOrder[0] = 1
        closed: List[int] = []
        self.g.on("AfterEdit", lambda e: closed.append(e.Row))
        self.g.CurrentPos(1, 0)
        self.g.EnterEdit()
        self.g.Sort()
        self.assertEqual(closed, [1])
        self.assertEqual(self.g.CurrentRow, 1)
        self.assertEqual(self.column(0), ["a", "b", "c"])


class TestSearch(GridTest):
    def setUp(self) -> None:
        super().setUp()
        self.hits: List[int] = []
        self.g.on("SearchResult", lambda e: self.hits.append(e.Pos))
        for row, text in enumerate(["ab", "abc", "CAB", "x"]):
            self.g.Text[row, 0] = self.g.Key[row, 0] = text

    def test_kinds(self) -> None:
        for wanted, expected in (
            ("AB", [0]),
            ("ab*", [0, 1]),
            ("*ab", [0, 2]),
            ("*ab*", [0, 1, 2]),
            ("a*b", []),
            ("**", [0, 1, 2, 3]),
        ):
            self.hits.clear()
            count = self.g.SearchRow(vornix.vxText, 0, wanted, 1, "*")
            self.assertEqual((wanted, count, self.hits), (wanted, len(expected), expected))

    def test_the_end_of_a_key_has_its_case(self) -> None:
        self.assertEqual(self.g.SearchRow(vornix.vxKey, 0, "*ab", 1, Wildcard="*"), 1)
        self.assertEqual(self.g.SearchCol(vornix.vxKey, 2, "*ab", 1, Wildcard="*"), 1)

    def test_a_handler_steers(self) -> None:
        def skip(e: Any) -> None:
            self.assertEqual(e.IdSearch, 7)
            if e.Pos == 0:
                e.Pos = 1

        self.g.on("SearchResult", skip)
        self.assertEqual(self.g.SearchRow(vornix.vxText, 0, "*ab*", 7, "*"), 2)
        self.assertEqual(self.hits, [0, 2])

    def test_errors(self) -> None:
        self.fails(5, self.g.SearchRow, vornix.vxText, 0, "*", 1, "*")
        self.fails(9, self.g.SearchRow, vornix.vxText, 5, "x", 1)
        self.fails(6, self.g.SearchCol, vornix.vxText, 32767, "x", 1)

        def far(e: Any) -> None:
            e.Pos = 32767

        self.g.on("SearchResult", far)
        self.fails(6, self.g.SearchRow, vornix.vxText, 0, "x", 1)


if __name__ == "__main__":
    unittest.main()
