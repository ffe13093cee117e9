"""Random combined documents for `metagen genm`: the same seed always gives the same document.

Most are sound, with every type, broken default texts where those are no error, shared and distinct
defaults, file browsers and scaling; a few hold something that ends the program.
"""

import random

SCALARS = ["integer", "float", "bool", "float texture"]
COMPOUNDS = {"vector": "Vector", "color": "Color", "acolor": "AColor", "matrix": "Matrix",
             "transform": "Transform", "plugin": "Color", "texture": "AColor",
             "acolor texture": "AColor", "color texture": "Color"}
OTHERS = ["string", "integer texture", "vector texture", "matrix texture", "transform texture"]
ELEMENTS = [*SCALARS, *COMPOUNDS, *OTHERS, "list"]

NAMES = ["a", "b", "B", "size", "color_tex", "z.9", "z_9", "with blank", "\u00fcber", "\u4e2d"]
INTEGERS = ["0", "1", "-1", "7", " 12abc", "+3", "2147483647", "-2147483648", "16777217", "007"]
FLOATS = ["0", "-0", "1", "0.5", "0.1234567", "1e-3", "1e6", "999999", "999999.5", "-2.5e-20",
          "3.4e38", " .25x", "0x1p-2", "inf", "nan", "-inf", "1234567"]
BROKEN_SCALARS = ["", "abc", "99999999999", "1e39", "-", "."]
PLAIN_TEXTS = ["", "text", 'a "quoted" \\ one', "line\nfeed\ttab\r\b\f", "\x01\x1f\x7f",
               "\u00e9\u20ac\U0001F600", "before\0after", "/slash"]


class Maker:
    def __init__(self, seed):
        self.random = random.Random(seed)
        self.breaks = self.random.random() < 0.3  # whether this document may end the program

    def chance(self, probability):
        return self.random.random() < probability

    def document(self):
        version = self.random.choice([1, 3, 3.9, -2.5, 5.25, 1e20, 1234567, 0])
        plugins = {self.name(): self.plugin() for _ in range(self.random.randrange(6))}
        return {"version": version, "plugins": plugins}

    def name(self):
        return self.random.choice(NAMES) + self.random.choice(["", "", "1", "2"])

    def plugin(self):
        plugin = {}
        if self.chance(0.8):
            plugin["type"] = self.random.choice(["material", "light", "", 3, None])
        for section, most in (("params", 10), ("userData", 4)):
            if self.chance(0.8):
                plugin[section] = {self.name(): self.parameter()
                                   for _ in range(self.random.randrange(most))}
        for section in plugin.values():
            if isinstance(section, dict):
                self.add_scaling(plugin, section)
        return plugin

    def parameter(self):
        entry = self.type()
        if self.chance(0.8):
            entry["defaultValue"] = self.default(entry)
        if self.chance(0.15):
            entry["handler"] = self.random.choice(["FileBrowserHandler", "OtherHandler"])
            if self.chance(0.8):
                entry["handlerinfo"] = self.random.choice([{}, {"loadMode": "1"},
                                                           {"loadMode": "0"}])
        return entry

    def type(self):
        if self.chance(0.3):
            return {"type": "list", "listType": self.random.choice(ELEMENTS)}
        if self.breaks and self.chance(0.06):
            return {"type": self.random.choice(["double", "list of", "Float"])}
        return {"type": self.random.choice([*SCALARS, *COMPOUNDS, *OTHERS])}

    def number(self):
        return self.random.choice(FLOATS) if self.chance(0.8) else self.random.choice(INTEGERS)

    def default(self, entry):
        if entry["type"] == "list":
            return self.list_text(entry["listType"])
        if entry["type"] in SCALARS:
            if self.breaks and self.chance(0.08):
                return self.random.choice(BROKEN_SCALARS)
            whole = entry["type"] in ("integer", "bool")
            return self.random.choice(INTEGERS if whole else FLOATS)
        if entry["type"] in COMPOUNDS and self.chance(0.9):
            return self.compound(COMPOUNDS[entry["type"]])
        return self.random.choice(PLAIN_TEXTS)

    def numbers(self, count):
        if self.chance(0.5):  # few values, so that arrays are shared
            return [self.random.choice(["0", "1", "-0", "1.0"])] * count
        return [self.number() for _ in range(count)]

    def row(self, word, count):
        if self.chance(0.1):
            count += self.random.choice([-1, 1])
        return f"{word}({self.random.choice([',', ', ']).join(self.numbers(count))})"

    def compound(self, word):
        if word == "Matrix":
            rows = [self.row("Vector", 3) for _ in range(3)]
            return f"Matrix({', '.join(rows)})"
        if word == "Transform":
            return f"Transform({self.compound('Matrix')}, {self.row('Vector', 3)})"
        return self.row(word, 4 if word == "AColor" else 3)

    def list_text(self, element):
        word = self.random.choice(["List", "List", "IntList", "FloatList", "ColorList",
                                   "VectorList", " List", "Text"])
        items = [self.element(element) for _ in range(self.random.randrange(4))]
        separator = self.random.choice([",", ", ", " , "])
        end = self.random.choice([")"] * 8 + [",)", " )", ""])
        return f"{word}({separator.join(items)}{end}"

    def element(self, element):
        word = COMPOUNDS.get(element) or {"vector texture": "Vector", "matrix texture": "Flat9",
                                          "transform texture": "Flat12"}.get(element)
        # Nested parentheses are cut short, so flat elements are wanted as well.
        if word in ("Matrix", "Flat9") and self.chance(0.8):
            return "M(" + "(".join(",".join(self.numbers(4)) for _ in range(3)) + ")"
        if word in ("Transform", "Flat12") and self.chance(0.8):
            return "T(1(" + "(".join(",".join(self.numbers(4)) for _ in range(4)) + ")"
        if word and not word.startswith("Flat"):
            return self.compound(word)
        return self.number()

    def add_scaling(self, plugin, section):
        numeric = [name for part in ("params", "userData")
                   for name, entry in plugin.get(part, {}).items()
                   if entry["type"] in ("integer", "float", "bool")
                   and plugin.get("params", {}).get(name, entry) is entry]
        for entry in section.values():
            if self.chance(0.25):
                entry["scaling"] = self.scaling(numeric)

    def scaling(self, numeric):
        scaling = {"unit": self.random.choice([1, 1, 1, 1.9, 0, "1"])}
        if self.breaks and self.chance(0.3):
            scaling["unit"] = self.random.choice([2, -1, 1e10])
        if self.chance(0.5):
            scaling["power"] = self.random.choice([1, 2, -1.5, 3e9, True])
        if self.chance(0.4):
            scaling["inverse"] = self.random.choice([True, False, 1])
        if numeric and self.chance(0.5):
            scaling["conditions"] = [self.condition(numeric)
                                     for _ in range(self.random.randrange(4))]
        return scaling

    def condition(self, numeric):
        condition = {"op": self.random.choice([1, 1.5]), "ref": self.random.choice(numeric)}
        if self.breaks and self.chance(0.5):
            condition["ref"] = self.random.choice(["nothing", *NAMES])
        if self.breaks and self.chance(0.3):
            condition["op"] = self.random.choice([2, "1"])
        if self.chance(0.8):
            condition["value"] = self.random.choice(
                [0, 1, -3, 2.9, -2147483648, 3e9, 0.1234567, 1e300, "1", True, None])
        return self.random.choice([condition] * 9 + [7])


def random_meta(seed):
    return Maker(seed).document()
