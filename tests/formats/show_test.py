"""Holds what metagen-show makes of .bin files to literals: every field of both formats, and files
that are wrong."""

import pathlib
import runpy
import struct
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "metagen-show"
SHOW = runpy.run_path(str(TOOL))
BadFile, listing = SHOW["BadFile"], SHOW["listing"]


def file_of(*parts):
    """Numbers as 32 bits, floats too; bytes as they are."""
    return b"".join(part if isinstance(part, bytes)
                    else struct.pack("<f" if isinstance(part, float) else "<i", part)
                    for part in parts)


HANDLERS = [b"HDLR", -2, 2,
            4, b"MtlA", 2, 3, b"a\n\xff", 1, 1, 0.1, 1, b"b", 2, 3, 1.0, 0.5, -0.0,
            0, 1, 1, b"c", 6, 0]

META = [b"META", 3, 2,
        1, b"P", 2, b'""', 6,
        1, b"a", 7, b"integer", 1, 0, -7,
        1, b"b", 5, b"float", 0, 1, 0.5,
        1, b"c", 6, b"string", 6, 2, 2, b"x\"",
        1, b"d", 7, b"texture", 0, 3, 524,
        1, b"e", 4, b"bool", 0, 4, 522, 2, 1, -1,
        1, b"f", 5, b"color", 2, 5, 273, 3, 1.0, 0.0, 2.5,
        1, b"Q", 0, 0,
        1, 1, b"P", 2, 1, b"c", 1, b"f",
        1, 1, b"P", 1, 1, b"c",
        1, 1, b"P", 2,
        1, b"a", 1, -2, b"\1", 2, 1, b"b", 1, 265, 0.5, 1, b"e", 1, 266, -1,
        1, b"b", 2, 1, b"\0", 0]


class Listings(unittest.TestCase):
    maxDiff = None

    def test_handlers(self):
        self.assertEqual(listing(file_of(*HANDLERS)), """\
tag HDLR
version -2
plugins 2
  plugin "MtlA"
    parameters 2
      parameter "a\\n\\udcff"
        kind 1 Float
        arguments 1
          argument 0.100000001
      parameter "b"
        kind 2 Color
        arguments 3
          argument 1
          argument 0.5
          argument -0
  plugin ""
    parameters 1
      parameter "c"
        kind 6 Duplicate
        arguments 0
""")

    def test_metadata(self):
        self.assertEqual(listing(file_of(*META)), """\
tag META
version 3
plugins 2
  plugin "P"
    category "\\"\\""
    parameters 6
      parameter "a"
        type "integer"
        flags 1 user data
        default 0 integer
          value -7
      parameter "b"
        type "float"
        flags 0
        default 1 float
          value 0.5
      parameter "c"
        type "string"
        flags 6 file browser, load mode 1
        default 2 string
          value "x\\""
      parameter "d"
        type "texture"
        flags 0
        default 3 descriptor
          descriptor 524 string single list
      parameter "e"
        type "bool"
        flags 0
        default 4 integers
          descriptor 522 int single list
          elements 2
            element 1
            element -1
      parameter "f"
        type "color"
        flags 2 file browser
        default 5 floats
          descriptor 273 float array3 single
          elements 3
            element 1
            element 0
            element 2.5
  plugin "Q"
    category ""
    parameters 0
file plugins 1
  plugin "P"
    parameters 2
      parameter "c"
      parameter "f"
input file plugins 1
  plugin "P"
    parameters 1
      parameter "c"
scaling plugins 1
  plugin "P"
    parameters 2
      parameter "a"
        unit 1
        power -2
        inverse 1
        conditions 2
          condition on "b"
            operation 1
            tag 265 float
            value 0.5
          condition on "e"
            operation 1
            tag 266 integer
            value -1
      parameter "b"
        unit 2
        power 1
        inverse 0
        conditions 0
""")


class WrongFiles(unittest.TestCase):
    def assert_refused(self, data, problem):
        with self.assertRaises(BadFile) as refusal:
            listing(data)
        self.assertEqual(problem, str(refusal.exception))

    def test_a_file_that_ends_early(self):
        for parts in (HANDLERS, META):
            data = file_of(*parts)
            for length in range(len(data)):
                with self.assertRaises(BadFile):
                    listing(data[:length])
        self.assert_refused(b"HDLR\1\0", "at byte 4: 4 bytes wanted, 2 left")

    def test_bytes_to_spare(self):
        self.assert_refused(file_of(b"HDLR", 1, 0) + b"\0", "at byte 12: 1 bytes to spare")

    def test_an_unknown_tag(self):
        self.assert_refused(b"HDLS", "at byte 4: the tag 'HDLS' is unknown")

    def test_unknown_codes(self):
        head = [b"META", 1, 1, 0, 0, 1, 0, 0, 0]
        self.assert_refused(file_of(b"HDLR", 1, 1, 0, 1, 0, 3), "at byte 28: 3 is no kind of handler")
        self.assert_refused(file_of(*head, 6), "at byte 40: 6 is no kind of default")
        for descriptor in (0, 265 + 16, 257, 9, 1024 + 521):
            self.assert_refused(file_of(*head, 3, descriptor),
                                f"at byte 44: {descriptor} is no descriptor")
        self.assert_refused(file_of(b"META", 1, 0, 0, 0, 1, 0, 1, 0, 1, 1, b"\0", 1, 0, 1, 264),
                            "at byte 61: 264 is no tag of a condition's value")


class CommandLine(unittest.TestCase):
    def run_tool(self, content):
        """Its status and both outputs for a file of that content."""
        with tempfile.TemporaryDirectory(prefix="metagen-test-") as folder:
            if content is not None:
                pathlib.Path(folder, "t.bin").write_bytes(content)
            run = subprocess.run([sys.executable, TOOL, "t.bin"], cwd=folder, text=True,
                                 capture_output=True, check=False)
        return run.returncode, run.stdout, run.stderr

    def test_a_table(self):
        table = file_of(*META)
        self.assertEqual((0, listing(table), ""), self.run_tool(table))

    def test_what_is_no_table(self):
        self.assertEqual((1, "", "metagen-show: t.bin: at byte 12: 1 bytes to spare\n"),
                         self.run_tool(file_of(b"HDLR", 1, 0) + b"\0"))

    def test_what_is_not_there(self):
        self.assertEqual((1, "", "metagen-show: t.bin: No such file or directory\n"),
                         self.run_tool(None))

    def test_a_reader_that_has_seen_enough(self):
        table = file_of(b"META", 1, 0, 1, 0, 100_000) + 100_000 * file_of(0) + file_of(0, 0)
        with tempfile.NamedTemporaryFile(suffix=".bin") as file:
            file.write(table)
            file.flush()
            shown = subprocess.run(f"{sys.executable} {TOOL} {file.name} | head -n 1; "
                                   'echo "${PIPESTATUS[0]}"', shell=True, executable="/bin/bash",
                                   text=True, capture_output=True, check=True)
        self.assertEqual(("tag META\n0\n", ""), (shown.stdout, shown.stderr))


if __name__ == "__main__":
    unittest.main()
