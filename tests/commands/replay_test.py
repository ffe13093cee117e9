"""The replay SDK under the tool: documents replayed to the byte, and catalogues that are wrong."""

import json
import pathlib
import re
import shutil
import sys
import unittest

from harness import FAILURE, GOLDEN, LAUNCHER, REPLAY_SDK, ROOT, WINDOWS, CommandTest, native

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "oracle"))
from base_document import KINDS, base_document, kind_of, read_catalogue  # noqa: E402
from random_catalogue import random_catalogue  # noqa: E402

BUNDLED_CATALOGUE = ROOT / "replay_sdk" / "catalogue.json"
BUNDLED_DOCUMENT = GOLDEN / "dump" / "bundled" / "base.json"
LIBRARY_NAME = "QyraSDKLibrary.dll" if WINDOWS else "libQyraSDKLibrary.so"
NO_RENDERER = "Instantiation error.\n"
# Starting a process through Wine takes long.
SEEDS = range(8 if LAUNCHER else 60)


class ReplayTest(CommandTest):
    def assert_dump(self, expected, output="base.json", **catalogue):
        """A dump says nothing, leaves a clean ledger and writes the expected bytes."""
        self.assert_run(["dump", "-o", output], **catalogue)
        self.assertEqual(expected, (self.folder / output).read_bytes())

    def assert_refused(self, content, problem):
        """The catalogue is reported with its path, and no renderer is created from it."""
        catalogue = self.write("wrong.json", content)
        self.assert_run(["dump", "-o", "base.json"], catalogue=catalogue, status=FAILURE,
                        stdout=NO_RENDERER,
                        stderr=f"replay SDK: {native(catalogue)}: {problem}\n")
        self.assert_files("wrong.json")


class BundledCatalogue(ReplayTest):
    def test_dumps_as_the_rules_say(self):
        self.assert_dump(BUNDLED_DOCUMENT.read_bytes())

    def test_the_golden_is_what_the_rules_make_of_it(self):
        self.assertEqual(base_document(read_catalogue(BUNDLED_CATALOGUE)),
                         BUNDLED_DOCUMENT.read_bytes())

    def test_the_document_replays_to_the_byte(self):
        self.assert_dump(BUNDLED_DOCUMENT.read_bytes(), catalogue=BUNDLED_DOCUMENT)

    def test_is_as_large_as_promised(self):
        document = json.loads(BUNDLED_DOCUMENT.read_bytes())["plugins"]
        self.assertGreaterEqual(len(document), 60)
        self.assertGreaterEqual(sum(len(entry["params"]) for entry in document.values()), 500)
        self.assertEqual({"BRDF", "bitmap", "geometry", "light", "material", "node",
                          "render_channel", "settings", "texture", "uvw", "volumetric", None},
                         {entry["type"] for entry in document.values()})


class RandomCatalogues(ReplayTest):
    def test_dump_as_the_rules_say_and_replay_to_the_byte(self):
        for seed in SEEDS:
            with self.subTest(seed=seed):
                catalogue = random_catalogue(seed)
                # Half of them write characters beyond ASCII as escapes.
                text = json.dumps(catalogue, ensure_ascii=seed % 2 == 0)
                expected = base_document(catalogue)
                self.assert_dump(expected, catalogue=self.write("random.json", text))
                self.assert_dump(expected, "again.json", catalogue=self.folder / "base.json")


class Documentation(ReplayTest):
    """Every example of the README is a catalogue, or a part of one."""

    README = (ROOT / "replay_sdk" / "README.md").read_text(encoding="utf-8")

    def assert_served(self, catalogue):
        self.assert_dump(base_document(catalogue),
                         catalogue=self.write("example.json", json.dumps(catalogue)))

    def test_the_blocks_are_right(self):
        blocks = re.findall(r"^```json\n(.*?)^```", self.README, re.DOTALL | re.MULTILINE)
        self.assertGreater(len(blocks), 5)
        for block in blocks:
            with self.subTest(block=block):
                if not block.startswith("{"):
                    members = json.loads("{" + block + "}")
                    is_class = any("params" in member for member in members.values())
                    members = members if is_class else {"C": {"params": members}}
                    self.assert_served({"plugins": members})
                elif "rendererErrorCode" in block:
                    self.assert_run(["dump", "-o", "refused.json"], status=FAILURE,
                                    stdout=NO_RENDERER, catalogue=self.write("example.json", block))
                else:
                    self.assert_served(json.loads(block))

    def test_the_kinds_of_defaults_are_right(self):
        examples = re.findall(r'`(\{"kind": .*?\})`[, |]', self.README)
        defaults = {f"p{index}": {"typeCode": 9, "default": json.loads(example)}
                    for index, example in enumerate(examples)}
        kinds = {kind_of(parameter["default"]) for parameter in defaults.values()}
        self.assertEqual({*KINDS.values(), 20000}, kinds)
        self.assert_served({"plugins": {"C": {"params": defaults}}})


class WhereTheCatalogueIs(ReplayTest):
    ONE_CLASS = '{"plugins":{"%s":{"type":null,"params":{}}}}'

    def place_library(self, folder):
        (self.folder / folder / "bin").mkdir(parents=True)
        shutil.copy(REPLAY_SDK / "bin" / LIBRARY_NAME, self.folder / folder / "bin")
        return {"QYRA_SDK": self.folder / folder}

    def test_beside_the_library_when_none_is_named(self):
        environment = self.place_library("sdk \u00fc\u6771")
        document = self.ONE_CLASS % "Beside"
        self.write("sdk \u00fc\u6771/bin/catalogue.json", document)
        self.assert_dump(document.encode(), environment=environment)
        self.assert_dump(document.encode(),
                         environment={**environment, "QYRA_REPLAY_CATALOGUE": ""})

    def test_the_variable_comes_first_and_names_any_path(self):
        environment = self.place_library("sdk")
        self.write("sdk/bin/catalogue.json", self.ONE_CLASS % "Beside")
        document = self.ONE_CLASS % "Named"
        named = self.write("\u00fc \u6771\u4eac.json", document)
        self.assert_dump(document.encode(), environment=environment, catalogue=named)

    def test_a_missing_file_is_reported(self):
        missing = self.folder / "missing.json"
        self.assert_run(
            ["dump", "-o", "base.json"], catalogue=missing, status=FAILURE, stdout=NO_RENDERER,
            stderr=f"replay SDK: {native(missing)}: can't be opened: No such file or directory\n")

    def test_a_folder_is_reported(self):
        problem = ("can't be opened: Permission denied" if WINDOWS
                   else "can't be read: Is a directory")
        self.assert_run(["dump", "-o", "base.json"], catalogue=self.folder, status=FAILURE,
                        stdout=NO_RENDERER,
                        stderr=f"replay SDK: {native(self.folder)}: {problem}\n")

    def test_is_read_only_when_a_renderer_is_asked_for(self):
        self.assert_run(["dump"], catalogue=self.folder / "missing.json", status=FAILURE,
                        stdout="Output file not specified\n")


class WrongCatalogues(ReplayTest):
    def test_a_syntax_error_is_reported_with_its_line(self):
        self.assert_refused('{\n "plugins": {\n  "A" {}\n }\n}\n', "line 3: not JSON")

    def test_what_is_wrong_is_reported_with_its_place(self):
        self.assert_refused(
            '{"plugins": {"A": {"params": {"b": {"type": "flaot"}}}}}',
            '/plugins/A/params/b/type: unknown type "flaot"')


class NoRenderer(ReplayTest):
    def test_a_catalogue_can_refuse_it(self):
        catalogue = self.write("refusing.json", '{"plugins": {}, "rendererErrorCode": 7}')
        self.assert_run(["dump", "-o", "base.json"], catalogue=catalogue, status=FAILURE,
                        stdout=NO_RENDERER)


if __name__ == "__main__":
    unittest.main()
