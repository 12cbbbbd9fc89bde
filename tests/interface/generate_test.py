"""The generator's command line, and that its table compiles only with the members that are there.

    generate_test.py COMPILER GENERATED   the C++ compiler, and the folder of generated headers
"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from typing import List

ROOT = Path(__file__).resolve().parents[2]
GENERATOR = ROOT / "interface" / "generator"
IFACE = ROOT / "interface" / "vornix.iface"
COMPILER = sys.argv[1] if len(sys.argv) > 1 else "c++"
GENERATED = sys.argv[2] if len(sys.argv) > 2 else ""


def run(*arguments: str) -> "subprocess.CompletedProcess[str]":
    command = [sys.executable, "-B", str(GENERATOR / "generate.py"), *arguments]
    return subprocess.run(command, capture_output=True, text=True, check=False)


def compiles(path: Path, *options: str) -> "subprocess.CompletedProcess[str]":
    command = [COMPILER, "-fsyntax-only", "-Wall", "-Wextra", "-Werror", *options, str(path)]
    return subprocess.run(command, capture_output=True, text=True, check=False)


class Folder(unittest.TestCase):
    def setUp(self) -> None:
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)


class CommandLine(Folder):
    def test_writes_an_output_and_its_folders(self) -> None:
        output = self.folder / "deep" / "down" / "constants.h"
        self.assertEqual(run(str(IFACE), "--emit", "c_constants", str(output)).returncode, 0)
        self.assertIn("vxCheckBox = 1", output.read_text(encoding="utf-8"))

    def test_leaves_a_file_alone_that_would_not_change(self) -> None:
        output = self.folder / "constants.h"
        run(str(IFACE), "--emit", "c_constants", str(output))
        before = output.stat().st_mtime_ns
        run(str(IFACE), "--emit", "c_constants", str(output))
        self.assertEqual(output.stat().st_mtime_ns, before)
        output.write_text("something else", encoding="utf-8")
        run(str(IFACE), "--emit", "c_constants", str(output))
        self.assertIn("vxCheckBox = 1", output.read_text(encoding="utf-8"))

    def test_counts_the_pending_lines(self) -> None:
        path = self.folder / "a.iface"
        head = 'class Vornix: S.\nfamily f "F": S.\n'
        path.write_text(head + "method A() [pending]: S.\nmethod B(): S.\n", encoding="utf-8")
        printed = run(str(path), "--count-pending").stdout
        self.assertEqual(printed, "pending: 1 lines of the interface\n")

    def test_names_the_line_of_a_fault(self) -> None:
        path = self.folder / "a.iface"
        path.write_text("class Vornix: S.\nnonsense\n", encoding="utf-8")
        result = run(str(path), "--emit", "c_constants", str(self.folder / "out.h"))
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr, "a.iface:2: cannot be read: nonsense\n")
        self.assertFalse((self.folder / "out.h").exists())

    def test_begins_every_source_with_where_it_is_from(self) -> None:
        sources = "member_table scroll_bar_table event_funnel event_functions c_constants constant_checks"
        for emitter in sources.split():
            output = self.folder / emitter
            self.assertEqual(run(str(IFACE), "--emit", emitter, str(output)).returncode, 0)
            first = output.read_text(encoding="utf-8").splitlines()[0]
            self.assertIn("Made from interface/vornix.iface; do not edit.", first)


class Constants(Folder):
    def setUp(self) -> None:
        super().setUp()
        self.header = self.folder / "vornix_constants.h"
        run(str(IFACE), "--emit", "c_constants", str(self.header))
        self.source = self.folder / "source.c"
        self.source.write_text(
            '#include "vornix_constants.h"\n'
            '_Static_assert(vxAlwaysVCenter == 2097152, "");\n'
            '_Static_assert(VORNIX_EVENT_DrawCell == 36, "");\n'
            "vxCellModeEnum mode = vxTextBox;\n",
            encoding="utf-8",
        )

    def test_are_c11(self) -> None:
        result = compiles(self.source, "-x", "c", "-std=c11", "-pedantic-errors")
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_are_cpp(self) -> None:
        result = compiles(self.header, "-x", "c++", "-std=c++98", "-pedantic-errors")
        self.assertEqual(result.returncode, 0, result.stderr)


@unittest.skipUnless(GENERATED, "needs the generated headers")
class Signatures(Folder):
    """The member table made of a file that says something else about one member."""

    def table(self, old: str, new: str) -> "subprocess.CompletedProcess[str]":
        text = IFACE.read_text(encoding="utf-8")
        self.assertEqual(text.count(old), 1, old)
        path = self.folder / "changed.iface"
        path.write_text(text.replace(old, new), encoding="utf-8")
        output = self.folder / "member_table.cpp"
        self.assertEqual(run(str(path), "--emit", "member_table", str(output)).returncode, 0)
        return compiles(output, "-std=c++20", *self.include_options())

    @staticmethod
    def include_options() -> List[str]:
        return [f"-I{folder}" for folder in (ROOT / "include", ROOT / "src", GENERATED)]

    def refused(self, old: str, new: str) -> None:
        result = self.table(old, new)
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("error", result.stderr)

    def test_compiles_as_it_is(self) -> None:
        result = self.table("property Rows() -> i16", "property Rows() -> i16")
        self.assertEqual(result.returncode, 0, result.stderr)

    def test_refuses_another_type(self) -> None:
        self.refused("property Rows() -> i16", "property Rows() -> i32")

    def test_refuses_an_argument_too_many(self) -> None:
        self.refused("method ReOrderCols()", "method ReOrderCols(Col: i16)")

    def test_refuses_another_by_reference_mark(self) -> None:
        self.refused("method ShowRow(Row: i16", "method ShowRow(ref Row: i16")

    def test_refuses_a_line_without_a_member(self) -> None:
        self.refused("method ReOrderCols()", "method ReorderCols()")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
