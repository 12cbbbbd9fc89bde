"""Values on their way into a grid and back."""

import unittest
from datetime import date, datetime, timezone
from decimal import Decimal
from enum import IntEnum

import vornix
from support import GridTest
from vornix import _library
from vornix._dates import from_days, to_days
from vornix._values import peek, put


def there_and_back(value: object) -> object:
    """A value as the library holds it, read again."""
    slot = _library.Value()
    put(slot, value)
    return peek(slot)


class TestValues(GridTest):
    def test_values_come_back_as_they_went(self) -> None:
        for value in (
            None,
            True,
            False,
            0,
            -1,
            2**31 - 1,
            -(2**31),
            2**31,
            2**63 - 1,
            -(2**63),
            0.1,
            -1e300,
            "",
            "Zürich",
            "\U0001f600 and \0 zero",
            "\ud800 alone",
            datetime(2024, 2, 29, 23, 59, 59, 123456),
            Decimal("0"),
            Decimal("-12345678901234567890.12345678"),
            Decimal("79228162514264337593543950335"),
        ):
            with self.subTest(value=value):
                back = there_and_back(value)
                self.assertEqual(back, value)
                self.assertIs(type(back), type(value))

    def test_an_integer_beyond_64_bits_is_error_6(self) -> None:
        self.fails(6, there_and_back, 2**63)
        with self.raises(6):
            self.g.Rows = 10**30

    def test_a_date_is_a_datetime(self) -> None:
        self.assertEqual(there_and_back(date(2024, 2, 29)), datetime(2024, 2, 29))

    def test_a_date_with_a_time_zone_is_refused(self) -> None:
        self.fails(13, there_and_back, datetime(2024, 2, 29, tzinfo=timezone.utc))

    def test_decimals_are_rounded_to_what_fits(self) -> None:
        third = Decimal(1) / Decimal(3)
        self.assertEqual(there_and_back(third), third)
        self.assertEqual(there_and_back(Decimal("1E-40")), 0)
        self.assertEqual(there_and_back(Decimal("1E+5")), 100000)
        long = Decimal("1234567890.12345678901234567890123456789")
        self.assertEqual(there_and_back(long), Decimal("1234567890.1234567890123456789"))
        for value in ("1E+29", "79228162514264337593543950336", "NaN", "Infinity"):
            self.fails(6, there_and_back, Decimal(value))

    def test_a_decimal_says_its_digits(self) -> None:
        self.g.Text[0, 0] = Decimal("1.50")  # type: ignore[assignment]
        self.assertEqual(Decimal(self.g.Text[0, 0]), Decimal("1.5"))

    def test_what_stands_for_a_number_is_one(self) -> None:
        class Color(IntEnum):
            RED = 255

        class Number:
            def __index__(self) -> int:
                return 7

        class Fraction:
            def __float__(self) -> float:
                return 2.5

        self.assertEqual(there_and_back(Color.RED), 255)
        self.assertEqual(there_and_back(Number()), 7)
        self.assertEqual(there_and_back(Fraction()), 2.5)

    def test_anything_else_is_error_13(self) -> None:
        for value in (b"bytes", object(), {}, 1j, self.g):
            self.fails(13, there_and_back, value)

    def test_none_is_null(self) -> None:
        with self.raises(94):
            self.g.Text[0, 0] = None  # type: ignore[assignment]

    def test_the_text_forms_of_values(self) -> None:
        for value, text in (
            (True, "True"),
            (0.1, "0.1"),
            (1e15, "1E+15"),
            (datetime(2024, 2, 29), "2/29/2024"),
            (datetime(2024, 2, 29, 13, 5), "2/29/2024 1:05:00 PM"),
            (Decimal("12.3400"), "12.34"),
        ):
            self.g.Text[0, 0] = value  # type: ignore[assignment]
            self.assertEqual(self.g.Text[0, 0], text)

    def test_texts_with_zeros_and_lone_surrogates(self) -> None:
        for text in ("a\0b", "\udc00", "\U0001f600", "\r\n\t"):
            self.g.Text[0, 0] = text
            self.assertEqual(self.g.Text[0, 0], text)


class TestForeignObjects(GridTest):
    def test_that_of_an_event_ends_with_it(self) -> None:
        argument = _library.Value(type=_library.OBJECT)
        argument.pointer = 0x1000
        event = vornix.events.OLESetData([peek(argument), 1])
        slot = _library.Value()
        put(slot, event.Data)
        self.assertEqual((slot.type, slot.pointer), (_library.OBJECT, 0x1000))
        event._end()
        self.fails(5, put, _library.Value(), event.Data)

    def test_none_is_none(self) -> None:
        self.assertIsNone(peek(_library.Value(type=_library.OBJECT)))


class TestDates(unittest.TestCase):
    def test_days_count_from_30_december_1899(self) -> None:
        self.assertEqual(to_days(datetime(1899, 12, 30)), 0.0)
        self.assertEqual(to_days(datetime(1900, 1, 1, 12)), 2.5)
        self.assertEqual(to_days(date(2024, 2, 29)), 45351.0)

    def test_the_time_of_a_negative_day_counts_forward(self) -> None:
        self.assertEqual(to_days(datetime(1899, 12, 29, 6)), -1.25)
        self.assertEqual(from_days(-1.25), datetime(1899, 12, 29, 6))
        self.assertEqual(from_days(-0.25), datetime(1899, 12, 30, 6))

    def test_microseconds_of_our_centuries_come_back(self) -> None:
        for year in (1721, 1899, 1900, 1970, 2024, 2078):
            for microsecond in (0, 1, 499, 999_999):
                value = datetime(year, 12, 29, 23, 59, 59, microsecond)
                self.assertEqual(from_days(to_days(value)), value)

    def test_milliseconds_of_all_centuries_come_back(self) -> None:
        for year in (100, 1000, 2100, 5000, 9999):
            for millisecond in range(0, 1000, 37):
                value = datetime(year, 7, 4, 1, 2, 3, millisecond * 1000)
                self.assertEqual(from_days(to_days(value)), value)

    def test_what_is_no_date_is_error_6(self) -> None:
        for days in (float("nan"), float("inf"), 1e300, 3e6, -1e6):
            with self.assertRaises(vornix.AutomationError) as caught:
                from_days(days)
            self.assertEqual(caught.exception.number, 6)


if __name__ == "__main__":
    unittest.main()
