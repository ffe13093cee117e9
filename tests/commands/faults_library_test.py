"""Faults of the SDK's library: what is no library, and what it answers wrongly."""

import json
import sys
import unittest

from harness import (ABORTED, BROKEN_METADATA, FAILURE, LAUNCHER, LOAD_FAILURE, ROOT, USAGE,
                     WINDOWS, CommandTest, native, text_bytes)
from sdk_library import LIBRARY, LIBRARY_NAME

sys.path.insert(0, str(ROOT / "tests" / "oracle"))
from random_catalogue import random_catalogue  # noqa: E402

NO_RENDERER = "Instantiation error.\n"
EMPTY_DOCUMENT = '{"plugins":{}}'
EMPTY_SUMMARY = """\
Number of changed plugin types: 0

Changed parameter types: 0

Overriding defaultValue:0

Number of handler integrity checks failures: 0

Number of deprecations: 0

Number of duplications: 0
"""


class NoLibrary(CommandTest):
    """What bears the library's name and is none: the search goes on, and finds nothing."""

    def assert_passed_over(self):
        for variable in ("QYRA_APPSDK_BIN", "QYRA_SDK"):
            values = {"QYRA_SDK": None, variable: self.folder / "sdk"}
            self.assert_run(["dump", "-o", "base.json"], status=FAILURE, stdout=LOAD_FAILURE,
                            environment=values)
        self.assertFalse((self.folder / "base.json").exists())

    def place(self, content):
        for folder in ("sdk", "sdk/bin"):
            self.write(f"{folder}/{LIBRARY_NAME}", content)
        self.assert_passed_over()

    def test_an_empty_file(self):
        self.place(b"")

    def test_a_text(self):
        self.place("INPUT(libc.so.6)\n")

    def test_a_library_for_another_machine(self):
        library = bytearray(LIBRARY.read_bytes())
        # The machine's number in the header: of 64-bit ARM in place of x86-64.
        place, number = (18, 0xB7) if not WINDOWS else (library.index(b"PE\0\0") + 4, 0xAA64)
        self.assertIn(library[place:place + 2], (b"\x3e\x00", b"\x64\x86"))
        library[place:place + 2] = number.to_bytes(2, "little")
        self.place(bytes(library))

    def test_a_folder(self):
        for folder in ("sdk", "sdk/bin"):
            (self.folder / folder / LIBRARY_NAME).mkdir(parents=True)
        self.assert_passed_over()


class Answers(CommandTest):
    def assert_dump(self, catalogue, expected):
        self.assert_run(["dump", "-o", "base.json"],
                        catalogue=self.write("catalogue.json", json.dumps(catalogue)))
        self.assert_text_file("base.json", expected)

    def test_a_renderer_that_is_not_created(self):
        catalogue = self.write("refusing.json", '{"plugins": {}, "rendererErrorCode": 7}')
        self.write("stripped.json", "{}")
        self.assert_run(["dump", "-o", "base.json"], catalogue=catalogue, status=FAILURE,
                        stdout=NO_RENDERER)
        self.assertFalse((self.folder / "base.json").exists())
        self.assert_run(["combine", "-i", "stripped.json", "-o", "combined.json"],
                        catalogue=catalogue, status=FAILURE, stdout=NO_RENDERER)
        self.assert_text_file("combined.json", "")

    def test_null_and_empty_lists_of_classes(self):
        classes = {"A": {"params": {"a": {"type": "bool"}}}}
        for names in (None, []):
            self.assert_dump({"plugins": classes, "classNames": names}, EMPTY_DOCUMENT)

    def test_null_and_empty_lists_of_parameters(self):
        for names in (None, []):
            plugin = {"parameterNames": names, "params": {"a": {"type": "bool"}}}
            self.assert_dump({"plugins": {"A": plugin}},
                             '{"plugins":{"A":{"type":null,"params":{}}}}')

    def test_null_names(self):
        # A class without a name stands there; a parameter without one has no definition to ask.
        plugin = {"parameterNames": [None, "a", None], "params": {"a": {"type": "bool"}}}
        self.assert_dump({"plugins": {"A": plugin}, "classNames": [None, "A", None, "A"]},
                         '{"plugins":{"":{"type":null,"params":{}},"A":{"type":null,"params":'
                         '{"a":{"type":"bool"}}}}}')

    def test_combine_with_an_sdk_that_knows_nothing(self):
        self.write("stripped.json", EMPTY_DOCUMENT)
        self.assert_run(["combine", "-i", "stripped.json", "-o", "combined.json"],
                        catalogue=self.write("catalogue.json", '{"plugins":{},"classNames":null}'),
                        stdout=EMPTY_SUMMARY)
        self.assert_text_file("combined.json", EMPTY_DOCUMENT)

    def test_a_catalogue_cut_off_at_every_64th_byte(self):
        text = json.dumps(random_catalogue(3), ensure_ascii=False).encode("utf-8")
        self.assertGreater(len(text), 5000)
        for length in range(0, len(text), 64 * 40 if LAUNCHER else 64):
            with self.subTest(length=length):
                catalogue = self.write("cut.json", text[:length])
                self.assert_run(["dump", "-o", "base.json"], catalogue=catalogue, status=FAILURE,
                                stdout=NO_RENDERER,
                                stderr=f"replay SDK: {native(catalogue)}: line 1: not JSON\n")
        self.assertFalse((self.folder / "base.json").exists())


class Unloading(CommandTest):
    """The library is unloaded, or the process ends with it loaded; nothing has been misused, and
    only a run that ends in the middle keeps something."""

    def assert_ledger(self, arguments, status, expected):
        run = self.run_metagen(*arguments)
        self.assertEqual(status, run.status, run)
        lines = self._ledger.read_text("utf-8").splitlines()
        self.assertEqual(expected, [lines[0]] + [line for line in lines if "finding" in line])

    def test_after_every_kind_of_end(self):
        self.write("stripped.json", EMPTY_DOCUMENT)
        self.write("list.json", "[]")
        self.write("bad.json", '{"version": 1, "plugins": {"A": {"params": {"a": {"type": "list",'
                               ' "listType": "list", "defaultValue": ""},'
                               ' "b": {"type": "float", "scaling": {"unit": 2}}}}}}')
        self.write("none.json", "{}")
        for arguments, status, ledger in (
                (["nothing", "-i", "a", "-o", "b"], 0, ["clean"]),
                (["dump"], FAILURE, ["clean"]),
                (["dump", "-o", "base.json"], 0, ["clean"]),
                (["combine", "-i", "stripped.json", "-o", "combined.json"], 0, ["clean"]),
                (["combine", "-i", "missing.json", "-o", "combined.json"], FAILURE, ["clean"]),
                (["combine", "-i", "list.json", "-o", "combined.json"], FAILURE,
                 ["not clean",
                  "finding 1 not released: block of Qyra_QyraRenderer_getPluginClassTypeIDs",
                  "finding 1 not released: renderer"]),
                (["genm", "-i", "bad.json", "-o", "code"], BROKEN_METADATA, ["clean"]),
                (["genh", "-i", "none.json", "-o", "code"], ABORTED, ["unfinished"])):
            with self.subTest(arguments=arguments):
                self.assert_ledger(arguments, status, ledger)

    def test_usage_loads_nothing(self):
        self.assert_run([], stdout=USAGE)
        self.assertFalse(self._ledger.exists())
        self.assertEqual(text_bytes(USAGE), self.run_metagen().stdout)


if __name__ == "__main__":
    unittest.main()
