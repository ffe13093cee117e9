"""The command line: words, options, the order of checks, and exit statuses."""

import json
import unittest

from harness import ABORTED, FAILURE, LOAD_FAILURE, TEST_LIBRARIES, USAGE, CommandTest

INPUT_MISSING = "Input file not specified\n"
OUTPUT_MISSING = "Output file not specified\n"
LEFT_MISSING = "Left hand side file not specified\n"
RIGHT_MISSING = "Right hand side file not specified\n"

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


class Environment(CommandTest):
    def test_only_the_variables_of_the_sdk_count(self):
        settings = {"MALLOC_CONF": "stats_print:true,abort_conf:true,nonsense", "LANG": "de_DE",
                    "POSIXLY_CORRECT": "1"}
        self.assert_run([], stdout=USAGE, environment=settings)
        self.assert_run(["dump", "-o", "base.json"], environment=settings)


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


class MissingOptions(CommandTest):
    def assert_missing(self, message, *arguments):
        self.assert_run(arguments, status=FAILURE, stdout=message)
        self.assert_files()

    def test_dump_needs_an_output(self):
        self.assert_missing(OUTPUT_MISSING, "dump")
        self.assert_missing(OUTPUT_MISSING, "dump", "-i", "x")

    def test_diff_asks_for_left_then_right_then_output(self):
        self.assert_missing(LEFT_MISSING, "diff")
        self.assert_missing(LEFT_MISSING, "diff", "-o", "d.txt")
        self.assert_missing(LEFT_MISSING, "diff", "-i", "a.json", "-o", "d.txt")
        self.assert_missing(RIGHT_MISSING, "diff", "-l", "a.json", "-o", "d.txt")
        self.assert_missing(RIGHT_MISSING, "diff", "-l", "a.json")
        self.assert_missing(OUTPUT_MISSING, "diff", "-l", "a.json", "-r", "b.json")

    def test_the_others_ask_for_input_then_output(self):
        for word in ("combine", "genh", "genm", "frobnicate"):
            with self.subTest(word=word):
                self.assert_missing(INPUT_MISSING, word)
                self.assert_missing(INPUT_MISSING, word, "-o", "out")
                self.assert_missing(INPUT_MISSING, word, "-l", "a", "-r", "b", "-o", "out")
                self.assert_missing(OUTPUT_MISSING, word, "-i", "in.json")


class OptionPairs(CommandTest):
    """Options are read as pairs from the first word after the command on."""

    def assert_dumps_to(self, name, *arguments):
        self.assert_run(arguments)
        self.assert_files(name)
        json.loads(self.read_text(name))

    def assert_no_output_named(self, *arguments):
        self.assert_run(arguments, status=FAILURE, stdout=OUTPUT_MISSING)
        self.assert_files()

    def test_the_last_of_equal_options_wins(self):
        self.assert_dumps_to("b.json", "dump", "-o", "a.json", "-o", "b.json")

    def test_options_that_a_command_does_not_use_are_ignored(self):
        self.assert_dumps_to("y", "dump", "-i", "x", "-o", "y")

    def test_a_pair_that_is_no_option_is_skipped_whole(self):
        self.assert_dumps_to("out.json", "dump", "-x", "-o", "-o", "out.json")

    def test_a_value_may_look_like_an_option(self):
        self.assert_dumps_to("-i", "dump", "-o", "-i")

    def test_file_names_may_have_any_letters(self):
        self.assert_dumps_to("\u00fc \u6771\u4eac 100%.json",
                             "dump", "-o", "\u00fc \u6771\u4eac 100%.json")

    def test_an_option_without_its_value_is_ignored(self):
        self.assert_no_output_named("dump", "-o")

    def test_an_odd_word_at_the_end_is_ignored(self):
        self.assert_dumps_to("a.json", "dump", "-o", "a.json", "-o")

    def test_a_stray_word_shifts_every_later_pair(self):
        self.assert_no_output_named("dump", "foo", "-o", "out.json")

    def test_option_names_are_exact(self):
        for name in ("-O", "-ox", "--o", "o", "-"):
            with self.subTest(name=name):
                self.assert_no_output_named("dump", name, "out.json")


class Dispatch(CommandTest):
    """Each command gets the files of its own options; this shows in what it can't open."""

    def assert_fails(self, message, *arguments):
        self.assert_run(arguments, status=FAILURE, stderr=message)

    def test_combine_opens_its_input(self):
        self.assert_fails("Could not open the file - in.json",
                          "combine", "-x", "y", "-i", "in.json", "-o", "out.json")

    def test_diff_opens_left_then_right_then_output(self):
        arguments = ("diff", "-l", "l.json", "-r", "r.json", "-o", "missing/d.txt")
        self.assert_fails("Could not open left file", *arguments)
        self.write("l.json", "{}")
        self.assert_fails("Could not open right file", *arguments)
        self.write("r.json", "{}")
        self.assert_fails("Could not open output file", *arguments)

    def test_genh_opens_its_input(self):
        self.assert_fails("Could not open the file - in.json", "genh", "-i", "in.json", "-o", "code")

    def test_genm_opens_its_input(self):
        self.assert_fails("Could not open input file", "genm", "-i", "in.json", "-o", "code")


# What each command can't open when no input is there, and when its inputs are but the folder of its
# output isn't. No two commands fail alike on both.
UNOPENED = {
    "combine": ("Could not open the file - in.json", "Failed to open the output"),
    "diff": ("Could not open left file", "Could not open output file"),
    "dump": ("Could not open file", "Could not open file"),
    "genh": ("Could not open the file - in.json", "Could not open the INL output file"),
    "genm": ("Could not open input file", "Could not open the INL output file"),
}


class CommandWords(CommandTest):
    def test_each_runs_its_command_in_any_case(self):
        for word, messages in UNOPENED.items():
            for spelling in (word, word.upper(), word.title(), word[:1] + word[1:].upper()):
                with self.subTest(word=spelling):
                    self.assert_fails_to_open(messages, spelling)

    def assert_fails_to_open(self, messages, word):
        files = ["in.json", "left.json", "right.json"]
        for message in messages:
            self.assert_run([word, "-i", files[0], "-l", files[1], "-r", files[2],
                             "-o", "missing/out"], status=FAILURE, stderr=message)
            for name in files:
                self.write(name, "{}")
        for name in files:
            (self.folder / name).unlink()

    def test_case_does_not_matter(self):
        for word in ("dump", "DuMp", "DUMP", "Dump"):
            with self.subTest(word=word):
                self.assert_run([word, "-o", "x.json"])
                self.assert_files("x.json")
                (self.folder / "x.json").unlink()

    def test_an_unknown_word_with_both_files_prints_the_usage(self):
        for word in ("frobnicate", "", "dum", "dumpp", "d\u00dcmp", "-o"):
            with self.subTest(word=word):
                self.assert_run([word, "-i", "a", "-o", "b"], stdout=USAGE)
                self.assert_files()


class CommandsOwnEnds(CommandTest):
    def test_a_fatal_condition_of_a_command_is_its_own_to_report(self):
        self.assert_run(["dump", "-o", "missing/base.json"], status=FAILURE,
                        stderr="Could not open file")
        self.assert_files()


if __name__ == "__main__":
    unittest.main()
