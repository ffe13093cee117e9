"""`dump`: the base document of what the SDK says, and the ends of the command."""

import json
import os
import unittest

from harness import ABORTED, BROKEN_METADATA, FAILURE, WINDOWS, CommandTest

WRONG_TYPE = "Wrong type of default values\n"
WRONG_SIZE = "Wrong size of default values\n"


def parameter(**members):
    """A catalogue's parameter: an integer of the value 7, but for the members given."""
    return {"typeCode": 0, "default": {"kind": 0, "value": 7}, **members}


class DumpTest(CommandTest):
    def catalogue(self, plugins, **others):
        return self.write("catalogue.json", json.dumps({"plugins": plugins, **others}))

    def dump(self, plugins, *, status=0, stdout="", stderr="", **others):
        self.assert_run(["dump", "-o", "base.json"], status=status, stdout=stdout, stderr=stderr,
                        catalogue=self.catalogue(plugins, **others))

    def assert_dumps(self, expected, plugins, **others):
        self.dump(plugins, **others)
        self.assert_text_file("base.json", '{"plugins":' + expected + "}")

    def assert_parameter(self, expected, **members):
        """One parameter with these members is written like this."""
        self.assert_dumps('{"A":{"type":null,"params":{"p":' + expected + "}}}",
                          {"A": {"params": {"p": members}}})

    def test_an_sdk_without_classes(self):
        self.assert_dumps("{}", {})

    def test_class_names_that_come_back_null(self):
        self.assert_dumps("{}", {"A": {}}, classNames=None)

    def test_parameter_names_that_come_back_null_or_empty(self):
        self.assert_dumps('{"A":{"type":null,"params":{}},"B":{"type":null,"params":{}}}',
                          {"A": {"params": {"p": parameter()}, "parameterNames": None},
                           "B": {"params": {"p": parameter()}, "parameterNames": []}})

    def test_classes_that_differ_in_case_or_underscore_only(self):
        self.assert_dumps('{"b_c":{"type":"light","params":{}}}',
                          {"B.C": {"type": "uvw"}, "b_c": {"type": "light"}},
                          classNames=["b_c", "B.C", "b_c"])

    def test_a_line_feed_in_a_name_is_the_platforms(self):
        self.assert_dumps('{"A\nB":{"type":null,"params":{}}}', {"A\nB": {}})

    def test_parameters_that_differ_in_case_or_underscore_only(self):
        self.assert_dumps('{"A":{"type":null,"params":{"x_y":{"type":"bool","defaultValue":"1"}}}}',
                          {"A": {"params": {"X.y": parameter(),
                                            "x_y": {"typeCode": 3,
                                                    "default": {"kind": 3, "value": True}}},
                                 "parameterNames": ["x_y", "X.y", "x_y"]}})

    def test_a_parameter_named_type_comes_first(self):
        written = '{"type":"integer","defaultValue":"7"}'
        self.assert_dumps(
            '{"Z":{"type":null,"params":{"type":%s,"A":%s,"Type":%s}}}'.replace("%s", written),
            {"Z": {"params": {"Type": parameter(), "A": parameter(), "type": parameter()}}})

    def test_light_and_settings_is_a_light(self):
        self.assert_dumps('{"A":{"type":"light","params":{}}}', {"A": {"categories": [8, 4]}})

    def test_light_wins_over_material(self):
        self.assert_dumps('{"A":{"type":"light","params":{}}}', {"A": {"categories": [4, 5]}})

    def test_categories_that_can_not_be_reconciled(self):
        self.dump({"A": {"typeText": "TypeOfA", "categories": [2, 6, 8, 18]}}, status=FAILURE,
                  stdout="Plugin type: TypeOfA has multiple incompatible categories:\n"
                         "\tnode\n\trender_channel\n")
        self.assert_text_file("base.json", "")

    def test_minor_categories_only_are_listed_as_nothing(self):
        self.dump({"A": {"categories": [17, 19]}}, status=FAILURE,
                  stdout="Plugin type: A has multiple incompatible categories:\n")

    def test_a_dropped_class_is_built_all_the_same(self):
        self.dump({"A": {}, "a": {"categories": [2, 6]}}, status=FAILURE,
                  stdout="Plugin type: a has multiple incompatible categories:\n"
                         "\tnode\n\trender_channel\n")

    def test_a_default_of_two_quotes_or_none_is_left_out(self):
        for text in ('""', "none"):
            self.assert_parameter('{"type":"string"}',
                                  typeCode=9, default={"kind": 9, "value": text})

    def test_an_empty_default_is_written(self):
        self.assert_parameter('{"type":"string","defaultValue":""}',
                              typeCode=9, default={"kind": 9, "value": ""})

    def test_an_empty_list_is_left_out(self):
        self.assert_parameter('{"type":"list","listType":"float"}',
                              typeCode=101, default={"kind": 101, "value": []})

    def test_a_list_with_a_default_that_is_none(self):
        self.assert_parameter('{"type":"list","listType":"integer"}',
                              typeCode=0, elementsCount=0, default={"kind": 0, "value": 3})

    def test_no_list_with_a_default_that_is_one(self):
        self.assert_parameter('{"type":"integer","defaultValue":"IntList(1, 2)"}',
                              typeCode=0, default={"kind": 100, "value": [1, 2]})

    def test_doubles_are_named_floats(self):
        for code, element in ((2, None), (102, 0)):
            lists = {} if element is None else {"elementsCount": element}
            expected = ('{"type":"float","defaultValue":"0.5"}' if element is None
                        else '{"type":"list","listType":"float"}')
            self.assert_parameter(expected, typeCode=code, default={"kind": 2, "value": 0.5},
                                  **lists)

    def test_default_texts(self):
        for text, kind, value in (
                ("0.1", 1, 0.1), ("1.23457e+08", 1, 123456789), ("1e-07", 1, 1e-7),
                ("1", 3, True), ("Color(1, 0.5, 0)", 5, [1, 0.5, 0]),
                ("List(3, a)", 12, [{"kind": 0, "value": 3}, {"kind": 9, "value": "a"}]),
                ("#BadValue", -1, None), ("#Unspecified", 10000, None), ("<?>", 10001, None)):
            default = {"kind": kind} if value is None else {"kind": kind, "value": value}
            with self.subTest(text):
                self.assert_parameter('{"type":"float","defaultValue":"' + text + '"}',
                                      typeCode=1, default=default)

    def test_plugin_references(self):
        instances = [{"id": 5, "name": "noise", "propertyNames": {"1": "out_color"}}]
        for text, reference in (("#InvalidPlugin", {"id": 0}), ("noise", {"id": 5}),
                                ("noise::out_color", {"id": 5, "propertyIndex": 1}),
                                ("#InvalidPlugin", {"id": 5, "renderer": False}),
                                ("#InvalidPlugin", {"id": 6})):
            with self.subTest(reference):
                self.assert_dumps(
                    '{"A":{"type":null,"params":{"p":{"type":"plugin","defaultValue":"%s"}}}}'
                    % text,
                    {"A": {"params": {"p": {"typeCode": 10,
                                            "default": {"kind": 10, "value": reference}}}}},
                    instances=instances)

    def test_texts_are_escaped(self):
        self.assert_parameter(r'{"type":"string","defaultValue":"a\"\\\n\u0001' + "\u00e4" + '/"}',
                              typeCode=9, default={"kind": 9, "value": 'a"\\\n\u0001\u00e4/'})

    def test_a_guide_wins_over_the_default(self):
        self.assert_parameter('{"type":"integer","defaultValue":"-2"}',
                              **parameter(guide={"float": -2.9}))
        self.assert_parameter('{"type":"color","defaultValue":"Color(0.5, 0.5, 0.5)"}',
                              **parameter(typeCode=5, guide={"floats": [0.5]}))

    def test_a_guide_that_does_not_fit_ends_abnormally(self):
        self.dump({"A": {"params": {"p": parameter(typeCode=9, guide={"float": 1})}}},
                  status=ABORTED, stderr=WRONG_TYPE)
        self.dump({"A": {"params": {"p": parameter(typeCode=5, guide={"floats": [1, 2]})}}},
                  status=ABORTED, stderr=WRONG_SIZE)

    def test_parameters_are_read_before_the_category(self):
        self.dump({"A": {"categories": [2, 6],
                         "params": {"p": parameter(typeCode=9, guide={"float": 1})}}},
                  status=ABORTED, stderr=WRONG_TYPE)

    def test_some_type_codes_are_left_out(self):
        codes = (1000, 1001, 1002, 1003, 1004, 1005, 10000)
        self.assert_dumps('{"A":{"type":null,"params":{}}}',
                          {"A": {"params": {f"p{code}": parameter(typeCode=code)
                                            for code in codes}}})

    def test_a_type_code_without_a_name_is_broken_metadata(self):
        for code in (112, 18, -1, 1006):
            with self.subTest(code):
                self.dump({"A": {"params": {"p": parameter(typeCode=code, elementsCount=-1)}}},
                          status=BROKEN_METADATA, stdout="Error No Ovix Type!\n")

    def test_a_renderer_that_can_not_be_created(self):
        self.dump({}, rendererErrorCode=7, status=FAILURE, stdout="Instantiation error.\n")
        self.assert_files("catalogue.json")

    def test_an_output_that_can_not_be_opened(self):
        folder = self.folder / "folder"
        folder.mkdir()
        for path in (folder, self.folder / "missing" / "base.json"):
            with self.subTest(path.name):
                self.assert_run(["dump", "-o", path], status=FAILURE, stderr="Could not open file")

    def test_the_output_is_truncated(self):
        self.write("base.json", "x" * 100)
        self.assert_dumps("{}", {})

    def test_paths_may_have_any_name(self):
        path = self.folder / "a % \u00fc \u6771\u4eac 'q'.json"
        self.assert_run(["dump", "-o", path], catalogue=self.catalogue({}))
        self.assert_text_file(path.name, '{"plugins":{}}')

    @unittest.skipIf(WINDOWS or not os.path.exists("/dev/full"), "no such device")
    def test_a_full_device_goes_unnoticed(self):
        self.assert_run(["dump", "-o", "/dev/full"], catalogue=self.catalogue({}))


if __name__ == "__main__":
    unittest.main()
