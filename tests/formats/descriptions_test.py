"""Holds the Kaitai Struct descriptions of the .bin files to the goldens: runs
descriptions_test.js with the packages that it needs."""

import os
import pathlib
import shutil
import subprocess
import sys
import unittest

from install import install

HERE = pathlib.Path(__file__).resolve().parent
# One folder for all presets: the packages are the same.
PACKAGES = HERE.parents[1] / "build" / "npm"


class Descriptions(unittest.TestCase):
    def test_read_the_goldens_and_refuse_what_is_wrong(self):
        install(PACKAGES)
        node = shutil.which("node")
        self.assertIsNotNone(node, "node is missing: install Node.js (Debian: nodejs)")
        finished = subprocess.run(
            [node, HERE / "descriptions_test.js"], stdout=sys.stderr, check=False,
            env={**os.environ, "NODE_PATH": str(PACKAGES / "node_modules")})
        self.assertEqual(0, finished.returncode)


if __name__ == "__main__":
    unittest.main()
