"""docs/integrating.md tells the truth: its commands, run one after the other against an installed
metagen, print what it says."""

import os
import pathlib
import subprocess
import tempfile
import unittest

from console import read_example, run_example

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))


class IntegratingTest(unittest.TestCase):
    maxDiff = None

    def test_the_examples_print_what_it_says(self):
        example = read_example((ROOT / "docs" / "integrating.md").read_text(encoding="utf-8"))
        self.assertGreaterEqual(len(example.commands()), 20)
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as name:
            folder = pathlib.Path(name)
            prefix, home = folder / "installed", folder / "home"
            home.mkdir()
            subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True,
                           stdout=subprocess.DEVNULL)
            environment = {"PATH": f"{prefix / 'bin'}:{os.environ['PATH']}", "LANG": "C.UTF-8",
                           "HOME": str(home)}
            for step, printed in run_example(example, home, environment):
                with self.subTest(f"line {step.line}: {step.text}"):
                    self.assertEqual(step.expected, printed)


if __name__ == "__main__":
    unittest.main()
