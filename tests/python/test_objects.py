"""Fonts, pictures, surfaces, and the exception."""

import copy
import gc
import pickle
import tempfile
import unittest
from array import array
from pathlib import Path

import vornix
from support import GridTest
from vornix._errors import MissingMember, error_of

RED = b"\xff\x00\x00\xff"


class TestFont(GridTest):
    def test_attributes(self) -> None:
        font = vornix.Font(
            Name="DejaVu Sans Mono",
            Size=10.5,
            Bold=True,
            Italic=True,
            Underline=True,
            Strikethrough=True,
            Charset=2,
        )
        self.assertEqual(
            (font.Name, font.Size, font.Bold, font.Italic, font.Underline, font.Strikethrough),
            ("DejaVu Sans Mono", 10.5, True, True, True, True),
        )
        self.assertEqual(font.Charset, 2)
        with self.assertRaises(AttributeError):
            font.Size = 3  # type: ignore[misc]

    def test_it_comes_back_from_a_grid(self) -> None:
        font = vornix.Font(Name="DejaVu Serif", Size=11, Italic=True)
        self.g.Font = font
        self.assertEqual(self.g.Font, font)
        self.assertEqual(hash(self.g.Font), hash(font))

    def test_a_font_of_a_grid_goes_into_another(self) -> None:
        self.g.RowFont[0] = self.g.Font
        self.assertEqual(self.g.CellFontName[0, 0], self.g.Font.Name)

    def test_it_outlives_its_grid(self) -> None:
        with vornix.Grid(50, 50) as other:
            font = other.Font
        gc.collect()
        self.g.Font = font
        self.assertEqual(self.g.Font.Name, "DejaVu Sans")

    def test_equality_and_copies(self) -> None:
        font = vornix.Font(Name="A", Bold=True)
        self.assertEqual(font, vornix.Font("A", Bold=True))
        self.assertNotEqual(font, vornix.Font("A"))
        self.assertNotEqual(font, "A")
        for other in (copy.copy(font), copy.deepcopy(font), pickle.loads(pickle.dumps(font))):
            self.assertEqual(other, font)

    def test_truth_and_numbers_as_texts(self) -> None:
        font = vornix.Font(
            Name="A",
            Size="12",  # type: ignore[arg-type]
            Bold="False",  # type: ignore[arg-type]
            Italic="true",  # type: ignore[arg-type]
            Underline=-1,  # type: ignore[arg-type]
            Strikethrough="0",  # type: ignore[arg-type]
        )
        self.assertEqual(font, vornix.Font("A", 12, Italic=True, Underline=True))

    def test_values_of_other_types(self) -> None:
        for wrong in (5, None, b"A"):
            self.fails(13, vornix.Font, Name=wrong)
        self.fails(13, vornix.Font, Size="x")
        self.fails(13, vornix.Font, Bold="perhaps")
        self.fails(13, vornix.Font, Bold=[])
        self.fails(13, vornix.Font, Charset="x")
        self.fails(5, vornix.Font, Size=float("nan"))

    def test_the_repr_makes_it_again(self) -> None:
        for font in (vornix.Font(), vornix.Font("B", 10.5, Underline=True, Charset=0)):
            self.assertEqual(eval(repr(font)), font)

    def test_no_font_is_error_5(self) -> None:
        with self.raises(5):
            self.g.Font = None  # type: ignore[assignment]
        with self.raises(13):
            self.g.Font = "DejaVu Sans"  # type: ignore[assignment]


class TestPicture(GridTest):
    def test_pixels(self) -> None:
        picture = vornix.Picture.from_rgba(4, 2, RED * 8)
        self.assertNotEqual(picture.Handle, 0)
        self.assertEqual(picture.Type, 1)
        # 2540 HiMetric an inch, 96 pixels an inch.
        self.assertEqual((picture.Width, picture.Height), (106, 53))
        self.assertIn("4 x 2 pixels", repr(picture))

    def test_it_comes_back_from_a_grid(self) -> None:
        picture = vornix.Picture.from_rgba(1, 1, bytearray(RED))
        self.g.CellPicture[0, 0] = picture
        back = self.g.CellPicture[0, 0]
        assert back is not None
        self.assertEqual(back, picture)
        self.assertEqual(back.Handle, picture.Handle)
        self.assertEqual(hash(back), hash(picture))
        self.assertNotEqual(back, vornix.Picture.from_rgba(1, 1, RED))
        self.g.CellPicture[0, 0] = None
        self.assertIsNone(self.g.CellPicture[0, 0])

    def test_a_file(self) -> None:
        surface = vornix.Surface(3, 2)
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "picture ä.png"
            surface.save_png(path)
            picture = vornix.Picture(path)
            self.assertIn("3 x 2 pixels", repr(picture))
            self.assertEqual(vornix.Picture(str(path)).Type, 1)
            path.write_bytes(b"no picture")
            self.fails(481, vornix.Picture, path)
            self.fails(53, vornix.Picture, Path(folder) / "none.png")
        with self.assertRaises(ValueError):
            vornix.Picture("a\0b")

    def test_pixels_that_do_not_fit_the_size(self) -> None:
        for size, data in (((1, 1), b""), ((2, 1), RED), ((0, 0), b""), ((-1, -1), RED)):
            self.fails(5, vornix.Picture.from_rgba, *size, data)
        self.fails(6, vornix.Picture.from_rgba, 2**31, 1, RED)

    def test_pixels_come_in_buffers(self) -> None:
        for data in (bytearray(RED), memoryview(RED), array("B", RED)):
            picture = vornix.Picture.from_rgba(1, 1, data)  # type: ignore[arg-type]
            self.assertIn("1 x 1 pixels", repr(picture))
        for wrong in (4, "abcd", list(RED), None):
            self.fails(13, vornix.Picture.from_rgba, 1, 1, wrong)
        self.fails(13, vornix.Picture.from_rgba, "x", 1, RED)

    def test_it_is_drawn(self) -> None:
        self.g.CellPicture[0, 0] = vornix.Picture.from_rgba(8, 8, RED * 64)
        self.g.CellPictureAlignment[0, 0] = vornix.vxPicLeft | vornix.vxPicTop
        _, _, pixels = self.g.host.image()
        self.assertIn(RED * 6, pixels)

    def test_copies(self) -> None:
        picture = vornix.Picture.from_rgba(1, 1, RED)
        self.assertIs(copy.copy(picture), picture)
        self.assertIs(copy.deepcopy(picture), picture)
        with self.assertRaises(TypeError):
            pickle.dumps(picture)


class TestSurface(GridTest):
    def test_it_is_white_at_first(self) -> None:
        self.assertEqual(vornix.Surface(4, 4).pixel(3, 3), 0x00FFFFFF)

    def test_fill_and_pixel(self) -> None:
        surface = vornix.Surface(4, 3)
        surface.fill(0x00102030)
        self.assertEqual(surface.pixel(0, 0), 0x00102030)
        self.assertEqual(surface.pixel(4, 0), 0xFFFFFFFF)
        self.assertEqual(surface.pixel(-1, 0), 0xFFFFFFFF)
        self.assertGreater(surface.hdc, 0)
        self.assertIn("4 x 3", repr(surface))

    def test_system_colors(self) -> None:
        surface = vornix.Surface(1, 1)
        for given, color in (
            (0x8000000D, 0x00D77800),
            (0x8000000D - 2**32, 0x00D77800),
            (0x8000000F, 0x00F0F0F0),
            (0x80000005, 0x00FFFFFF),
        ):
            surface.fill(given)
            self.assertEqual(surface.pixel(0, 0), color)

    def test_surfaces_have_numbers_of_their_own(self) -> None:
        first, second = vornix.Surface(1, 1), vornix.Surface(1, 1)
        self.assertNotEqual(first.hdc, second.hdc)
        self.assertNotEqual(first.hdc, self.g.hDC)

    def test_sizes_that_are_none(self) -> None:
        for size in ((0, 1), (1, -1)):
            self.fails(5, vornix.Surface, *size)
        self.fails(6, vornix.Surface, 2**31, 1)
        self.fails(5, vornix.Surface, 1, 1, scale=0.5)
        self.fails(13, vornix.Surface, 1, 1, scale="x")
        self.fails(13, vornix.Surface, "x", 1)

    def test_a_file_that_cannot_be_written(self) -> None:
        self.fails(75, vornix.Surface(1, 1).save_png, "/nowhere/at/all.png")


class TestAutomationError(unittest.TestCase):
    def test_number_and_description(self) -> None:
        with vornix.Grid(50, 50) as g, self.assertRaises(vornix.AutomationError) as caught:
            g.Text[100, 100]
        error = caught.exception
        self.assertEqual(error.number, 9)
        self.assertTrue(error.description)
        self.assertEqual(str(error), f"{error.description} (error 9)")

    def test_what_is_not_there_is_no_attribute_either(self) -> None:
        with vornix.Grid(50, 50) as g:
            with self.assertRaises(AttributeError) as caught:
                g.invoke("NoSuchMember")
            assert isinstance(caught.exception, vornix.AutomationError)
            self.assertEqual(caught.exception.number, 438)
            copied = pickle.loads(pickle.dumps(caught.exception))
            self.assertEqual((type(copied), str(copied)), (MissingMember, str(caught.exception)))
            self.assertIsInstance(error_of(445), MissingMember)
            self.assertNotIsInstance(error_of(5), AttributeError)
            self.assertTrue(hasattr(g, "Rows"))
        with self.assertRaises(vornix.AutomationError) as closed:
            hasattr(g, "Rows")
        self.assertEqual(closed.exception.number, 5)

    def test_it_can_be_pickled(self) -> None:
        error = pickle.loads(pickle.dumps(vornix.AutomationError(6, "too much")))
        self.assertEqual((error.number, error.description), (6, "too much"))


if __name__ == "__main__":
    unittest.main()
