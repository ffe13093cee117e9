"""The command genm: its order of checks, its messages, what a failing run leaves, its outputs."""

import json
import runpy
import sys
import unittest

from harness import ABORTED, BROKEN_METADATA, FAILURE, GOLDEN, ROOT, CommandTest

sys.path.insert(0, str(ROOT / "tests" / "oracle"))
import genm as oracle  # noqa: E402

listing = runpy.run_path(str(ROOT / "tools" / "metagen-show"))["listing"]

ARGUMENTS = ["genm", "-i", "combined.json", "-o", "code"]

NO_INPUT = "Could not open input file"
NO_INL = "Could not open the INL output file"
NO_BIN = "Could not open the BIN output file"
BROKEN = "the given json file has errors inside"
NO_OBJECT = "JSON is not an object"
NO_VERSION = "no version number"
WRONG_OBJECT = '"type mismatch! call is<type>() before get<type>()" && is<object>()\n'
WRONG_TEXT = '"type mismatch! call is<type>() before get<type>()" && is<std::string>()\n'
NO_KEY = "invalid map<K, T> key\n"
UNKNOWN_UNIT = "Error: Unsupported scaling condition unit type\n"
UNKNOWN_OPERATION = "Error: Unsupported scalling condiiton operation type\n"

EMPTY_INL = """\
//unique value arrays

Meta m(%s);

m.fileParams =\x20
};

m.inputFileParams =\x20
};


return m;
"""


class OpeningFiles(CommandTest):
    def test_the_input_is_opened_first(self):
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=NO_INPUT)
        self.assert_files()
        self.assert_run(["genm", "-i", "combined.json", "-o", "missing/code"], status=FAILURE,
                        stderr=NO_INPUT)

    def test_a_folder_is_no_input(self):
        (self.folder / "combined.json").mkdir()
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=NO_INPUT)
        self.assert_files()

    def test_then_the_inl(self):
        self.write("combined.json", "{")
        (self.folder / "code.inl").mkdir()
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=NO_INL)
        self.assert_files("combined.json")
        self.assert_run(["genm", "-i", "combined.json", "-o", "missing/code"], status=FAILURE,
                        stderr=NO_INL)

    def test_then_the_bin(self):
        self.write("combined.json", "{")
        (self.folder / "code.bin").mkdir()
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=NO_BIN)
        self.assert_files("code.inl", "combined.json")
        self.assert_text_file("code.inl", "")


class FailingRuns(CommandTest):
    """What fails later leaves both files behind, truncated."""

    def run_on(self, document, **expected):
        self.write("combined.json", document)
        self.write("code.inl", "what an earlier run left behind")
        self.write("code.bin", "what an earlier run left behind")
        self.assert_run(ARGUMENTS, **expected)
        self.assert_files("code.bin", "code.inl", "combined.json")
        self.assert_text_file("code.inl", "")

    def assert_both_empty(self, document, **expected):
        self.run_on(document, **expected)
        self.assert_binary_file("code.bin", b"")

    def assert_refused(self, message, *documents):
        for document in documents:
            with self.subTest(document=document):
                self.assert_both_empty(document, status=FAILURE, stderr=message)

    def test_a_document_that_does_not_parse(self):
        self.assert_refused(BROKEN, "", "{", '{"version": 1, "plugins": {}', "\ufeff{}",
                            '{"version": 1e999, "plugins": {}}')

    def test_a_document_that_is_no_object(self):
        self.assert_refused(NO_OBJECT, "[]", "1", "null", '"{}"')

    def test_plugins_that_are_no_object(self):
        self.assert_refused(NO_OBJECT, "{}", '{"version": 1}', '{"version": 1, "plugins": []}',
                            '{"version": 1, "plugins": null}', '{"plugins": "A"}')

    def test_a_version_that_is_no_number(self):
        self.assert_refused(NO_VERSION, '{"plugins": {}}', '{"plugins": {}, "version": "1"}',
                            '{"plugins": {}, "version": null}', '{"plugins": {}, "version": true}',
                            '{"plugins": {"A": 1}, "version": []}')

    def assert_abandoned(self, message, *plugins):
        for plugin in plugins:
            with self.subTest(plugin=plugin):
                self.assert_both_empty(f'{{"version": 1, "plugins": {{"A": {plugin}}}}}',
                                       status=ABORTED, stderr=message)

    def test_members_that_must_be_objects(self):
        self.assert_abandoned(
            WRONG_OBJECT, "1", "null", '{"params": []}', '{"params": {"a": null}}',
            '{"userData": 1}', '{"userData": {"a": "b"}}',
            '{"params": {"a": {"type": "float", "scaling": 1}}}',
            '{"params": {"a": {"type": "float", "handler": "FileBrowserHandler",'
            ' "handlerinfo": 1}}}')

    def test_members_that_must_be_texts(self):
        self.assert_abandoned(
            WRONG_TEXT, '{"params": {"a": {"type": 1}}}',
            '{"params": {"a": {"type": "list", "listType": 1}}}',
            '{"params": {"a": {"type": "float", "defaultValue": 1}}}',
            '{"params": {"a": {"type": "float", "handler": 1, "handlerinfo": {}}}}',
            '{"params": {"a": {"type": "float", "handler": "FileBrowserHandler",'
            ' "handlerinfo": {"loadMode": 1}}}}')

    def test_a_type_is_required(self):
        self.assert_abandoned(NO_KEY, '{"params": {"a": {}}}', '{"userData": {"a": {}}}')

    def test_defaults_that_are_no_numbers(self):
        for message, types, texts in [
                ("invalid stoi argument\n", ["integer", "bool"], ["", "abc"]),
                ("stoi argument out of range\n", ["integer", "bool"], ["99999999999"]),
                ("invalid stof argument\n", ["float", "float texture"], ["", "abc"]),
                ("stof argument out of range\n", ["float", "float texture"], ["1e39"])]:
            self.assert_abandoned(message, *(
                f'{{"params": {{"a": {{"type": "{name}", "defaultValue": "{text}"}}}}}}'
                for name in types for text in texts))

    def test_an_unknown_type(self):
        for entry, name in [('{"type": "Float"}', "Float"), ('{"type": "none"}', "none"),
                            ('{"type": "list", "listType": "Float"}', "list")]:
            self.assert_both_empty(
                f'{{"version": 1, "plugins": {{"A": {{"params": {{"a": {entry}}}}}}}}}',
                status=FAILURE, stdout=f"Type: {name} converts to an error\n")

    def test_a_bad_scaling_is_found_before_an_unknown_type(self):
        self.assert_abandoned(WRONG_OBJECT, '{"params": {"a": {"type": "x", "scaling": 1}}}')

    def test_types_that_have_no_descriptor(self):
        for entry in ('{"type": "double", "defaultValue": "1"}',
                      '{"type": "list", "listType": "double"}',
                      '{"type": "list", "listType": "double", "defaultValue": "List(1)"}'):
            self.assert_both_empty(
                '{"version": 1, "plugins": {"A": {"params": {"a": {"type": "float",'
                f' "defaultValue": "1"}}, "b": {entry}}}}}}}}}',
                status=BROKEN_METADATA, stdout="unsupported type\n")


class FailingScaling(FailingRuns):
    """By then the whole text and the whole table but for the scaling are known."""

    DOCUMENT = ('{"version": 1, "plugins": {"A": {"params": {"a": {"type": "float", "scaling": %s},'
                ' "b": {"type": "color"}, "c": {"type": "list", "listType": "integer"},'
                ' "d": {"type": "integer"}}}}}')
    TABLE_BEFORE_SCALING = (
        b"META\x01\0\0\0" b"\x01\0\0\0" b"\x01\0\0\0A" b'\x02\0\0\0""' b"\x04\0\0\0"
        b"\x01\0\0\0a" b"\x05\0\0\0float" b"\0\0\0\0" b"\x02\0\0\0\0\0\0\0"
        b"\x01\0\0\0b" b"\x05\0\0\0color" b"\0\0\0\0" b"\x02\0\0\0\0\0\0\0"
        b"\x01\0\0\0c" b"\x07\0\0\0integer" b"\0\0\0\0" b"\x03\0\0\0\x0a\x02\0\0"
        b"\x01\0\0\0d" b"\x07\0\0\0integer" b"\0\0\0\0" b"\0\0\0\0\0\0\0\0"
        b"\0\0\0\0" b"\0\0\0\0")

    def assert_complete_table(self, scaling, message, scaling_bytes):
        self.run_on(self.DOCUMENT % scaling, status=BROKEN_METADATA, stdout=message)
        self.assert_binary_file("code.bin", self.TABLE_BEFORE_SCALING + scaling_bytes)

    def assert_cut_table(self, scaling, **expected):
        self.run_on(self.DOCUMENT % scaling, **expected)
        written = (self.folder / "code.bin").read_bytes()
        self.assertEqual(self.TABLE_BEFORE_SCALING[:len(written)], written)

    def test_another_unit(self):
        self.assert_complete_table(
            '{"unit": 2}', UNKNOWN_UNIT,
            b"\x01\0\0\0" b"\x01\0\0\0A" b"\x01\0\0\0" b"\x01\0\0\0a" b"\x02\0\0\0" b"\x01\0\0\0"
            b"\0" b"\0\0\0\0")

    def test_another_operation(self):
        self.assert_complete_table(
            '{"unit": 1, "conditions": [{"op": 2, "ref": "d", "value": 3}]}',
            UNKNOWN_OPERATION,
            b"\x01\0\0\0" b"\x01\0\0\0A" b"\x01\0\0\0" b"\x01\0\0\0a" b"\x01\0\0\0" b"\x01\0\0\0"
            b"\0" b"\x01\0\0\0" b"\x01\0\0\0d" b"\x02\0\0\0" b"\x0a\x01\0\0" b"\x03\0\0\0")

    def test_the_text_names_the_first_of_several_faults(self):
        conditions = [{"op": 2, "ref": "a", "value": 1}]
        unit, operation = ({"type": "float", "scaling": {"unit": unit, "conditions": conditions}}
                           for unit in (2, 1))
        for plugins, message in (
                ({"A": {"a": unit}}, UNKNOWN_UNIT),
                ({"A": {"a": unit, "b": operation}}, UNKNOWN_UNIT),
                ({"A": {"a": operation, "b": unit}}, UNKNOWN_OPERATION),
                ({"A": {"a": operation}, "B": {"a": unit}}, UNKNOWN_OPERATION),
                ({"A": {"a": unit}, "B": {"a": operation}}, UNKNOWN_UNIT)):
            with self.subTest(plugins=plugins):
                self.run_on(json.dumps({"version": 1, "plugins": {
                    name: {"params": parameters} for name, parameters in plugins.items()}}),
                            status=BROKEN_METADATA, stdout=message)

    def test_a_condition_on_an_unknown_parameter(self):
        for condition in ('{"op": 1, "ref": "x", "value": 1}', '{"op": 1, "ref": "x"}', "{}"):
            self.assert_cut_table(f'{{"unit": 1, "conditions": [{condition}]}}', status=ABORTED,
                                  stderr=NO_KEY)

    def test_a_condition_on_a_list(self):
        self.assert_cut_table('{"unit": 1, "conditions": [{"op": 1, "ref": "c", "value": 1}]}',
                              status=BROKEN_METADATA,
                              stdout="Error: Scalling conditions do not support list types\n")

    def test_a_condition_on_another_type(self):
        for value in ("1", '"1"'):
            self.assert_cut_table(
                f'{{"unit": 1, "conditions": [{{"op": 1, "ref": "b", "value": {value}}}]}}',
                status=BROKEN_METADATA,
                stdout="Error: Scalling conditions unsuported value type\n")

    def test_the_table_finds_a_bad_condition_before_the_text_finds_a_bad_unit(self):
        self.assert_cut_table('{"unit": 2, "conditions": [{"op": 2, "ref": "c", "value": 1}]}',
                              status=BROKEN_METADATA,
                              stdout="Error: Scalling conditions do not support list types\n")


class Outputs(CommandTest):
    def generate(self, document):
        self.write("combined.json", document)
        self.write("code.inl", "what an earlier run left behind" * 100)
        self.write("code.bin", "what an earlier run left behind" * 100)
        self.assert_run(ARGUMENTS)
        self.assert_files("code.bin", "code.inl", "combined.json")

    def assert_version(self, number, text, binary):
        self.generate(f'{{"version": {number}, "plugins": {{}}}}')
        self.assert_text_file("code.inl", EMPTY_INL % text)
        self.assert_binary_file("code.bin", b"META" + binary + bytes(16))

    def test_versions(self):
        self.assert_version("3", "3", b"\x03\0\0\0")
        self.assert_version("3.9", "3.9", b"\x03\0\0\0")
        self.assert_version("5.25", "5.25", b"\x05\0\0\0")
        self.assert_version("-2.5", "-2.5", b"\xfe\xff\xff\xff")
        self.assert_version("1234567", "1.23457e+06", b"\x87\xd6\x12\0")
        self.assert_version("3e9", "3e+09", b"\0\0\0\x80")

    def test_text_after_the_document_is_ignored(self):
        self.generate('{"version": 1, "plugins": {}} {')
        self.assert_text_file("code.inl", EMPTY_INL % "1")

    def test_every_member_of_plugins_counts(self):
        self.generate('{"version": 1, "plugins": {"A": {}, "B": {"params": {}}}}')
        self.assert_binary_file(
            "code.bin", b"META\x01\0\0\0" b"\x02\0\0\0" b'\x01\0\0\0A\x02\0\0\0""\0\0\0\0'
            b'\x01\0\0\0B\x02\0\0\0""\0\0\0\0' b"\0\0\0\0" b"\0\0\0\0" b"\0\0\0\0")

    def test_a_line_feed_in_a_text_stays_one_byte_in_the_table(self):
        self.generate('{"version": 1, "plugins": {"A": {"params": {"a": {"type": "string",'
                      ' "defaultValue": "x\\ny"}}}}}')
        self.assertIn('\t.add("a", "string", 0, "x\\ny");\n', self.read_text("code.inl"))
        self.assertIn(b"\x02\0\0\0\x03\0\0\0x\ny", (self.folder / "code.bin").read_bytes())

    def test_the_outputs_may_lie_in_another_folder(self):
        self.write("in/combined.json", '{"version": 1, "plugins": {}}')
        (self.folder / "out.v1").mkdir()
        self.assert_run(["genm", "-i", "in/combined.json", "-o", "out.v1/code"])
        self.assert_files("in/combined.json", "out.v1/code.bin", "out.v1/code.inl")


class Goldens(CommandTest):
    """Each .bin stands beside a listing of its fields."""

    def assert_golden(self, case, document):
        files = GOLDEN / "genm" / case
        source, table = [(files / f"meta{suffix}").read_bytes() for suffix in (".inl", ".bin")]
        expected = oracle.genm(oracle.read_document(document))
        self.assertEqual((source, table), (expected.source, expected.binary))
        self.assertEqual((files / "meta.txt").read_text("ascii"), listing(table))
        self.write("combined.json", document.read_bytes())
        self.assert_run(ARGUMENTS)
        self.assert_text_file("code.inl", source.decode("utf-8", "surrogateescape"))
        self.assert_binary_file("code.bin", table)

    def test_tiny(self):
        self.assert_golden("tiny", GOLDEN / "genm" / "tiny" / "combined.json")

    def test_bundled(self):
        self.assert_golden("bundled", GOLDEN / "combine" / "bundled" / "combined.json")


if __name__ == "__main__":
    unittest.main()
