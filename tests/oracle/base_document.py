"""The base document that `metagen dump` must write for a catalogue of the replay SDK.

Worked out from the rules of the document and of the catalogue alone, without the program, so that
the two can be held against each other:

    base_document.py <catalogue.json> > base.json
"""

import json
import math
import pathlib
import struct
import sys

NOT_A_LIST = 0xFFFFFFFF
SKIPPED_TYPE_CODES = {1000, 1001, 1002, 1003, 1004, 1005, 10000}
GENERIC_LIST = 12

TYPE_NAMES = ["integer", "float", "float", "bool", "vector", "color", "acolor", "matrix",
              "transform", "string", "plugin", "texture", "list", "float texture",
              "integer texture", "vector texture", "matrix texture", "transform texture"]
# What a catalogue may call a type, besides the names that a document has for it.
TYPE_CODES = {**{name: TYPE_NAMES.index(name) for name in TYPE_NAMES},
              "double": 2, "color texture": 11, "acolor texture": 11}

CATEGORY_NAMES = (["bitmap", "BRDF", "node", "geometry", "light", "material", "render_channel",
                   "settings", "settings"] + ["texture"] * 6 + ["uvw", "volumetric"] + [None] * 3)
CATEGORY_BITS = {name: 1 << CATEGORY_NAMES.index(name) for name in CATEGORY_NAMES if name}

KINDS = {"badValue": -1, "integer": 0, "float": 1, "double": 2, "bool": 3, "vector": 4, "color": 5,
         "acolor": 6, "matrix": 7, "transform": 8, "string": 9, "plugin": 10, "list": 12,
         "integerList": 100, "floatList": 101, "vectorList": 104, "colorList": 105,
         "transformList": 108, "stringList": 109, "pluginList": 110, "unspecified": 10000}
LIST_WORDS = {12: "List", 100: "IntList", 101: "FloatList", 104: "VectorList", 105: "ColorList",
              108: "TransformList", 109: "StringList", 110: "PluginList"}


class AbnormalEnd(Exception):
    """The program doesn't come to write a document."""


# --- keys -----------------------------------------------------------------------------------------

def plain_bytes(name):
    return name.encode("utf-8", "surrogateescape")


def folded(name):
    """Keys that fold to the same are one key; "type" is first and equals only itself."""
    if name == "type":
        return (0,)
    signed = [byte - 256 if byte > 127 else byte
              for byte in plain_bytes(name).replace(b"_", b".").lower()]
    return (1, signed)


class FoldedMap:
    """Keeps the first of equal keys; iterates in the documents' order."""

    def __init__(self):
        self._entries = {}

    def __contains__(self, name):
        return str(folded(name)) in self._entries

    def add(self, name, value):
        self._entries.setdefault(str(folded(name)), (name, value))

    def items(self):
        return sorted(self._entries.values(), key=lambda entry: folded(entry[0]))


# --- numbers --------------------------------------------------------------------------------------

def number_of(value):
    """A catalogue's number; "inf", "-inf", "nan" and "-nan" are texts there."""
    return float(value)


def to_float32(value):
    return struct.unpack("<f", struct.pack("<f", number_of(value)))[0]


def general(number):
    """Six significant digits in the shortest general form."""
    if math.isnan(number):
        return "-nan" if math.copysign(1, number) < 0 else "nan"
    return "%.6g" % number


def single(value):
    return general(to_float32(value))


def truncated(number):
    if math.isnan(number) or not -2147483649 < number < 2147483648:
        return -2147483648
    return int(number)


# --- texts of default values ----------------------------------------------------------------------

def called(word, parts):
    return f"{word}({', '.join(parts)})"


def triple(word, values):
    return called(word, [single(value) for value in values])


def matrix(values):
    return called("Matrix", [triple("Vector", values[row:row + 3]) for row in (0, 3, 6)])


def compound(kind, values):
    if kind == 7:
        return matrix(values)
    if kind == 8:
        return called("Transform", [matrix(values[:9]), triple("Vector", values[9:])])
    return triple({4: "Vector", 5: "Color", 6: "AColor"}[kind], values)


def signed48(number):
    low = number & 0xFFFFFFFFFFFF
    return low - (1 << 48) if low >> 47 else low


def integer_of(value):
    return int(value, 16) if isinstance(value, str) else int(value)


class Instances:
    def __init__(self, catalogue):
        self._by_id = {integer_of(entry["id"]): entry for entry in catalogue.get("instances", [])}

    def find(self, reference):
        return self._by_id.get(signed48(integer_of(reference["id"])))

    def name(self, reference):
        """Without a renderer there is nobody to ask for the name."""
        found = self.find(reference) if reference.get("renderer", True) else None
        return (found or {}).get("name") or ""

    def reference_text(self, reference):
        found = self.find(reference)
        number = signed48(integer_of(reference["id"]))
        if not reference.get("renderer", True) or number in (0, -1):
            return "#InvalidPlugin"
        if found is None or not found.get("exists", True):
            return "#InvalidPlugin"
        index = reference.get("propertyIndex", 0)
        output = found.get("propertyNames", {}).get(str(index)) if index >= 1 else None
        return self.name(reference) + ("" if output is None else "::" + output)


def kind_of(tagged):
    kind = tagged["kind"]
    return KINDS[kind] if isinstance(kind, str) else int(kind)


def element_texts(kind, elements, instances):
    if kind == 12:
        return [tagged_text(element, instances) for element in elements]
    if kind == 100:
        return [str(int(element)) for element in elements]
    if kind == 101:
        return [single(element) for element in elements]
    if kind == 109:
        return [element or "" for element in elements]
    if kind == 110:
        return [instances.name(element) for element in elements]
    return [compound({104: 4, 105: 5, 108: 8}[kind], element) for element in elements]


def tagged_text(tagged, instances):
    kind, value = kind_of(tagged), tagged.get("value")
    if kind in LIST_WORDS:
        return called(LIST_WORDS[kind], element_texts(kind, value or [], instances))
    if kind == 0:
        return str(int(value))
    if kind == 1:
        return single(value)
    if kind == 2:
        return general(number_of(value))
    if kind == 3:
        return "1" if value else "0"
    if 4 <= kind <= 8:
        return compound(kind, value)
    if kind == 9:
        return value or ""
    if kind == 10:
        return instances.reference_text(value)
    return {-1: "#BadValue", 10000: "#Unspecified"}.get(kind, "<?>")


def guide_text(code, guide):
    """The default of a guide: from its one float, or from its sequence of floats."""
    value, floats = to_float32(guide.get("float", 0)), guide.get("floats") or []
    if code in (0, 14):
        return str(truncated(value))
    if code in (1, 2, 13):
        return general(value)
    if code == 3:
        return "1" if value != 0 else "0"
    if code == 15:
        return compound(4, (floats + [0, 0, 0])[:3])
    if code not in (4, 5, 6, 7, 8, 10, 11, 16, 17):
        raise AbnormalEnd("Wrong type of default values")
    if code in (4, 5):
        forms = {1: (code, floats * 3), 3: (code, floats)}
    elif code == 6:
        forms = {1: (6, floats * 3 + [1]), 3: (6, floats + [1]), 4: (6, floats)}
    elif code in (7, 16):
        forms = {9: (7, floats)}
    elif code in (8, 17):
        forms = {12: (8, floats)}
    else:
        forms = {1: (5, floats * 3), 3: (5, floats), 4: (6, floats)}
    if len(floats) not in forms:
        raise AbnormalEnd("Wrong size of default values")
    return compound(*forms[len(floats)])


# --- parameters -----------------------------------------------------------------------------------

class Parameter:
    """A catalogue's parameter, brought to the form that the SDK's interface gives."""

    def __init__(self, entry, instances):
        list_type = entry.get("listType")
        if "typeCode" in entry:
            self.code = int(entry["typeCode"])
            count = 0 if 100 <= self.code <= 117 else NOT_A_LIST
        elif list_type is not None:
            element = TYPE_CODES[list_type]
            self.code = GENERIC_LIST if element == GENERIC_LIST else element + 100
            count = 0
        else:
            self.code = TYPE_CODES[entry["type"]]
            count = NOT_A_LIST
        count = int(entry.get("elementsCount", count)) & NOT_A_LIST
        self.is_list = count != NOT_A_LIST
        self.is_skipped = self.code in SKIPPED_TYPE_CODES
        if not self.is_skipped:
            self.text, self.list_size = self._default(entry, instances)

    def _default(self, entry, instances):
        """The text, and the elements of a list value or 0. Without a default there is no text."""
        if "guide" in entry:
            return guide_text(self.code, entry["guide"]), 0
        if "default" in entry:
            tagged = entry["default"]
            is_list_value = kind_of(tagged) in LIST_WORDS
            size = len(tagged.get("value") or []) if is_list_value else 0
            return tagged_text(tagged, instances), size
        # A default in a document's words is a list value of some length, or any single value.
        return entry.get("defaultValue"), 1 if "defaultValue" in entry else 0

    def members(self):
        """The members of the parameter's object, in their order."""
        name = type_name(self.code)
        if self.is_list:
            members = {"type": "list", "listType": name}
            return {**members, "defaultValue": self.text} if self.list_size else members
        members = {"type": name}
        if self.text in (None, '""', "none"):
            return members
        return {**members, "defaultValue": self.text}


def type_name(code):
    if 100 <= code <= 117 and code != 112:
        return TYPE_NAMES[code - 100]
    if 0 <= code <= 17:
        return TYPE_NAMES[code]
    raise AbnormalEnd("Error No Ovix Type!")


# --- classes --------------------------------------------------------------------------------------

def category_bits(entry):
    if "categories" in entry:
        return sum(1 << bit for bit in set(map(int, entry["categories"])))
    name = entry.get("type")
    return CATEGORY_BITS[name] if name is not None else 0


def category(entry):
    bits = [bit for bit in range(20) if category_bits(entry) >> bit & 1]
    if not bits:
        return None
    if len(bits) >= 2:
        bits = [bit for bit in bits if bit < 17]
    if len(bits) >= 2 and 8 in bits:
        bits.remove(8)
    if len(bits) == 1:
        return CATEGORY_NAMES[bits[0]]
    for winner in (4, 5, 1, 9, 3):
        if winner in bits:
            return CATEGORY_NAMES[winner]
    raise AbnormalEnd("multiple incompatible categories")


def vector_of_names(owner, member, objects):
    """The names in the order in which the SDK lists them; a null vector is empty."""
    if member in owner:
        return owner[member] or []
    return sorted(objects, key=plain_bytes)


def parameters_of(entry, instances):
    parameters = FoldedMap()
    objects = entry.get("params", {})
    for name in vector_of_names(entry, "parameterNames", objects):
        if name in parameters:
            continue
        parameter = Parameter(objects[name], instances)
        if not parameter.is_skipped:
            parameters.add(name, parameter)
    return parameters


# --- the document ---------------------------------------------------------------------------------

ESCAPES = {"\b": "\\b", "\t": "\\t", "\n": "\\n", "\f": "\\f", "\r": "\\r", '"': '\\"',
           "\\": "\\\\"}


def escaped(text):
    return "".join(ESCAPES.get(character, f"\\u{ord(character):04x}")
                   if character < " " or character in ESCAPES else character
                   for character in text)


def object_text(members):
    """Keys stand as they are; values are texts of JSON already."""
    return "{" + ",".join(f'"{key}":{value}' for key, value in members) + "}"


def parameter_text(parameter):
    return object_text((key, f'"{escaped(value)}"') for key, value in parameter.members().items())


def class_text(entry, instances):
    parameters = parameters_of(entry, instances)
    name = category(entry)
    return object_text([
        ("type", "null" if name is None else f'"{name}"'),
        ("params", object_text((key, parameter_text(value)) for key, value in parameters.items()))])


def base_document(catalogue):
    """The bytes of the document for a catalogue's parsed JSON."""
    instances = Instances(catalogue)
    classes = FoldedMap()
    for name in vector_of_names(catalogue, "classNames", catalogue["plugins"]):
        classes.add(name, class_text(catalogue["plugins"][name], instances))
    return plain_bytes(object_text([("plugins", object_text(classes.items()))]))


def read_catalogue(path):
    return json.loads(pathlib.Path(path).read_bytes().decode("utf-8", "surrogateescape"))


if __name__ == "__main__":
    sys.stdout.buffer.write(base_document(read_catalogue(sys.argv[1])))
