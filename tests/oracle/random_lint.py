"""Base documents, and stripped ones that fit them but for a few changes made of chance, the same
for the same seed: about half of them are without an error. Other documents serve, too, laid over an
SDK that knows nothing."""

import copy
import random

from random_combined import random_combined
from random_meta import random_meta
from random_stripped import Documents

# The types of parameters, and defaults as the SDK writes them.
DEFAULTS = {
    "integer": ("0", "-7", "2147483647"), "bool": ("0", "1"),
    "float": ("0.5", "1", "-3", "1e-07"), "float texture": ("1", "0.25"),
    "vector": ("Vector(0, 0, 1)",), "color": ("Color(1, 0.5, 0)", "Color(1, 1, 1)"),
    "acolor": ("AColor(0, 0, 0, 1)",), "string": ("a/b \u00e9", "text"),
    "matrix": ("Matrix(Vector(1, 0, 0), Vector(0, 1, 0), Vector(0, 0, 1))",),
    "texture": ("AColor(1, 1, 1, 1)", "Color(0, 0, 1)"), "plugin": ("#InvalidPlugin",),
    "integer texture": ("3",), "vector texture": ("Vector(1, 2, 3)",)}
LISTS = {"integer": "IntList(1, 2)", "float": "FloatList(0.5)",
         "color": "ColorList(Color(1, 1, 1))", "string": "StringList(a, b)", "list": "List(1, a)"}
CATEGORIES = ("material", "texture", "light", "BRDF", None)
PLUGINS = ("Mtl", "Mtl_two", "Tex", "Light.a", "zed", "\u6771")
NAMES = ("size", "size_x", "Color", "tex.b", "on", "count", "type", "\u00fc", "file")
TEXTURE_DATA = ("_tex", "_tex_on", "_tex_mult", "_res_mult")

LEAVES = (None, True, False, 0, 1, 2.5, -0.0, 1e300, "", "1", "text", [], {}, [1, {"a": "b/"}])
TEXTS = ("", "abc", "1", "0.5", "2.7", "0,5", "50%", "1e39", "-1e-46", "99999999999", " 12abc",
         "nan", "inf", "0.9999999", "#BadValue", "true", "Color(1, 1)", "Color(1, x, 0)", "Color(1,2,3,4)",
         "VectorList(Vector(1, 2, 3))", "List()", "List(1, 2", "IntList()", "Texture::out", "null",
         "double", "list", "Float", "float", "integer", "color texture", "acolor", "1f",
         "ColorTexFrameHandler", "FloatTexFrameHandler", "DuplicateHandler", "FileBrowserHandler",
         "ColorTexFrameHandle", "size", "on", "count", "nothing", 'a"b', "a\\b", "a\nb")
KEYS = ("type", "Type", "listType", "defaultValue", "DefaultValue", "handler", "handlerinfo",
        "scaling", "Scaling", "params", "Params", "userData", "plugins", "Plugins", "version",
        "Version", "loadMode", "unit", "power", "conditions", "op", "ref", "value", "extra", 'q"q',
        "b\\u0041", 'x":1,"y', 'version":"1","y', 'size":{},"y', 'params":1,"y', "siz\\u0065",
        "t\tt", "size_color", "size_float", "on_tex",
        "texture_multiplier_mode", "Size", "size.x", "COUNT", *NAMES, *PLUGINS)


class Fitting:
    """A base and a stripped document."""

    def __init__(self, seed):
        self.random = random.Random(f"lint {seed}")
        self.live = {name: self.live_plugin() for name in PLUGINS if self.chance(0.8)}
        self.stripped = {"version": self.pick((3, 3.5, -1)), "plugins": {
            name: self.plugin(self.live.get(name)) for name in (*PLUGINS, "Own", "Own2")
            if self.chance(0.5)}}

    def chance(self, probability):
        return self.random.random() < probability

    def pick(self, choices):
        return self.random.choice(choices)

    def type(self):
        """A type with a default."""
        if self.chance(0.2):
            element = self.pick(tuple(LISTS))
            return {"type": "list", "listType": element, "defaultValue": LISTS[element]}
        kind = self.pick(tuple(DEFAULTS))
        return {"type": kind, "defaultValue": self.pick(DEFAULTS[kind])}

    def live_plugin(self):
        params = {}
        for name in NAMES:
            if self.chance(0.7):
                params[name] = self.type()
                if self.chance(0.15):
                    del params[name]["defaultValue"]
                elif params[name]["type"] != "list" and self.chance(0.005):
                    params[name]["defaultValue"] = "#BadValue"
        return {"type": self.pick(CATEGORIES), "params": params}

    def plugin(self, live):
        if live is not None and self.chance(0.1):
            return None
        live = live or {"type": "own", "params": {}}
        params, user_data = {}, {}
        for name in NAMES:
            if name in live["params"]:
                if self.chance(0.6):
                    params[name] = self.overlay(live["params"][name], name, user_data)
            elif self.chance(0.2):
                params[name] = self.served(self.type(), name, user_data)
        plugin = {"type": live["type"] if self.chance(0.7) else self.pick(CATEGORIES)}
        if live["params"] and self.chance(0.7):
            plugin = {}
        if params or self.chance(0.2):
            plugin["params"] = params
        if self.chance(0.3):
            user_data["own"] = self.type()
        if user_data:
            plugin["userData"] = user_data
        self.scale({**live["params"], **{key: {**live["params"].get(key, {}), **value}
                                         for key, value in params.items() if value}}, params)
        return plugin

    def overlay(self, live, name, user_data):
        if self.chance(0.1):
            return None
        entry = {}
        for key, value in live.items():
            if self.chance(0.3):
                entry[key] = value
        if self.chance(0.4) and live["type"] in DEFAULTS:
            entry["defaultValue"] = self.pick(DEFAULTS[live["type"]])
        return self.served(entry, name, user_data)

    def served(self, entry, name, user_data):
        handler = self.pick((None, None, "Color", "Float", "Duplicate", "File"))
        if name in ("type", "size") or handler is None:
            return entry
        if handler == "File":
            return {**entry, "handler": "FileBrowserHandler",
                    "handlerinfo": self.pick(({}, {"loadMode": "1"}))}
        if handler == "Duplicate":
            data = ("_duplicate", "_duplicate_output")
        else:
            user_data["texture_multiplier_mode"] = {"type": "integer"}
            data = (*TEXTURE_DATA, f"_{handler.lower()}")
        for suffix in data:
            user_data[name + suffix] = {"type": "float", "defaultValue": "0.5"}
        if handler == "Color":
            user_data[f"{name}_color"] = {"type": "acolor", "defaultValue": "AColor(1, 0, 0, 1)"}
        word = "DuplicateHandler" if handler == "Duplicate" else f"{handler}TexFrameHandler"
        return {**entry, "handler": word}

    def scale(self, all_params, params):
        numeric = [name for name, entry in all_params.items()
                   if entry["type"] in ("integer", "bool", "float")
                   and params.get(name, entry) is not None]
        for entry in params.values():
            if entry is None or self.chance(0.8):
                continue
            entry["scaling"] = {"unit": 1, "power": self.pick((1, 2))}
            if numeric and self.chance(0.6):
                entry["scaling"]["conditions"] = [
                    {"op": 1, "ref": self.pick(numeric), "value": self.pick((0, 1, 2.5))}
                    for _ in range(self.random.randrange(3))]

    # Changes

    def leaf(self):
        return copy.deepcopy(self.pick(LEAVES))  # it may be changed, and must not hold itself

    def places(self, value):
        """All objects and arrays of a document."""
        if isinstance(value, (dict, list)):
            yield value
            for member in value.values() if isinstance(value, dict) else value:
                yield from self.places(member)

    def change(self):
        """Makes one member of the stripped document another."""
        containers = [place for place in self.places(self.stripped) if place]
        if not containers:
            return
        container = self.pick(containers)
        if isinstance(container, list):
            container[self.random.randrange(len(container))] = self.leaf()
            return
        key = self.pick(tuple(container))
        action = self.random.randrange(8)
        if action < 2:
            del container[key]
        elif action == 2:
            container[self.pick(KEYS)] = container.pop(key)
        elif action == 3:
            container[self.pick(KEYS)] = copy.deepcopy(self.pick((*LEAVES, *TEXTS)))
        elif action == 4:
            container[key] = self.leaf()
        elif isinstance(container[key], str) or self.chance(0.2):
            container[key] = self.pick(TEXTS)


def random_lint(seed):
    """A base document, and a stripped one."""
    if seed % 10 == 7:
        return {"plugins": {}}, random_meta(seed)
    if seed % 10 == 8:
        return {"plugins": {}}, random_combined(seed)
    if seed % 10 == 9:
        documents = Documents(seed)
        return {"plugins": documents.live}, documents.stripped
    fitting = Fitting(seed)
    for _ in range(fitting.pick((0, 1, 1, 1, 2, 3))):
        fitting.change()
    return {"plugins": fitting.live}, fitting.stripped
