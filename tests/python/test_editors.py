"""The editors of the cells, as the host reaches them."""

import unittest
from typing import Any, Callable, List

import vornix
from support import GridTest


class EditorTest(GridTest):
    """A grid whose first column is edited in the text box, and whose second one has lists."""

    def setUp(self) -> None:
        super().setUp()
        for row in range(4):
            self.g.CellMode[row, 0] = vornix.vxTextBox
            self.g.CellMode[row, 1] = vornix.vxComboDropDownBox
        self.host = self.g.host
        self.box, self.combo = self.host.child("txtTmp"), self.host.child("cboTmp")

    def edit(self, row: int, col: int) -> None:
        self.g.CurrentRow, self.g.CurrentCol = row, col
        self.g.EnterEdit()
        self.host.clear_log()

    def said(self) -> List[str]:
        return [name for name, _ in self.host.log]


class TestTextBox(EditorTest):
    def setUp(self) -> None:
        super().setUp()
        self.g.Text[0, 0] = "one two"
        self.edit(0, 0)

    def test_it_shows_the_text_of_the_cell(self) -> None:
        frame = self.host.child("fraEdit")
        self.assertTrue(self.box.visible and frame.visible and self.box.enabled)
        self.assertEqual(self.box.text, "one two")
        self.assertEqual((self.box.sel_start, self.box.sel_length), (0, 0))
        self.assertEqual((self.box.left, self.box.top), (0, 0))
        self.assertEqual((self.box.width, self.box.height), (frame.width, frame.height))
        self.assertGreater(frame.left, 0)

    def test_keys_change_the_cell_in_order(self) -> None:
        self.host.type("x")
        self.assertEqual(self.g.Text[0, 0], "xone two")
        self.assertEqual(self.said(), ["KeyDown", "KeyPress", "TextChange", "KeyUp"])
        self.assertEqual(self.box.sel_start, 1)
        self.host.press("Back")
        self.host.press("Delete", 2)
        self.assertEqual(self.g.Text[0, 0], "two")

    def test_single_notifications(self) -> None:
        self.assertEqual(self.box.key_down(46), 46)
        self.assertEqual(self.box.key_up(46), 46)
        self.assertEqual(self.box.key_press("x"), ord("x"))
        self.assertEqual(self.g.Text[0, 0], "xne two")
        self.assertEqual(self.said(), ["KeyDown", "TextChange", "KeyUp", "KeyPress", "TextChange"])

    def test_what_handlers_take_is_not_for_the_box(self) -> None:
        @self.g.on("KeyDown")
        def refuse(e: Any) -> None:
            e.KeyCode = 0

        self.assertEqual(self.box.key_down(46), 0)
        self.assertEqual(self.g.Text[0, 0], "one two")

    def test_the_selection_can_be_set(self) -> None:
        self.box.sel_start, self.box.sel_length = 4, 100
        self.assertEqual((self.box.sel_start, self.box.sel_length), (4, 3))
        self.assertEqual((self.g.SelStart, self.g.SelLength, self.g.SelText), (4, 3, "two"))
        self.box.sel_start = -5
        self.assertEqual((self.box.sel_start, self.box.sel_length), (0, 0))
        self.g.SelLength = 3
        self.host.press("c", 2)
        self.assertEqual(self.host.clipboard, "one")

    def test_the_clipboard(self) -> None:
        self.host.clipboard = "lines\r\nof it"
        self.host.press("a", 2)
        self.host.press("v", 2)
        self.assertIn("lines", self.g.Text[0, 0])
        self.assertIn("TextChange", self.said())

    def test_a_text_that_is_set_is_the_users(self) -> None:
        self.box.text = "other \U0001f600"
        self.assertEqual(self.box.text, "other \U0001f600")
        self.assertEqual(self.g.Text[0, 0], "other \U0001f600")
        self.assertEqual(self.said(), ["TextChange"])
        self.assertEqual(self.box.sel_start, 0)

    def test_a_mask_takes_what_comes(self) -> None:
        self.g.ExitEdit()
        self.g.ColMask[0] = "00-00"
        self.g.Text[0, 0] = ""
        self.edit(0, 0)
        self.assertEqual(self.box.text, "__-__")
        self.host.type("1x2")
        self.assertEqual(self.box.text, "12-__")
        self.box.text = "9876"
        self.assertEqual(self.box.text, "98-76")

    def test_a_click_goes_to_the_box(self) -> None:
        frame = self.host.child("fraEdit")
        self.host.click_at(frame.left + frame.width - 1, frame.top + 3)
        self.assertEqual(self.box.sel_start, 7)
        self.assertNotIn("CellDown", self.said())
        self.assertTrue(self.g.IsEditMode())

    def test_a_hidden_box_has_no_user(self) -> None:
        self.g.ExitEdit()
        self.host.clear_log()
        self.assertEqual(self.box.key_down(46), 46)
        self.assertEqual(self.box.key_press("x"), ord("x"))
        self.assertEqual(self.g.Text[0, 0], "one two")
        self.assertEqual(self.said(), [])
        self.assertFalse(self.box.visible)

    def test_wrong_values(self) -> None:
        uses: List[Callable[[], Any]] = [
            lambda: setattr(self.box, "text", 5),
            lambda: setattr(self.box, "sel_start", "a"),
            lambda: setattr(self.box, "sel_length", None),
            lambda: self.box.key_down("Left"),  # type: ignore[arg-type]
        ]
        for use in uses:
            self.fails(13, use)
        self.fails(6, setattr, self.box, "sel_start", 2**40)
        self.fails(5, self.box.key_press, "ab")

    def test_a_closed_grid(self) -> None:
        self.host.close()
        self.fails(5, self.box.key_down, 46)
        self.fails(5, self.box.key_press, "x")
        self.fails(5, setattr, self.box, "text", "x")
        self.fails(5, self.combo.click_item, 0)

    def test_a_handler_may_close_the_grid(self) -> None:
        self.g.on("KeyDown", lambda e: self.g.close())
        self.box.key_down(46)
        self.fails(5, lambda: self.box.text)


class TestComboBox(EditorTest):
    def setUp(self) -> None:
        super().setUp()
        for fruit in ("apple", "banana", "cherry"):
            self.g.ComboAddItem(fruit)
        self.g.Text[1, 1] = "plum"
        self.edit(1, 1)

    def test_it_shows_the_list(self) -> None:
        self.assertTrue(self.combo.visible)
        self.assertEqual(self.combo.items, ["apple", "banana", "cherry"])
        self.assertEqual((self.combo.text, self.combo.list_index), ("plum", -1))

    def test_a_click_on_a_row(self) -> None:
        self.combo.click_item(1)
        self.assertEqual((self.combo.text, self.combo.list_index), ("banana", 1))
        self.assertEqual(self.g.Text[1, 1], "banana")
        self.assertEqual(self.said(), ["TextChange"])
        self.combo.click_item(1)
        self.assertEqual(self.said(), ["TextChange"], "the text is the same")
        self.fails(9, self.combo.click_item, 3)
        self.fails(9, self.combo.click_item, -1)
        self.fails(13, self.combo.click_item, "one")

    def test_keys_walk_the_list(self) -> None:
        self.host.press("Down")
        self.host.press("Down")
        self.assertEqual(self.g.Text[1, 1], "banana")
        self.assertEqual((self.g.CurrentRow, self.g.CurrentCol), (1, 1))
        self.host.press("Up")
        self.assertEqual((self.combo.list_index, self.g.ComboListIndex), (0, 0))

    def test_typing_leaves_no_row_selected(self) -> None:
        self.combo.click_item(2)
        self.host.press("End")
        self.host.type("s")
        self.assertEqual((self.combo.text, self.combo.list_index), ("cherrys", -1))
        self.assertEqual(self.g.Text[1, 1], "cherrys")

    def test_a_hidden_box_has_no_user(self) -> None:
        self.g.ExitEdit()
        self.combo.click_item(0)
        self.assertEqual(self.g.Text[1, 1], "plum")


if __name__ == "__main__":
    unittest.main()
