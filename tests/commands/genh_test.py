"""The command genh: both outputs, and the ends of a run that can't go on."""

import json
import runpy
import sys
import unittest

from harness import ABORTED, FAILURE, GOLDEN, LAUNCHER, ROOT, CommandTest, native

sys.path.insert(0, str(ROOT / "tests" / "oracle"))
import genh as oracle  # noqa: E402
from random_combined import random_combined  # noqa: E402

listing = runpy.run_path(str(ROOT / "tools" / "metagen-show"))["listing"]

INPUT_NOT_OPENED = "Could not open the file - %s"
INL_NOT_OPENED = "Could not open the INL output file"
BIN_NOT_OPENED = "Could not open the BIN output file"
BROKEN = "The given json file has errors inside"
NO_OBJECT = "JSON is not an object"
NO_VERSION = "There is no version in the combined file"
MISSING_KEY = "invalid map<K, T> key"
TYPE_MISMATCH = '"type mismatch! call is<type>() before get<type>()" && is<%s>()'

ARGUMENTS = ["genh", "-i", "combined.json", "-o", "code"]

# Starting a process through Wine takes long.
SEEDS = range(20 if LAUNCHER else 300)


class GenhTest(CommandTest):
    def write_outputs(self):
        """What an earlier run may have left behind, longer than what follows."""
        for name in ("code.inl", "code.bin"):
            self.write(name, "left behind " * 1000)

    def assert_genh(self, document, source, table):
        """The run says nothing and writes these two files."""
        self.write("combined.json", document)
        self.write_outputs()
        self.assert_run(ARGUMENTS)
        self.assert_text_file("code.inl", source)
        self.assertEqual(table, (self.folder / "code.bin").read_bytes())
        self.assert_files("combined.json", "code.inl", "code.bin")

    def assert_failure(self, document, *, message, status=FAILURE):
        """The run ends with the message, and both outputs are there and empty."""
        self.write("combined.json", document)
        self.write_outputs()
        self.assert_run(ARGUMENTS, status=status, stderr=message)
        self.assertEqual([0, 0], [(self.folder / name).stat().st_size
                                  for name in ("code.inl", "code.bin")])
        self.assert_files("combined.json", "code.inl", "code.bin")

    def assert_abnormal_end(self, document, message):
        self.assert_failure(document, message=message + "\n", status=ABORTED)


# --- outputs --------------------------------------------------------------------------------------

class Goldens(GenhTest):
    """Each .bin stands beside a listing of its fields."""

    def assert_golden(self, case, document):
        files = GOLDEN / "genh" / case
        expected = [(files / f"handlers{suffix}").read_bytes() for suffix in (".inl", ".bin")]
        self.assertEqual(list(oracle.genh(oracle.read_document(document))), expected)
        self.assertEqual((files / "handlers.txt").read_text("ascii"), listing(expected[1]))
        source = expected[0].decode("utf-8", "surrogateescape")
        self.assert_genh(document.read_bytes(), source, expected[1])

    def test_tiny(self):
        self.assert_golden("tiny", GOLDEN / "genh" / "tiny" / "combined.json")

    def test_bundled(self):
        self.assert_golden("bundled", GOLDEN / "combine" / "bundled" / "combined.json")


class Outputs(GenhTest):
    def test_blocks_and_records(self):
        document = (GOLDEN / "genh" / "tiny" / "combined.json").read_bytes()
        self.assert_genh(
            document,
            "HandlerMeta m(3);\n"
            "\n"
            'm.add("MtlA")\n'
            '\t.add("diffuse", HandlerTypes::Color, 0.5f)\n'
            '\t.add("opacity", HandlerTypes::Float)\n'
            '\t.add("tint", HandlerTypes::Color, 1.f, 0.5f, 0.25f);\n'
            "\n"
            'm.add("TexB")\n'
            '\t.add("alpha", HandlerTypes::Duplicate);\n'
            "\n"
            "return m;\n",
            b"HDLR\3\0\0\0\2\0\0\0"
            b"\4\0\0\0MtlA\3\0\0\0"
            b"\7\0\0\0diffuse\2\0\0\0\1\0\0\0\0\0\0\x3f"
            b"\7\0\0\0opacity\1\0\0\0\0\0\0\0"
            b"\4\0\0\0tint\2\0\0\0\3\0\0\0\0\0\x80\x3f\0\0\0\x3f\0\0\x80\x3e"
            b"\4\0\0\0TexB\1\0\0\0"
            b"\5\0\0\0alpha\6\0\0\0\0\0\0\0")

    def test_nothing_served_by_a_handler(self):
        self.assert_genh(
            '{"version": 3, "plugins": {"A": {"params": {"a": {"type": "float"}},'
            ' "userData": {}}, "B": {}}}',
            "HandlerMeta m(3);\n\nreturn m;\n", b"HDLR\3\0\0\0\0\0\0\0")

    def assert_version(self, version, text, table):
        self.assert_genh('{"plugins": {}, "version": %s}' % version,
                         f"HandlerMeta m({text});\n\nreturn m;\n",
                         b"HDLR" + table + b"\0\0\0\0")

    def test_the_version_is_truncated_in_the_table_alone(self):
        self.assert_version("2.9", "2.9", b"\2\0\0\0")
        self.assert_version("3.5", "3.5", b"\3\0\0\0")
        self.assert_version("-2.9", "-2.9", b"\xfe\xff\xff\xff")

    def test_a_version_beyond_32_bits(self):
        self.assert_version("3000000000", "3e+09", b"\0\0\0\x80")

    def assert_defaults(self, handler, suffix, cases):
        """Default texts, each with the rest of its line and of its record."""
        names = [f"p{number:02}" for number in range(len(cases))]
        params = {name: {"handler": handler} for name in names}
        user_data = {name + "_tex" + end: 0 for name in names for end in ("", "_on", "_mult")}
        user_data.update((name + suffix, {"defaultValue": text})
                         for name, (text, _, _) in zip(names, cases))
        plugins = {"P": {"params": params, "userData": user_data}}
        lines = "\n".join(f'\t.add("{name}", {line})' for name, (_, line, _) in zip(names, cases))
        records = b"".join(b"\3\0\0\0" + name.encode("ascii") + record
                           for name, (_, _, record) in zip(names, cases))
        self.assert_genh(
            json.dumps({"version": 1, "plugins": plugins}),
            f'HandlerMeta m(1);\n\nm.add("P")\n{lines};\n\nreturn m;\n',
            b"HDLR\1\0\0\0\1\0\0\0\1\0\0\0P" + bytes([len(cases), 0, 0, 0]) + records)

    def test_float_defaults(self):
        self.assert_defaults("FloatTexFrameHandler", "_float", [
            ("1", "HandlerTypes::Float", b"\1\0\0\0\0\0\0\0"),
            (" 1e0x", "HandlerTypes::Float", b"\1\0\0\0\0\0\0\0"),
            ("0", "HandlerTypes::Float, 0.f", b"\1\0\0\0\1\0\0\0\0\0\0\0"),
            ("-0", "HandlerTypes::Float, -0.f", b"\1\0\0\0\1\0\0\0\0\0\0\x80"),
            ("0.1234567", "HandlerTypes::Float, 0.123457f", b"\1\0\0\0\1\0\0\0\xde\xd6\xfc\x3d"),
            ("999999", "HandlerTypes::Float, 999999.f", b"\1\0\0\0\1\0\0\0\xf0\x23\x74\x49"),
            ("1000000", "HandlerTypes::Float, 1e+06f", b"\1\0\0\0\1\0\0\0\0\x24\x74\x49"),
            ("1234567", "HandlerTypes::Float, 1.23457e+06f", b"\1\0\0\0\1\0\0\0\x38\xb4\x96\x49"),
            ("nan", "HandlerTypes::Float, nanf", b"\1\0\0\0\1\0\0\0\0\0\xc0\x7f"),
            ("-inf", "HandlerTypes::Float, -inff", b"\1\0\0\0\1\0\0\0\0\0\x80\xff")])

    def test_color_defaults(self):
        self.assert_defaults("ColorTexFrameHandler", "_color", [
            ("AColor(1,1,1,0)", "HandlerTypes::Color", b"\2\0\0\0\0\0\0\0"),
            ("1", "HandlerTypes::Color", b"\2\0\0\0\0\0\0\0"),
            ("AColor(2,2,2,1)", "HandlerTypes::Color, 2.f", b"\2\0\0\0\1\0\0\0\0\0\0\x40"),
            ("Color(2, 2, 2)", "HandlerTypes::Color, 2.f", b"\2\0\0\0\1\0\0\0\0\0\0\x40"),
            ("2", "HandlerTypes::Color, 2.f", b"\2\0\0\0\1\0\0\0\0\0\0\x40"),
            ("Color(0.2,0.2,0.3)", "HandlerTypes::Color, 0.2f, 0.2f, 0.3f",
             b"\2\0\0\0\3\0\0\0\xcd\xcc\x4c\x3e\xcd\xcc\x4c\x3e\x9a\x99\x99\x3e"),
            ("Color(nan,nan,nan)", "HandlerTypes::Color, nanf, nanf, nanf",
             b"\2\0\0\0\3\0\0\0" + b"\0\0\xc0\x7f" * 3),
            ("Color(1e39,1e39,1e39)", "HandlerTypes::Color, inff",
             b"\2\0\0\0\1\0\0\0\0\0\x80\x7f")])

    def test_line_feeds_are_the_platforms_in_the_text_alone(self):
        self.assert_genh(
            '{"version": 1, "plugins": {"a\\nb": {"params": {"\\n": {"handler":'
            ' "DuplicateHandler"}}, "userData": {"\\n_duplicate": 0, "\\n_duplicate_output": 0}}}}',
            'HandlerMeta m(1);\n\nm.add("a\nb")\n\t.add("\n", HandlerTypes::Duplicate);\n\n'
            "return m;\n",
            b"HDLR\1\0\0\0\1\0\0\0\3\0\0\0a\nb\1\0\0\0\1\0\0\0\n\6\0\0\0\0\0\0\0")

    def test_line_ends_of_the_input_do_not_matter(self):
        self.assert_genh('{\r\n"plugins": {},\r\n"version": 1\r\n}\r\n',
                         "HandlerMeta m(1);\n\nreturn m;\n", b"HDLR\1\0\0\0\0\0\0\0")

    def test_text_after_the_document_is_ignored(self):
        self.assert_genh('{"plugins": {}, "version": 1} {"plugins"',
                         "HandlerMeta m(1);\n\nreturn m;\n", b"HDLR\1\0\0\0\0\0\0\0")

    def test_files_are_named_in_utf8(self):
        folder = self.write("\u00e9 \u6771/combined.json", '{"plugins": {}, "version": 1}').parent
        self.assert_run(["genh", "-i", folder / "combined.json", "-o", folder / "\u00fc.x"])
        self.assert_files(*(f"\u00e9 \u6771/{name}"
                            for name in ("combined.json", "\u00fc.x.inl", "\u00fc.x.bin")))


class RandomDocuments(GenhTest):
    def test_are_handled_as_the_rules_say(self):
        for seed in SEEDS:
            with self.subTest(seed=seed):
                self.check(random_combined(seed))

    def check(self, document):
        text = json.dumps(document)
        try:
            source, table = oracle.genh(document)
        except oracle.Failure as failure:
            self.assert_failure(text, message=str(failure))
        except oracle.AbnormalEnd as end:
            self.assert_abnormal_end(text, str(end))
        else:
            self.assert_genh(text, source.decode("utf-8", "surrogateescape"), table)


# --- files that don't open ------------------------------------------------------------------------

class Files(GenhTest):
    def setUp(self):
        super().setUp()
        self.write("combined.json", '{"plugins": {}, "version": 1}')

    def test_an_input_that_is_not_there_leaves_no_outputs(self):
        self.assert_run(["genh", "-i", "100%s.json", "-o", "code"], status=FAILURE,
                        stderr=INPUT_NOT_OPENED % "100%s.json")
        self.assert_files("combined.json")

    def test_a_folder_is_no_input(self):
        (self.folder / "folder").mkdir()
        self.assert_run(["genh", "-i", self.folder / "folder", "-o", "code"], status=FAILURE,
                        stderr=INPUT_NOT_OPENED % native(self.folder / "folder"))
        self.assert_files("combined.json")

    def test_an_inl_that_does_not_open_leaves_no_bin(self):
        (self.folder / "code.inl").mkdir()
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=INL_NOT_OPENED)
        self.assert_files("combined.json")

    def test_a_bin_that_does_not_open_leaves_an_empty_inl(self):
        (self.folder / "code.bin").mkdir()
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=BIN_NOT_OPENED)
        self.assert_files("combined.json", "code.inl")
        self.assert_text_file("code.inl", "")

    def test_the_input_is_opened_first(self):
        self.assert_run(["genh", "-i", "none.json", "-o", "no/such/folder"], status=FAILURE,
                        stderr=INPUT_NOT_OPENED % "none.json")

    def test_the_inl_is_opened_before_the_bin(self):
        self.assert_run(["genh", "-i", "combined.json", "-o", "no/such/folder"], status=FAILURE,
                        stderr=INL_NOT_OPENED)

    def test_the_outputs_are_opened_before_the_input_is_parsed(self):
        self.write("combined.json", "{")
        (self.folder / "code.bin").mkdir()
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=BIN_NOT_OPENED)


# --- documents that can't be read -----------------------------------------------------------------

class Documents(GenhTest):
    def test_a_syntax_error(self):
        for document in ("", "{", '{"plugins": {}, "version": 1', "\ufeff{}", "{'a': 1}",
                         '{"version": 1e309, "plugins": {}}',
                         '{"plugins":' * 1001 + "1" + "}" * 1001):
            with self.subTest(document=document[:40]):
                self.assert_failure(document, message=BROKEN)

    def test_a_document_that_is_no_object(self):
        for document in ("[]", "1", '"plugins"', "null"):
            with self.subTest(document=document):
                self.assert_failure(document, message=NO_OBJECT)

    def test_plugins_that_are_no_object(self):
        for plugins in ("[]", "null", '"A"'):
            with self.subTest(plugins=plugins):
                self.assert_failure('{"plugins": %s}' % plugins, message=NO_OBJECT)

    def test_missing_plugins(self):
        self.assert_abnormal_end('{"version": "3"}', MISSING_KEY)
        self.assert_abnormal_end("{}", MISSING_KEY)

    def test_a_missing_version(self):
        self.assert_abnormal_end('{"plugins": {}}', MISSING_KEY)

    def test_a_version_that_is_no_number(self):
        for version in ('"3"', "null", "true", "{}"):
            with self.subTest(version=version):
                self.assert_failure('{"version": %s, "plugins": {"A": 1}}' % version,
                                    message=NO_VERSION)

    def assert_reader_error(self, plugins, message):
        self.assert_abnormal_end('{"version": 3, "plugins": %s}' % plugins, message)

    def test_members_that_are_no_objects(self):
        value = '"handler": "FloatTexFrameHandler"'
        for plugins in ('{"A": null}', '{"A": {"params": 1, "userData": {}}}',
                        '{"A": {"params": {}, "userData": []}}',
                        '{"A": {"params": {"a": {%s}}, "userData":'
                        ' {"a_tex": 0, "a_tex_on": 0, "a_tex_mult": 0, "a_float": 0}}}' % value):
            with self.subTest(plugins=plugins):
                self.assert_reader_error(plugins, TYPE_MISMATCH % "object")

    def test_a_handler_that_is_no_text(self):
        self.assert_reader_error('{"A": {"params": {"a": {"handler": 1}}, "userData": {}}}',
                                 TYPE_MISMATCH % "std::string")

    def assert_value_error(self, handler, entry, message):
        self.assert_reader_error(
            '{"A": {"params": {"a": {"handler": "%sTexFrameHandler"}}, "userData":'
            ' {"a_tex": 0, "a_tex_on": 0, "a_tex_mult": 0, "a_float": %s, "a_color": %s}}}'
            % (handler, entry, entry), message)

    def test_a_value_without_default(self):
        self.assert_value_error("Float", "{}", MISSING_KEY)
        self.assert_value_error("Color", '{"type": "color"}', MISSING_KEY)

    def test_a_default_that_is_no_text(self):
        for handler in ("Float", "Color"):
            self.assert_value_error(handler, '{"defaultValue": 1}', TYPE_MISMATCH % "std::string")

    def test_a_default_that_is_no_number(self):
        for handler in ("Float", "Color"):
            self.assert_value_error(handler, '{"defaultValue": "abc"}', "invalid stof argument")

    def test_a_default_beyond_the_range(self):
        for handler in ("Float", "Color"):
            self.assert_value_error(handler, '{"defaultValue": "1e39"}',
                                    "stof argument out of range")


if __name__ == "__main__":
    unittest.main()
