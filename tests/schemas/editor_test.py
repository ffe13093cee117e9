"""Holds the schema of stripped documents to what editors make of it: runs editor_test.js with the
packages that it needs."""

import pathlib
import sys
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "npm"))
from node import run_tests  # noqa: E402


class Editor(unittest.TestCase):
    def test_completes_explains_and_marks(self):
        self.assertEqual(0, run_tests(HERE / "editor_test.js"))


if __name__ == "__main__":
    unittest.main()
