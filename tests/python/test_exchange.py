"""Tables onto the clipboard and from it, and batch scripts."""

import unittest

import vornix
from support import GridTest


class TestClipboard(GridTest):
    def texts(self, rows: int, cols: int) -> list:
        return [[self.g.Text[row, col] for col in range(cols)] for row in range(rows)]

    def test_a_block_goes_out_as_lines_of_fields(self) -> None:
        self.g.Text[0, 0], self.g.Text[0, 1] = "a", "b"
        self.g.Text[1, 0], self.g.Text[1, 1] = "\u00e4\U0001f600", "x\r\ny"
        self.g.CopyToClipboard(1, 1, 0, 0)
        self.assertEqual(self.g.host.clipboard, 'a\tb\r\n\u00e4\U0001f600\t"x\ny"')

    def test_quotes_are_not_doubled(self) -> None:
        self.g.Text[0, 0] = 'say "hi"'
        self.g.CopyToClipboard(0, 0, 0, 0)
        self.assertEqual(self.g.host.clipboard, 'say "hi"')

    def test_an_empty_last_line_leaves_the_clipboard(self) -> None:
        self.g.host.clipboard = "before"
        self.g.Text[0, 0] = "a"
        self.g.CopyToClipboard(0, 0, 1, 0)
        self.assertEqual(self.g.host.clipboard, "before")

    def test_a_block_comes_in(self) -> None:
        self.g.host.clipboard = 'a\t"b\r\n\r\nc"\td\r\n\r\ne'
        self.g.PasteFromClipboard(0, 0, 2, 2)
        self.assertEqual(
            self.texts(3, 3), [["a", "b\r\n\r\nc", "d"], ["", "", ""], ["e", "", ""]]
        )

    def test_what_does_not_fit_is_dropped(self) -> None:
        self.g.host.clipboard = "a\tb\r\nc\td"
        self.g.PasteFromClipboard(1, 1, 1, 1)
        self.assertEqual(self.texts(3, 3), [["", "", ""], ["", "a", ""], ["", "", ""]])

    def test_an_empty_clipboard_pastes_nothing(self) -> None:
        self.g.PasteFromClipboard(0, 0, 99, 99)
        self.assertEqual(self.g.Text[0, 0], "")

    def test_corners_outside_are_errors(self) -> None:
        self.fails(9, self.g.CopyToClipboard, 0, 0, 99, 0)
        self.fails(6, self.g.CopyToClipboard, 0, 0, 32768, 0)
        self.fails(6, self.g.PasteFromClipboard, 32767, 0, 0, 0)

    def test_no_event_is_raised_for_what_is_pasted(self) -> None:
        self.g.host.clipboard = "a"
        self.g.host.clear_log()
        self.g.PasteFromClipboard(0, 0, 0, 0)
        self.assertEqual(self.g.host.log, [])
        self.assertEqual(self.g.host.repaints, 1)


class TestScript(GridTest):
    def run_script(self, text: str) -> int:
        self.g.VXScriptClear()
        self.assertEqual(self.g.VXScriptAdd(text), -1)
        return self.g.VXScriptExecute()

    def test_sets_what_it_names(self) -> None:
        done = self.run_script(
            "<!-- look --><Cols>4</Cols>\n<Row>2</Row><Col>1</Col>"
            "<CellBackColor>&HFF</CellBackColor>"
            '<CellFontBold Row="1" Col="0">True</CellFontBold><ColWidth Col="2">80</ColWidth>'
        )
        self.assertEqual(done, -1)
        self.assertEqual(self.g.Cols, 4)
        self.assertEqual(self.g.CellBackColor[2, 1], 0xFF)
        self.assertTrue(self.g.CellFontBold[1, 0])
        self.assertEqual(self.g.ColWidth[2], 80)

    def test_a_fault_is_zero(self) -> None:
        self.assertEqual(self.run_script("<Rows>2</Rows><Cols>abc</Cols><Rows>3</Rows>"), 0)
        self.assertEqual(self.g.Rows, 2)
        self.assertEqual(self.run_script("<Rows>3</Rows>\n"), 0)
        self.assertEqual(self.g.Rows, 3)

    def test_an_error_of_a_setter_is_raised(self) -> None:
        for script, number in [
            ("<Rows>40000</Rows>", 6),
            ('<CellMode Row="99" Col="0">1</CellMode>', 9),
            ('<CellMode Row="99999" Col="0">1</CellMode>', 6),
        ]:
            self.fails(number, self.run_script, script)

    def test_a_handler_may_run_another_one(self) -> None:
        ran = []

        def populate(_: object) -> None:
            self.g.VXScriptClear()
            self.g.VXScriptAdd("<Caption>from inside</Caption>")
            ran.append(self.g.VXScriptExecute())

        self.g.RowStyle[0] = vornix.vxCustomDraw
        self.g.on("DrawCell", lambda e: None if ran else populate(e))
        done = self.run_script("<AltBkColor>1</AltBkColor><AltForeColor>2</AltForeColor>")
        self.assertEqual(done, -1)
        self.assertEqual(ran, [-1])
        self.assertEqual((self.g.Caption, self.g.AltForeColor), ("from inside", 2))


if __name__ == "__main__":
    unittest.main()
