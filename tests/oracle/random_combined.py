"""Combined documents made of chance, the same for the same seed, for the tests of genh."""

import random

HANDLERS = ["ColorTexFrameHandler", "FloatTexFrameHandler", "DuplicateHandler"]
SUFFIXES = ["_tex", "_tex_on", "_tex_mult", "_color", "_float", "_duplicate", "_duplicate_output"]
NUMBERS = ["0", "1", "-0", "1.0", "0.5", "0.1", "1e0", "2", "999999", "1000000", "-999999",
           "-1e6", "1234567", "123456.7", "1e-7", "3.4e38", "16777217", "0.1234567", " 7", "+3",
           "0x1.8p1", "nan", "inf", "-inf", "1.00000017881393432617187499"]
FAULTS = [None, 1, "text", [], True, {}, {"defaultValue": None}, {"defaultValue": "abc"},
          {"defaultValue": ""}, {"defaultValue": "Color(1,2)"}, {"defaultValue": "1e39"},
          {"defaultValue": "-1e-40"}]


class Maker:
    def __init__(self, seed):
        self.random = random.Random(seed)
        # Most documents are good throughout; in the others anything may be wrong.
        self.faulty = seed % 5 == 4

    def chance(self, probability):
        return self.random.random() < probability

    def name(self):
        letters = "abcABC_.:9 \u00e9\u6771\"\\/\n\t\0"
        return "".join(self.random.choices(letters, k=self.random.randint(0, 4)))

    def number(self):
        if self.chance(0.5):
            return self.random.choice(NUMBERS)
        value = self.random.choice([self.random.uniform(-2, 2), self.random.gauss(0, 1e6),
                                    float(self.random.randint(-9, 9))])
        return "%.*g" % (self.random.randint(1, 17), value)

    def color(self):
        if self.chance(0.3):
            return self.number()
        count = self.random.choice([3, 4])
        numbers = [self.number()] * count if self.chance(0.4) else [
            self.number() for _ in range(count)]
        word = self.random.choice(["Color", "AColor", "X", ""])
        end = self.random.choice([")", "", "),9,9", ") ", "\0", "),\0,9"])
        return f"{word}({self.random.choice([',', ', ']).join(numbers)}{end}"

    def handler_user_data(self, parameter, user_data):
        """Adds what stands beside a handler parameter, at times not all of it."""
        for suffix in SUFFIXES:
            if self.chance(0.97):
                text = self.color() if suffix == "_color" else self.number()
                user_data[parameter + suffix] = {"type": "float", "defaultValue": text}
            if self.faulty and self.chance(0.02):
                user_data[parameter + suffix] = self.random.choice(FAULTS)

    def parameter(self):
        entry = {"type": "color", "defaultValue": "1"}
        if self.chance(0.8):
            entry["handler"] = self.random.choice(HANDLERS + ["FileBrowserHandler", "texture"])
        if self.faulty and self.chance(0.01):
            entry["handler"] = self.random.choice([None, 1, {}])
        if self.chance(0.05):
            return self.random.choice([None, 3, [entry]])
        return entry

    def plugin(self):
        if self.faulty and self.chance(0.01):
            return self.random.choice(FAULTS)
        params, user_data = {}, {}
        for _ in range(self.random.choice([0, 1, 2, 8])):
            parameter = self.name()
            params[parameter] = self.parameter()
            self.handler_user_data(parameter, user_data)
        plugin = {"type": "material", "params": params, "userData": user_data}
        for key in ("params", "userData"):
            if self.chance(0.05):
                del plugin[key]
            elif self.faulty and self.chance(0.01):
                plugin[key] = self.random.choice([None, 1, []])
        return plugin

    def document(self):
        document = {
            "plugins": {self.name(): self.plugin() for _ in range(self.random.randint(0, 12))},
            "version": self.random.choice([3, 3.5, 0, -2.9, 1e10, 123456789]),
            "other": [{}]}
        if self.faulty and self.chance(0.2):
            document["version"] = self.random.choice([None, "3", True])
        if self.faulty and self.chance(0.1):
            del document[self.random.choice(["plugins", "version"])]
        return document


def random_combined(seed):
    return Maker(seed).document()
