"""Runs every example: those of the interface file, each with a grid of its own, and the pages under docs."""

import doctest
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "interface" / "generator"))

import iface  # noqa: E402
import reference_pages  # noqa: E402
import vornix  # noqa: E402

OPTIONS = doctest.ELLIPSIS | doctest.IGNORE_EXCEPTION_DETAIL
INTERFACE = iface.read(ROOT / "interface" / "vornix.iface")


def failures(text: str, name: str, names: dict) -> str:
    """What the examples in a text answered otherwise than it says; empty when all is well."""
    test = doctest.DocTestParser().get_doctest(text, dict(names), name, name, 0)
    lines: list = []
    doctest.DocTestRunner(optionflags=OPTIONS, verbose=False).run(test, out=lines.append)
    return "".join(lines)


def grid_for_an_example() -> dict:
    names: dict = {}
    exec(reference_pages.EXAMPLE_START.replace(">>> ", ""), names)
    return names


class ExamplesOfMembers(unittest.TestCase):
    maxDiff = None

    def test_every_built_member_has_one(self) -> None:
        missing = [
            member.name
            for member in INTERFACE["Vornix"].members
            if not member.is_pending and not member.example.lines
        ]
        self.assertEqual(missing, [])

    def test_they_answer_as_they_say(self) -> None:
        for each in INTERFACE.classes:
            for member in each.members:
                if member.example.lines:
                    with self.subTest(member=member.name):
                        text = "\n".join(member.example.lines) + "\n"
                        self.assertEqual(failures(text, member.name, grid_for_an_example()), "")

    def test_a_wrong_answer_is_noticed(self) -> None:
        self.assertIn("Expected", failures(">>> g.Cols\n99\n", "Cols", grid_for_an_example()))


class ExamplesOfPages(unittest.TestCase):
    maxDiff = None

    def test_the_page_about_python_answers_as_it_says(self) -> None:
        text = (ROOT / "docs" / "python.md").read_text(encoding="utf-8").replace("```", "")
        here = os.getcwd()
        with tempfile.TemporaryDirectory() as folder:
            os.chdir(folder)
            try:
                self.assertEqual(failures(text, "python.md", {}), "")
                self.assertTrue(Path("people.png").is_file())
            finally:
                os.chdir(here)

    def test_the_pages_about_scripts_and_the_clipboard_answer_as_they_say(self) -> None:
        for page in ["script.md", "clipboard.md"]:
            with self.subTest(page=page):
                text = (ROOT / "docs" / page).read_text(encoding="utf-8").replace("```", "")
                self.assertIn(">>> import vornix", text)
                self.assertEqual(failures(text, page, {}), "")

    def test_the_program_of_the_page_about_c_builds_and_runs(self) -> None:
        text = (ROOT / "docs" / "c.md").read_text(encoding="utf-8")
        program = text.split("```c\n")[1].split("```")[0]
        library = Path(os.environ["C_LIBRARY"])
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "first.c").write_text(program, encoding="utf-8")
            flags = ["-std=c11", "-Wall", "-Wextra", "-Werror", "first.c", str(library)]
            flags += [f"-I{include}" for include in os.environ["C_INCLUDES"].split(":")]
            flags.append(f"-Wl,-rpath,{library.parent}")
            subprocess.run(["cc", *flags], cwd=folder, check=True)
            ran = subprocess.run(["./a.out"], cwd=folder, check=True, capture_output=True, text=True)
            self.assertEqual(ran.stdout, "6 characters\n")
            self.assertTrue((Path(folder) / "table.png").is_file())


if __name__ == "__main__":
    unittest.main()
