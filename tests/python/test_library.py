"""Finding the C library."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from typing import Dict, Tuple

import vornix

PACKAGE = Path(vornix.__file__).parent
LIBRARY = "libvornix.so.0"
PROGRAM = "import vornix; print(vornix.Grid(10, 10).Rows)"


class TestLibrary(unittest.TestCase):
    def setUp(self) -> None:
        """A copy of the package without its library."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        ignored = shutil.ignore_patterns(LIBRARY, "__pycache__")
        shutil.copytree(PACKAGE, self.folder / "vornix", ignore=ignored)

    def run_program(self, **variables: str) -> Tuple[int, str, str]:
        environment: Dict[str, str] = dict(os.environ, PYTHONPATH=str(self.folder), **variables)
        done = subprocess.run(
            [sys.executable, "-B", "-c", PROGRAM],
            env=environment,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            universal_newlines=True,
        )
        return done.returncode, done.stdout, done.stderr

    def test_beside_the_package(self) -> None:
        shutil.copy(PACKAGE / LIBRARY, self.folder / "vornix")
        self.assertEqual(self.run_program(), (0, "1\n", ""))

    def test_among_the_libraries_of_the_system(self) -> None:
        shutil.copy(PACKAGE / LIBRARY, self.folder)
        self.assertEqual(self.run_program(LD_LIBRARY_PATH=str(self.folder)), (0, "1\n", ""))

    def test_by_the_environment_variable(self) -> None:
        path = self.folder / "other name.so"
        shutil.copy(PACKAGE / LIBRARY, path)
        self.assertEqual(self.run_program(VORNIX_LIBRARY=str(path)), (0, "1\n", ""))

    def test_nowhere(self) -> None:
        status, _, errors = self.run_program(LD_LIBRARY_PATH="")
        if status == 0:
            self.skipTest("the library is installed on this system")
        self.assertIn("ImportError: vornix needs libvornix.so.0", errors)
        self.assertIn("VORNIX_LIBRARY", errors)

    def test_a_variable_that_names_nothing(self) -> None:
        shutil.copy(PACKAGE / LIBRARY, self.folder / "vornix")
        status, _, errors = self.run_program(VORNIX_LIBRARY="/nowhere/library.so")
        self.assertEqual(status, 1)
        self.assertIn("ImportError: vornix needs libvornix.so.0", errors)
        self.assertIn("/nowhere/library.so", errors)

    def test_a_library_of_another_version(self) -> None:
        shutil.copy(PACKAGE / LIBRARY, self.folder / "vornix")
        version = self.folder / "vornix" / "_version.py"
        version.write_text(version.read_text().replace(vornix.__version__, "99.0.0"))
        status, _, errors = self.run_program()
        self.assertEqual(status, 1)
        self.assertIn(f"which is {vornix.__version__}", errors)

    def test_a_library_that_is_another(self) -> None:
        status, _, errors = self.run_program(VORNIX_LIBRARY="libm.so.6")
        self.assertEqual(status, 1)
        self.assertIn("ImportError: vornix", errors)


if __name__ == "__main__":
    unittest.main()
