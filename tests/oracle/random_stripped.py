"""Live and stripped documents made of chance, the same for the same seed, for the tests of
combine and diff."""

import random

CATEGORIES = ("material", "texture", "light", "BRDF", None)
# No two of these names are equal in the combined order.
PLUGINS = ("Mtl", "mtl.b", "MTL_c", "Tex", "a", "Z9", "\u00e9clair", "\u6771")
NAMES = ("n", "m_x", "M.y", "type", "N2", "n_color", "k_tex", "\u00fc")
ADDED_NAMES = NAMES + ("M_X", "q", 'a"b', "tYPE")
VALUES = (("float", "1"), ("float", "0.5"), ("color", "Color(1, 0.5, 0)"), ("bool", "1"),
          ("string", "a/b \u00e9"), ("texture", "AColor(1, 1, 1, 1)"), ("integer", "-7"))
HANDLERS = ("ColorTexFrameHandler", "FloatTexFrameHandler", "DuplicateHandler", "")
SUFFIXES = ("_tex", "_tex_on", "_tex_mult", "_res_mult", "_color", "_float")
OTHER_SUFFIXES = ("_duplicate", "_tex_on_color", "")
LEAVES = (None, True, 0, 2.5, -0.0, 1e300, 2 ** 53, "text/\t\x7f", [], [1, {"type": [], "B": 0}])


class Documents:
    """A live and a stripped document that have much in common."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.live = {name: self.live_plugin() for name in PLUGINS if self.chance(0.7)}
        self.stripped = {key: value for key, value in (
            ("plugins", self.leaf() if self.chance(0.02) else self.stripped_plugins()),
            ("version", self.pick((3, 3.5))), ("notes", {"b": self.leaf(), "type": self.leaf()}),
            ("Notes", self.leaf())) if self.chance(0.9)}

    def chance(self, probability):
        return self.random.random() < probability

    def pick(self, choices):
        return self.random.choice(choices)

    def leaf(self):
        return self.pick(LEAVES)

    def live_plugin(self):
        params = {}
        for name in NAMES:
            if self.chance(0.5):
                params[name] = dict(zip(("type", "defaultValue"), self.pick(VALUES)))
        return {"type": self.pick(CATEGORIES), "params": params}

    def stripped_plugins(self):
        plugins = {}
        for name in (*PLUGINS, "New", "new", "a_"):
            if self.chance(0.5):
                plugins[name] = self.stripped_plugin(name in self.live)
        return plugins

    def stripped_plugin(self, is_live):
        if self.chance(0.1):
            return None
        if self.chance(0.004):
            return self.leaf()
        plugin = {"type": self.pick(CATEGORIES), "params": self.stripped_params(is_live),
                  "userData": self.user_data(), "note": {"type": self.leaf()}}
        return {key: value for key, value in plugin.items() if self.chance(0.7)}

    def stripped_params(self, is_live):
        # In a plugin that is added, null stays and then is no parameter.
        null = 0.1 if is_live else 0.004
        params = {}
        for name in ADDED_NAMES:
            if self.chance(0.4):
                params[name] = None if self.chance(null) else self.entry()
        return params

    def entry(self):
        kind, default = self.pick(VALUES)
        entry = {"type": kind, "defaultValue": default, "handler": self.pick(HANDLERS),
                 "scaling": {"unit": 1, "type": self.leaf()}, "gpu": self.leaf(),
                 "listType": self.pick(("float", "color", "string", "double", "list"))}
        kept = {key: value for key, value in entry.items() if self.chance(0.5)}
        if self.chance(0.003):
            kept[self.pick(("type", "listType", "handler"))] = self.leaf()
        return kept

    def user_data(self):
        names = {name + suffix for name in (*NAMES, "q") if self.chance(0.5)
                 for suffix in SUFFIXES if self.chance(0.8)}
        if self.chance(0.7):
            names.add("texture_multiplier_mode")
        if self.chance(0.2):
            names.add(self.pick(NAMES) + self.pick(OTHER_SUFFIXES))
        if self.chance(0.95):
            names -= set(ADDED_NAMES)
        entries = [self.entry() for _ in names]
        return dict(zip(sorted(names), entries))
