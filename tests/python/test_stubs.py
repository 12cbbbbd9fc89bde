"""The package as mypy sees it: the examples pass, mistakes are found, stubs and modules agree."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path
from typing import Tuple

import vornix

HERE = Path(__file__).parent
EXAMPLES = HERE.parent.parent / "examples" / "python"


@unittest.skipUnless(shutil.which("mypy"), "mypy is not installed")
class TestStubs(unittest.TestCase):
    def run_tool(self, *command: str) -> Tuple[int, str]:
        """Status and output of a program that finds the package."""
        with tempfile.TemporaryDirectory() as cache:
            environment = dict(os.environ, MYPY_CACHE_DIR=cache, MYPYPATH=os.environ["PYTHONPATH"])
            done = subprocess.run(
                command,
                env=environment,
                stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT,
                universal_newlines=True,
                cwd=cache,
            )
        return done.returncode, done.stdout

    def test_the_examples_pass(self) -> None:
        examples = sorted(map(str, EXAMPLES.glob("*.py")))
        self.assertTrue(examples)
        for example in examples:
            status, output = self.run_tool("mypy", "--strict", example)
            self.assertEqual(status, 0, output)

    def test_the_package_passes(self) -> None:
        status, output = self.run_tool("mypy", "--strict", "-p", "vornix")
        self.assertEqual(status, 0, output)

    def test_mistakes_are_found_and_nothing_else(self) -> None:
        path = HERE / "typed_host.py"
        wrong = {
            number
            for number, line in enumerate(path.read_text().splitlines(), 1)
            if line.endswith("# wrong")
        }
        _, output = self.run_tool("mypy", "--strict", str(path))
        found = {int(number) for number in re.findall(r"typed_host\.py:(\d+): error", output)}
        self.assertEqual(found, wrong, output)

    @unittest.skipUnless(shutil.which("stubtest"), "stubtest is not installed")
    def test_stubs_and_modules_agree(self) -> None:
        package = Path(vornix.__file__).parent
        # A module without a stub is its own; an alias of names is a union to mypy.
        allowed = [
            rf"vornix\.{path.stem}\..*"
            for path in package.glob("*.py")
            if not path.with_suffix(".pyi").exists()
        ]
        with tempfile.TemporaryDirectory() as folder:
            allowlist = Path(folder) / "allowlist"
            names = ["vornix.events.EventName", "vornix.text_box_events.EventName"]
            allowlist.write_text("\n".join([*allowed, *names]))
            status, output = self.run_tool(
                "stubtest", "--ignore-unused-allowlist", "--allowlist", str(allowlist), "vornix"
            )
        self.assertEqual(status, 0, output)


if __name__ == "__main__":
    unittest.main()
