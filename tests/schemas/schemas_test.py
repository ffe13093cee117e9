"""Holds the schemas to the documents: they take every document that the project keeps, and refuse
every wrong one of a table, for the right reason."""

import copy
import json
import pathlib
import re
import unittest

from jsonschema import Draft202012Validator

from wrong_documents import MINIMAL, WRONG

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCHEMAS = ROOT / "schemas"
KINDS = ("base", "stripped", "combined")

# Kept documents that are wrong on purpose, with the places that the schema refuses.
REFUSED = {}


def read(path):
    return json.loads(path.read_text(encoding="utf-8"))


def schema_of(kind):
    return read(SCHEMAS / f"{kind}.schema.json")


def refused_places(kind, document):
    """The places of a document that its schema refuses, as JSON paths, in order."""
    errors = Draft202012Validator(schema_of(kind)).iter_errors(document)
    return sorted({error.json_path for error in errors})


def kept_documents():
    """The documents among the goldens and the examples: (path below the root, kind). A file's name
    begins with its kind; what diff compares is any JSON."""
    folders = (ROOT / "tests" / "golden", ROOT / "examples")
    for path in sorted(path for folder in folders for path in folder.rglob("*.json")):
        name = path.relative_to(ROOT).as_posix()
        kinds = [kind for kind in KINDS if path.name.startswith(kind)]
        if kinds and "/golden/diff/" not in name:
            yield name, kinds[0]


def subschemas(schema, place="$"):
    """All the schemas within a schema that describe a key, with their places."""
    for keyword in ("properties", "patternProperties"):
        for key, value in schema.get(keyword, {}).items():
            if isinstance(value, dict):
                yield f"{place}.{key}", value
                yield from subschemas(value, f"{place}.{key}")
    for name, value in schema.get("$defs", {}).items():
        yield from subschemas(value, f"{place}.{name}")


def changed(document, path, value):
    """A copy of the document with another value at the path, a text of keys with "/" between."""
    result = copy.deepcopy(document)
    *outer, last = path.split("/")
    place = result
    for key in outer:
        place = place[key]
    place[last] = value
    return result


class SchemasTest(unittest.TestCase):
    def test_they_are_schemas(self):
        for kind in KINDS:
            with self.subTest(kind):
                Draft202012Validator.check_schema(schema_of(kind))

    def test_they_take_the_documents_that_the_table_changes(self):
        for kind in KINDS:
            with self.subTest(kind):
                self.assertEqual([], refused_places(kind, MINIMAL[kind]))

    def test_they_refuse_wrong_documents_at_the_wrong_place(self):
        for kind, path, value, place in WRONG:
            with self.subTest(f"{kind} {path}"):
                document = value if path == "" else changed(MINIMAL[kind], path, value)
                self.assertEqual([place], refused_places(kind, document))

    def test_they_take_every_kept_document_but_those_wrong_on_purpose(self):
        found = {}
        for name, kind in kept_documents():
            if places := refused_places(kind, read(ROOT / name)):
                found[name] = places
        self.assertEqual(REFUSED, found)

    def test_there_are_documents_of_every_kind(self):
        self.assertEqual(set(KINDS), {kind for _, kind in kept_documents()})

    def test_they_describe_every_key(self):
        for kind in KINDS:
            schema = schema_of(kind)
            for place, value in subschemas(schema):
                target = value.get("$ref", "").removeprefix("#/$defs/")
                described = "description" in value or "description" in schema["$defs"][target]
                with self.subTest(f"{kind} {place}"):
                    self.assertTrue(described)

    def test_they_know_the_types_of_the_vocabulary(self):
        rows = (ROOT / "src" / "sdk" / "parameter_type.h").read_text(encoding="utf-8")
        names = set(re.findall(r'^ +\{type_code::\w+, "([^"]+)"', rows, re.MULTILINE))
        self.assertGreater(len(names), 10)
        # The SDK's doubles are called float, and documents may call two textures by other names.
        base = names - {"double"}
        stripped = base | {"acolor texture", "color texture"}
        for kind, expected in (("base", base), ("stripped", stripped), ("combined", stripped)):
            definitions = schema_of(kind)["$defs"]
            for key in ("type", "listType"):
                known = definitions["parameter"]["properties"][key]
                if "$ref" in known:
                    known = definitions[known["$ref"].removeprefix("#/$defs/")]
                with self.subTest(f"{kind} {key}"):
                    self.assertEqual(sorted(expected), sorted(known["enum"]))

    def test_what_two_of_them_share_is_equal(self):
        stripped, combined = schema_of("stripped")["$defs"], schema_of("combined")["$defs"]
        shared = ("typeName", "elementType", "defaultValue", "handler", "handlerinfo", "scaling",
                  "scaleCondition")
        for name in shared:
            with self.subTest(name):
                self.assertEqual(stripped[name], combined[name])


if __name__ == "__main__":
    unittest.main()
