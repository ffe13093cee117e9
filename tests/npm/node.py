"""Runs tests that are written in JavaScript, with the npm packages that they need."""

import os
import pathlib
import shutil
import subprocess
import sys

from install import install

# One folder for all presets: the packages are the same.
_PACKAGES = pathlib.Path(__file__).resolve().parents[2] / "build" / "npm"


def run_tests(script):
    """Runs a file of tests; gives its exit status, 0 when all of them passed."""
    install(_PACKAGES)
    node = shutil.which("node")
    if node is None:
        raise FileNotFoundError("node is missing: install Node.js (Debian: nodejs)")
    finished = subprocess.run(
        [node, script], stdout=sys.stderr, check=False,
        env={**os.environ, "NODE_PATH": str(_PACKAGES / "node_modules")})
    return finished.returncode
