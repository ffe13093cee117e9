"""Holds docs/bin-formats.md to the Kaitai Struct descriptions, by bin_formats_test.js, and what it
says of each type's default to genm."""

import json
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
BUILD = pathlib.Path(os.environ.get("METAGEN_BUILD", ROOT / "build" / "release"))
NODE = HERE.parent / "npm" / "node.py"

# Texts that read as a default of each type, flat where a list's elements have to be.
READABLE = {
    "integer": "7", "bool": "1", "float": "0.5", "float texture": "0.5", "string": "x",
    "vector": "Vector(1, 2, 3)", "color": "Color(1, 2, 3)", "acolor": "AColor(1, 2, 3, 4)",
    "matrix": "(V, 1, 2, 3, V, 4, 5, 6, V, 7, 8, 9)",
    "transform": "(M, V, 1, 2, 3, V, 4, 5, 6, V, 7, 8, 9, V, 1, 2, 3)",
    "texture": "Color(1, 2, 3)", "plugin": "Color(1, 2, 3)", "integer texture": "7",
    "vector texture": "Vector(1, 2, 3)", "list": "List(1)"}
READABLE["matrix texture"] = READABLE["matrix"]
READABLE["transform texture"] = READABLE["transform"]


def tables(page):
    """The rows of the page's two tables of types: the cells of each."""
    for head in ("| type | a default that reads ", "| list of | a default that reads "):
        table = page[page.index(head):].split("\n\n")[0]
        yield [[cell.strip() for cell in row.split("|")[1:-1]] for row in table.splitlines()[2:]]


class BinFormats(unittest.TestCase):
    maxDiff = None

    def written(self, type_name, parameter):
        """What genm writes for a parameter, in the page's words."""
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as name:
            document, table = pathlib.Path(name, "d.json"), pathlib.Path(name, "t.bin")
            document.write_text(json.dumps(
                {"version": 1, "plugins": {"P": {"params": {"a": parameter}}}}), encoding="utf-8")
            run = subprocess.run(
                [BUILD / "metagen", "genm", "-i", document, "-o", table.with_suffix("")],
                env={"QYRA_SDK": str(BUILD / "sdk")}, capture_output=True, check=False)
            if run.returncode != 0:
                return "`genm` ends"
            # The default stands behind 40 bytes and the type.
            numbers = struct.unpack_from("<3I", table.read_bytes() + bytes(8), 40 + len(type_name))
        return self.in_words(*numbers)

    @staticmethod
    def in_words(kind, first, count):
        if kind == 0:
            return "kind 0, the value 0" if first == 0 else "kind 0"
        if kind == 2 and first == 0:
            return "kind 2, empty"
        return f"kind {kind}" + (f", {first}" if kind >= 3 else "") + (
            ", count 0" if kind >= 4 and count == 0 else "")

    def assert_written(self, expected, type_name, parameter, default):
        if default is not None:
            parameter = parameter | {"defaultValue": default}
        with self.subTest(type_name, default=default):
            self.assertEqual(expected, self.written(type_name, parameter))

    def test_the_descriptions(self):
        command = [sys.executable, "-B", NODE, HERE / "bin_formats_test.js"]
        self.assertEqual(0, subprocess.run(command, check=False).returncode)

    def test_what_is_written_for_each_type(self):
        single, lists = tables((ROOT / "docs" / "bin-formats.md").read_text(encoding="utf-8"))
        self.assertEqual({*READABLE} - {"list"}, {*", ".join(row[0] for row in single).split(", ")})
        for names, read, none, other in single:
            for name in names.split(", "):
                read = re.sub("none does", "kind 2, empty", read)
                read = re.sub("a colour: | or 289", "", read)
                for expected, default in ((read, READABLE[name]), (none, None), (other, "nothing")):
                    if expected:
                        self.assert_written(expected, name, {"type": name}, default)
        self.assertEqual({*READABLE}, {*", ".join(row[0] for row in lists).split(", ")})
        for names, read, empty, other in lists:
            for name in names.split(", "):
                parameter = {"type": "list", "listType": name}
                read = re.sub("numbers: ", "", read.replace("none does", empty))
                for expected, default in ((read, f"List({READABLE[name]})"), (empty, "List()"),
                                          (other, None), (other, "nothing")):
                    self.assert_written(expected, name, parameter, default)


if __name__ == "__main__":
    unittest.main()
