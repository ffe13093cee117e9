"""Whole runs of metagen-lint: what it says of mistakes, in every format, how it fixes and ends."""

import json
import os
import re
import stat
import subprocess
import unittest

import harness
from harness import ROOT, CommandTest

MISTAKES = ROOT / "tests" / "lint" / "mistakes.txt"
FORMATS = ("text", "json", "sarif", "github")
LINE = re.compile(r"(?P<path>.*?):(?P<line>\d+):(?P<column>\d+): "
                  r"(?P<severity>error|warning|note): (?P<message>.*?)(?: \[(?P<rule>[a-z-]+)\])?")
FAILED = 2

# The pattern of the matcher $gcc, and Vim's default 'errorformat' "%f:%l:%c:%m" as a pattern.
GCC_MATCHER = re.compile(r"^(.*):(\d+):(\d+):\s+(?:fatal\s+)?(warning|error|note):\s+(.*)$")
VIM_FORMAT = re.compile(r"^(.+?):(\d+):(\d+):(.*)$")

BASE = """{"plugins": {"Glass": {"type": "material", "params": {
"depth": {"type": "float", "defaultValue": "1"},
"level": {"type": "integer", "defaultValue": "#BadValue"},
"tint": {"type": "color", "defaultValue": "Color(1, 1, 1)"}}},
"Door": {"type": "light", "params": {}}, "Light": {"type": "light", "params": {}}}}"""
PREVIOUS = """{"plugins": {"Glass": {"type": "BRDF", "params": {
"depth": {"type": "integer", "defaultValue": "2"},
"fog": {"type": "bool", "defaultValue": "0"}, "level": {"type": "integer"},
"tint": {"type": "vector"}}},
"Lamp": {"type": "light", "params": {"power": {"type": "float"}}}}}"""
UPGRADED = """{"version": 1, "plugins": {
"Glass": {"type": "own",
"params": {"depth": {"defaultValue": "3"},
"fog": {"type": "bool"}, "level": {"defaultValue": "0"},
"tint": {"scaling": {"power": 2}}}},
"Lamp": {"type": "light", "params": {"power": {"defaultValue": "2"}}},
"Door": null
}}"""
UPGRADE = """\
stripped.json:2:19: warning: the SDK's category of Glass changed from "BRDF" to "material" below \
this one [category-changed]
stripped.json:3:22: warning: the SDK's "type" of Glass depth changed from "integer" to "float" \
below this [type-changed]
stripped.json:3:38: note: the SDK's default of Glass depth changed from "2" to "1" below this one \
[default-changed]
stripped.json:4:1: error: the new SDK's Glass no longer has the parameter "fog" [removed-parameter]
stripped.json:4:52: note: the SDK's default of Glass level changed from none to "#BadValue" below \
this one [default-changed]
stripped.json:5:10: warning: the SDK's "type" of Glass tint changed from "vector" to "color" \
below this [type-changed]
stripped.json:6:1: error: the new SDK no longer has the plugin "Lamp" [removed-plugin]
"""


class Mistake:
    """A case of the table."""

    def __init__(self, text):
        lines = text.split("\n")
        self.name = lines.pop(0)
        self.expected = [line[3:] for line in lines if line.startswith("-> ")]
        content = [line for line in lines if not line.startswith("-> ")]
        while content and not content[-1]:
            content.pop()
        is_whole = content[:1] == ["whole"]
        self.document = "\n".join(content[1:] if is_whole else [
            '{"version": 1, "plugins": {', *content, "}}"])
        self.rules = {LINE.fullmatch(f":{line}")["rule"] for line in self.expected} - {None}


def read_mistakes():
    """The base document and the cases."""
    introduction, *cases = MISTAKES.read_text(encoding="utf-8").split("\n== ")
    return introduction[introduction.index("{"):], [Mistake(case) for case in cases]


def findings_in_text(output):
    return [(int(found["line"]), int(found["column"]), found["severity"], found["rule"],
             found["message"]) for found in map(LINE.fullmatch, output.splitlines())
            if found["rule"]]


def findings_in_json(output):
    return [(found["line"], found["column"], found["severity"], found["rule"], found["message"])
            for found in json.loads(output)["findings"]]


def findings_in_sarif(output):
    log = json.loads(output)
    (run,) = log["runs"]
    rules = run["tool"]["driver"]["rules"]
    found = []
    for result in run["results"]:
        (location,) = result["locations"]
        region = location["physicalLocation"]["region"]
        assert rules[result["ruleIndex"]]["id"] == result["ruleId"]
        found.append((region["startLine"], region["startColumn"], result["level"],
                      result["ruleId"], result["message"]["text"]))
    assert log["version"] == "2.1.0" and run["columnKind"] == "unicodeCodePoints"
    return found


def findings_in_github(output):
    command = re.compile(r"::(\w+) file=stripped\.json,line=(\d+),col=(\d+),title=([a-z-]+)::(.*)")
    found = []
    for match in map(command.fullmatch, output.splitlines()):
        message = match[5].split("%0A")[0].replace("%25", "%")
        severity = "note" if match[1] == "notice" else match[1]
        found.append((int(match[2]), int(match[3]), severity, match[4], message))
    return found


READERS = {"text": findings_in_text, "json": findings_in_json, "sarif": findings_in_sarif,
           "github": findings_in_github}


class LintTest(CommandTest):
    def lint(self, *arguments, document=None, base=BASE, **keywords):
        """The run on a document over a base."""
        if document is not None:
            self.write("stripped.json", document)
        if base is not None:
            arguments = ("--base", self.write("base.json", base), *arguments)
        return self.run_metagen(*arguments, "stripped.json", binary=harness.LINTER, **keywords)

    def assert_lint(self, document, expected, *arguments, status=0, **keywords):
        run = self.lint(*arguments, document=document, **keywords)
        self.assertEqual((status, harness.text_bytes(expected).decode(), b""),
                         (run.status, run.stdout.decode(), run.stderr))

    def assert_failure(self, expected, *arguments, **keywords):
        run = self.lint(*arguments, **keywords)
        self.assertEqual((FAILED, b""), (run.status, run.stdout))
        self.assertRegex(run.stderr.decode(), expected)

    def assert_in_every_format(self, expected, *arguments, **keywords):
        """Text's lines are the expected ones, and the other formats say the same."""
        wanted = findings_in_text(expected)
        for name in FORMATS:
            run = self.lint(*arguments, "--format", name, **keywords)
            self.assertEqual(wanted, READERS[name](run.stdout.decode().replace("\r", "")), name)


class Mistakes(LintTest):
    def test_each_is_told_at_its_place(self):
        base, cases = read_mistakes()
        self.assertGreaterEqual(len(cases), 60)
        for case in cases:
            with self.subTest(case.name):
                expected = "".join(f"stripped.json:{line}\n" for line in case.expected)
                is_error = ": error: " in expected
                self.assert_lint(case.document, expected, base=base, status=int(is_error))

    def test_every_format_tells_of_every_rule(self):
        base, cases = read_mistakes()
        left = set()
        for case in cases:
            if case.rules <= left:
                continue
            left |= case.rules
            with self.subTest(case.name):
                expected = "".join(f"stripped.json:{line}\n" for line in case.expected)
                self.assert_in_every_format(expected, document=case.document, base=base)
        with self.subTest("an upgrade"):
            previous = self.write("previous.json", PREVIOUS)
            self.assert_in_every_format(UPGRADE, "--previous", previous, document=UPGRADED)
            left |= {finding[3] for finding in findings_in_text(UPGRADE)}
        listed = self.run_metagen("--rules", binary=harness.LINTER).stdout.decode().splitlines()
        self.assertEqual({line.split()[0] for line in listed}, left | {"sdk-default"})

    def test_an_upgrade(self):
        previous = self.write("previous.json", PREVIOUS)
        self.assert_lint(UPGRADED, UPGRADE, "--previous", previous, status=1)
        level = '{"version": 1, "plugins": {"Glass": {"params": {"level": {"defaultValue": "0"}}}}}'
        self.assert_lint(level, "", "--previous", self.write("same.json", BASE))
        # Where the document says nothing, the SDK's changes are none of its matter.
        level = level.replace('"params": {', '"params": {"tint": {}, "depth": {}, ')
        place = level.index('"0"') + 1
        self.assert_lint(level, f"stripped.json:1:{place}: note: the SDK's default of Glass level "
                         'changed from none to "#BadValue" below this one [default-changed]\n',
                         "--previous", previous)

    def test_a_default_that_the_sdk_lacks(self):
        text = ('the SDK\'s "#BadValue" is no number, which the type integer needs, so genm ends '
                "[sdk-default]\n")
        owner = "error: Glass level needs a \"defaultValue\" of the host's own: "
        self.assert_lint('{"version": 1}', f"stripped.json:1:1: {owner}{text}", status=1)
        self.assert_lint('{"version": 1, "plugins": {\n "Glass": {}}}',
                         f"stripped.json:2:2: {owner}{text}", status=1)
        self.assert_lint('{"version": 1, "plugins": {\n "Glass": {"params": {"level": {}}}}}',
                         f"stripped.json:2:23: {owner}{text}", status=1)

    def test_what_only_the_sdk_has_is_told_at_the_beginning(self):
        base = '{"plugins": {"A": {"params": {"a": {"type": "Float"}}}}}'
        self.assert_lint('{ "version": 1}', 'stripped.json:1:1: error: "Float" is no type (did you '
                         'mean "float"?), so genm ends [unknown-type]\n', base=base, status=1)

    def test_nesting_has_a_limit(self):
        begin = '{"version": 1, "plugins": '
        self.assert_lint(begin + "[" * 120,
                         f"stripped.json:1:{len(begin) + 102}: error: not JSON: the document nests "
                         "too deeply [syntax]\n", status=1)

    def test_columns_count_characters_and_lines_end_anyhow(self):
        document = '{"version": 1,\r\n"\u00e4\U0001f4f7": "\u6771", "plugin": {}}'
        run = self.lint(document=document, base='{"plugins": {}}')
        self.assertEqual([(2, 1), (2, 12)], [
            finding[:2] for finding in findings_in_text(run.stdout.decode().replace("\r", ""))])

    def test_names_stay_on_their_line(self):
        document = '{"version": 1, "a\\nb%": 1, "plugins": {}}'
        run = self.lint(document=document, base='{"plugins": {}}')
        self.assertIn(b'"a\\nb%" is no key', run.stdout)
        run = self.lint("--format", "github")
        self.assertIn(b'"a\\nb%25" is no key', run.stdout)

    def test_bytes_that_are_no_text(self):
        document = b'{"version": 1, "\xff": 1, "plugins": {}}'
        for name in ("json", "sarif"):
            run = self.lint("--format", name, document=document, base='{"plugins": {}}')
            self.assertIn("\ufffd", READERS[name](run.stdout.decode())[0][4])

    def test_texts_as_they_are_not_saved(self):
        told = "stripped.json:1:{}: error: not JSON: {} [syntax]\n"
        document = '{"version": 1, "plugins": {}}'
        for encoding in ("utf-16", "utf-16-le", "utf-16-be"):
            with self.subTest(encoding):
                message = told.format(1, "the document is in UTF-16; save it as UTF-8")
                self.assert_lint(document.encode(encoding), message, status=1)
        message = told.format(4, "a control character within a text is written \\u0000")
        self.assert_lint(b'{"v\0": 1, "plugins": {}}', message, status=1)


class Editors(LintTest):
    def test_the_matchers_of_editors_read_every_line(self):
        base, cases = read_mistakes()
        document = next(case for case in cases if case.name == "a key twice").document
        lines = self.lint(document=document, base=base).stdout.decode().splitlines()
        self.assertEqual(2, len(lines))
        for line, place, severity in zip(lines, (("2", "53"), ("2", "32")), ("warning", "note")):
            for matcher in (GCC_MATCHER, VIM_FORMAT):
                self.assertEqual(("stripped.json", *place), matcher.match(line).groups()[:3])
            self.assertEqual(severity, GCC_MATCHER.match(line)[4])

    def test_sarif_has_a_reference_for_each_path(self):
        self.write("stripped.json", "[]")
        (self.folder / "a b").mkdir()
        os.rename(self.folder / "stripped.json", self.folder / "a b" / "ü.json")
        base = self.write("base.json", BASE)
        run = self.run_metagen("--base", base, "--format", "sarif", "a b/ü.json",
                               binary=harness.LINTER)
        (result,) = json.loads(run.stdout)["runs"][0]["results"]
        self.assertEqual("a%20b/%C3%BC.json", result["locations"][0]["physicalLocation"][
            "artifactLocation"]["uri"])


class CommandLine(LintTest):
    CLEAN = '{"version": 1, "plugins": {"Glass": {"params": {"level": {"defaultValue": "0"}}}}}'
    WARNING = CLEAN.replace('"version"', '"own": 1, "version"')
    WARNED = ('stripped.json:1:2: warning: "own" is no key of the document, so nothing reads it '
              "[unknown-key]\n")

    def test_the_exit_status(self):
        self.assert_lint(self.CLEAN, "")
        self.assert_lint(self.CLEAN, "", "--strict")
        self.assert_lint(self.WARNING, self.WARNED)
        self.assert_lint(self.WARNING, self.WARNED, "--strict", status=1)

    def test_rules_are_switched_off(self):
        self.assert_lint(self.WARNING, "", "--strict", "--disable", "unknown-key")
        self.assert_lint(self.WARNING, self.WARNED, "--disable", "syntax", "--disable=wrong-kind")
        self.assert_failure("there is no rule unknown-keys; --rules lists them",
                            "--disable", "unknown-keys")

    def test_requests(self):
        version = re.search(r"VERSION ([\d.]+)\n", (ROOT / "CMakeLists.txt").read_text())[1]
        for option, expected in (("--version", f"metagen-lint {version}"), ("--help", "--previous"),
                                 ("--rules", "handler-user-data  error    A handler's user data")):
            run = self.run_metagen(option, binary=harness.LINTER)
            self.assertEqual((0, b""), (run.status, run.stderr))
            self.assertIn(expected, run.stdout.decode())

    def test_a_command_line_that_is_wrong(self):
        for arguments, message in (((), "no stripped document is named"),
                                   (("--formt", "json", "a.json"),
                                    "there is no option --formt"),
                                   (("-x",), "there is no option -x"),
                                   (("--format", "xml", "a.json"), "xml"),
                                   (("a.json", "b.json"),
                                    "one document at a time, and b.json is another"),
                                   (("--base",), "--base")):
            with self.subTest(arguments):
                run = self.run_metagen(*arguments, binary=harness.LINTER)
                self.assertEqual((FAILED, b""), (run.status, run.stdout))
                self.assertIn(message, run.stderr.decode())

    def test_a_path_may_be_absolute_or_behind_two_hyphens(self):
        self.assert_lint(self.CLEAN, "", "--")
        path = (self.folder / "stripped.json").as_posix()  # on Windows without its drive: "/..."
        self.write("stripped.json", '{"version": 1, "plugins": {}}')
        base = self.write("base.json", '{"plugins": {}}')
        run = self.run_metagen("--base", base, path.partition(":")[2] or path,
                               binary=harness.LINTER)
        self.assertEqual((0, b"", b""), (run.status, run.stdout, run.stderr))

    def test_files_that_are_wrong(self):
        self.assert_failure(r"metagen-lint: stripped\.json: can't be read: No such file or dir")
        (self.folder / "stripped.json").mkdir()
        self.assert_failure(r"metagen-lint: stripped\.json: can't be read: it is a folder\r?\n")
        (self.folder / "stripped.json").rmdir()
        self.write("stripped.json", self.CLEAN)
        self.assert_failure("metagen-lint: nowhere.json: can't be read", "--previous",
                            "nowhere.json")
        for base, fault in (("{", "it is not JSON, line 1"), ("[]", "it is not an object"),
                            ("{}", 'it has no object "plugins"'),
                            ('{"plugins": {"A": 1}}', '"A" is not an object'),
                            ('{"plugins": {"A": {"note": 1, "params": 5}}}',
                             'A: "params" is not an object'),
                            ('{"plugins": {"A": {"params": {"b": {}}}}}',
                             'A b: "type" is not there')):
            with self.subTest(base):
                self.assert_failure(f"is no base document: {re.escape(fault)}", base=base)

    def test_the_sdk_is_found_as_metagen_finds_it(self):
        self.assert_lint(self.CLEAN, "", base=None, catalogue=self.write("catalogue.json", BASE))
        self.assert_lint(self.WARNING, self.WARNED, base=None,
                         catalogue=self.write("catalogue.json", BASE))

    def test_an_sdk_that_fails(self):
        self.write("stripped.json", self.CLEAN)
        self.assert_failure(r"metagen-lint: Cannot load Qyra SDK Library file\. \[", base=None,
                            environment={"QYRA_SDK": "/nowhere"})
        self.assert_failure("metagen-lint: Instantiation error.", base=None,
                            catalogue=self.write("catalogue.json", "no JSON"))

    def test_what_the_sdk_ends_is_told_on_standard_error(self):
        catalogue = '{"plugins": {"A": {"categories": [2, 6], "params": {}}}}'
        self.write("stripped.json", self.CLEAN)
        run = subprocess.run(
            [*harness.LAUNCHER, str(harness.LINTER), "stripped.json"], cwd=self.folder,
            env=harness.environment_of_run({
                "QYRA_SDK": harness.REPLAY_SDK,
                "QYRA_REPLAY_CATALOGUE": self.write("catalogue.json", catalogue)}),
            capture_output=True, check=False)
        self.assertEqual((FAILED, b""), (run.returncode, run.stdout))
        self.assertIn(b"has multiple incompatible categories", run.stderr)

    @unittest.skipIf(harness.WINDOWS, "there is no such device")
    def test_a_file_without_an_end(self):
        (self.folder / "stripped.json").symlink_to("/dev/zero")
        self.assert_failure(r"metagen-lint: stripped\.json: can't be read: it is a device\n")

    @unittest.skipIf(harness.WINDOWS, "there is no such device")
    def test_an_output_that_is_full(self):
        self.write("stripped.json", self.WARNING)
        self.write("base.json", BASE)
        with open("/dev/full", "wb") as full:
            run = subprocess.run([harness.LINTER, "--base", "base.json", "stripped.json"],
                                 cwd=self.folder, stdout=full, stderr=subprocess.PIPE, check=False)
        self.assertEqual((FAILED, b"metagen-lint: standard output can't be written\n"),
                         (run.returncode, run.stderr))


class Fix(LintTest):
    DOCUMENT = """{ "version":1,\r
  "plugins" : {
    "Glass": {"type": "material", "params": {
      "depth": {"type": "float", "defaultValue":"2"},
      "tint": { "defaultValue": "Color(1, 1, 1)" },
      "gone": null,
      "level": {"defaultValue": "0"}
    }},
    "Light": {"type": "light"}, "Lamp": null
  } }
"""
    FIXED = """{ "version":1,\r
  "plugins" : {
    "Glass": {"params": {
      "depth": {"defaultValue":"2"},
      "level": {"defaultValue": "0"}
    }}
  } }
"""

    def assert_fixed(self, document, fixed):
        self.assert_lint(document, "", "--fix")
        self.assert_binary_file("stripped.json", fixed.encode())
        self.assert_files("base.json", "stripped.json")

    def test_it_takes_out_what_changes_nothing(self):
        self.assert_fixed(self.DOCUMENT, self.FIXED)
        self.assert_fixed(self.FIXED, self.FIXED)

    def test_the_combined_document_stays_the_same(self):
        catalogue = self.write("catalogue.json", BASE)
        for name, document in (("before", self.DOCUMENT), ("after", self.FIXED)):
            run = self.run_metagen("combine", "-i", self.write(f"{name}.json", document), "-o",
                                   f"combined_{name}.json", catalogue=catalogue)
            self.assertEqual(0, run.status)
        self.assertEqual((self.folder / "combined_before.json").read_bytes(),
                         (self.folder / "combined_after.json").read_bytes())

    def test_what_a_rule_that_is_off_finds_stays(self):
        run = self.lint("--fix", "--disable", "null-of-unknown", document=self.DOCUMENT)
        self.assertEqual(0, run.status)
        fixed = (self.folder / "stripped.json").read_text()
        self.assertIn('"gone": null', fixed)
        self.assertNotIn("Color", fixed)

    def test_places_are_those_of_the_fixed_file(self):
        document = self.DOCUMENT.replace('{"defaultValue": "0"}', '{"defaultValue": "x"}')
        run = self.lint("--fix", document=document)
        self.assertEqual([(5, 33)], [finding[:2] for finding in findings_in_text(
            run.stdout.decode().replace("\r", ""))])

    def assert_refused(self, message):
        before = (self.folder / "stripped.json").read_bytes()
        self.assert_failure(f"metagen-lint: stripped.json: can't be fixed: {message}", "--fix")
        self.assertEqual(before, (self.folder / "stripped.json").read_bytes())

    def test_a_file_that_is_read_only_stays(self):
        path = self.write("stripped.json", self.DOCUMENT)
        path.chmod(stat.S_IREAD)
        self.assert_refused("it is read-only")
        path.chmod(stat.S_IREAD | stat.S_IWRITE)

    def test_a_file_beside_stays(self):
        self.write("stripped.json", self.DOCUMENT)
        beside = self.write("stripped.json.metagen-lint", "mine")
        self.assert_refused("there is a file stripped.json.metagen-lint")
        self.assertEqual("mine", beside.read_text())
        if not harness.WINDOWS:
            beside.unlink()
            beside.symlink_to("nowhere")
            self.assert_refused("there is a file stripped.json.metagen-lint")
            self.assertTrue(beside.is_symlink())

    @unittest.skipIf(harness.WINDOWS, "links are made by those who may")
    def test_a_link_stays(self):
        self.write("document.json", self.DOCUMENT)
        (self.folder / "stripped.json").symlink_to("document.json")
        self.assert_refused("it is a link")
        self.assertTrue((self.folder / "stripped.json").is_symlink())
        (self.folder / "stripped.json").unlink()
        os.link(self.folder / "document.json", self.folder / "stripped.json")
        self.assert_refused("the file has other names, too")

    @unittest.skipIf(harness.WINDOWS, "there is no such limit")
    def test_a_device_that_is_full_leaves_the_file(self):
        import resource
        self.write("stripped.json", self.DOCUMENT)
        self.write("base.json", BASE)
        run = subprocess.run(
            [harness.LINTER, "--fix", "--base", "base.json", "stripped.json"], cwd=self.folder,
            capture_output=True, check=False, preexec_fn=lambda: (
                __import__("signal").signal(25, __import__("signal").SIG_IGN),
                resource.setrlimit(resource.RLIMIT_FSIZE, (10, 10))))
        self.assertEqual((FAILED, b""), (run.returncode, run.stdout))
        self.assertIn(b"can't be written", run.stderr)
        self.assert_binary_file("stripped.json", self.DOCUMENT.encode())
        self.assert_files("base.json", "stripped.json")

    @unittest.skipIf(harness.WINDOWS, "the permissions there are others")
    def test_the_permissions_stay(self):
        self.write("stripped.json", self.DOCUMENT).chmod(0o640)
        self.assert_lint(None, "", "--fix")
        self.assertEqual(0o640, stat.S_IMODE((self.folder / "stripped.json").stat().st_mode))


class Examples(LintTest):
    def test_the_first_own_document_of_the_readme_is_clean(self):
        readme = (ROOT / "README.md").read_text(encoding="utf-8")
        document = re.search(r"<!-- file: stripped.json -->\n```json\n(.*?)```", readme, re.DOTALL)
        self.assert_lint(document[1], "", base=None)


if __name__ == "__main__":
    unittest.main()
