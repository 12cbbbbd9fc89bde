"""Tables in and texts out, many at once."""

import random
import unittest
from array import array
from collections import deque
from datetime import date, datetime
from decimal import Decimal
from typing import Any, Iterator, List

import vornix
from support import GridTest


class TestLoadFromArray(GridTest):
    def load(self, columns: Any, **named: Any) -> List[List[str]]:
        """The columns' texts, as they are behind the rows that were there."""
        before = self.g.Rows
        self.g.LoadFromArray(columns, **named)
        return self.g.columns(before, 0, self.g.Rows - 1, self.g.Cols - 1)

    def test_columns_of_records(self) -> None:
        loaded = self.load([["a", "b", "c"], ["d", "e", "f"]])
        self.assertEqual(loaded, [["a", "b", "c"], ["d", "e", "f"]])
        self.assertEqual((self.g.Rows, self.g.Cols), (7, 2))

    def test_columns_of_one_kind_each(self) -> None:
        loaded = self.load(
            [
                ["text", "", "\U0001f600"],
                [1, -2, 2**31 - 1],
                [1, 2, 2**62],
                [True, False, True],
                [0.5, 1e15, -0.1],
                [datetime(2024, 2, 29, 13, 5), datetime(1970, 1, 1), datetime(1899, 12, 29, 6)],
                [date(2024, 2, 29), date(1970, 1, 1), datetime(1899, 12, 30, 6)],
                [None, None, None],
                [None, "a", "\ud800"],
            ]
        )
        self.assertEqual(
            loaded,
            [
                ["text", "", "\U0001f600"],
                ["1", "-2", "2147483647"],
                ["1", "2", str(2**62)],
                ["True", "False", "True"],
                ["0.5", "1E+15", "-0.1"],
                ["2/29/2024 1:05:00 PM", "1/1/1970", "12/29/1899 6:00:00 AM"],
                ["2/29/2024", "1/1/1970", "6:00:00 AM"],
                ["", "", ""],
                ["", "a", "\ud800"],
            ],
        )

    def test_columns_of_mixed_kinds(self) -> None:
        loaded = self.load([["a", 1, 2.5, None, True, Decimal("1.10"), date(2024, 1, 2)]])
        self.assertEqual(loaded, [["a", "1", "2.5", "", "True", "1.1", "1/2/2024"]])

    def test_a_mixed_column_says_what_each_value_says_alone(self) -> None:
        chosen = random.Random(7)
        values: List[Any] = ["x", "", 3, 2**40, 0.25, True, None, datetime(2001, 2, 3), Decimal(7)]
        for _ in range(50):
            kinds = chosen.sample(values, chosen.randint(1, 3))
            column = [chosen.choice(kinds) for _ in range(20)]
            self.g.Rows = 0
            together = self.load([column])[0]
            alone = []
            for value in column:
                self.g.Text[0, 0] = ""
                if value is not None:
                    self.g.Text[0, 0] = value
                alone.append(self.g.Text[0, 0])
            self.assertEqual(together, alone)

    def test_tuples_and_arrays_are_columns_too(self) -> None:
        class Numbers:
            def __init__(self, values: List[int]) -> None:
                self.values = values

            def __len__(self) -> int:
                return len(self.values)

            def tolist(self) -> List[int]:
                return self.values

        loaded = self.load((("a", "b"), array("d", [1, 2]), range(2), Numbers([7, 8])))
        self.assertEqual(loaded, [["a", "b"], ["1", "2"], ["0", "1"], ["7", "8"]])

    def test_anything_that_gives_values_is_a_column(self) -> None:
        def generator() -> Iterator[str]:
            yield from "xy"

        columns: List[Any] = [
            map(str, (1, 2)),
            generator(),
            {7: "a", 8: "b"}.keys(),
            frozenset({5}) | {5, 6},
            deque([1, None]),
            (number / 2 for number in (1, 2)),
        ]
        loaded = self.load(columns)
        self.assertEqual(loaded[:3], [["1", "2"], ["x", "y"], ["7", "8"]])
        self.assertEqual(sorted(loaded[3]), ["5", "6"])
        self.assertEqual(loaded[4:], [["1", ""], ["0.5", "1"]])

    def test_columns_may_come_one_by_one(self) -> None:
        self.assertEqual(self.load(zip(("a", 1), ("b", 2))), [["a", "b"], ["1", "2"]])
        self.assertEqual(self.load(map(list, ["ab", "cd"])), [["a", "b"], ["c", "d"]])
        before = self.g.Rows
        self.g.LoadFromArray(map(str, (1, 2)))
        self.g.LoadFromArray(iter([]))
        self.assertEqual(self.g.Rows, before)

    def test_an_exception_while_a_column_is_read_comes_out(self) -> None:
        with self.assertRaises(ZeroDivisionError):
            self.g.LoadFromArray([(1 // number for number in (1, 0))])
        self.assertEqual(self.g.Rows, 4)

    def test_the_last_moment(self) -> None:
        loaded = self.load([[datetime.max, datetime(9999, 12, 31, 23, 59, 59), datetime.max]])
        self.assertEqual(loaded, [["12/31/9999 11:59:59 PM"] * 3])
        self.g.Text[0, 0] = datetime.max  # type: ignore[assignment]
        self.assertEqual(self.g.Text[0, 0], loaded[0][0])

    def test_null_leaves_the_cell_alone(self) -> None:
        self.assertEqual(self.load([["a", None]]), [["a", ""]])

    def test_null_without_the_test_is_error_94_and_keeps_the_rows(self) -> None:
        self.fails(94, self.g.LoadFromArray, [["a", None, "b"]], IsNullTest=False)
        self.assertEqual((self.g.Rows, self.g.texts(0, 4)), (7, ["a", "", ""]))

    def test_nothing_to_load_changes_nothing(self) -> None:
        for nothing in ([], [[], []], ["one", "dimension"], [1, 2, None]):
            self.g.LoadFromArray(nothing)
            self.assertEqual((self.g.Rows, self.g.Cols), (4, 3))

    def test_columns_that_differ_in_length_are_error_9(self) -> None:
        with self.raises(9) as raised:
            self.g.LoadFromArray([["a", "b"], ["c"]])
        assert raised.error is not None
        self.assertIn("Column 1 has 1 records, column 0 has 2", raised.error.description)
        self.assertEqual(self.g.Rows, 4)

    def test_what_is_no_table_is_error_13(self) -> None:
        for value in (3, "text", None, {"a": 1}, [["a"], "b"], [["a"], None], b"a"):
            self.fails(13, self.g.LoadFromArray, value)
        for column in ({"a": 1}, {}, b"a", bytearray(b"a")):
            self.fails(13, self.g.LoadFromArray, [column])
            self.fails(13, self.g.LoadFromArray, [["a"], column])
        self.assertEqual((self.g.Rows, self.g.Cols), (4, 3))

    def test_what_is_no_value_is_error_13(self) -> None:
        self.fails(13, self.g.LoadFromArray, [[object()]])
        self.fails(6, self.g.LoadFromArray, [[1, 2**64]])
        self.assertEqual(self.g.Rows, 4)

    def test_a_table_in_a_table_has_no_text(self) -> None:
        self.fails(13, self.g.LoadFromArray, [[["nested"]]])

    def test_more_than_the_interface_counts_is_error_6(self) -> None:
        self.fails(6, self.g.LoadFromArray, [["a"] * 32768])

    def test_by_late_binding(self) -> None:
        self.g.invoke("loadfromarray", [["a", "b"]])
        self.assertEqual(self.g.texts(0, 4), ["a", "b"])
        self.g.invoke("LoadFromArray", Arr=[["c"]], isnulltest=False)
        self.assertEqual(self.g.texts(0, 6), ["c"])


class TestTexts(GridTest):
    def setUp(self) -> None:
        super().setUp()
        for row in range(-1, 4):
            for col in range(-1, 3):
                self.g.Text[row, col] = f"{row},{col}"

    def test_a_column(self) -> None:
        self.assertEqual(self.g.texts(1), ["0,1", "1,1", "2,1", "3,1"])

    def test_a_part_of_a_column(self) -> None:
        self.assertEqual(self.g.texts(1, 1, 3), ["1,1", "2,1"])
        self.assertEqual(self.g.texts(1, 2), ["2,1", "3,1"])
        self.assertEqual(self.g.texts(-1, -self.g.FixedRows, 1), ["-1,-1", "0,-1"])
        self.assertEqual(self.g.texts(Col=1, start=2, stop=2), [])
        self.assertEqual(self.g.texts(1, 3, 1), [])

    def test_a_rectangle(self) -> None:
        expected = [["0,1", "1,1"], ["0,2", "1,2"]]
        self.assertEqual(self.g.columns(0, 1, 1, 2), expected)
        self.assertEqual(self.g.columns(1, 2, 0, 1), expected)
        self.assertEqual(self.g.columns(2, 2, 2, 2), [["2,2"]])

    def test_what_is_outside_is_an_error(self) -> None:
        self.fails(9, self.g.texts, 100)
        self.fails(9, self.g.texts, 0, 0, 100)
        self.fails(9, self.g.columns, -2, 0, 0, 0)
        self.fails(6, self.g.texts, 40000)
        self.fails(6, self.g.texts, 0, 0, 2**31)

    def test_no_rows(self) -> None:
        self.g.Rows = 0
        self.assertEqual(self.g.texts(0), [])

    def test_any_text_comes_back(self) -> None:
        texts = ["", "a\0b", "\U0001f600x\U0001f600", "\ud800", "\udc00\ud800", "ä" * 1000]
        for row, text in enumerate(texts[:4]):
            self.g.Text[row, 0] = text
        self.assertEqual(self.g.texts(0), texts[:4])
        self.g.LoadFromArray([texts])
        self.assertEqual(self.g.texts(0, 4), texts)

    def test_it_reads_what_text_reads(self) -> None:
        expected = [
            [self.g.Text[row, col] for row in range(-1, 5)] for col in range(-1, 4)
        ]
        self.assertEqual(self.g.columns(-1, -1, 4, 3), expected)

    def test_a_table_goes_around(self) -> None:
        table = self.g.columns(0, 0, 3, 2)
        with vornix.Grid(100, 100) as other:
            other.Rows = 0
            other.LoadFromArray(table)
            self.assertEqual(other.columns(0, 0, 3, 2), table)


if __name__ == "__main__":
    unittest.main()
