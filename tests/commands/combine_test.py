"""The command combine: what it merges, prints and writes, and how a run ends that fails."""

import json
import unittest

from harness import ABORTED, BROKEN_METADATA, FAILURE, TEST_LIBRARIES, WINDOWS, CommandTest

COUNTED_WRITES = TEST_LIBRARIES / "libcounted_writes.so"

STRIPPED_BROKEN = "the given json file has errors inside"
NO_OBJECT = '"type mismatch! call is<type>() before get<type>()" && is<object>()\n'
NO_TEXT = '"type mismatch! call is<type>() before get<type>()" && is<std::string>()\n'
NO_KEY = "invalid map<K, T> key\n"
WRONG_GUIDE = "Wrong type of default values\n"

ARGUMENTS = ["combine", "-i", "stripped.json", "-o", "combined.json"]

# Two classes, as the SDK knows them unless a test says otherwise.
LIVE = {
    "MtlA": {"type": "material", "params": {
        "diffuse": {"type": "color", "defaultValue": "Color(1, 1, 1)"},
        "opacity": {"type": "float", "defaultValue": "1"}}},
    "TexB": {"type": "texture", "params": {"file": {"type": "string", "defaultValue": "a.png"}}},
}
LIVE_TEXT = ('{"plugins":{"MtlA":{"type":"material","params":{'
             '"diffuse":{"type":"color","defaultValue":"Color(1, 1, 1)"},'
             '"opacity":{"type":"float","defaultValue":"1"}}},'
             '"TexB":{"type":"texture","params":{"file":{"type":"string","defaultValue":"a.png"}}}'
             "}}")

HANDLER_DATA = ("_tex", "_tex_on", "_tex_mult", "_res_mult")


def section(heading, entries):
    return "".join([f"{heading}{len(entries)}\n",
                    *(f"{number}. {entry}\n" for number, entry in enumerate(entries, 1))])


def summary(plugin_types=(), parameter_types=(), defaults=(), failures=(), deprecations=(),
            duplications=()):
    return "\n".join([
        section("Number of changed plugin types: ", plugin_types),
        section("Changed parameter types: ", parameter_types),
        section("Overriding defaultValue:", defaults),
        section("Number of handler integrity checks failures: ", failures),
        section("Number of deprecations: ", deprecations),
        section("Number of duplications: ", duplications),
    ])


def user_data(*names):
    return {name: {"type": "float", "defaultValue": "1"} for name in names}


class WayOfTheData(CommandTest):
    NAMES = ("A", 'a"b', "x\\u0041", "a\\", "a\nb")  # some of which JSON would escape

    def run_combine(self, name, **options):
        self.write("stripped.json", "{}")
        catalogue = self.write("catalogue.json", json.dumps({"plugins": {name: {}, "B": {}}}))
        return self.run_metagen(*ARGUMENTS, catalogue=catalogue, **options)

    def test_the_sdk_is_asked_once_whatever_its_names_hold(self):
        for name in self.NAMES:
            with self.subTest(name=name):
                self.run_combine(name)
                self.assertEqual(1, self.calls_of("Qyra_QyraRenderer_getPluginClassNames"))
                self.assertEqual(2, self.calls_of("Qyra_QyraRenderer_getClassPropertyNames"))

    def test_a_live_name_means_what_it_means_when_parsed(self):
        self.assertEqual(0, self.run_combine("x\\u0041").status)
        self.assert_text_file("combined.json", '{"plugins":{"B":{"type":null,"params":{}},'
                                               '"xA":{"type":null,"params":{}}}}')

    @unittest.skipIf(WINDOWS, "has no file that is standard output")
    def test_the_summary_comes_before_the_document(self):
        # Of both in one place: more deprecations than standard output keeps until the end.
        names = [f"Plugin{number}" for number in range(2_000)]
        catalogue = self.write("catalogue.json", json.dumps({"plugins": dict.fromkeys(names, {})}))
        self.write("stripped.json", json.dumps({"plugins": dict.fromkeys(names)}))
        run = self.run_metagen(*ARGUMENTS[:-1], "/dev/stdout", catalogue=catalogue)
        self.assertEqual((0, b"Number"), (run.status, run.stdout[:6]))
        self.assertIn(b'{"plugins":{}}', run.stdout)

    @unittest.skipUnless(COUNTED_WRITES.exists(), "not with this build")
    def test_the_document_is_one_write(self):
        counted = self.folder / "counted"
        # Without the ledger, which the library writes in the same process.
        run = self.run_combine("A", environment={
            "LD_PRELOAD": COUNTED_WRITES, "COUNTED_WRITES": counted, "QYRA_REPLAY_LEDGER": None})
        self.assertEqual((0, "1"), (run.status, counted.read_text()))


class CombineTest(CommandTest):
    def run_combine(self, stripped, live=None, **expected):
        """Runs combine on a stripped document, given as a value or as its text."""
        text = stripped if isinstance(stripped, (str, bytes)) else json.dumps(stripped)
        self.write("stripped.json", text)
        catalogue = self.write("catalogue.json",
                               json.dumps({"plugins": LIVE if live is None else live}))
        self.assert_run(ARGUMENTS, catalogue=catalogue, **expected)

    def assert_combines(self, stripped, combined, printed, live=None):
        self.run_combine(stripped, live, stdout=printed)
        self.assert_text_file("combined.json", combined)

    def assert_prints(self, stripped, printed, live=None):
        self.run_combine(stripped, live, stdout=printed)

    def assert_failure(self, stripped, live=None, *, status=ABORTED, stdout="", stderr=""):
        """The run ends early and leaves an empty output behind."""
        self.run_combine(stripped, live, status=status, stdout=stdout, stderr=stderr)
        self.assert_text_file("combined.json", "")


class Merge(CombineTest):
    def test_an_empty_document_leaves_the_live_one(self):
        self.assert_combines("{}", LIVE_TEXT, summary())
        self.assert_combines('{"plugins": {}}', LIVE_TEXT, summary())

    def test_an_sdk_without_classes(self):
        self.assert_combines("{}", '{"plugins":{}}', summary(), live={})

    def test_equal_values_are_duplications(self):
        self.assert_combines(
            {"plugins": {"MtlA": {"params": {"opacity": {"type": "float", "defaultValue": "1"}}}}},
            LIVE_TEXT,
            summary(duplications=['MtlA::opacity::defaultValue::"1"',
                                  'MtlA::opacity::type::"float"']))

    def test_a_plugins_type_is_named_after_the_last_parameter(self):
        self.assert_combines(
            {"plugins": {"MtlA": {"type": "material", "params": {"diffuse": {}}}}}, LIVE_TEXT,
            summary(duplications=['MtlA::diffuse::type::"material"']))

    def test_stripped_values_win(self):
        self.assert_combines(
            {"plugins": {"TexB": {"type": "bitmap", "params": {
                "file": {"type": "texture", "defaultValue": "b/c.png", "gpu": [1, {"b": 2}]}}}}},
            '{"plugins":{"MtlA":{"type":"material","params":{'
            '"diffuse":{"type":"color","defaultValue":"Color(1, 1, 1)"},'
            '"opacity":{"type":"float","defaultValue":"1"}}},'
            '"TexB":{"type":"bitmap","params":{'
            '"file":{"type":"texture","defaultValue":"b\\/c.png","gpu":[1,{"b":2}]}}}}}',
            summary(plugin_types=['TexB  "texture" -> "bitmap"'],
                    parameter_types=['TexB::file  "string" -> "texture"'],
                    defaults=['TexB::file  "a.png" -> "b\\/c.png"']))

    def test_new_plugins_parameters_and_keys_are_added(self):
        self.assert_combines(
            {"version": 3,
             "plugins": {"A": {"params": {"p": {"type": "float", "defaultValue": "2"},
                                          "q": {"handler": "H"}}},
                         "B": {"type": "light", "params": {"r": {"type": "bool"}}}}},
            '{"plugins":{"A":{"type":null,"params":{"p":{"type":"float","defaultValue":"2"},'
            '"q":{"handler":"H"}}},"B":{"type":"light","params":{"r":{"type":"bool"}}}},'
            '"version":3}',
            summary(plugin_types=['B   -> "light"'], parameter_types=['A::p   -> "float"'],
                    defaults=['A::p   -> "2"']), live={"A": {"type": None, "params": {}}})

    def test_null_in_a_plugin_that_is_added_is_no_deprecation(self):
        self.assert_failure({"plugins": {"C": {"params": {"s": None}}}}, stderr=NO_OBJECT)

    def test_null_takes_plugins_and_parameters_out_in_the_order_of_the_merge(self):
        live = {"a": {"params": {"p": {"type": "float"}}}, "B": {"type": "light"}, "c": {}}
        self.assert_combines(
            {"plugins": {"a": {"params": {"p": None, "missing": None}}, "B": None, "D": None}},
            '{"plugins":{"a":{"type":null,"params":{}},"c":{"type":null,"params":{}}}}',
            summary(deprecations=["B::", "a::p"]), live=live)

    def test_changes_are_sorted_and_deprecations_are_not(self):
        live = {name: {"type": "light", "params": {"p": {"type": "float", "defaultValue": "0"}}}
                for name in ("a", "a0", "Z")}
        changed = {"type": "uvw", "params": {"p": {"type": "bool", "defaultValue": "1"}}}
        self.assert_prints(
            {"plugins": {"a": changed, "a0": changed, "Z": changed}},
            summary(plugin_types=['Z  "light" -> "uvw"', 'a  "light" -> "uvw"',
                                  'a0  "light" -> "uvw"'],
                    parameter_types=['Z::p  "float" -> "bool"', 'a0::p  "float" -> "bool"',
                                     'a::p  "float" -> "bool"'],
                    defaults=['Z::p  "0" -> "1"', 'a0::p  "0" -> "1"', 'a::p  "0" -> "1"']),
            live=live)
        gone = {"params": {"p": None}}
        self.assert_prints({"plugins": {"a": gone, "a0": gone, "Z": gone}},
                           summary(deprecations=["Z::p", "a::p", "a0::p"]), live=live)

    def test_the_last_of_equal_members_wins_and_what_follows_is_ignored(self):
        self.assert_combines('{"version": 1, "version": 2} {"plugins": null}',
                             LIVE_TEXT[:-1] + ',"version":2}', summary())


class CombinedDocument(CombineTest):
    def assert_writes(self, stripped, expected):
        self.assert_combines(stripped, expected, summary(), live={})

    def test_keys_that_fold_alike_are_written_once(self):
        self.assert_writes('{"plugins": {"B": {"x_y": 1, "X.Y": 2, "x.y": 3}, "b": {}}}',
                           '{"plugins":{"B":{"X.Y":2}}}')

    def test_type_comes_first_and_the_others_are_folded(self):
        self.assert_writes('{"a_b": 1, "A.a": {"x": {"A": 1, "type": null}}, "!": [], "B": 2}',
                           '{"!":[],"A.a":{"x":{"type":null,"A":1}},"a_b":1,"B":2,"plugins":{}}')

    def test_objects_in_arrays_keep_the_librarys_order(self):
        self.assert_writes('{"a": [{"type": 1, "b": 2, "C": {"type": 3, "A": 4}}]}',
                           '{"a":[{"C":{"A":4,"type":3},"b":2,"type":1}],"plugins":{}}')

    def test_keys_are_not_escaped(self):
        self.assert_writes('{"a\\"b\\\\c": {"/": "/"}}', '{"a"b\\c":{"/":"\\/"},"plugins":{}}')

    def test_keys_go_on_behind_a_nul(self):
        added = '"M\0N":{"params":{"p\0q":{"type":"int","a\0b":1}}},'
        self.assert_combines(
            {"plugins": {"M\0N": {"params": {"p\0q": {"type": "int", "a\0b": 1}}}}},
            LIVE_TEXT.replace('"MtlA"', added + '"MtlA"'), summary())
        self.assert_prints({"plugins": {"A": None, "M\0N": {"type": "light"}}},
                           summary(plugin_types=['M\0N   -> "light"']))
        clash = {"params": user_data("p\0q"), "userData": user_data("p\0q")}
        self.assert_failure({"plugins": {"M\0N": clash}}, status=BROKEN_METADATA,
                            stdout="M\0N has duplicated named param and userdata - p\0q \n")

    def test_keys_outside_ascii_come_first(self):
        self.assert_writes('{"\u00e9": 1, "e": 2, "\u20ac": 3}',
                           '{"\u00e9":1,"\u20ac":3,"e":2,"plugins":{}}')

    def test_an_object_may_nest_1000_deep(self):
        text = '{"a":' * 999 + "{}" + "}" * 999
        self.assert_writes(text, text[:-1] + ',"plugins":{}}')


class NameAndDefaultChecks(CombineTest):
    def test_a_clash_ends_the_run_without_a_summary(self):
        self.assert_failure(
            {"plugins": {"MtlA": {"userData": user_data("opacity", "diffuse", "x")},
                         "TexB": {"userData": user_data("file")}}},
            status=BROKEN_METADATA,
            stdout="MtlA has duplicated named param and userdata - diffuse opacity \n"
                   "TexB has duplicated named param and userdata - file \n")

    def test_plugins_without_parameters_or_user_data_can_not_clash(self):
        self.assert_prints({"plugins": {"C": {"userData": user_data("x")}}}, summary())

    def test_both_checks_print_before_a_clash_ends_the_run(self):
        self.assert_failure(
            {"plugins": {"MtlA": {"userData": {"opacity": {"listType": "float"}}}}},
            status=BROKEN_METADATA,
            stdout="MtlA has duplicated named param and userdata - opacity \n"
                   "MtlA::opacity : Unexpected defautValue format for type  = \n")

    def test_an_entry_with_a_list_type_alone(self):
        self.assert_prints(
            {"plugins": {"MtlA": {"params": {"x": {"listType": "color"}, "y": {"listType": "q"},
                                             "z": {}},
                                  "userData": {"u": {"listType": "float texture"}}},
                         "C": {"params": {"p": {"listType": "integer"}}}}},
            "C::p : Unexpected defautValue format for type  = \n"
            "MtlA::x : Unexpected defautValue format for type  = \n"
            "MtlA::u : Unexpected defautValue format for type  = \n" + summary())

    def test_a_default_that_does_not_read_for_its_type(self):
        self.assert_prints(
            {"plugins": {"MtlA": {"params": {"opacity": {"defaultValue": "no number"}}}}},
            summary(defaults=['MtlA::opacity  "1" -> "no number"']))

    def test_a_plugin_that_is_no_object(self):
        self.assert_failure({"plugins": {"C": 1}}, stderr=NO_OBJECT)

    def test_members_that_are_no_objects(self):
        for plugin in ({"params": 1}, {"userData": []}, {"params": {"p": "text"}},
                       {"userData": {"u": None}}, {"params": {}, "userData": 1}):
            with self.subTest(plugin=plugin):
                self.assert_failure({"plugins": {"C": plugin}}, stderr=NO_OBJECT)

    def test_entries_whose_texts_are_none(self):
        for entry in ({"type": 1}, {"type": "bool", "defaultValue": 1},
                      {"type": "list", "listType": ["float"]}):
            with self.subTest(entry=entry):
                self.assert_failure({"plugins": {"C": {"params": {"p": entry}}}}, stderr=NO_TEXT)

    def test_an_error_in_the_second_check_wins_over_a_clash(self):
        self.assert_failure(
            {"plugins": {"MtlA": {"userData": user_data("opacity")}, "TexB": 1}},
            stdout="MtlA has duplicated named param and userdata - opacity \n", stderr=NO_OBJECT)


class TextureHandlerChecks(CombineTest):
    def assert_failures(self, plugin, failures):
        stripped = {"plugins": {"P": {"params": plugin["params"], "userData": plugin["userData"]}}}
        self.assert_prints(stripped, summary(failures=failures), live={})

    def handled(self, handler, *names):
        return {"params": {"n": {"handler": handler}},
                "userData": user_data(*names, "texture_multiplier_mode")}

    def complete(self, handler, *others):
        return self.handled(handler, *("n" + suffix for suffix in HANDLER_DATA + others))

    def test_complete_handlers(self):
        self.assert_failures(self.complete("FloatTexFrameHandler", "_float"), [])
        self.assert_failures(self.complete("ColorTexFrameHandler", "_color"), [])

    def test_a_missing_handler(self):
        self.assert_failures(
            {"params": {"n": {}}, "userData": user_data("n_tex")},
            ["P::n: Expecting a handler",
             "P::n: Userdata for handler exist, but no handler was defined"])

    def test_a_color_handler_over_float_data(self):
        self.assert_failures(
            self.complete("ColorTexFrameHandler", "_float"),
            ['P::n: Color texture frame handler defined, but no "_color" user data',
             'P::n: mismatch handler type "ColorTexFrameHandler", '
             'expecting "FloatTexFrameHandler"'])

    def test_a_float_handler_over_color_data(self):
        self.assert_failures(
            self.complete("FloatTexFrameHandler", "_color"),
            ['P::n: Float texture frame handler defined, but no "_float" user data',
             'P::n: mismatch handler type "FloatTexFrameHandler", '
             'expecting "ColorTexFrameHandler"'])

    def test_a_color_handler_over_both(self):
        self.assert_failures(
            self.complete("ColorTexFrameHandler", "_float", "_color"),
            ["P::n: expecting exactly one n_float or n_color",
             'P::n: mismatch handler type "ColorTexFrameHandler", '
             'expecting "FloatTexFrameHandler"'])

    def test_another_handler(self):
        self.assert_failures(
            self.complete("DuplicateHandler", "_float"),
            ["P::n: Texture frame handler user data exist, but no handler defined",
             'P::n: mismatch handler type "DuplicateHandler", expecting "FloatTexFrameHandler"'])

    def test_missing_user_data(self):
        self.assert_failures(self.handled("FloatTexFrameHandler", "n_float", "n_tex"),
                             ["P::n: _tex_* user data is missing"])

    def test_a_missing_multiplier_mode(self):
        plugin = self.complete("FloatTexFrameHandler", "_float")
        del plugin["userData"]["texture_multiplier_mode"]
        self.assert_failures(plugin, ["P: the plugin has float texture handler(s) but no "
                                      "'texture_multiplier_mode' \""])

    def test_user_data_of_no_parameter(self):
        self.assert_failures(
            {"params": {}, "userData": user_data("n_tex", "m_tex_on", "m_color")},
            ["P::m: Texture handler userdata seem to be defined: m_color",
             "P::n: Texture handler userdata seem to be defined: n_tex"])

    def test_a_plugin_without_user_data(self):
        self.assert_prints({"plugins": {"P": {"params": {"n": {"handler": "H"}}}}}, summary(),
                           live={})

    def test_failures_do_not_keep_the_document_from_being_written(self):
        self.assert_combines(
            {"plugins": {"P": {"params": {}, "userData": {"n_tex": {}}}}},
            '{"plugins":{"P":{"params":{},"userData":{"n_tex":{}}}}}',
            summary(failures=["P::n: Texture handler userdata seem to be defined: n_tex"]),
            live={})


class Size(CombineTest):
    def test_a_plugin_of_very_many_parameters_takes_no_longer_than_its_size_asks_for(self):
        # Anything quadratic takes minutes, longer than a run may.
        names = [f"p{number:06}" for number in range(150_000)]
        live = {name: {"type": "float", "defaultValue": "1"} for name in names}
        params = {name: {"handler": "FloatTexFrameHandler"} for name in names}
        data = {f"{name}_tex": {} for name in names}
        written_params = ",".join(
            f'"{name}":{{"type":"float","defaultValue":"1","handler":"FloatTexFrameHandler"}}'
            for name in names)
        written_data = ",".join(f'"{name}_tex":{{}}' for name in names)
        self.assert_combines(
            {"plugins": {"P": {"params": params, "userData": data}}},
            f'{{"plugins":{{"P":{{"type":null,"params":{{{written_params}}},'
            f'"userData":{{{written_data}}}}}}}}}',
            summary(failures=sorted(
                ["P: the plugin has float texture handler(s) but no 'texture_multiplier_mode' \"",
                 *(f"P::{name}: {text}" for name in names for text in (
                     'Float texture frame handler defined, but no "_float" user data',
                     "_tex_* user data is missing",
                     f"expecting exactly one {name}_float or {name}_color"))])),
            live={"P": {"params": live}})


class Failure(CombineTest):
    def test_an_input_that_can_not_be_opened(self):
        self.assert_run(ARGUMENTS, status=FAILURE,
                        stderr="Could not open the file - stripped.json")
        self.assert_files()

    def test_the_inputs_path_is_named_as_it_was_given(self):
        self.assert_run(["combine", "-i", "no/%s %n\u00fc.json", "-o", "combined.json"],
                        status=FAILURE, stderr="Could not open the file - no/%s %n\u00fc.json")

    def test_a_folder_as_input(self):
        (self.folder / "stripped.json").mkdir()
        self.assert_run(ARGUMENTS, status=FAILURE,
                        stderr="Could not open the file - stripped.json")
        self.assert_files()

    @unittest.skipIf(WINDOWS, "takes a file of the system's that opens and can't be read")
    def test_an_input_that_can_not_be_read(self):
        self.assert_run(["combine", "-i", "/proc/self/mem", "-o", "combined.json"],
                        status=FAILURE, stderr="Could not open the file - /proc/self/mem")

    def test_an_output_that_can_not_be_opened(self):
        (self.folder / "combined.json").mkdir()
        self.run_combine("broken", status=FAILURE, stderr="Failed to open the output")
        self.assert_run([*ARGUMENTS[:-1], "no/combined.json"], status=FAILURE,
                        stderr="Failed to open the output")

    def test_a_broken_stripped_document(self):
        for text in ("", "{", '{"a" 1}', "\ufeff{}", '{"a": 1e400}', '{"a": Infinity}',
                     '{"a":' * 1001 + "1" + "}" * 1001, "[" * 1_000_000, b'{"a": "\x01"}'):
            with self.subTest(text=text[:20]):
                self.assert_failure(text, status=FAILURE, stderr=STRIPPED_BROKEN)

    def test_a_stripped_document_that_is_no_object(self):
        for text in ("[]", "null", "3", '"{}"'):
            with self.subTest(text=text):
                self.assert_failure(text, status=FAILURE, stderr="stripped json is not an object")

    def test_live_names_that_need_escapes(self):
        self.assert_failure("{}", {'a"b': {}}, status=FAILURE, stderr="error in the dumped json")

    def test_the_stripped_document_is_parsed_before_the_live_one(self):
        self.assert_failure("{", {'a"b': {}}, status=FAILURE, stderr=STRIPPED_BROKEN)

    def test_the_live_document_is_parsed_before_the_stripped_one_must_be_an_object(self):
        self.assert_failure("[]", {'a"b': {}}, status=FAILURE, stderr="error in the dumped json")

    def test_no_renderer(self):
        self.write("stripped.json", "{}")
        catalogue = self.write("catalogue.json", '{"plugins": {}, "rendererErrorCode": 7}')
        self.assert_run(ARGUMENTS, status=FAILURE, stdout="Instantiation error.\n",
                        catalogue=catalogue)
        self.assert_text_file("combined.json", "")

    def test_the_stripped_document_is_parsed_before_a_renderer_is_made(self):
        self.write("stripped.json", "")
        catalogue = self.write("catalogue.json", '{"plugins": {}, "rendererErrorCode": 7}')
        self.assert_run(ARGUMENTS, status=FAILURE, stderr=STRIPPED_BROKEN, catalogue=catalogue)

    def test_categories_that_can_not_be_reconciled(self):
        self.assert_failure("{}", {"A": {"categories": [2, 6]}}, status=FAILURE,
                            stdout="Plugin type: A has multiple incompatible categories:\n"
                                   "\tnode\n\trender_channel\n")

    def test_a_class_that_the_sdk_describes_wrongly(self):
        def live(code, **described):
            return {"A": {"params": {"p": {"typeCode": code, "default": {"kind": 10000},
                                           **described}}}}

        self.assert_failure("{}", live(18), status=BROKEN_METADATA,
                            stdout="Error No Ovix Type!\n")
        self.assert_failure("{}", live(9, guide={"float": 1}), stderr=WRONG_GUIDE)

    def test_an_object_over_a_live_leaf(self):
        for stripped in ({"plugins": {"MtlA": {"type": {"a": 1}}}},
                         {"plugins": {"MtlA": {"params": {"opacity": {"type": {}}}}}}):
            with self.subTest(stripped=stripped):
                self.assert_failure(stripped, stderr=NO_OBJECT)

    def test_plugins_that_are_no_object(self):
        self.assert_failure({"plugins": []}, stderr=NO_OBJECT)

    def test_the_input_as_output_is_emptied_first(self):
        self.write("stripped.json", "{}")
        self.assert_run([*ARGUMENTS[:-1], "stripped.json"], status=FAILURE, stderr=STRIPPED_BROKEN)
        self.assert_text_file("stripped.json", "")


if __name__ == "__main__":
    unittest.main()
