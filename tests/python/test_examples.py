"""The example programs run, and write their pictures."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

EXAMPLES = Path(__file__).parents[2] / "examples" / "python"


class TestExamples(unittest.TestCase):
    def test_orders(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            picture = Path(folder) / "orders.png"
            done = subprocess.run(
                [sys.executable, "-B", str(EXAMPLES / "orders.py"), str(picture)],
                check=True,
                stdout=subprocess.PIPE,
                universal_newlines=True,
            )
            lines = done.stdout.splitlines()
            self.assertEqual(lines, ["clicked: 1250.5", "totals: 1250.5 310 99.95 4020 87.4"])
            self.assertEqual(picture.read_bytes()[:4], b"\x89PNG")


if __name__ == "__main__":
    unittest.main()
