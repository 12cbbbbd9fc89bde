"""The container without a screen."""

import ctypes
import os
import struct
import tempfile
import unittest
import zlib
from enum import IntEnum
from pathlib import Path
from typing import Any, Dict, List, Tuple

import vornix
from vornix import _library
from vornix._library import library, make_text, text_of
from support import GridTest


def png_size(data: bytes) -> Tuple[int, int]:
    """Width and height of a PNG file, whose first piece must be whole."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    assert zlib.crc32(data[12:29]) == struct.unpack(">I", data[29:33])[0]
    width, height = struct.unpack(">II", data[16:24])
    return width, height


class TestForm(GridTest):
    def test_the_user_mode(self) -> None:
        self.assertIs(self.g.host.user_mode, True)
        self.g.host.user_mode = False
        self.assertIs(self.g.host.user_mode, False)
        with vornix.Grid(100, 100, design=True) as designed:
            self.assertIs(designed.host.user_mode, False)

    def test_truth_as_a_text(self) -> None:
        self.g.host.user_mode = "False"  # type: ignore[assignment]
        self.assertIs(self.g.host.user_mode, False)
        self.g.host.user_mode = "true"  # type: ignore[assignment]
        self.assertIs(self.g.host.user_mode, True)
        with self.raises(13):
            self.g.host.user_mode = "perhaps"  # type: ignore[assignment]
        with vornix.Grid(9, 9, design="False", show="False") as g:  # type: ignore[arg-type]
            self.assertIs(g.host.user_mode, True)
            g.host.click_at(5, 5)
            self.assertEqual(g.host.log, [])
        self.fails(13, vornix.Grid, 9, 9, show="perhaps")
        self.fails(13, vornix.Grid, 9, 9, design="perhaps")

    def test_a_resize(self) -> None:
        self.g.host.resize(200, 100)
        self.assertEqual(self.g.host.image()[:2], (200, 100))
        self.assertEqual(self.g.host.pixel(199, 99), self.g.host.pixel(199, 98))
        self.assertEqual(self.g.host.pixel(200, 0), 0xFFFFFFFF)

    def test_a_size_beyond_32_bits_is_error_6(self) -> None:
        self.fails(6, self.g.host.resize, 2**31, 10)
        self.fails(6, vornix.Grid, 2**31, 10)

    def test_a_window_of_no_size_is_error_5(self) -> None:
        for size in ((0, 10), (10, 0), (-1, 10)):
            self.fails(5, vornix.Grid, *size)

    def test_the_lifecycle(self) -> None:
        for call in (
            self.g.host.hide,
            self.g.host.show,
            self.g.host.paint,
            self.g.host.enter_focus,
            self.g.host.exit_focus,
        ):
            self.assertIsNone(call())

    def test_a_scale(self) -> None:
        with vornix.Grid(100, 50, scale=1.5) as g:
            self.assertEqual(g.host.image()[:2], (150, 75))
        self.fails(13, vornix.Grid, 100, 50, scale="x")
        self.fails(5, vornix.Grid, 100, 50, scale=5)


class TestBag(GridTest):
    def test_a_loaded_control_has_what_the_bag_holds(self) -> None:
        font = vornix.Font(Name="DejaVu Serif", Size=12)
        picture = vornix.Picture.from_rgba(1, 1, b"\xff\x00\x00\xff")
        bag = {"Cols": 5, "Rows": 7, "Redraw": False, "Font": font, "Picture": picture}
        with vornix.Grid(100, 100, bag=bag) as g:
            self.assertEqual((g.Cols, g.Rows, g.Redraw), (5, 7, False))
            self.assertEqual(g.Font, font)
            self.assertEqual(g.Picture, picture)

    def test_colors_with_and_without_a_sign(self) -> None:
        for given in (0x8000000F, 0x8000000F - 2**32, 0x00C0FFFF, 0xFFFFFFFF):
            with vornix.Grid(100, 100, bag={"BackColor": given}) as g:
                self.assertEqual(g.BackColor, given & 0xFFFFFFFF)
                with vornix.Grid(100, 100, bag={"BackColor": g.BackColor}) as again:
                    self.assertEqual(again.BackColor, g.BackColor)
        self.fails(6, vornix.Grid, 100, 100, bag={"BackColor": 2**32})
        self.fails(6, vornix.Grid, 100, 100, bag={"BackColor": -(2**31) - 1})

    def test_what_is_no_bag(self) -> None:
        for bag in ([("Rows", 3)], "Rows", 3, [], {3: 4}):
            self.fails(13, vornix.Grid, 100, 100, bag=bag)

    def test_no_picture(self) -> None:
        with vornix.Grid(100, 100, bag={"Picture": None}) as g:
            self.assertIsNone(g.Picture)

    def test_a_new_control_differs_from_one_with_an_empty_bag(self) -> None:
        with vornix.Grid(100, 100, design=True) as new:
            self.assertEqual((new.Rows, new.Cols), (1, 1))
        with vornix.Grid(100, 100, design=True, bag={"Rows": 3}) as loaded:
            self.assertEqual(loaded.Rows, 3)

    def test_values_that_do_not_fit(self) -> None:
        self.fails(6, vornix.Grid, 100, 100, bag={"Rows": 40000})
        self.fails(13, vornix.Grid, 100, 100, bag={"Rows": "x"})
        self.fails(13, vornix.Grid, 100, 100, bag={"Rows": 1.5})
        self.fails(13, vornix.Grid, 100, 100, bag={"Rows": [1]})

    def test_saving_is_not_built_yet(self) -> None:
        self.fails(445, self.g.host.save)


class TestSettings(unittest.TestCase):
    def test_the_store_is_the_dict_that_was_given(self) -> None:
        store = {("app", "section", "key"): "text", ("ä", "", "\U0001f600"): ""}
        kept = dict(store)
        with vornix.Grid(100, 100, settings=store) as g:
            self.assertEqual(g.host.settings, kept)
            self.assertIs(g.host.settings, store)
        self.assertEqual(store, kept)
        with vornix.Grid(100, 100) as g:
            self.assertEqual(g.host.settings, {})
            self.assertIs(g.host.settings, g.host.settings)

    @staticmethod
    def control_saves(g: vornix.Grid, name: Tuple[str, str, str], text: str) -> None:
        """As the control saves a setting."""
        setting = _library.Setting(*map(make_text, (*name, text)))
        g._session.call(library.vornix_host_save_setting, ctypes.byref(setting))

    @staticmethod
    def control_reads(g: vornix.Grid, name: Tuple[str, str, str]) -> str:
        """As the control reads a setting: "none" where there is none."""
        setting = _library.Setting(*map(make_text, (*name, "none")))
        g._session.call(library.vornix_host_get_setting, ctypes.byref(setting))
        return text_of(setting.value)

    def test_the_control_reads_and_writes_the_dict_itself(self) -> None:
        store: Dict[Tuple[str, str, str], str] = {("a", "b", "old"): "x"}
        name = ("a", "\0", "\U0001f600")
        with vornix.Grid(100, 100, settings=store) as g, vornix.Grid(9, 9, settings=store) as other:
            self.assertEqual(self.control_reads(g, name), "none")
            self.control_saves(g, name, "by the control")
            self.assertEqual(store[name], "by the control")
            self.assertEqual(self.control_reads(other, name), "by the control")
            store[name] = "\ud800"
            self.assertEqual(self.control_reads(g, name), "\ud800")
            g.host.settings[name] = ""
            self.assertEqual(self.control_reads(other, name), "")
            del store[name]
            self.assertEqual(self.control_reads(g, name), "none")
        self.assertEqual(store, {("a", "b", "old"): "x"})

    def test_a_setting_that_is_no_text_is_an_error_of_the_call(self) -> None:
        store: Dict[Any, Any] = {}
        with vornix.Grid(100, 100, settings=store) as g:
            store["a", "b", "c"] = 3
            with self.assertRaises(vornix.AutomationError) as caught:
                self.control_reads(g, ("a", "b", "c"))
            self.assertEqual(caught.exception.number, 13)
            self.assertEqual(g.Rows, 1)

    def test_what_is_no_store(self) -> None:
        wrong: List[Any] = [[], "text", 3, {"a": "b"}, {("a", "b"): "c"}, {("a", "b", "c"): 3}]
        for settings in [*wrong, {("a", "b", 3): "c"}]:
            with self.assertRaises(vornix.AutomationError) as caught:
                vornix.Grid(100, 100, settings=settings)
            self.assertEqual(caught.exception.number, 13)


class TestPointer(GridTest):
    def test_single_notifications_imply_nothing(self) -> None:
        self.g.host.mouse_move(10.5, 11)
        self.g.host.mouse_down(10, 11)
        self.g.host.mouse_up(10, 11, 2, 3)
        self.g.host.click()
        self.g.host.dbl_click()
        log = [entry for entry in self.g.host.log if entry[0].startswith("Mouse")]
        self.assertEqual(
            log,
            [
                ("MouseMove", {"Button": 0, "Shift": 0, "x": 10.5, "y": 11.0}),
                ("MouseDown", {"Button": 1, "Shift": 0, "x": 10.0, "y": 11.0}),
                ("MouseUp", {"Button": 2, "Shift": 3, "x": 10.0, "y": 11.0}),
            ],
        )
        names = [name for name, _ in self.g.host.log]
        self.assertEqual([names.count("Click"), names.count("DblClick")], [1, 1])

    def test_a_click_of_a_person_is_press_release_and_click(self) -> None:
        self.g.host.click_at(60, 40)
        names = [name for name, _ in self.g.host.log]
        expected = ["MouseDown", "MouseUp", "Click"]
        self.assertEqual([name for name in names if name in expected], expected)

    def test_a_double_click_of_a_person(self) -> None:
        self.g.host.dbl_click_at(60, 40)
        names = [name for name, _ in self.g.host.log]
        self.assertEqual(names.count("DblClick"), 1)

    def test_a_drag_presses_moves_and_lets_go(self) -> None:
        self.g.host.drag(60, 40, 100, 80, steps=4)
        moves = [arguments for name, arguments in self.g.host.log if name == "MouseMove"]
        self.assertEqual((moves[-1]["x"], moves[-1]["y"]), (100, 80))
        self.assertEqual(sum(move["Button"] == 1 for move in moves), 4)

    def test_a_tick_finds_out_that_the_pointer_is_elsewhere(self) -> None:
        host = self.g.host
        host.mouse_move(5, 5)
        self.assertEqual(host.log[-1][0], "CellOver")
        host.click_at(-5, -5)
        self.assertEqual(host.log[-1][0], "CellOver")
        host.tick()
        self.assertEqual(host.log[-1][0], "CellOut")

    def test_numbers_that_do_not_fit(self) -> None:
        self.fails(6, self.g.host.mouse_down, 1, 1, 40000)
        self.fails(13, self.g.host.mouse_down, "x", 1)
        self.fails(6, self.g.host.wheel, 2**31)

    def test_places_are_finite_and_of_32_bits(self) -> None:
        host = self.g.host
        for use in (host.mouse_down, host.mouse_move, host.mouse_up, host.click_at):
            for wrong in (float("nan"), float("inf"), float("-inf")):
                self.fails(5, use, wrong, 1)
                self.fails(5, use, 1, wrong)
            self.fails(6, use, 1e40, 1)
        self.fails(5, host.drag, 1, 1, float("nan"), 1)
        self.fails(6, host.drag, 1, 1, 1, -1e40)
        self.assertEqual(host.log, [])

    def test_numbers_as_texts(self) -> None:
        self.g.host.mouse_down("5", " 6.5 ", "1")  # type: ignore[arg-type]
        expected = {"Button": 1, "Shift": 0, "x": 5.0, "y": 6.5}
        self.assertIn(("MouseDown", expected), self.g.host.log)
        for wrong in ("1_0", "nan", "inf", "", "0x5", "1e", ".", "\u0661", "5 5", "True"):
            self.fails(13, self.g.host.mouse_down, wrong, 1)
            self.fails(13, self.g.host.key_down, wrong)

    def test_integers_of_other_types(self) -> None:
        class Code(IntEnum):
            A = 65

        class Odd(int):
            def __le__(self, other: object) -> bool:
                raise OSError

            __lt__ = __ge__ = __gt__ = __le__

        self.assertEqual(self.g.host.key_down(Code.A), 65)
        self.assertEqual(self.g.host.key_down(Odd(66)), 66)
        self.g.Rows = Odd(7)
        self.assertEqual(self.g.Rows, 7)

    def test_a_hidden_control_hears_nothing_of_a_person(self) -> None:
        def do_everything(g: vornix.Grid) -> None:
            g.host.clear_log()
            g.host.click_at(60, 40)
            g.host.dbl_click_at(60, 40)
            g.host.drag(60, 40, 80, 60)
            g.host.type("a")
            g.host.press("Left")

        self.g.host.hide()
        do_everything(self.g)
        self.assertEqual(self.g.host.log, [])
        self.g.host.show()
        do_everything(self.g)
        self.assertGreater(len(self.g.host.log), 10)
        with vornix.Grid(100, 100, show=False) as g:
            do_everything(g)
            self.assertEqual(g.host.log, [])
            g.host.mouse_down(5, 5)
            self.assertIn("MouseDown", [name for name, _ in g.host.log])


class TestKeyboard(GridTest):
    def test_codes_come_back(self) -> None:
        self.assertEqual(self.g.host.key_down(37, 1), 37)
        self.assertEqual(self.g.host.key_up(37), 37)
        self.assertEqual(self.g.host.key_press("a"), 97)
        self.assertEqual(self.g.host.key_press(98), 98)
        self.assertEqual(
            self.g.host.log,
            [
                ("KeyDown", {"KeyCode": 37, "Shift": 1}),
                ("KeyUp", {"KeyCode": 37, "Shift": 0}),
                ("KeyPress", {"KeyAscii": 97}),
                ("KeyPress", {"KeyAscii": 98}),
            ],
        )

    def test_a_character_is_one(self) -> None:
        self.fails(5, self.g.host.key_press, "ab")
        self.fails(6, self.g.host.key_press, "\U0001f600")

    def test_characters_of_the_upper_half_are_negative(self) -> None:
        self.assertEqual(self.g.host.key_press("\u7fff"), 0x7FFF)
        self.assertEqual(self.g.host.key_press("\u8000"), -0x8000)
        self.assertEqual(self.g.host.key_press("\uffff"), -1)
        self.g.host.clear_log()
        self.g.host.type("\ufffd")
        self.assertIn(("KeyPress", {"KeyAscii": -3}), self.g.host.log)

    def test_a_line_break_of_two_characters_is_one_return(self) -> None:
        self.g.host.type("a\r\nb")
        codes = [entry[1]["KeyAscii"] for entry in self.g.host.log if entry[0] == "KeyPress"]
        self.assertEqual(codes, [97, 13, 98])

    def test_keys_by_their_characters(self) -> None:
        for name, code in (("+", 43), (" ", 32), ("?", 63), ("a", 97), ("A", 97), ("7", 55)):
            self.g.host.clear_log()
            self.g.host.press(name)
            self.assertIn(("KeyPress", {"KeyAscii": code}), self.g.host.log)

    def test_other_names_of_keys(self) -> None:
        names = {"PgUp": 33, "Prior": 33, "PgDn": 34, "Next": 34, "Ins": 45, "Del": 46}
        for name, code in {**names, "Esc": 27, "BackSpace": 8, "pgup": 33}.items():
            self.g.host.clear_log()
            self.g.host.press(name)
            self.assertEqual(self.g.host.log[0], ("KeyDown", {"KeyCode": code, "Shift": 0}))

    def test_what_a_person_types(self) -> None:
        self.g.host.type("ab")
        names = [name for name, _ in self.g.host.log]
        self.assertEqual(names, ["KeyDown", "KeyPress", "KeyUp"] * 2)

    def test_keys_by_name_and_code(self) -> None:
        self.g.host.press("Left", 2)
        self.g.host.press(37)
        codes = [entry[1] for entry in self.g.host.log if entry[0] == "KeyDown"]
        self.assertEqual(codes, [{"KeyCode": 37, "Shift": 2}, {"KeyCode": 37, "Shift": 0}])
        self.fails(5, self.g.host.press, "NoSuchKey")


class TestChildren(GridTest):
    def bars(self) -> List[Tuple[str, bool]]:
        return [("scrV", self.g.IsVisibleScrollV()), ("scrH", self.g.IsVisibleScrollH())]

    def test_every_child_has_a_place(self) -> None:
        shown = [name for name, is_shown in self.bars() if is_shown]
        for name in "scrV scrH txtTmp cboTmp fraEdit cPivot picSplitCol picSplitMove".split():
            child = self.g.host.child(name)
            self.assertIs(child.visible, name in shown)
            self.assertIs(child.enabled, True)
            for edge in (child.left, child.top, child.width, child.height):
                self.assertIsInstance(edge, int)
            self.assertIn(name, repr(child))

    def test_other_names_are_error_5(self) -> None:
        self.fails(5, self.g.host.child, "noSuchChild")
        self.fails(13, self.g.host.child, 3)

    def test_names_are_in_any_case(self) -> None:
        self.assertIn("'picSplitCol'", repr(self.g.host.child("PICSPLITCOL")))
        self.assertEqual(self.g.host.child("scrv").left, self.g.host.child("scrV").left)

    def test_other_children_are_no_editors(self) -> None:
        for name in "scrV scrH fraEdit cPivot picSplitCol picSplitMove".split():
            child = self.g.host.child(name)
            for use in (
                lambda: child.text,
                lambda: setattr(child, "text", "a"),
                lambda: child.sel_start,
                lambda: setattr(child, "sel_start", 1),
                lambda: child.sel_length,
                lambda: setattr(child, "sel_length", 1),
                lambda: child.key_down(1),
                lambda: child.key_press("a"),
                lambda: child.key_up(1),
            ):
                self.fails(438, use)
        for name in "scrV txtTmp fraEdit".split():
            child = self.g.host.child(name)
            for use in (
                lambda: child.items,
                lambda: child.list_index,
                lambda: child.click_item(0),
            ):
                self.fails(438, use)


class TestBars(GridTest):
    def setUp(self) -> None:
        super().setUp()
        self.g.Rows = 300
        self.g.Cols = 40
        self.g.ScrollVBar = self.g.ScrollHBar = vornix.vxNormalScroll
        self.g.host.clear_log()
        self.bar = self.g.host.child("scrV")

    def said(self) -> List[str]:
        return [name for name, _ in self.g.host.log]

    def test_ranges_are_internal_indices(self) -> None:
        self.assertEqual((self.bar.min, self.bar.value), (1, 1))
        self.g.FirstRow = 7
        self.assertEqual(self.bar.value, 8)
        self.g.LastRow = 299
        self.assertEqual(self.bar.value, self.bar.max)

    def test_steps_and_pages(self) -> None:
        page = self.g.LastRow + 1
        for code, row in ((1, 1), (1, 2), (0, 1), (0, 0), (3, page), (2, 0)):
            self.bar.notify(code)
            self.bar.notify(8)
            self.assertEqual(self.g.FirstRow, row)
        self.assertEqual(self.said(), ["Scroll"] * 6)

    def test_the_ends(self) -> None:
        self.bar.notify(7)
        self.assertEqual((self.bar.value, self.g.LastRow), (self.bar.max, 299))
        self.bar.notify(6)
        self.assertEqual((self.bar.value, self.g.FirstRow), (1, 0))

    def test_a_drag_of_the_thumb_scrolls_at_its_end(self) -> None:
        self.bar.notify(5, 31)
        self.bar.notify(5, track_pos=41)
        self.assertEqual(self.g.FirstRow, 0)
        self.assertEqual(self.g.host.log[-1], ("ScrollTrackRow", {"Row": 40}))
        self.bar.notify(4)
        self.bar.notify(8)
        self.assertEqual(self.g.FirstRow, 40)
        self.assertEqual(self.said(), ["ScrollTrackRow", "ScrollTrackRow", "Scroll"])

    def test_a_bar_without_a_user_hears_nothing(self) -> None:
        self.g.ScrollVEnabled = False
        self.assertIs(self.bar.enabled, False)
        self.bar.notify(1)
        self.g.ScrollVEnabled = True
        self.g.Redraw = False
        self.bar.notify(1)
        self.g.Redraw = True
        self.assertEqual(self.g.FirstRow, 0)
        self.bar.notify(1)
        self.assertEqual(self.g.FirstRow, 1)

    def test_a_person_scrolls_by_the_arrows_the_trough_and_the_thumb(self) -> None:
        host, bar = self.g.host, self.bar
        x, bottom = bar.left + 5, bar.top + bar.height
        page = self.g.LastRow + 1
        host.click_at(x, bottom - 5)
        self.assertEqual(self.g.FirstRow, 1)
        host.click_at(x, bar.top + 5)
        self.assertEqual(self.g.FirstRow, 0)
        host.click_at(x, bottom - bar.width - 5)
        self.assertEqual(self.g.FirstRow, page)
        self.g.FirstRow = 0
        host.drag(x, bar.top + bar.width + 2, x, 1000)
        self.assertEqual(bar.value, bar.max)

    def test_other_codes_and_positions(self) -> None:
        for code in (-1, 9, 100):
            self.fails(5, self.bar.notify, code)
        self.fails(6, self.bar.notify, 5, 2**31)
        self.fails(13, self.bar.notify, "line")
        self.fails(13, self.bar.notify, 5, "place")

    def test_other_children_are_no_bars(self) -> None:
        for name in ("txtTmp", "cboTmp", "fraEdit", "cPivot", "picSplitCol", "picSplitMove"):
            child = self.g.host.child(name)
            for use in (
                lambda: child.min,
                lambda: child.max,
                lambda: child.value,
                lambda: child.notify(0),
            ):
                self.fails(438, use)

    def test_a_handler_that_raises_comes_out_of_the_notification(self) -> None:
        @self.g.on("Scroll")
        def fail(e: vornix.events.Scroll) -> None:
            raise LookupError("in the handler")

        with self.assertRaises(LookupError):
            self.bar.notify(1)
        self.assertEqual(self.g.FirstRow, 1)


class TestSplit(GridTest):
    def test_a_person_drags_the_handle(self) -> None:
        g = self.g
        g.Cols = 20
        g.ShowSplit = True
        handle = g.host.child("picSplitCol")
        self.assertTrue(handle.visible)
        g.host.clear_log()
        edge = sum(g.ColWidth[col] for col in range(-1, 2))
        g.host.drag(handle.left + 2, handle.top + 5, edge + 5, handle.top + 5)
        self.assertEqual(g.host.log, [("SplitCols", {"Cols": 2})])
        self.assertEqual(g.SplitCols, 2)
        self.assertFalse(g.host.child("picSplitMove").visible)


class TestPointerShape(GridTest):
    def test_the_shape_says_what_can_be_sized(self) -> None:
        host = self.g.host
        self.assertEqual(host.pointer_shape, "default")
        host.mouse_move(self.g.ColWidth[-1] + self.g.ColWidth[0] - 2, 5)
        self.assertEqual(host.pointer_shape, "size_we")
        host.mouse_move(5, self.g.RowHeight[-1] + self.g.RowHeight[0] - 2)
        self.assertEqual(host.pointer_shape, "size_ns")
        host.click_at(-5, -5)
        self.assertEqual(host.pointer_shape, "size_ns")
        host.tick()
        self.assertEqual(host.pointer_shape, "default")


class TestRecords(GridTest):
    def test_property_changes(self) -> None:
        self.g.Rows = 9
        self.g.BackColor = 1
        self.assertEqual(self.g.host.property_changes, ["Rows", "BackColor"])
        self.g.host.clear_log()
        self.assertEqual(self.g.host.property_changes, [])

    def test_paint_counters(self) -> None:
        self.g.BackColor = 1
        self.g.RefreshCell(0, 0)
        self.assertEqual((self.g.host.repaints, self.g.host.refreshes), (1, 1))
        self.g.host.clear_log()
        self.assertEqual((self.g.host.repaints, self.g.host.refreshes), (0, 0))

    def test_the_clipboard(self) -> None:
        self.assertEqual(self.g.host.clipboard, "")
        self.g.host.clipboard = "a\tb\r\n\U0001f600"
        self.assertEqual(self.g.host.clipboard, "a\tb\r\n\U0001f600")
        with self.raises(13):
            self.g.host.clipboard = 3  # type: ignore[assignment]

    def test_pointer_shape_and_boxes(self) -> None:
        self.assertEqual(self.g.host.pointer_shape, "default")
        self.assertEqual(self.g.host.message_boxes, [])


class TestPicture(GridTest):
    def test_pixels_and_image_agree(self) -> None:
        self.g.CellBackColor[0, 0] = 0x00FF8040
        width, height, pixels = self.g.host.image()
        self.assertEqual((width, height, len(pixels)), (320, 240, 320 * 240 * 4))
        x, y = 100, 30
        place = (y * width + x) * 4
        self.assertEqual(self.g.host.pixel(x, y), 0x00FF8040)
        self.assertEqual(pixels[place : place + 4], b"\x40\x80\xff\xff")

    def test_a_file(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "grid ä.png"
            self.g.host.save_png(path)
            self.assertEqual(png_size(path.read_bytes()), (320, 240))
            self.g.host.save_png(os.fspath(path))
            self.fails(75, self.g.host.save_png, Path(folder) / "none" / "grid.png")


if __name__ == "__main__":
    unittest.main()
