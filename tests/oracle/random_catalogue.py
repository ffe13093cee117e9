"""Catalogues of the replay SDK made from a seed: every form that a catalogue has, and names and
texts that are hard on writers. A run of `dump` on them ends in a document, never in an error."""

import random
import string

NAME_PARTS = ["mix", "Mix", "MIX", "_", ".", "tex", "type", "Type", "a", "B", "0", "-", " ", "/",
              "\u00e9", "\u00c9", "\u6771\u4eac", "\U0001f4f7", "{", "}", ",", ":", "'"]
TEXT_PARTS = ["", "none", '""', '"', "\\", "/", "\n", "\r", "\t", "\b", "\f", "\u0001", "\u001f",
              "\u007f", "\u00e9", "\u6771", "\U0001f4f7", ", ", "(", ")", "List(", "Color(1, 1, 1)",
              "a", " ", "<?>", "%s", "{}", "C:\\temp\\"]
FLOATS = [0, 1, -1, 0.1, 0.5, 1e-7, 123456789, 1 / 3, -2.5e-20, 16777217, 1e30, 3.4028234e38,
          1e-45, -0.0, 999999.5, 1000000, "inf", "-inf", "nan"]
INTEGERS = [0, 1, -1, 7, 255, -2147483648, 2147483647]
GUIDED = {0: 0, 1: 0, 2: 0, 3: 0, 4: (1, 3), 5: (1, 3), 6: (1, 3, 4), 7: (9,), 8: (12,),
          10: (1, 3, 4), 11: (1, 3, 4), 13: 0, 14: 0, 15: (0, 1, 3, 5), 16: (9,), 17: (12,)}
TYPE_CODES = [*range(18), *range(100, 112), *range(113, 118)]
SKIPPED = [1000, 1001, 1002, 1003, 1004, 1005, 10000]
# Sets of category bits that resolve to one name or none.
CATEGORIES = [[], [0], [1], [2], [3], [4], [5], [6], [7], [8], [9], [14], [15], [16], [17], [25],
              [4, 8], [4, 5], [1, 5, 9], [3, 2], [9, 10], [2, 18], [6, 8, 19], [63]]
TYPE_WORDS = ["integer", "float", "double", "bool", "vector", "color", "acolor", "matrix",
              "transform", "string", "plugin", "texture", "color texture", "acolor texture", "list",
              "float texture", "integer texture", "vector texture", "matrix texture",
              "transform texture"]
FLOATS_OF = {"vector": 3, "color": 3, "acolor": 4, "matrix": 9, "transform": 12}


class RandomCatalogue:
    def __init__(self, seed):
        self._random = random.Random(seed)

    def make(self):
        one = self._random
        self._ids = [one.choice([number, -number]) for number in range(1, 12)]
        classes = {name: self._class() for name in self._names(one.randrange(0, 12))}
        catalogue = {"plugins": classes, "instances": [self._instance(i) for i in self._ids]}
        if one.random() < 0.5:
            catalogue["classNames"] = self._shuffled(classes)
        return catalogue

    def _shuffled(self, names):
        """The names in any order, some of them missing, some twice."""
        names = list(names)
        return self._random.choices(names, k=self._random.randrange(2 * len(names))) if names else []

    def _names(self, count):
        # Sorted, since the order of a set is another in every process.
        return sorted({"".join(self._random.choices(NAME_PARTS, k=self._random.randrange(1, 5)))
                       for _ in range(count)})

    def _text(self):
        parts = TEXT_PARTS + list(string.ascii_letters[:3])
        return "".join(self._random.choices(parts, k=self._random.randrange(4)))

    def _instance(self, number):
        one = self._random
        instance = {"id": number, "name": one.choice([None, self._text(), "mesh"])}
        if one.random() < 0.3:
            instance["exists"] = False
        if one.random() < 0.6:
            instance["propertyNames"] = {str(index): self._text() for index in (-1, 0, 1, 5)}
        return instance

    def _class(self):
        one = self._random
        parameters = {name: self._parameter() for name in self._names(one.randrange(0, 10))}
        entry = {"categories": one.choice(CATEGORIES), "params": parameters}
        if one.random() < 0.3:
            entry["typeText"] = f"type text {one.getrandbits(60)}"
        if one.random() < 0.3:
            entry["parameterNames"] = one.choice([None, [], self._shuffled(parameters)])
        return entry

    def _parameter(self):
        one = self._random
        form = one.randrange(4)
        if form == 0:
            return self._in_words()
        code = one.choice(TYPE_CODES + SKIPPED)
        if form == 1 and code in GUIDED:
            return {"typeCode": code, "guide": self._guide(GUIDED[code])}
        entry = {"typeCode": code, "default": self._tagged()}
        if one.random() < 0.3:
            entry["elementsCount"] = one.choice([-1, 0, 3, 4294967295])
        return entry

    def _in_words(self):
        """A parameter as a document has it. Its texts of numbers are those that are written."""
        one = self._random
        if one.random() < 0.5:
            entry = {"type": one.choice(TYPE_WORDS)}
            return {**entry, "defaultValue": self._text()} if one.random() < 0.8 else entry
        entry = {"type": "list", "listType": one.choice(TYPE_WORDS)}
        parts = ", ".join(self._text() for _ in range(one.randrange(1, 4)))
        texts = ["IntList(1, -2)", "FloatList(0.5, 1e-07, inf)", "VectorList(Vector(1, 2, 3))",
                 "ColorList(Color(0, 0, 0), Color(1, 0.5, 1))", f"List({parts})",
                 f"StringList({parts})", f"PluginList({parts})"]
        return {**entry, "defaultValue": one.choice(texts)} if one.random() < 0.8 else entry

    def _floats(self, count):
        return self._random.choices(FLOATS, k=count)

    def _guide(self, lengths):
        guide = {"float": self._floats(1)[0]}
        if lengths:
            # A guide's numbers reach the document through arithmetic on the whole sequence.
            length = self._random.choice(lengths)
            guide["floats"] = self._random.choices([0, 1, 0.5, -3, 1e-7, 123456789], k=length)
        return guide

    def _reference(self):
        one = self._random
        number = one.choice(self._ids + [0, -1, 4242])
        if one.random() < 0.3:
            number = f"0x{(number & 0xFFFFFFFFFFFF) | one.getrandbits(16) << 48:X}"
        reference = {"id": number, "propertyIndex": one.choice([-1, 0, 1, 5, 6])}
        return {**reference, "renderer": False} if one.random() < 0.1 else reference

    def _tagged(self, depth=0):
        one = self._random
        makers = {
            "badValue": None, "unspecified": None, -7: None, 11: None, 10001: None,
            "integer": lambda: one.choice(INTEGERS), "float": lambda: self._floats(1)[0],
            "double": lambda: one.choice([*FLOATS, 1e300, 0.1234567]),
            "bool": lambda: one.choice([True, False, 0, 1, 255]),
            "string": lambda: one.choice([None, self._text()]), "plugin": self._reference,
            "list": lambda: self._elements(lambda: self._tagged(depth + 1)),
            "integerList": lambda: self._elements(lambda: one.choice(INTEGERS)),
            "floatList": lambda: self._elements(lambda: self._floats(1)[0]),
            "vectorList": lambda: self._elements(lambda: self._floats(3)),
            "colorList": lambda: self._elements(lambda: self._floats(3)),
            "transformList": lambda: self._elements(lambda: self._floats(12)),
            "stringList": lambda: self._elements(lambda: one.choice([None, self._text()])),
            "pluginList": lambda: self._elements(self._reference),
            **{kind: lambda count=count: self._floats(count) for kind, count in FLOATS_OF.items()},
        }
        if depth > 3:
            del makers["list"]
        kind = one.choice(list(makers))
        return {"kind": kind, **({} if makers[kind] is None else {"value": makers[kind]()})}

    def _elements(self, make):
        if self._random.random() < 0.1:
            return None
        return [make() for _ in range(self._random.randrange(4))]


def random_catalogue(seed):
    return RandomCatalogue(seed).make()
