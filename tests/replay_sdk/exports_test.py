"""The replay SDK shows exactly the entry points of the SDK's interface.

CMake hands over the folder of the libraries and the program that lists a library's symbols.
"""

import os
import pathlib
import re
import subprocess
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ["METAGEN_BUILD"])
LISTER = os.environ["METAGEN_SYMBOL_LISTER"]
WINDOWS = "objdump" in pathlib.Path(LISTER).name

sys.path.insert(0, str(ROOT / "tests" / "commands"))
from sdk_library import ENTRY_POINTS  # noqa: E402


def exports(root):
    """The names that the library in an SDK root exports."""
    library, = (path for path in (root / "bin").iterdir() if path.suffix in (".so", ".dll"))
    command = [LISTER, "-p", library] if WINDOWS else [LISTER, "-D", "--defined-only", library]
    listing = subprocess.run(command, capture_output=True, text=True, check=True).stdout
    if not WINDOWS:
        return {line.split()[-1] for line in listing.splitlines()}
    table = listing[listing.index("[Ordinal/Name Pointer] Table"):]
    return set(re.findall(r"^\t\[ *\d+\] (\w+)$", table.split("\n\n")[0], re.MULTILINE))


class Exports(unittest.TestCase):
    def test_the_interface_has_28_entry_points(self):
        self.assertEqual(28, len(ENTRY_POINTS))

    def test_the_library_shows_them_and_nothing_else(self):
        self.assertEqual(set(ENTRY_POINTS), exports(BUILD / "sdk"))


if __name__ == "__main__":
    unittest.main()
