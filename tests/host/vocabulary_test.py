"""docs/inl-vocabulary.md has every statement of the generated source, and compiles; so does the
source of whatever document genm and genh accept, with the headers for hosts and with the types that
the page wants of others."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "commands"))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "oracle"))
from harness import BINARY, GOLDEN, REPLAY_SDK, ROOT, environment_of_run  # noqa: E402
from random_combined import random_combined  # noqa: E402
from random_meta import random_meta  # noqa: E402

CMAKE = os.environ.get("CMAKE_COMMAND", "cmake")
CXX = os.environ.get("CXX", "c++")
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror"]
PAGE = (ROOT / "docs" / "inl-vocabulary.md").read_text(encoding="utf-8")
SEEDS = range(60)

_MAIN = re.compile(r"^<!-- file: renderer/main.cpp -->\n```cpp\n(.*?)^```$",
                   re.MULTILINE | re.DOTALL)
_BODY = re.compile(r"^<!-- body of: (\w+) -->\n```cpp\n(.*?)^```$", re.MULTILINE | re.DOTALL)
_OWN = re.compile(r"^<!-- own vocabulary -->\n```cpp\n(.*?)^```$", re.MULTILINE | re.DOTALL)
_GOING_THROUGH = re.compile(r"^<!-- going through -->\n```cpp\n(.*?)^```$",
                            re.MULTILINE | re.DOTALL)

# What varies within a kind of statement, in the order in which it is replaced.
_VARIABLE = [
    (r'"(?:\\.|[^"\\])*"', "TEXT"),
    (r"-?std::numeric_limits<float>::\w+\(\)|-?[0-9][0-9.]*(?:e[+-]?[0-9]+)?f\b", "FLOAT"),
    (r", (?:aclr|clr|vec|matr|trans|flt|inte)[0-9]+\)", ", ARRAY)"),
    (r"\b(aclr|clr|vec|matr|trans|flt|inte)[0-9]+\[\] = \{[^}]*\}", r"\1[] = {VALUES}"),
    (r"array<(?:int|float), 0> \w+ = \{\}", "EMPTY ARRAY"),
    (r"INT_MIN|(?<!\w)-?[0-9][0-9.]*(?:e[+-]?[0-9]+)?", "NUMBER"),
    (r"\b(?:true|false)\b", "FLAG"),
    (r"TEXT(?:, TEXT)*\}", "TEXT...}"),
]


def kinds(source):
    """The kinds of statements, and of entries of tables, that stand in the source text."""
    found = set()
    for line in source.splitlines():
        for pattern, replacement in _VARIABLE:
            line = re.sub(pattern, replacement, line.strip().rstrip(",;"))
        if line.strip("{}() "):
            found.add(line)
    return found


def plain(name):
    """A name that can stand in a literal."""
    return re.sub(r'["\\\n\t\0]', "x", name)


def with_plain_names(document):
    """The names of plugins, parameters and user data go into the source as they stand."""
    def renamed(members):
        return {plain(name): value for name, value in members.items()}
    plugins = renamed(document["plugins"])
    for plugin in plugins.values():
        if isinstance(plugin, dict):
            for section in ("params", "userData"):
                if isinstance(plugin.get(section), dict):
                    plugin[section] = renamed(plugin[section])
    return {**document, "plugins": plugins}


def documents():
    yield json.loads((ROOT / "tests" / "host" / "awkward.json").read_text(encoding="utf-8"))
    yield json.loads((GOLDEN / "combine" / "bundled" / "combined.json").read_text("utf-8"))
    yield {"version": 1, "plugins": {}}
    for seed in SEEDS:
        yield random_meta(seed)
        yield with_plain_names(random_combined(seed))


class VocabularyTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="metagen-test-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        # The bodies of functions, by what they return: examples of the page, and what is generated.
        cls.examples = {"HandlerMeta": [], "Meta": []}
        for name, body in _BODY.findall(PAGE):
            cls.examples[name].append(body)
        cls.generated = {"HandlerMeta": [], "Meta": []}
        for document in documents():
            cls.generate(document)

    @classmethod
    def generate(cls, document):
        """Adds what a document gives, as a host's build gets it. One that a command refuses, as
        some that are made of chance, gives nothing."""
        path = cls.folder / "combined.json"
        path.write_text(json.dumps(document), encoding="utf-8")
        environment = environment_of_run({"QYRA_SDK": REPLAY_SDK})
        for name, command in (("HandlerMeta", "genh"), ("Meta", "genm")):
            # Scaling conditions without a number have to compile, though not to load.
            finished = subprocess.run(
                [CMAKE, f"-DTOOL={BINARY}", f"-DCHECKER={shutil.which('true')}", "-DLAUNCHER=",
                 f"-DCOMMAND={command}", f"-DDOCUMENT={path}", "-DSCHEMA=",
                 f"-DOUTPUT={cls.folder / 'code'}", "-P", ROOT / "cmake" / "MetagenTables.cmake"],
                env=environment, capture_output=True, check=False)
            if finished.returncode == 0:
                cls.generated[name].append((cls.folder / "code.inl").read_text(encoding="utf-8"))

    def assert_compiles(self, head, bodies):
        """The bodies of functions, all in one source file."""
        source = [head]
        for name, texts in bodies.items():
            for index, text in enumerate(texts):
                source.append(f"{name} make{name}{index}();\n{name} make{name}{index}() {{\n"
                              f"{text}}}\n")
        self.assert_source_compiles("".join(source))

    def assert_source_compiles(self, text):
        path = self.folder / "source.cpp"
        path.write_text(text, encoding="utf-8")
        finished = subprocess.run(
            [CXX, "-std=c++17", *WARNINGS, f"-I{ROOT / 'include'}", "-fsyntax-only", path],
            text=True, capture_output=True, check=False)
        self.assertEqual((0, ""), (finished.returncode, finished.stderr[:3000]))

    # A host may well have more in sight than the vocabulary.
    LIBRARY = ('#include <math.h>\n#include "metagen/host/handlers.h"\n'
               '#include "metagen/host/meta.h"\nusing namespace metagen::host;\n')

    def test_most_documents_give_source(self):
        for texts in self.generated.values():
            self.assertGreater(len(texts), len(SEEDS))

    def test_the_page_has_every_kind_of_statement_and_no_other(self):
        for name, texts in self.generated.items():
            with self.subTest(name):
                self.assertEqual(
                    sorted(set().union(*map(kinds, texts))),
                    sorted(set().union(*map(kinds, self.examples[name]))))

    def test_the_page_explains_every_word(self):
        explained = set(re.findall(r"`([^`\n]+)`", re.sub(r"```.*?```", "", PAGE, flags=re.DOTALL)))
        words = " ".join(explained)
        for texts in self.generated.values():
            for word in set(re.findall(r"[A-Za-z]\w*(?:::\w+)+|m\.\w+", re.sub(
                    r'"(?:\\.|[^"\\])*"', "", "".join(texts)))):
                with self.subTest(word):
                    self.assertIn(word, words)

    def test_the_examples_of_the_page_compile(self):
        self.assert_compiles(self.LIBRARY, self.examples)

    def test_all_documents_compile_with_the_headers_for_hosts(self):
        self.assert_compiles(self.LIBRARY, self.generated)

    def test_the_main_of_the_guide_compiles_with_any_document(self):
        [main] = _MAIN.findall((ROOT / "docs" / "integrating.md").read_text(encoding="utf-8"))
        for meta, handlers in zip(self.generated["Meta"][:3], self.generated["HandlerMeta"][:3]):
            (self.folder / "meta.inl").write_text(meta, encoding="utf-8")
            (self.folder / "handlers.inl").write_text(handlers, encoding="utf-8")
            self.assert_source_compiles(main)

    def test_the_source_that_goes_through_the_objects_compiles(self):
        [source] = _GOING_THROUGH.findall(PAGE)
        self.assert_source_compiles(source)

    def test_the_page_has_every_member_of_the_objects(self):
        rows = dict(re.findall(r"^\| `([\w:]+)` \| (`.*) \|$", PAGE, re.MULTILINE))
        for header in ("handlers.h", "meta.h"):
            text = (ROOT / "include" / "metagen" / "host" / header).read_text(encoding="utf-8")
            for owner, body in re.findall(r"^(?:class|struct) (\w+) \{\n(.*?)^\};", text,
                                          re.MULTILINE | re.DOTALL):
                # What is indented further belongs to a struct within, or to a function.
                for name in re.findall(r"^    [\w:][\w:<>, ]+ (\w+)(?: = [\w:{}]+)?;", body,
                                       re.MULTILINE):
                    with self.subTest(f"{owner}::{name}"):
                        self.assertIn(f"`{name}`", rows[owner])

    def test_all_documents_compile_with_types_of_a_hosts_own(self):
        [own] = _OWN.findall(PAGE)
        self.assert_compiles(own, self.examples)
        self.assert_compiles("#include <math.h>\n" + own, self.generated)


if __name__ == "__main__":
    unittest.main()
