"""Holds the commands against the independent accounts of them in tests/oracle, on some random
documents and on the bundled catalogue; tests/oracle/agreement.py takes any number of documents."""

import collections
import json
import sys
import unittest

from harness import ABORTED, BROKEN_METADATA, GOLDEN, LAUNCHER, ROOT, CommandTest, golden_text

sys.path.insert(0, str(ROOT / "tests" / "oracle"))
import agreement  # noqa: E402
import combine as oracle  # noqa: E402

# Starting a process takes longer through a launcher.
SEEDS = range(60 if LAUNCHER else 200)

# How the runs on them end.
ENDS = {"dump": {0}, "combine": {0, BROKEN_METADATA, ABORTED}, "diff": {0},
        "genh": {0, 1, ABORTED}, "genm": {0, 1, BROKEN_METADATA, ABORTED}, "lint": {0, 1}, "fix": {0}}

EXAMPLE = ROOT / "examples" / "stripped.json"
BASE = GOLDEN / "dump" / "bundled" / "base.json"


class RandomDocuments(unittest.TestCase):
    def test_every_outcome_is_the_accounts(self):
        self.assertEqual(set(agreement.CASES), set(ENDS))
        for command, ends in ENDS.items():
            with self.subTest(command):
                found = collections.Counter()
                for seed in SEEDS:
                    self.assertIsNone(agreement.check((command, seed)))
                    found[agreement.expected_status(agreement.case_of(command, seed))] += 1
                # The documents are worth the while: most runs end well, and all ends come up.
                self.assertEqual(ends, set(found))
                self.assertGreater(found[0], len(SEEDS) / 4)


class BundledCatalogue(CommandTest):
    """The example's stripped document, over the catalogue that comes with the replay SDK."""

    def test_combines_as_the_rules_say(self):
        self.write("stripped.json", EXAMPLE.read_bytes())
        self.assert_run(["combine", "-i", "stripped.json", "-o", "combined.json"],
                        stdout=golden_text("combine", "bundled", "summary.txt"))
        self.assert_text_file("combined.json", golden_text("combine", "bundled", "combined.json"))

    def test_the_goldens_are_what_the_rules_make_of_it(self):
        outcome = oracle.combine(BASE.read_text("utf-8"), EXAMPLE.read_text("utf-8"))
        self.assertEqual(0, outcome.status)
        self.assertEqual(golden_text("combine", "bundled", "summary.txt"), outcome.stdout)
        self.assertEqual(golden_text("combine", "bundled", "combined.json"), outcome.document)

    def test_shows_what_hosts_do(self):
        stripped = json.loads(EXAMPLE.read_bytes())
        plugins = [plugin for plugin in stripped["plugins"].values() if plugin]
        self.assertGreaterEqual(len(plugins), 25)
        handlers = {parameter.get("handler") for plugin in plugins
                    for parameter in plugin["params"].values() if parameter}
        self.assertLessEqual({"ColorTexFrameHandler", "FloatTexFrameHandler", "DuplicateHandler",
                              "FileBrowserHandler"}, handlers)
        self.assertIsInstance(stripped["version"], int)


if __name__ == "__main__":
    unittest.main()
