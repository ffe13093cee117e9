"""metagen-report without a browser: what it finds, what it makes of a summary, its messages."""

import html
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from summary_text import EMPTY_SUMMARY, SUMMARY

ROOT = pathlib.Path(__file__).resolve().parents[2]
TOOL = ROOT / "tools" / "metagen-report"
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
sys.path.insert(0, str(ROOT / "tools"))

from metagen_report.documents import compare_documents, parse_document  # noqa: E402
from metagen_report.page import render_page  # noqa: E402
from metagen_report.report import ABSENT, Entry, Group, Report, Row  # noqa: E402
from metagen_report.summary import UnreadableSummary, read_summary  # noqa: E402

BOTH_SO = "of the parameter or of the plugin: combine lists both so"

SUMMARY_REPORT = Report(
    "What combine found: s.txt", "SDK", "stripped document", ["Lamp has an odd default"],
    [Group("Lamp", "", [
        Entry("failed", "plugin", "", [
            Row("", note="the plugin has float texture handler(s) but no"
                         " 'texture_multiplier_mode' \"")]),
        Entry("failed", "", "color", [Row("", note="_tex_* user data is missing")]),
        Entry("changed", "plugin", "", [Row("type", "light", "node")]),
        Entry("duplicated", "plugin", "", [Row("type", "light", "light")]),
        Entry("changed", "", "color", [
            Row("defaultValue", "Color(1, 1, 1)", 'a  "b" -> "c"')]),
        Entry("removed", "", "old", []),
        Entry("changed", "", "size", [Row("type", "float", "integer"),
                                      Row("defaultValue", "1", "2")]),
        Entry("duplicated", "", "size", [Row("defaultValue", "1", "1")])]),
     Group("Gone", "", [Entry("removed", "plugin", "", [])]),
     Group("Map", "", [
         Entry("duplicated", "", "a", [Row("type", "texture", "texture")]),
         Entry("duplicated", "", "b", [Row("type", "texture", "texture"),
                                       Row("", note=BOTH_SO)])]),
     Group("Own", "", [Entry("added", "plugin", "", [Row("type", ABSENT, "light")])]),
     Group("Sun", "", [
         Entry("duplicated", "plugin", "", [
             Row("type", "light", "light"),
             Row("", note='of the plugin: combine lists it under "size"')]),
         Entry("duplicated", "", "size", [Row("type", "float", "float")])]),
     Group("Two  blanks", "", [
         Entry("added", "", "new", [Row("defaultValue", ABSENT, "1")])]),
     Group("Zoo", "", [Entry("duplicated", "", "a", [Row("type", "bool", "bool")])])])


def groups(left, right):
    return compare_documents(left, right, "l", "r").groups


def in_plugin(plugin):
    return {"plugins": {"A": plugin}}


class ComparisonTest(unittest.TestCase):
    def assert_entries(self, expected, left, right):
        """The entries of the one plugin that differs."""
        self.assertEqual([expected], [group.entries for group in
                                      groups(in_plugin(left), in_plugin(right))])

    def test_numbers_are_equal_as_doubles_but_not_to_booleans(self):
        self.assertEqual([], groups({"a": [1, {"b": 2.0}]}, {"a": [1.0, {"b": 2}]}))
        entry = Entry("changed", "", "a", [Row("", 1, True)])
        self.assertEqual([Group("", "", [entry])], groups({"a": 1}, {"a": True}))

    def test_arrays_are_compared_whole(self):
        entry = Entry("changed", "", "a", [Row("", [1, 2], [1])])
        self.assertEqual([Group("", "", [entry])], groups({"a": [1, 2]}, {"a": [1]}))

    def test_a_plugin_that_came_or_went_is_one_entry(self):
        plugin = {"type": "light", "about": {"by": "me"}, "params": {"a": {"type": "bool"}},
                  "userData": {"a_tex": {"type": "texture"}}}
        rows = [("type", "light"), ("about.by", "me")]
        self.assertEqual(
            [Group("A", "light", [Entry(
                "removed", "plugin", "", [Row(key, value, ABSENT) for key, value in rows],
                [Entry("removed", "", "a", [Row("type", "bool", ABSENT)]),
                 Entry("removed", "user data", "a_tex", [Row("type", "texture", ABSENT)])])])],
            groups(in_plugin(plugin), {"plugins": {}}))

    def test_what_is_null_or_empty_in_such_a_plugin_says_nothing(self):
        entry = Entry("added", "plugin", "", [])
        for plugin in ({}, {"type": None, "params": {}}):
            self.assertEqual([Group("A", "", [entry])],
                             groups({"plugins": {}}, in_plugin(plugin)))

    def test_an_empty_object_in_a_plugin_is_not_nothing(self):
        self.assertEqual([], groups(in_plugin({"params": {}}), in_plugin({"params": {}})))
        self.assert_entries([Entry("added", "plugin", "params", [Row("", ABSENT, {})])],
                            {}, {"params": {}})

    def test_a_null_of_a_stripped_document_is_a_value(self):
        self.assert_entries([Entry("changed", "", "p", [Row("", {"type": "bool"}, None)])],
                            {"params": {"p": {"type": "bool"}}}, {"params": {"p": None}})
        self.assert_entries([Entry("changed", "plugin", "", [Row("", {}, None)])], {}, None)

    def test_keys_below_a_key_are_named_with_it(self):
        def plugin(unit):
            return {"type": "light", "userData": {"u": {"scaling": {"unit": unit}}}}

        entry = Entry("changed", "user data", "u", [Row("scaling.unit", 1, 2)])
        self.assertEqual([Group("A", "light", [entry])],
                         groups(in_plugin(plugin(1)), in_plugin(plugin(2))))

    def test_user_data_of_a_handler_are_folded_into_its_parameter(self):
        def added(name):
            return Entry("added", "user data", name, [Row("", ABSENT, 1)])

        params = {"a": {}, "b": {}, "c": {"type": "bool"}}
        names = ["a_float", "a_tex", "a_tex_on", "b_color", "note", "x_tex"]
        self.assert_entries(
            [Entry("changed", "", "a", [], [added("a_float"), added("a_tex"), added("a_tex_on")]),
             Entry("changed", "", "b", [Row("handler", ABSENT, "H")], [added("b_color")]),
             added("note"), added("x_tex")],
            {"params": params, "userData": {}},
            {"params": params | {"b": {"handler": "H"}}, "userData": dict.fromkeys(names, 1)})

    def test_text_after_the_document_is_ignored(self):
        self.assertEqual({"a": 1}, parse_document(' {"a": 1} trailing', "x.json"))


class SummaryTest(unittest.TestCase):
    maxDiff = None

    def test_every_list(self):
        self.assertEqual(SUMMARY_REPORT, read_summary(SUMMARY, "s.txt"))

    def test_line_ends_of_windows(self):
        self.assertEqual(SUMMARY_REPORT, read_summary(SUMMARY.replace("\n", "\r\n"), "s.txt"))

    def test_nothing_found(self):
        self.assertEqual([], read_summary(EMPTY_SUMMARY, "s.txt").groups)

    def test_an_entry_may_hold_a_line_break(self):
        text = EMPTY_SUMMARY.replace("deprecations: 0", "deprecations: 2\n1. A::b\n2c\n2. D::")
        self.assertEqual(["A", "D"], [group.name for group in read_summary(text, "s").groups])
        self.assertEqual("b\n2c", read_summary(text, "s").groups[0].entries[0].name)

    def test_what_is_no_summary(self):
        for text, message in (
                ("", 'the heading "Number of changed plugin types:" is missing'),
                (EMPTY_SUMMARY.replace("Overriding", "Overridden"),
                 'the heading "Overriding defaultValue:" is missing'),
                (EMPTY_SUMMARY.replace("deprecations: 0", "deprecations: 1"),
                 "an entry 1 is missing"),
                (EMPTY_SUMMARY.replace("Value:0", "Value:1\n1. nonsense"), "no change: nonsense")):
            with self.subTest(message):
                with self.assertRaises(UnreadableSummary) as caught:
                    read_summary(text, "s.txt")
                self.assertEqual(message, str(caught.exception))


class PageTextTest(unittest.TestCase):
    def test_everything_from_the_documents_is_escaped(self):
        hostile = "<b>\"'&"
        scaling = {"conditions": [{"op": 1, "ref": hostile, "value": 1}, hostile]}
        plugin = {"type": hostile, "params": {hostile: {hostile: hostile, "scaling": scaling}},
                  "userData": {f"{hostile}_tex": hostile}}
        document = {hostile: [hostile], "plugins": {hostile: plugin, "Own": plugin}}
        report = compare_documents({"plugins": {hostile: {}}}, document, hostile, hostile)
        report.notes, report.files = [hostile], [hostile]
        page = render_page(report)
        self.assertNotIn(hostile, page)
        self.assertNotIn("<b>\"", page)
        self.assertIn("&lt;b&gt;&quot;&#x27;&amp;", page)

    def test_conditions_are_in_words(self):
        def shown(*conditions):
            sides = (in_plugin({"params": {"p": {"scaling": {"conditions": side}}}})
                     for side in ([], [*conditions]))
            page = render_page(compare_documents(*sides, "l", "r"))
            return re.findall('<div class="value.*?>(.*?)</div>', page, re.DOTALL)[1:]

        self.assertEqual(["when units = 0\nwhen on = 0.5"],
                         shown({"op": 1, "ref": "units", "value": 0},
                               {"op": 1, "ref": "on", "value": 0.5}))
        for other in ({"op": 2, "ref": "a", "value": 0}, {"op": 1, "ref": "a"}, {"op": 1}, 7):
            self.assertEqual([html.escape(json.dumps(other))], shown(other))

    def test_swatches_are_cut_to_what_can_be_shown(self):
        def swatch(text):
            page = render_page(compare_documents({}, {"a": text}, "l", "r"))
            return page.partition('style="--color: ')[2].partition('"')[0]

        self.assertEqual("rgb(255 0 128 / 1)", swatch("Color(7, -1, 0.5)"))
        self.assertEqual("rgb(0 0 0 / 0.25)", swatch("List(AColor(0,0,1e-07,.25))"))
        self.assertEqual("", swatch("Color(nan, 0, 0)"))
        self.assertEqual("", swatch("Vector(1, 0, 0)"))


class CommandTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="metagen-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.write("a.json", "{}")
        self.write("bad.json", "{")
        self.write("list.json", "[]")
        self.write("nan.json", '{"a": NaN}')
        self.write("deep.json", "[" * 100000)
        self.write("summary.txt", SUMMARY)

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")

    def assert_run(self, *arguments, status=0, stderr=""):
        run = subprocess.run([sys.executable, TOOL, *arguments], cwd=self.folder, text=True,
                             env=os.environ | {"TZ": "UTC"}, capture_output=True, check=False)
        self.assertEqual((status, "", stderr), (run.returncode, run.stdout, run.stderr))

    def assert_refused(self, message, *arguments):
        self.assert_run(*arguments, "-o", "p.html", status=1,
                        stderr=f"metagen-report: {message}\n")
        self.assertFalse((self.folder / "p.html").exists())

    def test_two_documents_and_a_summary(self):
        self.assert_run("a.json", "a.json", "-o", "documents.html")
        self.assert_run("-s", "summary.txt", "-o", "summary.html")
        self.assertIn("No differences.", (self.folder / "documents.html").read_text("utf-8"))
        self.assertIn("What combine found", (self.folder / "summary.html").read_text("utf-8"))

    def test_the_head_names_the_files_with_their_dates_and_the_version(self):
        for name, seconds in (("a.json", 0), ("b.json", 86399), ("summary.txt", 60)):
            self.write(name, SUMMARY if name == "summary.txt" else "{}")
            os.utime(self.folder / name, (seconds, seconds))
        version = re.search(r"VERSION ([0-9.]+)\n", (ROOT / "CMakeLists.txt").read_text("utf-8"))[1]
        for arguments, expected in (
                (["a.json", "b.json"],
                 ["a.json of 1970-01-01 00:00", "b.json of 1970-01-01 23:59"]),
                (["-s", "summary.txt"], ["summary.txt of 1970-01-01 00:01"])):
            self.assert_run(*arguments, "-o", "p.html")
            page = (self.folder / "p.html").read_text("utf-8")
            self.assertEqual([*expected, f"metagen {version}"],
                             re.findall('<span class="file">(.*?)</span>', page))

    def test_what_can_not_be_read(self):
        self.assert_refused("none.json: No such file or directory", "a.json", "none.json")
        self.assert_refused("bad.json is no JSON document: Expecting property name enclosed in"
                            " double quotes: line 1 column 2 (char 1)", "bad.json", "a.json")
        self.assert_refused("list.json is no JSON object", "a.json", "list.json")
        self.assert_refused("nan.json is no JSON document: NaN is no JSON", "nan.json", "a.json")
        self.assert_refused("deep.json is no JSON document: maximum recursion depth exceeded while"
                            " decoding a JSON array from a unicode string", "deep.json", "a.json")
        self.assert_refused("a.json is no summary of metagen combine: the heading \"Number of"
                            " changed plugin types:\" is missing", "-s", "a.json")

    def test_a_page_that_can_not_be_written(self):
        self.assert_run("a.json", "a.json", "-o", "no/p.html", status=1,
                        stderr="metagen-report: no/p.html: No such file or directory\n")

    def test_arguments_that_do_not_fit(self):
        usage = ("usage: metagen-report [-h] (LEFT.json RIGHT.json | -s SUMMARY.txt)"
                 " -o PAGE.html\nmetagen-report: error: ")
        one_of = "name two documents, or one summary with -s\n"
        self.assert_run("a.json", "-o", "p", status=2, stderr=usage + one_of)
        self.assert_run("a.json", "a.json", "-s", "s", "-o", "p", status=2, stderr=usage + one_of)
        self.assert_run("a.json", "a.json", status=2,
                        stderr=usage + "the following arguments are required: -o/--output\n")


class AgainstDiffTest(unittest.TestCase):
    """The places that differ are those that metagen diff reports."""

    ONLY = {"added": "only right", "removed": "only left"}

    def reported(self, left, right):
        """What metagen diff reports: place and kind of every difference."""
        with tempfile.TemporaryDirectory() as folder:
            paths = [pathlib.Path(folder) / name for name in ("left.json", "right.json", "d.txt")]
            for path, document in zip(paths, (left, right)):
                path.write_text(json.dumps(document), encoding="utf-8")
            subprocess.run([BUILD / "metagen", "diff", "-l", paths[0], "-r", paths[1],
                            "-o", paths[2]], env={"QYRA_SDK": str(BUILD / "sdk")}, check=True)
            for line in paths[2].read_text("utf-8").splitlines():
                place, side = re.match(r"(\S+) (?:is only present on (left|right) side$|different)",
                                       line).groups()
                yield place, f"only {side}" if side else "values"

    def found(self, left, right):
        """The same of the report's groups, entries and rows."""
        for group in groups(left, right):
            plugin = f":plugins:{group.name}" if group.name else ""
            for entry in group.entries:
                for part in [entry, *entry.folded] if entry.name else [entry]:
                    section = {"": ":params", "user data": ":userData", "plugin": ""}[part.section]
                    name = f":{part.name}" if part.name else ""
                    yield from self.found_in(part, plugin + (section if plugin else "") + name)

    def found_in(self, entry, place):
        if entry.kind in self.ONLY:
            yield place, self.ONLY[entry.kind]
            return
        for row in entry.rows:
            side = ("only right" if row.left is ABSENT else
                    "only left" if row.right is ABSENT else "values")
            yield place + (f":{row.key}" if row.key else "").replace(".", ":"), side

    def test_the_bundled_catalogue_against_a_changed_one(self):
        text = (ROOT / "tests/golden/dump/bundled/base.json").read_text(encoding="utf-8")
        left = json.loads(text)
        right = json.loads(text.replace('"1"', '"2"').replace('"type":"color"', '"kind":"color"'))
        for number, name in enumerate(sorted(left["plugins"])):
            if number % 7 == 0:
                del right["plugins"][name]
            if number % 5 == 0:
                folded = next(iter(left["plugins"][name]["params"]), "none") + "_tex"
                left["plugins"][name]["userData"] = dict.fromkeys(("note", folded), {"type": "x"})
                if name in right["plugins"]:
                    right["plugins"][name]["userData"] = {}
            if number % 6 == 0:
                left["plugins"][name]["type"] = "node"
        right["version"] = 3
        self.assertEqual(sorted(self.reported(left, right)), sorted(self.found(left, right)))


if __name__ == "__main__":
    unittest.main()
