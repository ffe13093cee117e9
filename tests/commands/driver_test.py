"""The command line: words, options, the order of checks, and exit statuses."""

import unittest

from harness import ABORTED, FAILURE, LOAD_FAILURE, TEST_LIBRARIES, USAGE, CommandTest

NO_SDK = {"QYRA_SDK": None}
ABORTING_SDK = {"QYRA_SDK": TEST_LIBRARIES / "aborting_sdk"}


class NoCommandWord(CommandTest):
    def test_prints_the_usage(self):
        self.assert_run([], stdout=USAGE)

    def test_asks_for_no_sdk(self):
        self.assert_run([], stdout=USAGE, environment=NO_SDK)

    def test_loads_no_library(self):
        self.assert_run([], stdout=USAGE, environment=ABORTING_SDK)
        # The same library does end a run that loads it.
        run = self.run_metagen("dump", environment=ABORTING_SDK)
        self.assertEqual(ABORTED, run.status)


class MissingSdk(CommandTest):
    """The SDK comes up before any option is looked at, whatever the word."""

    def assert_load_failure(self, *arguments):
        self.assert_run(arguments, status=FAILURE, stdout=LOAD_FAILURE, environment=NO_SDK)
        self.assert_files()

    def test_comes_before_a_missing_option(self):
        self.assert_load_failure("dump")

    def test_comes_before_the_output_is_opened(self):
        self.assert_load_failure("dump", "-o", "base.json")

    def test_fails_a_command_that_uses_no_sdk(self):
        self.assert_load_failure("diff", "-l", "a.json", "-r", "b.json", "-o", "d.txt")

    def test_comes_before_an_unknown_word(self):
        self.assert_load_failure("frobnicate")
        self.assert_load_failure("frobnicate", "-i", "a", "-o", "b")


if __name__ == "__main__":
    unittest.main()
