"""Compares combine with its independent counterpart in tests/oracle."""

import json
import sys
import unittest

from harness import ABORTED, GOLDEN, LAUNCHER, ROOT, CommandTest, golden_text

sys.path.insert(0, str(ROOT / "tests" / "oracle"))
import combine as oracle  # noqa: E402
from random_stripped import Documents  # noqa: E402

ARGUMENTS = ["combine", "-i", "stripped.json", "-o", "combined.json"]

EXAMPLE = ROOT / "examples" / "stripped.json"
BASE = GOLDEN / "dump" / "bundled" / "base.json"

# Starting a process takes longer through a launcher.
SEEDS = range(60 if LAUNCHER else 400)


class BundledCatalogue(CommandTest):
    """The example's stripped document, over the catalogue that comes with the replay SDK."""

    def test_combines_as_the_rules_say(self):
        self.write("stripped.json", EXAMPLE.read_bytes())
        self.assert_run(ARGUMENTS, stdout=golden_text("combine", "bundled", "summary.txt"))
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


class RandomDocuments(CommandTest):
    def run_seed(self, seed):
        documents = Documents(seed)
        stripped = json.dumps(documents.stripped, ensure_ascii=seed % 2 == 0,
                              indent=2 if seed % 3 == 0 else None)
        base = json.dumps({"plugins": documents.live})
        self.write("stripped.json", stripped)
        expected = oracle.combine(base, stripped)
        self.assert_run(ARGUMENTS, stdout=expected.stdout, stderr=expected.stderr,
                        status=ABORTED if expected.status == oracle.ABORTED else expected.status,
                        catalogue=self.write("catalogue.json", base))
        self.assert_text_file("combined.json", expected.document)
        return expected

    def test_every_outcome_is_the_oracles(self):
        statuses = []
        printed_lines = 0
        for seed in SEEDS:
            with self.subTest(seed=seed):
                outcome = self.run_seed(seed)
                statuses.append(outcome.status)
                printed_lines += outcome.stdout.count("\n")
        # The documents are worth the while: most runs end well, and all ends come up.
        self.assertGreater(statuses.count(0), len(SEEDS) / 2)
        self.assertEqual({0, oracle.BROKEN_METADATA, oracle.ABORTED}, set(statuses))
        self.assertGreater(printed_lines, 20 * len(SEEDS))


if __name__ == "__main__":
    unittest.main()
