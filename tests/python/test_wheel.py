"""The wheel: installed from the file alone, into a place of its own."""

import os
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

WHEEL = Path(os.environ["VORNIX_WHEEL"])
PROGRAM = """
import sys, vornix
assert vornix.__file__.startswith(sys.prefix), vornix.__file__
g = vornix.Grid(200, 100)
g.Text[0, 0] = "installed"
g.host.save_png(sys.argv[1])
print(g.Text[0, 0])
"""


class TestWheel(unittest.TestCase):
    def test_it_holds_the_package_and_nothing_else(self) -> None:
        with zipfile.ZipFile(WHEEL) as wheel:
            names = wheel.namelist()
            self.assertIsNone(wheel.testzip())
        folders = {name.split("/")[0] for name in names}
        self.assertEqual(folders, {"vornix", "vornix-0.1.0.dist-info"})
        for name in ("__init__.py", "__init__.pyi", "py.typed", "libvornix.so.0", "_members.pyi"):
            self.assertIn(f"vornix/{name}", names)
        self.assertEqual(len(names), len(set(names)))

    def test_the_same_files_give_the_same_bytes(self) -> None:
        maker = Path(__file__).parents[2] / "bindings" / "python" / "make_wheel.py"
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "a.py"
            file.write_text("a = 1\n")
            made = []
            for place, time in (("one", 10**9), ("two", 1.5 * 10**9)):
                os.utime(file, (time, time))
                wheel = Path(folder) / place / WHEEL.name
                command = [sys.executable, "-B", str(maker), str(wheel)]
                command += ["--readme", str(file), "--license", str(file), "--files", str(file)]
                subprocess.run(command, check=True)
                made.append(wheel.read_bytes())
            self.assertEqual(*made)

    def test_it_installs_without_a_network_and_draws(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-m", "venv", f"{folder}/env"], check=True)
            python = f"{folder}/env/bin/python"
            picture = Path(folder) / "picture.png"
            environment = {
                name: value
                for name, value in os.environ.items()
                if name not in ("PYTHONPATH", "VORNIX_LIBRARY")
            }
            environment["PIP_DISABLE_PIP_VERSION_CHECK"] = "1"

            def run(*command: str) -> str:
                done = subprocess.run(
                    [python, *command],
                    env=environment,
                    cwd=folder,
                    check=True,
                    stdout=subprocess.PIPE,
                    universal_newlines=True,
                )
                return done.stdout

            run("-m", "pip", "install", "--quiet", "--no-index", str(WHEEL))
            self.assertEqual(run("-c", PROGRAM, str(picture)), "installed\n")
            self.assertEqual(picture.read_bytes()[:4], b"\x89PNG")
            self.assertIn("Version: 0.1.0", run("-m", "pip", "show", "vornix"))
            run("-m", "pip", "uninstall", "--quiet", "--yes", "vornix")


if __name__ == "__main__":
    unittest.main()
