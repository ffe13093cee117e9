"""A stripped document as people keep it for a base document: it covers 40 of 100 plugins, with
handlers and their user data, file browsers, scaling, overrides, deprecations and keys of the host's
own. `combine` finds no clash in it, and the generators accept the combined document."""

import collections
import random

GROUPS = ("Basic", "Reflection", "Refraction", "Options", "Output", "Advanced", "Sampling",
          "Texture")
COLOR_TYPES = ("color", "acolor", "texture")


def default_texts(plugins):
    """All default texts that are no list's, by their type."""
    texts = collections.defaultdict(list)
    for plugin in plugins.values():
        for parameter in plugin["params"].values():
            if "defaultValue" in parameter:
                texts[parameter["type"]].append(parameter["defaultValue"])
    return texts


class Maker:
    """Makes one plugin after the other."""

    def __init__(self, plugins, seed):
        self.random = random.Random(seed)
        self.texts = default_texts(plugins)

    def chance(self, in_thousand):
        return self.random.randrange(1000) < in_thousand

    def plugin(self, name, base):
        if self.chance(8):
            return None
        self.user_data = {}
        # An integer or bool, which is never deprecated.
        self.targets = [key for key, parameter in base["params"].items()
                        if parameter["type"] in ("integer", "bool")]
        params = {key: self.parameter(key, parameter)
                  for key, parameter in base["params"].items() if self.chance(600)}
        self.add("host_version", "integer", str(self.random.randrange(5)))
        self.add("host_category", "string", self.random.choice(GROUPS))
        made = {"label": name, "params": params, "userData": self.user_data}
        if base["type"] is not None and self.chance(100):
            made["type"] = base["type"]
        if self.chance(20):
            made["type"] = "node"
        return made

    def add(self, name, kind, text=None):
        self.user_data[name] = {"type": kind} if text is None else {"type": kind,
                                                                    "defaultValue": text}

    def parameter(self, name, base):
        if base["type"] in ("list", "string") and self.chance(60):
            return None
        entry = {}
        if base["type"] != "list":
            self.add_handler(name, base["type"], entry)
            self.add_override(base, entry)
        if base["type"] == "float" and self.chance(150):
            entry["scaling"] = self.scaling()
        self.add_host_keys(name, entry)
        return entry

    def add_handler(self, name, kind, entry):
        if kind in COLOR_TYPES and self.chance(400):
            entry["handler"] = "ColorTexFrameHandler"
            self.add(f"{name}_color", "acolor", self.random.choice(self.texts["acolor"]))
            self.add_texture(name)
        elif kind in ("float", "float texture") and self.chance(150):
            entry["handler"] = "FloatTexFrameHandler"
            self.add(f"{name}_float", "float", self.random.choice(self.texts["float"]))
            self.add_texture(name)
        elif kind == "integer" and self.chance(30):
            entry["handler"] = "DuplicateHandler"
            self.add(f"{name}_duplicate", "integer", "0")
            self.add(f"{name}_duplicate_output", "integer", "1")
        elif kind == "string" and self.chance(350):
            entry["handler"] = "FileBrowserHandler"
            entry["handlerinfo"] = {"loadMode": "1" if self.chance(600) else "0",
                                    "filter": "Images (*.exr *.png)|*.exr;*.png"}

    def add_texture(self, name):
        self.add(f"{name}_tex", "texture")
        self.add(f"{name}_tex_on", "bool", "1")
        self.add(f"{name}_tex_mult", "float", "1")
        if not self.chance(20):  # forgotten here and there, so that the checks have something to say
            self.add(f"{name}_res_mult", "float", "1")
        self.add("texture_multiplier_mode", "integer", "0")

    def scaling(self):
        scaling = {"unit": 1}
        if self.chance(500):
            scaling["power"] = self.random.randrange(1, 4)
        if self.chance(300):
            scaling["inverse"] = self.chance(500)
        if self.targets and self.chance(300):
            scaling["conditions"] = [{"op": 1, "ref": self.targets[-1],
                                      "value": self.random.randrange(2)}]
        return scaling

    def add_override(self, base, entry):
        if base["type"] == "float" and self.chance(15):
            entry["type"] = "float texture"
        if "defaultValue" in base and self.chance(80):
            entry["defaultValue"] = self.random.choice(self.texts[base["type"]])
        if self.chance(50):  # what the SDK says already
            entry.update(base)

    def add_host_keys(self, name, entry):
        if self.chance(500):
            entry["label"] = name.replace("_", " ")
        if self.chance(200):
            entry["hidden"] = True
        if self.chance(200):
            entry["ui"] = {"group": self.random.choice(GROUPS), "order": self.random.randrange(40)}
        if self.chance(100):
            entry["range"] = [0, 0.75]


def stripped_document(base, seed):
    """Of a base document; the same for the same seed."""
    maker = Maker(base["plugins"], seed)
    plugins = {name: maker.plugin(name, plugin) for name, plugin in base["plugins"].items()
               if maker.chance(400)}
    return {"version": 7, "plugins": plugins}
