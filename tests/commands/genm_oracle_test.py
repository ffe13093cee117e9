"""The command genm against an independent account of its rules, on random documents."""

import collections
import json
import sys
import unittest

from harness import ABORTED, LAUNCHER, ROOT, CommandTest, Run, text_bytes

sys.path.insert(0, str(ROOT / "tests" / "oracle"))
import genm as oracle  # noqa: E402
from random_meta import random_meta  # noqa: E402

# Starting a process through Wine takes long.
SEEDS = range(50 if LAUNCHER else 200)


def run_of(end):
    """The run that ends this way."""
    if end is None:
        return Run(0, b"", b"")
    if isinstance(end, oracle.Stop):
        return Run(end.status, text_bytes(end.stdout), text_bytes(end.stderr))
    return Run(ABORTED, b"", text_bytes(f"{end}\n"))


class RandomDocuments(CommandTest):
    def test_outputs_are_those_that_the_rules_give(self):
        ends = collections.Counter()
        for seed in SEEDS:
            with self.subTest(seed=seed):
                ends[self.check(random_meta(seed))] += 1
        # The documents are worth something: tables are made from most, but not from all.
        self.assertGreater(ends[None], len(SEEDS) // 2)
        self.assertGreater(len(ends), 1)

    def check(self, document):
        expected = oracle.genm(document)
        self.write("combined.json", json.dumps(document))
        run = self.run_metagen("genm", "-i", "combined.json", "-o", "code")
        self.assertEqual(run_of(expected.end), run)
        self.assert_text_file("code.inl", expected.source.decode("utf-8", "surrogateescape"))
        if expected.binary is not None:
            self.assert_binary_file("code.bin", expected.binary)
        return expected.end and type(expected.end)


if __name__ == "__main__":
    unittest.main()
