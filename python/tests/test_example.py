"""The example prints the annotations and holes of a capture."""

import os
import subprocess
import sys
import unittest
from pathlib import Path

from support import FULL_ROWS, PACKAGE

EXAMPLE = PACKAGE / "examples/pmi_and_holes.py"


def printed(capture: Path) -> "subprocess.CompletedProcess[str]":
    environment = {**os.environ, "PYTHONPATH": str(PACKAGE), "PYTHONDONTWRITEBYTECODE": "1", "PYTHONUTF8": "1"}
    return subprocess.run([sys.executable, EXAMPLE, capture], env=environment, capture_output=True, text=True)


class Example(unittest.TestCase):
    def test_tables(self) -> None:
        done = printed(FULL_ROWS)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        rows = {" ".join(line.split()) for line in done.stdout.splitlines()}
        face = "face 18446744073709551615"
        for row in (
            "Dimensions: 2",
            f"n b u [p f s] H7/g6 a l w {face}",
            f"n A1 ⌀u area_face {face}",
            f"n Ra 3.2 b {face}",
            "Holes: 5",
            "n counter bore ⌀1.5 4.5 d ↧2.5, d ↧2.5 ⌀6.5 ↧9.5 (1 2 3) (4 5 6)",
            "External threads: 1",
        ):
            self.assertIn(row, rows)

    def test_no_capture(self) -> None:
        done = printed(EXAMPLE)
        self.assertIn("FormatError: this is no capture", done.stderr)
        self.assertEqual(done.returncode, 1)


if __name__ == "__main__":
    unittest.main()
