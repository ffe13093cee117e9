"""Holds the Kaitai Struct descriptions of the .bin files to the goldens: runs
descriptions_test.js with the packages that it needs."""

import pathlib
import sys
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "npm"))
from node import run_tests  # noqa: E402


class Descriptions(unittest.TestCase):
    def test_read_the_goldens_and_refuse_what_is_wrong(self):
        self.assertEqual(0, run_tests(HERE / "descriptions_test.js"))


if __name__ == "__main__":
    unittest.main()
