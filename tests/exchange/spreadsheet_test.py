#!/usr/bin/env python3
"""Tables that go from the grid to a real spreadsheet program and back, as the text of the clipboard.

LibreOffice Calc reads what the grid copied and says what its cells hold; then it writes them as tab-separated text, and
the grid pastes that. Ends with 77, which means "left out", only where LibreOffice Calc is not installed.
"""

import csv
import io
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import Dict, List

import vornix

LEFT_OUT = 77
PATIENCE = 240
Table = List[List[str]]

# What the program has written of the table below: kept, as it is also what a window finds on its clipboard.
WRITTEN = Path(__file__).resolve().parent / "written_by_spreadsheet.txt"

# Arrives as it is. The grid's line ends are CR LF.
TABLE: Table = [
    ["plain", "with blanks", "\u00e4\u00f6\u00fc\u00df \u20ac \u4e2d\u6587 \U0001f600"],
    ["two\r\nlines", "and\r\n\r\nan empty one", "comma, semicolon;"],
    ["", "007", "=1+1"],
    ['say "hi"', '"quoted" start', "1.5E3"],
    ["last", "", "2024-01-31"],
]

# Do not: the grid copies line feeds, tabs and quotes as they stand.
LINE_FEED: Table = [["a\nb", "c"], ["d", "e"]]
TAB: Table = [["a\tb", "c"], ["d", "e"]]
QUOTE_AT_LINE_END: Table = [['say "yes"\r\nand go', "c"], ["d", "e"]]
QUOTE_AT_START: Table = [['" a', 'c "'], ["d", "e"]]
TAB_IN_LINES: Table = [["a\tb\r\nc", "d"], ["e", "f"]]

# Cells of the spreadsheet's own, with texts that the grid cannot hand over.
OWN: Table = [
    ["plain", 'say "yes"\nand go', '"'],
    ['" a', 'a "', '"all"'],
]

TEXT_COLUMNS = "/".join(f"{column}/2" for column in range(1, 9))
READ_TEXT = f"Text - txt - csv (StarCalc):9,34,76,1,{TEXT_COLUMNS},1033,false,true"
READ_AS_IT_LIKES = "Text - txt - csv (StarCalc):9,34,76,1,,1033,false,true"
WRITE_TEXT = "tsv:Text - txt - csv (StarCalc):9,34,76,1,,1033,false,true"

NAMES = {
    "table": "urn:oasis:names:tc:opendocument:xmlns:table:1.0",
    "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0",
}


class Spreadsheet:
    """The program, in a folder of its own."""

    def __init__(self, folder: Path) -> None:
        self.folder = folder

    def convert(self, to: str, names: List[str], *options: str) -> None:
        subprocess.run(
            [
                "soffice",
                "--headless",
                f"-env:UserInstallation={(self.folder / 'profile').as_uri()}",
                *options,
                "--convert-to",
                to,
                "--outdir",
                str(self.folder),
                *(str(self.folder / name) for name in names),
            ],
            check=True,
            capture_output=True,
            timeout=PATIENCE,
        )

    def read(self, texts: Dict[str, str], read_text: str = READ_TEXT) -> Dict[str, Table]:
        """What the cells hold when it has read texts, by name."""
        for name, text in texts.items():
            (self.folder / f"{name}.txt").write_bytes(text.encode("utf-8"))
        self.convert("fods", [f"{name}.txt" for name in texts], f"--infilter={read_text}")
        return {name: cells_of(self.folder / f"{name}.fods") for name in texts}

    def write(self, names: List[str]) -> Dict[str, str]:
        """Tables it has read, as tab-separated texts."""
        self.convert(WRITE_TEXT, [f"{name}.fods" for name in names])
        return {
            name: (self.folder / f"{name}.tsv").read_bytes().decode("utf-8") for name in names
        }


def text_of(paragraph: ElementTree.Element) -> str:
    """Its text; runs of blanks and tabs are elements of their own."""
    text = paragraph.text or ""
    for element in paragraph:
        if element.tag == f"{{{NAMES['text']}}}s":
            text += " " * int(element.get(f"{{{NAMES['text']}}}c", "1"))
        elif element.tag == f"{{{NAMES['text']}}}tab":
            text += "\t"
        else:
            text += text_of(element)
        text += element.tail or ""
    return text


def cells_of(path: Path) -> Table:
    table: Table = []
    for row in ElementTree.parse(path).getroot().iter(f"{{{NAMES['table']}}}table-row"):
        cells: List[str] = []
        for cell in row.findall("table:table-cell", NAMES):
            paragraphs = [text_of(each) for each in cell.findall("text:p", NAMES)]
            repeated = int(cell.get(f"{{{NAMES['table']}}}number-columns-repeated", "1"))
            cells += ["\n".join(paragraphs)] * repeated
        table.append(cells)
    return table


def grid_with(table: Table) -> vornix.Grid:
    grid = vornix.Grid(320, 240)
    grid.FixedRows = grid.FixedCols = 0
    grid.Rows, grid.Cols = len(table), len(table[0])
    for row, cells in enumerate(table):
        for col, text in enumerate(cells):
            grid.Text[row, col] = text
    return grid


def copied(table: Table) -> str:
    grid = grid_with(table)
    grid.CopyToClipboard(0, 0, len(table) - 1, len(table[0]) - 1)
    return grid.host.clipboard


def pasted(text: str, rows: int, cols: int) -> Table:
    """The cells of an empty table into which a text was pasted, its lines ended much as a window does it: where there is no
    CR LF, each line feed outside of quotes becomes one."""
    if "\r\n" not in text:
        text = re.sub(r'"(?:[^"]|"")*"|\n', lambda m: "\r\n" if m.group() == "\n" else m.group(), text)
    grid = grid_with([[""] * cols for _ in range(rows)])
    grid.host.clipboard = text
    grid.PasteFromClipboard(0, 0, rows - 1, cols - 1)
    return [[grid.Text[row, col] for col in range(cols)] for row in range(rows)]


def with_line_feeds(table: Table) -> Table:
    return [[text.replace("\r\n", "\n") for text in cells] for cells in table]


class BothWays(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls) -> None:
        cls.folder = tempfile.TemporaryDirectory()
        cls.spreadsheet = Spreadsheet(Path(cls.folder.name))
        own = io.StringIO()
        csv.writer(own, delimiter="\t", lineterminator="\n").writerows(OWN)
        texts = {
            "table": copied(TABLE),
            "line_feed": copied(LINE_FEED),
            "tab": copied(TAB),
            "quote_at_line_end": copied(QUOTE_AT_LINE_END),
            "quote_at_start": copied(QUOTE_AT_START),
            "tab_in_lines": copied(TAB_IN_LINES),
            "own": own.getvalue(),
        }
        cls.read = cls.spreadsheet.read(texts)
        cls.written = cls.spreadsheet.write(["table", "own"])

    @classmethod
    def tearDownClass(cls) -> None:
        cls.folder.cleanup()

    def test_what_the_grid_copied_arrives(self) -> None:
        self.assertEqual(self.read["table"], with_line_feeds(TABLE))

    def test_line_feeds_alone_and_tabs_split_a_cell_there(self) -> None:
        self.assertEqual(self.read["line_feed"], [["a", ""], ["b", "c"], ["d", "e"]])
        self.assertEqual(self.read["tab"], [["a", "b", "c"], ["d", "e", ""]])

    def test_a_tab_in_a_cell_of_several_lines_is_lost(self) -> None:
        self.assertEqual(self.read["tab_in_lines"], [["ab\nc", "d"], ["e", "f"]])

    def test_quotes_at_the_end_of_a_line_or_the_start_of_a_text_may_change_what_arrives(self) -> None:
        self.assertNotEqual(self.read["quote_at_line_end"], with_line_feeds(QUOTE_AT_LINE_END))
        self.assertNotEqual(self.read["quote_at_start"], QUOTE_AT_START)

    def test_its_own_quotes_arrive_doubled(self) -> None:
        self.assertEqual(self.read["own"], OWN)
        expected = [[text.replace('"', '""') for text in cells] for cells in OWN]
        # A text of quotes alone keeps those around it.
        expected[0][2] = '""""'
        self.assertEqual(pasted(self.written["own"], 2, 3), expected)

    def test_what_it_writes_is_what_a_window_is_tested_with(self) -> None:
        self.assertEqual(self.written["table"], WRITTEN.read_bytes().decode("utf-8"))

    def test_what_it_writes_is_pasted(self) -> None:
        expected = with_line_feeds(TABLE)
        # It doubles the quotes inside a text, and the grid leaves them as they are.
        expected[3][0] = 'say ""hi""'
        expected[3][1] = '""quoted"" start'
        self.assertEqual(pasted(self.written["table"], len(TABLE), len(TABLE[0])), expected)

    def test_what_the_grid_copied_from_a_paste_arrives_again(self) -> None:
        once = pasted(self.written["table"], 3, 3)
        self.assertEqual(once, with_line_feeds(TABLE[:3]))
        # The cells of several lines now hold line feeds alone, which would split them.
        lines = [[text.replace("\n", "\r\n") for text in cells] for cells in once]
        self.assertEqual(copied(lines), copied(TABLE[:3]))


class AsItLikes(unittest.TestCase):
    def test_left_to_itself_it_takes_texts_for_numbers_and_formulas(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            read = Spreadsheet(Path(folder)).read({"table": copied(TABLE)}, READ_AS_IT_LIKES)["table"]
        self.assertEqual(read[2][1:], ["7", "2"])
        self.assertEqual(read[:2], with_line_feeds(TABLE[:2]))


if __name__ == "__main__":
    if shutil.which("soffice") is None:
        print("LEFT OUT: the exchange with a spreadsheet program; LibreOffice Calc (soffice) is not installed")
        sys.exit(LEFT_OUT)
    unittest.main()
