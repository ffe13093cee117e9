"""metagen-schema: what its schemas take and refuse, and how its runs end."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from jsonschema import Draft202012Validator

from schemas_test import changed
from wrong_documents import MINIMAL, WRONG

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
TOOL = ROOT / "tools" / "metagen-schema"
BUNDLED = ROOT / "tests" / "golden" / "dump" / "bundled" / "base.json"
sys.path.insert(0, str(ROOT / "tests" / "manual"))

from console import read_example  # noqa: E402

# A right default and a wrong one of every type whose defaults have a pattern.
_VECTOR = "Vector(0, 0, 1)"
_MATRIX = f"Matrix({_VECTOR}, {_VECTOR}, {_VECTOR})"
DEFAULTS = {
    "integer": ("7", "seven"),
    "bool": ("1", "true"),
    "float": ("0.5", "half"),
    "float texture": ("1e-07", "Color(1, 1, 1)"),
    "vector": (_VECTOR, "0, 0, 1"),
    "color": ("Color(1, 1, 1)", "red"),
    "acolor": ("AColor(1, 1, 1, 1)", "Color(1, 1, 1)"),
    "matrix": (_MATRIX, _VECTOR),
    "transform": (f"Transform({_MATRIX}, {_VECTOR})", _MATRIX),
}


def read(path):
    return json.loads(path.read_text(encoding="utf-8"))


def files_of(page):
    """The JSON documents that a page gives, by name; of several the first."""
    found = {}
    for step in read_example(page.read_text(encoding="utf-8")).steps:
        if isinstance(step, tuple) and step[0].endswith(".json"):
            found.setdefault(step[0], json.loads(step[1]))
    return found


def in_plugin(parameters):
    return {"plugins": {"A": {"params": parameters}}}


class Folder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="metagen-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")


class SchemaTest(Folder):
    def schema_for(self, base):
        """The schema for a base document."""
        self.write("base.json", json.dumps(base))
        subprocess.run([sys.executable, TOOL, "--base", "base.json", "-o", "s.json"],
                       cwd=self.folder, check=True)
        return read(self.folder / "s.json")

    def refusals(self, base, document):
        """The places of the document that the schema for the SDK refuses, with the keyword of the
        schema that does, in order."""
        errors = Draft202012Validator(self.schema_for(base)).iter_errors(document)
        return sorted({(error.json_path, error.validator) for error in errors})

    def test_it_is_a_schema(self):
        for base in ({"plugins": {}}, MINIMAL["base"], read(BUNDLED)):
            Draft202012Validator.check_schema(self.schema_for(base))

    def test_it_takes_the_examples(self):
        manual = files_of(ROOT / "docs" / "manual.md")
        for base, document in (
                (read(BUNDLED), read(ROOT / "examples" / "stripped.json")),
                (read(BUNDLED), files_of(ROOT / "README.md")["stripped.json"]),
                (manual["catalogue.json"], manual["stripped.json"])):
            self.assertEqual([], self.refusals(base, document))

    def test_it_takes_the_defaults_of_the_sdk_but_what_is_no_value(self):
        base = read(BUNDLED)
        self.assertEqual(
            [("$.plugins.OptionSettings.params.log_level.defaultValue", "pattern")],
            self.refusals(base, {"plugins": {
                name: {"params": {key: {"defaultValue": parameter["defaultValue"]}
                                  for key, parameter in plugin["params"].items()
                                  if "defaultValue" in parameter}}
                for name, plugin in base["plugins"].items()}}))

    def test_it_refuses_all_that_the_static_schema_refuses(self):
        base = changed(MINIMAL["base"], "plugins/A/params/p", {"type": "string"})
        self.assertEqual([], self.refusals(base, MINIMAL["stripped"]))
        validator = Draft202012Validator(self.schema_for(base))
        for kind, path, value, place in WRONG:
            if kind == "stripped":
                with self.subTest(path):
                    wrong = changed(MINIMAL[kind], path, value) if path else value
                    places = {error.json_path for error in validator.iter_errors(wrong)}
                    self.assertIn(place, places)

    def test_names_that_the_sdk_lacks_need_a_type(self):
        base = {"plugins": {"A": {"type": None, "params": {"p": {"type": "float"}}}}}
        own = {"type": "list"}
        for document in ({"plugins": {"A": None, "Gone": None}}, in_plugin({"p": {}, "gone": None}),
                         in_plugin({"own": own}), {"plugins": {"B": {"type": None}}},
                         {"plugins": {"B": {"type": "camera", "params": {"own": own}}}}):
            self.assertEqual([], self.refusals(base, document))
        for document, place in (
                ({"plugins": {"a": {}}}, "$.plugins.a"),
                (in_plugin({"q": {"defaultValue": "1"}}), "$.plugins.A.params.q"),
                ({"plugins": {"B": {"type": "x", "params": {"p": {}}}}}, "$.plugins.B.params.p")):
            self.assertEqual([(place, "required")], self.refusals(base, document))

    def test_a_default_is_held_to_the_type_of_the_sdk(self):
        base = in_plugin({name: {"type": name} for name in [*DEFAULTS, "string", "texture"]})

        def refused(name, default):
            document = in_plugin({name: {"defaultValue": default}})
            return [keyword for _, keyword in self.refusals(base, document)]

        for name, (right, wrong) in DEFAULTS.items():
            with self.subTest(name):
                self.assertEqual([], refused(name, right))
                self.assertEqual(["pattern"], refused(name, wrong))
        for name in ("string", "texture"):
            self.assertEqual([], refused(name, "any"))

    def test_a_type_in_the_document_takes_the_place_of_the_sdk_s(self):
        base = in_plugin({"p": {"type": "float"}})
        self.assertEqual([], self.refusals(
            base, in_plugin({"p": {"type": "string", "defaultValue": "a"}})))
        self.assertEqual([("$.plugins.A.params.p.defaultValue", "pattern")], self.refusals(
            base, in_plugin({"p": {"type": "color", "defaultValue": "0.5"}})))

    def test_what_it_tells_of_a_parameter(self):
        self.assertEqual(
            {"e": "list of float; the SDK has no default",
             "n": 'string; the SDK\'s default: "say \\"é\\""',
             "t": f'string; the SDK\'s default: "{"x" * 99}...'},
            {name: parameter["description"] for name, parameter in self.schema_for(in_plugin({
                "e": {"type": "list", "listType": "float"},
                "n": {"type": "string", "defaultValue": 'say "é"'},
                "t": {"type": "string", "defaultValue": "x" * 100},
            }))["properties"]["plugins"]["properties"]["A"]["properties"]["params"]
                ["properties"].items()})

    def test_parameters_of_a_type_share_what_is_said_of_it(self):
        def size(count):
            return len(json.dumps(self.schema_for(in_plugin({
                f"parameter_{number:03}": {"type": "transform"} for number in range(count)}))))

        self.assertLess(size(200) - size(100), 100 * 120)


class CommandTest(Folder):
    def assert_run(self, *arguments, tool=TOOL, status=0, stderr="", **environment):
        run = subprocess.run([sys.executable, tool, *arguments], cwd=self.folder, text=True,
                             env={"PATH": "/usr/bin:/bin", **environment}, capture_output=True,
                             check=False)
        self.assertEqual((status, "", stderr), (run.returncode, run.stdout, run.stderr))

    def assert_refused(self, message, *arguments, **environment):
        """The run fails with the message, and what was there stays as it was."""
        self.write("s.json", "kept")
        self.assert_run(*arguments, "-o", "s.json", status=1, stderr=message, **environment)
        self.assertEqual("kept", (self.folder / "s.json").read_text("utf-8"))

    def assert_base_refused(self, message, text):
        self.write("b.json", text)
        self.assert_refused(f"metagen-schema: b.json{message}\n", "--base", "b.json")

    def test_the_installed_sdk_is_asked(self):
        self.assert_run("--base", BUNDLED, "-o", "kept.json")
        asked = {"PATH": f"{BUILD}:/usr/bin:/bin", "QYRA_SDK": str(BUILD / "sdk")}
        self.assert_run("-o", "asked.json", **asked)
        kept, answered = (read(self.folder / name) for name in ("kept.json", "asked.json"))
        self.assertEqual(kept, answered)

    def test_where_it_is_installed_it_asks_the_metagen_beside_it(self):
        prefix = self.folder / "installed"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True,
                       stdout=subprocess.DEVNULL)
        self.assert_run("--base", BUNDLED, "-o", "sources.json")
        self.assert_run("-o", "installed.json", tool=prefix / "bin" / "metagen-schema",
                        QYRA_SDK=str(BUILD / "sdk"))
        made = [(self.folder / f"{name}.json").read_bytes() for name in ("sources", "installed")]
        self.assertEqual(*made)

    def test_what_metagen_says_is_passed_on(self):
        catalogue = self.folder / "none.json"
        metagen = {"PATH": f"{BUILD}:/usr/bin:/bin"}
        self.assert_refused(
            "Cannot load Qyra SDK Library file. [libQyraSDKLibrary.so: cannot open shared object"
            " file: No such file or directory]\n"
            "metagen-schema: metagen dump could not ask the SDK\n", **metagen)
        self.assert_refused(
            f"replay SDK: {catalogue}: can't be opened: No such file or directory\n"
            "Instantiation error.\n"
            "metagen-schema: metagen dump could not ask the SDK\n", **metagen,
            QYRA_SDK=str(BUILD / "sdk"), QYRA_REPLAY_CATALOGUE=str(catalogue))

    def test_without_metagen(self):
        self.assert_refused("metagen-schema: metagen is not on the path; with --base none is"
                            " needed\n", PATH=str(self.folder))

    def test_base_documents_that_are_none(self):
        self.assert_refused("metagen-schema: none.json: No such file or directory\n",
                            "--base", "none.json")
        self.assert_base_refused(" is no JSON document: Expecting property name enclosed in double"
                                 " quotes: line 1 column 2 (char 1)", "{")
        self.assert_base_refused(" is no JSON object", "[]")
        self.assert_base_refused(' has no "plugins" as base documents have it', "{}")
        self.assert_base_refused(' has no "plugins" as base documents have it', '{"plugins": []}')
        self.assert_base_refused(': A has no "params" as base documents have it',
                                 '{"plugins": {"A": null}}')
        self.assert_base_refused(': A::p has no "type" as base documents have it',
                                 json.dumps(in_plugin({"p": {"defaultValue": "1"}})))

    def test_a_schema_that_can_not_be_written(self):
        for output, reason in (("no/s.json", "No such file or directory"),
                               (".", "Is a directory"), ("/dev/full", "No space left on device")):
            self.assert_run("--base", BUNDLED, "-o", output, status=1,
                            stderr=f"metagen-schema: {output}: {reason}\n")

    def test_arguments_that_do_not_fit(self):
        usage = ("usage: metagen-schema [-h] [--base BASE.json] -o STRIPPED.schema.json\n"
                 "metagen-schema: error: ")
        self.assert_run(status=2, stderr=f"{usage}the following arguments are required:"
                                         " -o/--output\n")
        self.assert_run("-o", "s.json", "b.json", status=2,
                        stderr=f"{usage}unrecognized arguments: b.json\n")


if __name__ == "__main__":
    unittest.main()
