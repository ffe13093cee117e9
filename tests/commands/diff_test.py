"""The command diff: its report, and the ends of a run that can't compare."""

import json
import sys
import unittest

from harness import FAILURE, GOLDEN, LAUNCHER, ROOT, WINDOWS, CommandTest, golden_text

sys.path.insert(0, str(ROOT / "tests" / "oracle"))
import diff as oracle  # noqa: E402
from random_stripped import Documents  # noqa: E402

LEFT_NOT_OPENED = "Could not open left file"
RIGHT_NOT_OPENED = "Could not open right file"
OUTPUT_NOT_OPENED = "Could not open output file"
LEFT_BROKEN = "the left given json has errors inside"
RIGHT_BROKEN = "the right given json has errors inside"
NO_OBJECT = "JSON is not an object"

ARGUMENTS = ["diff", "-l", "left.json", "-r", "right.json", "-o", "diff.txt"]


class Report(CommandTest):
    def assert_report(self, left, right, expected):
        self.write("left.json", left)
        self.write("right.json", right)
        self.write("diff.txt", "what an earlier run left behind")
        self.assert_run(ARGUMENTS)
        self.assert_text_file("diff.txt", expected)

    def test_identical_documents_give_an_empty_file(self):
        document = '{"version": 3, "plugins": {"MtlA": {"type": "material"}}}'
        self.assert_report(document, document, "")

    def test_every_kind_of_line(self):
        self.assert_report(
            '{"version": 3, "plugins": {"MtlA": {"list": [1, 2], "params":'
            ' {"diffuse": {"defaultValue": "Color(1,1,1)"}}}, "MtlC": {"a": {"b": 1}}}}',
            '{"version": 4, "plugins": {"MtlA": {"list": [1, 2, 3], "params":'
            ' {"diffuse": {"defaultValue": "Color(0.5,0.5,0.5)"}}}, "MtlB": {}, "MtlC": {"a": 2},'
            ' "B": 0.1}, "a": 0.1, "B": "/"}',
            ":B is only present on right side\n"
            ":a is only present on right side\n"
            ":plugins:B is only present on right side\n"
            ":plugins:MtlA:list different values are [1,2] and [1,2,3]\n"
            ':plugins:MtlA:params:diffuse:defaultValue different values are "Color(1,1,1)" and '
            '"Color(0.5,0.5,0.5)"\n'
            ":plugins:MtlB is only present on right side\n"
            ':plugins:MtlC:a different values are {"b":1} and 2\n'
            ":version different values are 3 and 4\n")

    def test_text_after_the_document_is_ignored(self):
        self.assert_report('{"a": 1} {', '{"a": 1.0}\n\nx', "")

    def test_the_last_of_equal_members_wins(self):
        self.assert_report('{"a": {"b": 1}, "a": 2}', '{"a": 2}', "")

    def test_line_ends_of_the_input_do_not_matter(self):
        self.assert_report('{\r\n"a": 1\r\n}\r\n', '{\n"a": 2\n}\n',
                           ":a different values are 1 and 2\n")

    def test_a_document_may_stand_on_both_sides(self):
        self.write("same.json", '{"a": 1}')
        self.assert_run(["diff", "-l", "same.json", "-r", "same.json", "-o", "diff.txt"])
        self.assert_text_file("diff.txt", "")

    def test_objects_may_nest_1000_deep(self):
        left = '{"a":' * 1000 + "1" + "}" * 1000
        right = '{"a":' * 1000 + "2" + "}" * 1000
        self.assert_report(left, right, ":a" * 1000 + " different values are 1 and 2\n")


class Size(CommandTest):
    def test_an_object_of_very_many_members_takes_no_longer_than_its_size_asks_for(self):
        # Anything quadratic takes minutes, longer than a run may.
        names = [f"n{number:06}" for number in range(200_000)]
        self.write("left.json", json.dumps({name: {"a": 1} for name in names}))
        self.write("right.json", json.dumps({name + "x": {"a": 1} for name in names}))
        self.assert_run(ARGUMENTS)
        self.assert_text_file("diff.txt", "".join(
            f":{name} is only present on left side\n:{name}x is only present on right side\n"
            for name in names))


class Oracle(CommandTest):
    """Comparisons with the independent counterpart in tests/oracle."""

    BASE = GOLDEN / "dump" / "bundled" / "base.json"
    COMBINED = GOLDEN / "combine" / "bundled" / "combined.json"

    def test_the_example_is_reported_as_the_rules_say(self):
        self.write("left.json", self.BASE.read_bytes())
        self.write("right.json", self.COMBINED.read_bytes())
        self.assert_run(ARGUMENTS)
        self.assert_text_file("diff.txt", golden_text("diff", "bundled", "diff.txt"))

    def test_the_golden_is_what_the_rules_make_of_it(self):
        self.assertEqual(golden_text("diff", "bundled", "diff.txt"),
                         oracle.diff(self.BASE.read_text("utf-8"),
                                     self.COMBINED.read_text("utf-8")))

    def test_random_documents(self):
        reported_lines = 0
        seeds = 20 if LAUNCHER else 100
        for seed in range(seeds):
            with self.subTest(seed=seed):
                documents = Documents(seed)
                left = json.dumps({"plugins": documents.live, "notes": {"b": 1}, "a": [0, True]})
                right = json.dumps({"a": [-0.0, 1], **documents.stripped})
                self.write("left.json", left)
                self.write("right.json", right)
                expected = oracle.diff(left, right)
                self.assert_run(ARGUMENTS)
                self.assert_text_file("diff.txt", expected)
                reported_lines += expected.count("\n")
        self.assertGreater(reported_lines, 10 * seeds)


class Failure(CommandTest):
    """Every file is opened before either document is parsed; an output once opened stays."""

    def assert_failure(self, message, *files):
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=message)
        self.assert_files(*files)

    def assert_failure_after_opening(self, message):
        self.assert_failure(message, "diff.txt", "left.json", "right.json")
        self.assert_text_file("diff.txt", "")

    def write_both(self, left, right):
        self.write("left.json", left)
        self.write("right.json", right)

    def test_a_left_file_that_can_not_be_opened(self):
        self.assert_failure(LEFT_NOT_OPENED)

    def test_a_right_file_that_can_not_be_opened(self):
        self.write("left.json", "broken")
        self.assert_failure(RIGHT_NOT_OPENED, "left.json")

    def test_an_output_that_can_not_be_opened(self):
        self.write_both("broken", "broken")
        (self.folder / "diff.txt").mkdir()
        self.assert_failure(OUTPUT_NOT_OPENED, "left.json", "right.json")

    def test_an_output_folder_that_is_missing(self):
        self.write_both("broken", "broken")
        self.assert_run([*ARGUMENTS[:-1], "no/diff.txt"], status=FAILURE,
                        stderr=OUTPUT_NOT_OPENED)

    def test_a_folder_can_not_be_opened(self):
        (self.folder / "left.json").mkdir()
        self.assert_failure(LEFT_NOT_OPENED)
        (self.folder / "left.json").rmdir()
        self.write("left.json", "{}")
        (self.folder / "right.json").mkdir()
        self.assert_failure(RIGHT_NOT_OPENED, "left.json")

    @unittest.skipIf(WINDOWS, "takes a file of the system's that opens and can't be read")
    def test_a_file_that_can_not_be_read(self):
        self.write_both("{}", "{}")
        self.assert_run(["diff", "-l", "/proc/self/mem", *ARGUMENTS[3:]], status=FAILURE,
                        stderr=LEFT_NOT_OPENED)
        self.assert_run([*ARGUMENTS[:4], "/proc/self/mem", *ARGUMENTS[5:]], status=FAILURE,
                        stderr=RIGHT_NOT_OPENED)

    def test_a_broken_left_document(self):
        for text in ("", "{", "{'a': 1}", '{"a": 1,}', "\ufeff{}", '{"a": 1e999}', '{"a": nan}'):
            with self.subTest(text=text):
                self.write_both(text, "broken")
                self.assert_failure_after_opening(LEFT_BROKEN)

    def test_a_broken_right_document(self):
        for text in ("", "[", '{"a": -1e999}'):
            with self.subTest(text=text):
                self.write_both("[]", text)
                self.assert_failure_after_opening(RIGHT_BROKEN)

    def test_a_document_that_nests_too_deep(self):
        for begin, end in (('{"a":', "}"), ("[", "]"), ('{"a":[', "]}")):
            with self.subTest(begin=begin):
                self.write_both(begin * 1001 + "1" + end * 1001, "{}")
                self.assert_failure_after_opening(LEFT_BROKEN)
                self.write_both("{}", begin * 1_000_000)
                self.assert_failure_after_opening(RIGHT_BROKEN)

    def test_a_left_document_that_is_no_object(self):
        for text in ("[]", "null", '"text"', "1"):
            with self.subTest(text=text):
                self.write_both(text, "{}")
                self.assert_failure_after_opening(NO_OBJECT)

    def test_a_right_document_that_is_no_object(self):
        self.write_both("{}", "[{}]")
        self.assert_failure_after_opening(NO_OBJECT)

    def test_an_input_as_output_is_emptied_first(self):
        self.write_both('{"a": 1}', '{"a": 2}')
        self.assert_run([*ARGUMENTS[:-1], "right.json"], status=FAILURE, stderr=RIGHT_BROKEN)
        self.assert_text_file("right.json", "")
        self.assert_text_file("left.json", '{"a": 1}')


if __name__ == "__main__":
    unittest.main()
