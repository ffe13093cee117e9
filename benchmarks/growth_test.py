"""A document ten times as large takes a command at most eleven times the instructions.

Instructions are counted by callgrind, because they don't move with the machine's load. What a
document without a plugin takes, which is the start of the process, is taken off both; and as the
documents are made by chance, and not ten times as large to the byte, the instructions are held
against the bytes that the command reads or, for dump, writes.
"""

import os
import pathlib
import re
import shutil
import tempfile
import unittest

import subjects
from workbench import ROOT, Workbench

BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))

# Large enough for what grows with the square to show: 60 and 600 classes.
NOTHING, SMALL, LARGE = 0, 0.1, 1
MOST = 11

DOCUMENTS = {"dump": ["base.json"], "combine": ["base.json", "stripped.json"],
             "diff": ["base.json", "revised.json"], "genh": ["combined.json"],
             "genm": ["combined.json"]}

COUNTED = re.compile(rb"^==\d+== Collected : (\d+)$", re.MULTILINE)


class Growth(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if shutil.which("valgrind") is None:
            raise FileNotFoundError("valgrind, which counts the instructions")
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="metagen-growth-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.nothing, cls.small, cls.large = (
            Workbench(BUILD, cls.folder, scale) for scale in (NOTHING, SMALL, LARGE))
        for bench in (cls.nothing, cls.small, cls.large):
            bench.make_documents()

    def instructions(self, command, bench):
        log = self.folder / "callgrind.txt"
        bench.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                   f"--log-file={log}", *subjects.subject(command, bench).tool.command])
        return int(COUNTED.search(log.read_bytes())[1])

    def per_byte(self, command, bench):
        size = sum(bench.path(name).stat().st_size for name in DOCUMENTS[command])
        start = self.instructions(command, self.nothing)
        return (self.instructions(command, bench) - start) / size

    def assert_growth(self, command):
        small, large = (self.per_byte(command, bench) for bench in (self.small, self.large))
        print(f"{command}: {small:.1f} and {large:.1f} instructions for a byte, "
              f"{10 * large / small:.2f}-fold for ten times as many")
        self.assertGreater(small, 10)  # else it was not the documents that were worked on
        self.assertLessEqual(10 * large / small, MOST)

    def test_dump(self):
        self.assert_growth("dump")

    def test_combine(self):
        self.assert_growth("combine")

    def test_diff(self):
        self.assert_growth("diff")

    def test_genh(self):
        self.assert_growth("genh")

    def test_genm(self):
        self.assert_growth("genm")


if __name__ == "__main__":
    unittest.main()
